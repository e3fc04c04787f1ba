/* Conversions.
 *
 * Between lanes of 32 and 64 bits, floating and integer, with the rounding in the name: rte to nearest even, rtn
 * down, rtp up, rtz toward zero. Floating to integer: the same whatever the current rounding direction. sat clamps
 * to the integer type's range and gives 0 for a NaN, except with 32-bit unsigned results, where a NaN with its sign
 * clear gives the largest integer. Without sat, NaNs and values that do not fit give 0x80000000 or
 * 0x8000000000000000, and unsigned results are the magnitude of the rounded value. Integer to floating: rte follows
 * the current direction; the others require that it is to nearest. double to float: rte follows the current
 * direction, the others do not.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_CONVERSION_H
#define LANEMATH_CONVERSION_H

#include <lanemath/types.h>

#pragma GCC system_header

LANEMATH_BEGIN

/** double to int, rounded to nearest even, clamped to the range of the result; one double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtesat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi32rtesat1");
/** double to int, rounded to nearest even, clamped to the range of the result; 2 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtesat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi32rtesat2");
lanemath_border_int3 lanemath_call_cvtfptoi32rtesat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi32rtesat3");
/** double to int, rounded to nearest even, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int3 lanemath_cvtfptoi32rtesat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi32rtesat3, int3, double3, x);
}
#define lanemath_cvtfptoi32rtesat3(x) \
/** double to int, rounded to nearest even, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi32rtesat3, int3, double3, x)
lanemath_wide_int4 lanemath_call_cvtfptoi32rtesat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtesat4");
/** double to int, rounded to nearest even, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int4 lanemath_cvtfptoi32rtesat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtesat4, int4, double4, x);
}
#define lanemath_cvtfptoi32rtesat4(x) \
/** double to int, rounded to nearest even, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtesat4, int4, double4, x)
lanemath_wide_int8 lanemath_call_cvtfptoi32rtesat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtesat8");
/** double to int, rounded to nearest even, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtesat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtesat8, int8, double8, x);
}
#define lanemath_cvtfptoi32rtesat8(x) \
/** double to int, rounded to nearest even, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtesat8, int8, double8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtesat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtesat16");
/** double to int, rounded to nearest even, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtesat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtesat16, int16, double16, x);
}
#define lanemath_cvtfptoi32rtesat16(x) \
/** double to int, rounded to nearest even, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtesat16, int16, double16, x)

/** float to int, rounded to nearest even, clamped to the range of the result; one float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtesatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi32rtesatf1");
/** float to int, rounded to nearest even, clamped to the range of the result; 2 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtesatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi32rtesatf2");
/** float to int, rounded to nearest even, clamped to the range of the result; 3 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_int3 lanemath_cvtfptoi32rtesatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptoi32rtesatf3");
/** float to int, rounded to nearest even, clamped to the range of the result; 4 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_int4 lanemath_cvtfptoi32rtesatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptoi32rtesatf4");
lanemath_wide_int8 lanemath_call_cvtfptoi32rtesatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtesatf8");
/** float to int, rounded to nearest even, clamped to the range of the result; 8 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtesatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtesatf8, int8, float8, x);
}
#define lanemath_cvtfptoi32rtesatf8(x) \
/** float to int, rounded to nearest even, clamped to the range of the result; 8 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtesatf8, int8, float8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtesatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtesatf16");
/** float to int, rounded to nearest even, clamped to the range of the result; 16 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtesatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtesatf16, int16, float16, x);
}
#define lanemath_cvtfptoi32rtesatf16(x) \
/** float to int, rounded to nearest even, clamped to the range of the result; 16 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtesatf16, int16, float16, x)

/** double to int, rounded to nearest even; one double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtenosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi32rtenosat1");
/** double to int, rounded to nearest even; 2 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtenosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi32rtenosat2");
lanemath_border_int3 lanemath_call_cvtfptoi32rtenosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi32rtenosat3");
/** double to int, rounded to nearest even; 3 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int3 lanemath_cvtfptoi32rtenosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi32rtenosat3, int3, double3, x);
}
#define lanemath_cvtfptoi32rtenosat3(x) \
/** double to int, rounded to nearest even; 3 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi32rtenosat3, int3, double3, x)
lanemath_wide_int4 lanemath_call_cvtfptoi32rtenosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtenosat4");
/** double to int, rounded to nearest even; 4 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int4 lanemath_cvtfptoi32rtenosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtenosat4, int4, double4, x);
}
#define lanemath_cvtfptoi32rtenosat4(x) \
/** double to int, rounded to nearest even; 4 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtenosat4, int4, double4, x)
lanemath_wide_int8 lanemath_call_cvtfptoi32rtenosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtenosat8");
/** double to int, rounded to nearest even; 8 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtenosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtenosat8, int8, double8, x);
}
#define lanemath_cvtfptoi32rtenosat8(x) \
/** double to int, rounded to nearest even; 8 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtenosat8, int8, double8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtenosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtenosat16");
/** double to int, rounded to nearest even; 16 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtenosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtenosat16, int16, double16, x);
}
#define lanemath_cvtfptoi32rtenosat16(x) \
/** double to int, rounded to nearest even; 16 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtenosat16, int16, double16, x)

/** float to int, rounded to nearest even; one float. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtenosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi32rtenosatf1");
/** float to int, rounded to nearest even; 2 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtenosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi32rtenosatf2");
/** float to int, rounded to nearest even; 3 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_int3 lanemath_cvtfptoi32rtenosatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptoi32rtenosatf3");
/** float to int, rounded to nearest even; 4 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_int4 lanemath_cvtfptoi32rtenosatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptoi32rtenosatf4");
lanemath_wide_int8 lanemath_call_cvtfptoi32rtenosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtenosatf8");
/** float to int, rounded to nearest even; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtenosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtenosatf8, int8, float8, x);
}
#define lanemath_cvtfptoi32rtenosatf8(x) \
/** float to int, rounded to nearest even; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtenosatf8, int8, float8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtenosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtenosatf16");
/** float to int, rounded to nearest even; 16 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtenosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtenosatf16, int16, float16, x);
}
#define lanemath_cvtfptoi32rtenosatf16(x) \
/** float to int, rounded to nearest even; 16 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtenosatf16, int16, float16, x)

/** double to int, rounded down, clamped to the range of the result; one double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtnsat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi32rtnsat1");
/** double to int, rounded down, clamped to the range of the result; 2 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtnsat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi32rtnsat2");
lanemath_border_int3 lanemath_call_cvtfptoi32rtnsat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi32rtnsat3");
/** double to int, rounded down, clamped to the range of the result; 3 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int3 lanemath_cvtfptoi32rtnsat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi32rtnsat3, int3, double3, x);
}
#define lanemath_cvtfptoi32rtnsat3(x) \
/** double to int, rounded down, clamped to the range of the result; 3 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi32rtnsat3, int3, double3, x)
lanemath_wide_int4 lanemath_call_cvtfptoi32rtnsat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtnsat4");
/** double to int, rounded down, clamped to the range of the result; 4 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int4 lanemath_cvtfptoi32rtnsat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnsat4, int4, double4, x);
}
#define lanemath_cvtfptoi32rtnsat4(x) \
/** double to int, rounded down, clamped to the range of the result; 4 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnsat4, int4, double4, x)
lanemath_wide_int8 lanemath_call_cvtfptoi32rtnsat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtnsat8");
/** double to int, rounded down, clamped to the range of the result; 8 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtnsat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnsat8, int8, double8, x);
}
#define lanemath_cvtfptoi32rtnsat8(x) \
/** double to int, rounded down, clamped to the range of the result; 8 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnsat8, int8, double8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtnsat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtnsat16");
/** double to int, rounded down, clamped to the range of the result; 16 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtnsat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnsat16, int16, double16, x);
}
#define lanemath_cvtfptoi32rtnsat16(x) \
/** double to int, rounded down, clamped to the range of the result; 16 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnsat16, int16, double16, x)

/** float to int, rounded down, clamped to the range of the result; one float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtnsatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi32rtnsatf1");
/** float to int, rounded down, clamped to the range of the result; 2 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtnsatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi32rtnsatf2");
/** float to int, rounded down, clamped to the range of the result; 3 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_int3 lanemath_cvtfptoi32rtnsatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptoi32rtnsatf3");
/** float to int, rounded down, clamped to the range of the result; 4 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_int4 lanemath_cvtfptoi32rtnsatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptoi32rtnsatf4");
lanemath_wide_int8 lanemath_call_cvtfptoi32rtnsatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtnsatf8");
/** float to int, rounded down, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtnsatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnsatf8, int8, float8, x);
}
#define lanemath_cvtfptoi32rtnsatf8(x) \
/** float to int, rounded down, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnsatf8, int8, float8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtnsatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtnsatf16");
/** float to int, rounded down, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtnsatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnsatf16, int16, float16, x);
}
#define lanemath_cvtfptoi32rtnsatf16(x) \
/** float to int, rounded down, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnsatf16, int16, float16, x)

/** double to int, rounded down; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtnnosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi32rtnnosat1");
/** double to int, rounded down; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtnnosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi32rtnnosat2");
lanemath_border_int3 lanemath_call_cvtfptoi32rtnnosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi32rtnnosat3");
/** double to int, rounded down; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int3 lanemath_cvtfptoi32rtnnosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi32rtnnosat3, int3, double3, x);
}
#define lanemath_cvtfptoi32rtnnosat3(x) \
/** double to int, rounded down; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi32rtnnosat3, int3, double3, x)
lanemath_wide_int4 lanemath_call_cvtfptoi32rtnnosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtnnosat4");
/** double to int, rounded down; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int4 lanemath_cvtfptoi32rtnnosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnnosat4, int4, double4, x);
}
#define lanemath_cvtfptoi32rtnnosat4(x) \
/** double to int, rounded down; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnnosat4, int4, double4, x)
lanemath_wide_int8 lanemath_call_cvtfptoi32rtnnosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtnnosat8");
/** double to int, rounded down; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtnnosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnnosat8, int8, double8, x);
}
#define lanemath_cvtfptoi32rtnnosat8(x) \
/** double to int, rounded down; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnnosat8, int8, double8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtnnosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtnnosat16");
/** double to int, rounded down; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtnnosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnnosat16, int16, double16, x);
}
#define lanemath_cvtfptoi32rtnnosat16(x) \
/** double to int, rounded down; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnnosat16, int16, double16, x)

/** float to int, rounded down; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtnnosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi32rtnnosatf1");
/** float to int, rounded down; 2 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtnnosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi32rtnnosatf2");
/** float to int, rounded down; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int3 lanemath_cvtfptoi32rtnnosatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptoi32rtnnosatf3");
/** float to int, rounded down; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int4 lanemath_cvtfptoi32rtnnosatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptoi32rtnnosatf4");
lanemath_wide_int8 lanemath_call_cvtfptoi32rtnnosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtnnosatf8");
/** float to int, rounded down; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtnnosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnnosatf8, int8, float8, x);
}
#define lanemath_cvtfptoi32rtnnosatf8(x) \
/** float to int, rounded down; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnnosatf8, int8, float8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtnnosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtnnosatf16");
/** float to int, rounded down; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtnnosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnnosatf16, int16, float16, x);
}
#define lanemath_cvtfptoi32rtnnosatf16(x) \
/** float to int, rounded down; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtnnosatf16, int16, float16, x)

/** double to int, rounded up, clamped to the range of the result; one double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtpsat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi32rtpsat1");
/** double to int, rounded up, clamped to the range of the result; 2 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtpsat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi32rtpsat2");
lanemath_border_int3 lanemath_call_cvtfptoi32rtpsat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi32rtpsat3");
/** double to int, rounded up, clamped to the range of the result; 3 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int3 lanemath_cvtfptoi32rtpsat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi32rtpsat3, int3, double3, x);
}
#define lanemath_cvtfptoi32rtpsat3(x) \
/** double to int, rounded up, clamped to the range of the result; 3 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi32rtpsat3, int3, double3, x)
lanemath_wide_int4 lanemath_call_cvtfptoi32rtpsat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtpsat4");
/** double to int, rounded up, clamped to the range of the result; 4 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int4 lanemath_cvtfptoi32rtpsat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpsat4, int4, double4, x);
}
#define lanemath_cvtfptoi32rtpsat4(x) \
/** double to int, rounded up, clamped to the range of the result; 4 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpsat4, int4, double4, x)
lanemath_wide_int8 lanemath_call_cvtfptoi32rtpsat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtpsat8");
/** double to int, rounded up, clamped to the range of the result; 8 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtpsat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpsat8, int8, double8, x);
}
#define lanemath_cvtfptoi32rtpsat8(x) \
/** double to int, rounded up, clamped to the range of the result; 8 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpsat8, int8, double8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtpsat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtpsat16");
/** double to int, rounded up, clamped to the range of the result; 16 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtpsat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpsat16, int16, double16, x);
}
#define lanemath_cvtfptoi32rtpsat16(x) \
/** double to int, rounded up, clamped to the range of the result; 16 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpsat16, int16, double16, x)

/** float to int, rounded up, clamped to the range of the result; one float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtpsatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi32rtpsatf1");
/** float to int, rounded up, clamped to the range of the result; 2 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtpsatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi32rtpsatf2");
/** float to int, rounded up, clamped to the range of the result; 3 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_int3 lanemath_cvtfptoi32rtpsatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptoi32rtpsatf3");
/** float to int, rounded up, clamped to the range of the result; 4 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_int4 lanemath_cvtfptoi32rtpsatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptoi32rtpsatf4");
lanemath_wide_int8 lanemath_call_cvtfptoi32rtpsatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtpsatf8");
/** float to int, rounded up, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtpsatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpsatf8, int8, float8, x);
}
#define lanemath_cvtfptoi32rtpsatf8(x) \
/** float to int, rounded up, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpsatf8, int8, float8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtpsatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtpsatf16");
/** float to int, rounded up, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtpsatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpsatf16, int16, float16, x);
}
#define lanemath_cvtfptoi32rtpsatf16(x) \
/** float to int, rounded up, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpsatf16, int16, float16, x)

/** double to int, rounded up; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtpnosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi32rtpnosat1");
/** double to int, rounded up; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtpnosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi32rtpnosat2");
lanemath_border_int3 lanemath_call_cvtfptoi32rtpnosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi32rtpnosat3");
/** double to int, rounded up; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int3 lanemath_cvtfptoi32rtpnosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi32rtpnosat3, int3, double3, x);
}
#define lanemath_cvtfptoi32rtpnosat3(x) \
/** double to int, rounded up; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi32rtpnosat3, int3, double3, x)
lanemath_wide_int4 lanemath_call_cvtfptoi32rtpnosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtpnosat4");
/** double to int, rounded up; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int4 lanemath_cvtfptoi32rtpnosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpnosat4, int4, double4, x);
}
#define lanemath_cvtfptoi32rtpnosat4(x) \
/** double to int, rounded up; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpnosat4, int4, double4, x)
lanemath_wide_int8 lanemath_call_cvtfptoi32rtpnosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtpnosat8");
/** double to int, rounded up; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtpnosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpnosat8, int8, double8, x);
}
#define lanemath_cvtfptoi32rtpnosat8(x) \
/** double to int, rounded up; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpnosat8, int8, double8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtpnosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtpnosat16");
/** double to int, rounded up; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtpnosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpnosat16, int16, double16, x);
}
#define lanemath_cvtfptoi32rtpnosat16(x) \
/** double to int, rounded up; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpnosat16, int16, double16, x)

/** float to int, rounded up; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtpnosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi32rtpnosatf1");
/** float to int, rounded up; 2 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtpnosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi32rtpnosatf2");
/** float to int, rounded up; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int3 lanemath_cvtfptoi32rtpnosatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptoi32rtpnosatf3");
/** float to int, rounded up; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int4 lanemath_cvtfptoi32rtpnosatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptoi32rtpnosatf4");
lanemath_wide_int8 lanemath_call_cvtfptoi32rtpnosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtpnosatf8");
/** float to int, rounded up; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtpnosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpnosatf8, int8, float8, x);
}
#define lanemath_cvtfptoi32rtpnosatf8(x) \
/** float to int, rounded up; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpnosatf8, int8, float8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtpnosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtpnosatf16");
/** float to int, rounded up; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtpnosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpnosatf16, int16, float16, x);
}
#define lanemath_cvtfptoi32rtpnosatf16(x) \
/** float to int, rounded up; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtpnosatf16, int16, float16, x)

/** double to int, rounded toward zero, clamped to the range of the result; one double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtzsat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi32rtzsat1");
/** double to int, rounded toward zero, clamped to the range of the result; 2 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtzsat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi32rtzsat2");
lanemath_border_int3 lanemath_call_cvtfptoi32rtzsat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi32rtzsat3");
/** double to int, rounded toward zero, clamped to the range of the result; 3 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int3 lanemath_cvtfptoi32rtzsat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi32rtzsat3, int3, double3, x);
}
#define lanemath_cvtfptoi32rtzsat3(x) \
/** double to int, rounded toward zero, clamped to the range of the result; 3 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi32rtzsat3, int3, double3, x)
lanemath_wide_int4 lanemath_call_cvtfptoi32rtzsat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtzsat4");
/** double to int, rounded toward zero, clamped to the range of the result; 4 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int4 lanemath_cvtfptoi32rtzsat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtzsat4, int4, double4, x);
}
#define lanemath_cvtfptoi32rtzsat4(x) \
/** double to int, rounded toward zero, clamped to the range of the result; 4 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtzsat4, int4, double4, x)
lanemath_wide_int8 lanemath_call_cvtfptoi32rtzsat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtzsat8");
/** double to int, rounded toward zero, clamped to the range of the result; 8 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtzsat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtzsat8, int8, double8, x);
}
#define lanemath_cvtfptoi32rtzsat8(x) \
/** double to int, rounded toward zero, clamped to the range of the result; 8 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtzsat8, int8, double8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtzsat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtzsat16");
/** double to int, rounded toward zero, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtzsat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtzsat16, int16, double16, x);
}
#define lanemath_cvtfptoi32rtzsat16(x) \
/** double to int, rounded toward zero, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtzsat16, int16, double16, x)

/** float to int, rounded toward zero, clamped to the range of the result; one float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtzsatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi32rtzsatf1");
/** float to int, rounded toward zero, clamped to the range of the result; 2 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtzsatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi32rtzsatf2");
/** float to int, rounded toward zero, clamped to the range of the result; 3 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_int3 lanemath_cvtfptoi32rtzsatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptoi32rtzsatf3");
/** float to int, rounded toward zero, clamped to the range of the result; 4 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_int4 lanemath_cvtfptoi32rtzsatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptoi32rtzsatf4");
lanemath_wide_int8 lanemath_call_cvtfptoi32rtzsatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtzsatf8");
/** float to int, rounded toward zero, clamped to the range of the result; 8 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtzsatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtzsatf8, int8, float8, x);
}
#define lanemath_cvtfptoi32rtzsatf8(x) \
/** float to int, rounded toward zero, clamped to the range of the result; 8 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtzsatf8, int8, float8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtzsatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtzsatf16");
/** float to int, rounded toward zero, clamped to the range of the result; 16 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtzsatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtzsatf16, int16, float16, x);
}
#define lanemath_cvtfptoi32rtzsatf16(x) \
/** float to int, rounded toward zero, clamped to the range of the result; 16 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtzsatf16, int16, float16, x)

/** double to int, rounded toward zero; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtznosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi32rtznosat1");
/** double to int, rounded toward zero; 2 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtznosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi32rtznosat2");
lanemath_border_int3 lanemath_call_cvtfptoi32rtznosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi32rtznosat3");
/** double to int, rounded toward zero; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int3 lanemath_cvtfptoi32rtznosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi32rtznosat3, int3, double3, x);
}
#define lanemath_cvtfptoi32rtznosat3(x) \
/** double to int, rounded toward zero; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi32rtznosat3, int3, double3, x)
lanemath_wide_int4 lanemath_call_cvtfptoi32rtznosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi32rtznosat4");
/** double to int, rounded toward zero; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int4 lanemath_cvtfptoi32rtznosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtznosat4, int4, double4, x);
}
#define lanemath_cvtfptoi32rtznosat4(x) \
/** double to int, rounded toward zero; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtznosat4, int4, double4, x)
lanemath_wide_int8 lanemath_call_cvtfptoi32rtznosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi32rtznosat8");
/** double to int, rounded toward zero; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtznosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtznosat8, int8, double8, x);
}
#define lanemath_cvtfptoi32rtznosat8(x) \
/** double to int, rounded toward zero; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtznosat8, int8, double8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtznosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi32rtznosat16");
/** double to int, rounded toward zero; 16 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtznosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtznosat16, int16, double16, x);
}
#define lanemath_cvtfptoi32rtznosat16(x) \
/** double to int, rounded toward zero; 16 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtznosat16, int16, double16, x)

/** float to int, rounded toward zero; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_int1 lanemath_cvtfptoi32rtznosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi32rtznosatf1");
/** float to int, rounded toward zero; 2 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_int2 lanemath_cvtfptoi32rtznosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi32rtznosatf2");
/** float to int, rounded toward zero; 3 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_int3 lanemath_cvtfptoi32rtznosatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptoi32rtznosatf3");
/** float to int, rounded toward zero; 4 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_int4 lanemath_cvtfptoi32rtznosatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptoi32rtznosatf4");
lanemath_wide_int8 lanemath_call_cvtfptoi32rtznosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi32rtznosatf8");
/** float to int, rounded toward zero; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_cvtfptoi32rtznosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtznosatf8, int8, float8, x);
}
#define lanemath_cvtfptoi32rtznosatf8(x) \
/** float to int, rounded toward zero; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtznosatf8, int8, float8, x)
lanemath_wide_int16 lanemath_call_cvtfptoi32rtznosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi32rtznosatf16");
/** float to int, rounded toward zero; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_cvtfptoi32rtznosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtznosatf16, int16, float16, x);
}
#define lanemath_cvtfptoi32rtznosatf16(x) \
/** float to int, rounded toward zero; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi32rtznosatf16, int16, float16, x)

/** double to uint, rounded to nearest even, clamped to the range of the result; one double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtesat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou32rtesat1");
/** double to uint, rounded to nearest even, clamped to the range of the result; 2 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtesat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou32rtesat2");
lanemath_border_uint3 lanemath_call_cvtfptou32rtesat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou32rtesat3");
/** double to uint, rounded to nearest even, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint3 lanemath_cvtfptou32rtesat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou32rtesat3, uint3, double3, x);
}
#define lanemath_cvtfptou32rtesat3(x) \
/** double to uint, rounded to nearest even, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou32rtesat3, uint3, double3, x)
lanemath_wide_uint4 lanemath_call_cvtfptou32rtesat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtesat4");
/** double to uint, rounded to nearest even, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint4 lanemath_cvtfptou32rtesat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtesat4, uint4, double4, x);
}
#define lanemath_cvtfptou32rtesat4(x) \
/** double to uint, rounded to nearest even, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtesat4, uint4, double4, x)
lanemath_wide_uint8 lanemath_call_cvtfptou32rtesat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtesat8");
/** double to uint, rounded to nearest even, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtesat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtesat8, uint8, double8, x);
}
#define lanemath_cvtfptou32rtesat8(x) \
/** double to uint, rounded to nearest even, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtesat8, uint8, double8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtesat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtesat16");
/** double to uint, rounded to nearest even, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtesat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtesat16, uint16, double16, x);
}
#define lanemath_cvtfptou32rtesat16(x) \
/** double to uint, rounded to nearest even, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtesat16, uint16, double16, x)

/** float to uint, rounded to nearest even, clamped to the range of the result; one float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtesatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou32rtesatf1");
/** float to uint, rounded to nearest even, clamped to the range of the result; 2 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtesatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou32rtesatf2");
/** float to uint, rounded to nearest even, clamped to the range of the result; 3 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint3 lanemath_cvtfptou32rtesatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptou32rtesatf3");
/** float to uint, rounded to nearest even, clamped to the range of the result; 4 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint4 lanemath_cvtfptou32rtesatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptou32rtesatf4");
lanemath_wide_uint8 lanemath_call_cvtfptou32rtesatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtesatf8");
/** float to uint, rounded to nearest even, clamped to the range of the result; 8 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtesatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtesatf8, uint8, float8, x);
}
#define lanemath_cvtfptou32rtesatf8(x) \
/** float to uint, rounded to nearest even, clamped to the range of the result; 8 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtesatf8, uint8, float8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtesatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtesatf16");
/** float to uint, rounded to nearest even, clamped to the range of the result; 16 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtesatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtesatf16, uint16, float16, x);
}
#define lanemath_cvtfptou32rtesatf16(x) \
/** float to uint, rounded to nearest even, clamped to the range of the result; 16 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtesatf16, uint16, float16, x)

/** double to uint, rounded to nearest even; one double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtenosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou32rtenosat1");
/** double to uint, rounded to nearest even; 2 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtenosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou32rtenosat2");
lanemath_border_uint3 lanemath_call_cvtfptou32rtenosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou32rtenosat3");
/** double to uint, rounded to nearest even; 3 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint3 lanemath_cvtfptou32rtenosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou32rtenosat3, uint3, double3, x);
}
#define lanemath_cvtfptou32rtenosat3(x) \
/** double to uint, rounded to nearest even; 3 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou32rtenosat3, uint3, double3, x)
lanemath_wide_uint4 lanemath_call_cvtfptou32rtenosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtenosat4");
/** double to uint, rounded to nearest even; 4 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint4 lanemath_cvtfptou32rtenosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtenosat4, uint4, double4, x);
}
#define lanemath_cvtfptou32rtenosat4(x) \
/** double to uint, rounded to nearest even; 4 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtenosat4, uint4, double4, x)
lanemath_wide_uint8 lanemath_call_cvtfptou32rtenosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtenosat8");
/** double to uint, rounded to nearest even; 8 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtenosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtenosat8, uint8, double8, x);
}
#define lanemath_cvtfptou32rtenosat8(x) \
/** double to uint, rounded to nearest even; 8 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtenosat8, uint8, double8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtenosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtenosat16");
/** double to uint, rounded to nearest even; 16 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtenosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtenosat16, uint16, double16, x);
}
#define lanemath_cvtfptou32rtenosat16(x) \
/** double to uint, rounded to nearest even; 16 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtenosat16, uint16, double16, x)

/** float to uint, rounded to nearest even; one float. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtenosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou32rtenosatf1");
/** float to uint, rounded to nearest even; 2 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtenosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou32rtenosatf2");
/** float to uint, rounded to nearest even; 3 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_uint3 lanemath_cvtfptou32rtenosatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptou32rtenosatf3");
/** float to uint, rounded to nearest even; 4 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_uint4 lanemath_cvtfptou32rtenosatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptou32rtenosatf4");
lanemath_wide_uint8 lanemath_call_cvtfptou32rtenosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtenosatf8");
/** float to uint, rounded to nearest even; 8 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtenosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtenosatf8, uint8, float8, x);
}
#define lanemath_cvtfptou32rtenosatf8(x) \
/** float to uint, rounded to nearest even; 8 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtenosatf8, uint8, float8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtenosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtenosatf16");
/** float to uint, rounded to nearest even; 16 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtenosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtenosatf16, uint16, float16, x);
}
#define lanemath_cvtfptou32rtenosatf16(x) \
/** float to uint, rounded to nearest even; 16 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtenosatf16, uint16, float16, x)

/** double to uint, rounded down, clamped to the range of the result; one double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtnsat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou32rtnsat1");
/** double to uint, rounded down, clamped to the range of the result; 2 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtnsat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou32rtnsat2");
lanemath_border_uint3 lanemath_call_cvtfptou32rtnsat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou32rtnsat3");
/** double to uint, rounded down, clamped to the range of the result; 3 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint3 lanemath_cvtfptou32rtnsat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou32rtnsat3, uint3, double3, x);
}
#define lanemath_cvtfptou32rtnsat3(x) \
/** double to uint, rounded down, clamped to the range of the result; 3 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou32rtnsat3, uint3, double3, x)
lanemath_wide_uint4 lanemath_call_cvtfptou32rtnsat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtnsat4");
/** double to uint, rounded down, clamped to the range of the result; 4 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint4 lanemath_cvtfptou32rtnsat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnsat4, uint4, double4, x);
}
#define lanemath_cvtfptou32rtnsat4(x) \
/** double to uint, rounded down, clamped to the range of the result; 4 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnsat4, uint4, double4, x)
lanemath_wide_uint8 lanemath_call_cvtfptou32rtnsat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtnsat8");
/** double to uint, rounded down, clamped to the range of the result; 8 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtnsat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnsat8, uint8, double8, x);
}
#define lanemath_cvtfptou32rtnsat8(x) \
/** double to uint, rounded down, clamped to the range of the result; 8 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnsat8, uint8, double8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtnsat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtnsat16");
/** double to uint, rounded down, clamped to the range of the result; 16 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtnsat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnsat16, uint16, double16, x);
}
#define lanemath_cvtfptou32rtnsat16(x) \
/** double to uint, rounded down, clamped to the range of the result; 16 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnsat16, uint16, double16, x)

/** float to uint, rounded down, clamped to the range of the result; one float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtnsatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou32rtnsatf1");
/** float to uint, rounded down, clamped to the range of the result; 2 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtnsatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou32rtnsatf2");
/** float to uint, rounded down, clamped to the range of the result; 3 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint3 lanemath_cvtfptou32rtnsatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptou32rtnsatf3");
/** float to uint, rounded down, clamped to the range of the result; 4 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint4 lanemath_cvtfptou32rtnsatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptou32rtnsatf4");
lanemath_wide_uint8 lanemath_call_cvtfptou32rtnsatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtnsatf8");
/** float to uint, rounded down, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtnsatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnsatf8, uint8, float8, x);
}
#define lanemath_cvtfptou32rtnsatf8(x) \
/** float to uint, rounded down, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnsatf8, uint8, float8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtnsatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtnsatf16");
/** float to uint, rounded down, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtnsatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnsatf16, uint16, float16, x);
}
#define lanemath_cvtfptou32rtnsatf16(x) \
/** float to uint, rounded down, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnsatf16, uint16, float16, x)

/** double to uint, rounded down; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtnnosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou32rtnnosat1");
/** double to uint, rounded down; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtnnosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou32rtnnosat2");
lanemath_border_uint3 lanemath_call_cvtfptou32rtnnosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou32rtnnosat3");
/** double to uint, rounded down; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint3 lanemath_cvtfptou32rtnnosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou32rtnnosat3, uint3, double3, x);
}
#define lanemath_cvtfptou32rtnnosat3(x) \
/** double to uint, rounded down; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou32rtnnosat3, uint3, double3, x)
lanemath_wide_uint4 lanemath_call_cvtfptou32rtnnosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtnnosat4");
/** double to uint, rounded down; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint4 lanemath_cvtfptou32rtnnosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnnosat4, uint4, double4, x);
}
#define lanemath_cvtfptou32rtnnosat4(x) \
/** double to uint, rounded down; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnnosat4, uint4, double4, x)
lanemath_wide_uint8 lanemath_call_cvtfptou32rtnnosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtnnosat8");
/** double to uint, rounded down; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtnnosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnnosat8, uint8, double8, x);
}
#define lanemath_cvtfptou32rtnnosat8(x) \
/** double to uint, rounded down; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnnosat8, uint8, double8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtnnosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtnnosat16");
/** double to uint, rounded down; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtnnosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnnosat16, uint16, double16, x);
}
#define lanemath_cvtfptou32rtnnosat16(x) \
/** double to uint, rounded down; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnnosat16, uint16, double16, x)

/** float to uint, rounded down; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtnnosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou32rtnnosatf1");
/** float to uint, rounded down; 2 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtnnosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou32rtnnosatf2");
/** float to uint, rounded down; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint3 lanemath_cvtfptou32rtnnosatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptou32rtnnosatf3");
/** float to uint, rounded down; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint4 lanemath_cvtfptou32rtnnosatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptou32rtnnosatf4");
lanemath_wide_uint8 lanemath_call_cvtfptou32rtnnosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtnnosatf8");
/** float to uint, rounded down; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtnnosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnnosatf8, uint8, float8, x);
}
#define lanemath_cvtfptou32rtnnosatf8(x) \
/** float to uint, rounded down; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnnosatf8, uint8, float8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtnnosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtnnosatf16");
/** float to uint, rounded down; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtnnosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnnosatf16, uint16, float16, x);
}
#define lanemath_cvtfptou32rtnnosatf16(x) \
/** float to uint, rounded down; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtnnosatf16, uint16, float16, x)

/** double to uint, rounded up, clamped to the range of the result; one double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtpsat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou32rtpsat1");
/** double to uint, rounded up, clamped to the range of the result; 2 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtpsat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou32rtpsat2");
lanemath_border_uint3 lanemath_call_cvtfptou32rtpsat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou32rtpsat3");
/** double to uint, rounded up, clamped to the range of the result; 3 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint3 lanemath_cvtfptou32rtpsat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou32rtpsat3, uint3, double3, x);
}
#define lanemath_cvtfptou32rtpsat3(x) \
/** double to uint, rounded up, clamped to the range of the result; 3 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou32rtpsat3, uint3, double3, x)
lanemath_wide_uint4 lanemath_call_cvtfptou32rtpsat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtpsat4");
/** double to uint, rounded up, clamped to the range of the result; 4 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint4 lanemath_cvtfptou32rtpsat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpsat4, uint4, double4, x);
}
#define lanemath_cvtfptou32rtpsat4(x) \
/** double to uint, rounded up, clamped to the range of the result; 4 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpsat4, uint4, double4, x)
lanemath_wide_uint8 lanemath_call_cvtfptou32rtpsat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtpsat8");
/** double to uint, rounded up, clamped to the range of the result; 8 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtpsat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpsat8, uint8, double8, x);
}
#define lanemath_cvtfptou32rtpsat8(x) \
/** double to uint, rounded up, clamped to the range of the result; 8 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpsat8, uint8, double8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtpsat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtpsat16");
/** double to uint, rounded up, clamped to the range of the result; 16 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtpsat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpsat16, uint16, double16, x);
}
#define lanemath_cvtfptou32rtpsat16(x) \
/** double to uint, rounded up, clamped to the range of the result; 16 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpsat16, uint16, double16, x)

/** float to uint, rounded up, clamped to the range of the result; one float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtpsatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou32rtpsatf1");
/** float to uint, rounded up, clamped to the range of the result; 2 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtpsatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou32rtpsatf2");
/** float to uint, rounded up, clamped to the range of the result; 3 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint3 lanemath_cvtfptou32rtpsatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptou32rtpsatf3");
/** float to uint, rounded up, clamped to the range of the result; 4 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint4 lanemath_cvtfptou32rtpsatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptou32rtpsatf4");
lanemath_wide_uint8 lanemath_call_cvtfptou32rtpsatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtpsatf8");
/** float to uint, rounded up, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtpsatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpsatf8, uint8, float8, x);
}
#define lanemath_cvtfptou32rtpsatf8(x) \
/** float to uint, rounded up, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpsatf8, uint8, float8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtpsatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtpsatf16");
/** float to uint, rounded up, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtpsatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpsatf16, uint16, float16, x);
}
#define lanemath_cvtfptou32rtpsatf16(x) \
/** float to uint, rounded up, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpsatf16, uint16, float16, x)

/** double to uint, rounded up; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtpnosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou32rtpnosat1");
/** double to uint, rounded up; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtpnosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou32rtpnosat2");
lanemath_border_uint3 lanemath_call_cvtfptou32rtpnosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou32rtpnosat3");
/** double to uint, rounded up; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint3 lanemath_cvtfptou32rtpnosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou32rtpnosat3, uint3, double3, x);
}
#define lanemath_cvtfptou32rtpnosat3(x) \
/** double to uint, rounded up; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou32rtpnosat3, uint3, double3, x)
lanemath_wide_uint4 lanemath_call_cvtfptou32rtpnosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtpnosat4");
/** double to uint, rounded up; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint4 lanemath_cvtfptou32rtpnosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpnosat4, uint4, double4, x);
}
#define lanemath_cvtfptou32rtpnosat4(x) \
/** double to uint, rounded up; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpnosat4, uint4, double4, x)
lanemath_wide_uint8 lanemath_call_cvtfptou32rtpnosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtpnosat8");
/** double to uint, rounded up; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtpnosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpnosat8, uint8, double8, x);
}
#define lanemath_cvtfptou32rtpnosat8(x) \
/** double to uint, rounded up; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpnosat8, uint8, double8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtpnosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtpnosat16");
/** double to uint, rounded up; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtpnosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpnosat16, uint16, double16, x);
}
#define lanemath_cvtfptou32rtpnosat16(x) \
/** double to uint, rounded up; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpnosat16, uint16, double16, x)

/** float to uint, rounded up; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtpnosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou32rtpnosatf1");
/** float to uint, rounded up; 2 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtpnosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou32rtpnosatf2");
/** float to uint, rounded up; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint3 lanemath_cvtfptou32rtpnosatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptou32rtpnosatf3");
/** float to uint, rounded up; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint4 lanemath_cvtfptou32rtpnosatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptou32rtpnosatf4");
lanemath_wide_uint8 lanemath_call_cvtfptou32rtpnosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtpnosatf8");
/** float to uint, rounded up; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtpnosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpnosatf8, uint8, float8, x);
}
#define lanemath_cvtfptou32rtpnosatf8(x) \
/** float to uint, rounded up; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpnosatf8, uint8, float8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtpnosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtpnosatf16");
/** float to uint, rounded up; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtpnosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpnosatf16, uint16, float16, x);
}
#define lanemath_cvtfptou32rtpnosatf16(x) \
/** float to uint, rounded up; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtpnosatf16, uint16, float16, x)

/** double to uint, rounded toward zero, clamped to the range of the result; one double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtzsat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou32rtzsat1");
/** double to uint, rounded toward zero, clamped to the range of the result; 2 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtzsat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou32rtzsat2");
lanemath_border_uint3 lanemath_call_cvtfptou32rtzsat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou32rtzsat3");
/** double to uint, rounded toward zero, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint3 lanemath_cvtfptou32rtzsat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou32rtzsat3, uint3, double3, x);
}
#define lanemath_cvtfptou32rtzsat3(x) \
/** double to uint, rounded toward zero, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou32rtzsat3, uint3, double3, x)
lanemath_wide_uint4 lanemath_call_cvtfptou32rtzsat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtzsat4");
/** double to uint, rounded toward zero, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint4 lanemath_cvtfptou32rtzsat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtzsat4, uint4, double4, x);
}
#define lanemath_cvtfptou32rtzsat4(x) \
/** double to uint, rounded toward zero, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtzsat4, uint4, double4, x)
lanemath_wide_uint8 lanemath_call_cvtfptou32rtzsat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtzsat8");
/** double to uint, rounded toward zero, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtzsat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtzsat8, uint8, double8, x);
}
#define lanemath_cvtfptou32rtzsat8(x) \
/** double to uint, rounded toward zero, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtzsat8, uint8, double8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtzsat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtzsat16");
/** double to uint, rounded toward zero, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtzsat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtzsat16, uint16, double16, x);
}
#define lanemath_cvtfptou32rtzsat16(x) \
/** double to uint, rounded toward zero, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtzsat16, uint16, double16, x)

/** float to uint, rounded toward zero, clamped to the range of the result; one float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtzsatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou32rtzsatf1");
/** float to uint, rounded toward zero, clamped to the range of the result; 2 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtzsatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou32rtzsatf2");
/** float to uint, rounded toward zero, clamped to the range of the result; 3 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint3 lanemath_cvtfptou32rtzsatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptou32rtzsatf3");
/** float to uint, rounded toward zero, clamped to the range of the result; 4 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_uint4 lanemath_cvtfptou32rtzsatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptou32rtzsatf4");
lanemath_wide_uint8 lanemath_call_cvtfptou32rtzsatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtzsatf8");
/** float to uint, rounded toward zero, clamped to the range of the result; 8 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtzsatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtzsatf8, uint8, float8, x);
}
#define lanemath_cvtfptou32rtzsatf8(x) \
/** float to uint, rounded toward zero, clamped to the range of the result; 8 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtzsatf8, uint8, float8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtzsatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtzsatf16");
/** float to uint, rounded toward zero, clamped to the range of the result; 16 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtzsatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtzsatf16, uint16, float16, x);
}
#define lanemath_cvtfptou32rtzsatf16(x) \
/** float to uint, rounded toward zero, clamped to the range of the result; 16 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtzsatf16, uint16, float16, x)

/** double to uint, rounded toward zero; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtznosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou32rtznosat1");
/** double to uint, rounded toward zero; 2 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtznosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou32rtznosat2");
lanemath_border_uint3 lanemath_call_cvtfptou32rtznosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou32rtznosat3");
/** double to uint, rounded toward zero; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint3 lanemath_cvtfptou32rtznosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou32rtznosat3, uint3, double3, x);
}
#define lanemath_cvtfptou32rtznosat3(x) \
/** double to uint, rounded toward zero; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou32rtznosat3, uint3, double3, x)
lanemath_wide_uint4 lanemath_call_cvtfptou32rtznosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou32rtznosat4");
/** double to uint, rounded toward zero; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint4 lanemath_cvtfptou32rtznosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtznosat4, uint4, double4, x);
}
#define lanemath_cvtfptou32rtznosat4(x) \
/** double to uint, rounded toward zero; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtznosat4, uint4, double4, x)
lanemath_wide_uint8 lanemath_call_cvtfptou32rtznosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou32rtznosat8");
/** double to uint, rounded toward zero; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtznosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtznosat8, uint8, double8, x);
}
#define lanemath_cvtfptou32rtznosat8(x) \
/** double to uint, rounded toward zero; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtznosat8, uint8, double8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtznosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou32rtznosat16");
/** double to uint, rounded toward zero; 16 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtznosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtznosat16, uint16, double16, x);
}
#define lanemath_cvtfptou32rtznosat16(x) \
/** double to uint, rounded toward zero; 16 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtznosat16, uint16, double16, x)

/** float to uint, rounded toward zero; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_uint1 lanemath_cvtfptou32rtznosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou32rtznosatf1");
/** float to uint, rounded toward zero; 2 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_uint2 lanemath_cvtfptou32rtznosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou32rtznosatf2");
/** float to uint, rounded toward zero; 3 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_uint3 lanemath_cvtfptou32rtznosatf3(lanemath_float3 x) LANEMATH_NAMED("cvtfptou32rtznosatf3");
/** float to uint, rounded toward zero; 4 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_uint4 lanemath_cvtfptou32rtznosatf4(lanemath_float4 x) LANEMATH_NAMED("cvtfptou32rtznosatf4");
lanemath_wide_uint8 lanemath_call_cvtfptou32rtznosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou32rtznosatf8");
/** float to uint, rounded toward zero; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_cvtfptou32rtznosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtznosatf8, uint8, float8, x);
}
#define lanemath_cvtfptou32rtznosatf8(x) \
/** float to uint, rounded toward zero; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtznosatf8, uint8, float8, x)
lanemath_wide_uint16 lanemath_call_cvtfptou32rtznosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou32rtznosatf16");
/** float to uint, rounded toward zero; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_cvtfptou32rtznosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou32rtznosatf16, uint16, float16, x);
}
#define lanemath_cvtfptou32rtznosatf16(x) \
/** float to uint, rounded toward zero; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou32rtznosatf16, uint16, float16, x)

/** double to long, rounded to nearest even, clamped to the range of the result; one double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtesat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi64rtesat1");
/** double to long, rounded to nearest even, clamped to the range of the result; 2 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtesat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi64rtesat2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtesat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi64rtesat3");
/** double to long, rounded to nearest even, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtesat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtesat3, long3, double3, x);
}
#define lanemath_cvtfptoi64rtesat3(x) \
/** double to long, rounded to nearest even, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtesat3, long3, double3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtesat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtesat4");
/** double to long, rounded to nearest even, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtesat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtesat4, long4, double4, x);
}
#define lanemath_cvtfptoi64rtesat4(x) \
/** double to long, rounded to nearest even, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtesat4, long4, double4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtesat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtesat8");
/** double to long, rounded to nearest even, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtesat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtesat8, long8, double8, x);
}
#define lanemath_cvtfptoi64rtesat8(x) \
/** double to long, rounded to nearest even, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtesat8, long8, double8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtesat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtesat16");
/** double to long, rounded to nearest even, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtesat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtesat16, long16, double16, x);
}
#define lanemath_cvtfptoi64rtesat16(x) \
/** double to long, rounded to nearest even, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtesat16, long16, double16, x)

/** float to long, rounded to nearest even, clamped to the range of the result; one float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtesatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi64rtesatf1");
/** float to long, rounded to nearest even, clamped to the range of the result; 2 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtesatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi64rtesatf2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtesatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptoi64rtesatf3");
/** float to long, rounded to nearest even, clamped to the range of the result; 3 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtesatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtesatf3, long3, float3, x);
}
#define lanemath_cvtfptoi64rtesatf3(x) \
/** float to long, rounded to nearest even, clamped to the range of the result; 3 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtesatf3, long3, float3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtesatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtesatf4");
/** float to long, rounded to nearest even, clamped to the range of the result; 4 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtesatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtesatf4, long4, float4, x);
}
#define lanemath_cvtfptoi64rtesatf4(x) \
/** float to long, rounded to nearest even, clamped to the range of the result; 4 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtesatf4, long4, float4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtesatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtesatf8");
/** float to long, rounded to nearest even, clamped to the range of the result; 8 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtesatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtesatf8, long8, float8, x);
}
#define lanemath_cvtfptoi64rtesatf8(x) \
/** float to long, rounded to nearest even, clamped to the range of the result; 8 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtesatf8, long8, float8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtesatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtesatf16");
/** float to long, rounded to nearest even, clamped to the range of the result; 16 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtesatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtesatf16, long16, float16, x);
}
#define lanemath_cvtfptoi64rtesatf16(x) \
/** float to long, rounded to nearest even, clamped to the range of the result; 16 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtesatf16, long16, float16, x)

/** double to long, rounded to nearest even; one double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtenosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi64rtenosat1");
/** double to long, rounded to nearest even; 2 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtenosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi64rtenosat2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtenosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi64rtenosat3");
/** double to long, rounded to nearest even; 3 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtenosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtenosat3, long3, double3, x);
}
#define lanemath_cvtfptoi64rtenosat3(x) \
/** double to long, rounded to nearest even; 3 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtenosat3, long3, double3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtenosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtenosat4");
/** double to long, rounded to nearest even; 4 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtenosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtenosat4, long4, double4, x);
}
#define lanemath_cvtfptoi64rtenosat4(x) \
/** double to long, rounded to nearest even; 4 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtenosat4, long4, double4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtenosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtenosat8");
/** double to long, rounded to nearest even; 8 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtenosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtenosat8, long8, double8, x);
}
#define lanemath_cvtfptoi64rtenosat8(x) \
/** double to long, rounded to nearest even; 8 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtenosat8, long8, double8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtenosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtenosat16");
/** double to long, rounded to nearest even; 16 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtenosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtenosat16, long16, double16, x);
}
#define lanemath_cvtfptoi64rtenosat16(x) \
/** double to long, rounded to nearest even; 16 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtenosat16, long16, double16, x)

/** float to long, rounded to nearest even; one float. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtenosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi64rtenosatf1");
/** float to long, rounded to nearest even; 2 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtenosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi64rtenosatf2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtenosatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptoi64rtenosatf3");
/** float to long, rounded to nearest even; 3 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtenosatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtenosatf3, long3, float3, x);
}
#define lanemath_cvtfptoi64rtenosatf3(x) \
/** float to long, rounded to nearest even; 3 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtenosatf3, long3, float3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtenosatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtenosatf4");
/** float to long, rounded to nearest even; 4 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtenosatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtenosatf4, long4, float4, x);
}
#define lanemath_cvtfptoi64rtenosatf4(x) \
/** float to long, rounded to nearest even; 4 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtenosatf4, long4, float4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtenosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtenosatf8");
/** float to long, rounded to nearest even; 8 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtenosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtenosatf8, long8, float8, x);
}
#define lanemath_cvtfptoi64rtenosatf8(x) \
/** float to long, rounded to nearest even; 8 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtenosatf8, long8, float8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtenosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtenosatf16");
/** float to long, rounded to nearest even; 16 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtenosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtenosatf16, long16, float16, x);
}
#define lanemath_cvtfptoi64rtenosatf16(x) \
/** float to long, rounded to nearest even; 16 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtenosatf16, long16, float16, x)

/** double to long, rounded down, clamped to the range of the result; one double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtnsat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi64rtnsat1");
/** double to long, rounded down, clamped to the range of the result; 2 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtnsat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi64rtnsat2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtnsat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi64rtnsat3");
/** double to long, rounded down, clamped to the range of the result; 3 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtnsat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtnsat3, long3, double3, x);
}
#define lanemath_cvtfptoi64rtnsat3(x) \
/** double to long, rounded down, clamped to the range of the result; 3 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtnsat3, long3, double3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtnsat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtnsat4");
/** double to long, rounded down, clamped to the range of the result; 4 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtnsat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnsat4, long4, double4, x);
}
#define lanemath_cvtfptoi64rtnsat4(x) \
/** double to long, rounded down, clamped to the range of the result; 4 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnsat4, long4, double4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtnsat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtnsat8");
/** double to long, rounded down, clamped to the range of the result; 8 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtnsat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnsat8, long8, double8, x);
}
#define lanemath_cvtfptoi64rtnsat8(x) \
/** double to long, rounded down, clamped to the range of the result; 8 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnsat8, long8, double8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtnsat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtnsat16");
/** double to long, rounded down, clamped to the range of the result; 16 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtnsat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnsat16, long16, double16, x);
}
#define lanemath_cvtfptoi64rtnsat16(x) \
/** double to long, rounded down, clamped to the range of the result; 16 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnsat16, long16, double16, x)

/** float to long, rounded down, clamped to the range of the result; one float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtnsatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi64rtnsatf1");
/** float to long, rounded down, clamped to the range of the result; 2 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtnsatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi64rtnsatf2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtnsatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptoi64rtnsatf3");
/** float to long, rounded down, clamped to the range of the result; 3 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtnsatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtnsatf3, long3, float3, x);
}
#define lanemath_cvtfptoi64rtnsatf3(x) \
/** float to long, rounded down, clamped to the range of the result; 3 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtnsatf3, long3, float3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtnsatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtnsatf4");
/** float to long, rounded down, clamped to the range of the result; 4 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtnsatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnsatf4, long4, float4, x);
}
#define lanemath_cvtfptoi64rtnsatf4(x) \
/** float to long, rounded down, clamped to the range of the result; 4 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnsatf4, long4, float4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtnsatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtnsatf8");
/** float to long, rounded down, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtnsatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnsatf8, long8, float8, x);
}
#define lanemath_cvtfptoi64rtnsatf8(x) \
/** float to long, rounded down, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnsatf8, long8, float8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtnsatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtnsatf16");
/** float to long, rounded down, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtnsatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnsatf16, long16, float16, x);
}
#define lanemath_cvtfptoi64rtnsatf16(x) \
/** float to long, rounded down, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnsatf16, long16, float16, x)

/** double to long, rounded down; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtnnosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi64rtnnosat1");
/** double to long, rounded down; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtnnosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi64rtnnosat2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtnnosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi64rtnnosat3");
/** double to long, rounded down; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtnnosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtnnosat3, long3, double3, x);
}
#define lanemath_cvtfptoi64rtnnosat3(x) \
/** double to long, rounded down; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtnnosat3, long3, double3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtnnosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtnnosat4");
/** double to long, rounded down; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtnnosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnnosat4, long4, double4, x);
}
#define lanemath_cvtfptoi64rtnnosat4(x) \
/** double to long, rounded down; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnnosat4, long4, double4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtnnosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtnnosat8");
/** double to long, rounded down; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtnnosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnnosat8, long8, double8, x);
}
#define lanemath_cvtfptoi64rtnnosat8(x) \
/** double to long, rounded down; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnnosat8, long8, double8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtnnosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtnnosat16");
/** double to long, rounded down; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtnnosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnnosat16, long16, double16, x);
}
#define lanemath_cvtfptoi64rtnnosat16(x) \
/** double to long, rounded down; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnnosat16, long16, double16, x)

/** float to long, rounded down; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtnnosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi64rtnnosatf1");
/** float to long, rounded down; 2 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtnnosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi64rtnnosatf2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtnnosatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptoi64rtnnosatf3");
/** float to long, rounded down; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtnnosatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtnnosatf3, long3, float3, x);
}
#define lanemath_cvtfptoi64rtnnosatf3(x) \
/** float to long, rounded down; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtnnosatf3, long3, float3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtnnosatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtnnosatf4");
/** float to long, rounded down; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtnnosatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnnosatf4, long4, float4, x);
}
#define lanemath_cvtfptoi64rtnnosatf4(x) \
/** float to long, rounded down; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnnosatf4, long4, float4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtnnosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtnnosatf8");
/** float to long, rounded down; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtnnosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnnosatf8, long8, float8, x);
}
#define lanemath_cvtfptoi64rtnnosatf8(x) \
/** float to long, rounded down; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnnosatf8, long8, float8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtnnosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtnnosatf16");
/** float to long, rounded down; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtnnosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnnosatf16, long16, float16, x);
}
#define lanemath_cvtfptoi64rtnnosatf16(x) \
/** float to long, rounded down; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtnnosatf16, long16, float16, x)

/** double to long, rounded up, clamped to the range of the result; one double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtpsat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi64rtpsat1");
/** double to long, rounded up, clamped to the range of the result; 2 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtpsat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi64rtpsat2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtpsat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi64rtpsat3");
/** double to long, rounded up, clamped to the range of the result; 3 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtpsat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtpsat3, long3, double3, x);
}
#define lanemath_cvtfptoi64rtpsat3(x) \
/** double to long, rounded up, clamped to the range of the result; 3 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtpsat3, long3, double3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtpsat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtpsat4");
/** double to long, rounded up, clamped to the range of the result; 4 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtpsat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpsat4, long4, double4, x);
}
#define lanemath_cvtfptoi64rtpsat4(x) \
/** double to long, rounded up, clamped to the range of the result; 4 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpsat4, long4, double4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtpsat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtpsat8");
/** double to long, rounded up, clamped to the range of the result; 8 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtpsat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpsat8, long8, double8, x);
}
#define lanemath_cvtfptoi64rtpsat8(x) \
/** double to long, rounded up, clamped to the range of the result; 8 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpsat8, long8, double8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtpsat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtpsat16");
/** double to long, rounded up, clamped to the range of the result; 16 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtpsat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpsat16, long16, double16, x);
}
#define lanemath_cvtfptoi64rtpsat16(x) \
/** double to long, rounded up, clamped to the range of the result; 16 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpsat16, long16, double16, x)

/** float to long, rounded up, clamped to the range of the result; one float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtpsatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi64rtpsatf1");
/** float to long, rounded up, clamped to the range of the result; 2 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtpsatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi64rtpsatf2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtpsatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptoi64rtpsatf3");
/** float to long, rounded up, clamped to the range of the result; 3 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtpsatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtpsatf3, long3, float3, x);
}
#define lanemath_cvtfptoi64rtpsatf3(x) \
/** float to long, rounded up, clamped to the range of the result; 3 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtpsatf3, long3, float3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtpsatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtpsatf4");
/** float to long, rounded up, clamped to the range of the result; 4 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtpsatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpsatf4, long4, float4, x);
}
#define lanemath_cvtfptoi64rtpsatf4(x) \
/** float to long, rounded up, clamped to the range of the result; 4 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpsatf4, long4, float4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtpsatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtpsatf8");
/** float to long, rounded up, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtpsatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpsatf8, long8, float8, x);
}
#define lanemath_cvtfptoi64rtpsatf8(x) \
/** float to long, rounded up, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpsatf8, long8, float8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtpsatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtpsatf16");
/** float to long, rounded up, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtpsatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpsatf16, long16, float16, x);
}
#define lanemath_cvtfptoi64rtpsatf16(x) \
/** float to long, rounded up, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpsatf16, long16, float16, x)

/** double to long, rounded up; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtpnosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi64rtpnosat1");
/** double to long, rounded up; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtpnosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi64rtpnosat2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtpnosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi64rtpnosat3");
/** double to long, rounded up; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtpnosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtpnosat3, long3, double3, x);
}
#define lanemath_cvtfptoi64rtpnosat3(x) \
/** double to long, rounded up; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtpnosat3, long3, double3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtpnosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtpnosat4");
/** double to long, rounded up; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtpnosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpnosat4, long4, double4, x);
}
#define lanemath_cvtfptoi64rtpnosat4(x) \
/** double to long, rounded up; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpnosat4, long4, double4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtpnosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtpnosat8");
/** double to long, rounded up; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtpnosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpnosat8, long8, double8, x);
}
#define lanemath_cvtfptoi64rtpnosat8(x) \
/** double to long, rounded up; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpnosat8, long8, double8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtpnosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtpnosat16");
/** double to long, rounded up; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtpnosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpnosat16, long16, double16, x);
}
#define lanemath_cvtfptoi64rtpnosat16(x) \
/** double to long, rounded up; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpnosat16, long16, double16, x)

/** float to long, rounded up; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtpnosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi64rtpnosatf1");
/** float to long, rounded up; 2 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtpnosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi64rtpnosatf2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtpnosatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptoi64rtpnosatf3");
/** float to long, rounded up; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtpnosatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtpnosatf3, long3, float3, x);
}
#define lanemath_cvtfptoi64rtpnosatf3(x) \
/** float to long, rounded up; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtpnosatf3, long3, float3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtpnosatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtpnosatf4");
/** float to long, rounded up; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtpnosatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpnosatf4, long4, float4, x);
}
#define lanemath_cvtfptoi64rtpnosatf4(x) \
/** float to long, rounded up; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpnosatf4, long4, float4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtpnosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtpnosatf8");
/** float to long, rounded up; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtpnosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpnosatf8, long8, float8, x);
}
#define lanemath_cvtfptoi64rtpnosatf8(x) \
/** float to long, rounded up; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpnosatf8, long8, float8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtpnosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtpnosatf16");
/** float to long, rounded up; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtpnosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpnosatf16, long16, float16, x);
}
#define lanemath_cvtfptoi64rtpnosatf16(x) \
/** float to long, rounded up; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtpnosatf16, long16, float16, x)

/** double to long, rounded toward zero, clamped to the range of the result; one double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtzsat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi64rtzsat1");
/** double to long, rounded toward zero, clamped to the range of the result; 2 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtzsat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi64rtzsat2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtzsat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi64rtzsat3");
/** double to long, rounded toward zero, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtzsat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtzsat3, long3, double3, x);
}
#define lanemath_cvtfptoi64rtzsat3(x) \
/** double to long, rounded toward zero, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtzsat3, long3, double3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtzsat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtzsat4");
/** double to long, rounded toward zero, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtzsat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtzsat4, long4, double4, x);
}
#define lanemath_cvtfptoi64rtzsat4(x) \
/** double to long, rounded toward zero, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtzsat4, long4, double4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtzsat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtzsat8");
/** double to long, rounded toward zero, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtzsat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtzsat8, long8, double8, x);
}
#define lanemath_cvtfptoi64rtzsat8(x) \
/** double to long, rounded toward zero, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtzsat8, long8, double8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtzsat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtzsat16");
/** double to long, rounded toward zero, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtzsat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtzsat16, long16, double16, x);
}
#define lanemath_cvtfptoi64rtzsat16(x) \
/** double to long, rounded toward zero, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtzsat16, long16, double16, x)

/** float to long, rounded toward zero, clamped to the range of the result; one float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtzsatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi64rtzsatf1");
/** float to long, rounded toward zero, clamped to the range of the result; 2 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtzsatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi64rtzsatf2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtzsatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptoi64rtzsatf3");
/** float to long, rounded toward zero, clamped to the range of the result; 3 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtzsatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtzsatf3, long3, float3, x);
}
#define lanemath_cvtfptoi64rtzsatf3(x) \
/** float to long, rounded toward zero, clamped to the range of the result; 3 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtzsatf3, long3, float3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtzsatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtzsatf4");
/** float to long, rounded toward zero, clamped to the range of the result; 4 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtzsatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtzsatf4, long4, float4, x);
}
#define lanemath_cvtfptoi64rtzsatf4(x) \
/** float to long, rounded toward zero, clamped to the range of the result; 4 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtzsatf4, long4, float4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtzsatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtzsatf8");
/** float to long, rounded toward zero, clamped to the range of the result; 8 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtzsatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtzsatf8, long8, float8, x);
}
#define lanemath_cvtfptoi64rtzsatf8(x) \
/** float to long, rounded toward zero, clamped to the range of the result; 8 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtzsatf8, long8, float8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtzsatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtzsatf16");
/** float to long, rounded toward zero, clamped to the range of the result; 16 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtzsatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtzsatf16, long16, float16, x);
}
#define lanemath_cvtfptoi64rtzsatf16(x) \
/** float to long, rounded toward zero, clamped to the range of the result; 16 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtzsatf16, long16, float16, x)

/** double to long, rounded toward zero; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtznosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptoi64rtznosat1");
/** double to long, rounded toward zero; 2 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtznosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptoi64rtznosat2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtznosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptoi64rtznosat3");
/** double to long, rounded toward zero; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtznosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtznosat3, long3, double3, x);
}
#define lanemath_cvtfptoi64rtznosat3(x) \
/** double to long, rounded toward zero; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtznosat3, long3, double3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtznosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptoi64rtznosat4");
/** double to long, rounded toward zero; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtznosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtznosat4, long4, double4, x);
}
#define lanemath_cvtfptoi64rtznosat4(x) \
/** double to long, rounded toward zero; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtznosat4, long4, double4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtznosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptoi64rtznosat8");
/** double to long, rounded toward zero; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtznosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtznosat8, long8, double8, x);
}
#define lanemath_cvtfptoi64rtznosat8(x) \
/** double to long, rounded toward zero; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtznosat8, long8, double8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtznosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptoi64rtznosat16");
/** double to long, rounded toward zero; 16 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtznosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtznosat16, long16, double16, x);
}
#define lanemath_cvtfptoi64rtznosat16(x) \
/** double to long, rounded toward zero; 16 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtznosat16, long16, double16, x)

/** float to long, rounded toward zero; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_long1 lanemath_cvtfptoi64rtznosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptoi64rtznosatf1");
/** float to long, rounded toward zero; 2 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_long2 lanemath_cvtfptoi64rtznosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptoi64rtznosatf2");
lanemath_border_long3 lanemath_call_cvtfptoi64rtznosatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptoi64rtznosatf3");
/** float to long, rounded toward zero; 3 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long3 lanemath_cvtfptoi64rtznosatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptoi64rtznosatf3, long3, float3, x);
}
#define lanemath_cvtfptoi64rtznosatf3(x) \
/** float to long, rounded toward zero; 3 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptoi64rtznosatf3, long3, float3, x)
lanemath_wide_long4 lanemath_call_cvtfptoi64rtznosatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptoi64rtznosatf4");
/** float to long, rounded toward zero; 4 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long4 lanemath_cvtfptoi64rtznosatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtznosatf4, long4, float4, x);
}
#define lanemath_cvtfptoi64rtznosatf4(x) \
/** float to long, rounded toward zero; 4 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtznosatf4, long4, float4, x)
lanemath_wide_long8 lanemath_call_cvtfptoi64rtznosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptoi64rtznosatf8");
/** float to long, rounded toward zero; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long8 lanemath_cvtfptoi64rtznosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtznosatf8, long8, float8, x);
}
#define lanemath_cvtfptoi64rtznosatf8(x) \
/** float to long, rounded toward zero; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtznosatf8, long8, float8, x)
lanemath_wide_long16 lanemath_call_cvtfptoi64rtznosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptoi64rtznosatf16");
/** float to long, rounded toward zero; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_long16 lanemath_cvtfptoi64rtznosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtznosatf16, long16, float16, x);
}
#define lanemath_cvtfptoi64rtznosatf16(x) \
/** float to long, rounded toward zero; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptoi64rtznosatf16, long16, float16, x)

/** double to ulong, rounded to nearest even, clamped to the range of the result; one double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtesat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou64rtesat1");
/** double to ulong, rounded to nearest even, clamped to the range of the result; 2 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtesat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou64rtesat2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtesat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou64rtesat3");
/** double to ulong, rounded to nearest even, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtesat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtesat3, ulong3, double3, x);
}
#define lanemath_cvtfptou64rtesat3(x) \
/** double to ulong, rounded to nearest even, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtesat3, ulong3, double3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtesat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtesat4");
/** double to ulong, rounded to nearest even, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtesat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtesat4, ulong4, double4, x);
}
#define lanemath_cvtfptou64rtesat4(x) \
/** double to ulong, rounded to nearest even, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtesat4, ulong4, double4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtesat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtesat8");
/** double to ulong, rounded to nearest even, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtesat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtesat8, ulong8, double8, x);
}
#define lanemath_cvtfptou64rtesat8(x) \
/** double to ulong, rounded to nearest even, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtesat8, ulong8, double8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtesat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtesat16");
/** double to ulong, rounded to nearest even, clamped to the range of the result; 16 lanes of double. Exact, or
 * rounded once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtesat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtesat16, ulong16, double16, x);
}
#define lanemath_cvtfptou64rtesat16(x) \
/** double to ulong, rounded to nearest even, clamped to the range of the result; 16 lanes of double. Exact, or
 * rounded once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtesat16, ulong16, double16, x)

/** float to ulong, rounded to nearest even, clamped to the range of the result; one float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtesatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou64rtesatf1");
/** float to ulong, rounded to nearest even, clamped to the range of the result; 2 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtesatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou64rtesatf2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtesatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptou64rtesatf3");
/** float to ulong, rounded to nearest even, clamped to the range of the result; 3 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtesatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtesatf3, ulong3, float3, x);
}
#define lanemath_cvtfptou64rtesatf3(x) \
/** float to ulong, rounded to nearest even, clamped to the range of the result; 3 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtesatf3, ulong3, float3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtesatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtesatf4");
/** float to ulong, rounded to nearest even, clamped to the range of the result; 4 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtesatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtesatf4, ulong4, float4, x);
}
#define lanemath_cvtfptou64rtesatf4(x) \
/** float to ulong, rounded to nearest even, clamped to the range of the result; 4 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtesatf4, ulong4, float4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtesatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtesatf8");
/** float to ulong, rounded to nearest even, clamped to the range of the result; 8 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtesatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtesatf8, ulong8, float8, x);
}
#define lanemath_cvtfptou64rtesatf8(x) \
/** float to ulong, rounded to nearest even, clamped to the range of the result; 8 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtesatf8, ulong8, float8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtesatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtesatf16");
/** float to ulong, rounded to nearest even, clamped to the range of the result; 16 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtesatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtesatf16, ulong16, float16, x);
}
#define lanemath_cvtfptou64rtesatf16(x) \
/** float to ulong, rounded to nearest even, clamped to the range of the result; 16 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtesatf16, ulong16, float16, x)

/** double to ulong, rounded to nearest even; one double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtenosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou64rtenosat1");
/** double to ulong, rounded to nearest even; 2 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtenosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou64rtenosat2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtenosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou64rtenosat3");
/** double to ulong, rounded to nearest even; 3 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtenosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtenosat3, ulong3, double3, x);
}
#define lanemath_cvtfptou64rtenosat3(x) \
/** double to ulong, rounded to nearest even; 3 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtenosat3, ulong3, double3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtenosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtenosat4");
/** double to ulong, rounded to nearest even; 4 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtenosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtenosat4, ulong4, double4, x);
}
#define lanemath_cvtfptou64rtenosat4(x) \
/** double to ulong, rounded to nearest even; 4 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtenosat4, ulong4, double4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtenosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtenosat8");
/** double to ulong, rounded to nearest even; 8 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtenosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtenosat8, ulong8, double8, x);
}
#define lanemath_cvtfptou64rtenosat8(x) \
/** double to ulong, rounded to nearest even; 8 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtenosat8, ulong8, double8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtenosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtenosat16");
/** double to ulong, rounded to nearest even; 16 lanes of double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtenosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtenosat16, ulong16, double16, x);
}
#define lanemath_cvtfptou64rtenosat16(x) \
/** double to ulong, rounded to nearest even; 16 lanes of double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtenosat16, ulong16, double16, x)

/** float to ulong, rounded to nearest even; one float. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtenosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou64rtenosatf1");
/** float to ulong, rounded to nearest even; 2 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtenosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou64rtenosatf2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtenosatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptou64rtenosatf3");
/** float to ulong, rounded to nearest even; 3 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtenosatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtenosatf3, ulong3, float3, x);
}
#define lanemath_cvtfptou64rtenosatf3(x) \
/** float to ulong, rounded to nearest even; 3 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtenosatf3, ulong3, float3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtenosatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtenosatf4");
/** float to ulong, rounded to nearest even; 4 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtenosatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtenosatf4, ulong4, float4, x);
}
#define lanemath_cvtfptou64rtenosatf4(x) \
/** float to ulong, rounded to nearest even; 4 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtenosatf4, ulong4, float4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtenosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtenosatf8");
/** float to ulong, rounded to nearest even; 8 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtenosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtenosatf8, ulong8, float8, x);
}
#define lanemath_cvtfptou64rtenosatf8(x) \
/** float to ulong, rounded to nearest even; 8 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtenosatf8, ulong8, float8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtenosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtenosatf16");
/** float to ulong, rounded to nearest even; 16 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtenosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtenosatf16, ulong16, float16, x);
}
#define lanemath_cvtfptou64rtenosatf16(x) \
/** float to ulong, rounded to nearest even; 16 lanes of float. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtenosatf16, ulong16, float16, x)

/** double to ulong, rounded down, clamped to the range of the result; one double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtnsat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou64rtnsat1");
/** double to ulong, rounded down, clamped to the range of the result; 2 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtnsat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou64rtnsat2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtnsat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou64rtnsat3");
/** double to ulong, rounded down, clamped to the range of the result; 3 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtnsat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtnsat3, ulong3, double3, x);
}
#define lanemath_cvtfptou64rtnsat3(x) \
/** double to ulong, rounded down, clamped to the range of the result; 3 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtnsat3, ulong3, double3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtnsat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtnsat4");
/** double to ulong, rounded down, clamped to the range of the result; 4 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtnsat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnsat4, ulong4, double4, x);
}
#define lanemath_cvtfptou64rtnsat4(x) \
/** double to ulong, rounded down, clamped to the range of the result; 4 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnsat4, ulong4, double4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtnsat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtnsat8");
/** double to ulong, rounded down, clamped to the range of the result; 8 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtnsat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnsat8, ulong8, double8, x);
}
#define lanemath_cvtfptou64rtnsat8(x) \
/** double to ulong, rounded down, clamped to the range of the result; 8 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnsat8, ulong8, double8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtnsat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtnsat16");
/** double to ulong, rounded down, clamped to the range of the result; 16 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtnsat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnsat16, ulong16, double16, x);
}
#define lanemath_cvtfptou64rtnsat16(x) \
/** double to ulong, rounded down, clamped to the range of the result; 16 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnsat16, ulong16, double16, x)

/** float to ulong, rounded down, clamped to the range of the result; one float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtnsatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou64rtnsatf1");
/** float to ulong, rounded down, clamped to the range of the result; 2 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtnsatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou64rtnsatf2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtnsatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptou64rtnsatf3");
/** float to ulong, rounded down, clamped to the range of the result; 3 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtnsatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtnsatf3, ulong3, float3, x);
}
#define lanemath_cvtfptou64rtnsatf3(x) \
/** float to ulong, rounded down, clamped to the range of the result; 3 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtnsatf3, ulong3, float3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtnsatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtnsatf4");
/** float to ulong, rounded down, clamped to the range of the result; 4 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtnsatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnsatf4, ulong4, float4, x);
}
#define lanemath_cvtfptou64rtnsatf4(x) \
/** float to ulong, rounded down, clamped to the range of the result; 4 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnsatf4, ulong4, float4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtnsatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtnsatf8");
/** float to ulong, rounded down, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtnsatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnsatf8, ulong8, float8, x);
}
#define lanemath_cvtfptou64rtnsatf8(x) \
/** float to ulong, rounded down, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnsatf8, ulong8, float8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtnsatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtnsatf16");
/** float to ulong, rounded down, clamped to the range of the result; 16 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtnsatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnsatf16, ulong16, float16, x);
}
#define lanemath_cvtfptou64rtnsatf16(x) \
/** float to ulong, rounded down, clamped to the range of the result; 16 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnsatf16, ulong16, float16, x)

/** double to ulong, rounded down; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtnnosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou64rtnnosat1");
/** double to ulong, rounded down; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtnnosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou64rtnnosat2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtnnosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou64rtnnosat3");
/** double to ulong, rounded down; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtnnosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtnnosat3, ulong3, double3, x);
}
#define lanemath_cvtfptou64rtnnosat3(x) \
/** double to ulong, rounded down; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtnnosat3, ulong3, double3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtnnosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtnnosat4");
/** double to ulong, rounded down; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtnnosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnnosat4, ulong4, double4, x);
}
#define lanemath_cvtfptou64rtnnosat4(x) \
/** double to ulong, rounded down; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnnosat4, ulong4, double4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtnnosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtnnosat8");
/** double to ulong, rounded down; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtnnosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnnosat8, ulong8, double8, x);
}
#define lanemath_cvtfptou64rtnnosat8(x) \
/** double to ulong, rounded down; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnnosat8, ulong8, double8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtnnosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtnnosat16");
/** double to ulong, rounded down; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtnnosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnnosat16, ulong16, double16, x);
}
#define lanemath_cvtfptou64rtnnosat16(x) \
/** double to ulong, rounded down; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnnosat16, ulong16, double16, x)

/** float to ulong, rounded down; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtnnosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou64rtnnosatf1");
/** float to ulong, rounded down; 2 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtnnosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou64rtnnosatf2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtnnosatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptou64rtnnosatf3");
/** float to ulong, rounded down; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtnnosatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtnnosatf3, ulong3, float3, x);
}
#define lanemath_cvtfptou64rtnnosatf3(x) \
/** float to ulong, rounded down; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtnnosatf3, ulong3, float3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtnnosatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtnnosatf4");
/** float to ulong, rounded down; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtnnosatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnnosatf4, ulong4, float4, x);
}
#define lanemath_cvtfptou64rtnnosatf4(x) \
/** float to ulong, rounded down; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnnosatf4, ulong4, float4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtnnosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtnnosatf8");
/** float to ulong, rounded down; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtnnosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnnosatf8, ulong8, float8, x);
}
#define lanemath_cvtfptou64rtnnosatf8(x) \
/** float to ulong, rounded down; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnnosatf8, ulong8, float8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtnnosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtnnosatf16");
/** float to ulong, rounded down; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtnnosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnnosatf16, ulong16, float16, x);
}
#define lanemath_cvtfptou64rtnnosatf16(x) \
/** float to ulong, rounded down; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtnnosatf16, ulong16, float16, x)

/** double to ulong, rounded up, clamped to the range of the result; one double. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtpsat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou64rtpsat1");
/** double to ulong, rounded up, clamped to the range of the result; 2 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtpsat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou64rtpsat2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtpsat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou64rtpsat3");
/** double to ulong, rounded up, clamped to the range of the result; 3 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtpsat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtpsat3, ulong3, double3, x);
}
#define lanemath_cvtfptou64rtpsat3(x) \
/** double to ulong, rounded up, clamped to the range of the result; 3 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtpsat3, ulong3, double3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtpsat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtpsat4");
/** double to ulong, rounded up, clamped to the range of the result; 4 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtpsat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpsat4, ulong4, double4, x);
}
#define lanemath_cvtfptou64rtpsat4(x) \
/** double to ulong, rounded up, clamped to the range of the result; 4 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpsat4, ulong4, double4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtpsat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtpsat8");
/** double to ulong, rounded up, clamped to the range of the result; 8 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtpsat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpsat8, ulong8, double8, x);
}
#define lanemath_cvtfptou64rtpsat8(x) \
/** double to ulong, rounded up, clamped to the range of the result; 8 lanes of double. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpsat8, ulong8, double8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtpsat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtpsat16");
/** double to ulong, rounded up, clamped to the range of the result; 16 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtpsat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpsat16, ulong16, double16, x);
}
#define lanemath_cvtfptou64rtpsat16(x) \
/** double to ulong, rounded up, clamped to the range of the result; 16 lanes of double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpsat16, ulong16, double16, x)

/** float to ulong, rounded up, clamped to the range of the result; one float. Exact, or rounded once. Domain and
 * special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtpsatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou64rtpsatf1");
/** float to ulong, rounded up, clamped to the range of the result; 2 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtpsatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou64rtpsatf2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtpsatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptou64rtpsatf3");
/** float to ulong, rounded up, clamped to the range of the result; 3 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtpsatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtpsatf3, ulong3, float3, x);
}
#define lanemath_cvtfptou64rtpsatf3(x) \
/** float to ulong, rounded up, clamped to the range of the result; 3 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtpsatf3, ulong3, float3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtpsatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtpsatf4");
/** float to ulong, rounded up, clamped to the range of the result; 4 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtpsatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpsatf4, ulong4, float4, x);
}
#define lanemath_cvtfptou64rtpsatf4(x) \
/** float to ulong, rounded up, clamped to the range of the result; 4 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpsatf4, ulong4, float4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtpsatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtpsatf8");
/** float to ulong, rounded up, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtpsatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpsatf8, ulong8, float8, x);
}
#define lanemath_cvtfptou64rtpsatf8(x) \
/** float to ulong, rounded up, clamped to the range of the result; 8 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpsatf8, ulong8, float8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtpsatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtpsatf16");
/** float to ulong, rounded up, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtpsatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpsatf16, ulong16, float16, x);
}
#define lanemath_cvtfptou64rtpsatf16(x) \
/** float to ulong, rounded up, clamped to the range of the result; 16 lanes of float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpsatf16, ulong16, float16, x)

/** double to ulong, rounded up; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtpnosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou64rtpnosat1");
/** double to ulong, rounded up; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtpnosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou64rtpnosat2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtpnosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou64rtpnosat3");
/** double to ulong, rounded up; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtpnosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtpnosat3, ulong3, double3, x);
}
#define lanemath_cvtfptou64rtpnosat3(x) \
/** double to ulong, rounded up; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtpnosat3, ulong3, double3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtpnosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtpnosat4");
/** double to ulong, rounded up; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtpnosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpnosat4, ulong4, double4, x);
}
#define lanemath_cvtfptou64rtpnosat4(x) \
/** double to ulong, rounded up; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpnosat4, ulong4, double4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtpnosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtpnosat8");
/** double to ulong, rounded up; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtpnosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpnosat8, ulong8, double8, x);
}
#define lanemath_cvtfptou64rtpnosat8(x) \
/** double to ulong, rounded up; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpnosat8, ulong8, double8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtpnosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtpnosat16");
/** double to ulong, rounded up; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtpnosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpnosat16, ulong16, double16, x);
}
#define lanemath_cvtfptou64rtpnosat16(x) \
/** double to ulong, rounded up; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpnosat16, ulong16, double16, x)

/** float to ulong, rounded up; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtpnosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou64rtpnosatf1");
/** float to ulong, rounded up; 2 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtpnosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou64rtpnosatf2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtpnosatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptou64rtpnosatf3");
/** float to ulong, rounded up; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtpnosatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtpnosatf3, ulong3, float3, x);
}
#define lanemath_cvtfptou64rtpnosatf3(x) \
/** float to ulong, rounded up; 3 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtpnosatf3, ulong3, float3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtpnosatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtpnosatf4");
/** float to ulong, rounded up; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtpnosatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpnosatf4, ulong4, float4, x);
}
#define lanemath_cvtfptou64rtpnosatf4(x) \
/** float to ulong, rounded up; 4 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpnosatf4, ulong4, float4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtpnosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtpnosatf8");
/** float to ulong, rounded up; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtpnosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpnosatf8, ulong8, float8, x);
}
#define lanemath_cvtfptou64rtpnosatf8(x) \
/** float to ulong, rounded up; 8 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpnosatf8, ulong8, float8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtpnosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtpnosatf16");
/** float to ulong, rounded up; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtpnosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpnosatf16, ulong16, float16, x);
}
#define lanemath_cvtfptou64rtpnosatf16(x) \
/** float to ulong, rounded up; 16 lanes of float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtpnosatf16, ulong16, float16, x)

/** double to ulong, rounded toward zero, clamped to the range of the result; one double. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtzsat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou64rtzsat1");
/** double to ulong, rounded toward zero, clamped to the range of the result; 2 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtzsat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou64rtzsat2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtzsat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou64rtzsat3");
/** double to ulong, rounded toward zero, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtzsat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtzsat3, ulong3, double3, x);
}
#define lanemath_cvtfptou64rtzsat3(x) \
/** double to ulong, rounded toward zero, clamped to the range of the result; 3 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtzsat3, ulong3, double3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtzsat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtzsat4");
/** double to ulong, rounded toward zero, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtzsat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtzsat4, ulong4, double4, x);
}
#define lanemath_cvtfptou64rtzsat4(x) \
/** double to ulong, rounded toward zero, clamped to the range of the result; 4 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtzsat4, ulong4, double4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtzsat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtzsat8");
/** double to ulong, rounded toward zero, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtzsat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtzsat8, ulong8, double8, x);
}
#define lanemath_cvtfptou64rtzsat8(x) \
/** double to ulong, rounded toward zero, clamped to the range of the result; 8 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtzsat8, ulong8, double8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtzsat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtzsat16");
/** double to ulong, rounded toward zero, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtzsat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtzsat16, ulong16, double16, x);
}
#define lanemath_cvtfptou64rtzsat16(x) \
/** double to ulong, rounded toward zero, clamped to the range of the result; 16 lanes of double. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtzsat16, ulong16, double16, x)

/** float to ulong, rounded toward zero, clamped to the range of the result; one float. Exact, or rounded once. Domain
 * and special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtzsatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou64rtzsatf1");
/** float to ulong, rounded toward zero, clamped to the range of the result; 2 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtzsatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou64rtzsatf2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtzsatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptou64rtzsatf3");
/** float to ulong, rounded toward zero, clamped to the range of the result; 3 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtzsatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtzsatf3, ulong3, float3, x);
}
#define lanemath_cvtfptou64rtzsatf3(x) \
/** float to ulong, rounded toward zero, clamped to the range of the result; 3 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtzsatf3, ulong3, float3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtzsatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtzsatf4");
/** float to ulong, rounded toward zero, clamped to the range of the result; 4 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtzsatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtzsatf4, ulong4, float4, x);
}
#define lanemath_cvtfptou64rtzsatf4(x) \
/** float to ulong, rounded toward zero, clamped to the range of the result; 4 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtzsatf4, ulong4, float4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtzsatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtzsatf8");
/** float to ulong, rounded toward zero, clamped to the range of the result; 8 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtzsatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtzsatf8, ulong8, float8, x);
}
#define lanemath_cvtfptou64rtzsatf8(x) \
/** float to ulong, rounded toward zero, clamped to the range of the result; 8 lanes of float. Exact, or rounded once.
 * Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtzsatf8, ulong8, float8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtzsatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtzsatf16");
/** float to ulong, rounded toward zero, clamped to the range of the result; 16 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtzsatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtzsatf16, ulong16, float16, x);
}
#define lanemath_cvtfptou64rtzsatf16(x) \
/** float to ulong, rounded toward zero, clamped to the range of the result; 16 lanes of float. Exact, or rounded
 * once. Domain and special values: at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtzsatf16, ulong16, float16, x)

/** double to ulong, rounded toward zero; one double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtznosat1(lanemath_double1 x) LANEMATH_NAMED("cvtfptou64rtznosat1");
/** double to ulong, rounded toward zero; 2 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtznosat2(lanemath_double2 x) LANEMATH_NAMED("cvtfptou64rtznosat2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtznosat3(lanemath_border_double3) LANEMATH_NAMED("cvtfptou64rtznosat3");
/** double to ulong, rounded toward zero; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtznosat3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtznosat3, ulong3, double3, x);
}
#define lanemath_cvtfptou64rtznosat3(x) \
/** double to ulong, rounded toward zero; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtznosat3, ulong3, double3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtznosat4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfptou64rtznosat4");
/** double to ulong, rounded toward zero; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtznosat4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtznosat4, ulong4, double4, x);
}
#define lanemath_cvtfptou64rtznosat4(x) \
/** double to ulong, rounded toward zero; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtznosat4, ulong4, double4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtznosat8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfptou64rtznosat8");
/** double to ulong, rounded toward zero; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtznosat8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtznosat8, ulong8, double8, x);
}
#define lanemath_cvtfptou64rtznosat8(x) \
/** double to ulong, rounded toward zero; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtznosat8, ulong8, double8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtznosat16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfptou64rtznosat16");
/** double to ulong, rounded toward zero; 16 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtznosat16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtznosat16, ulong16, double16, x);
}
#define lanemath_cvtfptou64rtznosat16(x) \
/** double to ulong, rounded toward zero; 16 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtznosat16, ulong16, double16, x)

/** float to ulong, rounded toward zero; one float. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_ulong1 lanemath_cvtfptou64rtznosatf1(lanemath_float1 x) LANEMATH_NAMED("cvtfptou64rtznosatf1");
/** float to ulong, rounded toward zero; 2 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_ulong2 lanemath_cvtfptou64rtznosatf2(lanemath_float2 x) LANEMATH_NAMED("cvtfptou64rtznosatf2");
lanemath_border_ulong3 lanemath_call_cvtfptou64rtznosatf3(lanemath_border_float3) LANEMATH_NAMED("cvtfptou64rtznosatf3");
/** float to ulong, rounded toward zero; 3 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong3 lanemath_cvtfptou64rtznosatf3(lanemath_float3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfptou64rtznosatf3, ulong3, float3, x);
}
#define lanemath_cvtfptou64rtznosatf3(x) \
/** float to ulong, rounded toward zero; 3 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfptou64rtznosatf3, ulong3, float3, x)
lanemath_wide_ulong4 lanemath_call_cvtfptou64rtznosatf4(lanemath_wide_float4) LANEMATH_NAMED_WIDE("cvtfptou64rtznosatf4");
/** float to ulong, rounded toward zero; 4 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong4 lanemath_cvtfptou64rtznosatf4(lanemath_float4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtznosatf4, ulong4, float4, x);
}
#define lanemath_cvtfptou64rtznosatf4(x) \
/** float to ulong, rounded toward zero; 4 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtznosatf4, ulong4, float4, x)
lanemath_wide_ulong8 lanemath_call_cvtfptou64rtznosatf8(lanemath_wide_float8) LANEMATH_NAMED_WIDE("cvtfptou64rtznosatf8");
/** float to ulong, rounded toward zero; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong8 lanemath_cvtfptou64rtznosatf8(lanemath_float8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtznosatf8, ulong8, float8, x);
}
#define lanemath_cvtfptou64rtznosatf8(x) \
/** float to ulong, rounded toward zero; 8 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtznosatf8, ulong8, float8, x)
lanemath_wide_ulong16 lanemath_call_cvtfptou64rtznosatf16(lanemath_wide_float16) LANEMATH_NAMED_WIDE("cvtfptou64rtznosatf16");
/** float to ulong, rounded toward zero; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_ulong16 lanemath_cvtfptou64rtznosatf16(lanemath_float16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfptou64rtznosatf16, ulong16, float16, x);
}
#define lanemath_cvtfptou64rtznosatf16(x) \
/** float to ulong, rounded toward zero; 16 lanes of float. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfptou64rtznosatf16, ulong16, float16, x)

/** int to double, rounded to nearest even; one int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvti32tofprte1(lanemath_int1 x) LANEMATH_NAMED("cvti32tofprte1");
/** int to double, rounded to nearest even; 2 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvti32tofprte2(lanemath_int2 x) LANEMATH_NAMED("cvti32tofprte2");
lanemath_border_double3 lanemath_call_cvti32tofprte3(lanemath_border_int3) LANEMATH_NAMED("cvti32tofprte3");
/** int to double, rounded to nearest even; 3 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvti32tofprte3(lanemath_int3 x) {
  return LANEMATH_UNARY(lanemath_border, cvti32tofprte3, double3, int3, x);
}
#define lanemath_cvti32tofprte3(x) \
/** int to double, rounded to nearest even; 3 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvti32tofprte3, double3, int3, x)
lanemath_wide_double4 lanemath_call_cvti32tofprte4(lanemath_wide_int4) LANEMATH_NAMED_WIDE("cvti32tofprte4");
/** int to double, rounded to nearest even; 4 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvti32tofprte4(lanemath_int4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprte4, double4, int4, x);
}
#define lanemath_cvti32tofprte4(x) \
/** int to double, rounded to nearest even; 4 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprte4, double4, int4, x)
lanemath_wide_double8 lanemath_call_cvti32tofprte8(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprte8");
/** int to double, rounded to nearest even; 8 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvti32tofprte8(lanemath_int8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprte8, double8, int8, x);
}
#define lanemath_cvti32tofprte8(x) \
/** int to double, rounded to nearest even; 8 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprte8, double8, int8, x)
lanemath_wide_double16 lanemath_call_cvti32tofprte16(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprte16");
/** int to double, rounded to nearest even; 16 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvti32tofprte16(lanemath_int16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprte16, double16, int16, x);
}
#define lanemath_cvti32tofprte16(x) \
/** int to double, rounded to nearest even; 16 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprte16, double16, int16, x)

/** int to float, rounded to nearest even; one int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvti32tofprtef1(lanemath_int1 x) LANEMATH_NAMED("cvti32tofprtef1");
/** int to float, rounded to nearest even; 2 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvti32tofprtef2(lanemath_int2 x) LANEMATH_NAMED("cvti32tofprtef2");
/** int to float, rounded to nearest even; 3 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float3 lanemath_cvti32tofprtef3(lanemath_int3 x) LANEMATH_NAMED("cvti32tofprtef3");
/** int to float, rounded to nearest even; 4 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float4 lanemath_cvti32tofprtef4(lanemath_int4 x) LANEMATH_NAMED("cvti32tofprtef4");
lanemath_wide_float8 lanemath_call_cvti32tofprtef8(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtef8");
/** int to float, rounded to nearest even; 8 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvti32tofprtef8(lanemath_int8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtef8, float8, int8, x);
}
#define lanemath_cvti32tofprtef8(x) \
/** int to float, rounded to nearest even; 8 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtef8, float8, int8, x)
lanemath_wide_float16 lanemath_call_cvti32tofprtef16(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtef16");
/** int to float, rounded to nearest even; 16 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvti32tofprtef16(lanemath_int16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtef16, float16, int16, x);
}
#define lanemath_cvti32tofprtef16(x) \
/** int to float, rounded to nearest even; 16 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtef16, float16, int16, x)

/** int to double, rounded down; one int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvti32tofprtn1(lanemath_int1 x) LANEMATH_NAMED("cvti32tofprtn1");
/** int to double, rounded down; 2 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvti32tofprtn2(lanemath_int2 x) LANEMATH_NAMED("cvti32tofprtn2");
lanemath_border_double3 lanemath_call_cvti32tofprtn3(lanemath_border_int3) LANEMATH_NAMED("cvti32tofprtn3");
/** int to double, rounded down; 3 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvti32tofprtn3(lanemath_int3 x) {
  return LANEMATH_UNARY(lanemath_border, cvti32tofprtn3, double3, int3, x);
}
#define lanemath_cvti32tofprtn3(x) \
/** int to double, rounded down; 3 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvti32tofprtn3, double3, int3, x)
lanemath_wide_double4 lanemath_call_cvti32tofprtn4(lanemath_wide_int4) LANEMATH_NAMED_WIDE("cvti32tofprtn4");
/** int to double, rounded down; 4 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvti32tofprtn4(lanemath_int4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtn4, double4, int4, x);
}
#define lanemath_cvti32tofprtn4(x) \
/** int to double, rounded down; 4 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtn4, double4, int4, x)
lanemath_wide_double8 lanemath_call_cvti32tofprtn8(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtn8");
/** int to double, rounded down; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvti32tofprtn8(lanemath_int8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtn8, double8, int8, x);
}
#define lanemath_cvti32tofprtn8(x) \
/** int to double, rounded down; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtn8, double8, int8, x)
lanemath_wide_double16 lanemath_call_cvti32tofprtn16(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtn16");
/** int to double, rounded down; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvti32tofprtn16(lanemath_int16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtn16, double16, int16, x);
}
#define lanemath_cvti32tofprtn16(x) \
/** int to double, rounded down; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtn16, double16, int16, x)

/** int to float, rounded down; one int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvti32tofprtnf1(lanemath_int1 x) LANEMATH_NAMED("cvti32tofprtnf1");
/** int to float, rounded down; 2 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvti32tofprtnf2(lanemath_int2 x) LANEMATH_NAMED("cvti32tofprtnf2");
/** int to float, rounded down; 3 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float3 lanemath_cvti32tofprtnf3(lanemath_int3 x) LANEMATH_NAMED("cvti32tofprtnf3");
/** int to float, rounded down; 4 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float4 lanemath_cvti32tofprtnf4(lanemath_int4 x) LANEMATH_NAMED("cvti32tofprtnf4");
lanemath_wide_float8 lanemath_call_cvti32tofprtnf8(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtnf8");
/** int to float, rounded down; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvti32tofprtnf8(lanemath_int8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtnf8, float8, int8, x);
}
#define lanemath_cvti32tofprtnf8(x) \
/** int to float, rounded down; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtnf8, float8, int8, x)
lanemath_wide_float16 lanemath_call_cvti32tofprtnf16(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtnf16");
/** int to float, rounded down; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvti32tofprtnf16(lanemath_int16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtnf16, float16, int16, x);
}
#define lanemath_cvti32tofprtnf16(x) \
/** int to float, rounded down; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtnf16, float16, int16, x)

/** int to double, rounded up; one int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvti32tofprtp1(lanemath_int1 x) LANEMATH_NAMED("cvti32tofprtp1");
/** int to double, rounded up; 2 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvti32tofprtp2(lanemath_int2 x) LANEMATH_NAMED("cvti32tofprtp2");
lanemath_border_double3 lanemath_call_cvti32tofprtp3(lanemath_border_int3) LANEMATH_NAMED("cvti32tofprtp3");
/** int to double, rounded up; 3 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvti32tofprtp3(lanemath_int3 x) {
  return LANEMATH_UNARY(lanemath_border, cvti32tofprtp3, double3, int3, x);
}
#define lanemath_cvti32tofprtp3(x) \
/** int to double, rounded up; 3 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvti32tofprtp3, double3, int3, x)
lanemath_wide_double4 lanemath_call_cvti32tofprtp4(lanemath_wide_int4) LANEMATH_NAMED_WIDE("cvti32tofprtp4");
/** int to double, rounded up; 4 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvti32tofprtp4(lanemath_int4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtp4, double4, int4, x);
}
#define lanemath_cvti32tofprtp4(x) \
/** int to double, rounded up; 4 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtp4, double4, int4, x)
lanemath_wide_double8 lanemath_call_cvti32tofprtp8(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtp8");
/** int to double, rounded up; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvti32tofprtp8(lanemath_int8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtp8, double8, int8, x);
}
#define lanemath_cvti32tofprtp8(x) \
/** int to double, rounded up; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtp8, double8, int8, x)
lanemath_wide_double16 lanemath_call_cvti32tofprtp16(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtp16");
/** int to double, rounded up; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvti32tofprtp16(lanemath_int16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtp16, double16, int16, x);
}
#define lanemath_cvti32tofprtp16(x) \
/** int to double, rounded up; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtp16, double16, int16, x)

/** int to float, rounded up; one int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvti32tofprtpf1(lanemath_int1 x) LANEMATH_NAMED("cvti32tofprtpf1");
/** int to float, rounded up; 2 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvti32tofprtpf2(lanemath_int2 x) LANEMATH_NAMED("cvti32tofprtpf2");
/** int to float, rounded up; 3 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float3 lanemath_cvti32tofprtpf3(lanemath_int3 x) LANEMATH_NAMED("cvti32tofprtpf3");
/** int to float, rounded up; 4 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float4 lanemath_cvti32tofprtpf4(lanemath_int4 x) LANEMATH_NAMED("cvti32tofprtpf4");
lanemath_wide_float8 lanemath_call_cvti32tofprtpf8(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtpf8");
/** int to float, rounded up; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvti32tofprtpf8(lanemath_int8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtpf8, float8, int8, x);
}
#define lanemath_cvti32tofprtpf8(x) \
/** int to float, rounded up; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtpf8, float8, int8, x)
lanemath_wide_float16 lanemath_call_cvti32tofprtpf16(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtpf16");
/** int to float, rounded up; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvti32tofprtpf16(lanemath_int16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtpf16, float16, int16, x);
}
#define lanemath_cvti32tofprtpf16(x) \
/** int to float, rounded up; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtpf16, float16, int16, x)

/** int to double, rounded toward zero; one int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvti32tofprtz1(lanemath_int1 x) LANEMATH_NAMED("cvti32tofprtz1");
/** int to double, rounded toward zero; 2 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvti32tofprtz2(lanemath_int2 x) LANEMATH_NAMED("cvti32tofprtz2");
lanemath_border_double3 lanemath_call_cvti32tofprtz3(lanemath_border_int3) LANEMATH_NAMED("cvti32tofprtz3");
/** int to double, rounded toward zero; 3 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvti32tofprtz3(lanemath_int3 x) {
  return LANEMATH_UNARY(lanemath_border, cvti32tofprtz3, double3, int3, x);
}
#define lanemath_cvti32tofprtz3(x) \
/** int to double, rounded toward zero; 3 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvti32tofprtz3, double3, int3, x)
lanemath_wide_double4 lanemath_call_cvti32tofprtz4(lanemath_wide_int4) LANEMATH_NAMED_WIDE("cvti32tofprtz4");
/** int to double, rounded toward zero; 4 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvti32tofprtz4(lanemath_int4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtz4, double4, int4, x);
}
#define lanemath_cvti32tofprtz4(x) \
/** int to double, rounded toward zero; 4 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtz4, double4, int4, x)
lanemath_wide_double8 lanemath_call_cvti32tofprtz8(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtz8");
/** int to double, rounded toward zero; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvti32tofprtz8(lanemath_int8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtz8, double8, int8, x);
}
#define lanemath_cvti32tofprtz8(x) \
/** int to double, rounded toward zero; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtz8, double8, int8, x)
lanemath_wide_double16 lanemath_call_cvti32tofprtz16(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtz16");
/** int to double, rounded toward zero; 16 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvti32tofprtz16(lanemath_int16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtz16, double16, int16, x);
}
#define lanemath_cvti32tofprtz16(x) \
/** int to double, rounded toward zero; 16 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtz16, double16, int16, x)

/** int to float, rounded toward zero; one int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvti32tofprtzf1(lanemath_int1 x) LANEMATH_NAMED("cvti32tofprtzf1");
/** int to float, rounded toward zero; 2 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvti32tofprtzf2(lanemath_int2 x) LANEMATH_NAMED("cvti32tofprtzf2");
/** int to float, rounded toward zero; 3 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_float3 lanemath_cvti32tofprtzf3(lanemath_int3 x) LANEMATH_NAMED("cvti32tofprtzf3");
/** int to float, rounded toward zero; 4 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_float4 lanemath_cvti32tofprtzf4(lanemath_int4 x) LANEMATH_NAMED("cvti32tofprtzf4");
lanemath_wide_float8 lanemath_call_cvti32tofprtzf8(lanemath_wide_int8) LANEMATH_NAMED_WIDE("cvti32tofprtzf8");
/** int to float, rounded toward zero; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvti32tofprtzf8(lanemath_int8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtzf8, float8, int8, x);
}
#define lanemath_cvti32tofprtzf8(x) \
/** int to float, rounded toward zero; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtzf8, float8, int8, x)
lanemath_wide_float16 lanemath_call_cvti32tofprtzf16(lanemath_wide_int16) LANEMATH_NAMED_WIDE("cvti32tofprtzf16");
/** int to float, rounded toward zero; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvti32tofprtzf16(lanemath_int16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti32tofprtzf16, float16, int16, x);
}
#define lanemath_cvti32tofprtzf16(x) \
/** int to float, rounded toward zero; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti32tofprtzf16, float16, int16, x)

/** uint to double, rounded to nearest even; one uint. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvtu32tofprte1(lanemath_uint1 x) LANEMATH_NAMED("cvtu32tofprte1");
/** uint to double, rounded to nearest even; 2 lanes of uint. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvtu32tofprte2(lanemath_uint2 x) LANEMATH_NAMED("cvtu32tofprte2");
lanemath_border_double3 lanemath_call_cvtu32tofprte3(lanemath_border_uint3) LANEMATH_NAMED("cvtu32tofprte3");
/** uint to double, rounded to nearest even; 3 lanes of uint. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvtu32tofprte3(lanemath_uint3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtu32tofprte3, double3, uint3, x);
}
#define lanemath_cvtu32tofprte3(x) \
/** uint to double, rounded to nearest even; 3 lanes of uint. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtu32tofprte3, double3, uint3, x)
lanemath_wide_double4 lanemath_call_cvtu32tofprte4(lanemath_wide_uint4) LANEMATH_NAMED_WIDE("cvtu32tofprte4");
/** uint to double, rounded to nearest even; 4 lanes of uint. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvtu32tofprte4(lanemath_uint4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprte4, double4, uint4, x);
}
#define lanemath_cvtu32tofprte4(x) \
/** uint to double, rounded to nearest even; 4 lanes of uint. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprte4, double4, uint4, x)
lanemath_wide_double8 lanemath_call_cvtu32tofprte8(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprte8");
/** uint to double, rounded to nearest even; 8 lanes of uint. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvtu32tofprte8(lanemath_uint8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprte8, double8, uint8, x);
}
#define lanemath_cvtu32tofprte8(x) \
/** uint to double, rounded to nearest even; 8 lanes of uint. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprte8, double8, uint8, x)
lanemath_wide_double16 lanemath_call_cvtu32tofprte16(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprte16");
/** uint to double, rounded to nearest even; 16 lanes of uint. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvtu32tofprte16(lanemath_uint16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprte16, double16, uint16, x);
}
#define lanemath_cvtu32tofprte16(x) \
/** uint to double, rounded to nearest even; 16 lanes of uint. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprte16, double16, uint16, x)

/** uint to float, rounded to nearest even; one uint. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvtu32tofprtef1(lanemath_uint1 x) LANEMATH_NAMED("cvtu32tofprtef1");
/** uint to float, rounded to nearest even; 2 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvtu32tofprtef2(lanemath_uint2 x) LANEMATH_NAMED("cvtu32tofprtef2");
/** uint to float, rounded to nearest even; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float3 lanemath_cvtu32tofprtef3(lanemath_uint3 x) LANEMATH_NAMED("cvtu32tofprtef3");
/** uint to float, rounded to nearest even; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float4 lanemath_cvtu32tofprtef4(lanemath_uint4 x) LANEMATH_NAMED("cvtu32tofprtef4");
lanemath_wide_float8 lanemath_call_cvtu32tofprtef8(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtef8");
/** uint to float, rounded to nearest even; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvtu32tofprtef8(lanemath_uint8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtef8, float8, uint8, x);
}
#define lanemath_cvtu32tofprtef8(x) \
/** uint to float, rounded to nearest even; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtef8, float8, uint8, x)
lanemath_wide_float16 lanemath_call_cvtu32tofprtef16(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtef16");
/** uint to float, rounded to nearest even; 16 lanes of uint. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvtu32tofprtef16(lanemath_uint16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtef16, float16, uint16, x);
}
#define lanemath_cvtu32tofprtef16(x) \
/** uint to float, rounded to nearest even; 16 lanes of uint. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtef16, float16, uint16, x)

/** uint to double, rounded down; one uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvtu32tofprtn1(lanemath_uint1 x) LANEMATH_NAMED("cvtu32tofprtn1");
/** uint to double, rounded down; 2 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvtu32tofprtn2(lanemath_uint2 x) LANEMATH_NAMED("cvtu32tofprtn2");
lanemath_border_double3 lanemath_call_cvtu32tofprtn3(lanemath_border_uint3) LANEMATH_NAMED("cvtu32tofprtn3");
/** uint to double, rounded down; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvtu32tofprtn3(lanemath_uint3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtu32tofprtn3, double3, uint3, x);
}
#define lanemath_cvtu32tofprtn3(x) \
/** uint to double, rounded down; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtu32tofprtn3, double3, uint3, x)
lanemath_wide_double4 lanemath_call_cvtu32tofprtn4(lanemath_wide_uint4) LANEMATH_NAMED_WIDE("cvtu32tofprtn4");
/** uint to double, rounded down; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvtu32tofprtn4(lanemath_uint4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtn4, double4, uint4, x);
}
#define lanemath_cvtu32tofprtn4(x) \
/** uint to double, rounded down; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtn4, double4, uint4, x)
lanemath_wide_double8 lanemath_call_cvtu32tofprtn8(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtn8");
/** uint to double, rounded down; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvtu32tofprtn8(lanemath_uint8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtn8, double8, uint8, x);
}
#define lanemath_cvtu32tofprtn8(x) \
/** uint to double, rounded down; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtn8, double8, uint8, x)
lanemath_wide_double16 lanemath_call_cvtu32tofprtn16(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtn16");
/** uint to double, rounded down; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvtu32tofprtn16(lanemath_uint16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtn16, double16, uint16, x);
}
#define lanemath_cvtu32tofprtn16(x) \
/** uint to double, rounded down; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtn16, double16, uint16, x)

/** uint to float, rounded down; one uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvtu32tofprtnf1(lanemath_uint1 x) LANEMATH_NAMED("cvtu32tofprtnf1");
/** uint to float, rounded down; 2 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvtu32tofprtnf2(lanemath_uint2 x) LANEMATH_NAMED("cvtu32tofprtnf2");
/** uint to float, rounded down; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float3 lanemath_cvtu32tofprtnf3(lanemath_uint3 x) LANEMATH_NAMED("cvtu32tofprtnf3");
/** uint to float, rounded down; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float4 lanemath_cvtu32tofprtnf4(lanemath_uint4 x) LANEMATH_NAMED("cvtu32tofprtnf4");
lanemath_wide_float8 lanemath_call_cvtu32tofprtnf8(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtnf8");
/** uint to float, rounded down; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvtu32tofprtnf8(lanemath_uint8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtnf8, float8, uint8, x);
}
#define lanemath_cvtu32tofprtnf8(x) \
/** uint to float, rounded down; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtnf8, float8, uint8, x)
lanemath_wide_float16 lanemath_call_cvtu32tofprtnf16(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtnf16");
/** uint to float, rounded down; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvtu32tofprtnf16(lanemath_uint16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtnf16, float16, uint16, x);
}
#define lanemath_cvtu32tofprtnf16(x) \
/** uint to float, rounded down; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtnf16, float16, uint16, x)

/** uint to double, rounded up; one uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvtu32tofprtp1(lanemath_uint1 x) LANEMATH_NAMED("cvtu32tofprtp1");
/** uint to double, rounded up; 2 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvtu32tofprtp2(lanemath_uint2 x) LANEMATH_NAMED("cvtu32tofprtp2");
lanemath_border_double3 lanemath_call_cvtu32tofprtp3(lanemath_border_uint3) LANEMATH_NAMED("cvtu32tofprtp3");
/** uint to double, rounded up; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvtu32tofprtp3(lanemath_uint3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtu32tofprtp3, double3, uint3, x);
}
#define lanemath_cvtu32tofprtp3(x) \
/** uint to double, rounded up; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtu32tofprtp3, double3, uint3, x)
lanemath_wide_double4 lanemath_call_cvtu32tofprtp4(lanemath_wide_uint4) LANEMATH_NAMED_WIDE("cvtu32tofprtp4");
/** uint to double, rounded up; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvtu32tofprtp4(lanemath_uint4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtp4, double4, uint4, x);
}
#define lanemath_cvtu32tofprtp4(x) \
/** uint to double, rounded up; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtp4, double4, uint4, x)
lanemath_wide_double8 lanemath_call_cvtu32tofprtp8(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtp8");
/** uint to double, rounded up; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvtu32tofprtp8(lanemath_uint8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtp8, double8, uint8, x);
}
#define lanemath_cvtu32tofprtp8(x) \
/** uint to double, rounded up; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtp8, double8, uint8, x)
lanemath_wide_double16 lanemath_call_cvtu32tofprtp16(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtp16");
/** uint to double, rounded up; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvtu32tofprtp16(lanemath_uint16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtp16, double16, uint16, x);
}
#define lanemath_cvtu32tofprtp16(x) \
/** uint to double, rounded up; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtp16, double16, uint16, x)

/** uint to float, rounded up; one uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvtu32tofprtpf1(lanemath_uint1 x) LANEMATH_NAMED("cvtu32tofprtpf1");
/** uint to float, rounded up; 2 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvtu32tofprtpf2(lanemath_uint2 x) LANEMATH_NAMED("cvtu32tofprtpf2");
/** uint to float, rounded up; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float3 lanemath_cvtu32tofprtpf3(lanemath_uint3 x) LANEMATH_NAMED("cvtu32tofprtpf3");
/** uint to float, rounded up; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float4 lanemath_cvtu32tofprtpf4(lanemath_uint4 x) LANEMATH_NAMED("cvtu32tofprtpf4");
lanemath_wide_float8 lanemath_call_cvtu32tofprtpf8(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtpf8");
/** uint to float, rounded up; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvtu32tofprtpf8(lanemath_uint8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtpf8, float8, uint8, x);
}
#define lanemath_cvtu32tofprtpf8(x) \
/** uint to float, rounded up; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtpf8, float8, uint8, x)
lanemath_wide_float16 lanemath_call_cvtu32tofprtpf16(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtpf16");
/** uint to float, rounded up; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvtu32tofprtpf16(lanemath_uint16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtpf16, float16, uint16, x);
}
#define lanemath_cvtu32tofprtpf16(x) \
/** uint to float, rounded up; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtpf16, float16, uint16, x)

/** uint to double, rounded toward zero; one uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvtu32tofprtz1(lanemath_uint1 x) LANEMATH_NAMED("cvtu32tofprtz1");
/** uint to double, rounded toward zero; 2 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvtu32tofprtz2(lanemath_uint2 x) LANEMATH_NAMED("cvtu32tofprtz2");
lanemath_border_double3 lanemath_call_cvtu32tofprtz3(lanemath_border_uint3) LANEMATH_NAMED("cvtu32tofprtz3");
/** uint to double, rounded toward zero; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvtu32tofprtz3(lanemath_uint3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtu32tofprtz3, double3, uint3, x);
}
#define lanemath_cvtu32tofprtz3(x) \
/** uint to double, rounded toward zero; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtu32tofprtz3, double3, uint3, x)
lanemath_wide_double4 lanemath_call_cvtu32tofprtz4(lanemath_wide_uint4) LANEMATH_NAMED_WIDE("cvtu32tofprtz4");
/** uint to double, rounded toward zero; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvtu32tofprtz4(lanemath_uint4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtz4, double4, uint4, x);
}
#define lanemath_cvtu32tofprtz4(x) \
/** uint to double, rounded toward zero; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtz4, double4, uint4, x)
lanemath_wide_double8 lanemath_call_cvtu32tofprtz8(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtz8");
/** uint to double, rounded toward zero; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvtu32tofprtz8(lanemath_uint8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtz8, double8, uint8, x);
}
#define lanemath_cvtu32tofprtz8(x) \
/** uint to double, rounded toward zero; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtz8, double8, uint8, x)
lanemath_wide_double16 lanemath_call_cvtu32tofprtz16(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtz16");
/** uint to double, rounded toward zero; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvtu32tofprtz16(lanemath_uint16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtz16, double16, uint16, x);
}
#define lanemath_cvtu32tofprtz16(x) \
/** uint to double, rounded toward zero; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtz16, double16, uint16, x)

/** uint to float, rounded toward zero; one uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvtu32tofprtzf1(lanemath_uint1 x) LANEMATH_NAMED("cvtu32tofprtzf1");
/** uint to float, rounded toward zero; 2 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvtu32tofprtzf2(lanemath_uint2 x) LANEMATH_NAMED("cvtu32tofprtzf2");
/** uint to float, rounded toward zero; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float3 lanemath_cvtu32tofprtzf3(lanemath_uint3 x) LANEMATH_NAMED("cvtu32tofprtzf3");
/** uint to float, rounded toward zero; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float4 lanemath_cvtu32tofprtzf4(lanemath_uint4 x) LANEMATH_NAMED("cvtu32tofprtzf4");
lanemath_wide_float8 lanemath_call_cvtu32tofprtzf8(lanemath_wide_uint8) LANEMATH_NAMED_WIDE("cvtu32tofprtzf8");
/** uint to float, rounded toward zero; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvtu32tofprtzf8(lanemath_uint8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtzf8, float8, uint8, x);
}
#define lanemath_cvtu32tofprtzf8(x) \
/** uint to float, rounded toward zero; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtzf8, float8, uint8, x)
lanemath_wide_float16 lanemath_call_cvtu32tofprtzf16(lanemath_wide_uint16) LANEMATH_NAMED_WIDE("cvtu32tofprtzf16");
/** uint to float, rounded toward zero; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvtu32tofprtzf16(lanemath_uint16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu32tofprtzf16, float16, uint16, x);
}
#define lanemath_cvtu32tofprtzf16(x) \
/** uint to float, rounded toward zero; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu32tofprtzf16, float16, uint16, x)

/** long to double, rounded to nearest even; one long. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvti64tofprte1(lanemath_long1 x) LANEMATH_NAMED("cvti64tofprte1");
/** long to double, rounded to nearest even; 2 lanes of long. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvti64tofprte2(lanemath_long2 x) LANEMATH_NAMED("cvti64tofprte2");
lanemath_border_double3 lanemath_call_cvti64tofprte3(lanemath_border_long3) LANEMATH_NAMED("cvti64tofprte3");
/** long to double, rounded to nearest even; 3 lanes of long. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvti64tofprte3(lanemath_long3 x) {
  return LANEMATH_UNARY(lanemath_border, cvti64tofprte3, double3, long3, x);
}
#define lanemath_cvti64tofprte3(x) \
/** long to double, rounded to nearest even; 3 lanes of long. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvti64tofprte3, double3, long3, x)
lanemath_wide_double4 lanemath_call_cvti64tofprte4(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprte4");
/** long to double, rounded to nearest even; 4 lanes of long. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvti64tofprte4(lanemath_long4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprte4, double4, long4, x);
}
#define lanemath_cvti64tofprte4(x) \
/** long to double, rounded to nearest even; 4 lanes of long. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprte4, double4, long4, x)
lanemath_wide_double8 lanemath_call_cvti64tofprte8(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprte8");
/** long to double, rounded to nearest even; 8 lanes of long. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvti64tofprte8(lanemath_long8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprte8, double8, long8, x);
}
#define lanemath_cvti64tofprte8(x) \
/** long to double, rounded to nearest even; 8 lanes of long. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprte8, double8, long8, x)
lanemath_wide_double16 lanemath_call_cvti64tofprte16(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprte16");
/** long to double, rounded to nearest even; 16 lanes of long. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvti64tofprte16(lanemath_long16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprte16, double16, long16, x);
}
#define lanemath_cvti64tofprte16(x) \
/** long to double, rounded to nearest even; 16 lanes of long. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprte16, double16, long16, x)

/** long to float, rounded to nearest even; one long. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvti64tofprtef1(lanemath_long1 x) LANEMATH_NAMED("cvti64tofprtef1");
/** long to float, rounded to nearest even; 2 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvti64tofprtef2(lanemath_long2 x) LANEMATH_NAMED("cvti64tofprtef2");
lanemath_border_float3 lanemath_call_cvti64tofprtef3(lanemath_border_long3) LANEMATH_NAMED("cvti64tofprtef3");
/** long to float, rounded to nearest even; 3 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float3 lanemath_cvti64tofprtef3(lanemath_long3 x) {
  return LANEMATH_UNARY(lanemath_border, cvti64tofprtef3, float3, long3, x);
}
#define lanemath_cvti64tofprtef3(x) \
/** long to float, rounded to nearest even; 3 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvti64tofprtef3, float3, long3, x)
lanemath_wide_float4 lanemath_call_cvti64tofprtef4(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtef4");
/** long to float, rounded to nearest even; 4 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float4 lanemath_cvti64tofprtef4(lanemath_long4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtef4, float4, long4, x);
}
#define lanemath_cvti64tofprtef4(x) \
/** long to float, rounded to nearest even; 4 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtef4, float4, long4, x)
lanemath_wide_float8 lanemath_call_cvti64tofprtef8(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtef8");
/** long to float, rounded to nearest even; 8 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvti64tofprtef8(lanemath_long8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtef8, float8, long8, x);
}
#define lanemath_cvti64tofprtef8(x) \
/** long to float, rounded to nearest even; 8 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtef8, float8, long8, x)
lanemath_wide_float16 lanemath_call_cvti64tofprtef16(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtef16");
/** long to float, rounded to nearest even; 16 lanes of long. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvti64tofprtef16(lanemath_long16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtef16, float16, long16, x);
}
#define lanemath_cvti64tofprtef16(x) \
/** long to float, rounded to nearest even; 16 lanes of long. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtef16, float16, long16, x)

/** long to double, rounded down; one long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvti64tofprtn1(lanemath_long1 x) LANEMATH_NAMED("cvti64tofprtn1");
/** long to double, rounded down; 2 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvti64tofprtn2(lanemath_long2 x) LANEMATH_NAMED("cvti64tofprtn2");
lanemath_border_double3 lanemath_call_cvti64tofprtn3(lanemath_border_long3) LANEMATH_NAMED("cvti64tofprtn3");
/** long to double, rounded down; 3 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvti64tofprtn3(lanemath_long3 x) {
  return LANEMATH_UNARY(lanemath_border, cvti64tofprtn3, double3, long3, x);
}
#define lanemath_cvti64tofprtn3(x) \
/** long to double, rounded down; 3 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvti64tofprtn3, double3, long3, x)
lanemath_wide_double4 lanemath_call_cvti64tofprtn4(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtn4");
/** long to double, rounded down; 4 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvti64tofprtn4(lanemath_long4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtn4, double4, long4, x);
}
#define lanemath_cvti64tofprtn4(x) \
/** long to double, rounded down; 4 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtn4, double4, long4, x)
lanemath_wide_double8 lanemath_call_cvti64tofprtn8(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtn8");
/** long to double, rounded down; 8 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvti64tofprtn8(lanemath_long8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtn8, double8, long8, x);
}
#define lanemath_cvti64tofprtn8(x) \
/** long to double, rounded down; 8 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtn8, double8, long8, x)
lanemath_wide_double16 lanemath_call_cvti64tofprtn16(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtn16");
/** long to double, rounded down; 16 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvti64tofprtn16(lanemath_long16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtn16, double16, long16, x);
}
#define lanemath_cvti64tofprtn16(x) \
/** long to double, rounded down; 16 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtn16, double16, long16, x)

/** long to float, rounded down; one long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvti64tofprtnf1(lanemath_long1 x) LANEMATH_NAMED("cvti64tofprtnf1");
/** long to float, rounded down; 2 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvti64tofprtnf2(lanemath_long2 x) LANEMATH_NAMED("cvti64tofprtnf2");
lanemath_border_float3 lanemath_call_cvti64tofprtnf3(lanemath_border_long3) LANEMATH_NAMED("cvti64tofprtnf3");
/** long to float, rounded down; 3 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float3 lanemath_cvti64tofprtnf3(lanemath_long3 x) {
  return LANEMATH_UNARY(lanemath_border, cvti64tofprtnf3, float3, long3, x);
}
#define lanemath_cvti64tofprtnf3(x) \
/** long to float, rounded down; 3 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvti64tofprtnf3, float3, long3, x)
lanemath_wide_float4 lanemath_call_cvti64tofprtnf4(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtnf4");
/** long to float, rounded down; 4 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float4 lanemath_cvti64tofprtnf4(lanemath_long4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtnf4, float4, long4, x);
}
#define lanemath_cvti64tofprtnf4(x) \
/** long to float, rounded down; 4 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtnf4, float4, long4, x)
lanemath_wide_float8 lanemath_call_cvti64tofprtnf8(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtnf8");
/** long to float, rounded down; 8 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvti64tofprtnf8(lanemath_long8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtnf8, float8, long8, x);
}
#define lanemath_cvti64tofprtnf8(x) \
/** long to float, rounded down; 8 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtnf8, float8, long8, x)
lanemath_wide_float16 lanemath_call_cvti64tofprtnf16(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtnf16");
/** long to float, rounded down; 16 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvti64tofprtnf16(lanemath_long16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtnf16, float16, long16, x);
}
#define lanemath_cvti64tofprtnf16(x) \
/** long to float, rounded down; 16 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtnf16, float16, long16, x)

/** long to double, rounded up; one long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvti64tofprtp1(lanemath_long1 x) LANEMATH_NAMED("cvti64tofprtp1");
/** long to double, rounded up; 2 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvti64tofprtp2(lanemath_long2 x) LANEMATH_NAMED("cvti64tofprtp2");
lanemath_border_double3 lanemath_call_cvti64tofprtp3(lanemath_border_long3) LANEMATH_NAMED("cvti64tofprtp3");
/** long to double, rounded up; 3 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvti64tofprtp3(lanemath_long3 x) {
  return LANEMATH_UNARY(lanemath_border, cvti64tofprtp3, double3, long3, x);
}
#define lanemath_cvti64tofprtp3(x) \
/** long to double, rounded up; 3 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvti64tofprtp3, double3, long3, x)
lanemath_wide_double4 lanemath_call_cvti64tofprtp4(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtp4");
/** long to double, rounded up; 4 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvti64tofprtp4(lanemath_long4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtp4, double4, long4, x);
}
#define lanemath_cvti64tofprtp4(x) \
/** long to double, rounded up; 4 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtp4, double4, long4, x)
lanemath_wide_double8 lanemath_call_cvti64tofprtp8(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtp8");
/** long to double, rounded up; 8 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvti64tofprtp8(lanemath_long8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtp8, double8, long8, x);
}
#define lanemath_cvti64tofprtp8(x) \
/** long to double, rounded up; 8 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtp8, double8, long8, x)
lanemath_wide_double16 lanemath_call_cvti64tofprtp16(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtp16");
/** long to double, rounded up; 16 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvti64tofprtp16(lanemath_long16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtp16, double16, long16, x);
}
#define lanemath_cvti64tofprtp16(x) \
/** long to double, rounded up; 16 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtp16, double16, long16, x)

/** long to float, rounded up; one long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvti64tofprtpf1(lanemath_long1 x) LANEMATH_NAMED("cvti64tofprtpf1");
/** long to float, rounded up; 2 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvti64tofprtpf2(lanemath_long2 x) LANEMATH_NAMED("cvti64tofprtpf2");
lanemath_border_float3 lanemath_call_cvti64tofprtpf3(lanemath_border_long3) LANEMATH_NAMED("cvti64tofprtpf3");
/** long to float, rounded up; 3 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float3 lanemath_cvti64tofprtpf3(lanemath_long3 x) {
  return LANEMATH_UNARY(lanemath_border, cvti64tofprtpf3, float3, long3, x);
}
#define lanemath_cvti64tofprtpf3(x) \
/** long to float, rounded up; 3 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvti64tofprtpf3, float3, long3, x)
lanemath_wide_float4 lanemath_call_cvti64tofprtpf4(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtpf4");
/** long to float, rounded up; 4 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float4 lanemath_cvti64tofprtpf4(lanemath_long4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtpf4, float4, long4, x);
}
#define lanemath_cvti64tofprtpf4(x) \
/** long to float, rounded up; 4 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtpf4, float4, long4, x)
lanemath_wide_float8 lanemath_call_cvti64tofprtpf8(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtpf8");
/** long to float, rounded up; 8 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvti64tofprtpf8(lanemath_long8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtpf8, float8, long8, x);
}
#define lanemath_cvti64tofprtpf8(x) \
/** long to float, rounded up; 8 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtpf8, float8, long8, x)
lanemath_wide_float16 lanemath_call_cvti64tofprtpf16(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtpf16");
/** long to float, rounded up; 16 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvti64tofprtpf16(lanemath_long16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtpf16, float16, long16, x);
}
#define lanemath_cvti64tofprtpf16(x) \
/** long to float, rounded up; 16 lanes of long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtpf16, float16, long16, x)

/** long to double, rounded toward zero; one long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvti64tofprtz1(lanemath_long1 x) LANEMATH_NAMED("cvti64tofprtz1");
/** long to double, rounded toward zero; 2 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvti64tofprtz2(lanemath_long2 x) LANEMATH_NAMED("cvti64tofprtz2");
lanemath_border_double3 lanemath_call_cvti64tofprtz3(lanemath_border_long3) LANEMATH_NAMED("cvti64tofprtz3");
/** long to double, rounded toward zero; 3 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvti64tofprtz3(lanemath_long3 x) {
  return LANEMATH_UNARY(lanemath_border, cvti64tofprtz3, double3, long3, x);
}
#define lanemath_cvti64tofprtz3(x) \
/** long to double, rounded toward zero; 3 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvti64tofprtz3, double3, long3, x)
lanemath_wide_double4 lanemath_call_cvti64tofprtz4(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtz4");
/** long to double, rounded toward zero; 4 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvti64tofprtz4(lanemath_long4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtz4, double4, long4, x);
}
#define lanemath_cvti64tofprtz4(x) \
/** long to double, rounded toward zero; 4 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtz4, double4, long4, x)
lanemath_wide_double8 lanemath_call_cvti64tofprtz8(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtz8");
/** long to double, rounded toward zero; 8 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvti64tofprtz8(lanemath_long8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtz8, double8, long8, x);
}
#define lanemath_cvti64tofprtz8(x) \
/** long to double, rounded toward zero; 8 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtz8, double8, long8, x)
lanemath_wide_double16 lanemath_call_cvti64tofprtz16(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtz16");
/** long to double, rounded toward zero; 16 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvti64tofprtz16(lanemath_long16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtz16, double16, long16, x);
}
#define lanemath_cvti64tofprtz16(x) \
/** long to double, rounded toward zero; 16 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtz16, double16, long16, x)

/** long to float, rounded toward zero; one long. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvti64tofprtzf1(lanemath_long1 x) LANEMATH_NAMED("cvti64tofprtzf1");
/** long to float, rounded toward zero; 2 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvti64tofprtzf2(lanemath_long2 x) LANEMATH_NAMED("cvti64tofprtzf2");
lanemath_border_float3 lanemath_call_cvti64tofprtzf3(lanemath_border_long3) LANEMATH_NAMED("cvti64tofprtzf3");
/** long to float, rounded toward zero; 3 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float3 lanemath_cvti64tofprtzf3(lanemath_long3 x) {
  return LANEMATH_UNARY(lanemath_border, cvti64tofprtzf3, float3, long3, x);
}
#define lanemath_cvti64tofprtzf3(x) \
/** long to float, rounded toward zero; 3 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvti64tofprtzf3, float3, long3, x)
lanemath_wide_float4 lanemath_call_cvti64tofprtzf4(lanemath_wide_long4) LANEMATH_NAMED_WIDE("cvti64tofprtzf4");
/** long to float, rounded toward zero; 4 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float4 lanemath_cvti64tofprtzf4(lanemath_long4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtzf4, float4, long4, x);
}
#define lanemath_cvti64tofprtzf4(x) \
/** long to float, rounded toward zero; 4 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtzf4, float4, long4, x)
lanemath_wide_float8 lanemath_call_cvti64tofprtzf8(lanemath_wide_long8) LANEMATH_NAMED_WIDE("cvti64tofprtzf8");
/** long to float, rounded toward zero; 8 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvti64tofprtzf8(lanemath_long8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtzf8, float8, long8, x);
}
#define lanemath_cvti64tofprtzf8(x) \
/** long to float, rounded toward zero; 8 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtzf8, float8, long8, x)
lanemath_wide_float16 lanemath_call_cvti64tofprtzf16(lanemath_wide_long16) LANEMATH_NAMED_WIDE("cvti64tofprtzf16");
/** long to float, rounded toward zero; 16 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvti64tofprtzf16(lanemath_long16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvti64tofprtzf16, float16, long16, x);
}
#define lanemath_cvti64tofprtzf16(x) \
/** long to float, rounded toward zero; 16 lanes of long. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvti64tofprtzf16, float16, long16, x)

/** ulong to double, rounded to nearest even; one ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvtu64tofprte1(lanemath_ulong1 x) LANEMATH_NAMED("cvtu64tofprte1");
/** ulong to double, rounded to nearest even; 2 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvtu64tofprte2(lanemath_ulong2 x) LANEMATH_NAMED("cvtu64tofprte2");
lanemath_border_double3 lanemath_call_cvtu64tofprte3(lanemath_border_ulong3) LANEMATH_NAMED("cvtu64tofprte3");
/** ulong to double, rounded to nearest even; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvtu64tofprte3(lanemath_ulong3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtu64tofprte3, double3, ulong3, x);
}
#define lanemath_cvtu64tofprte3(x) \
/** ulong to double, rounded to nearest even; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtu64tofprte3, double3, ulong3, x)
lanemath_wide_double4 lanemath_call_cvtu64tofprte4(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprte4");
/** ulong to double, rounded to nearest even; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvtu64tofprte4(lanemath_ulong4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprte4, double4, ulong4, x);
}
#define lanemath_cvtu64tofprte4(x) \
/** ulong to double, rounded to nearest even; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprte4, double4, ulong4, x)
lanemath_wide_double8 lanemath_call_cvtu64tofprte8(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprte8");
/** ulong to double, rounded to nearest even; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvtu64tofprte8(lanemath_ulong8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprte8, double8, ulong8, x);
}
#define lanemath_cvtu64tofprte8(x) \
/** ulong to double, rounded to nearest even; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprte8, double8, ulong8, x)
lanemath_wide_double16 lanemath_call_cvtu64tofprte16(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprte16");
/** ulong to double, rounded to nearest even; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvtu64tofprte16(lanemath_ulong16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprte16, double16, ulong16, x);
}
#define lanemath_cvtu64tofprte16(x) \
/** ulong to double, rounded to nearest even; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprte16, double16, ulong16, x)

/** ulong to float, rounded to nearest even; one ulong. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvtu64tofprtef1(lanemath_ulong1 x) LANEMATH_NAMED("cvtu64tofprtef1");
/** ulong to float, rounded to nearest even; 2 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvtu64tofprtef2(lanemath_ulong2 x) LANEMATH_NAMED("cvtu64tofprtef2");
lanemath_border_float3 lanemath_call_cvtu64tofprtef3(lanemath_border_ulong3) LANEMATH_NAMED("cvtu64tofprtef3");
/** ulong to float, rounded to nearest even; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float3 lanemath_cvtu64tofprtef3(lanemath_ulong3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtu64tofprtef3, float3, ulong3, x);
}
#define lanemath_cvtu64tofprtef3(x) \
/** ulong to float, rounded to nearest even; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtu64tofprtef3, float3, ulong3, x)
lanemath_wide_float4 lanemath_call_cvtu64tofprtef4(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtef4");
/** ulong to float, rounded to nearest even; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float4 lanemath_cvtu64tofprtef4(lanemath_ulong4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtef4, float4, ulong4, x);
}
#define lanemath_cvtu64tofprtef4(x) \
/** ulong to float, rounded to nearest even; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtef4, float4, ulong4, x)
lanemath_wide_float8 lanemath_call_cvtu64tofprtef8(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtef8");
/** ulong to float, rounded to nearest even; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvtu64tofprtef8(lanemath_ulong8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtef8, float8, ulong8, x);
}
#define lanemath_cvtu64tofprtef8(x) \
/** ulong to float, rounded to nearest even; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtef8, float8, ulong8, x)
lanemath_wide_float16 lanemath_call_cvtu64tofprtef16(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtef16");
/** ulong to float, rounded to nearest even; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvtu64tofprtef16(lanemath_ulong16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtef16, float16, ulong16, x);
}
#define lanemath_cvtu64tofprtef16(x) \
/** ulong to float, rounded to nearest even; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtef16, float16, ulong16, x)

/** ulong to double, rounded down; one ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvtu64tofprtn1(lanemath_ulong1 x) LANEMATH_NAMED("cvtu64tofprtn1");
/** ulong to double, rounded down; 2 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvtu64tofprtn2(lanemath_ulong2 x) LANEMATH_NAMED("cvtu64tofprtn2");
lanemath_border_double3 lanemath_call_cvtu64tofprtn3(lanemath_border_ulong3) LANEMATH_NAMED("cvtu64tofprtn3");
/** ulong to double, rounded down; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvtu64tofprtn3(lanemath_ulong3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtu64tofprtn3, double3, ulong3, x);
}
#define lanemath_cvtu64tofprtn3(x) \
/** ulong to double, rounded down; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtu64tofprtn3, double3, ulong3, x)
lanemath_wide_double4 lanemath_call_cvtu64tofprtn4(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtn4");
/** ulong to double, rounded down; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvtu64tofprtn4(lanemath_ulong4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtn4, double4, ulong4, x);
}
#define lanemath_cvtu64tofprtn4(x) \
/** ulong to double, rounded down; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtn4, double4, ulong4, x)
lanemath_wide_double8 lanemath_call_cvtu64tofprtn8(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtn8");
/** ulong to double, rounded down; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvtu64tofprtn8(lanemath_ulong8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtn8, double8, ulong8, x);
}
#define lanemath_cvtu64tofprtn8(x) \
/** ulong to double, rounded down; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtn8, double8, ulong8, x)
lanemath_wide_double16 lanemath_call_cvtu64tofprtn16(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtn16");
/** ulong to double, rounded down; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvtu64tofprtn16(lanemath_ulong16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtn16, double16, ulong16, x);
}
#define lanemath_cvtu64tofprtn16(x) \
/** ulong to double, rounded down; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtn16, double16, ulong16, x)

/** ulong to float, rounded down; one ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvtu64tofprtnf1(lanemath_ulong1 x) LANEMATH_NAMED("cvtu64tofprtnf1");
/** ulong to float, rounded down; 2 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvtu64tofprtnf2(lanemath_ulong2 x) LANEMATH_NAMED("cvtu64tofprtnf2");
lanemath_border_float3 lanemath_call_cvtu64tofprtnf3(lanemath_border_ulong3) LANEMATH_NAMED("cvtu64tofprtnf3");
/** ulong to float, rounded down; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float3 lanemath_cvtu64tofprtnf3(lanemath_ulong3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtu64tofprtnf3, float3, ulong3, x);
}
#define lanemath_cvtu64tofprtnf3(x) \
/** ulong to float, rounded down; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtu64tofprtnf3, float3, ulong3, x)
lanemath_wide_float4 lanemath_call_cvtu64tofprtnf4(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtnf4");
/** ulong to float, rounded down; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float4 lanemath_cvtu64tofprtnf4(lanemath_ulong4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtnf4, float4, ulong4, x);
}
#define lanemath_cvtu64tofprtnf4(x) \
/** ulong to float, rounded down; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtnf4, float4, ulong4, x)
lanemath_wide_float8 lanemath_call_cvtu64tofprtnf8(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtnf8");
/** ulong to float, rounded down; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvtu64tofprtnf8(lanemath_ulong8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtnf8, float8, ulong8, x);
}
#define lanemath_cvtu64tofprtnf8(x) \
/** ulong to float, rounded down; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtnf8, float8, ulong8, x)
lanemath_wide_float16 lanemath_call_cvtu64tofprtnf16(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtnf16");
/** ulong to float, rounded down; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvtu64tofprtnf16(lanemath_ulong16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtnf16, float16, ulong16, x);
}
#define lanemath_cvtu64tofprtnf16(x) \
/** ulong to float, rounded down; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtnf16, float16, ulong16, x)

/** ulong to double, rounded up; one ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvtu64tofprtp1(lanemath_ulong1 x) LANEMATH_NAMED("cvtu64tofprtp1");
/** ulong to double, rounded up; 2 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvtu64tofprtp2(lanemath_ulong2 x) LANEMATH_NAMED("cvtu64tofprtp2");
lanemath_border_double3 lanemath_call_cvtu64tofprtp3(lanemath_border_ulong3) LANEMATH_NAMED("cvtu64tofprtp3");
/** ulong to double, rounded up; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvtu64tofprtp3(lanemath_ulong3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtu64tofprtp3, double3, ulong3, x);
}
#define lanemath_cvtu64tofprtp3(x) \
/** ulong to double, rounded up; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtu64tofprtp3, double3, ulong3, x)
lanemath_wide_double4 lanemath_call_cvtu64tofprtp4(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtp4");
/** ulong to double, rounded up; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvtu64tofprtp4(lanemath_ulong4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtp4, double4, ulong4, x);
}
#define lanemath_cvtu64tofprtp4(x) \
/** ulong to double, rounded up; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtp4, double4, ulong4, x)
lanemath_wide_double8 lanemath_call_cvtu64tofprtp8(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtp8");
/** ulong to double, rounded up; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvtu64tofprtp8(lanemath_ulong8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtp8, double8, ulong8, x);
}
#define lanemath_cvtu64tofprtp8(x) \
/** ulong to double, rounded up; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtp8, double8, ulong8, x)
lanemath_wide_double16 lanemath_call_cvtu64tofprtp16(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtp16");
/** ulong to double, rounded up; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvtu64tofprtp16(lanemath_ulong16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtp16, double16, ulong16, x);
}
#define lanemath_cvtu64tofprtp16(x) \
/** ulong to double, rounded up; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtp16, double16, ulong16, x)

/** ulong to float, rounded up; one ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvtu64tofprtpf1(lanemath_ulong1 x) LANEMATH_NAMED("cvtu64tofprtpf1");
/** ulong to float, rounded up; 2 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvtu64tofprtpf2(lanemath_ulong2 x) LANEMATH_NAMED("cvtu64tofprtpf2");
lanemath_border_float3 lanemath_call_cvtu64tofprtpf3(lanemath_border_ulong3) LANEMATH_NAMED("cvtu64tofprtpf3");
/** ulong to float, rounded up; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float3 lanemath_cvtu64tofprtpf3(lanemath_ulong3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtu64tofprtpf3, float3, ulong3, x);
}
#define lanemath_cvtu64tofprtpf3(x) \
/** ulong to float, rounded up; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtu64tofprtpf3, float3, ulong3, x)
lanemath_wide_float4 lanemath_call_cvtu64tofprtpf4(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtpf4");
/** ulong to float, rounded up; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float4 lanemath_cvtu64tofprtpf4(lanemath_ulong4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtpf4, float4, ulong4, x);
}
#define lanemath_cvtu64tofprtpf4(x) \
/** ulong to float, rounded up; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtpf4, float4, ulong4, x)
lanemath_wide_float8 lanemath_call_cvtu64tofprtpf8(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtpf8");
/** ulong to float, rounded up; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvtu64tofprtpf8(lanemath_ulong8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtpf8, float8, ulong8, x);
}
#define lanemath_cvtu64tofprtpf8(x) \
/** ulong to float, rounded up; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtpf8, float8, ulong8, x)
lanemath_wide_float16 lanemath_call_cvtu64tofprtpf16(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtpf16");
/** ulong to float, rounded up; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvtu64tofprtpf16(lanemath_ulong16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtpf16, float16, ulong16, x);
}
#define lanemath_cvtu64tofprtpf16(x) \
/** ulong to float, rounded up; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtpf16, float16, ulong16, x)

/** ulong to double, rounded toward zero; one ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_double1 lanemath_cvtu64tofprtz1(lanemath_ulong1 x) LANEMATH_NAMED("cvtu64tofprtz1");
/** ulong to double, rounded toward zero; 2 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_double2 lanemath_cvtu64tofprtz2(lanemath_ulong2 x) LANEMATH_NAMED("cvtu64tofprtz2");
lanemath_border_double3 lanemath_call_cvtu64tofprtz3(lanemath_border_ulong3) LANEMATH_NAMED("cvtu64tofprtz3");
/** ulong to double, rounded toward zero; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double3 lanemath_cvtu64tofprtz3(lanemath_ulong3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtu64tofprtz3, double3, ulong3, x);
}
#define lanemath_cvtu64tofprtz3(x) \
/** ulong to double, rounded toward zero; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtu64tofprtz3, double3, ulong3, x)
lanemath_wide_double4 lanemath_call_cvtu64tofprtz4(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtz4");
/** ulong to double, rounded toward zero; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double4 lanemath_cvtu64tofprtz4(lanemath_ulong4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtz4, double4, ulong4, x);
}
#define lanemath_cvtu64tofprtz4(x) \
/** ulong to double, rounded toward zero; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtz4, double4, ulong4, x)
lanemath_wide_double8 lanemath_call_cvtu64tofprtz8(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtz8");
/** ulong to double, rounded toward zero; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double8 lanemath_cvtu64tofprtz8(lanemath_ulong8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtz8, double8, ulong8, x);
}
#define lanemath_cvtu64tofprtz8(x) \
/** ulong to double, rounded toward zero; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtz8, double8, ulong8, x)
lanemath_wide_double16 lanemath_call_cvtu64tofprtz16(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtz16");
/** ulong to double, rounded toward zero; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_double16 lanemath_cvtu64tofprtz16(lanemath_ulong16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtz16, double16, ulong16, x);
}
#define lanemath_cvtu64tofprtz16(x) \
/** ulong to double, rounded toward zero; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtz16, double16, ulong16, x)

/** ulong to float, rounded toward zero; one ulong. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvtu64tofprtzf1(lanemath_ulong1 x) LANEMATH_NAMED("cvtu64tofprtzf1");
/** ulong to float, rounded toward zero; 2 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvtu64tofprtzf2(lanemath_ulong2 x) LANEMATH_NAMED("cvtu64tofprtzf2");
lanemath_border_float3 lanemath_call_cvtu64tofprtzf3(lanemath_border_ulong3) LANEMATH_NAMED("cvtu64tofprtzf3");
/** ulong to float, rounded toward zero; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float3 lanemath_cvtu64tofprtzf3(lanemath_ulong3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtu64tofprtzf3, float3, ulong3, x);
}
#define lanemath_cvtu64tofprtzf3(x) \
/** ulong to float, rounded toward zero; 3 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtu64tofprtzf3, float3, ulong3, x)
lanemath_wide_float4 lanemath_call_cvtu64tofprtzf4(lanemath_wide_ulong4) LANEMATH_NAMED_WIDE("cvtu64tofprtzf4");
/** ulong to float, rounded toward zero; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float4 lanemath_cvtu64tofprtzf4(lanemath_ulong4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtzf4, float4, ulong4, x);
}
#define lanemath_cvtu64tofprtzf4(x) \
/** ulong to float, rounded toward zero; 4 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtzf4, float4, ulong4, x)
lanemath_wide_float8 lanemath_call_cvtu64tofprtzf8(lanemath_wide_ulong8) LANEMATH_NAMED_WIDE("cvtu64tofprtzf8");
/** ulong to float, rounded toward zero; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvtu64tofprtzf8(lanemath_ulong8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtzf8, float8, ulong8, x);
}
#define lanemath_cvtu64tofprtzf8(x) \
/** ulong to float, rounded toward zero; 8 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtzf8, float8, ulong8, x)
lanemath_wide_float16 lanemath_call_cvtu64tofprtzf16(lanemath_wide_ulong16) LANEMATH_NAMED_WIDE("cvtu64tofprtzf16");
/** ulong to float, rounded toward zero; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvtu64tofprtzf16(lanemath_ulong16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtu64tofprtzf16, float16, ulong16, x);
}
#define lanemath_cvtu64tofprtzf16(x) \
/** ulong to float, rounded toward zero; 16 lanes of ulong. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtu64tofprtzf16, float16, ulong16, x)

/** double to float, rounded to nearest even; one double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvtfp64tofp32rte1(lanemath_double1 x) LANEMATH_NAMED("cvtfp64tofp32rte1");
/** double to float, rounded to nearest even; 2 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvtfp64tofp32rte2(lanemath_double2 x) LANEMATH_NAMED("cvtfp64tofp32rte2");
lanemath_border_float3 lanemath_call_cvtfp64tofp32rte3(lanemath_border_double3) LANEMATH_NAMED("cvtfp64tofp32rte3");
/** double to float, rounded to nearest even; 3 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float3 lanemath_cvtfp64tofp32rte3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfp64tofp32rte3, float3, double3, x);
}
#define lanemath_cvtfp64tofp32rte3(x) \
/** double to float, rounded to nearest even; 3 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfp64tofp32rte3, float3, double3, x)
lanemath_wide_float4 lanemath_call_cvtfp64tofp32rte4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfp64tofp32rte4");
/** double to float, rounded to nearest even; 4 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float4 lanemath_cvtfp64tofp32rte4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rte4, float4, double4, x);
}
#define lanemath_cvtfp64tofp32rte4(x) \
/** double to float, rounded to nearest even; 4 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rte4, float4, double4, x)
lanemath_wide_float8 lanemath_call_cvtfp64tofp32rte8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfp64tofp32rte8");
/** double to float, rounded to nearest even; 8 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvtfp64tofp32rte8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rte8, float8, double8, x);
}
#define lanemath_cvtfp64tofp32rte8(x) \
/** double to float, rounded to nearest even; 8 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rte8, float8, double8, x)
lanemath_wide_float16 lanemath_call_cvtfp64tofp32rte16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfp64tofp32rte16");
/** double to float, rounded to nearest even; 16 lanes of double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvtfp64tofp32rte16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rte16, float16, double16, x);
}
#define lanemath_cvtfp64tofp32rte16(x) \
/** double to float, rounded to nearest even; 16 lanes of double. Exact, or rounded once. Domain and special values:
 * at the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rte16, float16, double16, x)

/** double to float, rounded down; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvtfp64tofp32rtn1(lanemath_double1 x) LANEMATH_NAMED("cvtfp64tofp32rtn1");
/** double to float, rounded down; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvtfp64tofp32rtn2(lanemath_double2 x) LANEMATH_NAMED("cvtfp64tofp32rtn2");
lanemath_border_float3 lanemath_call_cvtfp64tofp32rtn3(lanemath_border_double3) LANEMATH_NAMED("cvtfp64tofp32rtn3");
/** double to float, rounded down; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float3 lanemath_cvtfp64tofp32rtn3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfp64tofp32rtn3, float3, double3, x);
}
#define lanemath_cvtfp64tofp32rtn3(x) \
/** double to float, rounded down; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfp64tofp32rtn3, float3, double3, x)
lanemath_wide_float4 lanemath_call_cvtfp64tofp32rtn4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtn4");
/** double to float, rounded down; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float4 lanemath_cvtfp64tofp32rtn4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtn4, float4, double4, x);
}
#define lanemath_cvtfp64tofp32rtn4(x) \
/** double to float, rounded down; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtn4, float4, double4, x)
lanemath_wide_float8 lanemath_call_cvtfp64tofp32rtn8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtn8");
/** double to float, rounded down; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvtfp64tofp32rtn8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtn8, float8, double8, x);
}
#define lanemath_cvtfp64tofp32rtn8(x) \
/** double to float, rounded down; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtn8, float8, double8, x)
lanemath_wide_float16 lanemath_call_cvtfp64tofp32rtn16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtn16");
/** double to float, rounded down; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvtfp64tofp32rtn16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtn16, float16, double16, x);
}
#define lanemath_cvtfp64tofp32rtn16(x) \
/** double to float, rounded down; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtn16, float16, double16, x)

/** double to float, rounded up; one double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvtfp64tofp32rtp1(lanemath_double1 x) LANEMATH_NAMED("cvtfp64tofp32rtp1");
/** double to float, rounded up; 2 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvtfp64tofp32rtp2(lanemath_double2 x) LANEMATH_NAMED("cvtfp64tofp32rtp2");
lanemath_border_float3 lanemath_call_cvtfp64tofp32rtp3(lanemath_border_double3) LANEMATH_NAMED("cvtfp64tofp32rtp3");
/** double to float, rounded up; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float3 lanemath_cvtfp64tofp32rtp3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfp64tofp32rtp3, float3, double3, x);
}
#define lanemath_cvtfp64tofp32rtp3(x) \
/** double to float, rounded up; 3 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfp64tofp32rtp3, float3, double3, x)
lanemath_wide_float4 lanemath_call_cvtfp64tofp32rtp4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtp4");
/** double to float, rounded up; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float4 lanemath_cvtfp64tofp32rtp4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtp4, float4, double4, x);
}
#define lanemath_cvtfp64tofp32rtp4(x) \
/** double to float, rounded up; 4 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtp4, float4, double4, x)
lanemath_wide_float8 lanemath_call_cvtfp64tofp32rtp8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtp8");
/** double to float, rounded up; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvtfp64tofp32rtp8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtp8, float8, double8, x);
}
#define lanemath_cvtfp64tofp32rtp8(x) \
/** double to float, rounded up; 8 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtp8, float8, double8, x)
lanemath_wide_float16 lanemath_call_cvtfp64tofp32rtp16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtp16");
/** double to float, rounded up; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvtfp64tofp32rtp16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtp16, float16, double16, x);
}
#define lanemath_cvtfp64tofp32rtp16(x) \
/** double to float, rounded up; 16 lanes of double. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtp16, float16, double16, x)

/** double to float, rounded toward zero; one double. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/conversion.h>. */
lanemath_float1 lanemath_cvtfp64tofp32rtz1(lanemath_double1 x) LANEMATH_NAMED("cvtfp64tofp32rtz1");
/** double to float, rounded toward zero; 2 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
lanemath_float2 lanemath_cvtfp64tofp32rtz2(lanemath_double2 x) LANEMATH_NAMED("cvtfp64tofp32rtz2");
lanemath_border_float3 lanemath_call_cvtfp64tofp32rtz3(lanemath_border_double3) LANEMATH_NAMED("cvtfp64tofp32rtz3");
/** double to float, rounded toward zero; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float3 lanemath_cvtfp64tofp32rtz3(lanemath_double3 x) {
  return LANEMATH_UNARY(lanemath_border, cvtfp64tofp32rtz3, float3, double3, x);
}
#define lanemath_cvtfp64tofp32rtz3(x) \
/** double to float, rounded toward zero; 3 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_border, cvtfp64tofp32rtz3, float3, double3, x)
lanemath_wide_float4 lanemath_call_cvtfp64tofp32rtz4(lanemath_wide_double4) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtz4");
/** double to float, rounded toward zero; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float4 lanemath_cvtfp64tofp32rtz4(lanemath_double4 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtz4, float4, double4, x);
}
#define lanemath_cvtfp64tofp32rtz4(x) \
/** double to float, rounded toward zero; 4 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtz4, float4, double4, x)
lanemath_wide_float8 lanemath_call_cvtfp64tofp32rtz8(lanemath_wide_double8) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtz8");
/** double to float, rounded toward zero; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float8 lanemath_cvtfp64tofp32rtz8(lanemath_double8 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtz8, float8, double8, x);
}
#define lanemath_cvtfp64tofp32rtz8(x) \
/** double to float, rounded toward zero; 8 lanes of double. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtz8, float8, double8, x)
lanemath_wide_float16 lanemath_call_cvtfp64tofp32rtz16(lanemath_wide_double16) LANEMATH_NAMED_WIDE("cvtfp64tofp32rtz16");
/** double to float, rounded toward zero; 16 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */
LANEMATH_INLINE lanemath_float16 lanemath_cvtfp64tofp32rtz16(lanemath_double16 x) {
  return LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtz16, float16, double16, x);
}
#define lanemath_cvtfp64tofp32rtz16(x) \
/** double to float, rounded toward zero; 16 lanes of double. Exact, or rounded once. Domain and special values: at
 * the head of <lanemath/conversion.h>. */ \
  LANEMATH_UNARY(lanemath_wide, cvtfp64tofp32rtz16, float16, double16, x)

LANEMATH_END

#endif
