// core/project_cmds.cpp - the controls that need an open project.
#include <span>
#include <string_view>

#include "core/host.h"
#include "core/lifecycle.h"

namespace {

using Name = std::string_view;

// Of use as soon as a project is open.
constexpr Name With_Project[] = {"Mnu_File_Close",    "Mnu_File_Enreg", "Mnu_File_Enreg_Sous",
                                 "Mnu_Reinit",        "Mnu_Param_File", "Mnu_par_Remesh",
                                 "Mnu_ModCad",        "Cmd_Save",       "Cmd_ZPlus",
                                 "Cmd_ZMoins",        "Cmd_AffBmp",     "Cmd_TrtCell",
                                 "Cmd_ColourGrid",    "Cmd_Grid",       "Cmd_API",
                                 "Cmd_Saisie_Routes", "Cmd_Excl_Areas", "Cmd_LandClass",
                                 "Cmd_WaterClass",    "Cmd_FSUIPC",     "Cmd_TrtMesh",
                                 "Cmd_TrtIma",        "HScroll",        "VScroll",
                                 "Mnu_View",          "Txt_Zoom"};

// Of use in an editing mode only, which turns them on.
constexpr Name Off_At_First[] = {"Cmd_Sup_Route_Ou_Pt", "Cmd_TrtArea", "Cmd_AffTexture",
                                 "Cmd_New_Ima",         "Cmd_Sel_Ima", "Cmd_Sel_Crb_Ima"};

// Those of the modes which stay as they are when a project opens.
constexpr Name Of_Modes[] = {"Cmd_New_Route",    "Cmd_Sel_Route",     "Cmd_Ins_Pt_Route",
                             "Cmd_Sel_Pt_Route", "Cmd_Extr_Pt_Route", "Cmd_Tabul"};

void Set_All(std::span<const Name> Controls, bool On) {
    for (const Name Control : Controls) The_Host().Set_Enabled(Control, On);
}

}  // namespace

void Enable_Project_Cmds() {
    Set_All(With_Project, true);
    Set_All(Off_At_First, false);
    The_Host().Set_Visible("LPtGrid", false);
}

void Disable_Project_Cmds() {
    Set_All(With_Project, false);
    Set_All(Off_At_First, false);
    Set_All(Of_Modes, false);
}
