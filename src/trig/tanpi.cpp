// tan(pi x), both precisions.
//
// Default, double: steps of 1/256 and a remainder, as the tangent of x; pi times the remainder in two parts. Default,
// single: in doubles, a polynomial over 1 - 4 r^2, which is exact and has the poles' zeros. The native forms: r is the
// distance, at most 1/4, to a multiple of 1/2, and next to the poles the reciprocal of a polynomial is taken.
//
// Largest errors found, in ulp:
//   tanpi: default 0.782797; _native 1.05655e7
//   tanpif: default 0.538154; _native 741.58
//
// Looks odd and is meant, see docs/design.md: signs at whole numbers.
#include "trig/pi_scaled.h"
#include "trig/tangent.h"

namespace lanemath {
namespace {

template <class T>
struct tanpi_fit;
template <>
struct tanpi_fit<float> {
  // tan(pi r) (1 - 4 r^2) / r, |r| <= 1/2, in doubles. Few enough bits after the point for sums that are exact at 1/4:
  // the result there is 1 however it is rounded.
  static constexpr double full[] = {0x400921FB544AA05D_f64, 0xC001D8FA3856EE60_f64, 0xBFE13FC65488A400_f64,
                                    0xBFCB0A0362FE0000_f64, 0xBFB5BF8409200000_f64, 0xBFACC2301C000000_f64};
  static constexpr float QUARTER = 0.25f;
  static constexpr float native[] = {0x40490D95_f32, 0x41267B97_f32, 0x420DF6C3_f32, 0x438E268D_f32};
};
template <>
struct tanpi_fit<double> {
  static constexpr double PI_LESS_THREE = 0x3FC21FB54442D184_f64;
  static constexpr double QUARTER = 0.25;
  static constexpr double native[] = {0x400921FB53C58ECE_f64, 0x4024ABBDE18C183F_f64, 0x4044666B1357452D_f64,
                                      0x406469EF76716D80_f64, 0x4083C882A3C44FB0_f64, 0x40A920A770681E5D_f64,
                                      0xC046D388E106BF9E_f64, 0x40FEF09BF53554E6_f64};
};

// The tangent of pi f, |f| <= 1; its sign at a pole is that of f.
template <int W>
LANEMATH_INLINE lanes<double, W> tangent_of_pi(const lanes<double, W>& f) {
  using c = tanpi_fit<double>;
  using V = lanes<double, W>;
  const auto [t, d] = steps_and_rest(f);
  const V dh = without_low_bits(d, 2);
  const auto [r, rl] = fast_sum(dh * 3.0, (d - dh) * 3.0 + d * c::PI_LESS_THREE);
  const V y = tangent_of_steps(bits(t), r, rl);
  // Poles, and NaNs with all their bits.
  return select(unordered(y, y), f * std::numeric_limits<double>::infinity(), y);
}
template <int W>
LANEMATH_INLINE lanes<float, W> tangent_of_pi(const lanes<float, W>& f) {
  const lanes<float, W> a = magnitude(f), r = a - where(a > 0.5f, lanes<float, W>(1.0f));
  const lanes<double, W> wide = convert<double>(r), z = wide * wide;
  const auto y = (wide * polynomial_by_halves(z, tanpi_fit<float>::full)) / magnitude(1.0 - 4.0 * z);
  return flipped(convert<float>(y), sign_of(f));
}

template <class T, bool Native>
struct tanpi_form {
  using signature = T(T);
  template <class V>
  static V kernel(V x) {
    const V f = within_a_turn(magnitude(x));
    const V a = magnitude(f);
    // A zero at an odd integer is negative.
    const auto odd = (a == one_v<T>)&sign_mask<T>;
    if constexpr (Native) {
      const V m = distance_to_whole(a);
      const auto past_quarter = m > tanpi_fit<T>::QUARTER;
      const V r = select(past_quarter, half_v<T> - m, m);
      const V t = r * polynomial_by_halves(r * r, tanpi_fit<T>::native);
      const V y = select(past_quarter, one_v<T> / t, t);
      // Negative in the second and fourth quarter of a turn.
      const auto negative = sign_of(f) ^ sign_of(half_v<T> - a);
      return flipped(y, (negative | odd) ^ sign_of(x));
    } else {
      return flipped(with_bits(tangent_of_pi(f), odd), sign_of(x));
    }
  }
};

using tanpi_standard = tanpi_form<double, false>;
using tanpi_native = tanpi_form<double, true>;
using tanpif_standard = tanpi_form<float, false>;
using tanpif_native = tanpi_form<float, true>;

}  // namespace

LANEMATH_EXPORT(tanpi, tanpi_standard)
LANEMATH_EXPORT(tanpi, tanpi_native, _native)
LANEMATH_EXPORT(tanpif, tanpif_standard)
LANEMATH_EXPORT(tanpif, tanpif_native, _native)

}  // namespace lanemath
