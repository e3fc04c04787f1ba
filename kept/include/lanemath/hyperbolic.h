/* Hyperbolic functions and their inverses.
 *
 * Any x for sinh, cosh, tanh and asinh; x >= 1 for acosh and -1 <= x <= 1 for atanh, NaN outside.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_HYPERBOLIC_H
#define LANEMATH_HYPERBOLIC_H

#include <lanemath/types.h>

LANEMATH_BEGIN

/* double sinh(double x)
 * hyperbolic sine of x.
 * Largest error in ulp: default 2.12; _native 2.12. */
LANEMATH_DECLARE(UNARY, sinh, , double, double)
LANEMATH_DECLARE(UNARY, sinh, _native, double, double)

/* float sinhf(float x)
 * hyperbolic sine of x.
 * Largest error in ulp: default 2.03; _native 1080. */
LANEMATH_DECLARE(UNARY, sinhf, , float, float)
LANEMATH_DECLARE(UNARY, sinhf, _native, float, float)

/* double cosh(double x)
 * hyperbolic cosine of x.
 * Largest error in ulp: default 1.54; _native 1.54. */
LANEMATH_DECLARE(UNARY, cosh, , double, double)
LANEMATH_DECLARE(UNARY, cosh, _native, double, double)

/* float coshf(float x)
 * hyperbolic cosine of x.
 * Largest error in ulp: default 1.85; _native 381. */
LANEMATH_DECLARE(UNARY, coshf, , float, float)
LANEMATH_DECLARE(UNARY, coshf, _native, float, float)

/* double tanh(double x)
 * hyperbolic tangent of x.
 * Largest error in ulp: default 1.25; _native 1.25. */
LANEMATH_DECLARE(UNARY, tanh, , double, double)
LANEMATH_DECLARE(UNARY, tanh, _native, double, double)

/* float tanhf(float x)
 * hyperbolic tangent of x.
 * Largest error in ulp: default 1.03; _native 1.03. */
LANEMATH_DECLARE(UNARY, tanhf, , float, float)
LANEMATH_DECLARE(UNARY, tanhf, _native, float, float)

/* double asinh(double x)
 * inverse hyperbolic sine of x.
 * Largest error in ulp: default 1.8; default at width 2 2.28; _native 700000; _native at width 2 2.28. */
LANEMATH_DECLARE(UNARY, asinh, , double, double)
LANEMATH_DECLARE(UNARY, asinh, _native, double, double)

/* float asinhf(float x)
 * inverse hyperbolic sine of x.
 * Largest error in ulp: default 2.3; default at width 4 2.28; _native 1470; _native at width 4 2.28. */
LANEMATH_DECLARE(UNARY, asinhf, , float, float)
LANEMATH_DECLARE(UNARY, asinhf, _native, float, float)

/* double acosh(double x)
 * inverse hyperbolic cosine of x.
 * Largest error in ulp: default 9; default at width 2 2.19; _native 700000; _native at width 2 2.19. */
LANEMATH_DECLARE(UNARY, acosh, , double, double)
LANEMATH_DECLARE(UNARY, acosh, _native, double, double)

/* float acoshf(float x)
 * inverse hyperbolic cosine of x.
 * Largest error in ulp: default 3.4; default at width 4 2.14; _native 2500; _native at width 4 2.14. */
LANEMATH_DECLARE(UNARY, acoshf, , float, float)
LANEMATH_DECLARE(UNARY, acoshf, _native, float, float)

/* double atanh(double x)
 * inverse hyperbolic tangent of x.
 * Largest error in ulp: default 2.4; _native 700000. */
LANEMATH_DECLARE(UNARY, atanh, , double, double)
LANEMATH_DECLARE(UNARY, atanh, _native, double, double)

/* float atanhf(float x)
 * inverse hyperbolic tangent of x.
 * Largest error in ulp: default 2.2; _native 1470. */
LANEMATH_DECLARE(UNARY, atanhf, , float, float)
LANEMATH_DECLARE(UNARY, atanhf, _native, float, float)

LANEMATH_END

#endif
