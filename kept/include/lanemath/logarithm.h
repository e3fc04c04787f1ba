/* Logarithms.
 *
 * x >= 0 (log1p: x >= -1), NaN below. The logarithm of a zero is -infinity, that of +infinity is +infinity. A NaN
 * gives a quiet NaN. Method: a table of reciprocals and logarithms and a short polynomial (P. T. P. Tang, ACM TOMS
 * 16, 1990); logf, log2f and the native forms in single precision use a longer polynomial and no table.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_LOGARITHM_H
#define LANEMATH_LOGARITHM_H

#include <lanemath/types.h>

#pragma GCC system_header

LANEMATH_BEGIN

/** natural logarithm of x; one double. Largest error 1.6 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double1 lanemath_log1(lanemath_double1 x) LANEMATH_NAMED("log1");
/** natural logarithm of x; 2 lanes of double. Largest error 1.6 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double2 lanemath_log2(lanemath_double2 x) LANEMATH_NAMED("log2");
lanemath_border_double3 lanemath_call_log3(lanemath_border_double3) LANEMATH_NAMED("log3");
/** natural logarithm of x; 3 lanes of double. Largest error 1.6 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_log3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, log3, double3, double3, x);
}
#define lanemath_log3(x) \
/** natural logarithm of x; 3 lanes of double. Largest error 1.6 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_border, log3, double3, double3, x)
lanemath_wide_double4 lanemath_call_log4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log4");
/** natural logarithm of x; 4 lanes of double. Largest error 1.6 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_log4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, log4, double4, double4, x);
}
#define lanemath_log4(x) \
/** natural logarithm of x; 4 lanes of double. Largest error 1.6 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log4, double4, double4, x)
lanemath_wide_double8 lanemath_call_log8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log8");
/** natural logarithm of x; 8 lanes of double. Largest error 1.6 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_log8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, log8, double8, double8, x);
}
#define lanemath_log8(x) \
/** natural logarithm of x; 8 lanes of double. Largest error 1.6 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log8, double8, double8, x)
lanemath_wide_double16 lanemath_call_log16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log16");
/** natural logarithm of x; 16 lanes of double. Largest error 1.6 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_log16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, log16, double16, double16, x);
}
#define lanemath_log16(x) \
/** natural logarithm of x; 16 lanes of double. Largest error 1.6 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log16, double16, double16, x)

/** natural logarithm of x; one double. Largest error 5.5e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double1 lanemath_log1_native(lanemath_double1 x) LANEMATH_NAMED("log1_native");
/** natural logarithm of x; 2 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double2 lanemath_log2_native(lanemath_double2 x) LANEMATH_NAMED("log2_native");
lanemath_border_double3 lanemath_call_log3_native(lanemath_border_double3) LANEMATH_NAMED("log3_native");
/** natural logarithm of x; 3 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_log3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, log3_native, double3, double3, x);
}
#define lanemath_log3_native(x) \
/** natural logarithm of x; 3 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_border, log3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_log4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log4_native");
/** natural logarithm of x; 4 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_log4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, log4_native, double4, double4, x);
}
#define lanemath_log4_native(x) \
/** natural logarithm of x; 4 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_log8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log8_native");
/** natural logarithm of x; 8 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_log8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, log8_native, double8, double8, x);
}
#define lanemath_log8_native(x) \
/** natural logarithm of x; 8 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_log16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log16_native");
/** natural logarithm of x; 16 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_log16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, log16_native, double16, double16, x);
}
#define lanemath_log16_native(x) \
/** natural logarithm of x; 16 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log16_native, double16, double16, x)

/** natural logarithm of x; one float. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float1 lanemath_logf1(lanemath_float1 x) LANEMATH_NAMED("logf1");
/** natural logarithm of x; 2 lanes of float. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float2 lanemath_logf2(lanemath_float2 x) LANEMATH_NAMED("logf2");
/** natural logarithm of x; 3 lanes of float. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float3 lanemath_logf3(lanemath_float3 x) LANEMATH_NAMED("logf3");
/** natural logarithm of x; 4 lanes of float. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float4 lanemath_logf4(lanemath_float4 x) LANEMATH_NAMED("logf4");
lanemath_wide_float8 lanemath_call_logf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("logf8");
/** natural logarithm of x; 8 lanes of float. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_logf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, logf8, float8, float8, x);
}
#define lanemath_logf8(x) \
/** natural logarithm of x; 8 lanes of float. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, logf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_logf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("logf16");
/** natural logarithm of x; 16 lanes of float. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_logf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, logf16, float16, float16, x);
}
#define lanemath_logf16(x) \
/** natural logarithm of x; 16 lanes of float. Largest error 1.54 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, logf16, float16, float16, x)

/** natural logarithm of x; one float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float1 lanemath_logf1_native(lanemath_float1 x) LANEMATH_NAMED("logf1_native");
/** natural logarithm of x; 2 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float2 lanemath_logf2_native(lanemath_float2 x) LANEMATH_NAMED("logf2_native");
/** natural logarithm of x; 3 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float3 lanemath_logf3_native(lanemath_float3 x) LANEMATH_NAMED("logf3_native");
/** natural logarithm of x; 4 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float4 lanemath_logf4_native(lanemath_float4 x) LANEMATH_NAMED("logf4_native");
lanemath_wide_float8 lanemath_call_logf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("logf8_native");
/** natural logarithm of x; 8 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_logf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, logf8_native, float8, float8, x);
}
#define lanemath_logf8_native(x) \
/** natural logarithm of x; 8 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, logf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_logf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("logf16_native");
/** natural logarithm of x; 16 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_logf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, logf16_native, float16, float16, x);
}
#define lanemath_logf16_native(x) \
/** natural logarithm of x; 16 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, logf16_native, float16, float16, x)

/** natural logarithm of x; one float. Largest error 3.97 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float1 lanemath_logf1_half(lanemath_float1 x) LANEMATH_NAMED("logf1_half");
/** natural logarithm of x; 2 lanes of float. Largest error 3.97 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float2 lanemath_logf2_half(lanemath_float2 x) LANEMATH_NAMED("logf2_half");
/** natural logarithm of x; 3 lanes of float. Largest error 3.97 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float3 lanemath_logf3_half(lanemath_float3 x) LANEMATH_NAMED("logf3_half");
/** natural logarithm of x; 4 lanes of float. Largest error 3.97 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float4 lanemath_logf4_half(lanemath_float4 x) LANEMATH_NAMED("logf4_half");
lanemath_wide_float8 lanemath_call_logf8_half(lanemath_wide_float8) LANEMATH_NAMED_WIDE("logf8_half");
/** natural logarithm of x; 8 lanes of float. Largest error 3.97 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_logf8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, logf8_half, float8, float8, x);
}
#define lanemath_logf8_half(x) \
/** natural logarithm of x; 8 lanes of float. Largest error 3.97 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, logf8_half, float8, float8, x)
lanemath_wide_float16 lanemath_call_logf16_half(lanemath_wide_float16) LANEMATH_NAMED_WIDE("logf16_half");
/** natural logarithm of x; 16 lanes of float. Largest error 3.97 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_logf16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, logf16_half, float16, float16, x);
}
#define lanemath_logf16_half(x) \
/** natural logarithm of x; 16 lanes of float. Largest error 3.97 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, logf16_half, float16, float16, x)

/** natural logarithm of x; one float. The same function as the default form. Largest error 1.54 ulp. Domain and
 * special values: at the head of <lanemath/logarithm.h>. */
