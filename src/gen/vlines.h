// gen/vlines.h - the finished pieces of lines, and their place in the source.
//
// Coordinates are those of the Area scale (terrain_grid.h): 4080 to 12240 across an Area, X east
// and Y south.
#pragma once

#include "core/model.h"
#include "core/table.h"
#include "shapes/poly/work_lists.h"

/// Lines of these kinds have no widths and no end geometry. They are not limited to their Area:
/// no row cuts them, and their points run on beyond it.
inline constexpr Int First_Bare_Line = 1213, Last_Bare_Line = 1261;
inline bool Is_Bare_Line(const Attr& A) {
    return First_Bare_Line <= A.LineType && A.LineType <= Last_Bare_Line;
}

struct VLinePt {
    Int X = 0, Y = 0;
    bool operator==(const VLinePt&) const = default;
};

/// A piece of a line.
struct VLine {
    Long Nb_Pts = 0;
    Long First_Pt = 0, Last_Pt = 0;  // its rows of the point list
    Int AreaLon = 0, AreaLat = 0;
    Int Layer = 0;
    Int Tex_Index = 0;  // its row of Tex_List
    Long Num = 0;       // of the object
    const ::Attr* Attr = nullptr;
};

/// The pieces in the order of the source and what they are written under: cells (one an Area),
/// in each its layers, in each its groups of one line kind.
struct VLine_Lists {
    struct VCell {
        Int AreaLon = 0, AreaLat = 0;
        Long First_Layer = 0, Last_Layer = 0;
    };
    struct VLayer {
        Int Layer = 0;
        Long First_Group = 0, Last_Group = 0;
    };
    struct VGroup {
        Int LineType = 0;
        Int Tex_Index = 0;
        Long First_Line = 0, Last_Line = 0;
    };

    Table<VLine> Lines{20, 20};
    Table<VLinePt> Points{200, 200};
    Table<VCell> Cells{20, 20};
    Table<VLayer> Layers{20, 20};
    Table<VGroup> Groups{20, 20};
    Table<Int> Tex_List{10, 10};  // line kinds in the order of their first piece
};

/// The point that gives the line from A to B its full width at an end: beside A, or beside B when
/// Is_Last. With Tag_Wide it lies one unit inside the line, with Tag_Cut one unit beyond its end,
/// measured along the longer axis. The end itself when A equals B.
VLinePt Wide_End_Point(VLinePt A, VLinePt B, bool Is_Last, Byte Tag);

/// Whether the points of a bare line, on the scale of the Area under its middle, fit an Int.
bool Bare_Line_Fits(std::span<const WPt> Line);

/// The lines of Tab_WPoly, each on the scale of the Area under the middle of its box, with the
/// end points of Wide_End_Point; sorted by Area (rows from north, then columns from west), layer
/// and line kind, and nested.
VLine_Lists VLine_Build();
