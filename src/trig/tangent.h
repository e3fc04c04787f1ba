// What the tangents of x and of pi x share: the last steps, from the remainder's tangent in two parts.
#pragma once

#include <bit>

#include "numeric/split.h"
#include "trig/trigonometric.h"

namespace lanemath {

// c[First] + c[First + 1] z + ..., `Count` terms, by halves: one chain of so many steps would take longer than the
// arithmetic. powers[k] is z to the power 2^k.
template <std::size_t First, std::size_t Count, class V, class T, std::size_t Size>
LANEMATH_INLINE V terms(const V (&powers)[4], const T (&c)[Size]) {
  if constexpr (Count == 1) {
    return V(c[First]);
  } else {
    constexpr std::size_t half = std::bit_ceil(Count) / 2;
    return terms<First, half>(powers, c) +
           powers[std::countr_zero(half)] * terms<First + half, Count - half>(powers, c);
  }
}
template <class V, class T, std::size_t Size>
LANEMATH_INLINE V polynomial_by_halves(const V& z, const T (&c)[Size]) {
  const V square = z * z, fourth = square * square;
  return terms<0, Size>({z, square, fourth, fourth * fourth}, c);
}

// 1 / (high + low), |low| far below |high|: the upper part of the quotient plus a correction.
template <class V>
LANEMATH_INLINE V reciprocal(const V& high, const V& low) {
  using T = typename V::value_type;
  const V t = high + low, below = (high - t) + low;
  const V y = one_v<T> / t;
  constexpr int half = sizeof(T) == 4 ? 12 : 27;
  const V yh = without_low_bits(y, half), th = without_low_bits(t, half);
  const V rest = (one_v<T> - yh * th) - yh * ((t - th) + below);
  return yh + y * rest;
}

}  // namespace lanemath
