// reference/shapes.cpp - single outlines, and what makes them awkward.
#include "reference/shapes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "geometry/exact_turn.h"
#include "geometry/segments.h"
#include "grid/terrain_grid.h"

namespace shapes {

std::uint64_t Random::Next() {
    std::uint64_t Z = State += 0x9E3779B97F4A7C15U;
    Z = (Z ^ (Z >> 30)) * 0xBF58476D1CE4E5B9U;
    Z = (Z ^ (Z >> 27)) * 0x94D049BB133111EBU;
    return Z ^ (Z >> 31);
}

Double Random::Unit() {
    return static_cast<Double>(Next() >> 11) * 0x1p-53;
}

Long Random::Whole(Long Low, Long High) {
    return Low + static_cast<Long>(Next() % static_cast<std::uint64_t>(High - Low + 1));
}

Double Frame::Radius() const {
    return std::min(High.X - Low.X, High.Y - Low.Y) / 2;
}

namespace {

Pix On_Circle(Pix Centre, Double Radius, Double Turn) {
    const Double Angle = Turn * 2 * std::numbers::pi;
    return {Centre.X + Radius * std::cos(Angle), Centre.Y + Radius * std::sin(Angle)};
}

int Side(Pix A, Pix B, Pix C) {
    return Exact_Turn(A, B, C);
}

bool On_Edge(Pix A, Pix B, Pix P) {
    return Side(A, B, P) == 0 && In_Span(P.X, A.X, B.X) && In_Span(P.Y, A.Y, B.Y);
}

bool Cross_Properly(Pix A, Pix B, Pix C, Pix D) {
    return Side(A, B, C) * Side(A, B, D) < 0 && Side(C, D, A) * Side(C, D, B) < 0;
}

bool Meet(Pix A, Pix B, Pix C, Pix D) {
    return Cross_Properly(A, B, C, D) || On_Edge(A, B, C) || On_Edge(A, B, D) || On_Edge(C, D, A) ||
           On_Edge(C, D, B);
}

// Turns the first pair of crossing edges into a pair that does not cross; the path gets shorter.
bool Untangle_Once(Outline& O) {
    const std::size_t n = O.size();
    for (std::size_t i = 0; i + 2 < n; ++i)
        for (std::size_t j = i + 2; j < n; ++j)
            if (Cross_Properly(O[i], O[i + 1], O[j], O[(j + 1) % n])) {
                const auto Begin = O.begin();
                std::reverse(Begin + static_cast<std::ptrdiff_t>(i) + 1,
                             Begin + static_cast<std::ptrdiff_t>(j) + 1);
                return true;
            }
    return false;
}

}  // namespace

Outline Fractal_Ring(Random& R, const Frame& F, Long Points) {
    std::array<Double, 7> Phase;
    for (Double& P : Phase) P = R.Unit();
    const Double Rough = R.Between(0.4, 0.9);
    Outline O;
    for (Long I = 0; I < Points; ++I) {
        const Double Turn = static_cast<Double>(I) / Points;
        Double Height = 0.0, Swing = 1.0, Waves = 1.0;
        for (const Double P : Phase) {
            Height += Swing * std::cos((Turn * Waves + P) * 2 * std::numbers::pi);
            Swing *= Rough;
            Waves *= 2;
        }
        Height += Swing * R.Between(-1, 1);
        const Double Share = std::clamp(0.65 + 0.12 * Height, 0.25, 1.0);
        O.push_back(On_Circle(F.Centre(), F.Radius() * Share, Turn));
    }
    return O;
}

Outline Star(Random& R, const Frame& F, Long Spikes) {
    const Double Inner = R.Between(0.15, 0.7), First = R.Unit();
    Outline O;
    for (Long I = 0; I < 2 * Spikes; ++I)
        O.push_back(On_Circle(F.Centre(), F.Radius() * (I % 2 == 0 ? 1.0 : Inner),
                              First + static_cast<Double>(I) / (2 * Spikes)));
    return O;
}

Outline Comb(Random& R, const Frame& F, Long Teeth) {
    const Double Width = (F.High.X - F.Low.X) / (2 * Teeth - 1), Height = F.High.Y - F.Low.Y;
    const bool Pointed = R.Chance(0.5), Lying = R.Chance(0.5);
    Outline O{{F.Low.X, F.High.Y}};
    for (Long I = 0; I < Teeth; ++I) {
        const Double West = F.Low.X + 2 * I * Width, East = West + Width;
        const Double Top = F.Low.Y + Height * R.Between(0, 0.3);
        const Double Notch = F.Low.Y + Height * R.Between(0.6, 0.95);
        if (Pointed)
            O.push_back({(West + East) / 2, Top});
        else
            O.insert(O.end(), {{West, Top}, {East, Top}});
        if (I < Teeth - 1) O.insert(O.end(), {{East, Notch}, {East + Width, Notch}});
    }
    O.push_back(F.High);
    if (Lying)
        for (Pix& P : O)
            P = {F.Low.X + (P.Y - F.Low.Y) / Height * (F.High.X - F.Low.X),
                 F.Low.Y + (P.X - F.Low.X) / (F.High.X - F.Low.X) * Height};
    return O;
}

Outline Spiral(const Frame& F, Long Turns, Long Points_A_Turn) {
    const Double First = 0.15 * F.Radius(), Pitch = (F.Radius() - First) / Turns;
    Outline Outside, Inside;
    for (Long I = Points_A_Turn; I <= Turns * Points_A_Turn; ++I) {
        const Double Turn = static_cast<Double>(I) / Points_A_Turn;
        Outside.push_back(On_Circle(F.Centre(), First + Pitch * Turn, Turn));
        Inside.push_back(On_Circle(F.Centre(), First + Pitch * (Turn - 0.5), Turn));
    }
    Outside.insert(Outside.end(), Inside.rbegin(), Inside.rend());
    return Outside;
}

Outline Rectangle(const Frame& F) {
    return {F.Low, {F.High.X, F.Low.Y}, F.High, {F.Low.X, F.High.Y}};
}

Outline Needle(Random& R, const Frame& F) {
    const Double Width = R.Chance(0.5) ? R.Between(0.05, 0.5) : R.Between(1, 4);
    const Double Slant = R.Between(-0.4, 0.4) * F.Radius();
    const Pix C = F.Centre();
    Outline O{{F.Low.X, C.Y - Slant}, {C.X, C.Y - Width}, {F.High.X, C.Y + Slant}};
    if (R.Chance(0.7)) O.push_back({C.X, C.Y + Width});
    return O;
}

Outline Tangle(Random& R, const Frame& F, Long Points, Double Raster) {
    Outline O;
    for (Long Try = 0; Try < 20 * Points && static_cast<Long>(O.size()) < Points; ++Try) {
        Pix P{R.Between(F.Low.X, F.High.X), R.Between(F.Low.Y, F.High.Y)};
        if (Raster > 0) P = {std::round(P.X / Raster) * Raster, std::round(P.Y / Raster) * Raster};
        if (std::find(O.begin(), O.end(), P) == O.end()) O.push_back(P);
    }
    for (Long Try = 0; Try < 100 * Points && Untangle_Once(O); ++Try) {
    }
    return O;
}

Outline Twisted(Random& R, const Frame& F) {
    Outline O{{3, 4}, {11, 7}, {3, 8}, {6, 7}, {3, 6}, {2, 2}};
    if (R.Chance(0.5))
        O = {{575, 250}, {570, 387}, {113, 813}, {382, 479}, {339, 388}, {72, 626},
             {52, 831},  {5, 15},    {150, 41},  {897, 234}, {529, 167}, {137, 169}};
    Pix Low = O[0], High = O[0];
    for (const Pix P : O) {
        Low = {std::min(Low.X, P.X), std::min(Low.Y, P.Y)};
        High = {std::max(High.X, P.X), std::max(High.Y, P.Y)};
    }
    const Double Shake = R.Chance(0.3) ? 0.0 : R.Between(0, 0.02);
    const bool Mirrored = R.Chance(0.3), Lying = R.Chance(0.3);
    for (Pix& P : O) {
        P = {(P.X - Low.X) / (High.X - Low.X) + R.Between(-1, 1) * Shake,
             (P.Y - Low.Y) / (High.Y - Low.Y) + R.Between(-1, 1) * Shake};
        if (Mirrored) P.X = 1 - P.X;
        if (Lying) std::swap(P.X, P.Y);
        P = {F.Low.X + P.X * (F.High.X - F.Low.X), F.Low.Y + P.Y * (F.High.Y - F.Low.Y)};
    }
    return O;
}

Outline With_Repeats(Random& R, const Outline& O) {
    Outline Out;
    for (const Pix P : O) {
        Out.push_back(P);
        while (R.Chance(0.15)) Out.push_back(P);
    }
    while (R.Chance(0.4)) Out.push_back(O.front());
    return Out;
}

Outline With_Points_In_Line(Random& R, const Outline& O) {
    Outline Out;
    for (std::size_t i = 0; i < O.size(); ++i) {
        const Pix A = O[i], B = O[(i + 1) % O.size()];
        Out.push_back(A);
        for (Long Part = 1; Part <= 3; ++Part)
            if (R.Chance(0.2))
                Out.push_back({A.X + (B.X - A.X) * Part / 4, A.Y + (B.Y - A.Y) * Part / 4});
    }
    return Out;
}

Outline Snapped_To_Grid(Random& R, const Outline& O, Int Mode) {
    const Double StepLat = Mode == 2 ? Area_StepLat : Cell_StepLat;
    const Double StepLon = Mode == 2 ? Area_StepLon : Cell_StepLon;
    const Double PixLat = (YGridSE - YGridNW) / (LatGridNW - LatGridSE) * StepLat;
    const Double PixLon = (XGridSE - XGridNW) / (LonGridSE - LonGridNW) * StepLon;
    const Double Tol = 1 / (Mode == 2 ? 16321.1 : 512.1);
    const auto Off = [&] {
        if (R.Chance(0.5)) return 0.0;
        return R.Between(-2.5, 2.5) * Tol;
    };
    // Lines counted from one outside the work grid.
    const Double First_Y =
        YGridNW - (std::ceil(LatGridNW / StepLat) * StepLat - LatGridNW) * PixLat / StepLat;
    const Double First_X =
        XGridNW - (LonGridNW - std::floor(LonGridNW / StepLon) * StepLon) * PixLon / StepLon;
    Outline Out;
    for (Pix P : O) {
        const Long Where = R.Whole(0, 4);  // 0 and 1 stay
        if (Where == 2 || Where == 4)
            P.X = First_X + (std::round((P.X - First_X) / PixLon) + Off()) * PixLon;
        if (Where == 3 || Where == 4)
            P.Y = First_Y + (std::round((P.Y - First_Y) / PixLat) + Off()) * PixLat;
        Out.push_back(P);
        if (R.Chance(0.3))  // a blunt tip, all but a point
            Out.push_back(
                {P.X + R.Between(-2, 2) * Tol * PixLon, P.Y + R.Between(-2, 2) * Tol * PixLat});
    }
    return Out;
}

bool Is_Simple(std::span<const Pix> O) {
    const std::size_t n = O.size();
    if (n < 3) return false;
    for (std::size_t i = 0; i < n; ++i) {
        const Pix A = O[i], B = O[(i + 1) % n], C = O[(i + 2) % n];
        if (A == B || On_Edge(A, B, C) || On_Edge(B, C, A)) return false;
        for (std::size_t j = i + 2; j < n; ++j)
            if ((j + 1) % n != i && Meet(A, B, O[j], O[(j + 1) % n])) return false;
    }
    return true;
}

Double Area_2(std::span<const Pix> O) {
    Double Sum = 0.0;
    for (std::size_t i = 2; i < O.size(); ++i) Sum += Cross_Z(O[0], O[i - 1], O[i]);
    return Sum;
}

}  // namespace shapes
