// core/numbers.h - the number types of the model and the roundings between them.
//
// The widths are real limits of the file format and of the simulator's tools. A value that
// does not fit is refused where it enters the program; nothing wraps.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

using Int = std::int16_t;
using Long = std::int32_t;
using Byte = std::uint8_t;
using Single = float;
using Double = double;

static_assert(std::numeric_limits<Double>::is_iec559 && std::numeric_limits<Single>::is_iec559);

namespace detail {

// The nearest value of T to an X that is whole already; not a number counts as 0.
template <typename T>
T Clamp_Whole(Double X) {
    constexpr Double Lowest = std::numeric_limits<T>::min();
    constexpr Double Highest = std::numeric_limits<T>::max();
    if (!(X > Lowest)) return X == X ? std::numeric_limits<T>::min() : T{0};
    if (X > Highest) return std::numeric_limits<T>::max();
    return static_cast<T>(X);
}

}  // namespace detail

/// X cut toward zero: -2.9 gives -2. Beyond a Long the nearest Long; not a number gives 0.
inline Long Fix_Lng(Double X) {
    return detail::Clamp_Whole<Long>(std::trunc(X));
}

/// X rounded to the nearest whole number, a half to the even neighbour: 2.5 gives 2, 3.5
/// gives 4. Beyond a Long the nearest Long; not a number gives 0. Needs the rounding mode
/// that every program starts with.
inline Long Round_Lng(Double X) {
    return detail::Clamp_Whole<Long>(std::nearbyint(X));
}

/// The same into an Int.
inline Int Round_Int(Double X) {
    return detail::Clamp_Whole<Int>(std::nearbyint(X));
}
