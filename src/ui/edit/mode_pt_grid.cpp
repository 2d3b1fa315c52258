// ui/edit/mode_pt_grid.cpp - the mode in which altitude points are set.
#include "core/host.h"
#include "core/model.h"
#include "gen/driver.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"

namespace {

// Points make sense once the mesh that they belong to has been chosen.
bool Mesh_Is_Chosen() {
    if (Mesh_Done == 0) The_Host().Run_Form("Frm_Mesh");
    return Mesh_Done != 0;
}

void Paint() {
    Grid_Draw();
    Objects_Draw_Backdrop();
}

}  // namespace

const Mode_Row Row_Of_PtGrid{.Name = "Mode_PtGrid",
                             .Flag = &Mode_Flags::Mode_PtGrid,
                             .Button = "Cmd_TrtMesh",
                             .May_Enter = Mesh_Is_Chosen,
                             .Leave_Former = Mode_Leave,
                             .On_Enter = [] { The_Host().Set_Visible("LPtGrid", true); },
                             .Paint = Paint};
