// x^y, single precision.
//
// Default: y ln x in double, by a table of logarithms for every integer reciprocal and a cubic; e^s by a table of 2048
// entries and linear interpolation; one rounding to float, which also produces infinities and denormals. The native
// form (also _rm): polynomials in single floats. Rare lanes are computed in pairs of floats.
//
// Largest errors found, in ulp:
//   powf: default 1.09398 (1.1 on any processor); _native, _rm 4397.44
//
// Looks odd and is meant, see docs/design.md: the sign of an underflow.
#include "pow/power_rare_single.h"
#include "pow/power_single.h"
#include "pow/power_widened.h"

namespace lanemath {
namespace {

constexpr std::int32_t RARE = 0x4059FE36;  // 103.972, 150 ln 2: includes infinite and denormal results

LANEMATH_RARE powf_rare(const float* px, const float* py, float* pz) {
  using namespace powers;
  return power_lane(*px, *py, *pz, [&](float x, float sign) {
    return finite_power<product_sum::before_rounding, denormal_sum::scaled_then_signed>(x, exponent_of(*py), sign);
  });
}

struct powf_standard : power<float(float, float), powf_rare> {
  template <class V>
  LANEMATH_INLINE static auto marked_kernel(V x, V y) {
    const auto s = widened_product(x, convert<double>(y));
    return marked(convert<float>(widened_exp(s)),
                  beyond_plain(bits(x)) | magnitude_above(y, LARGEST) | magnitude_above(s, RARE));
  }
};

}  // namespace

LANEMATH_EXPORT(powf, powf_standard)
LANEMATH_EXPORT(powf, short_powf<powf_rare>, _native)
LANEMATH_SAME(powf, _native, _rm)

}  // namespace lanemath
