// The gamma routine of both precisions.
#pragma once

#include "special/gamma.h"

namespace lanemath::special {

// Gamma of one lane. `Lane` gives the arithmetic type (`real`), the rows of its products of quadratics and how many
// integers each row serves, gamma between 1 and 2 (`below_2`), sin(pi t) / pi (`sine`), and the ends of the range.
template <class Lane, class T>
status gamma(T x, T& y) {
  using real = typename Lane::real;
  constexpr T two = 2;
  if (!is_finite(x)) {
    const bool minus_infinity = x < zero_v<T>;
    y = minus_infinity ? default_nan<T>() : x + x;
    return minus_infinity ? status::domain : status::ordinary;
  }
  const T a = std::fabs(x);
  if (a == zero_v<T>) {
    y = pole(std::copysign(one_v<T>, x));
    return status::singular;
  }
  if (magnitude_pattern(x) <= pattern_of(Lane::tiny)) {
    y = overflowed(x);
    return status::overflow;
  }

  // The integer part by a rounding constant, used even where it is no longer exact.
  const T nearest = nearest_integer(a);
  const T n = nearest > a ? nearest - one_v<T> : nearest;
  const auto whole = a < all_whole<T> ? std::int64_t(n) : 0;
  const bool negative = x < zero_v<T>;
  if (negative) {
    if (a >= all_whole<T> || n == a) {
      y = default_nan<T>();
      return status::domain;
    }
    if (x < Lane::least) {
      y = underflowed(whole % 2 != 0 ? one_v<T> : -one_v<T>);
      return Lane::of_underflow;
    }
  } else if (x >= Lane::overflow) {
    y = overflowed(x);
    return status::overflow;
  }

  const real magnitude = a;
  constexpr real one = 1;
  real product, walk = one;
  if (a < two) {
    product = Lane::below_2(a < one_v<T> ? one + magnitude : magnitude);
  } else {
    const int row = int(whole) / Lane::stretch;
    const int steps = int(whole) % Lane::stretch - (row == 0 ? 2 : 0);
    product = product_at(Lane::rows[row], real(a - n));
    double factor = a;
#pragma GCC unroll 1
    for (int q = 1; q <= steps; ++q) walk *= factor -= 1.0;
  }
  if (!negative) {
    y = T(a < one_v<T> ? product / magnitude : product * walk);
    return status::ordinary;
  }
  const real sine = Lane::sine(std::fabs(a - nearest));
  real reflected = one / ((a < one_v<T> ? sine : magnitude * sine) * product * walk);
  if (x < Lane::last_row) reflected *= Lane::last_row_scale;
  y = T(whole % 2 != 0 ? reflected : -reflected);
  return status::ordinary;
}

}  // namespace lanemath::special
