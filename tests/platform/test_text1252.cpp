// tests/platform/test_text1252.cpp - code page 1252 and UTF-8.
#include "platform/text1252.h"

#include <gtest/gtest.h>

#include "platform/wildcard.h"
#include "support/rows.h"

TEST(Text1252, EveryByteComesBackFromUtf8) {
    std::string All;
    for (int I = 0; I < 256; ++I) All += static_cast<char>(I);
    EXPECT_EQ(From_Utf8(To_Utf8(All)), All);
    EXPECT_EQ(From_Utf8_Loose(To_Utf8(All)), All);
}

TEST(Text1252, WorkedExamples) {
    const auto Yes = [](bool Holds) { return Holds ? "yes" : "no"; };
    Expect_Rows(
        "text1252",
        {{"To_Utf8", [](const Row_Cells& C) { return To_Utf8(C[0]); }},
         {"From_Utf8", [](const Row_Cells& C) { return From_Utf8(C[0]).value_or("nothing"); }},
         {"From_Utf8_Loose", [](const Row_Cells& C) { return From_Utf8_Loose(C[0]); }},
         {"Upper_1252", [](const Row_Cells& C) { return Upper_1252(C[0]); }},
         {"Equal_No_Case", [=](const Row_Cells& C) { return Yes(Equal_No_Case(C[0], C[1])); }},
         {"Trim", [](const Row_Cells& C) { return std::string(Trim(C[0])); }},
         {"Wildcard_Match", [=](const Row_Cells& C) { return Yes(Wildcard_Match(C[0], C[1])); }}});
    EXPECT_FALSE(Wildcard_Match(std::string(50'000, 'a'), "*a*a*a*a*a*a*b")) << "and no hang";
}
