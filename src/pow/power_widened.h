// The kernel that computes in double with a table of every reciprocal: the default of powf, and the light forms of
// the double-precision powers.
#pragma once

#include "pow/power.h"
#include "tables/log.h"
#include "tables/pow.h"

namespace lanemath {

// A positive x taken apart: the mantissa in [2^-10, 2^-9), the same as a float, and the exponent of x.
template <int W>
struct mantissa_and_exponent {
  lanes<double, W> m;
  lanes<float, W> narrow;
  lanes<std::int32_t, W> exponent;
};
template <int W>
LANEMATH_INLINE mantissa_and_exponent<W> taken_apart(const lanes<float, W>& x) {
  const auto narrow = from_bits((bits(x) & 0x007FFFFF) | 0x3A800000);
  return {convert<double>(narrow), narrow, (bits(x) >> 23) - 127};
}
template <int W>
LANEMATH_INLINE mantissa_and_exponent<W> taken_apart(const lanes<double, W>& x) {
  const auto m = from_bits((bits(x) & 0x000FFFFFFFFFFFFF) | 0x3F50000000000000);
  return {m, convert<float>(m), (upper(x) >> 20) - 1023};
}

// y ln x
template <int W>
LANEMATH_INLINE lanes<double, W> widened_product(const mantissa_and_exponent<W>& x, const lanes<double, W>& y) {
  using V = lanes<double, W>;

  // An integer next to 1/m, 512 to 1024 with any estimate of 11 bits. A neighbour only picks a neighbouring entry.
  const auto r = round_to<direction::nearest>(reciprocal_estimate(x.narrow));
  const auto& [m, narrow, exponent] = x;
  const V t = m * convert<double>(r) - 1.0;
  const V p = t + (t * 0x3FD55555555543C5_f64 + 0xBFDFFFFFFFFFF81F_f64) * (t * t);
  const V T = look_up(ln_of_integers, (bits(r) >> 14) & 0x3FF);
  const V k = convert<double>(exponent + 1 + (r > 724.0f));
  const V L = (p + T) + k * 0x3FE62E42FEFA39EF_f64;
  return L * y;
}

// e^s
template <int W>
LANEMATH_INLINE lanes<double, W> widened_exp(const lanes<double, W>& s) {
  using V = lanes<double, W>;
  constexpr double shifter = 0x4338000000000000_f64;  // 1.5 * 2^52

  const V v = s * 0x40A71547652B82FE_f64;  // 2048 / ln 2
  const V w = (v - 0.5) + shifter;
  const V n = w - shifter;
  const V f = v - n;
  const V u = f * 0x3F362F3904051FA1_f64;  // the chord, 2^(1/2048) - 1
  const V g = look_up(exp2_biased_2048, lower(w) & 2047);
  return from_bits(bits(g + g * u) + ((bits(w) >> 11) << 52));
}

inline constexpr std::int32_t WIDENED_RANGE = 0x4086232A;  // 708.39, for results in double

// The light form of pow and of powr: they differ in the rare routine.
template <auto Routine>
struct widened_pow : power<double(double, double), Routine> {
  template <class V>
  LANEMATH_INLINE static auto marked_kernel(V x, V y) {
    const V s = widened_product(taken_apart(x), y);
    return marked(widened_exp(s),
                  magnitude_above(s, WIDENED_RANGE) | beyond_plain_upper(upper(x)) | magnitude_above(y, LARGEST));
  }
};

}  // namespace lanemath
