// reference/coast_surfaces.cpp - closed coastlines become pieces, and pieces that fill their Cell
// go, found by sweep after sweep over all edges.
#include <algorithm>
#include <vector>

#include "geometry/segments.h"
#include "reference/coasts.h"
#include "reference/polygons.h"

namespace reference {

namespace {

// Rows 1 to n of an outline, and behind them its first point again.
struct Ring {
    std::vector<Pix> Row{Pix{}};
    Long n = 0;

    void Remove(Long i) {
        Row.erase(Row.begin() + i);
        --n;
    }
    void Refresh() {
        Row.resize(static_cast<std::size_t>(n) + 1);
        Row.push_back(Pix(Row[1]));
    }
};

void Drop_Repeats_Once(Ring& R) {
    R.Refresh();
    for (Long i = 1;; ++i) {
        while (R.Row[i + 1] == R.Row[i]) {
            R.Remove(i);
            if (i >= R.n) return;
        }
        if (i == R.n) return;
    }
}

void Drop_Repeats(Ring& R) {
    Long Before = 0;
    do {
        Before = R.n;
        Drop_Repeats_Once(R);
    } while (R.n >= 2 && R.n < Before);
}

void Drop_Straight(Ring& R) {
    R.Refresh();
    for (Long i = 1;;) {
        if (Sens_3Pts(R.Row[i], R.Row[i + 1], R.Row[i + 2]) == 0) {
            R.Remove(i + 1);
            if (i >= R.n - 1) return;
        } else {
            if (i == R.n - 1) return;
            ++i;
        }
    }
}

bool Clean(Ring& R) {
    Drop_Repeats(R);
    if (R.n < 2) return false;
    if (R.n >= 3) Drop_Straight(R);
    if (Sens_3Pts(R.Row[R.n], R.Row[1], R.Row[2]) == 0) R.Remove(1);
    return R.n >= 2;
}

struct Edge {
    Int FromX, FromY, ToX, ToY;
    bool Used = false;
};

bool Is_Reverse(const Edge& A, const Edge& B) {
    return A.FromX == B.ToX && A.FromY == B.ToY && A.ToX == B.FromX && A.ToY == B.FromY;
}

Edge Edge_At(const CPoly& P, const Table<CPt>& Points, Long I) {
    const CPt& From = Points[I];
    const CPt& To = Points[I == P.Last ? P.First : I + 1];
    return {From.LocX, From.LocY, To.LocX, To.LocY};
}

std::vector<Edge> Edges_Of(std::span<const CPoly> Polys, const Table<CPt>& Points) {
    std::vector<Edge> List;
    for (std::size_t K = 0; K < Polys.size(); ++K)
        for (Long I = Polys[K].First; I <= Polys[K].Last; ++I) {
            const Edge E = Edge_At(Polys[K], Points, I);
            const auto Reverse = std::find_if(List.begin(), List.end(),
                                              [&](const Edge& L) { return Is_Reverse(E, L); });
            if (K > 0 && Reverse != List.end())
                Reverse->Used = true;
            else
                List.push_back(E);
        }
    return List;
}

// Empty when the pieces stay whatever the chain is.
std::vector<Edge> Chain_Of(std::vector<Edge> List) {
    std::size_t First = 0;
    while (First < List.size() && List[First].Used) ++First;
    if (First + 2 >= List.size()) return {};
    List[First].Used = true;
    std::vector<Edge> Chain{List[First]};
    std::size_t Sweeps = 0;
    for (bool Added = true; Added;) {
        Added = false;
        if (++Sweeps > List.size() + 2) return {};
        for (Edge& E : List) {
            if (E.Used || E.FromX != Chain.back().ToX || E.FromY != Chain.back().ToY) continue;
            E.Used = Added = true;
            Chain.push_back(E);
        }
    }
    return Chain;
}

bool Fill_Alone(const CPoly& P) {
    if (P.Nb != 4) return false;
    std::vector<std::pair<Int, Int>> Round;
    for (Long I = P.First; I <= P.Last; ++I) Round.push_back({Tab_CPt[I].LocX, Tab_CPt[I].LocY});
    std::rotate(Round.begin(), std::ranges::find(Round, std::pair<Int, Int>(0, 0)), Round.end());
    return Round == std::vector<std::pair<Int, Int>>{{0, 0}, {255, 0}, {255, 255}, {0, 255}};
}

// A piece on its own takes the same place in its Cell as among the others.
void Drop_Whole_Cells() {
    const Table<WPoly> Polys = Tab_WPoly;
    const Table<WPt> Points = Tab_WPt;
    Table<WPoly> Kept{20, 20};
    for (const WPoly& W : Polys.Rows()) {
        Tab_WPt = Points;
        Tab_WPoly.Dimension(1);
        Tab_WPoly.Append(W);
        Tab_CPoly.Reset();
        Tab_CPt.Reset();
        Poly_To_Cells(0);
        if (Nb_CPoly == 0 || !Fill_Alone(Tab_CPoly[1])) Kept.Append(W);
    }
    Tab_CPoly.Reset();
    Tab_CPt.Reset();
    Tab_WPoly = Kept;
    Tab_WPt = Points;
}

}  // namespace

bool Fill_Cell(std::span<const CPoly> Polys, const Table<CPt>& Points) {
    const std::vector<Edge> Chain = Chain_Of(Edges_Of(Polys, Points));
    const std::size_t n = Chain.size();
    if (n < 4) return false;
    const auto Start = [&](std::size_t I) {
        const Edge& E = Chain[I % n];
        return Pix{static_cast<Double>(E.FromX), static_cast<Double>(E.FromY)};
    };
    std::vector<Pix> Left;
    for (std::size_t I = 0; I < n; ++I)
        if (Sens_3Pts(Start(I + n - 1), Start(I), Start(I + 1)) != 0) Left.push_back(Start(I));
    if (Left.size() != 4) return false;
    std::rotate(Left.begin(), std::find(Left.begin(), Left.end(), Pix{0, 0}), Left.end());
    return Left == std::vector<Pix>{{0, 0}, {255, 0}, {255, 255}, {0, 255}};
}

void Coast_Polys() {
    Tab_NPoly.Dimension(Nb_WPoly);
    Tab_NPt.Dimension(Nb_WPt);
    for (const WPoly& W : Tab_WPoly.Rows()) {
        Ring R;
        for (Long i = W.First; i <= W.Last; ++i) R.Row.push_back(Pix_Of(Tab_WPt[i]));
        R.n = W.Nb;
        if (!Clean(R)) continue;
        const std::span<Pix> Points(R.Row.data() + 1, static_cast<std::size_t>(R.n));
        if (R.n > 2 && !Poly_Orientation(Points)) std::reverse(Points.begin(), Points.end());
        std::vector<WPt> Rows;
        for (const Pix P : Points) Rows.push_back({.X = P.X, .Y = P.Y});
        NPoly_Append(W, Rows);
    }
    WPoly_Commit();
    Poly_Split_Max(60);
    Poly_Cut_Cells(0);
}

void Coast_To_Cells() {
    Drop_Whole_Cells();
    Poly_To_Cells(0);
    const Table<CPoly> Polys = Tab_CPoly;
    const Table<CPt> Points = Tab_CPt;
    Tab_CPoly.Dimension(Nb_CPoly);
    Tab_CPt.Dimension(Nb_CPt);
    const std::span<const CPoly> All = Polys.Rows();
    for (std::size_t First = 0, End = 0; First < All.size(); First = End) {
        while (End < All.size() && Same_Cell(All[First], All[End])) ++End;
        const auto Run = All.subspan(First, End - First);
        if (Fill_Cell(Run, Points)) continue;
        for (CPoly P : Run) {
            const Long Old = P.First;
            P.First = Nb_CPt + 1;
            for (Long I = Old; I <= P.Last; ++I) Tab_CPt.Append(Points[I]);
            P.Last = Nb_CPt;
            Tab_CPoly.Append(P);
        }
    }
}

}  // namespace reference
