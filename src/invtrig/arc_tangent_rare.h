// The rare routines of the arc tangents: special values, and pairs of doubles where the kernels' reciprocals would lose
// range.
#pragma once

#include "invtrig/angles.h"
#include "numeric/double_pair.h"
#include "numeric/exceptional.h"
#include "tables/invtrig.h"

namespace lanemath {

// v 2^k, where |v| is in [2^-4, 4) and v.hi is v rounded. Rounded once, to a denormal too: where the part cut from hi
// is exactly half a step, lo decides.
inline double scaled(const double_pair& v, int k) {
  const double exact = v.hi * power_of_two<double>(std::max(k, -1080) + 64);
  const double result = exact * 0x1p-64;
  const double cut = exact - result * 0x1p64;
  constexpr double half_step = 0x1p-1011;  // half the smallest denormal at this scale
  constexpr double step = std::numeric_limits<double>::denorm_min();
  if (cut == half_step && v.lo > 0) return result + step;
  if (cut == -half_step && v.lo < 0) return result - step;
  return result;
}

// A given part of half a turn, in radians or divided by pi.
template <class T, bool Scaled>
T half_turns(double part) {
  return T(Scaled ? part : part * pi<double>);
}

// atan(c) is tabulated at two points c of each binade from 1/8 up: at 1 and 1.5 times a power of two, to which q is
// rounded, or at the middles 1.25 and 1.75 of the halves of the binade.
struct at_halves {
  static constexpr auto& table = arc_tangent_at_halves;
  static constexpr std::uint32_t rounding = 0x00040000, first = 0x3FC00000;
};
struct at_middles {
  static constexpr auto& table = arc_tangent_at_middles;
  static constexpr std::uint32_t rounding = 0, first = 0x3FC40000;
};

// atan(q) for q > 0: atan(c) + atan((q - c) / (1 + q c)).
template <class Points>
double_pair arc_tangent(const double_pair& q) {
  double_pair base = 0.0, r = q;
  if (q.hi >= 0.125) {
    const auto top = std::uint32_t(pattern_of(q.hi) >> 32);
    const auto index = std::min((top + Points::rounding - 0x3FC00000) >> 19, 113u);
    const double_pair c = value_of<double>(std::uint64_t(Points::first + (index << 19)) << 32);
    base = {Points::table[index].hi, Points::table[index].lo};
    r = (q + -c) / (double_pair(1.0) + q * c);
  }
  const double s = r.hi * r.hi;
  const double p = horner(s, {-0.06313688776899645, 0.07683539769703819, -0.0909079559611586, 0.11111110301985087,
                              -0.1428571428262597, 0.19999999999994408, 0xBFD5555555555555_f64});
  return base + double_pair(r.hi, r.lo + r.hi * s * p);
}

// An angle times 2^k, rounded once to the result. A float is rounded from a double, whose range needs no k.
template <class T, bool Scaled>
T rounded(double_pair angle, int k = 0) {
  if constexpr (sizeof(T) == 4) {
    const double v = angle.hi + angle.lo;
    return float(Scaled ? v * inverse_pi<double> : v);
  } else {
    if (Scaled) angle = angle * double_pair(0.31830988824367523, -2.0598845603958264e-9);  // 1 / pi
    return scaled(angle, k);
  }
}

// atan(num / den) for a quotient below 2^-52.
template <class T, bool Scaled>
T tiny_arc_tangent(double num, double den) {
  if constexpr (sizeof(T) == 8 && Scaled) {
    const unpacked<double> n(num), d(den);
    return rounded<T, Scaled>(double_pair(n.mantissa()) / d.mantissa(), n.exponent - d.exponent);
  } else {
    const double q = num / den;
    const double v = q < double(std::numeric_limits<T>::min()) ? double(T(q * q)) + q : q * (1.0 + q);
    return T(Scaled ? v * inverse_pi<double> : v);
  }
}

template <class T, bool Scaled>
LANEMATH_RARE arc_tangent_rare(const T* px, T* py) {
  const T x = *px;
  if (x != x) {
    *py = x + x;
    return status::ordinary;
  }
  const double a = std::fabs(x);
  T y;
  if (a >= 0x1p54)
    y = half_turns<T, Scaled>(0.5);
  else if (a < 0x1p-53)
    y = a == 0.0 ? zero_v<T> : tiny_arc_tangent<T, Scaled>(a, 1.0);
  else  // never reached: the kernels serve these
    y = rounded<T, Scaled>(arc_tangent<at_middles>(a));
  *py = std::copysign(y, x);
  return status::ordinary;
}

// The angle of a point with a coordinate that is zero, infinite or a NaN; the caller sets its sign. Returns whether the
// point is such a one.
template <class T, bool Scaled>
bool special_angle(T y, T x, T& angle) {
  const T infinity = std::numeric_limits<T>::infinity();
  const T ay = std::fabs(y), ax = std::fabs(x);
  const bool left = std::signbit(x);
  if (y != y || x != x) {
    const T nan = y != y ? y : x;
    angle = nan + nan;
  } else if (ay == infinity) {
    angle = half_turns<T, Scaled>(ax != infinity ? 0.5 : left ? 0.75 : 0.25);
  } else if (ax == infinity || ay == zero_v<T>) {
    angle = half_turns<T, Scaled>(left ? 1.0 : 0.0);
  } else if (ax == zero_v<T>) {
    angle = half_turns<T, Scaled>(0.5);
  } else {
    return false;
  }
  return true;
}

template <class T, bool Scaled>
T finite_angle(double ay, double x) {
  const double ax = std::fabs(x);
  const int apart = exponent_field(ay) - exponent_field(ax);
  constexpr double_pair quarter_turn(half_pi<double>, 0x3C91A62633145C07_f64);
  constexpr double_pair half_turn(pi<double>, 0x3CA1A62633145C07_f64);
  if (apart < -53) return x < 0.0 ? half_turns<T, Scaled>(1.0) : tiny_arc_tangent<T, Scaled>(ay, ax);
  if (apart >= 74) return half_turns<T, Scaled>(0.5);
  if (apart >= 54) return rounded<T, Scaled>(double_pair::fast_sum(quarter_turn.hi, quarter_turn.lo - x / ay));
  const unpacked<double> n(ay), d(ax);
  const double scale = power_of_two<double>(n.exponent - d.exponent);
  const auto quotient = double_pair(n.mantissa() * scale) / d.mantissa();
  const auto angle = arc_tangent<at_halves>(quotient);
  return rounded<T, Scaled>(x < 0.0 ? half_turn + -angle : angle);
}

template <class T, bool Scaled>
LANEMATH_RARE arc_tangent2_rare(const T* py, const T* px, T* result) {
  const T y = quieted(*py), x = quieted(*px);
  T angle;
  if (!special_angle<T, Scaled>(y, x, angle)) angle = finite_angle<T, Scaled>(std::fabs(y), x);
  *result = std::copysign(angle, y);
  return status::ordinary;
}

}  // namespace lanemath
