/* Error and gamma functions.
 *
 * Any x. Gamma has poles at zero and the negative integers.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_SPECIAL_H
#define LANEMATH_SPECIAL_H

#include <lanemath/types.h>

#pragma GCC system_header

LANEMATH_BEGIN

/** error function of x; one double. Largest error 2.55 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_double1 lanemath_erf1(lanemath_double1 x) LANEMATH_NAMED("erf1");
/** error function of x; 2 lanes of double. Largest error 2.55 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_double2 lanemath_erf2(lanemath_double2 x) LANEMATH_NAMED("erf2");
lanemath_border_double3 lanemath_call_erf3(lanemath_border_double3) LANEMATH_NAMED("erf3");
/** error function of x; 3 lanes of double. Largest error 2.55 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_erf3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, erf3, double3, double3, x);
}
#define lanemath_erf3(x) \
/** error function of x; 3 lanes of double. Largest error 2.55 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, erf3, double3, double3, x)
lanemath_wide_double4 lanemath_call_erf4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("erf4");
/** error function of x; 4 lanes of double. Largest error 2.55 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_erf4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, erf4, double4, double4, x);
}
#define lanemath_erf4(x) \
/** error function of x; 4 lanes of double. Largest error 2.55 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erf4, double4, double4, x)
lanemath_wide_double8 lanemath_call_erf8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("erf8");
/** error function of x; 8 lanes of double. Largest error 2.55 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_erf8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, erf8, double8, double8, x);
}
#define lanemath_erf8(x) \
/** error function of x; 8 lanes of double. Largest error 2.55 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erf8, double8, double8, x)
lanemath_wide_double16 lanemath_call_erf16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("erf16");
/** error function of x; 16 lanes of double. Largest error 2.55 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_erf16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, erf16, double16, double16, x);
}
#define lanemath_erf16(x) \
/** error function of x; 16 lanes of double. Largest error 2.55 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erf16, double16, double16, x)

/** error function of x; one double. Largest error 315000 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_double1 lanemath_erf1_native(lanemath_double1 x) LANEMATH_NAMED("erf1_native");
/** error function of x; 2 lanes of double. Largest error 315000 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_double2 lanemath_erf2_native(lanemath_double2 x) LANEMATH_NAMED("erf2_native");
lanemath_border_double3 lanemath_call_erf3_native(lanemath_border_double3) LANEMATH_NAMED("erf3_native");
/** error function of x; 3 lanes of double. Largest error 315000 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_erf3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, erf3_native, double3, double3, x);
}
#define lanemath_erf3_native(x) \
/** error function of x; 3 lanes of double. Largest error 315000 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, erf3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_erf4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("erf4_native");
/** error function of x; 4 lanes of double. Largest error 315000 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_erf4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, erf4_native, double4, double4, x);
}
#define lanemath_erf4_native(x) \
/** error function of x; 4 lanes of double. Largest error 315000 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erf4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_erf8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("erf8_native");
/** error function of x; 8 lanes of double. Largest error 315000 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_erf8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, erf8_native, double8, double8, x);
}
#define lanemath_erf8_native(x) \
/** error function of x; 8 lanes of double. Largest error 315000 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erf8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_erf16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("erf16_native");
/** error function of x; 16 lanes of double. Largest error 315000 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_erf16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, erf16_native, double16, double16, x);
}
#define lanemath_erf16_native(x) \
/** error function of x; 16 lanes of double. Largest error 315000 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erf16_native, double16, double16, x)

/** error function of x; one float. Largest error 1.93 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_float1 lanemath_erff1(lanemath_float1 x) LANEMATH_NAMED("erff1");
/** error function of x; 2 lanes of float. Largest error 1.93 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_float2 lanemath_erff2(lanemath_float2 x) LANEMATH_NAMED("erff2");
/** error function of x; 3 lanes of float. Largest error 1.93 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_float3 lanemath_erff3(lanemath_float3 x) LANEMATH_NAMED("erff3");
/** error function of x; 4 lanes of float. Largest error 1.93 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_float4 lanemath_erff4(lanemath_float4 x) LANEMATH_NAMED("erff4");
lanemath_wide_float8 lanemath_call_erff8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("erff8");
/** error function of x; 8 lanes of float. Largest error 1.93 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_erff8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, erff8, float8, float8, x);
}
#define lanemath_erff8(x) \
/** error function of x; 8 lanes of float. Largest error 1.93 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erff8, float8, float8, x)
lanemath_wide_float16 lanemath_call_erff16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("erff16");
/** error function of x; 16 lanes of float. Largest error 1.93 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_erff16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, erff16, float16, float16, x);
}
#define lanemath_erff16(x) \
/** error function of x; 16 lanes of float. Largest error 1.93 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erff16, float16, float16, x)

/** error function of x; one float. Largest error 277 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_float1 lanemath_erff1_native(lanemath_float1 x) LANEMATH_NAMED("erff1_native");
/** error function of x; 2 lanes of float. Largest error 277 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_float2 lanemath_erff2_native(lanemath_float2 x) LANEMATH_NAMED("erff2_native");
/** error function of x; 3 lanes of float. Largest error 277 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_float3 lanemath_erff3_native(lanemath_float3 x) LANEMATH_NAMED("erff3_native");
/** error function of x; 4 lanes of float. Largest error 277 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_float4 lanemath_erff4_native(lanemath_float4 x) LANEMATH_NAMED("erff4_native");
lanemath_wide_float8 lanemath_call_erff8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("erff8_native");
/** error function of x; 8 lanes of float. Largest error 277 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_erff8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, erff8_native, float8, float8, x);
}
#define lanemath_erff8_native(x) \
/** error function of x; 8 lanes of float. Largest error 277 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erff8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_erff16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("erff16_native");
/** error function of x; 16 lanes of float. Largest error 277 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_erff16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, erff16_native, float16, float16, x);
}
#define lanemath_erff16_native(x) \
/** error function of x; 16 lanes of float. Largest error 277 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erff16_native, float16, float16, x)

/** complementary error function, 1 - erf(x); one double. Largest error 2.13 ulp. Domain and special values: at the
 * head of <lanemath/special.h>. */
