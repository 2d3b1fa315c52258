// tests/ui/test_view_map.cpp - the map on the canvas, tile by tile.
#include <algorithm>
#include <random>

#include "core/program.h"
#include "ui/canvas/map_tiles.h"
#include "ui/canvas/view.h"
#include "ui_support/view_test.h"

namespace {

using Kind = Surface_Op::Kind;

// A map of 200 by 160 in tiles of 90: three columns and two rows.
class View_Map : public View_Test {
protected:
    View_Map() {
        Tile_Size = 90;
        Nb_Tile_Cols = 3;
        Nb_Tile_Rows = 2;
        Nb_Tiles = 6;
        WPic.clear();
        for (int I = 0; I < 6; ++I) WPic.push_back(Picture_Make(90, 90, 8));
    }
    ~View_Map() override { WPic = std::vector<Picture>(1); }

    std::vector<Surface_Op> Blit() {
        Canvas.Ops.clear();
        Map_Blit_View();
        return Canvas.Of_Kind(Kind::Copy);
    }
};

// A tile's part along one axis: its first and last edge on the map and on the canvas.
struct Stretch {
    Long From, To;
    Double Begin, End;
};

Stretch Across(const Surface_Op& C) {
    const Long First = static_cast<Long>(C.Of - WPic.data()) % Nb_Tile_Cols * Tile_Size;
    return {First + C.Source.X, First + C.Source.X + C.Source.W, C.Dest.Left, C.Dest.Right};
}

Stretch Down(const Surface_Op& C) {
    const Long First = static_cast<Long>(C.Of - WPic.data()) / Nb_Tile_Cols * Tile_Size;
    return {First + C.Source.Y, First + C.Source.Y + C.Source.H, C.Dest.Top, C.Dest.Bottom};
}

// Copies one behind the other cover the canvas from 0 to Pic, as far as the map reaches there.
void Expect_Covered(const std::vector<Stretch>& Copies, Double (*Place)(Long), Long Map, Long Pic) {
    EXPECT_LE(Copies.front().Begin, std::max(Place(0), 0.0));
    EXPECT_GE(Copies.back().End, std::min(Place(Map), static_cast<Double>(Pic)));
    for (std::size_t I = 0; I < Copies.size(); ++I) {
        EXPECT_NEAR(Copies[I].Begin, Place(Copies[I].From), 1e-6);
        EXPECT_NEAR(Copies[I].End, Place(Copies[I].To), 1e-6);
        if (I == 0) continue;
        EXPECT_EQ(Copies[I].Begin, Copies[I - 1].End) << "a gap";
        EXPECT_EQ(Copies[I].From, Copies[I - 1].To) << "pixels lost";
    }
}

TEST_F(View_Map, EachPixelIsPaintedWhereItsCornersAre) {
    std::mt19937 Random(1);
    std::uniform_real_distribution<Double> Centre_X(0.0, 200.0), Centre_Y(0.0, 160.0);
    for (Zoom = 0.05; Zoom <= 23.0; Zoom *= 1.15)
        for (int I = 0; I < 20; ++I) {
            View_Center_On_Point({.X = Centre_X(Random), .Y = Centre_Y(Random)});
            SCOPED_TRACE(testing::Message() << "zoom " << Zoom << " pan " << Pan_X << " " << Pan_Y);
            const auto Copies = Blit();
            ASSERT_FALSE(Copies.empty());
            std::vector<Stretch> X, Y;
            for (const Surface_Op& C : Copies) {
                if (C.Dest.Top == Copies.front().Dest.Top) X.push_back(Across(C));
                if (C.Dest.Left == Copies.front().Dest.Left) Y.push_back(Down(C));
            }
            EXPECT_EQ(Copies.size(), X.size() * Y.size());
            const auto Col = [](Long At) { return Map_To_Pic({Double(At), 0.0}).X; };
            const auto Row = [](Long At) { return Map_To_Pic({0.0, Double(At)}).Y; };
            Expect_Covered(X, Col, Map_Width, Pic_Width);
            Expect_Covered(Y, Row, Map_Height, Pic_Height);
        }
}

TEST_F(View_Map, NothingIsCopiedBeyondTheMapOrWithoutTiles) {
    for (const Pt& P : {Pt{.X = 351.0, .Y = 80.0},
                        {.X = -152.0, .Y = 80.0},
                        {.X = 100.0, .Y = 286.0},
                        {.X = 100.0, .Y = -127.0}}) {
        View_Center_On_Point(P);
        EXPECT_TRUE(Blit().empty()) << P.X << " " << P.Y;
    }
    View_Center_Map();
    EXPECT_EQ(Blit().size(), 6U);
    Show_Bitmap = false;
    EXPECT_TRUE(Blit().empty());
    Show_Bitmap = true;
    WPic = std::vector<Picture>(1);
    EXPECT_TRUE(Blit().empty()) << "the tiles are not loaded yet";
    Nb_Tiles = Nb_Tile_Cols = Nb_Tile_Rows = 0;
    EXPECT_TRUE(Blit().empty());
}

}  // namespace
