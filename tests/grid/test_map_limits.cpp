// tests/grid/test_map_limits.cpp - the limits of the map and of the work grid.
#include "grid/map_limits.h"

#include <limits>
#include <random>

#include "grid/terrain_grid.h"
#include "support/program_test.h"

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

// Corner points of a map whose image has 1001 columns and 801 rows.
Calibration Corner_Points(Geo NW, Geo SE) {
    return Points(NW, SE, 0, 0, 1000, 800);
}
Calibration Limits_Of(Geo NW, Geo SE) {
    Calibration Cal = Corner_Points(NW, SE);
    Compute_Map_Limits(Cal, 1001, 801);
    return Cal;
}

Cell_Pos Map_NW(const Calibration& C) {
    return {C.AreaLonMapNW, C.AreaLatMapNW, C.CellLonMapNW, C.CellLatMapNW};
}
Cell_Pos Map_SE(const Calibration& C) {
    return {C.AreaLonMapSE, C.AreaLatMapSE, C.CellLonMapSE, C.CellLatMapSE};
}
Cell_Pos Grid_NW(const Calibration& C) {
    return {C.AreaLonGridNW, C.AreaLatGridNW, C.CellLonGridNW, C.CellLatGridNW};
}
Cell_Pos Grid_SE(const Calibration& C) {
    return {C.AreaLonGridSE, C.AreaLatGridSE, C.CellLonGridSE, C.CellLatGridSE};
}

// Values of a saved project, which keeps 15 digits.
TEST(Map_Limits, OfPointsInsideTheMap) {
    Calibration Cal = Points({-11.21438091966, 67.4655307699}, {-11.27516933541, 67.57795903309},
                             122, 92, 777, 614);
    Compute_Map_Limits(Cal, 853, 754);
    EXPECT_NEAR(Cal.LatMapNW, -11.2036672525163, 1e-12);
    EXPECT_NEAR(Cal.LonMapNW, 67.4445899330921, 1e-12);
    EXPECT_NEAR(Cal.LatMapSE, -11.2913562890293, 1e-12);
    EXPECT_NEAR(Cal.LonMapSE, 67.5908324983408, 1e-12);
    EXPECT_EQ(Map_NW(Cal), (Cell_Pos{527, 287, 28, 27}));
    EXPECT_EQ(Map_SE(Cal), (Cell_Pos{528, 288, 6, 3}));
    EXPECT_EQ(Grid_NW(Cal), (Cell_Pos{527, 287, 27, 26}));
    EXPECT_EQ(Grid_SE(Cal), (Cell_Pos{528, 288, 7, 4}));
    EXPECT_EQ(Cal.LatGridNW, -11.18408203125);
    EXPECT_EQ(Cal.LonGridNW, 67.4267578125);
    EXPECT_EQ(Cal.LatGridSE, -11.304931640625);
    EXPECT_EQ(Cal.LonGridSE, 67.6171875);
    EXPECT_NEAR(Cal.XGridNW, -103.888814577523, 1e-9);
    EXPECT_NEAR(Cal.YGridNW, -168.181476271159, 1e-9);
    EXPECT_NEAR(Cal.XGridSE, 1005.54258437339, 1e-9);
    EXPECT_NEAR(Cal.YGridSE, 869.573749217666, 1e-9);
}

TEST(Map_Limits, TheMarginIsOneCellAndPassesIntoTheNextArea) {
    const Double Near = 0.001;
    const Calibration Cal = Limits_Of({45.0 - Near, Near},  // just inside the first Cell of an Area
                                      {44.6484375 + Near, 0.46875 - Near});  // and inside its last
    EXPECT_EQ(Cal.LatMapNW, Cal.LatPtNW) << "corner points are the corners";
    EXPECT_EQ(Cal.LonMapNW, Cal.LonPtNW);
    EXPECT_DOUBLE_EQ(Cal.LatMapSE, Cal.LatPtSE);
    EXPECT_EQ(Map_NW(Cal), (Cell_Pos{384, 128, 0, 0}));
    EXPECT_EQ(Map_SE(Cal), (Cell_Pos{384, 128, 31, 31}));
    EXPECT_EQ(Grid_NW(Cal), (Cell_Pos{383, 127, 31, 31}));
    EXPECT_EQ(Grid_SE(Cal), (Cell_Pos{385, 129, 0, 0}));
    EXPECT_EQ(Cal.LatGridNW, 45.0 + Cell_StepLat);
    EXPECT_EQ(Cal.LonGridSE, 0.46875 + Cell_StepLon);
}

