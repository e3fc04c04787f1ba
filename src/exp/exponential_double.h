// What the double-precision exponentials share.
#pragma once

#include "exp/exponential_rare.h"

namespace lanemath {

// Constants of the light kernels: 2^y by one polynomial over a whole binade, no table.
struct light_exp2_rows {
  double S;  // shifter: the sum's low bits are y rounded to an integer
  double A0, A1, A2, A3, A4, A5, A6;
};

// 2^y. The integer part is added to the exponent field of the polynomial's bits.
template <class V>
V light_exp2(V y, const light_exp2_rows& c) {
  const V t = y + c.S;
  const V f = y - (t - c.S);
  V p = c.A6 * f + c.A5;
  p = p * f + c.A4;
  p = p * f + c.A3;
  p = p * f + c.A2;
  p = p * f + c.A1;
  p = p * f + c.A0;
  return from_bits(bits(p) + (bits(t) << 52));
}

}  // namespace lanemath
