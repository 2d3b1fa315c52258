// tests/ui/test_ima_zones.cpp - zones of a texture's rectangle and drags in them, in rows; a drag
// that the user leaves.
#include "ui/edit/ima_zones.h"

#include <gtest/gtest.h>

#include "core/model_ops.h"
#include "support/rows.h"
#include "ui/edit/modes.h"
#include "ui_support/view_test.h"

namespace {

constexpr const char* Zone_Names[] = {"none", "II", "HG", "BG", "GG", "HD", "BD", "DD", "HH", "BB"};

constexpr const char* Pointer_Names[] = {"normal",   "hourglass",  "cross", "move",
                                         "vertical", "horizontal", "ne_sw", "nw_se"};

std::string Name_Of(Ima_Zones Zone) {
    return Zone_Names[static_cast<int>(Zone)];
}

Ima_Zones Zone_Of(const std::string& Name) {
    int I = 0;
    while (Name != Zone_Names[I]) ++I;
    return static_cast<Ima_Zones>(I);
}

std::string Name_Of(Pointer_Shape Pointer) {
    return Pointer_Names[static_cast<int>(Pointer)];
}

Rect_Pix Rect_Of(const std::string& Cell) {
    const auto N = Cell_Numbers(Cell);
    return {N[0], N[1], N[2], N[3]};
}

std::string Zone_Row(const Row_Cells& C) {
    const auto At = Cell_Numbers(C[0]);
    const Ima_Hit Hit = Ima_Hit_Zone({At[0], At[1]}, Rect_Of(C[1]));
    return Name_Of(Hit.Zone) + " " + Name_Of(Hit.Pointer);
}

std::string Drag_Row(const Row_Cells& C) {
    const auto Step = Cell_Numbers(C[2]);
    const auto To = Ima_Dragged(Rect_Of(C[1]), Zone_Of(C[0]), static_cast<Long>(Step[0]),
                                static_cast<Long>(Step[1]));
    if (!To) return "refused";
    return Number_Cell(To->Left) + " " + Number_Cell(To->Top) + " " + Number_Cell(To->Right) + " " +
           Number_Cell(To->Bottom);
}

using Ima_Drag_Test = View_Test;

}  // namespace

TEST(Ima_Zones, Rows) {
    Expect_Rows("ima_zones", {{"Zone", Zone_Row}, {"Drag", Drag_Row}});
}

TEST_F(Ima_Drag_Test, EndsWhereTheUserGoesToAnotherWindow) {
    Ima_Add(Ima{});
    Ima_Place(1, 10.0, 20.0, 60.0, 70.0);
    Edit_On = 1;
    Mode_Enter(Row_Of_Ima);
    Cmd_Tabul();
    const Pic_Px Middle = Map_To_Pic({35.0, 45.0});
    using Kind = Mouse_Event::Kind;
    Pic_Mouse({.What = Kind::Move, .X = Middle.X, .Y = Middle.Y});
    Pic_Mouse({.What = Kind::Press, .Button = Mouse_Left, .X = Middle.X, .Y = Middle.Y});
    Pic_Mouse({.What = Kind::Move, .Button = Mouse_Left, .X = Middle.X + 3.0, .Y = Middle.Y});
    EXPECT_EQ(Tab_Ima[1].X1, 10.0);
    Pic_Mouse({.What = Kind::Away, .X = Middle.X + 3.0, .Y = Middle.Y});
    EXPECT_EQ(Tab_Ima[1].X1, 13.0);
    Pic_Mouse({.What = Kind::Move, .X = Middle.X + 9.0, .Y = Middle.Y});
    EXPECT_EQ(The_Overlay.LnVIma1.At.X1, Round_Lng(Map_To_Pic({13.0, 0.0}).X)) << "not dragged on";
}
