// log2 x, double precision, by the method in logarithm_double.h.
//
// The default form at width 2 differs: it subtracts from m in [1, 2) the nearest multiple of 1/128, whose reciprocal
// and logarithm are in a table, and settles every special lane itself.
//
// Largest errors found, in ulp:
//   log2: default, other widths 2.08002 (2.1 on any processor); _native 2.42558e6 (6.4e6 on any processor); default,
//     width 2 2.0716
#include "log/log2_rare.h"
#include "log/logarithm_double.h"

namespace lanemath {
namespace {

constexpr double_log_rows log2_table{
    .P5 = 0x3FD2776E996DA1D2_f64,
    .P4 = 0xBFD715494C3E7C9B_f64,
    .P3 = 0x3FDEC709DC39E926_f64,
    .P2 = 0xBFE71547652B7CF8_f64,
    .P1 = 0x3FF71547652B82FE_f64,
    .LOG2 = 1.0,
};

using log2_guards = rare_unless_normal<double, log2_rare>;

struct log2_standard : log2_guards {
  template <class V>
  static V kernel(V x) {
    return double_log<log2_table, log2_of_integers>(x);
  }
};

struct log2_native : log2_guards {
  template <class V>
  static V kernel(V x) {
    return native_double_log<log2_table, log2_of_integers>(x);
  }
};

struct log2_width_2 {
  using signature = double(double);
  using V = lanes<double, 2>;

  static V kernel(V x) {
    if (!any(log2_guards::rare_test(x))) [[likely]]
      return of_normal(x);
    // A denormal's fraction bits, as those of a number in [1, 2) minus 1, are its value times 2^1022.
    const auto denormal = (bits(x) & 0x7FF0000000000000) == 0;
    const V scaled = from_bits(bits(x) | 0x3FF0000000000000) - 1.0;
    V y = of_normal(select(denormal, scaled, x)) - select(denormal, V(1022.0), V(0.0));
    y = select(x < 0.0, V(0xFFF8000000000000_f64), y);  // what 0 / 0 gives
    y = select(x == 0.0, V(-std::numeric_limits<double>::infinity()), y);
    return select(x < std::numeric_limits<double>::infinity(), y, x);
  }

 private:
  LANEMATH_INLINE static V of_normal(V x) {
    constexpr double to_128ths = 0x1p45;
    const V m = with_exponent(x, 0);
    const V mh = (from_bits(bits(m) | 0x000003FF000003FF) + to_128ths) - to_128ths;  // ties round up
    const auto j = ((upper(x) >> 12 & 0xFF) + 1) >> 1;
    const V k = convert<double>(exponent_of_positive(x));
    V a, b, r;
    for (int i = 0; i < 2; ++i) {
      const auto& [hi, lo, reciprocal] = log2_of_128ths[j.g[0][i]];
      a.g[0][i] = hi, b.g[0][i] = lo, r.g[0][i] = reciprocal;
    }
    const V z = (m - mh) * r;
    const V A = k + a;
    const V s = z * z;
    const V u = ((0xBFCEC7316E9F33A2_f64 * s + 0xBFD715476521ED82_f64) * s + 0xBFE71547652B82FF_f64) * s;
    const V v = (0x3FD277801A1A2762_f64 * s + 0x3FDEC709DC32988B_f64) * s * z;
    return (((u + v) + b) + z * 0x3FF71547652B82FE_f64) + A;
  }
};

}  // namespace

LANEMATH_EXPORT_BUT(2, log2, log2_standard)
LANEMATH_EXPORT_AT(2, log2, log2_width_2)
LANEMATH_EXPORT(log2, log2_native, _native)

}  // namespace lanemath
