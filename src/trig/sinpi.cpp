// sin(pi x) and cos(pi x), both precisions.
//
// Default: a distance r of at most 1/4 to a multiple of 1/2; pi r in two parts and an odd polynomial. The cosine of pi
// r is 1 - 2 sin^2(pi r / 2). Light forms: a polynomial up to 1/2.
//
// Largest errors found, in ulp, in samples: sinpi 1.015 at -71.74100735341744 (0xC051EF6CAA1B4180), cospi 1.007, sinpif
// 0.999 but 1.391 among denormals (0x0011D5B6), cospif 1.022; light forms 4.79e7 and 1816.
#include "trig/pi_scaled.h"

namespace lanemath {
namespace {

template <class T>
struct sinpi_fit;
template <>
struct sinpi_fit<float> {
  static constexpr float full[] = {0xC0A55DDF_f32, 0x40232FE2_f32, 0xBF16DEC9_f32};
  static constexpr float light[] = {0x40490A49_f32, 0xC0A4AA6F_f32, 0x4014E7A0_f32};
};
template <>
struct sinpi_fit<double> {
  static constexpr double full[] = {0xC014ABBCE625BE46_f64, 0x400466BC67758C6A_f64, 0xBFE32D2CCE31FA29_f64,
                                    0x3FB5078300841253_f64, 0xBF7E3009539B8259_f64, 0x3F3E3FE157A22716_f64};
  static constexpr double light[] = {0x400921FB52068F99_f64, 0xC014ABBC166DBC5B_f64, 0x4004668AF4E909D3_f64,
                                     0xBFE324CCAC0255A8_f64, 0x3FB3DAFF5DA18B33_f64};
};

// The sine of pi m or, where `complement` tells, that of pi (1/2 - m); m is at most 1/2.
template <class V>
LANEMATH_INLINE V folded_sine(const V& m, bool complement) {
  using T = typename V::value_type;
  const V above = half_v<T> - m;
  const auto past_quarter = m > quarter_v<T>;
  const V r = complement ? select(past_quarter, above, m * half_v<T>) : select(past_quarter, above * half_v<T>, m);
  const auto [high, low] = times_pi(r);
  const V z = r * r;
  const V rest = low + (r * z) * polynomial(z, sinpi_fit<T>::full);
  const V sine = high + rest, below = (high - sine) + rest, twice = sine + sine;
  const V cosine = one_v<T> - (twice * sine + twice * (below + below));
  return complement ? select(past_quarter, sine, cosine) : select(past_quarter, cosine, sine);
}
template <class V>
LANEMATH_INLINE V light_sine(const V& m) {
  return m * polynomial(m * m, sinpi_fit<typename V::value_type>::light);
}

template <class T, bool Light>
struct sinpi_form {
  using signature = T(T);
  template <class V>
  static V kernel(V x) {
    const V f = within_a_turn(magnitude(x));
    const V m = distance_to_whole(magnitude(f));
    V y;
    if constexpr (Light)
      y = light_sine(m);
    else
      y = folded_sine(m, false);
    // The sum makes +0 of -0: a zero has the sign of x.
    return flipped(flipped(y, sign_of(f)) + zero_v<T>, sign_of(x));
  }
};
template <class T, bool Light>
struct cospi_form {
  using signature = T(T);
  template <class V>
  static V kernel(V x) {
    const V f = magnitude(within_a_turn(x));
    const V to_zero = half_v<T> - f;
    if constexpr (Light)
      return light_sine(to_zero);
    else
      return flipped(folded_sine(distance_to_whole(f), true), sign_of(to_zero));
  }
};

using sinpi_standard = sinpi_form<double, false>;
using sinpi_native = sinpi_form<double, true>;
using sinpif_standard = sinpi_form<float, false>;
using sinpif_native = sinpi_form<float, true>;
using cospi_standard = cospi_form<double, false>;
using cospi_native = cospi_form<double, true>;
using cospif_standard = cospi_form<float, false>;
using cospif_native = cospi_form<float, true>;

}  // namespace

LANEMATH_EXPORT(unary, sinpi, sinpi_standard, )
LANEMATH_EXPORT(unary, sinpi, sinpi_native, _native)
LANEMATH_EXPORT(unary, sinpif, sinpif_standard, )
LANEMATH_EXPORT(unary, sinpif, sinpif_native, _native)
LANEMATH_EXPORT(unary, cospi, cospi_standard, )
LANEMATH_EXPORT(unary, cospi, cospi_native, _native)
LANEMATH_EXPORT(unary, cospif, cospif_standard, )
LANEMATH_EXPORT(unary, cospif, cospif_native, _native)

}  // namespace lanemath
