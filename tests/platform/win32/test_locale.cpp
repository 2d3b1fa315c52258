// tests/platform/win32/test_locale.cpp - the language of the user's settings.
#include "platform/locale.h"

#include <gtest/gtest.h>

TEST(Locale, TheLanguageIsTwoSmallLetters) {
    const std::string Language = System_Language();
    ASSERT_EQ(Language.size(), 2U);
    for (const char C : Language) EXPECT_TRUE('a' <= C && C <= 'z') << Language;
}
