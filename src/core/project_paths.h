// core/project_paths.h - where the files are that a project names.
//
// A project may name what lies beside its file, or below, by a path without a root, so that all
// can be moved together. The model and the file keep paths as they were written.
#pragma once

#include <string>
#include <string_view>

/// Path as the project holds it, made whole: one without a root goes from the project file's
/// directory. An empty one stays empty.
std::string In_Project(std::string_view Path);

/// Path, which is whole, as the project is to hold it in the place of Former: without a root when
/// that had none and Path lies below the project file's directory.
std::string As_Project_Holds(std::string_view Path, std::string_view Former);

/// The map, be it where the project says or beside the project file.
std::string Map_Path();
