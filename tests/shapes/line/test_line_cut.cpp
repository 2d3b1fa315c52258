// test_line_cut.cpp - lines collected and cut: worked examples in rows, and the program against
// the plain rules to the last bit.
#include "shapes/line/line_cut.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/attr_kinds.h"
#include "core/model_ops.h"
#include "reference/compare.h"
#include "shapes.h"
#include "shapes/poly/poly_collect.h"
#include "support/program_test.h"
#include "support/rows.h"

namespace {

using reference::Polys;
using reference::Text_Of;
using reference::Work_Lists;
using shapes::Outline;
using shapes::Random;

constexpr Int Bare_Kind = 1213;

bool Is_Bare(const Attr& A) {
    return A.LineType == Bare_Kind;
}
// Low enough that some lines of the drawings below are too high.
bool Is_Low(std::span<const WPt> Piece) {
    for (const WPt& P : Piece)
        if (std::abs(P.Y - Piece[0].Y) > 300) return false;
    return true;
}

struct Output {
    const char* Name;
    Line_Rule Rule;
    Grid_Walk Grid;
    bool Tags_Cuts;
    bool (*Skips_Rows)(const Attr&);

    Line_Cut_Rule Cut_Rule() const {
        return {.Grid = Grid_Lines_Of(Grid),
                .Tags_Cuts = Tags_Cuts,
                .Skips_Rows = Skips_Rows,
                .Fits = Is_Low};
    }
};

// The rules of the outputs that lines are cut for.
const Output Roads{"roads",
                   {.Takes = [](const Attr& A) { return Has_Line(A) && A.Vtp1_Line != 1; },
                    .May_Close = [](const Attr& A) { return !Is_Coast(A) && !Is_Bare(A); },
                    .Has_Tags = true,
                    .Turns = true},
                   Lines_By_Area,
                   true,
                   Is_Bare};
const Output Night{"night lines",
                   {.Takes = [](const Attr& A) { return Has_Line(A) && A.Line_Night != 0; },
                    .May_Close = [](const Attr& A) { return !Is_Coast(A); }},
                   Lines_By_Half_Lod10,
                   false,
                   nullptr};

// A path over the map and some way beyond it, with long strides and short ones.
Outline Random_Path(Random& R) {
    const shapes::Frame F = shapes::Map_Frame();
    Outline O;
    Pix P{R.Between(-200, F.High.X + 200), R.Between(-200, F.High.Y + 200)};
    const Double Stride = R.Chance(0.5) ? 20 : 400;
    for (Long I = R.Whole(1, 40); I >= 0; --I) {
        O.push_back(P);
        if (R.Chance(0.8)) P.X += R.Between(-Stride, Stride);
        if (R.Chance(0.8)) P.Y += R.Between(-Stride, Stride);
        if (R.Chance(0.05)) P = O[static_cast<std::size_t>(R.Whole(0, O.size() - 1))];
    }
    if (R.Chance(0.3)) O.push_back(O[0]);
    return O;
}

// Strides from grid line to grid line of a round map, to points on them and as near to them as
// the tolerances are, so that several in a row lie on one line.
Outline Path_On_Grid(Random& R) {
    constexpr Double Off[] = {0, 0, 0.002, -0.002, 0.005, -0.005, 0.0078, -0.0078, 0.009, 1};
    const auto Near_Line = [&](Double V) {
        if (R.Chance(0.3)) V = std::round(V / 16) * 16 + 16 * R.Whole(-9, 9);
        if (R.Chance(0.7)) V = std::round(V / 16) * 16 + Off[R.Whole(0, std::size(Off) - 1)];
        return V;
    };
    Outline O;
    Pix P{R.Between(0, 500), R.Between(0, 500)};
    for (Long I = R.Whole(2, 40); I >= 0; --I) {
        P = {Near_Line(P.X), Near_Line(P.Y)};
        O.push_back(P);
    }
    return O;
}

Attr Random_Attr(Random& R) {
    const auto Flag = [&] { return static_cast<Int>(R.Whole(0, 1)); };
    Attr A;
    A.SurfShore = static_cast<Int>(R.Whole(0, 3));
    A.LineType = R.Chance(0.3) ? Bare_Kind : Int{1024};
    A.FermerLine = Flag();
    A.LandOnRight = Flag();
    A.Effil_Deb = Flag();
    A.Effil_Fin = Flag();
    A.Line_Night = Flag();
    A.Vtp1_Line = R.Chance(0.1) ? Int{1} : Int{0};
    return A;
}

void Draw_Lines(std::uint64_t Seed) {
    Random R(Seed);
    Model_Reset();
    shapes::Make_Map(R, R.Whole(1, 5), 2, R.Chance(0.6));
    for (Long I = R.Whole(1, 12); I > 0; --I) {
        Outline O = R.Chance(0.3) ? Path_On_Grid(R) : Random_Path(R);
        if (R.Chance(0.6)) O = shapes::Snapped_To_Grid(R, O, 2);
        if (R.Chance(0.3)) O = shapes::With_Points_In_Line(R, O);
        if (R.Chance(0.3)) O = shapes::With_Repeats(R, O);
        Tab_Obj.Edit(shapes::Add_Polygon(O)).Attr = Random_Attr(R);
    }
}

class Line_Cut_Test : public Program_Test {
protected:
    ~Line_Cut_Test() override { Work_Lists_Reset(); }

