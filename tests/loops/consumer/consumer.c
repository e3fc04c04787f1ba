/* The same in C, with a loop that GCC vectorises. */
#include <lanemath/arrays.h>
#include <lanemath/loops.h>
#include <math.h>
#include <stdio.h>

enum { n = 10001 };
static double x[n], y[n], z[n];

int main(void) {
  double sum = 0;
  for (size_t i = 0; i < n; ++i) x[i] = -20.0 * (double)i / n;
  lanemath_exp_array(x, y, n);
  for (size_t i = 0; i < n; ++i) z[i] = lanemath_exp1(x[i]);
  for (size_t i = 0; i < n; ++i) {
    sum += y[i];
    if (y[i] != z[i]) return 1;
  }
  printf("%.6f\n", sum * 20 / n);
  return fabs(sum * 20 / n - 1) < 2e-3 ? 0 : 1;
}
