// What the sine, cosine and tangent of pi x share. Whole turns are taken off exactly.
#pragma once

#include "trig/trigonometric.h"

namespace lanemath {

// x minus whole turns, in [-1, 1]; a NaN for an infinity.
template <class V>
LANEMATH_INLINE V within_a_turn(const V& x) {
  const V turns = round_to<direction::nearest>(x * half_v<typename V::value_type>);
  return x - (turns + turns);
}
// The number of steps of 1/256 that is nearest to f, in the lowest bits of a pattern, and how far f is beyond them.
template <int W>
LANEMATH_INLINE two_part<lanes<double, W>> steps_and_rest(const lanes<double, W>& f) {
  constexpr double SHIFTER = 0x1.8p44;
  const lanes<double, W> t = f + SHIFTER;
  return {t, f - (t - SHIFTER)};
}
// The distance of a number in [0, 1] from the nearer of 0 and 1.
template <class V>
LANEMATH_INLINE V distance_to_whole(const V& f) {
  return minimum(one_v<typename V::value_type> - f, f);
}

}  // namespace lanemath
