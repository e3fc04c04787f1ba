// What the roots and reciprocals share: tests for arguments that their estimates do not serve, and the pieces that
// their scalar routines are made of.
#pragma once

#include "numeric/double_pair.h"
#include "numeric/fields.h"

namespace lanemath {

// Lanes whose word is not within [low, high] as an unsigned number: one subtraction and one signed comparison.
template <int W>
LANEMATH_INLINE auto outside(const lanes<std::int32_t, W>& word, std::uint32_t low, std::uint32_t high) {
  constexpr std::uint32_t sign = 0x80000000;
  return word - std::int32_t(low ^ sign) > std::int32_t((high - low) ^ sign);
}

// All but the positive normal floats: zeros, denormals, negative values, +infinity and NaNs.
template <int W>
LANEMATH_INLINE auto not_positive_normal(const lanes<float, W>& x) {
  return outside(bits(x), 0x00800000, 0x7F7FFFFF);
}

// The exponent of a normal number, and the number with the exponent of 1.
struct binary_parts {
  std::int32_t exponent;
  double significand;
  explicit binary_parts(double x) {
    exponent = exponent_field(x) - format<double>::bias;
    significand = value_of<double>((pattern_of(x) & format<double>::fraction) | pattern_of(1.0));
  }
};

// v - y^2 without an error, y being near the root of v.
inline double residual_of_square(double v, double y) {
  const auto [hi, lo] = split(y);
  return ((v - hi * hi) - 2.0 * hi * lo) - lo * lo;
}

}  // namespace lanemath
