// log10 x, single precision.
//
// Default: the mantissa g is in [2^-9, 2^-8), n is an integer near R / g, where R = 111/256 is near log10 e, and the
// difference t = g n - R is almost exact. log10 x is the sum of the biased exponent times log10 2, log10(R / n) from a
// table that also takes off the bias, and a cubic in t, whose first term is t. The native form (also _half): x = 2^k (1
// + r) with 1 + r from 2/3 to 4/3, and a polynomial of degree 5. Rare lanes: zeros, denormals, negative values,
// infinities and NaNs.
//
// Largest errors found, in ulp:
//   log10f: default 0.770281 (0.8 on any processor); _native, _half 995.725
#include "log/logarithm_rare.h"
#include "log/logarithm_single.h"
#include "numeric/split.h"

namespace lanemath {
namespace {

struct log10f_rows {
  float R;       // scale of the reciprocal
  float LH, LL;  // log10(2), high and low part
  float P3, P2, P1;
};
constexpr log10f_rows log10f_table{
    .R = 0x3EDE0000_f32,
    .LH = 0x3E9A2100_f32,
    .LL = 0xB64AF600_f32,
    .P3 = 0x3FE35103_f32,
    .P2 = 0xBF93D7E4_f32,
    .P1 = 0x3AD3D366_f32,
};

constexpr float LG2 = 0x3E9A209B_f32;  // log10(2)
constexpr float log10f_native_polynomial[] = {0x3DCDC127_f32, 0xBDF4ED71_f32, 0x3E137DBE_f32, 0xBE5E0922_f32,
                                              0x3EDE5CAE_f32};

using log10f_guards = rare_unless_normal<float, log10f_rare>;

struct log10f_standard : log10f_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = log10f_table;
    const V e = convert<float>(bits(x) >> 23);
    const V g = with_exponent(x, -9);
    const V n = round_to<direction::nearest>(reciprocal_estimate(g) * c.R);
    const V gh = without_low_bits(g, 8), gl = g - gh;
    const V t = (gh * n - c.R) + gl * n;
    const auto [hi, lo] = look_up(log10f_of_integers, (bits(n) >> 16) - 0x42DE);  // 111
    const V h = c.LH * e + hi;
    const V l = e * c.LL + lo;
    const V s = t + h;
    const V d = t - (s - h);  // the part of t that s lacks
    const V p = (c.P3 * t + c.P2) * t + c.P1;
    return ((t * p + l) + d) + s;
  }
};

struct log10f_native : log10f_guards {
  template <class V>
  static V kernel(V x) {
    const centred_mantissa<V> a(x);
    return a.r * horner(a.r, log10f_native_polynomial) + convert<float>(a.k) * LG2;
  }
};

}  // namespace

LANEMATH_EXPORT(log10f, log10f_standard)
LANEMATH_EXPORT(log10f, log10f_native, _native)
LANEMATH_SAME(log10f, _native, _half)

}  // namespace lanemath