TEST(Map_Limits, NoMarginBeyondTheGlobe) {
    const Calibration Cal = Limits_Of({89.999, -179.999}, {-89.999, 179.999});
    EXPECT_EQ(Grid_NW(Cal), (Cell_Pos{0, 0, 0, 0}));
    EXPECT_EQ(Grid_SE(Cal), (Cell_Pos{767, 511, 31, 31}));
    EXPECT_EQ(Cal.LatGridNW, 90.0);
    EXPECT_EQ(Cal.LonGridNW, -180.0);
    EXPECT_EQ(Cal.LatGridSE, -90.0);
    EXPECT_EQ(Cal.LonGridSE, 180.0);
    EXPECT_TRUE(Calibration_Can_Serve(Cal));
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

TEST(Map_Limits, PointsThatCannotServeHaveNone) {
    const Geo NW{45.0, 10.0}, SE{44.0, 11.0};
    const Calibration All[] = {
        Points(NW, SE, 5, 5, 5, 90),           // one column
        Points(NW, SE, 5, 5, 90, 5),           // one row
        Points(NW, SE, -9, -9, 0, 90),         // south-east point in column 0
        Points(NW, SE, -9, -9, 90, 0),         // and in row 0
        Points(NW, {44.0, 10.0}, 0, 0, 9, 9),  // one longitude
        Points(NW, {45.0, 11.0}, 0, 0, 9, 9),  // one latitude
        Points({}, {5e-324, 5e-324}, 0, 0, 9, 9),
        Calibration{},
    };
    for (const Calibration& Given : All) {
        Calibration Cal = Given;
        Compute_Map_Limits(Cal, 100, 100);
        EXPECT_EQ(Cal.XPtSE, Given.XPtSE) << "the points stay";
        EXPECT_EQ(Cal.LatPtNW, Given.LatPtNW);
        EXPECT_TRUE(Cal.LatMapNW == 0.0 && Cal.LonMapSE == 0.0 && Cal.XGridNW == 0.0 &&
                    Cal.YGridSE == 0.0 && Cal.LatGridNW == 0.0);
        EXPECT_EQ(Grid_SE(Cal), Cell_Pos{});
        EXPECT_FALSE(Calibration_Can_Serve(Cal));
    }
}

TEST(Map_Limits, MapDegreesGivenBeforehandAreKept) {
    Calibration Cal = Corner_Points({45.0, 10.0}, {44.0, 11.0});
    Cal.LatMapNW = 45.5;
    Cal.LonMapNW = 10.0;
    Cal.LatMapSE = 44.0;
    Cal.LonMapSE = 11.0;
    Compute_Grid_Limits(Cal);
    EXPECT_EQ(Cal.LatMapNW, 45.5);
    EXPECT_EQ(Map_NW(Cal), LatLon_To_Cell({45.5, 10.0}));
    EXPECT_DOUBLE_EQ(Cal.YGridNW, 800.0 * (45.5 - Cal.LatGridNW));

    Calibration One_Column = Cal;  // the centre of a map that is one pixel wide
    One_Column.XPtSE = 0;
    Compute_Grid_Limits(One_Column);
    EXPECT_EQ(One_Column.LatMapNW, 0.0);
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
    Tab_Area[1].Texte = "kept";
    Tab_Excl.Append(Record_At<Excl>(At));
    Tab_LC.Append(Record_At<LC_Cell>(At));
    Tab_WC.Append(Record_At<WC_Cell>(At));
    Tab_Lod8.Append({At.AreaLon, At.AreaLat});
    Move_Map(-1.0, -1.0);
    const Cell_Pos South_West{405, 130, 31, 0};
    EXPECT_EQ(static_cast<Cell_Pos>(Tab_Area[1]), South_West);
    EXPECT_EQ(Tab_Area[1].Texte, "kept");
    EXPECT_EQ(static_cast<Cell_Pos>(Tab_Excl[1]), South_West);
    EXPECT_EQ(static_cast<Cell_Pos>(Tab_LC[1]), South_West);
    EXPECT_EQ(static_cast<Cell_Pos>(Tab_WC[1]), South_West);
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
    Calibration Old = Limits_Of({45.0, 10.0}, {44.0, 11.0});
    Tab_Area.Append(Record_At<Area>({406, 129, 4, 4}));
    Tab_Area.Append(Record_At<Area>({406, 129, 4, 5}));
    Tab_Area.Append(Record_At<Area>({406, 129, 4, 6}));
    The_Calibration = Limits_Of({45.0, 10.0}, {44.9, 11.0});  // rows a tenth as high
    Reproject_Cells(Old);
    EXPECT_EQ(Nb_Area, 3);
    EXPECT_EQ(static_cast<Cell_Pos>(Tab_Area[1]), static_cast<Cell_Pos>(Tab_Area[2]));
}

TEST_F(Cell_Moves, WithoutALineRecordsStay) {
    Tab_Area.Append(Record_At<Area>(At));
    The_Calibration = Limits_Of({45.0, 10.0}, {44.0, 11.0});
    Reproject_Cells(Calibration{});
    EXPECT_EQ(static_cast<Cell_Pos>(Tab_Area[1]), At) << "no old pixel";
    const Calibration Old = The_Calibration;
    XPtSE = XPtNW;
    Reproject_Cells(Old);
    EXPECT_EQ(static_cast<Cell_Pos>(Tab_Area[1]), At) << "no new position";
}

}  // namespace
