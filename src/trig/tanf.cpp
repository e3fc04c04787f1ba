// tan x, single precision.
//
// x = N pi/2 + r with pi/2 in pieces (four, or three in the native form), and a quotient of two polynomials, inverted
// in odd quadrants. Above 8256, reduction by a window of 1 / (2 pi) and a table of 128 steps in half a turn; next to
// the pole its term is computed separately, by a reciprocal.
//
// Largest errors found, in ulp:
//   tanf: default 3.94385 (3.95 on any processor); _native, _half, _rm 923.474 (924 on any processor)
#include "trig/sine_single.h"
#include "trig/tangent.h"

namespace lanemath {
namespace {

constexpr std::int32_t LARGE = 0x46010000;  // 8256
constexpr float INVERSE_HALF_PI = 0x3F22F983_f32;
constexpr float half_pi_parts[] = {0x3FC90000_f32, 0x39FDA000_f32, 0x33A22000_f32, 0x2C34611A_f32};
constexpr float native_half_pi_parts[] = {0x3FC90000_f32, 0x39FDA000_f32, 0x33A22169_f32};
constexpr float N0 = 0x3F7FFFFC_f32, N1 = 0xBDC433B4_f32;
constexpr float D0 = 0x3F7FFFFC_f32, D1 = 0xBEDBB7AB_f32, D2 = 0x3C1F336B_f32;

LANEMATH_RARE tanf_rare(const float* px, float* py) { return sine_of_non_finite(*px, *py); }

struct accurate_stage {
  template <class V, class Row>
  static V tangent(const V& r, const Row& row) {
    const auto& [c0, c1, c2, c3, c4, c5, c6, c7, c8, c9, unused, unused_too] = row;
    const V D = c0 - r, e1 = (c0 - D) - r;
    const V dh = without_low_bits(D, 12), dl = e1 + ((D - dh) + c1);
    const V y = without_low_bits(reciprocal_estimate(dh), 12);
    const V e = 1.0f - dh * y;
    const V Y = (y + y * e) * (e * e + 1.0f);
    const V u = dl * Y;
    const V w = (u * u) - (u - e);
    const V qh = y * c2, ql = c2 * (Y * w);
    const auto [s, es] = fast_sum(c3, c5 * r);
    const auto [h, eh] = fast_sum(qh, s);
    const V p = r * ((r * r) * (c9 * r + c8) + (c7 * r + c6));
    return h + (p + (c4 + ((es + ql) + eh)));
  }
};
struct native_stage {
  template <class V, class Row>
  static V tangent(const V& r, const Row& row) {
    const auto& [c0, c1, c2, c3, c4, c5, c6, c7, c8, c9, unused, unused_too] = row;
    const V D = c0 - r;
    const V y = reciprocal_estimate(D);
    const V e = 1.0f - D * y;
    V Q = c2 * y;
    Q = Q + e * Q;
    const V A = c7 * r + c6, C = c5 * r + c3, B = c9 * r + c8;
    return (r * ((r * r) * B + A) + C) + Q;
  }
};

template <auto& Pieces, class Stage>
struct tanf_form : rare_above<float(float), tanf_rare, LARGE> {
  template <class V>
  static V kernel(V x) {
    const V a = magnitude(x);
    const V t = a * INVERSE_HALF_PI + integer_shifter<float>;
    const V r = less_multiples(a, t - integer_shifter<float>, Pieces);
    const V z = r * r;
    const V n = r * (N1 * z + N0);
    const V d = (D2 * z + D1) * z + D0;
    const auto odd = parity(t);
    const auto swap = odd >> 31;
    const V q = select(swap, d, n) / select(swap, n, d);
    return flipped(q, sign_of(x) ^ odd);
  }
  template <int W, class M>
  static void fix_up(lanes<float, W> x, lanes<float, W>& y, M& rare) {
    const auto stage = [](const auto& v) LANEMATH_LAMBDA {
      const auto [j, r, rl] = reduce_to_step(v);
      return Stage::tangent(r + rl, look_up_row(tangent_128, j & 0x7F));
    };
    large_stage(stage, x, y, rare);
  }
};

}  // namespace

using tanf_standard = tanf_form<half_pi_parts, accurate_stage>;
using tanf_native = tanf_form<native_half_pi_parts, native_stage>;
LANEMATH_EXPORT(tanf, tanf_standard)
LANEMATH_EXPORT(tanf, tanf_native, _native)
LANEMATH_SAME(tanf, _native, _half)
LANEMATH_SAME(tanf, _native, _rm)

}  // namespace lanemath
