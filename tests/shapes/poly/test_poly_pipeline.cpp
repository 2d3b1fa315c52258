// test_poly_pipeline.cpp - from drawn polygons to pieces: the program against the plain rules,
// to the last bit and the last message.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <string>

#include "core/model_ops.h"
#include "core/number_text.h"
#include "grid/map_limits.h"
#include "grid/terrain_grid.h"
#include "reference/polygons.h"
#include "reference/shapes.h"
#include "shapes/poly/poly_prepare.h"
#include "support/program_test.h"

namespace {

using shapes::Kind;

std::uint64_t Bits(Double V) {
    return std::bit_cast<std::uint64_t>(V);
}

testing::AssertionResult Same_Point(Double X1, Double Y1, Double X2, Double Y2) {
    if (Bits(X1) == Bits(X2) && Bits(Y1) == Bits(Y2)) return testing::AssertionSuccess();
    return testing::AssertionFailure() << X1 << ", " << Y1 << " is not " << X2 << ", " << Y2;
}

void Expect_Same_Work_Lists() {
    ASSERT_EQ(Has_Imbric, reference::Has_Imbric);
    ASSERT_EQ(Has_Auto, reference::Has_Auto);
    ASSERT_EQ(Err_PixX, reference::Err_PixX);
    ASSERT_EQ(Err_PixY, reference::Err_PixY);
    ASSERT_EQ(Nb_WPoly, reference::Nb_WPoly);
    ASSERT_EQ(Nb_WPt, reference::Nb_WPt);
    for (Long I = 1; I <= Nb_WPoly; ++I) {
        const WPoly &A = Tab_WPoly[I], &B = reference::Tab_WPoly[I];
        ASSERT_EQ(A.Num, B.Num) << "polygon " << I;
        ASSERT_EQ(A.Attr, B.Attr) << "polygon " << I;
        ASSERT_EQ(A.First, B.First) << "polygon " << I;
        ASSERT_EQ(A.Last, B.Last) << "polygon " << I;
        ASSERT_EQ(A.Nb, B.Nb) << "polygon " << I;
        ASSERT_EQ(A.Draw_Order, B.Draw_Order) << "polygon " << I;
        ASSERT_EQ(A.Group_Root, B.Group_Root) << "polygon " << I;
    }
    for (Long I = 1; I <= Nb_WPt; ++I) {
        const WPt &A = Tab_WPt[I], &B = reference::Tab_WPt[I];
        ASSERT_TRUE(Same_Point(A.X, A.Y, B.X, B.Y)) << "point " << I;
    }
}

void Expect_Same_Pieces() {
    ASSERT_EQ(Nb_CPoly, reference::Nb_CPoly);
    ASSERT_EQ(Nb_CPt, reference::Nb_CPt);
    for (Long I = 1; I <= Nb_CPoly; ++I) {
        const CPoly &A = Tab_CPoly[I], &B = reference::Tab_CPoly[I];
        ASSERT_EQ(A.Nb, B.Nb) << "piece " << I;
        ASSERT_EQ(A.First, B.First) << "piece " << I;
        ASSERT_EQ(A.Last, B.Last) << "piece " << I;
        ASSERT_EQ(A.AreaLon, B.AreaLon) << "piece " << I;
        ASSERT_EQ(A.AreaLat, B.AreaLat) << "piece " << I;
        ASSERT_EQ(A.CellLon, B.CellLon) << "piece " << I;
        ASSERT_EQ(A.CellLat, B.CellLat) << "piece " << I;
        ASSERT_EQ(A.Num, B.Num) << "piece " << I;
        ASSERT_EQ(A.Attr, B.Attr) << "piece " << I;
        ASSERT_EQ(A.Draw_Order, B.Draw_Order) << "piece " << I;
        ASSERT_EQ(A.Group_Root, B.Group_Root) << "piece " << I;
        ASSERT_EQ(A.Seq, 0) << "piece " << I;
    }
    for (Long I = 1; I <= Nb_CPt; ++I) {
        const CPt &A = Tab_CPt[I], &B = reference::Tab_CPt[I];
        ASSERT_TRUE(Same_Point(A.X, A.Y, B.X, B.Y)) << "point " << I;
        ASSERT_EQ(A.LocX, B.LocX) << "point " << I;
        ASSERT_EQ(A.LocY, B.LocY) << "point " << I;
    }
}

class Poly_Pipeline : public Program_Test {
protected:
    ~Poly_Pipeline() override { Clear(); }

