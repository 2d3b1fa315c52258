// shapes/poly/work_lists.h - outlines while they are cleaned, nested, split and cut.
//
// Coordinates are map pixels, X east and Y south. An outline is held once: the edge from its
// last point back to its first is implied. The lists live for the run of one emitter, which
// resets them at its end. A polygon refers to the attributes of its object; the model does not
// change meanwhile.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>

#include "core/model.h"
#include "core/table.h"
#include "geo/calibration.h"

/// A polygon or line during preparation and cutting.
struct WPoly {
    Long Num = 0;                  // Num of the object
    const ::Attr* Attr = nullptr;  // its attributes
    Long First = 0, Last = 0;      // its points are rows First to Last of the point list
    Long Nb = 0;                   // number of points
    Long Draw_Order = 0;           // rank in its nesting group; higher is drawn first
    Long Group_Root = 0;           // Num that names the nesting group
};

struct WPt {
    Double X = 0.0;
    Double Y = 0.0;
    Byte Tag = 0;  // used by the line emitters only
};

inline Pix To_Pix(const WPt& P) {
    return {P.X, P.Y};
}

/// A finished piece, inside one cell.
struct CPoly {
    Int Nb = 0;
    Long First = 0, Last = 0;  // rows of the finished point list
    Int AreaLon = 0, AreaLat = 0;
    Int CellLon = 0, CellLat = 0;  // 0 when cutting was on the Area grid
    Long Tex_Index = 0;
    Long Tex_Group = 0;
    Long Num = 0;
    const ::Attr* Attr = nullptr;
    Long Draw_Order = 0;
    Long Group_Root = 0;
    Long Seq = 0;  // always 0
};

/// Whether two pieces lie in one cell.
inline bool Same_Cell(const CPoly& A, const CPoly& B) {
    return A.AreaLat == B.AreaLat && A.AreaLon == B.AreaLon && A.CellLat == B.CellLat &&
           A.CellLon == B.CellLon;
}

struct CPt {
    Double X = 0.0, Y = 0.0;  // map pixels
    Int LocX = 0, LocY = 0;   // Cell scale or Area scale, as the cutting was
};

inline constinit Table<WPoly> Tab_WPoly{20, 20};
inline constinit Table<WPt> Tab_WPt{200, 200};
inline constinit Table<WPoly> Tab_NPoly{20, 20};  // output of a pass
inline constinit Table<WPt> Tab_NPt{200, 200};
inline constinit Table<CPoly> Tab_CPoly{20, 20};
inline constinit Table<CPt> Tab_CPt{200, 200};
inline constinit Table<CPoly> Tab_CCoast{20, 20};  // coastline surfaces
inline constinit Table<CPt> Tab_CCoastPt{200, 200};

inline constinit const Long& Nb_WPoly = Tab_WPoly.Nb();
inline constinit const Long& Nb_WPt = Tab_WPt.Nb();
inline constinit const Long& Nb_NPoly = Tab_NPoly.Nb();
inline constinit const Long& Nb_NPt = Tab_NPt.Nb();
inline constinit const Long& Nb_CPoly = Tab_CPoly.Nb();
inline constinit const Long& Nb_CPt = Tab_CPt.Nb();
inline constinit const Long& Nb_CCoast = Tab_CCoast.Nb();
inline constinit const Long& Nb_CCoastPt = Tab_CCoastPt.Nb();

/// Of one run: polygons with an Imbrication text were found; polygons without one were found.
inline Int Has_Imbric = 0;
inline Int Has_Auto = 0;

/// Pixel of the self-crossing that was found.
inline Long Err_PixX = 0;
inline Long Err_PixY = 0;

/// Adds a polygon with the values of Like to the output lists of a pass.
void NPoly_Append(const WPoly& Like, std::span<const Pix> Points);

/// Room for the points of the pieces of outlines of Nb points: the convex ones have at most three
/// times as many, since each run taken off adds two, and cutting them along the grid adds about
/// as many again. Memory that is not used costs nothing, while a list that has to move costs more
/// than its cut.
inline Long Room_For_Points(Long Nb) {
    return static_cast<Long>(std::min<std::int64_t>(std::int64_t{4} * Nb, 2'000'000'000));
}

/// Makes the output lists of a pass the new work lists. The output lists are empty then and keep
/// the memory of the old work lists for the next pass.
void WPoly_Commit();

/// Empties every list and flag of this file and gives their memory back.
void Work_Lists_Reset();
