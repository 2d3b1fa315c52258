// ui/edit/route_hits.cpp - hit tests, each with its order of comparison.
#include "ui/edit/route_hits.h"

#include <cmath>
#include <functional>

#include "core/model.h"

namespace {

constexpr Double Beyond_All = 9999999999999.0;  // a hit is nearer

// As Map_To_Pic does it, with the canvas's origin worked out once.
class On_Canvas {
public:
    Pic_Px operator()(Long P) const {
        return {(Tab_Pt[P].X - Origin_.X) * Zoom, (Tab_Pt[P].Y - Origin_.Y) * Zoom};
    }

private:
    const Pix Origin_ = Pic_To_Map({0.0, 0.0});
};

Double Square_Distance(Pic_Px A, Pic_Px B) {
    const Double DX = B.X - A.X, DY = B.Y - A.Y;
    return DX * DX + DY * DY;
}

Double Distance(Pic_Px A, Pic_Px B) {
    return std::sqrt(Square_Distance(A, B));
}

struct Nearest {
    Long Row = 0;
    Double Square = Beyond_All;
};

Nearest Nearest_Vertex(const Obj& O, Pic_Px At, const On_Canvas& Place) {
    Nearest Best;
    Long P = O.First_Pt;
    for (Long N = 1; N <= O.Nb_Pts; ++N, P = Tab_Pt[P].Next) {
        const Double D = Square_Distance(At, Place(P));
        if (D < Best.Square) Best = {P, D};
    }
    return Best;
}

bool Is_Between(Double X, Double A, Double B) {
    return (A <= X && X <= B) || (B <= X && X <= A);
}

bool Is_Beyond(Double X, Double A, Double B) {
    return (X < A && X < B) || (X > A && X > B);
}

Double Foot_Distance(Pic_Px A, Pic_Px B, Pic_Px P) {
    if (A.X == B.X) return Is_Between(P.Y, A.Y, B.Y) ? std::fabs(P.X - A.X) : -1.0;
    if (A.Y == B.Y) return Is_Between(P.X, A.X, B.X) ? std::fabs(P.Y - A.Y) : -1.0;
    const Double M = (B.Y - A.Y) / (B.X - A.X);
    const Double C = A.Y - A.X * M;
    const Double N = -1.0 / M;
    const Double K = P.Y - N * P.X;
    const Double FX = (K - C) / (M - N);
    const Double FY = FX * M + C;
    if (Is_Beyond(FX, A.X, B.X) || Is_Beyond(FY, A.Y, B.Y)) return -1.0;
    return Distance(P, {FX, FY});
}

Double Mean_Distance(Pic_Px A, Pic_Px B, Pic_Px P) {
    return (Distance(P, A) + Distance(P, B)) / 2.0;
}

using Measure = Double (*)(Pic_Px A, Pic_Px B, Pic_Px P);  // below 0 is no measure

// A = 0 when no segment has a measure.
Segment_Hit Nearest_By(Measure How, const Obj& O, Pic_Px At) {
    const On_Canvas Place;
    Segment_Hit Best;
    Double Shortest = Beyond_All;
    const auto Try = [&](Long A, Long B, bool Closing) {
        const Double D = How(Place(A), Place(B), At);
        if (D < 0.0 || !(D < Shortest)) return;
        Shortest = D;
        Best = {A, B, Closing};
    };
    Long P = O.First_Pt;
    for (Long N = 2; N <= O.Nb_Pts; ++N, P = Tab_Pt[P].Next) Try(P, Tab_Pt[P].Next, false);
    Try(O.First_Pt, O.Last_Pt, true);
    return Best;
}

}  // namespace

Long Nearest_Object(Pic_Px At) {
    const On_Canvas Place;
    Nearest Best;
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        const Double D = Nearest_Vertex(Tab_Obj[I], At, Place).Square;
        if (D < Best.Square) Best = {I, D};
    }
    return Best.Row;
}

Long Nearest_Point(Long I, Pic_Px At) {
    return Nearest_Vertex(Tab_Obj[I], At, {}).Row;
}

Long Nearest_End(Long I, Pic_Px At) {
    const On_Canvas Place;
    const Obj& O = Tab_Obj[I];
    const bool First =
        Square_Distance(At, Place(O.First_Pt)) < Square_Distance(At, Place(O.Last_Pt));
    return First ? O.First_Pt : O.Last_Pt;
}

Segment_Hit Nearest_Segment(Long I, Pic_Px At) {
    const Obj& O = Tab_Obj[I];
    if (O.Nb_Pts == 2) return {O.First_Pt, O.Last_Pt, true};
    const Segment_Hit Hit = Nearest_By(Foot_Distance, O, At);
    return Hit.A != 0 ? Hit : Nearest_By(Mean_Distance, O, At);
}

Double Seg_Distance(Long A, Long B, Double X, Double Y) {
    const On_Canvas Place;
    return Foot_Distance(Place(A), Place(B), {X, Y});
}

Double Seg_Mean_Distance(Long A, Long B, Double X, Double Y) {
    const On_Canvas Place;
    return Mean_Distance(Place(A), Place(B), {X, Y});
}
