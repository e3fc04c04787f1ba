// What the powers share: how they tell their rare lanes, and what they do with the exponent.
#pragma once

#include "numeric/split.h"

namespace lanemath {

// What every power inherits: its signature and the scalar routine for its rare lanes.
template <class Signature, auto Routine>
struct power {
  using signature = Signature;
  static constexpr auto rare = Routine;
};

// An exponent's value, and the same in two parts whose products with short numbers are exact.
template <class V>
struct exponent_parts {
  V value, hi, lo;
};
template <class V>
LANEMATH_INLINE exponent_parts<V> exponent_of(V y) {
  const auto [hi, lo] = split(y);
  return {y, hi, lo};
}
// The reciprocal of y as an exponent.
template <class T, int W>
LANEMATH_INLINE exponent_parts<lanes<T, W>> reciprocal_exponent(const lanes<T, W>& y) {
  constexpr T one = one_v<T>;
  const auto value = one / y;
  const auto hi = high_part(value);
  const auto d = one - y * hi;
  return {value, hi, d * (d + one) * hi};
}

// Patterns of floats that the kernels do not serve: those of no positive normal number, and of the largest one.
template <int W>
LANEMATH_INLINE auto beyond_plain(const lanes<std::int32_t, W>& pattern) {
  return outside(pattern, 0x00800000, 0x7F7FFFFE);
}

constexpr std::int32_t LARGEST = 0x7F7FFFFF;  // infinities and NaNs are above, and doubles from 2^1017

// The bits of x that n lets through to the result's sign: all ones below a set sign bit where n is odd.
template <int W>
LANEMATH_INLINE auto odd_sign(const lanes<std::int32_t, W>& x, const lanes<std::int32_t, W>& n) {
  return x & (n << 31);
}
// Lanes with the sign of x set and n even, which have no real root.
template <int W>
LANEMATH_INLINE auto even_root_of_negative(const lanes<std::int32_t, W>& x, const lanes<std::int32_t, W>& n) {
  return (x & ~(n << 31)) >> 31;
}

// y with a sign bit, given in the upper word, set as well.
template <int W>
LANEMATH_INLINE auto with_sign(const lanes<float, W>& y, const lanes<std::int32_t, W>& sign) {
  return from_bits(bits(y) | sign);
}
template <int W>
LANEMATH_INLINE auto with_sign(const lanes<double, W>& y, const lanes<std::int32_t, W>& sign) {
  return from_bits(bits(y) | (widen(sign) << 32));
}

}  // namespace lanemath
