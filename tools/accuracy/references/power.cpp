#include <cstdlib>

#include "accuracy/references/families.h"

namespace lanemath::accuracy {
namespace {

// pow for bases that are not negative, without a value where the limit depends on the path.
void powr(mpfr_t result, const mpfr_t* a) {
  const auto &x = a[0], &y = a[1];
  const bool one = mpfr_cmp_ui(x, 1) == 0;
  if (mpfr_nan_p(x) || mpfr_nan_p(y) || mpfr_sgn(x) < 0 || (mpfr_zero_p(x) && mpfr_zero_p(y)) ||
      (mpfr_inf_p(x) && mpfr_zero_p(y)) || (one && mpfr_inf_p(y)))
    return mpfr_set_nan(result);
  mpfr_pow(result, x, y, MPFR_RNDN);
  mpfr_abs(result, result, MPFR_RNDN);
}

void rootn(mpfr_t result, const mpfr_t* a) {
  const long n = mpfr_get_si(a[1], MPFR_RNDN);
  if (n == 0) return mpfr_set_nan(result);
  mpfr_rootn_ui(result, a[0], std::labs(n), MPFR_RNDN);
  if (n < 0) mpfr_ui_div(result, 1, result, MPFR_RNDN);
}

}  // namespace

std::vector<reference> power_references() {
  // Bases over the floats, near 1, and near 1 with exponents that take the result to the ends of the range.
  const std::vector<range> powers = {{"typical", {{0.01, 100}, {-10, 10}}},
                                     {"wide", {{1e-38, 3e38}, {-1.7, 1.7}}},
                                     {"near one", {{0.998, 1.002}, {-400'000, 400'000}}},
                                     {"denormal", {{1e-44, 1e-20}, {0.8, 3}}}};
  const std::vector<double> bounds = {0.9921875, 1.015625, 1.4375, 1.5, 0x1p24, 0x1p53, 3, 127, 149, 151, 1023, 1075};
  return {
      {.name = "pow",
       .value = binary<mpfr_pow>,
       .ranges = powers,
       .single_bounds = bounds,
       .double_bounds = bounds,
       .over = abscissa::result},
      {.name = "powr",
       .value = powr,
       .ranges = powers,
       .single_bounds = bounds,
       .double_bounds = bounds,
       .over = abscissa::result},
      {.name = "pown",
       .value = binary<mpfr_pow>,
       .ranges = {{"typical", {{-100, 100}, {-15, 15}}},
                  {"wide", {{1e-44, 3e38}, {-4, 4}}},
                  {"near one", {{0.998, 1.002}, {-400'000, 400'000}}},
                  {"nearer one", {{0.9999998, 1.0000002}, {-2147483648.0, 2147483647}}}},
       .single_bounds = bounds,
       .double_bounds = bounds,
       .over = abscissa::result},
      {.name = "rootn",
       .value = rootn,
       .ranges = {{"typical", {{0.01, 100}, {-10, 10}}},
                  {"wide", {{-3e38, 3e38}, {-9, 9}}},
                  {"denormal", {{-1e-38, 1e-38}, {-3, 3}}},
                  {"long", {{1e-44, 3e38}, {-2147483648.0, 2147483647}}}},
       .single_bounds = bounds,
       .double_bounds = bounds,
       .over = abscissa::result},
  };
}

}  // namespace lanemath::accuracy
