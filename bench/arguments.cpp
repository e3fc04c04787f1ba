#include "arguments.h"

#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <random>
#include <type_traits>

namespace lanemath::bench {
namespace {

using generator = std::mt19937_64;

template <class T>
T typical_value(const range& r, generator& random) {
  const auto uniform = [&](double low, double high) { return std::uniform_real_distribution(low, high)(random); };
  return static_cast<T>(r.logarithmic ? std::exp2(uniform(std::log2(r.low), std::log2(r.high)))
                                      : uniform(r.low, r.high));
}

// What no fast path serves. For integers neither 0 nor -1: a division by them may trap.
template <class T>
T rare_value(generator& random) {
  using limits = std::numeric_limits<T>;
  const auto one_of = [&](auto... values) {
    const T all[] = {values...};
    return all[random() % std::size(all)];
  };
  if constexpr (std::is_floating_point_v<T>)
    return one_of(limits::quiet_NaN(), limits::infinity(), -limits::infinity(), limits::max(), limits::lowest(),
                  limits::min(), limits::denorm_min(), -limits::denorm_min(), T(0), -T(0));
  else
    return one_of(limits::is_signed ? limits::min() : T(2), limits::max(), T(1));
}

template <class T>
void fill(std::byte* lanes, std::size_t count, const range& r, std::size_t seed, std::size_t rare_every) {
  generator random(seed);
  generator rare_random;  // drawn separately: the same lanes are rare in every argument
  auto* values = reinterpret_cast<T*>(lanes);
  for (std::size_t i = 0; i < count; ++i) {
    values[i] = typical_value<T>(r, random);
    if (rare_every != 0 && rare_random() % rare_every == 0) values[i] = rare_value<T>(rare_random);
  }
}

}  // namespace

void fill(lane l, std::byte* lanes, std::size_t count, const range& r, std::size_t seed, std::size_t rare_every) {
  switch (l) {
    case lane::f32: return fill<float>(lanes, count, r, seed, rare_every);
    case lane::f64: return fill<double>(lanes, count, r, seed, rare_every);
    case lane::i32: return fill<std::int32_t>(lanes, count, r, seed, rare_every);
    case lane::u32: return fill<std::uint32_t>(lanes, count, r, seed, rare_every);
    case lane::i64: return fill<std::int64_t>(lanes, count, r, seed, rare_every);
    case lane::u64: return fill<std::uint64_t>(lanes, count, r, seed, rare_every);
    case lane::none: break;
  }
}

arguments::arguments(const operation& o, const std::array<range, 3>& ranges, std::size_t rare_every) {
  for (std::size_t i = 0; i < values_.size(); ++i) {
    inputs_[i] = values_[i].lanes;
    fill(o.sig.arguments[i], values_[i].lanes, lane_count, ranges[i], i, rare_every);
  }
}

}  // namespace lanemath::bench
