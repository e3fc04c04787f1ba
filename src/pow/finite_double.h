// The scalar power of a finite base that is not zero and a finite exponent, in pairs of doubles: log2 |x| by the
// kernel's tables and a series to about 2^-70, the product with the exponent, 2^v by a table of 128 pairs and a
// series, one rounding at the result's own last place.
#pragma once

#include "pow/special_cases.h"
#include "tables/pow.h"

namespace lanemath::powers {

struct two_doubles {
  double hi, lo;
};
inline two_doubles two_sum(double a, double b) {
  const double s = a + b;
  const double of_b = s - a;
  return {s, (a - (s - of_b)) + (b - of_b)};
}
inline two_doubles split(double v) {
  const double scaled = v * 0x1.0000002p+27;  // 2^27 + 1
  const double hi = scaled - (scaled - v);
  return {hi, v - hi};
}
inline two_doubles two_product(double a, double b) {
  const double p = a * b;
  const auto [ah, al] = split(a);
  const auto [bh, bl] = split(b);
  return {p, ((ah * bh - p) + ah * bl + al * bh) + al * bl};
}
inline two_doubles product(two_doubles a, two_doubles b) {
  const auto p = two_product(a.hi, b.hi);
  return two_sum(p.hi, p.lo + (a.hi * b.lo + a.lo * b.hi));
}

inline two_doubles exponent_of(double y) { return {y, 0}; }
inline two_doubles reciprocal_exponent(std::int32_t n, double) {
  const double y = n;
  const double value = 1.0 / y;
  const auto back = two_product(value, y);
  return {value, ((1.0 - back.hi) - back.lo) / y};
}

inline two_doubles log2_of(double magnitude) {
  int adjustment = 0;
  if (exponent_field(magnitude) == 0) {
    magnitude *= 0x1p64;
    adjustment = -64;
  }
  const auto pattern = pattern_of(magnitude);
  const double m = value_of<double>((pattern & 0x000FFFFFFFFFFFFF) | 0x3FF0000000000000);
  const auto i = (((pattern >> 32) & 0x000FFE00) + 0x200) >> 10;
  const double K = int((pattern + 0x0008020000000000) >> 52) - 1023 + adjustment;

  // w is exact.
  const double R = scaled_reciprocal_1024[i];
  const auto z = two_product(m, R);
  const auto w = two_sum(z.hi - scaled_reciprocal_1024[0], z.lo);
  const auto& c = log2_series;
  double series = c[8].hi;
  for (int n = 7; n >= 3; --n) series = series * w.hi + c[n].hi;
  const auto square = product(w, w);
  const auto quadratic = product(square, {c[2].hi, c[2].lo});
  const double small = square.hi * w.hi * series + c[1].hi * w.hi;

  const auto [table_hi, table_lo] = log2_1024[i];
  const auto first = two_sum(K + table_hi, w.hi);
  const auto second = two_sum(first.hi, quadratic.hi);
  return two_sum(second.hi, (((small + quadratic.lo) + w.lo) + (first.lo + second.lo)) + table_lo);
}

// (p.hi + p.lo) 2^n of a pair near 1 to 2, rounded once, denormals included.
inline double scaled(two_doubles p, int n, double sign) {
  constexpr double tiny = 0x1p-1022, huge = 0x1p1023;
  const auto by_exponent = [](double v, int k) { return value_of<double>(pattern_of(v) + (std::uint64_t(k) << 52)); };

  const int f = exponent_field(p.hi) + n - 1023;
  if (f > 1023) return square(huge) * sign;
  if (f >= -1022) return by_exponent(p.hi, n) * sign;
  if (f < -1084) return square(tiny) * sign;
  // Rounds at the place of the smallest denormal: the sum stays in the binade of the shifter.
  const double shifter = by_exponent(1.0, -1022 - n);
  const double sum = shifter + p.hi;
  const double rounded = sum + (((shifter - sum) + p.hi) + p.lo);
  return (rounded - shifter) * by_exponent(1.0, n + 64) * (sign * 0x1p-64);
}

inline double finite_power(double x, two_doubles y, double sign) {
  const auto log = log2_of(without_sign(x));
  // |y log2 x| of 2^11 and more, or too small to tell the result from 1.
  const int size = exponent_field(y.hi) + exponent_field(log.hi);
  if (size >= 2057) return square(has_sign(y.hi) != has_sign(log.hi) ? 0x1p-1022 : 0x1p1023) * sign;
  if (size < 1986) return (1.0 + opaque(0x1p-1022)) * sign;

  const auto exponent = product(log, y);
  constexpr double shifter = 0x42C8000000000000_f64;  // leaves 7 fraction bits
  const double G = shifter + exponent.hi;
  const auto index = std::int32_t(pattern_of(G));
  const auto v = two_sum(exponent.hi - (G - shifter), exponent.lo);

  const auto& c = exp2_series;
  double series = c[7].hi;
  for (int n = 6; n >= 3; --n) series = series * v.hi + c[n].hi;
  const auto linear = product(v, {c[1].hi, c[1].lo});
  const auto quadratic = product(product(v, v), {c[2].hi, c[2].lo});
  const auto less_one = two_sum(linear.hi, quadratic.hi);
  const two_doubles growth{less_one.hi, less_one.lo + (linear.lo + quadratic.lo + v.hi * v.hi * v.hi * series)};

  const auto [power_hi, power_lo] = exp2_pair_128[index & 127];
  const auto more = product({power_hi, power_lo}, growth);
  const auto sum = two_sum(power_hi, more.hi);
  return scaled(two_sum(sum.hi, sum.lo + (more.lo + power_lo)), index >> 7, sign);
}

}  // namespace lanemath::powers
