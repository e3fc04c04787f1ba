/* Inverse trigonometric functions.
 *
 * Results in radians, divided by pi for the functions that end in pi. asin and acos: -1 <= x <= 1, NaN outside.
 * atan2(y, x) is the angle of the point (x, y).
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_INVERSE_TRIGONOMETRIC_H
#define LANEMATH_INVERSE_TRIGONOMETRIC_H

#include <lanemath/types.h>

#pragma GCC system_header

LANEMATH_BEGIN

/** arc sine of x, in radians; one double. Largest error 2.17 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_asin1(lanemath_double1 x) LANEMATH_NAMED("asin1");
/** arc sine of x, in radians; 2 lanes of double. Largest error 2.17 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_asin2(lanemath_double2 x) LANEMATH_NAMED("asin2");
lanemath_border_double3 lanemath_call_asin3(lanemath_border_double3) LANEMATH_NAMED("asin3");
/** arc sine of x, in radians; 3 lanes of double. Largest error 2.17 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_asin3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, asin3, double3, double3, x);
}
#define lanemath_asin3(x) \
/** arc sine of x, in radians; 3 lanes of double. Largest error 2.17 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, asin3, double3, double3, x)
lanemath_wide_double4 lanemath_call_asin4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("asin4");
/** arc sine of x, in radians; 4 lanes of double. Largest error 2.17 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_asin4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, asin4, double4, double4, x);
}
#define lanemath_asin4(x) \
/** arc sine of x, in radians; 4 lanes of double. Largest error 2.17 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asin4, double4, double4, x)
lanemath_wide_double8 lanemath_call_asin8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("asin8");
/** arc sine of x, in radians; 8 lanes of double. Largest error 2.17 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_asin8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, asin8, double8, double8, x);
}
#define lanemath_asin8(x) \
/** arc sine of x, in radians; 8 lanes of double. Largest error 2.17 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asin8, double8, double8, x)
lanemath_wide_double16 lanemath_call_asin16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("asin16");
/** arc sine of x, in radians; 16 lanes of double. Largest error 2.17 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_asin16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, asin16, double16, double16, x);
}
#define lanemath_asin16(x) \
/** arc sine of x, in radians; 16 lanes of double. Largest error 2.17 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asin16, double16, double16, x)

/** arc sine of x, in radians; one double. Largest error 6.3e+06 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_asin1_native(lanemath_double1 x) LANEMATH_NAMED("asin1_native");
/** arc sine of x, in radians; 2 lanes of double. Largest error 6.3e+06 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_asin2_native(lanemath_double2 x) LANEMATH_NAMED("asin2_native");
lanemath_border_double3 lanemath_call_asin3_native(lanemath_border_double3) LANEMATH_NAMED("asin3_native");
/** arc sine of x, in radians; 3 lanes of double. Largest error 6.3e+06 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_asin3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, asin3_native, double3, double3, x);
}
#define lanemath_asin3_native(x) \
/** arc sine of x, in radians; 3 lanes of double. Largest error 6.3e+06 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, asin3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_asin4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("asin4_native");
/** arc sine of x, in radians; 4 lanes of double. Largest error 6.3e+06 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_asin4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, asin4_native, double4, double4, x);
}
#define lanemath_asin4_native(x) \
/** arc sine of x, in radians; 4 lanes of double. Largest error 6.3e+06 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asin4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_asin8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("asin8_native");
/** arc sine of x, in radians; 8 lanes of double. Largest error 6.3e+06 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_asin8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, asin8_native, double8, double8, x);
}
#define lanemath_asin8_native(x) \
/** arc sine of x, in radians; 8 lanes of double. Largest error 6.3e+06 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asin8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_asin16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("asin16_native");
/** arc sine of x, in radians; 16 lanes of double. Largest error 6.3e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_asin16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, asin16_native, double16, double16, x);
}
#define lanemath_asin16_native(x) \
/** arc sine of x, in radians; 16 lanes of double. Largest error 6.3e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asin16_native, double16, double16, x)

/** arc sine of x, in radians; one float. Largest error 2.28 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_asinf1(lanemath_float1 x) LANEMATH_NAMED("asinf1");
/** arc sine of x, in radians; 2 lanes of float. Largest error 2.28 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_asinf2(lanemath_float2 x) LANEMATH_NAMED("asinf2");
/** arc sine of x, in radians; 3 lanes of float. Largest error 2.28 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_asinf3(lanemath_float3 x) LANEMATH_NAMED("asinf3");
/** arc sine of x, in radians; 4 lanes of float. Largest error 2.28 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_asinf4(lanemath_float4 x) LANEMATH_NAMED("asinf4");
lanemath_wide_float8 lanemath_call_asinf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("asinf8");
/** arc sine of x, in radians; 8 lanes of float. Largest error 2.28 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_asinf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, asinf8, float8, float8, x);
}
#define lanemath_asinf8(x) \
/** arc sine of x, in radians; 8 lanes of float. Largest error 2.28 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_asinf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("asinf16");
/** arc sine of x, in radians; 16 lanes of float. Largest error 2.28 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_asinf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, asinf16, float16, float16, x);
}
#define lanemath_asinf16(x) \
/** arc sine of x, in radians; 16 lanes of float. Largest error 2.28 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinf16, float16, float16, x)

/** arc sine of x, in radians; one float. Largest error 536 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_asinf1_native(lanemath_float1 x) LANEMATH_NAMED("asinf1_native");
/** arc sine of x, in radians; 2 lanes of float. Largest error 536 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_asinf2_native(lanemath_float2 x) LANEMATH_NAMED("asinf2_native");
/** arc sine of x, in radians; 3 lanes of float. Largest error 536 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_asinf3_native(lanemath_float3 x) LANEMATH_NAMED("asinf3_native");
/** arc sine of x, in radians; 4 lanes of float. Largest error 536 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_asinf4_native(lanemath_float4 x) LANEMATH_NAMED("asinf4_native");
lanemath_wide_float8 lanemath_call_asinf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("asinf8_native");
/** arc sine of x, in radians; 8 lanes of float. Largest error 536 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_asinf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, asinf8_native, float8, float8, x);
}
#define lanemath_asinf8_native(x) \
/** arc sine of x, in radians; 8 lanes of float. Largest error 536 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_asinf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("asinf16_native");
/** arc sine of x, in radians; 16 lanes of float. Largest error 536 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_asinf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, asinf16_native, float16, float16, x);
}
#define lanemath_asinf16_native(x) \
/** arc sine of x, in radians; 16 lanes of float. Largest error 536 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinf16_native, float16, float16, x)

/** arc cosine of x, in radians; one double. Largest error 1.33 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_acos1(lanemath_double1 x) LANEMATH_NAMED("acos1");
/** arc cosine of x, in radians; 2 lanes of double. Largest error 1.33 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_acos2(lanemath_double2 x) LANEMATH_NAMED("acos2");
lanemath_border_double3 lanemath_call_acos3(lanemath_border_double3) LANEMATH_NAMED("acos3");
/** arc cosine of x, in radians; 3 lanes of double. Largest error 1.33 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_acos3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, acos3, double3, double3, x);
}
#define lanemath_acos3(x) \
/** arc cosine of x, in radians; 3 lanes of double. Largest error 1.33 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, acos3, double3, double3, x)
lanemath_wide_double4 lanemath_call_acos4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("acos4");
/** arc cosine of x, in radians; 4 lanes of double. Largest error 1.33 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_acos4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, acos4, double4, double4, x);
}
#define lanemath_acos4(x) \
/** arc cosine of x, in radians; 4 lanes of double. Largest error 1.33 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acos4, double4, double4, x)
lanemath_wide_double8 lanemath_call_acos8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("acos8");
/** arc cosine of x, in radians; 8 lanes of double. Largest error 1.33 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_acos8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, acos8, double8, double8, x);
}
#define lanemath_acos8(x) \
/** arc cosine of x, in radians; 8 lanes of double. Largest error 1.33 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acos8, double8, double8, x)
lanemath_wide_double16 lanemath_call_acos16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("acos16");
/** arc cosine of x, in radians; 16 lanes of double. Largest error 1.33 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_acos16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, acos16, double16, double16, x);
}
#define lanemath_acos16(x) \
/** arc cosine of x, in radians; 16 lanes of double. Largest error 1.33 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acos16, double16, double16, x)

/** arc cosine of x, in radians; one double. Largest error 6.4e+06 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_acos1_native(lanemath_double1 x) LANEMATH_NAMED("acos1_native");
/** arc cosine of x, in radians; 2 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_acos2_native(lanemath_double2 x) LANEMATH_NAMED("acos2_native");
lanemath_border_double3 lanemath_call_acos3_native(lanemath_border_double3) LANEMATH_NAMED("acos3_native");
/** arc cosine of x, in radians; 3 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_acos3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, acos3_native, double3, double3, x);
}
#define lanemath_acos3_native(x) \
/** arc cosine of x, in radians; 3 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, acos3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_acos4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("acos4_native");
/** arc cosine of x, in radians; 4 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_acos4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, acos4_native, double4, double4, x);
}
#define lanemath_acos4_native(x) \
/** arc cosine of x, in radians; 4 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acos4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_acos8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("acos8_native");
/** arc cosine of x, in radians; 8 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_acos8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, acos8_native, double8, double8, x);
}
#define lanemath_acos8_native(x) \
/** arc cosine of x, in radians; 8 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acos8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_acos16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("acos16_native");
/** arc cosine of x, in radians; 16 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_acos16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, acos16_native, double16, double16, x);
}
#define lanemath_acos16_native(x) \
/** arc cosine of x, in radians; 16 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acos16_native, double16, double16, x)

/** arc cosine of x, in radians; one float. Largest error 1.24 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_acosf1(lanemath_float1 x) LANEMATH_NAMED("acosf1");
/** arc cosine of x, in radians; 2 lanes of float. Largest error 1.24 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_acosf2(lanemath_float2 x) LANEMATH_NAMED("acosf2");
/** arc cosine of x, in radians; 3 lanes of float. Largest error 1.24 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_acosf3(lanemath_float3 x) LANEMATH_NAMED("acosf3");
/** arc cosine of x, in radians; 4 lanes of float. Largest error 1.24 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_acosf4(lanemath_float4 x) LANEMATH_NAMED("acosf4");
lanemath_wide_float8 lanemath_call_acosf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("acosf8");
/** arc cosine of x, in radians; 8 lanes of float. Largest error 1.24 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_acosf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, acosf8, float8, float8, x);
}
#define lanemath_acosf8(x) \
/** arc cosine of x, in radians; 8 lanes of float. Largest error 1.24 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acosf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_acosf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("acosf16");
/** arc cosine of x, in radians; 16 lanes of float. Largest error 1.24 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_acosf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, acosf16, float16, float16, x);
}
#define lanemath_acosf16(x) \
/** arc cosine of x, in radians; 16 lanes of float. Largest error 1.24 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acosf16, float16, float16, x)

/** arc cosine of x, in radians; one float. Largest error 533 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_acosf1_native(lanemath_float1 x) LANEMATH_NAMED("acosf1_native");
/** arc cosine of x, in radians; 2 lanes of float. Largest error 533 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_acosf2_native(lanemath_float2 x) LANEMATH_NAMED("acosf2_native");
/** arc cosine of x, in radians; 3 lanes of float. Largest error 533 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_acosf3_native(lanemath_float3 x) LANEMATH_NAMED("acosf3_native");
/** arc cosine of x, in radians; 4 lanes of float. Largest error 533 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_acosf4_native(lanemath_float4 x) LANEMATH_NAMED("acosf4_native");
lanemath_wide_float8 lanemath_call_acosf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("acosf8_native");
/** arc cosine of x, in radians; 8 lanes of float. Largest error 533 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_acosf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, acosf8_native, float8, float8, x);
}
#define lanemath_acosf8_native(x) \
/** arc cosine of x, in radians; 8 lanes of float. Largest error 533 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acosf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_acosf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("acosf16_native");
/** arc cosine of x, in radians; 16 lanes of float. Largest error 533 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_acosf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, acosf16_native, float16, float16, x);
}
#define lanemath_acosf16_native(x) \
/** arc cosine of x, in radians; 16 lanes of float. Largest error 533 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acosf16_native, float16, float16, x)

/** arc sine of x, divided by pi; one double. Largest error 3.02 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_asinpi1(lanemath_double1 x) LANEMATH_NAMED("asinpi1");
/** arc sine of x, divided by pi; 2 lanes of double. Largest error 3.02 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_asinpi2(lanemath_double2 x) LANEMATH_NAMED("asinpi2");
lanemath_border_double3 lanemath_call_asinpi3(lanemath_border_double3) LANEMATH_NAMED("asinpi3");
/** arc sine of x, divided by pi; 3 lanes of double. Largest error 3.02 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_asinpi3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, asinpi3, double3, double3, x);
}
#define lanemath_asinpi3(x) \
/** arc sine of x, divided by pi; 3 lanes of double. Largest error 3.02 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, asinpi3, double3, double3, x)
lanemath_wide_double4 lanemath_call_asinpi4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("asinpi4");
/** arc sine of x, divided by pi; 4 lanes of double. Largest error 3.02 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_asinpi4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, asinpi4, double4, double4, x);
}
#define lanemath_asinpi4(x) \
/** arc sine of x, divided by pi; 4 lanes of double. Largest error 3.02 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinpi4, double4, double4, x)
lanemath_wide_double8 lanemath_call_asinpi8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("asinpi8");
/** arc sine of x, divided by pi; 8 lanes of double. Largest error 3.02 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_asinpi8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, asinpi8, double8, double8, x);
}
#define lanemath_asinpi8(x) \
/** arc sine of x, divided by pi; 8 lanes of double. Largest error 3.02 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinpi8, double8, double8, x)
lanemath_wide_double16 lanemath_call_asinpi16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("asinpi16");
/** arc sine of x, divided by pi; 16 lanes of double. Largest error 3.02 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_asinpi16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, asinpi16, double16, double16, x);
}
#define lanemath_asinpi16(x) \
/** arc sine of x, divided by pi; 16 lanes of double. Largest error 3.02 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinpi16, double16, double16, x)

/** arc sine of x, divided by pi; one double. Largest error 7.6e+06 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_asinpi1_native(lanemath_double1 x) LANEMATH_NAMED("asinpi1_native");
/** arc sine of x, divided by pi; 2 lanes of double. Largest error 7.6e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_asinpi2_native(lanemath_double2 x) LANEMATH_NAMED("asinpi2_native");
lanemath_border_double3 lanemath_call_asinpi3_native(lanemath_border_double3) LANEMATH_NAMED("asinpi3_native");
/** arc sine of x, divided by pi; 3 lanes of double. Largest error 7.6e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_asinpi3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, asinpi3_native, double3, double3, x);
}
#define lanemath_asinpi3_native(x) \
/** arc sine of x, divided by pi; 3 lanes of double. Largest error 7.6e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, asinpi3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_asinpi4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("asinpi4_native");
/** arc sine of x, divided by pi; 4 lanes of double. Largest error 7.6e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_asinpi4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, asinpi4_native, double4, double4, x);
}
#define lanemath_asinpi4_native(x) \
/** arc sine of x, divided by pi; 4 lanes of double. Largest error 7.6e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinpi4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_asinpi8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("asinpi8_native");
/** arc sine of x, divided by pi; 8 lanes of double. Largest error 7.6e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_asinpi8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, asinpi8_native, double8, double8, x);
}
#define lanemath_asinpi8_native(x) \
/** arc sine of x, divided by pi; 8 lanes of double. Largest error 7.6e+06 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinpi8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_asinpi16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("asinpi16_native");
/** arc sine of x, divided by pi; 16 lanes of double. Largest error 7.6e+06 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_asinpi16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, asinpi16_native, double16, double16, x);
}
#define lanemath_asinpi16_native(x) \
/** arc sine of x, divided by pi; 16 lanes of double. Largest error 7.6e+06 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinpi16_native, double16, double16, x)

/** arc sine of x, divided by pi; one float. Largest error 3.21 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_asinpif1(lanemath_float1 x) LANEMATH_NAMED("asinpif1");
/** arc sine of x, divided by pi; 2 lanes of float. Largest error 3.21 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_asinpif2(lanemath_float2 x) LANEMATH_NAMED("asinpif2");
/** arc sine of x, divided by pi; 3 lanes of float. Largest error 3.21 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_asinpif3(lanemath_float3 x) LANEMATH_NAMED("asinpif3");
/** arc sine of x, divided by pi; 4 lanes of float. Largest error 3.21 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_asinpif4(lanemath_float4 x) LANEMATH_NAMED("asinpif4");
lanemath_wide_float8 lanemath_call_asinpif8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("asinpif8");
/** arc sine of x, divided by pi; 8 lanes of float. Largest error 3.21 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_asinpif8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, asinpif8, float8, float8, x);
}
#define lanemath_asinpif8(x) \
/** arc sine of x, divided by pi; 8 lanes of float. Largest error 3.21 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinpif8, float8, float8, x)
lanemath_wide_float16 lanemath_call_asinpif16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("asinpif16");
/** arc sine of x, divided by pi; 16 lanes of float. Largest error 3.21 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_asinpif16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, asinpif16, float16, float16, x);
}
#define lanemath_asinpif16(x) \
/** arc sine of x, divided by pi; 16 lanes of float. Largest error 3.21 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinpif16, float16, float16, x)

/** arc sine of x, divided by pi; one float. Largest error 682 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_asinpif1_native(lanemath_float1 x) LANEMATH_NAMED("asinpif1_native");
/** arc sine of x, divided by pi; 2 lanes of float. Largest error 682 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_asinpif2_native(lanemath_float2 x) LANEMATH_NAMED("asinpif2_native");
/** arc sine of x, divided by pi; 3 lanes of float. Largest error 682 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_asinpif3_native(lanemath_float3 x) LANEMATH_NAMED("asinpif3_native");
/** arc sine of x, divided by pi; 4 lanes of float. Largest error 682 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_asinpif4_native(lanemath_float4 x) LANEMATH_NAMED("asinpif4_native");
lanemath_wide_float8 lanemath_call_asinpif8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("asinpif8_native");
/** arc sine of x, divided by pi; 8 lanes of float. Largest error 682 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_asinpif8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, asinpif8_native, float8, float8, x);
}
#define lanemath_asinpif8_native(x) \
/** arc sine of x, divided by pi; 8 lanes of float. Largest error 682 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinpif8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_asinpif16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("asinpif16_native");
/** arc sine of x, divided by pi; 16 lanes of float. Largest error 682 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_asinpif16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, asinpif16_native, float16, float16, x);
}
#define lanemath_asinpif16_native(x) \
/** arc sine of x, divided by pi; 16 lanes of float. Largest error 682 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinpif16_native, float16, float16, x)

/** arc cosine of x, divided by pi; one double. Largest error 2.35 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_acospi1(lanemath_double1 x) LANEMATH_NAMED("acospi1");
/** arc cosine of x, divided by pi; 2 lanes of double. Largest error 2.35 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_acospi2(lanemath_double2 x) LANEMATH_NAMED("acospi2");
lanemath_border_double3 lanemath_call_acospi3(lanemath_border_double3) LANEMATH_NAMED("acospi3");
/** arc cosine of x, divided by pi; 3 lanes of double. Largest error 2.35 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_acospi3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, acospi3, double3, double3, x);
}
#define lanemath_acospi3(x) \
/** arc cosine of x, divided by pi; 3 lanes of double. Largest error 2.35 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, acospi3, double3, double3, x)
lanemath_wide_double4 lanemath_call_acospi4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("acospi4");
/** arc cosine of x, divided by pi; 4 lanes of double. Largest error 2.35 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_acospi4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, acospi4, double4, double4, x);
}
#define lanemath_acospi4(x) \
/** arc cosine of x, divided by pi; 4 lanes of double. Largest error 2.35 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acospi4, double4, double4, x)
lanemath_wide_double8 lanemath_call_acospi8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("acospi8");
/** arc cosine of x, divided by pi; 8 lanes of double. Largest error 2.35 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_acospi8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, acospi8, double8, double8, x);
}
#define lanemath_acospi8(x) \
/** arc cosine of x, divided by pi; 8 lanes of double. Largest error 2.35 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acospi8, double8, double8, x)
lanemath_wide_double16 lanemath_call_acospi16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("acospi16");
/** arc cosine of x, divided by pi; 16 lanes of double. Largest error 2.35 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_acospi16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, acospi16, double16, double16, x);
}
#define lanemath_acospi16(x) \
/** arc cosine of x, divided by pi; 16 lanes of double. Largest error 2.35 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acospi16, double16, double16, x)

/** arc cosine of x, divided by pi; one double. Largest error 6.1e+06 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_acospi1_native(lanemath_double1 x) LANEMATH_NAMED("acospi1_native");
/** arc cosine of x, divided by pi; 2 lanes of double. Largest error 6.1e+06 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_acospi2_native(lanemath_double2 x) LANEMATH_NAMED("acospi2_native");
lanemath_border_double3 lanemath_call_acospi3_native(lanemath_border_double3) LANEMATH_NAMED("acospi3_native");
/** arc cosine of x, divided by pi; 3 lanes of double. Largest error 6.1e+06 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_acospi3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, acospi3_native, double3, double3, x);
}
#define lanemath_acospi3_native(x) \
/** arc cosine of x, divided by pi; 3 lanes of double. Largest error 6.1e+06 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, acospi3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_acospi4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("acospi4_native");
/** arc cosine of x, divided by pi; 4 lanes of double. Largest error 6.1e+06 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_acospi4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, acospi4_native, double4, double4, x);
}
#define lanemath_acospi4_native(x) \
/** arc cosine of x, divided by pi; 4 lanes of double. Largest error 6.1e+06 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acospi4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_acospi8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("acospi8_native");
/** arc cosine of x, divided by pi; 8 lanes of double. Largest error 6.1e+06 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_acospi8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, acospi8_native, double8, double8, x);
}
#define lanemath_acospi8_native(x) \
/** arc cosine of x, divided by pi; 8 lanes of double. Largest error 6.1e+06 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acospi8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_acospi16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("acospi16_native");
/** arc cosine of x, divided by pi; 16 lanes of double. Largest error 6.1e+06 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_acospi16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, acospi16_native, double16, double16, x);
}
#define lanemath_acospi16_native(x) \
/** arc cosine of x, divided by pi; 16 lanes of double. Largest error 6.1e+06 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acospi16_native, double16, double16, x)

/** arc cosine of x, divided by pi; one float. Largest error 2.46 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_acospif1(lanemath_float1 x) LANEMATH_NAMED("acospif1");
/** arc cosine of x, divided by pi; 2 lanes of float. Largest error 2.46 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_acospif2(lanemath_float2 x) LANEMATH_NAMED("acospif2");
/** arc cosine of x, divided by pi; 3 lanes of float. Largest error 2.46 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_acospif3(lanemath_float3 x) LANEMATH_NAMED("acospif3");
/** arc cosine of x, divided by pi; 4 lanes of float. Largest error 2.46 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_acospif4(lanemath_float4 x) LANEMATH_NAMED("acospif4");
lanemath_wide_float8 lanemath_call_acospif8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("acospif8");
/** arc cosine of x, divided by pi; 8 lanes of float. Largest error 2.46 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_acospif8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, acospif8, float8, float8, x);
}
#define lanemath_acospif8(x) \
/** arc cosine of x, divided by pi; 8 lanes of float. Largest error 2.46 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acospif8, float8, float8, x)
lanemath_wide_float16 lanemath_call_acospif16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("acospif16");
/** arc cosine of x, divided by pi; 16 lanes of float. Largest error 2.46 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_acospif16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, acospif16, float16, float16, x);
}
#define lanemath_acospif16(x) \
/** arc cosine of x, divided by pi; 16 lanes of float. Largest error 2.46 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acospif16, float16, float16, x)

/** arc cosine of x, divided by pi; one float. Largest error 532 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_acospif1_native(lanemath_float1 x) LANEMATH_NAMED("acospif1_native");
/** arc cosine of x, divided by pi; 2 lanes of float. Largest error 532 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_acospif2_native(lanemath_float2 x) LANEMATH_NAMED("acospif2_native");
/** arc cosine of x, divided by pi; 3 lanes of float. Largest error 532 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_acospif3_native(lanemath_float3 x) LANEMATH_NAMED("acospif3_native");
/** arc cosine of x, divided by pi; 4 lanes of float. Largest error 532 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_acospif4_native(lanemath_float4 x) LANEMATH_NAMED("acospif4_native");
lanemath_wide_float8 lanemath_call_acospif8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("acospif8_native");
/** arc cosine of x, divided by pi; 8 lanes of float. Largest error 532 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_acospif8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, acospif8_native, float8, float8, x);
}
#define lanemath_acospif8_native(x) \
/** arc cosine of x, divided by pi; 8 lanes of float. Largest error 532 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acospif8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_acospif16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("acospif16_native");
/** arc cosine of x, divided by pi; 16 lanes of float. Largest error 532 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_acospif16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, acospif16_native, float16, float16, x);
}
#define lanemath_acospif16_native(x) \
/** arc cosine of x, divided by pi; 16 lanes of float. Largest error 532 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acospif16_native, float16, float16, x)

/** arc tangent of x, in radians; one double. Largest error 2.63 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_atan1(lanemath_double1 x) LANEMATH_NAMED("atan1");
/** arc tangent of x, in radians; 2 lanes of double. An algorithm of its own: the last bits differ from those of other
 * widths. Largest error 4.63 ulp. Domain and special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_atan2(lanemath_double2 x) LANEMATH_NAMED("atan2");
lanemath_border_double3 lanemath_call_atan3(lanemath_border_double3) LANEMATH_NAMED("atan3");
/** arc tangent of x, in radians; 3 lanes of double. Largest error 2.63 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_atan3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, atan3, double3, double3, x);
}
#define lanemath_atan3(x) \
/** arc tangent of x, in radians; 3 lanes of double. Largest error 2.63 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, atan3, double3, double3, x)
lanemath_wide_double4 lanemath_call_atan4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("atan4");
/** arc tangent of x, in radians; 4 lanes of double. Largest error 2.63 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_atan4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, atan4, double4, double4, x);
}
#define lanemath_atan4(x) \
/** arc tangent of x, in radians; 4 lanes of double. Largest error 2.63 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atan4, double4, double4, x)
lanemath_wide_double8 lanemath_call_atan8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("atan8");
/** arc tangent of x, in radians; 8 lanes of double. Largest error 2.63 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_atan8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, atan8, double8, double8, x);
}
#define lanemath_atan8(x) \
/** arc tangent of x, in radians; 8 lanes of double. Largest error 2.63 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atan8, double8, double8, x)
lanemath_wide_double16 lanemath_call_atan16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("atan16");
/** arc tangent of x, in radians; 16 lanes of double. Largest error 2.63 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_atan16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, atan16, double16, double16, x);
}
#define lanemath_atan16(x) \
/** arc tangent of x, in radians; 16 lanes of double. Largest error 2.63 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atan16, double16, double16, x)

/** arc tangent of x, in radians; one double. Largest error 2.25e+07 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_atan1_native(lanemath_double1 x) LANEMATH_NAMED("atan1_native");
/** arc tangent of x, in radians; 2 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_atan2_native(lanemath_double2 x) LANEMATH_NAMED("atan2_native");
lanemath_border_double3 lanemath_call_atan3_native(lanemath_border_double3) LANEMATH_NAMED("atan3_native");
/** arc tangent of x, in radians; 3 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_atan3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, atan3_native, double3, double3, x);
}
#define lanemath_atan3_native(x) \
/** arc tangent of x, in radians; 3 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, atan3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_atan4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("atan4_native");
/** arc tangent of x, in radians; 4 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_atan4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, atan4_native, double4, double4, x);
}
#define lanemath_atan4_native(x) \
/** arc tangent of x, in radians; 4 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atan4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_atan8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("atan8_native");
/** arc tangent of x, in radians; 8 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_atan8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, atan8_native, double8, double8, x);
}
#define lanemath_atan8_native(x) \
/** arc tangent of x, in radians; 8 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atan8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_atan16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("atan16_native");
/** arc tangent of x, in radians; 16 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_atan16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, atan16_native, double16, double16, x);
}
#define lanemath_atan16_native(x) \
/** arc tangent of x, in radians; 16 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atan16_native, double16, double16, x)

/** arc tangent of x, in radians; one float. Largest error 2.82 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_atanf1(lanemath_float1 x) LANEMATH_NAMED("atanf1");
/** arc tangent of x, in radians; 2 lanes of float. Largest error 2.82 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_atanf2(lanemath_float2 x) LANEMATH_NAMED("atanf2");
/** arc tangent of x, in radians; 3 lanes of float. Largest error 2.82 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_atanf3(lanemath_float3 x) LANEMATH_NAMED("atanf3");
/** arc tangent of x, in radians; 4 lanes of float. An algorithm of its own: the last bits differ from those of other
 * widths. Largest error 3.76 ulp. Domain and special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_atanf4(lanemath_float4 x) LANEMATH_NAMED("atanf4");
lanemath_wide_float8 lanemath_call_atanf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("atanf8");
/** arc tangent of x, in radians; 8 lanes of float. Largest error 2.82 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_atanf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, atanf8, float8, float8, x);
}
#define lanemath_atanf8(x) \
/** arc tangent of x, in radians; 8 lanes of float. Largest error 2.82 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_atanf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("atanf16");
/** arc tangent of x, in radians; 16 lanes of float. Largest error 2.82 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_atanf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, atanf16, float16, float16, x);
}
#define lanemath_atanf16(x) \
/** arc tangent of x, in radians; 16 lanes of float. Largest error 2.82 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanf16, float16, float16, x)

/** arc tangent of x, in radians; one float. Largest error 3780 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_atanf1_native(lanemath_float1 x) LANEMATH_NAMED("atanf1_native");
/** arc tangent of x, in radians; 2 lanes of float. Largest error 3780 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_atanf2_native(lanemath_float2 x) LANEMATH_NAMED("atanf2_native");
/** arc tangent of x, in radians; 3 lanes of float. Largest error 3780 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_atanf3_native(lanemath_float3 x) LANEMATH_NAMED("atanf3_native");
/** arc tangent of x, in radians; 4 lanes of float. Largest error 3780 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_atanf4_native(lanemath_float4 x) LANEMATH_NAMED("atanf4_native");
lanemath_wide_float8 lanemath_call_atanf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("atanf8_native");
/** arc tangent of x, in radians; 8 lanes of float. Largest error 3780 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_atanf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, atanf8_native, float8, float8, x);
}
#define lanemath_atanf8_native(x) \
/** arc tangent of x, in radians; 8 lanes of float. Largest error 3780 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_atanf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("atanf16_native");
/** arc tangent of x, in radians; 16 lanes of float. Largest error 3780 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_atanf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, atanf16_native, float16, float16, x);
}
#define lanemath_atanf16_native(x) \
/** arc tangent of x, in radians; 16 lanes of float. Largest error 3780 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanf16_native, float16, float16, x)

/** arc tangent of x, divided by pi; one double. Largest error 3.27 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_atanpi1(lanemath_double1 x) LANEMATH_NAMED("atanpi1");
/** arc tangent of x, divided by pi; 2 lanes of double. Largest error 3.27 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_atanpi2(lanemath_double2 x) LANEMATH_NAMED("atanpi2");
lanemath_border_double3 lanemath_call_atanpi3(lanemath_border_double3) LANEMATH_NAMED("atanpi3");
/** arc tangent of x, divided by pi; 3 lanes of double. Largest error 3.27 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_atanpi3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, atanpi3, double3, double3, x);
}
#define lanemath_atanpi3(x) \
/** arc tangent of x, divided by pi; 3 lanes of double. Largest error 3.27 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, atanpi3, double3, double3, x)
lanemath_wide_double4 lanemath_call_atanpi4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("atanpi4");
/** arc tangent of x, divided by pi; 4 lanes of double. Largest error 3.27 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_atanpi4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, atanpi4, double4, double4, x);
}
#define lanemath_atanpi4(x) \
/** arc tangent of x, divided by pi; 4 lanes of double. Largest error 3.27 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanpi4, double4, double4, x)
lanemath_wide_double8 lanemath_call_atanpi8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("atanpi8");
/** arc tangent of x, divided by pi; 8 lanes of double. Largest error 3.27 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_atanpi8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, atanpi8, double8, double8, x);
}
#define lanemath_atanpi8(x) \
/** arc tangent of x, divided by pi; 8 lanes of double. Largest error 3.27 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanpi8, double8, double8, x)
lanemath_wide_double16 lanemath_call_atanpi16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("atanpi16");
/** arc tangent of x, divided by pi; 16 lanes of double. Largest error 3.27 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_atanpi16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, atanpi16, double16, double16, x);
}
#define lanemath_atanpi16(x) \
/** arc tangent of x, divided by pi; 16 lanes of double. Largest error 3.27 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanpi16, double16, double16, x)

/** arc tangent of x, divided by pi; one double. Largest error 2.25e+07 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_atanpi1_native(lanemath_double1 x) LANEMATH_NAMED("atanpi1_native");
/** arc tangent of x, divided by pi; 2 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_atanpi2_native(lanemath_double2 x) LANEMATH_NAMED("atanpi2_native");
lanemath_border_double3 lanemath_call_atanpi3_native(lanemath_border_double3) LANEMATH_NAMED("atanpi3_native");
/** arc tangent of x, divided by pi; 3 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_atanpi3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, atanpi3_native, double3, double3, x);
}
#define lanemath_atanpi3_native(x) \
/** arc tangent of x, divided by pi; 3 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_border, atanpi3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_atanpi4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("atanpi4_native");
/** arc tangent of x, divided by pi; 4 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_atanpi4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, atanpi4_native, double4, double4, x);
}
#define lanemath_atanpi4_native(x) \
/** arc tangent of x, divided by pi; 4 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanpi4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_atanpi8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("atanpi8_native");
/** arc tangent of x, divided by pi; 8 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_atanpi8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, atanpi8_native, double8, double8, x);
}
#define lanemath_atanpi8_native(x) \
/** arc tangent of x, divided by pi; 8 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanpi8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_atanpi16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("atanpi16_native");
/** arc tangent of x, divided by pi; 16 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_atanpi16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, atanpi16_native, double16, double16, x);
}
#define lanemath_atanpi16_native(x) \
/** arc tangent of x, divided by pi; 16 lanes of double. Largest error 2.25e+07 ulp. Domain and special values: at the
 * head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanpi16_native, double16, double16, x)

/** arc tangent of x, divided by pi; one float. Largest error 4.8 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_atanpif1(lanemath_float1 x) LANEMATH_NAMED("atanpif1");
/** arc tangent of x, divided by pi; 2 lanes of float. Largest error 4.8 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_atanpif2(lanemath_float2 x) LANEMATH_NAMED("atanpif2");
/** arc tangent of x, divided by pi; 3 lanes of float. Largest error 4.8 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_atanpif3(lanemath_float3 x) LANEMATH_NAMED("atanpif3");
/** arc tangent of x, divided by pi; 4 lanes of float. Largest error 4.8 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_atanpif4(lanemath_float4 x) LANEMATH_NAMED("atanpif4");
lanemath_wide_float8 lanemath_call_atanpif8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("atanpif8");
/** arc tangent of x, divided by pi; 8 lanes of float. Largest error 4.8 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_atanpif8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, atanpif8, float8, float8, x);
}
#define lanemath_atanpif8(x) \
/** arc tangent of x, divided by pi; 8 lanes of float. Largest error 4.8 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanpif8, float8, float8, x)
lanemath_wide_float16 lanemath_call_atanpif16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("atanpif16");
/** arc tangent of x, divided by pi; 16 lanes of float. Largest error 4.8 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_atanpif16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, atanpif16, float16, float16, x);
}
#define lanemath_atanpif16(x) \
/** arc tangent of x, divided by pi; 16 lanes of float. Largest error 4.8 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanpif16, float16, float16, x)

/** arc tangent of x, divided by pi; one float. Largest error 3780 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_atanpif1_native(lanemath_float1 x) LANEMATH_NAMED("atanpif1_native");
/** arc tangent of x, divided by pi; 2 lanes of float. Largest error 3780 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_atanpif2_native(lanemath_float2 x) LANEMATH_NAMED("atanpif2_native");
/** arc tangent of x, divided by pi; 3 lanes of float. Largest error 3780 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_atanpif3_native(lanemath_float3 x) LANEMATH_NAMED("atanpif3_native");
/** arc tangent of x, divided by pi; 4 lanes of float. Largest error 3780 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_atanpif4_native(lanemath_float4 x) LANEMATH_NAMED("atanpif4_native");
lanemath_wide_float8 lanemath_call_atanpif8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("atanpif8_native");
/** arc tangent of x, divided by pi; 8 lanes of float. Largest error 3780 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_atanpif8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, atanpif8_native, float8, float8, x);
}
#define lanemath_atanpif8_native(x) \
/** arc tangent of x, divided by pi; 8 lanes of float. Largest error 3780 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanpif8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_atanpif16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("atanpif16_native");
/** arc tangent of x, divided by pi; 16 lanes of float. Largest error 3780 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_atanpif16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, atanpif16_native, float16, float16, x);
}
#define lanemath_atanpif16_native(x) \
/** arc tangent of x, divided by pi; 16 lanes of float. Largest error 3780 ulp. Domain and special values: at the head
 * of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanpif16_native, float16, float16, x)

/** angle of the point (second, first) in radians, -pi to pi; one double. Largest error 4.72 ulp. Domain and special
 * values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_atan21(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("atan21");
/** angle of the point (second, first) in radians, -pi to pi; 2 lanes of double. An algorithm of its own: the last
 * bits differ from those of other widths. Largest error 4.72 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_atan22(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("atan22");
lanemath_border_double3 lanemath_call_atan23(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("atan23");
/** angle of the point (second, first) in radians, -pi to pi; 3 lanes of double. Largest error 4.72 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_atan23(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, atan23, double3, double3, double3, x, y);
}
#define lanemath_atan23(x, y) \
/** angle of the point (second, first) in radians, -pi to pi; 3 lanes of double. Largest error 4.72 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_border, atan23, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_atan24(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("atan24");
/** angle of the point (second, first) in radians, -pi to pi; 4 lanes of double. Largest error 4.72 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_atan24(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, atan24, double4, double4, double4, x, y);
}
#define lanemath_atan24(x, y) \
/** angle of the point (second, first) in radians, -pi to pi; 4 lanes of double. Largest error 4.72 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan24, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_atan28(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("atan28");
/** angle of the point (second, first) in radians, -pi to pi; 8 lanes of double. Largest error 4.72 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_atan28(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, atan28, double8, double8, double8, x, y);
}
#define lanemath_atan28(x, y) \
/** angle of the point (second, first) in radians, -pi to pi; 8 lanes of double. Largest error 4.72 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan28, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_atan216(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("atan216");
/** angle of the point (second, first) in radians, -pi to pi; 16 lanes of double. Largest error 4.72 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_atan216(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, atan216, double16, double16, double16, x, y);
}
#define lanemath_atan216(x, y) \
/** angle of the point (second, first) in radians, -pi to pi; 16 lanes of double. Largest error 4.72 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan216, double16, double16, double16, x, y)

/** angle of the point (second, first) in radians, -pi to pi; one double. Largest error 2.25e+07 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_atan21_native(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("atan21_native");
/** angle of the point (second, first) in radians, -pi to pi; 2 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_atan22_native(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("atan22_native");
lanemath_border_double3 lanemath_call_atan23_native(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("atan23_native");
/** angle of the point (second, first) in radians, -pi to pi; 3 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_atan23_native(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, atan23_native, double3, double3, double3, x, y);
}
#define lanemath_atan23_native(x, y) \
/** angle of the point (second, first) in radians, -pi to pi; 3 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_border, atan23_native, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_atan24_native(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("atan24_native");
/** angle of the point (second, first) in radians, -pi to pi; 4 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_atan24_native(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, atan24_native, double4, double4, double4, x, y);
}
#define lanemath_atan24_native(x, y) \
/** angle of the point (second, first) in radians, -pi to pi; 4 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan24_native, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_atan28_native(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("atan28_native");
/** angle of the point (second, first) in radians, -pi to pi; 8 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_atan28_native(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, atan28_native, double8, double8, double8, x, y);
}
#define lanemath_atan28_native(x, y) \
/** angle of the point (second, first) in radians, -pi to pi; 8 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan28_native, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_atan216_native(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("atan216_native");
/** angle of the point (second, first) in radians, -pi to pi; 16 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_atan216_native(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, atan216_native, double16, double16, double16, x, y);
}
#define lanemath_atan216_native(x, y) \
/** angle of the point (second, first) in radians, -pi to pi; 16 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan216_native, double16, double16, double16, x, y)

/** angle of the point (second, first) in radians, -pi to pi; one float. Largest error 3.85 ulp. Domain and special
 * values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_atan2f1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("atan2f1");
/** angle of the point (second, first) in radians, -pi to pi; 2 lanes of float. Largest error 3.85 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_atan2f2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("atan2f2");
/** angle of the point (second, first) in radians, -pi to pi; 3 lanes of float. Largest error 3.85 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_atan2f3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("atan2f3");
/** angle of the point (second, first) in radians, -pi to pi; 4 lanes of float. An algorithm of its own: the last bits
 * differ from those of other widths. Largest error 3.99 ulp. Domain and special values: at the head of
 * <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_atan2f4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("atan2f4");
lanemath_wide_float8 lanemath_call_atan2f8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("atan2f8");
/** angle of the point (second, first) in radians, -pi to pi; 8 lanes of float. Largest error 3.85 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_atan2f8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2f8, float8, float8, float8, x, y);
}
#define lanemath_atan2f8(x, y) \
/** angle of the point (second, first) in radians, -pi to pi; 8 lanes of float. Largest error 3.85 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2f8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_atan2f16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("atan2f16");
/** angle of the point (second, first) in radians, -pi to pi; 16 lanes of float. Largest error 3.85 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_atan2f16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2f16, float16, float16, float16, x, y);
}
#define lanemath_atan2f16(x, y) \
/** angle of the point (second, first) in radians, -pi to pi; 16 lanes of float. Largest error 3.85 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2f16, float16, float16, float16, x, y)

/** angle of the point (second, first) in radians, -pi to pi; one float. Largest error 3780 ulp. Domain and special
 * values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_atan2f1_native(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("atan2f1_native");
/** angle of the point (second, first) in radians, -pi to pi; 2 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_atan2f2_native(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("atan2f2_native");
/** angle of the point (second, first) in radians, -pi to pi; 3 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_atan2f3_native(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("atan2f3_native");
/** angle of the point (second, first) in radians, -pi to pi; 4 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_atan2f4_native(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("atan2f4_native");
lanemath_wide_float8 lanemath_call_atan2f8_native(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("atan2f8_native");
/** angle of the point (second, first) in radians, -pi to pi; 8 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_atan2f8_native(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2f8_native, float8, float8, float8, x, y);
}
#define lanemath_atan2f8_native(x, y) \
/** angle of the point (second, first) in radians, -pi to pi; 8 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2f8_native, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_atan2f16_native(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("atan2f16_native");
/** angle of the point (second, first) in radians, -pi to pi; 16 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_atan2f16_native(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2f16_native, float16, float16, float16, x, y);
}
#define lanemath_atan2f16_native(x, y) \
/** angle of the point (second, first) in radians, -pi to pi; 16 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2f16_native, float16, float16, float16, x, y)

/** angle of the point (second, first) divided by pi, -1 to 1; one double. Largest error 4.55 ulp. Domain and special
 * values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_atan2pi1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("atan2pi1");
/** angle of the point (second, first) divided by pi, -1 to 1; 2 lanes of double. Largest error 4.55 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_atan2pi2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("atan2pi2");
lanemath_border_double3 lanemath_call_atan2pi3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("atan2pi3");
/** angle of the point (second, first) divided by pi, -1 to 1; 3 lanes of double. Largest error 4.55 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_atan2pi3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, atan2pi3, double3, double3, double3, x, y);
}
#define lanemath_atan2pi3(x, y) \
/** angle of the point (second, first) divided by pi, -1 to 1; 3 lanes of double. Largest error 4.55 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_border, atan2pi3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_atan2pi4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("atan2pi4");
/** angle of the point (second, first) divided by pi, -1 to 1; 4 lanes of double. Largest error 4.55 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_atan2pi4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2pi4, double4, double4, double4, x, y);
}
#define lanemath_atan2pi4(x, y) \
/** angle of the point (second, first) divided by pi, -1 to 1; 4 lanes of double. Largest error 4.55 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2pi4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_atan2pi8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("atan2pi8");
/** angle of the point (second, first) divided by pi, -1 to 1; 8 lanes of double. Largest error 4.55 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_atan2pi8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2pi8, double8, double8, double8, x, y);
}
#define lanemath_atan2pi8(x, y) \
/** angle of the point (second, first) divided by pi, -1 to 1; 8 lanes of double. Largest error 4.55 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2pi8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_atan2pi16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("atan2pi16");
/** angle of the point (second, first) divided by pi, -1 to 1; 16 lanes of double. Largest error 4.55 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_atan2pi16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2pi16, double16, double16, double16, x, y);
}
#define lanemath_atan2pi16(x, y) \
/** angle of the point (second, first) divided by pi, -1 to 1; 16 lanes of double. Largest error 4.55 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2pi16, double16, double16, double16, x, y)

/** angle of the point (second, first) divided by pi, -1 to 1; one double. Largest error 2.25e+07 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_double1 lanemath_atan2pi1_native(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("atan2pi1_native");
/** angle of the point (second, first) divided by pi, -1 to 1; 2 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_double2 lanemath_atan2pi2_native(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("atan2pi2_native");
lanemath_border_double3 lanemath_call_atan2pi3_native(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("atan2pi3_native");
/** angle of the point (second, first) divided by pi, -1 to 1; 3 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_atan2pi3_native(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, atan2pi3_native, double3, double3, double3, x, y);
}
#define lanemath_atan2pi3_native(x, y) \
/** angle of the point (second, first) divided by pi, -1 to 1; 3 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_border, atan2pi3_native, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_atan2pi4_native(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("atan2pi4_native");
/** angle of the point (second, first) divided by pi, -1 to 1; 4 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_atan2pi4_native(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2pi4_native, double4, double4, double4, x, y);
}
#define lanemath_atan2pi4_native(x, y) \
/** angle of the point (second, first) divided by pi, -1 to 1; 4 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2pi4_native, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_atan2pi8_native(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("atan2pi8_native");
/** angle of the point (second, first) divided by pi, -1 to 1; 8 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_atan2pi8_native(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2pi8_native, double8, double8, double8, x, y);
}
#define lanemath_atan2pi8_native(x, y) \
/** angle of the point (second, first) divided by pi, -1 to 1; 8 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2pi8_native, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_atan2pi16_native(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("atan2pi16_native");
/** angle of the point (second, first) divided by pi, -1 to 1; 16 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_atan2pi16_native(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2pi16_native, double16, double16, double16, x, y);
}
#define lanemath_atan2pi16_native(x, y) \
/** angle of the point (second, first) divided by pi, -1 to 1; 16 lanes of double. Largest error 2.25e+07 ulp. Domain
 * and special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2pi16_native, double16, double16, double16, x, y)

/** angle of the point (second, first) divided by pi, -1 to 1; one float. Largest error 6.3 ulp. Domain and special
 * values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_atan2pif1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("atan2pif1");
/** angle of the point (second, first) divided by pi, -1 to 1; 2 lanes of float. Largest error 6.3 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_atan2pif2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("atan2pif2");
/** angle of the point (second, first) divided by pi, -1 to 1; 3 lanes of float. Largest error 6.3 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_atan2pif3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("atan2pif3");
/** angle of the point (second, first) divided by pi, -1 to 1; 4 lanes of float. Largest error 6.3 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_atan2pif4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("atan2pif4");
lanemath_wide_float8 lanemath_call_atan2pif8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("atan2pif8");
/** angle of the point (second, first) divided by pi, -1 to 1; 8 lanes of float. Largest error 6.3 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_atan2pif8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2pif8, float8, float8, float8, x, y);
}
#define lanemath_atan2pif8(x, y) \
/** angle of the point (second, first) divided by pi, -1 to 1; 8 lanes of float. Largest error 6.3 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2pif8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_atan2pif16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("atan2pif16");
/** angle of the point (second, first) divided by pi, -1 to 1; 16 lanes of float. Largest error 6.3 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_atan2pif16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2pif16, float16, float16, float16, x, y);
}
#define lanemath_atan2pif16(x, y) \
/** angle of the point (second, first) divided by pi, -1 to 1; 16 lanes of float. Largest error 6.3 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2pif16, float16, float16, float16, x, y)

/** angle of the point (second, first) divided by pi, -1 to 1; one float. Largest error 3780 ulp. Domain and special
 * values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float1 lanemath_atan2pif1_native(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("atan2pif1_native");
/** angle of the point (second, first) divided by pi, -1 to 1; 2 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float2 lanemath_atan2pif2_native(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("atan2pif2_native");
/** angle of the point (second, first) divided by pi, -1 to 1; 3 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float3 lanemath_atan2pif3_native(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("atan2pif3_native");
/** angle of the point (second, first) divided by pi, -1 to 1; 4 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
lanemath_float4 lanemath_atan2pif4_native(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("atan2pif4_native");
lanemath_wide_float8 lanemath_call_atan2pif8_native(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("atan2pif8_native");
/** angle of the point (second, first) divided by pi, -1 to 1; 8 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_atan2pif8_native(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2pif8_native, float8, float8, float8, x, y);
}
#define lanemath_atan2pif8_native(x, y) \
/** angle of the point (second, first) divided by pi, -1 to 1; 8 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2pif8_native, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_atan2pif16_native(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("atan2pif16_native");
/** angle of the point (second, first) divided by pi, -1 to 1; 16 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_atan2pif16_native(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, atan2pif16_native, float16, float16, float16, x, y);
}
#define lanemath_atan2pif16_native(x, y) \
/** angle of the point (second, first) divided by pi, -1 to 1; 16 lanes of float. Largest error 3780 ulp. Domain and
 * special values: at the head of <lanemath/inverse_trigonometric.h>. */ \
  LANEMATH_BINARY(lanemath_wide, atan2pif16_native, float16, float16, float16, x, y)

LANEMATH_END

#endif
