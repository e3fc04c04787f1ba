// The float kernels of the powers: one in pairs of floats, and a short one.
#pragma once

#include "log/logarithm_single.h"
#include "numeric/constants.h"
#include "pow/power.h"
#include "tables/pow.h"

namespace lanemath {

// Of an integer: the bits that a float cannot hold go to the low part.
template <int W>
LANEMATH_INLINE exponent_parts<lanes<float, W>> exponent_of(const lanes<std::int32_t, W>& n) {
  const auto y = convert<float>(n);
  auto parts = exponent_of(y);
  parts.lo = parts.lo + convert<float>(n - convert<std::int32_t>(y));
  return parts;
}

// The polynomial for e^r in split_power.
struct split_exp_rows {
  float c0, c1, c2, c3, c4, c5;
};
inline constexpr split_exp_rows split_exp_table{
    .c0 = 1.0f,
    .c1 = 0x3F7FFFFE_f32,
    .c2 = 0x3EFFFF34_f32,
    .c3 = 0x3E2AACAC_f32,
    .c4 = 0x3D2B8392_f32,
    .c5 = 0x3C07D9FE_f32,
};

inline constexpr float LN2_HI = 0x3F317200_f32, LN2_LO = 0x35BFBE8E_f32, LOG2E = 0x3FB8AA3B_f32;

// e^(y ln x) from the pattern of x, with the logarithm in two parts. Marks |y ln x| above the pattern `bound`.
template <int W>
LANEMATH_INLINE auto split_power(const lanes<std::int32_t, W>& b, const exponent_parts<lanes<float, W>>& y,
                                 const split_exp_rows& c, std::int32_t bound) {
  using V = lanes<float, W>;

  // ln x = E ln 2 - ln C + ln(1 + p)
  const V E = convert<float>((b >> 23) - 127);
  const V m = with_exponent(from_bits(b), 0);
  const auto [A, B, C] = look_up(ln_65, ((b & 0x007F0000) + 0x00010000) >> 17);
  const V mh = without_low_bits(m, 14);
  const V ml = m - mh;
  const V t = mh * C - 1.0f;
  const V a = A + t;
  const V u = ml * C;
  const V p = t + u;
  const V q = ((p * -0.25f + 0x3EAAAAAB_f32) * p + -0.5f) * (p * p);
  V H = E * 0x3F317000_f32 + a;
  V Lo = q + (E * 0x3805FDF4_f32 + B);
  // Near 1 the high part is small, so that the rest of m is added to it.
  const auto away_from_one = outside(b, 0x3F7E0001, 0x3F81FFFF);
  H = H + from_bits(bits(u) & ~away_from_one);
  Lo = Lo + from_bits(bits(u) & away_from_one);

  const V S = H + Lo;
  const V scaled = S * half_splitter<V>();
  const V Lh = (S + scaled) - scaled;
  const V Ll = Lo + (H - Lh);

  const V P = Lh * y.hi;
  const V R = y.hi * Ll + (Lh * y.lo + Ll * y.lo);
  const V N = P * LOG2E + integer_shifter<float>;
  const V n = N - integer_shifter<float>;
  const V r = ((P - n * LN2_HI) - n * LN2_LO) + R;
  const V e = ((((r * c.c5 + c.c4) * r + c.c3) * r + c.c2) * r + c.c1) * r + c.c0;
  return marked(from_bits(bits(e) + (bits(N) << 23)), magnitude_above(P, bound));
}

// A cubic for e^r.
struct short_exp_rows {
  float c0, c1, c2, c3;
};
inline constexpr short_exp_rows short_exp_table{
    .c0 = 1.0f,
    .c1 = 0x3F8003DE_f32,
    .c2 = 0x3F00F2D6_f32,
    .c3 = 0x3E2963AC_f32,
};
// For an integer exponent; the constant term is not 1.
inline constexpr short_exp_rows short_exp_integer_table{
    .c0 = 0x3F7FFB0D_f32,
    .c1 = 0x3F7FFC0B_f32,
    .c2 = 0x3F014935_f32,
    .c3 = 0x3E2C359F_f32,
};

inline constexpr std::int32_t SHORT_RANGE = 0x42AE9A00;  // 87.30078

// The same in single floats and without a table.
template <int W>
LANEMATH_INLINE auto short_power(const lanes<std::int32_t, W>& b, const lanes<float, W>& y, const short_exp_rows& c) {
  using V = lanes<float, W>;

  const centred_mantissa<V> x(from_bits(b));
  const V K = convert<float>(x.k), z = x.r;
  const V q =
      ((((z * 0x3E2B350C_f32 + 0xBE424B46_f32) * z + 0x3E4B62C0_f32) * z + 0xBE7F0F0F_f32) * z + 0x3EAAAD03_f32) * z +
      -0.5f;
  const V p = z + q * (z * z);
  const V L = K * LN2_HI + (K * LN2_LO + p);

  const V s = L * y;
  const V N = s * LOG2E + integer_shifter<float>;
  const V n = N - integer_shifter<float>;
  const V r = s - n * 0x3F317218_f32;
  const V e = ((r * c.c3 + c.c2) * r + c.c1) * r + c.c0;
  return marked(from_bits(bits(e) + (bits(N) << 23)), magnitude_above(s, SHORT_RANGE));
}

// The native form of powf and powrf, which differ in the rare routine.
template <auto Routine>
struct short_powf : power<float(float, float), Routine> {
  template <class V>
  LANEMATH_INLINE static auto marked_kernel(V x, V y) {
    const auto [z, rare] = short_power(bits(x), y, short_exp_table);
    return marked(z, rare | beyond_plain(bits(x)) | magnitude_above(y, LARGEST));
  }
};

}  // namespace lanemath
