// tests/fuzz/scratch.h - what the fuzzers share: a place for files, and a claim.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "platform/paths.h"

inline void Need(bool Holds) {
    if (!Holds) std::abort();
}

/// A path of this process alone, in memory where the system has such a directory, for speed.
inline std::filesystem::path Scratch_Path(const std::string& End) {
    std::filesystem::path Dir = "/dev/shm";
    if (!std::filesystem::is_directory(Dir)) Dir = std::filesystem::temp_directory_path();
    return Dir / ("terrafold_fuzz_" + std::to_string(std::random_device{}()) + End);
}

/// Writes Data there and returns the path in the program's form.
inline std::string Scratch_File(const std::uint8_t* Data, std::size_t Size) {
    static const std::filesystem::path File = Scratch_Path(".in");
    std::ofstream Out(File, std::ios::binary);
    Out.write(reinterpret_cast<const char*>(Data), static_cast<std::streamsize>(Size));
    return Program_Path(File).value();
}
