// What the roots and reciprocals share: tests for arguments that their estimates do not serve, and the pieces that
// their scalar routines are made of.
#pragma once

#include "frame/fields.h"

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

// 2^exponent
inline double power_of_two(std::int32_t exponent) {
  return value_of<double>(std::uint64_t((exponent + 1023) & 2047) << 52);
}

// A number and what the split leaves of it: with 2^27 + 1 both halves have so few bits that their products are exact.
inline two_part<double> split(double x, double by = 0x41A0000002000000_f64) {
  const double c = by * x;
  const double hi = c - (c - x);
  return {hi, x - hi};
}

// v - y^2 without an error, y being near the root of v.
inline double residual_of_square(double v, double y) {
  const auto [hi, lo] = split(y);
  return ((v - hi * hi) - 2.0 * hi * lo) - lo * lo;
}

}  // namespace lanemath
