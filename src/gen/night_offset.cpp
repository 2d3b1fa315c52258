// gen/night_offset.cpp - offsets at the ends, mitres at the corners.
#include "gen/night_offset.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "geo/metres.h"
#include "geometry/segments.h"

namespace {

// Kinds up to Last, from behind the row before.
struct Lanes_Row {
    Int Last;
    Road_Lanes Road;
};
constexpr Int First_Road = 1134;
constexpr std::array<Lanes_Row, 10> Lanes_Table{{{1141, {2, 1}},
                                                 {1145, {4, 1}},
                                                 {1149, {6, 1}},
                                                 {1153, {8, 1}},
                                                 {1157, {10, 1}},
                                                 {1165, {2, 0}},
                                                 {1169, {4, 0}},
                                                 {1173, {6, 0}},
                                                 {1177, {8, 0}},
                                                 {1181, {10, 0}}}};

constexpr Double Same_Metres = 0.01;
constexpr Double Same_Slope = 0.00001;

Pix As_Pix(Metres P) {
    return {P.X, P.Y};
}

// The meeting point where a line lies along an axis.
Metres Meet_On_Axis(Metres P1, Metres P2, Metres P3, Metres P4) {
    const bool Upright_1 = P1.X == P2.X, Upright_2 = P3.X == P4.X;
    const bool Level_1 = P1.Y == P2.Y, Level_2 = P3.Y == P4.Y;
    if ((Upright_1 && Upright_2) || (Level_1 && Level_2)) return P2;
    const Slope L1 = Line_Coef(As_Pix(P1), As_Pix(P2)), L2 = Line_Coef(As_Pix(P3), As_Pix(P4));
    if (Upright_1) return {P1.X, Level_2 ? P3.Y : L2.a * P1.X + L2.b};
    if (Upright_2) return {P3.X, Level_1 ? P1.Y : L1.a * P3.X + L1.b};
    if (Level_1) return {(P1.Y - L2.b) / L2.a, P1.Y};
    return {(P3.Y - L1.b) / L1.a, P3.Y};
}

}  // namespace

Road_Lanes Lanes_Of(Int LineType) {
    if (LineType < First_Road) return {};
    for (const Lanes_Row& R : Lanes_Table)
        if (LineType <= R.Last) return R.Road;
    return {};
}

std::vector<Double> Lane_Offsets(const Road_Lanes& Road, Double Width) {
    if (Road.Lanes == 1) return {0.0};
    const Double Unit = Width / (Road.Lanes * 2 + (Road.Lanes - 1) * Road.Median);
    std::vector<Double> Offsets;
    for (Int P = 1; P <= Road.Lanes / 2; ++P)
        Offsets.push_back(Road.Median == 0 ? 2 * Unit * (P - 1) + Unit
                                           : Unit / 2 + Unit * (P - 1) + 2 * Unit * (P - 1) + Unit);
    return Offsets;
}

Metres To_Metres(Geo G, Geo Ref) {
    return {Deg_Lon_To_Metres(Ref.Lat, G.Lon - Ref.Lon), Deg_Lat_To_Metres(G.Lat - Ref.Lat)};
}

Lane_Pt Night_Offset(Metres A, Metres B, Double Offset, bool At_End) {
    if (std::abs(A.X - B.X) < Same_Metres) B.X = A.X;
    if (std::abs(A.Y - B.Y) < Same_Metres) B.Y = A.Y;
    const Metres C = At_End ? B : A;
    if (Offset == 0) return {C, C};
    if (B.X == A.X) {
        const Double East = B.Y < A.Y ? Offset : -Offset;
        return {{B.X + East, C.Y}, {B.X - East, C.Y}};
    }
    if (B.Y == A.Y) {
        const Double North = B.X < A.X ? -Offset : Offset;
        return {{C.X, B.Y + North}, {C.X, B.Y - North}};
    }
    const Double DX = B.X - A.X, DY = B.Y - A.Y;
    const Double Length = std::sqrt(DX * DX + DY * DY);
    const Metres Across{-DY / Length * Offset, DX / Length * Offset};
    Metres Left{C.X + Across.X, C.Y + Across.Y}, Right{C.X - Across.X, C.Y - Across.Y};
    // A negative width turns the two round.
    if (B.X > A.X ? Left.Y < Right.Y : Left.Y > Right.Y) std::swap(Left, Right);
    return {Left, Right};
}

Metres Night_Mitre(Metres P1, Metres P2, Metres P3, Metres P4) {
    if (P2 == P3) return P2;
    if ((P1.X == P2.X && P2.X == P4.X) || (P1.Y == P2.Y && P2.Y == P4.Y)) return P2;
    if (P1.X == P2.X || P1.Y == P2.Y || P3.X == P4.X || P3.Y == P4.Y)
        return Meet_On_Axis(P1, P2, P3, P4);
    const Slope L1 = Line_Coef(As_Pix(P1), As_Pix(P2)), L2 = Line_Coef(As_Pix(P3), As_Pix(P4));
    if (std::abs(L1.a - L2.a) < Same_Slope) return P2;
    const Double X = (L2.b - L1.b) / (L1.a - L2.a);
    return {X, L1.a * X + L1.b};
}

std::vector<Lane_Pt> Lane_Path(std::span<const Metres> Road, Double Offset, bool One_Lane) {
    std::vector<Lane_Pt> Path;
    Path.reserve(Road.size());
    Lane_Pt P1 = Night_Offset(Road[0], Road[1], Offset, false);
    Lane_Pt P2 = Night_Offset(Road[0], Road[1], Offset, true);
    Path.push_back(P1);
    for (std::size_t J = 1; J + 1 < Road.size(); ++J) {
        if (One_Lane) {
            Path.push_back(Night_Offset(Road[J - 1], Road[J], 0.0, true));
            continue;
        }
        const Lane_Pt P3 = Night_Offset(Road[J], Road[J + 1], Offset, false);
        const Lane_Pt P4 = Night_Offset(Road[J], Road[J + 1], Offset, true);
        Path.push_back({Night_Mitre(P1.Left, P2.Left, P3.Left, P4.Left),
                        Night_Mitre(P1.Right, P2.Right, P3.Right, P4.Right)});
        // The line into the next corner joins the ends of two segments. P3 is not kept: the files
        // of the lights are made so, and roads must not move from one version to the next.
        P1 = P2;
        P2 = P4;
    }
    Path.push_back(One_Lane ? Night_Offset(Road[Road.size() - 2], Road.back(), 0.0, true) : P2);
    return Path;
}
