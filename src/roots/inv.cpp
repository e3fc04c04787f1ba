// 1 / x.
//
// Default: the processor's division, correctly rounded. The native form in single precision is the estimate of the
// reciprocal. The native form in double: the estimate for the significand, widened and given its exponent by integer
// arithmetic, then one third-order step. It has no test: infinities, denormals and denormal results get whatever that
// arithmetic gives; zeros and NaNs come out right.
//
// Largest errors found, in ulp:
//   inv: default 0.5; _native 236159 (447000 on any processor)
//   invf: default 0.5; _native, _half, _rm 4762.28 (6150 on any processor)
#include "numeric/estimates.h"
#include "roots/reciprocal.h"

namespace lanemath {
namespace {

// The reciprocal of a float is computed in double, so that a denormal result is rounded once.
template <class T>
LANEMATH_RARE inv_rare(const T* px, T* py) {
  const double x = *px;
  *py = T(1.0 / x);
  return x == 0 ? status::singular : status::ordinary;
}

template <class T>
struct invert {
  using signature = T(T);
  template <class V>
  static V kernel(V x) {
    return one_v<T> / x;
  }
};

// The rare routine only repeats the division, for the status.
struct inv_standard : invert<double> {
  static constexpr auto rare = inv_rare<double>;
  static auto rare_test(auto x) { return zero_without(x, 0x800FFFFFFFFFFFFF); }
};

struct invf_native {
  using signature = float(float);
  static constexpr auto rare = inv_rare<float>;
  // Lower than the bound of div, so that no estimate is denormal.
  static auto rare_test(auto x) { return reciprocal_beyond(x, 0x7DFFE800); }

  template <class V>
  static V kernel(V x) {
    return reciprocal_estimate(x);
  }
};

struct inv_native {
  using signature = double(double);

  template <class V>
  static V kernel(V x) {
    const V y = full_range_reciprocal_estimate(x);
    const V t = 1.0 - x * y;
    const V u = t + t * t;
    return y + u * y;
  }
};

}  // namespace

LANEMATH_EXPORT(invf, invert<float>)
LANEMATH_EXPORT(invf, invf_native, _native)
LANEMATH_SAME(invf, _native, _half)
LANEMATH_SAME(invf, _native, _rm)
LANEMATH_EXPORT(inv, inv_standard)
LANEMATH_EXPORT(inv, inv_native, _native)

}  // namespace lanemath
