// gen/lwm_blocks.h - how the mask of an Area is divided into square blocks of Cells.
//
// Fills are those of the model (0 water, 1 land, 2 flatten) and 3 for what has none. A Cell is
// active when it holds pieces or is filled by its own record; the fill of the Area covers the
// rest, in blocks as large as full rows without an active Cell allow.
#pragma once

#include <vector>

#include "core/model.h"
#include "core/table.h"
#include "gen/lwm_text.h"
#include "shapes/poly/work_lists.h"

/// A Cell that the file deals with: the fill of its record, if there is one, and its pieces.
struct LCell : Cell_Pos {
    Byte Attrib = Fill_Nothing;
    Double Alti = No_Alti;
    Int Fill1x1 = 0;
    Int InvertMask = 0;
    Int InvertMaskValue = 0;
    Byte Has_Poly = 0;
    Long First_Poly = 0, Last_Poly = 0;  // rows of Tab_CPoly
    Byte Has_Coast = 0;
    Long First_Coast = 0, Last_Coast = 0;  // rows of Tab_CCoast
};

/// An Area of the file. Without an active Cell it has no data, and only its fill counts.
struct LArea {
    Int AreaLon = 0, AreaLat = 0;
    Byte Attrib = Fill_Nothing;
    Byte Has_Data = 0;
    Long First_Cell = 1, Last_Cell = 0;  // its rows in the list of Cells
};

/// A square block of an Area.
struct LSub {
    Int Size = 1;       // edge in Cells: 1, 2, 4, 8 or 16
    Long Cell_Ix = -1;  // row in the list of Cells, -1 for none
    Int Fill = Fill_Nothing;
    Int SubX = 0, SubY = 0;  // column and row, counted in blocks of its own size

    bool operator==(const LSub&) const = default;
};

/// What the file deals with, from north to south and from west to east, each position once.
struct Lwm_Lists {
    Table<LCell> Cells{20, 20};
    Table<LArea> Areas{20, 20};
};

/// Whether the Cell needs a block of its own.
inline bool Is_Active(const LCell& C) {
    return C.Has_Poly == 1 || C.Has_Coast == 1 || C.Fill1x1 == 1;
}

/// Gathers Tab_Area, Tab_Lod8 and the sorted pieces of Tab_CPoly and Tab_CCoast. Of several
/// records of one position the first counts.
Lwm_Lists Lwm_Collect();

/// Fills Blocks with the blocks of an Area in the order of the file: row by row from the north,
/// each block where its north-west Cell stands.
void Lwm_Blocks(const LArea& A, const Table<LCell>& Cells, std::vector<LSub>& Blocks);
