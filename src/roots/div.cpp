// x / y.
//
// Default: the processor's division, correctly rounded. The native form in single precision is one multiplication by
// the estimate of the reciprocal, of about 12 bits; divisors whose reciprocal is not a normal float are rare.
//
// Largest errors found, in ulp:
//   div: default 0.5; _native 0.5
//   divf: default 0.5; _native, _half, _rm 5290.79 (6150 on any processor)
#include "roots/reciprocal.h"

namespace lanemath {
namespace {

template <class T>
LANEMATH_RARE div_rare(const T* x, const T* y, T* z) {
  *z = *x / *y;
  return *y == 0 ? status::singular : status::ordinary;
}

template <class T>
struct divide {
  using signature = T(T, T);
  template <class V>
  static V kernel(V x, V y) {
    return x / y;
  }
};

// The rare routine only repeats the division: its status reports a zero divisor.
template <std::uint64_t Ignored>
struct watched_divide : divide<double> {
  static constexpr auto rare = div_rare<double>;
  static auto rare_test(auto, auto y) { return zero_without(y, Ignored); }
};

struct divf_native {
  using signature = float(float, float);
  static constexpr auto rare = div_rare<float>;
  static auto rare_test(auto, auto y) { return reciprocal_beyond(y, 0x7DFFFFFF); }

  template <class V>
  static V kernel(V x, V y) {
    return x * reciprocal_estimate(y);
  }
};

}  // namespace

LANEMATH_EXPORT(divf, divide<float>)
LANEMATH_EXPORT(divf, divf_native, _native)
LANEMATH_SAME(divf, _native, _half)
LANEMATH_SAME(divf, _native, _rm)
LANEMATH_EXPORT(div, watched_divide<0x800FFFFFFFFFFFFF>)
// Ignores bits other than those of the sign and significand: other lanes are marked, but no result differs.
LANEMATH_EXPORT(div, watched_divide<0x3F8000003F800000>, _native)

}  // namespace lanemath
