// x^n for an integer n, double precision: the kernels of pow on the magnitude of x; n is exact as a double. Rare lanes
// are computed in pairs of doubles.
//
// Largest errors found, in ulp:
//   pown: default 1.61979; _native 2.15213e9 (5.7e9 on any processor)
#include "pow/power_double.h"
#include "pow/power_rare_double.h"
#include "pow/power_widened.h"

namespace lanemath {
namespace {

LANEMATH_RARE pown_rare(const double* px, const std::int32_t* pn, double* pz) {
  using namespace powers;
  return power_lane(*px, *pn, *pz, [&](double x, double sign) { return finite_power(x, double(*pn), sign); });
}

using pown_power = power<double(double, std::int32_t), pown_rare>;

struct pown_standard : pown_power {
  template <class V, class N>
  LANEMATH_INLINE static auto marked_kernel(V x, N n) {
    const V ax = magnitude(x);
    const auto [z, rare] = double_power(ax, cut_exponent(convert<double>(n)));
    return marked(with_sign(z, odd_sign(upper(x), n)), rare | not_positive_normal(ax));
  }
};

struct pown_native : pown_power {
  template <class V, class N>
  LANEMATH_INLINE static auto marked_kernel(V x, N n) {
    const V ax = magnitude(x);
    const V s = widened_product(ax, convert<double>(n));
    return marked(with_sign(widened_exp(s), odd_sign(upper(x), n)),
                  magnitude_above(s, WIDENED_RANGE) | not_positive_normal(ax));
  }
};

}  // namespace

LANEMATH_EXPORT(pown, pown_standard)
LANEMATH_EXPORT(pown, pown_native, _native)

}  // namespace lanemath
