// tests/gen/test_parts.cpp - parts of the emitters by themselves: worked examples in rows, and what
// no row can tell.
#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <limits>

#include "gen/class_lists.h"
#include "gen/night_offset.h"
#include "gen/own_lines.h"
#include "gen/source_frame.h"
#include "gen/vlines.h"
#include "gen_test.h"
#include "platform/paths.h"
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
         {"Night_Offset",
          [](const Row_Cells& C) {
              const auto P = Places(C[0]);
              const Lane_Pt L = Night_Offset(P[0], P[1], Cell_Number(C[1]), C[2] == "end");
              return Text_Of(L.Left) + " " + Text_Of(L.Right);
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
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text, "Cannot create the file " + Shown_Path(Out.Path()));
    Host_Of_Test.Tool = [](std::string_view) { return false; };
    EXPECT_FALSE(Run_BGLC("a.asm", "b.bgl"));
    EXPECT_EQ(Host_Of_Test.Boxes.back().Style, Box_Information);
    EXPECT_EQ(Host_Of_Test.Boxes.back().Title, "Terrafold");
}

}  // namespace
