// modf: x - trunc(x) with the sign of x, and trunc(x). Exact.
#include <cmath>

#include "numeric/fields.h"

namespace lanemath {
namespace {

// In double for both precisions. The code for finite numbers is never reached: only infinities and NaNs are rare lanes.
status modf_in_double(double x, double& fraction, double& integral) {
  const int exponent = exponent_field(x) - format<double>::bias;
  if (is_nan(x)) {
    fraction = integral = x + x;
  } else if (exponent < 0) {
    fraction = x;
    integral = std::copysign(0.0, x);
  } else if (exponent >= format<double>::fraction_bits) {
    fraction = std::copysign(0.0, x);
    integral = x;
  } else {
    integral = value_of<double>(pattern_of(x) & ~(format<double>::fraction >> exponent));
    fraction = std::copysign(x - integral, x);
  }
  return status::ordinary;
}

template <class T>
LANEMATH_RARE modf_rare(const T* x, T* fraction, T* integral) {
  double first, second;
  const auto status = modf_in_double(double(*x), first, second);
  *fraction = T(first);
  *integral = T(second);
  return status;
}

template <class T>
struct modf {
  using signature = through_pointer<T, T>(T);
  static constexpr auto rare = modf_rare<T>;

  template <class V>
  static two_results<V, V> kernel(V x) {
    const V integral = round_to<direction::zero>(x);
    return {with_bits(x - integral, sign_of(x)), integral};
  }
  static auto rare_test(auto x) { return magnitude_above(x, format<T>::top_exponent - 1); }
};

}  // namespace

LANEMATH_EXPORT(modff, modf<float>)
LANEMATH_EXPORT(modf, modf<double>)

}  // namespace lanemath
