// What the logarithms of both precisions share.
#pragma once

#include "numeric/fields.h"
#include "numeric/polynomial.h"

namespace lanemath {

// Even the widest form is faster in one piece, with some values on the stack, than in pieces one after another.
inline constexpr int most_groups = 8;

// The base of operations whose rare lanes are all but the positive normal numbers.
template <class T, auto Routine>
struct rare_unless_normal {
  using signature = T(T);
  static constexpr int groups_at_once = most_groups;
  static constexpr auto rare = Routine;
  static auto rare_test(auto x) { return not_positive_normal(x); }
};

// The integer nearest to the processor's estimate of 1 / g, for g in one binade. Processors differ in the estimate and
// so in the integer; the kernels then take it as exact.
template <int W>
LANEMATH_INLINE lanes<float, W> integer_near_reciprocal(const lanes<float, W>& g) {
  return round_to<direction::nearest>(reciprocal_estimate(g));
}
template <int W>
LANEMATH_INLINE lanes<float, W> integer_near_reciprocal(const lanes<double, W>& g) {
  return integer_near_reciprocal(convert<float>(g));
}

}  // namespace lanemath
