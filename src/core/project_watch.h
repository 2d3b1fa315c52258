// core/project_watch.h - whether somebody else has changed the open project's file.
#pragma once

#include <string_view>

/// The file Path, which the model has been read from or written to, is taken as it is now; a file
/// that is not there yet is one that must not have come into being since.
void Project_Seen(std::string_view Path);

/// The same for a project that has not been seen since it was opened.
void Project_Seen_First(std::string_view Path);

void Project_Unseen();

/// Whether Path may be written over: it is as it was seen, or it is gone, or nothing is known of
/// it, or the user says so.
bool Project_May_Be_Replaced(std::string_view Path);
