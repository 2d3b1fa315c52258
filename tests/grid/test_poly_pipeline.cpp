// test_poly_pipeline.cpp - from drawn polygons to pieces: the program against the plain rules,
// to the last bit and the last message.
#include <gtest/gtest.h>

#include <bit>
#include <cstdlib>
#include <string>

#include "core/number_text.h"
#include "grid/poly_prepare.h"
#include "reference/polygons.h"
#include "reference/shapes.h"
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
