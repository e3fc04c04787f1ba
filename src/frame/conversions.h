// Lanes of one type converted to another.
#pragma once

#include "frame/instructions.h"

namespace lanemath {

// Widens 32-bit integers to 64-bit ones of the same signedness.
template <class T, int W>
LANEMATH_INLINE auto widen(const lanes<T, W>& v) {
  static_assert(sizeof(T) == 4 && std::is_integral_v<T>);
  using wide = std::conditional_t<std::is_signed_v<T>, std::int64_t, std::uint64_t>;
  lanes<wide, W> result;
  if constexpr (W == 1) {
    result.g[0] = v.g[0];
  } else {
    using on = typename lanes<wide, W>::on_group;
    for (int i = 0; i < result.groups; ++i) {
      const auto from =
          std::bit_cast<typename lanes<T, W>::on_group::integers>(v.g[i / lanes_detail::halves_of<wide, W>]);
      const auto half = on::half(from, i % 2);
      const auto wider = std::is_signed_v<T> ? on::widen_signed(half) : on::widen_unsigned(half);
      result.g[i] = std::bit_cast<typename lanes<wide, W>::group>(wider);
    }
  }
  return result;
}

// Doubles with these upper halves; the lower halves are zero.
template <int W>
LANEMATH_INLINE lanes<double, W> from_upper(const lanes<std::int32_t, W>& v) {
  lanes<double, W> result;
  if constexpr (W == 1) {
    result.g[0] = std::bit_cast<double>(std::uint64_t(std::uint32_t(v.g[0])) << 32);
  } else {
    for (int i = 0; i < result.groups; ++i) {
      const auto from = std::bit_cast<typename lanes<std::int32_t, W>::on_group::integers>(
          v.g[i / lanes_detail::halves_of<double, W>]);
      result.g[i] =
          std::bit_cast<typename lanes<double, W>::group>(lanes<double, W>::on_group::in_upper_words(from, i % 2));
    }
  }
  return result;
}

// `convert` rounds in the current direction, `truncate` toward zero. A value that does not fit a 32-bit integer becomes
// 0x80000000.
namespace lanes_detail {

template <class U, bool Truncate, class On, class T>
LANEMATH_INLINE auto convert_group(On, T v) {
  if constexpr (std::is_same_v<U, double>)
    return On::to_doubles(v);
  else if constexpr (std::is_same_v<U, float>)
    return On::to_floats(v);
  else if constexpr (Truncate)
    return On::truncated(v);
  else
    return On::to_integers(v);
}

template <class U, bool Truncate, class T, int W>
LANEMATH_INLINE lanes<U, W> convert(const lanes<T, W>& v) {
  lanes<U, W> result;
  using to = typename lanes<U, W>::group;
  if constexpr (W == 1) {
    // A scalar instruction keeps the rest of its destination register, and so waits for whatever an earlier call left
    // there, unless the register is cleared first.
    result.g[0] = zero_v<U>;
    if constexpr (std::is_integral_v<T>)
      result.g[0] = convert_group<U, Truncate>(instructions<16>(), _mm_cvtsi32_si128(v.g[0]))[0];
    else if constexpr (std::is_same_v<T, float> && std::is_same_v<U, double>)
      asm(LANEMATH_REPLACING("cvtss2sd") : "+x"(result.g[0]) : "x"(v.g[0]));
    else if constexpr (std::is_same_v<T, double> && std::is_same_v<U, float>)
      asm(LANEMATH_REPLACING("cvtsd2ss") : "+x"(result.g[0]) : "x"(v.g[0]));
    else if constexpr (std::is_floating_point_v<U>)
      result.g[0] = U(v.g[0]);
    else if constexpr (sizeof(T) == 4)
      result.g[0] = Truncate ? _mm_cvttss_si32(_mm_set_ss(v.g[0])) : _mm_cvtss_si32(_mm_set_ss(v.g[0]));
    else
      result.g[0] = Truncate ? _mm_cvttsd_si32(_mm_set_sd(v.g[0])) : _mm_cvtsd_si32(_mm_set_sd(v.g[0]));
  } else {
    // The larger of the two groups.
    using on =
        std::conditional_t<(sizeof(U) > sizeof(T)), typename lanes<U, W>::on_group, typename lanes<T, W>::on_group>;
    if constexpr (sizeof(U) == sizeof(T)) {
      for (int i = 0; i < result.groups; ++i)
        result.g[i] = std::bit_cast<to>(convert_group<U, Truncate>(on(), std::bit_cast<register_of<T, on>>(v.g[i])));
    } else if constexpr (sizeof(U) == 8) {
      using from = std::conditional_t<std::is_integral_v<T>, typename on::half_integers, typename on::half_floats>;
      for (int i = 0; i < result.groups; ++i) {
        const auto whole = std::bit_cast<typename lanes<T, W>::on_group::integers>(v.g[i / halves_of<U, W>]);
        const auto half = std::bit_cast<from>(on::half(whole, i % 2));
        result.g[i] = std::bit_cast<to>(convert_group<U, Truncate>(on(), half));
      }
    } else {
      const auto half = [&](int k) LANEMATH_LAMBDA {
        return std::bit_cast<typename on::half_integers>(
            convert_group<U, Truncate>(on(), std::bit_cast<register_of<T, on>>(v.g[k])));
      };
      for (int i = 0; i < result.groups; ++i) {
        if constexpr (halves_of<T, W> == 2) {
          const auto low = half(2 * i);
          if constexpr (W == 2)
            result.g[i] = std::bit_cast<to>(low);
          else
            result.g[i] = std::bit_cast<to>(on::joined(low, half(2 * i + 1)));
        } else {
          result.g[i] = std::bit_cast<to>(half(i));
        }
      }
    }
  }
  return result;
}

}  // namespace lanes_detail

template <class U, class T, int W>
LANEMATH_INLINE lanes<U, W> convert(const lanes<T, W>& v) {
  return lanes_detail::convert<U, false>(v);
}
template <class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> truncate(const lanes<T, W>& v) {
  return lanes_detail::convert<std::int32_t, true>(v);
}

}  // namespace lanemath
