// ui/frm/frm_controls.h - the controls of the main form and their texts.
#pragma once

#include "ui/form/form.h"

/// Adds every control of the main form, without handlers, and sets its layout.
void Frm_Add_Controls(Form& F);
