// ui/dialogs/dialogs.cpp - the register of this folder's dialogs, and the buttons that end them.
#include "ui/dialogs/dialogs.h"

#include <utility>

#include "core/host.h"
#include "ui/form/form_list.h"

void Forms_Install() {
    Form_Register("Frm_PGen", Make_Frm_PGen);
    Form_Register("Frm_Dir", Make_Frm_Dir);
    Form_Register("Frm_ColourGrid", Make_Frm_ColourGrid);
    Form_Register("Frm_FSUIPC", Make_Frm_FSUIPC);
    Form_Register("Frm_Goto", Make_Frm_Goto);
    Form_Register("Frm_Excl", Make_Frm_Excl);
    Form_Register("Frm_Ima", Make_Frm_Ima);
    Form_Register("Frm_LC", Make_Frm_LC);
    Form_Register("Frm_LOD", Make_Frm_LOD);
    Form_Register("Frm_LOD8", Make_Frm_LOD8);
    Form_Register("Frm_Mesh", Make_Frm_Mesh);
    Form_Register("Frm_PtGrid", Make_Frm_PtGrid);
    Form_Register("Frm_WC", Make_Frm_WC);
    Form_Register("Frm_LBmp", Make_Frm_LBmp);
    Form_Register("Frm_CadBmp", Make_Frm_CadBmp);
    Form_Register("Frm_CenterMap", Make_Frm_CenterMap);
    Form_Register("Frm_CvLL1", Make_Frm_CvLL1);
    Form_Register("Frm_ModCad", Make_Frm_ModCad);
    Form_Register("Frm_PPro", Make_Frm_PPro);
    Form_Register("Frm_V24", Make_Frm_V24);
    Form_Register("Frm_Route", Make_Frm_Route);
    Form_Register("Frm_Ref", Make_Frm_Ref);
    Form_Register("Frm_Tools", Make_Frm_Tools);
    Form_Register("Frm_Report", Make_Frm_Report);
}

void Add_Ok_Cancel(Form& F, std::function<void()> Ok, std::function<void()> Cancel) {
    F.Add({.Kind = Control_Kind::Button,
           .Name = "Cmd_Ok",
           .Words = {"Ok", "Ok"},
           .Role = Button_Role::Ok,
           .On_Click = std::move(Ok)});
    F.Add({.Kind = Control_Kind::Button,
           .Name = "Cmd_Cancel",
           .Words = {"Cancel", "Annuler"},
           .Role = Button_Role::Cancel,
           .On_Click = std::move(Cancel)});
}

void Add_Help(Form& F) {
    F.Add({.Kind = Control_Kind::Button,
           .Name = "Cmd_Help",
           .Words = {"Help", "Aide"},
           .Role = Button_Role::Help,
           .On_Click = [] { The_Host().Show_Help(); }});
}
