// What the arc tangents share: the factors P(t) of atan(t) = t P(t) on [-1, 1], and ways to compute a quotient.
#pragma once

#include "invtrig/angles.h"
#include "numeric/estimates.h"
#include "numeric/fields.h"

namespace lanemath {

// The float factors, with even and odd powers of u = t² separate.
struct split_rows {
  float even[4], odd[4];
};
inline constexpr split_rows atanf_table{.even = {0x3B322CC0_f32, 0x3D2BC384_f32, 0x3DD96474_f32, 0x3E4CB79F_f32},
                                        .odd = {0xBC7F2631_f32, 0xBD987629_f32, 0xBE1161F8_f32, 0xBEAAAA49_f32}};
inline constexpr split_rows atanf_width_4_table{
    .even = {0x3B3AC537_f32, 0x3D2EDD4E_f32, 0x3DD9ED24_f32, 0x3E4CB974_f32},
    .odd = {0xBC83A25C_f32, 0xBD99B01E_f32, 0xBE117200_f32, 0xBEAAAA53_f32}};

template <const split_rows& C>
struct split_factor {
  template <class V>
  static V at(V t) {
    const V u = t * t, q = u * u;
    return (q * horner(q, C.even) + 1.0f) + u * horner(q, C.odd);
  }
};

// The double factor in four chains, for the forms without a table.
struct four_chain_factor {
  static constexpr double c1[] = {0xBEF4FDB537ABC7A3_f64, 0xBF82B2EC618E4BAD_f64, 0xBFA4EFA2E563C1BC_f64,
                                  0xBFB11084009435E0_f64, 0xBFC2492491EE55C7_f64};
  static constexpr double c2[] = {0xBF52E67C93954C23_f64, 0xBF9A5E83B081F69C_f64, 0xBFAAD261EAA09954_f64,
                                  0xBFB745D009BADA94_f64, 0xBFD55555555553C5_f64};
  static constexpr double c3[] = {0x3F2CED0A36665209_f64, 0x3F914F4C661116A5_f64, 0x3FA7EC0FBC50683B_f64,
                                  0x3FB3B12A49295651_f64, 0x3FC999999997EE34_f64};
  static constexpr double c4[] = {0x3F6F5A1DAE82AFB3_f64, 0x3FA169980CB6AD4F_f64, 0x3FAE1749BD612DCF_f64,
                                  0x3FBC71C707F7D5B5_f64};
  template <class V>
  static V at(V t) {
    const V u = t * t, q = u * u, z = q * q;
    return ((z * horner(z, c4) + 1.0) + u * horner(z, c2)) + (q * u * horner(z, c1) + q * horner(z, c3));
  }
};

// The native factors: u times a chain in q = u², plus a second chain in q.
template <class Rows>
struct native_factor {
  template <class V>
  static V at(V t) {
    const V u = t * t, q = u * u;
    return u * horner(q, Rows::by_u) + horner(q, Rows::second);
  }
};
template <class T>
struct native_rows;
template <>
struct native_rows<float> {
  static constexpr float by_u[] = {0xBD324820_f32, 0xBEA6A8A3_f32};
  static constexpr float second[] = {0x3E1E481B_f32, 0x3F7FF145_f32};
};
template <>
struct native_rows<double> {
  static constexpr double by_u[] = {0xBF5C95B5AB286A02_f64, 0xBF9F791909CB44C4_f64, 0xBFB56FCD7489159A_f64,
                                    0xBFC2414862594647_f64, 0xBFD55553391CE4C9_f64};
  static constexpr double second[] = {0x3F85E36A8CED7474_f64, 0x3FAD6EE2DACE07AF_f64, 0x3FBC0236E7018BA7_f64,
                                      0x3FC999069C08617C_f64, 0x3FEFFFFFFEB5A845_f64};
};
template <class T>
struct native_pi_rows;
template <>
struct native_pi_rows<float> {
  static constexpr float by_u[] = {0xBC62FED0_f32, 0xBDD4324D_f32};
  static constexpr float second[] = {0x3D4987CD_f32, 0x3EA2F023_f32};
};
template <>
struct native_pi_rows<double> {
  static constexpr double by_u[] = {0xBF42329940F01541_f64, 0xBF84094ECA14A044_f64, 0xBF9B4B49880FA760_f64,
                                    0xBFA73E3559D3A6F6_f64, 0xBFBB299337E33714_f64};
  static constexpr double second[] = {0x3F6BDE7DB93E8B55_f64, 0x3F92BCDB8589EE51_f64, 0x3FA1D4B346C946CD_f64,
                                      0x3FB04BC92A8107F5_f64, 0x3FD45F306CF77B05_f64};
};

// The factors divided by pi: one chain in u.
template <class T>
struct pi_factor;
template <>
struct pi_factor<float> {
  static constexpr float c[] = {0x3A62DBF5_f32, 0xBBA26EDA_f32, 0x3C5AB246_f32, 0xBCC21EBE_f32, 0x3D0A6574_f32,
                                0xBD391B64_f32, 0x3D8253BA_f32, 0xBDD94C33_f32, 0x3EA2F983_f32};
  static auto at(auto t) { return horner(t * t, c); }
};
template <>
struct pi_factor<double> {
  static constexpr double c[] = {
      0xBEC435D571D7FB69_f64, 0x3EFEE969B7DB1149_f64, 0xBF26798A20DC9977_f64, 0x3F44C3C0C907686F_f64,
      0xBF5B8DDB0F1CD2C5_f64, 0x3F6C3A72776AC84D_f64, 0xBF778AC56B6FECF2_f64, 0x3F80BAD5CF20A9ED_f64,
      0xBF85278CBEF8B02E_f64, 0x3F88CA8EE19B9723_f64, 0xBF8BE48C140DF0C8_f64, 0x3F8EEA5306D0465F_f64,
      0xBF9124120821BA9D_f64, 0x3F932BC4F824F7C6_f64, 0xBF95BAC83A460E3E_f64, 0x3F9912AF904B4DD1_f64,
      0xBF9DA1BAA68634EC_f64, 0x3FA21BB94433ED0A_f64, 0xBFA7483758DF91CF_f64, 0x3FB04C26BE3AF8D5_f64,
      0xBFBB2995E7B7B5ED_f64, 0x3FD45F306DC9C883_f64};
  static auto at(auto t) { return horner(t * t, c); }
};

// 1 / x from the processor's estimate and one correction.
template <int W>
LANEMATH_INLINE lanes<float, W> reciprocal(const lanes<float, W>& x) {
  const auto y0 = reciprocal_estimate(x);
  return y0 * (2.0f - x * y0);
}
// The same for x > 0 in double.
template <int W>
LANEMATH_INLINE lanes<double, W> reciprocal(const lanes<double, W>& x) {
  const auto y0 = full_range_reciprocal_estimate(x);
  const auto d = y0 * x - 1.0;
  return y0 + (d * d - d) * y0;
}

struct by_division {
  static auto of(auto num, auto den) { return num / den; }
};
struct by_inverse {
  template <class V>
  static V of(V num, V den) {
    return num * (one_v<typename V::value_type> / den);
  }
};
struct by_estimate {
  static auto of(auto num, auto den) { return num * reciprocal(den); }
};
struct by_corrected_estimate {
  template <class V>
  static V of(V num, V den) {
    const V y1 = reciprocal(den);
    return num * (y1 - (y1 * den - 1.0) * y1);
  }
};

// Lanes whose reciprocals lose range: all but 2^-125 <= a < 2^123 in float, 2^-1020 <= a < 2^993 in double.
template <class T, int W>
LANEMATH_INLINE auto beyond_reciprocals(const lanes<T, W>& a) {
  if constexpr (sizeof(T) == 4)
    return outside(bits(a), 0x01000000, 0x7CFFFFFF);
  else
    return outside(upper(a), 0x00300000, 0x7DFFFFFF);
}

// The angle of the point (x, y), from the quotient of the smaller magnitude by the larger one. Angles beyond an eighth
// of a turn, and those in the left half-plane, follow by addition.
template <class T, class Factor, class Quotient, bool Scaled>
struct quadrants {
  using signature = T(T, T);

  template <class V>
  static V kernel(V y, V x) {
    const V quarter_turn = Scaled ? half_v<T> : half_pi<T>, half_turn = Scaled ? one_v<T> : pi<T>;
    const V ay = magnitude(y), ax = magnitude(x);
    const auto swap = ~(ay < ax);
    const V num = select(swap, with_bits(ax, sign_lanes<V>()), ay);
    const V den = select(swap, ay, ax);
    const V t = Quotient::of(num, den);
    V v = t * Factor::at(t) + where(swap, quarter_turn);
    v = with_bits(v, sign_of(x)) + where(x <= zero_v<T>, half_turn);
    return with_bits(v, sign_of(y));
  }
  static auto rare_test(auto y, auto x) { return beyond_reciprocals(magnitude(y)) | beyond_reciprocals(magnitude(x)); }

 private:
  template <class V>
  static auto sign_lanes() {
    return lanes<int_of_size<sizeof(T)>, V::width>(sign_mask<T>);
  }
};

}  // namespace lanemath
