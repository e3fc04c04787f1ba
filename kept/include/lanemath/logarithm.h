/* Logarithms.
 *
 * x >= 0 (log1p: x >= -1), NaN below. The logarithm of a zero is -infinity, that of +infinity is +infinity. A NaN
 * gives a quiet NaN. Method: a table of reciprocals and logarithms and a short polynomial (P. T. P. Tang, ACM TOMS 16,
 * 1990); logf, log2f and the native forms in single precision use a longer polynomial and no table.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_LOGARITHM_H
#define LANEMATH_LOGARITHM_H

#include <lanemath/types.h>

LANEMATH_BEGIN

/* double log(double x)
 * natural logarithm of x.
 * Largest error in ulp: default 1.6; _native 5.5e+06. */
LANEMATH_DECLARE(UNARY, log, , double, double)
LANEMATH_DECLARE(UNARY, log, _native, double, double)

/* float logf(float x)
 * natural logarithm of x.
 * Largest error in ulp: default 1.54; _native 1570; _half 3.97; _rm 1.54. */
LANEMATH_DECLARE(UNARY, logf, , float, float)
LANEMATH_DECLARE(UNARY, logf, _native, float, float)
LANEMATH_DECLARE(UNARY, logf, _half, float, float)
LANEMATH_DECLARE(UNARY, logf, _rm, float, float)

/* double log2(double x)
 * base-2 logarithm of x.
 * Largest error in ulp: default 2.1; default at width 2 2.08; _native 6.4e+06. */
LANEMATH_DECLARE(UNARY, log2, , double, double)
LANEMATH_DECLARE(UNARY, log2, _native, double, double)

/* float log2f(float x)
 * base-2 logarithm of x.
 * Largest error in ulp: default 2.62; _native 894; _half 894; _rm 2.62. */
LANEMATH_DECLARE(UNARY, log2f, , float, float)
LANEMATH_DECLARE(UNARY, log2f, _native, float, float)
LANEMATH_DECLARE(UNARY, log2f, _half, float, float)
LANEMATH_DECLARE(UNARY, log2f, _rm, float, float)

/* double log10(double x)
 * base-10 logarithm of x.
 * Largest error in ulp: default 2.1; _native 7.7e+06. */
LANEMATH_DECLARE(UNARY, log10, , double, double)
LANEMATH_DECLARE(UNARY, log10, _native, double, double)

/* float log10f(float x)
 * base-10 logarithm of x.
 * Largest error in ulp: default 0.8; _native 996; _half 996. */
LANEMATH_DECLARE(UNARY, log10f, , float, float)
LANEMATH_DECLARE(UNARY, log10f, _native, float, float)
LANEMATH_DECLARE(UNARY, log10f, _half, float, float)

/* double log1p(double x)
 * natural logarithm of 1 + x.
 * Largest error in ulp: default 0.8; _native 5.5e+06. */
LANEMATH_DECLARE(UNARY, log1p, , double, double)
LANEMATH_DECLARE(UNARY, log1p, _native, double, double)

/* float log1pf(float x)
 * natural logarithm of 1 + x.
 * Largest error in ulp: default 1.01; _native 1570. */
LANEMATH_DECLARE(UNARY, log1pf, , float, float)
LANEMATH_DECLARE(UNARY, log1pf, _native, float, float)

LANEMATH_END

#endif