lanemath_double1 lanemath_erfc1(lanemath_double1 x) LANEMATH_NAMED("erfc1");
/** complementary error function, 1 - erf(x); 2 lanes of double. Largest error 2.13 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
lanemath_double2 lanemath_erfc2(lanemath_double2 x) LANEMATH_NAMED("erfc2");
lanemath_border_double3 lanemath_call_erfc3(lanemath_border_double3) LANEMATH_NAMED("erfc3");
/** complementary error function, 1 - erf(x); 3 lanes of double. Largest error 2.13 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_erfc3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, erfc3, double3, double3, x);
}
#define lanemath_erfc3(x) \
/** complementary error function, 1 - erf(x); 3 lanes of double. Largest error 2.13 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, erfc3, double3, double3, x)
lanemath_wide_double4 lanemath_call_erfc4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("erfc4");
/** complementary error function, 1 - erf(x); 4 lanes of double. Largest error 2.13 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_erfc4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, erfc4, double4, double4, x);
}
#define lanemath_erfc4(x) \
/** complementary error function, 1 - erf(x); 4 lanes of double. Largest error 2.13 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erfc4, double4, double4, x)
lanemath_wide_double8 lanemath_call_erfc8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("erfc8");
/** complementary error function, 1 - erf(x); 8 lanes of double. Largest error 2.13 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_erfc8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, erfc8, double8, double8, x);
}
#define lanemath_erfc8(x) \
/** complementary error function, 1 - erf(x); 8 lanes of double. Largest error 2.13 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erfc8, double8, double8, x)
lanemath_wide_double16 lanemath_call_erfc16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("erfc16");
/** complementary error function, 1 - erf(x); 16 lanes of double. Largest error 2.13 ulp. Domain and special values:
 * at the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_erfc16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, erfc16, double16, double16, x);
}
#define lanemath_erfc16(x) \
/** complementary error function, 1 - erf(x); 16 lanes of double. Largest error 2.13 ulp. Domain and special values:
 * at the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erfc16, double16, double16, x)

/** complementary error function, 1 - erf(x); one double. Largest error 6.78e+06 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
lanemath_double1 lanemath_erfc1_native(lanemath_double1 x) LANEMATH_NAMED("erfc1_native");
/** complementary error function, 1 - erf(x); 2 lanes of double. Largest error 6.78e+06 ulp. Domain and special
 * values: at the head of <lanemath/special.h>. */
