// tests/ui/test_view_grid.cpp - lines of the grid and marks on its squares.
#include <algorithm>

#include "core/program.h"
#include "grid/terrain_grid.h"
#include "ui/canvas/grid_marks.h"
#include "ui/canvas/own_canvas.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"
#include "ui_support/view_test.h"

namespace {

using Kind = Surface_Op::Kind;

constexpr Pen Red{.Colour = 0xFF0000};
constexpr Pen Plain{.Colour = 0xC0C0C0, .Style = Line_Style::Dotted};

class View_Grid : public View_Test {
protected:
    std::vector<Surface_Op> Draw() {
        Canvas.Ops.clear();
        Grid_Draw(Mode_Area != 0   ? Grid_Marks::Areas
                  : Mode_Cell != 0 ? Grid_Marks::Lod8s
                  : Mode_Excl != 0 ? Grid_Marks::Excls
                                   : Grid_Marks::None);
        return Canvas.Of_Kind(Kind::Line);
    }
    // The lines that are no lines of the grid.
    std::vector<Surface_Op> Marks() {
        auto Lines = Draw();
        std::erase_if(Lines, [](const Surface_Op& L) { return L.With == Red || L.With == Plain; });
        return Lines;
    }
};

TEST_F(View_Grid, LinesStandWhereTheyMust) {
    std::vector<Surface_Op> Expected;
    for (Long I = 0; I <= 9; ++I)
        Expected.push_back(Line_Op({0, 20 * I, 220, 20 * I}, I == 2 ? Red : Plain));
    for (Long J = 0; J <= 11; ++J)
        Expected.push_back(Line_Op({20 * J, 0, 20 * J, 180}, J == 1 ? Red : Plain));
    EXPECT_EQ(Draw(), Expected);
    EXPECT_EQ(Canvas.Ops.back().What, Kind::Refresh);
    EXPECT_EQ(The_Grid_In_View.First_Col, 2) << "the first line at or right of the canvas's edge";
    EXPECT_EQ(The_Grid_In_View.Last_Col, 13);
    EXPECT_EQ(The_Grid_In_View.First_Row, 2);
    EXPECT_EQ(The_Grid_In_View.Last_Row, 11);
}

TEST_F(View_Grid, AreaBordersAreRedOnBothSidesOfEquatorAndGreenwich) {
    for (const int North : {128, 1, 0, -1, -255})
        for (const int East : {3, 0, -1, -383}) {
            Lay_Grid(North, East);
            Draw();
            EXPECT_EQ(Canvas.Lines_With(Red),
                      (std::vector<Line_Px>{{0, 40, 220, 40}, {20, 0, 20, 180}}))
                << North << " " << East;
        }
}

TEST_F(View_Grid, AGridThatIsHiddenIsStillWorkedOut) {
    Mode_Area = 1;
    Tab_Area.Append(Record_At<Area>(3, 3));
    Show_Grid = false;
    The_Grid_In_View = {};
    EXPECT_TRUE(Draw().empty());
    EXPECT_EQ(The_Grid_In_View.Last_Col, 13);
}

// A map of the whole globe shrunk to a few pixels has 41,000 lines.
TEST_F(View_Grid, SquaresRoundCornersStandHalfACellFurther) {
    Tab_LC.Append(Record_At<LC_Cell>(1, 1));  // its north-west corner is the map's
    Grid_Find(Grid_Place::On_Corners);
    EXPECT_TRUE(Canvas.Ops.empty());
    Grid_Draw_Lines();
    EXPECT_EQ(Canvas.Lines_With(Red),
              (std::vector<Line_Px>{{-10, 30, 210, 30}, {10, -10, 10, 170}}))
        << "with the colours that they have at home";
    std::vector<Square_Px> Seen;
    Squares_In_View(Pixel_To_Cell_Shift)
        .For_Each_Record(Tab_LC, [&](const Square_Px& S, const LC_Cell&) {
            Seen.push_back(S);
            Hatching().Paint(S, Hatch_Grey);
        });
    ASSERT_EQ(Seen.size(), 1U);
    EXPECT_EQ(Seen[0].Left, -10);
    EXPECT_EQ(Seen[0].Bottom, 10);
    const Pen Grey{.Colour = Hatch_Grey, .Style = Line_Style::Dotted};
    EXPECT_EQ(Canvas.Lines_With(Grey), (std::vector<Line_Px>{{-3, -10, -3, 10}, {3, -10, 3, 10}}));
}

TEST_F(View_Grid, ADialogsCanvasHasItsOwnViewAndOverlay) {
    struct Drawn final : Form_View {
        Recorded_Surface Pic;
        void Control_Changed(const Control&) override {}
        void Title_Changed(const Form&) override {}
        void Focus_Changed(const Control&, bool) override {}
        void Form_Closed(const Form&) override {}
        Surface* Surface_Of(std::string_view) override { return &Pic; }
    } Window;
    Form F("Frm_CadBmp");
    Own_Canvas Own;
    Zoom = 3.0;
    for (Form_View* View : {static_cast<Form_View*>(nullptr), static_cast<Form_View*>(&Window)}) {
        F.View = View;
        const Canvas_Scope On(F, "Pic", Own);
        Zoom += 1.0;
        The_Surface().Refresh();
    }
    EXPECT_EQ(Zoom, 3.0);
    EXPECT_EQ(Own.View.Zoom, 3.0) << "1, and twice 1 more";
    EXPECT_EQ(Window.Pic.Ops.size(), 1U);
    EXPECT_TRUE(Canvas.Ops.empty());
}

TEST_F(View_Grid, LinesThatFallOnOneAnotherArePaintedOnce) {
    Lay_Grid(128, 3);
    LatGridNW = 90.0, LatGridSE = -90.0, LonGridNW = -180.0, LonGridSE = 180.0;
    XGridNW = YGridNW = 0.0;
    XGridSE = Map_Width = 200000;
    YGridSE = Map_Height = 160000;
    Zoom = 0.001;
    View_Center_On_Point({.X = 100000.0, .Y = 80000.0});
    const auto Lines = Draw();
    EXPECT_EQ(std::ranges::adjacent_find(Lines), Lines.end());
    // On a row or column of pixels: grey, then red where a border falls on it, then grey again.
    EXPECT_LE(Lines.size(), 3U * (201 + 161) + 2 * (768 + 512));
    const auto On_Pixel = [&](Long X) {
        return std::ranges::any_of(Lines, [X](const Surface_Op& L) { return L.At.X1 == X; });
    };
    for (Long X = 51; X <= 250; ++X) EXPECT_TRUE(On_Pixel(X)) << X;
}

TEST_F(View_Grid, HatchLinesByWidth) {
    Mode_Area = 1;
    Tab_Area.Append(Record_At<Area>(5, 4));
    const std::pair<Double, std::size_t> Counts[] = {{4.99, 0},  {5.0, 1},   {10.9, 1}, {11.0, 2},
                                                     {30.9, 2},  {31.0, 3},  {80.9, 3}, {81.0, 4},
                                                     {149.9, 4}, {150.0, 6}, {400.0, 6}};
    for (const auto& [Cell_W, Count] : Counts) {
        Zoom = Cell_W / 20.0;
        View_Center_On_Point({.X = 90.0, .Y = 70.0});
        EXPECT_EQ(Marks().size(), Count) << Cell_W;
    }
    Zoom = 1.0;
    View_Center_Map();
    const Pen Blue{.Colour = 0x0000FF, .Style = Line_Style::Dotted};
    EXPECT_EQ(Marks(), (std::vector<Surface_Op>{Line_Op({87, 60, 87, 80}, Blue),
                                                Line_Op({93, 60, 93, 80}, Blue)}));
}

}  // namespace
