// ui/dialogs/frm_ref.h - choosing a reference file, and saving one.
#pragma once

#include <string>

/// Lets the user choose among the reference files and reads the one chosen into Cur_Attr and
/// Ref_Name. False when there are none, or the chooser was cancelled.
bool Choose_Reference();

/// Asks for a file and saves Cur_Attr to it under Name. Without a name there is message 133.
void Save_Reference(const std::string& Name);
