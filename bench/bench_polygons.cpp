// bench/bench_polygons.cpp - from drawn outlines to pieces in their cells.
//
//     bench_polygons DRAWING [RUNS [textured]]
//
// A drawing is a name of drawings.h with a size, "coast-1000000" for one. Textured polygons are cut
// along Areas. Prints the median time
// of a run (five by default) and of the processor's share of it, which a busy machine does not
// lengthen, the peak memory of the program, a number made of all that came out, by which two builds
// can be compared, and the processor's time for each step.
#include <algorithm>
#include <array>
#include <bit>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "core/host.h"
#include "drawings.h"
#include "measure.h"
#include "shapes/poly/poly_prepare.h"

namespace {

using measure::Cpu_Seconds, measure::Median, measure::Peak_Memory, measure::Wall_Seconds;

constexpr double Mebibyte = 1024.0 * 1024.0;

// The same steps as Poly_Prepare and Poly_To_Cells, with the time after each.
constexpr std::array Steps{"collect", "self cross", "nesting", "tree", "split", "cells"};
using Step_Times = std::array<double, Steps.size()>;

std::uint64_t Digest() {
    std::uint64_t Sum = 14695981039346656037U;
    const auto Add = [&](auto V) {
        Sum = (Sum ^ std::bit_cast<std::uint64_t>(static_cast<Double>(V))) * 1099511628211U;
    };
    for (const CPoly& P : Tab_CPoly.Rows()) {
        for (const Long V : {P.AreaLon * 1, P.AreaLat * 1, P.CellLon * 1, P.CellLat * 1, P.Num,
                             P.Draw_Order, P.Group_Root})
            Add(V);
        for (Long I = P.First; I <= P.Last; ++I) {
            Add(Tab_CPt[I].X);
            Add(Tab_CPt[I].Y);
            Add(Tab_CPt[I].LocX);
            Add(Tab_CPt[I].LocY);
        }
    }
    return Sum;
}

Step_Times Run_Steps(Poly_Mode Mode) {
    Step_Times Took{};
    double Last = Cpu_Seconds();
    std::size_t Step = 0;
    const auto Done = [&] {
        const double Now = Cpu_Seconds();
        Took[Step++] = Now - Last;
        Last = Now;
    };
    Poly_Collect(Mode);
    Done();
    if (Poly_Self_Cross() != 0) std::puts("an outline crosses itself");
    Done();
    if (Auto_Order() != 0) std::puts("two outlines cross");
    Done();
    Auto_Tree();
    Done();
    Poly_Split_Max(60);
    Done();
    Poly_To_Cells(Mode);
    Done();
    return Took;
}

void Run(int Runs, Poly_Mode Mode) {
    std::vector<double> Wall, Cpu;
    Long Pieces = 0, Points = 0;
    std::uint64_t Sum = 0;
    for (int R = 0; R < Runs; ++R) {
        const double Wall_Start = Wall_Seconds(), Cpu_Start = Cpu_Seconds();
        Poly_Prepare(Mode);
        Poly_To_Cells(Mode);
        Wall.push_back(Wall_Seconds() - Wall_Start);
        Cpu.push_back(Cpu_Seconds() - Cpu_Start);
        Pieces = Nb_CPoly;
        Points = Nb_CPt;
        Sum = Digest();
        Work_Lists_Reset();
    }
    std::printf("%.4f s  cpu %.4f s  %.0f MiB  %d pieces  %d points  %016" PRIx64 "\n",
                Median(Wall), Median(Cpu), Peak_Memory() / Mebibyte, Pieces, Points, Sum);
    const Step_Times Of = Run_Steps(Mode);
    for (std::size_t S = 0; S < Steps.size(); ++S) std::printf("  %-10s %.4f\n", Steps[S], Of[S]);
}

}  // namespace

int main(int Count, char** Words) {
    const auto Drawing = Count >= 2 ? drawings::Named(Words[1]) : std::nullopt;
    if (!Drawing) {
        std::fprintf(stderr, "bench_polygons DRAWING [RUNS [textured]]\n");
        return 1;
    }
    const bool Textured = Count >= 4 && Words[3] == std::string_view("textured");
    drawings::Into_Model(*Drawing, Textured ? Technique_VTP2 : Technique_LWM);
    std::printf("%s  model %.0f MiB\n", Words[1], Peak_Memory() / Mebibyte);
    Run(Count >= 3 ? std::max(1, std::atoi(Words[2])) : 5, Textured ? Mode_VTP2 : Mode_LWM);
}
