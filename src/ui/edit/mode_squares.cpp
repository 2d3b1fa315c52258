// ui/edit/mode_squares.cpp - the modes in which a double click opens the dialog of a square.
#include "core/dialog_flags.h"
#include "core/host.h"
#include "gen/driver.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"

namespace {

bool In_Work_Grid() {
    return !Mouse_Off_Grid && XGridNW <= Mouse_Map_X && Mouse_Map_X <= XGridSE &&
           YGridNW <= Mouse_Map_Y && Mouse_Map_Y <= YGridSE;
}

// Flag is set before the dialog and cleared by its Ok.
void Square_Dialog(const char* Form, Int& Flag) {
    Flag = 1;
    The_Host().Run_Form(Form);
    if (Flag == 0) View_Redraw();
}

void Dialog_On_Grid(const char* Form, Int& Flag) {
    if (In_Work_Grid()) Square_Dialog(Form, Flag);
}

void Paint_Marked(Grid_Marks Marks) {
    Grid_Draw(Marks);
    Objects_Draw_Backdrop();
}

void Paint_Classes() {
    Grid_Draw();
    Objects_Draw_Backdrop();
}

constexpr const char* Class_Tools[] = {"Cmd_AffTexture"};

}  // namespace

const Mode_Row Row_Of_Area{.Name = "Mode_Area",
                           .Flag = &Mode_Flags::Mode_Area,
                           .Button = "Cmd_TrtArea",
                           .Leave_Former = Mode_Leave,
                           .Paint = [] { Paint_Marked(Grid_Marks::Areas); },
                           .Double_Click = [] { Dialog_On_Grid("Frm_LOD", Area_Cancelled); }};

const Mode_Row Row_Of_Cell{.Name = "Mode_Cell",
                           .Flag = &Mode_Flags::Mode_Cell,
                           .Button = "Cmd_TrtCell",
                           .Leave_Former = Mode_Leave,
                           .Paint = [] { Paint_Marked(Grid_Marks::Lod8s); },
                           .Double_Click = [] { Dialog_On_Grid("Frm_LOD8", Area_Cancelled); }};

// A whole area may be excluded from beyond the grid as well.
const Mode_Row Row_Of_Excl{.Name = "Mode_Excl",
                           .Flag = &Mode_Flags::Mode_Excl,
                           .Button = "Cmd_Excl_Areas",
                           .Leave_Former = Mode_Leave,
                           .Paint = [] { Paint_Marked(Grid_Marks::Excls); },
                           .Double_Click = [] { Square_Dialog("Frm_Excl", Excl_Cancelled); }};

const Mode_Row Row_Of_LC{.Name = "Mode_LC",
                         .Flag = &Mode_Flags::Mode_LC,
                         .Button = "Cmd_LandClass",
                         .Tools = Class_Tools,
                         .Leave_Former = Mode_Leave,
                         .Paint = Paint_Classes,
                         .Double_Click = [] { Dialog_On_Grid("Frm_LC", LC_Cancelled); }};

const Mode_Row Row_Of_WC{.Name = "Mode_WC",
                         .Flag = &Mode_Flags::Mode_WC,
                         .Button = "Cmd_WaterClass",
                         .Tools = Class_Tools,
                         .Leave_Former = Mode_Leave,
                         .Paint = Paint_Classes,
                         .Double_Click = [] { Dialog_On_Grid("Frm_WC", WC_Cancelled); }};
