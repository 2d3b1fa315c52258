// test_polygons.cpp - from drawn polygons to pieces: worked examples in rows, the program against
// the plain rules to the last bit and the last message, and what must hold for any drawing.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <numbers>

#include "core/model_ops.h"
#include "core/number_text.h"
#include "geometry/patience.h"
#include "geometry/segments.h"
#include "grid/map_limits.h"
#include "grid/terrain_grid.h"
#include "reference/compare.h"
#include "shapes.h"
#include "shapes/poly/poly_prepare.h"
#include "support/program_test.h"
#include "support/rows.h"

namespace {

using reference::Messages;
using reference::Polys;
using reference::Same_As_Work_Lists;
using reference::Text_Of;
using reference::Work_Lists;
using shapes::Kind;
using shapes::Outline;
using shapes::Random;

Outline Outline_Of(const reference::Poly& W) {
    Outline O;
    for (const WPt& P : W.P) O.push_back(To_Pix(P));
    return O;
}

class Polygons : public Program_Test {
public:
    ~Polygons() override {
        Work_Lists_Reset();
        Search_Patience = 64;
    }

    void Clear() {
        Work_Lists_Reset();
        Host_Of_Test.Boxes.clear();
        Host_Of_Test.Caption.clear();
    }

    // A map of 10 by 10 Cells of 100 by 100 pixels, its corner on a corner of the grid.
    void Make_Map_100() {
        Model_Reset();
        Clear();
        Map_Width = Map_Height = 1001;
        XPtSE = YPtSE = 1000;
        LatPtNW = 45;
        LatPtSE = LatPtNW - 10 * Cell_StepLat;
        LonPtSE = LonPtNW + 10 * Cell_StepLon;
        Compute_Map_Limits(The_Calibration, Map_Width, Map_Height);
    }

    // The outlines of a cell, with "; " between: points, "round N" for N points on a circle, or
    // "square X Y SIDE"; each may have a nesting text in brackets behind it.
    void Draw(const std::string& Cell) {
        Make_Map_100();
        for (std::size_t At = 0, End = 0; At < Cell.size(); At = End + 1) {
            End = std::min(Cell.find(';', At), Cell.size());
            std::string Text = Cell.substr(At, End - At), Nesting;
            if (const auto Open = Text.find('['); Open != std::string::npos) {
                Nesting = Text.substr(Open + 1, Text.find(']') - Open - 1);
                Text.resize(Open);
            }
            const std::vector<double> V = Cell_Numbers(Text);
            Outline O;
            if (Text.find("square") != std::string::npos)
                O = shapes::Rectangle({{V[0], V[1]}, {V[0] + V[2], V[1] + V[2]}});
            else if (Text.find("round") != std::string::npos)
                for (Double I = 0.3; I < V[0]; ++I)
                    O.push_back({500 + 400 * std::cos(2 * std::numbers::pi * I / V[0]),
                                 500 + 400 * std::sin(2 * std::numbers::pi * I / V[0])});
            else
                for (std::size_t I = 0; I + 1 < V.size(); I += 2) O.push_back({V[I], V[I + 1]});
            shapes::Add_Polygon(O, Mode_LWM, Nesting);
        }
    }

    std::string Collected(const std::string& Cell) {
        Draw(Cell);
        Poly_Collect(Mode_LWM);
        return Text_Of(Work_Lists());
    }

    // The nesting of each drawn outline, by their numbers.
    std::string Nested(const std::string& Cell) {
        Draw(Cell);
        Poly_Prepare(Mode_LWM);
        std::map<Long, std::string> By_Num;
        for (const WPoly& W : Tab_WPoly.Rows())
            By_Num[W.Num] = std::to_string(W.Draw_Order) + " of " + std::to_string(W.Group_Root);
        std::string Text = Messages(Host_Of_Test);
        for (const auto& [Num, Order] : By_Num) Text += (Text.empty() ? "" : ", ") + Order;
        return Text;
    }

    // Pieces after the split, or their sizes when there are many points.
    std::string Split(const std::string& Cell) {
        Collected(Cell);
        Poly_Split_Max(60);
        std::string Sizes;
        for (const WPoly& W : Tab_WPoly.Rows()) Sizes += " " + std::to_string(W.Nb);
        return Nb_WPt < 30 ? Text_Of(Work_Lists()) : Sizes.substr(1);
    }

