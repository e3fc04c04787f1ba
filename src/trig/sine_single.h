// What the single-precision sine and cosine share.
#pragma once

#include "trig/sine_rare.h"
#include "trig/trigonometric.h"

namespace lanemath {

constexpr std::int32_t LARGE_SINGLE = 0x461C4000;  // 10000: the short reduction ends here

inline constexpr float native_pi_single[] = {0x40490000_f32, 0x3A7DA000_f32, 0x34222169_f32};
inline constexpr float pi_single[] = {0x40490000_f32, 0x3A7DA000_f32, 0x34222000_f32, 0x2CB4611A_f32};

// What the large-argument stage computes from the remainder alone.
template <class V>
struct large_single {
  V r, rl, S3, Cz;
  LANEMATH_INLINE large_single(const V& r, const V& rl) : r(r), rl(rl) {
    const V z = r * r;
    const V C = 0x3D2AAA7C_f32 * z + -0.5f;
    Cz = z * C;
    const V S = 0x3C08885C_f32 * z + 0xBE2AAAAB_f32;
    S3 = (S * z) * r;
  }
  // The sine of a step plus the remainder. The last sum is grouped differently for a pair of results and for one.
  template <bool Pair, int W>
  LANEMATH_INLINE V sine(const lanes<std::int32_t, W>& j) const {
    const auto [a, b, c, d] = look_up_row(sincos_256, j);
    const V m1 = r * d, m2 = r * a;
    const auto [h1, e1] = fast_sum(b, m1);
    const auto [h2, e2] = fast_sum(h1, m2);
    const V e = e2 + e1;
    const V G = (a + d) - r * b;
    const V t1 = rl * G + c;
    const V t2 = b * Cz + t1;
    if constexpr (Pair)
      return h2 + ((G * S3 + t2) + e);
    else
      return h2 + (t2 + (G * S3 + e));
  }
};

// The guards of an operation with one result. Adding `quarter` steps turns the sine into the cosine.
template <auto Routine, int Quarter>
struct single_guards : rare_above<float(float), Routine, LARGE_SINGLE> {
  template <int W, class M>
  static void fix_up(lanes<float, W> x, lanes<float, W>& y, M& rare) {
    const auto stage = [](const auto& v) LANEMATH_LAMBDA {
      const auto [j, r, rl] = reduce_to_step(v);
      return large_single(r, rl).template sine<false>((j + Quarter) & 0xFF);
    };
    large_stage(stage, x, y, rare);
  }
};

}  // namespace lanemath
