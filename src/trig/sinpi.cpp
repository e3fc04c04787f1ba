// sin(pi x) and cos(pi x), both precisions.
//
// Default, double: up to whole turns, x is exactly a multiple of 1/256 plus a remainder d. The result is the step's
// sine from a table, in two parts, plus short polynomials in d. The slope, pi times the step's cosine, is split into a
// number of few bits, whose products with the parts of d are exact, and the rest. Default, single: one polynomial in
// doubles. The native forms: one polynomial up to 1/2.
//
// Largest errors found, in ulp:
//   sinpi: default 0.782797; _native 4.78642e7
//   sinpif: default 0.600229; _native 1816.27
//   cospi: default 0.632164; _native 4.78642e7
//   cospif: default 0.600111; _native 1816.01
//
// Looks odd and is meant, see docs/design.md: native results above 1.
#include <iterator>

#include "numeric/split.h"
#include "trig/pi_scaled.h"

namespace lanemath {
namespace {

template <class T>
struct of_pi;
template <>
struct of_pi<float> {
  // In doubles. Few enough bits after the point for sums that are exact at 1/2: the result there is 1 however it is
  // rounded.
  static constexpr double full[] = {0x3FB3D42437802000_f64, 0xBFE324687A27A200_f64, 0x400466876B29F490_f64,
                                    0xC014ABBC02329376_f64, 0x400921FB51BF1613_f64};
  static constexpr float native[] = {0x4014E7A0_f32, 0xC0A4AA6F_f32, 0x40490A49_f32};
};
template <>
struct of_pi<double> {
  // (sin(pi d) / (pi d) - 1) / d^2 and (cos(pi d) - 1) / d^2 in d^2, highest power first
  static constexpr double sine[] = {0x3FE9F9C9B97D9A28_f64, 0xBFFA51A6625301B8_f64};
  static constexpr double cosine[] = {0x40103C1DB2490898_f64, 0xC013BD3CC9BE3B30_f64};
  static constexpr double native[] = {0x3FB3DAFF5DA18B33_f64, 0xBFE324CCAC0255A8_f64, 0x4004668AF4E909D3_f64,
                                      0xC014ABBC166DBC5B_f64, 0x400921FB52068F99_f64};
};

// The sine of pi f or, a quarter of a turn later, the cosine, |f| <= 1.
template <bool Cosine, int W>
LANEMATH_INLINE lanes<double, W> sine_of_pi(const lanes<double, W>& f) {
  using c = of_pi<double>;
  using V = lanes<double, W>;
  constexpr std::int32_t steps = std::size(of_pi_f64);
  const auto [t, d] = steps_and_rest(f);
  const auto j = (low_word(t) + (Cosine ? steps / 4 : 0)) & (steps - 1);
  const auto [value, value_low, slope, slope_rest] = look_up_row(of_pi_f64, j);
  const V z = d * d;
  const V dh = without_low_bits(d, 5), dl = d - dh;
  const auto [sum, lost] = fast_sum(value, dh * slope);
  const V above_linear = slope_rest + (slope + slope_rest) * (z * horner(z, c::sine));
  const V even = value * (z * horner(z, c::cosine));
  // In this order NaNs keep their bits: those of dh lose the lowest.
  const V rest = ordered_sum((d * above_linear + dl * slope) + even, lost + value_low);
  return ordered_sum(rest, sum);
}
// The sine of pi m, |m| <= 1/2.
template <int W>
LANEMATH_INLINE lanes<float, W> sine_to_half(const lanes<double, W>& m) {
  return convert<float>(m * horner(m * m, of_pi<float>::full));
}
template <class V>
LANEMATH_INLINE V native_sine(const V& m) {
  return m * horner(m * m, of_pi<typename V::value_type>::native);
}

template <class T, bool Native>
struct sinpi_form {
  using signature = T(T);
  static constexpr int groups_at_once = sizeof(T) == 8 && !Native ? 2 : 4;
  template <class V>
  static V kernel(V x) {
    const V f = within_a_turn(magnitude(x));
    if constexpr (Native) {
      // The addition turns -0 into +0, so that a zero gets the sign of x.
      return flipped(flipped(native_sine(distance_to_whole(magnitude(f))), sign_of(f)) + zero_v<T>, sign_of(x));
    } else if constexpr (sizeof(T) == 8) {
      return flipped(sine_of_pi<false>(f), sign_of(x));
    } else {
      const V m = maximum(minimum(1.0f - f, f), -1.0f - f);
      return flipped(sine_to_half(convert<double>(m)), sign_of(x));
    }
  }
};
template <class T, bool Native>
struct cospi_form {
  using signature = T(T);
  static constexpr int groups_at_once = sizeof(T) == 8 && !Native ? 2 : 4;
  template <class V>
  static V kernel(V x) {
    const V f = within_a_turn(x);
    if constexpr (Native)
      return native_sine(half_v<T> - magnitude(f));
    else if constexpr (sizeof(T) == 8)
      return sine_of_pi<true>(magnitude(f));
    else
      return sine_to_half(0.5 - magnitude(convert<double>(f)));
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

LANEMATH_EXPORT(sinpi, sinpi_standard)
LANEMATH_EXPORT(sinpi, sinpi_native, _native)
LANEMATH_EXPORT(sinpif, sinpif_standard)
LANEMATH_EXPORT(sinpif, sinpif_native, _native)
LANEMATH_EXPORT(cospi, cospi_standard)
LANEMATH_EXPORT(cospi, cospi_native, _native)
LANEMATH_EXPORT(cospif, cospif_standard)
LANEMATH_EXPORT(cospif, cospif_native, _native)

}  // namespace lanemath
