// e^x, single precision.
//
// Default: x = (n / 128) ln 2 + r with n = 128 k + j; 2^(j/128) from a table of high and low parts, e^r by a quadratic,
// 2^k by a multiplication. The native form (also _half): a cubic over a whole binade. _rm: ln 2 in two parts and a
// quintic, no table. Rare lanes are computed in double.
//
// Largest errors found, in ulp:
//   expf: default 0.568234; _native, _half 2168.9; _rm 2.93242
#include "exp/exponential_rare.h"

namespace lanemath {
namespace {

struct expf_rows {
  float K;             // 128 / ln 2
  float S;             // shifter, 1.5 * 2^23
  float L1, L2;        // ln 2 / 128, high and low part
  std::int32_t BIAS;   // exponent bias of 1.0, shifted down by 16 bits
  std::int32_t EMASK;  // exponent field
  std::int32_t JMASK;  // table index bits
  float HALF;
};
constexpr expf_rows expf_table{
    .K = 0x4338AA3B_f32,
    .S = 0x1.8p23f,
    .L1 = 0x3BB18000_f32,
    .L2 = 0xB5DE8083_f32,
    .BIAS = 0x3F80,
    .EMASK = 0x7F800000,
    .JMASK = 0x7F,
    .HALF = 0.5f,
};

constexpr float LOG2E = 0x3FB8AA3B_f32;  // 1 / ln 2

constexpr float native_polynomial[] = {0x3D63582B_f32, 0x3E77D66A_f32, 0x3F317422_f32, 1.0f};

struct expf_rm_rows {
  float S;     // shifter
  float H, L;  // ln 2, high and low part
  float B0, B1, B2, B3, B4, B5;
};
constexpr expf_rm_rows expf_rm_table{
    .S = 0x1.8p23f,
    .H = 0x3F317200_f32,
    .L = 0x35BFBE8E_f32,
    .B0 = 1.0f,
    .B1 = 0x3F7FFFFE_f32,
    .B2 = 0x3EFFFF34_f32,
    .B3 = 0x3E2AACAC_f32,
    .B4 = 0x3D2B8392_f32,
    .B5 = 0x3C07D9FE_f32,
};

// Bounds of the guards, the same in all variants.
constexpr std::int32_t RARE = 0x42AEAC4F;  // 87.33654
constexpr float OVF = 0x42B17217_f32;      // 88.72283: infinite above
constexpr float UNF = 0xC2CFF1B4_f32;      // -103.97208: zero below

LANEMATH_RARE expf_rare(const float* px, float* py) { return exp_rare_lane(px, py, exp_power, expf_bounds); }

struct expf_guards : rare_above<float(float), expf_rare, RARE> {
  template <class V, class M>
  static void fix_up(V x, V& y, M& rare) {
    saturate(x, y, rare, OVF, UNF);
  }
};

struct expf_standard : expf_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = expf_table;
    const V t = x * c.K + c.S;
    const auto j = bits(t) & c.JMASK;
    const V scale = from_bits(((bits(t) + c.BIAS) << 16) & c.EMASK);
    const V m = t - c.S;
    const V r = (x - m * c.L1) - m * c.L2;
    const V p = r + (r * r) * c.HALF;
    const auto [hi, lo] = look_up(exp2_128, j);
    const V y = hi + (p * hi + lo);
    return y * scale;
  }
};

struct expf_native : expf_guards {
  template <class V>
  static V kernel(V x) {
    return exp2_by_polynomial(x * LOG2E, integer_shifter<float>, native_polynomial);
  }
};

struct expf_rm : expf_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = expf_rm_table;
    const V t = x * LOG2E + c.S;
    const auto e = bits(t) << 23;
    const V m = t - c.S;
    const V r = (x - m * c.H) - m * c.L;
    const V q = (((c.B5 * r + c.B4) * r + c.B3) * r + c.B2) * r + c.B1;
    const V p = r * q + c.B0;
    return from_bits(bits(p) + e);
  }
};

}  // namespace

LANEMATH_EXPORT(expf, expf_standard)
LANEMATH_EXPORT(expf, expf_native, _native)
LANEMATH_SAME(expf, _native, _half)
LANEMATH_EXPORT(expf, expf_rm, _rm)

}  // namespace lanemath
