// log2 x, single precision.
//
// x = 2^k (1 + r) with 1 + r from 2/3 to 4/3; log2(1 + r) = r p(r), p of degree 8 by pairs of coefficients (default,
// _rm) or of degree 4 by Horner's rule (_native, _half). No table. The error is largest where the exponent and a
// mantissa below 1 cancel. Rare lanes: zeros, denormals, negative values, infinities and NaNs.
//
// Largest errors found, in ulp:
//   log2f: default, _rm 2.61176; _native, _half 893.54
#include "log/logarithm_rare.h"
#include "log/logarithm_single.h"

namespace lanemath {
namespace {

struct log2f_rows {
  float A1, A0, B1, B0, C1, C0, D1, D0, E0;
};
constexpr log2f_rows log2f_table{
    .A1 = 0x3E554012_f32,
    .A0 = 0xBE638E14_f32,
    .B1 = 0x3E4D660B_f32,
    .B0 = 0xBE727824_f32,
    .C1 = 0x3E93DD07_f32,
    .C0 = 0xBEB8B969_f32,
    .D1 = 0x3EF637C0_f32,
    .D0 = 0xBF38AA2B_f32,
    .E0 = 0x3FB8AA3B_f32,
};

constexpr float log2f_native_polynomial[] = {0x3EAAE01B_f32, 0xBECB686C_f32, 0x3EF4FA41_f32, 0xBF38658A_f32,
                                             0x3FB8AAED_f32};

using log2f_guards = rare_unless_normal<float, log2f_rare>;

struct log2f_standard : log2f_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = log2f_table;
    const centred_mantissa<V> a(x);
    const V r = a.r, s = r * r;
    const V u = c.A1 * r + c.A0;
    const V v = c.B1 * r + c.B0;
    const V w = c.C1 * r + c.C0;
    const V z = c.D1 * r + c.D0;
    V p = (u * s + v) * s + w;
    p = s * p + z;
    p = p * r + c.E0;
    return r * p + convert<float>(a.k);
  }
};

struct log2f_native : log2f_guards {
  template <class V>
  static V kernel(V x) {
    const centred_mantissa<V> a(x);
    return a.r * horner(a.r, log2f_native_polynomial) + convert<float>(a.k);
  }
};

}  // namespace

LANEMATH_EXPORT(log2f, log2f_standard)
LANEMATH_SAME(log2f, , _rm)
LANEMATH_EXPORT(log2f, log2f_native, _native)
LANEMATH_SAME(log2f, _native, _half)

}  // namespace lanemath
