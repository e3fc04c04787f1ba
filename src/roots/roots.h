// What the scalar routines of the roots share.
#pragma once

#include "numeric/exceptional.h"
#include "numeric/split.h"

namespace lanemath {

// v - y^2 computed exactly, for y near the root of v.
inline double residual_of_square(double v, double y) {
  const auto [hi, lo] = split(y);
  return ((v - hi * hi) - 2.0 * hi * lo) - lo * lo;
}

}  // namespace lanemath
