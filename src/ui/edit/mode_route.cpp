// ui/edit/mode_route.cpp - the mode in which objects are drawn and changed.
#include "core/model.h"
#include "core/program.h"
#include "gen/driver.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"
#include "ui/edit/object_move.h"

namespace {

constexpr const char* Tools[] = {"Cmd_Sel_Route",    "Cmd_New_Route",     "Cmd_Ins_Pt_Route",
                                 "Cmd_Sel_Pt_Route", "Cmd_Extr_Pt_Route", "Cmd_Sup_Route_Ou_Pt",
                                 "Cmd_Tabul"};

void Paint() {
    Grid_Draw();
    Objects_Draw_Backdrop();
}

}  // namespace

const Mode_Row Row_Of_Route{.Name = "Mode_Route",
                            .Flag = &Mode_Flags::Mode_Route,
                            .Button = "Cmd_Saisie_Routes",
                            .Tools = Tools,
                            .Leave_Former = Tex_Link_Check,
                            .Paint = Paint,
                            .Form_Key = Object_Arrow_Key};
