// ui/canvas/map_tiles.h - the map cut into tiles of 2000 by 2000 pixels, on disk and in memory.
//
// Tiles are files in App_Path\Temp while a project is open. Columns and rows count from 0, from
// the map's top left; a tile's index is row * Nb_Tile_Cols + column.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/numbers.h"
#include "tex/picture.h"

/// Where the cutting and loading of a map shows how far it is: the labels LTex2500, LNbTex and
/// LPourCent, in the frame Fram_Creat_2500, of one form or another.
class Map_Progress {
public:
    virtual ~Map_Progress() = default;
    virtual void Set_Caption(std::string_view Label, std::string_view Text) = 0;
    virtual void Set_Visible(std::string_view Frame, bool On) = 0;
};

/// That of the main form.
class Main_Form_Progress final : public Map_Progress {
public:
    void Set_Caption(std::string_view Label, std::string_view Text) override;
    void Set_Visible(std::string_view Frame, bool On) override;
};

/// The tiles in memory, by index from 0; element 0 always exists.
inline std::vector<Picture> WPic = std::vector<Picture>(1);

/// Cuts the map bitmap Path into its tile files, telling Progress how far it is. Error is 1 when
/// the file is no bitmap of 8 or 24 bits a pixel or could not be cut: a box has then told why, and
/// no tile file is left. The map is read piece by piece. Does not touch the project.
void Map_Split_Tiles(Map_Progress& Progress, std::string_view Path, Int& Error);

/// Deletes the tile files of a map of that size in pixels.
void Map_Delete_Tiles(Long Width, Long Height);

/// Column and row of a tile as its file name has them.
std::string Tile_File_Name(Int Index);
/// The path of a tile file.
std::string Tile_Path(Int Index);

/// Loads all tile files into WPic. False after a box when one can't be read; WPic is then empty.
bool Map_Load_Tiles();

/// Releases WPic, deletes the tile files; no tiles are left.
void Map_Free_Tiles();

/// Opening a project: cuts the map Carte, centres the view on it and loads the tiles. False
/// when that failed; a box has told why.
bool Tiles_Build();
/// The same for a new project, whose dialog has cut the map already.
void Tiles_Show();
