// test_coasts.cpp - coastlines from the drawn line to the surfaces of the Cells: worked examples in
// rows, and what was accepted for random ones.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "gen/coast_generate.h"
#include "gen_test.h"
#include "reference/compare.h"
#include "shapes.h"
#include "shapes/coast/coast_close.h"
#include "shapes/coast/coast_cut.h"
#include "shapes/coast/coast_fill.h"
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

    /// Whether the pieces of a Cell, with ";" between, are the whole of it.
    static std::string Filled(const std::string& Cell) {
        Table<CPoly> Polys{20, 20};
        Table<CPt> Points{200, 200};
        std::istringstream In(Cell);
        for (std::string Piece; std::getline(In, Piece, ';');) {
            const std::vector<double> V = Cell_Numbers(Piece);
            const Long First = Points.Nb() + 1;
            for (std::size_t I = 0; I + 1 < V.size(); I += 2)
                Points.Append({.LocX = static_cast<Int>(V[I]), .LocY = static_cast<Int>(V[I + 1])});
            Polys.Append(
                {.Nb = static_cast<Int>(V.size() / 2), .First = First, .Last = Points.Nb()});
        }
        return Fill_Test().Fill_Cell(Polys.Rows(), Points) ? "full" : "not";
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
         {"Fill", [](const Row_Cells& C) { return Filled(C[0]); }},
         {"Generate", [&](const Row_Cells& C) {
              Init_Tables();
              for (const std::string& Line : C) Draw_Coast(In_Pixels(Line));
              Coast_Generate();
              EXPECT_EQ(Nb_WPoly + Nb_WPt, 0);
              return Told(std::to_string(Nb_CCoast) + " pieces");
          }}});
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
