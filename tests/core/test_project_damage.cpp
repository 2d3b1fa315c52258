// tests/core/test_project_damage.cpp - project files that something happened to.
#include <string>
#include <vector>

#include "core/model_ops.h"
#include "core/project_file.h"
#include "core/project_maker.h"
#include "support/program_test.h"

namespace {

class Project_Damage : public Program_Test {
protected:
    void SetUp() override { Nom_Projet = "C:\\p.LWM"; }

    // A file either opens without a word, or fails with one message; a damaged one leaves no
    // trace of itself. True when it opens.
    bool Opens(std::string_view Text) {
        Host_Of_Test.Boxes.clear();
        Read_Project_Text(Text);
        if (Load_Failed == 0) {
            EXPECT_TRUE(Host_Of_Test.Boxes.empty());
            return true;
        }
        EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U);
        EXPECT_TRUE(Host_Of_Test.Last_Message() != 31 || Copy_Of_Project() == Empty);
        EXPECT_EQ(Nom_Projet, "C:\\p.LWM");
        return false;
    }
    bool Is_Damaged(std::string_view Text) {
        return !Opens(Text) && Host_Of_Test.Last_Message() == 31;
    }

    const Project_Copy Empty = Copy_Of_Project();
    const std::string File = Whole_File();
};

std::vector<std::string> Lines_Of(std::string_view Text) {
    std::vector<std::string> Lines;
    for (std::size_t At; (At = Text.find("\r\n")) != std::string_view::npos;) {
        Lines.emplace_back(Text.substr(0, At + 2));
        Text.remove_prefix(At + 2);
    }
    return Lines;
}

std::string Joined(const std::vector<std::string>& Lines) {
    std::string Text;
    for (const std::string& Line : Lines) Text += Line;
    return Text;
}

// Where the numbers of Text stand: first character and length.
std::vector<std::pair<std::size_t, std::size_t>> Numbers_Of(std::string_view Text) {
    std::vector<std::pair<std::size_t, std::size_t>> Places;
    constexpr std::string_view Parts = "-.0123456789E+";
    for (std::size_t At = 0; At < Text.size();) {
        const std::size_t End = std::min(Text.find_first_not_of(Parts, At), Text.size());
        if (End > At) Places.emplace_back(At, End - At);
        At = End + 1;
    }
    return Places;
}

}  // namespace

TEST_F(Project_Damage, CutAnywhere) {
    const std::size_t End = File.find("End");
    ASSERT_TRUE(Opens(File.substr(0, End)));
    // A file may end behind the tag of its last section, and inside that section's last line, as
    // missing values are 0; but not between its count and the line that the count announces.
    const std::size_t Last = File.find("0200  4  1  1");
    for (std::size_t Size = 0; Size < End; ++Size) {
        const bool Without_Records = Last + 4 <= Size && Size < Last + 13;
        ASSERT_EQ(Opens(std::string_view(File).substr(0, Size)),
                  Without_Records || Size > Last + 15)
            << Size;
    }
}

TEST_F(Project_Damage, LinesLostDoubledAndCut) {
    const std::vector<std::string> Lines = Lines_Of(File);
    int Opened = 0;
    for (std::size_t I = 0; I < Lines.size(); ++I) {
        std::vector<std::string> Damaged = Lines;
        for (std::size_t Keep = 0; Keep + 2 < Lines[I].size(); ++Keep) {
            Damaged[I] = Lines[I].substr(0, Keep) + "\r\n";
            Opened += Opens(Joined(Damaged));
        }
        Damaged[I] = "";
        EXPECT_EQ(Opens(Joined(Damaged)), Lines[I] == "End\r\n") << Lines[I];
        Damaged[I] = Lines[I] + Lines[I];
        EXPECT_EQ(Opens(Joined(Damaged)), I + 3 >= Lines.size()) << Lines[I];
        if (testing::Test::HasFailure()) FAIL() << I;
    }
    EXPECT_GT(Opened, 500) << "a line that is cut short has fewer values, or a shorter string";
}

TEST_F(Project_Damage, EveryNumberReplaced) {
    int Opened = 0, Tried = 0;
    for (const auto& [At, Length] : Numbers_Of(File)) {
        for (const char* Hostile : {"-1", "99999999999", "1E999", "-1E999", "x", "", "2147483647",
                                    "32768", ".5", "nan", "\"", "0", "\x80\xFF"}) {
            Opened += Opens(std::string(File).replace(At, Length, Hostile));
            ++Tried;
            ASSERT_FALSE(testing::Test::HasFailure()) << At << " " << Hostile;
        }
    }
    EXPECT_GT(Opened, Tried / 4);
    EXPECT_LT(Opened, Tried);
}

TEST_F(Project_Damage, NumbersBeyondTheirFields) {
    const std::vector<std::pair<const char*, const char*>> Refused = {
        {"0017  1", "0017  32768"},
        {"0017  1", "0017  32767.5"},
        {"0017  1", "0017 -32769"},
        {"0021  70000", "0021  2147483648"},
        {"0021  70000", "0021  1E10"},
        {"0010   48.1", "0010   1E309"},
        {"0010   48.1", "0010  -1E309"},
        {"-99.9", "3.5E38"},
        {"106  207", "106  256"},
        {"106  207", "106 -1"},
        {"106  207", "106  255.5"},
        {"104  105", "104  40000"},
        {"12.5  201", "12.5  256"},
        {"6  211", "6  256"},
        {"8  212", "8 -1"},
        {"      100\r\n", "      256\r\n"},
        {"123.5", "-1E39"},
        {"301  1.5", "40000  1.5"},
        {"40  900", "2147483648  900"}};
    for (const auto& [Old, New] : Refused) {
        EXPECT_TRUE(Is_Damaged(With(File, Old, New))) << New;
    }
    EXPECT_TRUE(Opens(With(File, "0017  1", "0017  32767.49")));
    EXPECT_TRUE(Opens(With(File, "106  207", "106 -.5"))) << "rounds to 0";
    EXPECT_TRUE(Opens(With(File, "-99.9", "3.4028235E38"))) << "the largest Single";
}

