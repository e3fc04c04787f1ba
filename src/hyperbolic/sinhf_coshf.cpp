// sinh x and cosh x, single precision, by the method in addition_theorems.h: A = n ln 2, so that the powers of two are
// exact and no table is needed. The native forms have shorter polynomials.
//
// Largest errors found, in ulp:
//   sinhf: default 2.02372; _native 1079.17
//   coshf: default 1.84142; _native 380.607
#include "hyperbolic/addition_theorems.h"

namespace lanemath {
namespace {

constexpr ln2_rows<float> reduction{.K = 0x3FB8AA3B_f32, .S = 0x1.8p23f, .L1 = 0x3F317000_f32, .L2 = 0x3805FDF4_f32};

// sinh r = r + C1 r^3 + C2 r^5, cosh r = 1 + E1 r^2 + E2 r^4 + E3 r^6
struct addition_rows {
  float C1, C2, E1, E2, E3;
};
constexpr addition_rows sinhf_table{
    .C1 = 0x3E2AAA57_f32, .C2 = 0x3C091461_f32, .E1 = half_v<float>, .E2 = 0x3D2AAA72_f32, .E3 = 0x3AB6A8A3_f32};

// sinh r = D0 r + D1 r^3, cosh r = 1 + F0 r^2 + F1 r^4
struct native_addition_rows {
  float D0, D1, F0, F1;
};
constexpr native_addition_rows sinhf_native_table{
    .D0 = 0x3F7FFBC9_f32, .D1 = 0x3E2CCD2E_f32, .F0 = 0x3EFFFB2F_f32, .F1 = 0x3D2CA395_f32};

template <class V>
LANEMATH_INLINE sinh_and_cosh<V> at_multiple(const ln2_multiple<V>& a) {
  constexpr std::int32_t half = 0x3F000000;
  const auto e = bits(a.shifted) << 23;
  const V up = from_bits(half + e), down = from_bits(half - e);  // e^A / 2, e^-A / 2
  return {up - down, up + down};
}

template <class V>
LANEMATH_INLINE V added(V same, V other, const ln2_multiple<V>& a) {
  constexpr auto& c = sinhf_table;
  const V sinh_r = a.r + (c.C2 * a.r2 + c.C1) * a.r2 * a.r;
  return added(same, other, sinh_r, ((c.E3 * a.r2 + c.E2) * a.r2 + c.E1) * a.r2);
}
template <class V>
LANEMATH_INLINE V native_added(V same, V other, const ln2_multiple<V>& a) {
  constexpr auto& c = sinhf_native_table;
  return same + a.r * ((c.D1 * a.r2 + c.D0) * other + (c.F1 * a.r2 + c.F0) * same * a.r);
}

LANEMATH_RARE sinhf_rare(const float* x, float* y) { return sinh_rare_lane(x, y); }
LANEMATH_RARE coshf_rare(const float* x, float* y) { return cosh_rare_lane(x, y); }

constexpr std::int32_t BOUND = 0x42AEAC4E;  // 87.33653; coshf leaves this value too to the rare routine
using sinhf_guards = rare_above<float(float), sinhf_rare, BOUND>;
using coshf_guards = rare_above<float(float), coshf_rare, BOUND - 1>;

template <bool Native>
struct sinhf_form : sinhf_guards {
  template <class V>
  LANEMATH_INLINE static V kernel(V x) {
    const ln2_multiple<V> a(magnitude(x), reduction);
    const auto [s, c] = at_multiple(a);
    return with_bits(Native ? native_added(s, c, a) : added(s, c, a), sign_of(x));
  }
};
using sinhf_standard = sinhf_form<false>;
using sinhf_native = sinhf_form<true>;

template <bool Native>
struct coshf_form : coshf_guards {
  template <class V>
  LANEMATH_INLINE static V kernel(V x) {
    const ln2_multiple<V> a(magnitude(x), reduction);
    const auto [s, c] = at_multiple(a);
    return Native ? native_added(c, s, a) : added(c, s, a);
  }
};
using coshf_standard = coshf_form<false>;
using coshf_native = coshf_form<true>;

}  // namespace

LANEMATH_EXPORT(sinhf, sinhf_standard)
LANEMATH_EXPORT(sinhf, sinhf_native, _native)
LANEMATH_EXPORT(coshf, coshf_standard)
LANEMATH_EXPORT(coshf, coshf_native, _native)

}  // namespace lanemath
