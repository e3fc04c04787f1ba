/* Powers.
 *
 * pow: any x and y, with the special values of IEEE 754. powr: x >= 0, defined as exp(y log x). pown and rootn take
 * an integer y. Method: logarithm in extended precision, product with y or 1 / y, exponential; the native forms do
 * without the extra precision.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_POWER_H
#define LANEMATH_POWER_H

#include <lanemath/types.h>

#pragma GCC system_header

LANEMATH_BEGIN

/** x to the power y; one double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_double1 lanemath_pow1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("pow1");
/** x to the power y; 2 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_double2 lanemath_pow2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("pow2");
lanemath_border_double3 lanemath_call_pow3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("pow3");
/** x to the power y; 3 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_pow3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, pow3, double3, double3, double3, x, y);
}
#define lanemath_pow3(x, y) \
/** x to the power y; 3 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_border, pow3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_pow4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("pow4");
/** x to the power y; 4 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_pow4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, pow4, double4, double4, double4, x, y);
}
#define lanemath_pow4(x, y) \
/** x to the power y; 4 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pow4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_pow8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("pow8");
/** x to the power y; 8 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_pow8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, pow8, double8, double8, double8, x, y);
}
#define lanemath_pow8(x, y) \
/** x to the power y; 8 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pow8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_pow16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("pow16");
/** x to the power y; 16 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_pow16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, pow16, double16, double16, double16, x, y);
}
#define lanemath_pow16(x, y) \
/** x to the power y; 16 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pow16, double16, double16, double16, x, y)

/** x to the power y; one double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_double1 lanemath_pow1_native(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("pow1_native");
/** x to the power y; 2 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_double2 lanemath_pow2_native(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("pow2_native");
lanemath_border_double3 lanemath_call_pow3_native(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("pow3_native");
/** x to the power y; 3 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_pow3_native(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, pow3_native, double3, double3, double3, x, y);
}
#define lanemath_pow3_native(x, y) \
/** x to the power y; 3 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_border, pow3_native, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_pow4_native(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("pow4_native");
/** x to the power y; 4 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_pow4_native(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, pow4_native, double4, double4, double4, x, y);
}
#define lanemath_pow4_native(x, y) \
/** x to the power y; 4 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pow4_native, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_pow8_native(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("pow8_native");
/** x to the power y; 8 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_pow8_native(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, pow8_native, double8, double8, double8, x, y);
}
#define lanemath_pow8_native(x, y) \
/** x to the power y; 8 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pow8_native, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_pow16_native(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("pow16_native");
/** x to the power y; 16 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_pow16_native(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, pow16_native, double16, double16, double16, x, y);
}
#define lanemath_pow16_native(x, y) \
/** x to the power y; 16 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pow16_native, double16, double16, double16, x, y)

/** x to the power y; one float. Largest error 1.1 ulp. Domain and special values: at the head of <lanemath/power.h>. */
lanemath_float1 lanemath_powf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("powf1");
/** x to the power y; 2 lanes of float. Largest error 1.1 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float2 lanemath_powf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("powf2");
/** x to the power y; 3 lanes of float. Largest error 1.1 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float3 lanemath_powf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("powf3");
/** x to the power y; 4 lanes of float. Largest error 1.1 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float4 lanemath_powf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("powf4");
lanemath_wide_float8 lanemath_call_powf8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("powf8");
/** x to the power y; 8 lanes of float. Largest error 1.1 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_powf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, powf8, float8, float8, float8, x, y);
}
#define lanemath_powf8(x, y) \
/** x to the power y; 8 lanes of float. Largest error 1.1 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powf8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_powf16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("powf16");
/** x to the power y; 16 lanes of float. Largest error 1.1 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_powf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, powf16, float16, float16, float16, x, y);
}
#define lanemath_powf16(x, y) \
/** x to the power y; 16 lanes of float. Largest error 1.1 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powf16, float16, float16, float16, x, y)

/** x to the power y; one float. Largest error 4400 ulp. Domain and special values: at the head of <lanemath/power.h>. */
lanemath_float1 lanemath_powf1_native(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("powf1_native");
/** x to the power y; 2 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float2 lanemath_powf2_native(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("powf2_native");
/** x to the power y; 3 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float3 lanemath_powf3_native(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("powf3_native");
/** x to the power y; 4 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float4 lanemath_powf4_native(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("powf4_native");
lanemath_wide_float8 lanemath_call_powf8_native(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("powf8_native");
/** x to the power y; 8 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_powf8_native(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, powf8_native, float8, float8, float8, x, y);
}
#define lanemath_powf8_native(x, y) \
/** x to the power y; 8 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powf8_native, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_powf16_native(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("powf16_native");
/** x to the power y; 16 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_powf16_native(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, powf16_native, float16, float16, float16, x, y);
}
#define lanemath_powf16_native(x, y) \
/** x to the power y; 16 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powf16_native, float16, float16, float16, x, y)

/** x to the power y; one float. The same function as _native. Largest error 4400 ulp. Domain and special values: at
 * the head of <lanemath/power.h>. */
lanemath_float1 lanemath_powf1_rm(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("powf1_rm");
/** x to the power y; 2 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and special
 * values: at the head of <lanemath/power.h>. */
lanemath_float2 lanemath_powf2_rm(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("powf2_rm");
/** x to the power y; 3 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and special
 * values: at the head of <lanemath/power.h>. */
lanemath_float3 lanemath_powf3_rm(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("powf3_rm");
/** x to the power y; 4 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and special
 * values: at the head of <lanemath/power.h>. */
lanemath_float4 lanemath_powf4_rm(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("powf4_rm");
lanemath_wide_float8 lanemath_call_powf8_rm(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("powf8_rm");
/** x to the power y; 8 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and special
 * values: at the head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_powf8_rm(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, powf8_rm, float8, float8, float8, x, y);
}
#define lanemath_powf8_rm(x, y) \
/** x to the power y; 8 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and special
 * values: at the head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powf8_rm, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_powf16_rm(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("powf16_rm");
/** x to the power y; 16 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and special
 * values: at the head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_powf16_rm(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, powf16_rm, float16, float16, float16, x, y);
}
#define lanemath_powf16_rm(x, y) \
/** x to the power y; 16 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and special
 * values: at the head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powf16_rm, float16, float16, float16, x, y)

/** x to the power y, for x >= 0; one double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_double1 lanemath_powr1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("powr1");
/** x to the power y, for x >= 0; 2 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_double2 lanemath_powr2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("powr2");
lanemath_border_double3 lanemath_call_powr3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("powr3");
/** x to the power y, for x >= 0; 3 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_powr3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, powr3, double3, double3, double3, x, y);
}
#define lanemath_powr3(x, y) \
/** x to the power y, for x >= 0; 3 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_border, powr3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_powr4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("powr4");
/** x to the power y, for x >= 0; 4 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_powr4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, powr4, double4, double4, double4, x, y);
}
#define lanemath_powr4(x, y) \
/** x to the power y, for x >= 0; 4 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powr4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_powr8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("powr8");
/** x to the power y, for x >= 0; 8 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_powr8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, powr8, double8, double8, double8, x, y);
}
#define lanemath_powr8(x, y) \
/** x to the power y, for x >= 0; 8 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powr8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_powr16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("powr16");
/** x to the power y, for x >= 0; 16 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head
 * of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_powr16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, powr16, double16, double16, double16, x, y);
}
#define lanemath_powr16(x, y) \
/** x to the power y, for x >= 0; 16 lanes of double. Largest error 1.64 ulp. Domain and special values: at the head
 * of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powr16, double16, double16, double16, x, y)

/** x to the power y, for x >= 0; one double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_double1 lanemath_powr1_native(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("powr1_native");
/** x to the power y, for x >= 0; 2 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head
 * of <lanemath/power.h>. */
lanemath_double2 lanemath_powr2_native(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("powr2_native");
lanemath_border_double3 lanemath_call_powr3_native(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("powr3_native");
/** x to the power y, for x >= 0; 3 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head
 * of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_powr3_native(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, powr3_native, double3, double3, double3, x, y);
}
#define lanemath_powr3_native(x, y) \
/** x to the power y, for x >= 0; 3 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head
 * of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_border, powr3_native, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_powr4_native(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("powr4_native");
/** x to the power y, for x >= 0; 4 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head
 * of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_powr4_native(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, powr4_native, double4, double4, double4, x, y);
}
#define lanemath_powr4_native(x, y) \
/** x to the power y, for x >= 0; 4 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head
 * of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powr4_native, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_powr8_native(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("powr8_native");
/** x to the power y, for x >= 0; 8 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head
 * of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_powr8_native(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, powr8_native, double8, double8, double8, x, y);
}
#define lanemath_powr8_native(x, y) \
/** x to the power y, for x >= 0; 8 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head
 * of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powr8_native, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_powr16_native(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("powr16_native");
/** x to the power y, for x >= 0; 16 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_powr16_native(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, powr16_native, double16, double16, double16, x, y);
}
#define lanemath_powr16_native(x, y) \
/** x to the power y, for x >= 0; 16 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powr16_native, double16, double16, double16, x, y)

/** x to the power y, for x >= 0; one float. Largest error 8.05 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float1 lanemath_powrf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("powrf1");
/** x to the power y, for x >= 0; 2 lanes of float. Largest error 8.05 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float2 lanemath_powrf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("powrf2");
/** x to the power y, for x >= 0; 3 lanes of float. Largest error 8.05 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float3 lanemath_powrf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("powrf3");
/** x to the power y, for x >= 0; 4 lanes of float. Largest error 8.05 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float4 lanemath_powrf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("powrf4");
lanemath_wide_float8 lanemath_call_powrf8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("powrf8");
/** x to the power y, for x >= 0; 8 lanes of float. Largest error 8.05 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_powrf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, powrf8, float8, float8, float8, x, y);
}
#define lanemath_powrf8(x, y) \
/** x to the power y, for x >= 0; 8 lanes of float. Largest error 8.05 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powrf8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_powrf16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("powrf16");
/** x to the power y, for x >= 0; 16 lanes of float. Largest error 8.05 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_powrf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, powrf16, float16, float16, float16, x, y);
}
#define lanemath_powrf16(x, y) \
/** x to the power y, for x >= 0; 16 lanes of float. Largest error 8.05 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powrf16, float16, float16, float16, x, y)

/** x to the power y, for x >= 0; one float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float1 lanemath_powrf1_native(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("powrf1_native");
/** x to the power y, for x >= 0; 2 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float2 lanemath_powrf2_native(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("powrf2_native");
/** x to the power y, for x >= 0; 3 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float3 lanemath_powrf3_native(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("powrf3_native");
/** x to the power y, for x >= 0; 4 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float4 lanemath_powrf4_native(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("powrf4_native");
lanemath_wide_float8 lanemath_call_powrf8_native(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("powrf8_native");
/** x to the power y, for x >= 0; 8 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_powrf8_native(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, powrf8_native, float8, float8, float8, x, y);
}
#define lanemath_powrf8_native(x, y) \
/** x to the power y, for x >= 0; 8 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powrf8_native, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_powrf16_native(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("powrf16_native");
/** x to the power y, for x >= 0; 16 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_powrf16_native(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, powrf16_native, float16, float16, float16, x, y);
}
#define lanemath_powrf16_native(x, y) \
/** x to the power y, for x >= 0; 16 lanes of float. Largest error 4400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powrf16_native, float16, float16, float16, x, y)

/** x to the power y, for x >= 0; one float. The same function as _native. Largest error 4400 ulp. Domain and special
 * values: at the head of <lanemath/power.h>. */
lanemath_float1 lanemath_powrf1_half(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("powrf1_half");
/** x to the power y, for x >= 0; 2 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and
 * special values: at the head of <lanemath/power.h>. */
lanemath_float2 lanemath_powrf2_half(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("powrf2_half");
/** x to the power y, for x >= 0; 3 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and
 * special values: at the head of <lanemath/power.h>. */
lanemath_float3 lanemath_powrf3_half(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("powrf3_half");
/** x to the power y, for x >= 0; 4 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and
 * special values: at the head of <lanemath/power.h>. */
lanemath_float4 lanemath_powrf4_half(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("powrf4_half");
lanemath_wide_float8 lanemath_call_powrf8_half(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("powrf8_half");
/** x to the power y, for x >= 0; 8 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and
 * special values: at the head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_powrf8_half(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, powrf8_half, float8, float8, float8, x, y);
}
#define lanemath_powrf8_half(x, y) \
/** x to the power y, for x >= 0; 8 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and
 * special values: at the head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powrf8_half, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_powrf16_half(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("powrf16_half");
/** x to the power y, for x >= 0; 16 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and
 * special values: at the head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_powrf16_half(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, powrf16_half, float16, float16, float16, x, y);
}
#define lanemath_powrf16_half(x, y) \
/** x to the power y, for x >= 0; 16 lanes of float. The same function as _native. Largest error 4400 ulp. Domain and
 * special values: at the head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, powrf16_half, float16, float16, float16, x, y)

/** x to the integer power y; one double. Largest error 1.62 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_double1 lanemath_pown1(lanemath_double1 x, lanemath_int1 y) LANEMATH_NAMED("pown1");
/** x to the integer power y; 2 lanes of double. Largest error 1.62 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_double2 lanemath_pown2(lanemath_double2 x, lanemath_int2 y) LANEMATH_NAMED("pown2");
lanemath_border_double3 lanemath_call_pown3(lanemath_border_double3, lanemath_border_int3) LANEMATH_NAMED("pown3");
/** x to the integer power y; 3 lanes of double. Largest error 1.62 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_pown3(lanemath_double3 x, lanemath_int3 y) {
  return LANEMATH_BINARY(lanemath_border, pown3, double3, double3, int3, x, y);
}
#define lanemath_pown3(x, y) \
/** x to the integer power y; 3 lanes of double. Largest error 1.62 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_border, pown3, double3, double3, int3, x, y)
lanemath_wide_double4 lanemath_call_pown4(lanemath_wide_double4, lanemath_wide_int4) LANEMATH_NAMED_WIDE("pown4");
/** x to the integer power y; 4 lanes of double. Largest error 1.62 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_pown4(lanemath_double4 x, lanemath_int4 y) {
  return LANEMATH_BINARY(lanemath_wide, pown4, double4, double4, int4, x, y);
}
#define lanemath_pown4(x, y) \
/** x to the integer power y; 4 lanes of double. Largest error 1.62 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pown4, double4, double4, int4, x, y)
lanemath_wide_double8 lanemath_call_pown8(lanemath_wide_double8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("pown8");
/** x to the integer power y; 8 lanes of double. Largest error 1.62 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_pown8(lanemath_double8 x, lanemath_int8 y) {
  return LANEMATH_BINARY(lanemath_wide, pown8, double8, double8, int8, x, y);
}
#define lanemath_pown8(x, y) \
/** x to the integer power y; 8 lanes of double. Largest error 1.62 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pown8, double8, double8, int8, x, y)
lanemath_wide_double16 lanemath_call_pown16(lanemath_wide_double16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("pown16");
/** x to the integer power y; 16 lanes of double. Largest error 1.62 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_pown16(lanemath_double16 x, lanemath_int16 y) {
  return LANEMATH_BINARY(lanemath_wide, pown16, double16, double16, int16, x, y);
}
#define lanemath_pown16(x, y) \
/** x to the integer power y; 16 lanes of double. Largest error 1.62 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pown16, double16, double16, int16, x, y)

/** x to the integer power y; one double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_double1 lanemath_pown1_native(lanemath_double1 x, lanemath_int1 y) LANEMATH_NAMED("pown1_native");
/** x to the integer power y; 2 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_double2 lanemath_pown2_native(lanemath_double2 x, lanemath_int2 y) LANEMATH_NAMED("pown2_native");
lanemath_border_double3 lanemath_call_pown3_native(lanemath_border_double3, lanemath_border_int3) LANEMATH_NAMED("pown3_native");
/** x to the integer power y; 3 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_pown3_native(lanemath_double3 x, lanemath_int3 y) {
  return LANEMATH_BINARY(lanemath_border, pown3_native, double3, double3, int3, x, y);
}
#define lanemath_pown3_native(x, y) \
/** x to the integer power y; 3 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_border, pown3_native, double3, double3, int3, x, y)
lanemath_wide_double4 lanemath_call_pown4_native(lanemath_wide_double4, lanemath_wide_int4) LANEMATH_NAMED_WIDE("pown4_native");
/** x to the integer power y; 4 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_pown4_native(lanemath_double4 x, lanemath_int4 y) {
  return LANEMATH_BINARY(lanemath_wide, pown4_native, double4, double4, int4, x, y);
}
#define lanemath_pown4_native(x, y) \
/** x to the integer power y; 4 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pown4_native, double4, double4, int4, x, y)
lanemath_wide_double8 lanemath_call_pown8_native(lanemath_wide_double8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("pown8_native");
/** x to the integer power y; 8 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_pown8_native(lanemath_double8 x, lanemath_int8 y) {
  return LANEMATH_BINARY(lanemath_wide, pown8_native, double8, double8, int8, x, y);
}
#define lanemath_pown8_native(x, y) \
/** x to the integer power y; 8 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pown8_native, double8, double8, int8, x, y)
lanemath_wide_double16 lanemath_call_pown16_native(lanemath_wide_double16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("pown16_native");
/** x to the integer power y; 16 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_pown16_native(lanemath_double16 x, lanemath_int16 y) {
  return LANEMATH_BINARY(lanemath_wide, pown16_native, double16, double16, int16, x, y);
}
#define lanemath_pown16_native(x, y) \
/** x to the integer power y; 16 lanes of double. Largest error 5.7e+09 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pown16_native, double16, double16, int16, x, y)

/** x to the integer power y; one float. Largest error 8020 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float1 lanemath_pownf1(lanemath_float1 x, lanemath_int1 y) LANEMATH_NAMED("pownf1");
/** x to the integer power y; 2 lanes of float. Largest error 8020 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float2 lanemath_pownf2(lanemath_float2 x, lanemath_int2 y) LANEMATH_NAMED("pownf2");
/** x to the integer power y; 3 lanes of float. Largest error 8020 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float3 lanemath_pownf3(lanemath_float3 x, lanemath_int3 y) LANEMATH_NAMED("pownf3");
/** x to the integer power y; 4 lanes of float. Largest error 8020 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float4 lanemath_pownf4(lanemath_float4 x, lanemath_int4 y) LANEMATH_NAMED("pownf4");
lanemath_wide_float8 lanemath_call_pownf8(lanemath_wide_float8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("pownf8");
/** x to the integer power y; 8 lanes of float. Largest error 8020 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_pownf8(lanemath_float8 x, lanemath_int8 y) {
  return LANEMATH_BINARY(lanemath_wide, pownf8, float8, float8, int8, x, y);
}
#define lanemath_pownf8(x, y) \
/** x to the integer power y; 8 lanes of float. Largest error 8020 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pownf8, float8, float8, int8, x, y)
lanemath_wide_float16 lanemath_call_pownf16(lanemath_wide_float16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("pownf16");
/** x to the integer power y; 16 lanes of float. Largest error 8020 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_pownf16(lanemath_float16 x, lanemath_int16 y) {
  return LANEMATH_BINARY(lanemath_wide, pownf16, float16, float16, int16, x, y);
}
#define lanemath_pownf16(x, y) \
/** x to the integer power y; 16 lanes of float. Largest error 8020 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pownf16, float16, float16, int16, x, y)

/** x to the integer power y; one float. Largest error 4990 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float1 lanemath_pownf1_native(lanemath_float1 x, lanemath_int1 y) LANEMATH_NAMED("pownf1_native");
/** x to the integer power y; 2 lanes of float. Largest error 4990 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float2 lanemath_pownf2_native(lanemath_float2 x, lanemath_int2 y) LANEMATH_NAMED("pownf2_native");
/** x to the integer power y; 3 lanes of float. Largest error 4990 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float3 lanemath_pownf3_native(lanemath_float3 x, lanemath_int3 y) LANEMATH_NAMED("pownf3_native");
/** x to the integer power y; 4 lanes of float. Largest error 4990 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float4 lanemath_pownf4_native(lanemath_float4 x, lanemath_int4 y) LANEMATH_NAMED("pownf4_native");
lanemath_wide_float8 lanemath_call_pownf8_native(lanemath_wide_float8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("pownf8_native");
/** x to the integer power y; 8 lanes of float. Largest error 4990 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_pownf8_native(lanemath_float8 x, lanemath_int8 y) {
  return LANEMATH_BINARY(lanemath_wide, pownf8_native, float8, float8, int8, x, y);
}
#define lanemath_pownf8_native(x, y) \
/** x to the integer power y; 8 lanes of float. Largest error 4990 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pownf8_native, float8, float8, int8, x, y)
lanemath_wide_float16 lanemath_call_pownf16_native(lanemath_wide_float16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("pownf16_native");
/** x to the integer power y; 16 lanes of float. Largest error 4990 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_pownf16_native(lanemath_float16 x, lanemath_int16 y) {
  return LANEMATH_BINARY(lanemath_wide, pownf16_native, float16, float16, int16, x, y);
}
#define lanemath_pownf16_native(x, y) \
/** x to the integer power y; 16 lanes of float. Largest error 4990 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, pownf16_native, float16, float16, int16, x, y)

/** x to the power 1 / y, y an integer; one double. Largest error 1.04 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_double1 lanemath_rootn1(lanemath_double1 x, lanemath_int1 y) LANEMATH_NAMED("rootn1");
/** x to the power 1 / y, y an integer; 2 lanes of double. Largest error 1.04 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
lanemath_double2 lanemath_rootn2(lanemath_double2 x, lanemath_int2 y) LANEMATH_NAMED("rootn2");
lanemath_border_double3 lanemath_call_rootn3(lanemath_border_double3, lanemath_border_int3) LANEMATH_NAMED("rootn3");
/** x to the power 1 / y, y an integer; 3 lanes of double. Largest error 1.04 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_rootn3(lanemath_double3 x, lanemath_int3 y) {
  return LANEMATH_BINARY(lanemath_border, rootn3, double3, double3, int3, x, y);
}
#define lanemath_rootn3(x, y) \
/** x to the power 1 / y, y an integer; 3 lanes of double. Largest error 1.04 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_border, rootn3, double3, double3, int3, x, y)
lanemath_wide_double4 lanemath_call_rootn4(lanemath_wide_double4, lanemath_wide_int4) LANEMATH_NAMED_WIDE("rootn4");
/** x to the power 1 / y, y an integer; 4 lanes of double. Largest error 1.04 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_rootn4(lanemath_double4 x, lanemath_int4 y) {
  return LANEMATH_BINARY(lanemath_wide, rootn4, double4, double4, int4, x, y);
}
#define lanemath_rootn4(x, y) \
/** x to the power 1 / y, y an integer; 4 lanes of double. Largest error 1.04 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, rootn4, double4, double4, int4, x, y)
lanemath_wide_double8 lanemath_call_rootn8(lanemath_wide_double8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("rootn8");
/** x to the power 1 / y, y an integer; 8 lanes of double. Largest error 1.04 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_rootn8(lanemath_double8 x, lanemath_int8 y) {
  return LANEMATH_BINARY(lanemath_wide, rootn8, double8, double8, int8, x, y);
}
#define lanemath_rootn8(x, y) \
/** x to the power 1 / y, y an integer; 8 lanes of double. Largest error 1.04 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, rootn8, double8, double8, int8, x, y)
lanemath_wide_double16 lanemath_call_rootn16(lanemath_wide_double16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("rootn16");
/** x to the power 1 / y, y an integer; 16 lanes of double. Largest error 1.04 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_rootn16(lanemath_double16 x, lanemath_int16 y) {
  return LANEMATH_BINARY(lanemath_wide, rootn16, double16, double16, int16, x, y);
}
#define lanemath_rootn16(x, y) \
/** x to the power 1 / y, y an integer; 16 lanes of double. Largest error 1.04 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, rootn16, double16, double16, int16, x, y)

/** x to the power 1 / y, y an integer; one double. Largest error 1.7e+08 ulp. Domain and special values: at the head
 * of <lanemath/power.h>. */
lanemath_double1 lanemath_rootn1_native(lanemath_double1 x, lanemath_int1 y) LANEMATH_NAMED("rootn1_native");
/** x to the power 1 / y, y an integer; 2 lanes of double. Largest error 1.7e+08 ulp. Domain and special values: at
 * the head of <lanemath/power.h>. */
lanemath_double2 lanemath_rootn2_native(lanemath_double2 x, lanemath_int2 y) LANEMATH_NAMED("rootn2_native");
lanemath_border_double3 lanemath_call_rootn3_native(lanemath_border_double3, lanemath_border_int3) LANEMATH_NAMED("rootn3_native");
/** x to the power 1 / y, y an integer; 3 lanes of double. Largest error 1.7e+08 ulp. Domain and special values: at
 * the head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_rootn3_native(lanemath_double3 x, lanemath_int3 y) {
  return LANEMATH_BINARY(lanemath_border, rootn3_native, double3, double3, int3, x, y);
}
#define lanemath_rootn3_native(x, y) \
/** x to the power 1 / y, y an integer; 3 lanes of double. Largest error 1.7e+08 ulp. Domain and special values: at
 * the head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_border, rootn3_native, double3, double3, int3, x, y)
lanemath_wide_double4 lanemath_call_rootn4_native(lanemath_wide_double4, lanemath_wide_int4) LANEMATH_NAMED_WIDE("rootn4_native");
/** x to the power 1 / y, y an integer; 4 lanes of double. Largest error 1.7e+08 ulp. Domain and special values: at
 * the head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_rootn4_native(lanemath_double4 x, lanemath_int4 y) {
  return LANEMATH_BINARY(lanemath_wide, rootn4_native, double4, double4, int4, x, y);
}
#define lanemath_rootn4_native(x, y) \
/** x to the power 1 / y, y an integer; 4 lanes of double. Largest error 1.7e+08 ulp. Domain and special values: at
 * the head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, rootn4_native, double4, double4, int4, x, y)
lanemath_wide_double8 lanemath_call_rootn8_native(lanemath_wide_double8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("rootn8_native");
/** x to the power 1 / y, y an integer; 8 lanes of double. Largest error 1.7e+08 ulp. Domain and special values: at
 * the head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_rootn8_native(lanemath_double8 x, lanemath_int8 y) {
  return LANEMATH_BINARY(lanemath_wide, rootn8_native, double8, double8, int8, x, y);
}
#define lanemath_rootn8_native(x, y) \
/** x to the power 1 / y, y an integer; 8 lanes of double. Largest error 1.7e+08 ulp. Domain and special values: at
 * the head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, rootn8_native, double8, double8, int8, x, y)
lanemath_wide_double16 lanemath_call_rootn16_native(lanemath_wide_double16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("rootn16_native");
/** x to the power 1 / y, y an integer; 16 lanes of double. Largest error 1.7e+08 ulp. Domain and special values: at
 * the head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_rootn16_native(lanemath_double16 x, lanemath_int16 y) {
  return LANEMATH_BINARY(lanemath_wide, rootn16_native, double16, double16, int16, x, y);
}
#define lanemath_rootn16_native(x, y) \
/** x to the power 1 / y, y an integer; 16 lanes of double. Largest error 1.7e+08 ulp. Domain and special values: at
 * the head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, rootn16_native, double16, double16, int16, x, y)

/** x to the power 1 / y, y an integer; one float. Largest error 5.72 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float1 lanemath_rootnf1(lanemath_float1 x, lanemath_int1 y) LANEMATH_NAMED("rootnf1");
/** x to the power 1 / y, y an integer; 2 lanes of float. Largest error 5.72 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
lanemath_float2 lanemath_rootnf2(lanemath_float2 x, lanemath_int2 y) LANEMATH_NAMED("rootnf2");
/** x to the power 1 / y, y an integer; 3 lanes of float. Largest error 5.72 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
lanemath_float3 lanemath_rootnf3(lanemath_float3 x, lanemath_int3 y) LANEMATH_NAMED("rootnf3");
/** x to the power 1 / y, y an integer; 4 lanes of float. Largest error 5.72 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
lanemath_float4 lanemath_rootnf4(lanemath_float4 x, lanemath_int4 y) LANEMATH_NAMED("rootnf4");
lanemath_wide_float8 lanemath_call_rootnf8(lanemath_wide_float8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("rootnf8");
/** x to the power 1 / y, y an integer; 8 lanes of float. Largest error 5.72 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_rootnf8(lanemath_float8 x, lanemath_int8 y) {
  return LANEMATH_BINARY(lanemath_wide, rootnf8, float8, float8, int8, x, y);
}
#define lanemath_rootnf8(x, y) \
/** x to the power 1 / y, y an integer; 8 lanes of float. Largest error 5.72 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, rootnf8, float8, float8, int8, x, y)
lanemath_wide_float16 lanemath_call_rootnf16(lanemath_wide_float16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("rootnf16");
/** x to the power 1 / y, y an integer; 16 lanes of float. Largest error 5.72 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_rootnf16(lanemath_float16 x, lanemath_int16 y) {
  return LANEMATH_BINARY(lanemath_wide, rootnf16, float16, float16, int16, x, y);
}
#define lanemath_rootnf16(x, y) \
/** x to the power 1 / y, y an integer; 16 lanes of float. Largest error 5.72 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, rootnf16, float16, float16, int16, x, y)

/** x to the power 1 / y, y an integer; one float. Largest error 1400 ulp. Domain and special values: at the head of
 * <lanemath/power.h>. */
lanemath_float1 lanemath_rootnf1_native(lanemath_float1 x, lanemath_int1 y) LANEMATH_NAMED("rootnf1_native");
/** x to the power 1 / y, y an integer; 2 lanes of float. Largest error 1400 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
lanemath_float2 lanemath_rootnf2_native(lanemath_float2 x, lanemath_int2 y) LANEMATH_NAMED("rootnf2_native");
/** x to the power 1 / y, y an integer; 3 lanes of float. Largest error 1400 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
lanemath_float3 lanemath_rootnf3_native(lanemath_float3 x, lanemath_int3 y) LANEMATH_NAMED("rootnf3_native");
/** x to the power 1 / y, y an integer; 4 lanes of float. Largest error 1400 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
lanemath_float4 lanemath_rootnf4_native(lanemath_float4 x, lanemath_int4 y) LANEMATH_NAMED("rootnf4_native");
lanemath_wide_float8 lanemath_call_rootnf8_native(lanemath_wide_float8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("rootnf8_native");
/** x to the power 1 / y, y an integer; 8 lanes of float. Largest error 1400 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_rootnf8_native(lanemath_float8 x, lanemath_int8 y) {
  return LANEMATH_BINARY(lanemath_wide, rootnf8_native, float8, float8, int8, x, y);
}
#define lanemath_rootnf8_native(x, y) \
/** x to the power 1 / y, y an integer; 8 lanes of float. Largest error 1400 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, rootnf8_native, float8, float8, int8, x, y)
lanemath_wide_float16 lanemath_call_rootnf16_native(lanemath_wide_float16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("rootnf16_native");
/** x to the power 1 / y, y an integer; 16 lanes of float. Largest error 1400 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_rootnf16_native(lanemath_float16 x, lanemath_int16 y) {
  return LANEMATH_BINARY(lanemath_wide, rootnf16_native, float16, float16, int16, x, y);
}
#define lanemath_rootnf16_native(x, y) \
/** x to the power 1 / y, y an integer; 16 lanes of float. Largest error 1400 ulp. Domain and special values: at the
 * head of <lanemath/power.h>. */ \
  LANEMATH_BINARY(lanemath_wide, rootnf16_native, float16, float16, int16, x, y)

LANEMATH_END

#endif
