// ui/keyboard.cpp - Alt keys that press buttons, arrows that move an object.
#include "ui/keyboard.h"

#include <algorithm>
#include <array>

#include "core/model.h"
#include "core/program.h"
#include "ui/form_events.h"
#include "ui/frm.h"
#include "ui/modes.h"
#include "ui/route_state.h"
#include "ui/view.h"

namespace {

// What follows the button: tools are pointed at what lies under the mouse at once.
enum class Then { Nothing, Double_Click, Right_Press, Select };

struct Alt_Key_Row {
    Key_Code Code;
    const char* Button;
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

void Double_Click_At_Mouse() {
    Click_X = Move_X;
    Click_Y = Move_Y;
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
            if (Nb_Obj < First_Obj) return;
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

// A polygon painted with a texture may not be moved out of it.
bool Leaves_Its_Texture(const Obj& O, Double DX, Double DY) {
    const Attr& A = O.Attr;
    if (A.SurfShore >= 2 || A.LWM_VTP2 != 2 || A.VTP1_SpecNor != 0 || A.Link_Ima == 0) return false;
    const auto Textures = Tab_Ima.Rows();
    const auto M = std::ranges::find(Textures, A.Link_Ima, &Ima::Num);
    if (M == Textures.end()) return false;
    for (Long P = O.First_Pt;; P = Tab_Pt[P].Next) {
        const Double X = Tab_Pt[P].X + DX, Y = Tab_Pt[P].Y + DY;
        if (X < M->X1 || X > M->X2 || Y < M->Y1 || Y > M->Y2) return true;
        if (P == O.Last_Pt) return false;
    }
}

void Move_Object(Double DX, Double DY) {
    const Obj& O = Tab_Obj[Sel_Obj];
    if (O.Nb_Pts == 0 || Leaves_Its_Texture(O, DX, DY)) return;
    for (Long P = O.First_Pt;; P = Tab_Pt[P].Next) {
        Tab_Pt[P].X += DX;
        Tab_Pt[P].Y += DY;
        if (P == O.Last_Pt) break;
    }
    Objects_Changed();
    View_Redraw();
}

bool Arrow_Key(Key_Event K) {
    Double Pixels = 0.0;
    if ((K.Shift & Shift_Key) != 0)
        Pixels = 1.0;
    else if ((K.Shift & Ctrl_Key) != 0)
        Pixels = 5.0;
    else
        return false;
    const Double Step = Pixels / Zoom;
    switch (K.Code) {
        case Key_Up:
            Move_Object(0.0, -Step);
            return true;
        case Key_Down:
            Move_Object(0.0, Step);
            return true;
        case Key_Left:
            Move_Object(-Step, 0.0);
            return true;
        case Key_Right:
            Move_Object(Step, 0.0);
            return true;
        default:
            return false;
    }
}

}  // namespace

const std::string_view Alt_Letters = "CGLWEDUMTRSNOIA";

bool Frm_Key(Key_Event K) {
    if ((K.Shift & Alt_Key) != 0) return Press_Alt(K.Code);
    if (Mode_Route == 0 || Obj_Selected == 0 || Pending_Select != 0) return false;
    return Arrow_Key(K);
}

bool Pic_Key(Key_Event K) {
    if (Edit_On == 0 || (K.Code != Key_Escape && K.Code != Key_Delete)) return false;
    const Mode_Calls& C = The_Mode_Calls;
    if (Mode_Route != 0 && C.Route_Key) return C.Route_Key(K);
    if (Mode_Ima != 0 && C.Ima_Key) return C.Ima_Key(K);
    if (Mode_PtGrid != 0 && C.PtGrid_Key) return C.PtGrid_Key(K);
    return false;
}
