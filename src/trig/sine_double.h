// What the double-precision sine and cosine share.
#pragma once

#include "trig/sine_rare.h"
#include "trig/trigonometric.h"

namespace lanemath {

inline constexpr double pi_double[] = {0x400921FB40000000_f64, 0x3E84442D00000000_f64, 0x3D08469880000000_f64,
                                       0x3B88CC51701B839A_f64};
inline constexpr double native_pi_double[] = {0x400921FB40000000_f64, 0x3E84442D00000000_f64, 0x3D08469898CC5170_f64};
inline constexpr double native_c_double[] = {0x3EC5D4567512BBD5_f64, 0xBF29F67D9395D587_f64, 0x3F8110EA968A0185_f64,
                                             0xBFC55554AD3EAF1F_f64};

// What the large-argument stage computes from the remainder alone, and the sine of a step plus the remainder.
template <class V>
struct large_double {
  V r, rl, S, Cz;
  LANEMATH_INLINE large_double(const V& r, const V& rl) : r(r), rl(rl) {
    const V z = r * r;
    S = (0x3F81110FABB3551C_f64 * z + 0xBFC5555555554448_f64) * z;
    S = S * r;
    const V C = (0xBF56C16AB163B2D7_f64 * z + 0x3FA5555555554CCF_f64) * z + -0.5;
    Cz = z * C;
  }
  template <int W>
  LANEMATH_INLINE V sine(const lanes<std::int32_t, W>& j) const {
    const auto [a, d, b, c] = look_up_row(sincos_512, j);
    const V m1 = r * d, m2 = r * a, G0 = a + d;
    const auto [h1, e1] = fast_sum(b, m1);
    const auto [h2, e2] = fast_sum(h1, m2);
    const V e = e2 + e1;
    const V t2 = S * G0 + e;
    const V G = G0 - r * b;
    const V t3 = Cz * b + t2, t4 = rl * G + c;
    return h2 + (t3 + t4);
  }
};

// The large-argument stage of an operation with one result. Adding `quarter` steps turns the sine into the cosine.
template <int Quarter>
struct double_large_stage {
  template <int W, class M>
  static void fix_up(lanes<double, W> x, lanes<double, W>& y, M& rare) {
    const auto stage = [](const auto& v) LANEMATH_LAMBDA {
      const auto [j, r, rl] = reduce_to_step(magnitude(v));
      const auto sine = large_double(r, rl).sine((j + Quarter) & 0x1FF);
      if constexpr (Quarter == 0)
        return flipped(sine, sign_of(v));
      else
        return sine;
    };
    large_stage(stage, x, y, rare);
  }
};

// The native forms take the routine's road, which in vectors ends below 2^30.
inline constexpr double native_largest = 0x1.fffffffffffffp29;
template <class V>
LANEMATH_INLINE sine_by_steps<V> native_large(const V& x) {
  return sine_by_steps<V>(reduce_middle<true>(magnitude(x), with_bits(V(1.0), sign_of(x))));
}
template <bool Cosine>
struct double_native_stage {
  template <int W, class M>
  static void fix_up(lanes<double, W> x, lanes<double, W>& y, M& rare) {
    if (!any(rare & (magnitude(x) <= native_largest))) return;
    const auto stage = [](const auto& v) LANEMATH_LAMBDA {
      const auto at = native_large(v);
      return Cosine ? at.cosine() : at.sine();
    };
    large_stage(stage, x, y, rare, native_largest);
  }
};

}  // namespace lanemath
