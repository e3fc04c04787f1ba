// The scalar routines of the powers in both precisions: the special cases, in the order that decides. What is left,
// a finite base that is not zero and a finite exponent, goes to finite_power of the precision.
//
// Infinities, zeros and NaNs are made by arithmetic.
#pragma once

#include <cstdint>
#include <limits>

#include "frame/frame.h"

namespace lanemath::powers {

template <class T>
struct format;
template <>
struct format<float> {
  using pattern = std::uint32_t;
  static constexpr int fraction_bits = 23, bias = 127;
};
template <>
struct format<double> {
  using pattern = std::uint64_t;
  static constexpr int fraction_bits = 52, bias = 1023;
};

template <class T>
auto pattern_of(T v) {
  return std::bit_cast<typename format<T>::pattern>(v);
}
template <class T>
T value_of(typename format<T>::pattern p) {
  return std::bit_cast<T>(p);
}
template <class T>
bool has_sign(T v) {
  return pattern_of(v) >> (8 * sizeof(T) - 1);
}
template <class T>
T without_sign(T v) {
  return value_of<T>(pattern_of(v) & ~(typename format<T>::pattern(1) << (8 * sizeof(T) - 1)));
}
template <class T>
int biased_exponent(T v) {
  return int(pattern_of(without_sign(v)) >> format<T>::fraction_bits);
}
template <class T>
bool is_nan(T v) {
  return v != v;
}
template <class T>
bool is_finite(T v) {
  return biased_exponent(v) <= 2 * format<T>::bias;
}

template <class T>
T square(T v) {
  v = opaque(v);
  return v * v;
}
// The processor's own NaN.
template <class T>
T invalid() {
  const T zero = opaque(T(0));
  return zero / zero;
}
template <class T>
T reciprocal_of(T v) {
  return T(1) / opaque(v);
}
template <class T>
T quieted(T nan) {
  return opaque(nan) + nan;
}
// The NaN of a sum: the first operand's if it is one.
template <class T>
T nan_sum(T x, T y) {
  return quieted(is_nan(x) ? x : y);
}

enum class parity { none, odd, even };  // none: not an integer, or infinite

template <class T>
parity parity_of(T y) {
  using pattern = typename format<T>::pattern;
  constexpr int fraction_bits = format<T>::fraction_bits;
  constexpr pattern unit = pattern(1) << fraction_bits;
  const int exponent = biased_exponent(y) - format<T>::bias;
  if (exponent < 0 || exponent > format<T>::bias) return parity::none;
  if (exponent > fraction_bits) return parity::even;
  const pattern shifted = pattern_of(without_sign(y)) << exponent;
  if (shifted & (unit - 1)) return parity::none;
  // At exponent 0 the bit above the fraction belongs to the exponent of 1, which is odd.
  return shifted & unit ? parity::odd : parity::even;
}
inline parity parity_of(std::int32_t n) { return n & 1 ? parity::odd : parity::even; }

// What pow and pown share: everything but the exponent's own kind. `of_finite` takes the result's sign as well.
template <class T, class Y, class F>
int power_lane(T x, Y exponent, T& z, F of_finite) {
  const T y = T(exponent);
  if (x == 0) x = x + x;
  const parity kind = parity_of(exponent);
  const bool negative = has_sign(x) && kind == parity::odd;
  const T sign = negative ? T(-1) : T(1);
  if (exponent == 0 || x == 1) {
    z = 1;
  } else if (is_nan(x) || is_nan(y)) {
    z = nan_sum(x, y);
  } else if (x == 0) {
    if (y < 0) {
      z = sign / square(x);
      return 1;
    }
    z = sign * square(x);
  } else if (x == -1 && (kind != parity::none || !is_finite(y))) {
    z = kind == parity::odd ? T(-1) : T(1);
  } else if (is_finite(x) && is_finite(y)) {
    if (has_sign(x) && kind == parity::none) {
      z = invalid<T>();
      return 1;
    }
    z = of_finite(x, sign);
  } else if (biased_exponent(x) >= format<T>::bias) {
    z = y > 0 ? y * square(x) * sign : negative ? -T(0) : T(0);
  } else {
    z = y > 0 ? T(0) : square(y);
  }
  return 0;
}

// powr: no base below zero, and a NaN wherever the limit depends on the path.
template <class T, class F>
int powr_lane(T x, T y, T& z, F of_finite) {
  constexpr T infinity = std::numeric_limits<T>::infinity();
  if (is_nan(x) || (x == infinity && y == 0)) {
    z = invalid<T>();
  } else if (x == -infinity) {
    z = invalid<T>();
    return 1;
  } else if (x == 0 && !is_nan(y)) {
    z = y == 0 ? invalid<T>() : y > 0 ? T(0) : reciprocal_of(T(0));
  } else if (x == 1) {
    z = is_finite(y) ? T(1) : invalid<T>();
  } else if (has_sign(x)) {
    z = invalid<T>();
    return 1;
  } else if (y == 0) {
    z = 1;
  } else if (is_nan(y)) {
    z = quieted(y);
  } else if (is_finite(x) && is_finite(y)) {
    z = of_finite(x);
  } else if (biased_exponent(x) >= format<T>::bias) {
    z = y > 0 ? y * square(x) : T(0);
  } else {
    z = y > 0 ? T(0) : square(y);
  }
  return 0;
}

// rootn. A root of a negative number is the root of its magnitude, the sign put back at the end.
template <class T, class F>
int rootn_lane(T x, std::int32_t n, T& z, F of_finite) {
  const bool odd = n & 1;
  if (n == 0) {
    z = invalid<T>();
  } else if (x == 0 && !odd) {
    z = n < 0 ? reciprocal_of(T(0)) : T(0);
  } else if (x == 0 || (odd && !is_nan(x) && !is_finite(x))) {
    z = n < 0 ? reciprocal_of(x) : x;
  } else if (has_sign(x) && !odd) {
    z = invalid<T>();
  } else if (is_nan(x)) {
    z = quieted(x);
  } else {
    const T sign = has_sign(x) ? T(-1) : T(1);
    x = without_sign(x);
    if (x == 1)
      z = sign;
    else if (is_finite(x))
      z = of_finite(x) * sign;
    else
      z = n > 0 ? x : T(0);
  }
  return 0;
}

}  // namespace lanemath::powers
