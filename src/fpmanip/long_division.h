// What fmod, remainder and remquo share: the kernel's tests, and the long division that their rare lanes go through.
#pragma once

#include "numeric/fields.h"

namespace lanemath {

// A divisor y is taken apart into its high bits and the rest, so that the products with a quotient of few bits are
// exact. The quotient is that small where the exponents differ by at most `limit`, and neither the products nor the
// remainder leave the normal numbers where the top word of |y| lies from `base` to `base` + `top`. Both are written
// for one signed comparison of the wrapped difference.
template <class T>
struct divisor_split {
  using pattern = typename format<T>::signed_pattern;
  static constexpr pattern high_bits = sizeof(T) == 4 ? pattern(0xFFFFF000) : pattern(0xFFFFFFFFF8000000);
  static constexpr int limit = sizeof(T) == 4 ? 11 : 25;
};

template <class T, std::uint32_t Base, std::uint32_t Top, class V>
LANEMATH_INLINE auto rare_division(V x, V y) {
  using f = format<T>;
  const auto apart = (top_word(x) & f::top_exponent) - (top_word(y) & f::top_exponent);
  const auto in_window = (top_word(y) & 0x7FFFFFFF) - std::int32_t(Base);
  return (apart > divisor_split<T>::limit << f::top_shift) | (in_window > std::int32_t(Top));
}

// A finite number other than zero as significand * 2^exponent, the implicit bit of the significand set.
template <class T>
struct unpacked {
  typename format<T>::pattern significand;
  int exponent;

  explicit unpacked(T x) : significand(magnitude_pattern(x) & format<T>::fraction), exponent(exponent_field(x)) {
    if (exponent == 0) {
      exponent = format<T>::least_exponent;
      normalise();
    } else {
      significand |= format<T>::implicit_bit;
      exponent -= format<T>::bias;
    }
  }

  void normalise() {
    for (; significand < format<T>::implicit_bit; significand *= 2) --exponent;
  }

  // The magnitude; a remainder has no bits below a denormal's last.
  T packed() const {
    using f = format<T>;
    if (exponent >= f::least_exponent)
      return value_of<T>((significand & f::fraction) | typename f::pattern(exponent + f::bias) << f::fraction_bits);
    return value_of<T>(significand >> (f::least_exponent - exponent));
  }
};

// |x| = quotient * |y| + remainder, for |x| >= |y|, by one subtraction a bit.
template <class T>
struct long_division {
  bool exact;
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
    exact = m == 0;
    a.significand = m / 2;
    a.exponent = b.exponent;
    if (!exact) a.normalise();
    remainder = exact ? zero_v<T> : a.packed();
  }
};

}  // namespace lanemath
