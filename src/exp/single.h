// What the single-precision exponentials share.
#pragma once

#include <limits>

#include "frame/frame.h"
#include "tables/exp.h"

namespace lanemath {

// Constants of the light kernels: 2^y by one cubic over a whole binade, no table.
struct light_exp_rows {
  float S;  // shifter: the sum's low bits are y rounded to an integer
  float A0, A1, A2, A3;
};
// Fitted over the whole interval: the constant term is not 1, and so not even integers give exact powers.
inline constexpr light_exp_rows light_exp2_table{
    .S = 0x4B400000_f32,
    .A0 = 0x3F7FFB49_f32,
    .A1 = 0x3F31798D_f32,
    .A2 = 0x3E786F13_f32,
    .A3 = 0x3D61FBCC_f32,
};

// 2^y. The integer part is added to the exponent field of the polynomial's bits.
template <class V>
V light_exp2(V y, const light_exp_rows& c) {
  const V t = y + c.S;
  const auto e = bits(t) << 23;
  const V f = y - (t - c.S);
  const V p = ((c.A3 * f + c.A2) * f + c.A1) * f + c.A0;
  return from_bits(bits(p) + e);
}

// The rare routines work in double and round to float once.

// +0 at -infinity, x * x at +infinity and at a NaN, which makes it quiet. Whether x was one of them.
inline bool exp_of_non_finite(float x, float& y) {
  const auto pattern = std::bit_cast<std::uint32_t>(x);
  if ((~pattern & 0x7F800000) != 0) return false;
  y = pattern == 0xFF800000 ? 0.0f : x * x;
  return true;
}

// Infinity and zero made by arithmetic, which follows the rounding direction in force.
inline double overflowed() {
  const double huge = opaque(std::numeric_limits<double>::max());
  return huge * huge;
}
inline double underflowed() {
  const double tiny = opaque(0x0010000000000001_f64);
  return tiny * tiny;
}

inline double with_exponent_field(std::uint64_t field) { return std::bit_cast<double>(field << 52); }

// 2^k
inline double power_of_two(std::int32_t k) { return with_exponent_field(std::uint64_t(k + 1023) & 2047); }

// A sum with a shifter in double: the low bits of its pattern hold n = 64 k + j.
struct split_index {
  std::int32_t j, k;
  explicit split_index(double shifted) {
    const auto n = std::int32_t(std::bit_cast<std::uint64_t>(shifted));
    j = n & 63;
    k = n >> 6;
  }
};

}  // namespace lanemath
