// Arc sine of x in radians, both precisions.
//
// For |x| < 1/2, x + x Q(x²); above it pi/2 - 2 sqrt(h) (1 + Q(h)) with h = (1 - |x|) / 2: no table, no branch. The
// native form: a shorter polynomial, and in double the root from a float estimate. Beyond 1 the result is a NaN.
//
// Largest errors found, in ulp:
//   asin: default 2.16182; _native 4.74009e6 (6.3e6 on any processor)
//   asinf: default 2.27419; _native 535.234
//
// Looks odd and is meant, see docs/design.md: signs and payloads of NaNs.
#include "invtrig/arc_sine.h"

namespace lanemath {
namespace {

template <class T, variant Variant>
struct arc_sine {
  using signature = T(T);
  static constexpr auto rare = radians_rare<T>;
  static constexpr int groups_at_once = sizeof(T) == 4 ? 4 : 2;  // more doubles than that spill

  template <class V>
  static V kernel(V x) {
    const auto [w, base, big] = reduce_for_sine<Variant>(x);
    V q = fitted(radian_rows<T, Variant>::c, w);
    if constexpr (!(sizeof(T) == 4 && Variant == variant::native)) q = w * q;
    const V v = ordered_sum(base, q * base) + where(big, V(half_pi<T>));
    return flipped(v, sign_of(x));
  }
  // Marks lanes in which (1 - |x|) / 2 is negative.
  static auto rare_test(auto x) { return bits(half_v<T> - half_v<T> * magnitude(x)) < 0; }
};

using asinf_standard = arc_sine<float, variant::standard>;
using asinf_native = arc_sine<float, variant::native>;
using asin_standard = arc_sine<double, variant::standard>;
using asin_native = arc_sine<double, variant::native>;

}  // namespace

LANEMATH_EXPORT(asinf, asinf_standard)
LANEMATH_EXPORT(asinf, asinf_native, _native)
LANEMATH_EXPORT(asin, asin_standard)
LANEMATH_EXPORT(asin, asin_native, _native)

}  // namespace lanemath
