// sin x and cos x, double precision, from one reduction: the cosine's multiple of pi is the sine's plus or minus a
// half, by the sign of the remainder. Otherwise as the sine; the large-argument stage starts at 2^23.
//
// Largest errors found, in ulp:
//   sincos: default 3.62671; _native 6.14232e7
//   sincosreg: default 3.62671; _native 6.14232e7
#include "trig/sine_double.h"

namespace lanemath {
namespace {

constexpr double sincos_c[] = {0xBD69F0D60811AAC8_f64, 0x3DE60E6857A2F220_f64, 0xBE5AE63546002231_f64,
                               0x3EC71DE38030FEA0_f64, 0xBF2A01A019A5B86D_f64, 0x3F8111111110A4A6_f64,
                               0xBFC55555555554A7_f64};

template <auto& Pi, auto& C>
struct sincos_form {
  using signature = through_pointer<double, double>(double);
  static constexpr auto rare = sine_cosine_rare<double>;
  static constexpr bool tested_first = true;
  template <class V>
  LANEMATH_INLINE static two_results<V, V> kernel(V x) {
    const two_remainders<Pi, V> r(magnitude(x));
    const V sine = flipped(odd_sine(r.sine, r.sine, C), r.sine_sign ^ sign_of(x));
    const V cosine = flipped(odd_sine(r.cosine, r.cosine, C), r.cosine_sign);
    return {sine, select(x == 0.0, V(1.0), cosine)};
  }
  static auto rare_test(auto x) { return ~(magnitude(x) <= 0x1p23); }
};

struct sincos_native : sincos_form<native_pi_double, native_c_double> {
  template <int W, class M>
  static void fix_up(lanes<double, W> x, lanes<double, W>& sine, lanes<double, W>& cosine, M& rare) {
    if (!any(rare & (magnitude(x) <= native_largest))) return;
    const auto stage = [](const auto& v) LANEMATH_LAMBDA {
      const auto at = native_large(v);
      return two_results<decltype(at.r), decltype(at.r)>{at.sine(), at.cosine()};
    };
    large_stage(stage, x, sine, cosine, rare, native_largest);
  }
};
struct sincos_standard : sincos_form<pi_double, sincos_c> {
  template <int W, class M>
  static void fix_up(lanes<double, W> x, lanes<double, W>& sine, lanes<double, W>& cosine, M& rare) {
    const auto stage = [](const auto& v) LANEMATH_LAMBDA {
      const auto [j, r, rl] = reduce_to_step(magnitude(v));
      const large_double at(r, rl);
      using V = std::decay_t<decltype(r)>;
      return two_results<V, V>{flipped(at.sine(j), sign_of(v)), at.sine((j + 128) & 0x1FF)};
    };
    large_stage(stage, x, sine, cosine, rare);
  }
};
struct sincosreg_standard : sincos_standard {
  using signature = pair_of<double, double>(double);
};
struct sincosreg_native : sincos_native {
  using signature = pair_of<double, double>(double);
};

}  // namespace

LANEMATH_EXPORT(sincos, sincos_standard)
LANEMATH_EXPORT(sincos, sincos_native, _native)
LANEMATH_EXPORT(sincosreg, sincosreg_standard)
LANEMATH_EXPORT(sincosreg, sincosreg_native, _native)

}  // namespace lanemath
