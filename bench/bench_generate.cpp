// bench/bench_generate.cpp - a project with everything in it: saved, opened, generated.
//
//     bench_generate make FILE [SHARE]
//     bench_generate run FILE
//
// The first makes the project and measures saving and opening it, the medians of five runs; a
// SHARE below 1 makes a smaller one. The second does what terrafold-cli generate --dry-run does
// and prints the time and the peak memory of it, beside the size of the model.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/lifecycle.h"
#include "core/program.h"
#include "core/project_file.h"
#include "dry_host.h"
#include "gen/driver.h"
#include "measure.h"
#include "platform/memory.h"
#include "projects.h"

namespace {

constexpr int Nb_Runs = 5;

void Stop_Unless(bool Holds, const char* What) {
    if (Holds) return;
    std::fprintf(stderr, "bench_generate: %s\n", What);
    std::exit(1);
}

struct Times {
    double Wall, Cpu;
};

template <typename F>
Times Medians(F&& Job) {
    std::vector<double> Wall, Cpu;
    for (int Run = 0; Run < Nb_Runs; ++Run) {
        const double Wall_Start = measure::Wall_Seconds(), Cpu_Start = measure::Cpu_Seconds();
        Job();
        Wall.push_back(measure::Wall_Seconds() - Wall_Start);
        Cpu.push_back(measure::Cpu_Seconds() - Cpu_Start);
    }
    return {measure::Median(Wall), measure::Median(Cpu)};
}

void Make(const std::string& Path, Double Share) {
    projects::Make_All(Share);
    const std::string_view Dir = Path_Dir(Path);
    NameBgl = std::string(Dir) + "Out.bgl";
    NameBglExcl = std::string(Dir) + "Excl.bgl";
    Dir_LCWC = Dir_Raw = Dir.substr(0, Dir.size() - 1);
    Nom_Projet = Path;
    Projet_Open = 1;
    const Times Save =
        Medians([] { Stop_Unless(Save_Project(0, {}), "the project was not saved"); });
    const Times Open = Medians([&] {
        Read_Project_File(Path);
        Stop_Unless(Load_Failed == 0, "the project was not read");
    });
    const auto Bytes = std::filesystem::file_size(*Native_Path(Path));
    const double Size = static_cast<double>(Bytes) / measure::Megabyte;
    std::printf("%d objects, %d points, %d filled cells, %d class cells, %d samples\n", Nb_Obj - 1,
                Nb_Pt, Nb_Area, Nb_LC, Nb_PtGrid);
    std::printf("file %.1f MB, model %.1f MB\n", Size,
                static_cast<double>(measure::Model_Size()) / measure::Megabyte);
    std::printf("save %.3f s, %.0f MB/s (cpu %.3f s)\n", Save.Wall, Size / Save.Wall, Save.Cpu);
    std::printf("open %.3f s, %.0f MB/s (cpu %.3f s)\n", Open.Wall, Size / Open.Wall, Open.Cpu);
}

void Print_Stages(const Dry_Host& Host) {
    for (const Dry_Host::Stage& S : Host.Stages)
        std::printf("  %-24s cpu %.3f s  text %.1f MB\n", S.Name.c_str(), S.Cpu,
                    static_cast<double>(S.Bytes) / measure::Megabyte);
}

void Generate(const std::string& Path) {
    Dry_Host Host;
    const Host_Scope Scope(Host);
    Gen_Install();
    Stop_Unless(Load_Project(Path), "the project was not read");
    const Scratch_Dir Dir;
    const double Model = static_cast<double>(measure::Model_Size()) / measure::Megabyte;
    const double Opened = measure::Peak_Memory() / measure::Megabyte;
    const double Wall_Start = measure::Wall_Seconds(), Cpu_Start = measure::Cpu_Seconds();
    Host.Mark();
    Host.Stages = {{"checks"}};
    Cmd_API();
    Host.Mark();
    const double Wall = measure::Wall_Seconds() - Wall_Start;
    const double Cpu = measure::Cpu_Seconds() - Cpu_Start;
    const double Text = static_cast<double>(Host.Bytes) / measure::Megabyte;
    const double Peak = measure::Peak_Memory() / measure::Megabyte;
    std::printf("%.3f s  cpu %.3f s  text %.1f MB, %.0f MB/s\n", Wall, Cpu, Text, Text / Cpu);
    std::printf("model %.1f MB, peak %.0f MB, %.2f times the model (%.0f MB after opening)\n",
                Model, Peak, Peak / Model, Opened);
    Print_Stages(Host);
    Stop_Unless(Host.Nb_Messages == 0, "messages were shown");
}

}  // namespace

int main(int Count, char** Words) {
    const std::string_view Command = Count >= 3 ? Words[1] : "";
    if (Command != "make" && Command != "run") {
        std::fprintf(stderr, "bench_generate make FILE [SHARE] | run FILE\n");
        return 1;
    }
    Keep_Freed_Memory();  // as terrafold-cli does
    Program_Reset();
    const std::string Path = Program_Path(Words[2]).value();
    if (Command == "make")
        Make(Path, Count >= 4 ? std::atof(Words[3]) : 1.0);
    else
        Generate(Path);
}
