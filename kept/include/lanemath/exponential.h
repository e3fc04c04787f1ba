/* Exponentials.
 *
 * Any x. The result overflows to +infinity and underflows through the denormals to +0. x = +infinity gives
 * +infinity, -infinity gives +0 (expm1: -1), and a zero gives 1 (expm1: the zero itself). A NaN gives a quiet NaN
 * with its sign and payload, but exp2f at width 4 returns a signalling NaN unchanged, and exp2 at width 2 gives one
 * NaN for all. Method: reduction by multiples of ln 2 / 2^k with the logarithm in two parts, in most default forms a
 * table of 2^(j/2^k), and a short polynomial (P. T. P. Tang, ACM TOMS 15, 1989). The native forms use a shorter
 * polynomial, and a table only in exp and expm1; those of exp2 and exp10 are not exact at integers.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_EXPONENTIAL_H
#define LANEMATH_EXPONENTIAL_H

#include <lanemath/types.h>

#pragma GCC system_header

LANEMATH_BEGIN

/** e to the power x; one double. Largest error 3.18 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_double1 lanemath_exp1(lanemath_double1 x) LANEMATH_NAMED("exp1");
/** e to the power x; 2 lanes of double. An algorithm of its own: the last bits differ from those of other widths.
 * Largest error 2.98 ulp. Domain and special values: at the head of <lanemath/exponential.h>. */
lanemath_double2 lanemath_exp2(lanemath_double2 x) LANEMATH_NAMED("exp2");
lanemath_border_double3 lanemath_call_exp3(lanemath_border_double3) LANEMATH_NAMED("exp3");
/** e to the power x; 3 lanes of double. Largest error 3.18 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_exp3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, exp3, double3, double3, x);
}
#define lanemath_exp3(x) \
/** e to the power x; 3 lanes of double. Largest error 3.18 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_border, exp3, double3, double3, x)
lanemath_wide_double4 lanemath_call_exp4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("exp4");
/** e to the power x; 4 lanes of double. Largest error 3.18 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_exp4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, exp4, double4, double4, x);
}
#define lanemath_exp4(x) \
/** e to the power x; 4 lanes of double. Largest error 3.18 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp4, double4, double4, x)
lanemath_wide_double8 lanemath_call_exp8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("exp8");
/** e to the power x; 8 lanes of double. Largest error 3.18 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_exp8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp8, double8, double8, x);
}
#define lanemath_exp8(x) \
/** e to the power x; 8 lanes of double. Largest error 3.18 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp8, double8, double8, x)
lanemath_wide_double16 lanemath_call_exp16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("exp16");
/** e to the power x; 16 lanes of double. Largest error 3.18 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_exp16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp16, double16, double16, x);
}
#define lanemath_exp16(x) \
/** e to the power x; 16 lanes of double. Largest error 3.18 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp16, double16, double16, x)

/** e to the power x; one double. Largest error 2.98e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_double1 lanemath_exp1_native(lanemath_double1 x) LANEMATH_NAMED("exp1_native");
/** e to the power x; 2 lanes of double. Largest error 2.98e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_double2 lanemath_exp2_native(lanemath_double2 x) LANEMATH_NAMED("exp2_native");
lanemath_border_double3 lanemath_call_exp3_native(lanemath_border_double3) LANEMATH_NAMED("exp3_native");
/** e to the power x; 3 lanes of double. Largest error 2.98e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_exp3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, exp3_native, double3, double3, x);
}
#define lanemath_exp3_native(x) \
/** e to the power x; 3 lanes of double. Largest error 2.98e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_border, exp3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_exp4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("exp4_native");
/** e to the power x; 4 lanes of double. Largest error 2.98e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_exp4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, exp4_native, double4, double4, x);
}
#define lanemath_exp4_native(x) \
/** e to the power x; 4 lanes of double. Largest error 2.98e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_exp8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("exp8_native");
/** e to the power x; 8 lanes of double. Largest error 2.98e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_exp8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp8_native, double8, double8, x);
}
#define lanemath_exp8_native(x) \
/** e to the power x; 8 lanes of double. Largest error 2.98e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_exp16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("exp16_native");
/** e to the power x; 16 lanes of double. Largest error 2.98e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_exp16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp16_native, double16, double16, x);
}
#define lanemath_exp16_native(x) \
/** e to the power x; 16 lanes of double. Largest error 2.98e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp16_native, double16, double16, x)

/** e to the power x; one float. Largest error 0.569 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float1 lanemath_expf1(lanemath_float1 x) LANEMATH_NAMED("expf1");
/** e to the power x; 2 lanes of float. Largest error 0.569 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float2 lanemath_expf2(lanemath_float2 x) LANEMATH_NAMED("expf2");
/** e to the power x; 3 lanes of float. Largest error 0.569 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float3 lanemath_expf3(lanemath_float3 x) LANEMATH_NAMED("expf3");
/** e to the power x; 4 lanes of float. Largest error 0.569 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float4 lanemath_expf4(lanemath_float4 x) LANEMATH_NAMED("expf4");
lanemath_wide_float8 lanemath_call_expf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("expf8");
/** e to the power x; 8 lanes of float. Largest error 0.569 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_expf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, expf8, float8, float8, x);
}
#define lanemath_expf8(x) \
/** e to the power x; 8 lanes of float. Largest error 0.569 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_expf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("expf16");
/** e to the power x; 16 lanes of float. Largest error 0.569 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_expf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, expf16, float16, float16, x);
}
#define lanemath_expf16(x) \
/** e to the power x; 16 lanes of float. Largest error 0.569 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expf16, float16, float16, x)

/** e to the power x; one float. Largest error 2170 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float1 lanemath_expf1_native(lanemath_float1 x) LANEMATH_NAMED("expf1_native");
/** e to the power x; 2 lanes of float. Largest error 2170 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float2 lanemath_expf2_native(lanemath_float2 x) LANEMATH_NAMED("expf2_native");
/** e to the power x; 3 lanes of float. Largest error 2170 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float3 lanemath_expf3_native(lanemath_float3 x) LANEMATH_NAMED("expf3_native");
/** e to the power x; 4 lanes of float. Largest error 2170 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float4 lanemath_expf4_native(lanemath_float4 x) LANEMATH_NAMED("expf4_native");
lanemath_wide_float8 lanemath_call_expf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("expf8_native");
/** e to the power x; 8 lanes of float. Largest error 2170 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_expf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, expf8_native, float8, float8, x);
}
#define lanemath_expf8_native(x) \
/** e to the power x; 8 lanes of float. Largest error 2170 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_expf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("expf16_native");
/** e to the power x; 16 lanes of float. Largest error 2170 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_expf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, expf16_native, float16, float16, x);
}
#define lanemath_expf16_native(x) \
/** e to the power x; 16 lanes of float. Largest error 2170 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expf16_native, float16, float16, x)

/** e to the power x; one float. The same function as _native. Largest error 2170 ulp. Domain and special values: at
 * the head of <lanemath/exponential.h>. */
