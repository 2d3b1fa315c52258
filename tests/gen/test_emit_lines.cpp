// tests/gen/test_emit_lines.cpp - lines: their ends, their order, and the text of the source.
#include "gen/emit_lines.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "emit_test.h"
#include "gen/emit_lwm_poly.h"
#include "gen/line_length.h"
#include "gen/own_lines.h"
#include "gen/vlines.h"
#include "platform/settings_file.h"
#include "reference/shapes.h"
#include "shapes/line/line_collect.h"
#include "support/golden.h"

namespace {

constexpr char Source_Name[] = "Terrafold$_Lines.ASM";

class Emit_Lines_Test : public Emit_Test {
protected:
    static Attr Line(Int LineType) {
        Attr A;
        A.SurfShore = 2;
        A.LineType = LineType;
        A.FermerLine = 0;
        return A;
    }
    /// A zigzag of Nb points inside the first Area.
    static std::vector<Pix> Zigzag(Long Nb, Double Y = 100) {
        std::vector<Pix> O;
        for (Long I = 0; I < Nb; ++I) O.push_back({100.0 + I, Y + (I % 2) * 3.0});
        return O;
    }
    /// The heads of the lines in the source, in their order.
    Lines Heads() const { return Lines_With(Source_Name, "VTPPolyMethod2"); }

    /// Puts the OwnLines4.txt that the program comes with in its place.
    void Put_Own_Lines() const {
        std::ifstream In(TEST_SOURCE_DIR "/resource/OwnLines4.txt", std::ios::binary);
        Dir.Write("App/Resource/OwnLines4.txt",
                  std::string(std::istreambuf_iterator<char>(In), {}));
    }

