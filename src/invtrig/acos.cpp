// Arc cosine of x in radians, both precisions.
//
// For |x| < 1/2, pi/2 - x - x Q(x²); above it 2 sqrt(h) (1 + Q(h)) with h = (1 - |x|) / 2, or pi minus that. The native
// form: a shorter polynomial, and in double the root from a float estimate. Beyond 1 the result is a NaN.
//
// Largest errors found, in ulp:
//   acos: default 1.32109; _native 4.85337e6 (6.4e6 on any processor)
//   acosf: default 1.23813; _native 532.466
//
// Looks odd and is meant, see docs/design.md: signs of NaNs.
#include "invtrig/arc_sine.h"

namespace lanemath {
namespace {

template <class T, variant Variant>
struct arc_cosine {
  using signature = T(T);
  static constexpr auto rare = radians_rare<T>;
  static constexpr int groups_at_once = sizeof(T) == 4 ? 4 : 2;  // more doubles than that spill

  template <class V>
  static V kernel(V x) {
    const auto r = reduce_for_cosine<Variant>(x);
    V q = fitted(radian_rows<T, Variant>::c, r.w);
    if constexpr (!(sizeof(T) == 4 && Variant == variant::native)) q = r.w * q;
    const V v = ordered_sum(r.base, q * r.base);
    return angle_at_end(x, r, pi<T>, half_pi<T>) + v;
  }
  // NaNs are rare lanes only in double.
  static auto rare_test(auto x) {
    if constexpr (sizeof(T) == 4)
      return one_v<T> < magnitude(x);
    else
      return ~(magnitude(x) <= one_v<T>);
  }
};

using acosf_standard = arc_cosine<float, variant::standard>;
using acosf_native = arc_cosine<float, variant::native>;
using acos_standard = arc_cosine<double, variant::standard>;
using acos_native = arc_cosine<double, variant::native>;

}  // namespace

LANEMATH_EXPORT(acosf, acosf_standard)
LANEMATH_EXPORT(acosf, acosf_native, _native)
LANEMATH_EXPORT(acos, acos_standard)
LANEMATH_EXPORT(acos, acos_native, _native)

}  // namespace lanemath
