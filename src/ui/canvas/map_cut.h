// ui/canvas/map_cut.h - one map bitmap cut into many tile files.
#pragma once

#include <functional>
#include <string>

#include "tex/bitmap.h"

/// Tiles along a side of Pixels.
Long Tile_Count(Long Pixels);

/// How far the cutting is: the tile it has come to, from 1, and its lines done.
using Cut_Progress = std::function<void(Long Tile, Long Lines)>;

/// Writes the tile files of a map in columns from the left and rows from the top, each to the
/// path Path_Of gives. The map is read once from its bottom to its top, a few MiB at a time. What
/// went wrong, or nothing: the path that could not be written, or Map when that cannot be read.
std::string Map_Cut(File_Reader& File, const Bitmap_Header& Map, std::string_view Map_Path,
                    const std::function<std::string(Long Col, Long Row)>& Path_Of,
                    const Cut_Progress& Progress);
