// tests/grid/test_map_limits.cpp - the limits of the map and of the work grid.
#include "grid/map_limits.h"

#include <cmath>
#include <map>
#include <random>

#include "grid/grid_lines.h"
#include "grid/terrain_grid.h"
#include "support/program_test.h"
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

TEST(Map_Limits, TheWorkGridHoldsAnyMapAndServes) {
    std::mt19937 Random(17);
    std::uniform_real_distribution<Double> Part(0.0, 1.0);
    for (int I = 0; I < 2000; ++I) {
        const Geo NW{170.0 * Part(Random) - 83.0, 350.0 * Part(Random) - 178.0};
        const Geo SE{NW.Lat - 0.01 - 2.0 * Part(Random), NW.Lon + 0.01 + 2.0 * Part(Random)};
        const Long Width = 300 + static_cast<Long>(Random() % 9000);
        const Long Height = 300 + static_cast<Long>(Random() % 9000);
        Calibration Cal =
            Points(NW, SE, static_cast<Long>(Random() % 20), static_cast<Long>(Random() % 20),
                   Width - 1 - static_cast<Long>(Random() % 20),
                   Height - 1 - static_cast<Long>(Random() % 20));
        Compute_Map_Limits(Cal, Width, Height);
        // All limits lie on the line between pixels and degrees.
        const Geo First = Pixel_To_LatLon({0.0, 0.0}, Cal);
        const Geo Last = Pixel_To_LatLon({Width - 1.0, Height - 1.0}, Cal);
        ASSERT_NEAR(Cal.LatMapNW, First.Lat, 1e-11);
        ASSERT_NEAR(Cal.LonMapNW, First.Lon, 1e-11);
        ASSERT_NEAR(Cal.LatMapSE, Last.Lat, 1e-11);
        ASSERT_NEAR(Cal.LonMapSE, Last.Lon, 1e-11);
        const Pix Grid_First = LatLon_To_Pixel({Cal.LatGridNW, Cal.LonGridNW}, Cal);
        const Pix Grid_Last = LatLon_To_Pixel({Cal.LatGridSE, Cal.LonGridSE}, Cal);
        ASSERT_NEAR(Cal.XGridNW, Grid_First.X, 1e-5);
        ASSERT_NEAR(Cal.YGridNW, Grid_First.Y, 1e-5);
        ASSERT_NEAR(Cal.XGridSE, Grid_Last.X, 1e-5);
        ASSERT_NEAR(Cal.YGridSE, Grid_Last.Y, 1e-5);
        ASSERT_LE(Cal.XGridNW, 0.0);
        ASSERT_LE(Cal.YGridNW, 0.0);
        ASSERT_GE(Cal.XGridSE, Width - 1.0);
        ASSERT_GE(Cal.YGridSE, Height - 1.0);
        ASSERT_TRUE(Calibration_Can_Serve(Cal));
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

TEST_F(Cell_Moves, RecordsStayOverTheirPixels) {
    Tab_Area.Append(Record_At<Area>(At));
    Tab_Area.Edit(1).Texte = "kept";
    Tab_Excl.Append(Record_At<Excl>(At));
    Tab_LC.Append(Record_At<LC_Cell>(At));
    Tab_WC.Append(Record_At<WC_Cell>(At));
    Tab_Lod8.Append({At.AreaLon, At.AreaLat});
    Move_Map(-1.0, -1.0);
    for (const Cell_Pos& C :
         {Cell_Pos(Tab_Area[1]), Cell_Pos(Tab_Excl[1]), Cell_Pos(Tab_LC[1]), Cell_Pos(Tab_WC[1])})
        EXPECT_EQ(C, (Cell_Pos{405, 130, 31, 0}));
    EXPECT_EQ(Tab_Area[1].Texte, "kept");
    EXPECT_EQ(Tab_Lod8[1].AreaLon, 406) << "one Cell does not move the centre of an Area out of it";
    EXPECT_EQ(Tab_Lod8[1].AreaLat, 129);
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
