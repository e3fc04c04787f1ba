// e^x - 1, single precision.
//
// Default: 2^(j/64) from a table in two parts, e^r - 1 by a cubic. The native form: 2^(j/32) in one part, ln 2 unsplit,
// e^r - 1 by a quadratic. Rare lanes are computed in double.
//
// Largest errors found, in ulp:
//   expm1f: default 1.80163; _native 283.698
#include "exp/expm1.h"

namespace lanemath {
namespace {

struct expm1f_rows {
  float K;       // 64 / ln 2
  float L1, L2;  // ln 2 / 64, high and low part
  expm1_layout<float> at;
  float C2, C3;
};
constexpr expm1f_rows expm1f_table{
    .K = 0x42B8AA3B_f32,
    .L1 = 0x3C318000_f32,
    .L2 = 0xB65E8083_f32,
    .at = {.S = 0x49F0FE00_f32, .JMASK = 0x1F8, .EMASK = 0x1FE00, .entry_shift = 3, .exponent_shift = 14},
    .C2 = 0x3F00000F_f32,
    .C3 = 0x3E2AAABF_f32,
};

struct expm1f_native_rows {
  float K;  // 32 / ln 2
  float L;  // ln 2 / 32
  expm1_layout<float> at;
  float C2;
};
constexpr expm1f_native_rows expm1f_native_table{
    .K = 0x4238AA3B_f32,
    .L = 0x3CB17218_f32,
    .at = {.S = 0x4A403F80_f32, .JMASK = 0x7C, .EMASK = 0x7F80, .entry_shift = 2, .exponent_shift = 16},
    .C2 = 0x3F00000F_f32,
};

constexpr float RARE = 0x42AD496B_f32;  // 86.64339

LANEMATH_RARE expm1f_rare(const float* px, float* py) { return expm1_rare_lane(px, py, expf_bounds); }

struct expm1f_guards {
  using signature = float(float);
  static constexpr auto rare = expm1f_rare;
  static auto rare_test(auto x) { return expm1_beyond(x, RARE); }
};

struct expm1f_standard : expm1f_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = expm1f_table;
    const V n = round_to<direction::nearest>(x * c.K);
    const V r = (x - c.L1 * n) - c.L2 * n;
    const expm1_power<V> power(n, c.at);
    const auto [hi, lo] = look_up(expm1f_64, power.j);
    const V u = lo * power.e;
    const V p = r + (c.C3 * r + c.C2) * (r * r);
    return expm1_sum(x, power.times(hi), u, p);
  }
};

struct expm1f_native : expm1f_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = expm1f_native_table;
    const V n = round_to<direction::nearest>(x * c.K);
    const V r = x - c.L * n;
    const expm1_power<V> power(n, c.at);
    const V p = r + (r * r) * c.C2;
    return native_expm1_sum(x, power.times(look_up(expm1f_native_32, power.j)), p);
  }
};

}  // namespace

LANEMATH_EXPORT(expm1f, expm1f_standard)
LANEMATH_EXPORT(expm1f, expm1f_native, _native)

}  // namespace lanemath
