// platform/file_facts.cpp - size and time of a file.
#include "platform/file_facts.h"

#include <array>
#include <chrono>
#include <ctime>

#include "platform/paths.h"
#include "platform/system.h"

namespace fs = std::filesystem;

namespace {

std::string Time_Text(fs::file_time_type At) {
    using namespace std::chrono;
    const std::tm Local = Local_Time(
        system_clock::to_time_t(time_point_cast<system_clock::duration>(file_clock::to_sys(At))));
    std::array<char, 32> Text{};
    return {Text.data(), std::strftime(Text.data(), Text.size(), "%Y-%m-%d %H:%M:%S", &Local)};
}

}  // namespace

std::optional<File_Facts> File_Look(std::string_view Path) {
    const auto Native = Native_Path(Path);
    std::error_code Error;
    if (!Native || !fs::is_regular_file(*Native, Error)) return std::nullopt;
    const std::uintmax_t Size = fs::file_size(*Native, Error);
    if (Error) return std::nullopt;
    const fs::file_time_type At = fs::last_write_time(*Native, Error);
    if (Error) return std::nullopt;
    return File_Facts{.Size = Size, .Time = Time_Text(At)};
}
