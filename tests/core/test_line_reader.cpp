// tests/core/test_line_reader.cpp - lines, tokens and quoted strings of project and reference
// files.
#include "core/line_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// The one line of Text, ready to be read from column 5.
void Take_Line(std::string_view Text) {
    Reader_Open(Text);
    ASSERT_TRUE(Next_Line());
}

std::vector<std::string> Lines_Of(std::string_view Text) {
    std::vector<std::string> Lines;
    Reader_Open(Text);
    while (Next_Line()) Lines.emplace_back(Cur_Line);
    EXPECT_EQ(Cur_Len, 0);
    EXPECT_EQ(Reader_Bytes_Left(), 0U);
    return Lines;
}

// What Next_Token gives until the line is used up, at most ten times.
std::vector<std::string> Tokens_Of(std::string_view Line) {
    std::vector<std::string> Tokens;
    Take_Line(Line);
    while (!Line_Is_Used_Up() && Tokens.size() < 10) {
        Next_Token();
        Tokens.emplace_back(Cur_Token);
    }
    return Tokens;
}

using List = std::vector<std::string>;

}  // namespace

TEST(Line_Reader, LinesEndInAnyWayAndEmptyOnesDoNotCount) {
    EXPECT_EQ(Lines_Of("one\r\n\r\n\r\ntwo\n\nthree"), (List{"one", "two", "three"}));
    EXPECT_EQ(Lines_Of("a\nb"), (List{"a", "b"}));
    EXPECT_EQ(Lines_Of("\r\n\n\none\r\n"), List{"one"});
    EXPECT_EQ(Lines_Of(""), List{});
    EXPECT_EQ(Lines_Of("\r\n\r\n"), List{});
    EXPECT_EQ(Lines_Of(" \r\n"), List{" "}) << "a line of blanks is not empty";
    EXPECT_EQ(Lines_Of("a\rb\r\n"), List{"a\rb"}) << "CR alone ends no line";
}

TEST(Line_Reader, TokensStandBehindTheTag) {
    EXPECT_EQ(Tokens_Of("0010  1 -2.5   x\"y z"), (List{"1", "-2.5", "x\"y", "z"}));
    EXPECT_EQ(Tokens_Of("1234567 8"), (List{"567", "8"})) << "columns 1 to 4 are never a value";
    EXPECT_EQ(Tokens_Of("0010 1 "), (List{"1", ""})) << "behind a blank an empty token stands";
    EXPECT_EQ(Tokens_Of("0010"), List{});
    EXPECT_EQ(Tokens_Of("00"), List{});
}

TEST(Line_Reader, ATokenLeavesItsPlace) {
    Take_Line("0010 12 345");
    Next_Token();
    EXPECT_EQ(Cur_Token, "12");
    EXPECT_EQ(Cur_Pos, 8) << "on the blank behind it";
    EXPECT_FALSE(Line_Is_Used_Up());
    Next_Token();
    EXPECT_EQ(Cur_Token, "345");
    EXPECT_EQ(Cur_Pos, 11) << "on the last character of the line";
    EXPECT_TRUE(Line_Is_Used_Up());
    Next_Token();
    EXPECT_EQ(Cur_Token, "5") << "which is taken again";
    EXPECT_EQ(Cur_Pos, 11);
}

TEST(Line_Reader, ANewLineBeginsAnew) {
    Take_Line("0010 1\n0020 2 3\n");
    Next_Token();
    EXPECT_TRUE(Line_Is_Used_Up());
    ASSERT_TRUE(Next_Line());
    EXPECT_EQ(Cur_Pos, 5);
    EXPECT_FALSE(Line_Is_Used_Up());
    Next_Token();
    EXPECT_EQ(Cur_Token, "2");
    Reader_Open("0030 4");
    EXPECT_EQ(Cur_Token, "");
    ASSERT_TRUE(Next_Line());
    EXPECT_EQ(Cur_Line, "0030 4") << "nothing of the text before is left";
}

TEST(Line_Reader, StringsBetweenQuotes) {
    const std::vector<std::pair<const char*, const char*>> Cases = {
        {"0018 \"C:\\My maps\\a b\"", "C:\\My maps\\a b"},
        {"0018 x y \"z\" \"w\"", "z"},
        {"     \"no end ", "no end "},
        {"     \"\"", ""},
        {"     \"", ""},
        {"0018 none", ""},
        {"\"a\"", ""},
        {"", ""}};
    for (const auto& [Line, Text] : Cases) {
        Reader_Open(Line);
        Next_Line();
        Cur_Token = "old";
        Next_Quoted();
        EXPECT_EQ(Cur_Token, Text) << Line;
    }
}
