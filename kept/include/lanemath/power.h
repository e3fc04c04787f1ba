/* Powers.
 *
 * pow: any x and y, with the special values of IEEE 754. powr: x >= 0, defined as exp(y log x). pown and rootn
 * take an integer y. Method: logarithm in extended precision, product with y or 1 / y, exponential; the native forms do
 * without the extra precision.
 *
 * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */
#ifndef LANEMATH_POWER_H
#define LANEMATH_POWER_H

#include <lanemath/types.h>

LANEMATH_BEGIN

/* double pow(double x, double y)
 * x to the power y.
 * Largest error in ulp: default 1.62; _native 5.7e+09. */
LANEMATH_DECLARE(BINARY, pow, , double, double, double)
LANEMATH_DECLARE(BINARY, pow, _native, double, double, double)

/* float powf(float x, float y)
 * x to the power y.
 * Largest error in ulp: default 1.1; _native 4400; _rm 4400. */
LANEMATH_DECLARE(BINARY, powf, , float, float, float)
LANEMATH_DECLARE(BINARY, powf, _native, float, float, float)
LANEMATH_DECLARE(BINARY, powf, _rm, float, float, float)

/* double powr(double x, double y)
 * x to the power y, for x >= 0.
 * Largest error in ulp: default 1.62; _native 5.7e+09. */
LANEMATH_DECLARE(BINARY, powr, , double, double, double)
LANEMATH_DECLARE(BINARY, powr, _native, double, double, double)

/* float powrf(float x, float y)
 * x to the power y, for x >= 0.
 * Largest error in ulp: default 8.05; _native 4400; _half 4400. */
LANEMATH_DECLARE(BINARY, powrf, , float, float, float)
LANEMATH_DECLARE(BINARY, powrf, _native, float, float, float)
LANEMATH_DECLARE(BINARY, powrf, _half, float, float, float)

/* double pown(double x, int y)
 * x to the integer power y.
 * Largest error in ulp: default 1.62; _native 5.7e+09. */
LANEMATH_DECLARE(BINARY, pown, , double, double, int)
LANEMATH_DECLARE(BINARY, pown, _native, double, double, int)

/* float pownf(float x, int y)
 * x to the integer power y.
 * Largest error in ulp: default 8020; _native 4990. */
LANEMATH_DECLARE(BINARY, pownf, , float, float, int)
LANEMATH_DECLARE(BINARY, pownf, _native, float, float, int)

/* double rootn(double x, int y)
 * x to the power 1 / y, y an integer.
 * Largest error in ulp: default 1.04; _native 1.7e+08. */
LANEMATH_DECLARE(BINARY, rootn, , double, double, int)
LANEMATH_DECLARE(BINARY, rootn, _native, double, double, int)

/* float rootnf(float x, int y)
 * x to the power 1 / y, y an integer.
 * Largest error in ulp: default 5.72; _native 1400. */
LANEMATH_DECLARE(BINARY, rootnf, , float, float, int)
LANEMATH_DECLARE(BINARY, rootnf, _native, float, float, int)

LANEMATH_END

#endif
