// tests/platform/win32/test_clock.cpp - local time as the system has it.
#include "platform/clock.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>

#include "support/environment.h"

namespace {

std::string System_Text() {
    SYSTEMTIME Now{};
    GetLocalTime(&Now);
    char Text[64];
    std::snprintf(Text, sizeof Text, "%04u-%02u-%02u %02u:%02u:%02u", unsigned{Now.wYear},
                  unsigned{Now.wMonth}, unsigned{Now.wDay}, unsigned{Now.wHour},
                  unsigned{Now.wMinute}, unsigned{Now.wSecond});
    return Text;
}

}  // namespace

TEST(Clock, LocalTimeWhenNoWholeNumberIsAsked) {
    for (const char* Epoch : {"yesterday", "12.5", "-1", "253402300800"}) {
        const Environment_Scope Scope("SOURCE_DATE_EPOCH", Epoch);
        const std::string Before = System_Text(), Said = Date_Time_Text();
        EXPECT_GE(Said, Before) << Epoch;
        EXPECT_LE(Said, System_Text()) << Epoch;
    }
}
