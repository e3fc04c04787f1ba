// The scalar power of a nonzero finite base and a finite exponent, in pairs of doubles: log2 |x| to about 2^-70 by the
// kernel's tables and a series, the product with the exponent, 2^v by a table of 128 pairs and a series, and one
// rounding at the last place of the result.
#pragma once

#include "numeric/double_pair.h"
#include "pow/power_rare.h"
#include "tables/pow.h"

namespace lanemath::powers {

inline double_pair reciprocal_pair(double y) {
  const double value = 1.0 / y;
  const auto back = double_pair::product(value, y);
  return {value, ((1.0 - back.hi) - back.lo) / y};
}

inline double_pair log2_of(double magnitude) {
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
  const auto z = double_pair::product(m, R);
  const auto w = double_pair::sum(z.hi - scaled_reciprocal_1024[0], z.lo);
  const auto& c = log2_series;
  double series = c[8].hi;
  for (int n = 7; n >= 3; --n) series = series * w.hi + c[n].hi;
  const auto square = w * w;
  const auto quadratic = square * c[2];
  const double small = square.hi * w.hi * series + c[1].hi * w.hi;

  const auto [table_hi, table_lo] = log2_1024[i];
  const auto first = double_pair::sum(K + table_hi, w.hi);
  const auto second = double_pair::sum(first.hi, quadratic.hi);
  return double_pair::sum(second.hi, (((small + quadratic.lo) + w.lo) + (first.lo + second.lo)) + table_lo);
}

// (p.hi + p.lo) 2^n for a pair from about 1 to 2, rounded once, denormals included.
inline double scaled(double_pair p, int n, double sign) {
  const auto by_exponent = [](double v, int k) { return value_of<double>(pattern_of(v) + (std::uint64_t(k) << 52)); };

  const int f = exponent_field(p.hi) + n - 1023;
  if (f > 1023) return overflowed<double>() * sign;
  if (f >= -1022) return by_exponent(p.hi, n) * sign;
  if (f < -1084) return underflowed<double>() * sign;
  // Rounds at the place of the smallest denormal: the sum stays in the binade of the shifter.
  const double shifter = by_exponent(1.0, -1022 - n);
  const double sum = shifter + p.hi;
  const double rounded = sum + (((shifter - sum) + p.hi) + p.lo);
  return (rounded - shifter) * by_exponent(1.0, n + 64) * (sign * 0x1p-64);
}

inline double finite_power(double x, double_pair y, double sign) {
  const auto log = log2_of(std::fabs(x));
  // Either |y log2 x| is 2^11 or more, or it is so small that the result is next to 1.
  const int size = exponent_field(y.hi) + exponent_field(log.hi);
  if (size >= 2057)
    return (std::signbit(y.hi) != std::signbit(log.hi) ? underflowed<double>() : overflowed<double>()) * sign;
  if (size < 1986) return (1.0 + opaque(0x1p-1022)) * sign;

  const auto exponent = log * y;
  constexpr double shifter = 0x1.8p45;  // leaves 7 fraction bits
  const double G = shifter + exponent.hi;
  const auto index = std::int32_t(pattern_of(G));
  const auto v = double_pair::sum(exponent.hi - (G - shifter), exponent.lo);

  const auto& c = exp2_series;
  double series = c[7].hi;
  for (int n = 6; n >= 3; --n) series = series * v.hi + c[n].hi;
  const auto linear = v * c[1];
  const auto quadratic = v * v * c[2];
  const auto less_one = double_pair::sum(linear.hi, quadratic.hi);
  const double_pair growth{less_one.hi, less_one.lo + (linear.lo + quadratic.lo + v.hi * v.hi * v.hi * series)};

  const auto [power_hi, power_lo] = exp2_pair_128[index & 127];
  const auto more = double_pair(power_hi, power_lo) * growth;
  const auto sum = double_pair::sum(power_hi, more.hi);
  return scaled(double_pair::sum(sum.hi, sum.lo + (more.lo + power_lo)), index >> 7, sign);
}

}  // namespace lanemath::powers
