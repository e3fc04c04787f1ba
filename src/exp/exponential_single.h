// What the single-precision exponentials share.
#pragma once

#include "exp/exponential_rare.h"

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

}  // namespace lanemath
