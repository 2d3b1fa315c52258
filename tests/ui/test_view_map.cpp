// tests/ui/test_view_map.cpp - the map on the canvas, tile by tile.
#include <algorithm>
#include <cmath>
#include <map>
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

struct Stretch {
    Long Source, Size, Dest, Dest_Size;
};

// The copies along one axis, by tile column or row: first to last as they lie on the canvas.
std::map<Long, Stretch> Along_X(const std::vector<Surface_Op>& Copies) {
    std::map<Long, Stretch> Made;
    for (const Surface_Op& C : Copies) {
        const Long Col = static_cast<Long>(C.Of - WPic.data()) % Nb_Tile_Cols;
        Made[Col] = {Col * Tile_Size + C.Source.X, C.Source.W, C.Dest.X, C.Dest.W};
    }
    return Made;
}

std::map<Long, Stretch> Along_Y(const std::vector<Surface_Op>& Copies) {
    std::map<Long, Stretch> Made;
    for (const Surface_Op& C : Copies) {
        const Long Row = static_cast<Long>(C.Of - WPic.data()) / Nb_Tile_Cols;
        Made[Row] = {Row * Tile_Size + C.Source.Y, C.Source.H, C.Dest.Y, C.Dest.H};
    }
    return Made;
}

// The map spans the canvas pixels Begin to End.
void Expect_Covered(const std::map<Long, Stretch>& Copies, Double Begin, Double End, Long Pic) {
    ASSERT_FALSE(Copies.empty());
    // Its first pixel and its number of pixels are whole, and so is each copy's size.
    const Double Slack = 0.5 * Zoom + 0.5 + 0.5 * static_cast<Double>(Copies.size());
    const Stretch& First = Copies.begin()->second;
    const Stretch& Last = Copies.rbegin()->second;
    EXPECT_LE(std::fabs(First.Dest - std::max(Begin, 0.0)), 0.5);
    const Double Want = std::min(End, static_cast<Double>(Pic));
    EXPECT_NEAR(Last.Dest + Last.Dest_Size, Want, Slack + 0.5 * Zoom);
    EXPECT_NEAR((First.Dest - Begin) / Zoom, First.Source, 0.5 + 1.0 / Zoom);
    const Stretch* Before = nullptr;
    for (const auto& [Index, S] : Copies) {
        EXPECT_EQ(S.Dest_Size, Round_Lng(S.Size * Zoom));
        if (Before != nullptr) {
            EXPECT_EQ(S.Dest, Before->Dest + Before->Dest_Size) << "a gap";
            EXPECT_EQ(S.Source, Before->Source + Before->Size) << "pixels lost";
        }
        Before = &S;
    }
}

TEST_F(View_Map, CopiesAbutAndCoverTheVisibleMapAtEveryZoom) {
    std::mt19937 Random(1);
    std::uniform_real_distribution<Double> Centre_X(-20.0, 220.0), Centre_Y(-20.0, 180.0);
    for (Zoom = 0.05; Zoom <= 23.0; Zoom *= 1.15)
        for (int I = 0; I < 20; ++I) {
            View_Center_On_Point({.X = Centre_X(Random), .Y = Centre_Y(Random)});
            SCOPED_TRACE(testing::Message() << "zoom " << Zoom << " pan " << Pan_X << " " << Pan_Y);
            const Pic_Px NW = Map_To_Pic({0.0, 0.0}), SE = Map_To_Pic({200.0, 160.0});
            const auto Copies = Blit();
            // Nearly out of view, the rounding of positions decides.
            if (SE.X < Zoom + 1 || SE.Y < Zoom + 1 || NW.X > 299 || NW.Y > 249) continue;
            const auto X = Along_X(Copies), Y = Along_Y(Copies);
            EXPECT_EQ(Copies.size(), X.size() * Y.size());
            Expect_Covered(X, NW.X, SE.X, Pic_Width);
            Expect_Covered(Y, NW.Y, SE.Y, Pic_Height);
        }
}

TEST_F(View_Map, FourTilesGiveFourCopies) {
    Zoom = 10.0;
    View_Center_On_Point({.X = 92.05, .Y = 88.55});
    const auto Copies = Blit();
    ASSERT_EQ(Copies.size(), 4U);
    // The view begins at map pixel (77, 76), and 30 by 25 pixels fill it.
    EXPECT_EQ(Copies[0].Of, &WPic[0]);
    EXPECT_EQ(Copies[0].Source, (Box_Px{77, 76, 13, 14}));
    EXPECT_EQ(Copies[0].Dest, (Box_Px{0, 0, 130, 140}));
    EXPECT_EQ(Copies[1].Of, &WPic[1]);
    EXPECT_EQ(Copies[1].Source, (Box_Px{0, 76, 17, 14}));
    EXPECT_EQ(Copies[1].Dest, (Box_Px{130, 0, 170, 140}));
    EXPECT_EQ(Copies[2].Of, &WPic[3]);
    EXPECT_EQ(Copies[2].Source, (Box_Px{77, 0, 13, 11}));
    EXPECT_EQ(Copies[2].Dest, (Box_Px{0, 140, 130, 110}));
    EXPECT_EQ(Copies[3].Of, &WPic[4]);
    EXPECT_EQ(Copies[3].Dest, (Box_Px{130, 140, 170, 110}));
}

TEST_F(View_Map, AMapRightAndBelowTheOriginLeavesABand) {
    Pan_X += 30.4, Pan_Y += 12.6;
    const auto Copies = Blit();
    ASSERT_EQ(Copies.size(), 6U);
    EXPECT_EQ(Copies[0].Source, (Box_Px{0, 0, 90, 90}));
    EXPECT_EQ(Copies[0].Dest, (Box_Px{30, 13, 90, 90}));
    EXPECT_EQ(Copies[5].Source, (Box_Px{0, 0, 20, 70})) << "the map ends inside its last tile";
    EXPECT_EQ(Copies[5].Dest, (Box_Px{210, 103, 20, 70}));
}

TEST_F(View_Map, NothingIsCopiedBeyondTheMapOrWithoutTiles) {
    for (const Pt& P : {Pt{.X = 351.0, .Y = 80.0},
                        {.X = -151.0, .Y = 80.0},
                        {.X = 100.0, .Y = 286.0},
                        {.X = 100.0, .Y = -126.0}}) {
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
