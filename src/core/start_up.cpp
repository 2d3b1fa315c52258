// core/start_up.cpp - the start of the program and its end.
#include <optional>

#include "core/grid_colours.h"
#include "core/history.h"
#include "core/host.h"
#include "core/journal.h"
#include "core/lifecycle.h"
#include "core/messages.h"
#include "core/model_ops.h"
#include "core/palette.h"
#include "core/program.h"
#include "core/project_watch.h"
#include "core/restore.h"
#include "core/settings.h"
#include "core/view_calls.h"
#include "platform/files.h"
#include "platform/instance_door.h"
#include "platform/instance_lock.h"
#include "platform/paths.h"
#include "platform/text1252.h"

namespace {

constexpr std::size_t Shortest_Command_Line = 3;
constexpr Int Fewest_Bits_Per_Pixel = 8;

// Held from the start of the program to its end.
std::optional<Instance_Lock> Lock;
std::optional<Instance_Door> Door;

bool Is_First_Instance() {
    if (!Lock) Lock.emplace();
    if (!Lock->Take()) {
        Instance_Release();
        return false;
    }
    if (!Door) Door.emplace();
    return true;
}

// For the instance that runs: the project, or else a message here.
Start_Outcome End_As_Second() {
    if (Instance_Hand_Over(Cmd_File)) return Start_Outcome::Handed_Over;
    Plain_Box("This program is already running");
    return Start_Outcome::Refused;
}

bool Display_Serves() {
    const Display_Info Screen = The_Host().Display();
    if (Screen.Bits_Per_Pixel < Fewest_Bits_Per_Pixel) {
        Msg_Show(23);
        return false;
    }
    if (!Screen.Has_Raster) {
        Msg_Show(24);
        return false;
    }
    return true;
}

void Set_Up_Main_Form() {
    Tile_Size = 2000;
    Grid_Colour_Take(Usual_Grid_Colour);
    The_Host().Set_Caption("Frm", Program_Title);
    Nom_Projet.clear();
    Call(The_View.Apply_Language);
    Call(The_View.Window_Show);
    Call(The_View.Route_Reset);
    Disable_Project_Cmds();
    Init_Tables();
    Call(The_View.View_Reset);
}

// A program that was killed could not take its map's tiles away. None but the one instance may:
// they could be another's.
void Delete_Tiles_Left() {
    for (const std::string& Path : Files_Matching(App_Path + "\\Temp\\$$$_", "*.bmp"))
        File_Delete(Path);
}

// The program is of no use before its language and the simulator's directory are confirmed;
// only a host without the dialog goes on.
void Confirm_Parameters() {
    while (Fl1Fois == 0)
        if (The_Host().Run_Form("Frm_PGen") == Form_End::Absent) return;
}

// What a command line names, without its quotes; "" when it names nothing.
std::string Named_By(std::string_view Command_Line) {
    std::string_view Line = Trim(Command_Line);
    if (Line.size() < Shortest_Command_Line) return {};
    if (Line.front() == '"') {
        if (Line.back() != '"') return {};
        Line = Line.substr(1, Line.size() - 2);
    }
    return std::string(Line);
}

void Tell_No_File(const std::string& Path) {
    Plain_Box((Dir_Exists(Path)
                   ? In_Language("This is a directory, not a project: ",
                                 "Ceci est un r\xE9pertoire, pas un projet : ")
                   : In_Language("There is no such file: ", "Ce fichier n'existe pas : ")) +
              Shown_Path(Path));
}

void Open_Command_Line_Project(std::string_view Command_Line) {
    if (Cmd_File.empty()) {
        const std::string Named = Named_By(Command_Line);
        if (!Named.empty()) Tell_No_File(Named);
        return;
    }
    The_Host().Set_Pointer(Pointer_Shape::Hourglass);
    Open_Project(Cmd_File);
    The_Host().Set_Pointer(Pointer_Shape::Normal);
}

}  // namespace

void Grid_Colour_Take(Int Index) {
    if (Index < 0 || static_cast<std::size_t>(Index) >= Grid_Colours.size())
        Index = Usual_Grid_Colour;
    Grid_Colour_Index = Index;
    Grid_Colour = Grid_Colours[static_cast<std::size_t>(Index)];
}

void Set_App_Path(std::string_view App_Dir) {
    if (App_Dir.ends_with('\\')) App_Dir.remove_suffix(1);
    App_Path = std::string(App_Dir);  // App_Dir may be a view of it
    Msg_File = App_Path + "\\Resource\\FicErr.txt";
    Ini_File = App_Path + "\\Resource\\Terrafold.Ini";
}

std::string Command_Line_File(std::string_view Command_Line) {
    std::string Path = Named_By(Command_Line);
    return File_Exists(Path) ? Path : std::string();
}

Start_Outcome Program_Start(std::string_view Command_Line, std::string_view App_Dir,
                            const Start_Options& Options) {
    Edit_On = 0;
    Cmd_File = Command_Line_File(Command_Line);
    if (Options.Alone && !Is_First_Instance()) return End_As_Second();
    Set_App_Path(App_Dir);
    if (!Display_Serves()) {
        Instance_Release();
        return Start_Outcome::Refused;
    }
    if (Options.Alone) Delete_Tiles_Left();
    Pal_Load();
    Read_Settings();
    if (!Options.Language.empty()) Language = Options.Language;
    if (Options.Confirmed) Fl1Fois = 1;
    Keeps_View = Options.Keeps_View ? 1 : 0;
    Set_Up_Main_Form();
    if (Options.Keeps_View) Read_View_Settings();
    Confirm_Parameters();
    if (!Offer_Restore()) Open_Command_Line_Project(Command_Line);
    return Start_Outcome::Started;
}

std::optional<std::string> Handed_Over_Project() {
    return Door ? Door->Take() : std::nullopt;
}

std::intptr_t Handed_Over_Descriptor() {
    return Door ? Door->Descriptor() : -1;
}

void Program_End_Unasked() {
    Journal_Leave();
    Program_End();
}

void Program_End() {
    Call(The_View.View_Keep);
    History_End();
    Journal_End();
    Project_Unseen();
    Call(The_View.Forms_Close);
    Call(The_View.Tiles_Remove);
    Call(The_View.Ima_Unload);
    Call(The_View.View_Clear);
    Model_Reset();
    Projet_Open = 0;
    Edit_On = 0;
    Instance_Release();
}

void Instance_Release() {
    Door.reset();
    Lock.reset();
}
