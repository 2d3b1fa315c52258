// test_coast_cut.cpp - crossings of coastlines with the grid, and Cells that are full, against the
// plain rules.
#include "shapes/coast/coast_cut.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "core/model_ops.h"
#include "reference/plain.h"
#include "shapes.h"
#include "shapes/coast/coast_fill.h"
#include "support/program_test.h"
#include "support/rows.h"

namespace {

using shapes::Outline;
using shapes::Random;

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
    Expect_Rows("filled_cells", {{"Fill", [](const Row_Cells& C) {
                                      Pieces P;
                                      for (std::size_t At = 0, End = 0; At < C[0].size();
                                           At = End + 1) {
                                          End = std::min(C[0].find(';', At), C[0].size());
                                          const auto V = Cell_Numbers(C[0].substr(At, End - At));
                                          std::vector<std::pair<int, int>> O;
                                          for (std::size_t I = 0; I + 1 < V.size(); I += 2)
                                              O.emplace_back(V[I], V[I + 1]);
                                          P.Add(O);
                                      }
                                      return std::string(P.Fill() ? "full" : "not");
                                  }}});
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
TEST(Coast_Cells, CrossingsLikePassAfterPass) {
    Random R(9);
    std::size_t Added = 0;
    for (int Round = 0; Round < 120; ++Round) {
        SCOPED_TRACE(Round);
        Model_Reset();
        shapes::Make_Map(R, R.Whole(1, 8), 0, R.Chance(0.5));
        const Grid_Lines Grid = Grid_Lines_Of(Coasts_By_Cell);
        const auto Some_Place = [&](std::span<const Double> Lines, Double Tol) {
            const auto K =
                static_cast<std::size_t>(R.Whole(0, static_cast<Long>(Lines.size()) - 2));
            if (R.Chance(0.7)) return Lines[K] + R.Between(-1, 2) * (Lines[K + 1] - Lines[K]);
            return Lines[K] + static_cast<Double>(R.Whole(-2, 2)) * Tol * R.Between(0.4, 1);
        };
        reference::Polys Plain(static_cast<std::size_t>(R.Whole(1, 4)));
        std::vector<Outline> Lines(Plain.size());
        for (std::size_t K = 0; K < Lines.size(); ++K)
            for (Long I = R.Whole(2, 12); I > 0; --I) {
                Lines[K].push_back({Some_Place(Grid.X, Grid.TolX), Some_Place(Grid.Y, Grid.TolY)});
                Plain[K].P.push_back({.X = Lines[K].back().X, .Y = Lines[K].back().Y});
            }
        reference::Coast_Crossings(Plain, Grid);
        for (std::size_t K = 0; K < Lines.size(); ++K) {
            Outline Wanted;
            for (const WPt& P : Plain[K].P) Wanted.push_back(To_Pix(P));
            Added -= Lines[K].size();
            Coast_Crossings(Grid, Lines[K]);
            Added += Lines[K].size();
            ASSERT_EQ(Lines[K], Wanted);
        }
    }
    EXPECT_GT(Added, 2000U);
    Model_Reset();
}

}  // namespace