    // The finished pieces with an area, or lines; those of more than 8 as their number.
    std::string Cut(const std::string& Cell) {
        Draw(Cell);
        Poly_Prepare(Mode_LWM);
        if (Has_Imbric != 0 || Has_Auto != 0) Poly_Cut_Cells(Mode_LWM);
        Polys List = Work_Lists();
        std::erase_if(List, [](const auto& W) {
            return W.Nb > 2 && std::abs(shapes::Area_2(Outline_Of(W))) < 1e-3;
        });
        return Messages(Host_Of_Test) +
               (List.size() > 8 ? std::to_string(List.size()) : Text_Of(List));
    }

    // Cell, object and local coordinates of each finished piece.
    std::string To_Cells(const std::string& Cell) {
        Draw(Cell);
        Poly_Prepare(Mode_LWM);
        Poly_To_Cells(Mode_LWM);
        std::string Text;
        for (const CPoly& P : Tab_CPoly.Rows()) {
            Text += (Text.empty() ? "" : "; ") + std::to_string(P.AreaLon % 384 * 32 + P.CellLon) +
                    "," + std::to_string(P.AreaLat % 128 * 32 + P.CellLat) + " of " +
                    std::to_string(P.Num) + ":";
            for (Long I = P.First; I <= P.Last; ++I)
                Text +=
                    " " + std::to_string(Tab_CPt[I].LocX) + "," + std::to_string(Tab_CPt[I].LocY);
        }
        return Text;
    }

