// reference/compare.h - the program's lists beside those of the plain rules.
#pragma once

#include <gtest/gtest.h>

#include "reference/plain.h"
#include "support/test_host.h"

namespace reference {

/// Whether the program's work lists hold this list, to the last bit.
testing::AssertionResult Same_As_Work_Lists(const Polys& List);

/// The boxes shown, a line each: the number of a message, a blank and its added text, or the text
/// of a plain box.
std::string Messages(const Test_Host& Host);

/// The seeds of a differential run. TERRAFOLD_ROUNDS in the environment asks for another number
/// of them, TERRAFOLD_SEED for another first one.
std::vector<std::uint64_t> Seeds(std::uint64_t Rounds);

/// The points of a polygon as "X,Y X,Y"; a point's Tag is marked "=" when wide, "+" when cut.
std::string Text_Of(const Poly& W);
/// All of them, or what the program's work lists hold, with "; " between.
std::string Text_Of(const Polys& List);

}  // namespace reference
