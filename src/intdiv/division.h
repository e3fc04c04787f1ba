// Quotients and remainders of 32-bit integers by double-precision arithmetic: a reciprocal estimate, two Newton steps,
// truncation. The constant of the second step is slightly above 2: by more than the error of the whole computation, so
// that no exact quotient falls short, and by too little to reach the next integer.
//
// For a zero divisor the estimate is infinite and the quotient a NaN, which converts to 0x80000000 (signed) or has a
// zero low word (unsigned); -2^31 / -1 is out of range and gives 0x80000000.
#pragma once

#include <type_traits>

#include "frame/frame.h"

namespace lanemath {

struct division_rows {
  static constexpr double TWO = 2.0;
  static constexpr double ABOVE_TWO = 0x4000000000000200_f64;  // 2 + 2^-42
  // 2^52 + 2^51: the low word of a sum with it is the integer that was added.
  static constexpr double BIAS = 0x1.8p52;
};

template <int W>
LANEMATH_INLINE lanes<double, W> to_double(const lanes<std::int32_t, W>& v) {
  return convert<double>(v);
}
template <int W>
LANEMATH_INLINE lanes<double, W> to_double(const lanes<std::uint32_t, W>& v) {
  constexpr double BIAS = division_rows::BIAS;
  return from_bits(widen(v) | std::bit_cast<std::uint64_t>(BIAS)) - BIAS;
}

template <class T, int W>
LANEMATH_INLINE lanes<T, W> truncated_to(const lanes<double, W>& v) {
  if constexpr (std::is_signed_v<T>)
    return truncate(v);
  else
    return as<T>(lower(round_to<direction::zero>(v) + division_rows::BIAS));
}

struct processor_estimate {
  template <class V>
  LANEMATH_INLINE static V of(V x) {
    return reciprocal_estimate(x);
  }
};

// The result does not depend on the estimate's low bits.
template <class Estimate = processor_estimate, class T, int W>
LANEMATH_INLINE lanes<T, W> quotient(const lanes<T, W>& a, const lanes<T, W>& b) {
  using c = division_rows;
  const auto ad = to_double(a), bd = to_double(b);
  lanes<float, W> estimate;
  if constexpr (std::is_signed_v<T>)
    estimate = Estimate::of(convert<float>(b));
  else
    estimate = Estimate::of(convert<float>(bd));
  const auto r0 = convert<double>(estimate);
  const auto r1 = r0 * (c::TWO - r0 * bd);
  const auto q = (ad * r1) * (c::ABOVE_TWO - bd * r1);
  return truncated_to<T>(q);
}

}  // namespace lanemath