lanemath_float1 lanemath_logf1_rm(lanemath_float1 x) LANEMATH_NAMED("logf1_rm");
/** natural logarithm of x; 2 lanes of float. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/logarithm.h>. */
lanemath_float2 lanemath_logf2_rm(lanemath_float2 x) LANEMATH_NAMED("logf2_rm");
/** natural logarithm of x; 3 lanes of float. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/logarithm.h>. */
lanemath_float3 lanemath_logf3_rm(lanemath_float3 x) LANEMATH_NAMED("logf3_rm");
/** natural logarithm of x; 4 lanes of float. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/logarithm.h>. */
lanemath_float4 lanemath_logf4_rm(lanemath_float4 x) LANEMATH_NAMED("logf4_rm");
lanemath_wide_float8 lanemath_call_logf8_rm(lanemath_wide_float8) LANEMATH_NAMED_WIDE("logf8_rm");
/** natural logarithm of x; 8 lanes of float. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_logf8_rm(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, logf8_rm, float8, float8, x);
}
#define lanemath_logf8_rm(x) \
/** natural logarithm of x; 8 lanes of float. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, logf8_rm, float8, float8, x)
lanemath_wide_float16 lanemath_call_logf16_rm(lanemath_wide_float16) LANEMATH_NAMED_WIDE("logf16_rm");
/** natural logarithm of x; 16 lanes of float. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_logf16_rm(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, logf16_rm, float16, float16, x);
}
#define lanemath_logf16_rm(x) \
/** natural logarithm of x; 16 lanes of float. The same function as the default form. Largest error 1.54 ulp. Domain
 * and special values: at the head of <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, logf16_rm, float16, float16, x)

/** base-2 logarithm of x; one double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double1 lanemath_log21(lanemath_double1 x) LANEMATH_NAMED("log21");
/** base-2 logarithm of x; 2 lanes of double. An algorithm of its own: the last bits differ from those of other
 * widths. Largest error 2.08 ulp. Domain and special values: at the head of <lanemath/logarithm.h>. */
