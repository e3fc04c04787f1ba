/* Rounding, selection, decomposition, remainders, fused multiply-add.
 *
 * Exact, or rounded once. rint, nearbyint, remainder and remquo follow the current rounding direction; fma
 * follows that of the x87 control word.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_MANIPULATION_H
#define LANEMATH_MANIPULATION_H

#include <lanemath/types.h>

LANEMATH_BEGIN

/* double ceil(double x)
 * x rounded up to an integer. */
LANEMATH_DECLARE(UNARY, ceil, , double, double)

/* float ceilf(float x)
 * x rounded up to an integer. */
LANEMATH_DECLARE(UNARY, ceilf, , float, float)

/* double floor(double x)
 * x rounded down to an integer. */
LANEMATH_DECLARE(UNARY, floor, , double, double)

/* float floorf(float x)
 * x rounded down to an integer. */
LANEMATH_DECLARE(UNARY, floorf, , float, float)

/* double trunc(double x)
 * x rounded toward zero to an integer. */
LANEMATH_DECLARE(UNARY, trunc, , double, double)

/* float truncf(float x)
 * x rounded toward zero to an integer. */
LANEMATH_DECLARE(UNARY, truncf, , float, float)

/* double rint(double x)
 * x rounded to an integer in the current direction. */
LANEMATH_DECLARE(UNARY, rint, , double, double)

/* float rintf(float x)
 * x rounded to an integer in the current direction. */
LANEMATH_DECLARE(UNARY, rintf, , float, float)

/* double nearbyint(double x)
 * as rint, without the inexact flag. */
LANEMATH_DECLARE(UNARY, nearbyint, , double, double)

/* float nearbyintf(float x)
 * as rint, without the inexact flag. */
LANEMATH_DECLARE(UNARY, nearbyintf, , float, float)

/* double round(double x)
 * x rounded to the nearest integer, halves away from zero. */
LANEMATH_DECLARE(UNARY, round, , double, double)

/* float roundf(float x)
 * x rounded to the nearest integer, halves away from zero. */
LANEMATH_DECLARE(UNARY, roundf, , float, float)

/* double fabs(double x)
 * x with the sign cleared. */
LANEMATH_DECLARE(UNARY, fabs, , double, double)

/* float fabsf(float x)
 * x with the sign cleared. */
LANEMATH_DECLARE(UNARY, fabsf, , float, float)

/* double copysign(double x, double y)
 * x with the sign of y. */
LANEMATH_DECLARE(BINARY, copysign, , double, double, double)

/* float copysignf(float x, float y)
 * x with the sign of y. */
LANEMATH_DECLARE(BINARY, copysignf, , float, float, float)

/* double fdim(double x, double y)
 * x - y if x > y, else +0.
 * Largest error in ulp: default 0.5. */
LANEMATH_DECLARE(BINARY, fdim, , double, double, double)

/* float fdimf(float x, float y)
 * x - y if x > y, else +0.
 * Largest error in ulp: default 0.5. */
LANEMATH_DECLARE(BINARY, fdimf, , float, float, float)

/* double fmax(double x, double y)
 * the larger of x and y, a number before a NaN. */
LANEMATH_DECLARE(BINARY, fmax, , double, double, double)

/* float fmaxf(float x, float y)
 * the larger of x and y, a number before a NaN. */
LANEMATH_DECLARE(BINARY, fmaxf, , float, float, float)

/* double fmin(double x, double y)
 * the smaller of x and y, a number before a NaN. */
LANEMATH_DECLARE(BINARY, fmin, , double, double, double)

/* float fminf(float x, float y)
 * the smaller of x and y, a number before a NaN. */
LANEMATH_DECLARE(BINARY, fminf, , float, float, float)

/* double maxmag(double x, double y)
 * the one of x and y with the larger magnitude. */
LANEMATH_DECLARE(BINARY, maxmag, , double, double, double)

/* float maxmagf(float x, float y)
 * the one of x and y with the larger magnitude. */
LANEMATH_DECLARE(BINARY, maxmagf, , float, float, float)

/* double minmag(double x, double y)
 * the one of x and y with the smaller magnitude. */
LANEMATH_DECLARE(BINARY, minmag, , double, double, double)

/* float minmagf(float x, float y)
 * the one of x and y with the smaller magnitude. */
LANEMATH_DECLARE(BINARY, minmagf, , float, float, float)

