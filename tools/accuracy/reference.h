// What the operations should give: exact values by MPFR, where to look, and a fast stand-in for long sweeps.
#pragma once

#include <mpfr.h>

#include <array>
#include <cstdint>
#include <limits>
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

// A part of the arguments of a float operation, by their magnitude: those above one bound and up to another.
struct part {
  std::string_view name;
  float above;
  float most = std::numeric_limits<float>::infinity();
};

// What tells most about where an operation of two arguments errs.
enum class abscissa : std::uint8_t { argument, result, quotient };

struct reference {
  std::string_view name;  // of the double-precision operation; stands for the single-precision one too
  exact_function value;
  std::vector<range> ranges;            // of typical arguments
  std::vector<double> single_bounds{};  // of the float kernel, its rare test and its special cases: both signs
  std::vector<double> double_bounds{};  // are tried
  // Within 2^-45 of the value, relatively, for sweeps over all floats.
  double (*fast)(double) = nullptr;
  exact_function second = nullptr;
  double (*fast_second)(double) = nullptr;
  std::array<parity, 2> symmetry{};  // of two results
  std::vector<part> single_parts{};
  bool (*left_out)(lane, double) = nullptr;  // arguments whose results are meant to be others, see docs/design.md
  abscissa over = abscissa::argument;
};

// The reference of an operation, or a null pointer.
const reference* find_reference(const operation& o);

}  // namespace lanemath::accuracy
