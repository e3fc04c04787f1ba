// 2^x, double precision.
//
// Default (except at width 2): x = n / 128 + f with n = 128 k + j; 2^(j/128) from a table, 2^f by a polynomial of
// degree 4, k added to the exponent field. The native form: a polynomial of degree 6 over a whole binade. The default
// form at width 2 evaluates its polynomial in halves, multiplies by the power of two, and has a scalar routine of its
// own for large arguments. Rare lanes use a table of high and low parts; denormal results are rounded twice.
//
// Largest errors found, in ulp:
//   exp2: default, other widths 1.64225; _native 1.5276e7; default, width 2 2.61522
#include "exp/exponential_rare.h"

namespace lanemath {
namespace {

struct exp2_rows {
  double S;  // shifter that leaves 7 fraction bits, 1.5 * 2^45
  double C1, C2, C3, C4;
  std::int32_t JMASK;  // table index bits
};
constexpr exp2_rows exp2_table{
    .S = 0x1.8p45,
    .C1 = 0x3FE62E42FEFA3685_f64,
    .C2 = 0x3FCEBFBDFF82CA48_f64,
    .C3 = 0x3FAC6B09B180F045_f64,
    .C4 = 0x3F83B2AB5BB1268F_f64,
    .JMASK = 0x7F,
};

constexpr double native_polynomial[] = {0x3F241D3336B2AE61_f64, 0x3F55F456A8ADF058_f64, 0x3F83B2DBBC0FE08E_f64,
                                        0x3FAC6AED4B950AE1_f64, 0x3FCEBFBDADCB0BA8_f64, 0x3FE62E430C7E923C_f64,
                                        0x3FF0000000261500_f64};

constexpr std::int32_t RARE = 0x408FEFFF;  // upper half, just under 1022

LANEMATH_RARE exp2_rare(const double* px, double* py) {
  if (exp_of_non_finite(*px, *py)) return status::ordinary;
  const double x = *px;
  if (x >= 1024.0) {
    *py = overflowed<double>();
    return status::overflow;
  }
  if (x <= -1075.0) {
    *py = underflowed<double>();
    return status::underflow;
  }
  const rare_power p = exp2_power(x);
  const double y = p.w + p.hi;
  if (x < -1022.0) {  // a denormal result: y is rounded again by the last product
    const double s = with_exponent_field<double>((p.k + 1123) & 2047);
    *py = (s * y) * 0x1p-100;
    return status::underflow;
  }
  *py = scaled(y, p.k);
  return status::ordinary;
}

using exp2_guards = rare_above<double(double), exp2_rare, RARE>;

struct exp2_standard : exp2_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = exp2_table;
    const V t = x + c.S;
    const V m = t - c.S;
    const V f = x - m;
    const V p = ((c.C4 * f + c.C3) * f + c.C2) * f + c.C1;
    const V v = look_up(exp2_128_double, lower(t) & c.JMASK);
    const V w = v + p * (f * v);
    return from_bits(bits(w) + ((bits(t) & ~std::int64_t(c.JMASK)) << 45));
  }
};

struct exp2_native : exp2_guards {
  template <class V>
  static V kernel(V x) {
    return exp2_by_polynomial(x, integer_shifter<double>, native_polynomial);
  }
};

struct exp2_width_2_rows {
  double S2;  // shifter that leaves 7 fraction bits
  double G1, G2, G3, G4;
};
constexpr exp2_width_2_rows exp2_width_2_table{
    .S2 = 0x1.8p45,
    .G1 = 0x3FE62E42FEFA3685_f64,
    .G2 = 0x3FCEBFBDFF82D099_f64,
    .G3 = 0x3FAC6B09B179999B_f64,
    .G4 = 0x3F83B2AB0AC701B3_f64,
};

template <class V>
struct exp2_width_2_reduction {
  V t, p;
  explicit exp2_width_2_reduction(V x) {
    constexpr auto& c = exp2_width_2_table;
    t = c.S2 + x;
    const V f = (c.S2 - t) + x;
    const V s = f * f;
    const V a = (c.G4 * s + c.G2) * s;
    const V b = (c.G3 * s + c.G1) * f;
    p = (b + a) + 1.0;
  }
};

// Compares the upper half of the pattern. Every NaN gives the same NaN.
LANEMATH_RARE exp2_width_2_lane(const double* px, double* py) {
  using scalar = lanes<double, 1>;
  const double x = *px;
  const auto pattern = pattern_of(x);
  const auto magnitudes = std::uint32_t(pattern >> 32);  // unsigned, so that negative values are ordered by magnitude
  const auto h = std::int32_t(magnitudes);
  if (h >= 0x40900000 || magnitudes >= 0xC090CC00) {  // 1024, -1075
    *py = pattern << 1 > 0xFFE0000000000000 ? 0x7FFFFFFF00000000_f64
          : h >= 0x40900000                 ? std::numeric_limits<double>::infinity()
                                            : 0.0;
    return status::ordinary;
  }
  double shift = 0.0, factor = 1.0;
  if (magnitudes >= 0xC08FF000) {  // -1022
    shift = 53.0;
    factor = 0x1p-53;
  }
  if (h > 0x408FFFF7) {  // 1023.99
    shift = -1.0;
    factor = 2.0;
  }
  const auto [t, p] = exp2_width_2_reduction(scalar(x + shift));
  const scalar e = from_bits(((bits(t) + 0x1FF80) & 0x3FF80) << 45);
  *py = ((p * (look_up(exp2_128_double, lower(t) & 0x7F) * e)) * factor).g[0];
  return status::ordinary;
}

struct exp2_width_2 : rare_above<double(double), exp2_width_2_lane, 0x408FF000> {  // 1022
  static constexpr bool one_marks_all = true;

  template <class V>
  static V kernel(V x) {
    const auto [t, p] = exp2_width_2_reduction(x);
    const V e = from_bits(((bits(t) + 0x1FF80) >> 7) << 52);
    return (look_up(exp2_128_double, lower(t) & 0x7F) * e) * p;
  }
};

}  // namespace

LANEMATH_EXPORT_BUT(2, exp2, exp2_standard)
LANEMATH_EXPORT_AT(2, exp2, exp2_width_2)
LANEMATH_EXPORT(exp2, exp2_native, _native)

}  // namespace lanemath
