/* Trigonometric functions.
 *
 * Angles in radians, or in multiples of pi for the functions that end in pi. Any finite x, however large: the
 * reduction keeps as many bits of 2/pi as the exponent requires (M. Payne and R. Hanek, SIGNUM 18, 1983). Infinities
 * give NaN; the sine and tangent of a zero keep its sign.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_TRIGONOMETRIC_H
#define LANEMATH_TRIGONOMETRIC_H

#include <lanemath/types.h>

#pragma GCC system_header

LANEMATH_BEGIN

/** sine of x radians; one double. Largest error 3.77 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_sin1(lanemath_double1 x) LANEMATH_NAMED("sin1");
/** sine of x radians; 2 lanes of double. Largest error 3.77 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_sin2(lanemath_double2 x) LANEMATH_NAMED("sin2");
lanemath_border_double3 lanemath_call_sin3(lanemath_border_double3) LANEMATH_NAMED("sin3");
/** sine of x radians; 3 lanes of double. Largest error 3.77 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_sin3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, sin3, double3, double3, x);
}
#define lanemath_sin3(x) \
/** sine of x radians; 3 lanes of double. Largest error 3.77 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, sin3, double3, double3, x)
lanemath_wide_double4 lanemath_call_sin4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sin4");
/** sine of x radians; 4 lanes of double. Largest error 3.77 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_sin4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, sin4, double4, double4, x);
}
#define lanemath_sin4(x) \
/** sine of x radians; 4 lanes of double. Largest error 3.77 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sin4, double4, double4, x)
lanemath_wide_double8 lanemath_call_sin8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sin8");
/** sine of x radians; 8 lanes of double. Largest error 3.77 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_sin8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, sin8, double8, double8, x);
}
#define lanemath_sin8(x) \
/** sine of x radians; 8 lanes of double. Largest error 3.77 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sin8, double8, double8, x)
lanemath_wide_double16 lanemath_call_sin16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sin16");
/** sine of x radians; 16 lanes of double. Largest error 3.77 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_sin16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, sin16, double16, double16, x);
}
#define lanemath_sin16(x) \
/** sine of x radians; 16 lanes of double. Largest error 3.77 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sin16, double16, double16, x)

/** sine of x radians; one double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_sin1_native(lanemath_double1 x) LANEMATH_NAMED("sin1_native");
/** sine of x radians; 2 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_sin2_native(lanemath_double2 x) LANEMATH_NAMED("sin2_native");
lanemath_border_double3 lanemath_call_sin3_native(lanemath_border_double3) LANEMATH_NAMED("sin3_native");
/** sine of x radians; 3 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_sin3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, sin3_native, double3, double3, x);
}
#define lanemath_sin3_native(x) \
/** sine of x radians; 3 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, sin3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_sin4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sin4_native");
/** sine of x radians; 4 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_sin4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, sin4_native, double4, double4, x);
}
#define lanemath_sin4_native(x) \
/** sine of x radians; 4 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sin4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_sin8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sin8_native");
/** sine of x radians; 8 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_sin8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, sin8_native, double8, double8, x);
}
#define lanemath_sin8_native(x) \
/** sine of x radians; 8 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sin8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_sin16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sin16_native");
/** sine of x radians; 16 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_sin16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, sin16_native, double16, double16, x);
}
#define lanemath_sin16_native(x) \
/** sine of x radians; 16 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sin16_native, double16, double16, x)

/** sine of x radians; one float. Largest error 2.59 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_sinf1(lanemath_float1 x) LANEMATH_NAMED("sinf1");
/** sine of x radians; 2 lanes of float. Largest error 2.59 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_sinf2(lanemath_float2 x) LANEMATH_NAMED("sinf2");
/** sine of x radians; 3 lanes of float. Largest error 2.59 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_sinf3(lanemath_float3 x) LANEMATH_NAMED("sinf3");
/** sine of x radians; 4 lanes of float. Largest error 2.59 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_sinf4(lanemath_float4 x) LANEMATH_NAMED("sinf4");
lanemath_wide_float8 lanemath_call_sinf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinf8");
/** sine of x radians; 8 lanes of float. Largest error 2.59 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sinf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, sinf8, float8, float8, x);
}
#define lanemath_sinf8(x) \
/** sine of x radians; 8 lanes of float. Largest error 2.59 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_sinf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinf16");
/** sine of x radians; 16 lanes of float. Largest error 2.59 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sinf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, sinf16, float16, float16, x);
}
#define lanemath_sinf16(x) \
/** sine of x radians; 16 lanes of float. Largest error 2.59 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinf16, float16, float16, x)

/** sine of x radians; one float. Largest error 2530 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_sinf1_native(lanemath_float1 x) LANEMATH_NAMED("sinf1_native");
/** sine of x radians; 2 lanes of float. Largest error 2530 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_sinf2_native(lanemath_float2 x) LANEMATH_NAMED("sinf2_native");
/** sine of x radians; 3 lanes of float. Largest error 2530 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_sinf3_native(lanemath_float3 x) LANEMATH_NAMED("sinf3_native");
/** sine of x radians; 4 lanes of float. Largest error 2530 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_sinf4_native(lanemath_float4 x) LANEMATH_NAMED("sinf4_native");
lanemath_wide_float8 lanemath_call_sinf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinf8_native");
/** sine of x radians; 8 lanes of float. Largest error 2530 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sinf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, sinf8_native, float8, float8, x);
}
#define lanemath_sinf8_native(x) \
/** sine of x radians; 8 lanes of float. Largest error 2530 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_sinf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinf16_native");
/** sine of x radians; 16 lanes of float. Largest error 2530 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sinf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, sinf16_native, float16, float16, x);
}
#define lanemath_sinf16_native(x) \
/** sine of x radians; 16 lanes of float. Largest error 2530 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinf16_native, float16, float16, x)

/** sine of x radians; one float. The same function as _native. Largest error 2530 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_sinf1_half(lanemath_float1 x) LANEMATH_NAMED("sinf1_half");
/** sine of x radians; 2 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_sinf2_half(lanemath_float2 x) LANEMATH_NAMED("sinf2_half");
/** sine of x radians; 3 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_sinf3_half(lanemath_float3 x) LANEMATH_NAMED("sinf3_half");
/** sine of x radians; 4 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_sinf4_half(lanemath_float4 x) LANEMATH_NAMED("sinf4_half");
lanemath_wide_float8 lanemath_call_sinf8_half(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinf8_half");
/** sine of x radians; 8 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sinf8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, sinf8_half, float8, float8, x);
}
#define lanemath_sinf8_half(x) \
/** sine of x radians; 8 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinf8_half, float8, float8, x)
lanemath_wide_float16 lanemath_call_sinf16_half(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinf16_half");
/** sine of x radians; 16 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sinf16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, sinf16_half, float16, float16, x);
}
#define lanemath_sinf16_half(x) \
/** sine of x radians; 16 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinf16_half, float16, float16, x)

/** sine of x radians; one float. The same function as _native. Largest error 2530 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_sinf1_rm(lanemath_float1 x) LANEMATH_NAMED("sinf1_rm");
/** sine of x radians; 2 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_sinf2_rm(lanemath_float2 x) LANEMATH_NAMED("sinf2_rm");
/** sine of x radians; 3 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_sinf3_rm(lanemath_float3 x) LANEMATH_NAMED("sinf3_rm");
/** sine of x radians; 4 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_sinf4_rm(lanemath_float4 x) LANEMATH_NAMED("sinf4_rm");
lanemath_wide_float8 lanemath_call_sinf8_rm(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinf8_rm");
/** sine of x radians; 8 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sinf8_rm(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, sinf8_rm, float8, float8, x);
}
#define lanemath_sinf8_rm(x) \
/** sine of x radians; 8 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinf8_rm, float8, float8, x)
lanemath_wide_float16 lanemath_call_sinf16_rm(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinf16_rm");
/** sine of x radians; 16 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sinf16_rm(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, sinf16_rm, float16, float16, x);
}
#define lanemath_sinf16_rm(x) \
/** sine of x radians; 16 lanes of float. The same function as _native. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinf16_rm, float16, float16, x)

/** cosine of x radians; one double. Largest error 3.65 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_cos1(lanemath_double1 x) LANEMATH_NAMED("cos1");
/** cosine of x radians; 2 lanes of double. Largest error 3.65 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_cos2(lanemath_double2 x) LANEMATH_NAMED("cos2");
lanemath_border_double3 lanemath_call_cos3(lanemath_border_double3) LANEMATH_NAMED("cos3");
/** cosine of x radians; 3 lanes of double. Largest error 3.65 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cos3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cos3, double3, double3, x);
}
#define lanemath_cos3(x) \
/** cosine of x radians; 3 lanes of double. Largest error 3.65 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, cos3, double3, double3, x)
lanemath_wide_double4 lanemath_call_cos4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cos4");
/** cosine of x radians; 4 lanes of double. Largest error 3.65 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cos4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cos4, double4, double4, x);
}
#define lanemath_cos4(x) \
/** cosine of x radians; 4 lanes of double. Largest error 3.65 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cos4, double4, double4, x)
lanemath_wide_double8 lanemath_call_cos8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cos8");
/** cosine of x radians; 8 lanes of double. Largest error 3.65 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cos8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cos8, double8, double8, x);
}
#define lanemath_cos8(x) \
/** cosine of x radians; 8 lanes of double. Largest error 3.65 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cos8, double8, double8, x)
lanemath_wide_double16 lanemath_call_cos16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cos16");
/** cosine of x radians; 16 lanes of double. Largest error 3.65 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cos16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cos16, double16, double16, x);
}
#define lanemath_cos16(x) \
/** cosine of x radians; 16 lanes of double. Largest error 3.65 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cos16, double16, double16, x)

/** cosine of x radians; one double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_cos1_native(lanemath_double1 x) LANEMATH_NAMED("cos1_native");
/** cosine of x radians; 2 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_cos2_native(lanemath_double2 x) LANEMATH_NAMED("cos2_native");
lanemath_border_double3 lanemath_call_cos3_native(lanemath_border_double3) LANEMATH_NAMED("cos3_native");
/** cosine of x radians; 3 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cos3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cos3_native, double3, double3, x);
}
#define lanemath_cos3_native(x) \
/** cosine of x radians; 3 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, cos3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_cos4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cos4_native");
/** cosine of x radians; 4 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cos4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cos4_native, double4, double4, x);
}
#define lanemath_cos4_native(x) \
/** cosine of x radians; 4 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cos4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_cos8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cos8_native");
/** cosine of x radians; 8 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cos8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cos8_native, double8, double8, x);
}
#define lanemath_cos8_native(x) \
/** cosine of x radians; 8 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cos8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_cos16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cos16_native");
/** cosine of x radians; 16 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cos16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cos16_native, double16, double16, x);
}
#define lanemath_cos16_native(x) \
/** cosine of x radians; 16 lanes of double. Largest error 6.15e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cos16_native, double16, double16, x)

/** cosine of x radians; one float. Largest error 2.52 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_cosf1(lanemath_float1 x) LANEMATH_NAMED("cosf1");
/** cosine of x radians; 2 lanes of float. Largest error 2.52 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_cosf2(lanemath_float2 x) LANEMATH_NAMED("cosf2");
/** cosine of x radians; 3 lanes of float. Largest error 2.52 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_cosf3(lanemath_float3 x) LANEMATH_NAMED("cosf3");
/** cosine of x radians; 4 lanes of float. Largest error 2.52 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_cosf4(lanemath_float4 x) LANEMATH_NAMED("cosf4");
lanemath_wide_float8 lanemath_call_cosf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cosf8");
/** cosine of x radians; 8 lanes of float. Largest error 2.52 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cosf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cosf8, float8, float8, x);
}
#define lanemath_cosf8(x) \
/** cosine of x radians; 8 lanes of float. Largest error 2.52 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_cosf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cosf16");
/** cosine of x radians; 16 lanes of float. Largest error 2.52 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cosf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cosf16, float16, float16, x);
}
#define lanemath_cosf16(x) \
/** cosine of x radians; 16 lanes of float. Largest error 2.52 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosf16, float16, float16, x)

/** cosine of x radians; one float. Largest error 2540 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_cosf1_native(lanemath_float1 x) LANEMATH_NAMED("cosf1_native");
/** cosine of x radians; 2 lanes of float. Largest error 2540 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_cosf2_native(lanemath_float2 x) LANEMATH_NAMED("cosf2_native");
/** cosine of x radians; 3 lanes of float. Largest error 2540 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_cosf3_native(lanemath_float3 x) LANEMATH_NAMED("cosf3_native");
/** cosine of x radians; 4 lanes of float. Largest error 2540 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_cosf4_native(lanemath_float4 x) LANEMATH_NAMED("cosf4_native");
lanemath_wide_float8 lanemath_call_cosf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cosf8_native");
/** cosine of x radians; 8 lanes of float. Largest error 2540 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cosf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cosf8_native, float8, float8, x);
}
#define lanemath_cosf8_native(x) \
/** cosine of x radians; 8 lanes of float. Largest error 2540 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_cosf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cosf16_native");
/** cosine of x radians; 16 lanes of float. Largest error 2540 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cosf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cosf16_native, float16, float16, x);
}
#define lanemath_cosf16_native(x) \
/** cosine of x radians; 16 lanes of float. Largest error 2540 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosf16_native, float16, float16, x)

/** cosine of x radians; one float. The same function as _native. Largest error 2540 ulp. Domain and special values:
 * at the head of <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_cosf1_half(lanemath_float1 x) LANEMATH_NAMED("cosf1_half");
/** cosine of x radians; 2 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_cosf2_half(lanemath_float2 x) LANEMATH_NAMED("cosf2_half");
/** cosine of x radians; 3 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_cosf3_half(lanemath_float3 x) LANEMATH_NAMED("cosf3_half");
/** cosine of x radians; 4 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_cosf4_half(lanemath_float4 x) LANEMATH_NAMED("cosf4_half");
lanemath_wide_float8 lanemath_call_cosf8_half(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cosf8_half");
/** cosine of x radians; 8 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cosf8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cosf8_half, float8, float8, x);
}
#define lanemath_cosf8_half(x) \
/** cosine of x radians; 8 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosf8_half, float8, float8, x)
lanemath_wide_float16 lanemath_call_cosf16_half(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cosf16_half");
/** cosine of x radians; 16 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cosf16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cosf16_half, float16, float16, x);
}
#define lanemath_cosf16_half(x) \
/** cosine of x radians; 16 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosf16_half, float16, float16, x)

/** cosine of x radians; one float. The same function as _native. Largest error 2540 ulp. Domain and special values:
 * at the head of <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_cosf1_rm(lanemath_float1 x) LANEMATH_NAMED("cosf1_rm");
/** cosine of x radians; 2 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_cosf2_rm(lanemath_float2 x) LANEMATH_NAMED("cosf2_rm");
/** cosine of x radians; 3 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_cosf3_rm(lanemath_float3 x) LANEMATH_NAMED("cosf3_rm");
/** cosine of x radians; 4 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_cosf4_rm(lanemath_float4 x) LANEMATH_NAMED("cosf4_rm");
lanemath_wide_float8 lanemath_call_cosf8_rm(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cosf8_rm");
/** cosine of x radians; 8 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cosf8_rm(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cosf8_rm, float8, float8, x);
}
#define lanemath_cosf8_rm(x) \
/** cosine of x radians; 8 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosf8_rm, float8, float8, x)
lanemath_wide_float16 lanemath_call_cosf16_rm(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cosf16_rm");
/** cosine of x radians; 16 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cosf16_rm(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cosf16_rm, float16, float16, x);
}
#define lanemath_cosf16_rm(x) \
/** cosine of x radians; 16 lanes of float. The same function as _native. Largest error 2540 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosf16_rm, float16, float16, x)

/** sine of x radians; cosine through the pointer; one double. Largest error 3.63 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_sincos1(lanemath_double1 x, lanemath_double1* cosine) LANEMATH_NAMED("sincos1");
/** sine of x radians; cosine through the pointer; 2 lanes of double. Largest error 3.63 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_sincos2(lanemath_double2 x, lanemath_double2* cosine) LANEMATH_NAMED("sincos2");
lanemath_border_double3 lanemath_call_sincos3(lanemath_border_double3, lanemath_double3*) LANEMATH_NAMED("sincos3");
/** sine of x radians; cosine through the pointer; 3 lanes of double. Largest error 3.63 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_sincos3(lanemath_double3 x, lanemath_double3* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_border, sincos3, double3, double3, double3, x, cosine);
}
#define lanemath_sincos3(x, cosine) \
/** sine of x radians; cosine through the pointer; 3 lanes of double. Largest error 3.63 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_border, sincos3, double3, double3, double3, x, cosine)
lanemath_wide_double4 lanemath_call_sincos4(lanemath_wide_double4, lanemath_double4*) LANEMATH_NAMED_WIDE("sincos4");
/** sine of x radians; cosine through the pointer; 4 lanes of double. Largest error 3.63 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_sincos4(lanemath_double4 x, lanemath_double4* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, sincos4, double4, double4, double4, x, cosine);
}
#define lanemath_sincos4(x, cosine) \
/** sine of x radians; cosine through the pointer; 4 lanes of double. Largest error 3.63 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, sincos4, double4, double4, double4, x, cosine)
lanemath_wide_double8 lanemath_call_sincos8(lanemath_wide_double8, lanemath_double8*) LANEMATH_NAMED_WIDE("sincos8");
/** sine of x radians; cosine through the pointer; 8 lanes of double. Largest error 3.63 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_sincos8(lanemath_double8 x, lanemath_double8* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, sincos8, double8, double8, double8, x, cosine);
}
#define lanemath_sincos8(x, cosine) \
/** sine of x radians; cosine through the pointer; 8 lanes of double. Largest error 3.63 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, sincos8, double8, double8, double8, x, cosine)
lanemath_wide_double16 lanemath_call_sincos16(lanemath_wide_double16, lanemath_double16*) LANEMATH_NAMED_WIDE("sincos16");
/** sine of x radians; cosine through the pointer; 16 lanes of double. Largest error 3.63 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_sincos16(lanemath_double16 x, lanemath_double16* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, sincos16, double16, double16, double16, x, cosine);
}
#define lanemath_sincos16(x, cosine) \
/** sine of x radians; cosine through the pointer; 16 lanes of double. Largest error 3.63 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, sincos16, double16, double16, double16, x, cosine)

/** sine of x radians; cosine through the pointer; one double. Largest error 6.15e+07 ulp. Domain and special values:
 * at the head of <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_sincos1_native(lanemath_double1 x, lanemath_double1* cosine) LANEMATH_NAMED("sincos1_native");
/** sine of x radians; cosine through the pointer; 2 lanes of double. Largest error 6.15e+07 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_sincos2_native(lanemath_double2 x, lanemath_double2* cosine) LANEMATH_NAMED("sincos2_native");
lanemath_border_double3 lanemath_call_sincos3_native(lanemath_border_double3, lanemath_double3*) LANEMATH_NAMED("sincos3_native");
/** sine of x radians; cosine through the pointer; 3 lanes of double. Largest error 6.15e+07 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_sincos3_native(lanemath_double3 x, lanemath_double3* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_border, sincos3_native, double3, double3, double3, x, cosine);
}
#define lanemath_sincos3_native(x, cosine) \
/** sine of x radians; cosine through the pointer; 3 lanes of double. Largest error 6.15e+07 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_border, sincos3_native, double3, double3, double3, x, cosine)
lanemath_wide_double4 lanemath_call_sincos4_native(lanemath_wide_double4, lanemath_double4*) LANEMATH_NAMED_WIDE("sincos4_native");
/** sine of x radians; cosine through the pointer; 4 lanes of double. Largest error 6.15e+07 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_sincos4_native(lanemath_double4 x, lanemath_double4* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, sincos4_native, double4, double4, double4, x, cosine);
}
#define lanemath_sincos4_native(x, cosine) \
/** sine of x radians; cosine through the pointer; 4 lanes of double. Largest error 6.15e+07 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, sincos4_native, double4, double4, double4, x, cosine)
lanemath_wide_double8 lanemath_call_sincos8_native(lanemath_wide_double8, lanemath_double8*) LANEMATH_NAMED_WIDE("sincos8_native");
/** sine of x radians; cosine through the pointer; 8 lanes of double. Largest error 6.15e+07 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_sincos8_native(lanemath_double8 x, lanemath_double8* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, sincos8_native, double8, double8, double8, x, cosine);
}
#define lanemath_sincos8_native(x, cosine) \
/** sine of x radians; cosine through the pointer; 8 lanes of double. Largest error 6.15e+07 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, sincos8_native, double8, double8, double8, x, cosine)
lanemath_wide_double16 lanemath_call_sincos16_native(lanemath_wide_double16, lanemath_double16*) LANEMATH_NAMED_WIDE("sincos16_native");
/** sine of x radians; cosine through the pointer; 16 lanes of double. Largest error 6.15e+07 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_sincos16_native(lanemath_double16 x, lanemath_double16* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, sincos16_native, double16, double16, double16, x, cosine);
}
#define lanemath_sincos16_native(x, cosine) \
/** sine of x radians; cosine through the pointer; 16 lanes of double. Largest error 6.15e+07 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, sincos16_native, double16, double16, double16, x, cosine)

/** sine of x radians; cosine through the pointer; one float. Largest error 2.87 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_sincosf1(lanemath_float1 x, lanemath_float1* cosine) LANEMATH_NAMED("sincosf1");
/** sine of x radians; cosine through the pointer; 2 lanes of float. Largest error 2.87 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_sincosf2(lanemath_float2 x, lanemath_float2* cosine) LANEMATH_NAMED("sincosf2");
/** sine of x radians; cosine through the pointer; 3 lanes of float. Largest error 2.87 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_sincosf3(lanemath_float3 x, lanemath_float3* cosine) LANEMATH_NAMED("sincosf3");
/** sine of x radians; cosine through the pointer; 4 lanes of float. Largest error 2.87 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_sincosf4(lanemath_float4 x, lanemath_float4* cosine) LANEMATH_NAMED("sincosf4");
lanemath_wide_float8 lanemath_call_sincosf8(lanemath_wide_float8, lanemath_float8*) LANEMATH_NAMED_WIDE("sincosf8");
/** sine of x radians; cosine through the pointer; 8 lanes of float. Largest error 2.87 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sincosf8(lanemath_float8 x, lanemath_float8* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, sincosf8, float8, float8, float8, x, cosine);
}
#define lanemath_sincosf8(x, cosine) \
/** sine of x radians; cosine through the pointer; 8 lanes of float. Largest error 2.87 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, sincosf8, float8, float8, float8, x, cosine)
lanemath_wide_float16 lanemath_call_sincosf16(lanemath_wide_float16, lanemath_float16*) LANEMATH_NAMED_WIDE("sincosf16");
/** sine of x radians; cosine through the pointer; 16 lanes of float. Largest error 2.87 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sincosf16(lanemath_float16 x, lanemath_float16* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, sincosf16, float16, float16, float16, x, cosine);
}
#define lanemath_sincosf16(x, cosine) \
/** sine of x radians; cosine through the pointer; 16 lanes of float. Largest error 2.87 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, sincosf16, float16, float16, float16, x, cosine)

/** sine of x radians; cosine through the pointer; one float. Largest error 2530 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_sincosf1_native(lanemath_float1 x, lanemath_float1* cosine) LANEMATH_NAMED("sincosf1_native");
/** sine of x radians; cosine through the pointer; 2 lanes of float. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_sincosf2_native(lanemath_float2 x, lanemath_float2* cosine) LANEMATH_NAMED("sincosf2_native");
/** sine of x radians; cosine through the pointer; 3 lanes of float. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_sincosf3_native(lanemath_float3 x, lanemath_float3* cosine) LANEMATH_NAMED("sincosf3_native");
/** sine of x radians; cosine through the pointer; 4 lanes of float. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_sincosf4_native(lanemath_float4 x, lanemath_float4* cosine) LANEMATH_NAMED("sincosf4_native");
lanemath_wide_float8 lanemath_call_sincosf8_native(lanemath_wide_float8, lanemath_float8*) LANEMATH_NAMED_WIDE("sincosf8_native");
/** sine of x radians; cosine through the pointer; 8 lanes of float. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sincosf8_native(lanemath_float8 x, lanemath_float8* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, sincosf8_native, float8, float8, float8, x, cosine);
}
#define lanemath_sincosf8_native(x, cosine) \
/** sine of x radians; cosine through the pointer; 8 lanes of float. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, sincosf8_native, float8, float8, float8, x, cosine)
lanemath_wide_float16 lanemath_call_sincosf16_native(lanemath_wide_float16, lanemath_float16*) LANEMATH_NAMED_WIDE("sincosf16_native");
/** sine of x radians; cosine through the pointer; 16 lanes of float. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sincosf16_native(lanemath_float16 x, lanemath_float16* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, sincosf16_native, float16, float16, float16, x, cosine);
}
#define lanemath_sincosf16_native(x, cosine) \
/** sine of x radians; cosine through the pointer; 16 lanes of float. Largest error 2530 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, sincosf16_native, float16, float16, float16, x, cosine)

/** sine of x radians; cosine through the pointer; one float. The same function as _native. Largest error 2530 ulp.
 * Domain and special values: at the head of <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_sincosf1_rm(lanemath_float1 x, lanemath_float1* cosine) LANEMATH_NAMED("sincosf1_rm");
/** sine of x radians; cosine through the pointer; 2 lanes of float. The same function as _native. Largest error 2530
 * ulp. Domain and special values: at the head of <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_sincosf2_rm(lanemath_float2 x, lanemath_float2* cosine) LANEMATH_NAMED("sincosf2_rm");
/** sine of x radians; cosine through the pointer; 3 lanes of float. The same function as _native. Largest error 2530
 * ulp. Domain and special values: at the head of <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_sincosf3_rm(lanemath_float3 x, lanemath_float3* cosine) LANEMATH_NAMED("sincosf3_rm");
/** sine of x radians; cosine through the pointer; 4 lanes of float. The same function as _native. Largest error 2530
 * ulp. Domain and special values: at the head of <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_sincosf4_rm(lanemath_float4 x, lanemath_float4* cosine) LANEMATH_NAMED("sincosf4_rm");
lanemath_wide_float8 lanemath_call_sincosf8_rm(lanemath_wide_float8, lanemath_float8*) LANEMATH_NAMED_WIDE("sincosf8_rm");
/** sine of x radians; cosine through the pointer; 8 lanes of float. The same function as _native. Largest error 2530
 * ulp. Domain and special values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sincosf8_rm(lanemath_float8 x, lanemath_float8* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, sincosf8_rm, float8, float8, float8, x, cosine);
}
#define lanemath_sincosf8_rm(x, cosine) \
/** sine of x radians; cosine through the pointer; 8 lanes of float. The same function as _native. Largest error 2530
 * ulp. Domain and special values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, sincosf8_rm, float8, float8, float8, x, cosine)
lanemath_wide_float16 lanemath_call_sincosf16_rm(lanemath_wide_float16, lanemath_float16*) LANEMATH_NAMED_WIDE("sincosf16_rm");
/** sine of x radians; cosine through the pointer; 16 lanes of float. The same function as _native. Largest error 2530
 * ulp. Domain and special values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sincosf16_rm(lanemath_float16 x, lanemath_float16* cosine) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, sincosf16_rm, float16, float16, float16, x, cosine);
}
#define lanemath_sincosf16_rm(x, cosine) \
/** sine of x radians; cosine through the pointer; 16 lanes of float. The same function as _native. Largest error 2530
 * ulp. Domain and special values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, sincosf16_rm, float16, float16, float16, x, cosine)

/** sine and cosine of x radians, as a pair; one double. Largest error 3.63 ulp. Domain and special values: at the
 * head of <lanemath/trigonometric.h>. */
