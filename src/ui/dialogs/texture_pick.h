// ui/dialogs/texture_pick.h - the texture picker, and picking into a field.
//
// Every dialog with a texture field calls Pick_Texture from the field's On_Choose and shows the
// path that it gives.
#pragma once

#include <string>

#include "core/numbers.h"
#include "core/resets.h"

/// What the picker Frm_LBmp is told and what it tells.
struct Texture_Choice {
    std::string LBmp_Dir;    // where it starts and where the user went, kept between openings
    Int LBmp_Cancelled = 1;  // set by the caller, cleared by Ok
    Int LBmp_Selected = 0;   // a file was chosen in the list
    std::string LBmp_File;   // its whole path
    Long LBmp_Width = 0, LBmp_Height = 0;  // its size in pixels, 0 when it is no image
};

inline Texture_Choice The_Texture_Choice;
inline std::string& LBmp_Dir = The_Texture_Choice.LBmp_Dir;
inline Int& LBmp_Cancelled = The_Texture_Choice.LBmp_Cancelled;
inline Int& LBmp_Selected = The_Texture_Choice.LBmp_Selected;
inline std::string& LBmp_File = The_Texture_Choice.LBmp_File;
inline Long& LBmp_Width = The_Texture_Choice.LBmp_Width;
inline Long& LBmp_Height = The_Texture_Choice.LBmp_Height;

/// Which files a field takes. A file that is no image counts as square, of size 0.
enum class Texture_Shape { Any, Square };

/// Runs the picker, from the directory of Path when there is one. True, and Path is the file
/// chosen, when the user accepts one; with Square another shape gives message 101 and the picker
/// again. False, and Path stays, when it is cancelled.
bool Pick_Texture(std::string& Path, Texture_Shape Shape = Texture_Shape::Any);

inline const bool Texture_Choice_Is_Reset = At_Reset([] { The_Texture_Choice = {}; });
