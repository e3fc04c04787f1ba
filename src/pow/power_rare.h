// The scalar routines of the powers in both precisions: the special cases, in the order in which they take precedence.
// All others have a nonzero finite base and a finite exponent, and go to finite_power of the precision.
//
// Infinities, zeros and NaNs are made by arithmetic.
#pragma once

#include "numeric/exceptional.h"

namespace lanemath::powers {

// The NaN that x + y gives: that of x if x is a NaN.
template <class T>
T nan_sum(T x, T y) {
  return quieted(is_nan(x) ? x : y);
}

enum class parity { none, odd, even };  // none: no integer, or infinite

template <class T>
parity parity_of(T y) {
  using of = format<T>;
  const int exponent = exponent_field(y) - of::bias;
  if (exponent < 0 || exponent > of::bias) return parity::none;
  if (exponent > of::fraction_bits) return parity::even;
  const auto shifted = magnitude_pattern(y) << exponent;
  if (shifted & of::fraction) return parity::none;
  // At exponent 0 this bit is the lowest one of the exponent field, which is set: 1 is odd.
  return shifted & of::implicit_bit ? parity::odd : parity::even;
}
inline parity parity_of(std::int32_t n) { return n & 1 ? parity::odd : parity::even; }

// What pow and pown share: everything but the type of the exponent. `of_finite` also takes the sign of the result.
template <class T, class Y, class F>
status power_lane(T x, Y exponent, T& z, F of_finite) {
  const T y = T(exponent);
  if (x == 0) x = x + x;
  const parity kind = parity_of(exponent);
  const bool negative = std::signbit(x) && kind == parity::odd;
  const T sign = negative ? -one_v<T> : one_v<T>;
  if (exponent == 0 || x == 1) {
    z = 1;
  } else if (is_nan(x) || is_nan(y)) {
    z = nan_sum(x, y);
  } else if (x == 0) {
    if (y < 0) {
      z = sign / square(x);
      return status::domain;
    }
    z = sign * square(x);
  } else if (x == -1 && (kind != parity::none || !is_finite(y))) {
    z = kind == parity::odd ? -one_v<T> : one_v<T>;
  } else if (is_finite(x) && is_finite(y)) {
    if (std::signbit(x) && kind == parity::none) {
      z = default_nan<T>();
      return status::domain;
    }
    z = of_finite(x, sign);
  } else if (exponent_field(x) >= format<T>::bias) {
    z = y > 0 ? y * square(x) * sign : negative ? -zero_v<T> : zero_v<T>;
  } else {
    z = y > 0 ? zero_v<T> : square(y);
  }
  return status::ordinary;
}

// powr: no base below zero, and a NaN wherever the limit depends on the path to it.
template <class T, class F>
status powr_lane(T x, T y, T& z, F of_finite) {
  constexpr T infinity = std::numeric_limits<T>::infinity();
  if (is_nan(x) || (x == infinity && y == 0)) {
    z = default_nan<T>();
  } else if (x == -infinity) {
    z = default_nan<T>();
    return status::domain;
  } else if (x == 0 && !is_nan(y)) {
    z = y == 0 ? default_nan<T>() : y > 0 ? zero_v<T> : pole<T>();
  } else if (x == 1) {
    z = is_finite(y) ? one_v<T> : default_nan<T>();
  } else if (std::signbit(x)) {
    z = default_nan<T>();
    return status::domain;
  } else if (y == 0) {
    z = 1;
  } else if (is_nan(y)) {
    z = quieted(y);
  } else if (is_finite(x) && is_finite(y)) {
    z = of_finite(x);
  } else if (exponent_field(x) >= format<T>::bias) {
    z = y > 0 ? y * square(x) : zero_v<T>;
  } else {
    z = y > 0 ? zero_v<T> : square(y);
  }
  return status::ordinary;
}

// rootn. The root of a negative number is that of its magnitude with the sign put back at the end.
template <class T, class F>
status rootn_lane(T x, std::int32_t n, T& z, F of_finite) {
  const bool odd = n & 1;
  if (n == 0) {
    z = default_nan<T>();
  } else if (x == 0 && !odd) {
    z = n < 0 ? pole<T>() : zero_v<T>;
  } else if (x == 0 || (odd && !is_nan(x) && !is_finite(x))) {
    z = n < 0 ? one_v<T> / x : x;
  } else if (std::signbit(x) && !odd) {
    z = default_nan<T>();
  } else if (is_nan(x)) {
    z = quieted(x);
  } else {
    const T sign = std::signbit(x) ? -one_v<T> : one_v<T>;
    x = std::fabs(x);
    if (x == 1)  // never reached: the kernels serve it
      z = sign;
    else if (is_finite(x))
      z = of_finite(x) * sign;
    else
      z = n > 0 ? x : zero_v<T>;
  }
  return status::ordinary;
}

}  // namespace lanemath::powers
