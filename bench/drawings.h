// bench/drawings.h - drawings of any size, the same at every run; large ones are measured, small
// ones tested.
//
// Rings are simple by construction: strictly growing angles round a centre and a noisy radius.
// Fjords, spirals and combs wind: no point sees their whole outline. Coordinates are map pixels;
// a Cell is 48.3 by 36.7 of them.
#pragma once

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <optional>
#include <string_view>

#include "core/attr_kinds.h"
#include "core/model_ops.h"
#include "grid/map_limits.h"
#include "grid/terrain_grid.h"

namespace drawings {

inline constexpr Double Cell_Width = 48.3;
inline constexpr Double Cell_Height = 36.7;

/// A map of Cells by Cells Cells with its corner on a corner of the grid.
inline void Make_Map(Long Cells) {
    constexpr Long Tie = 1000;  // Cells between the calibration points, so that pixels are whole
    LatPtNW = 45.0;
    LonPtNW = 0.0;
    LatPtSE = LatPtNW - Tie * Cell_StepLat;
    LonPtSE = LonPtNW + Tie * Cell_StepLon;
    XPtNW = YPtNW = 0;
    XPtSE = static_cast<Long>(std::lround(Tie * Cell_Width));
    YPtSE = static_cast<Long>(std::lround(Tie * Cell_Height));
    CadNW_Done = CadSE_Done = 1;
    Map_Width = static_cast<Long>(Cells * Cell_Width) + 1;
    Map_Height = static_cast<Long>(Cells * Cell_Height) + 1;
    Compute_Map_Limits(The_Calibration, Map_Width, Map_Height);
}

/// A number from 0 to 1, 1 excluded, that depends on X alone.
inline Double Hash_Unit(std::uint64_t X) {
    X += 0x9E3779B97F4A7C15U;
    X = (X ^ (X >> 30)) * 0xBF58476D1CE4E5B9U;
    X = (X ^ (X >> 27)) * 0x94D049BB133111EBU;
    return static_cast<Double>((X ^ (X >> 31)) >> 11) * 0x1p-53;
}

/// One number after the other; the same seed gives the same ones.
class Random {
public:
    explicit Random(std::uint64_t Seed) : State_(Seed * 0x9E3779B97F4A7C15U) {}

    /// 0 to 1, 1 excluded.
    Double Unit() { return Hash_Unit(State_++); }
    Double Between(Double Low, Double High) { return Low + Unit() * (High - Low); }
    /// Low to High, both included.
    Long Whole(Long Low, Long High) {
        return Low + static_cast<Long>(Unit() * (static_cast<Double>(High) - Low + 1));
    }
    bool Chance(Double P) { return Unit() < P; }

private:
    std::uint64_t State_;
};

/// Noise from about -1 to 1 over T from 0 to 1, which closes on itself: each octave has twice as
/// many knots as the one before, and less height, down to the distance of N samples.
inline Double Fractal_Noise(Double T, Long N, std::uint64_t Seed) {
    const Double Fall = std::pow(2.0, -0.75);
    Double Sum = 0.0, Height = 1.0, Heights = 0.0;
    std::uint64_t Octave = 0;
    for (std::uint64_t Knots = 8; Knots <= 2 * static_cast<std::uint64_t>(N); Knots *= 2) {
        const Double At = T * static_cast<Double>(Knots);
        const auto Knot = static_cast<std::uint64_t>(At);
        const Double Part = At - static_cast<Double>(Knot);
        const auto Value = [&](std::uint64_t K) {
            return 2.0 * Hash_Unit(Seed * 1000003 + (Octave << 40) + K % Knots) - 1.0;
        };
        Sum += Height * ((1.0 - Part) * Value(Knot) + Part * Value(Knot + 1));
        Heights += Height;
        if (Knots >= static_cast<std::uint64_t>(N)) break;
        Height *= Fall;
        ++Octave;
    }
    return Sum / Heights;
}

using Drawing = std::vector<std::vector<Pix>>;

struct Ring_Form {
    Pix Centre;
    Double Radius_X, Radius_Y;
    Double Low, High;  // of the noisy radius
    std::uint64_t Seed;
};

inline std::vector<Pix> Ring(Long N, const Ring_Form& F) {
    std::vector<Pix> Line;
    for (Long I = 0; I < N; ++I) {
        const Double Step = 0.8 * Hash_Unit(F.Seed * 7919 + static_cast<std::uint64_t>(I));
        const Double T = (I + Step) / N;
        const Double Noise = std::clamp(0.5 + Fractal_Noise(T, N, F.Seed), 0.0, 1.0);
        const Double Radius = F.Low + (F.High - F.Low) * Noise;
        const Double Angle = 2.0 * std::numbers::pi * T;
        Line.push_back({F.Centre.X + F.Radius_X * Radius * std::cos(Angle),
                        F.Centre.Y + F.Radius_Y * Radius * std::sin(Angle)});
    }
    return Line;
}

struct Frame {
    Pix Low, High;

