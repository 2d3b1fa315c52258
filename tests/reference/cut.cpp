// reference/cut.cpp - every line of the grid taken across all polygons.
#include <algorithm>
#include <cmath>
#include <utility>

#include "geometry/segments.h"
#include "grid/terrain_grid.h"
#include "reference/polygons.h"

namespace reference {

namespace {

struct CutPt {
    Long From_Ix = 0;
    Long To_Ix = 0;
    Meet Code = Meet::Parallel;
    Pix At;
};

// A line of the grid: a parallel at Y = Where, or a meridian at X = Where.
struct Line {
    bool Parallel;
    Double Where;
    Double TolX, TolY;

    Double Tol() const { return Parallel ? TolY : TolX; }
    Double Of(Pix P) const { return Parallel ? P.Y : P.X; }
    Line_Meet Cross(Pix P1, Pix P2) const {
        if (Parallel) return Line_Cross(P1, P2, {-100, Where}, {100, Where});
        return Line_Cross(P1, P2, {Where, -100}, {Where, 100});
    }
    // Within the tolerance, ends included.
    bool Holds(Pix P) const { return Of(P) - Tol() <= Where && Where <= Of(P) + Tol(); }
    // -1 before the line, 0 on it, 1 behind it.
    int Side(Pix P) const {
        if (Holds(P)) return 0;
        return Of(P) < Where ? -1 : 1;
    }
};

Pix At(Long I) {
    return Pix_Of(Tab_WPt[I]);
}

WPt As_WPt(Pix P) {
    return {.X = P.X, .Y = P.Y};
}

Long Next(const WPoly& W, Long I) {
    return I == W.Last ? W.First : I + 1;
}

// Seg_Cut_Horiz and Seg_Cut_Vert.
Seg_Meet Seg_Cut(Pix P1, Pix P2, const Line& L) {
    const Double v1 = L.Of(P1), v2 = L.Of(P2);
    if (v1 == v2) return {};
    if (L.Holds(P1)) return {Meet::End, P1};
    if (L.Holds(P2)) return {Meet::End, P2};
    const bool Between = (v1 < L.Where && L.Where < v2) || (v2 < L.Where && L.Where < v1);
    return {Between ? Meet::Cross : Meet::Miss, L.Cross(P1, P2).At};
}

bool Is_Found_Already(const std::vector<CutPt>& Cuts, const CutPt& New, const Line& L) {
    for (const CutPt& c : Cuts) {
        const bool Neighbour = New.From_Ix == c.From_Ix || New.From_Ix == c.To_Ix ||
                               New.To_Ix == c.From_Ix || New.To_Ix == c.To_Ix;
        const bool Near = L.Parallel ? std::abs(New.At.X - c.At.X) <= L.TolX
                                     : std::abs(New.At.Y - c.At.Y) <= L.TolY;
        if (Neighbour && Near) return true;
    }
    return false;
}

std::vector<CutPt> Find_Cuts(const WPoly& W, const Line& L) {
    std::vector<CutPt> Cuts;
    const Long Last_Edge = W.Nb == 2 ? W.First : W.Last;
    for (Long i = W.First; i <= Last_Edge; ++i) {
        const Long j = Next(W, i);
        const Seg_Meet M = Seg_Cut(At(i), At(j), L);
        if (M.Code < Meet::Cross) continue;
        const CutPt New{i, j, M.Code, M.At};
        if (Cuts.empty() || M.Code == Meet::Cross || !Is_Found_Already(Cuts, New, L)) Cuts.push_back(New);
    }
    return Cuts;
}

using Outline = std::vector<WPt>;

// Fills the two outlines; returns 0, or the number of the failure.
int Dec_2Poly(const WPoly& W, CutPt First, CutPt Second, Outline& One, Outline& Two) {
    if (Second.From_Ix < First.From_Ix) std::swap(First, Second);
    Outline T;
    Long I = W.First;
    for (; I != First.From_Ix; ++I) {
        if (I == W.Last) return 1;
        T.push_back(Tab_WPt[I]);
    }
    T.push_back(Tab_WPt[I]);
    const auto p1 = static_cast<std::ptrdiff_t>(T.size());
    T.push_back(As_WPt(First.At));
    if (First.From_Ix == W.Last) return 2;
    for (++I; I != Second.From_Ix; ++I) {
        if (I == W.Last) return 3;
        T.push_back(Tab_WPt[I]);
    }
    T.push_back(Tab_WPt[I]);
    const auto p2 = static_cast<std::ptrdiff_t>(T.size());
    T.push_back(As_WPt(Second.At));
    for (++I; I <= W.Last; ++I) T.push_back(Tab_WPt[I]);
    One.assign(T.begin() + p1, T.begin() + p2 + 1);
    Two.assign(T.begin() + p2, T.end());
    Two.insert(Two.end(), T.begin(), T.begin() + p1 + 1);
    return 0;
}

bool Has_Both_Sides(const Outline& Points, const Line& L) {
    bool Before = false, Behind = false;
    for (const WPt& P : Points) {
        const int Side = L.Side(Pix_Of(P));
        Before = Before || Side < 0;
        Behind = Behind || Side > 0;
    }
    return Before && Behind;
}

Outline Points_Of(const WPoly& W) {
    Outline Points;
    for (Long I = W.First; I <= W.Last; ++I) Points.push_back(Tab_WPt[I]);
    return Points;
}

bool Needs_Second_Look(const WPoly& W, const std::vector<CutPt>& Cuts, const Line& L) {
    if (W.Nb < 3) return false;
    if (Cuts.size() > 2) return true;
    if (!Has_Both_Sides(Points_Of(W), L)) return false;
    if (Cuts.size() != 2) return true;
    Outline One, Two;
    Dec_2Poly(W, Cuts[0], Cuts[1], One, Two);
    return Has_Both_Sides(One, L) || Has_Both_Sides(Two, L);
}

// The changes of side on the way round, for a polygon with points on both sides of the line.
std::vector<CutPt> Find_Passages(const WPoly& W, const Line& L) {
    std::vector<CutPt> Passages;
    Long Start = W.First;
    while (L.Side(At(Start)) == 0) Start = Next(W, Start);
    Long i = Start;
    do {
        Long j = Next(W, i);
        while (L.Side(At(j)) == 0) j = Next(W, j);
        if (L.Side(At(i)) != L.Side(At(j))) {
            const Long Neighbour = Next(W, i);
            if (Neighbour == j)
                Passages.push_back({i, j, Meet::Cross, L.Cross(At(i), At(j)).At});
            else
                Passages.push_back({i, Neighbour, Meet::End, At(Neighbour)});
        }
        i = j;
    } while (i != Start);
    return Passages;
}

void Add_Dec_2Poly(const WPoly& W, const std::vector<CutPt>& Cuts) {
    Outline One, Two;
    const int Failure = Dec_2Poly(W, Cuts[0], Cuts[1], One, Two);
    if (Failure != 0) {
        Messages.push_back("Anormal " + std::to_string(Failure) + " Dec_2Poly");
        return;
    }
    NPoly_Append(W, One);
    NPoly_Append(W, Two);
}

void Split_Two_Points(const WPoly& W, const CutPt& Cut) {
    NPoly_Append(W, {Tab_WPt[W.First], As_WPt(Cut.At)});
    NPoly_Append(W, {As_WPt(Cut.At), Tab_WPt[W.Last]});
}

// False when the cutting of all polygons ends here.
bool Cut_One(Long K, const Line& L) {
    const WPoly& W = Tab_WPoly[K];
    std::vector<CutPt> Cuts = Find_Cuts(W, L);
    if (Needs_Second_Look(W, Cuts, L)) {
        if (!Has_Both_Sides(Points_Of(W), L)) {
            Copy_Run(K, 1, W.Nb - 1);
            return true;
        }
        const std::vector<CutPt> Passages = Find_Passages(W, L);
        if (Passages.size() == 2) Cuts = Passages;
    }
    if (Cuts.size() > 2) {
        Messages.push_back(L.Parallel ? "Anormal Lat decoupe LOD13_8"
                                      : "Anormal Lon decoupe LOD13_8");
        return false;
    }
    if (Cuts.size() == 2)
        Add_Dec_2Poly(W, Cuts);
    else if (Cuts.size() == 1 && W.Nb == 2 && Cuts[0].Code == Meet::Cross)
        Split_Two_Points(W, Cuts[0]);
    else
        Copy_Run(K, 1, W.Nb - 1);
    return true;
}

bool Line_Pass(const Line& L) {
    Tab_NPoly.Dimension(Nb_WPoly);
    Tab_NPt.Dimension(Nb_WPt);
    for (Long K = 1; K <= Nb_WPoly; ++K)
        if (!Cut_One(K, L)) return false;
    WPoly_Commit();
    return true;
}

}  // namespace

void Poly_Cut_Cells(Int Mode) {
    Stages.push_back("Lod8/13 cut");
    const Double StepLat = Mode == 2 ? Area_StepLat : Cell_StepLat;
    const Double StepLon = Mode == 2 ? Area_StepLon : Cell_StepLon;
    const Double TolDiv = Mode == 2 ? 16321.1 : 512.1;
    const Double PixLat = (YGridSE - YGridNW) / (LatGridNW - LatGridSE) * StepLat;
    const Double PixLon = (XGridSE - XGridNW) / (LonGridSE - LonGridNW) * StepLon;
    const Double TolX = PixLon / TolDiv, TolY = PixLat / TolDiv;
    const Long Row0 = std::max(Fix_Lng((90 - LatGridNW) / StepLat) - 3, 0);
    const Long Col0 = std::max(Fix_Lng((LonGridNW + 180) / StepLon) - 3, 0);

    const Double Lat0 = 90 - Row0 * StepLat;
    Double LineY = YGridNW - (Lat0 - LatGridNW) * PixLat / StepLat;
    for (;; LineY = LineY + PixLat) {
        if (!Line_Pass({.Parallel = true, .Where = LineY, .TolX = TolX, .TolY = TolY})) return;
        if (YGridSE + PixLat <= LineY) break;
    }

    const Double Lon0 = Col0 * StepLon - 180;
    Double LineX = XGridNW - std::abs(Lon0 - LonGridNW) * PixLon / StepLon;
    for (;; LineX = LineX + PixLon) {
        if (!Line_Pass({.Parallel = false, .Where = LineX, .TolX = TolX, .TolY = TolY})) return;
        if (XGridSE + PixLon <= LineX) break;
    }
}

}  // namespace reference
