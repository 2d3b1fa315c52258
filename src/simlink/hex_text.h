// simlink/hex_text.h - bytes written as pairs of hexadecimal digits.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "core/numbers.h"

/// The most bytes that an answer of the simulator can hold.
inline constexpr std::size_t Most_Hex_Bytes = 255;

/// The bytes in their order, at most Most_Hex_Bytes; a last odd character does not count.
/// Nothing when a character of a pair is no hexadecimal digit.
std::optional<std::vector<Byte>> Hex_Bytes(std::string_view Text);
