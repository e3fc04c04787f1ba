// The kernel that computes in double with a table for every integer reciprocal: the default form of powf, and the
// native forms of the double-precision powers.
#pragma once

#include "log/logarithm_double.h"
#include "numeric/constants.h"
#include "pow/power.h"
#include "tables/pow.h"

namespace lanemath {

// y ln x of a positive x
template <class V, int W>
LANEMATH_INLINE lanes<double, W> widened_product(const V& x, const lanes<double, W>& y) {
  return native_double_log<log_table, ln_of_integers>(x) * y;
}

// e^s
template <int W>
LANEMATH_INLINE lanes<double, W> widened_exp(const lanes<double, W>& s) {
  using V = lanes<double, W>;
  const V v = s * 0x40A71547652B82FE_f64;  // 2048 / ln 2
  const V w = (v - 0.5) + integer_shifter<double>;
  const V n = w - integer_shifter<double>;
  const V f = v - n;
  const V u = f * 0x3F362F3904051FA1_f64;  // the chord, 2^(1/2048) - 1
  const V g = look_up(exp2_biased_2048, lower(w) & 2047);
  return from_bits(bits(g + g * u) + ((bits(w) >> 11) << 52));
}

inline constexpr std::int32_t WIDENED_RANGE = 0x4086232A;  // 708.39, for double results

// The native form of pow and powr, which differ in the rare routine.
template <auto Routine>
struct widened_pow : power<double(double, double), Routine> {
  template <class V>
  LANEMATH_INLINE static auto marked_kernel(V x, V y) {
    const V s = widened_product(x, y);
    return marked(widened_exp(s),
                  magnitude_above(s, WIDENED_RANGE) | not_positive_normal(x) | magnitude_above(y, LARGEST));
  }
};

}  // namespace lanemath
