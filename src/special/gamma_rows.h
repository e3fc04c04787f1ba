// The rows of the gamma functions' fitted tables.
#pragma once

#include "frame/lanes.h"
#include "special/extended.h"

namespace lanemath::special {

// A logarithm, whose high part is a multiple of 2^-50.
struct logarithm {
  double hi;
  extended lo;
};

// A zero of log-gamma: an interval around it, and a cubic about it, highest power first.
struct lgammaf_root {
  double low, root, high;
  double c[4];
};

// The same with a polynomial.
struct lgamma_root {
  double low, root, high;
  int degree;
  two_doubles c[20];
};

}  // namespace lanemath::special
