// The scalar power of a nonzero finite base and a finite exponent, in pairs of floats: log2 |x| by three stages of
// short reciprocals and a cubic, 2^v by a table of 128 pairs and a cubic.
#pragma once

#include "pow/power_rare.h"
#include "pow/power_single.h"
#include "tables/pow.h"

namespace lanemath::powers {

// The exponent as the kernels compute it.
inline exponent_parts<float> of_one(const exponent_parts<lanes<float, 1>>& y) {
  return {y.value.g[0], y.hi.g[0], y.lo.g[0]};
}

// How the last sums are made: each operation has its own order.
enum class product_sum { before_rounding, high_only };
enum class denormal_sum { scaled_then_signed, scaled_with_sign, each_scaled_with_sign };

template <product_sum Product, denormal_sum Denormal>
float finite_power(float x, const exponent_parts<float>& y, float sign) {
  float ax = std::fabs(x);
  int adjustment = 0;
  if (exponent_field(x) == 0) {
    ax *= 0x1p64f;
    adjustment = -64;
  }
  const auto b = std::int32_t(pattern_of(ax));
  const float M = value_of<float>((pattern_of(ax) & 0x007FFFFF) | 0x3F800000);
  const float K = float(((b - 0x3F380000) >> 23) + adjustment);

  const auto index = [](float v, std::uint32_t mask, std::uint32_t half, int shift) {
    return ((pattern_of(v) & mask) + half) >> shift;
  };
  const auto [r1, hi1, lo1] = log2_stage_1[index(M, 0x00780000, 0x00080000, 20)];
  const float z1 = M * r1;
  const float S1 = hi1 + K;
  const float c1 = hi1 + (K - S1);
  const auto [r2, hi2, lo2] = log2_stage_2[index(z1, 0x001E0000, 0x00020000, 18)];
  const float z2 = z1 * r2;
  const float S2 = S1 + hi2;
  const float c2 = (S1 - S2) + hi2;
  const auto [r3, hi3, lo3] = log2_stage_3[index(z2, 0x0007C000, 0x00004000, 15)];
  const float z3 = z2 * r3;
  const float S3 = S2 + hi3;
  const float c3 = (S2 - S3) + hi3;
  const float R = r1 * r2 * r3;  // exact
  float C = ((((c1 + c2) + c3) + lo1) + lo2) + lo3;

  const float s0 = z3 - 0x3FB88000_f32;
  const auto m = split(M), r = split(R);
  const float d = (((m.hi * r.hi - z3) + r.hi * m.lo) + m.hi * r.lo) + m.lo * r.lo;
  const float H = s0 + S3;
  const float c4 = (S3 - H) + s0;

  const int size = exponent_field(y.value) + exponent_field(H);
  if (size >= 265)
    return (std::signbit(y.value) != std::signbit(H) ? underflowed<float>() : overflowed<float>()) * sign;
  if (size < 193) return (1.0f + opaque(std::numeric_limits<float>::min())) * sign;

  const float s = s0 + d;
  C = C + (d + c4);
  const float pol = (((0xBDAB1EA1_f32 * s + 0x3E246F69_f32) * s + 0xBEB1C35D_f32) * s + 0x3A6A6369_f32) * s;
  const float A = H + pol;
  const float a = (H - A) + pol;
  const float B = A + C;
  const float b_low = (A - B) + C;
  const auto log = split(B);

  constexpr float shifter = 0x1.8p16f;  // 98304: leaves 7 fraction bits
  const float p = y.hi * log.hi;
  float G, rest;
  if constexpr (Product == product_sum::before_rounding) {
    const float q = y.hi * log.lo + log.hi * y.lo;
    const float T = p + q;
    G = shifter + T;
    rest = ((b_low + a) * y.value) + (((p - T) + q) + log.lo * y.lo) + (T - (G - shifter));
  } else {
    G = shifter + p;
    rest = ((b_low + a) * y.value) + (log.lo * y.lo + y.hi * log.lo + log.hi * y.lo) + (p - (G - shifter));
  }
  const auto [power_hi, power_lo] = exp2_short_128[pattern_of(G) & 127];
  const int n = std::int32_t(pattern_of(G) << 10) >> 17;
  const float v = ((0x3D635847_f32 * rest + 0x3E75FDF0_f32) * rest + 0x3F317218_f32) * rest * power_hi + power_lo;
  const float E = v + power_hi;

  const int f = exponent_field(E) + n - 127;
  if (f >= 128) return overflowed<float>() * sign;
  if (f >= -126) return value_of<float>((pattern_of(E) & 0x007FFFFF) | std::uint32_t(f + 127) << 23) * sign;
  if (f < -159) return underflowed<float>() * sign;
  constexpr float down = 0x1p-64f;
  const float scale = with_exponent_field<float>((n + 191) & 255);
  if (f < -136) return (E * scale) * (sign * down) + underflowed<float>();
  const float low = (power_hi - E) + v;
  const auto whole = split(E);
  const float high_sum = whole.hi * scale;
  const float low_sum = (low + whole.lo) * scale;
  if constexpr (Denormal == denormal_sum::scaled_then_signed)
    return ((high_sum + low_sum) * down + underflowed<float>()) * sign;
  else if constexpr (Denormal == denormal_sum::scaled_with_sign)
    return (sign * down) * (high_sum + low_sum) + underflowed<float>();
  else
    return (high_sum * (sign * down) + low_sum * (sign * down)) + underflowed<float>();
}

}  // namespace lanemath::powers
