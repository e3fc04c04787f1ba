/* lanemath: vectorised maths built-ins for C and C++ programs. Includes all families of functions. */
#ifndef LANEMATH_LANEMATH_H
#define LANEMATH_LANEMATH_H

#include <lanemath/conversion.h>
#include <lanemath/exponential.h>
#include <lanemath/hyperbolic.h>
#include <lanemath/integer_division.h>
#include <lanemath/inverse_trigonometric.h>
#include <lanemath/logarithm.h>
#include <lanemath/manipulation.h>
#include <lanemath/power.h>
#include <lanemath/root.h>
#include <lanemath/special.h>
#include <lanemath/trigonometric.h>

#endif
