/* Hyperbolic functions and their inverses.
 *
 * Any x for sinh, cosh, tanh and asinh; x >= 1 for acosh and -1 <= x <= 1 for atanh, NaN outside.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_HYPERBOLIC_H
#define LANEMATH_HYPERBOLIC_H

#include <lanemath/types.h>

#pragma GCC system_header

LANEMATH_BEGIN

/** hyperbolic sine of x; one double. Largest error 2.12 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_double1 lanemath_sinh1(lanemath_double1 x) LANEMATH_NAMED("sinh1");
/** hyperbolic sine of x; 2 lanes of double. Largest error 2.12 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_double2 lanemath_sinh2(lanemath_double2 x) LANEMATH_NAMED("sinh2");
lanemath_border_double3 lanemath_call_sinh3(lanemath_border_double3) LANEMATH_NAMED("sinh3");
/** hyperbolic sine of x; 3 lanes of double. Largest error 2.12 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_sinh3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, sinh3, double3, double3, x);
}
#define lanemath_sinh3(x) \
/** hyperbolic sine of x; 3 lanes of double. Largest error 2.12 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_border, sinh3, double3, double3, x)
lanemath_wide_double4 lanemath_call_sinh4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sinh4");
/** hyperbolic sine of x; 4 lanes of double. Largest error 2.12 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_sinh4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, sinh4, double4, double4, x);
}
#define lanemath_sinh4(x) \
/** hyperbolic sine of x; 4 lanes of double. Largest error 2.12 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinh4, double4, double4, x)
lanemath_wide_double8 lanemath_call_sinh8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sinh8");
/** hyperbolic sine of x; 8 lanes of double. Largest error 2.12 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_sinh8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, sinh8, double8, double8, x);
}
#define lanemath_sinh8(x) \
/** hyperbolic sine of x; 8 lanes of double. Largest error 2.12 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinh8, double8, double8, x)
lanemath_wide_double16 lanemath_call_sinh16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sinh16");
/** hyperbolic sine of x; 16 lanes of double. Largest error 2.12 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_sinh16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, sinh16, double16, double16, x);
}
#define lanemath_sinh16(x) \
/** hyperbolic sine of x; 16 lanes of double. Largest error 2.12 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinh16, double16, double16, x)

/** hyperbolic sine of x; one double. The same function as the default form. Largest error 2.12 ulp. Domain and
 * special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_double1 lanemath_sinh1_native(lanemath_double1 x) LANEMATH_NAMED("sinh1_native");
/** hyperbolic sine of x; 2 lanes of double. The same function as the default form. Largest error 2.12 ulp. Domain and
 * special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_double2 lanemath_sinh2_native(lanemath_double2 x) LANEMATH_NAMED("sinh2_native");
lanemath_border_double3 lanemath_call_sinh3_native(lanemath_border_double3) LANEMATH_NAMED("sinh3_native");
/** hyperbolic sine of x; 3 lanes of double. The same function as the default form. Largest error 2.12 ulp. Domain and
 * special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_sinh3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, sinh3_native, double3, double3, x);
}
#define lanemath_sinh3_native(x) \
/** hyperbolic sine of x; 3 lanes of double. The same function as the default form. Largest error 2.12 ulp. Domain and
 * special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_border, sinh3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_sinh4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sinh4_native");
/** hyperbolic sine of x; 4 lanes of double. The same function as the default form. Largest error 2.12 ulp. Domain and
 * special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_sinh4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, sinh4_native, double4, double4, x);
}
#define lanemath_sinh4_native(x) \
/** hyperbolic sine of x; 4 lanes of double. The same function as the default form. Largest error 2.12 ulp. Domain and
 * special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinh4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_sinh8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sinh8_native");
/** hyperbolic sine of x; 8 lanes of double. The same function as the default form. Largest error 2.12 ulp. Domain and
 * special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_sinh8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, sinh8_native, double8, double8, x);
}
#define lanemath_sinh8_native(x) \
/** hyperbolic sine of x; 8 lanes of double. The same function as the default form. Largest error 2.12 ulp. Domain and
 * special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinh8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_sinh16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sinh16_native");
/** hyperbolic sine of x; 16 lanes of double. The same function as the default form. Largest error 2.12 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_sinh16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, sinh16_native, double16, double16, x);
}
#define lanemath_sinh16_native(x) \
/** hyperbolic sine of x; 16 lanes of double. The same function as the default form. Largest error 2.12 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinh16_native, double16, double16, x)

/** hyperbolic sine of x; one float. Largest error 2.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float1 lanemath_sinhf1(lanemath_float1 x) LANEMATH_NAMED("sinhf1");
/** hyperbolic sine of x; 2 lanes of float. Largest error 2.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float2 lanemath_sinhf2(lanemath_float2 x) LANEMATH_NAMED("sinhf2");
/** hyperbolic sine of x; 3 lanes of float. Largest error 2.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float3 lanemath_sinhf3(lanemath_float3 x) LANEMATH_NAMED("sinhf3");
/** hyperbolic sine of x; 4 lanes of float. Largest error 2.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float4 lanemath_sinhf4(lanemath_float4 x) LANEMATH_NAMED("sinhf4");
lanemath_wide_float8 lanemath_call_sinhf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinhf8");
/** hyperbolic sine of x; 8 lanes of float. Largest error 2.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sinhf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, sinhf8, float8, float8, x);
}
#define lanemath_sinhf8(x) \
/** hyperbolic sine of x; 8 lanes of float. Largest error 2.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinhf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_sinhf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinhf16");
/** hyperbolic sine of x; 16 lanes of float. Largest error 2.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sinhf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, sinhf16, float16, float16, x);
}
#define lanemath_sinhf16(x) \
/** hyperbolic sine of x; 16 lanes of float. Largest error 2.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinhf16, float16, float16, x)

/** hyperbolic sine of x; one float. Largest error 1080 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float1 lanemath_sinhf1_native(lanemath_float1 x) LANEMATH_NAMED("sinhf1_native");
/** hyperbolic sine of x; 2 lanes of float. Largest error 1080 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float2 lanemath_sinhf2_native(lanemath_float2 x) LANEMATH_NAMED("sinhf2_native");
/** hyperbolic sine of x; 3 lanes of float. Largest error 1080 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float3 lanemath_sinhf3_native(lanemath_float3 x) LANEMATH_NAMED("sinhf3_native");
/** hyperbolic sine of x; 4 lanes of float. Largest error 1080 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float4 lanemath_sinhf4_native(lanemath_float4 x) LANEMATH_NAMED("sinhf4_native");
lanemath_wide_float8 lanemath_call_sinhf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sinhf8_native");
/** hyperbolic sine of x; 8 lanes of float. Largest error 1080 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sinhf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, sinhf8_native, float8, float8, x);
}
#define lanemath_sinhf8_native(x) \
/** hyperbolic sine of x; 8 lanes of float. Largest error 1080 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinhf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_sinhf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sinhf16_native");
/** hyperbolic sine of x; 16 lanes of float. Largest error 1080 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sinhf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, sinhf16_native, float16, float16, x);
}
#define lanemath_sinhf16_native(x) \
/** hyperbolic sine of x; 16 lanes of float. Largest error 1080 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sinhf16_native, float16, float16, x)

/** hyperbolic cosine of x; one double. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_double1 lanemath_cosh1(lanemath_double1 x) LANEMATH_NAMED("cosh1");
/** hyperbolic cosine of x; 2 lanes of double. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_double2 lanemath_cosh2(lanemath_double2 x) LANEMATH_NAMED("cosh2");
lanemath_border_double3 lanemath_call_cosh3(lanemath_border_double3) LANEMATH_NAMED("cosh3");
/** hyperbolic cosine of x; 3 lanes of double. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cosh3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cosh3, double3, double3, x);
}
#define lanemath_cosh3(x) \
/** hyperbolic cosine of x; 3 lanes of double. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_border, cosh3, double3, double3, x)
lanemath_wide_double4 lanemath_call_cosh4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cosh4");
/** hyperbolic cosine of x; 4 lanes of double. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cosh4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cosh4, double4, double4, x);
}
#define lanemath_cosh4(x) \
/** hyperbolic cosine of x; 4 lanes of double. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosh4, double4, double4, x)
lanemath_wide_double8 lanemath_call_cosh8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cosh8");
/** hyperbolic cosine of x; 8 lanes of double. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cosh8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cosh8, double8, double8, x);
}
#define lanemath_cosh8(x) \
/** hyperbolic cosine of x; 8 lanes of double. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosh8, double8, double8, x)
lanemath_wide_double16 lanemath_call_cosh16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cosh16");
/** hyperbolic cosine of x; 16 lanes of double. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cosh16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cosh16, double16, double16, x);
}
#define lanemath_cosh16(x) \
/** hyperbolic cosine of x; 16 lanes of double. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosh16, double16, double16, x)

/** hyperbolic cosine of x; one double. The same function as the default form. Largest error 1.54 ulp. Domain and
 * special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_double1 lanemath_cosh1_native(lanemath_double1 x) LANEMATH_NAMED("cosh1_native");
/** hyperbolic cosine of x; 2 lanes of double. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_double2 lanemath_cosh2_native(lanemath_double2 x) LANEMATH_NAMED("cosh2_native");
lanemath_border_double3 lanemath_call_cosh3_native(lanemath_border_double3) LANEMATH_NAMED("cosh3_native");
/** hyperbolic cosine of x; 3 lanes of double. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cosh3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cosh3_native, double3, double3, x);
}
#define lanemath_cosh3_native(x) \
/** hyperbolic cosine of x; 3 lanes of double. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_border, cosh3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_cosh4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cosh4_native");
/** hyperbolic cosine of x; 4 lanes of double. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cosh4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cosh4_native, double4, double4, x);
}
#define lanemath_cosh4_native(x) \
/** hyperbolic cosine of x; 4 lanes of double. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosh4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_cosh8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cosh8_native");
/** hyperbolic cosine of x; 8 lanes of double. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cosh8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cosh8_native, double8, double8, x);
}
#define lanemath_cosh8_native(x) \
/** hyperbolic cosine of x; 8 lanes of double. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosh8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_cosh16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cosh16_native");
/** hyperbolic cosine of x; 16 lanes of double. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cosh16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cosh16_native, double16, double16, x);
}
#define lanemath_cosh16_native(x) \
/** hyperbolic cosine of x; 16 lanes of double. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cosh16_native, double16, double16, x)

/** hyperbolic cosine of x; one float. Largest error 1.85 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float1 lanemath_coshf1(lanemath_float1 x) LANEMATH_NAMED("coshf1");
/** hyperbolic cosine of x; 2 lanes of float. Largest error 1.85 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float2 lanemath_coshf2(lanemath_float2 x) LANEMATH_NAMED("coshf2");
/** hyperbolic cosine of x; 3 lanes of float. Largest error 1.85 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float3 lanemath_coshf3(lanemath_float3 x) LANEMATH_NAMED("coshf3");
/** hyperbolic cosine of x; 4 lanes of float. Largest error 1.85 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float4 lanemath_coshf4(lanemath_float4 x) LANEMATH_NAMED("coshf4");
lanemath_wide_float8 lanemath_call_coshf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("coshf8");
/** hyperbolic cosine of x; 8 lanes of float. Largest error 1.85 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_coshf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, coshf8, float8, float8, x);
}
#define lanemath_coshf8(x) \
/** hyperbolic cosine of x; 8 lanes of float. Largest error 1.85 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, coshf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_coshf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("coshf16");
/** hyperbolic cosine of x; 16 lanes of float. Largest error 1.85 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_coshf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, coshf16, float16, float16, x);
}
#define lanemath_coshf16(x) \
/** hyperbolic cosine of x; 16 lanes of float. Largest error 1.85 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, coshf16, float16, float16, x)

/** hyperbolic cosine of x; one float. Largest error 381 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float1 lanemath_coshf1_native(lanemath_float1 x) LANEMATH_NAMED("coshf1_native");
/** hyperbolic cosine of x; 2 lanes of float. Largest error 381 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float2 lanemath_coshf2_native(lanemath_float2 x) LANEMATH_NAMED("coshf2_native");
/** hyperbolic cosine of x; 3 lanes of float. Largest error 381 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float3 lanemath_coshf3_native(lanemath_float3 x) LANEMATH_NAMED("coshf3_native");
/** hyperbolic cosine of x; 4 lanes of float. Largest error 381 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float4 lanemath_coshf4_native(lanemath_float4 x) LANEMATH_NAMED("coshf4_native");
lanemath_wide_float8 lanemath_call_coshf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("coshf8_native");
/** hyperbolic cosine of x; 8 lanes of float. Largest error 381 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_coshf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, coshf8_native, float8, float8, x);
}
#define lanemath_coshf8_native(x) \
/** hyperbolic cosine of x; 8 lanes of float. Largest error 381 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, coshf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_coshf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("coshf16_native");
/** hyperbolic cosine of x; 16 lanes of float. Largest error 381 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_coshf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, coshf16_native, float16, float16, x);
}
#define lanemath_coshf16_native(x) \
/** hyperbolic cosine of x; 16 lanes of float. Largest error 381 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, coshf16_native, float16, float16, x)

/** hyperbolic tangent of x; one double. Largest error 1.25 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_double1 lanemath_tanh1(lanemath_double1 x) LANEMATH_NAMED("tanh1");
/** hyperbolic tangent of x; 2 lanes of double. Largest error 1.25 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_double2 lanemath_tanh2(lanemath_double2 x) LANEMATH_NAMED("tanh2");
lanemath_border_double3 lanemath_call_tanh3(lanemath_border_double3) LANEMATH_NAMED("tanh3");
/** hyperbolic tangent of x; 3 lanes of double. Largest error 1.25 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_tanh3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, tanh3, double3, double3, x);
}
#define lanemath_tanh3(x) \
/** hyperbolic tangent of x; 3 lanes of double. Largest error 1.25 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_border, tanh3, double3, double3, x)
lanemath_wide_double4 lanemath_call_tanh4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("tanh4");
/** hyperbolic tangent of x; 4 lanes of double. Largest error 1.25 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_tanh4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, tanh4, double4, double4, x);
}
#define lanemath_tanh4(x) \
/** hyperbolic tangent of x; 4 lanes of double. Largest error 1.25 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanh4, double4, double4, x)
lanemath_wide_double8 lanemath_call_tanh8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("tanh8");
/** hyperbolic tangent of x; 8 lanes of double. Largest error 1.25 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_tanh8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, tanh8, double8, double8, x);
}
#define lanemath_tanh8(x) \
/** hyperbolic tangent of x; 8 lanes of double. Largest error 1.25 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanh8, double8, double8, x)
lanemath_wide_double16 lanemath_call_tanh16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("tanh16");
/** hyperbolic tangent of x; 16 lanes of double. Largest error 1.25 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_tanh16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, tanh16, double16, double16, x);
}
#define lanemath_tanh16(x) \
/** hyperbolic tangent of x; 16 lanes of double. Largest error 1.25 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanh16, double16, double16, x)

/** hyperbolic tangent of x; one double. The same function as the default form. Largest error 1.25 ulp. Domain and
 * special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_double1 lanemath_tanh1_native(lanemath_double1 x) LANEMATH_NAMED("tanh1_native");
/** hyperbolic tangent of x; 2 lanes of double. The same function as the default form. Largest error 1.25 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_double2 lanemath_tanh2_native(lanemath_double2 x) LANEMATH_NAMED("tanh2_native");
lanemath_border_double3 lanemath_call_tanh3_native(lanemath_border_double3) LANEMATH_NAMED("tanh3_native");
/** hyperbolic tangent of x; 3 lanes of double. The same function as the default form. Largest error 1.25 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_tanh3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, tanh3_native, double3, double3, x);
}
#define lanemath_tanh3_native(x) \
/** hyperbolic tangent of x; 3 lanes of double. The same function as the default form. Largest error 1.25 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_border, tanh3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_tanh4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("tanh4_native");
/** hyperbolic tangent of x; 4 lanes of double. The same function as the default form. Largest error 1.25 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_tanh4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, tanh4_native, double4, double4, x);
}
#define lanemath_tanh4_native(x) \
/** hyperbolic tangent of x; 4 lanes of double. The same function as the default form. Largest error 1.25 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanh4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_tanh8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("tanh8_native");
/** hyperbolic tangent of x; 8 lanes of double. The same function as the default form. Largest error 1.25 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_tanh8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, tanh8_native, double8, double8, x);
}
#define lanemath_tanh8_native(x) \
/** hyperbolic tangent of x; 8 lanes of double. The same function as the default form. Largest error 1.25 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanh8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_tanh16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("tanh16_native");
/** hyperbolic tangent of x; 16 lanes of double. The same function as the default form. Largest error 1.25 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_tanh16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, tanh16_native, double16, double16, x);
}
#define lanemath_tanh16_native(x) \
/** hyperbolic tangent of x; 16 lanes of double. The same function as the default form. Largest error 1.25 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanh16_native, double16, double16, x)

/** hyperbolic tangent of x; one float. Largest error 1.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float1 lanemath_tanhf1(lanemath_float1 x) LANEMATH_NAMED("tanhf1");
/** hyperbolic tangent of x; 2 lanes of float. Largest error 1.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float2 lanemath_tanhf2(lanemath_float2 x) LANEMATH_NAMED("tanhf2");
/** hyperbolic tangent of x; 3 lanes of float. Largest error 1.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float3 lanemath_tanhf3(lanemath_float3 x) LANEMATH_NAMED("tanhf3");
/** hyperbolic tangent of x; 4 lanes of float. Largest error 1.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float4 lanemath_tanhf4(lanemath_float4 x) LANEMATH_NAMED("tanhf4");
lanemath_wide_float8 lanemath_call_tanhf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanhf8");
/** hyperbolic tangent of x; 8 lanes of float. Largest error 1.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_tanhf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, tanhf8, float8, float8, x);
}
#define lanemath_tanhf8(x) \
/** hyperbolic tangent of x; 8 lanes of float. Largest error 1.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanhf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_tanhf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanhf16");
/** hyperbolic tangent of x; 16 lanes of float. Largest error 1.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_tanhf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, tanhf16, float16, float16, x);
}
#define lanemath_tanhf16(x) \
/** hyperbolic tangent of x; 16 lanes of float. Largest error 1.03 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanhf16, float16, float16, x)

/** hyperbolic tangent of x; one float. The same function as the default form. Largest error 1.03 ulp. Domain and
 * special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_float1 lanemath_tanhf1_native(lanemath_float1 x) LANEMATH_NAMED("tanhf1_native");
/** hyperbolic tangent of x; 2 lanes of float. The same function as the default form. Largest error 1.03 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_float2 lanemath_tanhf2_native(lanemath_float2 x) LANEMATH_NAMED("tanhf2_native");
/** hyperbolic tangent of x; 3 lanes of float. The same function as the default form. Largest error 1.03 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_float3 lanemath_tanhf3_native(lanemath_float3 x) LANEMATH_NAMED("tanhf3_native");
/** hyperbolic tangent of x; 4 lanes of float. The same function as the default form. Largest error 1.03 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_float4 lanemath_tanhf4_native(lanemath_float4 x) LANEMATH_NAMED("tanhf4_native");
lanemath_wide_float8 lanemath_call_tanhf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("tanhf8_native");
/** hyperbolic tangent of x; 8 lanes of float. The same function as the default form. Largest error 1.03 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_tanhf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, tanhf8_native, float8, float8, x);
}
#define lanemath_tanhf8_native(x) \
/** hyperbolic tangent of x; 8 lanes of float. The same function as the default form. Largest error 1.03 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanhf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_tanhf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("tanhf16_native");
/** hyperbolic tangent of x; 16 lanes of float. The same function as the default form. Largest error 1.03 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_tanhf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, tanhf16_native, float16, float16, x);
}
#define lanemath_tanhf16_native(x) \
/** hyperbolic tangent of x; 16 lanes of float. The same function as the default form. Largest error 1.03 ulp. Domain
 * and special values: at the head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, tanhf16_native, float16, float16, x)

/** inverse hyperbolic sine of x; one double. Largest error 1.8 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_double1 lanemath_asinh1(lanemath_double1 x) LANEMATH_NAMED("asinh1");
/** inverse hyperbolic sine of x; 2 lanes of double. An algorithm of its own: the last bits differ from those of other
 * widths. Largest error 2.28 ulp. Domain and special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_double2 lanemath_asinh2(lanemath_double2 x) LANEMATH_NAMED("asinh2");
lanemath_border_double3 lanemath_call_asinh3(lanemath_border_double3) LANEMATH_NAMED("asinh3");
/** inverse hyperbolic sine of x; 3 lanes of double. Largest error 1.8 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_asinh3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, asinh3, double3, double3, x);
}
#define lanemath_asinh3(x) \
/** inverse hyperbolic sine of x; 3 lanes of double. Largest error 1.8 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_border, asinh3, double3, double3, x)
lanemath_wide_double4 lanemath_call_asinh4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("asinh4");
/** inverse hyperbolic sine of x; 4 lanes of double. Largest error 1.8 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_asinh4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, asinh4, double4, double4, x);
}
#define lanemath_asinh4(x) \
/** inverse hyperbolic sine of x; 4 lanes of double. Largest error 1.8 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinh4, double4, double4, x)
lanemath_wide_double8 lanemath_call_asinh8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("asinh8");
/** inverse hyperbolic sine of x; 8 lanes of double. Largest error 1.8 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_asinh8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, asinh8, double8, double8, x);
}
#define lanemath_asinh8(x) \
/** inverse hyperbolic sine of x; 8 lanes of double. Largest error 1.8 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinh8, double8, double8, x)
lanemath_wide_double16 lanemath_call_asinh16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("asinh16");
/** inverse hyperbolic sine of x; 16 lanes of double. Largest error 1.8 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_asinh16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, asinh16, double16, double16, x);
}
#define lanemath_asinh16(x) \
/** inverse hyperbolic sine of x; 16 lanes of double. Largest error 1.8 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinh16, double16, double16, x)

/** inverse hyperbolic sine of x; one double. Largest error 700000 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_double1 lanemath_asinh1_native(lanemath_double1 x) LANEMATH_NAMED("asinh1_native");
/** inverse hyperbolic sine of x; 2 lanes of double. The same function as the default form. Largest error 2.28 ulp.
 * Domain and special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_double2 lanemath_asinh2_native(lanemath_double2 x) LANEMATH_NAMED("asinh2_native");
lanemath_border_double3 lanemath_call_asinh3_native(lanemath_border_double3) LANEMATH_NAMED("asinh3_native");
/** inverse hyperbolic sine of x; 3 lanes of double. Largest error 700000 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_asinh3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, asinh3_native, double3, double3, x);
}
#define lanemath_asinh3_native(x) \
/** inverse hyperbolic sine of x; 3 lanes of double. Largest error 700000 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_border, asinh3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_asinh4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("asinh4_native");
/** inverse hyperbolic sine of x; 4 lanes of double. Largest error 700000 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_asinh4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, asinh4_native, double4, double4, x);
}
#define lanemath_asinh4_native(x) \
/** inverse hyperbolic sine of x; 4 lanes of double. Largest error 700000 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinh4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_asinh8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("asinh8_native");
/** inverse hyperbolic sine of x; 8 lanes of double. Largest error 700000 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_asinh8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, asinh8_native, double8, double8, x);
}
#define lanemath_asinh8_native(x) \
/** inverse hyperbolic sine of x; 8 lanes of double. Largest error 700000 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinh8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_asinh16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("asinh16_native");
/** inverse hyperbolic sine of x; 16 lanes of double. Largest error 700000 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_asinh16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, asinh16_native, double16, double16, x);
}
#define lanemath_asinh16_native(x) \
/** inverse hyperbolic sine of x; 16 lanes of double. Largest error 700000 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinh16_native, double16, double16, x)

/** inverse hyperbolic sine of x; one float. Largest error 2.3 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float1 lanemath_asinhf1(lanemath_float1 x) LANEMATH_NAMED("asinhf1");
/** inverse hyperbolic sine of x; 2 lanes of float. Largest error 2.3 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float2 lanemath_asinhf2(lanemath_float2 x) LANEMATH_NAMED("asinhf2");
/** inverse hyperbolic sine of x; 3 lanes of float. Largest error 2.3 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float3 lanemath_asinhf3(lanemath_float3 x) LANEMATH_NAMED("asinhf3");
/** inverse hyperbolic sine of x; 4 lanes of float. An algorithm of its own: the last bits differ from those of other
 * widths. Largest error 2.28 ulp. Domain and special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_float4 lanemath_asinhf4(lanemath_float4 x) LANEMATH_NAMED("asinhf4");
lanemath_wide_float8 lanemath_call_asinhf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("asinhf8");
/** inverse hyperbolic sine of x; 8 lanes of float. Largest error 2.3 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_asinhf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, asinhf8, float8, float8, x);
}
#define lanemath_asinhf8(x) \
/** inverse hyperbolic sine of x; 8 lanes of float. Largest error 2.3 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinhf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_asinhf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("asinhf16");
/** inverse hyperbolic sine of x; 16 lanes of float. Largest error 2.3 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_asinhf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, asinhf16, float16, float16, x);
}
#define lanemath_asinhf16(x) \
/** inverse hyperbolic sine of x; 16 lanes of float. Largest error 2.3 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinhf16, float16, float16, x)

/** inverse hyperbolic sine of x; one float. Largest error 1470 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float1 lanemath_asinhf1_native(lanemath_float1 x) LANEMATH_NAMED("asinhf1_native");
/** inverse hyperbolic sine of x; 2 lanes of float. Largest error 1470 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float2 lanemath_asinhf2_native(lanemath_float2 x) LANEMATH_NAMED("asinhf2_native");
/** inverse hyperbolic sine of x; 3 lanes of float. Largest error 1470 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float3 lanemath_asinhf3_native(lanemath_float3 x) LANEMATH_NAMED("asinhf3_native");
/** inverse hyperbolic sine of x; 4 lanes of float. The same function as the default form. Largest error 2.28 ulp.
 * Domain and special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_float4 lanemath_asinhf4_native(lanemath_float4 x) LANEMATH_NAMED("asinhf4_native");
lanemath_wide_float8 lanemath_call_asinhf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("asinhf8_native");
/** inverse hyperbolic sine of x; 8 lanes of float. Largest error 1470 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_asinhf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, asinhf8_native, float8, float8, x);
}
#define lanemath_asinhf8_native(x) \
/** inverse hyperbolic sine of x; 8 lanes of float. Largest error 1470 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinhf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_asinhf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("asinhf16_native");
/** inverse hyperbolic sine of x; 16 lanes of float. Largest error 1470 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_asinhf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, asinhf16_native, float16, float16, x);
}
#define lanemath_asinhf16_native(x) \
/** inverse hyperbolic sine of x; 16 lanes of float. Largest error 1470 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, asinhf16_native, float16, float16, x)

/** inverse hyperbolic cosine of x; one double. Largest error 9 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_double1 lanemath_acosh1(lanemath_double1 x) LANEMATH_NAMED("acosh1");
/** inverse hyperbolic cosine of x; 2 lanes of double. An algorithm of its own: the last bits differ from those of
 * other widths. Largest error 2.19 ulp. Domain and special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_double2 lanemath_acosh2(lanemath_double2 x) LANEMATH_NAMED("acosh2");
lanemath_border_double3 lanemath_call_acosh3(lanemath_border_double3) LANEMATH_NAMED("acosh3");
/** inverse hyperbolic cosine of x; 3 lanes of double. Largest error 9 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_acosh3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, acosh3, double3, double3, x);
}
#define lanemath_acosh3(x) \
/** inverse hyperbolic cosine of x; 3 lanes of double. Largest error 9 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_border, acosh3, double3, double3, x)
lanemath_wide_double4 lanemath_call_acosh4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("acosh4");
/** inverse hyperbolic cosine of x; 4 lanes of double. Largest error 9 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_acosh4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, acosh4, double4, double4, x);
}
#define lanemath_acosh4(x) \
/** inverse hyperbolic cosine of x; 4 lanes of double. Largest error 9 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acosh4, double4, double4, x)
lanemath_wide_double8 lanemath_call_acosh8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("acosh8");
/** inverse hyperbolic cosine of x; 8 lanes of double. Largest error 9 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_acosh8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, acosh8, double8, double8, x);
}
#define lanemath_acosh8(x) \
/** inverse hyperbolic cosine of x; 8 lanes of double. Largest error 9 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acosh8, double8, double8, x)
lanemath_wide_double16 lanemath_call_acosh16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("acosh16");
/** inverse hyperbolic cosine of x; 16 lanes of double. Largest error 9 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_acosh16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, acosh16, double16, double16, x);
}
#define lanemath_acosh16(x) \
/** inverse hyperbolic cosine of x; 16 lanes of double. Largest error 9 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acosh16, double16, double16, x)

/** inverse hyperbolic cosine of x; one double. Largest error 700000 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_double1 lanemath_acosh1_native(lanemath_double1 x) LANEMATH_NAMED("acosh1_native");
/** inverse hyperbolic cosine of x; 2 lanes of double. The same function as the default form. Largest error 2.19 ulp.
 * Domain and special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_double2 lanemath_acosh2_native(lanemath_double2 x) LANEMATH_NAMED("acosh2_native");
lanemath_border_double3 lanemath_call_acosh3_native(lanemath_border_double3) LANEMATH_NAMED("acosh3_native");
/** inverse hyperbolic cosine of x; 3 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_acosh3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, acosh3_native, double3, double3, x);
}
#define lanemath_acosh3_native(x) \
/** inverse hyperbolic cosine of x; 3 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_border, acosh3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_acosh4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("acosh4_native");
/** inverse hyperbolic cosine of x; 4 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_acosh4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, acosh4_native, double4, double4, x);
}
#define lanemath_acosh4_native(x) \
/** inverse hyperbolic cosine of x; 4 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acosh4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_acosh8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("acosh8_native");
/** inverse hyperbolic cosine of x; 8 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_acosh8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, acosh8_native, double8, double8, x);
}
#define lanemath_acosh8_native(x) \
/** inverse hyperbolic cosine of x; 8 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acosh8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_acosh16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("acosh16_native");
/** inverse hyperbolic cosine of x; 16 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_acosh16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, acosh16_native, double16, double16, x);
}
#define lanemath_acosh16_native(x) \
/** inverse hyperbolic cosine of x; 16 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acosh16_native, double16, double16, x)

/** inverse hyperbolic cosine of x; one float. Largest error 3.4 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float1 lanemath_acoshf1(lanemath_float1 x) LANEMATH_NAMED("acoshf1");
/** inverse hyperbolic cosine of x; 2 lanes of float. Largest error 3.4 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float2 lanemath_acoshf2(lanemath_float2 x) LANEMATH_NAMED("acoshf2");
/** inverse hyperbolic cosine of x; 3 lanes of float. Largest error 3.4 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float3 lanemath_acoshf3(lanemath_float3 x) LANEMATH_NAMED("acoshf3");
/** inverse hyperbolic cosine of x; 4 lanes of float. An algorithm of its own: the last bits differ from those of
 * other widths. Largest error 2.14 ulp. Domain and special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_float4 lanemath_acoshf4(lanemath_float4 x) LANEMATH_NAMED("acoshf4");
lanemath_wide_float8 lanemath_call_acoshf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("acoshf8");
/** inverse hyperbolic cosine of x; 8 lanes of float. Largest error 3.4 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_acoshf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, acoshf8, float8, float8, x);
}
#define lanemath_acoshf8(x) \
/** inverse hyperbolic cosine of x; 8 lanes of float. Largest error 3.4 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acoshf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_acoshf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("acoshf16");
/** inverse hyperbolic cosine of x; 16 lanes of float. Largest error 3.4 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_acoshf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, acoshf16, float16, float16, x);
}
#define lanemath_acoshf16(x) \
/** inverse hyperbolic cosine of x; 16 lanes of float. Largest error 3.4 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acoshf16, float16, float16, x)

/** inverse hyperbolic cosine of x; one float. Largest error 2500 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float1 lanemath_acoshf1_native(lanemath_float1 x) LANEMATH_NAMED("acoshf1_native");
/** inverse hyperbolic cosine of x; 2 lanes of float. Largest error 2500 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
lanemath_float2 lanemath_acoshf2_native(lanemath_float2 x) LANEMATH_NAMED("acoshf2_native");
/** inverse hyperbolic cosine of x; 3 lanes of float. Largest error 2500 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
lanemath_float3 lanemath_acoshf3_native(lanemath_float3 x) LANEMATH_NAMED("acoshf3_native");
/** inverse hyperbolic cosine of x; 4 lanes of float. The same function as the default form. Largest error 2.14 ulp.
 * Domain and special values: at the head of <lanemath/hyperbolic.h>. */
