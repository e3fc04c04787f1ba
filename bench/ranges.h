// Typical arguments of every operation: what a program passes to it day by day, away from the rare lanes.
#pragma once

#include <array>
#include <string_view>

#include "frame/catalogue.h"

namespace lanemath::bench {

struct range {
  double low, high;
  bool logarithmic = false;  // every binade as often as another
};

using argument_ranges = std::array<range, 3>;

namespace ranges_detail {

struct row {
  std::string_view operation;  // without the f of single precision
  argument_ranges ranges;
};

constexpr range magnitudes(double low, double high) { return {low, high, true}; }
constexpr range between(double low, double high) { return {low, high}; }
constexpr range around_zero(double bound) { return {-bound, bound}; }

inline constexpr row rows[] = {
    {"exp", {around_zero(10)}},
    {"exp2", {around_zero(10)}},
    {"exp10", {around_zero(10)}},
    {"expm1", {around_zero(10)}},

    {"log", {magnitudes(1e-3, 1e3)}},
    {"log2", {magnitudes(1e-3, 1e3)}},
    {"log10", {magnitudes(1e-3, 1e3)}},
    {"log1p", {magnitudes(1e-3, 1e3)}},

    {"pow", {magnitudes(0.01, 100), around_zero(10)}},
    {"powr", {magnitudes(0.01, 100), around_zero(10)}},
    {"pown", {magnitudes(0.01, 100), around_zero(10)}},
    {"rootn", {magnitudes(0.01, 100), between(2, 10)}},

    {"sin", {around_zero(10)}},
    {"cos", {around_zero(10)}},
    {"sincos", {around_zero(10)}},
    {"sincosreg", {around_zero(10)}},
    {"tan", {around_zero(10)}},
    {"sinpi", {around_zero(10)}},
    {"cospi", {around_zero(10)}},
    {"tanpi", {around_zero(10)}},

    {"asin", {around_zero(1)}},
    {"acos", {around_zero(1)}},
    {"asinpi", {around_zero(1)}},
    {"acospi", {around_zero(1)}},
    {"atan", {around_zero(10)}},
    {"atanpi", {around_zero(10)}},
    {"atan2", {around_zero(10), around_zero(10)}},
    {"atan2pi", {around_zero(10), around_zero(10)}},

    {"sinh", {around_zero(5)}},
    {"cosh", {around_zero(5)}},
    {"tanh", {around_zero(5)}},
    {"asinh", {around_zero(100)}},
    {"acosh", {magnitudes(1, 100)}},
    {"atanh", {around_zero(0.99)}},

    {"div", {around_zero(100), magnitudes(0.01, 100)}},
    {"inv", {magnitudes(0.01, 100)}},
    {"sqrt", {magnitudes(0.01, 100)}},
    {"rsqrt", {magnitudes(0.01, 100)}},
    {"cbrt", {around_zero(100)}},
    {"rcbrt", {around_zero(100)}},
    {"hypot", {around_zero(100), around_zero(100)}},

    {"erf", {around_zero(3)}},
    {"erfc", {between(-2, 5)}},
    {"lgamma", {between(0.5, 30)}},
    {"lgammar", {between(0.5, 30)}},
    {"tgamma", {between(0.5, 20)}},

    {"ceil", {around_zero(1000)}},
    {"floor", {around_zero(1000)}},
    {"trunc", {around_zero(1000)}},
    {"rint", {around_zero(1000)}},
    {"nearbyint", {around_zero(1000)}},
    {"round", {around_zero(1000)}},
    {"fabs", {around_zero(1000)}},
    {"copysign", {around_zero(1000), around_zero(1000)}},
    {"fdim", {around_zero(1000), around_zero(1000)}},
    {"fmax", {around_zero(1000), around_zero(1000)}},
    {"fmin", {around_zero(1000), around_zero(1000)}},
    {"maxmag", {around_zero(1000), around_zero(1000)}},
    {"minmag", {around_zero(1000), around_zero(1000)}},
    {"fract", {around_zero(1000)}},
    {"modf", {around_zero(1000)}},
    {"frexp", {magnitudes(1e-6, 1e6)}},
    {"ldexp", {around_zero(1000), around_zero(10)}},
    {"ilogb", {magnitudes(1e-6, 1e6)}},
    {"logb", {magnitudes(1e-6, 1e6)}},
    {"nan", {between(0, 1 << 22)}},
    {"nextafter", {around_zero(1000), around_zero(1000)}},
    {"fmod", {around_zero(1000), magnitudes(1, 100)}},
    {"remainder", {around_zero(1000), magnitudes(1, 100)}},
    {"remquo", {around_zero(1000), magnitudes(1, 100)}},
    {"fma", {around_zero(100), around_zero(100), around_zero(100)}},

    {"idiv", {around_zero(1e9), magnitudes(1, 1e5)}},
    {"irem", {around_zero(1e9), magnitudes(1, 1e5)}},
    {"idivrem", {around_zero(1e9), magnitudes(1, 1e5)}},
    {"udiv", {between(0, 4e9), magnitudes(1, 1e5)}},
    {"urem", {between(0, 4e9), magnitudes(1, 1e5)}},
    {"udivrem", {between(0, 4e9), magnitudes(1, 1e5)}},
};

constexpr bool is_unsigned(lane l) { return l == lane::u32 || l == lane::u64; }

}  // namespace ranges_detail

// An operation without a row does not compile.
constexpr argument_ranges typical_arguments(const operation& o) {
  using namespace ranges_detail;
  if (o.group == family::conversion) {
    const bool negative = !is_unsigned(o.sig.arguments[0]) && !is_unsigned(o.sig.result);
    return {between(negative ? -1e6 : 0, 1e6)};
  }
  const auto* found = rows;
  while (found->operation != o.base_name()) ++found;
  return found->ranges;
}
static_assert([] {
  for (const auto& o : catalogue)
    if (const auto r = typical_arguments(o)[0]; !(r.low < r.high)) return false;
  return true;
}());

}  // namespace lanemath::bench