    void Compare(Poly_Mode Mode);
    void Expect_In_Cells(Int Mode) const;
};

TEST_F(Polygons, AsInTheRows) {
    const auto Of = [this](std::string (Polygons::*Rule)(const std::string&)) {
        return [=, this](const Row_Cells& C) { return (this->*Rule)(C[0]); };
    };
    Expect_Rows("polygons", {{"Collect", Of(&Polygons::Collected)},
                             {"Nest", Of(&Polygons::Nested)},
                             {"Split", Of(&Polygons::Split)},
                             {"Cut", Of(&Polygons::Cut)},
                             {"To_Cells", Of(&Polygons::To_Cells)}});
}

// A piece lies in one cell when every point stands, within one unit, where the formula without
// snapping puts it. Pieces stand by cell, group and order.
void Polygons::Expect_In_Cells(Int Mode) const {
    const bool By_Area = Mode == Mode_VTP2;
    const Double Units = By_Area ? Loc_Area_Span : 255, First = By_Area ? Loc_Area_Origin : 0;
    const auto Key = [](const CPoly& P) {
        return std::tuple(P.AreaLat, P.AreaLon, P.CellLat, P.CellLon, P.Group_Root, -P.Draw_Order);
    };
    for (Long K = 1; K <= Nb_CPoly; ++K) {
        const CPoly& P = Tab_CPoly[K];
        ASSERT_TRUE(K == 1 || Key(Tab_CPoly[K - 1]) <= Key(P)) << "piece " << K;
        const Geo Corner = By_Area ? Area_Corner(P.AreaLon, P.AreaLat)
                                   : Cell_Corner({P.AreaLon, P.AreaLat, P.CellLon, P.CellLat});
        for (Long I = P.First; I <= P.Last; ++I) {
            const CPt& C = Tab_CPt[I];
            const Geo G = Pixel_To_LatLon({C.X, C.Y});
            const Double Lon = (G.Lon - Corner.Lon) / (By_Area ? Area_StepLon : Cell_StepLon);
            const Double Lat = (Corner.Lat - G.Lat) / (By_Area ? Area_StepLat : Cell_StepLat);
            ASSERT_NEAR(C.LocX, First + Lon * Units, 1.01);
            ASSERT_NEAR(C.LocY, First + Lat * Units, 1.01);
        }
    }
}

// Both over the drawing in the model.
void Polygons::Compare(Poly_Mode Mode) {
    Clear();
    Poly_Collect(Mode);
    const Polys Drawn = Work_Lists();
    Work_Lists_Reset();
    Poly_Prepare(Mode);
    if (const auto At = Self_Cross(Drawn, true)) {
        ASSERT_EQ(Messages(Host_Of_Test), "121 Bmp pixel X:" + std::to_string(Round_Lng(At->X)) +
                                              " Y:" + std::to_string(Round_Lng(At->Y)));
        EXPECT_EQ(Has_Imbric + Has_Auto, 0);
        ASSERT_TRUE(Same_As_Work_Lists(Drawn));
        return;
    }
    Polys Plain = Drawn;
    if (!Nest(Plain)) {
        ASSERT_EQ(Messages(Host_Of_Test), "122");
        EXPECT_EQ(Has_Imbric + Has_Auto, 0);
        ASSERT_TRUE(Same_As_Work_Lists(Plain));
        return;
    }
    const auto Is_Named = [](const auto& W) { return !W.Attr->Imbrication.empty(); };
    EXPECT_EQ(Has_Imbric != 0, std::ranges::any_of(Drawn, Is_Named));
    EXPECT_EQ(Has_Auto != 0, !std::ranges::all_of(Drawn, Is_Named));
    if (Drawn.empty()) return;
    Long Rounds = 0;
    Plain = reference::Split(Plain, Mode == Mode_VTP1 ? 24 : 60, Rounds);
    const std::string Failure =
        reference::Cut(Plain, Grid_Lines_Of(Mode == Mode_VTP2 ? Polys_By_Area : Polys_By_Cell));
    EXPECT_EQ(Host_Of_Test.Caption["LCompile"], std::string(Num_Text(Rounds)));
    Poly_Cut_Cells(Mode);
    ASSERT_EQ(Messages(Host_Of_Test), Failure);
    ASSERT_TRUE(Same_As_Work_Lists(Plain));
    Poly_Prepare(Mode);
    Poly_To_Cells(Mode);
    Expect_In_Cells(Mode);
}

TEST_F(Polygons, AgreeWithThePlainRulesOnRandomProjects) {
    for (const std::uint64_t Seed : reference::Seeds(60))
        for (int K = 0; K < shapes::Nb_Kind; ++K) {
            const Poly_Mode Mode = Seed % 4 == 0    ? Mode_VTP2
                                   : Seed % 16 == 1 ? Mode_VTP1
                                                    : Mode_LWM;
            SCOPED_TRACE("seed " + std::to_string(Seed) + ", kind " + std::to_string(K));
            Search_Patience = Seed % 3 == 0 ? 64 : 0;
            shapes::Make_Project(Seed, static_cast<Kind>(K), Mode);
            Compare(Mode);
            if (HasFailure()) return;
        }
}

// Outlines that no step before would let through: the steps must agree on them all the same.
TEST_F(Polygons, SplitsAndCutsOfTangledOutlinesAgree) {
    int Failures = 0;
    for (std::uint64_t Seed = 1; Seed <= 40; ++Seed)
        for (int K = 0; K < shapes::Nb_Kind; ++K) {
            SCOPED_TRACE("seed " + std::to_string(Seed) + ", kind " + std::to_string(K));
            const Poly_Mode Mode = Seed % 2 == 0 ? Mode_VTP2 : Mode_LWM;
            shapes::Make_Project(Seed, static_cast<Kind>(K), Mode);
            Clear();
            Poly_Collect(Mode);
            const Polys Drawn = Work_Lists();
            Long Rounds = 0;
            Search_Patience = Seed % 3 == 0 ? 64 : 0;
            Poly_Split_Max(Seed % 2 == 0 ? 24 : 60);
            ASSERT_TRUE(
                Same_As_Work_Lists(reference::Split(Drawn, Seed % 2 == 0 ? 24 : 60, Rounds)));
            Clear();
            Poly_Collect(Mode);
            Polys Plain = Drawn;
            const std::string Failure =
                reference::Cut(Plain, Grid_Lines_Of(Seed % 2 == 0 ? Polys_By_Area : Polys_By_Cell));
            Poly_Cut_Cells(Mode);
            ASSERT_EQ(Messages(Host_Of_Test), Failure);
            ASSERT_TRUE(Same_As_Work_Lists(Plain));
            Failures += Failure.empty() ? 0 : 1;
        }
    EXPECT_GT(Failures, 100) << "the drawings must reach the failures";
}

// A ring of many points round a centre, on whole pixels when Whole is set.
Outline Round_Ring(Random& R, Pix Centre, Double Radius, Long Nb, bool Whole) {
    Outline O;
    for (Long I = 0; I < Nb; ++I) {
        const Double Angle = 2 * std::numbers::pi * (I + R.Between(0.1, 0.9)) / Nb;
        const Double Here = Radius * R.Between(0.97, 1.0);
        const Pix P{Centre.X + Here * std::cos(Angle), Centre.Y + Here * std::sin(Angle)};
        O.push_back(Whole ? Pix{std::round(P.X), std::round(P.Y)} : P);
    }
    return O;
}

// Long outlines, one inside the other, with small ones between them: these are settled by boxes
// of whole chains. Whole pixels make many points share an X or a Y.
TEST_F(Polygons, LongNestedOutlinesAgree) {
    int Nested = 0;
    for (std::uint64_t Seed = 1; Seed <= 12; ++Seed) {
        SCOPED_TRACE("seed " + std::to_string(Seed));
        Random R(Seed);
        const bool Whole = Seed % 2 == 0;
        Search_Patience = Seed % 3 == 0 ? 64 : 0;
        Model_Reset();
        shapes::Make_Map(R, 4, 0);
        const shapes::Frame F = shapes::Map_Frame();
        std::vector<Outline> Lines;
        for (const Double Part : {0.97, 0.85, 0.5})
            Lines.push_back(Round_Ring(R, F.Centre(), F.Radius() * Part, R.Whole(70, 400), Whole));
        for (Long I = 0; I < 24; ++I) {
            const Double Angle = std::numbers::pi / 12 * I;
            const Double Away = F.Radius() * (I % 2 == 0 ? 0.25 : 0.65);
            const Pix At{F.Centre().X + Away * std::cos(Angle),
                         F.Centre().Y + Away * std::sin(Angle)};
            Lines.push_back(Round_Ring(R, At, F.Radius() * 0.03, R.Whole(2, 9), Whole));
        }
        while (!Lines.empty()) {
            const auto Next = Lines.begin() + R.Whole(0, static_cast<Long>(Lines.size()) - 1);
            shapes::Add_Polygon(*Next);
            Lines.erase(Next);
        }
        ASSERT_NO_FATAL_FAILURE(Compare(Mode_LWM));
        Nested += Has_Auto;
    }
    EXPECT_GE(Nested, 6) << "most drawings must get past the crossing tests";
}

// Drawings so small that the shifts, which keep rays off vertices, put them onto others.
TEST_F(Polygons, ShiftedPointsThatMeetOthersAgree) {
    int Nested = 0;
    for (std::uint64_t Seed = 1; Seed <= 300; ++Seed) {
        SCOPED_TRACE("seed " + std::to_string(Seed));
        Random R(Seed);
        Search_Patience = Seed % 3 == 0 ? 64 : 0;
        Model_Reset();
        shapes::Make_Map(R, 2, 0);
        const auto Add = [&](Pix At, Double Radius, Long Nb) {
            Outline O = Round_Ring(R, At, Radius, Nb, true);
            for (Pix& P : O) P = {100 + P.X * 1e-5, 100 + P.Y * 1e-5};
            shapes::Add_Polygon(O);
        };
        for (Long I = 0; I < 12; ++I)
            Add({R.Whole(-5, 5) * 40.0, R.Whole(-5, 5) * 40.0}, 8, R.Whole(3, 6));
        for (const Double Radius : {330.0, 400.0}) Add({0, 0}, Radius, R.Whole(70, 90));
        ASSERT_NO_FATAL_FAILURE(Compare(Mode_LWM));
        Nested += Has_Auto;
    }
    EXPECT_GE(Nested, 100) << "many drawings must get past the crossing tests";
}

TEST_F(Polygons, LongWindingOutlinesAgree) {
    for (const char* Name :
         {"coast-500", "fjord-400", "spiral-600", "comb-500", "notch-300", "rake-90",
          "cellrings-200", "rings-40", "fan-500", "cellstar-1000", "star-5000"}) {
        SCOPED_TRACE(Name);
        drawings::Into_Model(*drawings::Named(Name));
        ASSERT_NO_FATAL_FAILURE(Compare(Mode_LWM));
        EXPECT_EQ(Has_Auto, 1);
    }
}

}  // namespace
