// ui/modes.cpp - entering and leaving the editing modes.
#include "ui/modes.h"

#include <initializer_list>

#include "core/host.h"
#include "core/model.h"
#include "core/program.h"
#include "core/view_calls.h"
#include "gen/driver.h"
#include "ui/frm.h"
#include "ui/route_state.h"
#include "ui/view.h"

namespace {

using Names = std::initializer_list<const char*>;

void Enable(Names Buttons, bool On) {
    for (const char* Name : Buttons) The_Host().Set_Enabled(Name, On);
}

constexpr Names Mode_Buttons = {"Cmd_Saisie_Routes", "Cmd_TrtArea",   "Cmd_TrtCell",
                                "Cmd_Excl_Areas",    "Cmd_LandClass", "Cmd_WaterClass",
                                "Cmd_TrtIma",        "Cmd_TrtMesh"};

// The tool bar shows the mode that is on by its button, which is pressed and out of reach.
void Take_Mode(const char* Button, Int& Flag, Names Tools) {
    Tool_Bar_Reset();
    Enable(Tools, true);
    Enable({Button}, false);
    Frm().Set_Value(Button, 1);
    Flag = 1;
}

void Show_Mode() {
    View_Redraw();
    The_Host().Set_Pointer(Pointer_Shape::Cross);
}

void Enter_Mode(const char* Button, Int& Flag, Names Tools = {}) {
    if (Poly_Out_Of_Tex != 0) return;
    Take_Mode(Button, Flag, Tools);
    Show_Mode();
}

void Leave_And_Enter(const char* Button, Int& Flag, Names Tools = {}) {
    Mode_Leave();
    Enter_Mode(Button, Flag, Tools);
}

}  // namespace

void Mode_Clear() {
    The_Modes = {};
    for (const char* Button : Mode_Buttons) Frm().Set_Value(Button, 0);
}

void Tool_Bar_Reset() {
    Enable(Mode_Buttons, true);
    Enable({"Cmd_FSUIPC"}, true);
    Enable({"Cmd_AffTexture", "Cmd_New_Ima", "Cmd_Sel_Ima", "Cmd_Sel_Crb_Ima", "Cmd_Sel_Route",
            "Cmd_New_Route", "Cmd_Ins_Pt_Route", "Cmd_Sel_Pt_Route", "Cmd_Extr_Pt_Route",
            "Cmd_Sup_Route_Ou_Pt", "Cmd_Tabul"},
           false);
    Mode_Clear();
    The_Host().Set_Visible("LPtGrid", false);
}

void Mode_Area_On() {
    Take_Mode("Cmd_TrtArea", Mode_Area, {});
}

void Route_Leave() {
    if (Mode_Route != 0) {
        Call(The_Mode_Calls.Tool_Cancel);
        Call(The_Mode_Calls.Tool_Cancel);
    }
    Route_Reset();
}

void Cmd_TrtArea() {
    Leave_And_Enter("Cmd_TrtArea", Mode_Area);
}

void Cmd_TrtCell() {
    Leave_And_Enter("Cmd_TrtCell", Mode_Cell);
}

void Cmd_Excl_Areas() {
    Leave_And_Enter("Cmd_Excl_Areas", Mode_Excl);
}

void Cmd_LandClass() {
    Leave_And_Enter("Cmd_LandClass", Mode_LC, {"Cmd_AffTexture"});
}

void Cmd_WaterClass() {
    Leave_And_Enter("Cmd_WaterClass", Mode_WC, {"Cmd_AffTexture"});
}

void Cmd_Saisie_Routes() {
    Tex_Link_Check();
    Enter_Mode("Cmd_Saisie_Routes", Mode_Route,
               {"Cmd_Sel_Route", "Cmd_New_Route", "Cmd_Ins_Pt_Route", "Cmd_Sel_Pt_Route",
                "Cmd_Extr_Pt_Route", "Cmd_Sup_Route_Ou_Pt", "Cmd_Tabul"});
}

void Cmd_TrtMesh() {
    if (Mesh_Done == 0) {
        The_Host().Run_Form("Frm_Mesh");
        if (Mesh_Done == 0) return;
    }
    Mode_Leave();
    if (Poly_Out_Of_Tex != 0) return;
    Take_Mode("Cmd_TrtMesh", Mode_PtGrid, {});
    The_Host().Set_Visible("LPtGrid", true);
    Show_Mode();
}

void Cmd_TrtIma() {
    Route_Leave();
    Take_Mode("Cmd_TrtIma", Mode_Ima, {"Cmd_New_Ima", "Cmd_Sel_Ima", "Cmd_Sup_Route_Ou_Pt"});
    Call(The_View.Ima_Clear);
    Show_Mode();
}

void Cmd_FSUIPC() {
    if (!The_Mode_Calls.Flight_Open) return;
    Mode_Leave();
    if (Poly_Out_Of_Tex != 0) return;
    Tool_Bar_Reset();
    Call(The_Mode_Calls.Tool_Cancel);
    Call(The_Mode_Calls.Tool_Cancel);
    Tool_Clear();
    The_Route.Last_Obj_Set = 0;
    The_Mode_Calls.Flight_Open();
}

void Modes_Reset() {
    The_Modes = {};
    The_Dialog_Flags = {};
    The_Mode_Calls = {};
}
