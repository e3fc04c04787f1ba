// 2^x, single precision.
//
// Default at widths 2, 3, 8 and 16, and _rm: x = n + f, 2^f by a polynomial of degree 6, n added to the exponent field.
// The native form (also _half): a cubic whose constant term is not 1. The default form at width 1 works in double with
// a table of 256 entries; the one at width 4 has a table of 64 entries and a monic quadratic. Rare lanes are computed
// in double.
//
// Largest errors found, in ulp:
//   exp2f: default, _rm, other widths 1.10173; _native, _half 1230.28; default, width 1 0.506904; default, width 4
//     2.55476
//
// Looks odd and is meant, see docs/design.md: overflow in other directions, NaNs.
#include "exp/exponential_rare.h"

namespace lanemath {
namespace {

constexpr float exp2f_polynomial[] = {
    0x39213C8C_f32, 0x3AAF7A51_f32, 0x3C1D962C_f32, 0x3D6357CF_f32, 0x3E75FDEF_f32, 0x3F317218_f32, 1.0f};

// Keeps the integer addition to the exponent field away from the ends of the range.
constexpr std::int32_t RARE = 0x42FC0000;  // 126

LANEMATH_RARE exp2f_rare(const float* px, float* py) {
  if (exp_of_non_finite(*px, *py)) return status::ordinary;
  const double x = *px;
  if (x >= 128.0) {
    *py = overflowed<float>();
    return status::overflow;
  }
  if (x <= -150.0) {
    *py = underflowed<float>();
    return status::underflow;
  }
  const rare_power p = exp2_power(x);
  *py = float(scaled(p.w + p.hi, p.k));
  return x < -126.0 ? status::underflow : status::ordinary;
}

using exp2f_guards = rare_above<float(float), exp2f_rare, RARE>;

struct exp2f_standard : exp2f_guards {
  template <class V>
  static V kernel(V x) {
    return exp2_by_polynomial(x, integer_shifter<float>, exp2f_polynomial);
  }
};

struct exp2f_native : exp2f_guards {
  template <class V>
  static V kernel(V x) {
    return exp2_by_polynomial(x, integer_shifter<float>, native_exp2_cubic);
  }
};

struct exp2f_width_1 {
  using signature = float(float);

  static lanes<float, 1> kernel(lanes<float, 1> lane) {
    const float x = lane.g[0];
    const auto pattern = pattern_of(x);
    const auto a = pattern & 0x7FFFFFFF;
    if (a - 0x31800000 < 0x42FC0000 - 0x31800000) [[likely]]  // 2^-28 <= |x| < 126
      return in_range(x);
    if (a < 0x31800000) return x + 1.0f;
    if (a < 0x43200000) {  // below 160
      const float y = in_range(x);
      return is_finite(y) ? y : overflowed<float>();
    }
    if (a < 0x7F800000) return pattern >> 31 ? underflowed<float>() : overflowed<float>();
    return pattern == 0xFF800000 ? 0.0f : x + x;
  }

 private:
  static float in_range(float x) {
    constexpr double shifter = 0x1.8p44;
    const double xd = x;
    const double t = shifter + xd;
    const auto i = std::int32_t(pattern_of(t));
    const double f = xd + (shifter - t);
    const auto power = std::uint64_t(std::int64_t(i >> 8)) << 52;
    const double v = std::bit_cast<double>(pattern_of(exp2_256[i & 0xFF]) + power);
    constexpr double E1 = 0x3FE62E42FEFA72C5_f64, E2 = 0x3FCEBFBDFF82C58E_f64;
    return float(v * ((E1 * f + 1.0) + (E2 * f) * f));
  }
};

struct exp2f_width_4_rows {
  float S2;      // shifter that leaves 6 fraction bits, 1.5 * 2^17
  float Q1, Q0;  // monic quadratic
};
constexpr exp2f_width_4_rows exp2f_width_4_table{.S2 = 0x1.8p17f, .Q1 = 0x4038AA68_f32, .Q0 = 0x40853526_f32};

template <class V>
V flush_denormals(V x) {
  return select((bits(x) & 0x7F800000) == 0, V(0.0f), x);
}

// One lane, compared by bit patterns. A NaN is returned unchanged.
LANEMATH_RARE exp2f_lane(const float* px, float* py) {
  using scalar = lanes<float, 1>;
  constexpr auto& c = exp2f_width_4_table;
  const scalar x = flush_denormals(scalar(*px));
  const auto pattern = std::bit_cast<std::int32_t>(x.g[0]);
  const auto magnitudes = std::uint32_t(pattern);           // as in exp2.cpp
  if (pattern >= 0x43000000 || magnitudes >= 0xC3160000) {  // 128, -150
    auto special = pattern >= 0x43000000 ? 0x7F800000 : 0;
    if ((pattern & 0x7FFFFFFF) > 0x7F800000) special = pattern;
    __builtin_memcpy(py, &special, sizeof special);
    return status::ordinary;
  }
  float shift = 0.0f, factor = 1.0f;
  if (magnitudes >= 0xC2F70000) {  // -123.5
    shift = 24.0f;
    factor = 0x1p-24f;
  }
  if (pattern > 0x42F70000) {  // 123.5
    shift = -24.0f;
    factor = 0x1p24f;
  }
  const scalar y = flush_denormals(x + shift);
  const scalar t = y + c.S2;
  const scalar f = (c.S2 - t) + y;
  const auto j = bits(t) & 0x3F;
  const scalar scale = from_bits(((bits(t) + 0x1FC0) & 0x3FC0) << 17);
  const scalar result = ((c.Q1 + f) * f + c.Q0) * (look_up(exp2_monic_64, j).hi * scale) * factor;
  *py = result.g[0];
  return status::ordinary;
}

struct exp2f_width_4 : rare_above<float(float), exp2f_lane, 0x42F70000> {  // 123.5
  static constexpr bool one_marks_all = true;

  template <class V>
  static V kernel(V x) {
    constexpr auto& c = exp2f_width_4_table;
    const V d = flush_denormals(x);
    const V t = c.S2 + x;
    const V f = (c.S2 - t) + d;
    const auto j = bits(t) & 0x3F;
    const V g = (c.Q1 + f) * f + c.Q0;
    const V scale = from_bits(((bits(t) + 0x1FC0) >> 6) << 23);
    return (look_up(exp2_monic_64, j).hi * scale) * g;
  }
};

}  // namespace

LANEMATH_EXPORT(exp2f, exp2f_standard, _rm)
LANEMATH_EXPORT(exp2f, exp2f_native, _native)
LANEMATH_SAME(exp2f, _native, _half)

LANEMATH_EXPORT_AT(1, exp2f, exp2f_width_1)
LANEMATH_SAME_AT(2, exp2f, _rm, )
LANEMATH_SAME_AT(3, exp2f, _rm, )
LANEMATH_EXPORT_AT(4, exp2f, exp2f_width_4)
LANEMATH_SAME_AT(8, exp2f, _rm, )
LANEMATH_SAME_AT(16, exp2f, _rm, )

}  // namespace lanemath