lanemath_double2 lanemath_log22(lanemath_double2 x) LANEMATH_NAMED("log22");
lanemath_border_double3 lanemath_call_log23(lanemath_border_double3) LANEMATH_NAMED("log23");
/** base-2 logarithm of x; 3 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_log23(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, log23, double3, double3, x);
}
#define lanemath_log23(x) \
/** base-2 logarithm of x; 3 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_border, log23, double3, double3, x)
lanemath_wide_double4 lanemath_call_log24(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log24");
/** base-2 logarithm of x; 4 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_log24(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, log24, double4, double4, x);
}
#define lanemath_log24(x) \
/** base-2 logarithm of x; 4 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log24, double4, double4, x)
lanemath_wide_double8 lanemath_call_log28(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log28");
/** base-2 logarithm of x; 8 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_log28(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, log28, double8, double8, x);
}
#define lanemath_log28(x) \
/** base-2 logarithm of x; 8 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log28, double8, double8, x)
lanemath_wide_double16 lanemath_call_log216(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log216");
/** base-2 logarithm of x; 16 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_log216(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, log216, double16, double16, x);
}
#define lanemath_log216(x) \
/** base-2 logarithm of x; 16 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log216, double16, double16, x)

/** base-2 logarithm of x; one double. Largest error 6.4e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double1 lanemath_log21_native(lanemath_double1 x) LANEMATH_NAMED("log21_native");
/** base-2 logarithm of x; 2 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double2 lanemath_log22_native(lanemath_double2 x) LANEMATH_NAMED("log22_native");
lanemath_border_double3 lanemath_call_log23_native(lanemath_border_double3) LANEMATH_NAMED("log23_native");
/** base-2 logarithm of x; 3 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_log23_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, log23_native, double3, double3, x);
}
#define lanemath_log23_native(x) \
/** base-2 logarithm of x; 3 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_border, log23_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_log24_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log24_native");
/** base-2 logarithm of x; 4 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_log24_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, log24_native, double4, double4, x);
}
#define lanemath_log24_native(x) \
/** base-2 logarithm of x; 4 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log24_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_log28_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log28_native");
/** base-2 logarithm of x; 8 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_log28_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, log28_native, double8, double8, x);
}
#define lanemath_log28_native(x) \
/** base-2 logarithm of x; 8 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log28_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_log216_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log216_native");
/** base-2 logarithm of x; 16 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_log216_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, log216_native, double16, double16, x);
}
#define lanemath_log216_native(x) \
/** base-2 logarithm of x; 16 lanes of double. Largest error 6.4e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log216_native, double16, double16, x)

/** base-2 logarithm of x; one float. Largest error 2.62 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float1 lanemath_log2f1(lanemath_float1 x) LANEMATH_NAMED("log2f1");
/** base-2 logarithm of x; 2 lanes of float. Largest error 2.62 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float2 lanemath_log2f2(lanemath_float2 x) LANEMATH_NAMED("log2f2");
/** base-2 logarithm of x; 3 lanes of float. Largest error 2.62 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float3 lanemath_log2f3(lanemath_float3 x) LANEMATH_NAMED("log2f3");
/** base-2 logarithm of x; 4 lanes of float. Largest error 2.62 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float4 lanemath_log2f4(lanemath_float4 x) LANEMATH_NAMED("log2f4");
lanemath_wide_float8 lanemath_call_log2f8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log2f8");
/** base-2 logarithm of x; 8 lanes of float. Largest error 2.62 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_log2f8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, log2f8, float8, float8, x);
}
#define lanemath_log2f8(x) \
/** base-2 logarithm of x; 8 lanes of float. Largest error 2.62 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log2f8, float8, float8, x)
lanemath_wide_float16 lanemath_call_log2f16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log2f16");
/** base-2 logarithm of x; 16 lanes of float. Largest error 2.62 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_log2f16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, log2f16, float16, float16, x);
}
#define lanemath_log2f16(x) \
/** base-2 logarithm of x; 16 lanes of float. Largest error 2.62 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log2f16, float16, float16, x)

/** base-2 logarithm of x; one float. Largest error 894 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float1 lanemath_log2f1_native(lanemath_float1 x) LANEMATH_NAMED("log2f1_native");
/** base-2 logarithm of x; 2 lanes of float. Largest error 894 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float2 lanemath_log2f2_native(lanemath_float2 x) LANEMATH_NAMED("log2f2_native");
/** base-2 logarithm of x; 3 lanes of float. Largest error 894 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float3 lanemath_log2f3_native(lanemath_float3 x) LANEMATH_NAMED("log2f3_native");
/** base-2 logarithm of x; 4 lanes of float. Largest error 894 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float4 lanemath_log2f4_native(lanemath_float4 x) LANEMATH_NAMED("log2f4_native");
lanemath_wide_float8 lanemath_call_log2f8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log2f8_native");
/** base-2 logarithm of x; 8 lanes of float. Largest error 894 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_log2f8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, log2f8_native, float8, float8, x);
}
#define lanemath_log2f8_native(x) \
/** base-2 logarithm of x; 8 lanes of float. Largest error 894 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log2f8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_log2f16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log2f16_native");
/** base-2 logarithm of x; 16 lanes of float. Largest error 894 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_log2f16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, log2f16_native, float16, float16, x);
}
#define lanemath_log2f16_native(x) \
/** base-2 logarithm of x; 16 lanes of float. Largest error 894 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log2f16_native, float16, float16, x)

/** base-2 logarithm of x; one float. The same function as _native. Largest error 894 ulp. Domain and special values:
 * at the head of <lanemath/logarithm.h>. */
