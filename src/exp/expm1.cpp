// e^x - 1, double precision.
//
// Default: 2^(j/128) from a table in two parts, e^r - 1 by a polynomial of degree 5. The native form: 2^(j/128) in one
// part, ln 2 unsplit, e^r - 1 by a cubic. Rare lanes use a table of high and low parts.
//
// Largest errors found, in ulp:
//   expm1: default 2.96224; _native 5.18915e6
#include "exp/expm1.h"

namespace lanemath {
namespace {

struct expm1_rows {
  double K;       // 128 / ln 2
  double L1, L2;  // ln 2 / 128, high and low part
  expm1_layout<double> at;
  double C2, C3, C4, C5;
};
constexpr expm1_rows expm1_table{
    .K = 0x40671547652B82FE_f64,
    .L1 = 0x3F762E42FEF80000_f64,
    .L2 = 0x3D41CF79ABC9E3B4_f64,
    .at = {.S = 0x42F80000001FF800_f64, .JMASK = 0x7F0, .EMASK = 0x3FF800, .entry_shift = 4, .exponent_shift = 41},
    .C2 = 0x3FDFFFFFFFFFFE5C_f64,
    .C3 = 0x3FC555555555541D_f64,
    .C4 = 0x3FA55555C2A9C0F3_f64,
    .C5 = 0x3F81111168877F38_f64,
};

struct expm1_native_rows {
  double K;  // 128 / ln 2
  double L;  // ln 2 / 128
  expm1_layout<double> at;
  double C2, C3;
};
constexpr expm1_native_rows expm1_native_table{
    .K = 0x40671547652B82FE_f64,
    .L = 0x3F762E42FEFA39EF_f64,
    .at = {.S = 0x43080000000FFC00_f64, .JMASK = 0x3F8, .EMASK = 0x1FFC00, .entry_shift = 3, .exponent_shift = 42},
    .C2 = 0x3FDFFFFFFFFFFE5C_f64,
    .C3 = 0x3FC555555555541D_f64,
};

constexpr double RARE = 0x40861DA04CBAFE43_f64;  // 707.70327

LANEMATH_RARE expm1_rare(const double* px, double* py) { return expm1_rare_lane(px, py, exp_bounds); }

struct expm1_guards {
  using signature = double(double);
  static constexpr auto rare = expm1_rare;
  static auto rare_test(auto x) { return expm1_beyond(x, RARE); }
};

struct expm1_standard : expm1_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = expm1_table;
    const V n = round_to<direction::nearest>(x * c.K);
    const V r = (x - c.L1 * n) - c.L2 * n;
    const expm1_power<V> power(n, c.at);
    const auto [hi, lo] = look_up(expm1_128, power.j);
    const V u = lo * power.e;
    const V s = r * r;
    const V p = r + s * ((c.C5 * r + c.C4) * s + (c.C3 * r + c.C2));
    return expm1_sum(x, power.times(hi), u, p);
  }
};

struct expm1_native : expm1_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = expm1_native_table;
    const V n = round_to<direction::nearest>(x * c.K);
    const V r = x - c.L * n;
    const expm1_power<V> power(n, c.at);
    const V p = r + (c.C3 * r + c.C2) * (r * r);
    return native_expm1_sum(x, power.times(look_up(expm1_native_128, power.j)), p);
  }
};

}  // namespace

LANEMATH_EXPORT(expm1, expm1_standard)
LANEMATH_EXPORT(expm1, expm1_native, _native)

}  // namespace lanemath
