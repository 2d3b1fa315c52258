// examples/map_painter.h - a map picture painted from the objects of the open project.
#pragma once

#include <filesystem>

/// Paints the open project as a bitmap of its map size: 8 bits a pixel, palette of 256
/// colours, rows from the bottom up. False when the file can't be written.
bool Paint_Map(const std::filesystem::path& File);
