// platform/clock.cpp - the date and time as text.
#include "platform/clock.h"

#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <optional>

#include "platform/system.h"

namespace {

std::string Text_Of(int Year, int Month, int Day, int Hour, int Minute, int Second) {
    char Text[96];
    std::snprintf(Text, sizeof Text, "%04d-%02d-%02d %02d:%02d:%02d", Year, Month, Day, Hour,
                  Minute, Second);
    return Text;
}

// Seconds since 1970 that SOURCE_DATE_EPOCH asks for, within years of four digits.
std::optional<std::int64_t> Wanted_Time() {
    const std::optional<std::string> Text = Env_Text("SOURCE_DATE_EPOCH");
    if (!Text) return std::nullopt;
    std::int64_t Seconds = 0;
    const char* End = Text->data() + Text->size();
    const auto [Stop, Error] = std::from_chars(Text->data(), End, Seconds);
    constexpr std::int64_t Year_10000 = 253402300800;
    if (Error != std::errc{} || Stop != End || Seconds < 0 || Seconds >= Year_10000)
        return std::nullopt;
    return Seconds;
}

std::string Utc_Text(std::int64_t Seconds) {
    using namespace std::chrono;
    const sys_seconds Time{seconds{Seconds}};
    const sys_days Day = floor<days>(Time);
    const year_month_day Date{Day};
    const hh_mm_ss Clock{Time - Day};
    return Text_Of(static_cast<int>(Date.year()), static_cast<int>(unsigned{Date.month()}),
                   static_cast<int>(unsigned{Date.day()}), static_cast<int>(Clock.hours().count()),
                   static_cast<int>(Clock.minutes().count()),
                   static_cast<int>(Clock.seconds().count()));
}

}  // namespace

std::string Date_Time_Text() {
    if (const auto Seconds = Wanted_Time()) return Utc_Text(*Seconds);
    const std::tm Now = Local_Time(std::time(nullptr));
    return Text_Of(Now.tm_year + 1900, Now.tm_mon + 1, Now.tm_mday, Now.tm_hour, Now.tm_min,
                   Now.tm_sec);
}
