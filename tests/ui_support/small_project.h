// tests/ui_support/small_project.h - a project with a map, to be opened as a user would.
#pragma once

#include <string>

#include "core/numbers.h"
#include "support/temp_dir.h"

/// Writes NAME.LWM and its 8-bit map NAME.bmp of Side by Side pixels into Dir: 4 by 4 Cells and
/// a polygon of five points. Nothing of it stays in memory. Returns the path of the project.
std::string Write_Small_Project(const Temp_Dir& Dir, const std::string& Name, Long Side = 400);

/// The bytes of a bitmap of 8 bits a pixel, where pixel (X, Y) from the top left is X + Y.
std::string Small_Bitmap(Long Width, Long Height);
