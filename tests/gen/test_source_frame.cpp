// tests/gen/test_source_frame.cpp - header limits, the skeleton, sources and tools.
#include "gen/source_frame.h"

#include <limits>

#include "gen_test.h"

namespace {

void Expect_Limits(const Bgl_Limits& L, Long North, Long South, Long East, Long West) {
    EXPECT_EQ(L.North, North);
    EXPECT_EQ(L.South, South);
    EXPECT_EQ(L.East, East);
    EXPECT_EQ(L.West, West);
}

using Source_Frame_Test = Gen_Test;

TEST_F(Source_Frame_Test, LimitsLieOneDegreeOutside) {
    LatGridNW = -20.2, LatGridSE = -20.9, LonGridNW = 166.4, LonGridSE = 167.2;
    Expect_Limits(Limits_Of_Project(), -19, -21, 168, 165);
    LatGridNW = 0.7, LatGridSE = 0.4, LonGridNW = 0.4, LonGridSE = 0.7;
    Expect_Limits(Limits_Of_Project(), 1, 0, 1, 0);  // cut after the degree is added
    LatGridNW = 90.0, LatGridSE = -90.0, LonGridNW = -180.0, LonGridSE = 180.0;
    Expect_Limits(Limits_Of_Project(), 90, -90, 180, -180);

    // Row 100 lies at 54.84 to 54.49 degrees, column 300 at -39.4, the edge of 200 at -85.8.
    Expect_Limits(Limits_Of_Areas(300, 100, 200, 101), 55, 53, -84, -40);
    Expect_Limits(Limits_Of_Areas(0, 0, 767, 511), 90, -90, 180, -180);
    Expect_Limits(Limits_Of_Areas(384, 256, 384, 256), 1, -1, 1, -1);
}

TEST_F(Source_Frame_Test, StemIsTheNameWithoutItsExtension) {
    NameBgl = "C:\\Scenery\\Demo.v2.bgl";
    EXPECT_EQ(Bgl_Stem(), "C:\\Scenery\\Demo.v2");
    for (const char* Short : {"", "a", ".bgl"}) {
        NameBgl = Short;
        EXPECT_EQ(Bgl_Stem(), "") << Short;
    }
}

TEST_F(Source_Frame_Test, ASourceReplacesTheOlderOne) {
    for (const char* Text : {"first, and longer", "second"}) {
        Source_File Out(Source_Path("Some.asm"));
        Out.Line("; ", Text, ", ", Int{-3}, ",", 0.5, " ", Long{70000});
        EXPECT_TRUE(Out.Close());
    }
    EXPECT_EQ(Source("Some.asm"), "; second, -3,.5 70000\r\n");
    const std::string Path = App_Path + "\\Some.asm";
    EXPECT_EQ(Host_Of_Test.Events,
              (std::vector<std::string>{"write " + Path, "delete " + Path, "write " + Path}));
}

TEST_F(Source_Frame_Test, LinesOfAnyLengthAndNumbersOfAnySizeAreWrittenWhole) {
    std::string Wanted;
    {
        Source_File Out(Source_Path("Some.asm"));
        for (const std::size_t Size : {0, 1, 8180, 8190, 8192, 70'000, 3, 200'000, 5}) {
            const std::string Text(Size, static_cast<char>('a' + Size % 26));
            Out.Line(Text, "|", std::numeric_limits<Long>::min(), "|", -1e-300 / 3, "|", Text);
            Wanted += Text + "|-2147483648|-3.33333333333333E-301|" + Text + "\r\n";
        }
        for (Long N = 0; N < 5'000; ++N) {
            Out.Line(N, Byte{255}, std::numeric_limits<Int>::min());
            Wanted += std::to_string(N) + "255-32768\r\n";
        }
    }
    EXPECT_EQ(Source("Some.asm"), Wanted) << "what is not closed stays";
}

TEST_F(Source_Frame_Test, ASourceThatCannotBeMadeIsTold) {
    Dir.Write("App/Some.asm/in the way", "");
    Source_File Out(Source_Path("Some.asm"));
    EXPECT_FALSE(Out.Is_Open());
    EXPECT_EQ(Host_Of_Test.Last_Message(), 0);
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text,
              "Impossible de cr\xE9"
              "er le fichier " +
                  Out.Path());
    Language = "US";
    const Source_File Again(Source_Path("Some.asm"));
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text, "Cannot create the file " + Out.Path());
}

TEST_F(Source_Frame_Test, AToolThatCannotStartIsTold) {
    EXPECT_TRUE(Run_BGLC("a.asm", "b.bgl"));
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
    Host_Of_Test.Tool = [](std::string_view) { return false; };
    EXPECT_FALSE(Run_BGLC("a.asm", "b.bgl"));
    const std::string Cmd_Line = App_Path + "\\bglc.exe  \"a.asm\" \"b.bgl\"";
    EXPECT_EQ(Host_Of_Test.Events.front(), "run " + Cmd_Line);
    ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U);
    const Box& B = Host_Of_Test.Boxes.front();
    EXPECT_EQ(B.Text,
              "Erreur g\xE9n\xE9rale d'ex\xE9"
              "cution du processus : " +
                  Cmd_Line);
    EXPECT_EQ(B.Style, Box_Information);
    EXPECT_EQ(B.Title, "Terrafold");
}

}  // namespace
