// tests/grid/test_map_limits.cpp - the limits of the map and of the work grid.
#include "grid/map_limits.h"

#include <cmath>
#include <map>
#include <random>

#include "grid/grid_lines.h"
#include "grid/terrain_grid.h"
#include "support/program_test.h"
#include "support/rational.h"
#include "support/rows.h"

namespace {

Calibration Points(Geo NW, Geo SE, Long X_NW, Long Y_NW, Long X_SE, Long Y_SE) {
    Calibration Cal;
    Cal.LatPtNW = NW.Lat;
    Cal.LonPtNW = NW.Lon;
    Cal.LatPtSE = SE.Lat;
    Cal.LonPtSE = SE.Lon;
    Cal.XPtNW = X_NW;
    Cal.YPtNW = Y_NW;
    Cal.XPtSE = X_SE;
    Cal.YPtSE = Y_SE;
    return Cal;
}

Calibration Limits_Of(Geo NW, Geo SE) {
    Calibration Cal = Points(NW, SE, 0, 0, 1000, 800);
    Compute_Map_Limits(Cal, 1001, 801);
    return Cal;
}

// The two points in degrees and in pixels, and the size of the map; then the Cells of its corners
// and of the work grid's, and that grid in degrees and in pixels.
std::string Limits(const Row_Cells& C) {
    const std::vector<double> D = Cell_Numbers(C[0]), X = Cell_Numbers(C[1]);
    const auto L = [&](std::size_t I) { return static_cast<Long>(X[I]); };
    Calibration Cal = Points({D[0], D[1]}, {D[2], D[3]}, L(0), L(1), L(2), L(3));
    Compute_Map_Limits(Cal, L(4), L(5));
    EXPECT_EQ(Cal.XPtSE, L(2)) << "the points stay";
    std::string Text = Calibration_Can_Serve(Cal) ? "" : "no ";
    for (const Double V :
         {Cal.LatMapNW, Cal.LonMapNW, Cal.LatMapSE, Cal.LonMapSE, Cal.LatGridNW, Cal.LonGridNW,
          Cal.LatGridSE, Cal.LonGridSE, Cal.XGridNW, Cal.YGridNW, Cal.XGridSE, Cal.YGridSE})
        Text += Number_Cell(std::round(V * 1e9) / 1e9) + " ";
    for (const Int V : {Cal.AreaLonMapNW, Cal.AreaLatMapNW, Cal.CellLonMapNW, Cal.CellLatMapNW,
                        Cal.AreaLonMapSE, Cal.AreaLatMapSE, Cal.CellLonMapSE, Cal.CellLatMapSE,
                        Cal.AreaLonGridNW, Cal.AreaLatGridNW, Cal.CellLonGridNW, Cal.CellLatGridNW,
                        Cal.AreaLonGridSE, Cal.AreaLatGridSE, Cal.CellLonGridSE, Cal.CellLatGridSE})
        Text += std::to_string(V) + ",";
    return Text;
}

// First, second and last line each way, how many there are, and the tolerances.
std::string Lines(const Row_Cells& C) {
    const std::map<std::string, Grid_Walk> Walks{{"polygons by area", Polys_By_Area},
                                                 {"polygons by cell", Polys_By_Cell},
                                                 {"lines by area", Lines_By_Area},
                                                 {"coasts by cell", Coasts_By_Cell},
                                                 {"lights", Lines_By_Half_Lod10}};
    The_Calibration = Limits_Of({45.3, 10.1}, {44.1, 11.2});
    const Grid_Lines G = Grid_Lines_Of(Walks.at(C[0]));
    std::string Text;
    for (const auto& [L, Tol] : {std::pair(G.X, G.TolX), std::pair(G.Y, G.TolY)})
        Text += std::to_string(L.size()) + " from " + Number_Cell(L[0]) + ", " + Number_Cell(L[1]) +
                " to " + Number_Cell(L.back()) + " within " + Number_Cell(Tol) + "; ";
    return Text.substr(0, Text.size() - 2);
}

TEST(Map_Limits, AsInTheRows) {
    Expect_Rows("map_limits", {{"Limits", Limits}, {"Lines", Lines}});
    The_Calibration = {};
}

// One axis of a map in exact fractions: degrees lie on a line through both points, Cells follow
// each other from Origin on.
struct Exact_Axis {
    Rational Pixel_1, Pixel_2, Degrees_1, Degrees_2, Origin, Step;