lanemath_float1 lanemath_expf1_half(lanemath_float1 x) LANEMATH_NAMED("expf1_half");
/** e to the power x; 2 lanes of float. The same function as _native. Largest error 2170 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
lanemath_float2 lanemath_expf2_half(lanemath_float2 x) LANEMATH_NAMED("expf2_half");
/** e to the power x; 3 lanes of float. The same function as _native. Largest error 2170 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
lanemath_float3 lanemath_expf3_half(lanemath_float3 x) LANEMATH_NAMED("expf3_half");
/** e to the power x; 4 lanes of float. The same function as _native. Largest error 2170 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
lanemath_float4 lanemath_expf4_half(lanemath_float4 x) LANEMATH_NAMED("expf4_half");
lanemath_wide_float8 lanemath_call_expf8_half(lanemath_wide_float8) LANEMATH_NAMED_WIDE("expf8_half");
/** e to the power x; 8 lanes of float. The same function as _native. Largest error 2170 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_expf8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, expf8_half, float8, float8, x);
}
#define lanemath_expf8_half(x) \
/** e to the power x; 8 lanes of float. The same function as _native. Largest error 2170 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expf8_half, float8, float8, x)
lanemath_wide_float16 lanemath_call_expf16_half(lanemath_wide_float16) LANEMATH_NAMED_WIDE("expf16_half");
/** e to the power x; 16 lanes of float. The same function as _native. Largest error 2170 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_expf16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, expf16_half, float16, float16, x);
}
#define lanemath_expf16_half(x) \
/** e to the power x; 16 lanes of float. The same function as _native. Largest error 2170 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expf16_half, float16, float16, x)

/** e to the power x; one float. Largest error 2.94 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float1 lanemath_expf1_rm(lanemath_float1 x) LANEMATH_NAMED("expf1_rm");
/** e to the power x; 2 lanes of float. Largest error 2.94 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float2 lanemath_expf2_rm(lanemath_float2 x) LANEMATH_NAMED("expf2_rm");
/** e to the power x; 3 lanes of float. Largest error 2.94 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float3 lanemath_expf3_rm(lanemath_float3 x) LANEMATH_NAMED("expf3_rm");
/** e to the power x; 4 lanes of float. Largest error 2.94 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float4 lanemath_expf4_rm(lanemath_float4 x) LANEMATH_NAMED("expf4_rm");
lanemath_wide_float8 lanemath_call_expf8_rm(lanemath_wide_float8) LANEMATH_NAMED_WIDE("expf8_rm");
/** e to the power x; 8 lanes of float. Largest error 2.94 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_expf8_rm(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, expf8_rm, float8, float8, x);
}
#define lanemath_expf8_rm(x) \
/** e to the power x; 8 lanes of float. Largest error 2.94 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expf8_rm, float8, float8, x)
lanemath_wide_float16 lanemath_call_expf16_rm(lanemath_wide_float16) LANEMATH_NAMED_WIDE("expf16_rm");
/** e to the power x; 16 lanes of float. Largest error 2.94 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_expf16_rm(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, expf16_rm, float16, float16, x);
}
#define lanemath_expf16_rm(x) \
/** e to the power x; 16 lanes of float. Largest error 2.94 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expf16_rm, float16, float16, x)

/** 2 to the power x; one double. Largest error 1.65 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_double1 lanemath_exp21(lanemath_double1 x) LANEMATH_NAMED("exp21");
/** 2 to the power x; 2 lanes of double. An algorithm of its own: the last bits differ from those of other widths.
 * Largest error 2.62 ulp. Domain and special values: at the head of <lanemath/exponential.h>. */