lanemath_double2 lanemath_erfc2_native(lanemath_double2 x) LANEMATH_NAMED("erfc2_native");
lanemath_border_double3 lanemath_call_erfc3_native(lanemath_border_double3) LANEMATH_NAMED("erfc3_native");
/** complementary error function, 1 - erf(x); 3 lanes of double. Largest error 6.78e+06 ulp. Domain and special
 * values: at the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_erfc3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, erfc3_native, double3, double3, x);
}
#define lanemath_erfc3_native(x) \
/** complementary error function, 1 - erf(x); 3 lanes of double. Largest error 6.78e+06 ulp. Domain and special
 * values: at the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, erfc3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_erfc4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("erfc4_native");
/** complementary error function, 1 - erf(x); 4 lanes of double. Largest error 6.78e+06 ulp. Domain and special
 * values: at the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_erfc4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, erfc4_native, double4, double4, x);
}
#define lanemath_erfc4_native(x) \
/** complementary error function, 1 - erf(x); 4 lanes of double. Largest error 6.78e+06 ulp. Domain and special
 * values: at the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erfc4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_erfc8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("erfc8_native");
/** complementary error function, 1 - erf(x); 8 lanes of double. Largest error 6.78e+06 ulp. Domain and special
 * values: at the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_erfc8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, erfc8_native, double8, double8, x);
}
#define lanemath_erfc8_native(x) \
/** complementary error function, 1 - erf(x); 8 lanes of double. Largest error 6.78e+06 ulp. Domain and special
 * values: at the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erfc8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_erfc16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("erfc16_native");
/** complementary error function, 1 - erf(x); 16 lanes of double. Largest error 6.78e+06 ulp. Domain and special
 * values: at the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_erfc16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, erfc16_native, double16, double16, x);
}
#define lanemath_erfc16_native(x) \
/** complementary error function, 1 - erf(x); 16 lanes of double. Largest error 6.78e+06 ulp. Domain and special
 * values: at the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erfc16_native, double16, double16, x)

/** complementary error function, 1 - erf(x); one float. Largest error 1.77 ulp. Domain and special values: at the
 * head of <lanemath/special.h>. */
