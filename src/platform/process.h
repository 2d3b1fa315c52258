// platform/process.h - outside programs.
#pragma once

#include <string_view>

/// Starts the program named at the head of Cmd_Line with the rest as its arguments, waits for
/// its end without a time limit, and returns true; false when it could not be started. Its exit
/// status is not looked at. The program inherits environment and current directory.
///
/// The name may stand in double quotes; without them it ends at the first blank where what
/// stands before it names a file. A name that is no file is looked for as it is written. On a
/// POSIX system a Windows program is run by wine, if that is installed, and arguments that are
/// paths are handed over in the form that the started program understands.
///
/// A signal that ends this program (SIGTERM, SIGINT, SIGHUP) ends the started one and what that
/// has started first; on Windows they end with this program, however that ends.
bool Process_Run(std::string_view Cmd_Line, bool Hidden);

/// Whether the file Program can be started: on a POSIX system one for Windows where there is wine.
bool Process_Can_Start(std::string_view Program);

/// Ends the program that Process_Run waits for, if there is one; Process_Run then returns true.
/// May be called from another thread.
void Process_End_Running();