    void Clear() {
        reference::Reset();
        Work_Lists_Reset();
        Host_Of_Test.Boxes.clear();
        Host_Of_Test.Events.clear();
        Host_Of_Test.Stages.clear();
        Host_Of_Test.Caption.clear();
    }

    // The boxes shown, in the form in which the plain rules note them.
    std::vector<std::string> Messages() const {
        std::vector<std::string> Texts;
        for (const Box& B : Host_Of_Test.Boxes) {
            const auto Line = B.Text.rfind("\r\n");
            const std::string Extra = Line == std::string::npos ? "" : B.Text.substr(Line + 2);
            if (B.Num == 0)
                Texts.push_back(B.Text);
            else
                Texts.push_back(std::to_string(B.Num) + (Extra.empty() ? "" : " " + Extra));
        }
        return Texts;
    }

    // Runs both over the drawing in the model.
    void Compare(Int Mode) {
        Clear();
        reference::Poly_Prepare(Mode);
        Poly_Prepare(Mode);
        ASSERT_EQ(Messages(), reference::Messages);
        ASSERT_NO_FATAL_FAILURE(Expect_Same_Work_Lists());
        if (Has_Imbric == 0 && Has_Auto == 0) return;
        EXPECT_EQ(Host_Of_Test.Caption["LCompile"], std::string(Num_Text(reference::Counter)));
        EXPECT_EQ(Host_Of_Test.Caption["LCompileNom"], "Lod8/13 cut");
        reference::Poly_To_Cells(Mode);
        Poly_To_Cells(Mode);
        Expect_Same_Pieces();
    }

