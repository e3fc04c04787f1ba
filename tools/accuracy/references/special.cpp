#include <cmath>

#include "accuracy/references/families.h"

namespace lanemath::accuracy {
namespace {

void log_gamma(mpfr_t result, const mpfr_t* x) {
  int sign;
  mpfr_lgamma(result, &sign, x[0], MPFR_RNDN);
}
void sign_of_gamma(mpfr_t result, const mpfr_t* x) {
  int sign = 1;
  const bool pole = mpfr_integer_p(x[0]) && mpfr_sgn(x[0]) < 0;
  if (!pole && !mpfr_nan_p(x[0])) mpfr_lgamma(result, &sign, x[0], MPFR_RNDN);
  mpfr_set_si(result, mpfr_inf_p(x[0]) || sign >= 0 ? 1 : -1, MPFR_RNDN);
}

double fast_log_gamma(double x) {
  int sign;
  return lgamma_r(x, &sign);
}
// Poles that tgamma takes for numbers.
bool is_missed_pole(lane type, double x) {
  const double least = type == lane::f32 ? 0x1p22 : 0x1p51;
  return x < -least && x > -2 * least && std::floor(x) == x && std::fmod(x, 4) == -1;
}

const std::vector<range> log_gamma_ranges{{"typical", {{0.5, 30}}},   {"to 4", {{0, 4}}},    {"octaves", {{4, 600}}},
                                          {"large", {{500, 1e6}}},    {"roots", {{-4, -2}}}, {"negative", {{-17.5, 0}}},
                                          {"reflected", {{-600, -9}}}};

}  // namespace

std::vector<reference> special_references() {
  return {
      {.name = "erf",
       .value = unary<mpfr_erf>,
       .ranges = {{"typical", {{-3, 3}}}, {"kernel", {{-4, 4}}}, {"wide", {{-6.1, 6.1}}}, {"small", {{-0.02, 0.02}}}},
       .single_bounds = {0x1p-32, 3.9296875},
       .double_bounds = {0x1p-256, 5.9921875},
       .fast = [](double x) { return std::erf(x); }},
      {.name = "erfc",
       .value = unary<mpfr_erfc>,
       .ranges = {{"typical", {{-2, 5}}},
                  {"kernel", {{-4, 9}}},
                  {"tail", {{9, 10.06}}},
                  {"wide", {{1, 26}}},
                  {"wide tail", {{26, 27.3}}}},
       .single_bounds = {0x1p-48, 9.19, 10.054195, 10.0625},
       .double_bounds = {0x1p-128, 26.543, 27.226017, 27.234375, 27.2421875},
       .fast = [](double x) { return std::erfc(x); }},
      {.name = "lgamma",
       .value = log_gamma,
       .ranges = log_gamma_ranges,
       .single_bounds = {1, 1.25, 1.5, 1.75, 2, 4, 9, 8192, 4.085e36},
       .double_bounds = {0.875, 1, 1.25, 1.75, 2, 2.25, 4, 15, 17, 512, 2.556e305},
       .fast = fast_log_gamma},
      // Without a stand-in: a sweep would take long.
      {.name = "lgammar", .value = log_gamma, .ranges = log_gamma_ranges, .second = sign_of_gamma},
      {.name = "tgamma",
       .value = unary<mpfr_gamma>,
       .ranges = {{"typical", {{0.5, 20}}},
                  {"to 3", {{0, 3}}},
                  {"kernel", {{0, 35.0401}}},
                  {"negative", {{-10, 0}}},
                  {"reflected", {{-43, -8}}},
                  {"wide", {{16, 171.624}}},
                  {"wide reflected", {{-186, -16}}}},
       .single_bounds = {0x1p-128, 1, 1.25, 1.5, 1.75, 2, 8, 16, 24, 32, 35.0401, 40, 43},
       .double_bounds = {0x1p-1024, 1, 1.25, 1.5, 2, 16, 32, 160, 171.62437, 176, 185},
       .fast = [](double x) { return std::tgamma(x); },
       .left_out = is_missed_pole},
  };
}

}  // namespace lanemath::accuracy
