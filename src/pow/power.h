// What the powers share: how they detect their rare lanes, and how they treat the exponent.
#pragma once

#include "numeric/split.h"

namespace lanemath {

// The base of every power: its signature and the scalar routine for its rare lanes.
template <class Signature, auto Routine>
struct power {
  using signature = Signature;
  static constexpr auto rare = Routine;
};

// The value of an exponent, and the same in two parts whose products with short numbers are exact.
template <class V>
struct exponent_parts {
  V value, hi, lo;
};
template <class V>
LANEMATH_INLINE exponent_parts<V> exponent_of(V y) {
  const auto [hi, lo] = split(y);
  return {y, hi, lo};
}
template <class T, int W>
LANEMATH_INLINE exponent_parts<lanes<T, W>> reciprocal_exponent(const lanes<T, W>& y) {
  constexpr T one = one_v<T>;
  const auto value = one / y;
  const auto hi = high_part(value);
  const auto d = one - y * hi;
  return {value, hi, d * (d + one) * hi};
}

// Patterns of floats that the kernels do not serve: all but the positive normal numbers, and the largest of these.
template <int W>
LANEMATH_INLINE auto beyond_plain(const lanes<std::int32_t, W>& pattern) {
  return outside(pattern, 0x00800000, 0x7F7FFFFE);
}

constexpr std::int32_t LARGEST = 0x7F7FFFFF;  // infinities and NaNs are above it, and doubles from 2^1017

// The sign bit of x where n is odd, else 0.
template <int W>
LANEMATH_INLINE auto odd_sign(const lanes<std::int32_t, W>& x, const lanes<std::int32_t, W>& n) {
  return x & (n << 31);
}
// Lanes in which x has its sign bit set and n is even: they have no real root.
template <int W>
LANEMATH_INLINE auto even_root_of_negative(const lanes<std::int32_t, W>& x, const lanes<std::int32_t, W>& n) {
  return (x & ~(n << 31)) >> 31;
}

// y with a sign bit, given in the top word, set as well.
template <int W>
LANEMATH_INLINE auto with_sign(const lanes<float, W>& y, const lanes<std::int32_t, W>& sign) {
  return from_bits(bits(y) | sign);
}
template <int W>
LANEMATH_INLINE auto with_sign(const lanes<double, W>& y, const lanes<std::int32_t, W>& sign) {
  return from_bits(bits(y) | (widen(sign) << 32));
}

}  // namespace lanemath
