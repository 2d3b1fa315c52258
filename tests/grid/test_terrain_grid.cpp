// tests/grid/test_terrain_grid.cpp - degrees and pixels to cells and local units.
#include "grid/terrain_grid.h"

#include <bit>
#include <cmath>
#include <random>

#include "support/program_test.h"
#include "support/rows.h"

namespace {

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

std::string Text_Of(const Cell_Pos& C) {
    return std::to_string(C.AreaLon) + "," + std::to_string(C.AreaLat) + "," +
           std::to_string(C.CellLon) + "," + std::to_string(C.CellLat);
}

std::string Text_Of(const auto& L) {
    return std::to_string(L.LocX) + "," + std::to_string(L.LocY);
}

// A map where a Cell is 256 pixels wide and high, pixel 0 lies on the corner 45 north, 0 east,
// and every whole pixel is an exact number of degrees.
class Local_Units : public Program_Test {
protected:
    Local_Units() {
        LatPtNW = 45.0;
        LatPtSE = 45.0 - 64 * Cell_StepLat;
        LonPtSE = 64 * Cell_StepLon;
        XPtSE = YPtSE = 64 * 256;
    }
    const Cell_Pos Corner{384, 128, 0, 0};
};

TEST_F(Local_Units, AsInTheRows) {
    const auto Pixel = [](const Row_Cells& C) {
        const std::vector<double> V = Cell_Numbers(C[0]);
        return Pix{V[0], V[1]};
    };
    const auto With_Cell = [&](auto Rule) {
        return [=](const Row_Cells& C) {
            Cell_Pos At;
            const auto L = Rule(Pixel(C), At);
            return Text_Of(L) + " of " + Text_Of(At);
        };
    };
    Expect_Rows(
        "terrain_grid",
        {{"Pixel_To_Cell_Loc", With_Cell(Pixel_To_Cell_Loc)},
         {"Pixel_To_Cell_Area_Loc", With_Cell(Pixel_To_Cell_Area_Loc)},
         {"Pixel_To_Area_Loc", With_Cell(Pixel_To_Area_Loc)},
         {"Pixel_To_Cell_Shift",
          [&](const Row_Cells& C) { return Text_Of(Pixel_To_Cell_Shift(Pixel(C))); }},
         {"Pixel_Loc_In_Cell",
          [&](const Row_Cells& C) { return Text_Of(Pixel_Loc_In_Cell(Pixel(C), Corner)); }},
         {"Pixel_Loc_In_Area",
          [&](const Row_Cells& C) { return Text_Of(Pixel_Loc_In_Area(Pixel(C), 384, 128)); }},
         {"Pixel_Loc_In_Area_Raw",
          [&](const Row_Cells& C) { return Text_Of(Pixel_Loc_In_Area_Raw(Pixel(C), 384, 128)); }},
         {"LatLon_To_Cell",
          [&](const Row_Cells& C) {
              const Pix G = Pixel(C);
              return Text_Of(LatLon_To_Cell({G.X, G.Y})) + " " +
                     Text_Of(LatLon_To_Cell_Shift({G.X, G.Y}));
          }},
         {"Cell_Quad_Name",
          [](const Row_Cells& C) {
              std::vector<Int> V;
              for (const double N : Cell_Numbers(C[0])) V.push_back(static_cast<Int>(N));
              return Cell_Quad_Name({V[0], V[1], V[2], V[3]});
          }},
         {"Height_Pair", [](const Row_Cells& C) {
              const Height H = Height_Pair(Cell_Number(C[0]));
              return std::to_string(H.H_Int) + " " + std::to_string(H.H_Frac);
          }}});
}

TEST(Terrain_Grid, CornersAndCentresOfACell) {
    for (Long I = 0; I < 5000; ++I) {
        const Long Col = I * 7919 % 24576, Row = I * 104729 % 16384;
        const Cell_Pos C{static_cast<Int>(Col / 32), static_cast<Int>(Row / 32),
                         static_cast<Int>(Col % 32), static_cast<Int>(Row % 32)};
        const Geo Corner = Cell_Corner(C);
        ASSERT_EQ(LatLon_To_Cell(Corner), C) << "a corner belongs to the cell south-east of it";
        ASSERT_EQ(LatLon_To_Cell(Cell_Centre(C)), C);
        ASSERT_EQ(Cell_Centre(C).Lat, Corner.Lat - 0.0054931640625);
        const Double Near = (I % 999 - 499) / 1000.0;
        ASSERT_EQ(LatLon_To_Cell_Shift(
                      {Corner.Lat + Near * Cell_StepLat, Corner.Lon - Near * Cell_StepLon}),
                  C)
            << "nearest corner";
        ASSERT_EQ(Cell_To_Lod5(C),
                  (Lod5_Pos{static_cast<Int>(Col / 256), static_cast<Int>(Row / 256),
                            static_cast<Int>(Col % 256), static_cast<Int>(Row % 256)}));
    }
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
