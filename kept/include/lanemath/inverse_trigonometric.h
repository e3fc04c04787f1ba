/* Inverse trigonometric functions.
 *
 * Results in radians, divided by pi for the functions that end in pi. asin and acos: -1 <= x <= 1, NaN outside.
 * atan2(y, x) is the angle of the point (x, y).
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_INVERSE_TRIGONOMETRIC_H
#define LANEMATH_INVERSE_TRIGONOMETRIC_H

#include <lanemath/types.h>

LANEMATH_BEGIN

/* double asin(double x)
 * arc sine of x, in radians.
 * Largest error in ulp: default 2.17; _native 6.3e+06. */
LANEMATH_DECLARE(UNARY, asin, , double, double)
LANEMATH_DECLARE(UNARY, asin, _native, double, double)

/* float asinf(float x)
 * arc sine of x, in radians.
 * Largest error in ulp: default 2.28; _native 536. */
LANEMATH_DECLARE(UNARY, asinf, , float, float)
LANEMATH_DECLARE(UNARY, asinf, _native, float, float)

/* double acos(double x)
 * arc cosine of x, in radians.
 * Largest error in ulp: default 1.32; _native 6.4e+06. */
LANEMATH_DECLARE(UNARY, acos, , double, double)
LANEMATH_DECLARE(UNARY, acos, _native, double, double)

/* float acosf(float x)
 * arc cosine of x, in radians.
 * Largest error in ulp: default 1.24; _native 533. */
LANEMATH_DECLARE(UNARY, acosf, , float, float)
LANEMATH_DECLARE(UNARY, acosf, _native, float, float)

/* double asinpi(double x)
 * arc sine of x, divided by pi.
 * Largest error in ulp: default 3.02; _native 7.6e+06. */
LANEMATH_DECLARE(UNARY, asinpi, , double, double)
LANEMATH_DECLARE(UNARY, asinpi, _native, double, double)

/* float asinpif(float x)
 * arc sine of x, divided by pi.
 * Largest error in ulp: default 3.21; _native 682. */
LANEMATH_DECLARE(UNARY, asinpif, , float, float)
LANEMATH_DECLARE(UNARY, asinpif, _native, float, float)

/* double acospi(double x)
 * arc cosine of x, divided by pi.
 * Largest error in ulp: default 2.35; _native 6.1e+06. */
LANEMATH_DECLARE(UNARY, acospi, , double, double)
LANEMATH_DECLARE(UNARY, acospi, _native, double, double)

/* float acospif(float x)
 * arc cosine of x, divided by pi.
 * Largest error in ulp: default 2.46; _native 532. */
LANEMATH_DECLARE(UNARY, acospif, , float, float)
LANEMATH_DECLARE(UNARY, acospif, _native, float, float)

/* double atan(double x)
 * arc tangent of x, in radians.
 * Largest error in ulp: default 2.62; default at width 2 4.63; _native 2.25e+07. */
LANEMATH_DECLARE(UNARY, atan, , double, double)
LANEMATH_DECLARE(UNARY, atan, _native, double, double)

/* float atanf(float x)
 * arc tangent of x, in radians.
 * Largest error in ulp: default 2.82; default at width 4 3.76; _native 3780. */
LANEMATH_DECLARE(UNARY, atanf, , float, float)
LANEMATH_DECLARE(UNARY, atanf, _native, float, float)

/* double atanpi(double x)
 * arc tangent of x, divided by pi.
 * Largest error in ulp: default 3.27; _native 2.25e+07. */
LANEMATH_DECLARE(UNARY, atanpi, , double, double)
LANEMATH_DECLARE(UNARY, atanpi, _native, double, double)

/* float atanpif(float x)
 * arc tangent of x, divided by pi.
 * Largest error in ulp: default 4.8; _native 3780. */
LANEMATH_DECLARE(UNARY, atanpif, , float, float)
LANEMATH_DECLARE(UNARY, atanpif, _native, float, float)

/* double atan2(double x, double y)
 * angle of the point (second, first) in radians, -pi to pi.
 * Largest error in ulp: default 4.71; default at width 2 4.71; _native 2.25e+07. */
LANEMATH_DECLARE(BINARY, atan2, , double, double, double)
LANEMATH_DECLARE(BINARY, atan2, _native, double, double, double)

/* float atan2f(float x, float y)
 * angle of the point (second, first) in radians, -pi to pi.
 * Largest error in ulp: default 3.85; default at width 4 3.99; _native 3780. */
LANEMATH_DECLARE(BINARY, atan2f, , float, float, float)
LANEMATH_DECLARE(BINARY, atan2f, _native, float, float, float)

/* double atan2pi(double x, double y)
 * angle of the point (second, first) divided by pi, -1 to 1.
 * Largest error in ulp: default 4.55; _native 2.25e+07. */
LANEMATH_DECLARE(BINARY, atan2pi, , double, double, double)
LANEMATH_DECLARE(BINARY, atan2pi, _native, double, double, double)

/* float atan2pif(float x, float y)
 * angle of the point (second, first) divided by pi, -1 to 1.
 * Largest error in ulp: default 6.3; _native 3780. */
LANEMATH_DECLARE(BINARY, atan2pif, , float, float, float)
LANEMATH_DECLARE(BINARY, atan2pif, _native, float, float, float)

LANEMATH_END

#endif
