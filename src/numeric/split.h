// Splitting numbers into a high part of few bits, whose products are exact, and a remainder.
#pragma once

#include "numeric/fields.h"

namespace lanemath {

template <class T, int W>
LANEMATH_INLINE lanes<T, W> without_low_bits(const lanes<T, W>& x, int count) {
  using I = int_of_size<sizeof(T)>;
  return from_bits(bits(x) & I(I(-1) << count));
}
template <class T>
T without_low_bits(T x, int count) {
  return value_of<T>(pattern_of(x) & ~typename format<T>::pattern(0) << count);
}

// 2^n + 1, where n is half the number of significand bits.
template <class V>
constexpr auto half_splitter() {
  if constexpr (std::is_same_v<V, float>)
    return 0x1.001p12f;
  else if constexpr (std::is_same_v<V, double>)
    return 0x1.0000002p27;
  else if constexpr (std::is_same_v<V, long double>)
    return 0x1.00000001p32L;
  else
    return half_splitter<typename V::value_type>();
}

// Rounds to half of the bits, by Veltkamp's method.
template <class V, class T = decltype(half_splitter<V>())>
LANEMATH_INLINE V high_part(V x, T splitter = half_splitter<V>()) {
  const V scaled = x * splitter;
  return scaled - (scaled - x);
}
template <class V, class T = decltype(half_splitter<V>())>
LANEMATH_INLINE two_part<V> split(V x, T splitter = half_splitter<V>()) {
  const V hi = high_part(x, splitter);
  return {hi, x - hi};
}

// a + b and its rounding error, for |a| >= |b|.
template <class V>
LANEMATH_INLINE two_part<V> fast_sum(V a, V b) {
  const V sum = a + b;
  return {sum, b + (a - sum)};
}

// By how much a product p of split numbers is too small, by Dekker's method.
template <class V>
LANEMATH_INLINE V product_error(V p, two_part<V> a, two_part<V> b) {
  return ((a.hi * b.hi - p) + a.hi * b.lo + a.lo * b.hi) + a.lo * b.lo;
}

// a b and its rounding error.
template <class V>
LANEMATH_INLINE two_part<V> exact_product(V a, V b) {
  const V p = a * b;
  return {p, product_error(p, split(a), split(b))};
}

// 1 + v as two summands, the larger first. `lost_by(w)` is what w, their possibly truncated sum, lacks.
template <class V>
struct one_plus {
  static constexpr auto one = one_v<typename V::value_type>;
  V larger, smaller;
  LANEMATH_INLINE explicit one_plus(V v) : larger(maximum(V(one), v)), smaller(minimum(V(one), v)) {}
  LANEMATH_INLINE V w() const { return larger + smaller; }
  LANEMATH_INLINE V lost_by(V w) const { return (larger - w) + smaller; }
};

}  // namespace lanemath
