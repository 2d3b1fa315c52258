// tests/play/test_keys.cpp - the keys that menus, tips and the help page tell.
#include <algorithm>
#include <set>

#include "play/script.h"
#include "ui/form/form_events.h"
#include "ui/frm/frm.h"
#include "ui_support/ui_test.h"

class Keys : public Ui_Test {};

// Shortcuts are bound by whoever shows the form, and Delete by the modes; scripts press those.
TEST_F(Keys, RunTheCommandThatTellsThem) {
    Form& F = Frm();
    std::set<std::string> Seen;
    std::string Ran;
    for (const Control& C : F.Controls())
        if (C.Kind == Control_Kind::Button || C.Name == "Mnu_Edit_Redo")
            F.Handlers(C.Name).On_Click = [&Ran, Name = C.Name] { Ran = Name; };
    for (const Control& C : F.Controls()) {
        if (C.Kind != Control_Kind::Menu_Item) continue;
        std::vector<std::string> Told = C.Other_Keys;
        if (!C.Shortcut.empty()) Told.push_back(C.Shortcut);
        for (const std::string& Key : Told) {
            Key_Event K;
            ASSERT_TRUE(Script_Key(Key, K)) << Key;
            EXPECT_TRUE(Seen.insert(Key).second) << Key << " is told of two commands";
            if (Key == C.Shortcut || Key == "Delete") continue;
            for (const Control& All : F.Controls()) F.Set_Enabled(All.Name, true);
            Ran.clear();
            Form_Key(F, K);
            ASSERT_TRUE(F.Has(Ran)) << Key << " runs nothing";
            EXPECT_EQ(std::ranges::count(F[Ran].Other_Keys, Key), 1) << Key << " ran " << Ran;
        }
    }
    EXPECT_GE(Seen.size(), 40U);
}
