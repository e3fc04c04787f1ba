// Registers of 32 bytes, with AVX2.
#pragma once

#include <immintrin.h>

namespace lanemath {

template <>
struct instructions<32> {
  using floats = __m256;
  using doubles = __m256d;
  using integers = __m256i;
  using half_floats = __m128;
  using half_integers = __m128i;

  LANEMATH_INLINE static __m128i half(integers v, int k) {
    return k ? _mm256_extracti128_si256(v, 1) : _mm256_castsi256_si128(v);
  }
  LANEMATH_INLINE static half_integers half(half_integers v, int) { return v; }
  LANEMATH_INLINE static integers joined(half_integers low, half_integers high) {
    return _mm256_inserti128_si256(_mm256_castsi128_si256(low), high, 1);
  }
  LANEMATH_INLINE static floats joined(half_floats low, half_floats high) {
    return _mm256_insertf128_ps(_mm256_castps128_ps256(low), high, 1);
  }
  LANEMATH_INLINE static doubles joined(__m128d low, __m128d high) {
    return _mm256_insertf128_pd(_mm256_castpd128_pd256(low), high, 1);
  }
  LANEMATH_INLINE static __m128i piece(integers v, int k) { return half(v, k); }

  LANEMATH_INLINE static unsigned signs(floats v) { return unsigned(_mm256_movemask_ps(v)); }
  LANEMATH_INLINE static unsigned signs(doubles v) { return unsigned(_mm256_movemask_pd(v)); }

  static constexpr auto min_ps = _mm256_min_ps;
  static constexpr auto min_pd = _mm256_min_pd;
  static constexpr auto max_ps = _mm256_max_ps;
  static constexpr auto max_pd = _mm256_max_pd;
  static constexpr auto sqrt_ps = _mm256_sqrt_ps;
  static constexpr auto sqrt_pd = _mm256_sqrt_pd;
  static constexpr auto rcp_ps = _mm256_rcp_ps;
  static constexpr auto rsqrt_ps = _mm256_rsqrt_ps;
  template <int D>
  LANEMATH_INLINE static floats round(floats x) {
    return _mm256_round_ps(x, D);
  }
  template <int D>
  LANEMATH_INLINE static doubles round(doubles x) {
    return _mm256_round_pd(x, D);
  }
  LANEMATH_INLINE static floats cmpunord_ps(floats x, floats y) { return _mm256_cmp_ps(x, y, _CMP_UNORD_Q); }
  LANEMATH_INLINE static doubles cmpunord_pd(doubles x, doubles y) { return _mm256_cmp_pd(x, y, _CMP_UNORD_Q); }
  static constexpr auto mul_epu32 = _mm256_mul_epu32;
  static constexpr auto sllv_epi64 = _mm256_sllv_epi64;

  template <int Upper>
  LANEMATH_INLINE static integers words(floats low, floats high) {
    const auto halves = _mm256_shuffle_ps(low, high, _MM_SHUFFLE(2 + Upper, Upper, 2 + Upper, Upper));
    return _mm256_permute4x64_epi64(_mm256_castps_si256(halves), _MM_SHUFFLE(3, 1, 2, 0));
  }
  template <int Upper>
  LANEMATH_INLINE static half_floats words(floats v) {
    return instructions<16>::words<Upper>(_mm256_castps256_ps128(v), _mm256_extractf128_ps(v, 1));
  }
  LANEMATH_INLINE static integers in_upper_words(auto v, int k) {
    return _mm256_slli_epi64(widen_unsigned(half(v, k)), 32);
  }
  LANEMATH_INLINE static integers widen_signed(half_integers v) { return _mm256_cvtepi32_epi64(v); }
  LANEMATH_INLINE static integers widen_unsigned(half_integers v) { return _mm256_cvtepu32_epi64(v); }
  LANEMATH_INLINE static doubles to_doubles(half_floats v) { return _mm256_cvtps_pd(v); }
  LANEMATH_INLINE static doubles to_doubles(half_integers v) { return _mm256_cvtepi32_pd(v); }
  LANEMATH_INLINE static half_floats to_floats(doubles v) { return _mm256_cvtpd_ps(v); }
  LANEMATH_INLINE static floats to_floats(integers v) { return _mm256_cvtepi32_ps(v); }
  LANEMATH_INLINE static integers to_integers(floats v) { return _mm256_cvtps_epi32(v); }
  LANEMATH_INLINE static half_integers to_integers(doubles v) { return _mm256_cvtpd_epi32(v); }
  LANEMATH_INLINE static integers truncated(floats v) { return _mm256_cvttps_epi32(v); }
  LANEMATH_INLINE static half_integers truncated(doubles v) { return _mm256_cvttpd_epi32(v); }

  LANEMATH_INLINE static floats evens(floats a, floats b) { return _mm256_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)); }
  LANEMATH_INLINE static floats odds(floats a, floats b) { return _mm256_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1)); }
  LANEMATH_INLINE static floats low_pairs(floats a, floats b) {
    return _mm256_shuffle_ps(a, b, _MM_SHUFFLE(1, 0, 1, 0));
  }
  LANEMATH_INLINE static floats high_pairs(floats a, floats b) {
    return _mm256_shuffle_ps(a, b, _MM_SHUFFLE(3, 2, 3, 2));
  }
  static constexpr auto unpacklo_ps = _mm256_unpacklo_ps;
  static constexpr auto unpacklo_pd = _mm256_unpacklo_pd;
  static constexpr auto unpackhi_ps = _mm256_unpackhi_ps;
  static constexpr auto unpackhi_pd = _mm256_unpackhi_pd;
};

}  // namespace lanemath
