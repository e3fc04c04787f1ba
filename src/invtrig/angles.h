// The angles that the inverse functions are put together from.
#pragma once

#include "numeric/polynomial.h"

namespace lanemath {

template <class T>
inline constexpr T pi = 0x40490FDB_f32;
template <>
inline constexpr double pi<double> = 0x400921FB54442D18_f64;
template <class T>
inline constexpr T half_pi = 0x3FC90FDB_f32;
template <>
inline constexpr double half_pi<double> = 0x3FF921FB54442D18_f64;
template <class T>
inline constexpr T over_pi = 0x3EA2F983_f32;
template <>
inline constexpr double over_pi<double> = 0x3FD45F306DC9C883_f64;

// An estimate in float for doubles, group by group: to join two groups for one estimate costs more than it saves.
template <class F, int W>
LANEMATH_INLINE lanes<double, W> by_floats(F estimate, const lanes<double, W>& x) {
  return by_pieces<2, W>([&](const auto& v) LANEMATH_LAMBDA { return convert<double>(estimate(convert<float>(v))); },
                         x);
}

}  // namespace lanemath
