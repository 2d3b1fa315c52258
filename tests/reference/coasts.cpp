// reference/coasts.cpp - from the drawn coastlines to lines from edge to edge, pass after pass over
// all of them.
#include "reference/coasts.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "core/number_text.h"
#include "grid/terrain_grid.h"
#include "reference/lines.h"
#include "shapes/poly/poly_cut.h"

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
            if (C.Code != Meet::Cross) continue;
            Insert(i + 1 + Inserted, C.At);
            ++Inserted;
        }
    }
    WPoly_Commit();
}

Cell_Pos Cell_Of_Segment(Long A, Long B) {
    const Pix P = Pix_Of(Tab_WPt[A]), Q = Pix_Of(Tab_WPt[B]);
    Cell_Pos C;
    Pixel_To_Cell_Loc({(P.X + Q.X) / 2, (P.Y + Q.Y) / 2}, C);
    return C;
}

bool Is_On_Edge(Long I, const Cell_Pos& C) {
    const Loc_Cell L = Pixel_Loc_In_Cell(Pix_Of(Tab_WPt[I]), C);
    return L.LocX == 0 || L.LocX == 255 || L.LocY == 0 || L.LocY == 255;
}

bool Is_In_One_Cell(Long First, Long Last) {
    for (Long i = First; i < Last; ++i)
        if (Cell_Of_Segment(i, i + 1) != Cell_Of_Segment(First, First + 1)) return false;
    return true;
}

void Pass_Over(WPoly& W) {
    W.First = W.Last = W.Nb = 0;
}

// Without an edge a line inside one Cell is passed over; any other fails.
bool Trim_Starts() {
    for (WPoly& W : Tab_WPoly.Rows()) {
        Long i = W.First;
        while (i < W.Last && !Is_On_Edge(i, Cell_Of_Segment(i, i + 1))) ++i;
        if (i < W.Last) {
            W.Nb -= i - W.First;
            W.First = i;
        } else if (Is_In_One_Cell(W.First, W.Last)) {
            Pass_Over(W);
        } else {
            return false;
        }
    }
    return true;
}

bool Trim_Ends(const std::vector<Long>& Old_First) {
    for (Long k = 1; k <= Nb_WPoly; ++k) {
        WPoly& W = Tab_WPoly[k];
        if (W.Nb == 0) continue;
        const Long First = Old_First[static_cast<std::size_t>(k - 1)];
        Long i = W.Last;
        while (i > First && !Is_On_Edge(i, Cell_Of_Segment(i, i - 1))) --i;
        if (i == First && !Is_In_One_Cell(First, W.Last)) return false;
        W.Nb -= W.Last - i;
        W.Last = i;
        if (i == First || W.Nb < 2) Pass_Over(W);
    }
    return true;
}

void Drop_Lines_In_One_Cell() {
    for (WPoly& W : Tab_WPoly.Rows()) {
        if (W.Nb < 3 || !Is_In_One_Cell(W.First, W.Last)) continue;
        const Cell_Pos C = Cell_Of_Segment(W.First, W.First + 1);
        if (!Is_On_Edge(W.First, C) || !Is_On_Edge(W.Last, C)) Pass_Over(W);
    }
}

void Compact() {
    Tab_NPoly.Dimension(Nb_WPoly);
    Tab_NPt.Dimension(Nb_WPt);
    for (const WPoly& W : Tab_WPoly.Rows())
        if (W.Nb != 0) Copy_Line(W);
    WPoly_Commit();
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

Int Coast_Self_Cross() {
    for (const WPoly& W : Tab_WPoly.Rows())
        for (Long i = W.First; i <= W.Last - 3; ++i)
            for (Long j = i + 2; j <= W.Last - 1; ++j) {
                const Pix P1 = Pix_Of(Tab_WPt[i]), P2 = Pix_Of(Tab_WPt[i + 1]);
                const Pix P3 = Pix_Of(Tab_WPt[j]), P4 = Pix_Of(Tab_WPt[j + 1]);
                const Line_Meet M = Line_Cross(P1, P2, P3, P4);
                if (M.Found == 0 || !In_Span(M.At.X, P1.X, P2.X) || !In_Span(M.At.X, P3.X, P4.X) ||
                    !In_Span(M.At.Y, P1.Y, P2.Y) || !In_Span(M.At.Y, P3.Y, P4.Y))
                    continue;
                Err_PixX = Round_Lng(M.At.X);
                Err_PixY = Round_Lng(M.At.Y);
                return 3;
            }
    return 0;
}

void Coast_Cut_Cells() {
    Coast_Crossings();
    std::vector<Long> Old_First;
    for (const WPoly& W : Tab_WPoly.Rows()) Old_First.push_back(W.First);
    if (!Trim_Starts() || !Trim_Ends(Old_First)) {
        Messages.push_back("132");
        Tab_WPoly.Dimension(0);
        return;
    }
    Drop_Lines_In_One_Cell();
    Compact();
}

void Coast_Generate() {
    Line_Collect({.Takes = [](const Attr& A) { return A.SurfShore == 3; }, .Turns = true});
    if (Coast_Self_Cross() != 0) {
        Messages.push_back("121 Bmp pixel X:" + std::string(Num_Text(Err_PixX)) +
                           " Y:" + std::string(Num_Text(Err_PixY)));
        return;
    }
    if (Nb_WPoly > 0) Coast_Cut_Cells();
    if (Nb_WPoly > 0) Coast_Close();
    if (Nb_WPoly == 0) return;
    Coast_Polys();
    Coast_To_Cells();
}

}  // namespace reference
