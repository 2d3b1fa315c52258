// shapes/poly/drawn_line.h - a drawn chain on its way into the work lists: read, rid of the points
// that say nothing, stored.
//
// The way from the last point back to the first belongs to the drawing in both scans, whether it
// is an outline or an open line. A point is anything with X and Y in map pixels.
#pragma once

#include <cstddef>
#include <vector>

#include "geometry/segments.h"
#include "shapes/poly/work_lists.h"

/// The points of an object with one point or more, in the order of its chain.
template <typename Point>
void Read_Chain(const Obj& O, std::vector<Point>& Line) {
    Line.clear();
    for (Long P = O.First_Pt;; P = Tab_Pt[P].Next) {
        Line.push_back({.X = Tab_Pt[P].X, .Y = Tab_Pt[P].Y});
        if (P == O.Last_Pt) return;
    }
}

inline WPt To_WPt(const WPt& P) {
    return P;
}
inline WPt To_WPt(Pix P) {
    return {.X = P.X, .Y = P.Y};
}

template <typename Point>
Pix Place_Of(const Point& P) {
    return {P.X, P.Y};
}

/// Drops repeated points. Of equal neighbours the last stays; where the last point of the line
/// equals the first, the first. Needs a point or more and leaves one or more.
template <typename Point>
void Drop_Repeats(std::vector<Point>& Line) {
    std::size_t Kept = 0;
    for (std::size_t I = 1; I < Line.size(); ++I) {
        if (!(Place_Of(Line[I]) == Place_Of(Line[Kept]))) ++Kept;
        Line[Kept] = Line[I];
    }
    while (Kept > 0 && Place_Of(Line[Kept]) == Place_Of(Line[0])) --Kept;
    Line.resize(Kept + 1);
}

/// Drops a point when the path through it from the point kept before it makes no turn
/// (Sens_3Pts). The point behind the last one dropped may escape the test, as the walk ends
/// where the count falls to it. The first point stays. Needs 3 points or more, leaves 2 or more.
template <typename Point>
void Drop_Straight(std::vector<Point>& Line) {
    const std::size_t Nb = Line.size();
    const Pix First = Place_Of(Line[0]);
    const auto At = [&](std::size_t I) { return I < Nb ? Place_Of(Line[I]) : First; };
    std::size_t Kept = 1;  // points kept
    std::size_t Next = 1;  // the point in question
    std::size_t Left = Nb;
    while (true) {
        if (Sens_3Pts(Place_Of(Line[Kept - 1]), At(Next), At(Next + 1)) == 0) {
            ++Next;
            --Left;
            if (Kept + 1 >= Left) break;
        } else {
            if (Kept + 1 == Left) break;
            Line[Kept++] = Line[Next++];
        }
    }
    while (Next < Nb) Line[Kept++] = Line[Next++];
    Line.resize(Kept);
}

/// Adds a line of an object to Tab_WPoly and Tab_WPt.
template <typename Point>
void WPoly_Append(const Obj& O, const std::vector<Point>& Line) {
    const Long First = Nb_WPt + 1;
    const std::span<WPt> To = Tab_WPt.Append_Rows(Line.size());
    for (std::size_t I = 0; I < To.size(); ++I) To[I] = To_WPt(Line[I]);
    Tab_WPoly.Append({.Num = O.Num,
                      .Attr = &O.Attr,
                      .First = First,
                      .Last = Nb_WPt,
                      .Nb = static_cast<Long>(Line.size())});
}
