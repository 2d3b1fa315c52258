// shapes/poly/convex_cut.h - one polygon and one grid line.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "shapes/poly/poly_cut.h"

/// The lines of one direction, seen so that both directions have one rule: Across is the
/// coordinate that the lines fix, Along the other.
struct Parallels {
    std::span<const Double> Lines;
    Double TolX, TolY;
    Double Tol = TolY, Tol_Along = TolX;

    static Double Across(Pix P) { return P.Y; }
    static Double Along(Pix P) { return P.X; }
    Seg_Cut Cut(Pix P1, Pix P2, Double Line) const { return Seg_Cut_Horiz(P1, P2, Line, Tol); }
    static Pix Cross(Pix P1, Pix P2, Double Line) {
        return Line_Cross(P1, P2, {-100, Line}, {100, Line}).At;
    }
};

struct Meridians {
    std::span<const Double> Lines;
    Double TolX, TolY;
    Double Tol = TolX, Tol_Along = TolY;

    static Double Across(Pix P) { return P.X; }
    static Double Along(Pix P) { return P.Y; }
    Seg_Cut Cut(Pix P1, Pix P2, Double Line) const { return Seg_Cut_Vert(P1, P2, Line, Tol); }
    static Pix Cross(Pix P1, Pix P2, Double Line) {
        return Line_Cross(P1, P2, {Line, -100}, {Line, 100}).At;
    }
};

/// Where the two pieces of a polygon go: onto the end of a stack of points, the second below the
/// first.
struct Two_Pieces {
    std::vector<Pix> Stack;
    std::size_t Nb_Second = 0, Nb_First = 0;
};

/// Whole: the polygon goes on as it is; Two: it has become the two pieces; Too_Often: the line
/// meets it more than twice, as happens to no convex polygon.
enum class Cut_Result { Whole, Two, Too_Often };

/// Polygon must not lie in the stack.
Cut_Result Convex_Cut(const Parallels& A, Double Line, std::span<const Pix> Polygon,
                      Two_Pieces& Two);
Cut_Result Convex_Cut(const Meridians& A, Double Line, std::span<const Pix> Polygon,
                      Two_Pieces& Two);