/* double fract(double x, double* second)
 * x - floor(x), below 1; floor(x) through the pointer.
 * Largest error in ulp: default 1. */
LANEMATH_DECLARE(UNARY_POINTER, fract, , double, double, double)

/* float fractf(float x, float* second)
 * x - floor(x), below 1; floor(x) through the pointer.
 * Largest error in ulp: default 1. */
LANEMATH_DECLARE(UNARY_POINTER, fractf, , float, float, float)

/* double modf(double x, double* second)
 * fraction of x; integral part through the pointer. */
LANEMATH_DECLARE(UNARY_POINTER, modf, , double, double, double)

/* float modff(float x, float* second)
 * fraction of x; integral part through the pointer. */
LANEMATH_DECLARE(UNARY_POINTER, modff, , float, float, float)

/* double frexp(double x, int* second)
 * significand of x in [0.5, 1); exponent through the pointer. */
LANEMATH_DECLARE(UNARY_POINTER, frexp, , double, double, int)

/* float frexpf(float x, int* second)
 * significand of x in [0.5, 1); exponent through the pointer. */
LANEMATH_DECLARE(UNARY_POINTER, frexpf, , float, float, int)

/* double ldexp(double x, int y)
 * x times 2 to the power y.
 * Largest error in ulp: default 0.5. */
LANEMATH_DECLARE(BINARY, ldexp, , double, double, int)

/* float ldexpf(float x, int y)
 * x times 2 to the power y.
 * Largest error in ulp: default 0.5. */
LANEMATH_DECLARE(BINARY, ldexpf, , float, float, int)

/* int ilogb(double x)
 * exponent of x as an integer. */
LANEMATH_DECLARE(UNARY, ilogb, , int, double)

/* int ilogbf(float x)
 * exponent of x as an integer. */
LANEMATH_DECLARE(UNARY, ilogbf, , int, float)

/* double logb(double x)
 * exponent of x as a floating value. */
LANEMATH_DECLARE(UNARY, logb, , double, double)

/* float logbf(float x)
 * exponent of x as a floating value. */
LANEMATH_DECLARE(UNARY, logbf, , float, float)

/* double nan(ulong x)
 * a quiet NaN with the payload x. */
LANEMATH_DECLARE(UNARY, nan, , double, ulong)

/* float nanf(uint x)
 * a quiet NaN with the payload x. */
LANEMATH_DECLARE(UNARY, nanf, , float, uint)

/* double nextafter(double x, double y)
 * the value next to x in the direction of y. */
LANEMATH_DECLARE(BINARY, nextafter, , double, double, double)

/* float nextafterf(float x, float y)
 * the value next to x in the direction of y. */
LANEMATH_DECLARE(BINARY, nextafterf, , float, float, float)

/* double fmod(double x, double y)
 * remainder of x / y, quotient truncated. */
LANEMATH_DECLARE(BINARY, fmod, , double, double, double)

/* float fmodf(float x, float y)
 * remainder of x / y, quotient truncated. */
LANEMATH_DECLARE(BINARY, fmodf, , float, float, float)

/* double remainder(double x, double y)
 * remainder of x / y, quotient to nearest even. */
LANEMATH_DECLARE(BINARY, remainder, , double, double, double)

/* float remainderf(float x, float y)
 * remainder of x / y, quotient to nearest even. */
LANEMATH_DECLARE(BINARY, remainderf, , float, float, float)

/* double remquo(double x, double y, int* second)
 * remainder of x / y; low bits of the quotient through the pointer. */
LANEMATH_DECLARE(BINARY_POINTER, remquo, , double, double, double, int)

/* float remquof(float x, float y, int* second)
 * remainder of x / y; low bits of the quotient through the pointer. */
LANEMATH_DECLARE(BINARY_POINTER, remquof, , float, float, float, int)

/* double fma(double x, double y, double z)
 * x y + z with one rounding.
 * Largest error in ulp: default 0.5. */
LANEMATH_DECLARE(TERNARY, fma, , double, double, double, double)

/* float fmaf(float x, float y, float z)
 * x y + z with one rounding.
 * Largest error in ulp: default 0.5; _rm 0.5. */
LANEMATH_DECLARE(TERNARY, fmaf, , float, float, float, float)
LANEMATH_DECLARE(TERNARY, fmaf, _rm, float, float, float, float)

LANEMATH_END

#endif
