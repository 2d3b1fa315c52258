// test_line_cut.cpp - lines collected and cut: the program against the plain rules to the last
// bit, and what must hold for the pieces of any line.
#include "shapes/line/line_cut.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <string>

#include "core/model_ops.h"
#include "reference/lines.h"
#include "reference/shapes.h"
#include "support/program_test.h"

namespace {

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
    reference::Line_Grid Plain_Grid;
    bool Tags_Cuts;
    bool (*Skips_Rows)(const Attr&);
};

// The rules of the three outputs that lines go into.
const Output Roads{"roads",
                   {.Takes = [](const Attr& A) { return A.SurfShore != 0 && A.Vtp1_Line != 1; },
                    .May_Close = [](const Attr& A) { return A.SurfShore != 3 && !Is_Bare(A); },
                    .Has_Tags = true,
                    .Turns = true},
                   Lines_By_Area,
                   {0.3515625, 0.46875, 1, 16321.1},
                   true,
                   Is_Bare};
const Output Night{"night lines",
                   {.Takes = [](const Attr& A) { return A.SurfShore != 0 && A.Line_Night != 0; },
                    .May_Close = [](const Attr& A) { return A.SurfShore != 3; }},
                   Lines_By_Half_Lod10,
                   {0.087890625, 0.1171875, 2, 4080.6},
                   false,
                   nullptr};
const Output Coasts{
    "coasts",       {.Takes = [](const Attr& A) { return A.SurfShore == 3; }, .Turns = true},
    Coasts_By_Cell, {0.010986328125, 0.0146484375, 1, 512.1},
    false,          nullptr};

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
        Tab_Obj[shapes::Add_Polygon(O)].Attr = Random_Attr(R);
    }
}

// TERRAFOLD_ROUNDS in the environment asks for a longer run, TERRAFOLD_SEED for other drawings.
std::uint64_t From_Environment(const char* Name, std::uint64_t Otherwise) {
    const char* Text = std::getenv(Name);
    return Text == nullptr ? Otherwise : std::stoull(Text);
}

std::uint64_t Bits(Double V) {
    return std::bit_cast<std::uint64_t>(V);
}

void Expect_Same_Lists() {
    ASSERT_EQ(Nb_WPoly, reference::Nb_WPoly);
    ASSERT_EQ(Nb_WPt, reference::Nb_WPt);
    for (Long I = 1; I <= Nb_WPoly; ++I) {
        const WPoly &A = Tab_WPoly[I], &B = reference::Tab_WPoly[I];
        ASSERT_EQ(A.Num, B.Num) << "line " << I;
        ASSERT_EQ(A.Attr, B.Attr) << "line " << I;
        ASSERT_EQ(A.First, B.First) << "line " << I;
        ASSERT_EQ(A.Last, B.Last) << "line " << I;
        ASSERT_EQ(A.Nb, B.Nb) << "line " << I;
    }
    for (Long I = 1; I <= Nb_WPt; ++I) {
        const WPt &A = Tab_WPt[I], &B = reference::Tab_WPt[I];
        ASSERT_TRUE(Bits(A.X) == Bits(B.X) && Bits(A.Y) == Bits(B.Y)) << "point " << I;
        ASSERT_EQ(A.Tag, B.Tag) << "point " << I;
    }
}

class Line_Cut_Test : public Program_Test {
protected:
    Line_Cut_Test() { Clear(); }
    ~Line_Cut_Test() override { Clear(); }

    static void Clear() {
        reference::Reset();
        Work_Lists_Reset();
    }

    static Line_Cut_Rule Cut_Rule(const Output& O) {
        return {.Grid = Grid_Lines_Of(O.Grid),
                .Tags_Cuts = O.Tags_Cuts,
                .Skips_Rows = O.Skips_Rows,
                .Fits = Is_Low};
    }

    /// One line on a map of 4 by 4 Areas with rows and columns at the multiples of 128.
    static Attr& Draw_One(const Outline& O) {
        Random R(1);
        Model_Reset();
        shapes::Make_Map(R, 4, 2, true);
        Attr& A = Tab_Obj[shapes::Add_Polygon(O)].Attr;
        A.SurfShore = 2;
        A.FermerLine = 0;
        return A;
    }

