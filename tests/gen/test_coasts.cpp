// test_coasts.cpp - coastlines from the drawn line to the surfaces of the Cells.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "core/number_text.h"
#include "emit_test.h"
#include "gen/coast_generate.h"
#include "gen/emit_lwm_poly.h"
#include "geometry/box.h"
#include "geometry/segments.h"
#include "grid/grid_lines.h"
#include "reference/coasts.h"
#include "reference/shapes.h"
#include "shapes/coast/coast_close.h"
#include "shapes/coast/coast_cut.h"
#include "shapes/coast/coast_fill.h"
#include "shapes/coast/coast_polys.h"
#include "shapes/coast/coast_to_cells.h"

namespace {

using shapes::Outline;
using shapes::Random;

constexpr Int Side_Cells = 8;
constexpr Double Map_Px = Side_Cells * Cell_Px;

/// A map of 8 by 8 Cells, Cell (0, 0) of Area (100, 50) in the north-west.
class Coast_Test : public Emit_Test {
protected:
    Coast_Test() {
        The_Calibration.LatPtSE = LatPtNW - Side_Cells * Cell_StepLat;
        The_Calibration.LonPtSE = LonPtNW + Side_Cells * Cell_StepLon;
        XPtSE = YPtSE = static_cast<Long>(Map_Px);
        Map_Width = Map_Height = XPtSE;
        Compute_Map_Limits(The_Calibration, Map_Width, Map_Height);
        Coast.SurfShore = 3;
    }

    void Draw_Coast(const Outline& Line) const { Draw(Line, Coast); }

    /// The line as the cutting takes it, past collecting and cutting.
    static void Put_Line(const Outline& Line) {
        static const Attr None;
        const Long First = Nb_WPt + 1;
        for (const Pix P : Line) Tab_WPt.Append({.X = P.X, .Y = P.Y});
        Tab_WPoly.Append(
            {.Attr = &None, .First = First, .Last = Nb_WPt, .Nb = static_cast<Long>(Line.size())});
    }
    static Outline Points_Of(const WPoly& W) {
        Outline Line;
        for (Long I = W.First; I <= W.Last; ++I) Line.push_back(To_Pix(Tab_WPt[I]));
        return Line;
    }
    /// The outline that a line is closed to, cut before or as it is; empty when there is none.
    static Outline Closed(const Outline& Line, bool Cut) {
        Work_Lists_Reset();
        Put_Line(Line);
        if (Cut) Coast_Cut_Cells();
        if (Nb_WPoly > 0) Coast_Close();
        return Nb_WPoly > 0 ? Points_Of(Tab_WPoly[1]) : Outline();
    }
    /// A line with all its crossings, given in Cells, closed, as a text in Cells.
    static std::string Closed_In_Cells(const Outline& Line) {
        return In_Cells(Closed(In_Pixels(Line), false));
    }
    /// The points that close any line.
    static std::string Way_Back(const Outline& Line) {
        const std::string Text = In_Cells(Closed(In_Pixels(Line), true));
        const std::string End = In_Cells({In_Pixels(Line).back()});
        return Text.substr(Text.find(End) + End.size());
    }
    static Outline In_Pixels(Outline Cells) {
        for (Pix& P : Cells) P = {P.X * Cell_Px, P.Y * Cell_Px};
        return Cells;
    }
    static std::string In_Cells(const Outline& Pixels) {
        std::string Text;
        for (const Pix P : Pixels) Text += Short(P.X / Cell_Px) + "," + Short(P.Y / Cell_Px) + " ";
        return Text;
    }
    static std::string Short(Double V) {
        return std::string(Num_Text(std::round(V * 1000) / 1000));
    }

