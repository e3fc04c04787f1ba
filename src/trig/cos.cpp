// cos x, double precision, as sin(pi/2 - |x|): half-integer multiples of pi are taken off instead of whole ones. The
// bound of the short reduction applies to that difference. Otherwise as the sine.
//
// Largest errors found, in ulp:
//   cos: default 3.64431; _native 6.14232e7
#include "trig/sine_double.h"

namespace lanemath {
namespace {

constexpr double cos_c[] = {0xBD69F0D60811AAC8_f64, 0x3DE60E6857A2F220_f64, 0xBE5AE63546002231_f64,
                            0x3EC71DE38030FEA0_f64, 0xBF2A01A019A5B87B_f64, 0x3F8111111110A4A8_f64,
                            0xBFC55555555554A7_f64};

template <auto& Pi, auto& C>
struct cos_form {
  using signature = double(double);
  static constexpr auto rare = cosine_rare<double>;
  static constexpr bool tested_first = true;
  template <class V>
  static V kernel(V x) {
    const V a = magnitude(x);
    const V u = half_pi<double> - a;
    const V t = u * inverse_pi<double> + integer_shifter<double>;
    const V h = 0.5 - (t - integer_shifter<double>);
    V r = h * Pi[0] - a;
    for (std::size_t i = 1; i < std::size(Pi); ++i) r = Pi[i] * h + r;
    const V signed_r = flipped(r, parity(t));
    const V z = r * r, v = z * signed_r;
    return select(u == half_pi<double>, V(1.0), signed_r + horner(z, C) * v);
  }
  static auto rare_test(auto x) { return ~(magnitude(half_pi<double> - magnitude(x)) <= 0x1p23); }
};

struct cos_standard : cos_form<pi_double, cos_c>, double_large_stage<128> {};
struct cos_native : cos_form<native_pi_double, native_c_double>, double_native_stage<true> {};

}  // namespace

LANEMATH_EXPORT(cos, cos_standard)
LANEMATH_EXPORT(cos, cos_native, _native)

}  // namespace lanemath
