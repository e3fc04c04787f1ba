// x^y, double precision.
//
// Default: log2 x in two doubles, by a table of 1025 short reciprocals with a scale near 1 / ln 2 and a polynomial; the
// product with y exact in its high part; 2^v by a table of 128 entries and a polynomial. Light form (_native): the
// kernel of powf, not narrowed. Rare lanes in pairs of doubles.
//
// Largest errors found, in ulp: default 1.441 at 0x3FF002106EADBBEE, 0x4134BCDDFF1FEA85, light form 2.133e9 at
// 0x3FEFF70466D3353F, 0x4123AF7D856A260E (near 1; 3.8e8 elsewhere); rare lanes 0.5002.
#include "pow/double.h"
#include "pow/finite_double.h"
#include "pow/widened.h"

namespace lanemath {
namespace {

LANEMATH_RARE pow_rare(const double* px, const double* py, double* pz) {
  using namespace powers;
  return power_lane(*px, *py, *pz, [&](double x, double sign) { return finite_power(x, *py, sign); });
}

}  // namespace

LANEMATH_EXPORT(binary, pow, double_pow<pow_rare>, )
LANEMATH_EXPORT(binary, pow, widened_pow<pow_rare>, _native)

}  // namespace lanemath