lanemath_double2 lanemath_exp22(lanemath_double2 x) LANEMATH_NAMED("exp22");
lanemath_border_double3 lanemath_call_exp23(lanemath_border_double3) LANEMATH_NAMED("exp23");
/** 2 to the power x; 3 lanes of double. Largest error 1.65 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_exp23(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, exp23, double3, double3, x);
}
#define lanemath_exp23(x) \
/** 2 to the power x; 3 lanes of double. Largest error 1.65 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_border, exp23, double3, double3, x)
lanemath_wide_double4 lanemath_call_exp24(lanemath_wide_double4) LANEMATH_NAMED_WIDE("exp24");
/** 2 to the power x; 4 lanes of double. Largest error 1.65 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_exp24(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, exp24, double4, double4, x);
}
#define lanemath_exp24(x) \
/** 2 to the power x; 4 lanes of double. Largest error 1.65 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp24, double4, double4, x)
lanemath_wide_double8 lanemath_call_exp28(lanemath_wide_double8) LANEMATH_NAMED_WIDE("exp28");
/** 2 to the power x; 8 lanes of double. Largest error 1.65 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_exp28(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp28, double8, double8, x);
}
#define lanemath_exp28(x) \
/** 2 to the power x; 8 lanes of double. Largest error 1.65 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp28, double8, double8, x)
lanemath_wide_double16 lanemath_call_exp216(lanemath_wide_double16) LANEMATH_NAMED_WIDE("exp216");
/** 2 to the power x; 16 lanes of double. Largest error 1.65 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_exp216(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp216, double16, double16, x);
}
#define lanemath_exp216(x) \
/** 2 to the power x; 16 lanes of double. Largest error 1.65 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp216, double16, double16, x)

/** 2 to the power x; one double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_double1 lanemath_exp21_native(lanemath_double1 x) LANEMATH_NAMED("exp21_native");
/** 2 to the power x; 2 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_double2 lanemath_exp22_native(lanemath_double2 x) LANEMATH_NAMED("exp22_native");
lanemath_border_double3 lanemath_call_exp23_native(lanemath_border_double3) LANEMATH_NAMED("exp23_native");
/** 2 to the power x; 3 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_exp23_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, exp23_native, double3, double3, x);
}
#define lanemath_exp23_native(x) \
/** 2 to the power x; 3 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_border, exp23_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_exp24_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("exp24_native");
/** 2 to the power x; 4 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_exp24_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, exp24_native, double4, double4, x);
}
#define lanemath_exp24_native(x) \
/** 2 to the power x; 4 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp24_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_exp28_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("exp28_native");
/** 2 to the power x; 8 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_exp28_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp28_native, double8, double8, x);
}
#define lanemath_exp28_native(x) \
/** 2 to the power x; 8 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp28_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_exp216_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("exp216_native");
/** 2 to the power x; 16 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_exp216_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp216_native, double16, double16, x);
}
#define lanemath_exp216_native(x) \
/** 2 to the power x; 16 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp216_native, double16, double16, x)

/** 2 to the power x; one float. An algorithm of its own: the last bits differ from those of other widths. Largest
 * error 0.507 ulp. Domain and special values: at the head of <lanemath/exponential.h>. */