    /// The road of a row, collected: its points, and what it is: "closed", "right" (land),
    /// "thin" (at its end), "coast", "bare". On a map of 4 by 4 Areas with rows and columns at the
    /// multiples of 128.
    static std::string Collected(const Row_Cells& C) {
        Random R(1);
        Work_Lists_Reset();
        Model_Reset();
        shapes::Make_Map(R, 4, Mode_VTP2, true);
        Outline O;
        const std::vector<double> V = Cell_Numbers(C[0]);
        for (std::size_t I = 0; I + 1 < V.size(); I += 2) O.push_back({V[I], V[I + 1]});
        const auto Is = [&](const char* Word) {
            return static_cast<Int>(C[1].find(Word) != std::string::npos);
        };
        Attr& A = Tab_Obj.Edit(shapes::Add_Polygon(O)).Attr;
        A.SurfShore = Is("coast") ? Surf_Coast : Surf_Line;
        A.FermerLine = Is("closed");
        A.LandOnRight = Is("right");
        A.Effil_Fin = Is("thin");
        A.Effil_Deb = Is("tapered");
        if (Is("bare")) A.LineType = Bare_Kind;
        Line_Collect(Roads.Rule);
        return Text_Of(Work_Lists());
    }
    static std::string Cut(const Row_Cells& C) {
        Collected(C);
        Line_Cut(Roads.Cut_Rule());
        return Text_Of(Work_Lists());
    }
};

TEST_F(Line_Cut_Test, AsInTheRows) {
    Expect_Rows("lines", {{"Collect", Collected}, {"Cut", Cut}});
}

TEST_F(Line_Cut_Test, AgreesWithThePlainRulesOnRandomLines) {
    std::size_t Cuts = 0, Bare_Whole = 0;
    for (const std::uint64_t Seed : reference::Seeds(150))
        for (const Output* O : {&Roads, &Night}) {
            SCOPED_TRACE(std::string(O->Name) + ", seed " + std::to_string(Seed));
            Work_Lists_Reset();
            Draw_Lines(Seed);
            Line_Collect(O->Rule);
            Polys Plain = Work_Lists();
            Cuts -= Plain.size();
            reference::Cut_Lines(Plain, O->Cut_Rule());
            Cuts += Plain.size();
            Line_Cut(O->Cut_Rule());
            ASSERT_TRUE(reference::Same_As_Work_Lists(Plain));
            for (const WPoly& W : Tab_WPoly.Rows())
                Bare_Whole += O == &Roads && Is_Bare(*W.Attr) ? 1 : 0;
        }
    EXPECT_GT(Cuts, 5000U) << "the drawings must meet the grid";
    EXPECT_GT(Bare_Whole, 100U);
}

}  // namespace
