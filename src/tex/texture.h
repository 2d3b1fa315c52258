// tex/texture.h - the simulator's texture files: every format as one picture of 24 bits.
//
// Raw and compressed R8, and bitmaps of 8, 16, 24 and 32 bits with all that the simulator's own
// ones have (texture_layout.h). Pixels with alpha are laid over one fixed colour. No file is
// believed before its length bears out what it says; none takes more than a picture of 8192 by
// 8192 and its own pixels need.
#pragma once

#include <string>
#include <string_view>

#include "core/numbers.h"
#include "core/palette.h"
#include "core/resets.h"
#include "tex/picture.h"

enum class Texture_Fault {
    None,
    Not_There,    // or not readable
    Too_Short,    // for any texture
    Unsupported,  // none of the layouts, or a size that none can have, or cut short
    Damaged,      // a compressed R8 that does not expand
    Same_File,    // source and output are one
    Not_Written,  // the output
    No_Memory
};

/// The codes that the program reports a fault by: 0 none, 2 a file of less than 54 bytes or
/// none, 1 anything else.
Int Texture_Error(Texture_Fault Fault);

/// What is wrong with the file Path, in the program's language.
std::string Texture_Fault_Text(Texture_Fault Fault, std::string_view Path);

/// A texture file in memory, with what it is in one line ("Bmp 16 Bits 256x256 \xE9tendu DXT1").
/// After a fault both are empty. Pal gives an R8 its colours; the user is told once when the
/// program has none.
Texture_Fault Texture_Read(std::string_view Path, const Palette& Pal, Picture& P,
                           std::string& Description);

/// The same as a bitmap file at Output, which stands whole or not at all: after a fault an older
/// one is left. Tex_Temp is gone after an R8. Error is Texture_Error of what is returned.
Texture_Fault Texture_To_Bmp(std::string_view Source, const Palette& Pal, std::string_view Output,
                             std::string& Description, Int& Error);

/// The scratch file of R8 textures while another than \Temp\$Tex$.bmp below App_Path is set.
inline std::string Tex_Temp;
inline const bool Tex_Temp_Is_Reset = At_Reset([] { Tex_Temp.clear(); });
