// What several tests need: loaded libraries, lane patterns, and text for messages.
#pragma once

#include <fmt/format.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "harness/harness.h"
#include "harness/inputs.h"

namespace lanemath::testing {

using harness::arguments;
using harness::outcome;
using harness::special_patterns;
using harness::text_of;

constexpr std::uint64_t signalling_nan(lane l) { return l == lane::f64 ? 0x7FF0000000000123 : 0x7F800123; }

// Tuples of special patterns, ordinary values and random patterns, mixed so that most vectors hold some of each.
inline std::vector<arguments> mixed_tuples(const operation& o, std::size_t count) {
  std::mt19937_64 random(count);
  std::vector<arguments> all(count);
  for (auto& tuple : all)
    for (int i = 0; i < o.sig.arity(); ++i) tuple[i] = harness::mixed_pattern(o.sig.arguments[i], random);
  return all;
}

// Calls visit(index, operation, variant) for every pair that the library exports.
template <class F>
void for_each_built(const harness::library& library, F visit) {
  for (std::size_t index = 0; index < catalogue.size(); ++index)
    for (auto v : variants)
      if (library.find(index, v, 1)) visit(index, catalogue[index], v);
}

}  // namespace lanemath::testing