lanemath_float1 lanemath_exp2f1(lanemath_float1 x) LANEMATH_NAMED("exp2f1");
/** 2 to the power x; 2 lanes of float. The same function as _rm. Largest error 1.11 ulp. Domain and special values:
 * at the head of <lanemath/exponential.h>. */
lanemath_float2 lanemath_exp2f2(lanemath_float2 x) LANEMATH_NAMED("exp2f2");
/** 2 to the power x; 3 lanes of float. The same function as _rm. Largest error 1.11 ulp. Domain and special values:
 * at the head of <lanemath/exponential.h>. */
lanemath_float3 lanemath_exp2f3(lanemath_float3 x) LANEMATH_NAMED("exp2f3");
/** 2 to the power x; 4 lanes of float. An algorithm of its own: the last bits differ from those of other widths.
 * Largest error 2.56 ulp. Domain and special values: at the head of <lanemath/exponential.h>. */
lanemath_float4 lanemath_exp2f4(lanemath_float4 x) LANEMATH_NAMED("exp2f4");
lanemath_wide_float8 lanemath_call_exp2f8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp2f8");
/** 2 to the power x; 8 lanes of float. The same function as _rm. Largest error 1.11 ulp. Domain and special values:
 * at the head of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_exp2f8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp2f8, float8, float8, x);
}
#define lanemath_exp2f8(x) \
/** 2 to the power x; 8 lanes of float. The same function as _rm. Largest error 1.11 ulp. Domain and special values:
 * at the head of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp2f8, float8, float8, x)
lanemath_wide_float16 lanemath_call_exp2f16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp2f16");
/** 2 to the power x; 16 lanes of float. The same function as _rm. Largest error 1.11 ulp. Domain and special values:
 * at the head of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_exp2f16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp2f16, float16, float16, x);
}
#define lanemath_exp2f16(x) \
/** 2 to the power x; 16 lanes of float. The same function as _rm. Largest error 1.11 ulp. Domain and special values:
 * at the head of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp2f16, float16, float16, x)

/** 2 to the power x; one float. Largest error 1240 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float1 lanemath_exp2f1_native(lanemath_float1 x) LANEMATH_NAMED("exp2f1_native");
/** 2 to the power x; 2 lanes of float. Largest error 1240 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float2 lanemath_exp2f2_native(lanemath_float2 x) LANEMATH_NAMED("exp2f2_native");
/** 2 to the power x; 3 lanes of float. Largest error 1240 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float3 lanemath_exp2f3_native(lanemath_float3 x) LANEMATH_NAMED("exp2f3_native");
/** 2 to the power x; 4 lanes of float. Largest error 1240 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float4 lanemath_exp2f4_native(lanemath_float4 x) LANEMATH_NAMED("exp2f4_native");
lanemath_wide_float8 lanemath_call_exp2f8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp2f8_native");
/** 2 to the power x; 8 lanes of float. Largest error 1240 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_exp2f8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp2f8_native, float8, float8, x);
}
#define lanemath_exp2f8_native(x) \
/** 2 to the power x; 8 lanes of float. Largest error 1240 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp2f8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_exp2f16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp2f16_native");
/** 2 to the power x; 16 lanes of float. Largest error 1240 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_exp2f16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp2f16_native, float16, float16, x);
}
#define lanemath_exp2f16_native(x) \
/** 2 to the power x; 16 lanes of float. Largest error 1240 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp2f16_native, float16, float16, x)

/** 2 to the power x; one float. The same function as _native. Largest error 1240 ulp. Domain and special values: at
 * the head of <lanemath/exponential.h>. */
