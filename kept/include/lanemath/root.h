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
lanemath_border_double3 __ocl_lanemath_h8_div3(lanemath_border_double3, lanemath_border_double3);
/** x / y; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_div3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(div3, double3, double3, double3, x, y);
}
#define lanemath_div3(x, y) \
/** x / y; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(div3, double3, double3, double3, x, y)
lanemath_border_double4 __ocl_lanemath_h8_div4(lanemath_border_double4, lanemath_border_double4);
/** x / y; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_div4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(div4, double4, double4, double4, x, y);
}
#define lanemath_div4(x, y) \
/** x / y; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(div4, double4, double4, double4, x, y)
lanemath_border_double8 __ocl_lanemath_h8_div8(lanemath_border_double8, lanemath_border_double8);
/** x / y; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_div8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(div8, double8, double8, double8, x, y);
}
#define lanemath_div8(x, y) \
/** x / y; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(div8, double8, double8, double8, x, y)
lanemath_border_double16 __ocl_lanemath_h8_div16(lanemath_border_double16, lanemath_border_double16);
/** x / y; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_div16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(div16, double16, double16, double16, x, y);
}
#define lanemath_div16(x, y) \
/** x / y; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(div16, double16, double16, double16, x, y)

/** x / y; one double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_div1_native(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("div1_native");
/** x / y; 2 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double2 lanemath_div2_native(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("div2_native");
lanemath_border_double3 __ocl_lanemath_h8_div3_native(lanemath_border_double3, lanemath_border_double3);
/** x / y; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_div3_native(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(div3_native, double3, double3, double3, x, y);
}
#define lanemath_div3_native(x, y) \
/** x / y; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(div3_native, double3, double3, double3, x, y)
lanemath_border_double4 __ocl_lanemath_h8_div4_native(lanemath_border_double4, lanemath_border_double4);
/** x / y; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_div4_native(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(div4_native, double4, double4, double4, x, y);
}
#define lanemath_div4_native(x, y) \
/** x / y; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(div4_native, double4, double4, double4, x, y)
lanemath_border_double8 __ocl_lanemath_h8_div8_native(lanemath_border_double8, lanemath_border_double8);
/** x / y; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_div8_native(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(div8_native, double8, double8, double8, x, y);
}
#define lanemath_div8_native(x, y) \
/** x / y; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(div8_native, double8, double8, double8, x, y)
lanemath_border_double16 __ocl_lanemath_h8_div16_native(lanemath_border_double16, lanemath_border_double16);
/** x / y; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_div16_native(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(div16_native, double16, double16, double16, x, y);
}
#define lanemath_div16_native(x, y) \
/** x / y; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(div16_native, double16, double16, double16, x, y)

/** x / y; one float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_divf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("divf1");
/** x / y; 2 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float2 lanemath_divf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("divf2");
/** x / y; 3 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float3 lanemath_divf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("divf3");
/** x / y; 4 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float4 lanemath_divf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("divf4");
lanemath_border_float8 __ocl_lanemath_h8_divf8(lanemath_border_float8, lanemath_border_float8);
/** x / y; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_divf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(divf8, float8, float8, float8, x, y);
}
#define lanemath_divf8(x, y) \
/** x / y; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(divf8, float8, float8, float8, x, y)
lanemath_border_float16 __ocl_lanemath_h8_divf16(lanemath_border_float16, lanemath_border_float16);
/** x / y; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_divf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(divf16, float16, float16, float16, x, y);
}
#define lanemath_divf16(x, y) \
/** x / y; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(divf16, float16, float16, float16, x, y)

/** x / y; one float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_divf1_native(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("divf1_native");
/** x / y; 2 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float2 lanemath_divf2_native(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("divf2_native");
/** x / y; 3 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float3 lanemath_divf3_native(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("divf3_native");
/** x / y; 4 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float4 lanemath_divf4_native(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("divf4_native");
lanemath_border_float8 __ocl_lanemath_h8_divf8_native(lanemath_border_float8, lanemath_border_float8);
/** x / y; 8 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_divf8_native(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(divf8_native, float8, float8, float8, x, y);
}
#define lanemath_divf8_native(x, y) \
/** x / y; 8 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(divf8_native, float8, float8, float8, x, y)
lanemath_border_float16 __ocl_lanemath_h8_divf16_native(lanemath_border_float16, lanemath_border_float16);
/** x / y; 16 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_divf16_native(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(divf16_native, float16, float16, float16, x, y);
}
#define lanemath_divf16_native(x, y) \
/** x / y; 16 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(divf16_native, float16, float16, float16, x, y)

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
lanemath_border_float8 __ocl_lanemath_h8_divf8_half(lanemath_border_float8, lanemath_border_float8);
/** x / y; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_divf8_half(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(divf8_half, float8, float8, float8, x, y);
}
#define lanemath_divf8_half(x, y) \
/** x / y; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(divf8_half, float8, float8, float8, x, y)
lanemath_border_float16 __ocl_lanemath_h8_divf16_half(lanemath_border_float16, lanemath_border_float16);
/** x / y; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_divf16_half(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(divf16_half, float16, float16, float16, x, y);
}
#define lanemath_divf16_half(x, y) \
/** x / y; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(divf16_half, float16, float16, float16, x, y)

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
lanemath_border_float8 __ocl_lanemath_h8_divf8_rm(lanemath_border_float8, lanemath_border_float8);
/** x / y; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_divf8_rm(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(divf8_rm, float8, float8, float8, x, y);
}
#define lanemath_divf8_rm(x, y) \
/** x / y; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(divf8_rm, float8, float8, float8, x, y)
lanemath_border_float16 __ocl_lanemath_h8_divf16_rm(lanemath_border_float16, lanemath_border_float16);
/** x / y; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_divf16_rm(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(divf16_rm, float16, float16, float16, x, y);
}
#define lanemath_divf16_rm(x, y) \
/** x / y; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(divf16_rm, float16, float16, float16, x, y)

/** 1 / x; one double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_inv1(lanemath_double1 x) LANEMATH_NAMED("inv1");
/** 1 / x; 2 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double2 lanemath_inv2(lanemath_double2 x) LANEMATH_NAMED("inv2");
lanemath_border_double3 __ocl_lanemath_h8_inv3(lanemath_border_double3);
/** 1 / x; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_inv3(lanemath_double3 x) {
  return LANEMATH_UNARY(inv3, double3, double3, x);
}
#define lanemath_inv3(x) \
/** 1 / x; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(inv3, double3, double3, x)
lanemath_border_double4 __ocl_lanemath_h8_inv4(lanemath_border_double4);
/** 1 / x; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_inv4(lanemath_double4 x) {
  return LANEMATH_UNARY(inv4, double4, double4, x);
}
#define lanemath_inv4(x) \
/** 1 / x; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(inv4, double4, double4, x)
lanemath_border_double8 __ocl_lanemath_h8_inv8(lanemath_border_double8);
/** 1 / x; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_inv8(lanemath_double8 x) {
  return LANEMATH_UNARY(inv8, double8, double8, x);
}
#define lanemath_inv8(x) \
/** 1 / x; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(inv8, double8, double8, x)
lanemath_border_double16 __ocl_lanemath_h8_inv16(lanemath_border_double16);
/** 1 / x; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_inv16(lanemath_double16 x) {
  return LANEMATH_UNARY(inv16, double16, double16, x);
}
#define lanemath_inv16(x) \
/** 1 / x; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(inv16, double16, double16, x)

/** 1 / x; one double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp. Domain
 * and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_inv1_native(lanemath_double1 x) LANEMATH_NAMED("inv1_native");
/** 1 / x; 2 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double2 lanemath_inv2_native(lanemath_double2 x) LANEMATH_NAMED("inv2_native");
lanemath_border_double3 __ocl_lanemath_h8_inv3_native(lanemath_border_double3);
/** 1 / x; 3 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_inv3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(inv3_native, double3, double3, x);
}
#define lanemath_inv3_native(x) \
/** 1 / x; 3 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(inv3_native, double3, double3, x)
lanemath_border_double4 __ocl_lanemath_h8_inv4_native(lanemath_border_double4);
/** 1 / x; 4 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_inv4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(inv4_native, double4, double4, x);
}
#define lanemath_inv4_native(x) \
/** 1 / x; 4 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(inv4_native, double4, double4, x)
lanemath_border_double8 __ocl_lanemath_h8_inv8_native(lanemath_border_double8);
/** 1 / x; 8 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_inv8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(inv8_native, double8, double8, x);
}
#define lanemath_inv8_native(x) \
/** 1 / x; 8 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000 ulp.
 * Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(inv8_native, double8, double8, x)
lanemath_border_double16 __ocl_lanemath_h8_inv16_native(lanemath_border_double16);
/** 1 / x; 16 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000
 * ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_inv16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(inv16_native, double16, double16, x);
}
#define lanemath_inv16_native(x) \
/** 1 / x; 16 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error 447000
 * ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(inv16_native, double16, double16, x)

/** 1 / x; one float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_invf1(lanemath_float1 x) LANEMATH_NAMED("invf1");
/** 1 / x; 2 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float2 lanemath_invf2(lanemath_float2 x) LANEMATH_NAMED("invf2");
/** 1 / x; 3 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float3 lanemath_invf3(lanemath_float3 x) LANEMATH_NAMED("invf3");
/** 1 / x; 4 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float4 lanemath_invf4(lanemath_float4 x) LANEMATH_NAMED("invf4");
lanemath_border_float8 __ocl_lanemath_h8_invf8(lanemath_border_float8);
/** 1 / x; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_invf8(lanemath_float8 x) {
  return LANEMATH_UNARY(invf8, float8, float8, x);
}
#define lanemath_invf8(x) \
/** 1 / x; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(invf8, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_invf16(lanemath_border_float16);
/** 1 / x; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_invf16(lanemath_float16 x) {
  return LANEMATH_UNARY(invf16, float16, float16, x);
}
#define lanemath_invf16(x) \
/** 1 / x; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(invf16, float16, float16, x)

/** 1 / x; one float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float1 lanemath_invf1_native(lanemath_float1 x) LANEMATH_NAMED("invf1_native");
/** 1 / x; 2 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float2 lanemath_invf2_native(lanemath_float2 x) LANEMATH_NAMED("invf2_native");
/** 1 / x; 3 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float3 lanemath_invf3_native(lanemath_float3 x) LANEMATH_NAMED("invf3_native");
/** 1 / x; 4 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_float4 lanemath_invf4_native(lanemath_float4 x) LANEMATH_NAMED("invf4_native");
lanemath_border_float8 __ocl_lanemath_h8_invf8_native(lanemath_border_float8);
/** 1 / x; 8 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_invf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(invf8_native, float8, float8, x);
}
#define lanemath_invf8_native(x) \
/** 1 / x; 8 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(invf8_native, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_invf16_native(lanemath_border_float16);
/** 1 / x; 16 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_invf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(invf16_native, float16, float16, x);
}
#define lanemath_invf16_native(x) \
/** 1 / x; 16 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(invf16_native, float16, float16, x)

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
lanemath_border_float8 __ocl_lanemath_h8_invf8_half(lanemath_border_float8);
/** 1 / x; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_invf8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(invf8_half, float8, float8, x);
}
#define lanemath_invf8_half(x) \
/** 1 / x; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(invf8_half, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_invf16_half(lanemath_border_float16);
/** 1 / x; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_invf16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(invf16_half, float16, float16, x);
}
#define lanemath_invf16_half(x) \
/** 1 / x; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(invf16_half, float16, float16, x)

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
lanemath_border_float8 __ocl_lanemath_h8_invf8_rm(lanemath_border_float8);
/** 1 / x; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_invf8_rm(lanemath_float8 x) {
  return LANEMATH_UNARY(invf8_rm, float8, float8, x);
}
#define lanemath_invf8_rm(x) \
/** 1 / x; 8 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(invf8_rm, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_invf16_rm(lanemath_border_float16);
/** 1 / x; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_invf16_rm(lanemath_float16 x) {
  return LANEMATH_UNARY(invf16_rm, float16, float16, x);
}
#define lanemath_invf16_rm(x) \
/** 1 / x; 16 lanes of float. The same function as _native. Largest error 6150 ulp. Domain and special values: at the
 * head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(invf16_rm, float16, float16, x)

/** square root of x; one double. Largest error 0.5 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_sqrt1(lanemath_double1 x) LANEMATH_NAMED("sqrt1");
/** square root of x; 2 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_sqrt2(lanemath_double2 x) LANEMATH_NAMED("sqrt2");
lanemath_border_double3 __ocl_lanemath_h8_sqrt3(lanemath_border_double3);
/** square root of x; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_sqrt3(lanemath_double3 x) {
  return LANEMATH_UNARY(sqrt3, double3, double3, x);
}
#define lanemath_sqrt3(x) \
/** square root of x; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrt3, double3, double3, x)
lanemath_border_double4 __ocl_lanemath_h8_sqrt4(lanemath_border_double4);
/** square root of x; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_sqrt4(lanemath_double4 x) {
  return LANEMATH_UNARY(sqrt4, double4, double4, x);
}
#define lanemath_sqrt4(x) \
/** square root of x; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrt4, double4, double4, x)
lanemath_border_double8 __ocl_lanemath_h8_sqrt8(lanemath_border_double8);
/** square root of x; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_sqrt8(lanemath_double8 x) {
  return LANEMATH_UNARY(sqrt8, double8, double8, x);
}
#define lanemath_sqrt8(x) \
/** square root of x; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrt8, double8, double8, x)
lanemath_border_double16 __ocl_lanemath_h8_sqrt16(lanemath_border_double16);
/** square root of x; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_sqrt16(lanemath_double16 x) {
  return LANEMATH_UNARY(sqrt16, double16, double16, x);
}
#define lanemath_sqrt16(x) \
/** square root of x; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrt16, double16, double16, x)

/** square root of x; one double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_sqrt1_native(lanemath_double1 x) LANEMATH_NAMED("sqrt1_native");
/** square root of x; 2 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double2 lanemath_sqrt2_native(lanemath_double2 x) LANEMATH_NAMED("sqrt2_native");
lanemath_border_double3 __ocl_lanemath_h8_sqrt3_native(lanemath_border_double3);
/** square root of x; 3 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_sqrt3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(sqrt3_native, double3, double3, x);
}
#define lanemath_sqrt3_native(x) \
/** square root of x; 3 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrt3_native, double3, double3, x)
lanemath_border_double4 __ocl_lanemath_h8_sqrt4_native(lanemath_border_double4);
/** square root of x; 4 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_sqrt4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(sqrt4_native, double4, double4, x);
}
#define lanemath_sqrt4_native(x) \
/** square root of x; 4 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrt4_native, double4, double4, x)
lanemath_border_double8 __ocl_lanemath_h8_sqrt8_native(lanemath_border_double8);
/** square root of x; 8 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_sqrt8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(sqrt8_native, double8, double8, x);
}
#define lanemath_sqrt8_native(x) \
/** square root of x; 8 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrt8_native, double8, double8, x)
lanemath_border_double16 __ocl_lanemath_h8_sqrt16_native(lanemath_border_double16);
/** square root of x; 16 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_sqrt16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(sqrt16_native, double16, double16, x);
}
#define lanemath_sqrt16_native(x) \
/** square root of x; 16 lanes of double. Tests no argument, so the range at the head of the file binds. Largest error
 * 3.31e+12 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrt16_native, double16, double16, x)

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
lanemath_border_float8 __ocl_lanemath_h8_sqrtf8(lanemath_border_float8);
/** square root of x; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sqrtf8(lanemath_float8 x) {
  return LANEMATH_UNARY(sqrtf8, float8, float8, x);
}
#define lanemath_sqrtf8(x) \
/** square root of x; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrtf8, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_sqrtf16(lanemath_border_float16);
/** square root of x; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sqrtf16(lanemath_float16 x) {
  return LANEMATH_UNARY(sqrtf16, float16, float16, x);
}
#define lanemath_sqrtf16(x) \
/** square root of x; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrtf16, float16, float16, x)

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
lanemath_border_float8 __ocl_lanemath_h8_sqrtf8_native(lanemath_border_float8);
/** square root of x; 8 lanes of float. Tests no argument, so the range at the head of the file binds. Largest error
 * 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sqrtf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(sqrtf8_native, float8, float8, x);
}
#define lanemath_sqrtf8_native(x) \
/** square root of x; 8 lanes of float. Tests no argument, so the range at the head of the file binds. Largest error
 * 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrtf8_native, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_sqrtf16_native(lanemath_border_float16);
/** square root of x; 16 lanes of float. Tests no argument, so the range at the head of the file binds. Largest error
 * 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sqrtf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(sqrtf16_native, float16, float16, x);
}
#define lanemath_sqrtf16_native(x) \
/** square root of x; 16 lanes of float. Tests no argument, so the range at the head of the file binds. Largest error
 * 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrtf16_native, float16, float16, x)

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
lanemath_border_float8 __ocl_lanemath_h8_sqrtf8_half(lanemath_border_float8);
/** square root of x; 8 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_sqrtf8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(sqrtf8_half, float8, float8, x);
}
#define lanemath_sqrtf8_half(x) \
/** square root of x; 8 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrtf8_half, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_sqrtf16_half(lanemath_border_float16);
/** square root of x; 16 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_sqrtf16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(sqrtf16_half, float16, float16, x);
}
#define lanemath_sqrtf16_half(x) \
/** square root of x; 16 lanes of float. Largest error 6150 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(sqrtf16_half, float16, float16, x)

/** 1 / square root of x; one double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double1 lanemath_rsqrt1(lanemath_double1 x) LANEMATH_NAMED("rsqrt1");
/** 1 / square root of x; 2 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_rsqrt2(lanemath_double2 x) LANEMATH_NAMED("rsqrt2");
lanemath_border_double3 __ocl_lanemath_h8_rsqrt3(lanemath_border_double3);
/** 1 / square root of x; 3 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_rsqrt3(lanemath_double3 x) {
  return LANEMATH_UNARY(rsqrt3, double3, double3, x);
}
#define lanemath_rsqrt3(x) \
/** 1 / square root of x; 3 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrt3, double3, double3, x)
lanemath_border_double4 __ocl_lanemath_h8_rsqrt4(lanemath_border_double4);
/** 1 / square root of x; 4 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_rsqrt4(lanemath_double4 x) {
  return LANEMATH_UNARY(rsqrt4, double4, double4, x);
}
#define lanemath_rsqrt4(x) \
/** 1 / square root of x; 4 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrt4, double4, double4, x)
lanemath_border_double8 __ocl_lanemath_h8_rsqrt8(lanemath_border_double8);
/** 1 / square root of x; 8 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_rsqrt8(lanemath_double8 x) {
  return LANEMATH_UNARY(rsqrt8, double8, double8, x);
}
#define lanemath_rsqrt8(x) \
/** 1 / square root of x; 8 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrt8, double8, double8, x)
lanemath_border_double16 __ocl_lanemath_h8_rsqrt16(lanemath_border_double16);
/** 1 / square root of x; 16 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_rsqrt16(lanemath_double16 x) {
  return LANEMATH_UNARY(rsqrt16, double16, double16, x);
}
#define lanemath_rsqrt16(x) \
/** 1 / square root of x; 16 lanes of double. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrt16, double16, double16, x)

/** 1 / square root of x; one double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double1 lanemath_rsqrt1_native(lanemath_double1 x) LANEMATH_NAMED("rsqrt1_native");
/** 1 / square root of x; 2 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_rsqrt2_native(lanemath_double2 x) LANEMATH_NAMED("rsqrt2_native");
lanemath_border_double3 __ocl_lanemath_h8_rsqrt3_native(lanemath_border_double3);
/** 1 / square root of x; 3 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_rsqrt3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(rsqrt3_native, double3, double3, x);
}
#define lanemath_rsqrt3_native(x) \
/** 1 / square root of x; 3 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrt3_native, double3, double3, x)
lanemath_border_double4 __ocl_lanemath_h8_rsqrt4_native(lanemath_border_double4);
/** 1 / square root of x; 4 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_rsqrt4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(rsqrt4_native, double4, double4, x);
}
#define lanemath_rsqrt4_native(x) \
/** 1 / square root of x; 4 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrt4_native, double4, double4, x)
lanemath_border_double8 __ocl_lanemath_h8_rsqrt8_native(lanemath_border_double8);
/** 1 / square root of x; 8 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_rsqrt8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(rsqrt8_native, double8, double8, x);
}
#define lanemath_rsqrt8_native(x) \
/** 1 / square root of x; 8 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrt8_native, double8, double8, x)
lanemath_border_double16 __ocl_lanemath_h8_rsqrt16_native(lanemath_border_double16);
/** 1 / square root of x; 16 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_rsqrt16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(rsqrt16_native, double16, double16, x);
}
#define lanemath_rsqrt16_native(x) \
/** 1 / square root of x; 16 lanes of double. Largest error 1.2e+06 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrt16_native, double16, double16, x)

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
lanemath_border_float8 __ocl_lanemath_h8_rsqrtf8(lanemath_border_float8);
/** 1 / square root of x; 8 lanes of float. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_rsqrtf8(lanemath_float8 x) {
  return LANEMATH_UNARY(rsqrtf8, float8, float8, x);
}
#define lanemath_rsqrtf8(x) \
/** 1 / square root of x; 8 lanes of float. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrtf8, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_rsqrtf16(lanemath_border_float16);
/** 1 / square root of x; 16 lanes of float. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_rsqrtf16(lanemath_float16 x) {
  return LANEMATH_UNARY(rsqrtf16, float16, float16, x);
}
#define lanemath_rsqrtf16(x) \
/** 1 / square root of x; 16 lanes of float. Largest error 1 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrtf16, float16, float16, x)

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
lanemath_border_float8 __ocl_lanemath_h8_rsqrtf8_native(lanemath_border_float8);
/** 1 / square root of x; 8 lanes of float. Largest error 5.2 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_rsqrtf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(rsqrtf8_native, float8, float8, x);
}
#define lanemath_rsqrtf8_native(x) \
/** 1 / square root of x; 8 lanes of float. Largest error 5.2 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrtf8_native, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_rsqrtf16_native(lanemath_border_float16);
/** 1 / square root of x; 16 lanes of float. Largest error 5.2 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_rsqrtf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(rsqrtf16_native, float16, float16, x);
}
#define lanemath_rsqrtf16_native(x) \
/** 1 / square root of x; 16 lanes of float. Largest error 5.2 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrtf16_native, float16, float16, x)

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
lanemath_border_float8 __ocl_lanemath_h8_rsqrtf8_half(lanemath_border_float8);
/** 1 / square root of x; 8 lanes of float. The same function as _native. Largest error 5.2 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_rsqrtf8_half(lanemath_float8 x) {
  return LANEMATH_UNARY(rsqrtf8_half, float8, float8, x);
}
#define lanemath_rsqrtf8_half(x) \
/** 1 / square root of x; 8 lanes of float. The same function as _native. Largest error 5.2 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrtf8_half, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_rsqrtf16_half(lanemath_border_float16);
/** 1 / square root of x; 16 lanes of float. The same function as _native. Largest error 5.2 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_rsqrtf16_half(lanemath_float16 x) {
  return LANEMATH_UNARY(rsqrtf16_half, float16, float16, x);
}
#define lanemath_rsqrtf16_half(x) \
/** 1 / square root of x; 16 lanes of float. The same function as _native. Largest error 5.2 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_UNARY(rsqrtf16_half, float16, float16, x)

/** cube root of x; one double. Largest error 1.13 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_cbrt1(lanemath_double1 x) LANEMATH_NAMED("cbrt1");
/** cube root of x; 2 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_cbrt2(lanemath_double2 x) LANEMATH_NAMED("cbrt2");
lanemath_border_double3 __ocl_lanemath_h8_cbrt3(lanemath_border_double3);
/** cube root of x; 3 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cbrt3(lanemath_double3 x) {
  return LANEMATH_UNARY(cbrt3, double3, double3, x);
}
#define lanemath_cbrt3(x) \
/** cube root of x; 3 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(cbrt3, double3, double3, x)
lanemath_border_double4 __ocl_lanemath_h8_cbrt4(lanemath_border_double4);
/** cube root of x; 4 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cbrt4(lanemath_double4 x) {
  return LANEMATH_UNARY(cbrt4, double4, double4, x);
}
#define lanemath_cbrt4(x) \
/** cube root of x; 4 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(cbrt4, double4, double4, x)
lanemath_border_double8 __ocl_lanemath_h8_cbrt8(lanemath_border_double8);
/** cube root of x; 8 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cbrt8(lanemath_double8 x) {
  return LANEMATH_UNARY(cbrt8, double8, double8, x);
}
#define lanemath_cbrt8(x) \
/** cube root of x; 8 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(cbrt8, double8, double8, x)
lanemath_border_double16 __ocl_lanemath_h8_cbrt16(lanemath_border_double16);
/** cube root of x; 16 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cbrt16(lanemath_double16 x) {
  return LANEMATH_UNARY(cbrt16, double16, double16, x);
}
#define lanemath_cbrt16(x) \
/** cube root of x; 16 lanes of double. Largest error 1.13 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(cbrt16, double16, double16, x)

/** cube root of x; one double. Largest error 2270 ulp. Domain and special values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_cbrt1_native(lanemath_double1 x) LANEMATH_NAMED("cbrt1_native");
/** cube root of x; 2 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_cbrt2_native(lanemath_double2 x) LANEMATH_NAMED("cbrt2_native");
lanemath_border_double3 __ocl_lanemath_h8_cbrt3_native(lanemath_border_double3);
/** cube root of x; 3 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cbrt3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(cbrt3_native, double3, double3, x);
}
#define lanemath_cbrt3_native(x) \
/** cube root of x; 3 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(cbrt3_native, double3, double3, x)
lanemath_border_double4 __ocl_lanemath_h8_cbrt4_native(lanemath_border_double4);
/** cube root of x; 4 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cbrt4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(cbrt4_native, double4, double4, x);
}
#define lanemath_cbrt4_native(x) \
/** cube root of x; 4 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(cbrt4_native, double4, double4, x)
lanemath_border_double8 __ocl_lanemath_h8_cbrt8_native(lanemath_border_double8);
/** cube root of x; 8 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cbrt8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(cbrt8_native, double8, double8, x);
}
#define lanemath_cbrt8_native(x) \
/** cube root of x; 8 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(cbrt8_native, double8, double8, x)
lanemath_border_double16 __ocl_lanemath_h8_cbrt16_native(lanemath_border_double16);
/** cube root of x; 16 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cbrt16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(cbrt16_native, double16, double16, x);
}
#define lanemath_cbrt16_native(x) \
/** cube root of x; 16 lanes of double. Largest error 2270 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(cbrt16_native, double16, double16, x)

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
lanemath_border_float8 __ocl_lanemath_h8_cbrtf8(lanemath_border_float8);
/** cube root of x; 8 lanes of float. Largest error 0.514 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cbrtf8(lanemath_float8 x) {
  return LANEMATH_UNARY(cbrtf8, float8, float8, x);
}
#define lanemath_cbrtf8(x) \
/** cube root of x; 8 lanes of float. Largest error 0.514 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(cbrtf8, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_cbrtf16(lanemath_border_float16);
/** cube root of x; 16 lanes of float. Largest error 0.514 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cbrtf16(lanemath_float16 x) {
  return LANEMATH_UNARY(cbrtf16, float16, float16, x);
}
#define lanemath_cbrtf16(x) \
/** cube root of x; 16 lanes of float. Largest error 0.514 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(cbrtf16, float16, float16, x)

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
lanemath_border_float8 __ocl_lanemath_h8_cbrtf8_native(lanemath_border_float8);
/** cube root of x; 8 lanes of float. Largest error 356 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cbrtf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(cbrtf8_native, float8, float8, x);
}
#define lanemath_cbrtf8_native(x) \
/** cube root of x; 8 lanes of float. Largest error 356 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(cbrtf8_native, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_cbrtf16_native(lanemath_border_float16);
/** cube root of x; 16 lanes of float. Largest error 356 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cbrtf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(cbrtf16_native, float16, float16, x);
}
#define lanemath_cbrtf16_native(x) \
/** cube root of x; 16 lanes of float. Largest error 356 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(cbrtf16_native, float16, float16, x)

/** 1 / cube root of x; one double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double1 lanemath_rcbrt1(lanemath_double1 x) LANEMATH_NAMED("rcbrt1");
/** 1 / cube root of x; 2 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_rcbrt2(lanemath_double2 x) LANEMATH_NAMED("rcbrt2");
lanemath_border_double3 __ocl_lanemath_h8_rcbrt3(lanemath_border_double3);
/** 1 / cube root of x; 3 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_rcbrt3(lanemath_double3 x) {
  return LANEMATH_UNARY(rcbrt3, double3, double3, x);
}
#define lanemath_rcbrt3(x) \
/** 1 / cube root of x; 3 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rcbrt3, double3, double3, x)
lanemath_border_double4 __ocl_lanemath_h8_rcbrt4(lanemath_border_double4);
/** 1 / cube root of x; 4 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_rcbrt4(lanemath_double4 x) {
  return LANEMATH_UNARY(rcbrt4, double4, double4, x);
}
#define lanemath_rcbrt4(x) \
/** 1 / cube root of x; 4 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rcbrt4, double4, double4, x)
lanemath_border_double8 __ocl_lanemath_h8_rcbrt8(lanemath_border_double8);
/** 1 / cube root of x; 8 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_rcbrt8(lanemath_double8 x) {
  return LANEMATH_UNARY(rcbrt8, double8, double8, x);
}
#define lanemath_rcbrt8(x) \
/** 1 / cube root of x; 8 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rcbrt8, double8, double8, x)
lanemath_border_double16 __ocl_lanemath_h8_rcbrt16(lanemath_border_double16);
/** 1 / cube root of x; 16 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_rcbrt16(lanemath_double16 x) {
  return LANEMATH_UNARY(rcbrt16, double16, double16, x);
}
#define lanemath_rcbrt16(x) \
/** 1 / cube root of x; 16 lanes of double. Largest error 1.02 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rcbrt16, double16, double16, x)

/** 1 / cube root of x; one double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double1 lanemath_rcbrt1_native(lanemath_double1 x) LANEMATH_NAMED("rcbrt1_native");
/** 1 / cube root of x; 2 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
lanemath_double2 lanemath_rcbrt2_native(lanemath_double2 x) LANEMATH_NAMED("rcbrt2_native");
lanemath_border_double3 __ocl_lanemath_h8_rcbrt3_native(lanemath_border_double3);
/** 1 / cube root of x; 3 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_rcbrt3_native(lanemath_double3 x) {
  return LANEMATH_UNARY(rcbrt3_native, double3, double3, x);
}
#define lanemath_rcbrt3_native(x) \
/** 1 / cube root of x; 3 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rcbrt3_native, double3, double3, x)
lanemath_border_double4 __ocl_lanemath_h8_rcbrt4_native(lanemath_border_double4);
/** 1 / cube root of x; 4 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_rcbrt4_native(lanemath_double4 x) {
  return LANEMATH_UNARY(rcbrt4_native, double4, double4, x);
}
#define lanemath_rcbrt4_native(x) \
/** 1 / cube root of x; 4 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rcbrt4_native, double4, double4, x)
lanemath_border_double8 __ocl_lanemath_h8_rcbrt8_native(lanemath_border_double8);
/** 1 / cube root of x; 8 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_rcbrt8_native(lanemath_double8 x) {
  return LANEMATH_UNARY(rcbrt8_native, double8, double8, x);
}
#define lanemath_rcbrt8_native(x) \
/** 1 / cube root of x; 8 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rcbrt8_native, double8, double8, x)
lanemath_border_double16 __ocl_lanemath_h8_rcbrt16_native(lanemath_border_double16);
/** 1 / cube root of x; 16 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_rcbrt16_native(lanemath_double16 x) {
  return LANEMATH_UNARY(rcbrt16_native, double16, double16, x);
}
#define lanemath_rcbrt16_native(x) \
/** 1 / cube root of x; 16 lanes of double. Largest error 13400 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rcbrt16_native, double16, double16, x)

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
lanemath_border_float8 __ocl_lanemath_h8_rcbrtf8(lanemath_border_float8);
/** 1 / cube root of x; 8 lanes of float. Largest error 0.515 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_rcbrtf8(lanemath_float8 x) {
  return LANEMATH_UNARY(rcbrtf8, float8, float8, x);
}
#define lanemath_rcbrtf8(x) \
/** 1 / cube root of x; 8 lanes of float. Largest error 0.515 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rcbrtf8, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_rcbrtf16(lanemath_border_float16);
/** 1 / cube root of x; 16 lanes of float. Largest error 0.515 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_rcbrtf16(lanemath_float16 x) {
  return LANEMATH_UNARY(rcbrtf16, float16, float16, x);
}
#define lanemath_rcbrtf16(x) \
/** 1 / cube root of x; 16 lanes of float. Largest error 0.515 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rcbrtf16, float16, float16, x)

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
lanemath_border_float8 __ocl_lanemath_h8_rcbrtf8_native(lanemath_border_float8);
/** 1 / cube root of x; 8 lanes of float. Largest error 889 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_rcbrtf8_native(lanemath_float8 x) {
  return LANEMATH_UNARY(rcbrtf8_native, float8, float8, x);
}
#define lanemath_rcbrtf8_native(x) \
/** 1 / cube root of x; 8 lanes of float. Largest error 889 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rcbrtf8_native, float8, float8, x)
lanemath_border_float16 __ocl_lanemath_h8_rcbrtf16_native(lanemath_border_float16);
/** 1 / cube root of x; 16 lanes of float. Largest error 889 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_rcbrtf16_native(lanemath_float16 x) {
  return LANEMATH_UNARY(rcbrtf16_native, float16, float16, x);
}
#define lanemath_rcbrtf16_native(x) \
/** 1 / cube root of x; 16 lanes of float. Largest error 889 ulp. Domain and special values: at the head of
 * <lanemath/root.h>. */ \
  LANEMATH_UNARY(rcbrtf16_native, float16, float16, x)

