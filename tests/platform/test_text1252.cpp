// tests/platform/test_text1252.cpp - code page 1252 and UTF-8.
#include <gtest/gtest.h>

#include "platform/text1252.h"

TEST(Text1252, EveryByteComesBackFromUtf8) {
    std::string All;
    for (int I = 0; I < 256; ++I) All += static_cast<char>(I);
    const std::string Utf8 = To_Utf8(All);
    EXPECT_EQ(From_Utf8(Utf8), All);
    EXPECT_EQ(From_Utf8_Loose(Utf8), All);
}

TEST(Text1252, CharactersOfTheUpperTable) {
    EXPECT_EQ(To_Utf8("\x80 \x8C \x9F \xE9"), "\xE2\x82\xAC \xC5\x92 \xC5\xB8 \xC3\xA9");
    EXPECT_EQ(From_Utf8("\xC2\x80"), std::nullopt) << "the control character 0x80 has no byte";
    EXPECT_EQ(From_Utf8("\xC2\x81"), "\x81");
    EXPECT_EQ(From_Utf8("\xCE\xA9"), std::nullopt) << "a Greek letter";
}

TEST(Text1252, BrokenUtf8IsRefusedAndReplacedByteByByte) {
    const struct {
        std::string_view Text;
        std::string_view Loose;
    } Cases[] = {
        {"a\xE9", "a?"},               // a byte of code page 1252 at the end
        {"\xE9t\xE9", "?t?"},          // and inside
        {"\xC0\xAF", "??"},            // "/" in two bytes
        {"\xE0\x80\x80", "???"},       // too long a form
        {"\xED\xA0\x80", "???"},       // half a surrogate pair
        {"\xF4\x90\x80\x80", "????"},  // above the last character
        {"\xF0\x9F\x97\xBA!", "?!"},   // well formed, but not in the code page
        {"\xE2\x82", "??"},            // cut off
        {"\x80", "?"},
    };
    for (const auto& Case : Cases) {
        EXPECT_EQ(From_Utf8(Case.Text), std::nullopt) << Case.Loose;
        EXPECT_EQ(From_Utf8_Loose(Case.Text), Case.Loose);
    }
}

TEST(Text1252, CapitalsOfAccentedLetters) {
    EXPECT_EQ(Upper_1252(std::string_view("abc z09_\xE9\xFE\x9C\x9A\x9E\xFF")),
              "ABC Z09_\xC9\xDE\x8C\x8A\x8E\x9F");
    const std::string_view Without = "\xDF\xF7\xD7\x83\xB5\xAA";  // no capital in the code page
    EXPECT_EQ(Upper_1252(Without), Without);
    EXPECT_TRUE(Equal_No_Case("For\xEAt", "FOR\xCAT"));
    EXPECT_FALSE(Equal_No_Case("Foret", "For\xEAt"));
    EXPECT_FALSE(Equal_No_Case("ab", "abc"));
}

TEST(Text1252, TrimTakesBlanksAndTabsOnly) {
    EXPECT_EQ(Trim(" \t a b\t "), "a b");
    EXPECT_EQ(Trim(" \t"), "");
    EXPECT_EQ(Trim("\xA0x\r"), "\xA0x\r");
}
