// What the headers call things.
#pragma once

#include <fmt/format.h>

#include <string>

#include "frame/catalogue.h"

namespace lanemath {

// The two results of an operation.
struct result_names {
  std::string_view operation;  // without the f of single precision
  std::string_view first, second;
};
inline constexpr result_names second_results[] = {
    {"sincos", "sine", "cosine"},        {"sincosreg", "sine", "cosine"},      {"lgammar", "value", "sign"},
    {"fract", "fraction", "floor"},      {"modf", "fraction", "integer"},      {"frexp", "fraction", "exponent"},
    {"remquo", "remainder", "quotient"}, {"idivrem", "quotient", "remainder"}, {"udivrem", "quotient", "remainder"}};

constexpr const result_names& results_of(const operation& o) {
  std::size_t i = 0;
  while (std::data(second_results)[i].operation != o.base_name()) ++i;
  return second_results[i];
}
// An operation that is missing here does not compile.
static_assert([] {
  for (const auto& o : catalogue)
    if (o.sig.how != delivery::none) results_of(o);
  return true;
}());

// A vector type as in lanemath_float4; whether the library takes it in memory.
inline std::string vector_name(lane l, int width) { return fmt::format("{}{}", type_name(l), width); }
constexpr bool is_wide(lane l, int width) { return size_of(l) * padded(width) > 16; }

// How a form crosses: to the library whatever the program is, or to a companion if it is linked with one; and how it is
// named there.
constexpr std::string_view border_of(const operation& o, int width) {
  return o.is_wide(width) ? "lanemath_wide" : "lanemath_border";
}
inline std::string named(const operation& o, variant v, int width) {
  return fmt::format("LANEMATH_NAMED{}(\"{}{}{}\")", o.is_wide(width) ? "_WIDE" : "", o.name(), width, suffix(v));
}

}  // namespace lanemath
