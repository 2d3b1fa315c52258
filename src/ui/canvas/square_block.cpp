// ui/canvas/square_block.cpp - rectangles of Cells, across the edges of Areas.
#include "ui/canvas/square_block.h"

#include <algorithm>
#include <cstdlib>

namespace {

// Columns and rows of Cells, counted over the whole globe.
Long Col_Of(const Cell_Pos& C) {
    return Long{C.AreaLon} * Nb_Cell_In_Area + C.CellLon;
}

Long Row_Of(const Cell_Pos& C) {
    return Long{C.AreaLat} * Nb_Cell_In_Area + C.CellLat;
}

Cell_Pos Cell_At(Long Col, Long Row) {
    const auto [Area_Col, Cell_Col] = std::div(Col, Long{Nb_Cell_In_Area});
    const auto [Area_Row, Cell_Row] = std::div(Row, Long{Nb_Cell_In_Area});
    return {static_cast<Int>(Area_Col), static_cast<Int>(Area_Row), static_cast<Int>(Cell_Col),
            static_cast<Int>(Cell_Row)};
}

}  // namespace

Square_Block Block_Of(const Cell_Pos& A, const Cell_Pos& B) {
    const auto [West, East] = std::minmax({Col_Of(A), Col_Of(B)});
    const auto [North, South] = std::minmax({Row_Of(A), Row_Of(B)});
    return {Cell_At(West, North), East - West + 1, South - North + 1};
}

std::vector<Cell_Pos> Cells_Of(const Square_Block& Block) {
    std::vector<Cell_Pos> Cells;
    const Long Col = Col_Of(Block.NW), Row = Row_Of(Block.NW);
    for (Long R = 0; R < Block.Rows; ++R)
        for (Long C = 0; C < Block.Cols; ++C) Cells.push_back(Cell_At(Col + C, Row + R));
    return Cells;
}