TEST_F(Project_Damage, CellsOutsideTheirGrids) {
    struct Limit {
        const char* Before;
        const char* Value;
        int Highest;
    };
    const std::vector<Limit> Limits = {
        {"0040   ", "501", 511}, {"501  ", "701", 767},     {"702  ", "1", 31},
        {"1  2  3  ", "4", 31},  {"4  ", "5", 31},          {"5  ", "503", 511},
        {"503  ", "6", 31},      {"6  ", "703", 767},       {"8  ", "704", 767},
        {"201  ", "1", 31},      {"201  1  ", "2", 31},     {"1  2  ", "601", 767},
        {"601  ", "402", 511},   {"      ", "602", 767},    {"602  ", "403", 511},
        {"602  403  ", "3", 31}, {"403  3  ", "4", 31},     {"210  ", "603", 767},
        {"603  ", "404", 511},   {"     ", "604", 767},     {"604  ", "405", 511},
        {"604  405  ", "5", 31}, {"405  5  ", "6", 31},     {"     ", "605", 767},
        {"605  ", "406", 511},   {"605  406  7  ", "8", 31}};
    for (const Limit& L : Limits) {
        const std::string Before = L.Before;
        const auto Replaced = [&](int Value) {
            const std::string Number = (Value < 0 ? "" : " ") + std::to_string(Value);
            std::string New = Before.substr(0, Before.size() - 1) + Number;
            return With(File, Before + L.Value, New);
        };
        EXPECT_TRUE(Opens(Replaced(L.Highest))) << Before << L.Value;
        EXPECT_TRUE(Is_Damaged(Replaced(L.Highest + 1))) << Before << L.Value;
        EXPECT_TRUE(Is_Damaged(Replaced(-1))) << Before << L.Value;
    }
}

TEST_F(Project_Damage, TagsOfTheSections) {
    for (const char* Tag : {"0100", "0120", "0140", "0150", "0160", "0170", "0180", "0200"}) {
        const std::string Line = "\r\n" + std::string(Tag);
        EXPECT_TRUE(Is_Damaged(With(File, Line, "\r\n0199"))) << Tag;
        EXPECT_TRUE(Is_Damaged(With(File, Line, "\r\n    "))) << Tag;
    }
}

TEST_F(Project_Damage, CountsThatTheFileDoesNotBear) {
    for (const char* Count : {"-1", "2147483647", "99999999999", "3", "2"}) {
        for (const char* Line : {"0100  2", "0120  1", "0140  1", "0150  1", "0160  1", "0170  1",
                                 "0180  1", "0200  4  1  1"}) {
            std::string New = Line;
            if (New.ends_with(Count)) continue;
            New.replace(New.rfind(' ') + 1, 1, Count);
            EXPECT_TRUE(Is_Damaged(With(File, Line, New))) << New;
        }
        if (std::string_view(Count).size() == 1) continue;
        EXPECT_TRUE(Is_Damaged(With(File, "40  2 -9999", "40 " + std::string(Count) + " -9999")));
    }
    const std::size_t Objects = File.find("0100  2"), Cells = File.find("0120  1");
    EXPECT_TRUE(Is_Damaged(File.substr(0, Objects) + "0100  0  0  0\r\n" + File.substr(Cells)))
        << "the reserved element is missing";
    const std::size_t Points = File.find("       10.25");
    EXPECT_TRUE(Is_Damaged(
        With(File.substr(0, Points) + File.substr(Cells), "40  2 -9999", "40 -1 -9999")));
    EXPECT_TRUE(
        Opens(With(File.substr(0, Points) + File.substr(Cells), "40  2 -9999", "40  0 -9999")));
    EXPECT_TRUE(Is_Damaged(With(File, "40  900", "40 -1")));
    EXPECT_TRUE(Is_Damaged(With(File, "40  900", "40  2147483648")));
}

TEST_F(Project_Damage, ThePoolMarkTakesNoMemory) {
    EXPECT_TRUE(Opens(With(File, "40  900", "40  2147483647")));
    EXPECT_EQ(Max_Pt, 2147483647);
    EXPECT_EQ(Nb_Pt, 2);
    EXPECT_TRUE(Opens(With(File, "40  900", "40  1"))) << "nor does it limit the points";
    EXPECT_EQ(Nb_Pt, 2);
}

TEST_F(Project_Damage, ADamagedFileLeavesNothingOfTheOneBefore) {
    ASSERT_TRUE(Opens(File));
    EXPECT_TRUE(Is_Damaged(With(File, "0200", "0201")));
    EXPECT_EQ(Nb_Obj, 1);
    EXPECT_EQ(Max_Obj, 10);
    ASSERT_TRUE(Opens(File));
}
