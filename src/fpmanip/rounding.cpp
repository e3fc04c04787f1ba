// ceil, floor, trunc, rint, nearbyint, round: one rounding instruction each; round adds a step after it.
//
// Exact in every current direction. NaNs become quiet and keep sign and payload, zeros and infinities are returned
// unchanged; a result of zero has the sign of the input.
#include "frame/frame.h"

namespace lanemath {
namespace {

template <class T, direction D>
struct rounding {
  using signature = T(T);
  template <class V>
  static V kernel(V x) {
    return round_to<D>(x);
  }
};

// Rounds to nearest with ties to even; a tie that went down leaves the difference +0.5 and is rounded up after all.
template <class T>
struct rounding_half_away {
  using signature = T(T);
  template <class V>
  static V kernel(V x) {
    const V a = magnitude(x);
    const V r = round_to<direction::nearest>(a);
    const V d = a - r;
    return with_bits(r + where(d == half_v<T>, V(one_v<T>)), sign_of(x));
  }
};

using ceil_float = rounding<float, direction::up>;
using ceil_double = rounding<double, direction::up>;
using floor_float = rounding<float, direction::down>;
using floor_double = rounding<double, direction::down>;
using trunc_float = rounding<float, direction::zero>;
using trunc_double = rounding<double, direction::zero>;
using rint_float = rounding<float, direction::current>;
using rint_double = rounding<double, direction::current>;
using nearbyint_float = rounding<float, direction::current_quietly>;
using nearbyint_double = rounding<double, direction::current_quietly>;

}  // namespace

LANEMATH_EXPORT(ceilf, ceil_float)
LANEMATH_EXPORT(ceil, ceil_double)
LANEMATH_EXPORT(floorf, floor_float)
LANEMATH_EXPORT(floor, floor_double)
LANEMATH_EXPORT(truncf, trunc_float)
LANEMATH_EXPORT(trunc, trunc_double)
LANEMATH_EXPORT(rintf, rint_float)
LANEMATH_EXPORT(rint, rint_double)
LANEMATH_EXPORT(nearbyintf, nearbyint_float)
LANEMATH_EXPORT(nearbyint, nearbyint_double)
LANEMATH_EXPORT(roundf, rounding_half_away<float>)
LANEMATH_EXPORT(round, rounding_half_away<double>)

}  // namespace lanemath
