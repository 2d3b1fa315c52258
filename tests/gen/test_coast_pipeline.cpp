// test_coast_pipeline.cpp - from drawn coastlines to surfaces: the program against the plain rules,
// to the last bit and the last message.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <string>

#include "core/model_ops.h"
#include "gen/coast_generate.h"
#include "grid/terrain_grid.h"
#include "reference/coasts.h"
#include "reference/shapes.h"
#include "shapes/poly/work_lists.h"
#include "support/program_test.h"

namespace {

using shapes::Outline;
using shapes::Random;

// TERRAFOLD_ROUNDS in the environment asks for a longer run, TERRAFOLD_SEED for other drawings.
std::uint64_t From_Environment(const char* Name, std::uint64_t Otherwise) {
    const char* Text = std::getenv(Name);
    return Text == nullptr ? Otherwise : std::stoull(Text);
}

std::uint64_t Bits(Double V) {
    return std::bit_cast<std::uint64_t>(V);
}

// A simple line that is no graph: part of a ring, from anywhere on it.
Outline Part_Of_Ring(Random& R) {
    const shapes::Frame F = shapes::Map_Frame();
    Outline O;
    switch (R.Whole(0, 4)) {
        case 0:
            O = shapes::Fractal_Ring(R, F, R.Whole(8, 90));
            break;
        case 1:
            O = shapes::Comb(R, F, R.Whole(2, 12));
            break;
        case 2:
            O = shapes::Star(R, F, R.Whole(3, 12));
            break;
        case 3:
            O = shapes::Spiral(F, R.Whole(1, 3), R.Whole(5, 12));
            break;
        default:
            // Points that share rows and columns with the grid and one another.
            O = shapes::Tangle(R, F, R.Whole(5, 30), R.Chance(0.5) ? 0.0 : 32.0);
    }
    const auto Some_Place = [&] { return R.Whole(0, static_cast<Long>(O.size()) - 1); };
    std::rotate(O.begin(), O.begin() + Some_Place(), O.end());
    if (R.Chance(0.5)) O.resize(std::max<std::size_t>(2, static_cast<std::size_t>(Some_Place())));
    return O;
}

// From side to side of the map and some way beyond, never turning back.
Outline Across(Random& R) {
    const shapes::Frame F = shapes::Map_Frame();
    const Double Width = F.High.X - F.Low.X, Height = F.High.Y - F.Low.Y;
    const Long Nb = R.Whole(2, 60);
    const bool Level = R.Chance(0.5);
    const Double Middle = R.Between(0.1, 0.9), Waver = R.Chance(0.5) ? 0.02 : 0.2;
    Outline O;
    for (Long I = 0; I <= Nb; ++I) {
        const Double Along = -0.3 + 1.6 * I / Nb, Off = Middle + R.Between(-Waver, Waver);
        O.push_back(
            {F.Low.X + Width * (Level ? Along : Off), F.Low.Y + Height * (Level ? Off : Along)});
    }
    return O;
}

// Strides from line to line of a round map's grid, so that ends lie on edges and the line runs
// along them.
Outline Stairs(Random& R) {
    Outline O;
    Pix P{128.0 * R.Whole(0, 2), 128.0 * R.Whole(0, 8)};
    for (Long I = R.Whole(2, 12); I > 0; --I) {
        O.push_back(P);
        (R.Chance(0.5) ? P.X : P.Y) += 64.0 * R.Whole(0, 3);
        if (R.Chance(0.3)) P.Y -= 64.0 * R.Whole(0, 2);
    }
    return O;
}

void Draw_Coasts(std::uint64_t Seed) {
    Random R(Seed);
    Model_Reset();
    shapes::Make_Map(R, R.Whole(1, 8), 0, R.Chance(0.5));
    for (Long I = R.Chance(0.7) ? 1 : R.Whole(2, 4); I > 0; --I) {
        const Long Kind = R.Whole(0, 9);
        Outline O = Kind < 5 ? Part_Of_Ring(R) : Kind < 8 ? Across(R) : Stairs(R);
        if (R.Chance(0.3)) O = shapes::Snapped_To_Grid(R, O, 0);
        if (R.Chance(0.2)) O = shapes::With_Points_In_Line(R, O);
        if (R.Chance(0.2)) O = shapes::With_Repeats(R, O);
        if (R.Chance(0.5)) std::reverse(O.begin(), O.end());
        Attr& A = Tab_Obj[shapes::Add_Polygon(O)].Attr;
        A.SurfShore = R.Chance(0.95) ? 3 : 2;
        A.LandOnRight = static_cast<Int>(R.Whole(0, 1));
    }
}

class Coast_Pipeline : public Program_Test {
protected:
    ~Coast_Pipeline() override { Clear(); }

