// What the tangents of x and of pi x share: the last steps, from the tangent of the remainder in two parts.
#pragma once

#include "trig/kernel.h"

namespace lanemath {

// c[0] + c[1] z + ... by two chains in z^2, for long polynomials.
template <class V, class T, std::size_t Size>
LANEMATH_INLINE V polynomial_in_two(const V& z, const T (&c)[Size]) {
  const V square = z * z;
  // From the highest coefficient down, and from the one below it.
  V chains[] = {c[Size - 1] * square + c[Size - 3], c[Size - 2] * square + c[Size - 4]};
  for (std::size_t i = Size - 4; i-- > 0;) {
    V& chain = chains[(Size - 1 - i) % 2];
    chain = chain * square + c[i];
  }
  return Size % 2 == 0 ? chains[1] + z * chains[0] : chains[0] + z * chains[1];
}

template <class V>
LANEMATH_INLINE V upper_part(const V& x) {
  if constexpr (sizeof(typename V::value_type) == 4)
    return from_bits(bits(x) & std::int32_t(0xFFFFF000));
  else
    return from_bits(bits(x) & ~std::int64_t(0x7FFFFFF));
}

// 1 / (high + low), |low| far below |high|: the quotient's upper part and a correction.
template <class V>
LANEMATH_INLINE V reciprocal(const V& high, const V& low) {
  using T = typename V::value_type;
  const V t = high + low, below = (high - t) + low;
  const V y = one_v<T> / t;
  const V yh = upper_part(y), th = upper_part(t);
  const V rest = (one_v<T> - yh * th) - yh * ((t - th) + below);
  return yh + y * rest;
}

}  // namespace lanemath
