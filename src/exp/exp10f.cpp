// 10^x, single precision.
//
// Default: x = (n / 128) log10(2) + r with n = 128 k + j; 2^(j/128) from a table of high and low parts, 10^r by a
// quadratic, k added to the exponent field. The native form (also _half and _rm): 2^(x log2(10)) by a cubic over a
// whole binade. Rare lanes are computed in double.
//
// Largest errors found, in ulp:
//   exp10f: default 0.55642; _native, _half, _rm 1304.27
#include "exp/exponential_rare.h"

namespace lanemath {
namespace {

struct exp10f_rows {
  float K;             // 128 log2(10)
  float S;             // shifter, 1.5 * 2^23
  float L1, L2;        // log10(2) / 128, high and low part
  float P1, P2;        // polynomial
  std::int32_t JMASK;  // table index bits
};
constexpr exp10f_rows exp10f_table{
    .K = 0x43D49A78_f32,
    .S = 0x1.8p23f,
    .L1 = 0x3B1A4000_f32,
    .L2 = 0xB5FB2BD8_f32,
    .P1 = 0x40135D97_f32,
    .P2 = 0x4029A929_f32,
    .JMASK = 0x7F,
};

constexpr float LOG2T = 0x40549A78_f32;    // log2(10)
constexpr std::int32_t RARE = 0x4217B818;  // 37.92978

LANEMATH_RARE exp10f_rare(const float* px, float* py) {
  if (exp_of_non_finite(*px, *py)) return status::ordinary;
  const double x = *px;
  if (x > 0x4043441360000000_f64) {  // 38.53184
    *py = overflowed<float>();
    return status::overflow;
  }
  if (x < 0xC04693C6A0000000_f64) {  // -45.1545
    *py = 0.0f;
    return status::underflow;
  }
  const rare_power p = exp10_power(x);
  *py = float(scaled(p.w + p.hi, p.k));
  return x <= 0xC042F70320000000_f64 ? status::underflow : status::ordinary;  // -37.92978
}

using exp10f_guards = rare_above<float(float), exp10f_rare, RARE>;

struct exp10f_standard : exp10f_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = exp10f_table;
    const V t = x * c.K + c.S;
    const auto j = bits(t) & c.JMASK;
    const auto e = (bits(t) & ~c.JMASK) << 16;
    const V m = t - c.S;
    const V r = (x - m * c.L1) - m * c.L2;
    const V p = (c.P2 * r + c.P1) * r;
    const auto [hi, lo] = look_up(exp2_128, j);
    const V y = hi + (p * hi + lo);
    return from_bits(bits(y) + e);
  }
};

struct exp10f_native : exp10f_guards {
  template <class V>
  static V kernel(V x) {
    return exp2_by_polynomial(x * LOG2T, integer_shifter<float>, native_exp2_cubic);
  }
};

}  // namespace

LANEMATH_EXPORT(exp10f, exp10f_standard)
LANEMATH_EXPORT(exp10f, exp10f_native, _native)
LANEMATH_SAME(exp10f, _native, _half)
LANEMATH_SAME(exp10f, _native, _rm)

}  // namespace lanemath
