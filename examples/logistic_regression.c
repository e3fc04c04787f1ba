/* How likely a yes is for each value of a measure: logistic regression by Newton's method, with lanemath's functions of
 * arrays. The data are the shuttle's launches before January 1986: whether an O-ring was damaged, by the temperature
 * of the air. The Challenger was launched at 31 degrees Fahrenheit.
 *
 *     cc -O2 logistic_regression.c $(pkg-config --cflags --libs lanemath-loops) -lm -o logistic-regression
 *     ./logistic-regression data/oring.csv
 */
#include <lanemath/arrays.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>

enum { MOST = 10000 };
static double x[MOST], yes[MOST]; /* each measure, and 1 for a yes or 0 for a no */
static size_t n;

static void fail(const char* path, const char* why) {
  fprintf(stderr, "%s: %s\n", path, why);
  exit(1);
}

/* Lines of MEASURE,0 or MEASURE,1 under a title. */
static void read_data(const char* path) {
  char line[100];
  FILE* file = fopen(path, "r");
  if (!file) fail(path, "cannot be read");
  if (!fgets(line, sizeof line, file)) fail(path, "is empty");
  for (; fgets(line, sizeof line, file); ++n) {
    char rest;
    if (n == MOST) fail(path, "has too many lines");
    if (sscanf(line, "%lf,%lf %c", &x[n], &yes[n], &rest) != 2 || !isfinite(x[n]) || (yes[n] != 0 && yes[n] != 1))
      fail(path, "needs lines of a number and 0 or 1");
  }
  fclose(file);
}

/* p[i] = 1 / (1 + e^-(a + b x[i])) */
static void probabilities(double a, double b, const double* measures, double* p, size_t count) {
  for (size_t i = 0; i < count; ++i) p[i] = -(a + b * measures[i]);
  lanemath_exp_array(p, p, count);
  for (size_t i = 0; i < count; ++i) p[i] = 1 / (1 + p[i]);
}

/* Minus twice the logarithm of the likelihood. */
static double deviance(const double* p) {
  static double logarithms[MOST];
  double sum = 0;
  for (size_t i = 0; i < n; ++i) logarithms[i] = yes[i] != 0 ? p[i] : 1 - p[i];
  lanemath_log_array(logarithms, logarithms, n);
  for (size_t i = 0; i < n; ++i) sum += logarithms[i];
  return -2 * sum;
}

int main(int count, char** arguments) {
  static double p[MOST];
  double a = 0, b = 0, aa, ab, bb, determinant, step;
  int steps = 0;
  if (count != 2) {
    fprintf(stderr, "usage: %s DATA.csv\n", arguments[0]);
    return 2;
  }
  read_data(arguments[1]);

  /* The likelihood's slopes, and its curvatures with the sign changed. */
  do {
    double a_slope = 0, b_slope = 0;
    aa = ab = bb = 0;
    probabilities(a, b, x, p, n);
    for (size_t i = 0; i < n; ++i) {
      const double weight = p[i] * (1 - p[i]);
      a_slope += yes[i] - p[i];
      b_slope += (yes[i] - p[i]) * x[i];
      aa += weight;
      ab += weight * x[i];
      bb += weight * x[i] * x[i];
    }
    determinant = aa * bb - ab * ab;
    step = (aa * b_slope - ab * a_slope) / determinant;
    a += (bb * a_slope - ab * b_slope) / determinant;
    b += step;
    if (++steps == 50 || !(determinant > 0) || !isfinite(a + b)) fail(arguments[1], "the fit does not converge");
  } while (fabs(step) > 1e-12 * fabs(b));

  probabilities(a, b, x, p, n);
  printf("%zu lines: a yes has the probability 1 / (1 + e^-(a + b x)), with a and b and their standard errors\n", n);
  printf("a %9.4f  %.4f\nb %9.4f  %.4f\ndeviance %.3f, after %d steps\n\n", a, sqrt(bb / determinant), b,
         sqrt(aa / determinant), deviance(p), steps);

  double measures[] = {31, 40, 50, 60, 70, 80}, likely[6];
  probabilities(a, b, measures, likely, 6);
  printf("    x  probability\n");
  for (int i = 0; i < 6; ++i) printf("%5.0f  %8.4f\n", measures[i], likely[i]);
  return 0;
}
