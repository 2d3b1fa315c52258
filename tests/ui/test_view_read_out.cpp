// tests/ui/test_view_read_out.cpp - what the labels tell of the place under the mouse.
#include <algorithm>

#include "core/program.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"
#include "ui/frm/frm.h"
#include "ui_support/view_test.h"

namespace {

constexpr const char* Labels[] = {"L_MouseBmp", "LLat",           "LLon",       "LLatDec",
                                  "LLonDec",    "L_NumCell_Area", "L_CustomBmp"};

class View_Read_Out : public View_Test {
protected:
    const std::string& Label(const char* Name) { return Frm()[Name].Caption; }
    bool All_Empty() {
        return std::ranges::all_of(Labels, [this](const char* L) { return Label(L).empty(); });
    }
};

// A map pixel is 1/1365.33 of a degree east and 1/1820.44 south. From (0, 0) at N45.02197265625
// E1.3916015625, (100, 50) is N44.9945068359375 E1.46484375: half a Cell south of the northern
// edge of Area row 128, and on the western edge of Cell 4 in Area column 387.
TEST_F(View_Read_Out, TheTextsOfAPlace) {
    Mouse_Read_Out({100.2, 49.6});
    EXPECT_EQ(Mouse_Map_X, 100);
    EXPECT_EQ(Mouse_Map_Y, 50);
    EXPECT_EQ(Move_X, 100.2);
    EXPECT_NEAR(Move_Map_Y, 49.6, 1e-9);
    EXPECT_EQ(Label("L_MouseBmp"), "Mouse 100x50");
    EXPECT_EQ(Label("LLat"), "N44:59:40.2246");
    EXPECT_EQ(Label("LLon"), "E001:27:53.4375");
    EXPECT_EQ(Label("LLatDec"), "44.9945068");
    EXPECT_EQ(Label("LLonDec"), "1.4648437") << "cut down, not rounded";
    EXPECT_EQ(Label("L_NumCell_Area"), "C: 387-128  A: 4-0  x,y 0-128");
    // Columns 12388 = 011000001100100 and rows 4096 = 001000000000000 in binary.
    EXPECT_EQ(Label("L_CustomBmp"), "013000001100100xx.Bmp");
}

TEST_F(View_Read_Out, SouthAndWestAreCutDownwards) {
    Lay_Grid(0, 0);
    Mouse_Read_Out({10.0, 170.0});
    EXPECT_EQ(Label("LLat"), "S00:04:17.0801");
    EXPECT_EQ(Label("LLatDec"), "-0.0714112") << "-0.0714111328125";
    EXPECT_EQ(Label("LLon"), "W000:00:26.3672");
    EXPECT_EQ(Label("LLonDec"), "-0.0073243") << "-0.00732421875";
    EXPECT_EQ(Label("L_NumCell_Area"), "C: 383-256  A: 31-6  x,y 128-128");
}

TEST_F(View_Read_Out, OffTheGridTheLabelsAreEmpty) {
    Mouse_Read_Out({100.0, 50.0});
    EXPECT_FALSE(All_Empty());
    Mouse_Read_Out({221.0, 50.0});
    EXPECT_TRUE(All_Empty());
    EXPECT_EQ(Move_X, 220.0) << "held to the grid";
    EXPECT_EQ(Mouse_Map_X, 220);
    Mouse_Read_Out({100.0, 180.0});
    EXPECT_EQ(Label("L_MouseBmp"), "Mouse 100x180") << "its edge belongs to it";
    Mouse_Read_Out({100.0, 181.0});
    EXPECT_TRUE(All_Empty());
}

TEST_F(View_Read_Out, TheCanvasEdgeOnlyHolds) {
    View_Center_On_Point({.X = 150.5, .Y = 80.0});
    Mouse_Read_Out({-7.0, 100.0});
    EXPECT_EQ(Move_X, 0.0);
    EXPECT_FALSE(All_Empty());
}

TEST_F(View_Read_Out, NothingIsFollowedWithoutAProjectOrBehindADialog) {
    Mouse_Read_Out({100.0, 50.0});
    Dialog_Up = 1;
    Mouse_Read_Out({120.0, 60.0});
    EXPECT_EQ(Label("L_MouseBmp"), "Mouse 100x50");
    Dialog_Up = 0;
    Edit_On = 0;
    Pic_Mouse({.What = Mouse_Event::Kind::Move, .X = 120.0, .Y = 60.0});
    EXPECT_EQ(Mouse_Map_X, 100);
}

TEST_F(View_Read_Out, APressIsHeldToTheGridToo) {
    Zoom = 2.0;
    View_Center_On_Point({.X = 220.0, .Y = 80.0});
    Mouse_Click_At({200.0, 125.5});
    EXPECT_EQ(Click_X, 150.5);
    EXPECT_EQ(Click_Y, 125.5);
    EXPECT_NEAR(Click_Map_X, 220.0, 1e-9);
    EXPECT_NEAR(Click_Map_Y, 80.0, 1e-9);
    EXPECT_EQ(Mouse_Map_X, 0) << "the last move is another matter";
}

}  // namespace
