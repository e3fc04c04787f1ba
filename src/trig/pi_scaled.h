// The sine, cosine and tangent of pi x: what they share.
//
// The argument is reduced without an error: whole turns are taken off, and what is left is folded to a distance of at
// most a quarter from the nearest multiple of a half.
#pragma once

#include "trig/kernel.h"

namespace lanemath {

// A product with pi as a high part that is exact and a low part.
template <class T>
struct pi_parts;
template <>
struct pi_parts<float> {
  static constexpr float SPLITTER = 4097.0f;  // 2^12 + 1
  static constexpr float HIGH = 0x40491000_f32, LOW = 0xB715777A_f32;
};
template <>
struct pi_parts<double> {
  static constexpr double SPLITTER = 134217729.0;  // 2^27 + 1
  static constexpr double HIGH = 0x400921FB54000000_f64, LOW = 0x3E210B4611A62633_f64;
};

template <class V>
struct high_and_low {
  V high, low;
};
// Split by arithmetic and not by a mask: a NaN stays the one it is.
template <class V>
LANEMATH_INLINE high_and_low<V> times_pi(const V& r) {
  using parts = pi_parts<typename V::value_type>;
  const V c = r * parts::SPLITTER;
  const V high = c - (c - r), low = r - high;
  return {high * parts::HIGH, low * parts::HIGH + r * parts::LOW};
}

template <class T>
inline constexpr T quarter_v = 0.25;

// x less whole turns, in [-1, 1]; a NaN for an infinity.
template <class V>
LANEMATH_INLINE V within_a_turn(const V& x) {
  const V half = x * half_v<typename V::value_type>;
  const V turns = round_to<direction::nearest>(half);
  return x - (turns + turns);
}
// The distance of a non-negative number, not above 1, to 0 or to 1.
template <class V>
LANEMATH_INLINE V distance_to_whole(const V& f) {
  return minimum(one_v<typename V::value_type> - f, f);
}

}  // namespace lanemath
