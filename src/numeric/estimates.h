// The processor's estimates for doubles, and its square root of a scalar.
#pragma once

#include "frame/frame.h"

namespace lanemath {

// Computed through floats: a value outside the range of floats gives zero or infinity.
template <int W>
LANEMATH_INLINE lanes<double, W> reciprocal_estimate(const lanes<double, W>& x) {
  return convert<double>(reciprocal_estimate(convert<float>(x)));
}
template <int W>
LANEMATH_INLINE lanes<double, W> reciprocal_root_estimate(const lanes<double, W>& x) {
  return convert<double>(reciprocal_root_estimate(convert<float>(x)));
}

// For normal numbers of any size: estimates the leading bits as a float in [1, 2), and sets the exponent by integers.
template <int W>
LANEMATH_INLINE lanes<double, W> full_range_reciprocal_estimate(const lanes<double, W>& x) {
  const auto top = upper(x);
  const auto leading = from_bits(((top << 3) & 0x007FFFFF) | 0x3F800000);
  return from_upper((bits(reciprocal_estimate(leading)) >> 3) + 0x77F00000 - (top & std::int32_t(0xFFF00000)));
}

inline double scalar_square_root(double x) { return square_root(lanes<double, 1>(x)).g[0]; }

}  // namespace lanemath
