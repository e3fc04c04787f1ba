/* Exponentials.
 *
 * Any x. The result overflows to +infinity and underflows through the denormals to +0. x = +infinity gives
 * +infinity, -infinity gives +0 (expm1: -1), and a zero gives 1 (expm1: the zero itself). A NaN gives a quiet NaN with
 * its sign and payload, but exp2f at width 4 returns a signalling NaN unchanged, and exp2 at width 2 gives one NaN for
 * all. Method: reduction by multiples of ln 2 / 2^k with the logarithm in two parts, in most default forms a table of
 * 2^(j/2^k), and a short polynomial (P. T. P. Tang, ACM TOMS 15, 1989). The native forms use a shorter polynomial, and
 * a table only in exp and expm1; those of exp2 and exp10 are not exact at integers.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_EXPONENTIAL_H
#define LANEMATH_EXPONENTIAL_H

#include <lanemath/types.h>

LANEMATH_BEGIN

/* double exp(double x)
 * e to the power x.
 * Largest error in ulp: default 3.18; default at width 2 2.98; _native 2.98e+07. */
LANEMATH_DECLARE(UNARY, exp, , double, double)
LANEMATH_DECLARE(UNARY, exp, _native, double, double)

/* float expf(float x)
 * e to the power x.
 * Largest error in ulp: default 0.569; _native 2170; _half 2170; _rm 2.94. */
LANEMATH_DECLARE(UNARY, expf, , float, float)
LANEMATH_DECLARE(UNARY, expf, _native, float, float)
LANEMATH_DECLARE(UNARY, expf, _half, float, float)
LANEMATH_DECLARE(UNARY, expf, _rm, float, float)

/* double exp2(double x)
 * 2 to the power x.
 * Largest error in ulp: default 1.65; default at width 2 2.62; _native 1.53e+07. */
LANEMATH_DECLARE(UNARY, exp2, , double, double)
LANEMATH_DECLARE(UNARY, exp2, _native, double, double)

/* float exp2f(float x)
 * 2 to the power x.
 * Largest error in ulp: default 1.11; default at width 1 0.507; default at width 4 2.56; _native 1240; _half 1240; _rm 1.11. */
LANEMATH_DECLARE(UNARY, exp2f, , float, float)
LANEMATH_DECLARE(UNARY, exp2f, _native, float, float)
LANEMATH_DECLARE(UNARY, exp2f, _half, float, float)
LANEMATH_DECLARE(UNARY, exp2f, _rm, float, float)

/* double exp10(double x)
 * 10 to the power x.
 * Largest error in ulp: default 1.01; _native 1.53e+07. */
LANEMATH_DECLARE(UNARY, exp10, , double, double)
LANEMATH_DECLARE(UNARY, exp10, _native, double, double)

/* float exp10f(float x)
 * 10 to the power x.
 * Largest error in ulp: default 0.557; _native 1310; _half 1310; _rm 1310. */
LANEMATH_DECLARE(UNARY, exp10f, , float, float)
LANEMATH_DECLARE(UNARY, exp10f, _native, float, float)
LANEMATH_DECLARE(UNARY, exp10f, _half, float, float)
LANEMATH_DECLARE(UNARY, exp10f, _rm, float, float)

/* double expm1(double x)
 * e to the power x, minus one.
 * Largest error in ulp: default 2.97; _native 5.19e+06. */
LANEMATH_DECLARE(UNARY, expm1, , double, double)
LANEMATH_DECLARE(UNARY, expm1, _native, double, double)

/* float expm1f(float x)
 * e to the power x, minus one.
 * Largest error in ulp: default 1.81; _native 284. */
LANEMATH_DECLARE(UNARY, expm1f, , float, float)
LANEMATH_DECLARE(UNARY, expm1f, _native, float, float)

LANEMATH_END

#endif
