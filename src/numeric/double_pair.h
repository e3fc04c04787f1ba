// A number as the unevaluated sum of two doubles, for scalar routines.
#pragma once

#include "frame/frame.h"

namespace lanemath {

// 2^k, k an exponent of a normal number.
inline double power_of_two(int k) { return std::bit_cast<double>(std::uint64_t(1023 + k) << 52); }

// A number's upper bits and the rest; by 2^27 + 1 both have so few bits that products of such parts are exact.
inline two_part<double> split(double x, double by = 0x41A0000002000000_f64) {
  const double scaled = by * x;
  const double hi = scaled - (scaled - x);
  return {hi, x - hi};
}

struct double_pair {
  double hi, lo;

  constexpr double_pair(double high, double low = 0.0) : hi(high), lo(low) {}
  constexpr double_pair(const two_part<double>& v) : hi(v.hi), lo(v.lo) {}
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
    const auto [ah, al] = split(a);
    const auto [bh, bl] = split(b);
    const double p = a * b;
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

}  // namespace lanemath
