// tests/platform/posix/test_locale.cpp - the variable that decides on the language.
#include "platform/locale.h"

#include <gtest/gtest.h>

#include "support/environment.h"

TEST(Locale, TheFirstVariableThatSaysSomethingDecides) {
    const Environment_Scope All("LC_ALL", ""), Messages("LC_MESSAGES"), Lang("LANG", "fr_CA.UTF-8");
    EXPECT_EQ(System_Language(), "fr") << "an empty one says nothing";
    const Environment_Scope Other("LC_MESSAGES", "de_DE@euro");
    EXPECT_EQ(System_Language(), "de");
    for (const char* Plain : {"C", "POSIX", "C.UTF-8"}) {
        const Environment_Scope None("LC_ALL", Plain);
        EXPECT_EQ(System_Language(), "") << Plain;
    }
}
