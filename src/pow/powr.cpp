// x^y for x >= 0, double precision: the kernels of pow, with other special cases.
//
// Largest errors found, in ulp:
//   powr: default 1.63106; _native 2.16583e9 (5.7e9 on any processor)
//
// Looks odd and is meant, see docs/design.md: NaNs.
#include "pow/power_double.h"
#include "pow/power_rare_double.h"
#include "pow/power_widened.h"

namespace lanemath {
namespace {

LANEMATH_RARE powr_rare(const double* px, const double* py, double* pz) {
  using namespace powers;
  return powr_lane(*px, *py, *pz, [&](double x) { return finite_power(x, *py, 1.0); });
}

}  // namespace

LANEMATH_EXPORT(powr, double_pow<powr_rare>)
LANEMATH_EXPORT(powr, widened_pow<powr_rare>, _native)

}  // namespace lanemath
