// platform/wildcard.h - patterns with "*" and "?".
#pragma once

#include <string_view>

/// Whether the whole of Text matches Pattern: "*" stands for any text, "?" for any one
/// character, case is ignored.
bool Wildcard_Match(std::string_view Text, std::string_view Pattern);
