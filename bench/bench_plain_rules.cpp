// bench/bench_plain_rules.cpp - the plain rules of the polygon pipeline beside the fast ones.
//
//     bench_plain_rules DRAWING
//
// The plain rules grow with the square of a drawing: keep it small, "coast-3000" for one.
#include <cstdio>

#include "drawings.h"
#include "measure.h"
#include "reference/plain.h"
#include "shapes/poly/poly_prepare.h"

namespace {

template <typename F>
double Time_Of(F Run) {
    const double Start = measure::Cpu_Seconds();
    Run();
    return measure::Cpu_Seconds() - Start;
}

}  // namespace

int main(int Count, char** Words) {
    const auto Drawing = Count == 2 ? drawings::Named(Words[1]) : std::nullopt;
    if (!Drawing) {
        std::fprintf(stderr, "bench_plain_rules DRAWING\n");
        return 1;
    }
    drawings::Into_Model(*Drawing);
    reference::Polys List;
    const double Plain = Time_Of([&] {
        Poly_Collect(Mode_LWM);
        List = reference::Work_Lists();
        Long Rounds = 0;
        if (!Self_Cross(List, true) && Nest(List)) List = reference::Split(List, 60, Rounds);
        Cut(List, Grid_Lines_Of(Polys_By_Cell));
    });
    Work_Lists_Reset();
    const double Fast = Time_Of([] {
        Poly_Prepare(Mode_LWM);
        Poly_Cut_Cells(Mode_LWM);
    });
    const bool Same = reference::Work_Lists().size() == List.size();
    std::printf("%s  plain %.3f s  fast %.4f s  %s\n", Words[1], Plain, Fast,
                Same ? "same number of pieces" : "DIFFERENT RESULTS");
    return Same ? 0 : 1;
}
