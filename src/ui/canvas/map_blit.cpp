// ui/canvas/map_blit.cpp - the visible part of the map, copied from its tiles.
//
// Map pixel K reaches from K to K + 1 in map pixels, and is painted between what Map_To_Pic makes
// of these, so that map and objects stand under one another at every zoom.
#include <algorithm>
#include <cmath>
#include <vector>

#include "core/program.h"
#include "ui/canvas/map_tiles.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"

namespace {

// What one tile gives along one axis.
struct Piece {
    Long Tile = 0;  // its column or row
    Long Source = 0, Size = 0;
    Double From = 0.0, To = 0.0;  // on the canvas
};

Long Held(Double Map_Px, Long Map_Size) {
    if (!(Map_Px > 0.0)) return 0;
    return Map_Px < Map_Size ? Fix_Lng(Map_Px) : Map_Size;
}

// The map pixels in view along one axis, of which Origin lies at the canvas's edge. The room round
// the canvas may be a pixel larger than itself, which is always odd.
std::vector<Piece> Pieces_In_View(Double Origin, Long Map_Size, Long Pic_Size, Long Nb_Tile) {
    const Long First = Held(std::floor(Origin), Map_Size);
    const Long End = Held(std::ceil(Origin + (Pic_Size + 1.0) / Zoom), Map_Size);
    const auto On_Canvas = [Origin](Long Map_Px) { return (Map_Px - Origin) * Zoom; };
    std::vector<Piece> Made;
    Long At = First;
    for (Long Tile = At / Tile_Size; Tile < Nb_Tile && At < End; ++Tile) {
        const Long Begin = Tile * Tile_Size, Next = std::min(End, Begin + Tile_Size);
        Made.push_back({Tile, At - Begin, Next - At, On_Canvas(At), On_Canvas(Next)});
        At = Next;
    }
    return Made;
}

void Copy(const Piece& Col, const Piece& Row) {
    const auto Index = static_cast<std::size_t>(Row.Tile * Nb_Tile_Cols + Col.Tile);
    if (Index >= WPic.size() || WPic[Index].Is_Empty()) return;
    The_Surface().Stretch_Copy(
        WPic[Index], {Col.Source, Row.Source, Col.Size, Row.Size},
        {.Left = Col.From, .Top = Row.From, .Right = Col.To, .Bottom = Row.To});
}

}  // namespace

void Map_Blit_View() {
    if (!Show_Bitmap) return;
    const Pix Origin = Pic_To_Map({0.0, 0.0});
    const auto Cols = Pieces_In_View(Origin.X, Map_Width, Pic_Width, Nb_Tile_Cols);
    for (const Piece& Row : Pieces_In_View(Origin.Y, Map_Height, Pic_Height, Nb_Tile_Rows))
        for (const Piece& Col : Cols) Copy(Col, Row);
}
