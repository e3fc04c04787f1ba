/* Integer division.
 *
 * 32-bit lanes, signed and unsigned, truncated. Nothing traps: a zero divisor gives the quotient 0x80000000 (signed)
 * or 0 (unsigned) and the dividend as the remainder; -2147483648 / -1 gives 0x80000000 and the remainder 0.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_INTEGER_DIVISION_H
#define LANEMATH_INTEGER_DIVISION_H

#include <lanemath/types.h>

#pragma GCC system_header

LANEMATH_BEGIN

/** quotient of x / y, truncated; one int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_int1 lanemath_idiv1(lanemath_int1 x, lanemath_int1 y) LANEMATH_NAMED("idiv1");
/** quotient of x / y, truncated; 2 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_int2 lanemath_idiv2(lanemath_int2 x, lanemath_int2 y) LANEMATH_NAMED("idiv2");
/** quotient of x / y, truncated; 3 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_int3 lanemath_idiv3(lanemath_int3 x, lanemath_int3 y) LANEMATH_NAMED("idiv3");
/** quotient of x / y, truncated; 4 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_int4 lanemath_idiv4(lanemath_int4 x, lanemath_int4 y) LANEMATH_NAMED("idiv4");
lanemath_wide_int8 lanemath_call_idiv8(lanemath_wide_int8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("idiv8");
/** quotient of x / y, truncated; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_idiv8(lanemath_int8 x, lanemath_int8 y) {
  return LANEMATH_BINARY(lanemath_wide, idiv8, int8, int8, int8, x, y);
}
#define lanemath_idiv8(x, y) \
/** quotient of x / y, truncated; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */ \
  LANEMATH_BINARY(lanemath_wide, idiv8, int8, int8, int8, x, y)
