// test_reference_polygons.cpp - the plain rules themselves: worked examples, and what must hold
// for any simple drawing.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "core/model_ops.h"
#include "geometry/exact_turn.h"
#include "geometry/segments.h"
#include "grid/map_limits.h"
#include "grid/terrain_grid.h"
#include "reference/polygons.h"
#include "reference/shapes.h"

namespace {

using shapes::Kind;
using shapes::Outline;
using Texts = std::vector<std::string>;

class Reference_Polygons : public testing::Test {
protected:
    Reference_Polygons() { Clear(); }
    ~Reference_Polygons() override { Clear(); }

    static void Clear() {
        Model_Reset();
        reference::Reset();
    }
};

// A map of 10 by 10 Cells of 100 by 100 pixels, its corner on a corner of the grid.
void Make_Map_100() {
    Map_Width = Map_Height = 1001;
    XPtSE = YPtSE = 1000;
    LatPtNW = 45;
    LatPtSE = LatPtNW - 10 * Cell_StepLat;
    LonPtSE = LonPtNW + 10 * Cell_StepLon;
    Compute_Map_Limits(The_Calibration, Map_Width, Map_Height);
}

void Prepare(const Outline& O, Int Mode = 0) {
    Make_Map_100();
    shapes::Add_Polygon(O, Mode);
    reference::Poly_Prepare(Mode);
}

Outline Points_Of(const WPoly& W) {
    Outline O;
    for (Long I = W.First; I <= W.Last; ++I) O.push_back(reference::Pix_Of(reference::Tab_WPt[I]));
    return O;
}

Outline Collected(const Outline& O) {
    Model_Reset();
    shapes::Add_Polygon(O);
    reference::Poly_Collect(0);
    return reference::Nb_WPoly == 0 ? Outline{} : Points_Of(reference::Tab_WPoly[1]);
}

std::vector<Outline> Pieces() {
    std::vector<Outline> All;
    for (const WPoly& W : reference::Tab_WPoly.Rows()) All.push_back(Points_Of(W));
    return All;
}

// Those with area; a cut through a vertex leaves flat ones, which later steps drop.
std::vector<Outline> Solid_Pieces() {
    std::vector<Outline> All = Pieces();
    std::erase_if(All, [](const Outline& O) { return std::abs(shapes::Area_2(O)) < 1e-3; });
    return All;
}

std::vector<std::size_t> Sizes() {
    std::vector<std::size_t> Out;
    for (const Outline& O : Pieces()) Out.push_back(O.size());
    return Out;
}

// A regular outline on a circle of 400 pixels round the middle of the map.
Outline Regular(Long Points) {
    Outline O;
    for (Long I = 0; I < Points; ++I) {
        const Double Angle = 6.283185307179586 * (I + 0.3) / Points;
        O.push_back({500 + 400 * std::cos(Angle), 500 + 400 * std::sin(Angle)});
    }
    return O;
}

void Load_Split(const Outline& O) {
    Model_Reset();
    reference::Reset();
    shapes::Add_Polygon(O);
    reference::Poly_Collect(0);
    reference::Poly_Split_Max(60);
}

TEST_F(Reference_Polygons, RepeatsAndStraightRunsAreDropped) {
    const Outline Triangle{{0, 0}, {9, 0}, {5, 9}};
    EXPECT_EQ(Collected(Triangle), Triangle);
    EXPECT_EQ(Collected({{0, 0}, {0, 0}, {9, 0}, {5, 9}, {0, 0}, {0, 0}}), Triangle)
        << "both last points repeat the first";
    EXPECT_EQ(Collected({{0, 0}, {4, 0}, {7, 0}, {9, 0}, {5, 9}}), Triangle);
    EXPECT_EQ(Collected({{4, 0}, {9, 0}, {5, 9}, {0, 0}}), (Outline{{9, 0}, {5, 9}, {0, 0}}))
        << "the first point lies in line with its neighbours";
    EXPECT_EQ(Collected({{1, 1}, {1, 1}, {1, 1}}), Outline{});
    EXPECT_EQ(Collected({{3, 3}, {8, 1}}), (Outline{{3, 3}, {8, 1}})) << "two points stay";
    EXPECT_EQ(Collected({{3, 3}, {6, 3}, {8, 3}}), Outline{})
        << "a flat outline of three ends below two points";
}

TEST_F(Reference_Polygons, OutlinesRunClockwise) {
    const Outline Clockwise{{0, 0}, {9, 0}, {9, 9}, {0, 9}};
    EXPECT_EQ(Collected(Clockwise), Clockwise);
    EXPECT_EQ(Collected({{0, 9}, {9, 9}, {9, 0}, {0, 0}}), Clockwise);
}

TEST_F(Reference_Polygons, OnlyObjectsOfTheModeAreTaken) {
    const Outline Square{{100, 100}, {150, 100}, {150, 150}, {100, 150}};
    for (Int Surf = 0; Surf <= 3; ++Surf)
        for (Int Technique = 0; Technique <= 2; ++Technique) {
            Attr& A = Tab_Obj[shapes::Add_Polygon(Square)].Attr;
            A.SurfShore = Surf;
            A.LWM_VTP2 = Technique;
        }
    const std::map<Int, Int> Technique_Of{{0, 0}, {1, 2}, {2, 1}};
    for (const auto& [Mode, Technique] : Technique_Of) {
        reference::Poly_Collect(Mode);
        ASSERT_EQ(reference::Nb_WPoly, 2);
        for (Long I = 1; I <= 2; ++I) {
            EXPECT_EQ(reference::Tab_WPoly[I].Attr->SurfShore, I - 1);
            EXPECT_EQ(reference::Tab_WPoly[I].Attr->LWM_VTP2, Technique);
        }
    }
}

TEST_F(Reference_Polygons, CrossingsRefuseTheWholeTechnique) {
    Prepare({{100, 100}, {251.5, 251.5}, {151.5, 251.5}, {151.5, 100}});
    EXPECT_EQ(reference::Messages, Texts{"121 Bmp pixel X:152 Y:152"}) << "halves go to even";
    EXPECT_EQ(reference::Has_Auto, 0);
    Clear();
    shapes::Add_Polygon({{300, 300}, {200, 200}, {250, 300}});
    Prepare({{100, 100}, {200, 100}, {200, 200}, {100, 200}});
    EXPECT_EQ(reference::Messages, Texts{"122"}) << "a common vertex is a crossing";
    EXPECT_EQ(reference::Has_Auto, 0);
}

TEST_F(Reference_Polygons, ConvexOutlinesAreDividedInFans) {
    Load_Split(Regular(59));
    EXPECT_EQ(Sizes(), (std::vector<std::size_t>{59}));
    Load_Split(Regular(60));
    EXPECT_EQ(Sizes(), (std::vector<std::size_t>{21, 21, 23}));
    const Outline Whole = Collected(Regular(60));
    Load_Split(Regular(60));
    Outline Middle(Whole.begin() + 19, Whole.begin() + 39);
    Middle.push_back(Whole[0]);
    EXPECT_EQ(Pieces()[1], Middle) << "places 20 to 39, closed with the first";
    Load_Split(Regular(62));
    EXPECT_EQ(Sizes(), (std::vector<std::size_t>{3, 21, 43}));
}

TEST_F(Reference_Polygons, AnLGivesTwoPieces) {
    Load_Split({{0, 0}, {50, 0}, {50, 50}, {90, 50}, {90, 90}, {0, 90}});
    EXPECT_EQ(Pieces().size(), 2U);
    EXPECT_EQ(reference::Counter, 4) << "two rounds, then each piece again";
}

// A tooth hangs between the notch, where the first run begins, and the far corners.
TEST_F(Reference_Polygons, ARunStopsWhereItsDiagonalCrosses) {
    const Outline O{{0, 55},    {5, 50},   {0, 45}, {0, 0},    {100, 0},
                    {100, 100}, {60, 100}, {50, 5}, {40, 100}, {0, 100}};
    Load_Split(O);
    EXPECT_EQ(Pieces()[0], (Outline{{5, 50}, {0, 45}, {0, 0}}));
    EXPECT_LT(Pieces().size(), O.size() - 2);
}

// The walk of the first goes round for ever; that of the second leaves a piece turned inside out.
TEST_F(Reference_Polygons, UnsoundSplitsAreCutInTriangles) {
    const Outline Endless{{575, 250}, {570, 387}, {113, 813}, {382, 479}, {339, 388}, {72, 626},
                          {52, 831},  {5, 15},    {150, 41},  {897, 234}, {529, 167}, {137, 169}};
    const Outline Inverted{{3, 4}, {11, 7}, {3, 8}, {6, 7}, {3, 6}, {2, 2}};
    for (const Outline& O : {Endless, Inverted}) {
        Load_Split(O);
        EXPECT_EQ(Pieces().size(), O.size() - 2);
        Double Sum = 0.0;
        for (const Outline& P : Pieces()) {
            EXPECT_EQ(P.size(), 3U);
            EXPECT_GT(shapes::Area_2(P), 0.0);
            Sum += shapes::Area_2(P);
        }
        EXPECT_DOUBLE_EQ(Sum, std::abs(shapes::Area_2(O)));
    }
}

TEST_F(Reference_Polygons, CutsAtLines) {
    Prepare({{110, 110}, {190, 110}, {190, 290}, {110, 290}});
    EXPECT_EQ(Sizes(), (std::vector<std::size_t>{4, 4}));
    Clear();
    Prepare({{200, 110}, {290, 150}, {200, 190}, {110, 150}});
    EXPECT_EQ(Solid_Pieces().size(), 2U) << "divided along a diagonal that lies on a meridian";
    Clear();
    Prepare({{200, 100}, {290, 150}, {230, 190}});
    EXPECT_EQ(Sizes(), (std::vector<std::size_t>{3})) << "touched in one vertex";
    Clear();
    Prepare({{110, 200}, {190, 200}, {190, 290}, {110, 290}});
    EXPECT_EQ(Solid_Pieces(),
              (std::vector<Outline>{{{190, 200}, {190, 290}, {110, 290}, {110, 200}}}))
        << "an edge on a parallel leaves a sliver without area";
    for (const Outline& O : {Outline{{150, 150}, {150, 250}}, Outline{{150, 150}, {250, 150}}}) {
        Clear();
        Prepare(O);
        EXPECT_EQ(Sizes(), (std::vector<std::size_t>{2, 2}));
    }
    EXPECT_EQ(reference::Messages, Texts{});
}

// Corners of the grid and blunt tips, where tolerances hide or double a cut.
TEST_F(Reference_Polygons, SecondLookAtACut) {
    Prepare({{260, 160}, {300, 200}, {320, 260}, {240, 260}});
    EXPECT_EQ(Solid_Pieces().size(), 3U);
    EXPECT_EQ(reference::Messages, Texts{});
    Clear();
    const Outline Tip{{210, 150}, {290, 170}, {290, 230}, {210, 200.1}, {209.9, 199.9}};
    Prepare(Tip);
    EXPECT_EQ(Solid_Pieces().size(), 2U);
    Double Sum = 0.0;
    for (const Outline& P : Pieces()) {
        Sum += shapes::Area_2(P);
        const auto [Top, Bottom] = std::minmax_element(
            P.begin(), P.end(), [](const Pix& A, const Pix& B) { return A.Y < B.Y; });
        EXPECT_FALSE(Top->Y < 199.8 && Bottom->Y > 200.2);
    }
    EXPECT_NEAR(Sum, shapes::Area_2(Tip), 1e-6);
    EXPECT_EQ(reference::Messages, Texts{});
}

TEST_F(Reference_Polygons, TooManyCutsEndTheCutting) {
    Make_Map_100();
    // A W, brought past the convex split.
    shapes::Add_Polygon(
        {{110, 110}, {150, 250}, {190, 110}, {230, 250}, {270, 110}, {270, 290}, {110, 290}});
    reference::Poly_Collect(0);
    reference::Poly_Cut_Cells(0);
    EXPECT_EQ(reference::Messages, Texts{"Anormal Lat decoupe LOD13_8"});
    EXPECT_EQ(reference::Nb_WPoly, 1) << "as the line before left it";
}

TEST_F(Reference_Polygons, LocalRepeats) {
    Make_Map_100();
    const Long I = shapes::Add_Polygon({{310, 310}, {330, 350}});
    const auto Place = [&](const Outline& O) {
        reference::Reset();
        for (const Pix P : O) reference::Tab_WPt.Append({.X = P.X, .Y = P.Y});
        reference::Tab_WPoly.Append({.Num = Tab_Obj[I].Num,
                                     .Attr = &Tab_Obj[I].Attr,
                                     .First = 1,
                                     .Last = reference::Nb_WPt,
                                     .Nb = reference::Nb_WPt});
        reference::Poly_To_Cells(0);
        return reference::Nb_CPoly == 0 ? 0 : reference::Tab_CPoly[1].Nb;
    };
    EXPECT_EQ(Place({{310, 310}, {310.01, 310}, {310, 310.01}, {350, 310}, {330, 350}}), 4)
        << "three alike leave two";
    EXPECT_EQ(Place({{310, 310}, {350, 310}, {330, 350}, {310.01, 310}}), 3)
        << "the last is compared with the first";
    EXPECT_EQ(Place({{310, 310}, {310.01, 310}, {330, 350}}), 0);
    EXPECT_EQ(Place({{310, 310}, {330, 350}}), 2);
    EXPECT_EQ(reference::Tab_CPt[2].LocX, 77) << "30 of 100 pixels on 255";
    EXPECT_EQ(reference::Tab_CPt[2].LocY, 128);
}

Outline Square(Double West, Double North, Double Side) {
    return {{West, North}, {West + Side, North}, {West + Side, North + Side}, {West, North + Side}};
}

// Draw_Order and Group_Root of each object, by Num.
std::map<Long, std::pair<Long, Long>> Orders() {
    reference::Poly_Collect(0);
    reference::Imbric_Order();
    EXPECT_EQ(reference::Auto_Order(), 0);
    if (reference::Has_Auto != 0) reference::Auto_Tree();
    std::map<Long, std::pair<Long, Long>> Out;
    for (const WPoly& W : reference::Tab_WPoly.Rows()) Out[W.Num] = {W.Draw_Order, W.Group_Root};
    return Out;
}

TEST_F(Reference_Polygons, NestingByPlace) {
    shapes::Add_Polygon(Square(30, 30, 5));    // 1: in 2
    shapes::Add_Polygon(Square(20, 20, 30));   // 2: in 3
    shapes::Add_Polygon(Square(10, 10, 100));  // 3
    shapes::Add_Polygon(Square(60, 60, 10));   // 4: in 3
    shapes::Add_Polygon(Square(200, 10, 50));  // 5
    const auto Got = Orders();
    EXPECT_EQ(Got.at(3), std::pair(4, 3)) << "outermost, written first";
    EXPECT_EQ(Got.at(2), std::pair(2, 3));
    EXPECT_EQ(Got.at(1), std::pair(1, 3));
    EXPECT_EQ(Got.at(4), std::pair(3, 3));
    EXPECT_EQ(Got.at(5), std::pair(1, 5));
}

TEST_F(Reference_Polygons, TwoPointsNestButAreNotNumbered) {
    shapes::Add_Polygon(Square(10, 10, 100));     // 1
    shapes::Add_Polygon(Square(20, 20, 50));      // 2: in 1
    shapes::Add_Polygon({{30, 30}, {40, 45}});    // 3: in 2
    shapes::Add_Polygon({{200, 10}, {230, 10}});  // 4: alone
    const auto Got = Orders();
    EXPECT_EQ(Got.at(1), std::pair(2, 1));
    EXPECT_EQ(Got.at(2), std::pair(1, 1));
    EXPECT_EQ(Got.at(3), std::pair(0, 1));
    EXPECT_EQ(Got.at(4), std::pair(1, 4)) << "a root is numbered whatever it is";
}

TEST_F(Reference_Polygons, NestingByText) {
    shapes::Add_Polygon(Square(10, 10, 9), 0, "AC_01");  // 1
    shapes::Add_Polygon(Square(10, 10, 9), 0, "AB_02");  // 2
    shapes::Add_Polygon(Square(10, 10, 9), 0, "AB_01");  // 3
    shapes::Add_Polygon(Square(50, 50, 9));              // 4: by place
    const auto Got = Orders();
    EXPECT_EQ(Got.at(1), std::pair(1, 1));
    EXPECT_EQ(Got.at(2), std::pair(2, 2));
    EXPECT_EQ(Got.at(3), std::pair(1, 2));
    EXPECT_EQ(Got.at(4), std::pair(1, 4));
    EXPECT_EQ(reference::Has_Imbric, 1);
    EXPECT_EQ(reference::Has_Auto, 1);
}

TEST_F(Reference_Polygons, PiecesStandByCellThenGroupThenOutermostFirst) {
    Make_Map_100();
    shapes::Add_Polygon(Square(320, 320, 20));   // 1: in 2
    shapes::Add_Polygon(Square(310, 310, 120));  // 2: over four Cells
    shapes::Add_Polygon(Square(450, 350, 10));   // 3
    reference::Poly_Prepare(0);
    reference::Poly_To_Cells(0);
    struct Place {
        int Row, Col;
        Long Num;
        bool operator==(const Place&) const = default;
    };
    std::vector<Place> Got;
    for (const CPoly& P : reference::Tab_CPoly.Rows())
        Got.push_back(
            {P.AreaLat * 32 + P.CellLat - 4096, P.AreaLon * 32 + P.CellLon - 12288, P.Num});
    EXPECT_EQ(Got, (std::vector<Place>{
                       {3, 3, 2}, {3, 3, 1}, {3, 4, 2}, {3, 4, 3}, {4, 3, 2}, {4, 4, 2}}));
}

bool Contains(const Outline& O, Pix P) {
    bool Inside = false;
    for (std::size_t i = 0, j = O.size() - 1; i < O.size(); j = i++)
        if ((O[i].Y > P.Y) != (O[j].Y > P.Y) &&
            (Exact_Turn(O[j], O[i], P) > 0) == (O[i].Y > O[j].Y))
            Inside = !Inside;
    return Inside;
}

TEST_F(Reference_Polygons, NestingAgreesWithContainment) {
    Long Nested = 0;
    for (std::uint64_t Seed = 1; Seed <= 150; ++Seed) {
        SCOPED_TRACE(Seed);
        reference::Reset();
        shapes::Make_Project(Seed, Kind::Nested);
        const auto Got = Orders();
        const std::vector<Outline> All = Pieces();
        const auto Rows = reference::Tab_WPoly.Rows();
        for (std::size_t a = 0; a < All.size(); ++a)
            for (std::size_t b = 0; b < All.size(); ++b) {
                if (a == b || !Contains(All[b], All[a][0])) continue;
                ++Nested;
                EXPECT_EQ(Rows[a].Group_Root, Rows[b].Group_Root);
                EXPECT_LT(Rows[a].Draw_Order, Rows[b].Draw_Order);
            }
        for (const WPoly& W : Rows) {
            const WPoly& Root = *std::find_if(
                Rows.begin(), Rows.end(), [&](const WPoly& R) { return R.Num == W.Group_Root; });
            EXPECT_TRUE(Root.Num == W.Num || Contains(Points_Of(Root), Points_Of(W)[0]));
        }
    }
    EXPECT_GT(Nested, 500);
}

// The cleaned outlines, when all of them are simple and none crosses another.
bool All_Simple() {
    for (const WPoly& W : reference::Tab_WPoly.Rows())
        if (W.Nb > 2 && !shapes::Is_Simple(Points_Of(W))) return false;
    return true;
}

struct Extent {
    Double Area = 0.0;
    bool Large = false;
};

std::map<Long, Extent> Extents() {
    std::map<Long, Extent> Out;
    for (const WPoly& W : reference::Tab_WPoly.Rows()) {
        Out[W.Num].Area += shapes::Area_2(Points_Of(W));
        Out[W.Num].Large = W.Nb >= 60;
    }
    return Out;
}

// The first fan of a large convex piece and the second share a triangle, which counts twice.
void Expect_Same_Areas(const std::map<Long, Extent>& Before) {
    const std::map<Long, Extent> After = Extents();
    for (const auto& [Num, E] : Before) {
        const Double Slack = 1e-6 + 1e-9 * E.Area;
        EXPECT_GT(After.at(Num).Area, E.Area - Slack) << "object " << Num;
        EXPECT_TRUE(E.Large || After.at(Num).Area < E.Area + Slack) << "object " << Num;
    }
}

void Expect_Convex(const Outline& O) {
    EXPECT_LT(O.size(), 60U);
    for (std::size_t i = 0; i < O.size(); ++i) {
        const Double Z = Cross_Z(O[i], O[(i + 1) % O.size()], O[(i + 2) % O.size()]);
        EXPECT_GT(Z, -1e-6) << "point " << i;
    }
}

// Pieces that hold a point of their own outline inside would overlap others.
void Expect_Empty_Inside(const std::map<Long, Outline>& Outlines) {
    for (const WPoly& W : reference::Tab_WPoly.Rows()) {
        const Outline Piece = Points_Of(W);
        for (const Pix P : Outlines.at(W.Num)) {
            bool Inside = Piece.size() > 2;
            for (std::size_t i = 0; i < Piece.size() && Inside; ++i)
                Inside = Cross_Z(Piece[i], Piece[(i + 1) % Piece.size()], P) > 1e-6;
            EXPECT_FALSE(Inside) << "object " << W.Num << " at " << P.X << " " << P.Y;
        }
    }
}

// Local coordinates of the last check: a piece lies in one cell when every point stands, within
// one unit, where the formula without snapping puts it.
void Expect_In_One_Cell(const CPoly& P, Int Mode) {
    const Double Units = Mode == 2 ? Loc_Area_Span : 255, First = Mode == 2 ? Loc_Area_Origin : 0;
    const Geo Corner = Mode == 2 ? Area_Corner(P.AreaLon, P.AreaLat)
                                 : Cell_Corner({P.AreaLon, P.AreaLat, P.CellLon, P.CellLat});
    const Double StepLat = Mode == 2 ? Area_StepLat : Cell_StepLat;
    const Double StepLon = Mode == 2 ? Area_StepLon : Cell_StepLon;
    for (Long I = P.First; I <= P.Last; ++I) {
        const CPt& C = reference::Tab_CPt[I];
        const Geo G = Pixel_To_LatLon({C.X, C.Y});
        EXPECT_NEAR(C.LocX, First + (G.Lon - Corner.Lon) / StepLon * Units, 1.01);
        EXPECT_NEAR(C.LocY, First + (Corner.Lat - G.Lat) / StepLat * Units, 1.01);
        EXPECT_TRUE(First <= C.LocX && C.LocX <= First + Units);
        EXPECT_TRUE(First <= C.LocY && C.LocY <= First + Units);
    }
}

class Reference_Properties : public testing::TestWithParam<int> {};

TEST_P(Reference_Properties, HoldForSimpleDrawings) {
    const Kind K = static_cast<Kind>(GetParam());
    Long Checked = 0;
    for (std::uint64_t Seed = 1; Seed <= 60; ++Seed) {
        SCOPED_TRACE(Seed);
        const Int Mode = Seed % 3 == 0 ? 2 : 0;
        reference::Reset();
        shapes::Make_Project(Seed, K, Mode);
        reference::Poly_Collect(Mode);
        if (!All_Simple() || reference::Poly_Self_Cross() != 0) continue;
        const auto Before = Extents();
        std::map<Long, Outline> Outlines;
        for (const WPoly& W : reference::Tab_WPoly.Rows()) Outlines[W.Num] = Points_Of(W);
        reference::Poly_Split_Max(60);
        Expect_Same_Areas(Before);
        Expect_Empty_Inside(Outlines);
        for (const Outline& O : Pieces()) Expect_Convex(O);
        reference::Poly_Cut_Cells(Mode);
        Expect_Same_Areas(Before);
        for (const Outline& O : Pieces()) EXPECT_GT(shapes::Area_2(O), -1e-6);
        EXPECT_EQ(reference::Messages, Texts{});
        reference::Poly_To_Cells(Mode);
        for (const CPoly& P : reference::Tab_CPoly.Rows()) Expect_In_One_Cell(P, Mode);
        ++Checked;
        if (testing::Test::HasFailure()) break;
    }
    EXPECT_GT(Checked, 5);
    Model_Reset();
    reference::Reset();
}

INSTANTIATE_TEST_SUITE_P(AllKinds, Reference_Properties, testing::Range(0, shapes::Nb_Kind));

}  // namespace
