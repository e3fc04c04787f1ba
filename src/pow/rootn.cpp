// The n-th root of x, x^(1/n), double precision: the kernels of pow on the magnitude of x, with 1/n in two parts; the
// native form takes 1/n in one. Rare lanes are computed in pairs of doubles.
//
// Largest errors found, in ulp:
//   rootn: default 1.032; _native 6.44969e7 (1.7e8 on any processor)
#include "pow/power_double.h"
#include "pow/power_rare_double.h"
#include "pow/power_widened.h"

namespace lanemath {
namespace {

LANEMATH_RARE rootn_rare(const double* px, const std::int32_t* pn, double* pz) {
  using namespace powers;
  return rootn_lane(*px, *pn, *pz, [&](double x) { return finite_power(x, reciprocal_pair(*pn), 1.0); });
}

using rootn_power = power<double(double, std::int32_t), rootn_rare>;

struct rootn_standard : rootn_power {
  template <class V, class N>
  LANEMATH_INLINE static auto marked_kernel(V x, N n) {
    const V ax = magnitude(x);
    const auto y = reciprocal_exponent(convert<double>(n));
    const auto [z, rare] = double_power(ax, y);
    return marked(with_sign(z, odd_sign(upper(x), n)), rare | not_positive_normal(ax) |
                                                           magnitude_above(y.value, LARGEST) |
                                                           even_root_of_negative(upper(x), n));
  }
};

struct rootn_native : rootn_power {
  template <class V, class N>
  LANEMATH_INLINE static auto marked_kernel(V x, N n) {
    const V ax = magnitude(x);
    const V y = 1.0 / convert<double>(n);
    const V s = widened_product(ax, y);
    return marked(with_sign(widened_exp(s), odd_sign(upper(x), n)),
                  magnitude_above(s, WIDENED_RANGE) | not_positive_normal(ax) | magnitude_above(y, LARGEST) |
                      even_root_of_negative(upper(x), n));
  }
};

}  // namespace

LANEMATH_EXPORT(rootn, rootn_standard)
LANEMATH_EXPORT(rootn, rootn_native, _native)

}  // namespace lanemath
