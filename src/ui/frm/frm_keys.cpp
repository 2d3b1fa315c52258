// ui/frm/frm_keys.cpp - Alt keys that press the buttons of the tool bar.
#include "ui/frm/frm_keys.h"

#include <algorithm>
#include <array>

#include "core/model.h"
#include "core/program.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"
#include "ui/form/form_events.h"
#include "ui/frm/frm.h"
#include "ui/frm/view_controls.h"

namespace {

// What follows the button: tools are pointed at what lies under the mouse at once.
enum class Then { Nothing, Double_Click, Right_Press, Select };

struct Alt_Key_Row {
    Key_Code Code;
    std::string_view Button;
    Then Next = Then::Nothing;
};

constexpr std::array Alt_Keys{
    Alt_Key_Row{Key_Pad_Plus, "Cmd_ZPlus"},
    Alt_Key_Row{Key_Pad_Minus, "Cmd_ZMoins"},
    Alt_Key_Row{'C', "Cmd_ColourGrid"},
    Alt_Key_Row{'G', "Cmd_API"},
    Alt_Key_Row{'L', "Cmd_LandClass"},
    Alt_Key_Row{'W', "Cmd_WaterClass"},
    Alt_Key_Row{'E', "Cmd_Excl_Areas"},
    Alt_Key_Row{'D', "Cmd_TrtArea"},
    Alt_Key_Row{'U', "Cmd_FSUIPC"},
    Alt_Key_Row{'M', "Cmd_TrtMesh"},
    Alt_Key_Row{'T', "Cmd_Tabul"},
    Alt_Key_Row{'R', "Cmd_Saisie_Routes", Then::Select},
    Alt_Key_Row{'S', "Cmd_Sel_Route", Then::Double_Click},
    Alt_Key_Row{'N', "Cmd_New_Route", Then::Right_Press},
    Alt_Key_Row{'O', "Cmd_Sel_Pt_Route", Then::Double_Click},
    Alt_Key_Row{'I', "Cmd_Ins_Pt_Route", Then::Double_Click},
    Alt_Key_Row{'A', "Cmd_Extr_Pt_Route", Then::Double_Click},
};

bool Is_Letter(Key_Code Code) {
    return 'A' <= Code && Code <= 'Z';
}

void Double_Click_At_Mouse() {
    Click_X = Move_X;
    Click_Y = Move_Y;
    Click_Raw = Move_Raw;
    Pic_Double_Click();
}

void Follow(Then Next) {
    switch (Next) {
        case Then::Nothing:
            return;
        case Then::Double_Click:
            return Double_Click_At_Mouse();
        case Then::Right_Press:
            return Pic_Mouse({.What = Mouse_Event::Kind::Press,
                              .Button = Mouse_Right,
                              .Shift = 0,
                              .X = Move_X,
                              .Y = Move_Y});
        case Then::Select:
            if (Mode_Route == 0 || Nb_Obj < First_Obj) return;  // the mode may have been refused
            Form_Click(Frm(), "Cmd_Sel_Route");
            return Double_Click_At_Mouse();
    }
}

bool Press_Alt(Key_Code Code) {
    const auto Row = std::ranges::find(Alt_Keys, Code, &Alt_Key_Row::Code);
    if (Row == Alt_Keys.end()) return false;
    if (Form_Click(Frm(), Row->Button)) Follow(Row->Next);
    return true;
}

}  // namespace

std::string Alt_Letters() {
    std::string Letters;
    for (const Alt_Key_Row& Row : Alt_Keys)
        if (Is_Letter(Row.Code)) Letters += static_cast<char>(Row.Code);
    return Letters;
}

std::string Alt_Key_Of(std::string_view Button) {
    const auto Row = std::ranges::find(Alt_Keys, Button, &Alt_Key_Row::Button);
    if (Row == Alt_Keys.end()) return {};
    if (Is_Letter(Row->Code)) return std::string("Alt+") + static_cast<char>(Row->Code);
    return Row->Code == Key_Pad_Plus ? "Alt+Pad+" : "Alt+Pad-";
}

bool Frm_Key(Key_Event K) {
    if ((K.Shift & Alt_Key) != 0) return Press_Alt(K.Code);
    if (K.Code == 'Y' && K.Shift == Ctrl_Key) return Form_Click(Frm(), "Mnu_Edit_Redo");
    if (Frm().Focus() == "Txt_Zoom") return false;  // its own
    const Mode_Row* Row = Mode_Now();
    return (Row != nullptr && Row->Form_Key != nullptr && Row->Form_Key(K)) || View_Key(K);
}
