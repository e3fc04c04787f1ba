// A number as the unevaluated sum of two doubles, for the rare routines.
#pragma once

#include "frame/frame.h"

namespace lanemath {

struct double_pair {
  double hi, lo;

  constexpr double_pair(double high, double low = 0.0) : hi(high), lo(low) {}
  // Of a larger and a smaller number.
  static double_pair fast_sum(double large, double small) {
    const double s = large + small;
    return {s, small - (s - large)};
  }
  static double_pair sum(double a, double b) {
    const double s = a + b, t = s - a;
    return {s, (a - (s - t)) + (b - t)};
  }
  static double_pair product(double a, double b) {
    const auto upper_half = [](double v) {
      const double t = v * 0x41A0000002000000_f64;  // 2^27 + 1
      return t - (t - v);
    };
    const double p = a * b, ah = upper_half(a), bh = upper_half(b), al = a - ah, bl = b - bh;
    return {p, ((ah * bh - p) + ah * bl + al * bh) + al * bl};
  }

  friend double_pair operator+(const double_pair& a, const double_pair& b) {
    const auto s = sum(a.hi, b.hi);
    return fast_sum(s.hi, s.lo + (a.lo + b.lo));
  }
  friend double_pair operator-(const double_pair& a) { return {-a.hi, -a.lo}; }
  friend double_pair operator*(const double_pair& a, const double_pair& b) {
    const auto p = product(a.hi, b.hi);
    return fast_sum(p.hi, p.lo + (a.hi * b.lo + a.lo * b.hi));
  }
  friend double_pair operator/(const double_pair& a, const double_pair& b) {
    const double q = a.hi / b.hi;
    const auto back = product(q, b.hi);
    return fast_sum(q, ((a.hi - back.hi) - back.lo + a.lo - q * b.lo) / b.hi);
  }
};

inline double power_of_two(int k) { return std::bit_cast<double>(std::int64_t(1023 + k) << 52); }

// v times 2^k, |v| in [2^-4, 4) and hi it rounded. Rounded once, also to a denormal: where what is cut from hi is just
// half a step, lo decides.
inline double scaled(const double_pair& v, int k) {
  const double exact = v.hi * power_of_two(std::max(k, -1080) + 64);
  const double result = exact * 0x3BF0000000000000_f64;        // 2^-64
  const double cut = exact - result * 0x43F0000000000000_f64;  // 2^64
  constexpr double half_step = 0x00C0000000000000_f64;         // 2^-1011, half the smallest denormal at this scale
  constexpr double step = std::numeric_limits<double>::denorm_min();
  if (cut == half_step && v.lo > 0) return result + step;
  if (cut == -half_step && v.lo < 0) return result - step;
  return result;
}

// A positive finite number as a value in [1, 2) and an exponent.
struct parts {
  double significand;
  int exponent;

  explicit parts(double v) {
    int bias = 1023;
    if (v < 0x0010000000000000_f64) {  // denormal
      v *= 0x4350000000000000_f64;     // 2^54
      bias += 54;
    }
    const auto pattern = std::bit_cast<std::uint64_t>(v);
    exponent = int(pattern >> 52 & 2047) - bias;
    significand = std::bit_cast<double>((pattern & 0x000FFFFFFFFFFFFF) | 0x3FF0000000000000);
  }
};

}  // namespace lanemath
