// What the inverse functions share.
#pragma once

#include "numeric/constants.h"
#include "numeric/fields.h"
#include "numeric/polynomial.h"

namespace lanemath {

// An estimate in float for doubles, group by group: joining two groups for one estimate costs more than it saves.
template <class F, int W>
LANEMATH_INLINE lanes<double, W> by_floats(F estimate, const lanes<double, W>& x) {
  return by_pieces<largest_group<double>, W>(
      [&](const auto& v) LANEMATH_LAMBDA { return convert<double>(estimate(convert<float>(v))); }, x);
}

}  // namespace lanemath
