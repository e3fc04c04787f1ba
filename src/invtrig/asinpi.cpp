// Arc sine of x divided by pi, both precisions.
//
// As the arc sine, with a polynomial of its own; the factor 1/pi of the linear term is applied in the outer sum. The
// native form: a shorter polynomial that includes 1/pi, and in double the root from a float estimate. Exact at 1 and
// -1; beyond them a NaN.
//
// Largest errors found, in ulp:
//   asinpi: default 3.01476; _native 6.03526e6 (7.6e6 on any processor)
//   asinpif: default 3.20773; _native 681.042
#include "invtrig/arc_sine.h"

namespace lanemath {
namespace {

template <class T>
LANEMATH_RARE asinpi_rare(const T* px, T* py) {
  const T x = *px;
  status met;
  if (!beyond_one(x, *py, met)) {
    if (x == one_v<T>) *py = half_v<T>;
    if (x == -one_v<T>) *py = -half_v<T>;
  }
  return met;
}

template <class T, variant Variant>
struct arc_sine {
  using signature = T(T);
  static constexpr auto rare = asinpi_rare<T>;
  static constexpr int groups_at_once = sizeof(T) == 4 ? 4 : 2;  // more doubles than that spill

  template <class V>
  static V kernel(V x) {
    const auto [w, base, big] = reduce_for_sine<Variant>(x);
    const V p = fitted(pi_scaled_rows<T, Variant>::c, w);
    const V quarter_turn = where(big, V(half_v<T>));
    V v;
    if constexpr (Variant == variant::standard)
      v = ordered_product(base, w * p) + (inverse_pi<T> * base + quarter_turn);
    else if constexpr (sizeof(T) == 4)
      v = ordered_product(p, base) + quarter_turn;
    else
      v = ordered_product(w * p + inverse_pi<T>, base) + quarter_turn;
    return flipped(v, sign_of(x));
  }
  static auto rare_test(auto x) { return one_v<T> <= magnitude(x); }
};

using asinpif_standard = arc_sine<float, variant::standard>;
using asinpif_native = arc_sine<float, variant::native>;
using asinpi_standard = arc_sine<double, variant::standard>;
using asinpi_native = arc_sine<double, variant::native>;

}  // namespace

LANEMATH_EXPORT(asinpif, asinpif_standard)
LANEMATH_EXPORT(asinpif, asinpif_native, _native)
LANEMATH_EXPORT(asinpi, asinpi_standard)
LANEMATH_EXPORT(asinpi, asinpi_native, _native)

}  // namespace lanemath
