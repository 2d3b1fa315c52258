// bench/shapes.cpp - single outlines, what makes them awkward, and whole drawings.
#include "shapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/model_ops.h"
#include "geometry/exact_turn.h"
#include "geometry/segments.h"
#include "grid/map_limits.h"
#include "grid/terrain_grid.h"

namespace shapes {

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
    const auto Seed = static_cast<std::uint64_t>(R.Whole(0, 1'000'000));
    const Double Low = R.Between(0.2, 0.8);
    return drawings::Ring(Points, {F.Centre(), F.Radius(), F.Radius(), Low, 1.0, Seed});
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

Outline Spiral(const Frame& F, Long Points) {
    return drawings::Fitted(drawings::Spiral(Points)[0], F);
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

void Make_Map(Random& R, Long Cells, Int Mode, bool Round) {
    const Double StepLat = Mode == 2 ? Area_StepLat : Cell_StepLat;
    const Double StepLon = Mode == 2 ? Area_StepLon : Cell_StepLon;
    if (Round) {
        Map_Width = Map_Height = Cells * 128 + 1;
        XPtNW = YPtNW = 0;
        LatPtNW = StepLat * R.Whole(-150, 150);
        LonPtNW = StepLon * R.Whole(-300, 300);
    } else {
        Map_Width = R.Whole(300, 2000);
        Map_Height = R.Whole(300, 2000);
        XPtNW = R.Whole(0, Map_Width / 4);
        YPtNW = R.Whole(0, Map_Height / 4);
        LatPtNW = R.Between(-60, 60);
        LonPtNW = R.Between(-160, 160);
    }
    XPtSE = Round ? Map_Width - 1 : R.Whole(Map_Width / 2, Map_Width - 1);
    YPtSE = Round ? Map_Height - 1 : R.Whole(Map_Height / 2, Map_Height - 1);
    LatPtSE = LatPtNW - StepLat * Cells * (YPtSE - YPtNW) / (Map_Height - 1);
    LonPtSE = LonPtNW + StepLon * Cells * (XPtSE - XPtNW) / (Map_Width - 1);
    CadNW_Done = CadSE_Done = 1;
    Compute_Map_Limits(The_Calibration, Map_Width, Map_Height);
}

Frame Map_Frame() {
    return {{0, 0}, {Map_Width - 1.0, Map_Height - 1.0}};
}

Long Add_Polygon(const Outline& O, Int Mode, const std::string& Imbrication) {
    Attr A;
    A.LWM_VTP2 = static_cast<Int>(Mode == 0 ? 0 : Mode == 1 ? 2 : 1);
    A.Imbrication = Imbrication;
    const Long I = Obj_Add(A, O[0].X, O[0].Y);
    for (std::size_t P = 1; P < O.size(); ++P) Pt_Append(I, O[P].X, O[P].Y);
    return I;
}

namespace {

// One tile of the frame cut into Side by Side tiles, with a margin.
Frame Tile(const Frame& F, Long Side, Long Col, Long Row) {
    const Double W = (F.High.X - F.Low.X) / Side, H = (F.High.Y - F.Low.Y) / Side;
    const Pix Low{F.Low.X + Col * W, F.Low.Y + Row * H};
    return {{Low.X + 0.04 * W, Low.Y + 0.04 * H}, {Low.X + 0.96 * W, Low.Y + 0.96 * H}};
}

std::string Random_Text(Random& R) {
    std::string Text{static_cast<char>(R.Chance(0.2) ? 0xC9 : 'A' + R.Whole(0, 1)),
                     static_cast<char>('A' + R.Whole(0, 1)), '_'};
    Text += static_cast<char>('0' + R.Whole(0, 1));
    Text += static_cast<char>('1' + R.Whole(0, 3));
    return Text;
}

Outline Some_Shape(Random& R, const Frame& F, Kind K, Int Mode) {
    switch (K) {
        case Kind::Rings:
            return Fractal_Ring(R, F, R.Whole(5, 130));
        case Kind::Stars:
            return R.Chance(0.5) ? Star(R, F, R.Whole(3, 20)) : Comb(R, F, R.Whole(2, 12));
        case Kind::Spirals:
            return Spiral(F, R.Whole(30, 90));
        case Kind::Needles: {
            if (R.Chance(0.2)) return {F.Low, F.High};
            return Needle(R, F);
        }
        case Kind::On_Grid: {
            const Outline O = R.Chance(0.5) ? Rectangle(F) : Star(R, F, R.Whole(3, 6));
            return Snapped_To_Grid(R, O, Mode);
        }
        case Kind::Ties:
            // Whole pixels, so that equal means equal and in line means in line.
            {
                const Long Points = R.Whole(4, 16), Parts = R.Whole(2, 6);
                return Tangle(R, F, Points, std::max(1.0, std::floor(F.Radius() / Parts)));
            }
        case Kind::Twisted:
            return Twisted(R, F);
        default:
            return Tangle(R, F, R.Whole(5, 30));
    }
}

Outline Roughened(Random& R, Outline O) {
    if (R.Chance(0.2)) O = With_Points_In_Line(R, O);
    if (R.Chance(0.2)) O = With_Repeats(R, O);
    if (R.Chance(0.5)) std::reverse(O.begin(), O.end());
    std::rotate(O.begin(), O.begin() + R.Whole(0, static_cast<Long>(O.size()) - 1), O.end());
    return O;
}

// A ring that fills its frame, and rings of the same kind in tiles of what it surely encloses.
void Add_Nest(Random& R, const Frame& F, Int Depth, Int Mode) {
    const Long Points = R.Whole(6, 24);
    Outline O;
    const Pix C = F.Centre();
    for (Long I = 0; I < Points; ++I) {
        const Double Angle = 6.283185307179586 * I / Points;
        const Double Radius = F.Radius() * R.Between(0.85, 1);
        O.push_back({C.X + Radius * std::cos(Angle), C.Y + Radius * std::sin(Angle)});
    }
    const bool First = R.Chance(0.5);
    if (First) Add_Polygon(Roughened(R, O), Mode);
    if (Depth > 1) {
        const Double Half = F.Radius() * 0.5;
        const Frame Inner{{C.X - Half, C.Y - Half}, {C.X + Half, C.Y + Half}};
        const Long Side = R.Whole(1, 2);
        for (Long I = 0; I < Side * Side; ++I)
            if (R.Chance(0.75))
                Add_Nest(R, Tile(Inner, Side, I % Side, I / Side), static_cast<Int>(Depth - 1),
                         Mode);
    }
    if (!First) Add_Polygon(Roughened(R, O), Mode);
}

void Add_Crossing(Random& R, Int Mode) {
    const Frame F = Map_Frame();
    for (Long I = R.Whole(1, 4); I > 0; --I) {
        const Long Col = R.Whole(0, 2), Row = R.Whole(0, 2);
        const Frame In = R.Chance(0.5) ? F : Tile(F, 3, Col, Row);
        Outline O = Tangle(R, In, R.Whole(3, 8));
        if (R.Chance(0.2)) std::swap(O[0], O[2]);
        Add_Polygon(Roughened(R, O), Mode);
    }
}

// Shapes in tiles, so that they are apart.
void Add_Tiled(Random& R, Kind K, Int Mode) {
    const Long Side = R.Whole(1, 3);
    for (Long I = 0; I < Side * Side; ++I) {
        if (Side > 1 && R.Chance(0.3)) continue;
        const Frame F = Tile(Map_Frame(), Side, I % Side, I / Side);
        Kind Of = K;
        while (Of == Kind::Mixed || Of == Kind::Texts || Of == Kind::Nested || Of == Kind::Crossing)
            Of = static_cast<Kind>(R.Whole(0, Nb_Kind - 1));
        const bool Named = R.Chance(K == Kind::Texts ? 0.6 : K == Kind::Mixed ? 0.1 : 0.0);
        const Outline O = Roughened(R, Some_Shape(R, F, Of, Mode));
        Add_Polygon(O, Mode, Named ? Random_Text(R) : std::string());
    }
}

}  // namespace

void Make_Project(std::uint64_t Seed, Kind K, Int Mode) {
    Random R(Seed);
    Model_Reset();
    const Long Cells = R.Whole(1, 8);
    Make_Map(R, Cells, Mode, R.Chance(0.5));
    if (K == Kind::Crossing)
        Add_Crossing(R, Mode);
    else if (K == Kind::Nested)
        for (Long I = R.Whole(0, 1); I >= 0; --I)
            Add_Nest(R, Tile(Map_Frame(), 2, I, I), static_cast<Int>(R.Whole(1, 4)), Mode);
    else
        Add_Tiled(R, K, Mode);
    if (K == Kind::Mixed && R.Chance(0.5)) Add_Nest(R, Tile(Map_Frame(), 3, 1, 1), 3, Mode);
}

}  // namespace shapes
