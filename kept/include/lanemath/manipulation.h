/* Rounding, selection, decomposition, remainders, fused multiply-add.
 *
 * Exact, or rounded once. rint, nearbyint, remainder and remquo follow the current rounding direction; fma follows
 * that of the x87 control word.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_MANIPULATION_H
#define LANEMATH_MANIPULATION_H

#include <lanemath/types.h>

#pragma GCC system_header

LANEMATH_BEGIN

/** x rounded up to an integer; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double1 lanemath_ceil1(lanemath_double1 x) LANEMATH_NAMED("ceil1");
/** x rounded up to an integer; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double2 lanemath_ceil2(lanemath_double2 x) LANEMATH_NAMED("ceil2");
lanemath_border_double3 lanemath_call_ceil3(lanemath_border_double3) LANEMATH_NAMED("ceil3");
/** x rounded up to an integer; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_ceil3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, ceil3, double3, double3, x);
}
#define lanemath_ceil3(x) \
/** x rounded up to an integer; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_border, ceil3, double3, double3, x)
lanemath_wide_double4 lanemath_call_ceil4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("ceil4");
/** x rounded up to an integer; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_ceil4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, ceil4, double4, double4, x);
}
#define lanemath_ceil4(x) \
/** x rounded up to an integer; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, ceil4, double4, double4, x)
lanemath_wide_double8 lanemath_call_ceil8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("ceil8");
/** x rounded up to an integer; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_ceil8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, ceil8, double8, double8, x);
}
#define lanemath_ceil8(x) \
/** x rounded up to an integer; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, ceil8, double8, double8, x)
lanemath_wide_double16 lanemath_call_ceil16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("ceil16");
/** x rounded up to an integer; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_ceil16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, ceil16, double16, double16, x);
}
#define lanemath_ceil16(x) \
/** x rounded up to an integer; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, ceil16, double16, double16, x)

/** x rounded up to an integer; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float1 lanemath_ceilf1(lanemath_float1 x) LANEMATH_NAMED("ceilf1");
/** x rounded up to an integer; 2 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float2 lanemath_ceilf2(lanemath_float2 x) LANEMATH_NAMED("ceilf2");
/** x rounded up to an integer; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float3 lanemath_ceilf3(lanemath_float3 x) LANEMATH_NAMED("ceilf3");
/** x rounded up to an integer; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float4 lanemath_ceilf4(lanemath_float4 x) LANEMATH_NAMED("ceilf4");
lanemath_wide_float8 lanemath_call_ceilf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("ceilf8");
/** x rounded up to an integer; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_ceilf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, ceilf8, float8, float8, x);
}
#define lanemath_ceilf8(x) \
/** x rounded up to an integer; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, ceilf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_ceilf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("ceilf16");
/** x rounded up to an integer; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_ceilf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, ceilf16, float16, float16, x);
}
#define lanemath_ceilf16(x) \
/** x rounded up to an integer; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, ceilf16, float16, float16, x)

/** x rounded down to an integer; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double1 lanemath_floor1(lanemath_double1 x) LANEMATH_NAMED("floor1");
/** x rounded down to an integer; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double2 lanemath_floor2(lanemath_double2 x) LANEMATH_NAMED("floor2");
lanemath_border_double3 lanemath_call_floor3(lanemath_border_double3) LANEMATH_NAMED("floor3");
/** x rounded down to an integer; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_floor3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, floor3, double3, double3, x);
}
#define lanemath_floor3(x) \
/** x rounded down to an integer; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_border, floor3, double3, double3, x)
lanemath_wide_double4 lanemath_call_floor4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("floor4");
/** x rounded down to an integer; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_floor4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, floor4, double4, double4, x);
}
#define lanemath_floor4(x) \
/** x rounded down to an integer; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, floor4, double4, double4, x)
lanemath_wide_double8 lanemath_call_floor8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("floor8");
/** x rounded down to an integer; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_floor8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, floor8, double8, double8, x);
}
#define lanemath_floor8(x) \
/** x rounded down to an integer; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, floor8, double8, double8, x)
lanemath_wide_double16 lanemath_call_floor16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("floor16");
/** x rounded down to an integer; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_floor16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, floor16, double16, double16, x);
}
#define lanemath_floor16(x) \
/** x rounded down to an integer; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, floor16, double16, double16, x)

/** x rounded down to an integer; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float1 lanemath_floorf1(lanemath_float1 x) LANEMATH_NAMED("floorf1");
/** x rounded down to an integer; 2 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float2 lanemath_floorf2(lanemath_float2 x) LANEMATH_NAMED("floorf2");
/** x rounded down to an integer; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float3 lanemath_floorf3(lanemath_float3 x) LANEMATH_NAMED("floorf3");
/** x rounded down to an integer; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float4 lanemath_floorf4(lanemath_float4 x) LANEMATH_NAMED("floorf4");
lanemath_wide_float8 lanemath_call_floorf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("floorf8");
/** x rounded down to an integer; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_floorf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, floorf8, float8, float8, x);
}
#define lanemath_floorf8(x) \
/** x rounded down to an integer; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, floorf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_floorf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("floorf16");
/** x rounded down to an integer; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_floorf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, floorf16, float16, float16, x);
}
#define lanemath_floorf16(x) \
/** x rounded down to an integer; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, floorf16, float16, float16, x)

/** x rounded toward zero to an integer; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double1 lanemath_trunc1(lanemath_double1 x) LANEMATH_NAMED("trunc1");
/** x rounded toward zero to an integer; 2 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_trunc2(lanemath_double2 x) LANEMATH_NAMED("trunc2");
lanemath_border_double3 lanemath_call_trunc3(lanemath_border_double3) LANEMATH_NAMED("trunc3");
/** x rounded toward zero to an integer; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_trunc3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, trunc3, double3, double3, x);
}
#define lanemath_trunc3(x) \
/** x rounded toward zero to an integer; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_border, trunc3, double3, double3, x)
lanemath_wide_double4 lanemath_call_trunc4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("trunc4");
/** x rounded toward zero to an integer; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_trunc4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, trunc4, double4, double4, x);
}
#define lanemath_trunc4(x) \
/** x rounded toward zero to an integer; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, trunc4, double4, double4, x)
lanemath_wide_double8 lanemath_call_trunc8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("trunc8");
/** x rounded toward zero to an integer; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_trunc8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, trunc8, double8, double8, x);
}
#define lanemath_trunc8(x) \
/** x rounded toward zero to an integer; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, trunc8, double8, double8, x)
lanemath_wide_double16 lanemath_call_trunc16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("trunc16");
/** x rounded toward zero to an integer; 16 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_trunc16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, trunc16, double16, double16, x);
}
#define lanemath_trunc16(x) \
/** x rounded toward zero to an integer; 16 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, trunc16, double16, double16, x)

/** x rounded toward zero to an integer; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float1 lanemath_truncf1(lanemath_float1 x) LANEMATH_NAMED("truncf1");
/** x rounded toward zero to an integer; 2 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_truncf2(lanemath_float2 x) LANEMATH_NAMED("truncf2");
/** x rounded toward zero to an integer; 3 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_truncf3(lanemath_float3 x) LANEMATH_NAMED("truncf3");
/** x rounded toward zero to an integer; 4 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_truncf4(lanemath_float4 x) LANEMATH_NAMED("truncf4");
lanemath_wide_float8 lanemath_call_truncf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("truncf8");
/** x rounded toward zero to an integer; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_truncf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, truncf8, float8, float8, x);
}
#define lanemath_truncf8(x) \
/** x rounded toward zero to an integer; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, truncf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_truncf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("truncf16");
/** x rounded toward zero to an integer; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_truncf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, truncf16, float16, float16, x);
}
#define lanemath_truncf16(x) \
/** x rounded toward zero to an integer; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, truncf16, float16, float16, x)

/** x rounded to an integer in the current direction; one double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
lanemath_double1 lanemath_rint1(lanemath_double1 x) LANEMATH_NAMED("rint1");
/** x rounded to an integer in the current direction; 2 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_rint2(lanemath_double2 x) LANEMATH_NAMED("rint2");
lanemath_border_double3 lanemath_call_rint3(lanemath_border_double3) LANEMATH_NAMED("rint3");
/** x rounded to an integer in the current direction; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_rint3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, rint3, double3, double3, x);
}
#define lanemath_rint3(x) \
/** x rounded to an integer in the current direction; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_border, rint3, double3, double3, x)
lanemath_wide_double4 lanemath_call_rint4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("rint4");
/** x rounded to an integer in the current direction; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_rint4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, rint4, double4, double4, x);
}
#define lanemath_rint4(x) \
/** x rounded to an integer in the current direction; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rint4, double4, double4, x)
lanemath_wide_double8 lanemath_call_rint8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("rint8");
/** x rounded to an integer in the current direction; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_rint8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, rint8, double8, double8, x);
}
#define lanemath_rint8(x) \
/** x rounded to an integer in the current direction; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rint8, double8, double8, x)
lanemath_wide_double16 lanemath_call_rint16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("rint16");
/** x rounded to an integer in the current direction; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_rint16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, rint16, double16, double16, x);
}
#define lanemath_rint16(x) \
/** x rounded to an integer in the current direction; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rint16, double16, double16, x)

/** x rounded to an integer in the current direction; one float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_rintf1(lanemath_float1 x) LANEMATH_NAMED("rintf1");
/** x rounded to an integer in the current direction; 2 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_rintf2(lanemath_float2 x) LANEMATH_NAMED("rintf2");
/** x rounded to an integer in the current direction; 3 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_rintf3(lanemath_float3 x) LANEMATH_NAMED("rintf3");
/** x rounded to an integer in the current direction; 4 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_rintf4(lanemath_float4 x) LANEMATH_NAMED("rintf4");
lanemath_wide_float8 lanemath_call_rintf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("rintf8");
/** x rounded to an integer in the current direction; 8 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_rintf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, rintf8, float8, float8, x);
}
#define lanemath_rintf8(x) \
/** x rounded to an integer in the current direction; 8 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rintf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_rintf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("rintf16");
/** x rounded to an integer in the current direction; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_rintf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, rintf16, float16, float16, x);
}
#define lanemath_rintf16(x) \
/** x rounded to an integer in the current direction; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, rintf16, float16, float16, x)

/** as rint, without the inexact flag; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double1 lanemath_nearbyint1(lanemath_double1 x) LANEMATH_NAMED("nearbyint1");
/** as rint, without the inexact flag; 2 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_nearbyint2(lanemath_double2 x) LANEMATH_NAMED("nearbyint2");
lanemath_border_double3 lanemath_call_nearbyint3(lanemath_border_double3) LANEMATH_NAMED("nearbyint3");
/** as rint, without the inexact flag; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_nearbyint3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, nearbyint3, double3, double3, x);
}
#define lanemath_nearbyint3(x) \
/** as rint, without the inexact flag; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_border, nearbyint3, double3, double3, x)
lanemath_wide_double4 lanemath_call_nearbyint4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("nearbyint4");
/** as rint, without the inexact flag; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_nearbyint4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, nearbyint4, double4, double4, x);
}
#define lanemath_nearbyint4(x) \
/** as rint, without the inexact flag; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, nearbyint4, double4, double4, x)
lanemath_wide_double8 lanemath_call_nearbyint8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("nearbyint8");
/** as rint, without the inexact flag; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_nearbyint8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, nearbyint8, double8, double8, x);
}
#define lanemath_nearbyint8(x) \
/** as rint, without the inexact flag; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, nearbyint8, double8, double8, x)
lanemath_wide_double16 lanemath_call_nearbyint16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("nearbyint16");
/** as rint, without the inexact flag; 16 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_nearbyint16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, nearbyint16, double16, double16, x);
}
#define lanemath_nearbyint16(x) \
/** as rint, without the inexact flag; 16 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, nearbyint16, double16, double16, x)

/** as rint, without the inexact flag; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float1 lanemath_nearbyintf1(lanemath_float1 x) LANEMATH_NAMED("nearbyintf1");
/** as rint, without the inexact flag; 2 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_nearbyintf2(lanemath_float2 x) LANEMATH_NAMED("nearbyintf2");
/** as rint, without the inexact flag; 3 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_nearbyintf3(lanemath_float3 x) LANEMATH_NAMED("nearbyintf3");
/** as rint, without the inexact flag; 4 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_nearbyintf4(lanemath_float4 x) LANEMATH_NAMED("nearbyintf4");
lanemath_wide_float8 lanemath_call_nearbyintf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("nearbyintf8");
/** as rint, without the inexact flag; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_nearbyintf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, nearbyintf8, float8, float8, x);
}
#define lanemath_nearbyintf8(x) \
/** as rint, without the inexact flag; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, nearbyintf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_nearbyintf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("nearbyintf16");
/** as rint, without the inexact flag; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_nearbyintf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, nearbyintf16, float16, float16, x);
}
#define lanemath_nearbyintf16(x) \
/** as rint, without the inexact flag; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, nearbyintf16, float16, float16, x)

/** x rounded to the nearest integer, halves away from zero; one double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_double1 lanemath_round1(lanemath_double1 x) LANEMATH_NAMED("round1");
/** x rounded to the nearest integer, halves away from zero; 2 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_round2(lanemath_double2 x) LANEMATH_NAMED("round2");
lanemath_border_double3 lanemath_call_round3(lanemath_border_double3) LANEMATH_NAMED("round3");
/** x rounded to the nearest integer, halves away from zero; 3 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_round3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, round3, double3, double3, x);
}
#define lanemath_round3(x) \
/** x rounded to the nearest integer, halves away from zero; 3 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_border, round3, double3, double3, x)
lanemath_wide_double4 lanemath_call_round4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("round4");
/** x rounded to the nearest integer, halves away from zero; 4 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_round4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, round4, double4, double4, x);
}
#define lanemath_round4(x) \
/** x rounded to the nearest integer, halves away from zero; 4 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, round4, double4, double4, x)
lanemath_wide_double8 lanemath_call_round8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("round8");
/** x rounded to the nearest integer, halves away from zero; 8 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_round8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, round8, double8, double8, x);
}
#define lanemath_round8(x) \
/** x rounded to the nearest integer, halves away from zero; 8 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, round8, double8, double8, x)
lanemath_wide_double16 lanemath_call_round16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("round16");
/** x rounded to the nearest integer, halves away from zero; 16 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_round16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, round16, double16, double16, x);
}
#define lanemath_round16(x) \
/** x rounded to the nearest integer, halves away from zero; 16 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, round16, double16, double16, x)

/** x rounded to the nearest integer, halves away from zero; one float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_roundf1(lanemath_float1 x) LANEMATH_NAMED("roundf1");
/** x rounded to the nearest integer, halves away from zero; 2 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_roundf2(lanemath_float2 x) LANEMATH_NAMED("roundf2");
/** x rounded to the nearest integer, halves away from zero; 3 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_roundf3(lanemath_float3 x) LANEMATH_NAMED("roundf3");
/** x rounded to the nearest integer, halves away from zero; 4 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_roundf4(lanemath_float4 x) LANEMATH_NAMED("roundf4");
lanemath_wide_float8 lanemath_call_roundf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("roundf8");
/** x rounded to the nearest integer, halves away from zero; 8 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_roundf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, roundf8, float8, float8, x);
}
#define lanemath_roundf8(x) \
/** x rounded to the nearest integer, halves away from zero; 8 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, roundf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_roundf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("roundf16");
/** x rounded to the nearest integer, halves away from zero; 16 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_roundf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, roundf16, float16, float16, x);
}
#define lanemath_roundf16(x) \
/** x rounded to the nearest integer, halves away from zero; 16 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, roundf16, float16, float16, x)

/** x with the sign cleared; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double1 lanemath_fabs1(lanemath_double1 x) LANEMATH_NAMED("fabs1");
/** x with the sign cleared; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double2 lanemath_fabs2(lanemath_double2 x) LANEMATH_NAMED("fabs2");
lanemath_border_double3 lanemath_call_fabs3(lanemath_border_double3) LANEMATH_NAMED("fabs3");
/** x with the sign cleared; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_fabs3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, fabs3, double3, double3, x);
}
#define lanemath_fabs3(x) \
/** x with the sign cleared; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_border, fabs3, double3, double3, x)
lanemath_wide_double4 lanemath_call_fabs4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("fabs4");
/** x with the sign cleared; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_fabs4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, fabs4, double4, double4, x);
}
#define lanemath_fabs4(x) \
/** x with the sign cleared; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, fabs4, double4, double4, x)
lanemath_wide_double8 lanemath_call_fabs8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("fabs8");
/** x with the sign cleared; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_fabs8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, fabs8, double8, double8, x);
}
#define lanemath_fabs8(x) \
/** x with the sign cleared; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, fabs8, double8, double8, x)
lanemath_wide_double16 lanemath_call_fabs16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("fabs16");
/** x with the sign cleared; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_fabs16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, fabs16, double16, double16, x);
}
#define lanemath_fabs16(x) \
/** x with the sign cleared; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, fabs16, double16, double16, x)

/** x with the sign cleared; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float1 lanemath_fabsf1(lanemath_float1 x) LANEMATH_NAMED("fabsf1");
/** x with the sign cleared; 2 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float2 lanemath_fabsf2(lanemath_float2 x) LANEMATH_NAMED("fabsf2");
/** x with the sign cleared; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float3 lanemath_fabsf3(lanemath_float3 x) LANEMATH_NAMED("fabsf3");
/** x with the sign cleared; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float4 lanemath_fabsf4(lanemath_float4 x) LANEMATH_NAMED("fabsf4");
lanemath_wide_float8 lanemath_call_fabsf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("fabsf8");
/** x with the sign cleared; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_fabsf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, fabsf8, float8, float8, x);
}
#define lanemath_fabsf8(x) \
/** x with the sign cleared; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, fabsf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_fabsf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("fabsf16");
/** x with the sign cleared; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_fabsf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, fabsf16, float16, float16, x);
}
#define lanemath_fabsf16(x) \
/** x with the sign cleared; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, fabsf16, float16, float16, x)

/** x with the sign of y; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double1 lanemath_copysign1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("copysign1");
/** x with the sign of y; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double2 lanemath_copysign2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("copysign2");
lanemath_border_double3 lanemath_call_copysign3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("copysign3");
/** x with the sign of y; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_copysign3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, copysign3, double3, double3, double3, x, y);
}
#define lanemath_copysign3(x, y) \
/** x with the sign of y; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_border, copysign3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_copysign4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("copysign4");
/** x with the sign of y; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_copysign4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, copysign4, double4, double4, double4, x, y);
}
#define lanemath_copysign4(x, y) \
/** x with the sign of y; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, copysign4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_copysign8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("copysign8");
/** x with the sign of y; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_copysign8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, copysign8, double8, double8, double8, x, y);
}
#define lanemath_copysign8(x, y) \
/** x with the sign of y; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, copysign8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_copysign16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("copysign16");
/** x with the sign of y; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_copysign16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, copysign16, double16, double16, double16, x, y);
}
#define lanemath_copysign16(x, y) \
/** x with the sign of y; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, copysign16, double16, double16, double16, x, y)

/** x with the sign of y; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float1 lanemath_copysignf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("copysignf1");
/** x with the sign of y; 2 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float2 lanemath_copysignf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("copysignf2");
/** x with the sign of y; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float3 lanemath_copysignf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("copysignf3");
/** x with the sign of y; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float4 lanemath_copysignf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("copysignf4");
lanemath_wide_float8 lanemath_call_copysignf8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("copysignf8");
/** x with the sign of y; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_copysignf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, copysignf8, float8, float8, float8, x, y);
}
#define lanemath_copysignf8(x, y) \
/** x with the sign of y; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, copysignf8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_copysignf16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("copysignf16");
/** x with the sign of y; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_copysignf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, copysignf16, float16, float16, float16, x, y);
}
#define lanemath_copysignf16(x, y) \
/** x with the sign of y; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, copysignf16, float16, float16, float16, x, y)

/** x - y if x > y, else +0; one double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double1 lanemath_fdim1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("fdim1");
/** x - y if x > y, else +0; 2 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double2 lanemath_fdim2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("fdim2");
lanemath_border_double3 lanemath_call_fdim3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("fdim3");
/** x - y if x > y, else +0; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_fdim3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, fdim3, double3, double3, double3, x, y);
}
#define lanemath_fdim3(x, y) \
/** x - y if x > y, else +0; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_border, fdim3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_fdim4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("fdim4");
/** x - y if x > y, else +0; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_fdim4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, fdim4, double4, double4, double4, x, y);
}
#define lanemath_fdim4(x, y) \
/** x - y if x > y, else +0; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fdim4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_fdim8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("fdim8");
/** x - y if x > y, else +0; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_fdim8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, fdim8, double8, double8, double8, x, y);
}
#define lanemath_fdim8(x, y) \
/** x - y if x > y, else +0; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fdim8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_fdim16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("fdim16");
/** x - y if x > y, else +0; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_fdim16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, fdim16, double16, double16, double16, x, y);
}
#define lanemath_fdim16(x, y) \
/** x - y if x > y, else +0; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fdim16, double16, double16, double16, x, y)

/** x - y if x > y, else +0; one float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float1 lanemath_fdimf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("fdimf1");
/** x - y if x > y, else +0; 2 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float2 lanemath_fdimf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("fdimf2");
/** x - y if x > y, else +0; 3 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float3 lanemath_fdimf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("fdimf3");
/** x - y if x > y, else +0; 4 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float4 lanemath_fdimf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("fdimf4");
lanemath_wide_float8 lanemath_call_fdimf8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("fdimf8");
/** x - y if x > y, else +0; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_fdimf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, fdimf8, float8, float8, float8, x, y);
}
#define lanemath_fdimf8(x, y) \
/** x - y if x > y, else +0; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fdimf8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_fdimf16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("fdimf16");
/** x - y if x > y, else +0; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_fdimf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, fdimf16, float16, float16, float16, x, y);
}
#define lanemath_fdimf16(x, y) \
/** x - y if x > y, else +0; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fdimf16, float16, float16, float16, x, y)

/** the larger of x and y, a number before a NaN; one double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_double1 lanemath_fmax1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("fmax1");
/** the larger of x and y, a number before a NaN; 2 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_fmax2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("fmax2");
lanemath_border_double3 lanemath_call_fmax3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("fmax3");
/** the larger of x and y, a number before a NaN; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_fmax3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, fmax3, double3, double3, double3, x, y);
}
#define lanemath_fmax3(x, y) \
/** the larger of x and y, a number before a NaN; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_border, fmax3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_fmax4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("fmax4");
/** the larger of x and y, a number before a NaN; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_fmax4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, fmax4, double4, double4, double4, x, y);
}
#define lanemath_fmax4(x, y) \
/** the larger of x and y, a number before a NaN; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fmax4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_fmax8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("fmax8");
/** the larger of x and y, a number before a NaN; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_fmax8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, fmax8, double8, double8, double8, x, y);
}
#define lanemath_fmax8(x, y) \
/** the larger of x and y, a number before a NaN; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fmax8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_fmax16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("fmax16");
/** the larger of x and y, a number before a NaN; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_fmax16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, fmax16, double16, double16, double16, x, y);
}
#define lanemath_fmax16(x, y) \
/** the larger of x and y, a number before a NaN; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fmax16, double16, double16, double16, x, y)

/** the larger of x and y, a number before a NaN; one float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_fmaxf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("fmaxf1");
/** the larger of x and y, a number before a NaN; 2 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_fmaxf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("fmaxf2");
/** the larger of x and y, a number before a NaN; 3 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_fmaxf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("fmaxf3");
/** the larger of x and y, a number before a NaN; 4 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_fmaxf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("fmaxf4");
lanemath_wide_float8 lanemath_call_fmaxf8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("fmaxf8");
/** the larger of x and y, a number before a NaN; 8 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_fmaxf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, fmaxf8, float8, float8, float8, x, y);
}
#define lanemath_fmaxf8(x, y) \
/** the larger of x and y, a number before a NaN; 8 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fmaxf8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_fmaxf16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("fmaxf16");
/** the larger of x and y, a number before a NaN; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_fmaxf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, fmaxf16, float16, float16, float16, x, y);
}
#define lanemath_fmaxf16(x, y) \
/** the larger of x and y, a number before a NaN; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fmaxf16, float16, float16, float16, x, y)

/** the smaller of x and y, a number before a NaN; one double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_double1 lanemath_fmin1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("fmin1");
/** the smaller of x and y, a number before a NaN; 2 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_fmin2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("fmin2");
lanemath_border_double3 lanemath_call_fmin3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("fmin3");
/** the smaller of x and y, a number before a NaN; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_fmin3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, fmin3, double3, double3, double3, x, y);
}
#define lanemath_fmin3(x, y) \
/** the smaller of x and y, a number before a NaN; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_border, fmin3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_fmin4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("fmin4");
/** the smaller of x and y, a number before a NaN; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_fmin4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, fmin4, double4, double4, double4, x, y);
}
#define lanemath_fmin4(x, y) \
/** the smaller of x and y, a number before a NaN; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fmin4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_fmin8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("fmin8");
/** the smaller of x and y, a number before a NaN; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_fmin8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, fmin8, double8, double8, double8, x, y);
}
#define lanemath_fmin8(x, y) \
/** the smaller of x and y, a number before a NaN; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fmin8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_fmin16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("fmin16");
/** the smaller of x and y, a number before a NaN; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_fmin16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, fmin16, double16, double16, double16, x, y);
}
#define lanemath_fmin16(x, y) \
/** the smaller of x and y, a number before a NaN; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fmin16, double16, double16, double16, x, y)

/** the smaller of x and y, a number before a NaN; one float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_fminf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("fminf1");
/** the smaller of x and y, a number before a NaN; 2 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_fminf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("fminf2");
/** the smaller of x and y, a number before a NaN; 3 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_fminf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("fminf3");
/** the smaller of x and y, a number before a NaN; 4 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_fminf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("fminf4");
lanemath_wide_float8 lanemath_call_fminf8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("fminf8");
/** the smaller of x and y, a number before a NaN; 8 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_fminf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, fminf8, float8, float8, float8, x, y);
}
#define lanemath_fminf8(x, y) \
/** the smaller of x and y, a number before a NaN; 8 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fminf8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_fminf16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("fminf16");
/** the smaller of x and y, a number before a NaN; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_fminf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, fminf16, float16, float16, float16, x, y);
}
#define lanemath_fminf16(x, y) \
/** the smaller of x and y, a number before a NaN; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fminf16, float16, float16, float16, x, y)

/** the one of x and y with the larger magnitude; one double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_double1 lanemath_maxmag1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("maxmag1");
/** the one of x and y with the larger magnitude; 2 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_maxmag2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("maxmag2");
lanemath_border_double3 lanemath_call_maxmag3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("maxmag3");
/** the one of x and y with the larger magnitude; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_maxmag3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, maxmag3, double3, double3, double3, x, y);
}
#define lanemath_maxmag3(x, y) \
/** the one of x and y with the larger magnitude; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_border, maxmag3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_maxmag4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("maxmag4");
/** the one of x and y with the larger magnitude; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_maxmag4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, maxmag4, double4, double4, double4, x, y);
}
#define lanemath_maxmag4(x, y) \
/** the one of x and y with the larger magnitude; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, maxmag4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_maxmag8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("maxmag8");
/** the one of x and y with the larger magnitude; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_maxmag8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, maxmag8, double8, double8, double8, x, y);
}
#define lanemath_maxmag8(x, y) \
/** the one of x and y with the larger magnitude; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, maxmag8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_maxmag16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("maxmag16");
/** the one of x and y with the larger magnitude; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_maxmag16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, maxmag16, double16, double16, double16, x, y);
}
#define lanemath_maxmag16(x, y) \
/** the one of x and y with the larger magnitude; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, maxmag16, double16, double16, double16, x, y)

/** the one of x and y with the larger magnitude; one float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_maxmagf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("maxmagf1");
/** the one of x and y with the larger magnitude; 2 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_maxmagf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("maxmagf2");
/** the one of x and y with the larger magnitude; 3 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_maxmagf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("maxmagf3");
/** the one of x and y with the larger magnitude; 4 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_maxmagf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("maxmagf4");
lanemath_wide_float8 lanemath_call_maxmagf8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("maxmagf8");
/** the one of x and y with the larger magnitude; 8 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_maxmagf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, maxmagf8, float8, float8, float8, x, y);
}
#define lanemath_maxmagf8(x, y) \
/** the one of x and y with the larger magnitude; 8 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, maxmagf8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_maxmagf16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("maxmagf16");
/** the one of x and y with the larger magnitude; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_maxmagf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, maxmagf16, float16, float16, float16, x, y);
}
#define lanemath_maxmagf16(x, y) \
/** the one of x and y with the larger magnitude; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, maxmagf16, float16, float16, float16, x, y)

/** the one of x and y with the smaller magnitude; one double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_double1 lanemath_minmag1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("minmag1");
/** the one of x and y with the smaller magnitude; 2 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_minmag2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("minmag2");
lanemath_border_double3 lanemath_call_minmag3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("minmag3");
/** the one of x and y with the smaller magnitude; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_minmag3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, minmag3, double3, double3, double3, x, y);
}
#define lanemath_minmag3(x, y) \
/** the one of x and y with the smaller magnitude; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_border, minmag3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_minmag4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("minmag4");
/** the one of x and y with the smaller magnitude; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_minmag4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, minmag4, double4, double4, double4, x, y);
}
#define lanemath_minmag4(x, y) \
/** the one of x and y with the smaller magnitude; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, minmag4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_minmag8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("minmag8");
/** the one of x and y with the smaller magnitude; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_minmag8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, minmag8, double8, double8, double8, x, y);
}
#define lanemath_minmag8(x, y) \
/** the one of x and y with the smaller magnitude; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, minmag8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_minmag16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("minmag16");
/** the one of x and y with the smaller magnitude; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_minmag16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, minmag16, double16, double16, double16, x, y);
}
#define lanemath_minmag16(x, y) \
/** the one of x and y with the smaller magnitude; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, minmag16, double16, double16, double16, x, y)

/** the one of x and y with the smaller magnitude; one float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_minmagf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("minmagf1");
/** the one of x and y with the smaller magnitude; 2 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_minmagf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("minmagf2");
/** the one of x and y with the smaller magnitude; 3 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_minmagf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("minmagf3");
/** the one of x and y with the smaller magnitude; 4 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_minmagf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("minmagf4");
lanemath_wide_float8 lanemath_call_minmagf8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("minmagf8");
/** the one of x and y with the smaller magnitude; 8 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_minmagf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, minmagf8, float8, float8, float8, x, y);
}
#define lanemath_minmagf8(x, y) \
/** the one of x and y with the smaller magnitude; 8 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, minmagf8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_minmagf16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("minmagf16");
/** the one of x and y with the smaller magnitude; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_minmagf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, minmagf16, float16, float16, float16, x, y);
}
#define lanemath_minmagf16(x, y) \
/** the one of x and y with the smaller magnitude; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, minmagf16, float16, float16, float16, x, y)

/** x - floor(x), below 1; floor(x) through the pointer; one double. Largest error 1 ulp. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
lanemath_double1 lanemath_fract1(lanemath_double1 x, lanemath_double1* floor) LANEMATH_NAMED("fract1");
/** x - floor(x), below 1; floor(x) through the pointer; 2 lanes of double. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_fract2(lanemath_double2 x, lanemath_double2* floor) LANEMATH_NAMED("fract2");
lanemath_border_double3 lanemath_call_fract3(lanemath_border_double3, lanemath_double3*) LANEMATH_NAMED("fract3");
/** x - floor(x), below 1; floor(x) through the pointer; 3 lanes of double. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_fract3(lanemath_double3 x, lanemath_double3* floor) {
  return LANEMATH_UNARY_POINTER(lanemath_border, fract3, double3, double3, double3, x, floor);
}
#define lanemath_fract3(x, floor) \
/** x - floor(x), below 1; floor(x) through the pointer; 3 lanes of double. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_border, fract3, double3, double3, double3, x, floor)
lanemath_wide_double4 lanemath_call_fract4(lanemath_wide_double4, lanemath_double4*) LANEMATH_NAMED_WIDE("fract4");
/** x - floor(x), below 1; floor(x) through the pointer; 4 lanes of double. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_fract4(lanemath_double4 x, lanemath_double4* floor) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, fract4, double4, double4, double4, x, floor);
}
#define lanemath_fract4(x, floor) \
/** x - floor(x), below 1; floor(x) through the pointer; 4 lanes of double. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, fract4, double4, double4, double4, x, floor)
lanemath_wide_double8 lanemath_call_fract8(lanemath_wide_double8, lanemath_double8*) LANEMATH_NAMED_WIDE("fract8");
/** x - floor(x), below 1; floor(x) through the pointer; 8 lanes of double. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_fract8(lanemath_double8 x, lanemath_double8* floor) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, fract8, double8, double8, double8, x, floor);
}
#define lanemath_fract8(x, floor) \
/** x - floor(x), below 1; floor(x) through the pointer; 8 lanes of double. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, fract8, double8, double8, double8, x, floor)
lanemath_wide_double16 lanemath_call_fract16(lanemath_wide_double16, lanemath_double16*) LANEMATH_NAMED_WIDE("fract16");
/** x - floor(x), below 1; floor(x) through the pointer; 16 lanes of double. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_fract16(lanemath_double16 x, lanemath_double16* floor) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, fract16, double16, double16, double16, x, floor);
}
#define lanemath_fract16(x, floor) \
/** x - floor(x), below 1; floor(x) through the pointer; 16 lanes of double. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, fract16, double16, double16, double16, x, floor)

/** x - floor(x), below 1; floor(x) through the pointer; one float. Largest error 1 ulp. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_fractf1(lanemath_float1 x, lanemath_float1* floor) LANEMATH_NAMED("fractf1");
/** x - floor(x), below 1; floor(x) through the pointer; 2 lanes of float. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_fractf2(lanemath_float2 x, lanemath_float2* floor) LANEMATH_NAMED("fractf2");
/** x - floor(x), below 1; floor(x) through the pointer; 3 lanes of float. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_fractf3(lanemath_float3 x, lanemath_float3* floor) LANEMATH_NAMED("fractf3");
/** x - floor(x), below 1; floor(x) through the pointer; 4 lanes of float. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_fractf4(lanemath_float4 x, lanemath_float4* floor) LANEMATH_NAMED("fractf4");
lanemath_wide_float8 lanemath_call_fractf8(lanemath_wide_float8, lanemath_float8*) LANEMATH_NAMED_WIDE("fractf8");
/** x - floor(x), below 1; floor(x) through the pointer; 8 lanes of float. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_fractf8(lanemath_float8 x, lanemath_float8* floor) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, fractf8, float8, float8, float8, x, floor);
}
#define lanemath_fractf8(x, floor) \
/** x - floor(x), below 1; floor(x) through the pointer; 8 lanes of float. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, fractf8, float8, float8, float8, x, floor)
lanemath_wide_float16 lanemath_call_fractf16(lanemath_wide_float16, lanemath_float16*) LANEMATH_NAMED_WIDE("fractf16");
/** x - floor(x), below 1; floor(x) through the pointer; 16 lanes of float. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_fractf16(lanemath_float16 x, lanemath_float16* floor) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, fractf16, float16, float16, float16, x, floor);
}
#define lanemath_fractf16(x, floor) \
/** x - floor(x), below 1; floor(x) through the pointer; 16 lanes of float. Largest error 1 ulp. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, fractf16, float16, float16, float16, x, floor)

/** fraction of x; integral part through the pointer; one double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
lanemath_double1 lanemath_modf1(lanemath_double1 x, lanemath_double1* integer) LANEMATH_NAMED("modf1");
/** fraction of x; integral part through the pointer; 2 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_modf2(lanemath_double2 x, lanemath_double2* integer) LANEMATH_NAMED("modf2");
lanemath_border_double3 lanemath_call_modf3(lanemath_border_double3, lanemath_double3*) LANEMATH_NAMED("modf3");
/** fraction of x; integral part through the pointer; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_modf3(lanemath_double3 x, lanemath_double3* integer) {
  return LANEMATH_UNARY_POINTER(lanemath_border, modf3, double3, double3, double3, x, integer);
}
#define lanemath_modf3(x, integer) \
/** fraction of x; integral part through the pointer; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_border, modf3, double3, double3, double3, x, integer)
lanemath_wide_double4 lanemath_call_modf4(lanemath_wide_double4, lanemath_double4*) LANEMATH_NAMED_WIDE("modf4");
/** fraction of x; integral part through the pointer; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_modf4(lanemath_double4 x, lanemath_double4* integer) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, modf4, double4, double4, double4, x, integer);
}
#define lanemath_modf4(x, integer) \
/** fraction of x; integral part through the pointer; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, modf4, double4, double4, double4, x, integer)
lanemath_wide_double8 lanemath_call_modf8(lanemath_wide_double8, lanemath_double8*) LANEMATH_NAMED_WIDE("modf8");
/** fraction of x; integral part through the pointer; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_modf8(lanemath_double8 x, lanemath_double8* integer) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, modf8, double8, double8, double8, x, integer);
}
#define lanemath_modf8(x, integer) \
/** fraction of x; integral part through the pointer; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, modf8, double8, double8, double8, x, integer)
lanemath_wide_double16 lanemath_call_modf16(lanemath_wide_double16, lanemath_double16*) LANEMATH_NAMED_WIDE("modf16");
/** fraction of x; integral part through the pointer; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_modf16(lanemath_double16 x, lanemath_double16* integer) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, modf16, double16, double16, double16, x, integer);
}
#define lanemath_modf16(x, integer) \
/** fraction of x; integral part through the pointer; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, modf16, double16, double16, double16, x, integer)

/** fraction of x; integral part through the pointer; one float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_modff1(lanemath_float1 x, lanemath_float1* integer) LANEMATH_NAMED("modff1");
/** fraction of x; integral part through the pointer; 2 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_modff2(lanemath_float2 x, lanemath_float2* integer) LANEMATH_NAMED("modff2");
/** fraction of x; integral part through the pointer; 3 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_modff3(lanemath_float3 x, lanemath_float3* integer) LANEMATH_NAMED("modff3");
/** fraction of x; integral part through the pointer; 4 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_modff4(lanemath_float4 x, lanemath_float4* integer) LANEMATH_NAMED("modff4");
lanemath_wide_float8 lanemath_call_modff8(lanemath_wide_float8, lanemath_float8*) LANEMATH_NAMED_WIDE("modff8");
/** fraction of x; integral part through the pointer; 8 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_modff8(lanemath_float8 x, lanemath_float8* integer) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, modff8, float8, float8, float8, x, integer);
}
#define lanemath_modff8(x, integer) \
/** fraction of x; integral part through the pointer; 8 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, modff8, float8, float8, float8, x, integer)
lanemath_wide_float16 lanemath_call_modff16(lanemath_wide_float16, lanemath_float16*) LANEMATH_NAMED_WIDE("modff16");
/** fraction of x; integral part through the pointer; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_modff16(lanemath_float16 x, lanemath_float16* integer) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, modff16, float16, float16, float16, x, integer);
}
#define lanemath_modff16(x, integer) \
/** fraction of x; integral part through the pointer; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, modff16, float16, float16, float16, x, integer)

/** significand of x in [0.5, 1); exponent through the pointer; one double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_double1 lanemath_frexp1(lanemath_double1 x, lanemath_int1* exponent) LANEMATH_NAMED("frexp1");
/** significand of x in [0.5, 1); exponent through the pointer; 2 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_frexp2(lanemath_double2 x, lanemath_int2* exponent) LANEMATH_NAMED("frexp2");
lanemath_border_double3 lanemath_call_frexp3(lanemath_border_double3, lanemath_int3*) LANEMATH_NAMED("frexp3");
/** significand of x in [0.5, 1); exponent through the pointer; 3 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_frexp3(lanemath_double3 x, lanemath_int3* exponent) {
  return LANEMATH_UNARY_POINTER(lanemath_border, frexp3, double3, double3, int3, x, exponent);
}
#define lanemath_frexp3(x, exponent) \
/** significand of x in [0.5, 1); exponent through the pointer; 3 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_border, frexp3, double3, double3, int3, x, exponent)
lanemath_wide_double4 lanemath_call_frexp4(lanemath_wide_double4, lanemath_int4*) LANEMATH_NAMED_WIDE("frexp4");
/** significand of x in [0.5, 1); exponent through the pointer; 4 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_frexp4(lanemath_double4 x, lanemath_int4* exponent) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, frexp4, double4, double4, int4, x, exponent);
}
#define lanemath_frexp4(x, exponent) \
/** significand of x in [0.5, 1); exponent through the pointer; 4 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, frexp4, double4, double4, int4, x, exponent)
lanemath_wide_double8 lanemath_call_frexp8(lanemath_wide_double8, lanemath_int8*) LANEMATH_NAMED_WIDE("frexp8");
/** significand of x in [0.5, 1); exponent through the pointer; 8 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_frexp8(lanemath_double8 x, lanemath_int8* exponent) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, frexp8, double8, double8, int8, x, exponent);
}
#define lanemath_frexp8(x, exponent) \
/** significand of x in [0.5, 1); exponent through the pointer; 8 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, frexp8, double8, double8, int8, x, exponent)
lanemath_wide_double16 lanemath_call_frexp16(lanemath_wide_double16, lanemath_int16*) LANEMATH_NAMED_WIDE("frexp16");
/** significand of x in [0.5, 1); exponent through the pointer; 16 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_frexp16(lanemath_double16 x, lanemath_int16* exponent) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, frexp16, double16, double16, int16, x, exponent);
}
#define lanemath_frexp16(x, exponent) \
/** significand of x in [0.5, 1); exponent through the pointer; 16 lanes of double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, frexp16, double16, double16, int16, x, exponent)

/** significand of x in [0.5, 1); exponent through the pointer; one float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_frexpf1(lanemath_float1 x, lanemath_int1* exponent) LANEMATH_NAMED("frexpf1");
/** significand of x in [0.5, 1); exponent through the pointer; 2 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_frexpf2(lanemath_float2 x, lanemath_int2* exponent) LANEMATH_NAMED("frexpf2");
/** significand of x in [0.5, 1); exponent through the pointer; 3 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_frexpf3(lanemath_float3 x, lanemath_int3* exponent) LANEMATH_NAMED("frexpf3");
/** significand of x in [0.5, 1); exponent through the pointer; 4 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_frexpf4(lanemath_float4 x, lanemath_int4* exponent) LANEMATH_NAMED("frexpf4");
lanemath_wide_float8 lanemath_call_frexpf8(lanemath_wide_float8, lanemath_int8*) LANEMATH_NAMED_WIDE("frexpf8");
/** significand of x in [0.5, 1); exponent through the pointer; 8 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_frexpf8(lanemath_float8 x, lanemath_int8* exponent) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, frexpf8, float8, float8, int8, x, exponent);
}
#define lanemath_frexpf8(x, exponent) \
/** significand of x in [0.5, 1); exponent through the pointer; 8 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, frexpf8, float8, float8, int8, x, exponent)
lanemath_wide_float16 lanemath_call_frexpf16(lanemath_wide_float16, lanemath_int16*) LANEMATH_NAMED_WIDE("frexpf16");
/** significand of x in [0.5, 1); exponent through the pointer; 16 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_frexpf16(lanemath_float16 x, lanemath_int16* exponent) {
  return LANEMATH_UNARY_POINTER(lanemath_wide, frexpf16, float16, float16, int16, x, exponent);
}
#define lanemath_frexpf16(x, exponent) \
/** significand of x in [0.5, 1); exponent through the pointer; 16 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY_POINTER(lanemath_wide, frexpf16, float16, float16, int16, x, exponent)

/** x times 2 to the power y; one double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double1 lanemath_ldexp1(lanemath_double1 x, lanemath_int1 y) LANEMATH_NAMED("ldexp1");
/** x times 2 to the power y; 2 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double2 lanemath_ldexp2(lanemath_double2 x, lanemath_int2 y) LANEMATH_NAMED("ldexp2");
lanemath_border_double3 lanemath_call_ldexp3(lanemath_border_double3, lanemath_border_int3) LANEMATH_NAMED("ldexp3");
/** x times 2 to the power y; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_ldexp3(lanemath_double3 x, lanemath_int3 y) {
  return LANEMATH_BINARY(lanemath_border, ldexp3, double3, double3, int3, x, y);
}
#define lanemath_ldexp3(x, y) \
/** x times 2 to the power y; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_border, ldexp3, double3, double3, int3, x, y)
lanemath_wide_double4 lanemath_call_ldexp4(lanemath_wide_double4, lanemath_wide_int4) LANEMATH_NAMED_WIDE("ldexp4");
/** x times 2 to the power y; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_ldexp4(lanemath_double4 x, lanemath_int4 y) {
  return LANEMATH_BINARY(lanemath_wide, ldexp4, double4, double4, int4, x, y);
}
#define lanemath_ldexp4(x, y) \
/** x times 2 to the power y; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, ldexp4, double4, double4, int4, x, y)
lanemath_wide_double8 lanemath_call_ldexp8(lanemath_wide_double8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("ldexp8");
/** x times 2 to the power y; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_ldexp8(lanemath_double8 x, lanemath_int8 y) {
  return LANEMATH_BINARY(lanemath_wide, ldexp8, double8, double8, int8, x, y);
}
#define lanemath_ldexp8(x, y) \
/** x times 2 to the power y; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, ldexp8, double8, double8, int8, x, y)
lanemath_wide_double16 lanemath_call_ldexp16(lanemath_wide_double16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("ldexp16");
/** x times 2 to the power y; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_ldexp16(lanemath_double16 x, lanemath_int16 y) {
  return LANEMATH_BINARY(lanemath_wide, ldexp16, double16, double16, int16, x, y);
}
#define lanemath_ldexp16(x, y) \
/** x times 2 to the power y; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, ldexp16, double16, double16, int16, x, y)

/** x times 2 to the power y; one float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float1 lanemath_ldexpf1(lanemath_float1 x, lanemath_int1 y) LANEMATH_NAMED("ldexpf1");
/** x times 2 to the power y; 2 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float2 lanemath_ldexpf2(lanemath_float2 x, lanemath_int2 y) LANEMATH_NAMED("ldexpf2");
/** x times 2 to the power y; 3 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float3 lanemath_ldexpf3(lanemath_float3 x, lanemath_int3 y) LANEMATH_NAMED("ldexpf3");
/** x times 2 to the power y; 4 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float4 lanemath_ldexpf4(lanemath_float4 x, lanemath_int4 y) LANEMATH_NAMED("ldexpf4");
lanemath_wide_float8 lanemath_call_ldexpf8(lanemath_wide_float8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("ldexpf8");
/** x times 2 to the power y; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_ldexpf8(lanemath_float8 x, lanemath_int8 y) {
  return LANEMATH_BINARY(lanemath_wide, ldexpf8, float8, float8, int8, x, y);
}
#define lanemath_ldexpf8(x, y) \
/** x times 2 to the power y; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, ldexpf8, float8, float8, int8, x, y)
lanemath_wide_float16 lanemath_call_ldexpf16(lanemath_wide_float16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("ldexpf16");
/** x times 2 to the power y; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_ldexpf16(lanemath_float16 x, lanemath_int16 y) {
  return LANEMATH_BINARY(lanemath_wide, ldexpf16, float16, float16, int16, x, y);
}
#define lanemath_ldexpf16(x, y) \
/** x times 2 to the power y; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, ldexpf16, float16, float16, int16, x, y)

/** exponent of x as an integer; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_int1 lanemath_ilogb1(lanemath_double1 x) LANEMATH_NAMED("ilogb1");
/** exponent of x as an integer; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_int2 lanemath_ilogb2(lanemath_double2 x) LANEMATH_NAMED("ilogb2");
lanemath_border_int3 lanemath_call_ilogb3(lanemath_border_double3) LANEMATH_NAMED("ilogb3");
/** exponent of x as an integer; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_int3 lanemath_ilogb3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, ilogb3, int3, double3, x);
}
#define lanemath_ilogb3(x) \
/** exponent of x as an integer; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_border, ilogb3, int3, double3, x)
lanemath_wide_int4 lanemath_call_ilogb4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("ilogb4");
/** exponent of x as an integer; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_int4 lanemath_ilogb4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, ilogb4, int4, double4, x);
}
#define lanemath_ilogb4(x) \
/** exponent of x as an integer; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, ilogb4, int4, double4, x)
lanemath_wide_int8 lanemath_call_ilogb8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("ilogb8");
/** exponent of x as an integer; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_ilogb8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, ilogb8, int8, double8, x);
}
#define lanemath_ilogb8(x) \
/** exponent of x as an integer; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, ilogb8, int8, double8, x)
lanemath_wide_int16 lanemath_call_ilogb16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("ilogb16");
/** exponent of x as an integer; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_ilogb16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, ilogb16, int16, double16, x);
}
#define lanemath_ilogb16(x) \
/** exponent of x as an integer; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, ilogb16, int16, double16, x)

/** exponent of x as an integer; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_int1 lanemath_ilogbf1(lanemath_float1 x) LANEMATH_NAMED("ilogbf1");
/** exponent of x as an integer; 2 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_int2 lanemath_ilogbf2(lanemath_float2 x) LANEMATH_NAMED("ilogbf2");
/** exponent of x as an integer; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_int3 lanemath_ilogbf3(lanemath_float3 x) LANEMATH_NAMED("ilogbf3");
/** exponent of x as an integer; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_int4 lanemath_ilogbf4(lanemath_float4 x) LANEMATH_NAMED("ilogbf4");
lanemath_wide_int8 lanemath_call_ilogbf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("ilogbf8");
/** exponent of x as an integer; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_ilogbf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, ilogbf8, int8, float8, x);
}
#define lanemath_ilogbf8(x) \
/** exponent of x as an integer; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, ilogbf8, int8, float8, x)
lanemath_wide_int16 lanemath_call_ilogbf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("ilogbf16");
/** exponent of x as an integer; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_ilogbf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, ilogbf16, int16, float16, x);
}
#define lanemath_ilogbf16(x) \
/** exponent of x as an integer; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, ilogbf16, int16, float16, x)

/** exponent of x as a floating value; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double1 lanemath_logb1(lanemath_double1 x) LANEMATH_NAMED("logb1");
/** exponent of x as a floating value; 2 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_logb2(lanemath_double2 x) LANEMATH_NAMED("logb2");
lanemath_border_double3 lanemath_call_logb3(lanemath_border_double3) LANEMATH_NAMED("logb3");
/** exponent of x as a floating value; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_logb3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, logb3, double3, double3, x);
}
#define lanemath_logb3(x) \
/** exponent of x as a floating value; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_border, logb3, double3, double3, x)
lanemath_wide_double4 lanemath_call_logb4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("logb4");
/** exponent of x as a floating value; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_logb4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, logb4, double4, double4, x);
}
#define lanemath_logb4(x) \
/** exponent of x as a floating value; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, logb4, double4, double4, x)
lanemath_wide_double8 lanemath_call_logb8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("logb8");
/** exponent of x as a floating value; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_logb8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, logb8, double8, double8, x);
}
#define lanemath_logb8(x) \
/** exponent of x as a floating value; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, logb8, double8, double8, x)
lanemath_wide_double16 lanemath_call_logb16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("logb16");
/** exponent of x as a floating value; 16 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_logb16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, logb16, double16, double16, x);
}
#define lanemath_logb16(x) \
/** exponent of x as a floating value; 16 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, logb16, double16, double16, x)

/** exponent of x as a floating value; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float1 lanemath_logbf1(lanemath_float1 x) LANEMATH_NAMED("logbf1");
/** exponent of x as a floating value; 2 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_logbf2(lanemath_float2 x) LANEMATH_NAMED("logbf2");
/** exponent of x as a floating value; 3 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_logbf3(lanemath_float3 x) LANEMATH_NAMED("logbf3");
/** exponent of x as a floating value; 4 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_logbf4(lanemath_float4 x) LANEMATH_NAMED("logbf4");
lanemath_wide_float8 lanemath_call_logbf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("logbf8");
/** exponent of x as a floating value; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_logbf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, logbf8, float8, float8, x);
}
#define lanemath_logbf8(x) \
/** exponent of x as a floating value; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, logbf8, float8, float8, x)
lanemath_wide_float16 lanemath_call_logbf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("logbf16");
/** exponent of x as a floating value; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_logbf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, logbf16, float16, float16, x);
}
#define lanemath_logbf16(x) \
/** exponent of x as a floating value; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, logbf16, float16, float16, x)

/** a quiet NaN with the payload x; one ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double1 lanemath_nan1(lanemath_ulong1 x) LANEMATH_NAMED("nan1");
/** a quiet NaN with the payload x; 2 lanes of ulong. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_nan2(lanemath_ulong2 x) LANEMATH_NAMED("nan2");
lanemath_border_double3 lanemath_call_nan3(lanemath_border_ulong3) LANEMATH_NAMED("nan3");
/** a quiet NaN with the payload x; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_nan3(lanemath_ulong3 x) {
  return LANEMATH_UNARY(lanemath_border, nan3, double3, ulong3, x);
}
#define lanemath_nan3(x) \
/** a quiet NaN with the payload x; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_border, nan3, double3, ulong3, x)
lanemath_wide_double4 lanemath_call_nan4(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("nan4");
/** a quiet NaN with the payload x; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_nan4(lanemath_ulong4 x) {
  return LANEMATH_UNARY(lanemath_wide, nan4, double4, ulong4, x);
}
#define lanemath_nan4(x) \
/** a quiet NaN with the payload x; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, nan4, double4, ulong4, x)
lanemath_wide_double8 lanemath_call_nan8(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("nan8");
/** a quiet NaN with the payload x; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_nan8(lanemath_ulong8 x) {
  return LANEMATH_UNARY(lanemath_wide, nan8, double8, ulong8, x);
}
#define lanemath_nan8(x) \
/** a quiet NaN with the payload x; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, nan8, double8, ulong8, x)
lanemath_wide_double16 lanemath_call_nan16(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("nan16");
/** a quiet NaN with the payload x; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_nan16(lanemath_ulong16 x) {
  return LANEMATH_UNARY(lanemath_wide, nan16, double16, ulong16, x);
}
#define lanemath_nan16(x) \
/** a quiet NaN with the payload x; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, nan16, double16, ulong16, x)

/** a quiet NaN with the payload x; one uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float1 lanemath_nanf1(lanemath_uint1 x) LANEMATH_NAMED("nanf1");
/** a quiet NaN with the payload x; 2 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float2 lanemath_nanf2(lanemath_uint2 x) LANEMATH_NAMED("nanf2");
/** a quiet NaN with the payload x; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float3 lanemath_nanf3(lanemath_uint3 x) LANEMATH_NAMED("nanf3");
/** a quiet NaN with the payload x; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float4 lanemath_nanf4(lanemath_uint4 x) LANEMATH_NAMED("nanf4");
lanemath_wide_float8 lanemath_call_nanf8(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("nanf8");
/** a quiet NaN with the payload x; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_nanf8(lanemath_uint8 x) {
  return LANEMATH_UNARY(lanemath_wide, nanf8, float8, uint8, x);
}
#define lanemath_nanf8(x) \
/** a quiet NaN with the payload x; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, nanf8, float8, uint8, x)
lanemath_wide_float16 lanemath_call_nanf16(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("nanf16");
/** a quiet NaN with the payload x; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_nanf16(lanemath_uint16 x) {
  return LANEMATH_UNARY(lanemath_wide, nanf16, float16, uint16, x);
}
#define lanemath_nanf16(x) \
/** a quiet NaN with the payload x; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */ \
  LANEMATH_UNARY(lanemath_wide, nanf16, float16, uint16, x)

