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

// What was found, rounded up; where a form starts from the processor's estimate of a reciprocal or a root, on whatever
// processor: with the largest error of an estimate that makers promise, 1.5 * 2^-12.
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
    {"log10f", {0.800, 996, 996}},
    {"log1pf", {1.01, 1568}},
    {"log", {1.60, 5.50e6}},
    {"log2", {2.10, 6.40e6}},
    {"log10", {2.10, 7.70e6}},
    {"log1p", {0.800, 5.50e6}},

    // pownf beside its range bound, where a result just below the normals gets the wrong exponent; elsewhere 8.18.
    {"powf", {1.10, 4320, 0, 4320}},
    {"powrf", {6.98, 4320, 4320}},
    {"pownf", {8020, 4960}},
    {"rootnf", {5.37, 1400}},
    {"pow", {1.45, 5.70e9}},
    {"powr", {1.45, 5.70e9}},
    {"pown", {1.45, 5.70e9}},
    {"rootn", {1.04, 1.70e8}},

    {"div", {0.5, 0.5}},
    {"divf", {0.5, 6150, 6150, 6150}},
    {"inv", {0.5, 4.47e5}},
    {"invf", {0.5, 6150, 6150, 6150}},
    {"sqrt", {0.5, 3.31e12}},
    {"sqrtf", {0.5, 6150, 6150}},
    {"rsqrt", {1.00, 1.20e6}},
    {"rsqrtf", {1.00, 5.20, 5.20}},
    {"cbrt", {1.12, 2270}},
    {"cbrtf", {0.515, 356}},
    {"rcbrt", {1.02, 13400}},
    {"rcbrtf", {0.515, 889}},
    {"hypot", {2.40, 1.20e6}},
    {"hypotf", {1.34, 6150}},

    {"asin", {2.17, 6.30e6}},
    {"asinf", {2.28, 536}},
    {"acos", {1.31, 6.40e6}},
    {"acosf", {1.24, 533}},
    {"asinpi", {3.02, 7.60e6}},
    {"asinpif", {3.21, 682}},
    {"acospi", {2.29, 6.10e6}},
    {"acospif", {2.46, 532}},
    {"atan", {2.62, 2.25e7}},
    {"atanf", {2.82, 3780}},
    {"atan2", {4.48, 2.25e7}},
    {"atan2f", {3.77, 3780}},
    {"atanpi", {3.28, 2.25e7}},
    {"atanpif", {4.80, 3780}},
    {"atan2pi", {4.36, 2.25e7}},
    {"atan2pif", {6.30, 3780}},

    {"sinf", {2.59, 2540, 2540, 2540}},
    {"cosf", {2.52, 2540, 2540, 2540}},
    {"sincosf", {2.89, 2540, 0, 2540}},
    {"sincosregf", {2.89, 2540}},
    {"sin", {3.68, 6.15e7}},
    {"cos", {3.55, 6.15e7}},
    {"sincos", {3.55, 6.15e7}},
    {"sincosreg", {3.55, 6.15e7}},
    {"sinpi", {0.950, 4.79e7}},
    {"sinpif", {1.09, 1820}},
    {"cospi", {0.950, 4.79e7}},
    {"cospif", {1.09, 1820}},
    {"tan", {1.25, 1.06e7}},
    {"tanpi", {1.15, 1.06e7}},
    {"tanpif", {1.28, 742}},
    {"tanf", {3.99, 924, 924, 924}},

    {"sinhf", {2.03, 1080}},
    {"coshf", {1.85, 381}},
    {"tanhf", {1.03, 1.03}},
    {"asinhf", {2.30, 1470}},
    {"acoshf", {3.40, 2500}},
    {"atanhf", {2.20, 1470}},
    {"sinh", {2.1, 2.1}},
    {"cosh", {1.51, 1.51}},
    {"tanh", {1.25, 1.25}},
    {"asinh", {1.80, 7.00e5}},
    {"acosh", {9.00, 7.00e5}},
    {"atanh", {2.40, 7.00e5}},

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
    {"exp2f", 1, variant::standard, 0.507}, {"exp2f", 4, variant::standard, 2.56},
    {"exp", 2, variant::standard, 2.96},    {"exp2", 2, variant::standard, 2.60},
    {"log2", 2, variant::standard, 1.90},   {"atan", 2, variant::standard, 4.41},
    {"atanf", 4, variant::standard, 3.76},  {"atan2", 2, variant::standard, 4.48},
    {"atan2f", 4, variant::standard, 3.91}, {"acoshf", 4, variant::standard, 2.14},
    {"acoshf", 4, variant::native, 2.14},   {"asinhf", 4, variant::standard, 2.28},
    {"asinhf", 4, variant::native, 2.28},   {"acosh", 2, variant::standard, 2.19},
    {"acosh", 2, variant::native, 2.19},    {"asinh", 2, variant::standard, 2.28},
    {"asinh", 2, variant::native, 2.28},
};

// Families of operations that are exact unless they have a line: each result is the one that the operation's rule
// gives.
constexpr bool is_exact(family f) {
  return f == family::conversion || f == family::integer_division || f == family::manipulation;
}

// The bound of a function, or nothing if none is stated.
constexpr std::optional<double> bound_of(const operation& o, variant v, int width) {
  if (o.is_standalone(width, v)) {
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
