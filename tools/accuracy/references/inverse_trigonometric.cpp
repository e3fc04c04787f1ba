#include <cmath>
#include <numbers>

#include "accuracy/references/families.h"

namespace lanemath::accuracy {
namespace {

const std::vector<range> of_one{{"typical", {{-1, 1}}},
                                {"middle", {{-0.5, 0.5}}},
                                {"near 1", {{0.99, 1}}},
                                {"near -1", {{-1, -0.99}}},
                                {"small", {{-0x1p-10, 0x1p-10}}}};
const std::vector<double> bounds_of_one{0.5, 1, 2};
const std::vector<range> of_any{{"typical", {{-1, 1}}}, {"steep", {{-8, 8}}}, {"wide", {{-1e30, 1e30}}}};
const std::vector<range> of_points{{"typical", {{-10, 10}, {-10, 10}}},
                                   {"flat", {{-1, 1}, {-1000, 1000}}},
                                   {"steep", {{-1000, 1000}, {-1, 1}}},
                                   {"wide", {{-1e30, 1e30}, {-1e30, 1e30}}}};
const std::vector<double> single_guards{0x1p-149, 0x1p-125, 0x1p-53, 0.125, 1, 7.875, 0x1p54, 0x1p74, 0x1p123};
const std::vector<double> double_guards{0x1p-1074, 0x1p-1020, 0x1p-1000, 0x1p-53, 0.125,   1,
                                        7.875,     0x1p54,    0x1p74,    0x1p993, 0x1p1000};

}  // namespace

std::vector<reference> inverse_trigonometric_references() {
  const auto of = [](std::string_view name, exact_function value, const std::vector<range>& ranges,
                     const std::vector<double>& single_bounds, const std::vector<double>& double_bounds,
                     double (*fast)(double), abscissa over = abscissa::argument) {
    return reference{.name = name,
                     .value = value,
                     .ranges = ranges,
                     .single_bounds = single_bounds,
                     .double_bounds = double_bounds,
                     .fast = fast,
                     .over = over};
  };
  using std::numbers::inv_pi;
  return {
      of("asin", unary<mpfr_asin>, of_one, bounds_of_one, bounds_of_one, [](double x) { return std::asin(x); }),
      of("acos", unary<mpfr_acos>, of_one, bounds_of_one, bounds_of_one, [](double x) { return std::acos(x); }),
      of("asinpi", unary<mpfr_asinpi>, of_one, bounds_of_one, bounds_of_one,
         [](double x) { return std::asin(x) * inv_pi; }),
      of("acospi", unary<mpfr_acospi>, of_one, bounds_of_one, bounds_of_one,
         [](double x) { return std::acos(x) * inv_pi; }),
      of("atan", unary<mpfr_atan>, of_any, single_guards, double_guards, [](double x) { return std::atan(x); }),
      of("atanpi", unary<mpfr_atanpi>, of_any, single_guards, double_guards,
         [](double x) { return std::atan(x) * inv_pi; }),
      of("atan2", binary<mpfr_atan2>, of_points, single_guards, double_guards, nullptr, abscissa::quotient),
      of("atan2pi", binary<mpfr_atan2pi>, of_points, single_guards, double_guards, nullptr, abscissa::quotient),
  };
}

}  // namespace lanemath::accuracy