/** the value next to x in the direction of y; one double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_double1 lanemath_nextafter1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("nextafter1");
/** the value next to x in the direction of y; 2 lanes of double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_nextafter2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("nextafter2");
lanemath_border_double3 lanemath_call_nextafter3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("nextafter3");
/** the value next to x in the direction of y; 3 lanes of double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_nextafter3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, nextafter3, double3, double3, double3, x, y);
}
#define lanemath_nextafter3(x, y) \
/** the value next to x in the direction of y; 3 lanes of double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_border, nextafter3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_nextafter4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("nextafter4");
/** the value next to x in the direction of y; 4 lanes of double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_nextafter4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, nextafter4, double4, double4, double4, x, y);
}
#define lanemath_nextafter4(x, y) \
/** the value next to x in the direction of y; 4 lanes of double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, nextafter4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_nextafter8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("nextafter8");
/** the value next to x in the direction of y; 8 lanes of double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_nextafter8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, nextafter8, double8, double8, double8, x, y);
}
#define lanemath_nextafter8(x, y) \
/** the value next to x in the direction of y; 8 lanes of double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, nextafter8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_nextafter16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("nextafter16");
/** the value next to x in the direction of y; 16 lanes of double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_nextafter16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, nextafter16, double16, double16, double16, x, y);
}
#define lanemath_nextafter16(x, y) \
/** the value next to x in the direction of y; 16 lanes of double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, nextafter16, double16, double16, double16, x, y)

/** the value next to x in the direction of y; one float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_nextafterf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("nextafterf1");
/** the value next to x in the direction of y; 2 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_nextafterf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("nextafterf2");
/** the value next to x in the direction of y; 3 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_nextafterf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("nextafterf3");
/** the value next to x in the direction of y; 4 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_nextafterf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("nextafterf4");
lanemath_wide_float8 lanemath_call_nextafterf8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("nextafterf8");
/** the value next to x in the direction of y; 8 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_nextafterf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, nextafterf8, float8, float8, float8, x, y);
}
#define lanemath_nextafterf8(x, y) \
/** the value next to x in the direction of y; 8 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, nextafterf8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_nextafterf16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("nextafterf16");
/** the value next to x in the direction of y; 16 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_nextafterf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, nextafterf16, float16, float16, float16, x, y);
}
#define lanemath_nextafterf16(x, y) \
/** the value next to x in the direction of y; 16 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, nextafterf16, float16, float16, float16, x, y)

/** remainder of x / y, quotient truncated; one double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */
lanemath_double1 lanemath_fmod1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("fmod1");
/** remainder of x / y, quotient truncated; 2 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_fmod2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("fmod2");
lanemath_border_double3 lanemath_call_fmod3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("fmod3");
/** remainder of x / y, quotient truncated; 3 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_fmod3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, fmod3, double3, double3, double3, x, y);
}
#define lanemath_fmod3(x, y) \
/** remainder of x / y, quotient truncated; 3 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_border, fmod3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_fmod4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("fmod4");
/** remainder of x / y, quotient truncated; 4 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_fmod4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, fmod4, double4, double4, double4, x, y);
}
#define lanemath_fmod4(x, y) \
/** remainder of x / y, quotient truncated; 4 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fmod4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_fmod8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("fmod8");
/** remainder of x / y, quotient truncated; 8 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_fmod8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, fmod8, double8, double8, double8, x, y);
}
#define lanemath_fmod8(x, y) \
/** remainder of x / y, quotient truncated; 8 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fmod8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_fmod16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("fmod16");
/** remainder of x / y, quotient truncated; 16 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_fmod16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, fmod16, double16, double16, double16, x, y);
}
#define lanemath_fmod16(x, y) \
/** remainder of x / y, quotient truncated; 16 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fmod16, double16, double16, double16, x, y)

/** remainder of x / y, quotient truncated; one float. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_fmodf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("fmodf1");
/** remainder of x / y, quotient truncated; 2 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_fmodf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("fmodf2");
/** remainder of x / y, quotient truncated; 3 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_fmodf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("fmodf3");
/** remainder of x / y, quotient truncated; 4 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_fmodf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("fmodf4");
lanemath_wide_float8 lanemath_call_fmodf8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("fmodf8");
/** remainder of x / y, quotient truncated; 8 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_fmodf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, fmodf8, float8, float8, float8, x, y);
}
#define lanemath_fmodf8(x, y) \
/** remainder of x / y, quotient truncated; 8 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fmodf8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_fmodf16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("fmodf16");
/** remainder of x / y, quotient truncated; 16 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_fmodf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, fmodf16, float16, float16, float16, x, y);
}
#define lanemath_fmodf16(x, y) \
/** remainder of x / y, quotient truncated; 16 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, fmodf16, float16, float16, float16, x, y)

/** remainder of x / y, quotient to nearest even; one double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/manipulation.h>. */
lanemath_double1 lanemath_remainder1(lanemath_double1 x, lanemath_double1 y) LANEMATH_NAMED("remainder1");
/** remainder of x / y, quotient to nearest even; 2 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_remainder2(lanemath_double2 x, lanemath_double2 y) LANEMATH_NAMED("remainder2");
lanemath_border_double3 lanemath_call_remainder3(lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("remainder3");
/** remainder of x / y, quotient to nearest even; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_remainder3(lanemath_double3 x, lanemath_double3 y) {
  return LANEMATH_BINARY(lanemath_border, remainder3, double3, double3, double3, x, y);
}
#define lanemath_remainder3(x, y) \
/** remainder of x / y, quotient to nearest even; 3 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_border, remainder3, double3, double3, double3, x, y)
lanemath_wide_double4 lanemath_call_remainder4(lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("remainder4");
/** remainder of x / y, quotient to nearest even; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_remainder4(lanemath_double4 x, lanemath_double4 y) {
  return LANEMATH_BINARY(lanemath_wide, remainder4, double4, double4, double4, x, y);
}
#define lanemath_remainder4(x, y) \
/** remainder of x / y, quotient to nearest even; 4 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, remainder4, double4, double4, double4, x, y)
lanemath_wide_double8 lanemath_call_remainder8(lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("remainder8");
/** remainder of x / y, quotient to nearest even; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_remainder8(lanemath_double8 x, lanemath_double8 y) {
  return LANEMATH_BINARY(lanemath_wide, remainder8, double8, double8, double8, x, y);
}
#define lanemath_remainder8(x, y) \
/** remainder of x / y, quotient to nearest even; 8 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, remainder8, double8, double8, double8, x, y)
lanemath_wide_double16 lanemath_call_remainder16(lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("remainder16");
/** remainder of x / y, quotient to nearest even; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_remainder16(lanemath_double16 x, lanemath_double16 y) {
  return LANEMATH_BINARY(lanemath_wide, remainder16, double16, double16, double16, x, y);
}
#define lanemath_remainder16(x, y) \
/** remainder of x / y, quotient to nearest even; 16 lanes of double. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, remainder16, double16, double16, double16, x, y)

/** remainder of x / y, quotient to nearest even; one float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_remainderf1(lanemath_float1 x, lanemath_float1 y) LANEMATH_NAMED("remainderf1");
/** remainder of x / y, quotient to nearest even; 2 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_remainderf2(lanemath_float2 x, lanemath_float2 y) LANEMATH_NAMED("remainderf2");
/** remainder of x / y, quotient to nearest even; 3 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_remainderf3(lanemath_float3 x, lanemath_float3 y) LANEMATH_NAMED("remainderf3");
/** remainder of x / y, quotient to nearest even; 4 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_remainderf4(lanemath_float4 x, lanemath_float4 y) LANEMATH_NAMED("remainderf4");
lanemath_wide_float8 lanemath_call_remainderf8(lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("remainderf8");
/** remainder of x / y, quotient to nearest even; 8 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_remainderf8(lanemath_float8 x, lanemath_float8 y) {
  return LANEMATH_BINARY(lanemath_wide, remainderf8, float8, float8, float8, x, y);
}
#define lanemath_remainderf8(x, y) \
/** remainder of x / y, quotient to nearest even; 8 lanes of float. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, remainderf8, float8, float8, float8, x, y)
lanemath_wide_float16 lanemath_call_remainderf16(lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("remainderf16");
/** remainder of x / y, quotient to nearest even; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_remainderf16(lanemath_float16 x, lanemath_float16 y) {
  return LANEMATH_BINARY(lanemath_wide, remainderf16, float16, float16, float16, x, y);
}
#define lanemath_remainderf16(x, y) \
/** remainder of x / y, quotient to nearest even; 16 lanes of float. Exact, or rounded once. Domain and special
 * values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY(lanemath_wide, remainderf16, float16, float16, float16, x, y)

/** remainder of x / y; low bits of the quotient through the pointer; one double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
lanemath_double1 lanemath_remquo1(lanemath_double1 x, lanemath_double1 y, lanemath_int1* quotient) LANEMATH_NAMED("remquo1");
/** remainder of x / y; low bits of the quotient through the pointer; 2 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/manipulation.h>. */
lanemath_double2 lanemath_remquo2(lanemath_double2 x, lanemath_double2 y, lanemath_int2* quotient) LANEMATH_NAMED("remquo2");
lanemath_border_double3 lanemath_call_remquo3(lanemath_border_double3, lanemath_border_double3, lanemath_int3*) LANEMATH_NAMED("remquo3");
/** remainder of x / y; low bits of the quotient through the pointer; 3 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_remquo3(lanemath_double3 x, lanemath_double3 y, lanemath_int3* quotient) {
  return LANEMATH_BINARY_POINTER(lanemath_border, remquo3, double3, double3, double3, int3, x, y, quotient);
}
#define lanemath_remquo3(x, y, quotient) \
/** remainder of x / y; low bits of the quotient through the pointer; 3 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY_POINTER(lanemath_border, remquo3, double3, double3, double3, int3, x, y, quotient)
lanemath_wide_double4 lanemath_call_remquo4(lanemath_wide_double4, lanemath_wide_double4, lanemath_int4*) LANEMATH_NAMED_WIDE("remquo4");
/** remainder of x / y; low bits of the quotient through the pointer; 4 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_remquo4(lanemath_double4 x, lanemath_double4 y, lanemath_int4* quotient) {
  return LANEMATH_BINARY_POINTER(lanemath_wide, remquo4, double4, double4, double4, int4, x, y, quotient);
}
#define lanemath_remquo4(x, y, quotient) \
/** remainder of x / y; low bits of the quotient through the pointer; 4 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY_POINTER(lanemath_wide, remquo4, double4, double4, double4, int4, x, y, quotient)
lanemath_wide_double8 lanemath_call_remquo8(lanemath_wide_double8, lanemath_wide_double8, lanemath_int8*) LANEMATH_NAMED_WIDE("remquo8");
/** remainder of x / y; low bits of the quotient through the pointer; 8 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_remquo8(lanemath_double8 x, lanemath_double8 y, lanemath_int8* quotient) {
  return LANEMATH_BINARY_POINTER(lanemath_wide, remquo8, double8, double8, double8, int8, x, y, quotient);
}
#define lanemath_remquo8(x, y, quotient) \
/** remainder of x / y; low bits of the quotient through the pointer; 8 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY_POINTER(lanemath_wide, remquo8, double8, double8, double8, int8, x, y, quotient)
lanemath_wide_double16 lanemath_call_remquo16(lanemath_wide_double16, lanemath_wide_double16, lanemath_int16*) LANEMATH_NAMED_WIDE("remquo16");
/** remainder of x / y; low bits of the quotient through the pointer; 16 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_remquo16(lanemath_double16 x, lanemath_double16 y, lanemath_int16* quotient) {
  return LANEMATH_BINARY_POINTER(lanemath_wide, remquo16, double16, double16, double16, int16, x, y, quotient);
}
#define lanemath_remquo16(x, y, quotient) \
/** remainder of x / y; low bits of the quotient through the pointer; 16 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY_POINTER(lanemath_wide, remquo16, double16, double16, double16, int16, x, y, quotient)

/** remainder of x / y; low bits of the quotient through the pointer; one float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_remquof1(lanemath_float1 x, lanemath_float1 y, lanemath_int1* quotient) LANEMATH_NAMED("remquof1");
/** remainder of x / y; low bits of the quotient through the pointer; 2 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_remquof2(lanemath_float2 x, lanemath_float2 y, lanemath_int2* quotient) LANEMATH_NAMED("remquof2");
/** remainder of x / y; low bits of the quotient through the pointer; 3 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_remquof3(lanemath_float3 x, lanemath_float3 y, lanemath_int3* quotient) LANEMATH_NAMED("remquof3");
/** remainder of x / y; low bits of the quotient through the pointer; 4 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_remquof4(lanemath_float4 x, lanemath_float4 y, lanemath_int4* quotient) LANEMATH_NAMED("remquof4");
lanemath_wide_float8 lanemath_call_remquof8(lanemath_wide_float8, lanemath_wide_float8, lanemath_int8*) LANEMATH_NAMED_WIDE("remquof8");
/** remainder of x / y; low bits of the quotient through the pointer; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_remquof8(lanemath_float8 x, lanemath_float8 y, lanemath_int8* quotient) {
  return LANEMATH_BINARY_POINTER(lanemath_wide, remquof8, float8, float8, float8, int8, x, y, quotient);
}
#define lanemath_remquof8(x, y, quotient) \
/** remainder of x / y; low bits of the quotient through the pointer; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY_POINTER(lanemath_wide, remquof8, float8, float8, float8, int8, x, y, quotient)
lanemath_wide_float16 lanemath_call_remquof16(lanemath_wide_float16, lanemath_wide_float16, lanemath_int16*) LANEMATH_NAMED_WIDE("remquof16");
/** remainder of x / y; low bits of the quotient through the pointer; 16 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_remquof16(lanemath_float16 x, lanemath_float16 y, lanemath_int16* quotient) {
  return LANEMATH_BINARY_POINTER(lanemath_wide, remquof16, float16, float16, float16, int16, x, y, quotient);
}
#define lanemath_remquof16(x, y, quotient) \
/** remainder of x / y; low bits of the quotient through the pointer; 16 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_BINARY_POINTER(lanemath_wide, remquof16, float16, float16, float16, int16, x, y, quotient)

/** x y + z with one rounding; one double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double1 lanemath_fma1(lanemath_double1 x, lanemath_double1 y, lanemath_double1 z) LANEMATH_NAMED("fma1");
/** x y + z with one rounding; 2 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_double2 lanemath_fma2(lanemath_double2 x, lanemath_double2 y, lanemath_double2 z) LANEMATH_NAMED("fma2");
lanemath_border_double3 lanemath_call_fma3(lanemath_border_double3, lanemath_border_double3, lanemath_border_double3) LANEMATH_NAMED("fma3");
/** x y + z with one rounding; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_fma3(lanemath_double3 x, lanemath_double3 y, lanemath_double3 z) {
  return LANEMATH_TERNARY(lanemath_border, fma3, double3, double3, double3, double3, x, y, z);
}
#define lanemath_fma3(x, y, z) \
/** x y + z with one rounding; 3 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_TERNARY(lanemath_border, fma3, double3, double3, double3, double3, x, y, z)
lanemath_wide_double4 lanemath_call_fma4(lanemath_wide_double4, lanemath_wide_double4, lanemath_wide_double4) LANEMATH_NAMED_WIDE("fma4");
/** x y + z with one rounding; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_fma4(lanemath_double4 x, lanemath_double4 y, lanemath_double4 z) {
  return LANEMATH_TERNARY(lanemath_wide, fma4, double4, double4, double4, double4, x, y, z);
}
#define lanemath_fma4(x, y, z) \
/** x y + z with one rounding; 4 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_TERNARY(lanemath_wide, fma4, double4, double4, double4, double4, x, y, z)
lanemath_wide_double8 lanemath_call_fma8(lanemath_wide_double8, lanemath_wide_double8, lanemath_wide_double8) LANEMATH_NAMED_WIDE("fma8");
/** x y + z with one rounding; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_fma8(lanemath_double8 x, lanemath_double8 y, lanemath_double8 z) {
  return LANEMATH_TERNARY(lanemath_wide, fma8, double8, double8, double8, double8, x, y, z);
}
#define lanemath_fma8(x, y, z) \
/** x y + z with one rounding; 8 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_TERNARY(lanemath_wide, fma8, double8, double8, double8, double8, x, y, z)
lanemath_wide_double16 lanemath_call_fma16(lanemath_wide_double16, lanemath_wide_double16, lanemath_wide_double16) LANEMATH_NAMED_WIDE("fma16");
/** x y + z with one rounding; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_fma16(lanemath_double16 x, lanemath_double16 y, lanemath_double16 z) {
  return LANEMATH_TERNARY(lanemath_wide, fma16, double16, double16, double16, double16, x, y, z);
}
#define lanemath_fma16(x, y, z) \
/** x y + z with one rounding; 16 lanes of double. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_TERNARY(lanemath_wide, fma16, double16, double16, double16, double16, x, y, z)

/** x y + z with one rounding; one float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float1 lanemath_fmaf1(lanemath_float1 x, lanemath_float1 y, lanemath_float1 z) LANEMATH_NAMED("fmaf1");
/** x y + z with one rounding; 2 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float2 lanemath_fmaf2(lanemath_float2 x, lanemath_float2 y, lanemath_float2 z) LANEMATH_NAMED("fmaf2");
/** x y + z with one rounding; 3 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float3 lanemath_fmaf3(lanemath_float3 x, lanemath_float3 y, lanemath_float3 z) LANEMATH_NAMED("fmaf3");
/** x y + z with one rounding; 4 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
lanemath_float4 lanemath_fmaf4(lanemath_float4 x, lanemath_float4 y, lanemath_float4 z) LANEMATH_NAMED("fmaf4");
lanemath_wide_float8 lanemath_call_fmaf8(lanemath_wide_float8, lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("fmaf8");
/** x y + z with one rounding; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_fmaf8(lanemath_float8 x, lanemath_float8 y, lanemath_float8 z) {
  return LANEMATH_TERNARY(lanemath_wide, fmaf8, float8, float8, float8, float8, x, y, z);
}
#define lanemath_fmaf8(x, y, z) \
/** x y + z with one rounding; 8 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_TERNARY(lanemath_wide, fmaf8, float8, float8, float8, float8, x, y, z)
lanemath_wide_float16 lanemath_call_fmaf16(lanemath_wide_float16, lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("fmaf16");
/** x y + z with one rounding; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_fmaf16(lanemath_float16 x, lanemath_float16 y, lanemath_float16 z) {
  return LANEMATH_TERNARY(lanemath_wide, fmaf16, float16, float16, float16, float16, x, y, z);
}
#define lanemath_fmaf16(x, y, z) \
/** x y + z with one rounding; 16 lanes of float. Largest error 0.5 ulp. Domain and special values: at the head of
 * <lanemath/manipulation.h>. */ \
  LANEMATH_TERNARY(lanemath_wide, fmaf16, float16, float16, float16, float16, x, y, z)