lanemath_double1_pair lanemath_sincosreg1(lanemath_double1 x) LANEMATH_NAMED("sincosreg1");
/** sine and cosine of x radians, as a pair; 2 lanes of double. Largest error 3.63 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
lanemath_double2_pair lanemath_sincosreg2(lanemath_double2 x) LANEMATH_NAMED("sincosreg2");
lanemath_border_double3_pair lanemath_call_sincosreg3(lanemath_border_double3) LANEMATH_NAMED("sincosreg3");
/** sine and cosine of x radians, as a pair; 3 lanes of double. Largest error 3.63 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3_pair lanemath_sincosreg3(lanemath_double3 x) {
  return LANEMATH_UNARY_PAIR(lanemath_border, sincosreg3, double3, double3, x);
}
#define lanemath_sincosreg3(x) \
/** sine and cosine of x radians, as a pair; 3 lanes of double. Largest error 3.63 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_PAIR(lanemath_border, sincosreg3, double3, double3, x)
lanemath_wide_double4_pair lanemath_call_sincosreg4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sincosreg4");
/** sine and cosine of x radians, as a pair; 4 lanes of double. Largest error 3.63 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4_pair lanemath_sincosreg4(lanemath_double4 x) {
  return LANEMATH_UNARY_PAIR(lanemath_wide, sincosreg4, double4, double4, x);
}
#define lanemath_sincosreg4(x) \
/** sine and cosine of x radians, as a pair; 4 lanes of double. Largest error 3.63 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_PAIR(lanemath_wide, sincosreg4, double4, double4, x)
lanemath_wide_double8_pair lanemath_call_sincosreg8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sincosreg8");
/** sine and cosine of x radians, as a pair; 8 lanes of double. Largest error 3.63 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8_pair lanemath_sincosreg8(lanemath_double8 x) {
  return LANEMATH_UNARY_PAIR(lanemath_wide, sincosreg8, double8, double8, x);
}
#define lanemath_sincosreg8(x) \
/** sine and cosine of x radians, as a pair; 8 lanes of double. Largest error 3.63 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_PAIR(lanemath_wide, sincosreg8, double8, double8, x)
lanemath_wide_double16_pair lanemath_call_sincosreg16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sincosreg16");
/** sine and cosine of x radians, as a pair; 16 lanes of double. Largest error 3.63 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16_pair lanemath_sincosreg16(lanemath_double16 x) {
  return LANEMATH_UNARY_PAIR(lanemath_wide, sincosreg16, double16, double16, x);
}
#define lanemath_sincosreg16(x) \
/** sine and cosine of x radians, as a pair; 16 lanes of double. Largest error 3.63 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_PAIR(lanemath_wide, sincosreg16, double16, double16, x)

/** sine and cosine of x radians, as a pair; one double. Largest error 6.15e+07 ulp. Domain and special values: at the
 * head of <lanemath/trigonometric.h>. */
