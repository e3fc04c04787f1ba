// A number as the unevaluated sum of two doubles, for scalar routines.
#pragma once

#include "numeric/split.h"

namespace lanemath {

struct double_pair {
  double hi, lo;

  constexpr double_pair(double high, double low = 0.0) : hi(high), lo(low) {}
  constexpr double_pair(const two_part<double>& v) : hi(v.hi), lo(v.lo) {}
  // |large| >= |small|.
  static double_pair fast_sum(double large, double small) { return lanemath::fast_sum(large, small); }
  static double_pair sum(double a, double b) {
    const double s = a + b, t = s - a;
    return {s, (a - (s - t)) + (b - t)};
  }
  static double_pair product(double a, double b) { return exact_product(a, b); }

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
