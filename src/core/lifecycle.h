// core/lifecycle.h - the program from start to end, and the commands that open, save and close
// a project.
//
// Each command is one routine named after its control. Dialogs, boxes and captions go through
// the host; tiles, view and editing modes through view_calls.h.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/numbers.h"

/// What a start may do otherwise.
struct Start_Options {
    bool Alone = true;          // refused while another instance runs
    bool Confirmed = false;     // the first start counts as confirmed
    bool Keeps_View = true;     // takes and keeps what was chosen of the view
    std::string Language = {};  // for this run, in the place of that of the settings
};

/// What became of a start.
enum class Start_Outcome {
    Started,
    Refused,     // after a message: a second instance, or a display that cannot serve
    Handed_Over  // the instance that runs has been given the project of the command line
};

/// The start of the program, with the command line behind the program's name and the directory
/// that App_Path is to be. Opens the project of the command line. Unless it has started the program
/// must end.
Start_Outcome Program_Start(std::string_view Command_Line, std::string_view App_Dir,
                            const Start_Options& Options = {});

/// A project that a second start has handed over, and the descriptor that can be read when there
/// is one (instance_door.h).
std::optional<std::string> Handed_Over_Project();
std::intptr_t Handed_Over_Descriptor();

/// The end of the program: releases map tiles, pictures, tables and the one-instance lock.
void Program_End();

/// The same when the user could not be asked whether to save: the journal stays, and the next
/// start offers it.
void Program_End_Unasked();

/// Lets another instance of the program start.
void Instance_Release();

/// Sets App_Path and the files that stand below it.
void Set_App_Path(std::string_view App_Dir);

/// The path a command line names, without its quotes; "" when it names no file.
std::string Command_Line_File(std::string_view Command_Line);

/// Asks whether the open project is to be saved, and saves it on Yes. False on Cancel, and when
/// the save failed: the command that asked must not go on. True without an open project.
bool Ask_Save();

/// Reads the project file Path and opens it without showing it. False when it can't be read.
bool Load_Project(std::string_view Path);

/// Opens the project file Path and shows it: Load_Project, map tiles, recent list, title.
void Open_Project(std::string_view Path);

/// Opens and shows what Load makes the model and Nom_Projet; As_On_Disk as in journal.h. False
/// when it can't be shown.
bool Open_Restored(const std::function<bool()>& Load, bool As_On_Disk);

/// Ends the open project without asking.
void Close_View();

/// New, Open, a recent project and Close ask whether the open project is to be saved, then end
/// it; Cancel keeps everything as it was.
void Cmd_New();
void Mnu_File_Open();
void Mnu_File_Prec(Int Index);                  // 0 to 3: a recent project
void Open_From_Outside(std::string_view Path);  // a file dropped on the window
void Mnu_File_Close();

void Cmd_Save();             // the button, which gives the focus back to the canvas
void Mnu_File_Enreg();       // the menu item
void Mnu_File_Enreg_Sous();  // writes a copy; the open project stays the old one

/// Empties the open project, after a question; its map, calibration and output names stay.
void Mnu_Reinit();

/// Quit: asks as Close does, then Program_End. False when the user cancels and the program goes
/// on.
bool Mnu_File_Quit();

/// Commands that open a dialog.
void Mnu_Param_File();
void Mnu_Param_Gene();
void Mnu_ModCad();
void Mnu_par_Remesh();
void Mnu_Tool_CvLL();

/// Shows the help page; the canvas has the focus then.
void Cmd_Help();

/// Commands that need an open project.
void Enable_Project_Cmds();
void Disable_Project_Cmds();
