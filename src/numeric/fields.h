// The fields of a floating-point format, for operations that take numbers apart. One text serves both precisions: the
// vector kernels look at the top word of a lane, which is the whole of a float and the upper half of a double.
#pragma once

#include <bit>
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
  static constexpr int lift = sizeof(T) == 4 ? 25 : 55;  // 2^lift makes every denormal normal

  static constexpr pattern sign = pattern(1) << (8 * sizeof(T) - 1);
  static constexpr pattern implicit_bit = pattern(1) << fraction_bits;  // also one unit of the exponent field
  static constexpr pattern fraction = implicit_bit - 1;
  static constexpr pattern infinity = pattern(top_field) << fraction_bits;

  // In the top word.
  static constexpr int top_shift = fraction_bits % 32;
  static constexpr std::int32_t top_unit = 1 << top_shift;
  static constexpr std::int32_t top_exponent = top_field << top_shift;
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
template <class T>
constexpr bool is_finite(T x) {
  return magnitude_pattern(x) < format<T>::infinity;
}

// The power of two with this exponent field; 2^k, where k is the exponent of a normal number.
template <class T>
constexpr T with_exponent_field(int field) {
  return value_of<T>(typename format<T>::pattern(field) << format<T>::fraction_bits);
}
template <class T>
constexpr T power_of_two(int k) {
  return with_exponent_field<T>(format<T>::bias + k);
}

// The magnitude of a finite nonzero number: mantissa * 2^exponent, the mantissa in [1, 2). The significand is the
// mantissa as an integer, its implicit bit set, for denormals too.
template <class T>
struct unpacked {
  using f = format<T>;

  typename f::pattern significand;
  int exponent;

  explicit unpacked(T x) : significand(magnitude_pattern(x)), exponent(f::least_exponent) {
    if (const int field = exponent_field(x); field == 0) {
      normalise();
    } else {
      significand = (significand & f::fraction) | f::implicit_bit;
      exponent = field - f::bias;
    }
  }

  void normalise() {
    const int up = std::countl_zero(significand) - std::countl_zero(f::implicit_bit);
    significand <<= up;
    exponent -= up;
  }

  T mantissa() const { return with_field(f::bias); }
  T with_field(int field) const {
    return value_of<T>((significand & f::fraction) | typename f::pattern(field) << f::fraction_bits);
  }
};

template <class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> exponent_of_positive(const lanes<T, W>& x) {
  return (top_word(x) >> format<T>::top_shift) - format<T>::bias;
}

// The mantissa times 2^exponent.
template <class T, int W>
LANEMATH_INLINE lanes<T, W> with_exponent(const lanes<T, W>& x, int exponent) {
  using I = typename format<T>::signed_pattern;
  return from_bits((bits(x) & I(format<T>::fraction)) | I(pattern_of(power_of_two<T>(exponent))));
}

// The word with the lowest bits of a pattern.
template <class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> low_word(const lanes<T, W>& x) {
  if constexpr (sizeof(T) == 4)
    return bits(x);
  else
    return lower(x);
}

template <class T, int W>
LANEMATH_INLINE lanes<T, W> flipped(const lanes<T, W>& x, const lanes<int_of_size<sizeof(T)>, W>& signs) {
  return from_bits(bits(x) ^ signs);
}

// Lanes whose word, as an unsigned number, is outside [low, high]: one subtraction and one signed comparison.
template <int W>
LANEMATH_INLINE auto outside(const lanes<std::int32_t, W>& word, std::uint32_t low, std::uint32_t high) {
  constexpr std::uint32_t sign = 0x80000000;
  return word - std::int32_t(low ^ sign) > std::int32_t((high - low) ^ sign);
}

// All but the positive normal numbers: zeros, denormals, negative values, +infinity and NaNs.
template <class T, int W>
LANEMATH_INLINE auto not_positive_normal(const lanes<T, W>& x) {
  return outside(top_word(x), format<T>::top_unit, format<T>::top_exponent - 1);
}

// Lanes that are zero, denormal, infinite or NaN. One unit added to their exponent field makes it 1 or 0; the mask
// leaves out the lowest bit.
template <class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> not_normal(const lanes<T, W>& x) {
  using f = format<T>;
  return ((top_word(x) + f::top_unit) & (f::top_exponent - f::top_unit)) == 0;
}

}  // namespace lanemath
