// What the operations should give: exact values by MPFR, where to look, and a fast stand-in for long sweeps.
#pragma once

#include <mpfr.h>

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "frame/catalogue.h"

namespace lanemath::accuracy {

// The value at exact arguments, as exactly as the result's precision allows.
using exact_function = void (*)(mpfr_t result, const mpfr_t* arguments);

struct interval {
  double low, high;
};
// Where to draw arguments from: an interval for each.
struct range {
  std::string_view name;
  std::vector<interval> arguments;
};

struct reference {
  std::string_view name;  // of the double-precision operation; stands for the single-precision one too
  exact_function value;
  std::vector<range> ranges;            // of typical arguments
  std::vector<double> single_bounds{};  // of the float kernel, its rare test and its special cases: both signs
  std::vector<double> double_bounds{};  // are tried
  // Accurate to far less than half a float's ulp, for sweeps over all floats.
  double (*fast)(double) = nullptr;
  exact_function second = nullptr;
};

// The reference of an operation, or a null pointer.
const reference* find_reference(const operation& o);

}  // namespace lanemath::accuracy