/** x y + z with one rounding; one float. The same function as the default form. Largest error 0.5 ulp. Domain and
 * special values: at the head of <lanemath/manipulation.h>. */
lanemath_float1 lanemath_fmaf1_rm(lanemath_float1 x, lanemath_float1 y, lanemath_float1 z) LANEMATH_NAMED("fmaf1_rm");
/** x y + z with one rounding; 2 lanes of float. The same function as the default form. Largest error 0.5 ulp. Domain
 * and special values: at the head of <lanemath/manipulation.h>. */
lanemath_float2 lanemath_fmaf2_rm(lanemath_float2 x, lanemath_float2 y, lanemath_float2 z) LANEMATH_NAMED("fmaf2_rm");
/** x y + z with one rounding; 3 lanes of float. The same function as the default form. Largest error 0.5 ulp. Domain
 * and special values: at the head of <lanemath/manipulation.h>. */
lanemath_float3 lanemath_fmaf3_rm(lanemath_float3 x, lanemath_float3 y, lanemath_float3 z) LANEMATH_NAMED("fmaf3_rm");
/** x y + z with one rounding; 4 lanes of float. The same function as the default form. Largest error 0.5 ulp. Domain
 * and special values: at the head of <lanemath/manipulation.h>. */
lanemath_float4 lanemath_fmaf4_rm(lanemath_float4 x, lanemath_float4 y, lanemath_float4 z) LANEMATH_NAMED("fmaf4_rm");
lanemath_wide_float8 lanemath_call_fmaf8_rm(lanemath_wide_float8, lanemath_wide_float8, lanemath_wide_float8) LANEMATH_NAMED_WIDE("fmaf8_rm");
/** x y + z with one rounding; 8 lanes of float. The same function as the default form. Largest error 0.5 ulp. Domain
 * and special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_fmaf8_rm(lanemath_float8 x, lanemath_float8 y, lanemath_float8 z) {
  return LANEMATH_TERNARY(lanemath_wide, fmaf8_rm, float8, float8, float8, float8, x, y, z);
}
#define lanemath_fmaf8_rm(x, y, z) \
/** x y + z with one rounding; 8 lanes of float. The same function as the default form. Largest error 0.5 ulp. Domain
 * and special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_TERNARY(lanemath_wide, fmaf8_rm, float8, float8, float8, float8, x, y, z)
lanemath_wide_float16 lanemath_call_fmaf16_rm(lanemath_wide_float16, lanemath_wide_float16, lanemath_wide_float16) LANEMATH_NAMED_WIDE("fmaf16_rm");
/** x y + z with one rounding; 16 lanes of float. The same function as the default form. Largest error 0.5 ulp. Domain
 * and special values: at the head of <lanemath/manipulation.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_fmaf16_rm(lanemath_float16 x, lanemath_float16 y, lanemath_float16 z) {
  return LANEMATH_TERNARY(lanemath_wide, fmaf16_rm, float16, float16, float16, float16, x, y, z);
}
#define lanemath_fmaf16_rm(x, y, z) \
/** x y + z with one rounding; 16 lanes of float. The same function as the default form. Largest error 0.5 ulp. Domain
 * and special values: at the head of <lanemath/manipulation.h>. */ \
  LANEMATH_TERNARY(lanemath_wide, fmaf16_rm, float16, float16, float16, float16, x, y, z)

LANEMATH_END

#endif
