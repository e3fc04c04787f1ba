// e^x - 1 in both precisions: x = (n / N) ln 2 + r with n = N k + j, and
// e^x - 1 = 2^k 2^(j/N) (e^r - 1) + (2^k 2^(j/N) - 1),
// so that the subtraction of 1 stands next to the power of two and small results lose nothing. The sign of x is set on
// the result, which gives -0 at -0.
#pragma once

#include "exp/exponential_rare.h"

namespace lanemath {

// Not a plain shifter: the sum of S and n holds the entry's offset where JMASK is, and the exponent field of 2^k where
// EMASK is.
template <class T>
struct expm1_layout {
  T S;
  int_of_size<sizeof(T)> JMASK, EMASK;
  int entry_shift, exponent_shift;
};

template <class V>
struct expm1_power {
  lanes<std::int32_t, V::width> j;
  V e;  // 2^k

  expm1_power(V n, const expm1_layout<typename V::value_type>& c) {
    const auto t = bits(n + c.S);
    e = from_bits((t & c.EMASK) << c.exponent_shift);
    if constexpr (sizeof(typename V::value_type) == 4)
      j = (t & c.JMASK) >> c.entry_shift;
    else
      j = (lower(t) & std::int32_t(c.JMASK)) >> c.entry_shift;
  }
  // 2^k times what the table has the mantissa field of.
  V times(V mantissa) const { return from_bits(bits(mantissa) | bits(e)); }
};

template <class V>
inline constexpr typename V::value_type minus_one = -1;

// From the power of two in two parts, v + u, and p = e^r - 1.
template <class V>
V expm1_sum(V x, V v, V u, V p) {
  const V a = v + minus_one<V>;
  const V b = u + a;
  const V c = b - minus_one<V>;
  return with_bits(c * p + b, sign_of(x));
}
// From the power of two in one part.
template <class V>
V native_expm1_sum(V x, V v, V p) {
  return with_bits(v * p + (v + minus_one<V>), sign_of(x));
}

// Written so that a NaN is beyond the bound.
template <class V>
auto expm1_beyond(V x, typename V::value_type bound) {
  return ~(magnitude(x) <= bound);
}

// Only lanes beyond that bound come here: e^x - 1 is rounded like e^x, or like -1.
template <class T>
status expm1_rare_lane(const T* px, T* py, const rare_bounds& bounds) {
  if (*px < zero_v<T>) {
    *py = -one_v<T>;
    return status::ordinary;
  }
  return exp_rare_lane(px, py, exp_power, bounds);
}

}  // namespace lanemath
