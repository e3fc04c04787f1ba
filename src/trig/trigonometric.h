// What the trigonometric kernels of both precisions share.
#pragma once

#include <cstddef>
#include <limits>

#include "numeric/constants.h"
#include "numeric/fields.h"
#include "numeric/polynomial.h"
#include "trig/reduction.h"

namespace lanemath {

// The lowest bit of a pattern, as a sign.
template <class T, int W>
LANEMATH_INLINE auto parity(const lanes<T, W>& shifted) {
  return bits(shifted) << int(8 * sizeof(T) - 1);
}

// a - n pi; pi is given in pieces of few bits.
template <class V, class T, std::size_t Size>
LANEMATH_INLINE V less_multiples(V a, const V& n, const T (&pieces)[Size], std::size_t first = 0,
                                 std::size_t end = Size) {
  for (std::size_t i = first; i < end; ++i) a = a - n * pieces[i];
  return a;
}

template <class V, class T, std::size_t Size>
LANEMATH_INLINE V odd_sine(const V& r, const V& signed_r, const T (&c)[Size]) {
  const V z = r * r;
  return signed_r + (z * horner(z, c)) * signed_r;
}
// The native form of single precision: the last coefficient is only near 1.
template <class V>
LANEMATH_INLINE V odd_sine(const V& r, const V& signed_r, const float (&c)[3]) {
  const V z = r * r;
  const V p = c[0] * z + c[1];
  return signed_r * (z * p) + c[2] * signed_r;
}

template <auto& Pi, auto& C, class V>
LANEMATH_INLINE V sine(const V& x) {
  using T = typename V::value_type;
  const V a = magnitude(x);
  const V t = a * inverse_pi<T> + integer_shifter<T>;
  const V r = less_multiples(a, t - integer_shifter<T>, Pi);
  return flipped(odd_sine(r, flipped(r, parity(t)), C), sign_of(x));
}

// One multiple of pi for the sine and cosine of a magnitude: the remainders and their signs.
template <auto& Pi, class V>
struct two_remainders {
  using T = typename V::value_type;
  V sine, cosine;
  lanes<int_of_size<sizeof(T)>, V::width> sine_sign, cosine_sign;

  LANEMATH_INLINE explicit two_remainders(const V& a) {
    const V t = a * inverse_pi<T> + integer_shifter<T>;
    const V n = t - integer_shifter<T>;
    const V q = less_multiples(a, n, Pi, 0, 2);
    const auto side = sign_of(q);
    const V m = n + from_bits(bits(V(half_v<T>)) | side);
    cosine = less_multiples(a, m, Pi);
    sine = less_multiples(q, n, Pi, 2);
    sine_sign = parity(t);
    cosine_sign = side ^ sine_sign ^ sign_mask<T>;
  }
};

// The large-argument stage, one group at a time. Its results go into the marked lanes; what is beyond its largest
// argument stays marked, as infinities and NaNs do.
template <class F, class T, int W, class M>
LANEMATH_INLINE void large_stage(F stage, const lanes<T, W>& x, lanes<T, W>& y, M& rare,
                                 T largest = std::numeric_limits<T>::max()) {
  y = select(rare, by_pieces<largest_group<T>, W>(stage, x), y);
  rare = ~(magnitude(x) <= largest);
}
template <class F, class T, int W, class M>
LANEMATH_INLINE void large_stage(F stage, const lanes<T, W>& x, lanes<T, W>& sine, lanes<T, W>& cosine, M& rare,
                                 T largest = std::numeric_limits<T>::max()) {
  const auto y = by_pieces<largest_group<T>, W>(stage, x);
  sine = select(rare, y.first, sine);
  cosine = select(rare, y.second, cosine);
  rare = ~(magnitude(x) <= largest);
}

}  // namespace lanemath
