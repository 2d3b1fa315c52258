// platform/file_facts.h - what a directory tells of a file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

struct File_Facts {
    std::uint64_t Size = 0;  // bytes
    std::string Time;        // of the last change, local: "YYYY-MM-DD HH:MM:SS"
};

/// Nothing where no file is. Path is in the program's form.
std::optional<File_Facts> File_Look(std::string_view Path);
