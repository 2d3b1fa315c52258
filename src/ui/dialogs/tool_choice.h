// ui/dialogs/tool_choice.h - what Frm_Tools was answered.
#pragma once

#include "gen/generation_report.h"

/// Set by the buttons of Frm_Tools; it stays as it was when the dialog is closed.
inline Tool_Choice The_Tool_Choice = Tool_Choice::Stop;