    void Empty_Project() {
        Init_Tables();
        Host_Of_Test.Events.clear();
        std::filesystem::remove(Dir.Native(std::string("App/") + Source_Name));
    }
};

TEST_F(Emit_Lines_Test, SourceText) {
    Put_Own_Lines();
    Attr Road = Line(1134), Power = Line(1213), Surf = Line(4100), Shore = Line(1024);
    Road.Text_Rt = "road";
    Road.Largeur = 14;
    Road.Layer = 23;
    Draw({{100, 100}, {400, 100}, {Area_Px + 200, 300}}, Road);  // from Area to Area
    Power.Layer = 23;
    Draw({{500, 500}, {600, Area_Px + 500}}, Power);
    Surf.FermerLine = 1;
    Draw({{1000, 1000}, {1200, 1000}, {1200, 1200}, {1000, 1000}}, Surf);
    Shore.SurfShore = 1;
    Shore.LandOnRight = 1;
    Shore.Effil_Deb = 1;
    Draw({{2000, 2000}, {2100, 2000}, {2100, 2300}}, Shore);
    Draw({{2000, 2500}, {2100, 2500}}, Road);
    Attr Fan = Line(1024);
    Fan.Vtp1_Line = 1;
    Draw({{10, 10}, {90, 90}}, Fan);
    Draw(Square(10, 10, 50), Attr{});
    Dir.Write("Out_9.bgl", "old");
    ShoreLines_Generate();
    EXPECT_TRUE(Equals_Golden("lines.asm", Source(Source_Name)));
    EXPECT_EQ(Host_Of_Test.Events,
              (Lines{"write " + App_Path + "\\" + Source_Name, "delete " + Dir.Path("Out_9.bgl"),
                     "run " + App_Path + "\\bglc.exe  \"" + App_Path + "\\" + Source_Name +
                         "\" \"" + Dir.Path("Out_9.bgl") + "\""}));
    EXPECT_EQ(Host_Of_Test.Stages, (Lines{"LCompileNom=ShoreLines", "LCompile=BGLC.exe",
                                          "LCompileNom=" + NameBgl, "LCompile=lines : BGLC.exe"}));
    EXPECT_EQ(Nb_WPoly, 0);
}

TEST_F(Emit_Lines_Test, WideEndPoints) {
    const auto First = [](VLinePt A, VLinePt B, Byte Tag) {
        return Wide_End_Point(A, B, false, Tag);
    };
    const auto Last = [](VLinePt A, VLinePt B, Byte Tag) {
        return Wide_End_Point(A, B, true, Tag);
    };
    EXPECT_EQ(First({5, 5}, {5, 9}, Tag_Wide), (VLinePt{5, 6}));
    EXPECT_EQ(First({5, 5}, {5, 9}, Tag_Cut), (VLinePt{5, 4}));
    EXPECT_EQ(Last({5, 5}, {5, 9}, Tag_Wide), (VLinePt{5, 8}));
    EXPECT_EQ(Last({9, 5}, {5, 5}, Tag_Cut), (VLinePt{4, 5}));
    EXPECT_EQ(First({100, 100}, {110, 104}, Tag_Wide), (VLinePt{101, 100}));
    EXPECT_EQ(Last({100, 100}, {110, 104}, Tag_Wide), (VLinePt{109, 103}));
    EXPECT_EQ(First({100, 100}, {96, 110}, Tag_Cut), (VLinePt{100, 99}));
    EXPECT_EQ(Last({100, 100}, {92, 108}, Tag_Cut), (VLinePt{91, 109})) << "as steep as wide";
    EXPECT_EQ(Last({7, 7}, {7, 7}, Tag_Wide), (VLinePt{7, 7}));
}

// A cut end overlaps the next piece: the limit to the Area comes before it.
TEST_F(Emit_Lines_Test, OnlyCutEndsPassTheEdgeOfTheirArea) {
    shapes::Random R{5};
    for (int I = 0; I < 60; ++I) {
        std::vector<Pix> O;
        for (Long N = R.Whole(2, 9); N > 0; --N)
            O.push_back({R.Between(-500, 2 * Area_Px + 500), R.Between(-500, 2 * Area_Px + 500)});
        Attr A = Line(static_cast<Int>(1024 + R.Whole(0, 2)));
        A.Effil_Deb = A.Effil_Fin = static_cast<Int>(I % 2);
        Draw(O, A);
    }
    ShoreLines_Generate();
    Long Inside = 0, Beyond = 0;
    for (const std::string& L : Lines_With(Source_Name, "VTPWidePoint ")) {
        char* End = nullptr;
        const Long X = std::strtol(L.c_str() + L.find("VTPWidePoint ") + 13, &End, 10);
        const Long Y = std::strtol(End + 4, nullptr, 10);
        EXPECT_TRUE(4079 <= X && X <= 12241 && 4079 <= Y && Y <= 12241) << L;
        (X == 4079 || X == 12241 || Y == 4079 || Y == 12241 ? Beyond : Inside) += 1;
    }
    EXPECT_GT(Inside, 500);
    EXPECT_GT(Beyond, 200);
    const std::string All = Source(Source_Name);
    EXPECT_NE(All.find("VTPWidePoint 12241, "), std::string::npos);
}

TEST_F(Emit_Lines_Test, HeadsOfShortAndLongLines) {
    Attr Tapered = Line(1024);
    Tapered.Effil_Deb = Tapered.Effil_Fin = 1;
    for (const Long Nb : {2, 28, 29, 31}) Draw(Zigzag(Nb), Tapered);
    for (const Long Nb : {2, 28, 29, 31, 32}) Draw(Zigzag(Nb), Line(1261));
    Draw(Zigzag(26), Line(4096));  // both ends are wide: two points more
    Draw(Zigzag(27), Line(4096));
    ShoreLines_Generate();
    const std::string Short = "             VTPPolyMethod2 ", Ex = "             VTPPolyMethod2Ex ";
    EXPECT_EQ(Heads(), (Lines{Short + "4, 1, 0", Short + "30, 1, 0", Short + "31, 1, 0", Ex + "0",
                              Short + "31, 1, 0", Ex + "2", Short + "2, 1, 0", Short + "28, 1, 0",
                              Short + "29, 1, 0", Short + "31, 1, 0", Short + "31, 1, 0", Ex + "1",
                              Short + "30, 1, 0", Short + "31, 1, 0", Ex + "0"}));
}

// Coordinates reach three Areas and a half south of the Area under the middle of the line.
TEST_F(Emit_Lines_Test, BareLinesStayWholeWhileTheirCoordinatesFit) {
    Draw({{500, 500}, {600, 6.4 * Area_Px}}, Line(1213));
    ShoreLines_Generate();
    EXPECT_EQ(Heads().size(), 1U);
    EXPECT_EQ(Lines_With(Source_Name, "VTPWidePoint").back(),
              "               VTPWidePoint 4680, 0, 31824, 0");
    Empty_Project();
    Draw({{500, 500}, {600, 8 * Area_Px}}, Line(1213));
    ShoreLines_Generate();
    EXPECT_EQ(Heads().size(), 4U) << "cut at the rows of the work grid";
}

TEST_F(Emit_Lines_Test, LongLinesAreDividedAndOverlap) {
    const auto Sizes = [](Long Nb, Int SurfShore) {
        Work_Lists_Reset();
        Attr A = Line(1024);
        A.SurfShore = SurfShore;
        for (const Pix P : Zigzag(Nb)) Tab_WPt.Append({P.X, P.Y, Tag_Plain});
        Tab_WPoly.Append({.Num = 1, .Attr = &A, .First = 1, .Last = Nb, .Nb = Nb});
        Line_Limit_Length();
        std::vector<Long> Found;
        for (Long I = 1; I <= Nb_WPoly; ++I) {
            const WPoly& W = Tab_WPoly[I];
            Found.push_back(W.Nb);
            EXPECT_EQ(Tab_WPt[W.First].Tag, I == 1 ? Tag_Plain : Tag_Cut);
            EXPECT_EQ(Tab_WPt[W.Last].Tag, I == Nb_WPoly ? Tag_Plain : Tag_Cut);
            if (I > 1) {
                EXPECT_EQ(To_Pix(Tab_WPt[W.First]), To_Pix(Tab_WPt[Tab_WPoly[I - 1].Last]));
            }
        }
        Work_Lists_Reset();
        return Found;
    };
    using Longs = std::vector<Long>;
    EXPECT_EQ(Sizes(279, 2), (Longs{279}));
    EXPECT_EQ(Sizes(280, 2), (Longs{278, 3}));
    EXPECT_EQ(Sizes(281, 3), (Longs{279, 3}));
    EXPECT_EQ(Sizes(559, 2), (Longs{278, 279, 4}));
    EXPECT_EQ(Sizes(560, 2), (Longs{279, 280, 3}));
    EXPECT_EQ(Sizes(900, 1), (Longs{900})) << "the shore of a polygon";
}

TEST_F(Emit_Lines_Test, BlocksOf127LinesAndTheLowest31Layers) {
    for (int I = 0; I < 128; ++I) Draw(Zigzag(2, 100 + 10 * I), Line(4096));
    Draw(Zigzag(2), Line(1024));
    ShoreLines_Generate();
    EXPECT_EQ(Lines_With(Source_Name, "VTPNumTexturesInLayer"),
              (Lines{"        VTPNumTexturesInLayer 3, 0"}));
    EXPECT_EQ(Lines_With(Source_Name, "VTPTextureId"),
              (Lines{"           VTPTextureId  0, 0 ", "           VTPTextureId  1, 0 ",
                     "           VTPTextureId  1, 0 "}));
    EXPECT_EQ(Lines_With(Source_Name, "VTPPolyCount"),
              (Lines{"            VTPPolyCount 1, 0", "            VTPPolyCount 127, 0",
                     "            VTPPolyCount 1, 0"}));
    Empty_Project();
    for (Int I = 0; I < 130; ++I) Draw(Zigzag(2), Line(static_cast<Int>(1000 + I)));
    for (int I = 40; I > 0; --I) {
        Attr A = Line(1024);
        A.Layer = static_cast<Byte>(I + 32);
        Draw(Zigzag(2), A);
    }
    ShoreLines_Generate();
    EXPECT_EQ(Lines_With(Source_Name, "VTPDataArea"), (Lines{"        VTPDataArea 31, 1, 4, 18"}));
    EXPECT_EQ(Lines_With(Source_Name, "VTPLayer ").back(), "        VTPLayer 62, 0");
    EXPECT_EQ(Lines_With(Source_Name, "VTPNumTexturesInLayer")[0],
              "        VTPNumTexturesInLayer 127, 0");
    EXPECT_EQ(Lines_With(Source_Name, "VTPTextureId").size(), 127U + 30U);
}

// Cells differ in their column alone, layers in their cell alone, groups in their layer alone.
TEST_F(Emit_Lines_Test, OrderAndNesting) {
    Attr High = Line(1024);
    High.Layer = 40;
    Draw({{Area_Px + 10, 10}, {Area_Px + 90, 50}}, Line(1024));
    Draw({{10, Area_Px + 10}, {90, Area_Px + 50}}, Line(1024));
    Draw({{10, 10}, {90, 50}}, High);
    Draw({{10, 10}, {90, 50}}, Line(1024));
    ShoreLines_Generate();
    EXPECT_EQ(Lines_With(Source_Name, "VTPDataArea"),
              (Lines{"        VTPDataArea 2, 1, 4, 18", "        VTPDataArea 1, 1, 5, 18",
                     "        VTPDataArea 1, 1, 4, 19"}));
    EXPECT_EQ(Lines_With(Source_Name, "VTPLayer "),
              (Lines{"        VTPLayer 32, 0", "        VTPLayer 40, 0", "        VTPLayer 32, 0",
                     "        VTPLayer 32, 0"}));
    EXPECT_EQ(Lines_With(Source_Name, "VTPPolyCount").size(), 4U);
    EXPECT_EQ(Lines_With(Source_Name, "VTPTextureListHeader")[0].substr(0, 27),
              "    VTPTextureListHeader 1,");
}

TEST_F(Emit_Lines_Test, OwnKinds) {
    EXPECT_EQ(Own_Lines().Kind(4096).Textures, "ShoreSU.bmp") << "without the file";
    Dir.Write(
        "App/Resource/OwnLines4.txt",
        "[Texture.4096] // Road\r\nTYPE= 7 \r\nTextures= a.bmp|b.bmp \r\nEffect=fx\r\n"
        "[Texture.4097]\r\nTextures=\r\nEffect=\r\n[Texture.1024]\r\nTextures=c.bmp|d.bmp\r\n");
    const Own_Lines Own;
    const Own_Line Road = Own.Kind(4096), Blank = Own.Kind(4097);
    EXPECT_EQ(Road.Type + "," + Road.Size + "," + Road.Textures + "," + Road.Effect,
              "7,4,a.bmp;b.bmp,fx");
    EXPECT_EQ(Blank.Type + "," + Blank.Textures + "," + Blank.Effect, "2,,")
        << "an empty value is a value";
    EXPECT_EQ(Own.Line_First_Texture(4096), "a.bmp");
    EXPECT_EQ(Own.Line_First_Texture(4097), "RiverSu.bmp");
    FS_CFS = 1;
    Draw(Zigzag(2), Line(1024));
    Draw(Zigzag(2), Line(4098));
    ShoreLines_Generate();
    EXPECT_EQ(
        Lines_With(Source_Name, "VTPTextureName"),
        (Lines{"        VTPTextureName \"c.bmp\"", "        VTPTextureName \"RiverSu.bmp\""}));
    EXPECT_TRUE(Lines_With(Source_Name, "VTPTextureType").empty());
}

TEST_F(Emit_Lines_Test, OwnKindsAreFoundAsSettingsAre) {
    const std::string Text =
        "\xEF\xBB\xBF[texture.4096]\nType=1\n  [ Texture.4097 ] x\nType=3\n[Texture.4096]\nType=9\n"
        "Size=9\n[Texture.4098\nType=5\n[]\nType=6\n[Texture.4097]\n[Texture.4099]\r\nSize=8";
    Dir.Write("App/Resource/OwnLines4.txt", Text);
    const Own_Lines Own;
    for (Int Code = 4095; Code <= 4100; ++Code) {
        const auto Setting = [&](const char* Key) {
            return Setting_In_Text(Text, "Texture." + std::to_string(Code), Key);
        };
        EXPECT_EQ(Own.Kind(Code).Type, Setting("Type").value_or("2")) << Code;
        EXPECT_EQ(Own.Kind(Code).Size, Setting("Size").value_or("4")) << Code;
    }
    EXPECT_EQ(Own.Kind(4096).Type, "1") << "the first section of a name counts";
    EXPECT_EQ(Own.Kind(4099).Size, "8");
}

TEST_F(Emit_Lines_Test, WhatIsShippedNamesEachKindOnce) {
    Put_Own_Lines();
    const std::string Text = Dir.Read("App/Resource/OwnLines4.txt");
    std::vector<Int> Codes;
    int Effects = 0;
    for (std::size_t At = 0, End = 0; At < Text.size(); At = End + 2) {
        End = Text.find("\r\n", At);
        ASSERT_NE(End, std::string::npos) << "every line ends in CR LF";
        const std::string L = Text.substr(At, End - At);
        Effects += L.starts_with("Effect=") ? 1 : 0;
        if (!L.starts_with("[")) continue;
        EXPECT_EQ(L.substr(0, 9) + L.substr(13, 5), "[Texture.] // ") << L;
        Codes.push_back(static_cast<Int>(std::atoi(L.substr(9, 4).c_str())));
    }
    EXPECT_TRUE(std::is_sorted(Codes.begin(), Codes.end()));
    EXPECT_EQ(std::adjacent_find(Codes.begin(), Codes.end()), Codes.end());
    EXPECT_EQ(Codes[0], Attr{}.LineType) << "the kind of a new object";
    EXPECT_EQ(Effects, 1);
    EXPECT_EQ(Own_Lines().Kind(4100).Effect, "fx_surf");
}

TEST_F(Emit_Lines_Test, NothingToWriteAndNothingToConvertWith) {
    Draw(Square(10, 10, 50), Attr{});
    Draw({{5, 5}, {5, 5}}, Line(1024));
    ShoreLines_Generate();
    EXPECT_TRUE(Host_Of_Test.Events.empty());
    Draw(Zigzag(2), Line(1024));
    Spoil_Calibration();
    ShoreLines_Generate();
    EXPECT_EQ(Host_Of_Test.Last_Message(), 7);
    EXPECT_EQ(Host_Of_Test.Events.size(), 1U);
    EXPECT_FALSE(Has_Source(Source_Name));
}

TEST_F(Emit_Lines_Test, LinesFollowTheMaskUnlessItsToolIsMissing) {
    Draw(Zigzag(2), Line(1024));
    Emit_LWM_Poly();
    EXPECT_TRUE(Has_Source(Source_Name)) << "there was no mask to compile";
    std::filesystem::remove(Dir.Native(std::string("App/") + Source_Name));
    Draw(Square(10, 10, 50), Attr{});
    Host_Of_Test.Tool = [](std::string_view) { return false; };
    Emit_LWM_Poly();
    EXPECT_FALSE(Has_Source(Source_Name));
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text, "pb Terrafold generation 2");
    ShoreLines_Generate();
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text, "BGLC.exe not found");
}

}  // namespace