lanemath_float1 lanemath_exp2f1_half(lanemath_float1 x) LANEMATH_NAMED("exp2f1_half");
/** 2 to the power x; 2 lanes of float. The same function as _native. Largest error 1240 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
lanemath_float2 lanemath_exp2f2_half(lanemath_float2 x) LANEMATH_NAMED("exp2f2_half");
/** 2 to the power x; 3 lanes of float. The same function as _native. Largest error 1240 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
lanemath_float3 lanemath_exp2f3_half(lanemath_float3 x) LANEMATH_NAMED("exp2f3_half");
/** 2 to the power x; 4 lanes of float. The same function as _native. Largest error 1240 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
lanemath_float4 lanemath_exp2f4_half(lanemath_float4 x) LANEMATH_NAMED("exp2f4_half");
lanemath_wide_float8 lanemath_call_exp2f8_half(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp2f8_half");
/** 2 to the power x; 8 lanes of float. The same function as _native. Largest error 1240 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_exp2f8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp2f8_half, float8, float8, x);
}
#define lanemath_exp2f8_half(x) \
/** 2 to the power x; 8 lanes of float. The same function as _native. Largest error 1240 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp2f8_half, float8, float8, x)
lanemath_wide_float16 lanemath_call_exp2f16_half(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp2f16_half");
/** 2 to the power x; 16 lanes of float. The same function as _native. Largest error 1240 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_exp2f16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp2f16_half, float16, float16, x);
}
#define lanemath_exp2f16_half(x) \
/** 2 to the power x; 16 lanes of float. The same function as _native. Largest error 1240 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp2f16_half, float16, float16, x)

/** 2 to the power x; one float. Largest error 1.11 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float1 lanemath_exp2f1_rm(lanemath_float1 x) LANEMATH_NAMED("exp2f1_rm");
/** 2 to the power x; 2 lanes of float. Largest error 1.11 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float2 lanemath_exp2f2_rm(lanemath_float2 x) LANEMATH_NAMED("exp2f2_rm");
/** 2 to the power x; 3 lanes of float. Largest error 1.11 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float3 lanemath_exp2f3_rm(lanemath_float3 x) LANEMATH_NAMED("exp2f3_rm");
/** 2 to the power x; 4 lanes of float. Largest error 1.11 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float4 lanemath_exp2f4_rm(lanemath_float4 x) LANEMATH_NAMED("exp2f4_rm");
lanemath_wide_float8 lanemath_call_exp2f8_rm(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp2f8_rm");
/** 2 to the power x; 8 lanes of float. Largest error 1.11 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_exp2f8_rm(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp2f8_rm, float8, float8, x);
}
#define lanemath_exp2f8_rm(x) \
/** 2 to the power x; 8 lanes of float. Largest error 1.11 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp2f8_rm, float8, float8, x)
lanemath_wide_float16 lanemath_call_exp2f16_rm(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp2f16_rm");
/** 2 to the power x; 16 lanes of float. Largest error 1.11 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_exp2f16_rm(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp2f16_rm, float16, float16, x);
}
#define lanemath_exp2f16_rm(x) \
/** 2 to the power x; 16 lanes of float. Largest error 1.11 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp2f16_rm, float16, float16, x)

/** 10 to the power x; one double. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_double1 lanemath_exp101(lanemath_double1 x) LANEMATH_NAMED("exp101");
/** 10 to the power x; 2 lanes of double. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_double2 lanemath_exp102(lanemath_double2 x) LANEMATH_NAMED("exp102");
lanemath_border_double3 lanemath_call_exp103(lanemath_border_double3) LANEMATH_NAMED("exp103");
/** 10 to the power x; 3 lanes of double. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_exp103(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, exp103, double3, double3, x);
}
#define lanemath_exp103(x) \
/** 10 to the power x; 3 lanes of double. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_border, exp103, double3, double3, x)
lanemath_wide_double4 lanemath_call_exp104(lanemath_wide_double4) LANEMATH_NAMED_WIDE("exp104");
/** 10 to the power x; 4 lanes of double. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_exp104(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, exp104, double4, double4, x);
}
#define lanemath_exp104(x) \
/** 10 to the power x; 4 lanes of double. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp104, double4, double4, x)
lanemath_wide_double8 lanemath_call_exp108(lanemath_wide_double8) LANEMATH_NAMED_WIDE("exp108");
/** 10 to the power x; 8 lanes of double. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_exp108(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp108, double8, double8, x);
}
#define lanemath_exp108(x) \
/** 10 to the power x; 8 lanes of double. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp108, double8, double8, x)
lanemath_wide_double16 lanemath_call_exp1016(lanemath_wide_double16) LANEMATH_NAMED_WIDE("exp1016");
/** 10 to the power x; 16 lanes of double. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_exp1016(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp1016, double16, double16, x);
}
#define lanemath_exp1016(x) \
/** 10 to the power x; 16 lanes of double. Largest error 1.01 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp1016, double16, double16, x)

/** 10 to the power x; one double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_double1 lanemath_exp101_native(lanemath_double1 x) LANEMATH_NAMED("exp101_native");
/** 10 to the power x; 2 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_double2 lanemath_exp102_native(lanemath_double2 x) LANEMATH_NAMED("exp102_native");
lanemath_border_double3 lanemath_call_exp103_native(lanemath_border_double3) LANEMATH_NAMED("exp103_native");
/** 10 to the power x; 3 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_exp103_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, exp103_native, double3, double3, x);
}
#define lanemath_exp103_native(x) \
/** 10 to the power x; 3 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_border, exp103_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_exp104_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("exp104_native");
/** 10 to the power x; 4 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_exp104_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, exp104_native, double4, double4, x);
}
#define lanemath_exp104_native(x) \
/** 10 to the power x; 4 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp104_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_exp108_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("exp108_native");
/** 10 to the power x; 8 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_exp108_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp108_native, double8, double8, x);
}
#define lanemath_exp108_native(x) \
/** 10 to the power x; 8 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp108_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_exp1016_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("exp1016_native");
/** 10 to the power x; 16 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_exp1016_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp1016_native, double16, double16, x);
}
#define lanemath_exp1016_native(x) \
/** 10 to the power x; 16 lanes of double. Largest error 1.53e+07 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp1016_native, double16, double16, x)

/** 10 to the power x; one float. Largest error 0.557 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float1 lanemath_exp10f1(lanemath_float1 x) LANEMATH_NAMED("exp10f1");
/** 10 to the power x; 2 lanes of float. Largest error 0.557 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float2 lanemath_exp10f2(lanemath_float2 x) LANEMATH_NAMED("exp10f2");
/** 10 to the power x; 3 lanes of float. Largest error 0.557 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float3 lanemath_exp10f3(lanemath_float3 x) LANEMATH_NAMED("exp10f3");
/** 10 to the power x; 4 lanes of float. Largest error 0.557 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float4 lanemath_exp10f4(lanemath_float4 x) LANEMATH_NAMED("exp10f4");
lanemath_wide_float8 lanemath_call_exp10f8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp10f8");
/** 10 to the power x; 8 lanes of float. Largest error 0.557 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_exp10f8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp10f8, float8, float8, x);
}
#define lanemath_exp10f8(x) \
/** 10 to the power x; 8 lanes of float. Largest error 0.557 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp10f8, float8, float8, x)
lanemath_wide_float16 lanemath_call_exp10f16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp10f16");
/** 10 to the power x; 16 lanes of float. Largest error 0.557 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_exp10f16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp10f16, float16, float16, x);
}
#define lanemath_exp10f16(x) \
/** 10 to the power x; 16 lanes of float. Largest error 0.557 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp10f16, float16, float16, x)

/** 10 to the power x; one float. Largest error 1310 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float1 lanemath_exp10f1_native(lanemath_float1 x) LANEMATH_NAMED("exp10f1_native");
/** 10 to the power x; 2 lanes of float. Largest error 1310 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float2 lanemath_exp10f2_native(lanemath_float2 x) LANEMATH_NAMED("exp10f2_native");
/** 10 to the power x; 3 lanes of float. Largest error 1310 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float3 lanemath_exp10f3_native(lanemath_float3 x) LANEMATH_NAMED("exp10f3_native");
/** 10 to the power x; 4 lanes of float. Largest error 1310 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float4 lanemath_exp10f4_native(lanemath_float4 x) LANEMATH_NAMED("exp10f4_native");
lanemath_wide_float8 lanemath_call_exp10f8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp10f8_native");
/** 10 to the power x; 8 lanes of float. Largest error 1310 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_exp10f8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp10f8_native, float8, float8, x);
}
#define lanemath_exp10f8_native(x) \
/** 10 to the power x; 8 lanes of float. Largest error 1310 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp10f8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_exp10f16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp10f16_native");
/** 10 to the power x; 16 lanes of float. Largest error 1310 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_exp10f16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp10f16_native, float16, float16, x);
}
#define lanemath_exp10f16_native(x) \
/** 10 to the power x; 16 lanes of float. Largest error 1310 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp10f16_native, float16, float16, x)

/** 10 to the power x; one float. The same function as _native. Largest error 1310 ulp. Domain and special values: at
 * the head of <lanemath/exponential.h>. */
