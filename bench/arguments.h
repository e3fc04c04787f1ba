// The arrays that a function is measured on.
#pragma once

#include <array>
#include <cstddef>

#include "frame/catalogue.h"
#include "harness/harness.h"

namespace lanemath::bench {

// Three arguments and two results of 8-byte lanes are 20 KiB: a level-1 cache holds them all.
inline constexpr std::size_t lane_count = 512;

// Values from a range, the same in every run. One lane in `rare_every` holds rare values; 0 means none.
void fill(lane l, std::byte* lanes, std::size_t count, const range& r, std::size_t seed, std::size_t rare_every = 0);

class arguments {
 public:
  arguments(const operation& o, const std::array<range, 3>& ranges, std::size_t rare_every);
  arguments(const arguments&) = delete;
  arguments& operator=(const arguments&) = delete;

  void pass_to(const harness::function& f) { f.call(inputs_.data(), result_.lanes, second_.lanes, lane_count); }

 private:
  // The room at the end keeps the arrays from lying a multiple of 4096 bytes apart: a processor assumes that a load
  // depends on an earlier store whose address differs only in the upper bits.
  struct array {
    alignas(64) std::byte lanes[lane_count * 8 + 448]{};
  };
  std::array<array, 3> values_;
  array result_, second_;
  std::array<const void*, 3> inputs_;
};

}  // namespace lanemath::bench
