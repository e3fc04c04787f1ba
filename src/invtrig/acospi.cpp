// Arc cosine of x divided by pi, both precisions.
//
// As the arc cosine, with the polynomial of the arc sine divided by pi, to which 1/pi is added. The native form: a
// shorter polynomial, and in double the root from a float estimate. Exact at 1 and -1; beyond them a NaN.
//
// Largest errors found, in ulp:
//   acospi: default 2.34769; _native 4.56437e6 (6.1e6 on any processor)
//   acospif: default 2.45723; _native 531.57
#include "invtrig/arc_sine.h"

namespace lanemath {
namespace {

template <class T>
LANEMATH_RARE acospi_rare(const T* px, T* py) {
  const T x = *px;
  status met;
  if (!beyond_one(x, *py, met)) {
    if (x == one_v<T>) *py = zero_v<T>;
    if (x == -one_v<T>) *py = one_v<T>;
  }
  return met;
}

template <class T, variant Variant>
struct arc_cosine {
  using signature = T(T);
  static constexpr auto rare = acospi_rare<T>;
  static constexpr int groups_at_once = sizeof(T) == 4 ? 4 : 2;  // more doubles than that spill

  template <class V>
  static V kernel(V x) {
    const auto r = reduce_for_cosine<Variant>(x);
    V p = fitted(pi_scaled_rows<T, Variant>::c, r.w);
    if constexpr (!(sizeof(T) == 4 && Variant == variant::native)) p = r.w * p + inverse_pi<T>;
    return ordered_product(p, r.base) + angle_at_end(x, r, one_v<T>, half_v<T>);
  }
  static auto rare_test(auto x) { return one_v<T> <= magnitude(x); }
};

using acospif_standard = arc_cosine<float, variant::standard>;
using acospif_native = arc_cosine<float, variant::native>;
using acospi_standard = arc_cosine<double, variant::standard>;
using acospi_native = arc_cosine<double, variant::native>;

}  // namespace

LANEMATH_EXPORT(acospif, acospif_standard)
LANEMATH_EXPORT(acospif, acospif_native, _native)
LANEMATH_EXPORT(acospi, acospi_standard)
LANEMATH_EXPORT(acospi, acospi_native, _native)

}  // namespace lanemath
