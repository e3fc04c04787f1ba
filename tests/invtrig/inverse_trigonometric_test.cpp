// Stated results of the inverse trigonometric functions at stated inputs.
#include <gtest/gtest.h>
#include <mpfr.h>

#include <limits>

#include "support/call.h"
#include "tables/invtrig.h"

namespace lanemath::testing {
namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr double half_pi = 0x3FF921FB54442D18_f64, pi = 0x400921FB54442D18_f64;

// At numbers that are floats; the results are the exact ones, rounded.
template <std::size_t Arguments>
struct stated {
  std::string_view name;  // of the double-precision operation
  std::array<float, Arguments> at;
  double result;
  bool in_native = true;  // also of the native forms
};

template <std::size_t Arguments, std::size_t Size>
void expect(const stated<Arguments> (&rows)[Size]) {
  for (const auto& row : rows)
    for (auto v : {standard, native})
      for (int width : widths) {
        if (v == native && !row.in_native) continue;
        SCOPED_TRACE(fmt::format("{}{}{} at {}, {}", row.name, width, suffix(v), row.at[0], row.at[Arguments - 1]));
        const float x = row.at[0], y = row.at[Arguments - 1];
        EXPECT_EQ(bits_of(std::string(row.name) + "f", v, width, x, y), pattern(float(row.result)));
        EXPECT_EQ(bits_of(row.name, v, width, double(x), double(y)), pattern(row.result));
      }
}

TEST(InverseTrigonometry, OfEndsZerosAndInfinities) {
  constexpr stated<1> rows[] = {
      {"asin", {0.0f}, 0},
      {"asin", {-0.0f}, -0.0},
      {"asin", {1}, half_pi},
      {"asin", {-1}, -half_pi},
      {"acos", {0.0f}, half_pi},
      {"acos", {-0.0f}, half_pi},
      {"acos", {1}, 0},
      {"acos", {-1}, pi},
      {"asinpi", {0.0f}, 0},
      {"asinpi", {-0.0f}, -0.0},
      {"asinpi", {1}, 0.5},
      {"asinpi", {-1}, -0.5},
      {"acospi", {0.0f}, 0.5},
      {"acospi", {1}, 0},
      {"acospi", {-1}, 1},
      {"atan", {0.0f}, 0},
      {"atan", {-0.0f}, -0.0},
      {"atan", {infinity}, half_pi},
      {"atan", {-infinity}, -half_pi},
      {"atan", {1e30f}, half_pi},
      {"atanpi", {0.0f}, 0},
      {"atanpi", {-0.0f}, -0.0},
      {"atanpi", {infinity}, 0.5},
      {"atanpi", {-infinity}, -0.5},
      {"atanpi", {-1e38f}, -0.5},
  };
  expect(rows);
}

TEST(InverseTrigonometry, OfPointsOnTheAxesAndAtInfinity) {
  constexpr stated<2> rows[] = {
      {"atan2", {0.0f, 0.0f}, 0},
      {"atan2", {-0.0f, 3}, -0.0},
      {"atan2", {0.0f, -0.0f}, pi},
      {"atan2", {-0.0f, -3}, -pi},
      {"atan2", {1, 0.0f}, half_pi},
      {"atan2", {-1, -0.0f}, -half_pi},
      {"atan2", {infinity, -1}, half_pi},
      {"atan2", {-infinity, infinity}, -pi / 4},
      {"atan2", {infinity, -infinity}, 0x4002D97C7F3321D2_f64},
      {"atan2", {-1, infinity}, -0.0},
      {"atan2", {1, -infinity}, pi},
      {"atan2", {1e-38f, -1e38f}, pi},
      {"atan2", {-1e38f, 1e-38f}, -half_pi},
      {"atan2pi", {-0.0f, 0.0f}, -0.0},
      {"atan2pi", {0.0f, -0.0f}, 1},
      {"atan2pi", {-1, 0.0f}, -0.5},
      {"atan2pi", {1, -infinity}, 1},
      {"atan2pi", {infinity, infinity}, 0.25},
      {"atan2pi", {infinity, -infinity}, 0.75},
      {"atan2pi", {-infinity, 5}, -0.5},
      {"atan2pi", {1e-38f, -1e38f}, 1},
  };
  expect(rows);
}

TEST(InverseTrigonometry, OfDenormals) {
  for (u64 tiny : {u64(1), u64(0x80000001), u64(0x007FFFFF)})
    for (std::string_view name : {"asinf", "atanf"})
      for (int width : widths) EXPECT_EQ(bits_of(name, standard, width, tiny), tiny) << name << width;
  for (u64 tiny : {u64(1), u64(0x800FFFFFFFFFFFFF)})
    for (std::string_view name : {"asin", "atan"})
      for (int width : widths) EXPECT_EQ(bits_of(name, standard, width, tiny), tiny) << name << width;
  // Divided by pi and rounded once: 1.59 steps, and 2^-1023 / pi against 0x0002_8BE6_0DB9_3910.48 steps.
  EXPECT_EQ(bits_of("atanpif", standard, 4, 5), 2u);
  EXPECT_EQ(bits_of("atanpi", native, 2, 0x0008000000000000), 0x00028BE60DB93910u);
}

// Beyond 1 the processor's own NaN; a NaN argument comes back quiet with its payload, except from the native forms in
// double precision.
TEST(InverseTrigonometry, OfNaNsAndBeyondTheDomain) {
  for (int width : widths)
    for (auto v : {standard, native}) {
      for (std::string_view name : {"asinf", "acosf", "asinpif", "acospif"})
        for (float x : {1.0000001f, -2.0f, infinity, -infinity})
          EXPECT_EQ(bits_of(name, v, width, x), 0xFFC00000u) << name << width << suffix(v);
      for (std::string_view name : {"asin", "acos", "asinpi", "acospi"})
        for (double x : {1 + 0x1p-52, -2.0, double(infinity)})
          EXPECT_EQ(bits_of(name, v, width, x), 0xFFF8000000000000u) << name << width << suffix(v);
      for (std::string_view name : {"asinf", "acosf", "asinpif", "acospif", "atanf", "atanpif"})
        EXPECT_EQ(bits_of(name, v, width, 0x7F812345) | 0x80000000, 0xFFC12345u) << name << width << suffix(v);
      EXPECT_EQ(bits_of("acos", v, width, 0xFFF0000000000001), 0xFFF8000000000001u);
      EXPECT_EQ(bits_of("atan2f", v, width, 0x7F800001, 0x3F800000), 0x7FC00001u);
      const bool at_four = width == 4 && v == standard;
      EXPECT_EQ(bits_of("atan2f", v, width, 0x7FC00001, 0x7FC00002), at_four ? 0x7FC00002u : 0x7FC00001u);
      EXPECT_EQ(bits_of("atan2", v, width, 0x3FF0000000000000, 0x7FF0000000000007), 0x7FF8000000000007u);
    }
}

TEST(InverseTrigonometry, Atan2fAtWidth4TakesItsNeighboursPath) {
  std::size_t differing = 0;
  for (u32 n = 0; n < 4096; ++n) {
    const float y = float(n) * 0x1.3p-9f + 0.01f;
    const u64 one = pattern(1.0f);
    const auto beside = [&](u64 neighbour) {
      const arguments others{neighbour, one};
      return call("atan2f", standard, 4, {{pattern(y), one}, others, others, others})[0];
    };
    const double exact = std::atan2(double(y), 1.0);
    EXPECT_NEAR(value<float>(beside(0x7FC00000).first), exact, exact * 0x1p-23);
    differing += beside(one) != beside(0x7FC00000);
  }
  EXPECT_GT(differing, 100u);
}

// Points that only the rare routines reach, on both sides of where their methods change.
TEST(InverseTrigonometry, RareAnglesAreRoundedOnce) {
  int misrounded = 0;
  mpfr_t y, x, angle;
  mpfr_inits2(300, y, x, angle, nullptr);
  std::mt19937_64 random(1);
  const auto number = [&](int exponent) { return std::ldexp(1 + std::ldexp(double(random() >> 12), -52), exponent); };
  for (int n = 0; n < 20'000; ++n) {
    const int exponent = n % 2 ? 996 + int(random() % 27) : -1074 + int(random() % 50);
    const double a = number(exponent), b = number(exponent + (n % 2 ? -1 : 1) * int(random() % 80));
    const double first = n % 4 < 2 ? a : b, second = random() % 2 ? (n % 4 < 2 ? b : a) : -(n % 4 < 2 ? b : a);
    mpfr_set_d(y, first, MPFR_RNDN);
    mpfr_set_d(x, second, MPFR_RNDN);
    for (bool scaled : {false, true}) {
      (scaled ? mpfr_atan2pi : mpfr_atan2)(angle, y, x, MPFR_RNDN);
      const double due = mpfr_get_d(angle, MPFR_RNDN);
      const auto got = bits_of(scaled ? "atan2pi" : "atan2", native, 1, first, second);
      const auto apart = std::int64_t(got - pattern(due));
      ASSERT_LE(std::abs(apart), 1) << first << ", " << second << (scaled ? " divided by pi" : "");
      misrounded += apart != 0;
    }
  }
  mpfr_clears(y, x, angle, nullptr);
  EXPECT_LT(misrounded, 40'000 / 100);
}

TEST(InverseTrigonometry, TablesHaveTheirStatedEntries) {
  EXPECT_EQ(arc_tangent_quarters[0], 0);
  EXPECT_EQ(arc_tangent_quarters[4], pi / 4);
  EXPECT_EQ(arc_tangent_at_halves[0].hi, std::atan(0.125));
  EXPECT_EQ(arc_tangent_at_halves[6].hi, pi / 4);  // of 1
  EXPECT_EQ(std::size(arc_tangent_at_middles), 114u);
  EXPECT_EQ(arc_tangent_at_middles[6].hi, std::atan(1.25));
}

}  // namespace
}  // namespace lanemath::testing
