// Registers of 64 bytes, with AVX-512 F, VL, DQ and BW.
#pragma once

#include <immintrin.h>

namespace lanemath {

template <>
struct instructions<64> {
  using floats = __m512;
  using doubles = __m512d;
  using integers = __m512i;
  using half_floats = __m256;
  using half_integers = __m256i;

  LANEMATH_INLINE static __m256i half(integers v, int k) {
    return k ? _mm512_extracti64x4_epi64(v, 1) : _mm512_castsi512_si256(v);
  }
  LANEMATH_INLINE static half_integers half(half_integers v, int) { return v; }
  LANEMATH_INLINE static integers joined(half_integers low, half_integers high) {
    return _mm512_inserti64x4(_mm512_castsi256_si512(low), high, 1);
  }
  LANEMATH_INLINE static floats joined(half_floats low, half_floats high) {
    return _mm512_insertf32x8(_mm512_castps256_ps512(low), high, 1);
  }
  LANEMATH_INLINE static doubles joined(__m256d low, __m256d high) {
    return _mm512_insertf64x4(_mm512_castpd256_pd512(low), high, 1);
  }
  LANEMATH_INLINE static __m128i piece(integers v, int k) { return instructions<32>::half(half(v, k / 2), k % 2); }

  LANEMATH_INLINE static unsigned signs(floats v) { return _mm512_movepi32_mask(_mm512_castps_si512(v)); }
  LANEMATH_INLINE static unsigned signs(doubles v) { return _mm512_movepi64_mask(_mm512_castpd_si512(v)); }

  static constexpr auto min_ps = _mm512_min_ps;
  static constexpr auto min_pd = _mm512_min_pd;
  static constexpr auto max_ps = _mm512_max_ps;
  static constexpr auto max_pd = _mm512_max_pd;
  static constexpr auto sqrt_ps = _mm512_sqrt_ps;
  static constexpr auto sqrt_pd = _mm512_sqrt_pd;
  // By halves: the estimates that this level has for whole registers have other bits.
  LANEMATH_INLINE static floats rcp_ps(floats x) { return by_halves(_mm256_rcp_ps, x); }
  LANEMATH_INLINE static floats rsqrt_ps(floats x) { return by_halves(_mm256_rsqrt_ps, x); }
  template <int D>
  LANEMATH_INLINE static floats round(floats x) {
    return _mm512_roundscale_ps(x, D);
  }
  template <int D>
  LANEMATH_INLINE static doubles round(doubles x) {
    return _mm512_roundscale_pd(x, D);
  }
  LANEMATH_INLINE static floats cmpunord_ps(floats x, floats y) {
    return _mm512_castsi512_ps(_mm512_movm_epi32(_mm512_cmp_ps_mask(x, y, _CMP_UNORD_Q)));
  }
  LANEMATH_INLINE static doubles cmpunord_pd(doubles x, doubles y) {
    return _mm512_castsi512_pd(_mm512_movm_epi64(_mm512_cmp_pd_mask(x, y, _CMP_UNORD_Q)));
  }
  static constexpr auto mul_epu32 = _mm512_mul_epu32;
  static constexpr auto sllv_epi64 = _mm512_sllv_epi64;

  template <int Upper>
  LANEMATH_INLINE static integers words(floats low, floats high) {
    return joined(words<Upper>(low), words<Upper>(high));
  }
  template <int Upper>
  LANEMATH_INLINE static half_integers words(floats v) {
    const auto whole = _mm512_castps_si512(v);
    return _mm512_cvtepi64_epi32(Upper ? _mm512_srli_epi64(whole, 32) : whole);
  }
  LANEMATH_INLINE static integers in_upper_words(auto v, int k) {
    return _mm512_slli_epi64(widen_unsigned(half(v, k)), 32);
  }
  LANEMATH_INLINE static integers widen_signed(half_integers v) { return _mm512_cvtepi32_epi64(v); }
  LANEMATH_INLINE static integers widen_unsigned(half_integers v) { return _mm512_cvtepu32_epi64(v); }
  LANEMATH_INLINE static doubles to_doubles(half_floats v) { return _mm512_cvtps_pd(v); }
  LANEMATH_INLINE static doubles to_doubles(half_integers v) { return _mm512_cvtepi32_pd(v); }
  LANEMATH_INLINE static half_floats to_floats(doubles v) { return _mm512_cvtpd_ps(v); }
  LANEMATH_INLINE static floats to_floats(integers v) { return _mm512_cvtepi32_ps(v); }
  LANEMATH_INLINE static integers to_integers(floats v) { return _mm512_cvtps_epi32(v); }
  LANEMATH_INLINE static half_integers to_integers(doubles v) { return _mm512_cvtpd_epi32(v); }
  LANEMATH_INLINE static integers truncated(floats v) { return _mm512_cvttps_epi32(v); }
  LANEMATH_INLINE static half_integers truncated(doubles v) { return _mm512_cvttpd_epi32(v); }

  LANEMATH_INLINE static floats evens(floats a, floats b) { return _mm512_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)); }
  LANEMATH_INLINE static floats odds(floats a, floats b) { return _mm512_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1)); }
  LANEMATH_INLINE static floats low_pairs(floats a, floats b) {
    return _mm512_shuffle_ps(a, b, _MM_SHUFFLE(1, 0, 1, 0));
  }
  LANEMATH_INLINE static floats high_pairs(floats a, floats b) {
    return _mm512_shuffle_ps(a, b, _MM_SHUFFLE(3, 2, 3, 2));
  }
  static constexpr auto unpacklo_ps = _mm512_unpacklo_ps;
  static constexpr auto unpacklo_pd = _mm512_unpacklo_pd;
  static constexpr auto unpackhi_ps = _mm512_unpackhi_ps;
  static constexpr auto unpackhi_pd = _mm512_unpackhi_pd;

 private:
  template <class F>
  LANEMATH_INLINE static floats by_halves(F f, floats x) {
    const auto on_half = [&](int k) LANEMATH_LAMBDA {
      return _mm256_castps_si256(f(_mm256_castsi256_ps(half(_mm512_castps_si512(x), k))));
    };
    return _mm512_castsi512_ps(joined(on_half(0), on_half(1)));
  }
};

}  // namespace lanemath
