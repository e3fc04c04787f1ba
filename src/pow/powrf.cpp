// x^y for x >= 0, single precision.
//
// Default: ln x in two floats, by a table of 65 short reciprocals and a cubic; its product with y in two parts; e^r by
// a quintic. The native form (also _half): that of powf. Rare lanes are computed in pairs of floats.
//
// Largest errors found, in ulp:
//   powrf: default 8.04801; _native, _half 4397.44
//
// Looks odd and is meant, see docs/design.md: NaNs and inexact integers.
#include "pow/power_rare_single.h"
#include "pow/power_single.h"

namespace lanemath {
namespace {

constexpr std::int32_t RARE = 0x42819F00;  // 64.81055, less than the kernel could serve

LANEMATH_RARE powrf_rare(const float* px, const float* py, float* pz) {
  using namespace powers;
  return powr_lane(*px, *py, *pz, [&](float x) {
    return finite_power<product_sum::high_only, denormal_sum::each_scaled_with_sign>(x, exponent_of(*py), 1.0f);
  });
}

struct powrf_standard : power<float(float, float), powrf_rare> {
  template <class V>
  LANEMATH_INLINE static auto marked_kernel(V x, V y) {
    const auto [z, rare] = split_power(bits(x), exponent_of(y), split_exp_table, RARE);
    return marked(z, rare | beyond_plain(bits(x)) | magnitude_above(y, LARGEST));
  }
};

}  // namespace

LANEMATH_EXPORT(powrf, powrf_standard)
LANEMATH_EXPORT(powrf, short_powf<powrf_rare>, _native)
LANEMATH_SAME(powrf, _native, _half)

}  // namespace lanemath
