// bench/bench_coasts.cpp - from drawn coastlines to the surfaces of the Cells.
//
//     bench_coasts KIND-LINESxPOINTS [RUNS]
//
// "rough-200x5000" is 200 lines of 5,000 points each. Rough lines waver wildly
// from west to east; bays of every size turn back in the others, and "spirals" wind inward, their
// turns so close that snapping lets them touch. Prints the median time of a run
// (five by default) and of the processor's share of it, the peak memory of the program, what came
// out, and the processor's time for each step.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <numbers>
#include <optional>
#include <string_view>

#include "core/host.h"
#include "drawings.h"
#include "gen/coast_generate.h"
#include "measure.h"
#include "shapes/coast/coast_close.h"
#include "shapes/coast/coast_cut.h"
#include "shapes/coast/coast_polys.h"
#include "shapes/coast/coast_to_cells.h"
#include "shapes/line/line_collect.h"
#include "shapes/poly/poly_collect.h"

namespace {

constexpr double Mebibyte = 1024.0 * 1024.0;
constexpr Long Map_Cells = 960;  // 30 by 30 Areas
constexpr Double Width = Map_Cells * drawings::Cell_Width;
constexpr Double Height = Map_Cells * drawings::Cell_Height;

struct Wanted {
    std::string_view Kind;
    Long Lines = 0, Points = 0;
};

std::optional<Wanted> Named(std::string_view Text) {
    Wanted W;
    const auto Dash = Text.find('-'), Cross = Text.find('x');
    if (Dash == std::string_view::npos || Cross == std::string_view::npos) return std::nullopt;
    W.Kind = Text.substr(0, Dash);
    if (W.Kind != "rough" && W.Kind != "bays" && W.Kind != "spirals") return std::nullopt;
    const char* const Start = Text.data();
    std::from_chars(Start + Dash + 1, Start + Cross, W.Lines);
    std::from_chars(Start + Cross + 1, Start + Text.size(), W.Points);
    if (W.Lines < 1 || W.Points < 8) return std::nullopt;
    return W;
}

// Lines in a square of side 1, from west to east. Both ends lead straight out, as of lines drawn
// beyond the edge of a map.
Pix Rough_Place(const Wanted& W, Long Line, Long K) {
    const Double T = static_cast<Double>(std::clamp(K, 1, W.Points - 2)) / W.Points;
    const Double Lead = K == 0 ? -0.09 : K == W.Points - 1 ? 0.09 : 0.0;
    const Double Noise = drawings::Fractal_Noise(T, W.Points, static_cast<std::uint64_t>(Line));
    return {0.1 + 0.8 * T + Lead, 0.5 + 0.4 * Noise};
}

// Columns and rows of a straight line are pushed to and fro in turns, in ever shorter waves. A push
// cannot make a line cross itself. Nothing is pushed at its ends.
Pix Bays_Place(const Wanted& W, Long Line, Long K) {
    constexpr Double Steepest = 0.9;
    if (K == 0) return {0.01, 0.5};
    if (K == W.Points - 1) return {0.99, 0.5};
    Pix P{0.1 + 0.8 * K / W.Points, 0.0};
    bool Across = true;
    for (Double Waves = 1.5; Waves < W.Points / 100.0; Waves *= 2, Across = !Across) {
        const Double Turns = 2.0 * std::numbers::pi * Waves, Reach = Steepest / Turns;
        const Double Inside = std::clamp(10 * std::min(P.X - 0.1, 0.9 - P.X), 0.0, 1.0);
        if (Across)
            P.Y += Inside * Reach * std::sin(Turns * P.X + Line);
        else
            P.X += Reach * std::sin(Turns * P.Y);
    }
    return {P.X, 0.5 + 3.0 * P.Y};
}

// From outside to the middle and out again between the turns, which stand apart by little more than
// a unit of a Cell. In a square of side 1 of one line of the map.
Pix Spiral_Place(const Wanted& W, Long, Long K) {
    if (K == 0 || K == W.Points - 1) return {0.001, K == 0 ? 0.5 : 0.505};
    const Double Half = W.Points / 2.0;
    const Double In = K < Half ? K / Half : (W.Points - 1 - K) / Half;
    constexpr Double Apart = 0.2 / Width;
    const Double Turns = std::sqrt(W.Points) / 3;
    const Double Turn = Turns * std::sqrt(1.0 - 0.999 * In);
    const Double Angle = 2.0 * std::numbers::pi * (0.5 + Turns - Turn);
    const Double Away = 2 * Apart * Turn + (K < Half ? Apart : 0.0);
    return {0.05 + Apart * 2 * Turns + Away * std::cos(Angle),
            0.5 + Away * std::sin(Angle) * Width / Height};
}

// In rows of as many as there are rows, each line in a box of its own. Every other one has its
// land on the right.
void Draw(const Wanted& W) {
    Model_Reset();
    drawings::Make_Map(Map_Cells);
    const auto Side = static_cast<Long>(std::ceil(std::sqrt(W.Lines)));
    Attr A;
    A.SurfShore = 3;
    for (Long Line = 0; Line < W.Lines; ++Line) {
        A.LandOnRight = static_cast<Int>(Line % 2);
        Long I = 0;
        for (Long K = 0; K < W.Points; ++K) {
            const Pix Part = W.Kind == "bays"      ? Bays_Place(W, Line, K)
                             : W.Kind == "spirals" ? Spiral_Place(W, Line, K)
                                                   : Rough_Place(W, Line, K);
            const Pix P{(Line % Side + Part.X) * Width / Side,
                        (static_cast<Double>(Line / Side) + Part.Y) * Height / Side};
            if (K == 0)
                I = Obj_Add(A, P.X, P.Y);
            else
                Pt_Append(I, P.X, P.Y);
        }
    }
}

/// Says what a run says to its user.
class Telling_Host : public Silent_Host {
public:
    Int Show_Box(const Box& B) override {
        std::printf("message %d %s\n", B.Num, B.Text.c_str());
        return Silent_Host::Show_Box(B);
    }
};

// The same steps as Coast_Generate, with the time of each.
constexpr std::array Steps{"collect", "self cross", "cut", "close", "polys", "cells"};

std::array<double, Steps.size()> Run_Steps() {
    std::array<double, Steps.size()> Took{};
    double Last = measure::Cpu_Seconds();
    std::size_t Step = 0;
    const auto Done = [&] {
        const double Now = measure::Cpu_Seconds();
        Took[Step++] = Now - Last;
        Last = Now;
    };
    Line_Collect({.Takes = [](const Attr& A) { return A.SurfShore == 3; }, .Turns = true});
    Done();
    Poly_Self_Cross(false);
    Done();
    Coast_Cut_Cells();
    Done();
    Coast_Close();
    Done();
    Coast_Polys();
    Done();
    Coast_To_Cells();
    Done();
    return Took;
}

void Run(int Runs) {
    std::vector<double> Wall, Cpu;
    for (int R = 0; R < Runs; ++R) {
        const double Wall_Start = measure::Wall_Seconds(), Cpu_Start = measure::Cpu_Seconds();
        Coast_Generate();
        Wall.push_back(measure::Wall_Seconds() - Wall_Start);
        Cpu.push_back(measure::Cpu_Seconds() - Cpu_Start);
    }
    std::printf("%.4f s  cpu %.4f s  %.0f MiB  %d pieces  %d points\n", measure::Median(Wall),
                measure::Median(Cpu), measure::Peak_Memory() / Mebibyte, Nb_CCoast, Nb_CCoastPt);
    Work_Lists_Reset();
    const auto Of = Run_Steps();
    for (std::size_t S = 0; S < Steps.size(); ++S) std::printf("  %-10s %.4f\n", Steps[S], Of[S]);
}

}  // namespace

int main(int Count, char** Words) {
    const auto W = Count >= 2 ? Named(Words[1]) : std::nullopt;
    if (!W) {
        std::fprintf(stderr, "bench_coasts rough|bays|spirals-LINESxPOINTS [RUNS]\n");
        return 1;
    }
    Telling_Host Host;
    const Host_Scope Scope(Host);
    Draw(*W);
    std::printf("%s  model %.0f MiB\n", Words[1], measure::Peak_Memory() / Mebibyte);
    Run(Count >= 3 ? std::max(1, std::atoi(Words[2])) : 5);
}
