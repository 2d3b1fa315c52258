// ui/dialogs/dialogs.h - the makers of all dialogs, and what dialogs have in common.
#pragma once

#include <functional>
#include <memory>

#include "ui/form/form.h"

std::unique_ptr<Form> Make_Frm_PGen();
std::unique_ptr<Form> Make_Frm_Dir();
std::unique_ptr<Form> Make_Frm_ColourGrid();
std::unique_ptr<Form> Make_Frm_FSUIPC();
std::unique_ptr<Form> Make_Frm_Goto();
std::unique_ptr<Form> Make_Frm_Excl();
std::unique_ptr<Form> Make_Frm_Ima();
std::unique_ptr<Form> Make_Frm_LC();
std::unique_ptr<Form> Make_Frm_LOD();
std::unique_ptr<Form> Make_Frm_LOD8();
std::unique_ptr<Form> Make_Frm_Mesh();
std::unique_ptr<Form> Make_Frm_PtGrid();
std::unique_ptr<Form> Make_Frm_WC();
std::unique_ptr<Form> Make_Frm_LBmp();
std::unique_ptr<Form> Make_Frm_CadBmp();
std::unique_ptr<Form> Make_Frm_CenterMap();
std::unique_ptr<Form> Make_Frm_CvLL1();
std::unique_ptr<Form> Make_Frm_ModCad();
std::unique_ptr<Form> Make_Frm_PPro();
std::unique_ptr<Form> Make_Frm_V24();
std::unique_ptr<Form> Make_Frm_Route();
std::unique_ptr<Form> Make_Frm_Ref();
std::unique_ptr<Form> Make_Frm_Tools();
std::unique_ptr<Form> Make_Frm_Report();

/// Registers every dialog of this folder. Called once at the start of the program.
void Forms_Install();

/// Adds the buttons Cmd_Ok and Cmd_Cancel.
void Add_Ok_Cancel(Form& F, std::function<void()> Ok, std::function<void()> Cancel);

/// Adds Cmd_Help, which shows the help page; F1 presses it.
void Add_Help(Form& F);
