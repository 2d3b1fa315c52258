// bench/bench_window_textures.cpp - a project with many textures on its map: its opening, what its
// pictures take, and the redraw in the mode that shows them, on a screen in memory.
//
//     bench_window_textures [TEXTURES [SIDE]]     200 of 1024 pixels a side otherwise
//
// Files stand in the page cache: noise in DXT1, then in 24 bits. A canvas of 1600 by 1000 pixels
// over a map of 10,000 by 10,000 of one colour; the textures stand in rows all over it, side by
// side, and then at their full size in heaps of 20. Processor time, medians.
#include <QApplication>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "core/lifecycle.h"
#include "core/model_ops.h"
#include "core/program.h"
#include "core/project_file.h"
#include "core/view_calls.h"
#include "measure.h"
#include "platform/paths.h"
#include "qt/canvas_widget.h"
#include "tex/texture.h"
#include "ui/canvas/ima_pictures.h"
#include "ui/canvas/map_tiles.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"

namespace fs = std::filesystem;

namespace {

constexpr Long Map_Side = 10000, Canvas_Width = 1600, Canvas_Height = 1000;
constexpr int Rounds = 21, Openings = 5;

struct Scene {
    fs::path Dir;
    Long Nb, Side;

    fs::path File(Long I) const { return Dir / ("t" + std::to_string(I) + ".bmp"); }
    std::string Project() const { return *Program_Path(Dir / "bench.LWM"); }
    double Pixels() const { return 1.0 * static_cast<double>(Nb) * Side * Side; }
};

void Stop_Unless(bool Holds, const char* What) {
    if (Holds) return;
    std::fprintf(stderr, "bench_window_textures: %s\n", What);
    std::exit(1);
}

void Put(std::string& Out, std::uint32_t Value, int Size) {
    for (int I = 0; I < Size; ++I) Out += static_cast<char>(Value >> (8 * I));
}

// In blocks of 8 bytes for 16 pixels, or as they are.
void Write_Texture(const fs::path& To, std::uint32_t Side, bool Dxt1, std::uint32_t Seed) {
    std::string Out = "BM";
    const std::uint32_t Head = Dxt1 ? 74 : 54;
    for (const std::uint32_t Value : {0u, 0u, Head, 40u, Side, Side}) Put(Out, Value, 4);
    Put(Out, 1, 2);
    Put(Out, Dxt1 ? 16 : 24, 2);
    Out += (Dxt1 ? "DXT1" : std::string(4, '\0')) + std::string(20, '\0');
    if (Dxt1) Out += "FS70" + std::string(16, '\0');
    const std::uint32_t Words = Dxt1 ? Side * Side / 8 : Side * Side * 3 / 4;
    for (std::uint32_t I = 0; I < Words; ++I) Put(Out, Seed = Seed * 1664525u + 1013904223u, 4);
    std::ofstream(To, std::ios::binary) << Out;
}

// Rows over the whole map, each heap in the place of one texture.
void Lay_Out(const Scene& S, Long In_A_Heap) {
    const Long Nb_Heaps = (S.Nb + In_A_Heap - 1) / In_A_Heap;
    const Long In_A_Row = static_cast<Long>(std::ceil(std::sqrt(static_cast<Double>(Nb_Heaps))));
    const Double Step = static_cast<Double>(Map_Side) / static_cast<Double>(In_A_Row);
    for (Long I = 1; I <= S.Nb; ++I) {
        const Long Heap = (I - 1) % Nb_Heaps;
        const Double X = Step * static_cast<Double>(Heap % In_A_Row);
        const Double Y = Step * static_cast<Double>(Heap / In_A_Row);
        const Double Size = In_A_Heap == 1 ? Step - 1.0 : S.Side - 1.0;
        Ima_Place(I, X, Y, X + Size, Y + Size);
    }
}

void Make_Project(const Scene& S) {
    Nom_Projet = S.Project();
    for (Long I = 1; I <= S.Nb; ++I) {
        Ima M;
        M.Active = 1;
        M.DirFic = *Program_Path(S.File(I));
        M.Ima_Width = M.Ima_Height = static_cast<Int>(S.Side);
        Ima_Add(M);
    }
    Lay_Out(S, 1);
    Projet_Open = 1;
    Stop_Unless(Save_Project(0, {}), "the project cannot be written");
}

void Show_Map() {
    Map_Width = Map_Height = Map_Side;
    Nb_Tile_Cols = Nb_Tile_Rows = static_cast<Int>(Map_Side / Tile_Size);
    Nb_Tiles = static_cast<Int>(Nb_Tile_Cols * Nb_Tile_Rows);
    const Picture Tile = Picture_Make(Tile_Size, Tile_Size, 24);
    WPic.assign(static_cast<std::size_t>(Nb_Tiles), Tile);
}

double Milliseconds(int Times, const std::function<void()>& Work,
                    const std::function<void()>& Before) {
    std::vector<double> All;
    for (int I = 0; I < Times; ++I) {
        Before();
        const double From = measure::Cpu_Seconds();
        Work();
        All.push_back((measure::Cpu_Seconds() - From) * 1000.0);
    }
    return measure::Median(All);
}

// Each file into a picture, one after the other, all of them kept: what no opening can do without.
void Read_Plainly(const Scene& S, std::vector<Picture>& Kept) {
    std::string Text;
    for (Long I = 1; I <= S.Nb; ++I)
        Stop_Unless(Texture_Read(*Program_Path(S.File(I)), Pal_Fs5, Kept.emplace_back(), Text) ==
                        Texture_Fault::None,
                    "a texture cannot be read");
}

// The bytes of each file, which are let go of again.
void Read_Bytes(const Scene& S) {
    for (Long I = 1; I <= S.Nb; ++I) {
        std::string Bytes(fs::file_size(S.File(I)), '\0');
        std::ifstream(S.File(I), std::ios::binary)
            .read(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
    }
}

void Measure_Opening(const Scene& S, const char* What) {
    const auto Empty = [] { Ima_Unload(); };
    const double Bytes = Milliseconds(
        Openings, [&] { Read_Bytes(S); }, Empty);
    std::vector<Picture> Kept;
    const double Plain = Milliseconds(
        Openings, [&] { Read_Plainly(S, Kept); }, [&] { std::vector<Picture>().swap(Kept); });
    std::vector<Picture>().swap(Kept);
    const double Open = Milliseconds(
        Openings, [&] { Stop_Unless(Load_Project(S.Project()), "the project"); }, Empty);
    std::printf("%-8s bytes of the files %7.1f ms, pictures %7.1f ms, open %7.1f ms\n", What, Bytes,
                Plain, Open);
}

void Measure_Redraw(Canvas_Widget& Canvas, const char* What, double At_Zoom) {
    Zoom = At_Zoom;
    Pan_X = Pan_Y = 0.0;
    const double Took = Milliseconds(
        Rounds,
        [&] {
            View_Redraw();
            Canvas.repaint();
        },
        [] {});
    std::printf("%-8s zoom %4.2f: redraw %6.2f ms, %5.0f a second\n", What, At_Zoom, Took,
                1000.0 / Took);
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication App(argc, argv);
    const Scene S{fs::temp_directory_path() / "terrafold_bench_ima",
                  argc > 1 ? std::atoi(argv[1]) : 200, argc > 2 ? std::atoi(argv[2]) : 1024};
    fs::create_directories(S.Dir);
    Program_Reset();
    App_Path = *Program_Path(S.Dir);
    The_View.Ima_Load = Ima_Load;
    for (const bool Dxt1 : {true, false}) {
        for (Long I = 1; I <= S.Nb; ++I)
            Write_Texture(S.File(I), static_cast<std::uint32_t>(S.Side), Dxt1,
                          static_cast<std::uint32_t>(I));
        if (Dxt1) Make_Project(S);
        Measure_Opening(S, Dxt1 ? "DXT1" : "24 bits");
    }
    std::printf("peak memory %.2f bytes a pixel of the textures\n",
                measure::Peak_Memory() / S.Pixels());
    Show_Map();
    Modes_Install();
    Canvas_Widget Canvas;
    Canvas.resize(Canvas_Width, Canvas_Height);
    Canvas.show();
    QApplication::processEvents();
    const Surface_Scope On(Canvas);
    View_Resize(Canvas_Width, Canvas_Height);
    Edit_On = 1;
    The_Modes = {};
    Mode_Area = 1;
    Measure_Redraw(Canvas, "map", 0.1);
    The_Modes = {};
    Mode_Ima = 1;
    for (const double At : {0.1, 0.2, 0.37, 1.0}) Measure_Redraw(Canvas, "rows", At);
    Lay_Out(S, 20);
    for (const double At : {0.1, 0.37, 1.0}) Measure_Redraw(Canvas, "heaps", At);
    fs::remove_all(S.Dir);
    return 0;
}