    Attr Coast;
};

// Column and row of a Cell from the map's corner.
using Cell = std::pair<Long, Long>;

Cell Cell_Of(const CPoly& P) {
    return {(P.AreaLon - 100) * 32 + P.CellLon, (P.AreaLat - 50) * 32 + P.CellLat};
}

struct Surface {
    Double Area = 0.0;  // in units of the Cell's scale
    Long Nb = 0;
};

// What the pieces of each Cell cover together. Each runs clockwise, but for
// slivers that the rounding has turned.
std::map<Cell, Surface> Surfaces() {
    std::map<Cell, Surface> Found;
    for (const CPoly& P : Tab_CCoast.Rows()) {
        Outline O;
        for (Long I = P.First; I <= P.Last; ++I)
            O.push_back({1.0 * Tab_CCoastPt[I].LocX, 1.0 * Tab_CCoastPt[I].LocY});
        EXPECT_GE(shapes::Area_2(O), -2 * Cell_Px) << "a piece runs the wrong way";
        Surface& S = Found[Cell_Of(P)];
        S.Area += shapes::Area_2(O) / 2;
        ++S.Nb;
    }
    return Found;
}

// What of an outline lies on one side of a line across X or Y.
template <typename Of, typename At>
Outline Half(const Outline& O, Of Inside_By, At Meet) {
    Outline Out;
    for (std::size_t I = 0; I < O.size(); ++I) {
        const Pix P = O[I], Q = O[(I + 1) % O.size()];
        const Double p = Inside_By(P), q = Inside_By(Q);
        if (p >= 0) Out.push_back(P);
        if ((p < 0) != (q < 0)) Out.push_back(Meet(P, Q, p / (p - q)));
    }
    return Out;
}

// The area of an outline inside a Cell.
Double Area_In(Outline O, Cell C) {
    const auto Meet = [](Pix P, Pix Q, Double t) {
        return Pix{P.X + t * (Q.X - P.X), P.Y + t * (Q.Y - P.Y)};
    };
    const Double X = Cell_Px * static_cast<Double>(C.first),
                 Y = Cell_Px * static_cast<Double>(C.second);
    O = Half(
        O, [&](Pix P) { return P.X - X; }, Meet);
    O = Half(
        O, [&](Pix P) { return X + Cell_Px - P.X; }, Meet);
    O = Half(
        O, [&](Pix P) { return P.Y - Y; }, Meet);
    O = Half(
        O, [&](Pix P) { return Y + Cell_Px - P.Y; }, Meet);
    return O.size() < 3 ? 0.0 : shapes::Area_2(O) / 2;
}

Double Length_In(const Outline& Line, Cell C) {
    const Double X = Cell_Px * static_cast<Double>(C.first),
                 Y = Cell_Px * static_cast<Double>(C.second);
    Double Length = 0.0;
    for (std::size_t I = 1; I < Line.size(); ++I) {
        constexpr int Steps = 64;
        const Pix A = Line[I - 1], B = Line[I];
        for (int S = 0; S < Steps; ++S) {
            const Double t = (S + 0.5) / Steps;
            const Double x = A.X + t * (B.X - A.X) - X, y = A.Y + t * (B.Y - A.Y) - Y;
            if (-2 < x && x < Cell_Px + 2 && -2 < y && y < Cell_Px + 2)
                Length += std::hypot(B.X - A.X, B.Y - A.Y) / Steps;
        }
    }
    return Length;
}

// Each Cell of the map has the pieces of one side of the line: as much as lies right of it there,
// or none where all or nothing lies right of it. Loop is the line closed far outside the map. A
// point strays by half a unit, or by a whole one at an edge; so do the seams of the pieces.
void Expect_One_Side(const Outline& Line, const Outline& Loop) {
    auto Found = Surfaces();
    for (Long Y = 0; Y < Side_Cells; ++Y)
        for (Long X = 0; X < Side_Cells; ++X) {
            const Surface Got = Found[{X, Y}];
            const Double Wanted = Area_In(Loop, {X, Y});
            const Double Slack =
                4 + 1.5 * Length_In(Line, {X, Y}) + Cell_Px / 2 * static_cast<Double>(Got.Nb);
            const bool Is_Full = Wanted > Cell_Px * Cell_Px - Slack;
            EXPECT_TRUE(std::abs(Got.Area - Wanted) < Slack || (Got.Area == 0 && Is_Full))
                << "Cell " << X << " " << Y << ": " << Got.Area << " of " << Wanted;
        }
}

// A point on the square round the map, Out pixels off it; Way counts the sides clockwise from the
// north-west corner.
Pix Round_The_Map(Double Way, Double Out) {
    const Double Low = -Out, High = Map_Px + Out, t = (Way - std::floor(Way)) * (High - Low);
    switch (static_cast<int>(Way) % 4) {
        case 0:
            return {Low + t, Low};
        case 1:
            return {High, Low + t};
        case 2:
            return {High - t, High};
        default:
            return {Low, High - t};
    }
}

constexpr Double Out_Px = 700;

// From one place outside the map straight in, across it, wavering, with points off and on grid
// lines, and straight out to another place.
Outline Wavering(Random& R, Double From, Double To, Long Nb) {
    const auto On_Map = [](Pix P) {
        return Pix{std::clamp(P.X, 0.0, Map_Px), std::clamp(P.Y, 0.0, Map_Px)};
    };
    const Pix Start = Round_The_Map(From, Out_Px), End = Round_The_Map(To, Out_Px);
    const Pix A = On_Map(Start), B = On_Map(End);
    const Pix Mid{Map_Px * R.Between(0.2, 0.8), Map_Px * R.Between(0.2, 0.8)};
    Outline Line{Start, A};
    for (Long I = 1; I < Nb; ++I) {
        const Double t = static_cast<Double>(I) / static_cast<Double>(Nb), u = 1 - t;
        Pix P{u * u * A.X + 2 * t * u * Mid.X + t * t * B.X + R.Between(-50, 50),
              u * u * A.Y + 2 * t * u * Mid.Y + t * t * B.Y + R.Between(-50, 50)};
        if (R.Chance(0.1)) P.X = Cell_Px * std::round(P.X / Cell_Px);
        if (R.Chance(0.1)) P.Y = Cell_Px * std::round(P.Y / Cell_Px);
        Line.push_back(On_Map(P));
    }
    Line.push_back(B);
    Line.push_back(End);
    return Line;
}

// The line closed clockwise round the map.
Outline Closed_Outside(Outline Line, Double From, Double To) {
    for (Double Corner = std::floor(To) + 1; Corner < (From > To ? From : From + 4); ++Corner)
        Line.push_back(Round_The_Map(Corner, Out_Px));
    return Line;
}

bool Has_No_Crossing(const Outline& Line) {
    for (std::size_t I = 1; I < Line.size(); ++I)
        for (std::size_t J = I + 2; J < Line.size(); ++J)
            if (Seg_Cross(Line[I - 1], Line[I], Line[J - 1], Line[J]).Code >= ::Meet::Cross) return false;
    return true;
}

// Whether the points of a closed line that were drawn still make a line that does not touch
// itself, now that they have moved onto the scales of their Cells.
bool Stays_Apart(const Outline& Loop, const Outline& Drawn) {
    Box_Pix Box;
    for (const Pix P : Drawn) Box.Add(P);
    Outline Line;
    for (const Pix P : Loop)
        if (In_Span(P.X, Box.LX - 2, Box.HX + 2) && In_Span(P.Y, Box.LY - 2, Box.HY + 2))
            Line.push_back(P);
    return Has_No_Crossing(Line);
}

TEST_F(Coast_Test, EachCellHasOneSideOfALineThroughTheMap) {
    Random R(3);
    int Checked = 0;
    for (int Side = 0; Side < 16; ++Side)
        for (int Round = 0; Round < 8; ++Round) {
            const Double From = Side / 4 + R.Between(0.3, 0.7), To = Side % 4 + R.Between(0.3, 0.7);
            const Outline Line = Wavering(R, From, To, R.Whole(1, 40));
            if (!Has_No_Crossing(Line) || !Stays_Apart(Closed(Line, true), Line)) continue;
            SCOPED_TRACE(testing::Message()
                         << "from side " << Side / 4 << " to " << Side % 4 << ", round " << Round);
            Init_Tables();
            Coast.LandOnRight = static_cast<Int>(Round % 2);
            Outline Drawn = Line;
            if (Coast.LandOnRight == 1) std::reverse(Drawn.begin(), Drawn.end());
            Draw_Coast(Drawn);
            Coast_Generate();
            EXPECT_EQ(Host_Of_Test.Last_Message(), -1);
            EXPECT_GT(Nb_CCoast, 0);
            Expect_One_Side(Line, Closed_Outside(Line, From, To));
            ++Checked;
            if (HasFailure()) return;
        }
    EXPECT_GT(Checked, 60);
}

// The line and its way back make a simple outline, clockwise, whose pieces are its surface.
TEST_F(Coast_Test, LinesThatEndOnTheMapAreClosedByConnectors) {
    Random R(5);
    const auto Some_Way = [&](Long Side) {
        return static_cast<Double>(Side) + R.Between(0.3, 0.7);
    };
    int Checked = 0;
    for (int Round = 0; Round < 300; ++Round) {
        SCOPED_TRACE(Round);
        Outline Line =
            Wavering(R, Some_Way(R.Whole(0, 3)), Some_Way(R.Whole(0, 3)), R.Whole(10, 40));
        Line.resize(static_cast<std::size_t>(R.Whole(6, static_cast<Long>(Line.size()))));
        if (R.Chance(0.5)) Line.erase(Line.begin(), Line.begin() + R.Whole(0, 4));
        if (R.Chance(0.5)) std::reverse(Line.begin(), Line.end());
        if (!Has_No_Crossing(Line)) continue;
        Outline Loop = Closed(Line, true);
        if (Loop.empty()) continue;
        Loop.erase(std::unique(Loop.begin(), Loop.end()), Loop.end());
        if (!Stays_Apart(Loop, Line)) continue;
        Coast_Polys();
        Coast_To_Cells();
        EXPECT_TRUE(Has_No_Crossing(Loop));
        EXPECT_GE(shapes::Area_2(Loop), 0.0);
        Expect_One_Side(Loop, Loop);
        ++Checked;
        if (HasFailure()) return;
    }
    EXPECT_GT(Checked, 100);
}

TEST_F(Coast_Test, EndsOnOneGridLineAreJoinedStraight) {
    EXPECT_EQ(Closed_In_Cells({{1, 4}, {2, 3}, {3, 4}}), "1,4 2,3 3,4 ") << "clockwise, north";
    EXPECT_EQ(Closed_In_Cells({{3, 4}, {2, 5}, {1, 4}}), "3,4 2,5 1,4 ") << "clockwise, south";
    EXPECT_EQ(Closed_In_Cells({{4, 1}, {5, 2}, {4, 3}}), "4,1 5,2 4,3 ") << "clockwise, east";
    EXPECT_EQ(Closed_In_Cells({{4, 3}, {3, 2}, {4, 1}}), "4,3 3,2 4,1 ") << "clockwise, west";
    EXPECT_EQ(Closed_In_Cells({{1, 4}, {2, 5}, {3, 4}}), "1,4 2,5 3,4 3,3 4,3 4,6 1,6 ")
        << "anticlockwise: out northwards, round, in from the south";
}

// From the end straight out, clockwise past the corners, straight in to the start.
TEST_F(Coast_Test, FramesAreWalkedClockwise) {
    EXPECT_EQ(Way_Back({{8, 2.4}, {5, 4}, {8, 5.6}}), "8,7 4,7 4,1 8,1 ")
        << "no way out past the start; no corner but the western ones";
    EXPECT_EQ(Way_Back({{8, 5.6}, {5, 4}, {8, 2.4}}), "") << "straight";
    EXPECT_EQ(Way_Back({{2, 3.2}, {3, 3}, {3.6, 4}}), "5,4 5,5 2,5 ");
    EXPECT_EQ(Way_Back({{3.6, 4}, {3, 3}, {2, 3.2}}), "2,2 5,2 5,4 ");
    EXPECT_EQ(Way_Back({{2, 2.6}, {3, 2}, {3, 3}, {2.4, 4}}), "4,4 4,5 2,5 ")
        << "the frame lies one Cell off, though the outermost points count to the Cell east";
    EXPECT_EQ(Way_Back({{3, 4.2}, {2.4, 5}, {3, 6.4}, {5, 4.2}}), "5,3 6,3 6,8 1,8 1,3 3,3 ")
        << "in on the side where it went out, behind there, after a full turn";
}

TEST_F(Coast_Test, RepeatedEndsGo) {
    EXPECT_EQ(Closed_In_Cells({{1, 4}, {1.0001, 4}, {2, 3}, {3, 4}, {3, 4.0001}}), "1,4 2,3 3,4 ");
    EXPECT_EQ(Closed_In_Cells({{1, 4}, {1.0001, 4}, {1, 4.0001}}), "");
    EXPECT_EQ(Host_Of_Test.Last_Message(), -1);
}

TEST_F(Coast_Test, LinesAreShortenedToEdges) {
    const auto Cut = [](const Outline& Cells) {
        Work_Lists_Reset();
        Put_Line(In_Pixels(Cells));
        Coast_Cut_Cells();
        return Nb_WPoly > 0 ? In_Cells(Points_Of(Tab_WPoly[1])) : std::string();
    };
    EXPECT_EQ(Cut({{1.5, 1.25}, {3.5, 2.25}}), "2,1.5 3,2 ") << "a corner is one point";
    EXPECT_EQ(Cut({{1.5, 1.5}, {2.5, 1.5}}), "") << "one edge only";
    EXPECT_EQ(Cut({{1.2, 1.2}, {1.5, 1.3}, {1.8, 1.8}}), "") << "inside a Cell";
    EXPECT_EQ(Cut({{1, 1.2}, {1.5, 1.3}, {1.8, 1.8}}), "") << "inside with one end on an edge";
    EXPECT_EQ(Cut({{1, 1.2}, {1.5, 1.3}, {2, 1.8}}), "1,1.2 1.5,1.3 2,1.8 ");
    EXPECT_EQ(Host_Of_Test.Last_Message(), -1);
    EXPECT_EQ(Cut({{-10.5, -10.5}, {-12.3, -12.6}, {-14.1, -13.3}}), "");
    EXPECT_EQ(Host_Of_Test.Last_Message(), 132) << "over Cells so far off that none has edges";
}

TEST_F(Coast_Test, ACrossingLineStopsAllCoasts) {
    Draw_Coast({{-300, 300}, {2400, 310}});
    Draw_Coast({{300.5, 600.5}, {900.5, 1200.5}, {900.5, 600.5}, {300.5, 1200.5}});
    Coast_Generate();
    EXPECT_EQ(Host_Of_Test.Last_Message(), 121);
    EXPECT_NE(Host_Of_Test.Boxes.back().Text.find("Bmp pixel X:600 Y:900"), std::string::npos);
    EXPECT_EQ(Nb_CCoast + Nb_CCoastPt + Nb_WPoly + Nb_WPt, 0);
}

// The start lies in a bay that the line closes on every way in.
TEST_F(Coast_Test, AStartThatCannotBeReachedStopsAllCoasts) {
    Draw_Coast({{-300, 300}, {2400, 310}});
    Draw_Coast(In_Pixels(
        {{4, 4.2}, {4.5, 4.5}, {3.5, 5.5}, {2.5, 4.5}, {3.5, 2.5}, {6.5, 4.5}, {5, 7.3}}));
    Coast_Generate();
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 2U) << "told by the walk and by the closing";
    EXPECT_EQ(Host_Of_Test.Last_Message(), 132);
    EXPECT_EQ(Nb_CCoast + Nb_CCoastPt + Nb_WPoly + Nb_WPt, 0);
}

