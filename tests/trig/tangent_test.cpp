// Stated results of the tangents and of the functions of pi x, and the tangent's table.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <span>

#include "support/call.h"
#include "tables/trig.h"

namespace lanemath::testing {
namespace {

// Lane 0 of a call with the value in every lane, as a double.
double of(std::string_view name, variant v, int width, double x) {
  const auto y = bits_of(name, v, width, pattern_of(name, x));
  return is_single(name) ? double(value<float>(y)) : value<double>(y);
}

constexpr double infinity = std::numeric_limits<double>::infinity();

struct stated {
  std::string_view name;
  double x, y;
};
constexpr stated exact_results[] = {
    {"sinpi", 0, 0},          {"sinpi", 1, 0},           {"sinpi", 2, 0},          {"sinpi", 3, 0},
    {"sinpi", 0x1p23, 0},     {"sinpi", 0x1p100, 0},     {"cospi", 0, 1},          {"cospi", 0.5, 0},
    {"cospi", 1.5, 0},        {"cospi", 2.5, 0},         {"cospi", 3.5, 0},        {"cospi", -0.5, 0},
    {"cospi", -1.5, 0},       {"tanpi", 0, 0},           {"tanpi", 1, -0.0},       {"tanpi", 2, 0},
    {"tanpi", 3, -0.0},       {"tanpi", 0x1p24, 0},      {"tanpi", 0.5, infinity}, {"tanpi", 1.5, -infinity},
    {"tanpi", 2.5, infinity}, {"tanpi", 3.5, -infinity},
};
// Exact in the default forms only.
constexpr stated rounded_results[] = {
    {"sinpi", 0.5, 1},     {"sinpi", 1.5, -1}, {"cospi", 1, -1},    {"cospi", 2, 1},
    {"cospi", 0x1p100, 1}, {"tanpi", 0.25, 1}, {"tanpi", 0.75, -1}, {"tanpi", 1.25, 1},
};

void expect(const stated& each, variant v, double x, double y) {
  for (const std::string precision : {"", "f"})
    for (int width : widths) {
      const double found = of(std::string(each.name) + precision, v, width, x);
      EXPECT_EQ(pattern(found), pattern(y)) << each.name << precision << x;
    }
}

TEST(OfPi, StatedResults) {
  for (const auto& each : exact_results)
    for (auto v : {standard, native})
      if (each.y != 1 || v == standard) expect(each, v, each.x, each.y);
  for (const auto& each : rounded_results) expect(each, standard, each.x, each.y);
}

// The sign of a zero apart.
TEST(OfPi, StatedResultsInEveryDirection) {
  for (const auto& direction : harness::directions)
    for (const auto& results : {std::span<const stated>(exact_results), std::span<const stated>(rounded_results)})
      for (const auto& each : results)
        for (const std::string precision : {"", "f"}) {
          const auto name = std::string(each.name) + precision;
          EXPECT_EQ(in_direction(direction.mode, [&] { return of(name, standard, 4, each.x); }), each.y)
              << name << each.x << direction.name;
        }
}

TEST(OfPi, SineAndTangentAreOdd) {
  for (const auto& each : exact_results)
    if (each.name != "cospi") expect(each, standard, -each.x, -each.y);
}

TEST(OfPi, InfinitiesAndNaNsGiveNaN) {
  for (const std::string name : {"sinpi", "cospi", "tanpi", "sinpif", "cospif", "tanpif", "tan", "tanf"})
    for (auto v : {standard, native})
      for (int width : widths)
        for (double x : {infinity, -infinity, std::nan("")})
          EXPECT_TRUE(std::isnan(of(name, v, width, x))) << name << x;
}

TEST(Tangent, KeepsTheSignOfZero) {
  for (const std::string name : {"tan", "tanf"})
    for (auto v : {standard, native}) {
      EXPECT_TRUE(std::signbit(of(name, v, 4, -0.0)));
      EXPECT_FALSE(std::signbit(of(name, v, 4, 0.0)));
    }
}

// Doubles next to a multiple of pi/2, the nearest of all among them.
TEST(Tangent, KeepsBothPartsOfTheRemainder) {
  constexpr std::pair<double, double> results[] = {{0x1p-1074, 0x1p-1074},
                                                   {0x1.921fb54442d18p0, 0x1.d02967c31cdb5p+53},
                                                   {0x1.6ac5b262ca1ffp849, -0x1.d9ba9a7975636p+60}};
  for (const auto& [x, y] : results) {
    const auto found = std::bit_cast<std::int64_t>(of("tan", standard, 2, x));
    EXPECT_LE(std::abs(found - std::bit_cast<std::int64_t>(y)), 1) << x;
  }
}

TEST(Tangent, TheTableHasItsStatedRows) {
  constexpr std::uint32_t rows[2][10] = {
      {0x3FC90FDB, 0xB33BBD2E, 0, 0, 0, 0x3F800000, 0, 0, 0x3EAAACDD, 0},
      {0x3FC5EB9B, 0x32DE638C, 0, 0x3CC91A31, 0x2F8E8D1A, 0x3F800000, 0x3A1DFA00, 0x3CC9392D, 0x3EAB1889, 0x3C885D3B}};
  for (int j : {0, 1})
    for (int c = 0; c < 10; ++c) EXPECT_EQ(pattern(tangent_128[j][c]), rows[j][c]) << j << ' ' << c;
  const std::pair<int, float> powers[] = {{25, 1}, {26, 2}, {32, 0.5f}, {34, 0.25f}, {95, 0.5f}, {96, 2}, {103, 1}};
  for (const auto& [j, power] : powers) EXPECT_EQ(tangent_128[j][5], power) << j;
  EXPECT_EQ(tangent_128[64][0], 0);
}

// One lane above the bound leaves the others alone.
TEST(Tangent, TheLargeStageIsForLargeLanesOnly) {
  const auto lanes = [](float first) {
    return call("tanf", standard, 4, {{pattern(first)}, {pattern(1.0f)}, {pattern(8256.0f)}, {pattern(-0.0f)}});
  };
  const auto mixed = lanes(1e30f), plain = lanes(1);
  for (int i = 1; i < 4; ++i) EXPECT_EQ(mixed[i], plain[i]) << i;
}

}  // namespace
}  // namespace lanemath::testing
