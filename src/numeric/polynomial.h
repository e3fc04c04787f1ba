// Polynomials of lanes and of scalars.
#pragma once

#include "frame/frame.h"

namespace lanemath {

// A polynomial by Horner's rule, the coefficient of the highest power first; of lanes or of a scalar.
template <class V, class T, std::size_t N>
LANEMATH_INLINE V horner(V x, const T (&coefficients)[N]) {
  V y = coefficients[0];
  for (std::size_t i = 1; i < N; ++i) y = y * x + coefficients[i];
  return y;
}

}  // namespace lanemath