// Pieces given by their outlines on the scale of a Cell.
struct Pieces {
    Table<CPoly> Polys{20, 20};
    Table<CPt> Points{200, 200};

    void Add(const std::vector<std::pair<int, int>>& Outline) {
        CPoly P{.Nb = static_cast<Int>(Outline.size()), .First = Points.Nb() + 1};
        for (const auto& [X, Y] : Outline)
            Points.Append({.LocX = static_cast<Int>(X), .LocY = static_cast<Int>(Y)});
        P.Last = Points.Nb();
        Polys.Append(P);
    }
    bool Fill() const { return Fill_Test().Fill_Cell(Polys.Rows(), Points); }
};

TEST(Coast_Cells, FilledCells) {
    const auto Filled = [](std::initializer_list<std::vector<std::pair<int, int>>> Outlines) {
        Pieces P;
        for (const auto& O : Outlines) P.Add(O);
        return P.Fill();
    };
    EXPECT_TRUE(Filled({{{255, 255}, {0, 255}, {0, 0}, {255, 0}}}));
    EXPECT_TRUE(Filled({{{0, 0}, {90, 0}, {255, 0}, {255, 255}, {0, 255}}})) << "one point in line";
    EXPECT_FALSE(Filled({{{0, 0}, {0, 255}, {255, 255}, {255, 0}}})) << "anticlockwise";
    EXPECT_TRUE(Filled({{{0, 0}, {255, 0}, {0, 255}}, {{255, 0}, {255, 255}, {0, 255}}}));
    EXPECT_FALSE(Filled({{{0, 0}, {255, 0}, {0, 255}}}));
    EXPECT_FALSE(Filled({{{0, 0}, {255, 0}, {0, 255}}, {{254, 0}, {255, 255}, {0, 255}}}));
}