lanemath_wide_int16 lanemath_call_idiv16(lanemath_wide_int16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("idiv16");
/** quotient of x / y, truncated; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_idiv16(lanemath_int16 x, lanemath_int16 y) {
  return LANEMATH_BINARY(lanemath_wide, idiv16, int16, int16, int16, x, y);
}
#define lanemath_idiv16(x, y) \
/** quotient of x / y, truncated; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */ \
  LANEMATH_BINARY(lanemath_wide, idiv16, int16, int16, int16, x, y)

/** remainder of x / y, with the sign of x; one int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_int1 lanemath_irem1(lanemath_int1 x, lanemath_int1 y) LANEMATH_NAMED("irem1");
/** remainder of x / y, with the sign of x; 2 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/integer_division.h>. */
lanemath_int2 lanemath_irem2(lanemath_int2 x, lanemath_int2 y) LANEMATH_NAMED("irem2");
/** remainder of x / y, with the sign of x; 3 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/integer_division.h>. */
lanemath_int3 lanemath_irem3(lanemath_int3 x, lanemath_int3 y) LANEMATH_NAMED("irem3");
/** remainder of x / y, with the sign of x; 4 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/integer_division.h>. */
lanemath_int4 lanemath_irem4(lanemath_int4 x, lanemath_int4 y) LANEMATH_NAMED("irem4");
lanemath_wide_int8 lanemath_call_irem8(lanemath_wide_int8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("irem8");
/** remainder of x / y, with the sign of x; 8 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/integer_division.h>. */
LANEMATH_INLINE lanemath_int8 lanemath_irem8(lanemath_int8 x, lanemath_int8 y) {
  return LANEMATH_BINARY(lanemath_wide, irem8, int8, int8, int8, x, y);
}
#define lanemath_irem8(x, y) \
/** remainder of x / y, with the sign of x; 8 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/integer_division.h>. */ \
  LANEMATH_BINARY(lanemath_wide, irem8, int8, int8, int8, x, y)
lanemath_wide_int16 lanemath_call_irem16(lanemath_wide_int16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("irem16");
/** remainder of x / y, with the sign of x; 16 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/integer_division.h>. */
LANEMATH_INLINE lanemath_int16 lanemath_irem16(lanemath_int16 x, lanemath_int16 y) {
  return LANEMATH_BINARY(lanemath_wide, irem16, int16, int16, int16, x, y);
}
#define lanemath_irem16(x, y) \
/** remainder of x / y, with the sign of x; 16 lanes of int. Exact, or rounded once. Domain and special values: at the
 * head of <lanemath/integer_division.h>. */ \
  LANEMATH_BINARY(lanemath_wide, irem16, int16, int16, int16, x, y)

/** quotient and remainder of x / y; one int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_int1_pair lanemath_idivrem1(lanemath_int1 x, lanemath_int1 y) LANEMATH_NAMED("idivrem1");
/** quotient and remainder of x / y; 2 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_int2_pair lanemath_idivrem2(lanemath_int2 x, lanemath_int2 y) LANEMATH_NAMED("idivrem2");
/** quotient and remainder of x / y; 3 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_int3_pair lanemath_idivrem3(lanemath_int3 x, lanemath_int3 y) LANEMATH_NAMED("idivrem3");
/** quotient and remainder of x / y; 4 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_int4_pair lanemath_idivrem4(lanemath_int4 x, lanemath_int4 y) LANEMATH_NAMED("idivrem4");
lanemath_wide_int8_pair lanemath_call_idivrem8(lanemath_wide_int8, lanemath_wide_int8) LANEMATH_NAMED_WIDE("idivrem8");
/** quotient and remainder of x / y; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
LANEMATH_INLINE lanemath_int8_pair lanemath_idivrem8(lanemath_int8 x, lanemath_int8 y) {
  return LANEMATH_BINARY_PAIR(lanemath_wide, idivrem8, int8, int8, int8, x, y);
}
#define lanemath_idivrem8(x, y) \
/** quotient and remainder of x / y; 8 lanes of int. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */ \
  LANEMATH_BINARY_PAIR(lanemath_wide, idivrem8, int8, int8, int8, x, y)
lanemath_wide_int16_pair lanemath_call_idivrem16(lanemath_wide_int16, lanemath_wide_int16) LANEMATH_NAMED_WIDE("idivrem16");
/** quotient and remainder of x / y; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/integer_division.h>. */
LANEMATH_INLINE lanemath_int16_pair lanemath_idivrem16(lanemath_int16 x, lanemath_int16 y) {
  return LANEMATH_BINARY_PAIR(lanemath_wide, idivrem16, int16, int16, int16, x, y);
}
#define lanemath_idivrem16(x, y) \
/** quotient and remainder of x / y; 16 lanes of int. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/integer_division.h>. */ \
  LANEMATH_BINARY_PAIR(lanemath_wide, idivrem16, int16, int16, int16, x, y)

/** quotient of x / y; one uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_uint1 lanemath_udiv1(lanemath_uint1 x, lanemath_uint1 y) LANEMATH_NAMED("udiv1");
/** quotient of x / y; 2 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_uint2 lanemath_udiv2(lanemath_uint2 x, lanemath_uint2 y) LANEMATH_NAMED("udiv2");
/** quotient of x / y; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_uint3 lanemath_udiv3(lanemath_uint3 x, lanemath_uint3 y) LANEMATH_NAMED("udiv3");
/** quotient of x / y; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_uint4 lanemath_udiv4(lanemath_uint4 x, lanemath_uint4 y) LANEMATH_NAMED("udiv4");
lanemath_wide_uint8 lanemath_call_udiv8(lanemath_wide_uint8, lanemath_wide_uint8) LANEMATH_NAMED_WIDE("udiv8");
/** quotient of x / y; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_udiv8(lanemath_uint8 x, lanemath_uint8 y) {
  return LANEMATH_BINARY(lanemath_wide, udiv8, uint8, uint8, uint8, x, y);
}
#define lanemath_udiv8(x, y) \
/** quotient of x / y; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */ \
  LANEMATH_BINARY(lanemath_wide, udiv8, uint8, uint8, uint8, x, y)
lanemath_wide_uint16 lanemath_call_udiv16(lanemath_wide_uint16, lanemath_wide_uint16) LANEMATH_NAMED_WIDE("udiv16");
/** quotient of x / y; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_udiv16(lanemath_uint16 x, lanemath_uint16 y) {
  return LANEMATH_BINARY(lanemath_wide, udiv16, uint16, uint16, uint16, x, y);
}
#define lanemath_udiv16(x, y) \
/** quotient of x / y; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */ \
  LANEMATH_BINARY(lanemath_wide, udiv16, uint16, uint16, uint16, x, y)

/** remainder of x / y; one uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_uint1 lanemath_urem1(lanemath_uint1 x, lanemath_uint1 y) LANEMATH_NAMED("urem1");
/** remainder of x / y; 2 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_uint2 lanemath_urem2(lanemath_uint2 x, lanemath_uint2 y) LANEMATH_NAMED("urem2");
/** remainder of x / y; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_uint3 lanemath_urem3(lanemath_uint3 x, lanemath_uint3 y) LANEMATH_NAMED("urem3");
/** remainder of x / y; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_uint4 lanemath_urem4(lanemath_uint4 x, lanemath_uint4 y) LANEMATH_NAMED("urem4");
lanemath_wide_uint8 lanemath_call_urem8(lanemath_wide_uint8, lanemath_wide_uint8) LANEMATH_NAMED_WIDE("urem8");
/** remainder of x / y; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
LANEMATH_INLINE lanemath_uint8 lanemath_urem8(lanemath_uint8 x, lanemath_uint8 y) {
  return LANEMATH_BINARY(lanemath_wide, urem8, uint8, uint8, uint8, x, y);
}
#define lanemath_urem8(x, y) \
/** remainder of x / y; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */ \
  LANEMATH_BINARY(lanemath_wide, urem8, uint8, uint8, uint8, x, y)
lanemath_wide_uint16 lanemath_call_urem16(lanemath_wide_uint16, lanemath_wide_uint16) LANEMATH_NAMED_WIDE("urem16");
/** remainder of x / y; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
LANEMATH_INLINE lanemath_uint16 lanemath_urem16(lanemath_uint16 x, lanemath_uint16 y) {
  return LANEMATH_BINARY(lanemath_wide, urem16, uint16, uint16, uint16, x, y);
}
#define lanemath_urem16(x, y) \
/** remainder of x / y; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */ \
  LANEMATH_BINARY(lanemath_wide, urem16, uint16, uint16, uint16, x, y)

/** quotient and remainder of x / y; one uint. Exact, or rounded once. Domain and special values: at the head of
 * <lanemath/integer_division.h>. */
lanemath_uint1_pair lanemath_udivrem1(lanemath_uint1 x, lanemath_uint1 y) LANEMATH_NAMED("udivrem1");
/** quotient and remainder of x / y; 2 lanes of uint. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/integer_division.h>. */
lanemath_uint2_pair lanemath_udivrem2(lanemath_uint2 x, lanemath_uint2 y) LANEMATH_NAMED("udivrem2");
/** quotient and remainder of x / y; 3 lanes of uint. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/integer_division.h>. */
lanemath_uint3_pair lanemath_udivrem3(lanemath_uint3 x, lanemath_uint3 y) LANEMATH_NAMED("udivrem3");
/** quotient and remainder of x / y; 4 lanes of uint. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/integer_division.h>. */
lanemath_uint4_pair lanemath_udivrem4(lanemath_uint4 x, lanemath_uint4 y) LANEMATH_NAMED("udivrem4");
lanemath_wide_uint8_pair lanemath_call_udivrem8(lanemath_wide_uint8, lanemath_wide_uint8) LANEMATH_NAMED_WIDE("udivrem8");
/** quotient and remainder of x / y; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/integer_division.h>. */
LANEMATH_INLINE lanemath_uint8_pair lanemath_udivrem8(lanemath_uint8 x, lanemath_uint8 y) {
  return LANEMATH_BINARY_PAIR(lanemath_wide, udivrem8, uint8, uint8, uint8, x, y);
}
#define lanemath_udivrem8(x, y) \
/** quotient and remainder of x / y; 8 lanes of uint. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/integer_division.h>. */ \
  LANEMATH_BINARY_PAIR(lanemath_wide, udivrem8, uint8, uint8, uint8, x, y)
lanemath_wide_uint16_pair lanemath_call_udivrem16(lanemath_wide_uint16, lanemath_wide_uint16) LANEMATH_NAMED_WIDE("udivrem16");
/** quotient and remainder of x / y; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/integer_division.h>. */
LANEMATH_INLINE lanemath_uint16_pair lanemath_udivrem16(lanemath_uint16 x, lanemath_uint16 y) {
  return LANEMATH_BINARY_PAIR(lanemath_wide, udivrem16, uint16, uint16, uint16, x, y);
}
#define lanemath_udivrem16(x, y) \
/** quotient and remainder of x / y; 16 lanes of uint. Exact, or rounded once. Domain and special values: at the head
 * of <lanemath/integer_division.h>. */ \
  LANEMATH_BINARY_PAIR(lanemath_wide, udivrem16, uint16, uint16, uint16, x, y)

LANEMATH_END

#endif
