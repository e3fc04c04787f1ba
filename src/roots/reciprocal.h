// What division and reciprocal share.
#pragma once

#include "frame/frame.h"

namespace lanemath {

// Zeros, denormals and magnitudes above the bound, which is of the pattern less that of the least normal.
template <int W>
LANEMATH_INLINE auto reciprocal_beyond(const lanes<float, W>& x, std::int32_t bound) {
  // Opaque: a compiler that knows the sign bit to be clear makes two instructions of the comparison.
  return opaque((bits(x) - 0x00800000) & 0x7FFFFFFF) > bound;
}

// Lanes that are a zero once the ignored bits are cleared: of the sign and the significand, zeros and denormals.
template <int W>
LANEMATH_INLINE auto zero_without(const lanes<double, W>& x, std::uint64_t ignored) {
  return from_bits(bits(x) & std::int64_t(~ignored)) == 0.0;
}

}  // namespace lanemath
