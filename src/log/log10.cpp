// log10 x, double precision, by the method in logarithm_double.h.
//
// Largest errors found, in ulp:
//   log10: default 2.08713 (2.1 on any processor); _native 2.92068e6 (7.7e6 on any processor)
#include "log/logarithm_double.h"
#include "log/logarithm_rare.h"

namespace lanemath {
namespace {

constexpr double_log_rows log10_table{
    .P5 = 0x3FB63C65231FBD16_f64,
    .P4 = 0xBFBBCB7D4EFBE80B_f64,
    .P3 = 0x3FC287A7636F341E_f64,
    .P2 = 0xBFCBCB7B1526DE36_f64,
    .P1 = 0x3FDBCB7B1526E50E_f64,
    .LOG2 = 0x3FD34413509F79FF_f64,
};

using log10_guards = rare_unless_normal<double, log10_rare>;

struct log10_standard : log10_guards {
  template <class V>
  static V kernel(V x) {
    return double_log<log10_table, log10_of_integers>(x);
  }
};

struct log10_native : log10_guards {
  template <class V>
  static V kernel(V x) {
    return native_double_log<log10_table, log10_of_integers>(x);
  }
};

}  // namespace

LANEMATH_EXPORT(log10, log10_standard)
LANEMATH_EXPORT(log10, log10_native, _native)

}  // namespace lanemath
