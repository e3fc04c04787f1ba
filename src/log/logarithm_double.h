// The double-precision logarithms: log x = k log 2 + log(2^q / n) + log(1 + z). The mantissa g is in [2^-10, 2^-9), n
// is an integer near 1 / g from 512 to 1024, and z = g n - 1 is small; taking g in two parts makes it almost exact. The
// middle term comes from a table, with q = 9 up to n = 724 and 10 above, so that no large terms cancel near 1. The
// native forms take g in one part and drop two powers of z.
#pragma once

#include "log/logarithm.h"
#include "numeric/split.h"
#include "tables/log.h"

namespace lanemath {

struct double_log_rows {
  double P5, P4, P3, P2, P1;  // log(1 + z) by powers of z
  double LOG2;                // logarithm of 2
};
// For the natural logarithm, and for ln(1 + x).
inline constexpr double_log_rows log_table{
    .P5 = 0x3FC9999CACDB4D0A_f64,
    .P4 = 0xBFD0000148058EE1_f64,
    .P3 = 0x3FD55555555543C5_f64,
    .P2 = 0xBFDFFFFFFFFFF81F_f64,
    .P1 = 1.0,
    .LOG2 = 0x3FE62E42FEFA39EF_f64,
};

template <class V>
LANEMATH_INLINE V scaled_mantissa(V x) {
  return with_exponent(x, -10);
}

// The table index of an integer from 512 to 1024.
template <int W>
LANEMATH_INLINE lanes<std::int32_t, W> index_of_integer(const lanes<float, W>& n) {
  return (bits(n) >> 14) - 0x11000;
}

// The natural logarithm's factor 1 costs no multiplication.
template <bool IsOne, class V>
LANEMATH_INLINE V times(V x, double factor) {
  if constexpr (IsOne)
    return x;
  else
    return x * factor;
}

// k: the exponent, or one more where the q of the table is 9. The mask is -1 where q is 10.
template <class E, class N>
LANEMATH_INLINE E exponent_beside(E exponent, N n) {
  return exponent + 1 + (n > 724.0f);
}

// y + log(2^q / n) + k log 2, given the exponent of the number and its n.
template <auto& c, auto& table, class V, class E, class N>
LANEMATH_INLINE V with_exponent_term(V y, E exponent, N n) {
  const auto k = exponent_beside(exponent, n);
  return (y + look_up(table, index_of_integer(n))) + times<c.LOG2 == 1.0>(convert<double>(k), c.LOG2);
}

template <auto& c, auto& table, class V>
LANEMATH_INLINE V double_log(V x) {
  const V g = scaled_mantissa(x);
  const auto near = integer_near_reciprocal(g);
  const V n = convert<double>(near);
  const V gh = without_low_bits(g, 26), gl = g - gh;
  const V z = (gh * n - 1.0) + gl * n;
  const V s = z * z;
  const V y = s * ((c.P5 * z + c.P4) * s + (c.P3 * z + c.P2)) + times<c.P1 == 1.0>(z, c.P1);
  return with_exponent_term<c, table>(y, exponent_of_positive(x), near);
}

template <auto& c, auto& table, class V, class E, class N>
LANEMATH_INLINE V native_double_log(V g, E exponent, N near) {
  const V z = g * convert<double>(near) - 1.0;
  const V y = (c.P3 * z + c.P2) * (z * z) + times<c.P1 == 1.0>(z, c.P1);
  return with_exponent_term<c, table>(y, exponent, near);
}
template <auto& c, auto& table, int W>
LANEMATH_INLINE lanes<double, W> native_double_log(const lanes<double, W>& x) {
  const auto g = scaled_mantissa(x);
  return native_double_log<c, table>(g, exponent_of_positive(x), integer_near_reciprocal(g));
}
// The logarithm of a float, in double.
template <auto& c, auto& table, int W>
LANEMATH_INLINE lanes<double, W> native_double_log(const lanes<float, W>& x) {
  const auto g = scaled_mantissa(x);
  return native_double_log<c, table>(convert<double>(g), exponent_of_positive(x), integer_near_reciprocal(g));
}

}  // namespace lanemath
