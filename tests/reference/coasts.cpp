// reference/coasts.cpp - pass after pass over all lines, sweep after sweep over all edges.
#include "reference/coasts.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "grid/poly_cut.h"
#include "grid/terrain_grid.h"

namespace reference {

namespace {

void Copy_Line(const WPoly& W) {
    WPoly Copy = W;
    Copy.First = Nb_NPt + 1;
    for (Long i = W.First; i <= W.Last; ++i) Tab_NPt.Append(Tab_WPt[i]);
    Copy.Last = Nb_NPt;
    Tab_NPoly.Append(Copy);
}

void Insert(Long Place, Pix P) {
    Tab_NPt.Append({});
    for (Long i = Nb_NPt; i > Place; --i) Tab_NPt[i] = Tab_NPt[i - 1];
    Tab_NPt[Place] = {.X = P.X, .Y = P.Y};
    ++Tab_NPoly[Nb_NPoly].Last;
    ++Tab_NPoly[Nb_NPoly].Nb;
}

template <typename Cut>
void Line_Pass(Cut Seg_Cut) {
    Tab_NPoly.Dimension(Nb_WPoly);
    Tab_NPt.Dimension(Nb_WPt);
    Long Inserted = 0;
    for (const WPoly& W : Tab_WPoly.Rows()) {
        Copy_Line(W);
        for (Long i = W.First; i < W.Last; ++i) {
            const ::Seg_Cut C = Seg_Cut(Pix_Of(Tab_WPt[i]), Pix_Of(Tab_WPt[i + 1]));
            if (C.Code != 2) continue;
            Insert(i + 1 + Inserted, C.At);
            ++Inserted;
        }
    }
    WPoly_Commit();
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

}  // namespace

void Coast_Crossings() {
    const Double Row_Pix = (YGridSE - YGridNW) / (LatGridNW - LatGridSE) * Cell_StepLat;
    const Double Col_Pix = (XGridSE - XGridNW) / (LonGridSE - LonGridNW) * Cell_StepLon;
    const Double Tol_X = Col_Pix / 512.1, Tol_Y = Row_Pix / 512.1;
    const Long Row = std::max(Fix_Lng((90 - LatGridNW) / Cell_StepLat) - 2, 0);
    const Long Col = std::max(Fix_Lng((LonGridNW + 180) / Cell_StepLon) - 2, 0);
    Double Y = YGridNW - ((90 - Row * Cell_StepLat - LatGridNW) * Row_Pix) / Cell_StepLat;
    for (;; Y += Row_Pix) {
        Line_Pass([&](Pix A, Pix B) { return Seg_Cut_Horiz(A, B, Y, Tol_Y); });
        if (Y >= YGridSE) break;
    }
    Double X = XGridNW - (std::abs(Col * Cell_StepLon - 180 - LonGridNW) * Col_Pix) / Cell_StepLon;
    for (;; X += Col_Pix) {
        Line_Pass([&](Pix A, Pix B) { return Seg_Cut_Vert(A, B, X, Tol_X); });
        if (X >= XGridSE) break;
    }
}

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

}  // namespace reference
