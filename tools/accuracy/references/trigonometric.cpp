#include <cmath>

#include "accuracy/references/families.h"

namespace lanemath::accuracy {
namespace {

reference of(std::string_view name, exact_function value, double (*fast)(double), exact_function second = nullptr) {
  return {.name = name,
          .value = value,
          .ranges = {{"typical", {{-10, 10}}},
                     {"main", {{-10000, 10000}}},
                     {"middle", {{10000, 0x1p30}}},
                     {"large", {{0x1p30, 0x1p127}}},
                     {"negative", {{-0x1p127, -10000}}}},
          // Multiples of pi/2, and the floats and doubles that come nearest to one.
          .single_bounds = {0x1.921fb6p0, 0x1.921fb6p1, 0x1.f6a7a2p12, 8256, 10000, 0x1.f37694p95, 0x1p17, 0x1p30},
          .double_bounds = {0x1.921fb54442d18p0, 0x1.921fb54442d18p1, 0x1p17, 0x1p23, 0x1p24, 0x1p30,
                            0x1.6ac5b262ca1ffp849},
          .fast = fast,
          .second = second};
}

// Functions of pi x: the quarters matter, and from 2^23 or 2^52 on every number is whole.
reference of_pi(std::string_view name, exact_function value, double (*fast)(double)) {
  return {.name = name,
          .value = value,
          .ranges = {{"turn", {{-1, 1}}}, {"main", {{-1000, 1000}}}, {"large", {{1000, 0x1p25}}}},
          .single_bounds = {0.25, 0.5, 0.75, 1, 1.25, 1.5, 2, 3, 0x1p22, 0x1p23, 0x1p24},
          .double_bounds = {0.25, 0.5, 0.75, 1, 1.25, 1.5, 2, 3, 0x1p51, 0x1p52, 0x1p53},
          .fast = fast};
}

double sine_of_pi(double x) {
  const double r = std::remainder(x, 2.0);
  return std::sin(M_PI * (std::fabs(r) > 0.5 ? std::copysign(1.0, r) - r : r));
}
double cosine_of_pi(double x) { return std::sin(M_PI * (0.5 - std::fabs(std::remainder(x, 2.0)))); }
double tangent_of_pi(double x) {
  const double r = std::remainder(x, 1.0), a = std::fabs(r);
  return std::copysign(a > 0.25 ? 1.0 / std::tan(M_PI * (0.5 - a)) : std::tan(M_PI * a), r);
}

}  // namespace

std::vector<reference> trigonometric_references() {
  const auto sine = [](double x) { return std::sin(x); };
  return {of("sin", unary<mpfr_sin>, sine),
          of("cos", unary<mpfr_cos>, [](double x) { return std::cos(x); }),
          of("sincos", unary<mpfr_sin>, sine, unary<mpfr_cos>),
          of("tan", unary<mpfr_tan>, [](double x) { return std::tan(x); }),
          of("sincosreg", unary<mpfr_sin>, sine, unary<mpfr_cos>),
          of_pi("sinpi", unary<mpfr_sinpi>, sine_of_pi),
          of_pi("cospi", unary<mpfr_cospi>, cosine_of_pi),
          of_pi("tanpi", unary<mpfr_tanpi>, tangent_of_pi)};
}

}  // namespace lanemath::accuracy
