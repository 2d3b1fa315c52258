// tests/platform/posix/test_clock.cpp - the clock, and the time that builds ask for.
#include <gtest/gtest.h>

#include <ctime>
#include <regex>

#include "platform/clock.h"
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

TEST(Clock, LocalTimeWhenNoWholeNumberIsAsked) {
    const Environment_Scope Zone("TZ", "XYZ-20");  // no place on earth is 20 hours ahead
    tzset();
    for (const char* Epoch : {"", "yesterday", "12.5", "12 ", "-1", "253402300800", "1e9"}) {
        const Environment_Scope Scope("SOURCE_DATE_EPOCH", Epoch);
        const std::time_t Before = std::time(nullptr);
        const std::string Text = Date_Time_Text();
        ASSERT_TRUE(std::regex_match(Text, std::regex(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d)")))
            << Text;
        std::tm Parts{};
        ASSERT_NE(strptime(Text.c_str(), "%Y-%m-%d %H:%M:%S", &Parts), nullptr);
        const std::time_t Said = timegm(&Parts) - std::time_t{20} * 3600;
        EXPECT_GE(Said, Before) << Epoch;
        EXPECT_LE(Said, std::time(nullptr)) << Epoch;
    }
}
