/* Division, reciprocals and roots.
 *
 * The default forms of division, reciprocal and square root are correctly rounded. rsqrt, rsqrtf, hypot, hypotf and
 * the native forms of inv, invf, sqrt, sqrtf and divf start from the processor's estimates, whose low bits differ
 * between processor vendors. The native forms of inv, sqrt, sqrtf and hypotf test nothing: their arguments, and for
 * hypotf the sum of the squares, must lie well inside the range of a float, those of inv must be normal numbers
 * below 2^1021.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_ROOT_H
#define LANEMATH_ROOT_H

#include <lanemath/types.h>

#pragma GCC system_header

LANEMATH_BEGIN

/** x / y; one double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_div1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("div1");
/** x / y; 2 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double2 lanemath_div2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("div2");
lanemath_border_double3 lanemath_call_div3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("div3");
/** x / y; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_div3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, div3, double3, double3, double3, x, y);
}
#define lanemath_div3(x, y) \
/** x / y; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_border, div3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_div4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("div4");
/** x / y; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_div4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, div4, double4, double4, double4, x, y);
}
#define lanemath_div4(x, y) \
/** x / y; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, div4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_div8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("div8");
/** x / y; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_div8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, div8, double8, double8, double8, x, y);
}
#define lanemath_div8(x, y) \
/** x / y; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, div8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_div16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("div16");
/** x / y; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_div16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, div16, double16, double16, double16, x, y);
}
#define lanemath_div16(x, y) \
/** x / y; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, div16, double16, double16, double16, x, y)

/** x / y; one double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_div1_native(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("div1_native");
/** x / y; 2 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double2 lanemath_div2_native(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("div2_native");
lanemath_border_double3 lanemath_call_div3_native(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("div3_native");
/** x / y; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_div3_native(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, div3_native, double3, double3, double3, x, y);
}
#define lanemath_div3_native(x, y) \
/** x / y; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_border, div3_native, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_div4_native(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("div4_native");
/** x / y; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_div4_native(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, div4_native, double4, double4, double4, x, y);
}
#define lanemath_div4_native(x, y) \
/** x / y; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, div4_native, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_div8_native(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("div8_native");
/** x / y; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_div8_native(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, div8_native, double8, double8, double8, x, y);
}
#define lanemath_div8_native(x, y) \
/** x / y; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, div8_native, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_div16_native(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("div16_native");
/** x / y; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_div16_native(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, div16_native, double16, double16, double16, x, y);
}
#define lanemath_div16_native(x, y) \
/** x / y; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, div16_native, double16, double16, double16, x, y)

/** x / y; one float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_divf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("divf1");
/** x / y; 2 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float2 lanemath_divf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("divf2");
/** x / y; 3 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float3 lanemath_divf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("divf3");
/** x / y; 4 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float4 lanemath_divf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("divf4");
lanemath_wide_float8 lanemath_call_divf8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("divf8");
/** x / y; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_divf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, divf8, float8, float8, float8, x, y);
}
#define lanemath_divf8(x, y) \
/** x / y; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, divf8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_divf16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("divf16");
/** x / y; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_divf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, divf16, float16, float16, float16, x, y);
}
#define lanemath_divf16(x, y) \
/** x / y; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, divf16, float16, float16, float16, x, y)

/** x / y; one float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_divf1_native(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("divf1_native");
/** x / y; 2 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float2 lanemath_divf2_native(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("divf2_native");
/** x / y; 3 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float3 lanemath_divf3_native(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("divf3_native");
/** x / y; 4 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float4 lanemath_divf4_native(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("divf4_native");
lanemath_wide_float8 lanemath_call_divf8_native(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("divf8_native");
/** x / y; 8 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_divf8_native(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, divf8_native, float8, float8, float8, x, y);
}
#define lanemath_divf8_native(x, y) \
/** x / y; 8 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, divf8_native, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_divf16_native(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("divf16_native");
/** x / y; 16 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_divf16_native(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, divf16_native, float16, float16, float16, x, y);
}
#define lanemath_divf16_native(x, y) \
/** x / y; 16 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, divf16_native, float16, float16, float16, x, y)

/** x / y; one float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float1 lanemath_divf1_half(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("divf1_half");
/** x / y; 2 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
lanemath_float2 lanemath_divf2_half(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("divf2_half");
/** x / y; 3 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
lanemath_float3 lanemath_divf3_half(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("divf3_half");
/** x / y; 4 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
lanemath_float4 lanemath_divf4_half(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("divf4_half");
lanemath_wide_float8 lanemath_call_divf8_half(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("divf8_half");
/** x / y; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_divf8_half(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, divf8_half, float8, float8, float8, x, y);
}
#define lanemath_divf8_half(x, y) \
/** x / y; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, divf8_half, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_divf16_half(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("divf16_half");
/** x / y; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_divf16_half(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, divf16_half, float16, float16, float16, x, y);
}
#define lanemath_divf16_half(x, y) \
/** x / y; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, divf16_half, float16, float16, float16, x, y)

/** x / y; one float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float1 lanemath_divf1_rm(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("divf1_rm");
/** x / y; 2 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
lanemath_float2 lanemath_divf2_rm(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("divf2_rm");
/** x / y; 3 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
lanemath_float3 lanemath_divf3_rm(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("divf3_rm");
/** x / y; 4 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
lanemath_float4 lanemath_divf4_rm(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("divf4_rm");
lanemath_wide_float8 lanemath_call_divf8_rm(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("divf8_rm");
/** x / y; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_divf8_rm(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, divf8_rm, float8, float8, float8, x, y);
}
#define lanemath_divf8_rm(x, y) \
/** x / y; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, divf8_rm, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_divf16_rm(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("divf16_rm");
/** x / y; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_divf16_rm(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, divf16_rm, float16, float16, float16, x, y);
}
#define lanemath_divf16_rm(x, y) \
/** x / y; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, divf16_rm, float16, float16, float16, x, y)

/** 1 / x; one double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_inv1(lanemath_double1 x) LANEMATH_NAMED("inv1");
/** 1 / x; 2 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double2 lanemath_inv2(lanemath_double2 x) LANEMATH_NAMED("inv2");
lanemath_border_double3 lanemath_call_inv3(lanemath_border_double3) LANEMATH_NAMED("inv3");
/** 1 / x; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_inv3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, inv3, double3, double3, x);
}
#define lanemath_inv3(x) \
/** 1 / x; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_border, inv3, double3, double3, x)
lanemath_wide_double4 lanemath_call_inv4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("inv4");
/** 1 / x; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_inv4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, inv4, double4, double4, x);
}
#define lanemath_inv4(x) \
/** 1 / x; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, inv4, double4, double4, x)
lanemath_wide_double8 lanemath_call_inv8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("inv8");
/** 1 / x; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_inv8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, inv8, double8, double8, x);
}
#define lanemath_inv8(x) \
/** 1 / x; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, inv8, double8, double8, x)
lanemath_wide_double16 lanemath_call_inv16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("inv16");
/** 1 / x; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_inv16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, inv16, double16, double16, x);
}
#define lanemath_inv16(x) \
/** 1 / x; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, inv16, double16, double16, x)

/** 1 / x; one double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp. Domain
 * and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_inv1_native(lanemath_double1 x) LANEMATH_NAMED("inv1_native");
/** 1 / x; 2 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double2 lanemath_inv2_native(lanemath_double2 x) LANEMATH_NAMED("inv2_native");
lanemath_border_double3 lanemath_call_inv3_native(lanemath_border_double3) LANEMATH_NAMED("inv3_native");
/** 1 / x; 3 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_inv3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, inv3_native, double3, double3, x);
}
#define lanemath_inv3_native(x) \
/** 1 / x; 3 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_border, inv3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_inv4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("inv4_native");
/** 1 / x; 4 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_inv4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, inv4_native, double4, double4, x);
}
#define lanemath_inv4_native(x) \
/** 1 / x; 4 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, inv4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_inv8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("inv8_native");
/** 1 / x; 8 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_inv8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, inv8_native, double8, double8, x);
}
#define lanemath_inv8_native(x) \
/** 1 / x; 8 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, inv8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_inv16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("inv16_native");
/** 1 / x; 16 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000
 * ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_inv16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, inv16_native, double16, double16, x);
}
#define lanemath_inv16_native(x) \
/** 1 / x; 16 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000
 * ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, inv16_native, double16, double16, x)

/** 1 / x; one float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_invf1(lanemath_float1 x) LANEMATH_NAMED("invf1");
/** 1 / x; 2 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float2 lanemath_invf2(lanemath_float2 x) LANEMATH_NAMED("invf2");
/** 1 / x; 3 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float3 lanemath_invf3(lanemath_float3 x) LANEMATH_NAMED("invf3");
/** 1 / x; 4 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float4 lanemath_invf4(lanemath_float4 x) LANEMATH_NAMED("invf4");
lanemath_wide_float8 lanemath_call_invf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("invf8");
/** 1 / x; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_invf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, invf8, float8, float8, x);
}
#define lanemath_invf8(x) \
/** 1 / x; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, invf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_invf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("invf16");
/** 1 / x; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_invf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, invf16, float16, float16, x);
}
#define lanemath_invf16(x) \
/** 1 / x; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, invf16, float16, float16, x)

/** 1 / x; one float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_invf1_native(lanemath_float1 x) LANEMATH_NAMED("invf1_native");
/** 1 / x; 2 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float2 lanemath_invf2_native(lanemath_float2 x) LANEMATH_NAMED("invf2_native");
/** 1 / x; 3 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float3 lanemath_invf3_native(lanemath_float3 x) LANEMATH_NAMED("invf3_native");
/** 1 / x; 4 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float4 lanemath_invf4_native(lanemath_float4 x) LANEMATH_NAMED("invf4_native");
lanemath_wide_float8 lanemath_call_invf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("invf8_native");
/** 1 / x; 8 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_invf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, invf8_native, float8, float8, x);
}
#define lanemath_invf8_native(x) \
/** 1 / x; 8 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, invf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_invf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("invf16_native");
/** 1 / x; 16 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_invf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, invf16_native, float16, float16, x);
}
#define lanemath_invf16_native(x) \
/** 1 / x; 16 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, invf16_native, float16, float16, x)

/** 1 / x; one float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float1 lanemath_invf1_half(lanemath_float1 x) LANEMATH_NAMED("invf1_half");
/** 1 / x; 2 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
lanemath_float2 lanemath_invf2_half(lanemath_float2 x) LANEMATH_NAMED("invf2_half");
/** 1 / x; 3 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
lanemath_float3 lanemath_invf3_half(lanemath_float3 x) LANEMATH_NAMED("invf3_half");
/** 1 / x; 4 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
lanemath_float4 lanemath_invf4_half(lanemath_float4 x) LANEMATH_NAMED("invf4_half");
lanemath_wide_float8 lanemath_call_invf8_half(lanemath_wide_float8) LANEMATH_NAMED_WIDE("invf8_half");
/** 1 / x; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_invf8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, invf8_half, float8, float8, x);
}
#define lanemath_invf8_half(x) \
/** 1 / x; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, invf8_half, float8, float8, x)
lanemath_wide_float16 lanemath_call_invf16_half(lanemath_wide_float16) LANEMATH_NAMED_WIDE("invf16_half");
/** 1 / x; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_invf16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, invf16_half, float16, float16, x);
}
#define lanemath_invf16_half(x) \
/** 1 / x; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, invf16_half, float16, float16, x)

/** 1 / x; one float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float1 lanemath_invf1_rm(lanemath_float1 x) LANEMATH_NAMED("invf1_rm");
/** 1 / x; 2 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
lanemath_float2 lanemath_invf2_rm(lanemath_float2 x) LANEMATH_NAMED("invf2_rm");
/** 1 / x; 3 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
lanemath_float3 lanemath_invf3_rm(lanemath_float3 x) LANEMATH_NAMED("invf3_rm");
/** 1 / x; 4 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
lanemath_float4 lanemath_invf4_rm(lanemath_float4 x) LANEMATH_NAMED("invf4_rm");
lanemath_wide_float8 lanemath_call_invf8_rm(lanemath_wide_float8) LANEMATH_NAMED_WIDE("invf8_rm");
/** 1 / x; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_invf8_rm(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, invf8_rm, float8, float8, x);
}
#define lanemath_invf8_rm(x) \
/** 1 / x; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, invf8_rm, float8, float8, x)
lanemath_wide_float16 lanemath_call_invf16_rm(lanemath_wide_float16) LANEMATH_NAMED_WIDE("invf16_rm");
/** 1 / x; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_invf16_rm(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, invf16_rm, float16, float16, x);
}
#define lanemath_invf16_rm(x) \
/** 1 / x; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, invf16_rm, float16, float16, x)

/** square root of x; one double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_sqrt1(lanemath_double1 x) LANEMATH_NAMED("sqrt1");
/** square root of x; 2 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_sqrt2(lanemath_double2 x) LANEMATH_NAMED("sqrt2");
lanemath_border_double3 lanemath_call_sqrt3(lanemath_border_double3) LANEMATH_NAMED("sqrt3");
/** square root of x; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_sqrt3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, sqrt3, double3, double3, x);
}
#define lanemath_sqrt3(x) \
/** square root of x; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_border, sqrt3, double3, double3, x)
lanemath_wide_double4 lanemath_call_sqrt4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sqrt4");
/** square root of x; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_sqrt4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, sqrt4, double4, double4, x);
}
#define lanemath_sqrt4(x) \
/** square root of x; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sqrt4, double4, double4, x)
lanemath_wide_double8 lanemath_call_sqrt8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sqrt8");
/** square root of x; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_sqrt8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, sqrt8, double8, double8, x);
}
#define lanemath_sqrt8(x) \
/** square root of x; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sqrt8, double8, double8, x)
lanemath_wide_double16 lanemath_call_sqrt16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sqrt16");
/** square root of x; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_sqrt16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, sqrt16, double16, double16, x);
}
#define lanemath_sqrt16(x) \
/** square root of x; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sqrt16, double16, double16, x)

/** square root of x; one double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_sqrt1_native(lanemath_double1 x) LANEMATH_NAMED("sqrt1_native");
/** square root of x; 2 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double2 lanemath_sqrt2_native(lanemath_double2 x) LANEMATH_NAMED("sqrt2_native");
lanemath_border_double3 lanemath_call_sqrt3_native(lanemath_border_double3) LANEMATH_NAMED("sqrt3_native");
/** square root of x; 3 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_sqrt3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, sqrt3_native, double3, double3, x);
}
#define lanemath_sqrt3_native(x) \
/** square root of x; 3 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_border, sqrt3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_sqrt4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("sqrt4_native");
/** square root of x; 4 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_sqrt4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, sqrt4_native, double4, double4, x);
}
#define lanemath_sqrt4_native(x) \
/** square root of x; 4 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sqrt4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_sqrt8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("sqrt8_native");
/** square root of x; 8 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_sqrt8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, sqrt8_native, double8, double8, x);
}
#define lanemath_sqrt8_native(x) \
/** square root of x; 8 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sqrt8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_sqrt16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("sqrt16_native");
/** square root of x; 16 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_sqrt16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, sqrt16_native, double16, double16, x);
}
#define lanemath_sqrt16_native(x) \
/** square root of x; 16 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sqrt16_native, double16, double16, x)

/** square root of x; one float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_sqrtf1(lanemath_float1 x) LANEMATH_NAMED("sqrtf1");
/** square root of x; 2 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float2 lanemath_sqrtf2(lanemath_float2 x) LANEMATH_NAMED("sqrtf2");
/** square root of x; 3 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float3 lanemath_sqrtf3(lanemath_float3 x) LANEMATH_NAMED("sqrtf3");
/** square root of x; 4 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float4 lanemath_sqrtf4(lanemath_float4 x) LANEMATH_NAMED("sqrtf4");
lanemath_wide_float8 lanemath_call_sqrtf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sqrtf8");
/** square root of x; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sqrtf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, sqrtf8, float8, float8, x);
}
#define lanemath_sqrtf8(x) \
/** square root of x; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sqrtf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_sqrtf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sqrtf16");
/** square root of x; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sqrtf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, sqrtf16, float16, float16, x);
}
#define lanemath_sqrtf16(x) \
/** square root of x; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sqrtf16, float16, float16, x)

/** square root of x; one float. Tests no argument, so the range at the head of the file binds. Largest error 6150
 * ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_sqrtf1_native(lanemath_float1 x) LANEMATH_NAMED("sqrtf1_native");
/** square root of x; 2 lanes of float. Tests no argument, so the range at the head of the file binds. Largest error
 * 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float2 lanemath_sqrtf2_native(lanemath_float2 x) LANEMATH_NAMED("sqrtf2_native");
/** square root of x; 3 lanes of float. Tests no argument, so the range at the head of the file binds. Largest error
 * 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float3 lanemath_sqrtf3_native(lanemath_float3 x) LANEMATH_NAMED("sqrtf3_native");
/** square root of x; 4 lanes of float. Tests no argument, so the range at the head of the file binds. Largest error
 * 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float4 lanemath_sqrtf4_native(lanemath_float4 x) LANEMATH_NAMED("sqrtf4_native");
lanemath_wide_float8 lanemath_call_sqrtf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sqrtf8_native");
/** square root of x; 8 lanes of float. Tests no argument, so the range at the head of the file binds. Largest error
 * 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sqrtf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, sqrtf8_native, float8, float8, x);
}
#define lanemath_sqrtf8_native(x) \
/** square root of x; 8 lanes of float. Tests no argument, so the range at the head of the file binds. Largest error
 * 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sqrtf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_sqrtf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sqrtf16_native");
/** square root of x; 16 lanes of float. Tests no argument, so the range at the head of the file binds. Largest error
 * 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sqrtf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, sqrtf16_native, float16, float16, x);
}
#define lanemath_sqrtf16_native(x) \
/** square root of x; 16 lanes of float. Tests no argument, so the range at the head of the file binds. Largest error
 * 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sqrtf16_native, float16, float16, x)

/** square root of x; one float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_sqrtf1_half(lanemath_float1 x) LANEMATH_NAMED("sqrtf1_half");
/** square root of x; 2 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float2 lanemath_sqrtf2_half(lanemath_float2 x) LANEMATH_NAMED("sqrtf2_half");
/** square root of x; 3 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float3 lanemath_sqrtf3_half(lanemath_float3 x) LANEMATH_NAMED("sqrtf3_half");
/** square root of x; 4 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float4 lanemath_sqrtf4_half(lanemath_float4 x) LANEMATH_NAMED("sqrtf4_half");
lanemath_wide_float8 lanemath_call_sqrtf8_half(lanemath_wide_float8) LANEMATH_NAMED_WIDE("sqrtf8_half");
/** square root of x; 8 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sqrtf8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, sqrtf8_half, float8, float8, x);
}
#define lanemath_sqrtf8_half(x) \
/** square root of x; 8 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sqrtf8_half, float8, float8, x)
lanemath_wide_float16 lanemath_call_sqrtf16_half(lanemath_wide_float16) LANEMATH_NAMED_WIDE("sqrtf16_half");
/** square root of x; 16 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sqrtf16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, sqrtf16_half, float16, float16, x);
}
#define lanemath_sqrtf16_half(x) \
/** square root of x; 16 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, sqrtf16_half, float16, float16, x)

/** 1 / square root of x; one double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double1 lanemath_rsqrt1(lanemath_double1 x) LANEMATH_NAMED("rsqrt1");
/** 1 / square root of x; 2 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_rsqrt2(lanemath_double2 x) LANEMATH_NAMED("rsqrt2");
lanemath_border_double3 lanemath_call_rsqrt3(lanemath_border_double3) LANEMATH_NAMED("rsqrt3");
/** 1 / square root of x; 3 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_rsqrt3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, rsqrt3, double3, double3, x);
}
#define lanemath_rsqrt3(x) \
/** 1 / square root of x; 3 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_border, rsqrt3, double3, double3, x)
lanemath_wide_double4 lanemath_call_rsqrt4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("rsqrt4");
/** 1 / square root of x; 4 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_rsqrt4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, rsqrt4, double4, double4, x);
}
#define lanemath_rsqrt4(x) \
/** 1 / square root of x; 4 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rsqrt4, double4, double4, x)
lanemath_wide_double8 lanemath_call_rsqrt8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("rsqrt8");
/** 1 / square root of x; 8 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_rsqrt8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, rsqrt8, double8, double8, x);
}
#define lanemath_rsqrt8(x) \
/** 1 / square root of x; 8 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rsqrt8, double8, double8, x)
lanemath_wide_double16 lanemath_call_rsqrt16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("rsqrt16");
/** 1 / square root of x; 16 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_rsqrt16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, rsqrt16, double16, double16, x);
}
#define lanemath_rsqrt16(x) \
/** 1 / square root of x; 16 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rsqrt16, double16, double16, x)

/** 1 / square root of x; one double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double1 lanemath_rsqrt1_native(lanemath_double1 x) LANEMATH_NAMED("rsqrt1_native");
/** 1 / square root of x; 2 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_rsqrt2_native(lanemath_double2 x) LANEMATH_NAMED("rsqrt2_native");
lanemath_border_double3 lanemath_call_rsqrt3_native(lanemath_border_double3) LANEMATH_NAMED("rsqrt3_native");
/** 1 / square root of x; 3 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_rsqrt3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, rsqrt3_native, double3, double3, x);
}
#define lanemath_rsqrt3_native(x) \
/** 1 / square root of x; 3 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_border, rsqrt3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_rsqrt4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("rsqrt4_native");
/** 1 / square root of x; 4 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_rsqrt4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, rsqrt4_native, double4, double4, x);
}
#define lanemath_rsqrt4_native(x) \
/** 1 / square root of x; 4 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rsqrt4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_rsqrt8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("rsqrt8_native");
/** 1 / square root of x; 8 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_rsqrt8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, rsqrt8_native, double8, double8, x);
}
#define lanemath_rsqrt8_native(x) \
/** 1 / square root of x; 8 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rsqrt8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_rsqrt16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("rsqrt16_native");
/** 1 / square root of x; 16 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_rsqrt16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, rsqrt16_native, double16, double16, x);
}
#define lanemath_rsqrt16_native(x) \
/** 1 / square root of x; 16 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rsqrt16_native, double16, double16, x)

/** 1 / square root of x; one float. Largest error 1 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_rsqrtf1(lanemath_float1 x) LANEMATH_NAMED("rsqrtf1");
/** 1 / square root of x; 2 lanes of float. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float2 lanemath_rsqrtf2(lanemath_float2 x) LANEMATH_NAMED("rsqrtf2");
/** 1 / square root of x; 3 lanes of float. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float3 lanemath_rsqrtf3(lanemath_float3 x) LANEMATH_NAMED("rsqrtf3");
/** 1 / square root of x; 4 lanes of float. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float4 lanemath_rsqrtf4(lanemath_float4 x) LANEMATH_NAMED("rsqrtf4");
lanemath_wide_float8 lanemath_call_rsqrtf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("rsqrtf8");
/** 1 / square root of x; 8 lanes of float. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_rsqrtf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, rsqrtf8, float8, float8, x);
}
#define lanemath_rsqrtf8(x) \
/** 1 / square root of x; 8 lanes of float. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rsqrtf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_rsqrtf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("rsqrtf16");
/** 1 / square root of x; 16 lanes of float. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_rsqrtf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, rsqrtf16, float16, float16, x);
}
#define lanemath_rsqrtf16(x) \
/** 1 / square root of x; 16 lanes of float. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rsqrtf16, float16, float16, x)

/** 1 / square root of x; one float. Largest error 5.2 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float1 lanemath_rsqrtf1_native(lanemath_float1 x) LANEMATH_NAMED("rsqrtf1_native");
/** 1 / square root of x; 2 lanes of float. Largest error 5.2 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float2 lanemath_rsqrtf2_native(lanemath_float2 x) LANEMATH_NAMED("rsqrtf2_native");
/** 1 / square root of x; 3 lanes of float. Largest error 5.2 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float3 lanemath_rsqrtf3_native(lanemath_float3 x) LANEMATH_NAMED("rsqrtf3_native");
/** 1 / square root of x; 4 lanes of float. Largest error 5.2 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float4 lanemath_rsqrtf4_native(lanemath_float4 x) LANEMATH_NAMED("rsqrtf4_native");
lanemath_wide_float8 lanemath_call_rsqrtf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("rsqrtf8_native");
/** 1 / square root of x; 8 lanes of float. Largest error 5.2 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_rsqrtf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, rsqrtf8_native, float8, float8, x);
}
#define lanemath_rsqrtf8_native(x) \
/** 1 / square root of x; 8 lanes of float. Largest error 5.2 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rsqrtf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_rsqrtf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("rsqrtf16_native");
/** 1 / square root of x; 16 lanes of float. Largest error 5.2 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_rsqrtf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, rsqrtf16_native, float16, float16, x);
}
#define lanemath_rsqrtf16_native(x) \
/** 1 / square root of x; 16 lanes of float. Largest error 5.2 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rsqrtf16_native, float16, float16, x)

/** 1 / square root of x; one float. The same function as _native. Largest error 5.2 ulp. Domain and special values:
 * at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_rsqrtf1_half(lanemath_float1 x) LANEMATH_NAMED("rsqrtf1_half");
/** 1 / square root of x; 2 lanes of float. The same function as _native. Largest error 5.2 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
lanemath_float2 lanemath_rsqrtf2_half(lanemath_float2 x) LANEMATH_NAMED("rsqrtf2_half");
/** 1 / square root of x; 3 lanes of float. The same function as _native. Largest error 5.2 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
lanemath_float3 lanemath_rsqrtf3_half(lanemath_float3 x) LANEMATH_NAMED("rsqrtf3_half");
/** 1 / square root of x; 4 lanes of float. The same function as _native. Largest error 5.2 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
lanemath_float4 lanemath_rsqrtf4_half(lanemath_float4 x) LANEMATH_NAMED("rsqrtf4_half");
lanemath_wide_float8 lanemath_call_rsqrtf8_half(lanemath_wide_float8) LANEMATH_NAMED_WIDE("rsqrtf8_half");
/** 1 / square root of x; 8 lanes of float. The same function as _native. Largest error 5.2 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_rsqrtf8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, rsqrtf8_half, float8, float8, x);
}
#define lanemath_rsqrtf8_half(x) \
/** 1 / square root of x; 8 lanes of float. The same function as _native. Largest error 5.2 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rsqrtf8_half, float8, float8, x)
lanemath_wide_float16 lanemath_call_rsqrtf16_half(lanemath_wide_float16) LANEMATH_NAMED_WIDE("rsqrtf16_half");
/** 1 / square root of x; 16 lanes of float. The same function as _native. Largest error 5.2 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_rsqrtf16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, rsqrtf16_half, float16, float16, x);
}
#define lanemath_rsqrtf16_half(x) \
/** 1 / square root of x; 16 lanes of float. The same function as _native. Largest error 5.2 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rsqrtf16_half, float16, float16, x)

/** cube root of x; one double. Largest error 1.13 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_cbrt1(lanemath_double1 x) LANEMATH_NAMED("cbrt1");
/** cube root of x; 2 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_cbrt2(lanemath_double2 x) LANEMATH_NAMED("cbrt2");
lanemath_border_double3 lanemath_call_cbrt3(lanemath_border_double3) LANEMATH_NAMED("cbrt3");
/** cube root of x; 3 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cbrt3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cbrt3, double3, double3, x);
}
#define lanemath_cbrt3(x) \
/** cube root of x; 3 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_border, cbrt3, double3, double3, x)
lanemath_wide_double4 lanemath_call_cbrt4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cbrt4");
/** cube root of x; 4 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cbrt4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cbrt4, double4, double4, x);
}
#define lanemath_cbrt4(x) \
/** cube root of x; 4 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cbrt4, double4, double4, x)
lanemath_wide_double8 lanemath_call_cbrt8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cbrt8");
/** cube root of x; 8 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cbrt8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cbrt8, double8, double8, x);
}
#define lanemath_cbrt8(x) \
/** cube root of x; 8 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cbrt8, double8, double8, x)
lanemath_wide_double16 lanemath_call_cbrt16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cbrt16");
/** cube root of x; 16 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cbrt16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cbrt16, double16, double16, x);
}
#define lanemath_cbrt16(x) \
/** cube root of x; 16 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cbrt16, double16, double16, x)

/** cube root of x; one double. Largest error 2270 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_cbrt1_native(lanemath_double1 x) LANEMATH_NAMED("cbrt1_native");
/** cube root of x; 2 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_cbrt2_native(lanemath_double2 x) LANEMATH_NAMED("cbrt2_native");
lanemath_border_double3 lanemath_call_cbrt3_native(lanemath_border_double3) LANEMATH_NAMED("cbrt3_native");
/** cube root of x; 3 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cbrt3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cbrt3_native, double3, double3, x);
}
#define lanemath_cbrt3_native(x) \
/** cube root of x; 3 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_border, cbrt3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_cbrt4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cbrt4_native");
/** cube root of x; 4 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cbrt4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cbrt4_native, double4, double4, x);
}
#define lanemath_cbrt4_native(x) \
/** cube root of x; 4 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cbrt4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_cbrt8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cbrt8_native");
/** cube root of x; 8 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cbrt8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cbrt8_native, double8, double8, x);
}
#define lanemath_cbrt8_native(x) \
/** cube root of x; 8 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cbrt8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_cbrt16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cbrt16_native");
/** cube root of x; 16 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cbrt16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cbrt16_native, double16, double16, x);
}
#define lanemath_cbrt16_native(x) \
/** cube root of x; 16 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cbrt16_native, double16, double16, x)

/** cube root of x; one float. Largest error 0.514 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_cbrtf1(lanemath_float1 x) LANEMATH_NAMED("cbrtf1");
/** cube root of x; 2 lanes of float. Largest error 0.514 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float2 lanemath_cbrtf2(lanemath_float2 x) LANEMATH_NAMED("cbrtf2");
/** cube root of x; 3 lanes of float. Largest error 0.514 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float3 lanemath_cbrtf3(lanemath_float3 x) LANEMATH_NAMED("cbrtf3");
/** cube root of x; 4 lanes of float. Largest error 0.514 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float4 lanemath_cbrtf4(lanemath_float4 x) LANEMATH_NAMED("cbrtf4");
lanemath_wide_float8 lanemath_call_cbrtf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cbrtf8");
/** cube root of x; 8 lanes of float. Largest error 0.514 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cbrtf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cbrtf8, float8, float8, x);
}
#define lanemath_cbrtf8(x) \
/** cube root of x; 8 lanes of float. Largest error 0.514 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cbrtf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_cbrtf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cbrtf16");
/** cube root of x; 16 lanes of float. Largest error 0.514 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cbrtf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cbrtf16, float16, float16, x);
}
#define lanemath_cbrtf16(x) \
/** cube root of x; 16 lanes of float. Largest error 0.514 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cbrtf16, float16, float16, x)

/** cube root of x; one float. Largest error 356 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_cbrtf1_native(lanemath_float1 x) LANEMATH_NAMED("cbrtf1_native");
/** cube root of x; 2 lanes of float. Largest error 356 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float2 lanemath_cbrtf2_native(lanemath_float2 x) LANEMATH_NAMED("cbrtf2_native");
/** cube root of x; 3 lanes of float. Largest error 356 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float3 lanemath_cbrtf3_native(lanemath_float3 x) LANEMATH_NAMED("cbrtf3_native");
/** cube root of x; 4 lanes of float. Largest error 356 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float4 lanemath_cbrtf4_native(lanemath_float4 x) LANEMATH_NAMED("cbrtf4_native");
lanemath_wide_float8 lanemath_call_cbrtf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cbrtf8_native");
/** cube root of x; 8 lanes of float. Largest error 356 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cbrtf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cbrtf8_native, float8, float8, x);
}
#define lanemath_cbrtf8_native(x) \
/** cube root of x; 8 lanes of float. Largest error 356 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cbrtf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_cbrtf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cbrtf16_native");
/** cube root of x; 16 lanes of float. Largest error 356 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cbrtf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cbrtf16_native, float16, float16, x);
}
#define lanemath_cbrtf16_native(x) \
/** cube root of x; 16 lanes of float. Largest error 356 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cbrtf16_native, float16, float16, x)

/** 1 / cube root of x; one double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double1 lanemath_rcbrt1(lanemath_double1 x) LANEMATH_NAMED("rcbrt1");
/** 1 / cube root of x; 2 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_rcbrt2(lanemath_double2 x) LANEMATH_NAMED("rcbrt2");
lanemath_border_double3 lanemath_call_rcbrt3(lanemath_border_double3) LANEMATH_NAMED("rcbrt3");
/** 1 / cube root of x; 3 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_rcbrt3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, rcbrt3, double3, double3, x);
}
#define lanemath_rcbrt3(x) \
/** 1 / cube root of x; 3 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_border, rcbrt3, double3, double3, x)
lanemath_wide_double4 lanemath_call_rcbrt4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("rcbrt4");
/** 1 / cube root of x; 4 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_rcbrt4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, rcbrt4, double4, double4, x);
}
#define lanemath_rcbrt4(x) \
/** 1 / cube root of x; 4 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rcbrt4, double4, double4, x)
lanemath_wide_double8 lanemath_call_rcbrt8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("rcbrt8");
/** 1 / cube root of x; 8 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_rcbrt8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, rcbrt8, double8, double8, x);
}
#define lanemath_rcbrt8(x) \
/** 1 / cube root of x; 8 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rcbrt8, double8, double8, x)
lanemath_wide_double16 lanemath_call_rcbrt16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("rcbrt16");
/** 1 / cube root of x; 16 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_rcbrt16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, rcbrt16, double16, double16, x);
}
#define lanemath_rcbrt16(x) \
/** 1 / cube root of x; 16 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rcbrt16, double16, double16, x)

/** 1 / cube root of x; one double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double1 lanemath_rcbrt1_native(lanemath_double1 x) LANEMATH_NAMED("rcbrt1_native");
/** 1 / cube root of x; 2 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_rcbrt2_native(lanemath_double2 x) LANEMATH_NAMED("rcbrt2_native");
lanemath_border_double3 lanemath_call_rcbrt3_native(lanemath_border_double3) LANEMATH_NAMED("rcbrt3_native");
/** 1 / cube root of x; 3 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_rcbrt3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, rcbrt3_native, double3, double3, x);
}
#define lanemath_rcbrt3_native(x) \
/** 1 / cube root of x; 3 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_border, rcbrt3_native, double3, double3, x)
lanemath_wide_double4 lanemath_call_rcbrt4_native(lanemath_wide_double4) LANEMATH_NAMED_WIDE("rcbrt4_native");
/** 1 / cube root of x; 4 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_rcbrt4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, rcbrt4_native, double4, double4, x);
}
#define lanemath_rcbrt4_native(x) \
/** 1 / cube root of x; 4 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rcbrt4_native, double4, double4, x)
lanemath_wide_double8 lanemath_call_rcbrt8_native(lanemath_wide_double8) LANEMATH_NAMED_WIDE("rcbrt8_native");
/** 1 / cube root of x; 8 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_rcbrt8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, rcbrt8_native, double8, double8, x);
}
#define lanemath_rcbrt8_native(x) \
/** 1 / cube root of x; 8 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rcbrt8_native, double8, double8, x)
lanemath_wide_double16 lanemath_call_rcbrt16_native(lanemath_wide_double16) LANEMATH_NAMED_WIDE("rcbrt16_native");
/** 1 / cube root of x; 16 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_rcbrt16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, rcbrt16_native, double16, double16, x);
}
#define lanemath_rcbrt16_native(x) \
/** 1 / cube root of x; 16 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rcbrt16_native, double16, double16, x)

/** 1 / cube root of x; one float. Largest error 0.515 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float1 lanemath_rcbrtf1(lanemath_float1 x) LANEMATH_NAMED("rcbrtf1");
/** 1 / cube root of x; 2 lanes of float. Largest error 0.515 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float2 lanemath_rcbrtf2(lanemath_float2 x) LANEMATH_NAMED("rcbrtf2");
/** 1 / cube root of x; 3 lanes of float. Largest error 0.515 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float3 lanemath_rcbrtf3(lanemath_float3 x) LANEMATH_NAMED("rcbrtf3");
/** 1 / cube root of x; 4 lanes of float. Largest error 0.515 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float4 lanemath_rcbrtf4(lanemath_float4 x) LANEMATH_NAMED("rcbrtf4");
lanemath_wide_float8 lanemath_call_rcbrtf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("rcbrtf8");
/** 1 / cube root of x; 8 lanes of float. Largest error 0.515 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_rcbrtf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, rcbrtf8, float8, float8, x);
}
#define lanemath_rcbrtf8(x) \
/** 1 / cube root of x; 8 lanes of float. Largest error 0.515 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rcbrtf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_rcbrtf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("rcbrtf16");
/** 1 / cube root of x; 16 lanes of float. Largest error 0.515 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_rcbrtf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, rcbrtf16, float16, float16, x);
}
#define lanemath_rcbrtf16(x) \
/** 1 / cube root of x; 16 lanes of float. Largest error 0.515 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rcbrtf16, float16, float16, x)

/** 1 / cube root of x; one float. Largest error 889 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_rcbrtf1_native(lanemath_float1 x) LANEMATH_NAMED("rcbrtf1_native");
/** 1 / cube root of x; 2 lanes of float. Largest error 889 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float2 lanemath_rcbrtf2_native(lanemath_float2 x) LANEMATH_NAMED("rcbrtf2_native");
/** 1 / cube root of x; 3 lanes of float. Largest error 889 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float3 lanemath_rcbrtf3_native(lanemath_float3 x) LANEMATH_NAMED("rcbrtf3_native");
/** 1 / cube root of x; 4 lanes of float. Largest error 889 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_float4 lanemath_rcbrtf4_native(lanemath_float4 x) LANEMATH_NAMED("rcbrtf4_native");
lanemath_wide_float8 lanemath_call_rcbrtf8_native(lanemath_wide_float8) LANEMATH_NAMED_WIDE("rcbrtf8_native");
/** 1 / cube root of x; 8 lanes of float. Largest error 889 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_rcbrtf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, rcbrtf8_native, float8, float8, x);
}
#define lanemath_rcbrtf8_native(x) \
/** 1 / cube root of x; 8 lanes of float. Largest error 889 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rcbrtf8_native, float8, float8, x)
lanemath_wide_float16 lanemath_call_rcbrtf16_native(lanemath_wide_float16) LANEMATH_NAMED_WIDE("rcbrtf16_native");
/** 1 / cube root of x; 16 lanes of float. Largest error 889 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_rcbrtf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, rcbrtf16_native, float16, float16, x);
}
#define lanemath_rcbrtf16_native(x) \
/** 1 / cube root of x; 16 lanes of float. Largest error 889 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rcbrtf16_native, float16, float16, x)

/** square root of x x + y y, without undue overflow; one double. Largest error 2.4 ulp. Domain and special values: at
 * the head of <lanemath/root.h>. */
