// Sine and cosine of one finite double of any size, for the rare routines. The argument is reduced to hi + lo and a
// count of quadrants, in one of several ways by its size; a table of 64 steps in a turn and two polynomials do the
// rest.
//
// The kernels leave only infinities and NaNs to these routines, except the native forms of double precision, whose
// kernels end at 2^23 (sin: 2^24): the code for finite floats, and for doubles up to 2^23, is never reached. What lies
// below 2^30 the native forms compute in whole vectors, by the same steps.
#pragma once

#include "numeric/constants.h"
#include "numeric/exceptional.h"
#include "numeric/split.h"
#include "tables/trig.h"

namespace lanemath {

template <class V>
struct quadrant_and_rest {
  V hi, lo;
  lanes<std::int32_t, V::width> quadrant;
};
using double_lane = lanes<double, 1>;

// 2^17 <= a < 2^30: the nearest even multiple of pi/4, from a product with 4 / pi.
template <bool Above23, class V>
LANEMATH_INLINE quadrant_and_rest<V> reduce_middle(const V& a, const V& sign) {
  const auto f = truncate(0x3FF45F306DC9C883_f64 * a);
  const V n = convert<double>(f + (f & 1));
  V v, w;
  if constexpr (Above23) {
    const V b1 = a - 0x3FE921FA00000000_f64 * n;
    const V pb = 0x3EA5444300000000_f64 * n, b2 = b1 - pb;
    const V pc = 0xBD373DCA00000000_f64 * n, b3 = b2 - pc;
    const V c1 = b1 - b2 - pb + (b2 - b3 - pc);
    const V b4 = b3 + c1, pd = 0xBBF3B39A00000000_f64 * n;
    v = b4 - pd;
    w = b3 - b4 + c1 + (b4 - v - pd);
    w = w - n * 0x3A845C06E0E68948_f64;
  } else {
    const V b1 = a - 0x3FE921FB54000000_f64 * n;
    const V pb = 0x3E010B4612000000_f64 * n, b2 = b1 - pb;
    const V pc = 0xBC2676733C000000_f64 * n;
    v = b2 - pc;
    w = b1 - b2 - pb + (b2 - v - pc);
    w = w - n * 0x3A61701B839A2520_f64;
  }
  const V hi = v * sign + w * sign;
  const auto q = (f + 1) >> 1, minus = top_word(sign) >> 31;
  return {hi, w * sign + (v * sign - hi), (q ^ minus) - minus};
}

// 2^30 and above: products with nine slices of 4 / pi, with whole turns taken off on the way.
inline quadrant_and_rest<double_lane> reduce_large(double a, double sign) {
  const std::int32_t e = exponent_field(a);
  const double y = value_of<double>((pattern_of(a) & 0x000FFFFFFFFFFFFF) | std::uint64_t(e - 200) << 52);
  const double yh = without_low_bits(y, 27), yl = y - yh;
  const std::int32_t k = ((e - 1052) * 83886) >> 21;
  const double* T = four_over_pi_slices + k;

  const auto [s, c0] = fast_sum(T[0] * yl, yh * T[1]);
  const double turns = value_of<double>(pattern_of(s + c0) & ~std::uint64_t(0) << ((1090 - e + 25 * k) & 63));
  const double u = s - turns;
  const auto [v1, lost_1] = fast_sum(u, T[1] * yl);
  const auto [v2, lost_2] = fast_sum(v1, yh * T[2]);
  const double c2 = lost_2 + (lost_1 + c0);
  const double d = T[2] * yl, f = yh * T[3];
  const double G = v2 + c2 + d + f;
  const int m = (51 - exponent_field(G)) & 63;
  const std::uint64_t W = pattern_of(G) >> m;
  const double n = value_of<double>(W << m);
  const auto q = std::int32_t(std::uint32_t(W + 1) >> 1);
  const double g0 = v2 - n, g1 = g0 + c2;
  const double rest = g1 + (W & 1 ? -1.0 : 0.0);

  const double e0 = (g0 - g1 + c2);
  double sum = rest, lost = e0;
  const auto add = [&](double summand) {
    const auto next = fast_sum(sum, summand);
    sum = next.hi;
    lost = next.lo + lost;
  };
  add(d);
  add(f);
  add(T[3] * yl);
  add(yh * T[4]);
  add(T[4] * yl);
  add(yh * T[5]);
  add(T[5] * yl + yh * T[6]);
  add(T[6] * yl + yh * T[7]);
  const double p9 = T[7] * yl + yh * T[8];

  const double h = sum + p9, v = h * 0x1.8p26;
  const double H = (h + v) - v, L = p9 + (sum - H) + lost;
  const double A = 0x3FE921FB40000000_f64, B = 0x3E64442D18469899_f64;  // pi/4
  const double t = A * L + (L + H) * B, P = H * A;
  const auto [hi, lo] = fast_sum(P, t);
  return {double_lane(hi * sign), double_lane(lo * sign), sign < 0 ? std::int32_t(0u - std::uint32_t(q)) : q};
}

inline quadrant_and_rest<double_lane> reduce_scalar(double x) {
  const std::int32_t e = exponent_field(x);
  if (e < 1040) return {x, 0.0, 0};
  const double a = std::fabs(x);
  const double sign = std::copysign(1.0, x);
  if (e > 1052) return reduce_large(a, sign);
  return e >= 1046 ? reduce_middle<true, double_lane>(a, sign) : reduce_middle<false, double_lane>(a, sign);
}

// The sine of hi + lo and a count of quadrants, and that of a quadrant more, which is the cosine.
template <class V>
struct sine_by_steps {
  lanes<std::int32_t, V::width> j;
  V r, rr, S, C;