lanemath_double1_pair lanemath_sincosreg1_native(lanemath_double1 x) LANEMATH_NAMED("sincosreg1_native");
/** sine and cosine of x radians, as a pair; 2 lanes of double. Largest error 6.15e+07 ulp. Domain and special values:
 * at the head of <lanemath/trigonometric.h>. */
lanemath_double2_pair lanemath_sincosreg2_native(lanemath_double2 x) LANEMATH_NAMED("sincosreg2_native");
lanemath_border_double3_pair lanemath_call_sincosreg3_native(lanemath_border_double3) LANEMATH_NAMED("sincosreg3_native");
/** sine and cosine of x radians, as a pair; 3 lanes of double. Largest error 6.15e+07 ulp. Domain and special values:
 * at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3_pair lanemath_sincosreg3_native(lanemath_double3 x) {
  return LANEMATH_UNARY_PAIR(lanemath_border, sincosreg3_native, double3, double3, x);
}
#define lanemath_sincosreg3_native(x) \
/** sine and cosine of x radians, as a pair; 3 lanes of double. Largest error 6.15e+07 ulp. Domain and special values:
 * at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_PAIR(lanemath_border, sincosreg3_native, double3, double3, x)
lanemath_wide_double4_pair lanemath_call_sincosreg4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sincosreg4_native");
/** sine and cosine of x radians, as a pair; 4 lanes of double. Largest error 6.15e+07 ulp. Domain and special values:
 * at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4_pair lanemath_sincosreg4_native(lanemath_double4 x) {
  return LANEMATH_UNARY_PAIR(lanemath_wide, sincosreg4_native, double4, double4, x);
}
#define lanemath_sincosreg4_native(x) \
/** sine and cosine of x radians, as a pair; 4 lanes of double. Largest error 6.15e+07 ulp. Domain and special values:
 * at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_PAIR(lanemath_wide, sincosreg4_native, double4, double4, x)
lanemath_wide_double8_pair lanemath_call_sincosreg8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sincosreg8_native");
/** sine and cosine of x radians, as a pair; 8 lanes of double. Largest error 6.15e+07 ulp. Domain and special values:
 * at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8_pair lanemath_sincosreg8_native(lanemath_double8 x) {
  return LANEMATH_UNARY_PAIR(lanemath_wide, sincosreg8_native, double8, double8, x);
}
#define lanemath_sincosreg8_native(x) \
/** sine and cosine of x radians, as a pair; 8 lanes of double. Largest error 6.15e+07 ulp. Domain and special values:
 * at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_PAIR(lanemath_wide, sincosreg8_native, double8, double8, x)
lanemath_wide_double16_pair lanemath_call_sincosreg16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sincosreg16_native");
/** sine and cosine of x radians, as a pair; 16 lanes of double. Largest error 6.15e+07 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16_pair lanemath_sincosreg16_native(lanemath_double16 x) {
  return LANEMATH_UNARY_PAIR(lanemath_wide, sincosreg16_native, double16, double16, x);
}
#define lanemath_sincosreg16_native(x) \
/** sine and cosine of x radians, as a pair; 16 lanes of double. Largest error 6.15e+07 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_PAIR(lanemath_wide, sincosreg16_native, double16, double16, x)

/** sine and cosine of x radians, as a pair; one float. Largest error 2.87 ulp. Domain and special values: at the head
 * of <lanemath/trigonometric.h>. */