lanemath_double1 lanemath_hypot1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("hypot1");
/** square root of x x + y y, without undue overflow; 2 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
lanemath_double2 lanemath_hypot2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("hypot2");
lanemath_border_double3 lanemath_call_hypot3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("hypot3");
/** square root of x x + y y, without undue overflow; 3 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_hypot3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, hypot3, double3, double3, double3, x, y);
}
#define lanemath_hypot3(x, y) \
/** square root of x x + y y, without undue overflow; 3 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_border, hypot3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_hypot4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("hypot4");
/** square root of x x + y y, without undue overflow; 4 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_hypot4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, hypot4, double4, double4, double4, x, y);
}
#define lanemath_hypot4(x, y) \
/** square root of x x + y y, without undue overflow; 4 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, hypot4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_hypot8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("hypot8");
/** square root of x x + y y, without undue overflow; 8 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_hypot8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, hypot8, double8, double8, double8, x, y);
}
#define lanemath_hypot8(x, y) \
/** square root of x x + y y, without undue overflow; 8 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, hypot8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_hypot16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("hypot16");
/** square root of x x + y y, without undue overflow; 16 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_hypot16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, hypot16, double16, double16, double16, x, y);
}
#define lanemath_hypot16(x, y) \
/** square root of x x + y y, without undue overflow; 16 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, hypot16, double16, double16, double16, x, y)

/** square root of x x + y y, without undue overflow; one double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_hypot1_native(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("hypot1_native");
/** square root of x x + y y, without undue overflow; 2 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
lanemath_double2 lanemath_hypot2_native(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("hypot2_native");
lanemath_border_double3 lanemath_call_hypot3_native(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("hypot3_native");
/** square root of x x + y y, without undue overflow; 3 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_hypot3_native(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, hypot3_native, double3, double3, double3, x, y);
}
#define lanemath_hypot3_native(x, y) \
/** square root of x x + y y, without undue overflow; 3 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_border, hypot3_native, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_hypot4_native(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("hypot4_native");
/** square root of x x + y y, without undue overflow; 4 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_hypot4_native(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, hypot4_native, double4, double4, double4, x, y);
}
#define lanemath_hypot4_native(x, y) \
/** square root of x x + y y, without undue overflow; 4 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, hypot4_native, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_hypot8_native(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("hypot8_native");
/** square root of x x + y y, without undue overflow; 8 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_hypot8_native(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, hypot8_native, double8, double8, double8, x, y);
}
#define lanemath_hypot8_native(x, y) \
/** square root of x x + y y, without undue overflow; 8 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, hypot8_native, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_hypot16_native(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("hypot16_native");
/** square root of x x + y y, without undue overflow; 16 lanes of double. Largest error 1.2e+06 ulp. Domain and
 * special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_hypot16_native(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, hypot16_native, double16, double16, double16, x, y);
}
#define lanemath_hypot16_native(x, y) \
/** square root of x x + y y, without undue overflow; 16 lanes of double. Largest error 1.2e+06 ulp. Domain and
 * special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, hypot16_native, double16, double16, double16, x, y)

/** square root of x x + y y, without undue overflow; one float. Largest error 1.37 ulp. Domain and special values: at
 * the head of <lanemath/root.h>. */
