#include "comparison.h"

#include <fmt/format.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>

using namespace lanemath;

namespace {

bool is_integer(lane l) { return l != lane::f32 && l != lane::f64; }

template <class Bits>
auto special_bits() {
  using real = std::conditional_t<sizeof(Bits) == 4, float, double>;
  using limits = std::numeric_limits<real>;
  std::vector<Bits> all{0, 1, 2, 3, 31, 32, 63, 64, ~Bits(0), std::numeric_limits<Bits>::max() / 2};
  for (double value : {0.5,
                       1.0,
                       1.5,
                       2.0,
                       2.5,
                       3.0,
                       10.0,
                       0.1,
                       88.0,
                       89.0,
                       104.0,
                       127.0,
                       128.0,
                       150.0,
                       709.0,
                       745.0,
                       1023.0,
                       1024.0,
                       1075.0,
                       8388608.0,
                       2147483648.0,
                       4294967296.0,
                       9223372036854775808.0,
                       1e19})
    all.push_back(std::bit_cast<Bits>(real(value)));
  for (real value : {limits::infinity(), limits::quiet_NaN(), limits::signaling_NaN(), limits::max(), limits::min(),
                     limits::denorm_min(), limits::epsilon()})
    all.push_back(std::bit_cast<Bits>(value));
  const std::size_t positive = all.size();
  for (std::size_t i = 0; i < positive; ++i) all.push_back(all[i] ^ Bits(1) << (8 * sizeof(Bits) - 1));
  return all;
}

template <class Bits>
bytes filled(std::size_t lanes, bool integers, std::mt19937_64& random) {
  using real = std::conditional_t<sizeof(Bits) == 4, float, double>;
  const auto specials = special_bits<Bits>();
  std::uniform_real_distribution<double> ordinary(-40, 40);
  bytes out(lanes * sizeof(Bits));
  for (std::size_t i = 0; i < lanes; ++i) {
    Bits bits = Bits(random());
    if (const auto kind = random() % 3; kind == 0)
      bits = specials[random() % specials.size()];
    else if (kind == 1)
      bits = integers ? Bits(std::int64_t(ordinary(random))) : std::bit_cast<Bits>(real(ordinary(random)));
    std::memcpy(out.data() + i * sizeof bits, &bits, sizeof bits);
  }
  return out;
}

template <class T>
bytes repeated(std::size_t lanes, T value) {
  bytes out(lanes * sizeof value);
  for (std::size_t i = 0; i < lanes; ++i) std::memcpy(out.data() + i * sizeof value, &value, sizeof value);
  return out;
}

bool is_nan(lane l, const std::byte* at) {
  if (is_integer(l)) return false;
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

std::string hexadecimal(const std::byte* lane, std::size_t size) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, lane, size);
  return fmt::format("{:#0{}x}", bits, 2 + 2 * size);
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
  if (is_integer(c.of)) return nan_comes_in;
  return (nan_comes_in || is_nan(c.of, direct)) && is_nan(c.of, kernel);
}

}  // namespace

bytes inputs_of(lane l, std::size_t lanes, std::mt19937_64& random) {
  return size_of(l) == 4 ? filled<std::uint32_t>(lanes, is_integer(l), random)
                         : filled<std::uint64_t>(lanes, is_integer(l), random);
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
    fmt::print("{}: {} for", what, hexadecimal(c.kernel + i * size, size));
    for (std::size_t a = 0; a < c.inputs.size(); ++a) {
      const std::size_t input_size = size_of(c.signature.arguments[a]);
      fmt::print(" {}", hexadecimal(c.inputs[a].data() + i * input_size, input_size));
    }
    fmt::print(" instead of {}\n", hexadecimal(c.direct.data() + i * size, size));
  }
  return count;
}
