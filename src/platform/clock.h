// platform/clock.h - the present date and time.
#pragma once

#include <string>

/// "YYYY-MM-DD HH:MM:SS" in local time; the time of SOURCE_DATE_EPOCH in UTC when that
/// environment variable is a whole number, so that outputs can be reproduced.
std::string Date_Time_Text();
