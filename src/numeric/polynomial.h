// Polynomials of lanes and of scalars.
#pragma once

#include "frame/frame.h"

namespace lanemath {

// Evaluates by Horner's rule. The coefficients begin with the highest power; the first `Skipped` are left out.
template <std::size_t Skipped = 0, class V, class T, std::size_t N>
LANEMATH_INLINE V horner(V x, const T (&coefficients)[N]) {
  V y = coefficients[Skipped];
  for (std::size_t i = Skipped + 1; i < N; ++i) y = y * x + coefficients[i];
  return y;
}

}  // namespace lanemath
