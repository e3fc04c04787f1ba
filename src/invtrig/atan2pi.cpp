// The angle of the point (x, y) divided by pi, both precisions.
//
// As the angle in radians, with the polynomials of the arc tangent divided by pi and an estimated reciprocal that is
// corrected once, or twice in the default double form. The native form: a shorter polynomial.
//
// Largest errors found, in ulp:
//   atan2pi: default 4.54523 (4.55 on any processor); _native 2.17962e7 (2.25e7 on any processor)
//   atan2pif: default 5.50821 (6.3 on any processor); _native 3774.92 (3780 on any processor)
#include "invtrig/arc_tangent.h"
#include "invtrig/arc_tangent_rare.h"

namespace lanemath {
namespace {

template <class T, class Factor, class Quotient>
struct half_turns_of : quadrants<T, Factor, Quotient, true> {
  static constexpr auto rare = arc_tangent2_rare<T, true>;
};

using atan2pif_standard = half_turns_of<float, pi_factor<float>, by_estimate>;
using atan2pif_native = half_turns_of<float, native_factor<native_pi_rows<float>>, by_estimate>;
using atan2pi_standard = half_turns_of<double, pi_factor<double>, by_corrected_estimate>;
using atan2pi_native = half_turns_of<double, native_factor<native_pi_rows<double>>, by_estimate>;

}  // namespace

LANEMATH_EXPORT(atan2pif, atan2pif_standard)
LANEMATH_EXPORT(atan2pif, atan2pif_native, _native)
LANEMATH_EXPORT(atan2pi, atan2pi_standard)
LANEMATH_EXPORT(atan2pi, atan2pi_native, _native)

}  // namespace lanemath
