// log|gamma(x)|, double precision, with or without the sign of gamma.
//
// Each lane is computed by itself in x87 arithmetic at full precision, by the method of lgammaf.cpp: a polynomial for
// each interval or octave from 0.875 up, Stirling's formula from 512 on; smaller arguments are walked up, those from
// -17 on down reflected, and expansions serve the 26 zeros between -15 and -2. From 2.25 on the polynomials are
// products of quadratics.
//
// Largest errors found, in ulp:
//   lgamma: default 0.509556
//   lgammar: default 0.509556
#include "numeric/split.h"
#include "special/gamma.h"

namespace lanemath::special {
namespace {

// The argument of the minimum of gamma, without its last bits.
constexpr extended minimum_of_gamma = 0xBB16C31AB5F1FC00p-63L;

// From 0.875 to 2.25; `high` is the upper half of y as a double.
LANEMATH_INLINE extended below_9_quarters(extended y, std::int32_t high) {
  if (high >= 0x3FFC0000) return (y - 2.0L) * horner(y - 2.0L, lgamma_at_2);
  if (high >= 0x3FF40000) return horner(y - minimum_of_gamma, lgamma_at_minimum);
  return (y - 1.0L) * horner(y - 1.0L, lgamma_at_1);
}

extended lgamma_of(extended y) { return below_9_quarters(y, upper_half(double(y))); }

// From 0.875 to 512.
extended on_interval(double y) {
  const std::int32_t high = upper_half(y);
  if (high >= 0x40100000) return product_at(lgamma_octaves[(high >> 20) - 0x401], extended(within_octave(y)));
  if (high >= 0x40020000) return (y - 2.0L) * product_at(lgamma_to_4[0], extended(y));
  return below_9_quarters(y, high);
}

extended walked_up(double x) {
  extended y = x, product = 1.0L;
  for (; y < 1.0L; y += 1.0L) product *= y;
  return lgamma_of(y) - log_extended(std::fabs(product));
}

// Here zeros are so close to the integers that the walk's product, near 1, must be known beyond its last bit.
extended walked_up_exactly(double x) {
  extended y = x, product = 1.0L, lost = 0.0L;
  for (; y < 1.0L; y += 1.0L) {
    const auto [high, low] = exact_product(product, y);
    lost = lost * y + low;
    product = high;
  }
  return lgamma_of(y) - lost / product - log_extended(std::fabs(product));
}

extended stirling(double x) {
  constexpr extended twelfth = 0xAAAAAAAAAAAAAAABp-67L, per_360 = 0xB60B60B60B60B60Bp-72L;
  const extended y = x;
  return (y - 0.5L) * log_extended(y) - y + half_log_2_pi + (1.0L / y) * (twelfth - per_360 / (y * y));
}

extended reflected(double x) {
  const double t = -x - nearest_integer(-x);
  const extended s = extended(t) * t;
  const extended mirrored = x > -512.0 ? on_interval(-x) : stirling(-x);
  return -mirrored - log_extended(-x) - log_extended(std::fabs(t)) - horner(s, lgamma_reflection) * s;
}

extended on_negative_axis(double x) {
  if (x > -2.0) return walked_up(x);
  if (x > -15.0) {
    const double from_3 = -x - 3.0;
    double n = nearest_integer(from_3);
    if (n < from_3) n += 1.0;
    const auto j = std::int32_t(n);
    for (const auto& row : {&lgamma_far_roots[j], &lgamma_near_roots[j]})
      if (row->low < x && x < row->high) {
        const extended from_root = extended(x) - row->root;
        extended sum = row->c[0];
        for (int i = 1; i <= row->degree; ++i) sum = sum * from_root + row->c[i];
        return sum;
      }
    return walked_up(x);
  }
  return x > -17.0 ? walked_up_exactly(x) : reflected(x);
}

extended on_positive_axis(double x) {
  if (x < 0.875) return lgamma_of(x + 1.0L) - log_extended(x);
  if (x < 512.0) return on_interval(x);
  return stirling(x);
}

// The largest argument whose result is finite.
constexpr double overflow_bound = 0x7F5754D9278B51A7_f64;

struct lgamma_lane {
  static constexpr bool exact_zero(double x) { return x == 1.0; }
  static constexpr bool overflows(double x) { return x > overflow_bound; }
  static double value(double x) { return double(x > 0.0 ? on_positive_axis(x) : on_negative_axis(x)); }
};

[[gnu::noinline]] status lgamma_in_x87(const double* px, double* py, std::int32_t* sign) {
  return log_gamma<lgamma_lane>(*px, *py, *sign);
}

LANEMATH_RARE lgammar_rare(const double* px, double* py, std::int32_t* sign) {
  return at_full_precision<lgamma_in_x87>(px, py, sign);
}
LANEMATH_RARE lgamma_rare(const double* px, double* py) {
  std::int32_t sign;
  return lgammar_rare(px, py, &sign);
}

}  // namespace

LANEMATH_EXPORT(lgamma, scalar_gamma<lgamma_rare>)
LANEMATH_EXPORT(lgammar, scalar_gamma_with_sign<lgammar_rare>)

}  // namespace lanemath::special
