// reference/prepare.cpp - cleaning, turning and testing the drawn outlines.
#include <algorithm>
#include <string>

#include "core/number_text.h"
#include "geometry/segments.h"
#include "reference/polygons.h"

namespace reference {

namespace {

bool Is_Of_Mode(const Attr& A, Int Mode) {
    if (A.SurfShore != 0 && A.SurfShore != 1) return false;
    if (Mode == 0) return A.LWM_VTP2 == 0;
    if (Mode == 1) return A.LWM_VTP2 == 2;
    return A.LWM_VTP2 == 1;
}

// Rows 1 to n of an outline, and row n + 1, the copy of its first point.
struct Ring {
    std::vector<Pix> Row{Pix{}};
    Long n = 0;

    void Remove(Long i) {
        Row.erase(Row.begin() + i);
        --n;
    }
    void Refresh() { Row[n + 1] = Row[1]; }
};

Ring Read_Chain(const Obj& O) {
    Ring R;
    for (Long P = O.First_Pt;; P = Tab_Pt[P].Next) {
        R.Row.push_back({Tab_Pt[P].X, Tab_Pt[P].Y});
        ++R.n;
        if (P == O.Last_Pt) break;
    }
    R.Row.push_back(R.Row[1]);
    return R;
}

// One scan; true when it removed something.
bool Drop_Repeats_Once(Ring& R) {
    const Long Before = R.n;
    for (Long i = 1;; ++i) {
        while (R.Row[i + 1] == R.Row[i]) {
            R.Remove(i);
            if (i >= R.n) return true;
        }
        if (i == R.n) return R.n < Before;
    }
}

void Drop_Repeats(Ring& R) {
    while (R.n >= 2 && Drop_Repeats_Once(R)) {
    }
}

void Drop_Straight(Ring& R) {
    R.Refresh();
    for (Long i = 1;;) {
        if (Sens_3Pts(R.Row[i], R.Row[i + 1], R.Row[i + 2]) == 0) {
            R.Remove(i + 1);
            if (i >= R.n - 1) break;
        } else {
            if (i == R.n - 1) break;
            ++i;
        }
    }
    if (Sens_3Pts(R.Row[R.n], R.Row[1], R.Row[2]) == 0) R.Remove(1);
}

void WPoly_Append(const Obj& O, std::span<const Pix> Points) {
    WPoly W{.Num = O.Num, .Attr = &O.Attr, .First = Nb_WPt + 1};
    for (const Pix P : Points) Tab_WPt.Append({.X = P.X, .Y = P.Y});
    W.Last = Nb_WPt;
    W.Nb = W.Last - W.First + 1;
    Tab_WPoly.Append(W);
}

bool Edges_Cross(Long I1, Long I2, Long J1, Long J2, Pix& At) {
    const Pix P1 = Pix_Of(Tab_WPt[I1]), P2 = Pix_Of(Tab_WPt[I2]);
    const Pix P3 = Pix_Of(Tab_WPt[J1]), P4 = Pix_Of(Tab_WPt[J2]);
    const Line_Meet M = Line_Cross(P1, P2, P3, P4);
    At = M.At;
    return M.Found == 1 && In_Span(At.X, P1.X, P2.X) && In_Span(At.X, P3.X, P4.X) &&
           In_Span(At.Y, P1.Y, P2.Y) && In_Span(At.Y, P3.Y, P4.Y);
}

bool Outline_Crosses(const WPoly& W, Pix& At) {
    if (W.Last - W.First < 3) return false;
    for (Long i = W.First; i <= W.Last - 3; ++i)
        for (Long j = i + 2; j <= W.Last - 1; ++j)
            if (Edges_Cross(i, i + 1, j, j + 1, At)) return true;
    for (Long j = W.First + 1; j <= W.Last - 2; ++j)
        if (Edges_Cross(W.Last, W.First, j, j + 1, At)) return true;
    return false;
}

void Refuse(const std::string& Message) {
    Messages.push_back(Message);
    Has_Auto = 0;
    Has_Imbric = 0;
}

}  // namespace

bool Poly_Orientation(std::span<const Pix> Points) {
    const std::size_t n = Points.size();
    std::size_t West = 0;
    for (std::size_t i = 1; i < n; ++i)
        if (Points[i].X < Points[West].X) West = i;
    return Cross_Z(Points[(West + n - 1) % n], Points[West], Points[(West + 1) % n]) > 0;
}

void Poly_Collect(Int Mode) {
    Tab_WPoly.Dimension(Nb_Obj);
    Tab_WPt.Dimension(Nb_Pt);
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        const Obj& O = Tab_Obj[I];
        if (!Is_Of_Mode(O.Attr, Mode) || O.Nb_Pts < 2) continue;
        Ring R = Read_Chain(O);
        Drop_Repeats(R);
        if (R.n < 2) continue;
        if (R.n >= 3) Drop_Straight(R);
        if (R.n < 2) continue;
        const std::span<Pix> Points(R.Row.data() + 1, static_cast<std::size_t>(R.n));
        if (R.n >= 3 && !Poly_Orientation(Points)) std::reverse(Points.begin(), Points.end());
        WPoly_Append(O, Points);
    }
}

Int Poly_Self_Cross() {
    for (const WPoly& W : Tab_WPoly.Rows()) {
        Pix At;
        if (!Outline_Crosses(W, At)) continue;
        Err_PixX = Round_Lng(At.X);
        Err_PixY = Round_Lng(At.Y);
        return 3;
    }
    return 0;
}

void Poly_Prepare(Int Mode) {
    Poly_Collect(Mode);
    if (Poly_Self_Cross() != 0) {
        Refuse("121 Bmp pixel X:" + std::string(Num_Text(Err_PixX)) +
               " Y:" + std::string(Num_Text(Err_PixY)));
        return;
    }
    Has_Imbric = 0;
    Imbric_Order();
    if (Auto_Order() != 0) {
        Refuse("122");
        return;
    }
    if (Has_Imbric == 0 && Has_Auto == 0) return;
    if (Has_Auto != 0) Auto_Tree();
    Poly_Split_Max(Mode == 1 ? 24 : 60);
    Poly_Cut_Cells(Mode);
    Tab_NPoly.Reset();
    Tab_NPt.Reset();
}

}  // namespace reference
