// reference/projects.cpp - maps and whole drawings.
#include <algorithm>
#include <cmath>

#include "core/model_ops.h"
#include "grid/map_limits.h"
#include "grid/terrain_grid.h"
#include "reference/shapes.h"

namespace shapes {

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
            return Spiral(F, R.Whole(2, 4), R.Whole(12, 20));
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
            return Tangle(R, F, R.Whole(4, 16),
                          std::max(1.0, std::floor(F.Radius() / R.Whole(2, 6))));
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
        const Frame Part = Tile(F, 3, R.Whole(0, 2), R.Whole(0, 2));
        Outline O = Tangle(R, R.Chance(0.5) ? F : Part, R.Whole(3, 8));
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
        Add_Polygon(Roughened(R, Some_Shape(R, F, Of, Mode)), Mode,
                    Named ? Random_Text(R) : std::string());
    }
}

}  // namespace

void Make_Project(std::uint64_t Seed, Kind K, Int Mode) {
    Random R(Seed);
    Model_Reset();
    Make_Map(R, R.Whole(1, 8), Mode, R.Chance(0.5));
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
