// reference/lines.cpp - collecting and cutting lines, step by step.
#include "reference/lines.h"

#include <cmath>
#include <utility>
#include <vector>

#include "geometry/segments.h"

namespace reference {

namespace {

// Rows 1 to n of a line, and row n + 1, the copy of its first point.
struct Chain {
    std::vector<WPt> P{WPt{}};
    Long n = 0;

    void Refresh() {
        P.resize(static_cast<std::size_t>(n) + 1);
        P.push_back(WPt(P[1]));
    }
    void Remove(Long i) {
        P.erase(P.begin() + i);
        --n;
    }
    Pix At(Long i) const { return Pix_Of(P[static_cast<std::size_t>(i)]); }
};

Chain Read(const Obj& O, const Line_Rule& Rule) {
    Chain C;
    Long Row = O.First_Pt;
    for (Long k = 1; k <= O.Nb_Pts; ++k, Row = Tab_Pt[Row].Next)
        C.P.push_back({.X = Tab_Pt[Row].X, .Y = Tab_Pt[Row].Y});
    C.n = O.Nb_Pts;
    if (Rule.Has_Tags && O.Attr.Effil_Deb == 0) C.P[1].Tag = 1;
    if (Rule.Has_Tags && O.Attr.Effil_Fin == 0) C.P.back().Tag = 1;
    return C;
}

void Drop_Repeats_Once(Chain& C, bool Tag_First) {
    C.Refresh();
    Long i = 1;
    while (true) {
        if (C.At(i + 1) == C.At(i)) {
            C.Remove(i);
            if (i == 1 && Tag_First) C.P[1].Tag = 1;
            if (i < C.n) continue;
            return;
        }
        if (i == C.n) return;
        ++i;
    }
}

void Drop_Repeats(Chain& C, bool Tag_First) {
    Long Before = 0;
    do {
        Before = C.n;
        Drop_Repeats_Once(C, Tag_First);
    } while (C.n >= 2 && C.n < Before);
}

void Drop_Straight(Chain& C) {
    C.Refresh();
    Long i = 1;
    while (true) {
        if (Sens_3Pts(C.At(i), C.At(i + 1), C.At(i + 2)) == 0) {
            C.Remove(i + 1);
            if (i < C.n - 1) continue;
            return;
        }
        if (i == C.n - 1) return;
        ++i;
    }
}

void Append(const Obj& O, const Chain& C) {
    WPoly W{.Num = O.Num, .Attr = &O.Attr, .First = Nb_WPt + 1};
    for (Long i = 1; i <= C.n; ++i) Tab_WPt.Append(C.P[static_cast<std::size_t>(i)]);
    W.Last = Nb_WPt;
    W.Nb = C.n;
    Tab_WPoly.Append(W);
}

// A row or a column of the grid, and its tolerance.
struct Grid_Line {
    bool Row;
    Double At, Tol;
};

Seg_Meet Cut_Segment(const WPt& P1, const WPt& P2, const Grid_Line& L) {
    const Double v1 = L.Row ? P1.Y : P1.X, v2 = L.Row ? P2.Y : P2.X;
    if (v1 == v2) return {};
    if (v1 - L.Tol <= L.At && L.At <= v1 + L.Tol) return {Meet::End, Pix_Of(P1)};
    if (v2 - L.Tol <= L.At && L.At <= v2 + L.Tol) return {Meet::End, Pix_Of(P2)};
    const Line_Meet M = L.Row ? Line_Cross(Pix_Of(P1), Pix_Of(P2), {-100, L.At}, {100, L.At})
                              : Line_Cross(Pix_Of(P1), Pix_Of(P2), {L.At, -100}, {L.At, 100});
    if ((v1 < L.At && L.At < v2) || (v2 < L.At && L.At < v1)) return {Meet::Cross, M.At};
    return {Meet::Miss, {}};
}

void Emit_Piece(Long Poly, Long First, Long Last) {
    std::vector<WPt> Points;
    for (Long i = First; i <= Last; ++i) Points.push_back(Tab_WPt[i]);
    NPoly_Append(Tab_WPoly[Poly], Points);
}

void Emit_Piece_Pt(Long Poly, Long First, Long Last, Pix At) {
    Emit_Piece(Poly, First, Last);
    Tab_NPt.Append({.X = At.X, .Y = At.Y, .Tag = 2});
    WPoly& W = Tab_NPoly[Nb_NPoly];
    W.Last = Nb_NPt;
    ++W.Nb;
}

void Walk(Long Poly, const Grid_Line& L, bool Tags_Cuts) {
    const Long First = Tab_WPoly[Poly].First, Last = Tab_WPoly[Poly].Last;
    Long Start = First, i = First;
    while (true) {
        const Long j = i + 1;
        const Seg_Meet M = Cut_Segment(Tab_WPt[i], Tab_WPt[j], L);
        if (M.Code == Meet::End && !(M.At == Pix_Of(Tab_WPt[i]) && i == Start)) {
            Emit_Piece(Poly, Start, j);
            if (j == Last) return;
            Start = i = j;
            continue;
        }
        if (M.Code == Meet::Cross) {
            Emit_Piece_Pt(Poly, Start, i, M.At);
            Start = i;
            Tab_WPt[i].X = M.At.X;
            Tab_WPt[i].Y = M.At.Y;
            if (Tags_Cuts) Tab_WPt[i].Tag = 2;
        }
        if (j == Last) {
            Emit_Piece(Poly, Start, Last);
            return;
        }
        ++i;
    }
}

void Pass(const Grid_Line& L, const Line_Cut_Rule& Rule, const std::vector<Long>& Whole) {
    Tab_NPoly.Dimension(2 * Nb_WPoly);
    Tab_NPt.Dimension(3 * Nb_WPt);
    for (Long k = 1; k <= Nb_WPoly; ++k) {
        bool Is_Whole = false;
        for (const Long Num : Whole) Is_Whole = Is_Whole || Num == Tab_WPoly[k].Num;
        if (Is_Whole)
            Emit_Piece(k, Tab_WPoly[k].First, Tab_WPoly[k].Last);
        else
            Walk(k, L, Rule.Tags_Cuts);
    }
    WPoly_Commit();
}

void Cut_By_Columns(const Line_Grid& G, const Line_Cut_Rule& Rule) {
    const Double Col_Pix = (XGridSE - XGridNW) / (LonGridSE - LonGridNW) * G.StepLon / G.Parts;
    const Long Col = std::max(Fix_Lng((LonGridNW + 180) / G.StepLon) - 2, 0);
    Double X = XGridNW - (std::abs(Col * G.StepLon - 180 - LonGridNW) * Col_Pix) / G.StepLon;
    for (;; X = X + Col_Pix) {
        Pass({false, X, Col_Pix / G.TolDiv}, Rule, {});
        if (X >= XGridSE) return;
    }
}

void Cut_By_Rows(const Line_Grid& G, const Line_Cut_Rule& Rule, const std::vector<Long>& Whole) {
    const Double Row_Pix = (YGridSE - YGridNW) / (LatGridNW - LatGridSE) * G.StepLat / G.Parts;
    const Long Row = std::max(Fix_Lng((90 - LatGridNW) / G.StepLat) - 2, 0);
    Double Y = YGridNW - ((90 - Row * G.StepLat - LatGridNW) * Row_Pix) / G.StepLat;
    for (;; Y = Y + Row_Pix) {
        Pass({true, Y, Row_Pix / G.TolDiv}, Rule, Whole);
        if (Y >= YGridSE) return;
    }
}

// The objects whose lines skip the rows: their pieces fit after the columns alone.
std::vector<Long> Whole_Over_Rows(const Line_Grid& G, const Line_Cut_Rule& Rule) {
    if (!Rule.Skips_Rows) return {};
    const Table<WPoly> Polys = Tab_WPoly;
    const Table<WPt> Points = Tab_WPt;
    Cut_By_Columns(G, Rule);
    std::vector<Long> Whole;
    for (const WPoly& W : Polys.Rows()) {
        bool Fit = Rule.Skips_Rows(*W.Attr);
        for (const WPoly& Piece : Tab_WPoly.Rows())
            if (Fit && Piece.Num == W.Num)
                Fit = Rule.Fits(Tab_WPt.Rows().subspan(static_cast<std::size_t>(Piece.First - 1),
                                                       static_cast<std::size_t>(Piece.Nb)));
        if (Fit) Whole.push_back(W.Num);
    }
    Tab_WPoly = Polys;
    Tab_WPt = Points;
    return Whole;
}

}  // namespace

void Line_Collect(const Line_Rule& Rule) {
    for (Long k = First_Obj; k <= Nb_Obj; ++k) {
        const Obj& O = Tab_Obj[k];
        if (!Rule.Takes(O.Attr) || O.Nb_Pts < 2) continue;
        Chain C = Read(O, Rule);
        Drop_Repeats(C, Rule.Has_Tags && O.Attr.Effil_Deb == 0);
        if (C.n < 2) continue;
        if (C.n >= 3) Drop_Straight(C);
        if (Rule.May_Close && Rule.May_Close(O.Attr) && O.Attr.FermerLine == 1) {
            C.P[static_cast<std::size_t>(C.n)].Tag = 0;
            C.Refresh();
            ++C.n;
        }
        if (Rule.Turns && O.Attr.LandOnRight == 1)
            for (Long a = 1, b = C.n; a < b; ++a, --b)
                std::swap(C.P[static_cast<std::size_t>(a)], C.P[static_cast<std::size_t>(b)]);
        Append(O, C);
    }
}

void Line_Cut(const Line_Grid& Grid, const Line_Cut_Rule& Rule) {
    const std::vector<Long> Whole = Whole_Over_Rows(Grid, Rule);
    Cut_By_Rows(Grid, Rule, Whole);
    Cut_By_Columns(Grid, Rule);
}

}  // namespace reference
