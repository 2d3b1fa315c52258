// gen/vtp2_lists.h - textured pieces ordered and grouped as their file nests them.
//
// An Area holds Cells, a Cell layers, a layer textures, a texture groups of at most 127 pieces.
#pragma once

#include "core/model.h"
#include "core/table.h"
#include "gen/tex_table.h"
#include "shapes/poly/work_lists.h"

/// A group holds at most this many pieces, a file at most this many textures and further groups.
inline constexpr Long Max_Group = 127;
inline constexpr Long Max_Textures = 127;

/// First and Last are rows of the next list, in a VGroup those of Tab_CPoly.
struct VArea {
    Int AreaLon = 0, AreaLat = 0;
    Long First = 0, Last = 0;
};
struct VCell {
    Int CellLon = 0, CellLat = 0;  // both 0: the pieces lie on the Area grid
    Long First = 0, Last = 0;
};
struct VLayer {
    Int Layer_Vtp2 = 0;
    Long Nb_Group = 0;  // over all its textures
    Long First = 0, Last = 0;
};
struct VTex {
    Long Tex_Index = 0;
    Long First = 0, Last = 0;
};
struct VGroup {
    Long Tex_Group = 0;
    Long First = 0, Last = 0;
};

struct Vtp2_Lists {
    Table<VArea> Areas{20, 20};
    Table<VCell> Cells{20, 20};
    Table<VLayer> Layers{20, 20};
    Table<VTex> Texs{20, 20};
    Table<VGroup> Groups{20, 20};
};

/// Gives each piece of Tab_CPoly its texture, and puts the pieces in the order of the file.
void Vtp2_Sort(Tex_List& Textures);

/// Divides more than Max_Group pieces of one texture in one layer of a cell into groups. Each
/// group but the first gets a number of its own, from Nb_Tex + 1 on. Returns the last number
/// used, Nb_Tex when there is none.
Long Vtp2_Overflow(Long Nb_Tex);

/// The nesting of Tab_CPoly, which must be in order.
Vtp2_Lists Vtp2_Nest();
