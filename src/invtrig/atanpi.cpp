// Arc tangent of x divided by pi, both precisions.
//
// t = |x|, or -1 / |x| above 1, where 0.5 is added; a polynomial on [-1, 1] that includes 1/pi. The reciprocal is a
// corrected estimate, except in the default double form, which divides. The native form: a shorter polynomial.
//
// Largest errors found, in ulp:
//   atanpi: default 3.2659; _native 2.17805e7 (2.25e7 on any processor)
//   atanpif: default 3.60718 (4.8 on any processor); _native 3773.1 (3780 on any processor)
#include "invtrig/arc_tangent.h"
#include "invtrig/arc_tangent_rare.h"

namespace lanemath {
namespace {

template <class T, class Factor, class Quotient>
struct half_turns_of {
  using signature = T(T);
  static constexpr auto rare = arc_tangent_rare<T, true>;

  template <class V>
  static V kernel(V x) {
    const V a = magnitude(x);
    const auto small = a <= one_v<T>;
    const V den = select(small, V(one_v<T>), a);
    const V num = select(small, a, V(-one_v<T>));
    const V t = Quotient::of(num, den);
    return with_bits(t * Factor::at(t) + where(~small, V(half_v<T>)), sign_of(x));
  }
  static auto rare_test(auto x) { return beyond_reciprocals(magnitude(x)); }
};

using atanpif_standard = half_turns_of<float, pi_factor<float>, by_estimate>;
using atanpif_native = half_turns_of<float, native_factor<native_pi_rows<float>>, by_estimate>;
using atanpi_standard = half_turns_of<double, pi_factor<double>, by_inverse>;
using atanpi_native = half_turns_of<double, native_factor<native_pi_rows<double>>, by_estimate>;

}  // namespace

LANEMATH_EXPORT(atanpif, atanpif_standard)
LANEMATH_EXPORT(atanpif, atanpif_native, _native)
LANEMATH_EXPORT(atanpi, atanpi_standard)
LANEMATH_EXPORT(atanpi, atanpi_native, _native)

}  // namespace lanemath
