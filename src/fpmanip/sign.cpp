// fabs, copysign: operations on bits alone, so that a signalling NaN stays one.
#include "frame/frame.h"

namespace lanemath {
namespace {

template <class T>
struct absolute_value {
  using signature = T(T);
  template <class V>
  static V kernel(V x) {
    return magnitude(x);
  }
};

template <class T>
struct sign_copy {
  using signature = T(T, T);
  template <class V>
  static V kernel(V x, V y) {
    return with_bits(magnitude(x), sign_of(y));
  }
};

}  // namespace

LANEMATH_EXPORT(fabsf, absolute_value<float>)
LANEMATH_EXPORT(fabs, absolute_value<double>)
LANEMATH_EXPORT(copysignf, sign_copy<float>)
LANEMATH_EXPORT(copysign, sign_copy<double>)

}  // namespace lanemath
