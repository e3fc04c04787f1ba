// What the error functions share: value and slope at the point of a regular grid that is nearest to a magnitude.
#pragma once

#include "frame/frame.h"
#include "tables/special.h"

namespace lanemath::special {

template <class V>
struct grid_point {
  V m;     // the point
  V E, D;  // value and slope there
};

// `b` is between 0 and the last point. One unit in the last place of the shifter is a step of the grid, so that the low
// bits of the sum are the index.
template <class V, class T, std::size_t Size>
grid_point<V> nearest_point(const two_part<T> (&grid)[Size], T shifter, V b) {
  const V t = b + shifter;
  const V m = t - shifter;
  if constexpr (sizeof(T) == 4) {
    static_assert(Size <= 0x400);
    const auto [E, D] = look_up(grid, bits(t) & 0x3FF);
    return {m, E, D};
  } else {
    const auto [E, D] = look_up(grid, lower(t));
    return {m, E, D};
  }
}

}  // namespace lanemath::special
