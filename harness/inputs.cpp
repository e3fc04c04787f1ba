#include "harness/inputs.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <numbers>

namespace lanemath::harness {
namespace {

using u64 = std::uint64_t;

constexpr double numbers[] = {0.1, 0.25, 0.5, 0.75, 1,   1.5, 2,    2.5,  3,    3.5,  4,   5,   6,
                              7,   8,    10,  16,   32,  33,  64,   88,   89,   100,  104, 126, 127,
                              128, 149,  150, 170,  709, 745, 1022, 1023, 1024, 1074, 1075};
// Where results leave the range, become denormal or no longer change.
constexpr double ends[] = {9.2,      26.6,    27.3,     35.04,    37.93,    38.5,  44.85,   87.33655, 88.72284,
                           89.41599, 103.972, 171.6243, 307.6527, 308.2547, 323.3, 708.396, 709.7,    1e19};
constexpr double exact_ends[] = {709.782712893384, 710.4758600739439, 745.1332191019412};
constexpr int exponents[] = {-149, -127, -126, -100, -64, -53, -52, -27, -24, -23, -12, -5, 10, 12,
                             22,   23,   24,   27,   30,  31,  32,  51,  52,  53,  62,  63, 64, 100};
constexpr double multiples_of_quarter_pi[] = {1, 2, 3, 4, 5, 6, 8, 16, 1000, 1048576};

// With both signs.
template <class Bits>
std::vector<u64> special_bits(std::initializer_list<Bits> magnitudes) {
  std::vector<u64> all;
  for (auto m : magnitudes) all.insert(all.end(), {m, m | Bits(1) << (8 * sizeof(Bits) - 1)});
  return all;
}

template <class T>
std::vector<u64> special_numbers() {
  using limits = std::numeric_limits<T>;
  using bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, u64>;
  constexpr bits infinity = std::bit_cast<bits>(limits::infinity()), quiet = bits(1) << (limits::digits - 2);
  std::vector<u64> all{2, 3, quiet / 2};
  for (bits payload : {bits(0x123), quiet / 2, quiet - 1, quiet, quiet | 1, quiet | 0x1234})
    all.push_back(infinity | payload);
  const auto add = [&](double value) { all.push_back(std::bit_cast<bits>(T(value))); };
  for (double value : numbers) add(value);
  for (double value : ends) add(value);
  for (double value : exact_ends) add(value);
  for (int exponent : exponents) add(std::ldexp(1.0, exponent));
  for (double n : multiples_of_quarter_pi) add(n * std::numbers::pi / 4);
  for (T value : {limits::max() / 2, std::sqrt(limits::max()), std::sqrt(limits::min())}) add(value);
  return all;
}

std::vector<u64> special_integers() {
  std::vector<u64> all{0, 3, 5, 6, 7, 9, 10, 23, 25, 31, 33, 52, 54, 63, 100, 126, 149, 150, 1022, 1023, 1075};
  for (int exponent : {0, 1, 2, 3, 6, 7, 10, 16, 23, 24, 25, 30, 31, 32, 52, 53, 54, 62, 63})
    for (u64 step : {-1, 0, 1}) all.push_back((u64(1) << exponent) + step);
  return all;
}

template <lane L>
std::vector<u64> all_turning_points() {
  constexpr u64 all_bits = size_of(L) == 4 ? 0xFFFFFFFF : ~u64(0), sign = all_bits ^ all_bits >> 1;
  auto all = L == lane::f32   ? special_numbers<float>()
             : L == lane::f64 ? special_numbers<double>()
                              : special_integers();
  for (std::size_t i = 0, positive = all.size(); i < positive; ++i)
    all.push_back(is_floating(L) ? all[i] | sign : -all[i]);
  for (auto& each : all) each &= all_bits;
  const auto& special = special_patterns(L);
  all.insert(all.end(), special.begin(), special.end());
  std::ranges::sort(all);
  all.erase(std::unique(all.begin(), all.end()), all.end());
  return all;
}

}  // namespace

const std::vector<u64>& special_patterns(lane l) {
  static const auto narrow =
      special_bits<std::uint32_t>({0, 1, 0x007FFFFF, 0x00800000, 0x3F000000, 0x3F800000, 0x40490FDB, 0x42C80000,
                                   0x4B000000, 0x7F7FFFFF, 0x7F800000, 0x7F800001, 0x7FC00000, 0x7FFFFFFF});
  static const auto wide =
      special_bits<u64>({0, 1, 0x000FFFFFFFFFFFFF, 0x0010000000000000, 0x3FE0000000000000, 0x3FF0000000000000,
                         0x400921FB54442D18, 0x4059000000000000, 0x4330000000000000, 0x7FEFFFFFFFFFFFFF,
                         0x7FF0000000000000, 0x7FF0000000000001, 0x7FF8000000000000, 0x7FFFFFFFFFFFFFFF});
  return size_of(l) == 4 ? narrow : wide;
}

const std::vector<u64>& turning_points(lane l) {
  static const auto of_floats = all_turning_points<lane::f32>(), of_doubles = all_turning_points<lane::f64>(),
                    of_ints = all_turning_points<lane::i32>(), of_longs = all_turning_points<lane::i64>();
  if (is_floating(l)) return l == lane::f32 ? of_floats : of_doubles;
  return size_of(l) == 4 ? of_ints : of_longs;
}

u64 mixed_pattern(lane l, std::mt19937_64& random) {
  const bool narrow = size_of(l) == 4;
  const double ordinary = std::ldexp(double(std::int64_t(random())), -58);
  switch (random() % 4) {
    case 0: {
      const auto& special = special_patterns(l);
      return special[random() % special.size()];
    }
    case 1: return narrow ? random() >> 32 : random();
    default:
      if (!is_floating(l)) return narrow ? std::uint32_t(std::int32_t(ordinary)) : u64(std::int64_t(ordinary));
      return narrow ? std::bit_cast<std::uint32_t>(float(ordinary)) : std::bit_cast<u64>(ordinary);
  }
}

}  // namespace lanemath::harness
