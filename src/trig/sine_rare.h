// Sine and cosine of one finite double of any size, for the rare routines: the argument is reduced to hi + lo and a
// count of quadrants, in tiers by size, and 64 steps in a turn with a table and two polynomials do the rest.
#pragma once

#include "frame/frame.h"
#include "tables/trig.h"

namespace lanemath {

struct quadrant_and_rest {
  double hi, lo;
  std::int32_t quadrant;
};

inline std::uint64_t pattern_of(double x) { return std::bit_cast<std::uint64_t>(x); }
inline std::int32_t exponent_field(double x) { return std::int32_t(pattern_of(x) >> 52 & 0x7FF); }

// 2^17 <= a < 2^30: the nearest even multiple of pi/4, from a product with 4 / pi.
inline quadrant_and_rest reduce_middle(double a, double sign) {
  const double product = 0x3FF45F306DC9C883_f64 * a;
  const auto top = std::uint32_t((pattern_of(product) << 11 | 0x8000000000000000) >> 32);
  const std::uint32_t f = top >> ((30 - exponent_field(product)) & 31);
  const double n = double(std::int64_t(f) + (f & 1));
  const std::int32_t q = std::int32_t((f + 1) >> 1);
  double v, w;
  if (exponent_field(a) >= 1046) {
    const double b1 = a - 0x3FE921FA00000000_f64 * n;
    const double pb = 0x3EA5444300000000_f64 * n, b2 = b1 - pb;
    const double pc = 0xBD373DCA00000000_f64 * n, b3 = b2 - pc;
    const double c1 = b1 - b2 - pb + (b2 - b3 - pc);
    const double b4 = b3 + c1, pd = 0xBBF3B39A00000000_f64 * n;
    v = b4 - pd;
    w = b3 - b4 + c1 + (b4 - v - pd);
    w = w - n * 0x3A845C06E0E68948_f64;
  } else {
    const double b1 = a - 0x3FE921FB54000000_f64 * n;
    const double pb = 0x3E010B4612000000_f64 * n, b2 = b1 - pb;
    const double pc = 0xBC2676733C000000_f64 * n;
    v = b2 - pc;
    w = b1 - b2 - pb + (b2 - v - pc);
    w = w - n * 0x3A61701B839A2520_f64;
  }
  const double hi = v * sign + w * sign;
  return {hi, w * sign + (v * sign - hi), sign < 0 ? -q : q};
}

// 2^30 and above: products with nine slices of 4 / pi, the whole turns taken off on the way.
inline quadrant_and_rest reduce_large(double a, double sign) {
  const std::int32_t e = exponent_field(a);
  const double y = std::bit_cast<double>((pattern_of(a) & 0x000FFFFFFFFFFFFF) | std::uint64_t(e - 200) << 52);
  const double yh = std::bit_cast<double>(pattern_of(y) & ~std::uint64_t(0x7FFFFFF)), yl = y - yh;
  const std::int32_t k = ((e - 1052) * 83886) >> 21;
  const double* T = four_over_pi_slices + k;

  const double a0 = T[0] * yl, a1 = yh * T[1];
  const double s = a0 + a1, c0 = a1 + (a0 - s);
  const double turns = std::bit_cast<double>(pattern_of(s + c0) & ~std::uint64_t(0) << ((1090 - e + 25 * k) & 63));
  const double u = s - turns;
  const double b = T[1] * yl, v1 = u + b, c1 = b + (u - v1) + c0;
  const double b_next = yh * T[2], v2 = v1 + b_next, c2 = b_next + (v1 - v2) + c1;
  const double d = T[2] * yl, f = yh * T[3];
  const double G = v2 + c2 + d + f;
  const int m = (51 - exponent_field(G)) & 63;
  const std::uint64_t W = pattern_of(G) >> m;
  const double n = std::bit_cast<double>(W << m);
  const auto q = std::int32_t(std::uint32_t(W + 1) >> 1);
  const double g0 = v2 - n, g1 = g0 + c2;
  const double rest = g1 + (W & 1 ? -1.0 : 0.0);

  const double e0 = (g0 - g1 + c2);
  const double h1 = rest + d, e1 = d + (rest - h1) + e0;
  const double h2 = h1 + f, e2 = f + (h1 - h2) + e1;
  const double p3 = T[3] * yl, h3 = h2 + p3, e3 = p3 + (h2 - h3) + e2;
  const double p4 = yh * T[4], h4 = h3 + p4, e4 = p4 + (h3 - h4) + e3;
  const double p5 = T[4] * yl, h5 = h4 + p5, p6 = yh * T[5], h6 = h5 + p6;
  const double e5 = p6 + (h5 - h6) + (p5 + (h4 - h5) + e4);
  const double p7 = T[5] * yl + yh * T[6], h7 = h6 + p7, e6 = p7 + (h6 - h7) + e5;
  const double p8 = T[6] * yl + yh * T[7], h8 = h7 + p8, e7 = p8 + (h7 - h8) + e6;
  const double p9 = T[7] * yl + yh * T[8];

  const double h = h8 + p9, v = h * 0x4198000000000000_f64;
  const double H = (h + v) - v, L = p9 + (h8 - H) + e7;
  const double A = 0x3FE921FB40000000_f64, B = 0x3E64442D18469899_f64;  // pi/4
  const double t = A * L + (L + H) * B, P = H * A;
  const double hi = P + t, lo = P - hi + t;
  return {hi * sign, lo * sign, sign < 0 ? std::int32_t(0u - std::uint32_t(q)) : q};
}

inline quadrant_and_rest reduce_scalar(double x) {
  const std::int32_t e = exponent_field(x);
  if (e < 1040) return {x, 0.0, 0};
  const double a = std::bit_cast<double>(pattern_of(x) & 0x7FFFFFFFFFFFFFFF);
  const double sign = pattern_of(x) >> 63 ? -1.0 : 1.0;
  return e <= 1052 ? reduce_middle(a, sign) : reduce_large(a, sign);
}

struct sine_and_cosine {
  double sine, cosine;
};

// Of finite x.
inline sine_and_cosine scalar_sine_cosine(double x) {
  if (exponent_field(x) < 771) {
    const double a = std::bit_cast<double>(pattern_of(x) & 0x7FFFFFFFFFFFFFFF);
    const double sine = x == 0 ? x : (0x4360000000000000_f64 * x - x) * 0x3C80000000000000_f64;
    return {sine, 1.0 - a};
  }
  const auto [hi, lo, q] = reduce_scalar(x);
  constexpr double shifter = 0x4338000000000000_f64;
  const double t = hi * 0x40245F306DC9C883_f64 + shifter;  // 32 / pi
  const double n = t - shifter;
  const double r1 = hi - n * 0x3FB921FB54400000_f64, pm = n * 0x3D90B4611A600000_f64, r = r1 - pm;
  const std::uint32_t j = std::uint32_t(pattern_of(t)) + 16 * std::uint32_t(q);
  const double rr = r1 - r - pm - n * 0x3B63198A2E037073_f64 + lo;
  const double z = r * r;
  const double S = (((0x3EC71DE3A556C734_f64 * z + 0xBF2A01A01A01A01A_f64) * z + 0x3F81111111111111_f64) * z +
                    0xBFC5555555555555_f64) *
                   z * r;
  const double C = (((0x3EFA01A01A01A01A_f64 * z + 0xBF56C16C16C16C17_f64) * z + 0x3FA5555555555555_f64) * z +
                    0xBFE0000000000000_f64) *
                   z;
  const auto at = [&](std::uint32_t step) {
    const auto& [a, b, c, d] = sincos_64[step & 63];
    const double m1 = d * r, m2 = a * r, h1 = b + m1, h2 = h1 + m2, e2 = m2 + (h1 - h2);
    const double G0 = a + d;
    return h2 + (rr * (G0 - r * b) + c + (b - h1 + m1) + e2 + S * G0 + C * b);
  };
  return {at(j), at(j + 16)};
}

}  // namespace lanemath