lanemath_float1 lanemath_exp10f1_half(lanemath_float1 x) LANEMATH_NAMED("exp10f1_half");
/** 10 to the power x; 2 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
lanemath_float2 lanemath_exp10f2_half(lanemath_float2 x) LANEMATH_NAMED("exp10f2_half");
/** 10 to the power x; 3 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
lanemath_float3 lanemath_exp10f3_half(lanemath_float3 x) LANEMATH_NAMED("exp10f3_half");
/** 10 to the power x; 4 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
lanemath_float4 lanemath_exp10f4_half(lanemath_float4 x) LANEMATH_NAMED("exp10f4_half");
lanemath_wide_float8 lanemath_call_exp10f8_half(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp10f8_half");
/** 10 to the power x; 8 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_exp10f8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp10f8_half, float8, float8, x);
}
#define lanemath_exp10f8_half(x) \
/** 10 to the power x; 8 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp10f8_half, float8, float8, x)
lanemath_wide_float16 lanemath_call_exp10f16_half(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp10f16_half");
/** 10 to the power x; 16 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_exp10f16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp10f16_half, float16, float16, x);
}
#define lanemath_exp10f16_half(x) \
/** 10 to the power x; 16 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp10f16_half, float16, float16, x)

/** 10 to the power x; one float. The same function as _native. Largest error 1310 ulp. Domain and special values: at
 * the head of <lanemath/exponential.h>. */
