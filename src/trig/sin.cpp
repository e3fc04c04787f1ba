// sin x, double precision.
//
// x = N pi + r with pi in four pieces, and an odd polynomial of degree 15; the native form has three pieces and degree
// 9. Above 2^24 the default form reduces by a window of 1 / (2 pi) and uses a table of 512 steps in a turn; the native
// form takes the steps of the rare routine, and from 2^30 on leaves the lanes to it.
//
// Largest errors found, in ulp:
//   sin: default 3.76891; _native 6.14232e7
#include "trig/sine_double.h"

namespace lanemath {
namespace {

constexpr double sin_c[] = {0xBD69F1517E9F65F0_f64, 0x3DE60E6BEE01D83E_f64, 0xBE5AE6355AAA4A53_f64,
                            0x3EC71DE3806ADD1A_f64, 0xBF2A01A019A659DD_f64, 0x3F8111111110A573_f64,
                            0xBFC55555555554A8_f64};

template <auto& Pi, auto& C>
struct sin_form {
  using signature = double(double);
  static constexpr auto rare = sine_rare<double>;
  static constexpr bool tested_first = true;
  template <class V>
  static V kernel(V x) {
    return sine<Pi, C>(x);
  }
  static auto rare_test(auto x) { return ~(magnitude(x) <= 0x1p24); }
};

struct sin_standard : sin_form<pi_double, sin_c>, double_large_stage<0> {};
struct sin_native : sin_form<native_pi_double, native_c_double>, double_native_stage<false> {};

}  // namespace

LANEMATH_EXPORT(sin, sin_standard)
LANEMATH_EXPORT(sin, sin_native, _native)

}  // namespace lanemath
