// ui/canvas/map_blit.cpp - the visible part of the map, copied from its tiles.
#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "core/program.h"
#include "ui/canvas/map_tiles.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"

namespace {

// The map along one axis: its first pixel in view, where that goes on the canvas, and how many
// map pixels follow.
struct Side {
    Long Source = 0, Dest = 0, Size = 0;
};

// Nothing when no map is in view.
std::optional<Side> Side_In_View(Double Origin, Long Map_Size, Long Pic_Size) {
    Double Source = Origin, Dest = 0.0;
    if (Source < 0.0) {
        Dest = -Source * Zoom;
        Source = 0.0;
    }
    Source = std::nearbyint(Source);
    Dest = std::nearbyint(Dest);
    if (!(Source <= Map_Size - 1.0 && Dest <= Pic_Size - 1.0)) return std::nullopt;
    Double Size = Map_Size - Source;
    if (Size * Zoom > Pic_Size - Dest) Size = std::nearbyint((Pic_Size - Dest) / Zoom);
    if (Size + Source > Map_Size) Size = Map_Size - Source;
    return Side{Fix_Lng(Source), Fix_Lng(Dest), Fix_Lng(Size)};
}

// What one tile gives along one axis.
struct Piece {
    Long Tile = 0;  // its column or row
    Long Source = 0, Size = 0;
    Long Dest = 0, Dest_Size = 0;
};

// Each size on the canvas is rounded by itself, and the next tile begins where it ends: no gap
// opens between tiles at any zoom.
std::vector<Piece> Pieces_Of(const Side& S, Long Nb) {
    std::vector<Piece> Made;
    Long Source = S.Source, Dest = S.Dest, Done = 0;
    for (Long Tile = Source / Tile_Size; Tile < Nb && Done < S.Size; ++Tile) {
        const Long First = Tile * Tile_Size;
        const Long Last = std::min(Source + S.Size - Done - 1, First + Tile_Size - 1);
        const Long Size = Last - Source + 1;
        const Long Dest_Size = Round_Lng(Size * Zoom);
        Made.push_back({Tile, Source - First, Size, Dest, Dest_Size});
        Done += Size;
        Source += Size;
        Dest += Dest_Size;
    }
    return Made;
}

void Copy(const Piece& Col, const Piece& Row) {
    if (Col.Dest_Size == 0 || Row.Dest_Size == 0) return;
    const auto Index = static_cast<std::size_t>(Row.Tile * Nb_Tile_Cols + Col.Tile);
    if (Index >= WPic.size() || WPic[Index].Is_Empty()) return;
    The_Surface().Stretch_Copy(WPic[Index], {Col.Source, Row.Source, Col.Size, Row.Size},
                               {Col.Dest, Row.Dest, Col.Dest_Size, Row.Dest_Size});
}

}  // namespace

void Map_Blit_View() {
    const Pix Origin = Pic_To_Map({0.0, 0.0});
    const auto Across = Side_In_View(Origin.X, Map_Width, Pic_Width);
    const auto Down = Side_In_View(Origin.Y, Map_Height, Pic_Height);
    if (!Across || !Down || !Show_Bitmap) return;
    const std::vector<Piece> Cols = Pieces_Of(*Across, Nb_Tile_Cols);
    for (const Piece& Row : Pieces_Of(*Down, Nb_Tile_Rows))
        for (const Piece& Col : Cols) Copy(Col, Row);
}
