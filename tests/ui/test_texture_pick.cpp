// tests/ui/test_texture_pick.cpp - where the texture picker begins, and previews in dialogs.
#include "platform/paths.h"
#include "support/bitmap_file.h"
#include "support/environment.h"
#include "ui/dialogs/texture_pick.h"
#include "ui/dialogs/texture_preview.h"
#include "ui_support/ui_test.h"

namespace {

class Texture_Pick : public Ui_Test {
protected:
    Texture_Pick() {
        Dir.Write("T/C.BMP", Bitmap_Bytes({.Width = 8, .Height = 8}));
        Dir.Write("T/a.txt", "no image");
    }
    // Where the picker begins, which is then closed.
    static std::string Start() {
        std::string Path, Text;
        LBmp_Dir.clear();
        const Modal_Script Script([&](Form_Driver& D) {
            Text = D.Text("Path");
            D.Click("Cmd_Ok");
            EXPECT_EQ(D.Last_Message(), 12) << "there is no file to choose";
            D.Close();
        });
        EXPECT_FALSE(Pick_Texture(Path));
        return Text;
    }
};

TEST_F(Texture_Pick, WhereItStartsTheFirstTime) {
    Dir.Write("FS/scenery/.keep", "");
    Dir.Write("App/$TBmp$", "of an earlier run");
    const Environment_Scope Simulator("TERRAFOLD_FSDIR", Dir.Native("FS").string());
    EXPECT_EQ(Start(), Shown_Path(Dir.Path("FS")));
    EXPECT_FALSE(Dir.Has("App/$TBmp$"));
    const Environment_Scope None("TERRAFOLD_FSDIR", Dir.Native("T").string());
    EXPECT_EQ(Start(), Shown_Path(App_Path)) << "no simulator there";
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