  LANEMATH_INLINE explicit sine_by_steps(const quadrant_and_rest<V>& x) {
    const V t = x.hi * 0x40245F306DC9C883_f64 + integer_shifter<double>;  // 32 / pi
    const V n = t - integer_shifter<double>;
    const V r1 = x.hi - n * 0x3FB921FB54400000_f64, pm = n * 0x3D90B4611A600000_f64;
    r = r1 - pm;
    j = low_word(t) + (x.quadrant << 4);
    rr = r1 - r - pm - n * 0x3B63198A2E037073_f64 + x.lo;
    const V z = r * r;
    S = (((0x3EC71DE3A556C734_f64 * z + 0xBF2A01A01A01A01A_f64) * z + 0x3F81111111111111_f64) * z +
         0xBFC5555555555555_f64) *
        z * r;
    C = (((0x3EFA01A01A01A01A_f64 * z + 0xBF56C16C16C16C17_f64) * z + 0x3FA5555555555555_f64) * z + -0.5) * z;
  }
  LANEMATH_INLINE V at(const lanes<std::int32_t, V::width>& step) const {
    const auto [a, b, c, d] = look_up_row(sincos_64, step & 63);
    const V m1 = d * r, m2 = a * r, h1 = b + m1, h2 = h1 + m2, e2 = m2 + (h1 - h2);
    const V G0 = a + d;
    return h2 + (rr * (G0 - r * b) + c + (b - h1 + m1) + e2 + S * G0 + C * b);
  }
  LANEMATH_INLINE V sine() const { return at(j); }
  LANEMATH_INLINE V cosine() const { return at(j + 16); }
};

struct sine_and_cosine {
  double sine, cosine;
};

// x is finite.
inline sine_and_cosine scalar_sine_cosine(double x) {
  if (exponent_field(x) < 771) {
    const double a = std::fabs(x);
    const double sine = x == 0 ? x : (0x1p55 * x - x) * 0x1p-55;
    return {sine, 1.0 - a};
  }
  const sine_by_steps at(reduce_scalar(x));
  return {at.sine().g[0], at.cosine().g[0]};
}

template <class T>
status sine_of_non_finite(T x, T& y) {
  y = is_infinite(x) ? default_nan<T>() : x * x;
  return is_infinite(x) ? status::domain : status::ordinary;
}

template <class T>
LANEMATH_RARE sine_rare(const T* px, T* py) {
  if (!is_finite(*px)) return sine_of_non_finite(*px, *py);
  *py = T(scalar_sine_cosine(*px).sine);
  return status::ordinary;
}
template <class T>
LANEMATH_RARE cosine_rare(const T* px, T* py) {
  if (!is_finite(*px)) return sine_of_non_finite(*px, *py);
  *py = T(scalar_sine_cosine(*px).cosine);
  return status::ordinary;
}
template <class T>
LANEMATH_RARE sine_cosine_rare(const T* px, T* psine, T* pcosine) {
  const T x = *px;
  if (!is_finite(x)) {
    const auto status = sine_of_non_finite(x, *psine);
    *pcosine = *psine;
    return status;
  }
  const auto both = scalar_sine_cosine(x);
  *psine = T(both.sine);
  *pcosine = T(both.cosine);
  return status::ordinary;
}

}  // namespace lanemath