lanemath_float1_pair lanemath_sincosregf1(lanemath_float1 x) LANEMATH_NAMED("sincosregf1");
/** sine and cosine of x radians, as a pair; 2 lanes of float. Largest error 2.87 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
lanemath_float2_pair lanemath_sincosregf2(lanemath_float2 x) LANEMATH_NAMED("sincosregf2");
/** sine and cosine of x radians, as a pair; 3 lanes of float. Largest error 2.87 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
lanemath_float3_pair lanemath_sincosregf3(lanemath_float3 x) LANEMATH_NAMED("sincosregf3");
/** sine and cosine of x radians, as a pair; 4 lanes of float. Largest error 2.87 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
lanemath_float4_pair lanemath_sincosregf4(lanemath_float4 x) LANEMATH_NAMED("sincosregf4");
lanemath_wide_float8_pair lanemath_call_sincosregf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sincosregf8");
/** sine and cosine of x radians, as a pair; 8 lanes of float. Largest error 2.87 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8_pair lanemath_sincosregf8(lanemath_float8 x) {
  return LANEMATH_UNARY_PAIR(lanemath_wide, sincosregf8, float8, float8, x);
}
#define lanemath_sincosregf8(x) \
/** sine and cosine of x radians, as a pair; 8 lanes of float. Largest error 2.87 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_PAIR(lanemath_wide, sincosregf8, float8, float8, x)
lanemath_wide_float16_pair lanemath_call_sincosregf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sincosregf16");
/** sine and cosine of x radians, as a pair; 16 lanes of float. Largest error 2.87 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16_pair lanemath_sincosregf16(lanemath_float16 x) {
  return LANEMATH_UNARY_PAIR(lanemath_wide, sincosregf16, float16, float16, x);
}
#define lanemath_sincosregf16(x) \
/** sine and cosine of x radians, as a pair; 16 lanes of float. Largest error 2.87 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_PAIR(lanemath_wide, sincosregf16, float16, float16, x)

/** sine and cosine of x radians, as a pair; one float. Largest error 2530 ulp. Domain and special values: at the head
 * of <lanemath/trigonometric.h>. */
