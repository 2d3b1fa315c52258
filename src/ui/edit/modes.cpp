// ui/edit/modes.cpp - entering and leaving the editing modes.
#include "ui/edit/modes.h"

#include "core/host.h"
#include "core/program.h"
#include "gen/driver.h"
#include "ui/canvas/view.h"
#include "ui/edit/route_tools.h"

namespace {

using Names = std::span<const char* const>;

// Time for the window to show that no mode is on before the recorder comes up.
constexpr Int Flight_Delay_Ms = 200;

constexpr const char* Off_In_No_Mode[] = {
    "Cmd_AffTexture",    "Cmd_New_Ima",         "Cmd_Sel_Ima",      "Cmd_Sel_Crb_Ima",
    "Cmd_Sel_Route",     "Cmd_New_Route",       "Cmd_Ins_Pt_Route", "Cmd_Sel_Pt_Route",
    "Cmd_Extr_Pt_Route", "Cmd_Sup_Route_Ou_Pt", "Cmd_Tabul"};

void Enable(Names Buttons, bool On) {
    for (const char* Name : Buttons) The_Host().Set_Enabled(Name, On);
}

// The tool bar shows the mode that is on by its button, which is pressed and out of reach.
void Take_Mode(const Mode_Row& Row) {
    Tool_Bar_Reset();
    Enable(Row.Tools, true);
    The_Host().Set_Enabled(Row.Button, false);
    The_Host().Set_Value(Row.Button, 1);
    The_Modes.*Row.Flag = 1;
    Hint_Show();
    Canvas_Pointer(Pointer_Shape::Cross);
}

void Paint_Mode_Now() {
    if (const Mode_Row* Row = Mode_Now()) Row->Paint();
}

}  // namespace

const Mode_Row* Mode_Now() {
    for (const Mode_Row* Row : Mode_Rows)
        if (The_Modes.*Row->Flag != 0) return Row;
    return nullptr;
}

void Mode_Enter(const Mode_Row& Row) {
    if (Row.May_Enter != nullptr && !Row.May_Enter()) return;
    Row.Leave_Former();
    if (Row.Checks_Textures && Poly_Out_Of_Tex != 0) return;
    Take_Mode(Row);
    if (Row.On_Enter != nullptr) Row.On_Enter();
    View_Redraw();
}

void Mode_Clear() {
    The_Modes = {};
    for (const Mode_Row* Row : Mode_Rows) The_Host().Set_Value(Row->Button, 0);
    Hint_Show();
    Canvas_Pointer(Pointer_Shape::Normal);
}

void Tool_Bar_Reset() {
    for (const Mode_Row* Row : Mode_Rows) The_Host().Set_Enabled(Row->Button, true);
    The_Host().Set_Enabled("Cmd_FSUIPC", true);
    Enable(Off_In_No_Mode, false);
    Mode_Clear();
    The_Host().Set_Visible("LPtGrid", false);
}

void Mode_Area_On() {
    Take_Mode(Row_Of_Area);
}

void Mode_Route_On() {
    Take_Mode(Row_Of_Route);
}

void Cmd_FSUIPC() {
    Mode_Leave();
    if (Poly_Out_Of_Tex != 0) return;
    Tool_Bar_Reset();
    Tool_Leave();
    Tool_Clear();
    Last_Obj_Set = 0;
    The_Host().Open_Form("Frm_FSUIPC", Flight_Delay_Ms);
}

void Cmd_Sup_Route_Ou_Pt() {
    const Mode_Row* Row = Mode_Now();
    if (Row != nullptr && Row->Delete != nullptr) Row->Delete();
}

void Cmd_Tabul() {
    const Mode_Row* Row = Mode_Now();
    if (Edit_On != 0 && Row != nullptr && Row->Search != nullptr) Row->Search();
}

void Hint_Show() {
    const Mode_Row* Row = Mode_Now();
    const Wording Hint = Row != nullptr && Row->Hint != nullptr ? Row->Hint() : Wording{};
    The_Host().Set_Caption("L_Hint", Hint.In(Language));
}

bool Pic_Key(Key_Event K) {
    const Mode_Row* Row = Mode_Now();
    const bool Used = Edit_On != 0 && Row != nullptr && Row->Key != nullptr && Row->Key(K);
    if (Used) Hint_Show();
    return Used;
}

void Modes_Install() {
    Paint_Mode = Paint_Mode_Now;
}
