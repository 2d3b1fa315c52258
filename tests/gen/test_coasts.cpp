// test_coasts.cpp - coastlines from the drawn line to the surfaces of the Cells: worked examples in
// rows, what must hold for any line, and what was accepted for random ones.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "gen/coast_generate.h"
#include "gen_test.h"
#include "geometry/box.h"
#include "geometry/segments.h"
#include "reference/compare.h"
#include "shapes.h"
#include "shapes/coast/coast_close.h"
#include "shapes/coast/coast_cut.h"
#include "shapes/coast/coast_polys.h"
#include "shapes/coast/coast_to_cells.h"
#include "shapes/poly/poly_collect.h"
#include "support/golden.h"
#include "support/rows.h"

namespace {

using shapes::Outline;
using shapes::Random;

constexpr Int Side_Cells = 8;
constexpr Double Cell_Px = 255, Map_Px = Side_Cells * Cell_Px;

/// A map of 8 by 8 Cells, Cell (0, 0) of Area (100, 50) in the north-west.
class Coast_Test : public Gen_Test {
protected:
    Coast_Test() {
        Make_Small_Map();
        Coast.SurfShore = Surf_Coast;
    }

    static void Make_Small_Map() {
        Make_Map(Side_Cells);
        Map_Width = Map_Height = XPtSE;
        Compute_Map_Limits(The_Calibration, Map_Width, Map_Height);
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

    static Outline In_Pixels(const std::string& Cells) {
        const std::vector<double> V = Cell_Numbers(Cells);
        Outline Line;
        for (std::size_t I = 0; I + 1 < V.size(); I += 2)
            Line.push_back({V[I] * Cell_Px, V[I + 1] * Cell_Px});
        return Line;
    }
    static std::string In_Cells(const Outline& Pixels) {
        reference::Poly W;
        for (const Pix P : Pixels) W.P.push_back({.X = P.X / Cell_Px, .Y = P.Y / Cell_Px});
        return reference::Text_Of(W);
    }
    static std::string Cut(const std::string& Line) {
        Work_Lists_Reset();
        Put_Line(In_Pixels(Line));
        Coast_Cut_Cells();
        return Nb_WPoly > 0 ? In_Cells(Points_Of(Tab_WPoly[1])) : std::string();
    }
    /// The points that close any line.
    static std::string Way_Back(const std::string& Cells) {
        const Outline Line = In_Pixels(Cells), Loop = Closed(Line, true);
        const auto End = std::find_if(Loop.begin(), Loop.end(), [&](Pix P) {
            return std::hypot(P.X - Line.back().X, P.Y - Line.back().Y) < 1;
        });
        return End == Loop.end() ? "" : In_Cells(Outline(End + 1, Loop.end()));
    }

    Attr Coast;
};

TEST_F(Coast_Test, AsInTheRows) {
    const auto Told = [this](std::string Text) {
        const std::string Messages = reference::Messages(Host_Of_Test);
        Host_Of_Test.Boxes.clear();
        return Messages + (Messages.empty() || Text.empty() ? "" : ", ") + Text;
    };
    Expect_Rows(
        "coasts",
        {{"Close",
          [&](const Row_Cells& C) { return Told(In_Cells(Closed(In_Pixels(C[0]), false))); }},
         {"Way_Back", [&](const Row_Cells& C) { return Told(Way_Back(C[0])); }},
         {"Cut", [&](const Row_Cells& C) { return Told(Cut(C[0])); }},
         {"Generate", [&](const Row_Cells& C) {
              Init_Tables();
              for (const std::string& Line : C) Draw_Coast(In_Pixels(Line));
              Coast_Generate();
              EXPECT_EQ(Nb_WPoly + Nb_WPt, 0);
              return Told(std::to_string(Nb_CCoast) + " pieces");
          }}});
}

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
            if (Seg_Cross(Line[I - 1], Line[I], Line[J - 1], Line[J]).Code >= ::Meet::Cross)
                return false;
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
        const Double From = Some_Way(R.Whole(0, 3)), To = Some_Way(R.Whole(0, 3));
        Outline Line = Wavering(R, From, To, R.Whole(10, 40));
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

TEST_F(Coast_Test, SurfacesOfWholeCellsAreLeftToFills) {
    for (const Double Off : {0.0, 60.0}) {
        Outline Line = In_Pixels("1,9 1,1 4,1 4,9");
        Line[0].X += Off;
        Line[1].X += Off;
        Init_Tables();
        Draw_Coast(Line);
        Coast_Generate();
        auto Found = Surfaces();
        for (Long Y = 0; Y <= 9; ++Y)
            for (Long X = 0; X <= 4; ++X) {
                const bool Cut = Off > 0 && X == 1 && Y >= 1 && Y <= 8;
                EXPECT_EQ((Found[{X, Y}].Area), Cut ? (255.0 - 60) * 255 : 0.0) << X << " " << Y;
            }
    }
}

// Open outlines of all kinds, or lines across the map, some with points on the grid.
void Draw_Coasts(std::uint64_t Seed) {
    Random R(Seed);
    if (Seed % 2 == 0) {
        shapes::Make_Project(Seed / 2, static_cast<shapes::Kind>(Seed / 2 % shapes::Nb_Kind));
    } else {
        const Double From = R.Between(0, 4), To = R.Between(0, 4);
        Outline O = Wavering(R, From, To, R.Whole(1, 60));
        if (Seed % 5 == 0) O = shapes::Snapped_To_Grid(R, O, Mode_LWM);
        if (Seed % 7 == 0) O.resize(O.size() - 2);
        shapes::Add_Polygon(Seed % 3 == 0 ? shapes::With_Repeats(R, O) : O);
    }
    for (Obj& O : Tab_Obj.Edit_Rows()) {
        O.Attr.SurfShore = Surf_Coast;
        O.Attr.LandOnRight = static_cast<Int>(R.Whole(0, 1));
    }
}

// Pieces, points and a sum over all places on the scales of their Cells, drawing by drawing.
TEST_F(Coast_Test, RandomCoastsGiveWhatWasAccepted) {
    std::string Text;
    for (std::uint64_t Seed = 1; Seed <= 400; ++Seed) {
        Make_Small_Map();
        Init_Tables();
        Draw_Coasts(Seed);
        Host_Of_Test.Boxes.clear();
        Coast_Generate();
        std::uint32_t Sum = 0;
        const auto Add = [&](Int V) { Sum = Sum * 31 + static_cast<std::uint32_t>(V); };
        for (const CPoly& P : Tab_CCoast.Rows()) {
            for (const Int V : {P.AreaLon, P.AreaLat, P.CellLon, P.CellLat, P.Nb}) Add(V);
            Add(static_cast<Int>(P.Attr - &Tab_Obj[First_Obj].Attr));
        }
        for (const CPt& P : Tab_CCoastPt.Rows()) {
            Add(P.LocX);
            Add(P.LocY);
        }
        Text += "seed " + std::to_string(Seed) + ": " + std::to_string(Nb_CCoast) + " pieces, " +
                std::to_string(Nb_CCoastPt) + " points, " + std::to_string(Sum) + " " +
                reference::Messages(Host_Of_Test) + "\n";
    }
    EXPECT_TRUE(Equals_Golden("random_coasts.txt", Text));
}

}  // namespace
