// x^y, double precision.
//
// Default: log2 x in two doubles, by a table of 1025 short reciprocals scaled by nearly 1 / ln 2 and a polynomial; its
// product with y, exact in the high part; 2^v by a table of 128 entries and a polynomial. The native form: the kernel
// of powf, not narrowed. Rare lanes are computed in pairs of doubles.
//
// Largest errors found, in ulp:
//   pow: default 1.63106; _native 2.16583e9 (5.7e9 on any processor)
#include "pow/power_double.h"
#include "pow/power_rare_double.h"
#include "pow/power_widened.h"

namespace lanemath {
namespace {

LANEMATH_RARE pow_rare(const double* px, const double* py, double* pz) {
  using namespace powers;
  return power_lane(*px, *py, *pz, [&](double x, double sign) { return finite_power(x, *py, sign); });
}

}  // namespace

LANEMATH_EXPORT(pow, double_pow<pow_rare>)
LANEMATH_EXPORT(pow, widened_pow<pow_rare>, _native)

}  // namespace lanemath
