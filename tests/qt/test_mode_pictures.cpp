// tests/qt/test_mode_pictures.cpp - what the canvas shows in each mode, against accepted pictures.
//
// tests/data/golden/modes/MODE_ZOOM.png are taken over with TERRAFOLD_ACCEPT set, as golden.h
// tells; look at them before you commit.
#include <QImage>
#include <cstdlib>
#include <filesystem>

#include "core/lifecycle.h"
#include "core/model_ops.h"
#include "grid/terrain_grid.h"
#include "qt/canvas_widget.h"
#include "qt/text.h"
#include "qt_test.h"
#include "ui/canvas/grid_marks.h"
#include "ui/canvas/ima_pictures.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"
#include "ui_support/small_project.h"
#include "ui_support/ui_test.h"

namespace {

constexpr int Canvas_Width = 301, Canvas_Height = 251;

class Mode_Pictures : public Ui_Test {
protected:
    Mode_Pictures() {
        Pic.setFixedSize(Canvas_Width, Canvas_Height);
        Pic.show();
        Turn();
        View_Resize(Canvas_Width, Canvas_Height);
        Write_Small_Project(Dir, "small");
        Open_Project(Dir.Path("small.LWM"));
        Put_Records();
        Dir_Texture = Dir.Path("FS");
        Dir.Write("App/Resource/LC.txt", "007 012 Wood\r\nlast\r\n");
        Dir.Write("FS/012b2su1.bmp", Small_Bitmap(256, 256));
    }
    static void Put_Records() {
        const auto At = [](Long X, Long Y) {
            return Cell_Of_Pixel({X * 100.0 - 50, Y * 100.0 - 50});
        };
        for (const Byte Kind : {0, 1, 2, 3}) {
            Area A;
            static_cast<Cell_Pos&>(A) = Kind == 3 ? At(2, 2) : At(1 + Kind, 1);
            A.Attrib = Kind;
            A.Fill1x1 = Kind == 3 ? 0 : 1;
            Tab_Area.Append(A);
        }
        Tab_Lod8.Append({.AreaLon = At(1, 1).AreaLon, .AreaLat = At(1, 3).AreaLat, .Attrib = 1});
        Tab_Excl.Append({At(2, 2), {}});
        Tab_LC.Append({At(2, 2), 7});
        Tab_LC.Append({At(3, 2), 8});
        Tab_WC.Append({At(2, 3), 1});
        PtGrid_Add(120.0, 80.0, 5.0F);
        Mesh_Done = 1;
    }
    // With a polygon that is linked to it; the others of the mode are those that no link fits.
    static void Put_Texture() {
        Ima Map_Itself;
        Map_Itself.DirFic = Carte;
        const Long I = Ima_Add(Map_Itself);
        Ima_Place(I, 130.0, 100.0, 170.0, 140.0);
        Ima_Picture_Load(I);
        const Long Linked = Obj_Add({}, 135.0, 105.0);
        Pt_Append(Linked, 165.0, 115.0);
        Pt_Append(Linked, 140.0, 135.0);
        Obj_Link(Linked, Tab_Ima[I].Num);
    }
    void Compare(const Mode_Row& Row, int Percent) {
        const std::string Name = std::string(Row.Name) + "_" + std::to_string(Percent) + ".png";
        const std::filesystem::path File =
            std::filesystem::path(TEST_DATA_DIR) / "golden" / "modes" / Name;
        const QImage Now = Pic.Image().convertToFormat(QImage::Format_RGB32);
        if (std::getenv("TERRAFOLD_ACCEPT") != nullptr)
            Now.save(QString::fromStdString(File.string()));
        const QImage Then = QImage(QString::fromStdString(File.string()));
        EXPECT_EQ(Now, Then.convertToFormat(QImage::Format_RGB32)) << Name;
    }
    void Compare_At_Zooms(const Mode_Row& Row) {
        for (const int Percent : {50, 100, 400}) {
            Zoom = Percent / 100.0;
            View_Center_On_Point({.X = 150.0, .Y = 120.0});
            Mode_Enter(Row);
            if (&Row == &Row_Of_Ima) Cmd_Tabul();  // selects the texture
            Compare(Row, Percent);
        }
    }

    Canvas_Widget Pic;
    Surface_Scope On{Pic};
};

}  // namespace

TEST_F(Mode_Pictures, EachModeAtThreeZooms) {
    if (Pic.devicePixelRatioF() != 1.0) GTEST_SKIP() << "the pictures are those of a plain screen";
    Show_Texture = true;
    for (const Mode_Row* Row : Mode_Rows)
        if (Row != &Row_Of_Ima) Compare_At_Zooms(*Row);
    Put_Texture();
    Compare_At_Zooms(Row_Of_Ima);
}
