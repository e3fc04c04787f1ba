#include "comparison.h"

#include <fmt/format.h>

#include <cmath>
#include <cstring>

#include "harness/harness.h"
#include "harness/inputs.h"

using namespace lanemath;

namespace {

template <class T>
bytes repeated(std::size_t lanes, T value) {
  bytes out(lanes * sizeof value);
  for (std::size_t i = 0; i < lanes; ++i) std::memcpy(out.data() + i * sizeof value, &value, sizeof value);
  return out;
}

bool is_nan(lane l, const std::byte* at) {
  if (!is_floating(l)) return false;
  float single;
  double value;
  if (l == lane::f32) {
    std::memcpy(&single, at, sizeof single);
    value = single;
  } else {
    std::memcpy(&value, at, sizeof value);
  }
  return std::isnan(value);
}

std::string text_of(lane l, const std::byte* at) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, at, size_of(l));
  return harness::hexadecimal(l, bits);
}

bool agrees(const comparison& c, std::size_t i) {
  const std::size_t size = size_of(c.of);
  const auto *kernel = c.kernel + i * size, *direct = c.direct.data() + i * size;
  if (std::memcmp(kernel, direct, size) == 0) return true;
  if (!c.any_nan) return false;
  bool nan_comes_in = false;
  for (std::size_t a = 0; a < c.inputs.size(); ++a) {
    const auto l = c.signature.arguments[a];
    nan_comes_in |= is_nan(l, c.inputs[a].data() + i * size_of(l));
  }
  if (!is_floating(c.of)) return nan_comes_in;
  return (nan_comes_in || is_nan(c.of, direct)) && is_nan(c.of, kernel);
}

}  // namespace

bytes inputs_of(lane l, std::size_t lanes, std::mt19937_64& random) {
  const auto& turning = harness::turning_points(l);
  bytes out(lanes * size_of(l));
  for (std::size_t at = 0; at < out.size(); at += size_of(l)) {
    const auto bits = random() % 4 ? harness::mixed_pattern(l, random) : turning[random() % turning.size()];
    std::memcpy(&out[at], &bits, size_of(l));
  }
  return out;
}

bytes constants_of(lane l, std::size_t lanes, double value) {
  switch (l) {
    case lane::none: return {};
    case lane::f32: return repeated(lanes, float(value));
    case lane::f64: return repeated(lanes, value);
    case lane::i32: return repeated(lanes, std::int32_t(value));
    case lane::u32: return repeated(lanes, std::uint32_t(value));
    case lane::i64: return repeated(lanes, std::int64_t(value));
    case lane::u64: return repeated(lanes, std::uint64_t(value));
  }
  return {};
}

void spread_first_lanes(bytes& values, std::size_t lane_size, std::size_t lanes_per_share) {
  const std::size_t share_size = lane_size * lanes_per_share;
  for (std::size_t at = 0; at < values.size(); at += lane_size)
    std::memcpy(values.data() + at, values.data() + at / share_size * share_size, lane_size);
}

std::size_t differences(const std::string& what, const comparison& c) {
  if (std::memcmp(c.kernel, c.direct.data(), c.direct.size()) == 0) return 0;
  const std::size_t size = size_of(c.of), lanes = c.direct.size() / size;
  std::size_t count = 0;
  for (std::size_t i = 0; i < lanes; ++i) {
    if (c.width == 3 && i % 4 == 3) continue;
    if (agrees(c, i) || ++count > 1) continue;
    fmt::print("{}: {} for", what, text_of(c.of, c.kernel + i * size));
    for (std::size_t a = 0; a < c.inputs.size(); ++a) {
      const lane l = c.signature.arguments[a];
      fmt::print(" {}", text_of(l, c.inputs[a].data() + i * size_of(l)));
    }
    fmt::print(" instead of {}\n", text_of(c.of, c.direct.data() + i * size));
  }
  return count;
}