    Rational Degrees(Double Pixel) const {
        return Degrees_1 + (Pixel - Pixel_1) * (Degrees_2 - Degrees_1) / (Pixel_2 - Pixel_1);
    }
    Double Pixel_Of(Long Edge) const {
        return ((Origin + Step * Edge - Degrees(0)) / (Degrees(1) - Degrees(0))).Nearest();
    }
    Long Cell(Double Pixel) const { return ((Degrees(Pixel) - Origin) / Step).Floor(); }
};

// What a calibration says of one end of an axis.
struct End {
    Double Map, Grid, Grid_Pixel;
    Int Map_Area, Map_Cell, Grid_Area, Grid_Cell;
};

// Margin is the Cell that the work grid has beyond the map there, -1 or 1.
void Expect_End(const Exact_Axis& A, const End& E, Double Pixel, Long Margin) {
    const Long Cell = A.Cell(Pixel), Grid_Cell = Cell + Margin, Edge = Grid_Cell + (Margin > 0);
    const Double Pixels_A_Degree = std::fabs((1.0 / (A.Degrees(1) - A.Degrees(0))).Nearest());
    ASSERT_NEAR(E.Map, A.Degrees(Pixel).Nearest(), 1e-13);
    ASSERT_EQ(E.Map_Area * 32 + E.Map_Cell, Cell);
    ASSERT_EQ(E.Grid_Area * 32 + E.Grid_Cell, Grid_Cell);
    ASSERT_LT(E.Grid_Cell, 32);
    ASSERT_EQ(E.Grid, (A.Origin + A.Step * Edge).Nearest());
    ASSERT_NEAR(E.Grid_Pixel, A.Pixel_Of(Edge), 1e-13 * Pixels_A_Degree);
}

TEST(Map_Limits, AreThoseOfExactFractions) {
    std::mt19937 Random(17);
    const auto Up_To = [&Random](Double Most) {  // in steps of 2^-24 degrees
        return std::floor(Most * (Random() >> 8)) / 16777216.0;
    };
    for (int I = 0; I < 2000; ++I) {
        const Geo NW{Up_To(170) - 83, Up_To(350) - 177};
        const Geo SE{NW.Lat - 0.0078125 - Up_To(2), NW.Lon + 0.0078125 + Up_To(2)};
        const Long W = 300 + Random() % 9000, H = 300 + Random() % 9000;
        const Long X1 = Random() % (W / 3), Y1 = Random() % (H / 3);
        const Long X2 = W - 1 - Random() % (W / 3), Y2 = H - 1 - Random() % (H / 3);
        Calibration C = Points(NW, SE, X1, Y1, X2, Y2);
        Compute_Map_Limits(C, W, H);
        const Exact_Axis Lat{Y1, Y2, NW.Lat, SE.Lat, 90, -Cell_StepLat};
        const Exact_Axis Lon{X1, X2, NW.Lon, SE.Lon, -180, Cell_StepLon};
        Expect_End(Lat,
                   {C.LatMapNW, C.LatGridNW, C.YGridNW, C.AreaLatMapNW, C.CellLatMapNW,
                    C.AreaLatGridNW, C.CellLatGridNW},
                   0, -1);
        Expect_End(Lat,
                   {C.LatMapSE, C.LatGridSE, C.YGridSE, C.AreaLatMapSE, C.CellLatMapSE,
                    C.AreaLatGridSE, C.CellLatGridSE},
                   H - 1.0, 1);
        Expect_End(Lon,
                   {C.LonMapNW, C.LonGridNW, C.XGridNW, C.AreaLonMapNW, C.CellLonMapNW,
                    C.AreaLonGridNW, C.CellLonGridNW},
                   0, -1);
        Expect_End(Lon,
                   {C.LonMapSE, C.LonGridSE, C.XGridSE, C.AreaLonMapSE, C.CellLonMapSE,
                    C.AreaLonGridSE, C.CellLonGridSE},
                   W - 1.0, 1);
        ASSERT_TRUE(Calibration_Can_Serve(C));
        if (testing::Test::HasFatalFailure()) return;
    }
}

TEST(Map_Limits, MapDegreesGivenBeforehandAreKept) {
    Calibration Cal = Points({45.0, 10.0}, {44.0, 11.0}, 0, 0, 1000, 800);
    Cal.LatMapNW = 45.5, Cal.LonMapNW = 10.0, Cal.LatMapSE = 44.0, Cal.LonMapSE = 11.0;
    Compute_Grid_Limits(Cal);
    EXPECT_EQ(Cal.LatMapNW, 45.5);
    EXPECT_EQ(Cal.AreaLatMapNW, LatLon_To_Cell({45.5, 10.0}).AreaLat);
    EXPECT_DOUBLE_EQ(Cal.YGridNW, 800.0 * (45.5 - Cal.LatGridNW));
    Cal.XPtSE = 0;  // the centre of a map that is one pixel wide
    Compute_Grid_Limits(Cal);
    EXPECT_EQ(Cal.LatMapNW, 0.0);
}

class Cell_Moves : public Program_Test {
protected:
    // The map lies on the globe as Old has it; then both points go Rows Cells north and Cols
    // Cells east.
    void Move_Map(Double Rows, Double Cols) {
        const Calibration Old = Limits_Of({45.0, 10.0}, {44.0, 11.0});
        The_Calibration =
            Limits_Of({Old.LatPtNW + Rows * Cell_StepLat, Old.LonPtNW + Cols * Cell_StepLon},
                      {Old.LatPtSE + Rows * Cell_StepLat, Old.LonPtSE + Cols * Cell_StepLon});
        Reproject_Cells(Old);
    }
};

const Cell_Pos At{406, 129, 0, 31};

template <typename R>
R Record_At(const Cell_Pos& C) {
    R Record;
    static_cast<Cell_Pos&>(Record) = C;
    return Record;
}

// Under half a Cell the nearest corner and the Cell of the centre stay; above it they change.
TEST_F(Cell_Moves, TheCentreOfACellAndTheCornerOfAClassDecide) {
    for (const Double Way : {0.49, 0.51}) {
        Tab_Area.Reset();
        Tab_LC.Reset();
        Tab_Lod8.Reset();
        Tab_Area.Append(Record_At<Area>(At));
        Tab_LC.Append(Record_At<LC_Cell>(At));
        Tab_Lod8.Append({At.AreaLon, At.AreaLat});
        Move_Map(0.0, Way);
        EXPECT_EQ(Tab_Area[1].CellLon, Way < 0.5 ? 0 : 1) << Way;
        EXPECT_EQ(Tab_LC[1].CellLon, Way < 0.5 ? 0 : 1) << Way;
        Move_Map(0.0, 32.0 * Way);
        EXPECT_EQ(Tab_Lod8[1].AreaLon, Way < 0.5 ? 406 : 407) << Way;
    }
}

TEST_F(Cell_Moves, RecordsThatComeToShareACellAllStay) {
    for (const Int Row : {4, 5}) Tab_Area.Append(Record_At<Area>({406, 129, 4, Row}));
    The_Calibration = Limits_Of({45.0, 10.0}, {44.9, 11.0});  // rows a tenth as high
    Reproject_Cells(Calibration{});
    EXPECT_EQ(Tab_Area[2].CellLat, 5) << "without a line records stay";
    Reproject_Cells(Limits_Of({45.0, 10.0}, {44.0, 11.0}));
    EXPECT_EQ(Nb_Area, 2);
    EXPECT_EQ(Cell_Pos(Tab_Area[1]), Cell_Pos(Tab_Area[2]));
}

}  // namespace
