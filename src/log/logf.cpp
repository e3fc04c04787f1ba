// ln x, single precision.
//
// x = 2^k (1 + r) with 1 + r from 2/3 to 4/3; ln(1 + r) = r + q(r) r^2, q of degree 8 (default, _rm), 6 (_half) or 3
// (_native); the default form takes ln 2 in two parts. No table. Rare lanes: zeros, denormals, negative values,
// infinities and NaNs.
//
// Largest errors found, in ulp:
//   logf: default, _rm 1.53371; _native 1567.74; _half 3.96472
#include "log/logarithm_rare.h"
#include "log/logarithm_single.h"

namespace lanemath {
namespace {

struct logf_rows {
  float LN2H, LN2L;  // ln 2, high and low part
  float Q[9];
};
constexpr logf_rows logf_table{
    .LN2H = 0x3F317200_f32,
    .LN2L = 0x35BFBE8E_f32,
    .Q = {0xBE0402C8_f32, 0x3E0F335D_f32, 0xBDF9889E_f32, 0x3E0F6B8C_f32, 0xBE2ACEE6_f32, 0x3E4CE814_f32,
          0xBE7FFF78_f32, 0x3EAAAA83_f32, -0.5f},
};

constexpr float logf_half_polynomial[] = {0xBE1B6A22_f32, 0x3E2DB86B_f32, 0xBE289358_f32, 0x3E4AFB81_f32,
                                          0xBE80061D_f32, 0x3EAAAEE7_f32, -0.5f};

using logf_guards = rare_unless_normal<float, logf_rare>;

struct logf_standard : logf_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = logf_table;
    const centred_mantissa<V> a(x);
    const V kf = convert<float>(a.k);
    const V y = ln_of_one_plus(a.r, c.Q);
    return kf * c.LN2H + (kf * c.LN2L + y);
  }
};

template <auto& Polynomial>
struct native_logf : logf_guards {
  template <class V>
  static V kernel(V x) {
    const centred_mantissa<V> a(x);
    return convert<float>(a.k) * LN2_F32 + ln_of_one_plus(a.r, Polynomial);
  }
};
using logf_half = native_logf<logf_half_polynomial>;
using logf_native = native_logf<native_ln_polynomial>;

}  // namespace

LANEMATH_EXPORT(logf, logf_standard)
LANEMATH_SAME(logf, , _rm)
LANEMATH_EXPORT(logf, logf_half, _half)
LANEMATH_EXPORT(logf, logf_native, _native)

}  // namespace lanemath
