/* A program that a user of the installed package might write: e^x of sixteen lanes against the C library. */
#include <lanemath/lanemath.h>
#include <math.h>
#include <stdio.h>

int main(void) {
  lanemath_float16 x;
  for (int i = 0; i < 16; ++i) x[i] = (float)i - 7.5f;
  const lanemath_float16 y = lanemath_expf16(x);
  for (int i = 0; i < 16; ++i)
    if (!(fabsf(y[i] - expf(x[i])) <= 1e-6f * y[i])) {
      printf("e^%g is %g here\n", x[i], y[i]);
      return 1;
    }
  return 0;
}
