// 10^x, double precision.
//
// Default: x = (n / 128) log10(2) + r with n = 128 k + j; 2^(j/128) from a table, 10^r by a polynomial of degree 5, k
// added to the exponent field. The native form: 2^(x log2(10)) by a polynomial of degree 6 over a whole binade. Rare
// lanes use a table of high and low parts.
//
// Largest errors found, in ulp:
//   exp10: default 1.00355; _native 1.52766e7
#include "exp/exponential_rare.h"

namespace lanemath {
namespace {

struct exp10_rows {
  double K;       // 128 log2(10)
  double S;       // shifter, 1.53125 * 2^52
  double L1, L2;  // log10(2) / 128, high and low part
  double C1, C2, C3, C4, C5;
  std::int64_t EMASK;  // sign and exponent
  std::int32_t JMASK;  // table index bits
};
constexpr exp10_rows exp10_table{
    .K = 0x407A934F0979A371_f64,
    .S = 0x4338800000000000_f64,
    .L1 = 0x3F63441350A00000_f64,
    .L2 = 0xBD10C0219DC1DA99_f64,
    .C1 = 0x40026BB1BBB55516_f64,
    .C2 = 0x40053524C73CE8E3_f64,
    .C3 = 0x4000470591CCEA8B_f64,
    .C4 = 0x3FF2BD767584DB59_f64,
    .C5 = 0x3FE144C03EFAFB54_f64,
    .EMASK = std::int64_t(0xFFF0000000000000),
    .JMASK = 0x7F,
};

constexpr double LOG2T = 0x400A934F0979A371_f64;  // log2(10)
constexpr double native_polynomial[] = {0x3F241D33368291C7_f64, 0x3F55F456A8C99BD5_f64, 0x3F83B2DBBC1073AF_f64,
                                        0x3FAC6AED4B94D44A_f64, 0x3FCEBFBDADCB0A4D_f64, 0x3FE62E430C7E9264_f64,
                                        0x3FF0000000261501_f64};

constexpr std::int32_t RARE = 0x40733A70;  // upper half, about 307.65

constexpr rare_bounds bounds{
    .over = 0x40734413509F79FE_f64,      // 308.25472
    .under = 0xC07439B746E36B52_f64,     // -323.60725
    .denormal = 0xC0733A7146F72A41_f64,  // -307.65266
};

LANEMATH_RARE exp10_rare(const double* px, double* py) { return exp_rare_lane(px, py, exp10_power, bounds); }

using exp10_guards = rare_above<double(double), exp10_rare, RARE>;

struct exp10_standard : exp10_guards {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = exp10_table;
    const V t = x * c.K + c.S;
    const V m = t - c.S;
    const V r = (x - m * c.L1) - m * c.L2;
    const V p = ((((c.C5 * r + c.C4) * r + c.C3) * r + c.C2) * r + c.C1) * r;
    const V v = look_up(exp2_128_double, lower(t) & c.JMASK);
    const V w = v + p * v;
    return from_bits(bits(w) + ((bits(t) << 45) & c.EMASK));
  }
};

struct exp10_native : exp10_guards {
  template <class V>
  static V kernel(V x) {
    return exp2_by_polynomial(x * LOG2T, 0x4338800000000000_f64, native_polynomial);
  }
};

}  // namespace

LANEMATH_EXPORT(exp10, exp10_standard)
LANEMATH_EXPORT(exp10, exp10_native, _native)

}  // namespace lanemath