    /// A line as text, "X,Y" and a mark for each point: "" plain, "=" wide, "+" cut.
    static std::string Text_Of(const WPoly& W) {
        constexpr const char* Mark[] = {" ", "= ", "+ "};
        std::string Text;
        for (Long I = W.First; I <= W.Last; ++I) {
            const WPt& P = Tab_WPt[I];
            Text += std::to_string(std::lround(P.X)) + "," + std::to_string(std::lround(P.Y)) +
                    Mark[P.Tag];
        }
        Text.pop_back();
        return Text;
    }
    static std::vector<std::string> Texts() {
        std::vector<std::string> All;
        for (const WPoly& W : Tab_WPoly.Rows()) All.push_back(Text_Of(W));
        return All;
    }
    static std::vector<std::string> Collected() {
        Clear();
        Line_Collect(Roads.Rule);
        return Texts();
    }
    static std::vector<std::string> Cut() {
        Clear();
        Line_Collect(Roads.Rule);
        Line_Cut(Cut_Rule(Roads));
        return Texts();
    }
};

using Strings = std::vector<std::string>;

TEST_F(Line_Cut_Test, AgreesWithThePlainRulesOnRandomLines) {
    Long Cuts = 0, Bare_Whole = 0;
    const std::uint64_t Rounds = From_Environment("TERRAFOLD_ROUNDS", 150);
    const std::uint64_t First = From_Environment("TERRAFOLD_SEED", 1);
    for (std::uint64_t Seed = First; Seed < First + Rounds; ++Seed)
        for (const Output* O : {&Roads, &Night, &Coasts}) {
            SCOPED_TRACE(std::string(O->Name) + ", seed " + std::to_string(Seed));
            Clear();
            Draw_Lines(Seed);
            reference::Line_Collect(O->Rule);
            Line_Collect(O->Rule);
            ASSERT_NO_FATAL_FAILURE(Expect_Same_Lists());
            if (O == &Coasts) continue;
            const Long Nb = Nb_WPoly;
            reference::Line_Cut(O->Plain_Grid, Cut_Rule(*O));
            Line_Cut(Cut_Rule(*O));
            ASSERT_NO_FATAL_FAILURE(Expect_Same_Lists());
            Cuts += Nb_WPoly - Nb;
            for (const WPoly& W : Tab_WPoly.Rows())
                Bare_Whole += O == &Roads && Is_Bare(*W.Attr) ? 1 : 0;
        }
    if (Rounds < 150) return;
    EXPECT_GT(Cuts, 5000) << "the drawings must meet the grid";
    EXPECT_GT(Bare_Whole, 100);
}

// The grid lines that lie inside the box of a piece, more than the tolerance from its edges.
std::size_t Lines_Inside(std::span<const Double> Lines, Double Low, Double High, Double Tol) {
    const Line_Range R = Lines_Between(Lines, Low + 2 * Tol, High - 2 * Tol);
    return R.End - R.First;
}

TEST_F(Line_Cut_Test, PiecesLieBetweenGridLinesAndJoinToTheDrawnLine) {
    for (std::uint64_t Seed = 1000; Seed < 1150; ++Seed) {
        SCOPED_TRACE(Seed);
        Clear();
        Draw_Lines(Seed);
        for (Obj& O : Tab_Obj.Rows()) O.Attr.LineType = 1024;
        Line_Collect(Roads.Rule);
        const Table<WPoly> Drawn = Tab_WPoly;
        const Table<WPt> Points = Tab_WPt;
        const Line_Cut_Rule Rule = Cut_Rule(Roads);
        Line_Cut(Rule);
        Long K = 1;
        for (const WPoly& W : Drawn.Rows()) {
            Long Next = W.First;
            for (const Long First_Piece = K; K <= Nb_WPoly && Tab_WPoly[K].Num == W.Num; ++K) {
                const WPoly& Piece = Tab_WPoly[K];
                Pix Low = To_Pix(Tab_WPt[Piece.First]), High = Low;
                if (K > First_Piece) {
                    const WPoly& Before = Tab_WPoly[K - 1];
                    ASSERT_EQ(Low, To_Pix(Tab_WPt[Before.Last]));
                }
                for (Long I = Piece.First; I <= Piece.Last; ++I) {
                    const WPt& P = Tab_WPt[I];
                    Low = {std::min(Low.X, P.X), std::min(Low.Y, P.Y)};
                    High = {std::max(High.X, P.X), std::max(High.Y, P.Y)};
                    const bool Joint = I == Piece.First && K > First_Piece;
                    if (P.Tag == Tag_Cut || Joint) continue;
                    ASSERT_LE(Next, W.Last);
                    ASSERT_EQ(To_Pix(P), To_Pix(Points[Next]));
                    ASSERT_EQ(P.Tag, Points[Next].Tag);
                    ++Next;
                }
                const Grid_Lines& G = Rule.Grid;
                EXPECT_EQ(Lines_Inside(G.Y, Low.Y, High.Y, G.TolY), 0U) << Text_Of(Piece);
                EXPECT_EQ(Lines_Inside(G.X, Low.X, High.X, G.TolX), 0U) << Text_Of(Piece);
            }
            ASSERT_EQ(Next, W.Last + 1) << "every drawn point is there";
        }
        ASSERT_EQ(K, Nb_WPoly + 1);
    }
}

