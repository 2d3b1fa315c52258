// ui/frm/undo_controls.cpp - what the menu Edit and its buttons show.
#include "ui/frm/undo_controls.h"

#include <string>

#include "core/history.h"
#include "core/program.h"
#include "ui/edit/undo.h"
#include "ui/frm/frm.h"

namespace {

void Show(const char* Item, const char* Button, std::string Caption, bool On, std::size_t Steps,
          Step_Kind (*Next)()) {
    if (Steps != 0) Caption += In_Language(": ", " : ") + Step_Name(Next());
    Frm().Set_Caption(Item, Caption);
    Frm().Set_Tip(Button, Caption);
    Frm().Set_Enabled(Item, On);
    Frm().Set_Enabled(Button, On);
}

}  // namespace

void Undo_Controls_Show() {
    if (!Frm_Is_There()) return;
    Show("Mnu_Edit_Undo", "Cmd_Undo", In_Language("Undo", "Annuler"), May_Undo(),
         History_Undo_Count(), History_Next_Undo);
    Show("Mnu_Edit_Redo", "Cmd_Redo", In_Language("Redo", "R\xE9tablir"), May_Redo(),
         History_Redo_Count(), History_Next_Redo);
}
