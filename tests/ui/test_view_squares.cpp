// tests/ui/test_view_squares.cpp - squares of classes on the canvas.
#include "core/program.h"
#include "platform/files.h"
#include "ui/canvas/view.h"
#include "ui/edit/class_grid.h"
#include "ui_support/small_project.h"
#include "ui_support/view_test.h"

namespace {

using Kind = Surface_Op::Kind;

constexpr Pen Hatch{.Colour = 0xA0A0A0, .Style = Line_Style::Dotted};

class View_Squares : public View_Test {
protected:
    View_Squares() {
        Dir.Write("App/Resource/LC.txt", "007 012 Wood\r\n252 012 none\r\nlast\r\n");
        Dir_Texture = Dir.Path("FS");
        Dir.Write("FS/012b2su1.bmp", Small_Bitmap(256, 256));
        Dir.Write("FS/003b2wa1.bmp", Small_Bitmap(128, 64));
        Show_Texture = true;
    }
    template <typename R>
    void Put(Project_Table<R>& Tab, int Col, int Row, Byte Num) {
        R Record = Record_At<R>(Col, Row);
        Record.Num = Num;
        Tab.Append(Record);
    }
    std::vector<Surface_Op> Copies(Class_Sort Sort) {
        Canvas.Ops.clear();
        Class_Grid_Draw(Sort);
        return Canvas.Of_Kind(Kind::Copy);
    }
};

// A square has the corner that it is the class of in its middle.
TEST_F(View_Squares, AClassShowsItsTextureRoundACorner) {
    Put(Tab_LC, 3, 4, 7);
    Put(Tab_LC, 3, 4, 252);  // a second record of a square is not looked at
    Put(Tab_LC, 5, 4, 7);
    const auto First = Copies(Class_Sort::Land);
    ASSERT_EQ(First.size(), 2U);
    EXPECT_EQ(First[0].Source, (Box_Px{0, 0, 256, 256}));
    EXPECT_EQ(First[0].Dest, Edges_Of({30, 50, 21, 21}));
    EXPECT_EQ(First[1].Dest, Edges_Of({70, 50, 21, 21}));
    EXPECT_TRUE(Canvas.Lines_With(Hatch).empty());
    EXPECT_EQ(First[0].Of, First[1].Of);
    File_Delete(Dir.Path("FS\\012b2su1.bmp"));
    EXPECT_EQ(Copies(Class_Sort::Land), First) << "no file is read a second time";
    Class_Pictures_Forget();
    EXPECT_TRUE(Copies(Class_Sort::Land).empty());
    EXPECT_EQ(Canvas.Lines_With(Hatch),
              (std::vector<Line_Px>{
                  {37, 50, 37, 70}, {43, 50, 43, 70}, {77, 50, 77, 70}, {83, 50, 83, 70}}));
}

TEST_F(View_Squares, AClassWithoutATextureIsHatched) {
    Put(Tab_LC, 3, 4, 8);
    Put(Tab_LC, 4, 4, 252);
    EXPECT_TRUE(Copies(Class_Sort::Land).empty());
    EXPECT_EQ(Canvas.Lines_With(Hatch).size(), 4U);
    Put(Tab_WC, 3, 4, 3);
    const auto Water = Copies(Class_Sort::Water);
    ASSERT_EQ(Water.size(), 1U) << "the class itself names the file";
    EXPECT_EQ(Water[0].Source, (Box_Px{0, 0, 128, 64}));
    Show_Texture = false;
    EXPECT_TRUE(Copies(Class_Sort::Water).empty());
    EXPECT_EQ(Canvas.Lines_With(Hatch).size(), 2U);
    Zoom = 0.24;
    Copies(Class_Sort::Water);
    EXPECT_TRUE(Canvas.Lines_With(Hatch).empty()) << "squares of less than 5 pixels";
}

}  // namespace
