// Calls of the library under test by name, on patterns or numbers.
#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <type_traits>

#include "harness/rounding.h"
#include "support/lanes_of.h"
#include "support/library.h"

namespace lanemath::testing {

using harness::in_direction;
using u32 = std::uint32_t;
using u64 = std::uint64_t;
constexpr auto standard = variant::standard, native = variant::native, half = variant::half, rm = variant::rm;

// The bits of a number; of an integer, itself.
template <class T>
constexpr u64 pattern(T v) {
  if constexpr (std::is_floating_point_v<T>)
    return std::bit_cast<std::conditional_t<sizeof(T) == 4, u32, u64>>(v);
  else
    return u64(v);
}
template <class T>
constexpr T value(u64 pattern) {
  return std::bit_cast<T>(std::conditional_t<sizeof(T) == 4, u32, u64>(pattern));
}

constexpr bool is_single(std::string_view name) { return catalogue[index_of(name)].single(); }

// A number in the precision of an operation.
constexpr u64 pattern_of(std::string_view name, double x) { return is_single(name) ? pattern(float(x)) : pattern(x); }

inline std::vector<outcome> call(std::string_view name, variant v, int width, const std::vector<arguments>& tuples) {
  const auto index = index_of(name);
  return harness::evaluate(catalogue[index], library().find(index, v, width).value(), width, tuples);
}

// The bits of one lane's result, all lanes being alike: from numbers of the operation's types, or from patterns.
inline outcome outcome_of(std::string_view name, variant v, int width, const arguments& lane) {
  return call(name, v, width, std::vector(width, lane))[0];
}
template <class... A>
outcome outcome_of(std::string_view name, variant v, int width, A... lane) {
  return outcome_of(name, v, width, arguments{pattern(lane)...});
}
template <class... A>
u64 bits_of(std::string_view name, variant v, int width, const A&... lane) {
  return outcome_of(name, v, width, lane...).first;
}
template <class T, class... A>
T value_of(std::string_view name, variant v, int width, const A&... lane) {
  return value<T>(bits_of(name, v, width, lane...));
}

// Calls visit(name, variant, width) for every form of the operations.
template <class Names, class F>
void for_each_form(const Names& names, F visit) {
  for (std::string_view name : names)
    for (auto v : variants)
      for (int width : widths)
        if (catalogue[index_of(name)].has(v)) {
          SCOPED_TRACE(fmt::format("{}{}{}", name, width, suffix(v)));
          visit(name, v, width);
        }
}
template <class F>
void for_each_form(std::initializer_list<std::string_view> names, F visit) {
  for_each_form<std::initializer_list<std::string_view>>(names, visit);
}

// What a positive result that is too large or too small becomes in each direction, if the processor rounds it.
struct rounded_ends {
  int mode;
  u64 overflow, underflow;
};
template <class T, class Limits = std::numeric_limits<T>>
constexpr rounded_ends ends_in_every_direction[] = {{FE_TONEAREST, pattern(Limits::infinity()), 0},
                                                    {FE_UPWARD, pattern(Limits::infinity()), 1},
                                                    {FE_DOWNWARD, pattern(Limits::max()), 0},
                                                    {FE_TOWARDZERO, pattern(Limits::max()), 0}};

}  // namespace lanemath::testing
