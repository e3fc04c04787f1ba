// e^x - 1 in both precisions: x = (n / N) ln 2 + r with n = N k + j, and
//   e^x - 1 = 2^k 2^(j/N) (e^r - 1) + (2^k 2^(j/N) - 1),
// so that 1 is subtracted from the power of two alone and small results lose no bits. The result takes the sign of x,
// which gives -0 at -0.
#pragma once

#include "exp/exponential_rare.h"

namespace lanemath {

// S does more than a plain shifter: the sum of S and n holds the table index in the bits of JMASK and the exponent
// field of 2^k in the bits of EMASK.
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
  // 2^k times the mantissa whose fraction bits the table gives.
  V times(V mantissa) const { return from_bits(bits(mantissa) | bits(e)); }
};

template <class V>
inline constexpr typename V::value_type minus_one = -1;

// From p = e^r - 1 and the power of two in two parts, v + u.
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

// Only lanes beyond that bound come here, where e^x - 1 rounds as e^x does, or as -1.
template <class T>
status expm1_rare_lane(const T* px, T* py, const rare_bounds& bounds) {
  if (*px < zero_v<T>) {
    *py = -one_v<T>;
    return status::ordinary;
  }
  return exp_rare_lane(px, py, exp_power, bounds);
}

}  // namespace lanemath
