// The default double kernel of the powers: log2 x in two parts, the product with the exponent exact in its high part.
#pragma once

#include "numeric/polynomial.h"
#include "pow/power.h"
#include "tables/pow.h"

namespace lanemath {

// Truncated, not rounded.
template <int W>
LANEMATH_INLINE exponent_parts<lanes<double, W>> cut_exponent(const lanes<double, W>& y) {
  const auto hi = without_low_bits(y, 27);
  return {y, hi, y - hi};
}

inline constexpr std::int32_t RANGE = 0x408F3FFE;  // 999.9995

// 2^(y log2 x) of a positive x.
template <int W>
LANEMATH_INLINE auto double_power(const lanes<double, W>& x, const exponent_parts<lanes<double, W>>& y) {
  using V = lanes<double, W>;
  constexpr double scale = 0x3FF7154740000000_f64;  // scale of the reciprocals, near 1 / ln 2

  const auto i = ((upper(x) & 0x000FFE00) + 0x00000200) >> 10;
  const V m = with_exponent(x, 0);
  // The exponent, plus one where the entry is in the upper half of the table.
  const auto biased = as<std::int64_t>(as<std::uint64_t>(bits(x) + 0x0008020000000000) >> 52);
  const V K = from_bits(biased | 0x4330000000000000) - 0x43300000000003FF_f64;

  const V R = look_up(scaled_reciprocal_1024, i);
  const auto [log_hi, log_lo] = look_up(log2_1024, i);
  const V mh = without_low_bits(m, 27);
  const V ml = m - mh;
  const V z = m * R;
  const V low = ml * R + (mh * R - z);
  const V A = K + log_hi;
  const V s0 = z - scale;
  const V S = A + s0;
  const V c1 = (A - S) + s0;
  const V s = s0 + low;
  const V H = S + low;
  const V e = ((S - H) + low) + c1 + log_lo;
  const V p = horner(s, {0xBF9B4EA0E9419F52_f64, 0x3FA7A334DDFC9F86_f64, 0xBFB550472A8BB463_f64, 0x3FC47FD462B3B816_f64,
                         0xBFD62E4346694107_f64, 0x3E79C3A6966457EE_f64}) *
              s;
  const V L_low = p + e;
  const V L = H + L_low;

  const V Lh = without_low_bits(L, 27);
  const V Ll = L - Lh;
  const V t = L_low - (L - H);
  const V P = y.hi * Lh;
  const V rest = (Lh * y.lo + (y.hi * Ll + y.lo * Ll)) + t * y.value;

  constexpr double shifter = 0x1.8p45;  // leaves 7 fraction bits
  const V G = P + shifter;
  const V v = (P - (G - shifter)) + rest;
  const V power = look_up(exp2_pair_128, lower(G) & 127).hi;
  const V g = from_bits(((bits(G) << 45) + 0x3FF0000000000000) & std::int64_t(0xFFF0000000000000)) * power;
  const V q = horner(v, {0x3F55D87FE78A6731_f64, 0x3F83B2AB6FBA4E77_f64, 0x3FAC6B08D704A0BF_f64, 0x3FCEBFBDFF82C58E_f64,
                         0x3FE62E42FEFA39EF_f64});
  return marked(g + q * (v * g), magnitude_above(P, RANGE));
}

// The default form of pow and powr, which differ in the rare routine.
template <auto Routine>
struct double_pow : power<double(double, double), Routine> {
  template <class V>
  LANEMATH_INLINE static auto marked_kernel(V x, V y) {
    const auto [z, rare] = double_power(x, cut_exponent(y));
    return marked(z, rare | not_positive_normal(x) | magnitude_above(y, LARGEST));
  }
};

}  // namespace lanemath
