// Largest error of each operation, in units in the last place of the result: what the accuracy tool found,
// rounded up. The public documentation states these figures and the tests hold every form to them. Results that
// round to a denormal or overflow count in units of the format's smallest step there.
//
// An operation gets its line when it is built. 0.5 is correctly rounded, up to the digits shown; 0 is exact.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "frame/catalogue.h"

namespace lanemath {

struct error_bound {
  std::string_view name;
  std::array<double, 4> ulp;  // default, _native, _half, _rm
};

inline constexpr error_bound error_bounds[] = {
    {"expf", {0.569, 2169, 2169, 2.94}},
    {"exp2f", {1.11, 1231, 1231, 1.11}},
    {"exp10f", {0.557, 1305, 1305, 1305}},
    {"exp", {3.09, 2.98e7}},
    {"exp2", {1.65, 1.54e7}},
    {"exp10", {1.01, 1.54e7}},
    {"expm1f", {1.81, 284}},
    {"expm1", {2.97, 5.20e6}},

    {"logf", {1.54, 1568, 3.97, 1.54}},
    {"log2f", {2.62, 894, 894, 2.62}},
    {"log10f", {0.771, 996, 996}},
    {"log1pf", {1.01, 1568}},
    {"log", {1.60, 2.10e6}},
    {"log2", {2.10, 2.43e6}},
    {"log10", {2.10, 2.93e6}},
    {"log1p", {0.748, 2.10e6}},

    {"erff", {1.93, 277}},
    {"erf", {2.56, 3.15e5}},
    {"erfcf", {1.77, 405}},
    {"erfc", {2.04, 6.90e6}},
    {"lgammaf", {0.511}},
    {"lgamma", {0.512}},
    {"lgammarf", {0.511}},
    {"lgammar", {0.512}},
    {"tgammaf", {0.504}},
    {"tgamma", {0.504}},

    {"fdim", {0.5}},
    {"fdimf", {0.5}},
    {"fract", {1}},
    {"fractf", {1}},
    {"ldexp", {0.5}},
    {"ldexpf", {0.5}},
    {"fma", {0.5}},
    {"fmaf", {0.5, 0, 0, 0.5}},
};

// Standalone forms have errors of their own.
struct standalone_bound {
  std::string_view name;
  int width;
  variant of;
  double ulp;
};
inline constexpr standalone_bound standalone_bounds[] = {
    {"exp2f", 1, variant::standard, 0.507},
    {"exp2f", 4, variant::standard, 2.56},
    {"exp", 2, variant::standard, 2.96},
    {"exp2", 2, variant::standard, 2.60},
    {"log2", 2, variant::standard, 1.90},
};

// Families of operations that are exact unless they have a line: each result is the one that the operation's rule
// gives.
constexpr bool is_exact(family f) {
  return f == family::conversion || f == family::integer_division || f == family::manipulation;
}

// The bound of a function, or nothing if none is stated.
constexpr std::optional<double> bound_of(const operation& o, variant v, int width) {
  if (is_standalone(o.name(), width, v)) {
    for (const auto& bound : standalone_bounds)
      if (bound.name == o.name() && bound.width == width && bound.of == v) return bound.ulp;
    return std::nullopt;
  }
  for (const auto& bound : error_bounds)
    if (bound.name == o.name()) return bound.ulp[std::size_t(v)];
  if (is_exact(o.group)) return 0;
  return std::nullopt;
}

}  // namespace lanemath
