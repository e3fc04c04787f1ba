#include <cmath>

#include "accuracy/references/families.h"

namespace lanemath::accuracy {

std::vector<reference> exponential_references() {
  return {
      {.name = "exp",
       .value = unary<mpfr_exp>,
       .ranges = {{"typical", {{-20, 20}}},
                  {"kernel", {{-87.3365, 87.3365}}},
                  {"rare", {{-104, -87.33655}}},
                  {"top", {{87.33655, 89}}}},
       .single_bounds = {0x1p-52, 87.33654, 88.72283, 103.97208},
       .fast = [](double x) { return std::exp(x); }},
      {.name = "exp2",
       .value = unary<mpfr_exp2>,
       .ranges = {{"typical", {{-20, 20}}}, {"kernel", {{-126, 126}}}, {"rare", {{-150, -126}}}, {"top", {{126, 129}}}},
       .single_bounds = {0x1p-28, 123.5, 126, 128, 149, 150, 160},
       .fast = [](double x) { return std::exp2(x); }},
      {.name = "exp10",
       .value = unary<mpfr_exp10>,
       .ranges = {{"typical", {{-10, 10}}},
                  {"kernel", {{-37.9297, 37.9297}}},
                  {"rare", {{-45.2, -37.92979}}},
                  {"top", {{37.92979, 38.6}}}},
       .single_bounds = {37.92978, 38.53184, 45.1545},
       .fast = [](double x) { return ::exp10(x); }},
  };
}

}  // namespace lanemath::accuracy
