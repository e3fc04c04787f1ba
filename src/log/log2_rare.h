// The rare routine of log2. Away from 1: reciprocals c for the middles of 256 intervals, -log2 c from a table in two
// parts, and a polynomial; the large terms of the sum are exact. Near 1: polynomials in x - 1, the shorter the nearer.
// The kernels leave it only arguments that are not positive normal numbers, so that the code near 1 is never reached.
#pragma once

#include "log/logarithm_rare.h"
#include "numeric/split.h"

namespace lanemath {

namespace log_detail {

constexpr double L0 = 1.4426946640014648;  // 1 / ln 2 in few bits: the upper part of every first-order term

// Rounded to 20 bits. The difference of two products, not Veltkamp's method: their last bits differ.
inline double in_20_bits(double v) { return 4294967297.0 * v - 4294967296.0 * v; }

inline double log2_away_from_one(double x) {
  const unpacked<double> parts(x);
  const auto i = parts.significand >> 44 & 255;
  const double m = parts.mantissa();
  const double mh = without_low_bits(m, 32);
  const double c = double(log2_centres[i]);
  const auto [hi, lo] = log2_of_centres[i];
  const double u = (m - mh) * c;
  const double a = mh * c - 1.0;
  const double z = a + u;
  const double s = z * z;
  const double w = a * L0;
  const double t = (4294967296.0 + w) - 4294967296.0;
  const double A = (double(parts.exponent) + hi) + t;
  const double B = u * L0 +
                   (((-0.24045091916380087 * s - 0.36067376021722414) * s - 0.7213475204444817) * s +
                    ((0.2885405044652136 * s + 0.48089834696027206) * s + 3.7688749856434016e-07) * z) +
                   (w - t) + lo;
  return B + A;
}

inline double log2_around_one(double x) {
  const double d = x - 1.0;
  const double s = d * d;
  const double q =
      (((-0.1418420613067279 * s - 0.18033829516556898) * s - 0.24044917320997325) * s - 0.36067376022226) * s +
      (((0.16037852845437842 * s + 0.20609927446192183) * s + 0.2885390081793663) * s + 0.4808983469629877) * d;
  const double dh = in_20_bits(d), qh = in_20_bits(q);
  const double dl = d - dh;
  const double v1 = qh - 0.7213473320007324;
  const double r = dl * v1 + ((q - qh) - 1.8844374928144417e-07) * d;
  const double p = v1 * dh;
  const double a = r + p;
  const double ah = in_20_bits(a);
  const double b = ah + L0;
  const double c2 = r + (p - ah) + 3.7688749856361023e-07;
  const double t = c2 + b;
  const double th = in_20_bits(t);
  return th * dh + (dl * th + d * (c2 + (b - th)));
}

inline double log2_close_to_one(double x) {
  const double d = x - 1.0;
  const double s = d * d;
  const double dh = without_low_bits(d, 32);
  return dh * L0 + (((-0.36067376024675457 * s - 0.7213475204444817) * s +
                     (0.48089834698398176 * s + 3.768874985636096e-07) * d) +
                    (d - dh) * L0);
}

inline double log2_closest_to_one(double x) {
  if (x == 1.0) return 0.0;
  const double d = x - 1.0;
  return ((0.4808983469629878 * d - 0.7213475204444817) * d + 3.768874985636099e-07) * d + L0 * d;
}

}  // namespace log_detail

[[gnu::noinline]] inline status log2_rare(const double* px, double* py) {
  const double x = *px;
  if (const auto status = log_detail::of_special(x, *py)) return *status;
  const auto pattern = pattern_of(x);
  const auto h = std::uint32_t(pattern >> 32), l = std::uint32_t(pattern);
  const auto w = h << 11 | l >> 21;
  if (h < 0x3FEF8000 || h >= 0x3FF05000)  // 0.984375, 1.01953125
    *py = log_detail::log2_away_from_one(x);
  else if (h < 0x3FEFFFF0 || h >= 0x3FF00008)  // 1 - 2^-17, 1 + 2^-17
    *py = log_detail::log2_around_one(x);
  else if (w < 0x7FFFFFFE || w > 0x80000000)
    *py = log_detail::log2_close_to_one(x);
  else
    *py = log_detail::log2_closest_to_one(x);
  return status::ordinary;
}

}  // namespace lanemath
