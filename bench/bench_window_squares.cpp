// bench/bench_window_squares.cpp - the canvas with records in every square, on a screen in memory.
//
// A canvas of 1600 by 1000 pixels on which a grid of 100 by 100 Cells is in view, each with a land
// class; 60 classes with textures of 256 by 256 pixels. Then 100,000 altitude points.
#include <QApplication>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>

#include "core/model_ops.h"
#include "core/program.h"
#include "grid/terrain_grid.h"
#include "measure.h"
#include "platform/paths.h"
#include "qt/canvas_widget.h"
#include "ui/canvas/grid_marks.h"
#include "ui/canvas/view.h"
#include "ui/edit/class_grid.h"
#include "ui/edit/modes.h"

namespace {

namespace fs = std::filesystem;

constexpr Long Map_Side = 10000, Canvas_Width = 1600, Canvas_Height = 1000;
constexpr Long Nb_Side = 100, Nb_Classes = 60, Nb_Points = 100000;
constexpr int Rounds = 41;

void Make_Map() {
    Map_Width = Map_Height = Map_Side;
    XPtNW = YPtNW = 0;
    XPtSE = YPtSE = Map_Side;
    LonPtNW = -4.6875;
    LonPtSE = LonPtNW + Nb_Side * Cell_StepLon;
    LatPtNW = 3.515625;
    LatPtSE = LatPtNW - Nb_Side * Cell_StepLat;
    XGridNW = YGridNW = 0.0;
    XGridSE = YGridSE = Map_Side;
    LonGridNW = LonPtNW, LonGridSE = LonPtSE;
    LatGridNW = LatPtNW, LatGridSE = LatPtSE;
}

void Put(std::ofstream& Out, std::uint32_t Value, int Bytes) {
    for (int I = 0; I < Bytes; ++I) Out.put(static_cast<char>(Value >> (8 * I)));
}

void Write_Texture(const fs::path& Path, std::uint32_t Seed) {
    constexpr std::uint32_t Side = 256, Head = 54;
    std::ofstream Out(Path, std::ios::binary);
    Out << "BM";
    for (const std::uint32_t Word : {Head + Side * Side * 3, 0U, Head, 40U, Side, Side})
        Put(Out, Word, 4);
    Put(Out, 1, 2);
    Put(Out, 24, 2);
    for (int I = 0; I < 6; ++I) Put(Out, 0, 4);
    for (std::uint32_t I = 0; I < Side * Side * 3; ++I) Out.put(static_cast<char>(I * Seed >> 5));
}

void Make_Classes(const fs::path& Dir) {
    fs::create_directories(Dir / "Resource");
    std::ofstream List(Dir / "Resource" / "LC.txt", std::ios::binary);
    for (Long I = 0; I < Nb_Classes; ++I) {
        char Line[32];
        std::snprintf(Line, sizeof Line, "%03d", static_cast<int>(I));
        List << Line << ' ' << Line << " class\r\n";
        Write_Texture(Dir / (std::string(Line) + "b2su1.bmp"), static_cast<std::uint32_t>(I + 7));
    }
    List << "last\r\n";
    for (Long I = 0; I < Nb_Side * Nb_Side; ++I) {
        const Double Side = static_cast<Double>(Map_Side) / Nb_Side;
        LC_Cell C;
        static_cast<Cell_Pos&>(C) =
            Cell_Of_Pixel({(I % Nb_Side + 0.5) * Side, (std::floor(I / Nb_Side) + 0.5) * Side});
        C.Num = static_cast<Byte>(I * 7 % Nb_Classes);
        Tab_LC.Append(C);
    }
}

double Milliseconds(const std::function<void()>& Work, int Times = Rounds) {
    std::vector<double> Taken;
    for (int I = 0; I < Times; ++I) {
        const double From = measure::Cpu_Seconds();
        Work();
        Taken.push_back((measure::Cpu_Seconds() - From) * 1000.0);
    }
    return measure::Median(Taken);
}

void Print(const char* What, double Time) {
    std::printf("%-40s %8.3f ms\n", What, Time);
}

void Measure_Classes() {
    The_Modes = {};
    Mode_LC = 1;
    Print("10,000 classes hatched", Milliseconds(View_Redraw));
    Show_Texture = true;
    Print("with 60 textures, the first time", Milliseconds(View_Redraw, 1));
    Print("with 60 textures, again", Milliseconds(View_Redraw));
}

void Measure_Altitudes() {
    The_Modes = {};
    Mode_PtGrid = 1;
    for (Long I = 0; I < Nb_Points; ++I)
        PtGrid_Add(std::fmod(I * 6180.33988749, Map_Side), std::fmod(I * 7548.7766624, Map_Side),
                   static_cast<Single>(I % 500));
    Print("redraw with 100,000 altitudes", Milliseconds(View_Redraw));
    Double At = 300.0;
    Print("a move over 100,000 altitudes", Milliseconds([&] {
              At += 7.3;
              Pic_Mouse({.What = Mouse_Event::Kind::Move, .X = At, .Y = At / 2});
          }));
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication App(argc, argv);
    const fs::path Dir = fs::temp_directory_path() / "bench_window_squares";
    Program_Reset();
    App_Path = Dir_Texture = Program_Path(Dir).value();
    Make_Map();
    Make_Classes(Dir);
    Modes_Install();
    Canvas_Widget Canvas;
    Canvas.resize(Canvas_Width, Canvas_Height);
    Canvas.show();
    QApplication::processEvents();
    const Surface_Scope On(Canvas);
    View_Resize(Canvas_Width, Canvas_Height);
    Edit_On = 1;
    Zoom = 0.1;
    std::printf("processor time, median of %d\n", Rounds);
    Measure_Classes();
    Measure_Altitudes();
    fs::remove_all(Dir);
    return 0;
}
