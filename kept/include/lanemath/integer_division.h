/* Integer division.
 *
 * 32-bit lanes, signed and unsigned, truncated. Nothing traps: a zero divisor gives the quotient 0x80000000
 * (signed) or 0 (unsigned) and the dividend as the remainder; -2147483648 / -1 gives 0x80000000 and the remainder 0.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_INTEGER_DIVISION_H
#define LANEMATH_INTEGER_DIVISION_H

#include <lanemath/types.h>

LANEMATH_BEGIN

/* int idiv(int x, int y)
 * quotient of x / y, truncated. */
LANEMATH_DECLARE(BINARY, idiv, , int, int, int)

/* int irem(int x, int y)
 * remainder of x / y, with the sign of x. */
LANEMATH_DECLARE(BINARY, irem, , int, int, int)

/* (int, int) idivrem(int x, int y)
 * quotient and remainder of x / y. */
LANEMATH_DECLARE(BINARY_PAIR, idivrem, , int, int, int)

/* uint udiv(uint x, uint y)
 * quotient of x / y. */
LANEMATH_DECLARE(BINARY, udiv, , uint, uint, uint)

/* uint urem(uint x, uint y)
 * remainder of x / y. */
LANEMATH_DECLARE(BINARY, urem, , uint, uint, uint)

/* (uint, uint) udivrem(uint x, uint y)
 * quotient and remainder of x / y. */
LANEMATH_DECLARE(BINARY_PAIR, udivrem, , uint, uint, uint)

LANEMATH_END

#endif
