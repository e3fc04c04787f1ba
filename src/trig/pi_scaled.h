// The sine, cosine and tangent of pi x: what they share. Whole turns are taken off without an error.
#pragma once

#include "trig/trigonometric.h"

namespace lanemath {

// x less whole turns, in [-1, 1]; a NaN for an infinity.
template <class V>
LANEMATH_INLINE V within_a_turn(const V& x) {
  const V turns = round_to<direction::nearest>(x * half_v<typename V::value_type>);
  return x - (turns + turns);
}
// The distance of a non-negative number, not above 1, to 0 or to 1.
template <class V>
LANEMATH_INLINE V distance_to_whole(const V& f) {
  return minimum(one_v<typename V::value_type> - f, f);
}

}  // namespace lanemath
