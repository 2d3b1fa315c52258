// ui/canvas/square_block.h - the squares that a dialog is opened for.
#pragma once

#include <vector>

#include "core/model.h"
#include "core/resets.h"

/// A rectangle of Cells, mostly a single one.
struct Square_Block {
    Cell_Pos NW = {};
    Long Cols = 1, Rows = 1;
    bool operator==(const Square_Block&) const = default;
};

/// Set by the mode before it opens the dialog of squares.
inline Square_Block The_Squares;

/// The smallest block that holds both Cells.
Square_Block Block_Of(const Cell_Pos& A, const Cell_Pos& B);
/// Its Cells, row by row from the north-west.
std::vector<Cell_Pos> Cells_Of(const Square_Block& Block);

inline const bool The_Squares_Are_Reset = At_Reset([] { The_Squares = {}; });