// Cells divided at random places, sometimes with a piece missing or moved.
TEST(Coast_Cells, FilledCellsLikeThePlainSweeps) {
    Random R(7);
    std::map<bool, int> Seen;
    for (int Round = 0; Round < 4000; ++Round) {
        SCOPED_TRACE(Round);
        const int X = static_cast<int>(R.Whole(0, 255)), Y = static_cast<int>(R.Whole(0, 255));
        std::vector<std::vector<std::pair<int, int>>> All;
        const std::vector<std::pair<int, int>> Ring{{0, 0},     {X, 0},   {255, 0}, {255, Y},
                                                    {255, 255}, {X, 255}, {0, 255}, {0, Y}};
        for (std::size_t I = 0; I < 8; I += 2)
            All.push_back({Ring[I], Ring[I + 1], {X, Y}, Ring[(I + 7) % 8]});
        if (R.Chance(0.3)) {
            const auto Q = All.back();
            All.back() = {Q[0], Q[1], Q[2]};
            All.push_back({Q[0], Q[2], Q[3]});
        }
        if (R.Chance(0.2)) All.push_back(All[static_cast<std::size_t>(R.Whole(0, 3))]);
        if (R.Chance(0.2)) All.erase(All.begin() + R.Whole(0, 3));
        if (R.Chance(0.2)) ++All[0][0].first;
        if (R.Chance(0.2)) std::reverse(All[1].begin(), All[1].end());
        for (std::size_t I = All.size() - 1; I > 0; --I)
            std::swap(All[I], All[static_cast<std::size_t>(R.Whole(0, static_cast<Long>(I)))]);
        Pieces P;
        for (auto& Outline : All) {
            std::rotate(Outline.begin(), Outline.begin() + R.Whole(0, 2), Outline.end());
            P.Add(Outline);
        }
        const bool Wanted = reference::Fill_Cell(P.Polys.Rows(), P.Points);
        ASSERT_EQ(P.Fill(), Wanted);
        ++Seen[Wanted];
    }
    EXPECT_GT(Seen[true], 500);
    EXPECT_GT(Seen[false], 500);
}

