// What the trigonometric kernels of both precisions share.
#pragma once

#include <cstddef>
#include <limits>

#include "trig/reduction.h"

namespace lanemath {

// The lowest bit of a pattern, as a sign.
template <class T, int W>
LANEMATH_INLINE auto parity(const lanes<T, W>& shifted) {
  return bits(shifted) << int(8 * sizeof(T) - 1);
}
template <class T, int W>
LANEMATH_INLINE lanes<T, W> flipped(const lanes<T, W>& x, const lanes<int_of_size<sizeof(T)>, W>& signs) {
  return from_bits(bits(x) ^ signs);
}

// a less n times pi, which comes in pieces of few bits.
template <class V, class T, std::size_t Size>
LANEMATH_INLINE V less_multiples(V a, const V& n, const T (&pieces)[Size], std::size_t first = 0,
                                 std::size_t end = Size) {
  for (std::size_t i = first; i < end; ++i) a = a - n * pieces[i];
  return a;
}

// c[0] + c[1] z + ..., from the highest coefficient down.
template <class V, class T, std::size_t Size>
LANEMATH_INLINE V polynomial(const V& z, const T (&c)[Size]) {
  V p(c[Size - 1]);
  for (std::size_t i = Size - 1; i-- > 0;) p = p * z + c[i];
  return p;
}

// Infinities and NaNs.
template <class T, int W>
LANEMATH_INLINE auto not_finite(const lanes<T, W>& x) {
  constexpr std::int32_t field = sizeof(T) == 4 ? 0x7F800000 : 0x7FF00000;
  lanes<std::int32_t, W> pattern;
  if constexpr (sizeof(T) == 4)
    pattern = bits(x);
  else
    pattern = upper(x);
  return (pattern & field) == field;
}

}  // namespace lanemath
