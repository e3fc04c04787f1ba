#include <cmath>

#include "accuracy/references/families.h"

namespace lanemath::accuracy {

std::vector<reference> logarithm_references() {
  const std::vector<range> ranges{{"typical", {{1e-3, 1e3}}},
                                  {"around 1", {{0.65, 1.35}}},
                                  {"near 1", {{1 - 0x1p-10, 1 + 0x1p-10}}},
                                  {"kernel", {{0x1p-126, 0x1.fffffep127}}},
                                  {"denormal", {{0, 0x1p-126}}},
                                  {"rare", {{0, 0x1p-1022}}}};
  // Besides 1: the ends of the mantissa's interval, where the exponent steps.
  const std::vector<double> bounds{0.6666667, 1.3333334, 0x1.6ap0, 0x1.6a8p-1, 0x1.7p0};
  const auto of = [&](std::string_view name, exact_function value, double (*fast)(double)) {
    return reference{.name = name,
                     .value = value,
                     .ranges = ranges,
                     .single_bounds = bounds,
                     .double_bounds = bounds,
                     .fast = fast,
                     .single_parts = {{"but denormals", 0x1.fffffcp-127f}}};
  };
  return {
      of("log", unary<mpfr_log>, [](double x) { return std::log(x); }),
      of("log2", unary<mpfr_log2>, [](double x) { return std::log2(x); }),
      of("log10", unary<mpfr_log10>, [](double x) { return std::log10(x); }),
      {.name = "log1p",
       .value = unary<mpfr_log1p>,
       .ranges = {{"typical", {{-0.99, 1e3}}},
                  {"around 0", {{-0.5, 1}}},
                  {"tiny", {{-0x1p-10, 0x1p-10}}},
                  {"to -1", {{-1, -0.99}}},
                  {"kernel", {{-1, 0x1p117}}},
                  {"rare", {{0x1p116, 0x1.fffffep127}}}},
       .single_bounds = {0x1p-12, 1, 0x1p118, 0x1p127},
       .double_bounds = {0x1p-31, 1, 0x1.ffffffffff000p1012},
       .fast = [](double x) { return std::log1p(x); },
       .single_parts = {{"up to 2^118", 0, 0x1p118f}}},
  };
}

}  // namespace lanemath::accuracy