/** square root of x x + y y, without undue overflow; one double. Largest error 2.4 ulp. Domain and special values: at
 * the head of <lanemath/root.h>. */
lanemath_double1 lanemath_hypot1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("hypot1");
/** square root of x x + y y, without undue overflow; 2 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
lanemath_double2 lanemath_hypot2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("hypot2");
lanemath_border_double3 __ocl_lanemath_h8_hypot3(lanemath_border_double3, lanemath_border_double3);
/** square root of x x + y y, without undue overflow; 3 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_hypot3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(hypot3, double3, double3, double3, x, y);
}
#define lanemath_hypot3(x, y) \
/** square root of x x + y y, without undue overflow; 3 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(hypot3, double3, double3, double3, x, y)
lanemath_border_double4 __ocl_lanemath_h8_hypot4(lanemath_border_double4, lanemath_border_double4);
/** square root of x x + y y, without undue overflow; 4 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_hypot4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(hypot4, double4, double4, double4, x, y);
}
#define lanemath_hypot4(x, y) \
/** square root of x x + y y, without undue overflow; 4 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(hypot4, double4, double4, double4, x, y)
lanemath_border_double8 __ocl_lanemath_h8_hypot8(lanemath_border_double8, lanemath_border_double8);
/** square root of x x + y y, without undue overflow; 8 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_hypot8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(hypot8, double8, double8, double8, x, y);
}
#define lanemath_hypot8(x, y) \
/** square root of x x + y y, without undue overflow; 8 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(hypot8, double8, double8, double8, x, y)
lanemath_border_double16 __ocl_lanemath_h8_hypot16(lanemath_border_double16, lanemath_border_double16);
/** square root of x x + y y, without undue overflow; 16 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_hypot16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(hypot16, double16, double16, double16, x, y);
}
#define lanemath_hypot16(x, y) \
/** square root of x x + y y, without undue overflow; 16 lanes of double. Largest error 2.4 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(hypot16, double16, double16, double16, x, y)

/** square root of x x + y y, without undue overflow; one double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
lanemath_double1 lanemath_hypot1_native(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("hypot1_native");
/** square root of x x + y y, without undue overflow; 2 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
lanemath_double2 lanemath_hypot2_native(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("hypot2_native");
lanemath_border_double3 __ocl_lanemath_h8_hypot3_native(lanemath_border_double3, lanemath_border_double3);
/** square root of x x + y y, without undue overflow; 3 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_hypot3_native(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(hypot3_native, double3, double3, double3, x, y);
}
#define lanemath_hypot3_native(x, y) \
/** square root of x x + y y, without undue overflow; 3 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(hypot3_native, double3, double3, double3, x, y)
lanemath_border_double4 __ocl_lanemath_h8_hypot4_native(lanemath_border_double4, lanemath_border_double4);
/** square root of x x + y y, without undue overflow; 4 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_hypot4_native(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(hypot4_native, double4, double4, double4, x, y);
}
#define lanemath_hypot4_native(x, y) \
/** square root of x x + y y, without undue overflow; 4 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(hypot4_native, double4, double4, double4, x, y)
lanemath_border_double8 __ocl_lanemath_h8_hypot8_native(lanemath_border_double8, lanemath_border_double8);
/** square root of x x + y y, without undue overflow; 8 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_hypot8_native(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(hypot8_native, double8, double8, double8, x, y);
}
#define lanemath_hypot8_native(x, y) \
/** square root of x x + y y, without undue overflow; 8 lanes of double. Largest error 1.2e+06 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(hypot8_native, double8, double8, double8, x, y)
lanemath_border_double16 __ocl_lanemath_h8_hypot16_native(lanemath_border_double16, lanemath_border_double16);
/** square root of x x + y y, without undue overflow; 16 lanes of double. Largest error 1.2e+06 ulp. Domain and
 * special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_hypot16_native(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(hypot16_native, double16, double16, double16, x, y);
}
#define lanemath_hypot16_native(x, y) \
/** square root of x x + y y, without undue overflow; 16 lanes of double. Largest error 1.2e+06 ulp. Domain and
 * special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(hypot16_native, double16, double16, double16, x, y)

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
lanemath_border_float8 __ocl_lanemath_h8_hypotf8(lanemath_border_float8, lanemath_border_float8);
/** square root of x x + y y, without undue overflow; 8 lanes of float. Largest error 1.37 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_hypotf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(hypotf8, float8, float8, float8, x, y);
}
#define lanemath_hypotf8(x, y) \
/** square root of x x + y y, without undue overflow; 8 lanes of float. Largest error 1.37 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(hypotf8, float8, float8, float8, x, y)
lanemath_border_float16 __ocl_lanemath_h8_hypotf16(lanemath_border_float16, lanemath_border_float16);
/** square root of x x + y y, without undue overflow; 16 lanes of float. Largest error 1.37 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_hypotf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(hypotf16, float16, float16, float16, x, y);
}
#define lanemath_hypotf16(x, y) \
/** square root of x x + y y, without undue overflow; 16 lanes of float. Largest error 1.37 ulp. Domain and special
 * values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(hypotf16, float16, float16, float16, x, y)

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
lanemath_border_float8 __ocl_lanemath_h8_hypotf8_native(lanemath_border_float8, lanemath_border_float8);
/** square root of x x + y y, without undue overflow; 8 lanes of float. Tests no argument, so the range at the head of
 * the file binds. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_hypotf8_native(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(hypotf8_native, float8, float8, float8, x, y);
}
#define lanemath_hypotf8_native(x, y) \
/** square root of x x + y y, without undue overflow; 8 lanes of float. Tests no argument, so the range at the head of
 * the file binds. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(hypotf8_native, float8, float8, float8, x, y)
lanemath_border_float16 __ocl_lanemath_h8_hypotf16_native(lanemath_border_float16, lanemath_border_float16);
/** square root of x x + y y, without undue overflow; 16 lanes of float. Tests no argument, so the range at the head
 * of the file binds. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_hypotf16_native(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(hypotf16_native, float16, float16, float16, x, y);
}
#define lanemath_hypotf16_native(x, y) \
/** square root of x x + y y, without undue overflow; 16 lanes of float. Tests no argument, so the range at the head
 * of the file binds. Largest error 6150 ulp. Domain and special values: at the head of <lanemath/root.h>. */ \
  LANEMATH_BINARY(hypotf16_native, float16, float16, float16, x, y)

LANEMATH_END

#endif
