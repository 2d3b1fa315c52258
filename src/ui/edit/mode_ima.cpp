// ui/edit/mode_ima.cpp - the mode in which textures are laid on the map.
#include "core/view_calls.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"
#include "ui/edit/route_tools.h"

namespace {

constexpr const char* Tools[] = {"Cmd_New_Ima", "Cmd_Sel_Ima", "Cmd_Sup_Route_Ou_Pt"};

}  // namespace

const Mode_Row Row_Of_Ima{.Name = "Mode_Ima",
                          .Flag = &Mode_Flags::Mode_Ima,
                          .Button = "Cmd_TrtIma",
                          .Tools = Tools,
                          .Leave_Former = Route_Leave,
                          .Checks_Textures = false,
                          .On_Enter = [] { Call(The_View.Ima_Clear); },
                          .Paint = Objects_Draw_Backdrop};
