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

namespace lanemath::testing {

using harness::arguments;
using harness::outcome;

constexpr std::uint64_t signalling_nan(lane l) { return l == lane::f64 ? 0x7FF0000000000123 : 0x7F800123; }

// Patterns that are worth trying in every lane of a type: zeros, the ends of the denormals and of the normals,
// ones, infinities, NaNs of both kinds and signs, the ends of the integers.
inline std::vector<std::uint64_t> special_patterns(lane l) {
  std::vector<std::uint64_t> all;
  const auto both_signs = [&](std::uint64_t sign, std::initializer_list<std::uint64_t> magnitudes) {
    for (auto m : magnitudes) all.insert(all.end(), {m, m | sign});
  };
  if (size_of(l) == 4)
    both_signs(0x80000000, {0, 1, 0x007FFFFF, 0x00800000, 0x3F000000, 0x3F800000, 0x40490FDB, 0x42C80000, 0x4B000000,
                            0x7F7FFFFF, 0x7F800000, 0x7F800001, 0x7FC00000, 0x7FFFFFFF});
  else
    both_signs(0x8000000000000000,
               {0, 1, 0x000FFFFFFFFFFFFF, 0x0010000000000000, 0x3FE0000000000000, 0x3FF0000000000000,
                0x400921FB54442D18, 0x4059000000000000, 0x4330000000000000, 0x7FEFFFFFFFFFFFFF, 0x7FF0000000000000,
                0x7FF0000000000001, 0x7FF8000000000000, 0x7FFFFFFFFFFFFFFF});
  return all;
}

// Tuples of special patterns, of ordinary values and of any patterns, mixed so that most vectors hold some of each.
inline std::vector<arguments> mixed_tuples(const operation& o, std::size_t count) {
  std::mt19937_64 random(count);
  std::vector<arguments> all(count);
  for (auto& tuple : all)
    for (int i = 0; i < o.sig.arity(); ++i) {
      const lane l = o.sig.arguments[i];
      const bool narrow = size_of(l) == 4;
      const auto specials = special_patterns(l);
      const double ordinary = std::ldexp(double(std::int64_t(random())), -58);  // to 32
      switch (random() % 4) {
        case 0: tuple[i] = specials[random() % specials.size()]; break;
        case 1: tuple[i] = narrow ? random() >> 32 : random(); break;
        default:
          tuple[i] = l == lane::f32   ? std::bit_cast<std::uint32_t>(float(ordinary))
                     : l == lane::f64 ? std::bit_cast<std::uint64_t>(ordinary)
                     : narrow         ? std::uint32_t(std::int32_t(ordinary))
                                      : std::uint64_t(std::int64_t(ordinary));
      }
    }
  return all;
}

inline std::string text_of(const operation& o, const arguments& tuple) {
  std::string text;
  for (int i = 0; i < o.sig.arity(); ++i) text += fmt::format("{}0x{:X}", i ? ", " : "", tuple[i]);
  return text;
}

// Calls visit(index, operation, variant) for every pair that the library exports.
template <class F>
void for_each_built(const harness::library& library, F visit) {
  for (std::size_t index = 0; index < catalogue.size(); ++index)
    for (auto v : variants)
      if (library.find(index, v, 1)) visit(index, catalogue[index], v);
}

}  // namespace lanemath::testing
