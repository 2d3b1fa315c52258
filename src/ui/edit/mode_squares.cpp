// ui/edit/mode_squares.cpp - the modes in which a double click opens the dialog of a square.
#include <cstdint>

#include "core/dialog_flags.h"
#include "core/host.h"
#include "core/program.h"
#include "gen/driver.h"
#include "grid/terrain_grid.h"
#include "ui/canvas/grid_marks.h"
#include "ui/canvas/square_block.h"
#include "ui/canvas/view.h"
#include "ui/edit/class_grid.h"
#include "ui/edit/modes.h"
#include "ui/edit/square_drag.h"

namespace {

bool In_Work_Grid() {
    return !Mouse_Off_Grid && XGridNW <= Mouse_Map_X && Mouse_Map_X <= XGridSE &&
           YGridNW <= Mouse_Map_Y && Mouse_Map_Y <= YGridSE;
}

constexpr std::int64_t Most_Squares = 100000;  // in one dialog

using Square_At = Cell_Pos (*)(Pix);

// Flag is set before the dialog and cleared by its Ok.
void Square_Dialog(const char* Form, Int& Flag, const Square_Block& Squares) {
    The_Squares = Squares;
    Flag = 1;
    The_Host().Run_Form(Form);
    if (Flag == 0) View_Redraw();
}

void Dialog_At_Mouse(const char* Form, Int& Flag, Square_At Find = Cell_Of_Pixel) {
    const Cell_Pos At = Find({static_cast<Double>(Mouse_Map_X), static_cast<Double>(Mouse_Map_Y)});
    Square_Dialog(Form, Flag, {.NW = At});
}

void Dialog_On_Grid(const char* Form, Int& Flag, Square_At Find = Cell_Of_Pixel) {
    if (In_Work_Grid()) Dialog_At_Mouse(Form, Flag, Find);
}

// Opens the dialog for all squares that were dragged over.
void Drag_End(const Mouse_Event& E, const char* Form, Int& Flag, Square_At Find = Cell_Of_Pixel) {
    const auto Squares = Square_Drag_Release(E, Find);
    if (!Squares) return;
    if (std::int64_t{Squares->Cols} * Squares->Rows > Most_Squares)
        return Plain_Box(In_Language("More than 100000 squares are too many at once",
                                     "Plus de 100000 carr\xE9s sont trop \xE0 la fois"));
    Square_Dialog(Form, Flag, *Squares);
}

void Paint_Marked(Grid_Marks Marks) {
    Grid_Draw(Marks);
    Objects_Draw_Backdrop();
}

void Paint_Classes(Class_Sort Sort) {
    Class_Grid_Draw(Sort);
    Objects_Draw_Backdrop();
}

Wording One_Hint() {
    return {"Double-click opens the square", "Double-clic : ouvre le carr\xE9"};
}

Wording Many_Hint() {
    return {"Double-click opens the square; dragging with Shift opens many",
            "Double-clic : ouvre le carr\xE9 ; glisser avec Maj en ouvre plusieurs"};
}

void Enter_Classes() {
    Square_Drag_Cancel();
    Class_Pictures_Forget();
}

constexpr const char* Class_Tools[] = {"Cmd_AffTexture"};

}  // namespace

const Mode_Row Row_Of_Area{
    .Name = "Mode_Area",
    .Flag = &Mode_Flags::Mode_Area,
    .Button = "Cmd_TrtArea",
    .Leave_Former = Mode_Leave,
    .On_Enter = Square_Drag_Cancel,
    .Paint = [] { Paint_Marked(Grid_Marks::Areas); },
    .Press = Square_Drag_Press,
    .Move = Square_Drag_Move,
    .Release = [](const Mouse_Event& E) { Drag_End(E, "Frm_LOD", Area_Cancelled); },
    .Away = [](const Mouse_Event&) { Square_Drag_Cancel(); },
    .Double_Click = [] { Dialog_On_Grid("Frm_LOD", Area_Cancelled); },
    .Key = Square_Drag_Key,
    .Hint = Many_Hint,
    .Help = {"Fills small squares with water, land or a texture.\n"
             "A double click opens one square, dragging with Shift all under the rectangle.",
             "Remplit les petits carr\xE9s d'eau, de terre ou d'une texture.\n"
             "Un double-clic ouvre un carr\xE9, glisser avec Maj tous ceux sous le rectangle."}};

