// tests/grid/test_terrain_grid.cpp - degrees and pixels to cells and local units.
#include "grid/terrain_grid.h"

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "support/program_test.h"

namespace {

constexpr Double Infinity = std::numeric_limits<Double>::infinity();

// The plain rule: walk from line to line and stop at the first one strictly beyond the point.
Long Walk_South(Double Lat, Double& Line, Double Step) {
    Long Row = 0;
    for (; Line - Step >= Lat; Line -= Step) ++Row;
    return Row;
}

Long Walk_East(Double Lon, Double& Line, Double Step) {
    Long Col = 0;
    for (; Line + Step <= Lon; Line += Step) ++Col;
    return Col;
}

struct Walked {
    Long Row, Col, Row_Inside, Col_Inside;
};

// Coarse steps first, then fine steps from the edges of the coarse cell.
Walked Walk(Geo G, Geo Start, Geo Coarse, Geo Fine) {
    Walked W{};
    W.Row = Walk_South(G.Lat, Start.Lat, Coarse.Lat);
    W.Col = Walk_East(G.Lon, Start.Lon, Coarse.Lon);
    W.Row_Inside = Walk_South(G.Lat, Start.Lat, Fine.Lat);
    W.Col_Inside = Walk_East(G.Lon, Start.Lon, Fine.Lon);
    return W;
}

constexpr Geo Lod5_Step{Lod5_StepLat, Lod5_StepLon}, Area_Step{Area_StepLat, Area_StepLon},
    Lod10_Step{Lod10_StepLat, Lod10_StepLon}, Cell_Step{Cell_StepLat, Cell_StepLon};

// G lies on the globe, and on the shifted one.
void Expect_Walked_Cells(Geo G) {
    const Walked A = Walk(G, {90.0, -180.0}, Area_Step, Cell_Step);
    const Cell_Pos C = LatLon_To_Cell(G);
    ASSERT_TRUE(C.AreaLat == A.Row && C.CellLat == A.Row_Inside) << std::hexfloat << G.Lat;
    ASSERT_TRUE(C.AreaLon == A.Col && C.CellLon == A.Col_Inside) << std::hexfloat << G.Lon;

    const Walked B = Walk(G, {90.0054931640625, -180.00732421875}, Area_Step, Cell_Step);
    const Cell_Pos S = LatLon_To_Cell_Shift(G);
    ASSERT_TRUE(S.AreaLat == B.Row && S.CellLat == B.Row_Inside) << std::hexfloat << G.Lat;
    ASSERT_TRUE(S.AreaLon == B.Col && S.CellLon == B.Col_Inside) << std::hexfloat << G.Lon;

    const Walked D = Walk(G, {90.0, -180.0}, Area_Step, Lod10_Step);
    const Lod10_Pos T = LatLon_To_Lod10(G);
    ASSERT_TRUE(T.AreaLat == D.Row && T.Row == D.Row_Inside) << std::hexfloat << G.Lat;
    ASSERT_TRUE(T.AreaLon == D.Col && T.Col == D.Col_Inside) << std::hexfloat << G.Lon;

    const Walked E = Walk(G, {90.0, -180.0}, Lod5_Step, Cell_Step);
    const Lod5_Pos F = LatLon_To_Lod5(G);
    ASSERT_TRUE(F.Lod5_Lat == E.Row && F.Row == E.Row_Inside) << std::hexfloat << G.Lat;
    ASSERT_TRUE(F.Lod5_Lon == E.Col && F.Col == E.Col_Inside) << std::hexfloat << G.Lon;
}

// Every half step is a line of the plain grid or of the shifted one. The shifted grid's last
// half step lies beyond its last cell.
TEST(Terrain_Grid, EveryLineAndItsNeighbourDoublesAsTheWalkFindsThem) {
    for (Long I = 1; I < 2 * 24576 - 1; ++I) {
        const Double Lat = 90.0 - (1 + I % (2 * 16384 - 2)) * 0.0054931640625;
        const Double Lon = -180.0 + I * 0.00732421875;
        ASSERT_NO_FATAL_FAILURE(Expect_Walked_Cells({Lat, Lon}));
        ASSERT_NO_FATAL_FAILURE(
            Expect_Walked_Cells({std::nextafter(Lat, 90.0), std::nextafter(Lon, 180.0)}));
        ASSERT_NO_FATAL_FAILURE(
            Expect_Walked_Cells({std::nextafter(Lat, -90.0), std::nextafter(Lon, -180.0)}));
    }
}

TEST(Terrain_Grid, AnyPointAsTheWalkFindsIt) {
    std::mt19937 Random(3);
    std::uniform_real_distribution<Double> Lat(-89.99, 90.0), Lon(-180.0, 179.99);
    for (int I = 0; I < 20000; ++I)
        ASSERT_NO_FATAL_FAILURE(Expect_Walked_Cells({Lat(Random), Lon(Random)}));
    for (const Double Tiny : {1e-20, -1e-20, 1e-300, -1e-300})
        ASSERT_NO_FATAL_FAILURE(Expect_Walked_Cells({Tiny, Tiny}));
}

TEST(Terrain_Grid, CornersOfTheGlobe) {
    const Cell_Pos First{0, 0, 0, 0}, Last{767, 511, 31, 31};
    EXPECT_EQ(LatLon_To_Cell({90.0, -180.0}), First);
    EXPECT_EQ(LatLon_To_Cell({45.0, 0.0}), (Cell_Pos{384, 128, 0, 0}));
    EXPECT_EQ(LatLon_To_Cell({-90.0, 180.0}), Last) << "beyond every line: the nearest";
    EXPECT_EQ(LatLon_To_Cell_Shift({-90.0, 180.0}), Last);
    EXPECT_EQ(LatLon_To_Cell({-1e300, 1e300}), Last);
    EXPECT_EQ(LatLon_To_Cell({-Infinity, Infinity}), Last);
    EXPECT_EQ(LatLon_To_Cell({Infinity, -Infinity}), First);
    EXPECT_EQ(LatLon_To_Cell({std::nan(""), std::nan("")}), First);
    EXPECT_EQ(LatLon_To_Lod10({-91.0, 181.0}), (Lod10_Pos{767, 511, 3, 3}));
    EXPECT_EQ(LatLon_To_Lod5({-91.0, 181.0}), (Lod5_Pos{95, 63, 255, 255}));
}

TEST(Terrain_Grid, CornersCentresAndNamesOfACell) {
    std::mt19937 Random(5);
    std::uniform_real_distribution<Double> Near(-0.499, 0.499);
    for (int I = 0; I < 5000; ++I) {
        const Long Col = static_cast<Long>(Random() % 24576),
                   Row = static_cast<Long>(Random() % 16384);
        const Cell_Pos C{static_cast<Int>(Col / 32), static_cast<Int>(Row / 32),
                         static_cast<Int>(Col % 32), static_cast<Int>(Row % 32)};
        const Geo Corner = Cell_Corner(C);
        ASSERT_EQ(LatLon_To_Cell(Corner), C) << "a corner belongs to the cell south-east of it";
        ASSERT_EQ(LatLon_To_Cell(Cell_Centre(C)), C);
        ASSERT_EQ(Cell_Centre(C).Lat, Corner.Lat - 0.0054931640625);
        ASSERT_EQ(LatLon_To_Cell_Shift({Corner.Lat + Near(Random) * Cell_StepLat,
                                        Corner.Lon + Near(Random) * Cell_StepLon}),
                  C)
            << "nearest corner";
        ASSERT_EQ(Cell_To_Lod5(C),
                  (Lod5_Pos{static_cast<Int>(Col / 256), static_cast<Int>(Row / 256),
                            static_cast<Int>(Col % 256), static_cast<Int>(Row % 256)}));
        const std::string Name = Cell_Quad_Name(C);
        Long X = 0, Y = 0;
        for (const char Digit : Name) {
            X = 2 * X + (Digit - '0') % 2;
            Y = 2 * Y + (Digit - '0') / 2;
        }
        ASSERT_TRUE(X == Col && Y == Row && Name.size() == 15) << Name;
    }
    EXPECT_EQ(Cell_Quad_Name({0, 0, 0, 0}), "000000000000000");
    EXPECT_EQ(Cell_Quad_Name({767, 511, 31, 31}), "123333333333333");
    EXPECT_EQ(Area_Centre(384, 128), (Geo{44.82421875, 0.234375}));
}

TEST(Terrain_Grid, HeightPairs) {
    EXPECT_EQ(Height_Pair(-12.5), (Height{-12, 64}));
    EXPECT_EQ(Height_Pair(-0.5), (Height{0, 64}));
    EXPECT_EQ(Height_Pair(-9999.0), (Height{-9999, 0}));
    EXPECT_EQ(Height_Pair(100.999), (Height{100, 127})) << "cut, not rounded";
    EXPECT_EQ(Height_Pair(-1e300), (Height{std::numeric_limits<Long>::min(), 0}));
    EXPECT_EQ(Height_Pair(std::nan("")), (Height{0, 0}));
}

// A map where a Cell is 256 pixels wide and high, pixel 0 lies on the corner 45 north, 0 east,
// and every whole pixel is an exact number of degrees.
class Local_Units : public Program_Test {
protected:
    Local_Units() {
        LatPtNW = 45.0;
        LonPtNW = 0.0;
        LatPtSE = 45.0 - 64 * Cell_StepLat;
        LonPtSE = 64 * Cell_StepLon;
        XPtSE = YPtSE = 64 * 256;
    }
    const Cell_Pos Corner{384, 128, 0, 0};
};

TEST_F(Local_Units, ThreeScalesOfOnePoint) {
    Cell_Pos C;
    EXPECT_EQ(Pixel_To_Cell_Loc({0.0, 0.0}, C), (Loc_Cell{0, 0}));
    EXPECT_EQ(C, Corner) << "a corner belongs to the cell south-east of it";
    EXPECT_EQ(Pixel_To_Cell_Loc({128.0, 64.0}, C), (Loc_Cell{128, 64})) << "127.5 and 63.75";
    EXPECT_EQ(Pixel_To_Cell_Loc({-1.0, -256.0}, C), (Loc_Cell{254, 0}));
    EXPECT_EQ(C, (Cell_Pos{383, 127, 31, 31}));

    const Pix P{384.0, 640.0};  // half across the second Cell, half down the third
    EXPECT_EQ(Pixel_To_Cell_Area_Loc(P, C), (Loc_Area{4462, 4718})) << "both halves go to even";
    EXPECT_EQ(C, (Cell_Pos{384, 128, 1, 2}));
    EXPECT_EQ(Pixel_To_Area_Loc(P, C), (Loc_Area{4462, 4718}));
    EXPECT_EQ(C, Corner);
    EXPECT_EQ(Pixel_To_Area_Loc({8191.9, 0.1}, C), (Loc_Area{12240, 4080}));
    EXPECT_EQ(Pixel_To_Cell_Shift({128.5, 127.5}), (Cell_Pos{384, 128, 1, 0}));
    EXPECT_EQ(Pixel_To_Lod10({2048.0, 6144.0}), (Lod10_Pos{384, 128, 1, 3}));
}

TEST_F(Local_Units, PlaceInACellGivenBeforehand) {
    const Double Unit = 256.0 / 255.0;
    EXPECT_EQ(Pixel_Loc_In_Cell({128.0, 192.0}, Corner), (Loc_Cell{128, 191})) << "half goes up";
    EXPECT_EQ(Pixel_Loc_In_Cell({0.9 * Unit, 254.1 * Unit}, Corner), (Loc_Cell{0, 255}));
    EXPECT_EQ(Pixel_Loc_In_Cell({255.9 * Unit, 1.1 * Unit}, Corner), (Loc_Cell{255, 1}));
    EXPECT_EQ(Pixel_Loc_In_Cell({-0.9 * Unit, -5.0 * Unit}, Corner), (Loc_Cell{0, 5}))
        << "outside counts as inside";
    EXPECT_EQ(Pixel_Loc_In_Cell({900.0, -1e300}, Corner), (Loc_Cell{255, 255}));
    const Double One_Metre = 0.00001 / Cell_StepLon * 256.0;
    EXPECT_EQ(Pixel_Loc_In_Cell({256.0 - One_Metre, One_Metre}, Corner), (Loc_Cell{255, 0}));
}

TEST_F(Local_Units, PlaceInAnAreaGivenBeforehand) {
    const Double Unit = 8192.0 / 8160.0;
    EXPECT_EQ(Pixel_Loc_In_Area({384.0, 640.0}, 384, 128), (Loc_Area{4463, 4718}))
        << "382.5 goes up, and so does 637.5";
    EXPECT_EQ(Pixel_Loc_In_Area({0.7 * Unit, 8159.3 * Unit}, 384, 128), (Loc_Area{4080, 12240}));
    EXPECT_EQ(Pixel_Loc_In_Area_Raw({0.7 * Unit, 8159.3 * Unit}, 384, 128),
              (Loc_Area_Raw{4081, 12239}))
        << "not snapped";
    EXPECT_EQ(Pixel_Loc_In_Area({20000.0, -1e300}, 384, 128), (Loc_Area{12240, 12240}));
    EXPECT_EQ(Pixel_Loc_In_Area_Raw({16384.0, -8192.0}, 384, 128), (Loc_Area_Raw{20400, 12240}))
        << "not limited";
    EXPECT_EQ(Pixel_Loc_In_Area_Raw({1e300, 0.0}, 384, 128).LocX, std::numeric_limits<Long>::max());
}

// Any bits at all, as a damaged project might hold them.
TEST_F(Local_Units, NoPixelAndNoCalibrationLeavesTheScales) {
    std::mt19937_64 Random(13);
    const auto Any = [&] { return std::bit_cast<Double>(Random()); };
    for (int I = 0; I < 20000; ++I) {
        if (I % 2 == 1) LatPtSE = Any();
        if (I % 3 == 1) XPtSE = I % 4 == 0 ? 0 : static_cast<Long>(Random());
        const Pix P{Any(), I % 5 == 0 ? 100.0 : Any()};
        Cell_Pos C;
        const Loc_Cell L = Pixel_To_Cell_Loc(P, C);
        ASSERT_TRUE(0 <= L.LocX && L.LocX <= 255 && 0 <= L.LocY && L.LocY <= 255);
        ASSERT_TRUE(0 <= C.AreaLon && C.AreaLon < Nb_AreaLon && 0 <= C.AreaLat &&
                    C.AreaLat < Nb_AreaLat);
        const Loc_Area A = Pixel_To_Cell_Area_Loc(P, C);
        ASSERT_TRUE(4080 <= A.LocX && A.LocX <= 12240 && 4080 <= A.LocY && A.LocY <= 12240);
        const Loc_Area B = Pixel_Loc_In_Area(P, 384, 128);
        ASSERT_TRUE(4080 <= B.LocX && B.LocX <= 12240 && 4080 <= B.LocY && B.LocY <= 12240);
        const Loc_Cell D = Pixel_Loc_In_Cell(P, Corner);
        ASSERT_TRUE(0 <= D.LocX && D.LocX <= 255 && 0 <= D.LocY && D.LocY <= 255);
        Pixel_Loc_In_Area_Raw(P, 384, 128);
    }
}

}  // namespace
