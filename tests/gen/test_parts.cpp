// tests/gen/test_parts.cpp - parts of the emitters by themselves: worked examples in rows, and what
// no row can tell.
#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <limits>

#include "gen/class_lists.h"
#include "gen/emit_lines.h"
#include "gen/lwm_text.h"
#include "gen/night_offset.h"
#include "gen/own_lines.h"
#include "gen/source_frame.h"
#include "gen/vlines.h"
#include "gen_test.h"
#include "shapes/line/line_collect.h"
#include "support/rows.h"

namespace {

using Parts = Gen_Test;

std::string Text_Of(Metres P) {
    const auto Short = [](Double V) { return Number_Cell(std::round(V * 1e9) / 1e9 + 0.0); };
    return Short(P.X) + "," + Short(P.Y);
}

std::vector<Metres> Places(const std::string& Cell) {
    const std::vector<double> V = Cell_Numbers(Cell);
    std::vector<Metres> Found;
    for (std::size_t I = 0; I + 1 < V.size(); I += 2) Found.push_back({V[I], V[I + 1]});
    return Found;
}

std::string Text_Of(const Bgl_Limits& L) {
    return std::to_string(L.North) + " " + std::to_string(L.South) + " " + std::to_string(L.East) +
           " " + std::to_string(L.West);
}

std::string Wide_End(const Row_Cells& C) {
    const std::vector<double> V = Cell_Numbers(C[1]);
    const VLinePt A{static_cast<Int>(V[0]), static_cast<Int>(V[1])};
    const VLinePt B{static_cast<Int>(V[2]), static_cast<Int>(V[3])};
    const bool Is_Last = C[0].starts_with("last");
    const VLinePt P = Wide_End_Point(A, B, Is_Last, C[0].ends_with("cut") ? Tag_Cut : Tag_Wide);
    return std::to_string(P.X) + "," + std::to_string(P.Y);
}

TEST_F(Parts, AsInTheRows) {
    Expect_Rows(
        "emitters",
        {{"Night_Mitre",
          [](const Row_Cells& C) {
              const auto P = Places(C[0]);
              return Text_Of(Night_Mitre(P[0], P[1], P[2], P[3]));
          }},
         {"Lane_Path",
          [](const Row_Cells& C) {
              std::string Text;
              for (const Lane_Pt& P : Lane_Path(Places(C[0]), Cell_Number(C[1]), C[1] == "one"))
                  Text += Text_Of(P.Left) + " " + Text_Of(P.Right) + "; ";
              return Text.substr(0, Text.size() - 2);
          }},
         {"Lanes_Of",
          [](const Row_Cells& C) {
              const Road_Lanes R = Lanes_Of(static_cast<Int>(Cell_Number(C[0])));
              std::string Text;
              for (const Double D : Lane_Offsets(R, 66)) Text += Number_Cell(D) + " ";
              return std::to_string(R.Lanes) + ": " + Text.substr(0, Text.size() - 1);
          }},
         {"Wide_End_Point", Wide_End},
         {"Limits_Of_Project",
          [](const Row_Cells& C) {
              const std::vector<double> V = Cell_Numbers(C[0]);
              LatGridNW = V[0], LonGridNW = V[1], LatGridSE = V[2], LonGridSE = V[3];
              return Text_Of(Limits_Of_Project());
          }},
         {"Limits_Of_Areas",
          [](const Row_Cells& C) {
              std::vector<Int> V;
              for (const double N : Cell_Numbers(C[0])) V.push_back(static_cast<Int>(N));
              return Text_Of(Limits_Of_Areas(V[0], V[1], V[2], V[3]));
          }},
         {"Bgl_Stem",
          [](const Row_Cells& C) {
              NameBgl = C[0];
              return Bgl_Stem();
          }},
         {"LC.txt",
          [this](const Row_Cells& C) {
              Dir.Write("App/Resource/LC.txt", C[0]);
              std::string Text;
              for (const LC_Entry& E : LC_List_Read())
                  Text += std::to_string(E.Class) + " " + std::to_string(E.Texture) + " " + E.Text +
                          ";";
              return Text;
          }},
         {"WC.txt", [this](const Row_Cells& C) {
              Dir.Write("App/Resource/WC.txt", C[0]);
              std::string Text;
              for (const WC_Entry& E : WC_List_Read())
                  Text += std::to_string(E.Class) + " " + E.Text + ";";
              return Text;
          }}});
}

TEST_F(Parts, LeftIsLeftForEveryHeading) {
    const Metres A{30, -20};
    for (Int Heading = 0; Heading < 360; Heading += 15) {
        const Double Turn = Heading * std::numbers::pi / 180;
        const Metres B{A.X + 50 * std::sin(Turn), A.Y + 50 * std::cos(Turn)};
        for (const bool At_End : {false, true}) {
            const Metres C = At_End ? B : A;
            const Lane_Pt P = Night_Offset(A, B, 8, At_End);
            const Double Side = (B.X - A.X) * (P.Left.Y - A.Y) - (B.Y - A.Y) * (P.Left.X - A.X);
            EXPECT_NEAR(Side, 50 * 8, 1e-6) << Heading;
            EXPECT_NEAR(std::hypot(P.Left.X - C.X, P.Left.Y - C.Y), 8, 1e-9) << Heading;
            EXPECT_NEAR((P.Left.X + P.Right.X) / 2, C.X, 1e-9) << Heading;
            EXPECT_NEAR((P.Left.Y + P.Right.Y) / 2, C.Y, 1e-9) << Heading;
        }
    }
    EXPECT_EQ(Night_Offset({0, 0}, {0.009, 50}, 4, true).Left, (Metres{-4, 50})) << "as upright";
    EXPECT_EQ(Night_Offset({0, 0}, {-50, 0.009}, 4, true).Left, (Metres{-50, -4})) << "as level";
    EXPECT_NE(Night_Offset({0, 0}, {0.011, 50}, 4, true).Left.Y, 50);
    EXPECT_EQ(Night_Offset({7, 7}, {7.001, 7.001}, 4, true).Left, (Metres{3, 7})) << "no length";
}

// A cut end overlaps the next piece by one unit, past the edge of its Area; nothing else does.
TEST_F(Parts, OnlyCutEndsPassTheEdgeOfTheirArea) {
    Make_Map(64);
    std::uint64_t State = 5;
    const auto Next = [&] {
        return static_cast<Double>((State = State * 25214903917 + 11) >> 17 & 0xFFFFFF);
    };
    for (int I = 0; I < 60; ++I) {
        std::vector<Pix> O;
        for (int N = 2 + I % 8; N > 0; --N)
            O.push_back({Next() / 0xFFFFFF * 17320 - 500, Next() / 0xFFFFFF * 17320 - 500});
        Attr A;
        A.SurfShore = Surf_Line;
        A.Effil_Deb = A.Effil_Fin = static_cast<Int>(I % 2);
        Draw(O, A);
    }
    ShoreLines_Generate();
    const std::string Text = Source("Terrafold$_Lines.ASM");
    Long Inside = 0, Beyond = 0;
    for (std::size_t At = 0; (At = Text.find("VTPWidePoint ", At)) != std::string::npos; ++At) {
        const std::vector<double> V =
            Cell_Numbers(Text.substr(At + 13, Text.find('\r', At) - At - 13));
        for (const double Loc : {V[0], V[2]}) {
            EXPECT_TRUE(4079 <= Loc && Loc <= 12241) << Loc;
            ++(Loc == 4079 || Loc == 12241 ? Beyond : Inside);
        }
    }
    EXPECT_GT(Inside, 500);
    EXPECT_GT(Beyond, 100);
}

std::string Resource(const std::string& Name) {
    std::ifstream In(TEST_SOURCE_DIR "/resource/" + Name, std::ios::binary);
    return {std::istreambuf_iterator<char>(In), {}};
}

TEST_F(Parts, TheListsThatComeWithTheProgram) {
    for (const std::string Name : {"LC.txt", "WC.txt", "OwnLines4.txt"}) {
        const std::string Text = Resource(Name);
        Dir.Write("App/Resource/" + Name, Text);
        EXPECT_EQ(std::ranges::count(Text, '\n'), std::ranges::count(Text, '\r')) << Name;
        EXPECT_TRUE(Text.ends_with("\r\n")) << Name;
    }
    const std::vector<LC_Entry> Land = LC_List_Read();
    EXPECT_EQ(std::ssize(Land), std::ranges::count(Resource("LC.txt"), '\n') - 1);
    for (const Byte Needed : {0, 135, 253, 254})  // defaults and "no class"
        EXPECT_EQ(std::ranges::count(Land, Needed, &LC_Entry::Class), 1) << int{Needed};
    for (const WC_Entry& W : WC_List_Read()) EXPECT_TRUE(1 <= W.Class && W.Class <= 59);
    const std::string Own = Resource("OwnLines4.txt");
    Int Before = 0;
    for (std::size_t At = 0; (At = Own.find("\r\n[Texture.", At)) != std::string::npos; ++At) {
        const auto Code = static_cast<Int>(Cell_Number(Own.substr(At + 11, 4)));
        EXPECT_GT(Code, Before) << "in order, each once";
        EXPECT_EQ(Own.substr(At + 15, 5), "] // ") << Code;
        EXPECT_TRUE(Before != 0 || Code == Attr{}.LineType) << "the kind of a new object";
        Before = Code;
    }
    EXPECT_EQ(Own_Lines().Kind(4100).Effect, "fx_surf");
}

TEST_F(Parts, LinesOfAnyLengthAndNumbersOfAnySizeAreWrittenWhole) {
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

TEST_F(Parts, FailuresAreToldInTheUsersLanguage) {
    Language = "US";
    Dir.Write("App/Some.asm/in the way", "");
    const Source_File Out(Source_Path("Some.asm"));
    EXPECT_FALSE(Out.Is_Open());
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text, "Cannot create the file " + Out.Path());
    Host_Of_Test.Tool = [](std::string_view) { return false; };
    EXPECT_FALSE(Run_BGLC("a.asm", "b.bgl"));
    EXPECT_EQ(Host_Of_Test.Boxes.back().Style, Box_Information);
    EXPECT_EQ(Host_Of_Test.Boxes.back().Title, "Terrafold");
}

}  // namespace
