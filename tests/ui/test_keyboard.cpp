// tests/ui/test_keyboard.cpp - the keys of the main form.
#include "ui/edit/keyboard.h"

#include <map>

#include "core/lifecycle.h"
#include "core/model_ops.h"
#include "core/program.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"
#include "ui/edit/route_state.h"
#include "ui/form/form_events.h"
#include "ui/frm/frm.h"
#include "ui_support/small_project.h"
#include "ui_support/ui_test.h"

namespace {

class Keyboard : public Ui_Test {
protected:
    Keyboard() {
        View_Resize(301, 301);
        Open_Project(Write_Small_Project(Dir, "small"));
    }
    // Records which button a key presses, in place of what the button does.
    std::string Pressed_By(Key_Event K) {
        std::string Pressed;
        std::map<std::string, std::function<void()>> Kept;
        for (const Control& C : Frm().Controls()) {
            if (C.Kind != Control_Kind::Button) continue;
            Kept[C.Name] = C.On_Click;
            Frm().Handlers(C.Name).On_Click = [&Pressed, Name = C.Name] { Pressed += Name + " "; };
        }
        Form_Key(Frm(), K);
        for (const auto& [Name, Run] : Kept) Frm().Handlers(Name).On_Click = Run;
        return Pressed;
    }
    Pt First_Point() { return Tab_Pt[Tab_Obj[First_Obj].First_Pt]; }
};

const std::map<Key_Code, std::string> Buttons_Of_Keys = {
    {Key_Pad_Plus, "Cmd_ZPlus "}, {Key_Pad_Minus, "Cmd_ZMoins "},
    {'C', "Cmd_ColourGrid "},     {'G', "Cmd_API "},
    {'L', "Cmd_LandClass "},      {'W', "Cmd_WaterClass "},
    {'E', "Cmd_Excl_Areas "},     {'D', "Cmd_TrtArea "},
    {'U', "Cmd_FSUIPC "},         {'M', "Cmd_TrtMesh "},
    {'T', "Cmd_Tabul "},          {'R', "Cmd_Saisie_Routes Cmd_Sel_Route "},
    {'S', "Cmd_Sel_Route "},      {'N', "Cmd_New_Route "},
    {'O', "Cmd_Sel_Pt_Route "},   {'I', "Cmd_Ins_Pt_Route "},
    {'A', "Cmd_Extr_Pt_Route "}};

}  // namespace

TEST_F(Keyboard, EachAltKeyPressesItsButton) {
    for (const Control& C : Frm().Controls()) Frm().Set_Enabled(C.Name, true);
    for (Key_Code Code = 1; Code < 128; ++Code) {
        const auto Row = Buttons_Of_Keys.find(Code);
        EXPECT_EQ(Pressed_By({Code, Alt_Key}), Row == Buttons_Of_Keys.end() ? "" : Row->second)
            << "key " << Code;
        EXPECT_EQ(Pressed_By({Code, 0}), "") << "without Alt";
    }
    Frm().Set_Enabled("Cmd_Sel_Route", false);
    EXPECT_EQ(Pressed_By({'R', Alt_Key}), "Cmd_Saisie_Routes ");
    EXPECT_EQ(Pressed_By({'S', Alt_Key}), "") << "a button out of reach takes no key";
}

TEST_F(Keyboard, ToolsArePointedAtWhatLiesUnderTheMouse) {
    std::string Told;
    The_Mode_Calls.Route_Double_Click = [&] {
        Told += "double " + std::to_string(static_cast<int>(Click_X)) + " ";
    };
    The_Mode_Calls.Route_Mouse = [&](const Mouse_Event& E) {
        if (E.What == Mouse_Event::Kind::Press) Told += "press " + std::to_string(E.Button) + " ";
    };
    const Pic_Px At = Map_To_Pic({200.0, 200.0});
    Pic_Mouse({.What = Mouse_Event::Kind::Move, .X = At.X, .Y = At.Y});
    const std::string Double = "double " + std::to_string(static_cast<int>(Move_X)) + " ";
    Click_X = -1.0;
    EXPECT_TRUE(Form_Key(Frm(), {'R', Alt_Key}));
    EXPECT_EQ(Mode_Route, 1);
    EXPECT_EQ(Told, Double);
    for (const Key_Code Code : {'S', 'O', 'I', 'A'}) {
        Told.clear();
        Form_Key(Frm(), {Code, Alt_Key});
        EXPECT_EQ(Told, Double) << static_cast<char>(Code);
    }
    Told.clear();
    Form_Key(Frm(), {'N', Alt_Key});
    EXPECT_EQ(Told, "press 2 ");
    Init_Tables();
    Form_Key(Frm(), {'D', Alt_Key});
    Told.clear();
    Form_Key(Frm(), {'R', Alt_Key});
    EXPECT_EQ(Told, "") << "without objects there is nothing to select";
}