// Random lines over maps of all kinds, many points on grid lines or a tolerance or two off them.
TEST_F(Coast_Test, CrossingsLikePassAfterPass) {
    Random R(9);
    Long Added = 0;
    for (int Round = 0; Round < 120; ++Round) {
        SCOPED_TRACE(Round);
        shapes::Make_Map(R, R.Whole(1, 8), 0, R.Chance(0.5));
        const Grid_Lines Grid = Grid_Lines_Of(Coasts_By_Cell);
        const auto Some_Place = [&](std::span<const Double> Lines, Double Tol) {
            const auto K =
                static_cast<std::size_t>(R.Whole(0, static_cast<Long>(Lines.size()) - 2));
            if (R.Chance(0.7)) return Lines[K] + R.Between(-1, 2) * (Lines[K + 1] - Lines[K]);
            return Lines[K] + static_cast<Double>(R.Whole(-2, 2)) * Tol * R.Between(0.4, 1);
        };
        reference::Reset();
        std::vector<Outline> Lines(static_cast<std::size_t>(R.Whole(1, 4)));
        for (Outline& Line : Lines) {
            for (Long I = R.Whole(2, 12); I > 0; --I)
                Line.push_back({Some_Place(Grid.X, Grid.TolX), Some_Place(Grid.Y, Grid.TolY)});
            const Long First = reference::Nb_WPt + 1;
            for (const Pix P : Line) reference::Tab_WPt.Append({.X = P.X, .Y = P.Y});
            reference::Tab_WPoly.Append(
                {.First = First, .Last = reference::Nb_WPt, .Nb = static_cast<Long>(Line.size())});
        }
        reference::Coast_Crossings();
        for (std::size_t K = 0; K < Lines.size(); ++K) {
            const WPoly& W = reference::Tab_WPoly[static_cast<Long>(K) + 1];
            Outline Wanted;
            for (Long I = W.First; I <= W.Last; ++I)
                Wanted.push_back(reference::Pix_Of(reference::Tab_WPt[I]));
            Added -= static_cast<Long>(Lines[K].size());
            Coast_Crossings(Grid, Lines[K]);
            Added += static_cast<Long>(Lines[K].size());
            ASSERT_EQ(Lines[K], Wanted);
        }
    }
    EXPECT_GT(Added, 2000);
    reference::Reset();
}

TEST_F(Coast_Test, SurfacesOfWholeCellsAreLeftToFills) {
    Outline Line = In_Pixels({{1, 9}, {1, 1}, {4, 1}, {4, 9}});
    Draw_Coast(Line);
    Coast_Generate();
    for (const auto& [C, S] : Surfaces()) EXPECT_EQ(S.Area, 0.0) << C.first << " " << C.second;
    Init_Tables();
    Line[1].X += 60;
    Line[0].X += 60;
    Draw_Coast(Line);
    Coast_Generate();
    auto Found = Surfaces();
    for (Long Y = 0; Y <= 9; ++Y)
        for (Long X = 0; X <= 4; ++X) {
            const bool Cut = X == 1 && Y >= 1 && Y <= 8;
            EXPECT_EQ((Found[{X, Y}].Area), Cut ? (255.0 - 60) * 255 : 0.0) << X << " " << Y;
        }
}

}  // namespace