lanemath_float1 lanemath_log2f1_half(lanemath_float1 x) LANEMATH_NAMED("log2f1_half");
/** base-2 logarithm of x; 2 lanes of float. The same function as _native. Largest error 894 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */
lanemath_float2 lanemath_log2f2_half(lanemath_float2 x) LANEMATH_NAMED("log2f2_half");
/** base-2 logarithm of x; 3 lanes of float. The same function as _native. Largest error 894 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */
lanemath_float3 lanemath_log2f3_half(lanemath_float3 x) LANEMATH_NAMED("log2f3_half");
/** base-2 logarithm of x; 4 lanes of float. The same function as _native. Largest error 894 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */
lanemath_float4 lanemath_log2f4_half(lanemath_float4 x) LANEMATH_NAMED("log2f4_half");
lanemath_wide_float8 lanemath_call_log2f8_half(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log2f8_half");
/** base-2 logarithm of x; 8 lanes of float. The same function as _native. Largest error 894 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_log2f8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, log2f8_half, float8, float8, x);
}
#define lanemath_log2f8_half(x) \
/** base-2 logarithm of x; 8 lanes of float. The same function as _native. Largest error 894 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log2f8_half, float8, float8, x)
lanemath_wide_float16 lanemath_call_log2f16_half(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log2f16_half");
/** base-2 logarithm of x; 16 lanes of float. The same function as _native. Largest error 894 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_log2f16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, log2f16_half, float16, float16, x);
}
#define lanemath_log2f16_half(x) \
/** base-2 logarithm of x; 16 lanes of float. The same function as _native. Largest error 894 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log2f16_half, float16, float16, x)

/** base-2 logarithm of x; one float. The same function as the default form. Largest error 2.62 ulp. Domain and
 * special values: at the head of <lanemath/logarithm.h>. */
lanemath_float1 lanemath_log2f1_rm(lanemath_float1 x) LANEMATH_NAMED("log2f1_rm");
/** base-2 logarithm of x; 2 lanes of float. The same function as the default form. Largest error 2.62 ulp. Domain and
 * special values: at the head of <lanemath/logarithm.h>. */
lanemath_float2 lanemath_log2f2_rm(lanemath_float2 x) LANEMATH_NAMED("log2f2_rm");
/** base-2 logarithm of x; 3 lanes of float. The same function as the default form. Largest error 2.62 ulp. Domain and
 * special values: at the head of <lanemath/logarithm.h>. */
lanemath_float3 lanemath_log2f3_rm(lanemath_float3 x) LANEMATH_NAMED("log2f3_rm");
/** base-2 logarithm of x; 4 lanes of float. The same function as the default form. Largest error 2.62 ulp. Domain and
 * special values: at the head of <lanemath/logarithm.h>. */
lanemath_float4 lanemath_log2f4_rm(lanemath_float4 x) LANEMATH_NAMED("log2f4_rm");
lanemath_wide_float8 lanemath_call_log2f8_rm(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log2f8_rm");
/** base-2 logarithm of x; 8 lanes of float. The same function as the default form. Largest error 2.62 ulp. Domain and
 * special values: at the head of <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_log2f8_rm(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, log2f8_rm, float8, float8, x);
}
#define lanemath_log2f8_rm(x) \
/** base-2 logarithm of x; 8 lanes of float. The same function as the default form. Largest error 2.62 ulp. Domain and
 * special values: at the head of <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log2f8_rm, float8, float8, x)
lanemath_wide_float16 lanemath_call_log2f16_rm(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log2f16_rm");
/** base-2 logarithm of x; 16 lanes of float. The same function as the default form. Largest error 2.62 ulp. Domain
 * and special values: at the head of <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_log2f16_rm(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, log2f16_rm, float16, float16, x);
}
#define lanemath_log2f16_rm(x) \
/** base-2 logarithm of x; 16 lanes of float. The same function as the default form. Largest error 2.62 ulp. Domain
 * and special values: at the head of <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log2f16_rm, float16, float16, x)

/** base-10 logarithm of x; one double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double1 lanemath_log101(lanemath_double1 x) LANEMATH_NAMED("log101");
/** base-10 logarithm of x; 2 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double2 lanemath_log102(lanemath_double2 x) LANEMATH_NAMED("log102");
lanemath_border_double3 lanemath_call_log103(lanemath_border_double3) LANEMATH_NAMED("log103");
/** base-10 logarithm of x; 3 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_log103(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, log103, double3, double3, x);
}
#define lanemath_log103(x) \
/** base-10 logarithm of x; 3 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_border, log103, double3, double3, x)
lanemath_wide_double4 lanemath_call_log104(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log104");
/** base-10 logarithm of x; 4 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_log104(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, log104, double4, double4, x);
}
#define lanemath_log104(x) \
/** base-10 logarithm of x; 4 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log104, double4, double4, x)
lanemath_wide_double8 lanemath_call_log108(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log108");
/** base-10 logarithm of x; 8 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_log108(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, log108, double8, double8, x);
}
#define lanemath_log108(x) \
/** base-10 logarithm of x; 8 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log108, double8, double8, x)
lanemath_wide_double16 lanemath_call_log1016(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log1016");
/** base-10 logarithm of x; 16 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_log1016(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, log1016, double16, double16, x);
}
#define lanemath_log1016(x) \
/** base-10 logarithm of x; 16 lanes of double. Largest error 2.1 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log1016, double16, double16, x)

/** base-10 logarithm of x; one double. Largest error 7.7e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double1 lanemath_log101_native(lanemath_double1 x) LANEMATH_NAMED("log101_native");
/** base-10 logarithm of x; 2 lanes of double. Largest error 7.7e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double2 lanemath_log102_native(lanemath_double2 x) LANEMATH_NAMED("log102_native");
lanemath_border_double3 lanemath_call_log103_native(lanemath_border_double3) LANEMATH_NAMED("log103_native");
/** base-10 logarithm of x; 3 lanes of double. Largest error 7.7e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_log103_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, log103_native, double3, double3, x);
}
#define lanemath_log103_native(x) \
/** base-10 logarithm of x; 3 lanes of double. Largest error 7.7e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_border, log103_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_log104_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log104_native");
/** base-10 logarithm of x; 4 lanes of double. Largest error 7.7e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_log104_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, log104_native, double4, double4, x);
}
#define lanemath_log104_native(x) \
/** base-10 logarithm of x; 4 lanes of double. Largest error 7.7e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log104_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_log108_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log108_native");
/** base-10 logarithm of x; 8 lanes of double. Largest error 7.7e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_log108_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, log108_native, double8, double8, x);
}
#define lanemath_log108_native(x) \
/** base-10 logarithm of x; 8 lanes of double. Largest error 7.7e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log108_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_log1016_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log1016_native");
/** base-10 logarithm of x; 16 lanes of double. Largest error 7.7e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_log1016_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, log1016_native, double16, double16, x);
}
#define lanemath_log1016_native(x) \
/** base-10 logarithm of x; 16 lanes of double. Largest error 7.7e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log1016_native, double16, double16, x)

/** base-10 logarithm of x; one float. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float1 lanemath_log10f1(lanemath_float1 x) LANEMATH_NAMED("log10f1");
/** base-10 logarithm of x; 2 lanes of float. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float2 lanemath_log10f2(lanemath_float2 x) LANEMATH_NAMED("log10f2");
/** base-10 logarithm of x; 3 lanes of float. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float3 lanemath_log10f3(lanemath_float3 x) LANEMATH_NAMED("log10f3");
/** base-10 logarithm of x; 4 lanes of float. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float4 lanemath_log10f4(lanemath_float4 x) LANEMATH_NAMED("log10f4");
lanemath_wide_float8 lanemath_call_log10f8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log10f8");
/** base-10 logarithm of x; 8 lanes of float. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_log10f8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, log10f8, float8, float8, x);
}
#define lanemath_log10f8(x) \
/** base-10 logarithm of x; 8 lanes of float. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log10f8, float8, float8, x)
lanemath_wide_float16 lanemath_call_log10f16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log10f16");
/** base-10 logarithm of x; 16 lanes of float. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_log10f16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, log10f16, float16, float16, x);
}
#define lanemath_log10f16(x) \
/** base-10 logarithm of x; 16 lanes of float. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log10f16, float16, float16, x)

/** base-10 logarithm of x; one float. Largest error 996 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float1 lanemath_log10f1_native(lanemath_float1 x) LANEMATH_NAMED("log10f1_native");
/** base-10 logarithm of x; 2 lanes of float. Largest error 996 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float2 lanemath_log10f2_native(lanemath_float2 x) LANEMATH_NAMED("log10f2_native");
/** base-10 logarithm of x; 3 lanes of float. Largest error 996 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float3 lanemath_log10f3_native(lanemath_float3 x) LANEMATH_NAMED("log10f3_native");
/** base-10 logarithm of x; 4 lanes of float. Largest error 996 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float4 lanemath_log10f4_native(lanemath_float4 x) LANEMATH_NAMED("log10f4_native");
lanemath_wide_float8 lanemath_call_log10f8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log10f8_native");
/** base-10 logarithm of x; 8 lanes of float. Largest error 996 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_log10f8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, log10f8_native, float8, float8, x);
}
#define lanemath_log10f8_native(x) \
/** base-10 logarithm of x; 8 lanes of float. Largest error 996 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log10f8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_log10f16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log10f16_native");
/** base-10 logarithm of x; 16 lanes of float. Largest error 996 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_log10f16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, log10f16_native, float16, float16, x);
}
#define lanemath_log10f16_native(x) \
/** base-10 logarithm of x; 16 lanes of float. Largest error 996 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log10f16_native, float16, float16, x)

/** base-10 logarithm of x; one float. The same function as _native. Largest error 996 ulp. Domain and special values:
 * at the head of <lanemath/logarithm.h>. */
lanemath_float1 lanemath_log10f1_half(lanemath_float1 x) LANEMATH_NAMED("log10f1_half");
/** base-10 logarithm of x; 2 lanes of float. The same function as _native. Largest error 996 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */
lanemath_float2 lanemath_log10f2_half(lanemath_float2 x) LANEMATH_NAMED("log10f2_half");
/** base-10 logarithm of x; 3 lanes of float. The same function as _native. Largest error 996 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */
lanemath_float3 lanemath_log10f3_half(lanemath_float3 x) LANEMATH_NAMED("log10f3_half");
/** base-10 logarithm of x; 4 lanes of float. The same function as _native. Largest error 996 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */
lanemath_float4 lanemath_log10f4_half(lanemath_float4 x) LANEMATH_NAMED("log10f4_half");
lanemath_wide_float8 lanemath_call_log10f8_half(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log10f8_half");
/** base-10 logarithm of x; 8 lanes of float. The same function as _native. Largest error 996 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_log10f8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, log10f8_half, float8, float8, x);
}
#define lanemath_log10f8_half(x) \
/** base-10 logarithm of x; 8 lanes of float. The same function as _native. Largest error 996 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log10f8_half, float8, float8, x)
lanemath_wide_float16 lanemath_call_log10f16_half(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log10f16_half");
/** base-10 logarithm of x; 16 lanes of float. The same function as _native. Largest error 996 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_log10f16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, log10f16_half, float16, float16, x);
}
#define lanemath_log10f16_half(x) \
/** base-10 logarithm of x; 16 lanes of float. The same function as _native. Largest error 996 ulp. Domain and special
 * values: at the head of <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log10f16_half, float16, float16, x)

/** natural logarithm of 1 + x; one double. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double1 lanemath_log1p1(lanemath_double1 x) LANEMATH_NAMED("log1p1");
/** natural logarithm of 1 + x; 2 lanes of double. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double2 lanemath_log1p2(lanemath_double2 x) LANEMATH_NAMED("log1p2");
lanemath_border_double3 lanemath_call_log1p3(lanemath_border_double3) LANEMATH_NAMED("log1p3");
/** natural logarithm of 1 + x; 3 lanes of double. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_log1p3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, log1p3, double3, double3, x);
}
#define lanemath_log1p3(x) \
/** natural logarithm of 1 + x; 3 lanes of double. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_border, log1p3, double3, double3, x)
lanemath_wide_double4 lanemath_call_log1p4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log1p4");
/** natural logarithm of 1 + x; 4 lanes of double. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_log1p4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, log1p4, double4, double4, x);
}
#define lanemath_log1p4(x) \
/** natural logarithm of 1 + x; 4 lanes of double. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log1p4, double4, double4, x)
lanemath_wide_double8 lanemath_call_log1p8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log1p8");
/** natural logarithm of 1 + x; 8 lanes of double. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_log1p8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, log1p8, double8, double8, x);
}
#define lanemath_log1p8(x) \
/** natural logarithm of 1 + x; 8 lanes of double. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log1p8, double8, double8, x)
lanemath_wide_double16 lanemath_call_log1p16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log1p16");
/** natural logarithm of 1 + x; 16 lanes of double. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_log1p16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, log1p16, double16, double16, x);
}
#define lanemath_log1p16(x) \
/** natural logarithm of 1 + x; 16 lanes of double. Largest error 0.8 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log1p16, double16, double16, x)

/** natural logarithm of 1 + x; one double. Largest error 5.5e+06 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_double1 lanemath_log1p1_native(lanemath_double1 x) LANEMATH_NAMED("log1p1_native");
/** natural logarithm of 1 + x; 2 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head
 * of <lanemath/logarithm.h>. */
lanemath_double2 lanemath_log1p2_native(lanemath_double2 x) LANEMATH_NAMED("log1p2_native");
lanemath_border_double3 lanemath_call_log1p3_native(lanemath_border_double3) LANEMATH_NAMED("log1p3_native");
/** natural logarithm of 1 + x; 3 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head
 * of <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_log1p3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, log1p3_native, double3, double3, x);
}
#define lanemath_log1p3_native(x) \
/** natural logarithm of 1 + x; 3 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head
 * of <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_border, log1p3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_log1p4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("log1p4_native");
/** natural logarithm of 1 + x; 4 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head
 * of <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_log1p4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, log1p4_native, double4, double4, x);
}
#define lanemath_log1p4_native(x) \
/** natural logarithm of 1 + x; 4 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head
 * of <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log1p4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_log1p8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("log1p8_native");
/** natural logarithm of 1 + x; 8 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head
 * of <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_log1p8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, log1p8_native, double8, double8, x);
}
#define lanemath_log1p8_native(x) \
/** natural logarithm of 1 + x; 8 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head
 * of <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log1p8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_log1p16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("log1p16_native");
/** natural logarithm of 1 + x; 16 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head
 * of <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_log1p16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, log1p16_native, double16, double16, x);
}
#define lanemath_log1p16_native(x) \
/** natural logarithm of 1 + x; 16 lanes of double. Largest error 5.5e+06 ulp. Domain and special values: at the head
 * of <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log1p16_native, double16, double16, x)

/** natural logarithm of 1 + x; one float. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float1 lanemath_log1pf1(lanemath_float1 x) LANEMATH_NAMED("log1pf1");
/** natural logarithm of 1 + x; 2 lanes of float. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float2 lanemath_log1pf2(lanemath_float2 x) LANEMATH_NAMED("log1pf2");
/** natural logarithm of 1 + x; 3 lanes of float. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float3 lanemath_log1pf3(lanemath_float3 x) LANEMATH_NAMED("log1pf3");
/** natural logarithm of 1 + x; 4 lanes of float. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float4 lanemath_log1pf4(lanemath_float4 x) LANEMATH_NAMED("log1pf4");
lanemath_wide_float8 lanemath_call_log1pf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log1pf8");
/** natural logarithm of 1 + x; 8 lanes of float. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_log1pf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, log1pf8, float8, float8, x);
}
#define lanemath_log1pf8(x) \
/** natural logarithm of 1 + x; 8 lanes of float. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log1pf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_log1pf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log1pf16");
/** natural logarithm of 1 + x; 16 lanes of float. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_log1pf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, log1pf16, float16, float16, x);
}
#define lanemath_log1pf16(x) \
/** natural logarithm of 1 + x; 16 lanes of float. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log1pf16, float16, float16, x)

/** natural logarithm of 1 + x; one float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float1 lanemath_log1pf1_native(lanemath_float1 x) LANEMATH_NAMED("log1pf1_native");
/** natural logarithm of 1 + x; 2 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float2 lanemath_log1pf2_native(lanemath_float2 x) LANEMATH_NAMED("log1pf2_native");
/** natural logarithm of 1 + x; 3 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float3 lanemath_log1pf3_native(lanemath_float3 x) LANEMATH_NAMED("log1pf3_native");
/** natural logarithm of 1 + x; 4 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
lanemath_float4 lanemath_log1pf4_native(lanemath_float4 x) LANEMATH_NAMED("log1pf4_native");
lanemath_wide_float8 lanemath_call_log1pf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("log1pf8_native");
/** natural logarithm of 1 + x; 8 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_log1pf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, log1pf8_native, float8, float8, x);
}
#define lanemath_log1pf8_native(x) \
/** natural logarithm of 1 + x; 8 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log1pf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_log1pf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("log1pf16_native");
/** natural logarithm of 1 + x; 16 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_log1pf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, log1pf16_native, float16, float16, x);
}
#define lanemath_log1pf16_native(x) \
/** natural logarithm of 1 + x; 16 lanes of float. Largest error 1570 ulp. Domain and special values: at the head of
 * <lanemath/logarithm.h>. */ \
  LANEMATH_UNARY(lanemath_wide, log1pf16_native, float16, float16, x)

LANEMATH_END

#endif
