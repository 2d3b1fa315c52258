// geometry/patience.h - when a search gives up its usual way for one that takes longer to begin.
#pragma once

#include <cstdint>

/// The usual ways look at what lies near by its boxes: quick, unless so much lies over each other
/// that they grow with the square of a drawing. The others do not, whatever is drawn, and lead to
/// the same results. This is how many steps of the usual way each edge or outline stands for; tests
/// take it away.
inline std::int64_t Search_Patience = 64;