lanemath_float1 lanemath_exp10f1_rm(lanemath_float1 x) LANEMATH_NAMED("exp10f1_rm");
/** 10 to the power x; 2 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
lanemath_float2 lanemath_exp10f2_rm(lanemath_float2 x) LANEMATH_NAMED("exp10f2_rm");
/** 10 to the power x; 3 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
lanemath_float3 lanemath_exp10f3_rm(lanemath_float3 x) LANEMATH_NAMED("exp10f3_rm");
/** 10 to the power x; 4 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
lanemath_float4 lanemath_exp10f4_rm(lanemath_float4 x) LANEMATH_NAMED("exp10f4_rm");
lanemath_wide_float8 lanemath_call_exp10f8_rm(lanemath_wide_float8) LANEMATH_NAMED_WIDE("exp10f8_rm");
/** 10 to the power x; 8 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_exp10f8_rm(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, exp10f8_rm, float8, float8, x);
}
#define lanemath_exp10f8_rm(x) \
/** 10 to the power x; 8 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp10f8_rm, float8, float8, x)
lanemath_wide_float16 lanemath_call_exp10f16_rm(lanemath_wide_float16) LANEMATH_NAMED_WIDE("exp10f16_rm");
/** 10 to the power x; 16 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_exp10f16_rm(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, exp10f16_rm, float16, float16, x);
}
#define lanemath_exp10f16_rm(x) \
/** 10 to the power x; 16 lanes of float. The same function as _native. Largest error 1310 ulp. Domain and special
 * values: at the head of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, exp10f16_rm, float16, float16, x)

/** e to the power x, minus one; one double. Largest error 2.97 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_double1 lanemath_expm11(lanemath_double1 x) LANEMATH_NAMED("expm11");
/** e to the power x, minus one; 2 lanes of double. Largest error 2.97 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_double2 lanemath_expm12(lanemath_double2 x) LANEMATH_NAMED("expm12");
lanemath_border_double3 lanemath_call_expm13(lanemath_border_double3) LANEMATH_NAMED("expm13");
/** e to the power x, minus one; 3 lanes of double. Largest error 2.97 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_expm13(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, expm13, double3, double3, x);
}
#define lanemath_expm13(x) \
/** e to the power x, minus one; 3 lanes of double. Largest error 2.97 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_border, expm13, double3, double3, x)
lanemath_wide_double4 lanemath_call_expm14(lanemath_wide_double4) LANEMATH_NAMED_WIDE("expm14");
/** e to the power x, minus one; 4 lanes of double. Largest error 2.97 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_expm14(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, expm14, double4, double4, x);
}
#define lanemath_expm14(x) \
/** e to the power x, minus one; 4 lanes of double. Largest error 2.97 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expm14, double4, double4, x)
lanemath_wide_double8 lanemath_call_expm18(lanemath_wide_double8) LANEMATH_NAMED_WIDE("expm18");
/** e to the power x, minus one; 8 lanes of double. Largest error 2.97 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_expm18(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, expm18, double8, double8, x);
}
#define lanemath_expm18(x) \
/** e to the power x, minus one; 8 lanes of double. Largest error 2.97 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expm18, double8, double8, x)
lanemath_wide_double16 lanemath_call_expm116(lanemath_wide_double16) LANEMATH_NAMED_WIDE("expm116");
/** e to the power x, minus one; 16 lanes of double. Largest error 2.97 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_expm116(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, expm116, double16, double16, x);
}
#define lanemath_expm116(x) \
/** e to the power x, minus one; 16 lanes of double. Largest error 2.97 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expm116, double16, double16, x)

/** e to the power x, minus one; one double. Largest error 5.19e+06 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_double1 lanemath_expm11_native(lanemath_double1 x) LANEMATH_NAMED("expm11_native");
/** e to the power x, minus one; 2 lanes of double. Largest error 5.19e+06 ulp. Domain and special values: at the head
 * of <lanemath/exponential.h>. */