    void Compare_Project(std::uint64_t Seed, Kind K, Int Mode) {
        SCOPED_TRACE("seed " + std::to_string(Seed) + ", kind " +
                     std::to_string(static_cast<int>(K)) + ", mode " + std::to_string(Mode));
        shapes::Make_Project(Seed, K, Mode);
        Compare(Mode);
    }
};

// Outlines that no step before would let through: the steps must agree on them all the same.
TEST_F(Poly_Pipeline, CuttingOfUndividedOutlinesFailsAsThePlainRulesDo) {
    int Failures = 0;
    for (std::uint64_t Seed = 1; Seed <= 40; ++Seed)
        for (int K = 0; K < shapes::Nb_Kind; ++K) {
            SCOPED_TRACE("seed " + std::to_string(Seed) + ", kind " + std::to_string(K));
            const Int Mode = static_cast<Int>(Seed % 2 == 0 ? 2 : 0);
            shapes::Make_Project(Seed, static_cast<Kind>(K), Mode);
            Clear();
            reference::Poly_Collect(Mode);
            reference::Poly_Cut_Cells(Mode);
            Poly_Collect(Mode);
            Poly_Cut_Cells(Mode);
            ASSERT_EQ(Messages(), reference::Messages);
            ASSERT_NO_FATAL_FAILURE(Expect_Same_Work_Lists());
            Failures += reference::Messages.empty() ? 0 : 1;
        }
    EXPECT_GT(Failures, 100) << "the drawings must reach the failures";
}

TEST_F(Poly_Pipeline, SplitsOfTangledOutlinesAgree) {
    for (std::uint64_t Seed = 1; Seed <= 40; ++Seed)
        for (int K = 0; K < shapes::Nb_Kind; ++K) {
            SCOPED_TRACE("seed " + std::to_string(Seed) + ", kind " + std::to_string(K));
            shapes::Make_Project(Seed, static_cast<Kind>(K));
            const Long Limit = Seed % 2 == 0 ? 24 : 60;
            Clear();
            reference::Poly_Collect(0);
            reference::Poly_Split_Max(Limit);
            Poly_Collect(0);
            Poly_Split_Max(Limit);
            ASSERT_NO_FATAL_FAILURE(Expect_Same_Work_Lists());
            EXPECT_EQ(Host_Of_Test.Caption["LCompile"], std::string(Num_Text(reference::Counter)));
        }
}

// A ring of many points round a centre, on whole pixels when Whole is set.
shapes::Outline Round_Ring(shapes::Random& R, Pix Centre, Double Radius, Long Nb, bool Whole) {
    shapes::Outline O;
    for (Long I = 0; I < Nb; ++I) {
        const Double Angle = 6.283185307179586 * (I + R.Between(0.1, 0.9)) / Nb;
        const Double Here = Radius * R.Between(0.97, 1.0);
        const Pix P{Centre.X + Here * std::cos(Angle), Centre.Y + Here * std::sin(Angle)};
        O.push_back(Whole ? Pix{std::round(P.X), std::round(P.Y)} : P);
    }
    return O;
}

// Long outlines, one inside the other, with small ones between them: these are settled by boxes
// of whole chains. Whole pixels make many points share an X or a Y.
TEST_F(Poly_Pipeline, LongNestedOutlinesAgree) {
    int Nested = 0;
    for (std::uint64_t Seed = 1; Seed <= 12; ++Seed) {
        SCOPED_TRACE("seed " + std::to_string(Seed));
        shapes::Random R(Seed);
        const bool Whole = Seed % 2 == 0;
        Model_Reset();
        shapes::Make_Map(R, 4, 0);
        const shapes::Frame F = shapes::Map_Frame();
        const Pix C = F.Centre();
        const Double Radius = F.Radius();
        std::vector<shapes::Outline> Lines;
        for (const Double Part : {0.97, 0.85, 0.5})
            Lines.push_back(Round_Ring(R, C, Radius * Part, R.Whole(70, 400), Whole));
        for (Long I = 0; I < 24; ++I) {
            const Double Angle = 0.2617993877991494 * I, Away = Radius * (I % 2 == 0 ? 0.25 : 0.65);
            const Pix At{C.X + Away * std::cos(Angle), C.Y + Away * std::sin(Angle)};
            Lines.push_back(Round_Ring(R, At, Radius * 0.03, R.Whole(2, 9), Whole));
        }
        while (!Lines.empty()) {
            const auto Next = Lines.begin() + R.Whole(0, static_cast<Long>(Lines.size()) - 1);
            shapes::Add_Polygon(*Next);
            Lines.erase(Next);
        }
        ASSERT_NO_FATAL_FAILURE(Compare(0));
        Nested += Has_Auto;
    }
    EXPECT_GE(Nested, 6) << "most drawings must get past the crossing tests";
}

// A line at the end of a chain of polygons gets no number of its own.
TEST_F(Poly_Pipeline, LinesInsidePolygonsAgree) {
    const auto Square = [](Double Low, Double High) {
        return shapes::Outline{{Low, Low}, {High, Low}, {High, High}, {Low, High}};
    };
    Model_Reset();
    shapes::Random R(1);
    shapes::Make_Map(R, 4, 0, true);
    shapes::Add_Polygon({{100, 100}, {110, 120}});
    shapes::Add_Polygon(Square(80, 150));
    shapes::Add_Polygon(Square(50, 200));
    shapes::Add_Polygon(Square(300, 400));
    shapes::Add_Polygon({{350, 350}, {360, 340}});
    ASSERT_NO_FATAL_FAILURE(Compare(0));
    EXPECT_EQ(Has_Auto, 1);
}

// Drawings so small that the shifts, which keep rays off vertices, put them onto others.
TEST_F(Poly_Pipeline, ShiftedPointsThatMeetOthersAgree) {
    int Nested = 0;
    for (std::uint64_t Seed = 1; Seed <= 300; ++Seed) {
        SCOPED_TRACE("seed " + std::to_string(Seed));
        shapes::Random R(Seed);
        Model_Reset();
        shapes::Make_Map(R, 2, 0);
        const auto Add = [&](Pix At, Double Radius, Long Nb) {
            shapes::Outline O = Round_Ring(R, At, Radius, Nb, true);
            for (Pix& P : O) P = {100 + P.X * 1e-5, 100 + P.Y * 1e-5};
            shapes::Add_Polygon(O);
        };
        for (Long I = 0; I < 12; ++I)
            Add({R.Whole(-5, 5) * 40.0, R.Whole(-5, 5) * 40.0}, 8, R.Whole(3, 6));
        for (const Double Radius : {330.0, 400.0}) Add({0, 0}, Radius, R.Whole(70, 90));
        ASSERT_NO_FATAL_FAILURE(Compare(0));
        Nested += Has_Auto;
    }
    EXPECT_GE(Nested, 100) << "many drawings must get past the crossing tests";
}

TEST_F(Poly_Pipeline, LongWindingOutlinesAgree) {
    for (std::uint64_t Seed = 1; Seed <= 6; ++Seed) {
        SCOPED_TRACE("seed " + std::to_string(Seed));
        shapes::Random R(Seed);
        Model_Reset();
        shapes::Make_Map(R, 6, 0);
        const shapes::Frame F = shapes::Map_Frame();
        const Long Nb = R.Whole(150, 600);
        shapes::Add_Polygon(Seed % 3 == 0   ? shapes::Fractal_Ring(R, F, Nb)
                            : Seed % 3 == 1 ? shapes::Spiral(F, 6, Nb / 12)
                                            : shapes::Comb(R, F, Nb / 4));
        ASSERT_NO_FATAL_FAILURE(Compare(0));
        EXPECT_EQ(Has_Auto, 1);
    }
}

// Drawings that need a second look: at a cut, where the tolerances hide how a line passes, and at
// a split that would not end or would give a piece the wrong way round.
TEST_F(Poly_Pipeline, SecondLooksAgree) {
    const std::vector<shapes::Outline> Drawings{
        {{260, 160}, {300, 200}, {320, 260}, {240, 260}},
        {{210, 150}, {290, 170}, {290, 230}, {210, 200.1}, {209.9, 199.9}},
        {{575, 250},
         {570, 387},
         {113, 813},
         {382, 479},
         {339, 388},
         {72, 626},
         {52, 831},
         {5, 15},
         {150, 41},
         {897, 234},
         {529, 167},
         {137, 169}},
        {{3, 4}, {11, 7}, {3, 8}, {6, 7}, {3, 6}, {2, 2}}};
    for (const shapes::Outline& O : Drawings) {
        Model_Reset();
        Map_Width = Map_Height = 1001;
        XPtSE = YPtSE = 1000;
        LatPtNW = 45;
        LatPtSE = LatPtNW - 10 * Cell_StepLat;
        LonPtSE = LonPtNW + 10 * Cell_StepLon;
        Compute_Map_Limits(The_Calibration, Map_Width, Map_Height);
        shapes::Add_Polygon(O);
        ASSERT_NO_FATAL_FAILURE(Compare(0));
        EXPECT_TRUE(Messages().empty());
        EXPECT_GT(Nb_CPoly, 1);
    }
}

// TERRAFOLD_ROUNDS in the environment asks for a longer run, TERRAFOLD_SEED for other drawings.
std::uint64_t From_Environment(const char* Name, std::uint64_t Otherwise) {
    const char* Text = std::getenv(Name);
    return Text == nullptr ? Otherwise : std::stoull(Text);
}

TEST_F(Poly_Pipeline, AgreesWithThePlainRulesOnRandomProjects) {
    const std::uint64_t Rounds = From_Environment("TERRAFOLD_ROUNDS", 60);
    const std::uint64_t First = From_Environment("TERRAFOLD_SEED", 1);
    for (std::uint64_t Seed = First; Seed < First + Rounds; ++Seed)
        for (int K = 0; K < shapes::Nb_Kind; ++K) {
            const Int Mode = static_cast<Int>(Seed % 4 == 0 ? 2 : Seed % 16 == 1 ? 1 : 0);
            Compare_Project(Seed, static_cast<Kind>(K), Mode);
            if (HasFatalFailure() || HasNonfatalFailure()) return;
        }
}

}  // namespace