TEST_F(Keyboard, ArrowsMoveTheSelectedObject) {
    Form_Click(Frm(), "Cmd_Saisie_Routes");
    const Pt Before = First_Point();
    Form_Key(Frm(), {Key_Right, Shift_Key});
    EXPECT_EQ(First_Point().X, Before.X) << "nothing is selected";
    Obj_Selected = 1;
    Sel_Obj = First_Obj;
    Zoom = 2.0;
    Form_Key(Frm(), {Key_Right, 0});
    Form_Key(Frm(), {Key_Right, Shift_Key + Alt_Key});
    EXPECT_EQ(First_Point().X, Before.X) << "neither bare arrows nor Alt move anything";
    Form_Key(Frm(), {Key_Right, Shift_Key});
    EXPECT_EQ(First_Point().X, Before.X + 0.5);
    Form_Key(Frm(), {Key_Left, Ctrl_Key});
    EXPECT_EQ(First_Point().X, Before.X - 2.0);
    Form_Key(Frm(), {Key_Up, Shift_Key});
    Form_Key(Frm(), {Key_Down, Ctrl_Key});
    EXPECT_EQ(First_Point().Y, Before.Y + 2.0);
    EXPECT_EQ(Tab_Pt[Tab_Obj[First_Obj].Last_Pt].Y, 0.8 * 400 + 2.0) << "every point moves";
    Pending_Select = 1;
    Form_Key(Frm(), {Key_Up, Shift_Key});
    EXPECT_EQ(First_Point().Y, Before.Y + 2.0) << "an object is about to be selected";
}

TEST_F(Keyboard, APolygonStaysInItsTexture) {
    Form_Click(Frm(), "Cmd_Saisie_Routes");
    Obj_Selected = 1;
    Sel_Obj = First_Obj;
    Ima Texture;
    Texture.X1 = Texture.Y1 = 80;
    Texture.X2 = 322;
    Texture.Y2 = 400;
    Ima_Add(Texture);
    Attr& A = Tab_Obj[First_Obj].Attr;
    A.LWM_VTP2 = 2;
    A.VTP1_SpecNor = 0;
    A.Link_Ima = Tab_Ima[1].Num;
    const Pt Before = First_Point();
    Form_Key(Frm(), {Key_Right, Ctrl_Key});
    EXPECT_EQ(First_Point().X, Before.X) << "320 + 5 lies beyond 322: no point moves";
    Form_Key(Frm(), {Key_Left, Shift_Key});
    EXPECT_EQ(First_Point().X, Before.X) << "80 - 1 lies outside";
    Form_Key(Frm(), {Key_Right, Shift_Key});
    Form_Key(Frm(), {Key_Right, Shift_Key});
    EXPECT_EQ(First_Point().X, Before.X + 2.0) << "up to the edge";
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
    A.VTP1_SpecNor = 1;
    Form_Key(Frm(), {Key_Right, Ctrl_Key});
    EXPECT_EQ(First_Point().X, Before.X + 7.0) << "other polygons know no rectangle";
}

TEST_F(Keyboard, EscapeAndDeleteGoToTheMode) {
    std::string Told;
    const auto Note = [&](const char* Mode) {
        return [&Told, Mode](Key_Event K) {
            Told += Mode + std::to_string(K.Code) + " ";
            return true;
        };
    };
    The_Mode_Calls.Route_Key = Note("route");
    The_Mode_Calls.Ima_Key = Note("ima");
    The_Mode_Calls.PtGrid_Key = Note("grid");
    Mesh_Done = 1;
    Frm().Set_Focus("Pic");
    for (const char* Button : {"Cmd_Saisie_Routes", "Cmd_TrtIma", "Cmd_TrtMesh", "Cmd_TrtArea"}) {
        Form_Click(Frm(), Button);
        Form_Key(Frm(), {Key_Escape, 0});
        Form_Key(Frm(), {Key_Delete, 0});
        Form_Key(Frm(), {'X', 0});
    }
    EXPECT_EQ(Told, "route27 route46 ima27 ima46 grid27 grid46 ");
}
