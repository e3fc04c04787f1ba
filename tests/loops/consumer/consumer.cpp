// A program that a user of the installed package might write: the integral of e^-x over 0 to 20.
#include <lanemath/loops.h>
#include <lanemath/arrays.hpp>

#include <cmath>
#include <cstdio>
#include <numeric>
#include <vector>

int main() {
  const std::size_t n = 10001;
  std::vector<double> x(n), y(n), z(n);
  for (std::size_t i = 0; i < n; ++i) x[i] = -20.0 * double(i) / n;
  lanemath::exp(x, y);
  for (std::size_t i = 0; i < n; ++i) z[i] = lanemath_exp1(x[i]);
  const double integral = std::accumulate(y.begin(), y.end(), 0.0) * 20 / n;
  std::printf("%.6f\n", integral);
  return std::fabs(integral - 1) < 2e-3 && y == z ? 0 : 1;
}
