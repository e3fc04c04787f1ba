// What the measuring parts share: numbers of MPFR, values of lanes, and work on several threads.
#pragma once

#include <bit>
#include <future>
#include <stdexcept>
#include <vector>

#include "accuracy/measure.h"

namespace lanemath::accuracy {

constexpr int reference_bits = 200;

struct big {
  mpfr_t v;
  big() { mpfr_init2(v, reference_bits); }
  ~big() { mpfr_clear(v); }
  big(const big&) = delete;
  big& operator=(const big&) = delete;
};
struct big_arguments {
  mpfr_t v[3];
  big_arguments() {
    for (auto& each : v) mpfr_init2(each, reference_bits);
  }
  ~big_arguments() {
    for (auto& each : v) mpfr_clear(each);
  }
  big_arguments(const big_arguments&) = delete;
  big_arguments& operator=(const big_arguments&) = delete;
};

// Frees what MPFR keeps for this thread, after all numbers declared behind it; also where an exception ends the work.
struct mpfr_cache {
  ~mpfr_cache() { mpfr_free_cache2(MPFR_FREE_LOCAL_CACHE); }
};

inline double value_of(lane type, std::uint64_t pattern) {
  switch (type) {
    case lane::f32: return std::bit_cast<float>(std::uint32_t(pattern));
    case lane::f64: return std::bit_cast<double>(pattern);
    case lane::i32: return std::int32_t(pattern);
    case lane::u32: return std::uint32_t(pattern);
    default: throw std::logic_error("no reference takes 64-bit integers");
  }
}

// Runs work(thread) on so many threads, and merges what they find.
template <class F>
std::vector<finding> on_threads(unsigned threads, F work) {
  std::vector<std::future<std::vector<finding>>> running;
  for (unsigned i = 0; i < threads; ++i) running.push_back(std::async(std::launch::async, work, i));
  auto all = running[0].get();
  for (unsigned i = 1; i < threads; ++i) {
    const auto more = running[i].get();
    for (std::size_t k = 0; k < all.size(); ++k) all[k].merge(more[k]);
  }
  return all;
}

}  // namespace lanemath::accuracy
