// Gamma, double precision.
//
// Each lane is computed by itself in x87 arithmetic at full precision, by the method of tgammaf.cpp: three polynomials
// from 1 to 2, and from 2 on a product of quadratics for each stretch of 16 integers.
//
// Largest errors found, in ulp:
//   tgamma: default 0.504957
#include "special/tgamma.h"

namespace lanemath::special {
namespace {

struct tgamma_lane {
  using real = extended;
  static constexpr int stretch = 16;
  static constexpr auto& rows = tgamma_rows;
  static constexpr double tiny = 0x0004000000000000_f64;
  static constexpr double least = -185.0;
  static constexpr status of_underflow = status::ordinary;
  static constexpr double overflow = 0x406573FAE561F648_f64;  // 171.62
  // The last row is scaled down by this factor, and so must its reciprocal be.
  static constexpr double last_row = -176.0;
  static constexpr extended last_row_scale = 0xBA5D5869211696FFp-1106L;

  LANEMATH_INLINE static extended below_2(extended y) {
    if (y >= 1.5L) return horner(y - 1.0L, tgamma_to_2);
    if (y >= 1.25L) return horner(y - extended(1.46163214496836236), tgamma_at_minimum);
    return horner(y - 1.0L, tgamma_from_1);
  }
  // sin(pi t) / pi for t up to 1/2.
  LANEMATH_INLINE static extended sine(extended t) {
    const extended s = t * t;
    return t + t * s * even_and_odd(tgamma_sine, s);
  }
};

[[gnu::noinline]] status tgamma_in_x87(const double* px, double* py) { return gamma<tgamma_lane>(*px, *py); }

LANEMATH_RARE tgamma_rare(const double* px, double* py) { return at_full_precision<tgamma_in_x87>(px, py); }

}  // namespace

LANEMATH_EXPORT(tgamma, scalar_gamma<tgamma_rare>)

}  // namespace lanemath::special
