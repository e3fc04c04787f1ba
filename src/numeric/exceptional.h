// Exceptional results, made by arithmetic so that they follow the current rounding direction.
#pragma once

#include <cmath>

#include "numeric/fields.h"

namespace lanemath {

// A NaN made quiet, as arithmetic on it does.
template <class T>
T quieted(T x) {
  return x * opaque(one_v<T>);  // GCC would simplify opaque(x) * 1 to x
}
// The processor's result of an invalid operation.
template <class T>
T default_nan() {
  return opaque(zero_v<T>) / zero_v<T>;
}
// The processor's result of a division by zero.
template <class T>
T pole(T sign = one_v<T>) {
  return opaque(sign) / zero_v<T>;
}

template <class T>
T square(T v) {
  v = opaque(v);
  return v * v;
}

// Results beyond the range, with the sign of a number: infinity and zero, or the last number before them.
template <class T>
inline constexpr int half_beyond = sizeof(T) == 4 ? 100 : 1000;  // twice that exponent is out of range
template <class T>
T overflowed(T sign = one_v<T>) {
  constexpr T far = power_of_two<T>(half_beyond<T>);
  return opaque(std::copysign(far, sign)) * far;
}
template <class T>
T underflowed(T sign = one_v<T>) {
  constexpr T near = power_of_two<T>(-half_beyond<T>);
  return opaque(std::copysign(near, sign)) * near;
}

}  // namespace lanemath
