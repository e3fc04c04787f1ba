// sin x and cos x, single precision, from one reduction: the cosine's multiple of pi is the sine's plus or minus a
// half, by the sign of the remainder. Otherwise as the sine.
//
// Largest errors found, in ulp:
//   sincosf: default 2.86099; _native, _rm 2524.73
//   sincosregf: default 2.86099; _native 2524.73
#include "trig/sine_single.h"

namespace lanemath {
namespace {

constexpr float sincosf_c[] = {0x362EDEF8_f32, 0xB94FB7FF_f32, 0x3C08876A_f32, 0xBE2AAAA7_f32};
constexpr float sincosf_native_c[] = {0x3BF84524_f32, 0xBE29E72F_f32, 0x3F7FF87C_f32};

template <auto& Pi, auto& C>
struct sincosf_form : rare_above<through_pointer<float, float>(float), sine_cosine_rare<float>, LARGE_SINGLE> {
  template <class V>
  LANEMATH_INLINE static two_results<V, V> kernel(V x) {
    const two_remainders<Pi, V> r(magnitude(x));
    const V sine = odd_sine(r.sine, flipped(r.sine, r.sine_sign), C);
    const V cosine = odd_sine(r.cosine, flipped(r.cosine, r.cosine_sign), C);
    return {flipped(sine, sign_of(x)), select(x == 0.0f, V(1.0f), cosine)};
  }
  template <int W, class M>
  static void fix_up(lanes<float, W> x, lanes<float, W>& sine, lanes<float, W>& cosine, M& rare) {
    const auto stage = [](const auto& v) LANEMATH_LAMBDA {
      const auto [j, r, rl] = reduce_to_step(magnitude(v));
      const large_single at(r, rl);
      using V = std::decay_t<decltype(r)>;
      return two_results<V, V>{flipped(at.template sine<true>(j), sign_of(v)), at.template sine<true>((j + 64) & 0xFF)};
    };
    large_stage(stage, x, sine, cosine, rare);
  }
};

struct sincosf_standard : sincosf_form<pi_single, sincosf_c> {};
struct sincosf_native : sincosf_form<native_pi_single, sincosf_native_c> {};
struct sincosregf_standard : sincosf_standard {
  using signature = pair_of<float, float>(float);
};
struct sincosregf_native : sincosf_native {
  using signature = pair_of<float, float>(float);
};

}  // namespace

LANEMATH_EXPORT(sincosf, sincosf_standard)
LANEMATH_EXPORT(sincosf, sincosf_native, _native)
LANEMATH_SAME(sincosf, _native, _rm)
LANEMATH_EXPORT(sincosregf, sincosregf_standard)
LANEMATH_EXPORT(sincosregf, sincosregf_native, _native)

}  // namespace lanemath