lanemath_float1 lanemath_erfcf1(lanemath_float1 x) LANEMATH_NAMED("erfcf1");
/** complementary error function, 1 - erf(x); 2 lanes of float. Largest error 1.77 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
lanemath_float2 lanemath_erfcf2(lanemath_float2 x) LANEMATH_NAMED("erfcf2");
/** complementary error function, 1 - erf(x); 3 lanes of float. Largest error 1.77 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
lanemath_float3 lanemath_erfcf3(lanemath_float3 x) LANEMATH_NAMED("erfcf3");
/** complementary error function, 1 - erf(x); 4 lanes of float. Largest error 1.77 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
lanemath_float4 lanemath_erfcf4(lanemath_float4 x) LANEMATH_NAMED("erfcf4");
lanemath_wide_float8 lanemath_call_erfcf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("erfcf8");
/** complementary error function, 1 - erf(x); 8 lanes of float. Largest error 1.77 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_erfcf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, erfcf8, float8, float8, x);
}
#define lanemath_erfcf8(x) \
/** complementary error function, 1 - erf(x); 8 lanes of float. Largest error 1.77 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erfcf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_erfcf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("erfcf16");
/** complementary error function, 1 - erf(x); 16 lanes of float. Largest error 1.77 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_erfcf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, erfcf16, float16, float16, x);
}
#define lanemath_erfcf16(x) \
/** complementary error function, 1 - erf(x); 16 lanes of float. Largest error 1.77 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erfcf16, float16, float16, x)

/** complementary error function, 1 - erf(x); one float. Largest error 405 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */
lanemath_float1 lanemath_erfcf1_native(lanemath_float1 x) LANEMATH_NAMED("erfcf1_native");
/** complementary error function, 1 - erf(x); 2 lanes of float. Largest error 405 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
lanemath_float2 lanemath_erfcf2_native(lanemath_float2 x) LANEMATH_NAMED("erfcf2_native");
/** complementary error function, 1 - erf(x); 3 lanes of float. Largest error 405 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
lanemath_float3 lanemath_erfcf3_native(lanemath_float3 x) LANEMATH_NAMED("erfcf3_native");
/** complementary error function, 1 - erf(x); 4 lanes of float. Largest error 405 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
lanemath_float4 lanemath_erfcf4_native(lanemath_float4 x) LANEMATH_NAMED("erfcf4_native");
lanemath_wide_float8 lanemath_call_erfcf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("erfcf8_native");
/** complementary error function, 1 - erf(x); 8 lanes of float. Largest error 405 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_erfcf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, erfcf8_native, float8, float8, x);
}
#define lanemath_erfcf8_native(x) \
/** complementary error function, 1 - erf(x); 8 lanes of float. Largest error 405 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erfcf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_erfcf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("erfcf16_native");
/** complementary error function, 1 - erf(x); 16 lanes of float. Largest error 405 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_erfcf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, erfcf16_native, float16, float16, x);
}
#define lanemath_erfcf16_native(x) \
/** complementary error function, 1 - erf(x); 16 lanes of float. Largest error 405 ulp. Domain and special values: at
 * the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_wide, erfcf16_native, float16, float16, x)

/** natural logarithm of |gamma(x)|; one double. Largest error 0.51 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_double1 lanemath_lgamma1(lanemath_double1 x) LANEMATH_NAMED("lgamma1");
/** natural logarithm of |gamma(x)|; 2 lanes of double. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */
lanemath_double2 lanemath_lgamma2(lanemath_double2 x) LANEMATH_NAMED("lgamma2");
lanemath_border_double3 lanemath_call_lgamma3(lanemath_border_double3) LANEMATH_NAMED("lgamma3");
/** natural logarithm of |gamma(x)|; 3 lanes of double. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_lgamma3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, lgamma3, double3, double3, x);
}
#define lanemath_lgamma3(x) \
/** natural logarithm of |gamma(x)|; 3 lanes of double. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, lgamma3, double3, double3, x)
lanemath_border_double4 lanemath_call_lgamma4(lanemath_border_double4) LANEMATH_NAMED("lgamma4");
/** natural logarithm of |gamma(x)|; 4 lanes of double. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_lgamma4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_border, lgamma4, double4, double4, x);
}
#define lanemath_lgamma4(x) \
/** natural logarithm of |gamma(x)|; 4 lanes of double. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, lgamma4, double4, double4, x)
lanemath_border_double8 lanemath_call_lgamma8(lanemath_border_double8) LANEMATH_NAMED("lgamma8");
/** natural logarithm of |gamma(x)|; 8 lanes of double. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_lgamma8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_border, lgamma8, double8, double8, x);
}
#define lanemath_lgamma8(x) \
/** natural logarithm of |gamma(x)|; 8 lanes of double. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, lgamma8, double8, double8, x)
lanemath_border_double16 lanemath_call_lgamma16(lanemath_border_double16) LANEMATH_NAMED("lgamma16");
/** natural logarithm of |gamma(x)|; 16 lanes of double. Largest error 0.51 ulp. Domain and special values: at the
 * head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_lgamma16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_border, lgamma16, double16, double16, x);
}
#define lanemath_lgamma16(x) \
/** natural logarithm of |gamma(x)|; 16 lanes of double. Largest error 0.51 ulp. Domain and special values: at the
 * head of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, lgamma16, double16, double16, x)

/** natural logarithm of |gamma(x)|; one float. Largest error 0.51 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_float1 lanemath_lgammaf1(lanemath_float1 x) LANEMATH_NAMED("lgammaf1");
/** natural logarithm of |gamma(x)|; 2 lanes of float. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */
lanemath_float2 lanemath_lgammaf2(lanemath_float2 x) LANEMATH_NAMED("lgammaf2");
/** natural logarithm of |gamma(x)|; 3 lanes of float. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */
lanemath_float3 lanemath_lgammaf3(lanemath_float3 x) LANEMATH_NAMED("lgammaf3");
/** natural logarithm of |gamma(x)|; 4 lanes of float. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */
lanemath_float4 lanemath_lgammaf4(lanemath_float4 x) LANEMATH_NAMED("lgammaf4");
lanemath_border_float8 lanemath_call_lgammaf8(lanemath_border_float8) LANEMATH_NAMED("lgammaf8");
/** natural logarithm of |gamma(x)|; 8 lanes of float. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_lgammaf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_border, lgammaf8, float8, float8, x);
}
#define lanemath_lgammaf8(x) \
/** natural logarithm of |gamma(x)|; 8 lanes of float. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, lgammaf8, float8, float8, x)
lanemath_border_float16 lanemath_call_lgammaf16(lanemath_border_float16) LANEMATH_NAMED("lgammaf16");
/** natural logarithm of |gamma(x)|; 16 lanes of float. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_lgammaf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_border, lgammaf16, float16, float16, x);
}
#define lanemath_lgammaf16(x) \
/** natural logarithm of |gamma(x)|; 16 lanes of float. Largest error 0.51 ulp. Domain and special values: at the head
 * of <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, lgammaf16, float16, float16, x)

/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; one double. Largest error 0.51 ulp.
 * Domain and special values: at the head of <lanemath/special.h>. */
