// bench/bench_emitters.cpp - one output alone, from the model to its source.
//
//     bench_emitters OUTPUT [RUNS]
//
// An output is a name of the list below with a size, "lines-1000000" for one. Prints the median
// time of a run (five by default) and of the processor's share of it, the text written, and the
// peak memory of the program beside the size of the model.
#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "core/program.h"
#include "dry_host.h"
#include "gen/emit_classes.h"
#include "gen/emit_excl.h"
#include "gen/emit_lines.h"
#include "gen/emit_lwm_poly.h"
#include "gen/emit_night_lines.h"
#include "gen/emit_remesh.h"
#include "gen/emit_vtp2_poly.h"
#include "measure.h"
#include "projects.h"

namespace {

struct Output {
    std::string_view Name;
    void (*Make)(Long Size);
    void (*Emit)();
};

constexpr std::array Outputs{
    Output{"lines", [](Long N) { projects::Add_Roads(N, 0); }, ShoreLines_Generate},
    Output{"river", [](Long N) { projects::Add_River(N, false); }, ShoreLines_Generate},
    Output{"night", [](Long N) { projects::Add_Roads(N, 1); }, Night_Lines_Generate},
    Output{"night_river", [](Long N) { projects::Add_River(N, true); }, Night_Lines_Generate},
    Output{"classes", projects::Add_Classes, LC_Generate},
    Output{"cells", projects::Add_Cells, Emit_LWM_Poly},
    Output{"coasts", projects::Add_Coasts, Emit_LWM_Poly},
    Output{"isles", [](Long N) { projects::Add_Isles(N, 0); }, Emit_LWM_Poly},
    Output{"textured", [](Long N) { projects::Add_Isles(N, 1); }, Emit_VTP2_Poly},
    Output{"samples", projects::Add_Samples, Emit_Remesh},
    Output{"exclusions", projects::Add_Exclusions, Emit_Excl},
};

struct Wanted {
    Output Of;
    Long Size;
};

std::optional<Wanted> Named(std::string_view Text) {
    const auto Dash = Text.find('-');
    if (Dash == std::string_view::npos) return std::nullopt;
    Long Size = 0;
    std::from_chars(Text.data() + Dash + 1, Text.data() + Text.size(), Size);
    for (const Output& O : Outputs)
        if (O.Name == Text.substr(0, Dash) && Size > 0) return Wanted{O, Size};
    return std::nullopt;
}

void Run(const Wanted& W, int Runs) {
    Dry_Host Host;
    const Host_Scope Scope(Host);
    std::vector<double> Wall, Cpu;
    for (int R = 0; R < Runs; ++R) {
        Host.Bytes = 0;
        const double Wall_Start = measure::Wall_Seconds(), Cpu_Start = measure::Cpu_Seconds();
        W.Of.Emit();
        Wall.push_back(measure::Wall_Seconds() - Wall_Start);
        Cpu.push_back(measure::Cpu_Seconds() - Cpu_Start);
    }
    const double Text = static_cast<double>(Host.Bytes) / measure::Megabyte;
    const double Model = static_cast<double>(measure::Model_Size()) / measure::Megabyte;
    const double Cpu_Time = measure::Median(Cpu), Peak = measure::Peak_Memory() / measure::Megabyte;
    std::printf("%.3f s  cpu %.3f s  text %.1f MB, %.0f MB/s  model %.1f MB  peak %.0f MB\n",
                measure::Median(Wall), Cpu_Time, Text, Text / Cpu_Time, Model, Peak);
    if (Host.Nb_Messages != 0) std::exit(1);
}

}  // namespace

int main(int Count, char** Words) {
    const auto W = Count >= 2 ? Named(Words[1]) : std::nullopt;
    if (!W) {
        std::fprintf(stderr, "bench_emitters OUTPUT [RUNS]\n");
        return 1;
    }
    Program_Reset();
    projects::Begin();
    W->Of.Make(W->Size);
    const Scratch_Dir Dir;
    std::printf("%s  ", Words[1]);
    Run(*W, Count >= 3 ? std::max(1, std::atoi(Words[2])) : 5);
}
