// bench/bench_tiles.cpp - cutting a large map into tiles, beside a copy of its file.
//
//     bench_tiles [WIDTH HEIGHT [RUNS]]    a map of 24 bits, without WIDTH one of 10000 by 10000
//
// The map and what becomes of it stand in the page cache; "with sync" adds the time until the
// disk has it. Opening is cutting and loading the tiles. Prints the median of each.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "core/model.h"
#include "core/program.h"
#include "measure.h"
#include "platform/paths.h"
#include "ui/canvas/map_tiles.h"
#include "ui/frm/frm.h"

namespace fs = std::filesystem;

namespace {

void Stop_Unless(bool Holds, const char* What) {
    if (Holds) return;
    std::fprintf(stderr, "bench_tiles: %s\n", What);
    std::exit(1);
}

void Put_Number(std::string& Out, std::uint32_t Value, int Size) {
    for (int I = 0; I < Size; ++I) Out += static_cast<char>(Value >> (8 * I));
}

void Make_Map(const fs::path& Path, std::uint32_t Width, std::uint32_t Height) {
    const std::uint32_t Stride = (Width * 3 + 3) / 4 * 4;
    std::string Header = "BM";
    for (const std::uint32_t Value : {54 + Stride * Height, 0u, 54u, 40u, Width, Height})
        Put_Number(Header, Value, 4);
    Put_Number(Header, 1, 2);
    Put_Number(Header, 24, 2);
    Header.append(24, '\0');
    std::ofstream Out(Path, std::ios::binary);
    Out << Header;
    std::string Line(Stride, '\0');
    for (std::uint32_t Y = 0; Y < Height; ++Y) {
        for (std::uint32_t X = 0; X < Stride; ++X) Line[X] = static_cast<char>(X * 7 + Y * 13);
        Out << Line;
    }
    Stop_Unless(static_cast<bool>(Out.flush()), "the map cannot be written");
}

struct Scene {
    fs::path Dir, Map;

    /// Everything that waits below Dir is put on the disk.
    void Sync() const {
        Stop_Unless(std::system(("sync -f '" + Dir.string() + "'").c_str()) == 0, "sync");
    }
    void Copy() const {
        const std::string To = (Dir / "copy.bmp").string();
        Stop_Unless(std::system(("cp '" + Map.string() + "' '" + To + "'").c_str()) == 0, "cp");
    }
    void Cut() const {
        Int Error = 0;
        Main_Form_Progress Progress;
        Map_Split_Tiles(Progress, Carte, Error);
        Stop_Unless(Error == 0, "the map was not cut");
    }
    void Open() const { Stop_Unless(Tiles_Build(), "the map was not opened"); }
    void Clear() const {
        fs::remove(Dir / "copy.bmp");
        fs::remove_all(Dir / "Temp");
    }
};

/// Median seconds of Job, the removal of an older outcome apart.
template <typename F>
double Seconds(const Scene& S, int Runs, bool With_Sync, F&& Job) {
    std::vector<double> All;
    for (int Run = 0; Run < Runs; ++Run) {
        S.Clear();
        S.Sync();
        const double Start = measure::Wall_Seconds();
        Job();
        if (With_Sync) S.Sync();
        All.push_back(measure::Wall_Seconds() - Start);
    }
    S.Clear();
    return measure::Median(All);
}

}  // namespace

int main(int Argc, char** Argv) {
    const int Width = Argc > 2 ? std::atoi(Argv[1]) : 10'000;
    const int Height = Argc > 2 ? std::atoi(Argv[2]) : 10'000;
    const int Runs = Argc > 3 ? std::atoi(Argv[3]) : 5;
    Stop_Unless(Width > 0 && Height > 0 && Runs > 0, "each number is 1 or more");
    Stop_Unless(3.0 * Width * Height < 4e9, "such a map is no bitmap file");
    const fs::path Dir = fs::temp_directory_path() / "terrafold_bench_tiles";
    fs::create_directories(Dir);
    const Scene S{Dir, Dir / "map.bmp"};
    Make_Map(S.Map, static_cast<std::uint32_t>(Width), static_cast<std::uint32_t>(Height));
    Program_Reset();
    Frm_Install();
    App_Path = Program_Path(Dir).value();
    Carte = Program_Path(S.Map).value();
    Map_Width = Width;
    Map_Height = Height;

    std::printf("map of %d x %d pixels, 24 bits, %.0f MB\n", Width, Height,
                static_cast<double>(fs::file_size(S.Map)) / measure::Megabyte);
    const double Cp = Seconds(S, Runs, false, [&] { S.Copy(); });
    const double Cut = Seconds(S, Runs, false, [&] { S.Cut(); });
    const double Peak = measure::Peak_Memory() / measure::Megabyte;
    std::printf("cp %.3f s, cut %.3f s, %.2f times\n", Cp, Cut, Cut / Cp);
    const double Cp_Sync = Seconds(S, Runs, true, [&] { S.Copy(); });
    const double Cut_Sync = Seconds(S, Runs, true, [&] { S.Cut(); });
    std::printf("with sync: cp %.3f s, cut %.3f s, %.2f times\n", Cp_Sync, Cut_Sync,
                Cut_Sync / Cp_Sync);
    std::printf("peak memory of the program while cutting %.1f MB\n", Peak);
    const double Open = Seconds(S, Runs, false, [&] { S.Open(); });
    std::printf("open (cut and load) %.3f s, peak memory %.1f MB\n", Open,
                measure::Peak_Memory() / measure::Megabyte);
    fs::remove_all(Dir);
    return 0;
}
