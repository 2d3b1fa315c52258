// bench/bench_editing.cpp - drawing among many objects: what a press and a double click cost, and
// the opening of the dialog of an object's attributes.
//
//     bench_editing [RUNS]
//
// A canvas of 801 by 601 pixels and 10,000 objects of 100 points; the dialog has 5,000 kinds of
// line and 250 classes. Milliseconds of processor time, the median of RUNS runs. Nothing is shown:
// a redraw costs what bench_window tells, on top.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>

#include "core/model.h"
#include "core/model_ops.h"
#include "core/program.h"
#include "measure.h"
#include "platform/paths.h"
#include "ui/canvas/view.h"
#include "ui/dialogs/dialogs.h"
#include "ui/edit/modes.h"
#include "ui/edit/route_tools.h"
#include "ui/form/form_events.h"

namespace fs = std::filesystem;

namespace {

constexpr Long Map_Side = 10000, Nb_Objects = 10000, Nb_Points = 100;
constexpr int Nb_Kinds = 5000, Nb_Classes = 250;

void Make_Model() {
    Map_Width = Map_Height = Map_Side;
    XGridNW = YGridNW = 0.0;
    XGridSE = YGridSE = Map_Side;
    LonGridNW = -4.6875;
    LonGridSE = LonGridNW + 100 * 0.0146484375;
    LatGridNW = 3.515625;
    LatGridSE = LatGridNW - 100 * 0.010986328125;
    for (Long I = 0; I < Nb_Objects; ++I) {
        const Double X = std::fmod(I * 6180.33988749, Map_Side),
                     Y = std::fmod(I * 7548.7766624, Map_Side);
        const Long Row = Obj_Add({}, X, Y);
        for (Long K = 1; K < Nb_Points; ++K) Pt_Append(Row, X + K, Y + 20.0 * std::sin(K * 0.3));
    }
}

void Write_Lists(const fs::path& Home) {
    fs::create_directories(Home / "Resource");
    std::ofstream Lines(Home / "Resource" / "OwnLines4.txt", std::ios::binary);
    for (int I = 0; I < Nb_Kinds; ++I)
        Lines << "[Texture." << 4096 + I << "] // Kind number " << I
              << "\r\nType=2\r\nSize=4\r\nTextures=RoadSu.bmp\r\n\r\n";
    std::ofstream Classes(Home / "Resource" / "LC.txt", std::ios::binary);
    for (int I = 0; I <= Nb_Classes; ++I) {
        char Line[64];
        std::snprintf(Line, sizeof Line, "%03d %03d Y Class number %d\r\n", I, I, I);
        Classes << Line;
    }
}

double Milliseconds(int Runs, const std::function<void()>& Before,
                    const std::function<void()>& Work) {
    std::vector<double> Times;
    for (int I = 0; I < Runs; ++I) {
        Before();
        const double From = measure::Cpu_Seconds();
        Work();
        Times.push_back((measure::Cpu_Seconds() - From) * 1000.0);
    }
    return measure::Median(Times);
}

void Tell(const char* What, double Took) {
    std::printf("%-44s %9.3f\n", What, Took);
}

void Mouse(Mouse_Event::Kind What) {
    static int Nb = 0;
    ++Nb;
    Pic_Mouse({.What = What,
               .Button = Mouse_Left,
               .Shift = 0,
               .X = 400.0 + Nb % 7,
               .Y = 300.0 + Nb % 5,
               .Steps = 0});
}

void Double_Click() {
    Pic_Double_Click();
}

void Measure_Tools(int Runs) {
    Tell("double click that selects an object", Milliseconds(Runs, Cmd_Sel_Route, Double_Click));
    Tell("double click that selects a point", Milliseconds(Runs, Cmd_Sel_Pt_Route, Double_Click));
    Tell("double click that selects a segment", Milliseconds(Runs, Cmd_Ins_Pt_Route, Double_Click));
    Cmd_Extr_Pt_Route();
    Double_Click();
    Tell("press that lays a point", Milliseconds(
                                        Runs, [] {}, [] { Mouse(Mouse_Event::Kind::Press); }));
    Tell("move with a rubber band", Milliseconds(
                                        Runs, [] {}, [] { Mouse(Mouse_Event::Kind::Move); }));
}

void Measure_Dialog(int Runs) {
    Tell("opening of the dialog of attributes", Milliseconds(
                                                    Runs, [] {},
                                                    [] {
                                                        const std::unique_ptr<Form> F =
                                                            Make_Frm_Route();
                                                        Form_Load(*F);
                                                    }));
}

}  // namespace

int main(int argc, char** argv) {
    const int Runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 41;
    const fs::path Home = fs::temp_directory_path() / "terrafold_bench_editing";
    Program_Reset();
    App_Path = *Program_Path(Home);
    Write_Lists(Home);
    Make_Model();
    View_Resize(801, 601);
    View_Center_Map();
    Modes_Install();
    Edit_On = 1;
    Mode_Route = 1;
    std::printf("milliseconds (median of %d)\n", Runs);
    Mouse(Mouse_Event::Kind::Press);
    Measure_Tools(Runs);
    Measure_Dialog(Runs);
    fs::remove_all(Home);
    return 0;
}
