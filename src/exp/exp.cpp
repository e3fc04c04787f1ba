// e^x, double precision.
//
// Default (except at width 2): x = (n / 1024) ln 2 + r with n = 1024 k + j; 2^(j/1024) from a table, e^r by a cubic, k
// added to the exponent field. The native form: a table of 128 entries, a quadratic and an unsplit ln 2. The default
// form at width 2 has a table of 64 mantissas and a polynomial of degree 5 in two halves, and settles every lane
// itself. Rare lanes use a table of high and low parts.
//
// Largest errors found, in ulp:
//   exp: default, other widths 3.17276; _native 2.97179e7; default, width 2 2.97408
#include "exp/exponential_rare.h"

namespace lanemath {
namespace {

struct exp_rows {
  double K;       // 1024 / ln 2
  double S;       // shifter, 1.5 * 2^52
  double L1, L2;  // ln 2 / 1024, high and low part
  double C1, C2, C3;
  std::int32_t JMASK;  // table index bits
};
constexpr exp_rows exp_table{
    .K = 0x40971547652B82FE_f64,
    .S = 0x1.8p52,
    .L1 = 0x3F462E42FEC00000_f64,
    .L2 = 0x3D5D1CF79ABC9E3B_f64,
    .C1 = 1.0,
    .C2 = 0x3FE0000001EBFBE0_f64,
    .C3 = 0x3FC5555555555556_f64,
    .JMASK = 0x3FF,
};

struct exp_native_rows {
  double K;  // 128 / ln 2
  double S;  // shifter
  double L;  // ln 2 / 128
  double C1, C2;
  std::int32_t JMASK;  // table index bits
};
constexpr exp_native_rows exp_native_table{
    .K = 0x40671547652B82FE_f64,
    .S = 0x1.8p52,
    .L = 0x3F762E42FEFA39EF_f64,
    .C1 = 1.0,
    .C2 = 0x3FDFFFFC2808F7E8_f64,
    .JMASK = 0x7F,
};

constexpr std::int32_t RARE = 0x4086232A;  // upper half, about 708.4

LANEMATH_RARE exp_rare(const double* px, double* py) { return exp_rare_lane(px, py, exp_power, exp_bounds); }

struct exp_guards : rare_above<double(double), exp_rare, RARE> {
  template <class V, class M>
  static void fix_up(V x, V& y, M& rare) {
    saturate(x, y, rare, exp_bounds.over, exp_bounds.under);
  }
};

struct exp_standard : exp_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = exp_table;
    const V y = x * c.K;
    const V t = y + c.S;
    const V m = round_to<direction::nearest>(y);
    const V r = (x - m * c.L1) - m * c.L2;
    const V p = ((c.C3 * r + c.C2) * r + c.C1) * r + c.C1;
    const V v = look_up(exp2_1024, lower(t) & c.JMASK);
    const V w = v * p;
    return from_bits(bits(w) + ((bits(t) & ~std::int64_t(c.JMASK)) << 42));
  }
};

struct exp_native : exp_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = exp_native_table;
    const V t = x * c.K + c.S;
    const V m = t - c.S;
    const V r = x - m * c.L;
    const V p = (c.C2 * r + c.C1) * r + c.C1;
    const V w = p * look_up(exp2_128_double, lower(t) & c.JMASK);
    return from_bits(bits(w) + ((bits(t) & ~std::int64_t(c.JMASK)) << 45));
  }
};

struct exp_width_2_rows {
  double K;       // 64 / ln 2
  double S;       // shifter, 1.5 * 2^52
  double L1, L2;  // ln 2 / 64, high and low part
  double D2, D3, D4, D5;
  double DOWN_200, UP_200;  // 2^-200, 2^200
  double TINY, HUGE_ONE;    // their squares underflow and overflow
};
constexpr exp_width_2_rows exp_width_2_table{
    .K = 0x40571547652B82FE_f64,
    .S = 0x1.8p52,
    .L1 = 0x3F862E42FEE00000_f64,
    .L2 = 0x3D8A39EF35793C76_f64,
    .D2 = 0x3FDFFFFFFFFF62DC_f64,
    .D3 = 0x3FC555555555E58E_f64,
    .D4 = 0x3FA555594C77FF02_f64,
    .D5 = 0x3F81111001A21E3A_f64,
    .DOWN_200 = 0x1p-200,
    .UP_200 = 0x1p200,
    .TINY = 0x0010000000000000_f64,
    .HUGE_ONE = 0x1p1023,
};

struct exp_width_2 {
  using signature = double(double);

  template <class V>
  static V kernel(V x) {
    constexpr auto& c = exp_width_2_table;
    const V y = x * c.K;
    const V t = c.S + y;
    const V m = round_to<direction::nearest>(y);
    const V r = (x - m * c.L1) - m * c.L2;
    const V s = r * r;
    const V a = (c.D5 * s + c.D3) * s * r + 1.0;
    const V b = s * (c.D4 * s + c.D2) + r;
    const V p = b + a;

    const auto field = (bits(t) + 0xFFC0) >> 6;
    const auto mantissa = bits(look_up(exp2_64_mantissas, lower(t) & 0x3F));
    const V ordinary = p * from_bits((field << 52) | mantissa);
    if (!any(magnitude_above(x, 0x4085FFFF))) [[likely]]  // both below 704
      return ordinary;

    // Near the ends of the range the scale is moved to the safe side, so that the last product overflows or rounds to a
    // denormal. Farther out the result is the square of a tiny or a huge number; squaring a NaN makes it quiet.
    using whole = lanes<std::int64_t, V::width>;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const V ax = magnitude(x);
    const auto negative = x < 0.0;
    const auto shifted = field + select(negative, whole(200), whole(-200));
    const V back = select(negative, V(c.DOWN_200), V(c.UP_200));
    const V near_end = p * from_bits((shifted << 52) | mantissa) * back;

    const V finite = select(negative, V(c.TINY), V(c.HUGE_ONE));
    const V infinite = select(negative, V(0.0), V(infinity));
    const V root = opaque(select(ax < infinity, finite, select(ax == infinity, infinite, x)));
    return select(ax < 704.0, ordinary, select(ax < 768.0, near_end, root * root));
  }
};

}  // namespace

LANEMATH_EXPORT_BUT(2, exp, exp_standard)
LANEMATH_EXPORT_AT(2, exp, exp_width_2)
LANEMATH_EXPORT(exp, exp_native, _native)

}  // namespace lanemath
