// What division and reciprocals share.
#pragma once

#include "frame/frame.h"

namespace lanemath {

// Marks zeros, denormals and magnitudes above a bound. The bound is a pattern minus that of the least normal number.
template <int W>
LANEMATH_INLINE auto reciprocal_beyond(const lanes<float, W>& x, std::int32_t bound) {
  // Opaque: see magnitude_above.
  return opaque((bits(x) - 0x00800000) & 0x7FFFFFFF) > bound;
}

// Lanes that are zero once the ignored bits are cleared. Ignoring sign and significand gives zeros and denormals.
template <int W>
LANEMATH_INLINE auto zero_without(const lanes<double, W>& x, std::uint64_t ignored) {
  return from_bits(bits(x) & std::int64_t(~ignored)) == 0.0;
}

}  // namespace lanemath
