// x^n for an integer n, single precision.
//
// Default: the kernel of powrf on the magnitude of x; the bits of n that a float cannot hold are in the low part of the
// exponent. The native form: polynomials in single floats. In neither is the constant term 1, so that x^0 and 1^n are
// near 1 but not 1. A result that falls just below the normal numbers is inaccurate: the exponent field has no room for
// it. Rare lanes are computed in pairs of floats.
//
// Largest errors found, in ulp:
//   pownf: default 8015.4; _native 4983.81
//
// Looks odd and is meant, see docs/design.md: x^0 and results next to the normal numbers.
#include "pow/power_rare_single.h"
#include "pow/power_single.h"

namespace lanemath {
namespace {

constexpr split_exp_rows pownf_table{
    .c0 = 0x3F800001_f32,
    .c1 = 0x3F800001_f32,
    .c2 = 0x3EFFFE85_f32,
    .c3 = 0x3E2AA9C6_f32,
    .c4 = 0x3D2BB1B6_f32,
    .c5 = 0x3C0950EF_f32,
};

constexpr std::int32_t RARE = 0x42AE9A00;  // 87.30078

LANEMATH_RARE pownf_rare(const float* px, const std::int32_t* pn, float* pz) {
  using namespace powers;
  return power_lane(*px, *pn, *pz, [&](float x, float sign) {
    return finite_power<product_sum::high_only, denormal_sum::scaled_with_sign>(
        x, of_one(exponent_of(lanes<std::int32_t, 1>(*pn))), sign);
  });
}

using pownf_power = power<float(float, std::int32_t), pownf_rare>;

struct pownf_standard : pownf_power {
  template <class V, class N>
  LANEMATH_INLINE static auto marked_kernel(V x, N n) {
    const auto b = bits(magnitude(x));
    const auto [z, rare] = split_power(b, exponent_of(n), pownf_table, RARE);
    return marked(with_sign(z, odd_sign(bits(x), n)), rare | beyond_plain(b));
  }
};

struct pownf_native : pownf_power {
  template <class V, class N>
  LANEMATH_INLINE static auto marked_kernel(V x, N n) {
    const auto b = bits(magnitude(x));
    const auto [z, rare] = short_power(b, convert<float>(n), short_exp_integer_table);
    return marked(with_sign(z, odd_sign(bits(x), n)), rare | beyond_plain(b));
  }
};

}  // namespace

LANEMATH_EXPORT(pownf, pownf_standard)
LANEMATH_EXPORT(pownf, pownf_native, _native)

}  // namespace lanemath
