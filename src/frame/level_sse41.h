// Registers of 16 bytes. The levels above have the same functions for theirs.
#pragma once

#include <smmintrin.h>

namespace lanemath {

template <>
struct instructions<16> {
  using floats = __m128;
  using doubles = __m128d;
  using integers = __m128i;
  // Half as many lanes: here in the lower half of a register.
  using half_floats = __m128;
  using half_integers = __m128i;

  // One half, and a register of two.
  LANEMATH_INLINE static integers half(integers v, int k) { return k ? _mm_unpackhi_epi64(v, v) : v; }
  LANEMATH_INLINE static integers joined(integers low, integers high) { return _mm_unpacklo_epi64(low, high); }
  // The 16 bytes number k.
  LANEMATH_INLINE static __m128i piece(integers v, int) { return v; }

  // Bit i: the sign of lane i.
  LANEMATH_INLINE static unsigned signs(floats v) { return unsigned(_mm_movemask_ps(v)); }
  LANEMATH_INLINE static unsigned signs(doubles v) { return unsigned(_mm_movemask_pd(v)); }

  static constexpr auto min_ps = _mm_min_ps;
  static constexpr auto min_pd = _mm_min_pd;
  static constexpr auto max_ps = _mm_max_ps;
  static constexpr auto max_pd = _mm_max_pd;
  static constexpr auto sqrt_ps = _mm_sqrt_ps;
  static constexpr auto sqrt_pd = _mm_sqrt_pd;
  static constexpr auto rcp_ps = _mm_rcp_ps;
  static constexpr auto rsqrt_ps = _mm_rsqrt_ps;
  template <int D>
  LANEMATH_INLINE static floats round(floats x) {
    return _mm_round_ps(x, D);
  }
  template <int D>
  LANEMATH_INLINE static doubles round(doubles x) {
    return _mm_round_pd(x, D);
  }
  static constexpr auto cmpunord_ps = _mm_cmpunord_ps;
  static constexpr auto cmpunord_pd = _mm_cmpunord_pd;
  static constexpr auto mul_epu32 = _mm_mul_epu32;
  LANEMATH_INLINE static integers sllv_epi64(integers v, integers count) {
    const auto second = _mm_unpackhi_epi64(count, count);
    return _mm_blend_epi16(_mm_sll_epi64(v, count), _mm_sll_epi64(v, second), 0xF0);
  }

  // Between lanes of 32 and 64 bits. `words` are the upper or lower words of 64-bit lanes.
  template <int Upper>
  LANEMATH_INLINE static floats words(floats low, floats high) {
    return _mm_shuffle_ps(low, high, _MM_SHUFFLE(2 + Upper, Upper, 2 + Upper, Upper));
  }
  // Half k as upper words, above zeros.
  LANEMATH_INLINE static integers in_upper_words(integers v, int k) {
    const auto zero = _mm_setzero_si128();
    return k ? _mm_unpackhi_epi32(zero, v) : _mm_unpacklo_epi32(zero, v);
  }
  LANEMATH_INLINE static integers widen_signed(half_integers v) { return _mm_cvtepi32_epi64(v); }
  LANEMATH_INLINE static integers widen_unsigned(half_integers v) { return _mm_cvtepu32_epi64(v); }
  LANEMATH_INLINE static doubles to_doubles(half_floats v) { return _mm_cvtps_pd(v); }
  LANEMATH_INLINE static doubles to_doubles(half_integers v) { return _mm_cvtepi32_pd(v); }
  LANEMATH_INLINE static half_floats to_floats(doubles v) { return _mm_cvtpd_ps(v); }
  LANEMATH_INLINE static floats to_floats(integers v) { return _mm_cvtepi32_ps(v); }
  LANEMATH_INLINE static integers to_integers(floats v) { return _mm_cvtps_epi32(v); }
  LANEMATH_INLINE static half_integers to_integers(doubles v) { return _mm_cvtpd_epi32(v); }
  LANEMATH_INLINE static integers truncated(floats v) { return _mm_cvttps_epi32(v); }
  LANEMATH_INLINE static half_integers truncated(doubles v) { return _mm_cvttpd_epi32(v); }

  // Transpositions of look-ups, within every 16 bytes.
  LANEMATH_INLINE static floats evens(floats a, floats b) { return _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)); }
  LANEMATH_INLINE static floats odds(floats a, floats b) { return _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1)); }
  LANEMATH_INLINE static floats low_pairs(floats a, floats b) { return _mm_movelh_ps(a, b); }
  LANEMATH_INLINE static floats high_pairs(floats a, floats b) { return _mm_movehl_ps(b, a); }
  static constexpr auto unpacklo_ps = _mm_unpacklo_ps;
  static constexpr auto unpacklo_pd = _mm_unpacklo_pd;
  static constexpr auto unpackhi_ps = _mm_unpackhi_ps;
  static constexpr auto unpackhi_pd = _mm_unpackhi_pd;
};

}  // namespace lanemath
