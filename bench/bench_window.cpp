// bench/bench_window.cpp - the complete redraw of the canvas, on a screen in memory.
//
//     bench_window [zoom ...]     the zooms 0.1, 1 and 5 otherwise
//
// A canvas of 1600 by 1000 pixels; a map of 10000 by 10000 pixels in 24 bits; 10,000 objects of
// 100 points all over it; the grid.
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "core/model.h"
#include "core/model_ops.h"
#include "core/program.h"
#include "measure.h"
#include "qt/canvas_widget.h"
#include "qt/raster.h"
#include "ui/canvas/map_tiles.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"

namespace {

constexpr Long Map_Side = 10000, Canvas_Width = 1600, Canvas_Height = 1000;
constexpr Long Nb_Objects = 10000, Nb_Points = 100;
constexpr Double Turn_Of_Golden = 2.399963229728653;  // radians
constexpr int Rounds = 41;

Picture Painted_Tile(Long Seed) {
    Picture P = Picture_Make(Tile_Size, Tile_Size, 24);
    auto State = static_cast<std::uint32_t>(Seed + 1);
    for (std::uint8_t& Byte : P.Bytes) {
        State = State * 1664525U + 1013904223U;
        Byte = static_cast<std::uint8_t>(State >> 24);
    }
    return P;
}

void Make_Map() {
    Map_Width = Map_Height = Map_Side;
    Nb_Tile_Cols = Nb_Tile_Rows = static_cast<Int>(Map_Side / Tile_Size);
    Nb_Tiles = static_cast<Int>(Nb_Tile_Cols * Nb_Tile_Rows);
    WPic.clear();
    for (Long I = 0; I < Nb_Tiles; ++I) WPic.push_back(Painted_Tile(I));
    XGridNW = YGridNW = 0.0;
    XGridSE = YGridSE = Map_Side;
    LonGridNW = -4.6875;
    LonGridSE = LonGridNW + 100 * 0.0146484375;
    LatGridNW = 3.515625;
    LatGridSE = LatGridNW - 100 * 0.010986328125;
}

// Rings of about 60 pixels across, spread evenly over the map.
void Make_Objects() {
    for (Long I = 0; I < Nb_Objects; ++I) {
        const Double X = std::fmod(I * 6180.33988749, Map_Side),
                     Y = std::fmod(I * 7548.7766624, Map_Side);
        const auto At = [&](Long K) {
            const Double Angle = K * 2.0 * 3.14159265358979 / Nb_Points + I * Turn_Of_Golden;
            const Double Radius = 30.0 + 6.0 * std::sin(5.0 * Angle);
            return Pix{X + Radius * std::cos(Angle), Y + Radius * std::sin(Angle)};
        };
        const Long Row = Obj_Add({}, At(0).X, At(0).Y);
        for (Long K = 1; K < Nb_Points; ++K) Pt_Append(Row, At(K).X, At(K).Y);
    }
}

double Milliseconds(const std::function<void()>& Work) {
    std::vector<double> Times;
    for (int I = 0; I < Rounds; ++I) {
        const double From = measure::Cpu_Seconds();
        Work();
        Times.push_back((measure::Cpu_Seconds() - From) * 1000.0);
    }
    return measure::Median(Times);
}

// The same stretch copy by Qt's painter, for comparison.
double Painter_Milliseconds(double At_Zoom) {
    QImage To(Canvas_Width, Canvas_Height, QImage::Format_RGB32);
    const Picture& P = WPic[0];
    const QImage From(P.Bytes.data(), P.Width, P.Height, static_cast<qsizetype>(P.Stride),
                      QImage::Format_BGR888);
    const double Side = P.Width * At_Zoom;
    return Milliseconds([&] {
        QPainter Painter(&To);
        for (double Y = 0; Y < Canvas_Height; Y += Side)
            for (double X = 0; X < Canvas_Width; X += Side)
                Painter.drawImage(QRectF(X, Y, Side, Side), From);
    });
}

void Measure(Canvas_Widget& Canvas, double At_Zoom) {
    Zoom = At_Zoom;
    Pan_X = Pan_Y = 0.0;
    View_Redraw();
    const double Map = Milliseconds(Map_Blit_View);
    const double Grid = Milliseconds([] { Grid_Draw(); });
    const double Objects = Milliseconds(Objects_Draw_Backdrop);
    const double Screen = Milliseconds([&] { Canvas.repaint(); });
    const double Whole = Milliseconds([&] {
        View_Redraw();
        Canvas.repaint();
    });
    std::printf("%6.2f %8.2f %8.2f %8.2f %8.2f %8.2f %8.0f %12.2f\n", At_Zoom, Map, Grid, Objects,
                Screen, Whole, 1000.0 / Whole, Painter_Milliseconds(At_Zoom));
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication App(argc, argv);
    Program_Reset();
    Make_Map();
    Make_Objects();
    Canvas_Widget Canvas;
    Canvas.On_Resize = View_Resize;
    Canvas.resize(Canvas_Width, Canvas_Height);
    Canvas.show();
    QApplication::processEvents();
    const Surface_Scope On(Canvas);
    View_Resize(Canvas_Width, Canvas_Height);
    View_Center_Map();
    Modes_Install();
    Mode_Area = 1;
    std::printf("milliseconds (median of %d)\n", Rounds);
    std::printf("  zoom      map     grid  objects   screen    whole   frames   by QPainter\n");
    if (argc > 1)
        for (int I = 1; I < argc; ++I) Measure(Canvas, std::atof(argv[I]));
    else
        for (const double At : {0.1, 1.0, 5.0}) Measure(Canvas, At);
    return 0;
}
