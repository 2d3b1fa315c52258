// core/program.h - what the running program knows apart from its project.
//
// Paths are in the program's form: "\" between their parts, code page 1252.
#pragma once

#include <array>
#include <string>

#include "core/numbers.h"

inline constexpr char Program_Title[] = "Terrafold V5.0 04/10/2003";

/// What the running program was built from and by; "" where nobody has told.
inline std::string Program_Build;

/// A colour of the palette file, in the order of a bitmap's palette.
struct Palette_Entry {
    Byte Blue = 0, Green = 0, Red = 0, Zero = 0;
};

struct Program_State {
    std::string App_Path;         // directory of resources and generated files, no final backslash
    std::string Ini_File;         // settings
    std::string Msg_File;         // message catalogue
    std::string Language = "FR";  // "US" is English, anything else French
    std::string DirFS;            // simulator's directory, with a final backslash, or empty
    std::string Dir_Texture;      // its texture directory, or empty
    Int Fl1Fois = 0;              // 1 once the general parameters have been confirmed
    Int ShowVTP1L = 0;            // the convex split draws each cut on the canvas
    std::string DerRefLu;         // last reference file used
    std::array<std::string, 4> DerApt;  // recent projects, most recent first, "" when free
    std::string Cmd_File;               // project of the command line, or ""
    Int Projet_Open = 0;
    Int New_Projet = 0;           // the project dialog serves a new project
    Int PPro_Ok = 0;              // the project dialog ended by its Ok
    Int Cad_Cancelled = 1;        // the calibration dialog did not end by its Ok
    Int Edit_On = 0;              // the canvas accepts editing events
    Long Tile_Size = 2000;        // side of a map tile, pixels
    Long Grid_Colour = 0xC0C0C0;  // RGB
    Int Grid_Colour_Index = 2;    // its place in Grid_Colours
    Int Kind_Colours = 0;         // objects behind the mode in the colours of their kinds
    Int Keeps_View = 0;           // what is chosen of the view is for later runs, too
    std::array<Palette_Entry, 256> Pal_Fs5{};
    Int Pal_Lacks = 0;  // 1 from a start without a whole palette file until the user is told
};

inline Program_State The_Program;

inline std::string& App_Path = The_Program.App_Path;
inline std::string& Ini_File = The_Program.Ini_File;
inline std::string& Msg_File = The_Program.Msg_File;
inline std::string& Language = The_Program.Language;
inline std::string& DirFS = The_Program.DirFS;
inline std::string& Dir_Texture = The_Program.Dir_Texture;
inline Int& Fl1Fois = The_Program.Fl1Fois;
inline Int& ShowVTP1L = The_Program.ShowVTP1L;
inline std::string& DerRefLu = The_Program.DerRefLu;
inline std::array<std::string, 4>& DerApt = The_Program.DerApt;
inline std::string& Cmd_File = The_Program.Cmd_File;
inline Int& Projet_Open = The_Program.Projet_Open;
inline Int& New_Projet = The_Program.New_Projet;
inline Int& PPro_Ok = The_Program.PPro_Ok;
inline Int& Cad_Cancelled = The_Program.Cad_Cancelled;
inline Int& Edit_On = The_Program.Edit_On;
inline Long& Tile_Size = The_Program.Tile_Size;
inline Long& Grid_Colour = The_Program.Grid_Colour;
inline Int& Grid_Colour_Index = The_Program.Grid_Colour_Index;
inline Int& Kind_Colours = The_Program.Kind_Colours;
inline Int& Keeps_View = The_Program.Keeps_View;
inline std::array<Palette_Entry, 256>& Pal_Fs5 = The_Program.Pal_Fs5;

/// English or French wording, as Language says. Both are code page 1252.
inline const char* In_Language(const char* English, const char* French) {
    return Language == "US" ? English : French;
}

/// Program, project and message state as at the start of the program, with no routine of
/// view_calls.h put in; the one-instance lock is free. Every test begins with it.
void Program_Reset();
