// gen/source_frame.cpp - how sources begin and end, and how they are compiled.
#include "gen/source_frame.h"

#include <algorithm>
#include <utility>

#include "core/host.h"
#include "core/program.h"
#include "core/project_paths.h"
#include "grid/terrain_grid.h"
#include "platform/clock.h"
#include "platform/paths.h"

namespace {

// Bgl files carry their extension in their last characters.
constexpr std::size_t Extension_Size = 4;

constexpr char Rule[] = ";--------------------------------------------------";

void Box_Not_Made(const std::string& Path) {
    Plain_Box(In_Language("Cannot create the file ",
                          "Impossible de cr\xE9"
                          "er le fichier ") +
              Shown_Path(Path));
}

// Path, with nothing there any more.
const std::string& Deleted(const std::string& Path) {
    Output_Delete(Path);
    return Path;
}

Long Held(Long Degrees, Long Limit) {
    return std::clamp(Degrees, -Limit, Limit);
}

Bgl_Limits Held(const Bgl_Limits& L) {
    return {Held(L.North, 90), Held(L.South, 90), Held(L.East, 180), Held(L.West, 180)};
}

}  // namespace

Source_File::Source_File(std::string Path)
    : Path_(std::move(Path)), Writer_(Deleted(Path_), File_Writer::Mode::In_Place) {
    if (!Writer_.Is_Open()) Box_Not_Made(Path_);
}

Source_File::~Source_File() {
    Flush();
}

void Source_File::Flush() {
    Writer_.Put({Block_.get(), Used_});
    Used_ = 0;
}

void Source_File::Make_Room(std::size_t Most) {
    Flush();
    if (Most <= Size_) return;
    Block_ = std::make_unique_for_overwrite<char[]>(Most);
    Size_ = Most;
}

bool Source_File::Close() {
    Flush();
    if (Writer_.Commit()) {
        The_Host().Note_File(File_Event::Written, Path_);
        return true;
    }
    Box_Not_Whole(Path_);
    Output_Delete(Path_);
    return false;
}

Bgl_Limits Limits_Of_Project() {
    return Held({.North = Fix_Lng(LatGridNW + 1),
                 .South = Fix_Lng(LatGridSE - 1),
                 .East = Fix_Lng(LonGridSE + 1),
                 .West = Fix_Lng(LonGridNW - 1)});
}

Bgl_Limits Limits_Of_Areas(Int First_AreaLon, Int First_AreaLat, Int Last_AreaLon,
                           Int Last_AreaLat) {
    return Held({.North = Fix_Lng(90 - First_AreaLat * Area_StepLat) + 1,
                 .South = Fix_Lng(90 - (Last_AreaLat + 1) * Area_StepLat) - 1,
                 .East = Fix_Lng((Last_AreaLon + 1) * Area_StepLon - 180) + 1,
                 .West = Fix_Lng(First_AreaLon * Area_StepLon - 180) - 1});
}

void Source_Frame(Source_File& Out, std::string_view Title, const Bgl_Limits& Limits,
                  std::string_view Tail) {
    Out.Line(Rule);
    Out.Line(Title, Date_Time_Text());
    Out.Line(Rule);
    Out.Line("include TDFMacros.inc");
    Out.Line("include TDFHeaders.inc");
    Out.Line("BGLHeader ", Limits.North, ", ", Limits.South, ", ", Limits.East, ", ", Limits.West,
             Tail);
}

std::string Bgl_Stem() {
    if (NameBgl.size() <= Extension_Size) return {};
    return In_Project(NameBgl.substr(0, NameBgl.size() - Extension_Size));
}

std::string Source_Path(std::string_view Name) {
    return App_Path + "\\" + std::string(Name);
}

void Show_Stage(std::string_view Name, std::string_view Stage) {
    The_Host().Set_Caption("LCompileNom", Name);
    The_Host().Set_Caption("LCompile", Stage);
    The_Host().Refresh();
}

void Output_Delete(std::string_view Path) {
    if (File_Delete(Path)) The_Host().Note_File(File_Event::Deleted, Path);
}

void Box_Not_Whole(const std::string& Path) {
    Plain_Box(In_Language("Cannot write the file ",
                          "Impossible d'\xE9"
                          "crire le fichier ") +
              Shown_Path(Path));
}

bool Run_Process(std::string_view Cmd_Line, Int Show_Mode) {
    if (The_Host().Run_Tool(Cmd_Line, Show_Mode)) return true;
    The_Host().Show_Box({.Text = "Erreur g\xE9n\xE9rale d'ex\xE9"
                                 "cution du processus : " +
                                 std::string(Cmd_Line),
                         .Style = Box_Information});
    return false;
}

bool Run_BGLC(std::string_view Source, std::string_view Bgl, std::string_view Gap) {
    std::string Cmd_Line = App_Path + "\\bglc.exe";
    Cmd_Line += Gap;
    Cmd_Line += "\"" + std::string(Source) + "\" \"" + std::string(Bgl) + "\"";
    return Run_Process(Cmd_Line, 0);
}
