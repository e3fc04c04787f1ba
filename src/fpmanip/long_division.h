// What fmod, remainder and remquo share: the rare test of their kernels, and the long division for rare lanes.
#pragma once

#include "numeric/exceptional.h"
#include "numeric/split.h"

namespace lanemath {

// A divisor in two parts whose products with a quotient of few bits are exact.
template <class V>
LANEMATH_INLINE two_part<V> split_divisor(V y) {
  const V high = without_low_bits(y, sizeof(typename V::value_type) == 4 ? 12 : 27);
  return {high, y - high};
}

// The quotient has few bits where the exponents differ by at most `limit`. Neither the products nor the remainder leave
// the normal numbers where the top word of |y| is from `Least` to `Largest`.
template <class T, std::uint32_t Least, std::uint32_t Largest, class V>
LANEMATH_INLINE auto rare_division(V x, V y) {
  using f = format<T>;
  constexpr int limit = sizeof(T) == 4 ? 11 : 25;
  const auto apart = (top_word(x) & f::top_exponent) - (top_word(y) & f::top_exponent);
  return (apart > limit << f::top_shift) | outside(top_word(y) & 0x7FFFFFFF, Least, Largest);
}

// |x| = quotient * |y| + remainder, for |x| >= |y|, by one subtraction per bit.
template <class T>
struct long_division {
  T remainder;                 // of the magnitudes
  std::uint32_t quotient = 0;  // its low 32 bits

  LANEMATH_INLINE long_division(T x, T y) {
    unpacked<T> a(x);
    const unpacked<T> b(y);
    auto m = a.significand;
    const auto subtrahend = b.significand, twice = 2 * subtrahend;
    for (int n = a.exponent - b.exponent + 1; n > 0; --n) {
      const bool fits = m >= subtrahend;
      m = 2 * m - (fits ? twice : 0);
      quotient = 2 * quotient + fits;
    }
    // The remainder has no bits below the last place of a denormal.
    using f = format<T>;
    remainder = zero_v<T>;
    if (m == 0) return;
    a.significand = m / 2;
    a.exponent = b.exponent;
    a.normalise();
    if (a.exponent >= f::least_exponent)
      remainder = a.with_field(a.exponent + f::bias);
    else
      remainder = value_of<T>(a.significand >> (f::least_exponent - a.exponent));
  }
};

}  // namespace lanemath