lanemath_double1 lanemath_lgammar1(lanemath_double1 x, lanemath_int1* sign) LANEMATH_NAMED("lgammar1");
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 2 lanes of double. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */
lanemath_double2 lanemath_lgammar2(lanemath_double2 x, lanemath_int2* sign) LANEMATH_NAMED("lgammar2");
lanemath_border_double3 lanemath_call_lgammar3(lanemath_border_double3, lanemath_int3*) LANEMATH_NAMED("lgammar3");
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 3 lanes of double. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_lgammar3(lanemath_double3 x, lanemath_int3* sign) {
  return LANEMATH_UNARY_POINTER(lanemath_border, lgammar3, double3, double3, int3, x, sign);
}
#define lanemath_lgammar3(x, sign) \
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 3 lanes of double. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_border, lgammar3, double3, double3, int3, x, sign)
lanemath_border_double4 lanemath_call_lgammar4(lanemath_border_double4, lanemath_int4*) LANEMATH_NAMED("lgammar4");
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 4 lanes of double. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_lgammar4(lanemath_double4 x, lanemath_int4* sign) {
  return LANEMATH_UNARY_POINTER(lanemath_border, lgammar4, double4, double4, int4, x, sign);
}
#define lanemath_lgammar4(x, sign) \
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 4 lanes of double. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_border, lgammar4, double4, double4, int4, x, sign)
lanemath_border_double8 lanemath_call_lgammar8(lanemath_border_double8, lanemath_int8*) LANEMATH_NAMED("lgammar8");
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 8 lanes of double. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_lgammar8(lanemath_double8 x, lanemath_int8* sign) {
  return LANEMATH_UNARY_POINTER(lanemath_border, lgammar8, double8, double8, int8, x, sign);
}
#define lanemath_lgammar8(x, sign) \
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 8 lanes of double. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_border, lgammar8, double8, double8, int8, x, sign)
lanemath_border_double16 lanemath_call_lgammar16(lanemath_border_double16, lanemath_int16*) LANEMATH_NAMED("lgammar16");
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 16 lanes of double. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_lgammar16(lanemath_double16 x, lanemath_int16* sign) {
  return LANEMATH_UNARY_POINTER(lanemath_border, lgammar16, double16, double16, int16, x, sign);
}
#define lanemath_lgammar16(x, sign) \
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 16 lanes of double. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_border, lgammar16, double16, double16, int16, x, sign)

/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; one float. Largest error 0.51 ulp.
 * Domain and special values: at the head of <lanemath/special.h>. */
