// tests/core/test_project_damage.cpp - project files of other versions, and files that something
// happened to.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "core/number_text.h"
#include "core/project_file.h"
#include "core/project_test.h"
#include "support/rows.h"

namespace {

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

std::string Shown(std::string Line) {
    std::replace(Line.begin(), Line.end(), '"', '\'');
    return Line.substr(0, Line.size() - 2);
}

// As much of a Single as its text holds.
void Seven_Digits(Single& X) {
    X = static_cast<Single>(Val(Str(X)));
}

class Project_Damage : public Project_Test {
protected:
    // A file either opens without a word, or fails with one message; a damaged one leaves no
    // trace of itself. True when it opens.
    bool Opens(std::string_view Text) {
        if (Open(Text)) {
            EXPECT_TRUE(Host_Of_Test.Boxes.empty());
            return true;
        }
        EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U);
        EXPECT_TRUE(Host_Of_Test.Last_Message() != 31 || Copy() == Empty);
        return false;
    }
    // What becomes of a file: the box when it is refused, "same" when it reads as the whole one,
    // else the lines in which saving it differs.
    std::string Outcome(std::string_view File) {
        if (!Opens(File)) {
            const Box& B = Host_Of_Test.Boxes.back();
            return B.Num == 31 ? "damaged" : B.Num == 30 ? "refused" : B.Text;
        }
        const std::vector<std::string> New = Lines_Of(Saved());
        if (Plain.empty() && Opens(Whole)) Plain = Lines_Of(Saved());
        std::string Differing;
        for (std::size_t I = 0; I < std::max(New.size(), Plain.size()); ++I)
            if (I >= New.size() || I >= Plain.size())
                return "another number of lines";
            else if (New[I] != Plain[I])
                Differing += (Differing.empty() ? "" : " / ") + Shown(New[I]);
        return Differing.empty() ? "same" : Differing;
    }
    // The whole file with changes from cell At on: old, new, old, new.
    std::string Changed(const Row_Cells& C, std::size_t At) {
        const std::string Kept = Whole;
        for (; At + 1 < C.size(); At += 2) Whole = With(C[At], C[At + 1]);
        return std::exchange(Whole, Kept);
    }
    // Answers the question about a file of version 4.0 with ticks, "1010", or closes it.
    void Answer(const std::string& Ticks) {
        Host_Of_Test.Forms["Frm_V24"] = [Ticks, this] {
            EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
            EXPECT_TRUE(The_V24.Chk_Adapt_lines && The_V24.Chk_Change_Layer_Exclude);
            EXPECT_FALSE(The_V24.Chk_Change_layer_Line || The_V24.Chk_Change_Layer_Poly);
            if (Ticks == "closed") return Form_End::Closed;
            The_V24 = {Ticks[0] == '1', Ticks[1] == '1', Ticks[2] == '1', Ticks[3] == '1'};
            return Form_End::Ok;
        };
    }

    const Project_Copy Empty = Copy();
    std::vector<std::string> Plain;  // the lines of the whole file as it is saved
};

}  // namespace

TEST_F(Project_Damage, WorkedExamples) {
    const auto Limit = [&](const Row_Cells& C) {
        const std::string Before = C[0].substr(0, C[0].rfind(' ') + 1);
        std::string Told = C[1];
        for (const int Value : {std::stoi(C[1]), std::stoi(C[1]) + 1, -1})
            Told += Opens(With(C[0], Before + std::to_string(Value))) ? " opens" : " damaged";
        return Told;
    };
    const auto Version = [&](const Row_Cells& C) {
        Host_Of_Test.Events.clear();
        const std::string Told = Outcome(With("V5.0", C[0]));
        const auto& Events = Host_Of_Test.Events;
        return Told + (!Events.empty() && Events[0] == "form Frm_V24" ? " asked" : "");
    };
    const auto Upgrade = [&](const Row_Cells& C) {
        Answer(C[0]);
        std::string File = Changed(C, 1);
        return Outcome(File.replace(File.find("V5.0"), 4, "V4.0"));
    };
    Expect_Rows("project_file",
                {{"change", [&](const Row_Cells& C) { return Outcome(Changed(C, 0)); }},
                 {"limit", Limit},
                 {"version", Version},
                 {"upgrade", Upgrade}});
    EXPECT_TRUE(Opens(With("40  900", "40  2147483647")));
    EXPECT_EQ(Max_Pt, 2147483647) << "and no memory is taken";
}

