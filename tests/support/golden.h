// tests/support/golden.h - generated text compared byte for byte with an accepted file.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string_view>

/// Whether Text equals tests/data/golden/Name; the failure tells the first line that differs.
/// With TERRAFOLD_ACCEPT set in the environment the file is replaced by Text instead:
/// tests/accept.sh does that, and the diff is reviewed like code.
testing::AssertionResult Equals_Golden(std::string_view Name, std::string_view Text);

/// The same with an accepted file anywhere.
testing::AssertionResult Equals_File(const std::filesystem::path& File, std::string_view Text);
