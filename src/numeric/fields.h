// The fields of a floating format, for operations that take numbers apart. One text serves both precisions: what the
// vector kernels look at is the top word of a lane, which is the whole of a float and the upper half of a double.
#pragma once

#include <limits>

#include "frame/frame.h"

namespace lanemath {

template <class T>
struct format {
  using pattern = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
  using signed_pattern = int_of_size<sizeof(T)>;

  static constexpr int fraction_bits = std::numeric_limits<T>::digits - 1;
  static constexpr int bias = std::numeric_limits<T>::max_exponent - 1;
  static constexpr int top_field = 2 * bias + 1;  // the exponent field of infinities and NaNs
  static constexpr int least_exponent = 1 - bias;

  static constexpr pattern sign = pattern(1) << (8 * sizeof(T) - 1);
  static constexpr pattern implicit_bit = pattern(1) << fraction_bits;  // also one unit of the exponent field
  static constexpr pattern fraction = implicit_bit - 1;
  static constexpr pattern infinity = pattern(top_field) << fraction_bits;

  // In the top word.
  static constexpr int top_shift = fraction_bits % 32;
  static constexpr std::int32_t top_exponent = top_field << top_shift;

  // A step up that makes every denormal normal, and its exponent.
  static constexpr int lift_exponent = sizeof(T) == 4 ? 25 : 55;
  static constexpr T lift = std::bit_cast<T>(pattern(bias + lift_exponent) << fraction_bits);
  static constexpr T lower = std::bit_cast<T>(pattern(bias - lift_exponent) << fraction_bits);
};

template <class T>
constexpr auto pattern_of(T x) {
  return std::bit_cast<typename format<T>::pattern>(x);
}
template <class T>
constexpr auto magnitude_pattern(T x) {
  return pattern_of(x) & ~format<T>::sign;
}
template <class T>
constexpr T value_of(typename format<T>::pattern pattern) {
  return std::bit_cast<T>(pattern);
}
template <class T>
constexpr T with_sign_of(typename format<T>::pattern magnitude, T x) {
  return value_of<T>(magnitude | (pattern_of(x) & format<T>::sign));
}
template <class T>
constexpr int exponent_field(T x) {
  return int(magnitude_pattern(x) >> format<T>::fraction_bits);
}
template <class T>
constexpr bool is_nan(T x) {
  return magnitude_pattern(x) > format<T>::infinity;
}
template <class T>
constexpr bool is_infinite(T x) {
  return magnitude_pattern(x) == format<T>::infinity;
}

// What an operation does to make a NaN quiet.
template <class T>
T quieted(T x) {
  return x * opaque(one_v<T>);  // not opaque(x) * 1, which GCC makes x of
}
// What the processor answers to an invalid operation.
template <class T>
T default_nan() {
  return opaque(zero_v<T>) / zero_v<T>;
}

// Lanes that are zero, denormal, infinite or NaN: one unit added to the field makes it 0, or 1, under a mask without
// the lowest bit.
template <class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> not_normal(const lanes<T, W>& x) {
  constexpr std::int32_t unit = 1 << format<T>::top_shift;
  return ((top_word(x) + unit) & (format<T>::top_exponent - unit)) == 0;
}

}  // namespace lanemath
