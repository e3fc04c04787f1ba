/* Error and gamma functions.
 *
 * Any x. Gamma has poles at zero and the negative integers.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_SPECIAL_H
#define LANEMATH_SPECIAL_H

#include <lanemath/types.h>

LANEMATH_BEGIN

/* double erf(double x)
 * error function of x.
 * Largest error in ulp: default 2.55; _native 315000. */
LANEMATH_DECLARE(UNARY, erf, , double, double)
LANEMATH_DECLARE(UNARY, erf, _native, double, double)

/* float erff(float x)
 * error function of x.
 * Largest error in ulp: default 1.93; _native 277. */
LANEMATH_DECLARE(UNARY, erff, , float, float)
LANEMATH_DECLARE(UNARY, erff, _native, float, float)

/* double erfc(double x)
 * complementary error function, 1 - erf(x).
 * Largest error in ulp: default 2.13; _native 6.78e+06. */
LANEMATH_DECLARE(UNARY, erfc, , double, double)
LANEMATH_DECLARE(UNARY, erfc, _native, double, double)

/* float erfcf(float x)
 * complementary error function, 1 - erf(x).
 * Largest error in ulp: default 1.77; _native 405. */
LANEMATH_DECLARE(UNARY, erfcf, , float, float)
LANEMATH_DECLARE(UNARY, erfcf, _native, float, float)

/* double lgamma(double x)
 * natural logarithm of |gamma(x)|.
 * Largest error in ulp: default 0.509. */
LANEMATH_DECLARE(UNARY, lgamma, , double, double)

/* float lgammaf(float x)
 * natural logarithm of |gamma(x)|.
 * Largest error in ulp: default 0.51. */
LANEMATH_DECLARE(UNARY, lgammaf, , float, float)

/* double lgammar(double x, int* second)
 * natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer.
 * Largest error in ulp: default 0.509. */
LANEMATH_DECLARE(UNARY_POINTER, lgammar, , double, double, int)

/* float lgammarf(float x, int* second)
 * natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer.
 * Largest error in ulp: default 0.51. */
LANEMATH_DECLARE(UNARY_POINTER, lgammarf, , float, float, int)

/* double tgamma(double x)
 * gamma function of x.
 * Largest error in ulp: default 0.504. */
LANEMATH_DECLARE(UNARY, tgamma, , double, double)

/* float tgammaf(float x)
 * gamma function of x.
 * Largest error in ulp: default 0.503. */
LANEMATH_DECLARE(UNARY, tgammaf, , float, float)

LANEMATH_END

#endif
