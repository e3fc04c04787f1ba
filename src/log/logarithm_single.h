// What the single-precision logarithms share.
#pragma once

#include "log/logarithm.h"

namespace lanemath {

// x = 2^k (1 + r) with 1 + r from 2/3 to 4/3, so that near 1 nothing cancels.
template <class V>
struct centred_mantissa {
  static constexpr std::int32_t TWOTHIRDS = 0x3F2AAAAB;

  decltype(bits(V())) k;
  V r;

  LANEMATH_INLINE explicit centred_mantissa(V x) {
    const auto a = bits(x) - TWOTHIRDS;
    k = a >> 23;
    r = from_bits((a & std::int32_t(format<float>::fraction)) + TWOTHIRDS) - 1.0f;
  }
};

// ln(1 + r) = r + q(r) r^2; the shortest q serves ln(1 + x) as well.
inline constexpr float LN2_F32 = 0x3F317218_f32;
inline constexpr float native_ln_polynomial[] = {0x3E612933_f32, 0xBE88E8FE_f32, 0x3EAA7160_f32, -0.5f};

template <class V, std::size_t N>
LANEMATH_INLINE V ln_of_one_plus(V r, const float (&q)[N]) {
  return r + (horner(r, q) * r) * r;
}

}  // namespace lanemath
