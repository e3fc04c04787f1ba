// cos x, single precision, as sin(x + pi/2): half-integer multiples of pi are taken off instead of whole ones, so that
// x itself is reduced. Otherwise as the sine.
//
// Largest errors found, in ulp:
//   cosf: default 2.51701; _native, _half, _rm 2536.28
#include "trig/sine_single.h"

namespace lanemath {
namespace {

constexpr float cosf_c[] = {0x362EDEF8_f32, 0xB94FB7FF_f32, 0x3C088766_f32, 0xBE2AAAA6_f32};
constexpr float cosf_native_c[] = {0x3BF84524_f32, 0xBE29E73F_f32, 0x3F7FF87C_f32};

template <auto& Pi, auto& C>
struct cosf_form : single_guards<cosine_rare<float>, 64> {
  template <class V>
  static V kernel(V x) {
    const V u = x + half_pi<float>;
    const V t = u * inverse_pi<float> + integer_shifter<float>;
    const V n = t - integer_shifter<float>, m = n - 0.5f;
    const V r = less_multiples(x, m, Pi);
    const V signed_r = flipped(r, parity(t));
    const V z = r * r, v = z * signed_r;
    V y;
    if constexpr (std::size(C) == 4)
      y = signed_r + horner(z, C) * v;
    else
      y = (C[0] * z + C[1]) * v + C[2] * signed_r;
    return select(u == half_pi<float>, V(1.0f), y);
  }
};

}  // namespace

using cosf_standard = cosf_form<pi_single, cosf_c>;
using cosf_native = cosf_form<native_pi_single, cosf_native_c>;
LANEMATH_EXPORT(cosf, cosf_standard)
LANEMATH_EXPORT(cosf, cosf_native, _native)
LANEMATH_SAME(cosf, _native, _half)
LANEMATH_SAME(cosf, _native, _rm)

}  // namespace lanemath
