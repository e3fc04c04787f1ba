/* Division, reciprocals and roots.
 *
 * The default forms of division, reciprocal and square root are correctly rounded. rsqrt, rsqrtf, hypot, hypotf
 * and the native forms of inv, invf, sqrt, sqrtf and divf start from the processor's estimates, whose low bits differ
 * between processor vendors. The native forms of inv, sqrt, sqrtf and hypotf test nothing: their arguments, and for
 * hypotf the sum of the squares, must lie well inside the range of a float, those of inv must be normal numbers below
 * 2^1021.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_ROOT_H
#define LANEMATH_ROOT_H

#include <lanemath/types.h>

LANEMATH_BEGIN

/* double div(double x, double y)
 * x / y.
 * Largest error in ulp: default 0.5; _native 0.5. */
LANEMATH_DECLARE(BINARY, div, , double, double, double)
LANEMATH_DECLARE(BINARY, div, _native, double, double, double)

/* float divf(float x, float y)
 * x / y.
 * Largest error in ulp: default 0.5; _native 6150; _half 6150; _rm 6150. */
LANEMATH_DECLARE(BINARY, divf, , float, float, float)
LANEMATH_DECLARE(BINARY, divf, _native, float, float, float)
LANEMATH_DECLARE(BINARY, divf, _half, float, float, float)
LANEMATH_DECLARE(BINARY, divf, _rm, float, float, float)

/* double inv(double x)
 * 1 / x.
 * Largest error in ulp: default 0.5; _native 447000. */
LANEMATH_DECLARE(UNARY, inv, , double, double)
LANEMATH_DECLARE(UNARY, inv, _native, double, double)

/* float invf(float x)
 * 1 / x.
 * Largest error in ulp: default 0.5; _native 6150; _half 6150; _rm 6150. */
LANEMATH_DECLARE(UNARY, invf, , float, float)
LANEMATH_DECLARE(UNARY, invf, _native, float, float)
LANEMATH_DECLARE(UNARY, invf, _half, float, float)
LANEMATH_DECLARE(UNARY, invf, _rm, float, float)

/* double sqrt(double x)
 * square root of x.
 * Largest error in ulp: default 0.5; _native 3.31e+12. */
LANEMATH_DECLARE(UNARY, sqrt, , double, double)
LANEMATH_DECLARE(UNARY, sqrt, _native, double, double)

/* float sqrtf(float x)
 * square root of x.
 * Largest error in ulp: default 0.5; _native 6150; _half 6150. */
LANEMATH_DECLARE(UNARY, sqrtf, , float, float)
LANEMATH_DECLARE(UNARY, sqrtf, _native, float, float)
LANEMATH_DECLARE(UNARY, sqrtf, _half, float, float)

/* double rsqrt(double x)
 * 1 / square root of x.
 * Largest error in ulp: default 1; _native 1.2e+06. */
LANEMATH_DECLARE(UNARY, rsqrt, , double, double)
LANEMATH_DECLARE(UNARY, rsqrt, _native, double, double)

/* float rsqrtf(float x)
 * 1 / square root of x.
 * Largest error in ulp: default 1; _native 5.2; _half 5.2. */
LANEMATH_DECLARE(UNARY, rsqrtf, , float, float)
LANEMATH_DECLARE(UNARY, rsqrtf, _native, float, float)
LANEMATH_DECLARE(UNARY, rsqrtf, _half, float, float)

/* double cbrt(double x)
 * cube root of x.
 * Largest error in ulp: default 1.13; _native 2270. */
LANEMATH_DECLARE(UNARY, cbrt, , double, double)
LANEMATH_DECLARE(UNARY, cbrt, _native, double, double)

/* float cbrtf(float x)
 * cube root of x.
 * Largest error in ulp: default 0.514; _native 356. */
LANEMATH_DECLARE(UNARY, cbrtf, , float, float)
LANEMATH_DECLARE(UNARY, cbrtf, _native, float, float)

/* double rcbrt(double x)
 * 1 / cube root of x.
 * Largest error in ulp: default 1.02; _native 13400. */
LANEMATH_DECLARE(UNARY, rcbrt, , double, double)
LANEMATH_DECLARE(UNARY, rcbrt, _native, double, double)

/* float rcbrtf(float x)
 * 1 / cube root of x.
 * Largest error in ulp: default 0.515; _native 889. */
LANEMATH_DECLARE(UNARY, rcbrtf, , float, float)
LANEMATH_DECLARE(UNARY, rcbrtf, _native, float, float)

/* double hypot(double x, double y)
 * square root of x x + y y, without undue overflow.
 * Largest error in ulp: default 2.4; _native 1.2e+06. */
LANEMATH_DECLARE(BINARY, hypot, , double, double, double)
LANEMATH_DECLARE(BINARY, hypot, _native, double, double, double)

/* float hypotf(float x, float y)
 * square root of x x + y y, without undue overflow.
 * Largest error in ulp: default 1.37; _native 6150. */
LANEMATH_DECLARE(BINARY, hypotf, , float, float, float)
LANEMATH_DECLARE(BINARY, hypotf, _native, float, float, float)

LANEMATH_END

#endif