lanemath_float4 lanemath_acoshf4_native(lanemath_float4 x) LANEMATH_NAMED("acoshf4_native");
lanemath_wide_float8 lanemath_call_acoshf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("acoshf8_native");
/** inverse hyperbolic cosine of x; 8 lanes of float. Largest error 2500 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_acoshf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, acoshf8_native, float8, float8, x);
}
#define lanemath_acoshf8_native(x) \
/** inverse hyperbolic cosine of x; 8 lanes of float. Largest error 2500 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acoshf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_acoshf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("acoshf16_native");
/** inverse hyperbolic cosine of x; 16 lanes of float. Largest error 2500 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_acoshf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, acoshf16_native, float16, float16, x);
}
#define lanemath_acoshf16_native(x) \
/** inverse hyperbolic cosine of x; 16 lanes of float. Largest error 2500 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, acoshf16_native, float16, float16, x)

/** inverse hyperbolic tangent of x; one double. Largest error 2.4 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_double1 lanemath_atanh1(lanemath_double1 x) LANEMATH_NAMED("atanh1");
/** inverse hyperbolic tangent of x; 2 lanes of double. Largest error 2.4 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
lanemath_double2 lanemath_atanh2(lanemath_double2 x) LANEMATH_NAMED("atanh2");
lanemath_border_double3 lanemath_call_atanh3(lanemath_border_double3) LANEMATH_NAMED("atanh3");
/** inverse hyperbolic tangent of x; 3 lanes of double. Largest error 2.4 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_atanh3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, atanh3, double3, double3, x);
}
#define lanemath_atanh3(x) \
/** inverse hyperbolic tangent of x; 3 lanes of double. Largest error 2.4 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_border, atanh3, double3, double3, x)
lanemath_wide_double4 lanemath_call_atanh4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("atanh4");
/** inverse hyperbolic tangent of x; 4 lanes of double. Largest error 2.4 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_atanh4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, atanh4, double4, double4, x);
}
#define lanemath_atanh4(x) \
/** inverse hyperbolic tangent of x; 4 lanes of double. Largest error 2.4 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanh4, double4, double4, x)
lanemath_wide_double8 lanemath_call_atanh8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("atanh8");
/** inverse hyperbolic tangent of x; 8 lanes of double. Largest error 2.4 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_atanh8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, atanh8, double8, double8, x);
}
#define lanemath_atanh8(x) \
/** inverse hyperbolic tangent of x; 8 lanes of double. Largest error 2.4 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanh8, double8, double8, x)
lanemath_wide_double16 lanemath_call_atanh16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("atanh16");
/** inverse hyperbolic tangent of x; 16 lanes of double. Largest error 2.4 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_atanh16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, atanh16, double16, double16, x);
}
#define lanemath_atanh16(x) \
/** inverse hyperbolic tangent of x; 16 lanes of double. Largest error 2.4 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanh16, double16, double16, x)

/** inverse hyperbolic tangent of x; one double. Largest error 700000 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_double1 lanemath_atanh1_native(lanemath_double1 x) LANEMATH_NAMED("atanh1_native");
/** inverse hyperbolic tangent of x; 2 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
lanemath_double2 lanemath_atanh2_native(lanemath_double2 x) LANEMATH_NAMED("atanh2_native");
lanemath_border_double3 lanemath_call_atanh3_native(lanemath_border_double3) LANEMATH_NAMED("atanh3_native");
/** inverse hyperbolic tangent of x; 3 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_atanh3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, atanh3_native, double3, double3, x);
}
#define lanemath_atanh3_native(x) \
/** inverse hyperbolic tangent of x; 3 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_border, atanh3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_atanh4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("atanh4_native");
/** inverse hyperbolic tangent of x; 4 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_atanh4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, atanh4_native, double4, double4, x);
}
#define lanemath_atanh4_native(x) \
/** inverse hyperbolic tangent of x; 4 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanh4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_atanh8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("atanh8_native");
/** inverse hyperbolic tangent of x; 8 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_atanh8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, atanh8_native, double8, double8, x);
}
#define lanemath_atanh8_native(x) \
/** inverse hyperbolic tangent of x; 8 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanh8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_atanh16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("atanh16_native");
/** inverse hyperbolic tangent of x; 16 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_atanh16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, atanh16_native, double16, double16, x);
}
#define lanemath_atanh16_native(x) \
/** inverse hyperbolic tangent of x; 16 lanes of double. Largest error 700000 ulp. Domain and special values: at the
 * head of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanh16_native, double16, double16, x)

/** inverse hyperbolic tangent of x; one float. Largest error 2.2 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float1 lanemath_atanhf1(lanemath_float1 x) LANEMATH_NAMED("atanhf1");
/** inverse hyperbolic tangent of x; 2 lanes of float. Largest error 2.2 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
lanemath_float2 lanemath_atanhf2(lanemath_float2 x) LANEMATH_NAMED("atanhf2");
/** inverse hyperbolic tangent of x; 3 lanes of float. Largest error 2.2 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
lanemath_float3 lanemath_atanhf3(lanemath_float3 x) LANEMATH_NAMED("atanhf3");
/** inverse hyperbolic tangent of x; 4 lanes of float. Largest error 2.2 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
lanemath_float4 lanemath_atanhf4(lanemath_float4 x) LANEMATH_NAMED("atanhf4");
lanemath_wide_float8 lanemath_call_atanhf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("atanhf8");
/** inverse hyperbolic tangent of x; 8 lanes of float. Largest error 2.2 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_atanhf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, atanhf8, float8, float8, x);
}
#define lanemath_atanhf8(x) \
/** inverse hyperbolic tangent of x; 8 lanes of float. Largest error 2.2 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanhf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_atanhf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("atanhf16");
/** inverse hyperbolic tangent of x; 16 lanes of float. Largest error 2.2 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_atanhf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, atanhf16, float16, float16, x);
}
#define lanemath_atanhf16(x) \
/** inverse hyperbolic tangent of x; 16 lanes of float. Largest error 2.2 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanhf16, float16, float16, x)

/** inverse hyperbolic tangent of x; one float. Largest error 1470 ulp. Domain and special values: at the head of
 * <lanemath/hyperbolic.h>. */