lanemath_float1_pair lanemath_sincosregf1_native(lanemath_float1 x) LANEMATH_NAMED("sincosregf1_native");
/** sine and cosine of x radians, as a pair; 2 lanes of float. Largest error 2530 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
lanemath_float2_pair lanemath_sincosregf2_native(lanemath_float2 x) LANEMATH_NAMED("sincosregf2_native");
/** sine and cosine of x radians, as a pair; 3 lanes of float. Largest error 2530 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
lanemath_float3_pair lanemath_sincosregf3_native(lanemath_float3 x) LANEMATH_NAMED("sincosregf3_native");
/** sine and cosine of x radians, as a pair; 4 lanes of float. Largest error 2530 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
lanemath_float4_pair lanemath_sincosregf4_native(lanemath_float4 x) LANEMATH_NAMED("sincosregf4_native");
lanemath_wide_float8_pair lanemath_call_sincosregf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sincosregf8_native");
/** sine and cosine of x radians, as a pair; 8 lanes of float. Largest error 2530 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8_pair lanemath_sincosregf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY_PAIR(lanemath_wide, sincosregf8_native, float8, float8, x);
}
#define lanemath_sincosregf8_native(x) \
/** sine and cosine of x radians, as a pair; 8 lanes of float. Largest error 2530 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_PAIR(lanemath_wide, sincosregf8_native, float8, float8, x)
lanemath_wide_float16_pair lanemath_call_sincosregf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sincosregf16_native");
/** sine and cosine of x radians, as a pair; 16 lanes of float. Largest error 2530 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16_pair lanemath_sincosregf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY_PAIR(lanemath_wide, sincosregf16_native, float16, float16, x);
}
#define lanemath_sincosregf16_native(x) \
/** sine and cosine of x radians, as a pair; 16 lanes of float. Largest error 2530 ulp. Domain and special values: at
 * the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY_PAIR(lanemath_wide, sincosregf16_native, float16, float16, x)

/** tangent of x radians; one double. Largest error 0.571 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_tan1(lanemath_double1 x) LANEMATH_NAMED("tan1");
/** tangent of x radians; 2 lanes of double. Largest error 0.571 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_tan2(lanemath_double2 x) LANEMATH_NAMED("tan2");
lanemath_border_double3 lanemath_call_tan3(lanemath_border_double3) LANEMATH_NAMED("tan3");
/** tangent of x radians; 3 lanes of double. Largest error 0.571 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_tan3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, tan3, double3, double3, x);
}
#define lanemath_tan3(x) \
/** tangent of x radians; 3 lanes of double. Largest error 0.571 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, tan3, double3, double3, x)
lanemath_wide_double4 lanemath_call_tan4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("tan4");
/** tangent of x radians; 4 lanes of double. Largest error 0.571 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_tan4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, tan4, double4, double4, x);
}
#define lanemath_tan4(x) \
/** tangent of x radians; 4 lanes of double. Largest error 0.571 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tan4, double4, double4, x)
lanemath_wide_double8 lanemath_call_tan8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("tan8");
/** tangent of x radians; 8 lanes of double. Largest error 0.571 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_tan8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, tan8, double8, double8, x);
}
#define lanemath_tan8(x) \
/** tangent of x radians; 8 lanes of double. Largest error 0.571 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tan8, double8, double8, x)
lanemath_wide_double16 lanemath_call_tan16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("tan16");
/** tangent of x radians; 16 lanes of double. Largest error 0.571 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_tan16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, tan16, double16, double16, x);
}
#define lanemath_tan16(x) \
/** tangent of x radians; 16 lanes of double. Largest error 0.571 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tan16, double16, double16, x)

/** tangent of x radians; one double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_tan1_native(lanemath_double1 x) LANEMATH_NAMED("tan1_native");
/** tangent of x radians; 2 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_tan2_native(lanemath_double2 x) LANEMATH_NAMED("tan2_native");
lanemath_border_double3 lanemath_call_tan3_native(lanemath_border_double3) LANEMATH_NAMED("tan3_native");
/** tangent of x radians; 3 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_tan3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, tan3_native, double3, double3, x);
}
#define lanemath_tan3_native(x) \
/** tangent of x radians; 3 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, tan3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_tan4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("tan4_native");
/** tangent of x radians; 4 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_tan4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, tan4_native, double4, double4, x);
}
#define lanemath_tan4_native(x) \
/** tangent of x radians; 4 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tan4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_tan8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("tan8_native");
/** tangent of x radians; 8 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_tan8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, tan8_native, double8, double8, x);
}
#define lanemath_tan8_native(x) \
/** tangent of x radians; 8 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tan8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_tan16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("tan16_native");
/** tangent of x radians; 16 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_tan16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, tan16_native, double16, double16, x);
}
#define lanemath_tan16_native(x) \
/** tangent of x radians; 16 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tan16_native, double16, double16, x)

/** tangent of x radians; one float. Largest error 3.95 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_tanf1(lanemath_float1 x) LANEMATH_NAMED("tanf1");
/** tangent of x radians; 2 lanes of float. Largest error 3.95 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_tanf2(lanemath_float2 x) LANEMATH_NAMED("tanf2");
/** tangent of x radians; 3 lanes of float. Largest error 3.95 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_tanf3(lanemath_float3 x) LANEMATH_NAMED("tanf3");
/** tangent of x radians; 4 lanes of float. Largest error 3.95 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_tanf4(lanemath_float4 x) LANEMATH_NAMED("tanf4");
lanemath_wide_float8 lanemath_call_tanf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanf8");
/** tangent of x radians; 8 lanes of float. Largest error 3.95 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_tanf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, tanf8, float8, float8, x);
}
#define lanemath_tanf8(x) \
/** tangent of x radians; 8 lanes of float. Largest error 3.95 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_tanf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanf16");
/** tangent of x radians; 16 lanes of float. Largest error 3.95 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_tanf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, tanf16, float16, float16, x);
}
#define lanemath_tanf16(x) \
/** tangent of x radians; 16 lanes of float. Largest error 3.95 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanf16, float16, float16, x)

/** tangent of x radians; one float. Largest error 924 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_tanf1_native(lanemath_float1 x) LANEMATH_NAMED("tanf1_native");
/** tangent of x radians; 2 lanes of float. Largest error 924 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_tanf2_native(lanemath_float2 x) LANEMATH_NAMED("tanf2_native");
/** tangent of x radians; 3 lanes of float. Largest error 924 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_tanf3_native(lanemath_float3 x) LANEMATH_NAMED("tanf3_native");
/** tangent of x radians; 4 lanes of float. Largest error 924 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_tanf4_native(lanemath_float4 x) LANEMATH_NAMED("tanf4_native");
lanemath_wide_float8 lanemath_call_tanf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanf8_native");
/** tangent of x radians; 8 lanes of float. Largest error 924 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_tanf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, tanf8_native, float8, float8, x);
}
#define lanemath_tanf8_native(x) \
/** tangent of x radians; 8 lanes of float. Largest error 924 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_tanf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanf16_native");
/** tangent of x radians; 16 lanes of float. Largest error 924 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_tanf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, tanf16_native, float16, float16, x);
}
#define lanemath_tanf16_native(x) \
/** tangent of x radians; 16 lanes of float. Largest error 924 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanf16_native, float16, float16, x)

/** tangent of x radians; one float. The same function as _native. Largest error 924 ulp. Domain and special values:
 * at the head of <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_tanf1_half(lanemath_float1 x) LANEMATH_NAMED("tanf1_half");
/** tangent of x radians; 2 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_tanf2_half(lanemath_float2 x) LANEMATH_NAMED("tanf2_half");
/** tangent of x radians; 3 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_tanf3_half(lanemath_float3 x) LANEMATH_NAMED("tanf3_half");
/** tangent of x radians; 4 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_tanf4_half(lanemath_float4 x) LANEMATH_NAMED("tanf4_half");
lanemath_wide_float8 lanemath_call_tanf8_half(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanf8_half");
/** tangent of x radians; 8 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_tanf8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, tanf8_half, float8, float8, x);
}
#define lanemath_tanf8_half(x) \
/** tangent of x radians; 8 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanf8_half, float8, float8, x)
lanemath_wide_float16 lanemath_call_tanf16_half(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanf16_half");
/** tangent of x radians; 16 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_tanf16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, tanf16_half, float16, float16, x);
}
#define lanemath_tanf16_half(x) \
/** tangent of x radians; 16 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanf16_half, float16, float16, x)

/** tangent of x radians; one float. The same function as _native. Largest error 924 ulp. Domain and special values:
 * at the head of <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_tanf1_rm(lanemath_float1 x) LANEMATH_NAMED("tanf1_rm");
/** tangent of x radians; 2 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_tanf2_rm(lanemath_float2 x) LANEMATH_NAMED("tanf2_rm");
/** tangent of x radians; 3 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_tanf3_rm(lanemath_float3 x) LANEMATH_NAMED("tanf3_rm");
/** tangent of x radians; 4 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_tanf4_rm(lanemath_float4 x) LANEMATH_NAMED("tanf4_rm");
lanemath_wide_float8 lanemath_call_tanf8_rm(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanf8_rm");
/** tangent of x radians; 8 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_tanf8_rm(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, tanf8_rm, float8, float8, x);
}
#define lanemath_tanf8_rm(x) \
/** tangent of x radians; 8 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanf8_rm, float8, float8, x)
lanemath_wide_float16 lanemath_call_tanf16_rm(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanf16_rm");
/** tangent of x radians; 16 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_tanf16_rm(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, tanf16_rm, float16, float16, x);
}
#define lanemath_tanf16_rm(x) \
/** tangent of x radians; 16 lanes of float. The same function as _native. Largest error 924 ulp. Domain and special
 * values: at the head of <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanf16_rm, float16, float16, x)

/** sine of pi x; one double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_sinpi1(lanemath_double1 x) LANEMATH_NAMED("sinpi1");
/** sine of pi x; 2 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_sinpi2(lanemath_double2 x) LANEMATH_NAMED("sinpi2");
lanemath_border_double3 lanemath_call_sinpi3(lanemath_border_double3) LANEMATH_NAMED("sinpi3");
/** sine of pi x; 3 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_sinpi3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, sinpi3, double3, double3, x);
}
#define lanemath_sinpi3(x) \
/** sine of pi x; 3 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, sinpi3, double3, double3, x)
lanemath_wide_double4 lanemath_call_sinpi4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sinpi4");
/** sine of pi x; 4 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_sinpi4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, sinpi4, double4, double4, x);
}
#define lanemath_sinpi4(x) \
/** sine of pi x; 4 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinpi4, double4, double4, x)
lanemath_wide_double8 lanemath_call_sinpi8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sinpi8");
/** sine of pi x; 8 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_sinpi8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, sinpi8, double8, double8, x);
}
#define lanemath_sinpi8(x) \
/** sine of pi x; 8 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinpi8, double8, double8, x)
lanemath_wide_double16 lanemath_call_sinpi16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sinpi16");
/** sine of pi x; 16 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_sinpi16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, sinpi16, double16, double16, x);
}
#define lanemath_sinpi16(x) \
/** sine of pi x; 16 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinpi16, double16, double16, x)

/** sine of pi x; one double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_sinpi1_native(lanemath_double1 x) LANEMATH_NAMED("sinpi1_native");
/** sine of pi x; 2 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_sinpi2_native(lanemath_double2 x) LANEMATH_NAMED("sinpi2_native");
lanemath_border_double3 lanemath_call_sinpi3_native(lanemath_border_double3) LANEMATH_NAMED("sinpi3_native");
/** sine of pi x; 3 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_sinpi3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, sinpi3_native, double3, double3, x);
}
#define lanemath_sinpi3_native(x) \
/** sine of pi x; 3 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, sinpi3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_sinpi4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sinpi4_native");
/** sine of pi x; 4 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_sinpi4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, sinpi4_native, double4, double4, x);
}
#define lanemath_sinpi4_native(x) \
/** sine of pi x; 4 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinpi4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_sinpi8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sinpi8_native");
/** sine of pi x; 8 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_sinpi8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, sinpi8_native, double8, double8, x);
}
#define lanemath_sinpi8_native(x) \
/** sine of pi x; 8 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinpi8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_sinpi16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sinpi16_native");
/** sine of pi x; 16 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_sinpi16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, sinpi16_native, double16, double16, x);
}
#define lanemath_sinpi16_native(x) \
/** sine of pi x; 16 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinpi16_native, double16, double16, x)

/** sine of pi x; one float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_sinpif1(lanemath_float1 x) LANEMATH_NAMED("sinpif1");
/** sine of pi x; 2 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_sinpif2(lanemath_float2 x) LANEMATH_NAMED("sinpif2");
/** sine of pi x; 3 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_sinpif3(lanemath_float3 x) LANEMATH_NAMED("sinpif3");
/** sine of pi x; 4 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_sinpif4(lanemath_float4 x) LANEMATH_NAMED("sinpif4");
lanemath_wide_float8 lanemath_call_sinpif8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinpif8");
/** sine of pi x; 8 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sinpif8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, sinpif8, float8, float8, x);
}
#define lanemath_sinpif8(x) \
/** sine of pi x; 8 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinpif8, float8, float8, x)
lanemath_wide_float16 lanemath_call_sinpif16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinpif16");
/** sine of pi x; 16 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sinpif16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, sinpif16, float16, float16, x);
}
#define lanemath_sinpif16(x) \
/** sine of pi x; 16 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinpif16, float16, float16, x)

/** sine of pi x; one float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_sinpif1_native(lanemath_float1 x) LANEMATH_NAMED("sinpif1_native");
/** sine of pi x; 2 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_sinpif2_native(lanemath_float2 x) LANEMATH_NAMED("sinpif2_native");
/** sine of pi x; 3 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_sinpif3_native(lanemath_float3 x) LANEMATH_NAMED("sinpif3_native");
/** sine of pi x; 4 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_sinpif4_native(lanemath_float4 x) LANEMATH_NAMED("sinpif4_native");
lanemath_wide_float8 lanemath_call_sinpif8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinpif8_native");
/** sine of pi x; 8 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sinpif8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, sinpif8_native, float8, float8, x);
}
#define lanemath_sinpif8_native(x) \
/** sine of pi x; 8 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinpif8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_sinpif16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinpif16_native");
/** sine of pi x; 16 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sinpif16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, sinpif16_native, float16, float16, x);
}
#define lanemath_sinpif16_native(x) \
/** sine of pi x; 16 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinpif16_native, float16, float16, x)

/** cosine of pi x; one double. Largest error 0.633 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_cospi1(lanemath_double1 x) LANEMATH_NAMED("cospi1");
/** cosine of pi x; 2 lanes of double. Largest error 0.633 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_cospi2(lanemath_double2 x) LANEMATH_NAMED("cospi2");
lanemath_border_double3 lanemath_call_cospi3(lanemath_border_double3) LANEMATH_NAMED("cospi3");
/** cosine of pi x; 3 lanes of double. Largest error 0.633 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cospi3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cospi3, double3, double3, x);
}
#define lanemath_cospi3(x) \
/** cosine of pi x; 3 lanes of double. Largest error 0.633 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, cospi3, double3, double3, x)
lanemath_wide_double4 lanemath_call_cospi4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cospi4");
/** cosine of pi x; 4 lanes of double. Largest error 0.633 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cospi4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cospi4, double4, double4, x);
}
#define lanemath_cospi4(x) \
/** cosine of pi x; 4 lanes of double. Largest error 0.633 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cospi4, double4, double4, x)
lanemath_wide_double8 lanemath_call_cospi8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cospi8");
/** cosine of pi x; 8 lanes of double. Largest error 0.633 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cospi8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cospi8, double8, double8, x);
}
#define lanemath_cospi8(x) \
/** cosine of pi x; 8 lanes of double. Largest error 0.633 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cospi8, double8, double8, x)
lanemath_wide_double16 lanemath_call_cospi16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cospi16");
/** cosine of pi x; 16 lanes of double. Largest error 0.633 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cospi16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cospi16, double16, double16, x);
}
#define lanemath_cospi16(x) \
/** cosine of pi x; 16 lanes of double. Largest error 0.633 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cospi16, double16, double16, x)

/** cosine of pi x; one double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_cospi1_native(lanemath_double1 x) LANEMATH_NAMED("cospi1_native");
/** cosine of pi x; 2 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_cospi2_native(lanemath_double2 x) LANEMATH_NAMED("cospi2_native");
lanemath_border_double3 lanemath_call_cospi3_native(lanemath_border_double3) LANEMATH_NAMED("cospi3_native");
/** cosine of pi x; 3 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cospi3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cospi3_native, double3, double3, x);
}
#define lanemath_cospi3_native(x) \
/** cosine of pi x; 3 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, cospi3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_cospi4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cospi4_native");
/** cosine of pi x; 4 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cospi4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cospi4_native, double4, double4, x);
}
#define lanemath_cospi4_native(x) \
/** cosine of pi x; 4 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cospi4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_cospi8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cospi8_native");
/** cosine of pi x; 8 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cospi8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cospi8_native, double8, double8, x);
}
#define lanemath_cospi8_native(x) \
/** cosine of pi x; 8 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cospi8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_cospi16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cospi16_native");
/** cosine of pi x; 16 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cospi16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cospi16_native, double16, double16, x);
}
#define lanemath_cospi16_native(x) \
/** cosine of pi x; 16 lanes of double. Largest error 4.79e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cospi16_native, double16, double16, x)

/** cosine of pi x; one float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_cospif1(lanemath_float1 x) LANEMATH_NAMED("cospif1");
/** cosine of pi x; 2 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_cospif2(lanemath_float2 x) LANEMATH_NAMED("cospif2");
/** cosine of pi x; 3 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_cospif3(lanemath_float3 x) LANEMATH_NAMED("cospif3");
/** cosine of pi x; 4 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_cospif4(lanemath_float4 x) LANEMATH_NAMED("cospif4");
lanemath_wide_float8 lanemath_call_cospif8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cospif8");
/** cosine of pi x; 8 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cospif8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cospif8, float8, float8, x);
}
#define lanemath_cospif8(x) \
/** cosine of pi x; 8 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cospif8, float8, float8, x)
lanemath_wide_float16 lanemath_call_cospif16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cospif16");
/** cosine of pi x; 16 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cospif16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cospif16, float16, float16, x);
}
#define lanemath_cospif16(x) \
/** cosine of pi x; 16 lanes of float. Largest error 0.601 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cospif16, float16, float16, x)

/** cosine of pi x; one float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_cospif1_native(lanemath_float1 x) LANEMATH_NAMED("cospif1_native");
/** cosine of pi x; 2 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_cospif2_native(lanemath_float2 x) LANEMATH_NAMED("cospif2_native");
/** cosine of pi x; 3 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_cospif3_native(lanemath_float3 x) LANEMATH_NAMED("cospif3_native");
/** cosine of pi x; 4 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_cospif4_native(lanemath_float4 x) LANEMATH_NAMED("cospif4_native");
lanemath_wide_float8 lanemath_call_cospif8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cospif8_native");
/** cosine of pi x; 8 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cospif8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cospif8_native, float8, float8, x);
}
#define lanemath_cospif8_native(x) \
/** cosine of pi x; 8 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cospif8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_cospif16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cospif16_native");
/** cosine of pi x; 16 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cospif16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cospif16_native, float16, float16, x);
}
#define lanemath_cospif16_native(x) \
/** cosine of pi x; 16 lanes of float. Largest error 1820 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cospif16_native, float16, float16, x)

/** tangent of pi x; one double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_tanpi1(lanemath_double1 x) LANEMATH_NAMED("tanpi1");
/** tangent of pi x; 2 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_tanpi2(lanemath_double2 x) LANEMATH_NAMED("tanpi2");
lanemath_border_double3 lanemath_call_tanpi3(lanemath_border_double3) LANEMATH_NAMED("tanpi3");
/** tangent of pi x; 3 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_tanpi3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, tanpi3, double3, double3, x);
}
#define lanemath_tanpi3(x) \
/** tangent of pi x; 3 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, tanpi3, double3, double3, x)
lanemath_wide_double4 lanemath_call_tanpi4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("tanpi4");
/** tangent of pi x; 4 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_tanpi4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, tanpi4, double4, double4, x);
}
#define lanemath_tanpi4(x) \
/** tangent of pi x; 4 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanpi4, double4, double4, x)
lanemath_wide_double8 lanemath_call_tanpi8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("tanpi8");
/** tangent of pi x; 8 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_tanpi8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, tanpi8, double8, double8, x);
}
#define lanemath_tanpi8(x) \
/** tangent of pi x; 8 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanpi8, double8, double8, x)
lanemath_wide_double16 lanemath_call_tanpi16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("tanpi16");
/** tangent of pi x; 16 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_tanpi16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, tanpi16, double16, double16, x);
}
#define lanemath_tanpi16(x) \
/** tangent of pi x; 16 lanes of double. Largest error 0.783 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanpi16, double16, double16, x)

/** tangent of pi x; one double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double1 lanemath_tanpi1_native(lanemath_double1 x) LANEMATH_NAMED("tanpi1_native");
/** tangent of pi x; 2 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_double2 lanemath_tanpi2_native(lanemath_double2 x) LANEMATH_NAMED("tanpi2_native");
lanemath_border_double3 lanemath_call_tanpi3_native(lanemath_border_double3) LANEMATH_NAMED("tanpi3_native");
/** tangent of pi x; 3 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_tanpi3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, tanpi3_native, double3, double3, x);
}
#define lanemath_tanpi3_native(x) \
/** tangent of pi x; 3 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, tanpi3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_tanpi4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("tanpi4_native");
/** tangent of pi x; 4 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_tanpi4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, tanpi4_native, double4, double4, x);
}
#define lanemath_tanpi4_native(x) \
/** tangent of pi x; 4 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanpi4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_tanpi8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("tanpi8_native");
/** tangent of pi x; 8 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_tanpi8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, tanpi8_native, double8, double8, x);
}
#define lanemath_tanpi8_native(x) \
/** tangent of pi x; 8 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanpi8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_tanpi16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("tanpi16_native");
/** tangent of pi x; 16 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_tanpi16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, tanpi16_native, double16, double16, x);
}
#define lanemath_tanpi16_native(x) \
/** tangent of pi x; 16 lanes of double. Largest error 1.06e+07 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanpi16_native, double16, double16, x)

/** tangent of pi x; one float. Largest error 0.539 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_tanpif1(lanemath_float1 x) LANEMATH_NAMED("tanpif1");
/** tangent of pi x; 2 lanes of float. Largest error 0.539 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_tanpif2(lanemath_float2 x) LANEMATH_NAMED("tanpif2");
/** tangent of pi x; 3 lanes of float. Largest error 0.539 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_tanpif3(lanemath_float3 x) LANEMATH_NAMED("tanpif3");
/** tangent of pi x; 4 lanes of float. Largest error 0.539 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_tanpif4(lanemath_float4 x) LANEMATH_NAMED("tanpif4");
lanemath_wide_float8 lanemath_call_tanpif8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanpif8");
/** tangent of pi x; 8 lanes of float. Largest error 0.539 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_tanpif8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, tanpif8, float8, float8, x);
}
#define lanemath_tanpif8(x) \
/** tangent of pi x; 8 lanes of float. Largest error 0.539 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanpif8, float8, float8, x)
lanemath_wide_float16 lanemath_call_tanpif16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanpif16");
/** tangent of pi x; 16 lanes of float. Largest error 0.539 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_tanpif16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, tanpif16, float16, float16, x);
}
#define lanemath_tanpif16(x) \
/** tangent of pi x; 16 lanes of float. Largest error 0.539 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanpif16, float16, float16, x)

/** tangent of pi x; one float. Largest error 742 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float1 lanemath_tanpif1_native(lanemath_float1 x) LANEMATH_NAMED("tanpif1_native");
/** tangent of pi x; 2 lanes of float. Largest error 742 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float2 lanemath_tanpif2_native(lanemath_float2 x) LANEMATH_NAMED("tanpif2_native");
/** tangent of pi x; 3 lanes of float. Largest error 742 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float3 lanemath_tanpif3_native(lanemath_float3 x) LANEMATH_NAMED("tanpif3_native");
/** tangent of pi x; 4 lanes of float. Largest error 742 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
lanemath_float4 lanemath_tanpif4_native(lanemath_float4 x) LANEMATH_NAMED("tanpif4_native");
lanemath_wide_float8 lanemath_call_tanpif8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanpif8_native");
/** tangent of pi x; 8 lanes of float. Largest error 742 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_tanpif8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, tanpif8_native, float8, float8, x);
}
#define lanemath_tanpif8_native(x) \
/** tangent of pi x; 8 lanes of float. Largest error 742 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanpif8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_tanpif16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanpif16_native");
/** tangent of pi x; 16 lanes of float. Largest error 742 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_tanpif16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, tanpif16_native, float16, float16, x);
}
#define lanemath_tanpif16_native(x) \
/** tangent of pi x; 16 lanes of float. Largest error 742 ulp. Domain and special values: at the head of
 * <lanemath/trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanpif16_native, float16, float16, x)

LANEMATH_END

#endif