    void Clear() {
        reference::Reset();
        Work_Lists_Reset();
        Host_Of_Test.Boxes.clear();
    }

    // The boxes shown, in the form in which the plain rules note them.
    std::vector<std::string> Messages() const {
        std::vector<std::string> Texts;
        for (const Box& B : Host_Of_Test.Boxes) {
            const auto Line = B.Text.rfind("\r\n");
            const std::string Extra = Line == std::string::npos ? "" : B.Text.substr(Line + 2);
            Texts.push_back(
                B.Num == 0 ? B.Text : std::to_string(B.Num) + (Extra.empty() ? "" : " " + Extra));
        }
        return Texts;
    }
};

void Expect_Same_Surfaces() {
    ASSERT_EQ(Nb_CCoast, reference::Nb_CPoly);
    ASSERT_EQ(Nb_CCoastPt, reference::Nb_CPt);
    for (Long I = 1; I <= Nb_CCoast; ++I) {
        const CPoly &A = Tab_CCoast[I], &B = reference::Tab_CPoly[I];
        ASSERT_TRUE(Same_Cell(A, B)) << "piece " << I;
        ASSERT_EQ(A.Nb, B.Nb) << "piece " << I;
        ASSERT_EQ(A.First, B.First) << "piece " << I;
        ASSERT_EQ(A.Last, B.Last) << "piece " << I;
        ASSERT_EQ(A.Attr, B.Attr) << "piece " << I;
    }
    for (Long I = 1; I <= Nb_CCoastPt; ++I) {
        const CPt &A = Tab_CCoastPt[I], &B = reference::Tab_CPt[I];
        ASSERT_TRUE(Bits(A.X) == Bits(B.X) && Bits(A.Y) == Bits(B.Y)) << "point " << I;
        ASSERT_EQ(A.LocX, B.LocX) << "point " << I;
        ASSERT_EQ(A.LocY, B.LocY) << "point " << I;
    }
}

TEST_F(Coast_Pipeline, AgreesWithThePlainRulesOnRandomCoasts) {
    const std::uint64_t Rounds = From_Environment("TERRAFOLD_ROUNDS", 400);
    const std::uint64_t First = From_Environment("TERRAFOLD_SEED", 1);
    std::uint64_t With_Surfaces = 0, Crossing = 0, Unclosed = 0;
    for (std::uint64_t Seed = First; Seed < First + Rounds; ++Seed) {
        SCOPED_TRACE("seed " + std::to_string(Seed));
        Draw_Coasts(Seed);
        Clear();
        reference::Coast_Generate();
        Coast_Generate();
        ASSERT_EQ(Messages(), reference::Messages);
        ASSERT_NO_FATAL_FAILURE(Expect_Same_Surfaces());
        With_Surfaces += Nb_CCoast > 0 ? 1 : 0;
        if (Messages().empty()) continue;
        ++(Messages()[0] == "132" ? Unclosed : Crossing);
    }
    if (Rounds < 400) return;
    EXPECT_GT(With_Surfaces, Rounds / 3);
    EXPECT_GT(Crossing, Rounds / 40);
    EXPECT_GT(Unclosed, Rounds / 40);
}

}  // namespace
