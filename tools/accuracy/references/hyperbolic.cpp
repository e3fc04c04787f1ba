#include <cmath>

#include "accuracy/references/families.h"

namespace lanemath::accuracy {

std::vector<reference> hyperbolic_references() {
  const auto exponential = [](std::string_view name, exact_function value, double (*fast)(double), float rare) {
    return reference{.name = name,
                     .value = value,
                     .ranges = {{"typical", {{-5, 5}}},
                                {"small", {{-0.4, 0.4}}},
                                {"kernel", {{-87.3365, 87.3365}}},
                                {"rare", {{87.33655, 89.5}}},
                                {"wide", {{-707.699, 707.699}}},
                                {"wide rare", {{707.7002, 710.5}}}},
                     .single_bounds = {87.33653, 89.415986, 88.8},
                     .double_bounds = {707.69970703125, 710.475860073944},
                     .fast = fast,
                     .single_parts = {{"rare lanes", rare}}};
  };
  return {
      exponential(
          "sinh", unary<mpfr_sinh>, [](double x) { return std::sinh(x); }, 0x1.5d589cp6f),
      exponential(
          "cosh", unary<mpfr_cosh>, [](double x) { return std::cosh(x); }, 0x1.5d589ap6f),
      {.name = "tanh",
       .value = unary<mpfr_tanh>,
       .ranges = {{"typical", {{-5, 5}}},
                  {"small", {{-0.125, 0.125}}},
                  {"kernel", {{-20, 20}}},
                  {"rare", {{0x1p126, 0x1.fffffep127}}}},
       .single_bounds = {0.03125, 0.25, 0.5, 1, 9.5, 10},
       .double_bounds = {0.125, 0.25, 0.5, 1, 18, 20},
       .fast = [](double x) { return std::tanh(x); }},
      {.name = "asinh",
       .value = unary<mpfr_asinh>,
       .ranges = {{"typical", {{-100, 100}}},
                  {"around 0", {{-1, 1}}},
                  {"small", {{-0x1p-4, 0x1p-4}}},
                  {"tiny", {{-0x1p-9, 0x1p-9}}},
                  {"alone", {{1, 2.5}}},
                  {"kernel", {{0x1p-126, 0x1.fffffep127}}}},
       .single_bounds = {0x1p-28, 0.0625, 0.75, 1, 0x1p30, 1e19},
       .double_bounds = {0x1p-31, 0x1p-28, 0x1p-9, 0.75, 1, 0x1p30, 1e154},
       .fast = [](double x) { return std::asinh(x); }},
      {.name = "acosh",
       .value = unary<mpfr_acosh>,
       .ranges = {{"typical", {{1, 100}}},
                  {"near 1", {{1, 1 + 0x1p-10}}},
                  {"around 1.5", {{1, 2}}},
                  {"alone", {{1.51, 2.5}}},
                  {"kernel", {{1, 0x1.fffffep127}}},
                  {"rare", {{-2, 1}}}},
       .single_bounds = {1, 1.25, 1.5, 0x1p30, 1e19},
       .double_bounds = {1, 1.25, 1.5, 1.5000009536743164, 0x1p30, 1e154},
       .fast = [](double x) { return std::acosh(x); }},
      {.name = "atanh",
       .value = unary<mpfr_atanh>,
       .ranges = {{"typical", {{-0.99, 0.99}}},
                  {"small", {{-0.1, 0.1}}},
                  {"tiny", {{-0x1p-10, 0x1p-10}}},
                  {"to 1", {{0.99, 1}}},
                  {"rare", {{-2, -1}}}},
       .single_bounds = {0x1p-103, 0x1p-12, 1.0 / 3, 1},
       .double_bounds = {0x1p-970, 0x1p-32, 1.0 / 3, 1},
       .fast = [](double x) { return std::atanh(x); }},
  };
}

}  // namespace lanemath::accuracy