lanemath_float1 lanemath_atanhf1_native(lanemath_float1 x) LANEMATH_NAMED("atanhf1_native");
/** inverse hyperbolic tangent of x; 2 lanes of float. Largest error 1470 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
lanemath_float2 lanemath_atanhf2_native(lanemath_float2 x) LANEMATH_NAMED("atanhf2_native");
/** inverse hyperbolic tangent of x; 3 lanes of float. Largest error 1470 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
lanemath_float3 lanemath_atanhf3_native(lanemath_float3 x) LANEMATH_NAMED("atanhf3_native");
/** inverse hyperbolic tangent of x; 4 lanes of float. Largest error 1470 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
lanemath_float4 lanemath_atanhf4_native(lanemath_float4 x) LANEMATH_NAMED("atanhf4_native");
lanemath_wide_float8 lanemath_call_atanhf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("atanhf8_native");
/** inverse hyperbolic tangent of x; 8 lanes of float. Largest error 1470 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_atanhf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, atanhf8_native, float8, float8, x);
}
#define lanemath_atanhf8_native(x) \
/** inverse hyperbolic tangent of x; 8 lanes of float. Largest error 1470 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanhf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_atanhf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("atanhf16_native");
/** inverse hyperbolic tangent of x; 16 lanes of float. Largest error 1470 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_atanhf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, atanhf16_native, float16, float16, x);
}
#define lanemath_atanhf16_native(x) \
/** inverse hyperbolic tangent of x; 16 lanes of float. Largest error 1470 ulp. Domain and special values: at the head
 * of <lanemath/hyperbolic.h>. */ \
  LANEMATH_UNARY(lanemath_wide, atanhf16_native, float16, float16, x)

LANEMATH_END

#endif