    Pix Centre() const { return {(Low.X + High.X) / 2, (Low.Y + High.Y) / 2}; }
    /// Half the shorter side.
    Double Radius() const { return std::min(High.X - Low.X, High.Y - Low.Y) / 2; }
};

/// Stretches a line to fill a frame.
inline std::vector<Pix> Fitted(std::vector<Pix> Line, const Frame& F) {
    Pix Low = Line[0], High = Line[0];
    for (const Pix P : Line) {
        Low = {std::min(Low.X, P.X), std::min(Low.Y, P.Y)};
        High = {std::max(High.X, P.X), std::max(High.Y, P.Y)};
    }
    for (Pix& P : Line)
        P = {F.Low.X + (P.X - Low.X) / (High.X - Low.X) * (F.High.X - F.Low.X),
             F.Low.Y + (P.Y - Low.Y) / (High.Y - Low.Y) * (F.High.Y - F.Low.Y)};
    return Line;
}

/// Stretches a line to fill all but a margin of Cells by Cells Cells.
inline std::vector<Pix> Fitted(std::vector<Pix> Line, Long Cells) {
    return Fitted(std::move(Line), {{0.1 * Cell_Width, 0.1 * Cell_Height},
                                    {(Cells - 0.1) * Cell_Width, (Cells - 0.1) * Cell_Height}});
}

/// One fractal ring.
inline Drawing Coast(Long N) {
    return {Fitted(Ring(N, {{0, 0}, 1, 1, 0.25, 1, 1}), N >= 1'000'000 ? 300 : 40)};
}

/// A ribbon that winds to and fro in rows, with rough banks.
inline Drawing Fjord(Long N) {
    const Long Rows = std::max(2, static_cast<Long>(std::sqrt(N / 80.0)));
    const Long In_Row = std::max(2, N / (2 * Rows));
    std::vector<Pix> Line;
    // One bank is the outer one at each turn on the right, the other on the left.
    const auto Add_Row = [&](Long Row, bool Left_Bank, bool Back) {
        for (Long K = 0; K < In_Row; ++K) {
            const Long I = Back ? In_Row - 1 - K : K;
            const Double Part = static_cast<Double>(I) / (In_Row - 1);
            // None at the ends, so that the ends of the ribbon close without crossing a bank.
            const Double Rough =
                I == 0 || I == In_Row - 1
                    ? 0.0
                    : 0.1 * Hash_Unit(static_cast<std::uint64_t>(Row) * 2000003 +
                                      static_cast<std::uint64_t>(2 * I + Left_Bank));
            const bool North = Left_Bank == (Row % 2 == 0);
            const Double X = 10.0 * (Row % 2 == 0 ? Part : 1.0 - Part);
            Line.push_back(
                {X + (Left_Bank ? 0.15 : -0.15), Row + (North ? -0.15 - Rough : 0.15 + Rough)});
        }
    };
    for (Long Row = 0; Row < Rows; ++Row) Add_Row(Row, true, false);
    for (Long Row = Rows - 1; Row >= 0; --Row) Add_Row(Row, false, true);
    return {Fitted(std::move(Line), 40)};
}

/// A band that winds inward, its points about as far apart as its turns.
inline Drawing Spiral(Long N) {
    const Long Half = N / 2;
    const Double Turns = std::max(2.0, std::sqrt(Half / std::numbers::pi) / 2);
    std::vector<Pix> Line(static_cast<std::size_t>(2 * Half));
    for (Long I = 0; I < Half; ++I) {
        const Double Radius = 1.0 + Turns * std::sqrt(1.0 - static_cast<Double>(I) / Half);
        const Double Angle = 2.0 * std::numbers::pi * (1.0 + Turns - Radius);
        const Pix Way{std::cos(Angle), std::sin(Angle)};
        Line[static_cast<std::size_t>(I)] = {Radius * Way.X, Radius * Way.Y};
        const Double Inner = Radius - 0.6;
        Line[static_cast<std::size_t>(2 * Half - 1 - I)] = {Inner * Way.X, Inner * Way.Y};
    }
    return {Fitted(std::move(Line), 40)};
}

/// Long leaning teeth on a back.
inline Drawing Comb(Long N) {
    const Long Teeth = std::max(2, (N - 2) / 2);
    std::vector<Pix> Line;
    for (Long I = 0; I < Teeth; ++I) {
        const Double Length = 0.5 + 0.5 * Hash_Unit(static_cast<std::uint64_t>(I));
        Line.push_back({static_cast<Double>(I), 0.0});
        Line.push_back({I + 0.7, Length});
    }
    Line.push_back({Teeth - 0.2, -0.2});
    Line.push_back({-0.2, -0.2});
    Line = Fitted(std::move(Line), 40);
    for (Pix& P : Line) P.Y *= 0.05;  // of two Cells' height: each tooth is cut at each parallel
    return {Line};
}

/// The same with teeth as long as 40 Cells are high.
inline Drawing Rake(Long N) {
    Drawing D = Comb(N);
    for (Pix& P : D[0]) P.Y *= 20.0;
    return D;
}

/// Spikes round one point: N points at the angles of a wheel, by turns near the middle and far out.
/// Lean is how far a tip stands ahead of its root, in turns; roots lie up to Rough of a spike's
/// length farther out.
inline Drawing Spikes(Long N, Double Radius, Double Inner, Double Lean, Double Rough) {
    const Pix Middle{0.1 * Cell_Width + Radius, 0.1 * Cell_Height + Radius};
    const auto At = [&](Double Turn, Double Away) {
        const Double Angle = 2.0 * std::numbers::pi * Turn;
        return Pix{Middle.X + Away * std::cos(Angle), Middle.Y + Away * std::sin(Angle)};
    };
    std::vector<Pix> Line;
    for (Long I = 0; I < N; ++I) {
        const Double Turn = (I + 0.1) / N;
        const Pix Root = At(Turn, Radius * Inner), Tip = At(Turn + Lean, Radius);
        const Double Part = Hash_Unit(static_cast<std::uint64_t>(I));
        const Double Along = I % 2 == 0 ? Rough * Part : 1.0 - 0.1 * Part;
        Line.push_back({Root.X + Along * (Tip.X - Root.X), Root.Y + Along * (Tip.Y - Root.Y)});
    }
    return {Line};
}

/// N thin triangles round one point, which none of them touches.
inline Drawing Fan(Long N) {
    const Double Radius = 19.5 * Cell_Height;
    const Pix Middle{Radius + 1, Radius + 1};
    const auto At = [&](Double Turn, Double Part) {
        const Double Angle = 2.0 * std::numbers::pi * (Turn + 0.13) / N;
        return Pix{Middle.X + Part * Radius * std::cos(Angle),
                   Middle.Y + Part * Radius * std::sin(Angle)};
    };
    Drawing D;
    for (Long I = 0; I < N; ++I) D.push_back({At(I, 0.02), At(I + 0.3, 1.0), At(I - 0.3, 1.0)});
    return D;
}

/// M rings of Points points, each inside the one before.
inline Drawing Nested_Rings(Long M, Long Points, Double Radius) {
    const Pix Middle{0.1 * Cell_Width + Radius, 0.1 * Cell_Height + Radius};
    Drawing D(static_cast<std::size_t>(M));
    for (Long I = 0; I < M; ++I)
        for (Long P = 0; P < Points; ++P) {
            const auto Seed = static_cast<std::uint64_t>(I) * 64 + static_cast<std::uint64_t>(P);
            const Double Away = Radius * (1.0 - 0.9 * (I + 0.4 * Hash_Unit(Seed)) / M);
            const Double Angle = 2.0 * std::numbers::pi * (P + 0.2) / Points;
            D[static_cast<std::size_t>(I)].push_back(
                {Middle.X + Away * std::cos(Angle), Middle.Y + Away * std::sin(Angle)});
        }
    return D;
}

/// A disc with one notch: a single run all but as long as the outline.
inline Drawing Notch(Long N) {
    std::vector<Pix> Line;
    for (Long I = 0; I < N - 1; ++I) {
        const Double Angle = 2.0 * std::numbers::pi * I / N;
        Line.push_back({std::cos(Angle), std::sin(Angle)});
    }
    Line.push_back({0.3, -0.1});
    return {Fitted(std::move(Line), 40)};
}

/// The place and size of one of M figures in a field of 256 by 256 Cells.
inline Ring_Form Figure_Place(Long I, Long M) {
    const auto Side = static_cast<Long>(std::ceil(std::sqrt(static_cast<Double>(M))));
    const Double Step_X = 256 * Cell_Width / Side, Step_Y = 256 * Cell_Height / Side;
    const auto Seed = static_cast<std::uint64_t>(I) * 3;
    const Double Size = 0.35 + 0.65 * Hash_Unit(Seed + 11);
    const Double Free = 1.0 - Size;
    const Pix Centre{
        (I % Side + Size / 2 + Free * Hash_Unit(Seed + 12)) * Step_X,
        (static_cast<Double>(I / Side) + Size / 2 + Free * Hash_Unit(Seed + 13)) * Step_Y};
    return {Centre, Size * Step_X / 2, Size * Step_Y / 2, 0.0, 0.0, 0};
}

/// M rings of 36 to 44 points that lie apart.
inline Drawing Isles(Long M) {
    Drawing D;
    for (Long I = 0; I < M; ++I) {
        Ring_Form F = Figure_Place(I, M);
        const auto Seed = static_cast<std::uint64_t>(I);
        F.Low = 0.3;
        F.High = 0.99;
        F.Seed = Seed + 5;
        D.push_back(Ring(36 + static_cast<Long>(9 * Hash_Unit(Seed + 77)), F));
    }
    return D;
}

/// M lakes of 120 points, each with an island of 60, and in it a lake of 30.
inline Drawing Nest(Long M) {
    struct Depth {
        Long N;
        Double Low, High;
    };
    Drawing D;
    for (Long I = 0; I < M; ++I) {
        Ring_Form F = Figure_Place(I, M);
        std::uint64_t Seed = 3 * static_cast<std::uint64_t>(I) + 5;
        for (const Depth& L : {Depth{120, 0.7, 0.99}, {60, 0.35, 0.6}, {30, 0.12, 0.28}}) {
            F.Low = L.Low;
            F.High = L.High;
            F.Seed = Seed++;
            D.push_back(Ring(L.N, F));
        }
    }
    return D;
}

/// A coast with M islands in its bay: all of them inside one outline.
inline Drawing Lake(Long M) {
    Drawing D = Isles(M);
    D.push_back({});
    for (const Pix P : Fitted(Ring(100'000, {{0, 0}, 1, 1, 0.97, 1, 1}), 370))
        D.back().push_back({P.X - 57 * Cell_Width, P.Y - 57 * Cell_Height});
    return D;
}

/// The drawing of a name like "coast-1000000"; nothing when there is none such.
inline std::optional<Drawing> Named(std::string_view Name) {
    const auto Dash = Name.find('-');
    if (Dash == std::string_view::npos) return std::nullopt;
    Long N = 0;
    std::from_chars(Name.data() + Dash + 1, Name.data() + Name.size(), N);
    if (N < 8) return std::nullopt;
    const std::string_view Kind = Name.substr(0, Dash);
    if (Kind == "coast") return Coast(N);
    if (Kind == "fjord") return Fjord(N);
    if (Kind == "spiral") return Spiral(N);
    if (Kind == "comb") return Comb(N);
    if (Kind == "rake") return Rake(N);
    if (Kind == "star") return Spikes(N, 19.5 * Cell_Height, 0.05, 0.0, 0.1);
    if (Kind == "slant") return Spikes(N, 19.5 * Cell_Height, 0.4, 0.15, 0.6);
    if (Kind == "cellstar") return Spikes(N, 0.4 * Cell_Height, 0.05, 0.0, 0.1);
    if (Kind == "fan") return Fan(N);
    if (Kind == "cellrings") return Nested_Rings(N, 8, 0.4 * Cell_Height);
    if (Kind == "rings") return Nested_Rings(N, 32, 19.5 * Cell_Height);
    if (Kind == "notch") return Notch(N);
    if (Kind == "isles") return Isles(N);
    if (Kind == "nest") return Nest(N);
    if (Kind == "lake") return Lake(N);
    return std::nullopt;
}

/// Makes the drawing the project, as polygons of a technique.
inline void Into_Model(const Drawing& D, Int Technique = Technique_LWM) {
    Model_Reset();
    Double East = 0.0, South = 0.0;
    for (const auto& Line : D)
        for (const Pix P : Line) {
            East = std::max(East, P.X);
            South = std::max(South, P.Y);
        }
    Make_Map(static_cast<Long>(std::max(East / Cell_Width, South / Cell_Height)) + 1);
    for (const auto& Line : D) {
        Attr A;
        A.LWM_VTP2 = Technique;
        const Long I = Obj_Add(A, Line[0].X, Line[0].Y);
        for (std::size_t P = 1; P < Line.size(); ++P) Pt_Append(I, Line[P].X, Line[P].Y);
    }
}

}  // namespace drawings