const Mode_Row Row_Of_Cell{
    .Name = "Mode_Cell",
    .Flag = &Mode_Flags::Mode_Cell,
    .Button = "Cmd_TrtCell",
    .Leave_Former = Mode_Leave,
    .Paint = [] { Paint_Marked(Grid_Marks::Lod8s); },
    .Double_Click = [] { Dialog_On_Grid("Frm_LOD8", Area_Cancelled); },
    .Hint = One_Hint,
    .Help =
        {"Fills large squares, 32 by 32 small ones each. A double click opens one.",
         "Remplit les grands carr\xE9s, de 32 par 32 petits chacun. Un double-clic en ouvre un."}};

// A whole area may be excluded from beyond the grid as well.
const Mode_Row Row_Of_Excl{
    .Name = "Mode_Excl",
    .Flag = &Mode_Flags::Mode_Excl,
    .Button = "Cmd_Excl_Areas",
    .Leave_Former = Mode_Leave,
    .On_Enter = Square_Drag_Cancel,
    .Paint = [] { Paint_Marked(Grid_Marks::Excls); },
    .Press = Square_Drag_Press,
    .Move = Square_Drag_Move,
    .Release = [](const Mouse_Event& E) { Drag_End(E, "Frm_Excl", Excl_Cancelled); },
    .Away = [](const Mouse_Event&) { Square_Drag_Cancel(); },
    .Double_Click = [] { Dialog_At_Mouse("Frm_Excl", Excl_Cancelled); },
    .Key = Square_Drag_Key,
    .Hint = Many_Hint,
    .Help = {"Leaves default scenery of the simulator out of small squares.\n"
             "A double click opens one square, dragging with Shift all under the rectangle.",
             "Exclut des petits carr\xE9s des \xE9l\xE9ments du d\xE9"
             "cor par d\xE9"
             "faut du simulateur.\n"
             "Un double-clic ouvre un carr\xE9, glisser avec Maj tous ceux sous le rectangle."}};

const Mode_Row Row_Of_LC{
    .Name = "Mode_LC",
    .Flag = &Mode_Flags::Mode_LC,
    .Button = "Cmd_LandClass",
    .Tools = Class_Tools,
    .Leave_Former = Mode_Leave,
    .On_Enter = Enter_Classes,
    .Paint = [] { Paint_Classes(Class_Sort::Land); },
    .Press = Square_Drag_Press,
    .Move = Square_Drag_Move,
    .Release =
        [](const Mouse_Event& E) { Drag_End(E, "Frm_LC", LC_Cancelled, Pixel_To_Cell_Shift); },
    .Away = [](const Mouse_Event&) { Square_Drag_Cancel(); },
    .Double_Click = [] { Dialog_On_Grid("Frm_LC", LC_Cancelled, Pixel_To_Cell_Shift); },
    .Key = Square_Drag_Key,
    .Hint = Many_Hint,
    .Help = {"Gives small squares the class of their land, which brings its textures.\n"
             "A double click opens one square, dragging with Shift all under the rectangle.",
             "Donne aux petits carr\xE9s la classe de leur terrain, qui apporte ses textures.\n"
             "Un double-clic ouvre un carr\xE9, glisser avec Maj tous ceux sous le rectangle."}};

const Mode_Row Row_Of_WC{
    .Name = "Mode_WC",
    .Flag = &Mode_Flags::Mode_WC,
    .Button = "Cmd_WaterClass",
    .Tools = Class_Tools,
    .Leave_Former = Mode_Leave,
    .On_Enter = Enter_Classes,
    .Paint = [] { Paint_Classes(Class_Sort::Water); },
    .Press = Square_Drag_Press,
    .Move = Square_Drag_Move,
    .Release =
        [](const Mouse_Event& E) { Drag_End(E, "Frm_WC", WC_Cancelled, Pixel_To_Cell_Shift); },
    .Away = [](const Mouse_Event&) { Square_Drag_Cancel(); },
    .Double_Click = [] { Dialog_On_Grid("Frm_WC", WC_Cancelled, Pixel_To_Cell_Shift); },
    .Key = Square_Drag_Key,
    .Hint = Many_Hint,
    .Help = {"Gives small squares the class of their water.\n"
             "A double click opens one square, dragging with Shift all under the rectangle.",
             "Donne aux petits carr\xE9s la classe de leur eau.\n"
             "Un double-clic ouvre un carr\xE9, glisser avec Maj tous ceux sous le rectangle."}};