lanemath_double2 lanemath_expm12_native(lanemath_double2 x) LANEMATH_NAMED("expm12_native");
lanemath_border_double3 lanemath_call_expm13_native(lanemath_border_double3) LANEMATH_NAMED("expm13_native");
/** e to the power x, minus one; 3 lanes of double. Largest error 5.19e+06 ulp. Domain and special values: at the head
 * of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_expm13_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, expm13_native, double3, double3, x);
}
#define lanemath_expm13_native(x) \
/** e to the power x, minus one; 3 lanes of double. Largest error 5.19e+06 ulp. Domain and special values: at the head
 * of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_border, expm13_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_expm14_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("expm14_native");
/** e to the power x, minus one; 4 lanes of double. Largest error 5.19e+06 ulp. Domain and special values: at the head
 * of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_expm14_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, expm14_native, double4, double4, x);
}
#define lanemath_expm14_native(x) \
/** e to the power x, minus one; 4 lanes of double. Largest error 5.19e+06 ulp. Domain and special values: at the head
 * of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expm14_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_expm18_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("expm18_native");
/** e to the power x, minus one; 8 lanes of double. Largest error 5.19e+06 ulp. Domain and special values: at the head
 * of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_expm18_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, expm18_native, double8, double8, x);
}
#define lanemath_expm18_native(x) \
/** e to the power x, minus one; 8 lanes of double. Largest error 5.19e+06 ulp. Domain and special values: at the head
 * of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expm18_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_expm116_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("expm116_native");
/** e to the power x, minus one; 16 lanes of double. Largest error 5.19e+06 ulp. Domain and special values: at the
 * head of <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_expm116_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, expm116_native, double16, double16, x);
}
#define lanemath_expm116_native(x) \
/** e to the power x, minus one; 16 lanes of double. Largest error 5.19e+06 ulp. Domain and special values: at the
 * head of <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expm116_native, double16, double16, x)

/** e to the power x, minus one; one float. Largest error 1.81 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float1 lanemath_expm1f1(lanemath_float1 x) LANEMATH_NAMED("expm1f1");
/** e to the power x, minus one; 2 lanes of float. Largest error 1.81 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float2 lanemath_expm1f2(lanemath_float2 x) LANEMATH_NAMED("expm1f2");
/** e to the power x, minus one; 3 lanes of float. Largest error 1.81 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float3 lanemath_expm1f3(lanemath_float3 x) LANEMATH_NAMED("expm1f3");
/** e to the power x, minus one; 4 lanes of float. Largest error 1.81 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float4 lanemath_expm1f4(lanemath_float4 x) LANEMATH_NAMED("expm1f4");
lanemath_wide_float8 lanemath_call_expm1f8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("expm1f8");
/** e to the power x, minus one; 8 lanes of float. Largest error 1.81 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_expm1f8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, expm1f8, float8, float8, x);
}
#define lanemath_expm1f8(x) \
/** e to the power x, minus one; 8 lanes of float. Largest error 1.81 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expm1f8, float8, float8, x)
lanemath_wide_float16 lanemath_call_expm1f16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("expm1f16");
/** e to the power x, minus one; 16 lanes of float. Largest error 1.81 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_expm1f16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, expm1f16, float16, float16, x);
}
#define lanemath_expm1f16(x) \
/** e to the power x, minus one; 16 lanes of float. Largest error 1.81 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expm1f16, float16, float16, x)

/** e to the power x, minus one; one float. Largest error 284 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float1 lanemath_expm1f1_native(lanemath_float1 x) LANEMATH_NAMED("expm1f1_native");
/** e to the power x, minus one; 2 lanes of float. Largest error 284 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float2 lanemath_expm1f2_native(lanemath_float2 x) LANEMATH_NAMED("expm1f2_native");
/** e to the power x, minus one; 3 lanes of float. Largest error 284 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float3 lanemath_expm1f3_native(lanemath_float3 x) LANEMATH_NAMED("expm1f3_native");
/** e to the power x, minus one; 4 lanes of float. Largest error 284 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
lanemath_float4 lanemath_expm1f4_native(lanemath_float4 x) LANEMATH_NAMED("expm1f4_native");
lanemath_wide_float8 lanemath_call_expm1f8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("expm1f8_native");
/** e to the power x, minus one; 8 lanes of float. Largest error 284 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_expm1f8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, expm1f8_native, float8, float8, x);
}
#define lanemath_expm1f8_native(x) \
/** e to the power x, minus one; 8 lanes of float. Largest error 284 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expm1f8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_expm1f16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("expm1f16_native");
/** e to the power x, minus one; 16 lanes of float. Largest error 284 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_expm1f16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, expm1f16_native, float16, float16, x);
}
#define lanemath_expm1f16_native(x) \
/** e to the power x, minus one; 16 lanes of float. Largest error 284 ulp. Domain and special values: at the head of
 * <lanemath/exponential.h>. */ \
  LANEMATH_UNARY(lanemath_wide, expm1f16_native, float16, float16, x)

LANEMATH_END

#endif
