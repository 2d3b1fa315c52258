// tests/platform/test_clock.cpp - the time that builds ask for.
#include "platform/clock.h"

#include <gtest/gtest.h>

#include "support/environment.h"

TEST(Clock, SourceDateEpochIsUtc) {
    const Environment_Scope Zone("TZ", "America/New_York");
    const struct {
        const char* Epoch;
        const char* Text;
    } Cases[] = {{"0", "1970-01-01 00:00:00"},
                 {"1065225599", "2003-10-03 23:59:59"},
                 {"1709210096", "2024-02-29 12:34:56"},
                 {"253402300799", "9999-12-31 23:59:59"}};
    for (const auto& Case : Cases) {
        const Environment_Scope Epoch("SOURCE_DATE_EPOCH", Case.Epoch);
        EXPECT_EQ(Date_Time_Text(), Case.Text);
    }
}