lanemath_float1 lanemath_hypotf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("hypotf1");
/** square root of x x + y y, without undue overflow; 2 lanes of float. Largest error 1.37 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
lanemath_float2 lanemath_hypotf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("hypotf2");
/** square root of x x + y y, without undue overflow; 3 lanes of float. Largest error 1.37 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
lanemath_float3 lanemath_hypotf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("hypotf3");
/** square root of x x + y y, without undue overflow; 4 lanes of float. Largest error 1.37 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
lanemath_float4 lanemath_hypotf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("hypotf4");
lanemath_wide_float8 lanemath_call_hypotf8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("hypotf8");
/** square root of x x + y y, without undue overflow; 8 lanes of float. Largest error 1.37 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_hypotf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, hypotf8, float8, float8, float8, x, y);
}
#define lanemath_hypotf8(x, y) \
/** square root of x x + y y, without undue overflow; 8 lanes of float. Largest error 1.37 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, hypotf8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_hypotf16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("hypotf16");
/** square root of x x + y y, without undue overflow; 16 lanes of float. Largest error 1.37 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_hypotf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, hypotf16, float16, float16, float16, x, y);
}
#define lanemath_hypotf16(x, y) \
/** square root of x x + y y, without undue overflow; 16 lanes of float. Largest error 1.37 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, hypotf16, float16, float16, float16, x, y)

/** square root of x x + y y, without undue overflow; one float. Tests no argument, so the range at the head of the
 * file binds. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_hypotf1_native(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("hypotf1_native");
/** square root of x x + y y, without undue overflow; 2 lanes of float. Tests no argument, so the range at the head of
 * the file binds. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float2 lanemath_hypotf2_native(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("hypotf2_native");
/** square root of x x + y y, without undue overflow; 3 lanes of float. Tests no argument, so the range at the head of
 * the file binds. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float3 lanemath_hypotf3_native(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("hypotf3_native");
/** square root of x x + y y, without undue overflow; 4 lanes of float. Tests no argument, so the range at the head of
 * the file binds. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float4 lanemath_hypotf4_native(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("hypotf4_native");
lanemath_wide_float8 lanemath_call_hypotf8_native(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("hypotf8_native");
/** square root of x x + y y, without undue overflow; 8 lanes of float. Tests no argument, so the range at the head of
 * the file binds. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_hypotf8_native(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, hypotf8_native, float8, float8, float8, x, y);
}
#define lanemath_hypotf8_native(x, y) \
/** square root of x x + y y, without undue overflow; 8 lanes of float. Tests no argument, so the range at the head of
 * the file binds. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, hypotf8_native, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_hypotf16_native(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("hypotf16_native");
/** square root of x x + y y, without undue overflow; 16 lanes of float. Tests no argument, so the range at the head
 * of the file binds. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_hypotf16_native(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, hypotf16_native, float16, float16, float16, x, y);
}
#define lanemath_hypotf16_native(x, y) \
/** square root of x x + y y, without undue overflow; 16 lanes of float. Tests no argument, so the range at the head
 * of the file binds. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(lanemath_wide, hypotf16_native, float16, float16, float16, x, y)

LANEMATH_END

#endif
