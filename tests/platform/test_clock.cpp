// tests/platform/test_clock.cpp - the present time, and the time that builds ask for.
#include "platform/clock.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <ctime>

#include "support/environment.h"
#include "support/rows.h"

TEST(Clock, SourceDateEpochIsUtc) {
    const Environment_Scope Zone("TZ", "America/New_York");
    Expect_Rows("clock", {{"Date_Time_Text", [](const Row_Cells& C) {
                               const Environment_Scope Epoch("SOURCE_DATE_EPOCH", C[0]);
                               return Date_Time_Text();
                           }}});
}

TEST(Clock, LocalTimeWhenNoWholeNumberIsAsked) {
    const Environment_Scope Zone("TZ", "XYZ-20");  // no place on earth is 20 hours ahead
    for (const char* Epoch : {"", "yesterday", "12.5", "12 ", "-1", "253402300800", "1e9"}) {
        const Environment_Scope Scope("SOURCE_DATE_EPOCH", Epoch);
        const auto Now = [] {
            const std::time_t Time = std::time(nullptr);
            char Text[40];
            std::strftime(Text, sizeof Text, "%Y-%m-%d %H:%M:%S", std::localtime(&Time));
            return std::string(Text);
        };
        const std::string Before = Now(), Said = Date_Time_Text();
        EXPECT_TRUE(Before <= Said && Said <= Now()) << Epoch << ": " << Said;
    }
}
