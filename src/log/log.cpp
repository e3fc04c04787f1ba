// ln x, double precision, by the method in logarithm_double.h.
//
// Largest errors found, in ulp:
//   log: default 1.56149 (1.6 on any processor); _native 2.0947e6 (5.5e6 on any processor)
#include "log/logarithm_double.h"
#include "log/logarithm_rare.h"

namespace lanemath {
namespace {

using log_guards = rare_unless_normal<double, log_rare>;

struct log_standard : log_guards {
  template <class V>
  static V kernel(V x) {
    return double_log<log_table, ln_of_integers>(x);
  }
};

struct log_native : log_guards {
  template <class V>
  static V kernel(V x) {
    return native_double_log<log_table, ln_of_integers>(x);
  }
};

}  // namespace

LANEMATH_EXPORT(log, log_standard)
LANEMATH_EXPORT(log, log_native, _native)

}  // namespace lanemath
