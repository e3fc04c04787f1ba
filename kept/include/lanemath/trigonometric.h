/* Trigonometric functions.
 *
 * Angles in radians, or in multiples of pi for the functions that end in pi. Any finite x, however large: the
 * reduction keeps as many bits of 2/pi as the exponent requires (M. Payne and R. Hanek, SIGNUM 18, 1983). Infinities
 * give NaN; the sine and tangent of a zero keep its sign.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_TRIGONOMETRIC_H
#define LANEMATH_TRIGONOMETRIC_H

#include <lanemath/types.h>

LANEMATH_BEGIN

/* double sin(double x)
 * sine of x radians.
 * Largest error in ulp: default 3.77; _native 6.15e+07. */
LANEMATH_DECLARE(UNARY, sin, , double, double)
LANEMATH_DECLARE(UNARY, sin, _native, double, double)

/* float sinf(float x)
 * sine of x radians.
 * Largest error in ulp: default 2.59; _native 2530; _half 2530; _rm 2530. */
LANEMATH_DECLARE(UNARY, sinf, , float, float)
LANEMATH_DECLARE(UNARY, sinf, _native, float, float)
LANEMATH_DECLARE(UNARY, sinf, _half, float, float)
LANEMATH_DECLARE(UNARY, sinf, _rm, float, float)

/* double cos(double x)
 * cosine of x radians.
 * Largest error in ulp: default 3.65; _native 6.15e+07. */
LANEMATH_DECLARE(UNARY, cos, , double, double)
LANEMATH_DECLARE(UNARY, cos, _native, double, double)

/* float cosf(float x)
 * cosine of x radians.
 * Largest error in ulp: default 2.52; _native 2540; _half 2540; _rm 2540. */
LANEMATH_DECLARE(UNARY, cosf, , float, float)
LANEMATH_DECLARE(UNARY, cosf, _native, float, float)
LANEMATH_DECLARE(UNARY, cosf, _half, float, float)
LANEMATH_DECLARE(UNARY, cosf, _rm, float, float)

/* double sincos(double x, double* second)
 * sine of x radians; cosine through the pointer.
 * Largest error in ulp: default 3.63; _native 6.15e+07. */
LANEMATH_DECLARE(UNARY_POINTER, sincos, , double, double, double)
LANEMATH_DECLARE(UNARY_POINTER, sincos, _native, double, double, double)

/* float sincosf(float x, float* second)
 * sine of x radians; cosine through the pointer.
 * Largest error in ulp: default 2.84; _native 2530; _rm 2530. */
LANEMATH_DECLARE(UNARY_POINTER, sincosf, , float, float, float)
LANEMATH_DECLARE(UNARY_POINTER, sincosf, _native, float, float, float)
LANEMATH_DECLARE(UNARY_POINTER, sincosf, _rm, float, float, float)

/* (double, double) sincosreg(double x)
 * sine and cosine of x radians, as a pair.
 * Largest error in ulp: default 3.63; _native 6.15e+07. */
LANEMATH_DECLARE(UNARY_PAIR, sincosreg, , double, double)
LANEMATH_DECLARE(UNARY_PAIR, sincosreg, _native, double, double)

/* (float, float) sincosregf(float x)
 * sine and cosine of x radians, as a pair.
 * Largest error in ulp: default 2.84; _native 2530. */
LANEMATH_DECLARE(UNARY_PAIR, sincosregf, , float, float)
LANEMATH_DECLARE(UNARY_PAIR, sincosregf, _native, float, float)

/* double tan(double x)
 * tangent of x radians.
 * Largest error in ulp: default 1.27; _native 1.06e+07. */
LANEMATH_DECLARE(UNARY, tan, , double, double)
LANEMATH_DECLARE(UNARY, tan, _native, double, double)

/* float tanf(float x)
 * tangent of x radians.
 * Largest error in ulp: default 3.95; _native 924; _half 924; _rm 924. */
LANEMATH_DECLARE(UNARY, tanf, , float, float)
LANEMATH_DECLARE(UNARY, tanf, _native, float, float)
LANEMATH_DECLARE(UNARY, tanf, _half, float, float)
LANEMATH_DECLARE(UNARY, tanf, _rm, float, float)

/* double sinpi(double x)
 * sine of pi x.
 * Largest error in ulp: default 0.93; _native 4.79e+07. */
LANEMATH_DECLARE(UNARY, sinpi, , double, double)
LANEMATH_DECLARE(UNARY, sinpi, _native, double, double)

/* float sinpif(float x)
 * sine of pi x.
 * Largest error in ulp: default 1.06; _native 1820. */
LANEMATH_DECLARE(UNARY, sinpif, , float, float)
LANEMATH_DECLARE(UNARY, sinpif, _native, float, float)

/* double cospi(double x)
 * cosine of pi x.
 * Largest error in ulp: default 0.944; _native 4.79e+07. */
LANEMATH_DECLARE(UNARY, cospi, , double, double)
LANEMATH_DECLARE(UNARY, cospi, _native, double, double)

/* float cospif(float x)
 * cosine of pi x.
 * Largest error in ulp: default 1.05; _native 1820. */
LANEMATH_DECLARE(UNARY, cospif, , float, float)
LANEMATH_DECLARE(UNARY, cospif, _native, float, float)

/* double tanpi(double x)
 * tangent of pi x.
 * Largest error in ulp: default 1.25; _native 1.06e+07. */
LANEMATH_DECLARE(UNARY, tanpi, , double, double)
LANEMATH_DECLARE(UNARY, tanpi, _native, double, double)

/* float tanpif(float x)
 * tangent of pi x.
 * Largest error in ulp: default 1.26; _native 742. */
LANEMATH_DECLARE(UNARY, tanpif, , float, float)
LANEMATH_DECLARE(UNARY, tanpif, _native, float, float)

LANEMATH_END

#endif
