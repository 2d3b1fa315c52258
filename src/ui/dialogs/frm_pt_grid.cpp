// ui/dialogs/frm_pt_grid.cpp - the altitude of one point: a bare field beside the mouse.
#include "core/dialog_flags.h"
#include "core/messages.h"
#include "core/model_ops.h"
#include "core/program.h"
#include "core/typed_number.h"
#include "ui/canvas/view.h"
#include "ui/dialogs/dialogs.h"

namespace {

constexpr Number_Limits Altitudes{.Above = -999.0, .Below = 30000.0};

bool Is_Live(Long I) {
    return I != 0 && Tab_PtGrid[I].Active == 1;
}

class PtGrid_Form final : public Form {
public:
    PtGrid_Form() : Form("Frm_PtGrid") {
        Add({.Kind = Control_Kind::Number,
             .Name = "Alt",
             .Tip_Words = {"Altitude", "Altitude"},
             .Columns = 8});
        Set_Layout(Column({"Alt"}));
        Frameless = true;
        Place = Form_Place::Beside_Point(Round_Lng(Move_X), Round_Lng(Move_Y));
        On_Load = [this] { Load(); };
        On_Key = [this](Key_Event K) { return Take_Key(K); };
    }

private:
    void Load() {
        Set_Text("Alt",
                 Shown_Number(Is_Live(Sel_Alt_Pt) ? Tab_PtGrid[Sel_Alt_Pt].Alt : Last_Alt_Pt));
        Set_Focus("Alt");
    }
    // The field is never left: it is taken, or the window goes.
    bool Take_Key(Key_Event K) {
        if (K.Code == Key_Escape) Close(Form_End::Closed);
        if (K.Code == Key_Enter) Take();
        return K.Code == Key_Escape || K.Code == Key_Enter || K.Code == Key_Tab;
    }
    void Take() {
        const auto Alt = Typed_Number((*this)["Alt"].Text, Altitudes);
        if (!Alt) {
            Msg_Wrong_Value((*this)["Alt"].Words.In(::Language), (*this)["Alt"].Text,
                            Limits_Text(Altitudes));
            return Set_Focus("Alt");
        }
        Last_Alt_Pt = static_cast<Single>(*Alt);
        const Pix At = Pic_To_Map({Move_X, Move_Y});
        if (Sel_Alt_Pt == 0)
            Sel_Alt_Pt = PtGrid_Add(At.X, At.Y, Last_Alt_Pt);
        else
            PtGrid_Change(Sel_Alt_Pt, At.X, At.Y, Last_Alt_Pt);
        PtGrid_Cancelled = 0;
        Close(Form_End::Ok);
    }
};

}  // namespace

std::unique_ptr<Form> Make_Frm_PtGrid() {
    return std::make_unique<PtGrid_Form>();
}
