// bench/bench_polygons.cpp - from drawn outlines to pieces in their cells.
//
//     bench_polygons DRAWING [RUNS]
//
// A drawing is a name of drawings.h with a size, "coast-1000000" for one. Prints the median time
// of a run (five by default) and of the processor's share of it, which a busy machine does not
// lengthen, the peak memory of the program, and the processor's time for each step.
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "core/host.h"
#include "drawings.h"
#include "measure.h"
#include "shapes/poly/poly_prepare.h"

namespace {

using measure::Cpu_Seconds, measure::Median, measure::Peak_Memory, measure::Wall_Seconds;

constexpr double Mebibyte = 1024.0 * 1024.0;

// The same steps as Poly_Prepare(0) and Poly_To_Cells(0), with the time after each.
constexpr std::array Steps{"collect", "self cross", "nesting", "tree", "split", "cut", "cells"};
using Step_Times = std::array<double, Steps.size()>;

Step_Times Run_Steps() {
    Step_Times Took{};
    double Last = Cpu_Seconds();
    std::size_t Step = 0;
    const auto Done = [&] {
        const double Now = Cpu_Seconds();
        Took[Step++] = Now - Last;
        Last = Now;
    };
    Poly_Collect(0);
    Done();
    if (Poly_Self_Cross() != 0) std::puts("an outline crosses itself");
    Done();
    if (Auto_Order() != 0) std::puts("two outlines cross");
    Done();
    Auto_Tree();
    Done();
    Poly_Split_Max(60);
    Done();
    Poly_Cut_Cells(0);
    Tab_NPoly.Reset();
    Tab_NPt.Reset();
    Done();
    Poly_To_Cells(0);
    Done();
    return Took;
}

void Run(int Runs) {
    std::vector<double> Wall, Cpu;
    Long Pieces = 0, Points = 0;
    for (int R = 0; R < Runs; ++R) {
        const double Wall_Start = Wall_Seconds(), Cpu_Start = Cpu_Seconds();
        Poly_Prepare(0);
        Poly_To_Cells(0);
        Wall.push_back(Wall_Seconds() - Wall_Start);
        Cpu.push_back(Cpu_Seconds() - Cpu_Start);
        Pieces = Nb_CPoly;
        Points = Nb_CPt;
        Work_Lists_Reset();
    }
    std::printf("%.4f s  cpu %.4f s  %.0f MiB  %d pieces  %d points\n", Median(Wall), Median(Cpu),
                Peak_Memory() / Mebibyte, Pieces, Points);
    const Step_Times Of = Run_Steps();
    for (std::size_t S = 0; S < Steps.size(); ++S) std::printf("  %-10s %.4f\n", Steps[S], Of[S]);
}

}  // namespace

int main(int Count, char** Words) {
    const auto Drawing = Count >= 2 ? drawings::Named(Words[1]) : std::nullopt;
    if (!Drawing) {
        std::fprintf(stderr, "bench_polygons DRAWING [RUNS]\n");
        return 1;
    }
    drawings::Into_Model(*Drawing);
    std::printf("%s  model %.0f MiB\n", Words[1], Peak_Memory() / Mebibyte);
    Run(Count >= 3 ? std::max(1, std::atoi(Words[2])) : 5);
}
