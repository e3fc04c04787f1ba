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
    for (int i = 0; i < result.groups; ++i) {
      const auto from = std::bit_cast<__m128i>(v.g[i / 2]);
      const auto half = i % 2 ? _mm_unpackhi_epi64(from, from) : from;
      const auto wider = std::is_signed_v<T> ? _mm_cvtepi32_epi64(half) : _mm_cvtepu32_epi64(half);
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
    const auto zero = _mm_setzero_si128();
    for (int i = 0; i < result.groups; ++i) {
      const auto from = std::bit_cast<__m128i>(v.g[i / 2]);
      result.g[i] = std::bit_cast<typename lanes<double, W>::group>(i % 2 ? _mm_unpackhi_epi32(zero, from)
                                                                          : _mm_unpacklo_epi32(zero, from));
    }
  }
  return result;
}

// `convert` rounds in the current direction, `truncate` toward zero. A value that does not fit a 32-bit integer becomes
// 0x80000000.
namespace lanes_detail {

template <class U, bool Truncate, class T>
LANEMATH_INLINE auto convert_group(T v) {
  if constexpr (std::is_same_v<U, double>) {
    if constexpr (std::is_same_v<T, __m128>)
      return _mm_cvtps_pd(v);
    else
      return _mm_cvtepi32_pd(v);
  } else if constexpr (std::is_same_v<U, float>) {
    if constexpr (std::is_same_v<T, __m128d>)
      return _mm_cvtpd_ps(v);
    else
      return _mm_cvtepi32_ps(v);
  } else if constexpr (std::is_same_v<T, __m128>) {
    return Truncate ? _mm_cvttps_epi32(v) : _mm_cvtps_epi32(v);
  } else {
    return Truncate ? _mm_cvttpd_epi32(v) : _mm_cvtpd_epi32(v);
  }
}

template <class T>
using register_of = std::conditional_t<std::is_integral_v<T>, __m128i, packed<T>>;

template <class U, bool Truncate, class T, int W>
LANEMATH_INLINE lanes<U, W> convert(const lanes<T, W>& v) {
  lanes<U, W> result;
  using from = register_of<T>;
  using to = typename lanes<U, W>::group;
  if constexpr (W == 1) {
    // A scalar instruction keeps the rest of its destination register, and so waits for whatever an earlier call left
    // there, unless the register is cleared first.
    result.g[0] = zero_v<U>;
    if constexpr (std::is_integral_v<T>)
      result.g[0] = convert_group<U, Truncate>(_mm_cvtsi32_si128(v.g[0]))[0];
    else if constexpr (std::is_same_v<T, float> && std::is_same_v<U, double>)
      asm("cvtss2sd %1, %0" : "+x"(result.g[0]) : "x"(v.g[0]));
    else if constexpr (std::is_same_v<T, double> && std::is_same_v<U, float>)
      asm("cvtsd2ss %1, %0" : "+x"(result.g[0]) : "x"(v.g[0]));
    else if constexpr (std::is_floating_point_v<U>)
      result.g[0] = U(v.g[0]);
    else if constexpr (sizeof(T) == 4)
      result.g[0] = Truncate ? _mm_cvttss_si32(_mm_set_ss(v.g[0])) : _mm_cvtss_si32(_mm_set_ss(v.g[0]));
    else
      result.g[0] = Truncate ? _mm_cvttsd_si32(_mm_set_sd(v.g[0])) : _mm_cvtsd_si32(_mm_set_sd(v.g[0]));
  } else if constexpr (sizeof(U) == sizeof(T)) {
    for (int i = 0; i < result.groups; ++i)
      result.g[i] = std::bit_cast<to>(convert_group<U, Truncate>(std::bit_cast<from>(v.g[i])));
  } else if constexpr (sizeof(U) == 8) {
    for (int i = 0; i < result.groups; ++i) {
      const auto whole = std::bit_cast<__m128i>(v.g[i / 2]);
      const auto half = std::bit_cast<from>(i % 2 ? _mm_unpackhi_epi64(whole, whole) : whole);
      result.g[i] = std::bit_cast<to>(convert_group<U, Truncate>(half));
    }
  } else {
    for (int i = 0; i < result.groups; ++i) {
      const auto half = [&](int k) LANEMATH_LAMBDA {
        return std::bit_cast<__m128i>(convert_group<U, Truncate>(std::bit_cast<from>(v.g[k])));
      };
      const auto low = half(2 * i);
      result.g[i] = std::bit_cast<to>(W == 2 ? low : _mm_unpacklo_epi64(low, half(2 * i + 1)));
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
