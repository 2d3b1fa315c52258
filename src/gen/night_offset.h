// gen/night_offset.h - the paths of lights beside the middle of a road.
//
// Points are metres east and north of a reference point, the centre of the level-10 square that
// the piece of road lies in.
#pragma once

#include <span>
#include <vector>

#include "geo/calibration.h"

struct Metres {
    Double X = 0.0;  // east
    Double Y = 0.0;  // north
    bool operator==(const Metres&) const = default;
};

/// The same distance to the left and to the right of the road, seen in its drawing direction.
struct Lane_Pt {
    Metres Left, Right;
};

/// How many lanes a line kind has, and whether a strip parts its two directions.
struct Road_Lanes {
    Int Lanes = 1;
    Int Median = 0;
    bool operator==(const Road_Lanes&) const = default;
};
Road_Lanes Lanes_Of(Int LineType);

/// The offsets from the middle of a road of that width in metres, from the innermost out: one for
/// every two lanes, or 0 alone for a road of one lane.
std::vector<Double> Lane_Offsets(const Road_Lanes& Road, Double Width);

Metres To_Metres(Geo G, Geo Ref);

/// The two points at distance Offset from the start or the end of segment A to B, square to it.
/// A segment that leaves a meridian or parallel by less than 1 cm counts as lying on it.
Lane_Pt Night_Offset(Metres A, Metres B, Double Offset, bool At_End);

/// Where the line through P1 and P2 meets that through P3 and P4. P2 when they are parallel, or
/// nearly so, or when P2 is P3.
Metres Night_Mitre(Metres P1, Metres P2, Metres P3, Metres P4);

/// The paths left and right of a road of two points or more, a pair for each of its points. With
/// One_Lane both are the road itself.
std::vector<Lane_Pt> Lane_Path(std::span<const Metres> Road, Double Offset, bool One_Lane);
