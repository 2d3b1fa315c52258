// tests/ui/test_texture_pick.cpp - the texture picker, picking into a field, previews in dialogs.
#include "platform/paths.h"
#include "support/bitmap_file.h"
#include "support/environment.h"
#include "support/texture_file.h"
#include "tex/texture.h"
#include "ui/dialogs/texture_pick.h"
#include "ui/dialogs/texture_preview.h"
#include "ui_support/ui_test.h"

namespace {

class Texture_Pick : public Ui_Test {
protected:
    Texture_Pick() {
        Dir.Write("T/b.bmp", Bitmap_Bytes({.Width = 300, .Height = 100}));
        Dir.Write("T/C.BMP", Bitmap_Bytes({.Width = 8, .Height = 8}));
        Dir.Write("T/a.txt", "no image");
        Dir.Write("T/z/in.r8", std::string(65'536, '\3'));
        Dir.Write("T/Y/.keep", "");
    }
    // The picker as its user works it; what it says by message comes first.
    bool Pick(std::string& Path, const std::function<void(Form_Driver&)>& Work,
              Texture_Shape Shape = Texture_Shape::Any) {
        const Modal_Script Script(Work);
        return Pick_Texture(Path, Shape);
    }
    static std::uint8_t Red_At(Form_Driver& D, Long X, Long Y) {
        const Picture* P = D.The_Form()["Pic"].Shown;
        return P == nullptr ? 0 : P->Line(Y)[3 * X + 2];
    }
    std::string Field = Dir.Path("T") + "\\C.BMP";
    const std::vector<std::string> Files = {"a.txt", "b.bmp", "C.BMP"};
};

TEST_F(Texture_Pick, WanderingAboutAndAccepting) {
    const bool Picked = Pick(Field, [&](Form_Driver& D) {
        EXPECT_EQ(D.Text("Path"), Shown_Path(Dir.Path("T"))) << "where the field's file is";
        EXPECT_EQ(D.Items("Dir1"), (std::vector<std::string>{"..", "Y", "z"}));
        EXPECT_EQ(D.Items("File1"), Files);
        EXPECT_EQ(D.Value("File1"), 0) << "the first is chosen, whatever it is";
        EXPECT_EQ(D.Caption("LRes"), "Ce n'est pas un fichier image !!!!");
        EXPECT_EQ(D.The_Form()["LRes"].Colour, 0xFF0000);
        EXPECT_EQ(D.The_Form()["Pic"].Shown, nullptr);
        D.Choose("File1", "b.bmp");
        EXPECT_EQ(D.Caption("LRes"), "Bmp 24 Bits 300x100");
        EXPECT_EQ(D.The_Form()["LRes"].Colour, Usual_Colour);
        EXPECT_EQ(LBmp_Width, 300);
        EXPECT_EQ(Red_At(D, 0, 85), Red_At(D, 0, 171)) << "the ground above and below";
        EXPECT_EQ(Red_At(D, 0, 86), Pixel_Byte(0, 0, 2)) << "made to fit, no pixel mixed";
        D.Choose("File1", "a.txt");
        EXPECT_EQ(LBmp_Height, 0);
        EXPECT_EQ(Red_At(D, 0, 86), Pixel_Byte(0, 0, 2)) << "the last image stays";
        D.Choose("Dir1", "z");
        D.Double_Click("Dir1");
        EXPECT_EQ(LBmp_Dir, Dir.Path("T") + "\\z");
        EXPECT_EQ(D.Items("File1"), std::vector<std::string>{"in.r8"});
        EXPECT_EQ(D.Value("File1"), -1);
        D.Choose("File1", 0);
        EXPECT_EQ(D.Caption("LRes"), "Texture type .R8 256x256");
        D.Click("Cmd_Ok");
    });
    EXPECT_TRUE(Picked);
    EXPECT_EQ(Field, Dir.Path("T") + "\\z\\in.r8");
    Field.clear();
    EXPECT_FALSE(Pick(Field, [&](Form_Driver& D) {
        EXPECT_EQ(D.Text("Path"), Shown_Path(Dir.Path("T") + "\\z"))
            << "an empty field: where the user was last";
        D.Choose("Dir1", "..");
        D.Double_Click("Dir1");
        D.Choose("Cbo_Filter", 1);
        EXPECT_EQ(D.Items("File1"), (std::vector<std::string>{"b.bmp", "C.BMP"}));
        D.Choose("File1", 1);
        D.Choose("Cbo_Filter", 0);
        EXPECT_EQ(D.Value("File1"), 2) << "the same file";
        D.Click("Cmd_Cancel");
    }));
    EXPECT_EQ(Field, "");
    EXPECT_EQ(LBmp_Dir, Dir.Path("T"));
    EXPECT_EQ(LBmp_Cancelled, 1);
}

TEST_F(Texture_Pick, ADirectoryWithoutFiles) {
    LBmp_Dir = Dir.Path("T") + "\\Y";
    Dir.Write("App/$TBmp$", "of an earlier run");
    std::filesystem::remove(Dir.Native("T/Y/.keep"));
    std::string Path = "a field that names no directory";
    EXPECT_FALSE(Pick(Path, [&](Form_Driver& D) {
        EXPECT_TRUE(D.Items("File1").empty());
        D.Click("Cmd_Ok");
        EXPECT_EQ(D.Last_Message(), 12);
        EXPECT_FALSE(D.Is_Closed());
        EXPECT_EQ(Tex_Temp, App_Path + "\\$Tex$");
        D.Close();
    }));
    EXPECT_FALSE(Dir.Has("App/$TBmp$"));
    EXPECT_EQ(Tex_Temp, "");
}

TEST_F(Texture_Pick, WhereItStartsTheFirstTime) {
    const auto Start = [&] {
        std::string Path, Text;
        LBmp_Dir.clear();
        Pick(Path, [&](Form_Driver& D) {
            Text = D.Text("Path");
            D.Click("Cmd_Cancel");
        });
        return Text;
    };
    Dir.Write("FS/scenery/.keep", "");
    const Environment_Scope Simulator("TERRAFOLD_FSDIR", Dir.Native("FS").string());
    EXPECT_EQ(Start(), Shown_Path(Dir.Path("FS")));
    const Environment_Scope None("TERRAFOLD_FSDIR", Dir.Native("T").string());
    EXPECT_EQ(Start(), Shown_Path(App_Path)) << "no simulator there";
}

TEST_F(Texture_Pick, ASquareIsAskedForUntilThereIsOne) {
    const Modal_Script First([](Form_Driver& D) {
        D.Choose("File1", "b.bmp");
        D.Click("Cmd_Ok");
    });
    EXPECT_TRUE(Pick(
        Field,
        [](Form_Driver& D) {
            EXPECT_EQ(D.Last_Message(), 101);
            D.Choose("File1", "C.BMP");
            D.Click("Cmd_Ok");
        },
        Texture_Shape::Square));
    EXPECT_EQ(Field, Dir.Path("T") + "\\C.BMP");
}

TEST_F(Texture_Pick, APreviewFollowsOrGoes) {
    Form F("Frm_Sample");
    for (const char* Name : {"Pic", "Pic_1"}) F.Add({.Kind = Control_Kind::Image, .Name = Name});
    Dir.Write("App/Temp/$BmpLC$.bmp", "of an earlier run");
    {
        Texture_Preview Preview(F, {"Pic", "Pic_1"}, "$BmpLC$.bmp");
        EXPECT_TRUE(Preview.Show(Dir.Path("T") + "\\C.BMP"));
        EXPECT_FALSE(Dir.Has("App/Temp/$BmpLC$.bmp"));
        ASSERT_NE(F["Pic_1"].Shown, nullptr);
        EXPECT_EQ(F["Pic"].Shown->Width, 8);
        EXPECT_FALSE(Preview.Show(Dir.Path("T") + "\\a.txt"));
        EXPECT_EQ(F["Pic"].Shown->Width, 8) << "stays";
        EXPECT_FALSE(Preview.Show_Or_Empty(Dir.Path("T") + "\\a.txt"));
        EXPECT_EQ(F["Pic"].Shown, nullptr);
        Dir.Write("App/Temp/$BmpLC$.bmp", "of another program");
    }
    EXPECT_FALSE(Dir.Has("App/Temp/$BmpLC$.bmp"));
}

}  // namespace
