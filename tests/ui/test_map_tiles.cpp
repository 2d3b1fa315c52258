// tests/ui/test_map_tiles.cpp - tile files against the map they were cut from, and every way in
// which cutting and loading can fail.
#include "platform/paths.h"
#include "ui/canvas/map_tiles.h"

#include "core/lifecycle.h"
#include "core/model.h"
#include "core/view_calls.h"
#include "support/bitmap_file.h"
#include "ui/canvas/map_cut.h"
#include "ui/frm/frm.h"
#include "ui_support/ui_test.h"

namespace {

constexpr int Side = 2000;

class Map_Tiles : public Ui_Test {
protected:
    Int Split(const Bitmap_Spec& Map) {
        Dir.Write("Map.bmp", Bitmap_Bytes(Map));
        return Split();
    }
    Int Split() {
        Int Error = -1;
        Main_Form_Progress Progress;
        Map_Split_Tiles(Progress, Dir.Path("Map.bmp"), Error);
        return Error;
    }
    std::size_t Nb_Temp_Files() const {
        std::size_t Nb = 0;
        if (!Dir.Has("App/Temp") || !std::filesystem::is_directory(Dir.Native("App/Temp")))
            return 0;
        for (const auto& Entry : std::filesystem::directory_iterator(Dir.Native("App/Temp")))
            Nb += Entry.is_regular_file();
        return Nb;
    }
    std::string Tile(const std::string& Name) const {
        return Dir.Read("App/Temp/$$$_" + Name + ".bmp");
    }
    // After a failure: one box that names File, nothing left on disk or on the screen.
    void Expect_Refused(const std::string& File) {
        ASSERT_EQ(Host_Of_Test.Boxes.size(), 1u);
        const Box Told = Host_Of_Test.Boxes.front();
        EXPECT_EQ(Told.Num, 0);
        EXPECT_TRUE(Told.Text.ends_with("\r\n" + Shown_Path(File))) << Told.Text;
        EXPECT_EQ(Nb_Temp_Files(), 0u);
        EXPECT_FALSE(Frm()["Fram_Creat_2500"].Visible);
        EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
        Host_Of_Test.Boxes.clear();
    }
};

// The tile file in column Col and row Row, byte by byte.
std::string Tile_Expected(const Bitmap_Spec& Map, int Col, int Row) {
    const bool Is_8 = Map.Bits == 8;
    const int Channels = Is_8 ? 1 : 3;
    std::string Out = "BM";
    for (const std::uint32_t Value :
         {Is_8 ? 4'001'078u : 12'000'054u, 0u, Is_8 ? 1078u : 54u, 40u, 2000u, 2000u})
        Out += Number_Bytes(Value, 4);
    Out += Number_Bytes(1, 2) + Number_Bytes(Is_8 ? 8 : 24, 2);
    for (const std::uint32_t Value :
         {0u, Is_8 ? 4'000'000u : 12'000'000u, 2834u, 2834u, Is_8 ? 256u : 0u, Is_8 ? 256u : 0u})
        Out += Number_Bytes(Value, 4);
    for (int I = 0; Is_8 && I < 256; ++I)
        Out += I < Map.Nb_Colours ? Palette_Bytes(I) : std::string(4, '\0');
    const std::size_t First = Out.size(), Stride = static_cast<std::size_t>(Side * Channels);
    Out.resize(First + Stride * Side);
    for (int Y = Row * Side; Y < std::min((Row + 1) * Side, Map.Height); ++Y) {
        char* At =
            Out.data() + First + static_cast<std::size_t>(Side - 1 - Y + Row * Side) * Stride;
        for (int X = Col * Side; X < std::min((Col + 1) * Side, Map.Width); ++X)
            for (int C = 0; C < Channels; ++C) *At++ = static_cast<char>(Pixel_Byte(X, Y, C));
    }
    return Out;
}

struct Whole_Map : Map_Tiles, testing::WithParamInterface<Bitmap_Spec> {};

TEST_P(Whole_Map, IsCutToTheByte) {
    const Bitmap_Spec& Map = GetParam();
    ASSERT_EQ(Split(Map), 0);
    const int Cols = (Map.Width + Side - 1) / Side, Rows = (Map.Height + Side - 1) / Side;
    EXPECT_EQ(Nb_Temp_Files(), static_cast<std::size_t>(Cols * Rows));
    for (int Col = 0; Col < Cols; ++Col)
        for (int Row = 0; Row < Rows; ++Row) {
            const std::string Name = std::to_string(Col) + std::to_string(Row);
            // Without a print of the bytes.
            EXPECT_TRUE(Tile(Name) == Tile_Expected(Map, Col, Row)) << Name;
        }
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(
    SizesDepthsDirections, Whole_Map,
    testing::Values(
        Bitmap_Spec{.Width = 1, .Height = 1, .Bits = 8},
        Bitmap_Spec{.Width = 1, .Height = 1, .Bits = 24, .Top_Down = true},
        Bitmap_Spec{.Width = 2000, .Height = 2000, .Bits = 8},
        Bitmap_Spec{.Width = 2000, .Height = 1999, .Bits = 24},
        Bitmap_Spec{.Width = 1999, .Height = 2001, .Bits = 24, .Top_Down = true},
        Bitmap_Spec{.Width = 2001, .Height = 2000, .Bits = 8, .Top_Down = true, .Header_Size = 124},
        Bitmap_Spec{.Width = 4001, .Height = 1, .Bits = 24, .Gap = 10},
        Bitmap_Spec{.Width = 1, .Height = 4001, .Bits = 8, .Nb_Colours = 7},
        Bitmap_Spec{.Width = 2001, .Height = 4001, .Bits = 8},
        Bitmap_Spec{.Width = 4001, .Height = 2001, .Bits = 24, .Header_Size = 108}));

TEST_F(Map_Tiles, MoreColumnsThanAreWrittenAtOnce) {
    const Bitmap_Spec Map{.Width = 16 * Side + 1, .Height = 2, .Bits = 8};
    ASSERT_EQ(Split(Map), 0);
    EXPECT_EQ(Nb_Temp_Files(), 17u);
    for (const int Col : {0, 1, 15, 16})
        EXPECT_TRUE(Tile(std::to_string(Col) + "0") == Tile_Expected(Map, Col, 0)) << Col;
}

// --- names ------------------------------------------------------------------------------------

void Set_Tiles(int Cols, int Rows) {
    Nb_Tile_Cols = static_cast<Int>(Cols);
    Nb_Tile_Rows = static_cast<Int>(Rows);
    Nb_Tiles = static_cast<Int>(Cols * Rows);
}

TEST_F(Map_Tiles, NamesAreColumnThenRow) {
    Set_Tiles(3, 2);
    EXPECT_EQ(Tile_File_Name(0), "00");
    EXPECT_EQ(Tile_File_Name(2), "20");
    EXPECT_EQ(Tile_File_Name(3), "01");
    EXPECT_EQ(Tile_File_Name(5), "21");
    Set_Tiles(13, 4);
    EXPECT_EQ(Tile_File_Name(3 * 13 + 12), "123");
    EXPECT_EQ(Tile_Path(0), App_Path + "\\Temp\\$$$_00.bmp");
    Set_Tiles(12, 11);
    EXPECT_EQ(Tile_File_Name(11), "11_0") << "110 would be column 1 in row 10 as well";
}

// --- progress ---------------------------------------------------------------------------------

// Keeps what the panel shows at each refresh.
class Watching_Host : public Ui_Test_Host {
public:
    std::vector<std::string> Seen;  // each state once, "TEXT|NUMBER|PERCENT"
    std::function<void()> On_Refresh;
    bool Kept_Pointer = false;  // was the usual one while something was told

    void Refresh() override {
        if (On_Refresh) On_Refresh();
        if (!Frm()["Fram_Creat_2500"].Visible) return;
        Kept_Pointer = Kept_Pointer || Pointer != Pointer_Shape::Hourglass;
        const std::string State = Frm()["LTex2500"].Caption + "|" + Frm()["LNbTex"].Caption + "|" +
                                  Frm()["LPourCent"].Caption;
        if (Seen.empty() || Seen.back() != State) Seen.push_back(State);
    }
};

TEST_F(Map_Tiles, CuttingTellsTilesAndLines) {
    Watching_Host Host;
    const Host_Scope Scope(Host);
    Language = "US";
    ASSERT_EQ(Split({.Width = 1, .Height = 2030, .Bits = 8}), 0);
    const std::string Head = "Creation of  2 temporary .bmp|";
    ASSERT_EQ(Host.Seen.size(), 105u);
    EXPECT_EQ(Host.Seen[0], Head + "|0%");
    EXPECT_EQ(Host.Seen[1], Head + " 1|0%") << "10 lines of 2000 round to nothing";
    EXPECT_EQ(Host.Seen[2], Head + " 1|1%") << "20 lines";
    EXPECT_EQ(Host.Seen[3], Head + " 1|2%") << "30 lines, a half to the even neighbour";
    EXPECT_EQ(Host.Seen[4], Head + " 2|0%");
    EXPECT_EQ(Host.Seen.back(), Head + " 2|100%");
    EXPECT_FALSE(Host.Kept_Pointer);
    EXPECT_FALSE(Frm()["Fram_Creat_2500"].Visible);
    EXPECT_EQ(Host.Pointer, Pointer_Shape::Normal);
}

TEST_F(Map_Tiles, LoadingTellsTiles) {
    ASSERT_EQ(Split({.Width = 1, .Height = 4001, .Bits = 8}), 0);
    Set_Tiles(1, 3);
    Watching_Host Host;
    const Host_Scope Scope(Host);
    for (const char* Tongue : {"US", "FR"}) {
        Language = Tongue;
        Host.Seen.clear();
        ASSERT_TRUE(Map_Load_Tiles());
        const std::string Head =
            Language == "US" ? " Image Map loading|" : "Chargement de la carte|";
        EXPECT_EQ(Host.Seen,
                  (std::vector<std::string>{Head + "1|0%", Head + " 2|50%", Head + " 3|100%"}));
    }
    EXPECT_FALSE(Frm()["Fram_Creat_2500"].Visible);
    EXPECT_EQ(Host.Pointer, Pointer_Shape::Normal);
}

// --- failures ---------------------------------------------------------------------------------

TEST_F(Map_Tiles, MapsThatAreNone) {
    EXPECT_EQ(Split({.Bits = 4}), 1);
    Expect_Refused(Dir.Path("Map.bmp"));
    EXPECT_EQ(Split({.Bits = 8, .Compression = 1}), 1);
    Expect_Refused(Dir.Path("Map.bmp"));
    const std::string Good = Bitmap_Bytes({.Width = 9, .Height = 9});
    Dir.Write("Map.bmp", Good.substr(0, Good.size() - 1));
    EXPECT_EQ(Split(), 1);
    Expect_Refused(Dir.Path("Map.bmp"));
    EXPECT_EQ(Split({.Height = 700'000, .Bits = 8}), 1) << "2.8 MB, and tiles of 1.4 GB";
    Expect_Refused(Dir.Path("Map.bmp"));
    std::filesystem::remove(Dir.Native("Map.bmp"));
    EXPECT_EQ(Split(), 1);
    Expect_Refused(Dir.Path("Map.bmp"));
}

TEST_F(Map_Tiles, MoreTilesThanCanBeCounted) {
    const int Width = 32'767 * Side + 1;
    Dir.Write("Map.bmp", Bitmap_Bytes({.Bits = 8}).replace(18, 4, Number_Bytes(Width, 4)));
    std::filesystem::resize_file(Dir.Native("Map.bmp"), 1078 + Width + 3);
    EXPECT_EQ(Split(), 1);
    Expect_Refused(Dir.Path("Map.bmp"));
}

TEST_F(Map_Tiles, NoDirectoryForTiles) {
    Dir.Write("App/Temp", "a file in its place");
    EXPECT_EQ(Split({}), 1);
    Expect_Refused(App_Path + "\\Temp");
}

TEST_F(Map_Tiles, ATileThatCannotBeMade) {
    Dir.Write("App/Temp/$$$_10.bmp/Taken", "");
    EXPECT_EQ(Split({.Width = 2001, .Height = 2001, .Bits = 8}), 1);
    Expect_Refused(App_Path + "\\Temp\\$$$_10.bmp");
}

TEST_F(Map_Tiles, AMapThatIsCutShortMeanwhile) {
    Dir.Write("Map.bmp", Bitmap_Bytes({.Width = 1, .Height = 4001, .Bits = 8}));
    Watching_Host Host;
    const Host_Scope Scope(Host);
    Host.On_Refresh = [&] {
        if (Nb_Temp_Files() == 2) std::filesystem::resize_file(Dir.Native("Map.bmp"), 1200);
    };
    EXPECT_EQ(Split(), 1);
    ASSERT_EQ(Host.Boxes.size(), 1u);
    EXPECT_TRUE(Host.Boxes[0].Text.ends_with(Shown_Path(Dir.Path("Map.bmp"))));
    EXPECT_EQ(Nb_Temp_Files(), 0u);
}

TEST_F(Map_Tiles, TilesThatCannotBeLoaded) {
    Carte = Dir.Path("Map.bmp");
    ASSERT_EQ(Split({.Width = 2001, .Height = 1, .Bits = 8}), 0);
    Set_Tiles(2, 1);
    std::filesystem::resize_file(Dir.Native("App/Temp/$$$_10.bmp"), 4'000'000);
    Tiles_Show();
    Expect_Refused(App_Path + "\\Temp\\$$$_10.bmp");
    EXPECT_EQ(Nb_Tiles, 0);
    ASSERT_EQ(WPic.size(), 1u);
    EXPECT_TRUE(WPic[0].Is_Empty());
    ASSERT_EQ(Split(), 0);
    Set_Tiles(2, 1);
    Dir.Write("App/Temp/$$$_00.bmp", Bitmap_Bytes({.Width = 1999, .Height = 2000, .Bits = 8}));
    EXPECT_FALSE(Map_Load_Tiles()) << "a tile is a full square";
}

// --- from project to pictures -----------------------------------------------------------------

TEST_F(Map_Tiles, ReleaseDropsTexturesToo) {
    int Dropped = 0;
    The_View.Ima_Unload = [&] { ++Dropped; };
    Map_Free_Tiles();
    EXPECT_EQ(Dropped, 0);
    Tab_Ima.Append({});
    Map_Free_Tiles();
    EXPECT_EQ(Dropped, 1);
}

TEST_F(Map_Tiles, MapOfAnotherSizeIsTold) {
    Dir.Write("Map.bmp", Bitmap_Bytes({.Width = 2500, .Height = 4, .Bits = 8}));
    Carte = Dir.Path("Map.bmp");
    Map_Width = 300;
    Map_Height = 4;
    Language = "US";
    EXPECT_TRUE(Tiles_Build());
    ASSERT_EQ(Host_Of_Test.Boxes.size(), 1u);
    EXPECT_NE(Host_Of_Test.Boxes[0].Text.find("2500 x 4 instead of 300 x 4"), std::string::npos);
    EXPECT_EQ(Map_Width, 300) << "belongs to the calibration";
    EXPECT_EQ(Nb_Tile_Cols, 2) << "counted from the map itself";
}

}  // namespace
