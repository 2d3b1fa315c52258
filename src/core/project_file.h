// core/project_file.h - the project file (.LWM), a text dump of the whole model.
//
// Lines of code page 1252 text. A head of lines tagged 0000 to 0063, then sections 0100
// (objects with their points), 0120 (Area), 0140 (Excl), 0150 (Lod8), 0160 (LC_Cell), 0170
// (WC_Cell), 0180 (Ima) and 0200 (PtGrid), then "End". Versions 4.0 to 5.0 are read; all have
// the same layout, and 4.0 asks (form "Frm_V24") how its objects are to be brought up to date.
#pragma once

#include <string>
#include <string_view>

#include "core/numbers.h"

/// Set by Read_Project_File when the file could not be read: 1, or Load_No_Memory.
inline Int Load_Failed = 0;
inline constexpr Int Load_No_Memory = 2;

/// What the dialog Frm_V24 offers; it is asked for a file of version 4.0. Closing it other
/// than by Ok clears all four.
struct V24_Choice {
    bool Chk_Adapt_lines = true;           // line ends are no longer thinned
    bool Chk_Change_layer_Line = false;    // lines take the layer of their kind
    bool Chk_Change_Layer_Poly = false;    // polygons take layer 17
    bool Chk_Change_Layer_Exclude = true;  // exclusion classes move to their new places
};
inline V24_Choice The_V24;
inline Int V24_Upgrade = 0;  // one of the four is set and the file is of version 4.0

/// Reads a project file into the model. On failure shows why and sets Load_Failed: message 30
/// (no project file, or one of a newer version), a plain box (version below 4.0, or a file
/// that cannot be read) and leaves the model as it was; message 31 (damaged) or, when memory runs
/// out, a plain box, and empties it. Nom_Projet is not touched in any case.
void Read_Project_File(std::string_view Path);

/// The same for the bytes of the project file Path.
void Read_Project_Text(std::string_view Text, std::string_view Path = {});

/// Writes the open project to Nom_Projet, or as a copy to New_Path when Save_As is 1; message
/// 14 when that is the same. Nothing happens without an open project. The file appears whole
/// or not at all: a save that fails leaves the old file and says so in a plain box. False when
/// nothing was written.
bool Save_Project(Int Save_As, std::string_view New_Path);

/// Writes the model to Path as a project file of that name, whole or not at all. The open
/// project is not touched, and nobody is told of it. False when it could not be written.
bool Write_Model(const std::string& Path);