TEST_F(Line_Cut_Test, EndsKeepTheirTagsThroughClosingAndTurning) {
    const Outline Ring{{10, 10}, {50, 10}, {50, 50}, {10, 10}};
    Draw_One(Ring).FermerLine = 1;
    EXPECT_EQ(Collected(), (Strings{"10,10= 50,10 50,50 10,10="}));
    Draw_One(Ring);
    EXPECT_EQ(Collected(), (Strings{"10,10= 50,10 50,50"})) << "the last end goes with its point";
    Attr& A = Draw_One({{10, 10}, {10, 10}, {50, 10}, {50, 50}, {20, 60}});
    A.LandOnRight = 1;
    A.Effil_Fin = 1;
    EXPECT_EQ(Collected(), (Strings{"20,60 50,50 50,10 10,10="}));
    A.SurfShore = 3;
    A.FermerLine = 1;
    A.Effil_Deb = 1;
    EXPECT_EQ(Collected(), (Strings{"20,60 50,50 50,10 10,10"})) << "a coast is not closed";
    Draw_One({{10, 10}, {10, 10}, {10, 10}});
    EXPECT_EQ(Collected(), Strings{});
    Draw_One({{10, 10}, {50, 10}, {90, 10}});
    EXPECT_EQ(Collected(), (Strings{"10,10= 90,10="}));
}

TEST_F(Line_Cut_Test, CrossingsVerticesOnTheGridAndRunsAlongIt) {
    Draw_One({{100, 20}, {300, 40}});
    EXPECT_EQ(Cut(), (Strings{"100,20= 128,23+", "128,23+ 256,36+", "256,36+ 300,40="}));
    Draw_One({{100, 20}, {128, 40}, {150, 90}});
    EXPECT_EQ(Cut(), (Strings{"100,20= 128,40", "128,40 150,90="})) << "cut at the vertex";
    Draw_One({{128, 40}, {150, 90}});
    EXPECT_EQ(Cut(), (Strings{"128,40= 150,90="})) << "begins on the grid";
    Draw_One({{128, 20}, {128, 100}});
    EXPECT_EQ(Cut(), (Strings{"128,20= 128,100="})) << "along a column";
    Draw_One({{100, 20}, {128, 40}, {128, 90}, {150, 95}, {180, 20}});
    EXPECT_EQ(Cut(), (Strings{"100,20= 128,40", "128,40 128,90 150,95", "150,95 180,20="}))
        << "the first stride off the grid belongs to the run along it";
}

TEST_F(Line_Cut_Test, BareLinesAreCutAlongRowsOnlyWhenTheyDoNotFit) {
    Draw_One({{100, 20}, {110, 300}, {140, 310}}).LineType = Bare_Kind;
    EXPECT_EQ(Cut(), (Strings{"100,20= 110,300 128,306+", "128,306+ 140,310="}));
    Draw_One({{100, 20}, {110, 330}}).LineType = Bare_Kind;
    EXPECT_EQ(Cut(), (Strings{"100,20= 103,128+", "103,128+ 108,256+", "108,256+ 110,330="}));
}

}  // namespace
