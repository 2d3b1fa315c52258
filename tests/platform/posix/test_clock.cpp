// tests/platform/posix/test_clock.cpp - local time.
#include <gtest/gtest.h>

#include <ctime>
#include <regex>

#include "platform/clock.h"
#include "support/environment.h"

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