lanemath_float1 lanemath_lgammarf1(lanemath_float1 x, lanemath_int1* sign) LANEMATH_NAMED("lgammarf1");
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 2 lanes of float. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */
lanemath_float2 lanemath_lgammarf2(lanemath_float2 x, lanemath_int2* sign) LANEMATH_NAMED("lgammarf2");
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 3 lanes of float. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */
lanemath_float3 lanemath_lgammarf3(lanemath_float3 x, lanemath_int3* sign) LANEMATH_NAMED("lgammarf3");
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 4 lanes of float. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */
lanemath_float4 lanemath_lgammarf4(lanemath_float4 x, lanemath_int4* sign) LANEMATH_NAMED("lgammarf4");
lanemath_border_float8 lanemath_call_lgammarf8(lanemath_border_float8, lanemath_int8*) LANEMATH_NAMED("lgammarf8");
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 8 lanes of float. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_lgammarf8(lanemath_float8 x, lanemath_int8* sign) {
  return LANEMATH_UNARY_POINTER(lanemath_border, lgammarf8, float8, float8, int8, x, sign);
}
#define lanemath_lgammarf8(x, sign) \
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 8 lanes of float. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_border, lgammarf8, float8, float8, int8, x, sign)
lanemath_border_float16 lanemath_call_lgammarf16(lanemath_border_float16, lanemath_int16*) LANEMATH_NAMED("lgammarf16");
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 16 lanes of float. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_lgammarf16(lanemath_float16 x, lanemath_int16* sign) {
  return LANEMATH_UNARY_POINTER(lanemath_border, lgammarf16, float16, float16, int16, x, sign);
}
#define lanemath_lgammarf16(x, sign) \
/** natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer; 16 lanes of float. Largest error 0.51
 * ulp. Domain and special values: at the head of <lanemath/special.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_border, lgammarf16, float16, float16, int16, x, sign)

/** gamma function of x; one double. Largest error 0.505 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_double1 lanemath_tgamma1(lanemath_double1 x) LANEMATH_NAMED("tgamma1");
/** gamma function of x; 2 lanes of double. Largest error 0.505 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_double2 lanemath_tgamma2(lanemath_double2 x) LANEMATH_NAMED("tgamma2");
lanemath_border_double3 lanemath_call_tgamma3(lanemath_border_double3) LANEMATH_NAMED("tgamma3");
/** gamma function of x; 3 lanes of double. Largest error 0.505 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_tgamma3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, tgamma3, double3, double3, x);
}
#define lanemath_tgamma3(x) \
/** gamma function of x; 3 lanes of double. Largest error 0.505 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, tgamma3, double3, double3, x)
lanemath_border_double4 lanemath_call_tgamma4(lanemath_border_double4) LANEMATH_NAMED("tgamma4");
/** gamma function of x; 4 lanes of double. Largest error 0.505 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_tgamma4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_border, tgamma4, double4, double4, x);
}
#define lanemath_tgamma4(x) \
/** gamma function of x; 4 lanes of double. Largest error 0.505 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, tgamma4, double4, double4, x)
lanemath_border_double8 lanemath_call_tgamma8(lanemath_border_double8) LANEMATH_NAMED("tgamma8");
/** gamma function of x; 8 lanes of double. Largest error 0.505 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_tgamma8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_border, tgamma8, double8, double8, x);
}
#define lanemath_tgamma8(x) \
/** gamma function of x; 8 lanes of double. Largest error 0.505 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, tgamma8, double8, double8, x)
lanemath_border_double16 lanemath_call_tgamma16(lanemath_border_double16) LANEMATH_NAMED("tgamma16");
/** gamma function of x; 16 lanes of double. Largest error 0.505 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_tgamma16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_border, tgamma16, double16, double16, x);
}
#define lanemath_tgamma16(x) \
/** gamma function of x; 16 lanes of double. Largest error 0.505 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, tgamma16, double16, double16, x)

/** gamma function of x; one float. Largest error 0.503 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_float1 lanemath_tgammaf1(lanemath_float1 x) LANEMATH_NAMED("tgammaf1");
/** gamma function of x; 2 lanes of float. Largest error 0.503 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_float2 lanemath_tgammaf2(lanemath_float2 x) LANEMATH_NAMED("tgammaf2");
/** gamma function of x; 3 lanes of float. Largest error 0.503 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_float3 lanemath_tgammaf3(lanemath_float3 x) LANEMATH_NAMED("tgammaf3");
/** gamma function of x; 4 lanes of float. Largest error 0.503 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
lanemath_float4 lanemath_tgammaf4(lanemath_float4 x) LANEMATH_NAMED("tgammaf4");
lanemath_border_float8 lanemath_call_tgammaf8(lanemath_border_float8) LANEMATH_NAMED("tgammaf8");
/** gamma function of x; 8 lanes of float. Largest error 0.503 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_tgammaf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_border, tgammaf8, float8, float8, x);
}
#define lanemath_tgammaf8(x) \
/** gamma function of x; 8 lanes of float. Largest error 0.503 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, tgammaf8, float8, float8, x)
lanemath_border_float16 lanemath_call_tgammaf16(lanemath_border_float16) LANEMATH_NAMED("tgammaf16");
/** gamma function of x; 16 lanes of float. Largest error 0.503 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_tgammaf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_border, tgammaf16, float16, float16, x);
}
#define lanemath_tgammaf16(x) \
/** gamma function of x; 16 lanes of float. Largest error 0.503 ulp. Domain and special values: at the head of
 * <lanemath/special.h>. */ \
  LANEMATH_UNARY(lanemath_border, tgammaf16, float16, float16, x)

LANEMATH_END

#endif
