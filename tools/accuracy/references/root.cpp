#include <cmath>

#include "accuracy/references/families.h"

namespace lanemath::accuracy {
namespace {

// An infinity with the argument's sign at a zero, as division gives.
void reciprocal_root(mpfr_t result, const mpfr_t* x) {
  if (mpfr_zero_p(x[0]))
    mpfr_ui_div(result, 1, x[0], MPFR_RNDN);
  else
    mpfr_rec_sqrt(result, x[0], MPFR_RNDN);
}
void inverse(mpfr_t result, const mpfr_t* x) { mpfr_ui_div(result, 1, x[0], MPFR_RNDN); }
void reciprocal_cube_root(mpfr_t result, const mpfr_t* x) {
  mpfr_cbrt(result, x[0], MPFR_RNDN);
  mpfr_ui_div(result, 1, result, MPFR_RNDN);
}

}  // namespace

// Ranges that the forms without a test serve too; bounds and patterns cover the rest.
std::vector<reference> root_references() {
  const interval wide{1e-15, 1e15};
  return {
      {.name = "div",
       .value = binary<mpfr_div>,
       .ranges = {{"typical", {{-1000, 1000}, wide}}},
       .single_bounds = {0x1p126, 0x1.ffdp125},
       .double_bounds = {0x1p-1022},
       .over = abscissa::quotient},
      {.name = "inv",
       .value = inverse,
       .ranges = {{"typical", {wide}}},
       .single_bounds = {0x1p126, 0x1.ffdp125},
       .fast = [](double x) { return 1 / x; }},
      {.name = "sqrt",
       .value = unary<mpfr_sqrt>,
       .ranges = {{"typical", {wide}}},
       .single_bounds = {0x1p-140},
       .fast = [](double x) { return std::sqrt(x); }},
      {.name = "rsqrt",
       .value = reciprocal_root,
       .ranges = {{"typical", {wide}}},
       .single_bounds = {0x1p-140},
       .double_bounds = {0x1p-970, 0x1p-1020, 0x1p1022, 0x1p-1060},
       .fast = [](double x) { return 1 / std::sqrt(x); }},
      {.name = "cbrt",
       .value = unary<mpfr_cbrt>,
       .ranges = {{"typical", {{-1000, 1000}}}},
       .single_bounds = {0x1p-140},
       .double_bounds = {0x1p-1060},
       .fast = [](double x) { return std::cbrt(x); }},
      {.name = "rcbrt",
       .value = reciprocal_cube_root,
       .ranges = {{"typical", {{-1000, 1000}}}},
       .single_bounds = {0x1p-140},
       .double_bounds = {0x1p-1060},
       .fast = [](double x) { return 1 / std::cbrt(x); }},
      {.name = "hypot",
       .value = binary<mpfr_hypot>,
       .ranges = {{"typical", {{1e-9, 1e9}, {1e-9, 1e9}}}},
       .single_bounds = {0x1p-34, 0x1.4p-34, 0x1p33, 0x1.2p33, 0x1p-140, 0x1p-60, 0x1p70},
       .double_bounds = {0x1p-34, 0x1.4p-34, 0x1p33, 0x1.2p33, 0x1p-1060, 0x1p-540, 0x1p540},
       .over = abscissa::quotient},
  };
}

}  // namespace lanemath::accuracy
