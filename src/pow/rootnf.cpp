// The n-th root of x, x^(1/n), single precision.
//
// Default: the kernel of powrf on the magnitude of x, with 1/n in two parts. The native form: that of pownf, with 1/n.
// Rare lanes are computed in pairs of floats.
//
// Largest errors found, in ulp:
//   rootnf: default 5.71614; _native 1398
#include "pow/power_rare_single.h"
#include "pow/power_single.h"

namespace lanemath {
namespace {

constexpr std::int32_t RARE = 0x42AE9A00;  // 87.30078

LANEMATH_RARE rootnf_rare(const float* px, const std::int32_t* pn, float* pz) {
  using namespace powers;
  return rootn_lane(*px, *pn, *pz, [&](float x) {
    return finite_power<product_sum::high_only, denormal_sum::each_scaled_with_sign>(
        x, of_one(reciprocal_exponent(lanes<float, 1>(float(*pn)))), 1.0f);
  });
}

using rootnf_power = power<float(float, std::int32_t), rootnf_rare>;

struct rootnf_standard : rootnf_power {
  template <class V, class N>
  LANEMATH_INLINE static auto marked_kernel(V x, N n) {
    const auto b = bits(magnitude(x));
    const auto [z, rare] = split_power(b, reciprocal_exponent(convert<float>(n)), split_exp_table, RARE);
    return marked(with_sign(z, odd_sign(bits(x), n)), rare | beyond_plain(b) | even_root_of_negative(bits(x), n));
  }
};

struct rootnf_native : rootnf_power {
  template <class V, class N>
  LANEMATH_INLINE static auto marked_kernel(V x, N n) {
    const auto b = bits(magnitude(x));
    const V y = 1.0f / convert<float>(n);
    const auto [z, rare] = short_power(b, y, short_exp_integer_table);
    return marked(with_sign(z, odd_sign(bits(x), n)),
                  rare | beyond_plain(b) | magnitude_above(y, LARGEST) | even_root_of_negative(bits(x), n));
  }
};

}  // namespace

LANEMATH_EXPORT(rootnf, rootnf_standard)
LANEMATH_EXPORT(rootnf, rootnf_native, _native)

}  // namespace lanemath
