// tests/support/golden.cpp - comparing and accepting.
#include "support/golden.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

std::string Line_At(std::string_view Text, std::size_t Pos) {
    const std::size_t Before = Pos == 0 ? std::string_view::npos : Text.rfind('\n', Pos - 1);
    const std::size_t First = Before == std::string_view::npos ? 0 : Before + 1;
    return std::string(Text.substr(First, Text.find('\n', Pos) - First));
}

}  // namespace

testing::AssertionResult Equals_Golden(std::string_view Name, std::string_view Text) {
    return Equals_File(std::filesystem::path(TEST_DATA_DIR) / "golden" / std::string(Name), Text);
}

testing::AssertionResult Equals_File(const std::filesystem::path& File, std::string_view Text) {
    const std::string Name = File.filename().string();
    if (std::getenv("TERRAFOLD_ACCEPT") != nullptr) {
        std::filesystem::create_directories(File.parent_path());
        std::ofstream(File, std::ios::binary) << Text;
        return testing::AssertionSuccess();
    }
    std::ifstream In(File, std::ios::binary);
    if (!In) return testing::AssertionFailure() << "no golden file " << Name;
    const std::string Wanted{std::istreambuf_iterator<char>(In), {}};
    if (Wanted == Text) return testing::AssertionSuccess();
    const auto Differ = std::mismatch(Wanted.begin(), Wanted.end(), Text.begin(), Text.end());
    const auto Pos = static_cast<std::size_t>(Differ.first - Wanted.begin());
    return testing::AssertionFailure()
           << Name << " differs in line " << std::count(Wanted.begin(), Differ.first, '\n') + 1
           << "\n  accepted: " << Line_At(Wanted, Pos) << "\n  now:      " << Line_At(Text, Pos);
}
