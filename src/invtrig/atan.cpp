// Arc tangent of x in radians, both precisions.
//
// Float: t = x or -1/x, a polynomial on [-1, 1], and pi/2 added where |x| > 1; at width 4 one division of the smaller
// of |x| and 1 by the larger, with other coefficients. Double: atan(c) from a table of quarters below 7.875, and
// atan((|x| - c) / (1 + |x| c)) by a short polynomial; at width 2 a long polynomial and no table. The native form: an
// estimated reciprocal, which fails only at infinity.
//
// Largest errors found, in ulp:
//   atan: default, other widths 2.62227; _native 2.16494e7 (2.25e7 on any processor); default, width 2 4.62302
//   atanf: default, other widths 2.81155; _native 3771 (3780 on any processor); default, width 4 3.75196
//
// Looks odd and is meant, see docs/design.md: signs and payloads of NaNs.
#include "invtrig/arc_tangent.h"
#include "invtrig/arc_tangent_rare.h"

namespace lanemath {
namespace {

// pi/2 with the sign of x where the reciprocal is taken.
template <class M, class V>
V offset(M outside, V x) {
  return flipped(where(outside, V(half_pi<typename V::value_type>)), sign_of(x));
}
template <class V>
V negated(V x) {
  using T = typename V::value_type;
  return from_bits(bits(x) ^ sign_mask<T>);
}

struct atanf_standard {
  using signature = float(float);

  template <class V>
  static V kernel(V x) {
    const auto small = magnitude(x) <= 1.0f;
    const V t = select(small, x, negated(1.0f / x));
    const V u = t * t, q = u * u;
    const V p = (horner(q, atanf_table.even) * u + horner(q, atanf_table.odd)) * u + 1.0f;
    return t * p + offset(~small, x);
  }
};

struct atan_standard {
  using signature = double(double);

  template <class V>
  static V kernel(V x) {
    const V a = magnitude(x);
    const V w = a + 0x1.8p50;  // rounds to quarters
    const V c = w - 0x1.8p50;
    const auto big = 7.875 <= a;
    const V num = select(big, V(-1.0), a - c);
    const V den = select(big, minimum(a, 0x1p128), 1.0 + a * c);  // finite
    const V t = num / den;
    const V base = select(big, V(half_pi<double>), look_up(arc_tangent_quarters, lower(w) & 31));
    const V u = t * t, q = u * u;
    V p = (0x3FB2E9B9F5C4FE97_f64 * u + 0xBFB74257C46790CC_f64) * q +
          (0x3FBC71BFEFF916A0_f64 * u + 0xBFC249248EEF04DA_f64);
    p = p * q + (0x3FC999999998741E_f64 * u + 0xBFD555555555554D_f64);
    return flipped((p * (u * t) + t) + base, sign_of(x));
  }
};

// The standalone forms, which have no table. A NaN counts as above 1.
template <class T, class Factor>
struct one_division {
  using signature = T(T);

  template <class V>
  static V kernel(V x) {
    const V a = magnitude(x);
    const V t = minimum(a, V(one_v<T>)) / maximum(V(one_v<T>), a);
    const auto above = ~(a <= one_v<T>);
    const V v = flipped(t, sign_of(x) ^ (above & sign_mask<T>));
    return ordered_product(Factor::at(t), v) + offset(above, x);
  }
};
using atanf_width_4 = one_division<float, split_factor<atanf_width_4_table>>;
using atan_width_2 = one_division<double, four_chain_factor>;

template <int W>
lanes<float, W> signed_reciprocal(const lanes<float, W>& x) {
  return reciprocal(x);
}
// Where x is too large for a float both the estimate and the reciprocal are 0.
template <int W>
lanes<double, W> signed_reciprocal(const lanes<double, W>& x) {
  const auto y0 = by_floats([](auto v) LANEMATH_LAMBDA { return reciprocal_estimate(v); }, x);
  const auto e = 1.0 - x * y0;
  return ordered_sum(y0, (e + e * e) * y0);
}

template <class T>
struct atan_native {
  using signature = T(T);
  static constexpr auto rare = arc_tangent_rare<T, false>;

  template <class V>
  static V kernel(V x) {
    const auto small = magnitude(x) <= one_v<T>;
    const V t = select(small, x, negated(signed_reciprocal(x)));
    return t * native_factor<native_rows<T>>::at(t) + offset(~small, x);
  }
  static auto rare_test(auto x) { return magnitude(x) == std::numeric_limits<T>::infinity(); }
};

}  // namespace

LANEMATH_EXPORT_BUT(4, atanf, atanf_standard)
LANEMATH_EXPORT_AT(4, atanf, atanf_width_4)
LANEMATH_EXPORT(atanf, atan_native<float>, _native)

LANEMATH_EXPORT_BUT(2, atan, atan_standard)
LANEMATH_EXPORT_AT(2, atan, atan_width_2)
LANEMATH_EXPORT(atan, atan_native<double>, _native)

}  // namespace lanemath
