// tan(pi x), both precisions.
//
// r is the distance, at most 1/4, to a multiple of 1/2. The tangent of pi r is 4 r, which is exact, plus an odd
// polynomial; next to the poles its reciprocal is taken. The native forms: one part, fewer terms.
//
// Largest errors found, in ulp:
//   tanpi: default 1.24574; _native 1.05655e7
//   tanpif: default 1.25317; _native 741.345
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
  static constexpr float QUARTER = 0.25f, FOUR = 4.0f, PI_LESS_FOUR = 0xBF5BC095_f32;
  static constexpr float full[] = {0x41255DED_f32, 0x422333AC_f32, 0x43234980_f32, 0x441E7D24_f32,
                                   0x4547DFE7_f32, 0x431324E0_f32, 0x47F5EE36_f32};
  static constexpr float native[] = {0x40490D95_f32, 0x41267B97_f32, 0x420DF6C3_f32, 0x438E268D_f32};
};
template <>
struct tanpi_fit<double> {
  static constexpr double QUARTER = 0.25, FOUR = 4.0, PI_LESS_FOUR = 0xBFEB7812AEEF4B9F_f64;
  static constexpr double full[] = {0x4024ABBCE625BE5B_f64, 0x404466BC67759DD3_f64, 0x40645FFF9B50329D_f64,
                                    0x40845F472C2AC0D5_f64, 0x40A45F334B562129_f64, 0x40C45F26F68EC2DC_f64,
                                    0x40E45FEBBC45CFBA_f64, 0x4104553A4C274CE9_f64, 0x4124C1213A3DC4C5_f64,
                                    0x4141A2E32B471354_f64, 0x4171448D89DE180C_f64, 0xC18FC2B2911CD307_f64,
                                    0x41D2EC954B5D20BA_f64, 0xC1F74D898EE6385F_f64, 0x42175C0B23E93D9B_f64};
  static constexpr double native[] = {0x400921FB53C58ECE_f64, 0x4024ABBDE18C183F_f64, 0x4044666B1357452D_f64,
                                      0x406469EF76716D80_f64, 0x4083C882A3C44FB0_f64, 0x40A920A770681E5D_f64,
                                      0xC046D388E106BF9E_f64, 0x40FEF09BF53554E6_f64};
};

template <class T, bool Native>
struct tanpi_form {
  using signature = T(T);
  template <class V>
  static V kernel(V x) {
    const V f = within_a_turn(magnitude(x));
    const V a = magnitude(f);
    const V m = distance_to_whole(a);
    const auto past_quarter = m > tanpi_fit<T>::QUARTER;
    const V r = select(past_quarter, half_v<T> - m, m);
    const V z = r * r;
    V y;
    if constexpr (Native) {
      const V t = r * polynomial_by_halves(z, tanpi_fit<T>::native);
      y = select(past_quarter, one_v<T> / t, t);
    } else {
      const V high = r * tanpi_fit<T>::FOUR;
      const V low = r * tanpi_fit<T>::PI_LESS_FOUR + (r * z) * polynomial_by_halves(z, tanpi_fit<T>::full);
      const V at_pole = select(r == zero_v<T>, V(std::numeric_limits<T>::infinity()), reciprocal(high, low));
      y = select(past_quarter, at_pole, high + low);
    }
    // Negative in the second and fourth quarter of a turn and, for the sign of a zero, at odd integers.
    const auto negative = sign_of(f) ^ sign_of(half_v<T> - a);
    const auto odd = (a == one_v<T>)&sign_mask<T>;
    return flipped(y, (negative | odd) ^ sign_of(x));
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