TEST_F(Project_Damage, CutAnywhere) {
    // A file may end behind the tag of its last section, and inside that section's last line, as
    // missing values are 0; but not between its count and the line that the count announces.
    const std::size_t Last = Whole.find("0200  4  1  1");
    for (std::size_t Size = 0; Size <= Whole.find("End"); ++Size) {
        const bool Without_Records = Last + 4 <= Size && Size < Last + 13;
        ASSERT_EQ(Opens(std::string_view(Whole).substr(0, Size)),
                  Without_Records || Size > Last + 15)
            << Size;
    }
}

TEST_F(Project_Damage, LinesLostDoubledCutAndParted) {
    std::vector<std::string> Lines = Lines_Of(Whole);
    std::string Gaps, Bare;
    for (std::size_t I = 0; I < Lines.size() && !HasFailure(); ++I) {
        const std::string Line = Lines[I];
        Bare += Line.substr(0, Line.size() - 2) + "\n";
        Gaps += Line + "\n";
        for (std::size_t Keep = 0; Keep + 2 < Line.size(); ++Keep) {
            Lines[I] = Line.substr(0, Keep) + "\r\n";
            Opens(Joined(Lines));
        }
        Lines[I] = "";
        EXPECT_EQ(Opens(Joined(Lines)), Line == "End\r\n") << Line;
        Lines[I] = Line + Line;
        EXPECT_EQ(Opens(Joined(Lines)), I + 3 >= Lines.size()) << Line;
        Lines[I] = Line;
    }
    EXPECT_EQ(Outcome(Gaps), "same");
    EXPECT_EQ(Outcome(Bare), "same");
    const auto With_Map = [&](std::size_t Size) {
        return std::string(Whole).replace(Whole.find("C:\\Map.bmp"), 10, Size, 'x');
    };
    EXPECT_TRUE(Opens(With_Map(32767)) && !Opens(With_Map(32768))) << "the longest string";
}

TEST_F(Project_Damage, EveryNumberReplacedAndWhatOpensComesBack) {
    constexpr std::string_view Parts = "-.0123456789E+";
    int Opened = 0, Tried = 0;
    for (std::size_t At = 0, End = 0; At < Whole.size(); At = End + 1) {
        End = std::min(Whole.find_first_not_of(Parts, At), Whole.size());
        for (const std::string_view Hostile :
             {"-1", "99999999999", "1E999", "-1E999", "x", "", "2147483647", "32768", ".5", "nan",
              "\"", "0", "\x80\xFF", "-1.23456789012345E-120", "987654.321098765"}) {
            if (End == At) continue;
            ++Tried;
            if (!Opens(std::string(Whole).replace(At, End - At, Hostile))) continue;
            ++Opened;
            if (Hostile.size() < 15) continue;
            Project_Copy Read = Copy();
            Seven_Digits(Read.Head.Delta_Alt);
            for (PtGrid& P : Read.PtGrids) Seven_Digits(P.Alt);
            ASSERT_TRUE(Opens("0000 V5.0\r\n0002\r\n" + Saved())) << At << " " << Hostile;
            ASSERT_TRUE(Copy() == Read) << At << " " << Hostile;
        }
        ASSERT_FALSE(HasFailure()) << At;
    }
    EXPECT_GT(Opened, Tried / 4);
    EXPECT_LT(Opened, Tried);
}
