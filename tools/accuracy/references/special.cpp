#include <cmath>

#include "accuracy/references/families.h"

namespace lanemath::accuracy {

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
  };
}

}  // namespace lanemath::accuracy
