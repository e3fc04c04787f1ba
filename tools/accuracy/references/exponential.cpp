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
                  {"top", {{87.33655, 89}}},
                  {"wide", {{-708.396, 708.396}}},
                  {"wide rare", {{-746, -708.396}}},
                  {"wide top", {{708.396, 710}}}},
       .single_bounds = {0x1p-52, 87.33654, 88.72283, 103.97208},
       .double_bounds = {0x1p-52, 704, 768, 708.39642, 708.39551, 709.78271, 745.13322},
       .fast = [](double x) { return std::exp(x); },
       .single_parts = {{"rare lanes", 0x1.5d589ep6f}}},
      {.name = "exp2",
       .value = unary<mpfr_exp2>,
       .ranges = {{"typical", {{-20, 20}}},
                  {"kernel", {{-126, 126}}},
                  {"rare", {{-150, -126}}},
                  {"top", {{126, 129}}},
                  {"wide", {{-1022, 1022}}},
                  {"wide rare", {{-1076, -1022}}},
                  {"wide top", {{1022, 1025}}}},
       .single_bounds = {0x1p-28, 123.5, 126, 128, 149, 150, 160},
       .double_bounds = {1021.9995, 1022, 1022.0005, 1023.996, 1024, 1074, 1075},
       .fast = [](double x) { return std::exp2(x); },
       .single_parts = {{"rare lanes", 126}}},
      {.name = "exp10",
       .value = unary<mpfr_exp10>,
       .ranges = {{"typical", {{-10, 10}}},
                  {"kernel", {{-37.9297, 37.9297}}},
                  {"rare", {{-45.2, -37.92979}}},
                  {"top", {{37.92979, 38.6}}},
                  {"wide", {{-307.652, 307.652}}},
                  {"wide rare", {{-324, -307.652}}},
                  {"wide top", {{307.652, 308.3}}}},
       .single_bounds = {37.92978, 38.53184, 45.1545},
       .double_bounds = {307.65234, 307.65266, 308.25472, 323.60725},
       .fast = [](double x) { return ::exp10(x); },
       .single_parts = {{"rare lanes", 0x1.2f703p5f}}},
      {.name = "expm1",
       .value = unary<mpfr_expm1>,
       .ranges = {{"typical", {{-20, 20}}},
                  {"small", {{-0.01, 0.01}}},
                  {"kernel", {{-86.6433, 86.6433}}},
                  {"top", {{86.6433, 89}}},
                  {"wide", {{-707.703, 707.703}}},
                  {"wide top", {{707.703, 710}}}},
       .single_bounds = {86.643394, 88.72283},
       .double_bounds = {707.70327, 709.78271},
       .fast = [](double x) { return std::expm1(x); },
       .single_parts = {{"rare lanes", 0x1.5a92d6p6f}}},
  };
}

}  // namespace lanemath::accuracy
