// core/lifecycle.h - the program from start to end, and the commands that open, save and close
// a project.
//
// Each command is one routine named after its control. Dialogs, boxes and captions go through
// the host; tiles, view and editing modes through view_calls.h.
#pragma once

#include <string>
#include <string_view>

#include "core/numbers.h"

/// The start of the program, with the command line behind the program's name and the directory
/// that App_Path is to be. False when the program must end: a second instance, or a display
/// that cannot serve.
bool Program_Start(std::string_view Command_Line, std::string_view App_Dir);

/// Sets App_Path and the files that stand below it.
void Set_App_Path(std::string_view App_Dir);

/// The path a command line names, without its quotes; "" when it names no file.
std::string Command_Line_File(std::string_view Command_Line);

/// Asks whether the open project is to be saved, and saves it on Yes. False on Cancel.
bool Ask_Save();

/// Reads the project file Path and opens it without showing it. False when it can't be read.
bool Load_Project(std::string_view Path);

/// Opens the project file Path and shows it: Load_Project, map tiles, recent list, title.
void Open_Project(std::string_view Path);

/// Ends the open project without asking.
void Close_View();

void Cmd_New();
void Mnu_File_Open();
void Mnu_File_Prec(Int Index);  // 0 to 3: a recent project
void Cmd_Save();
void Mnu_File_Enreg_Sous();
void Mnu_File_Close();
void Mnu_Reinit();

/// The end of the program: asks, then releases everything. False when the user cancels.
bool Mnu_File_Quit();

/// Commands that need an open project.
void Enable_Project_Cmds();
void Disable_Project_Cmds();
