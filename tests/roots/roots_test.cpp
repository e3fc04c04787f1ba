// Stated results of the roots and reciprocals at stated inputs, and the contents of their tables.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "support/call.h"
#include "tables/roots.h"

namespace lanemath::testing {
namespace {

template <class T>
T root(std::string_view name, variant v, T x, T y = 0) {
  return value_of<T>(name, v, 8, x, y);
}

// Inputs and results by their bits, in the given variants.
struct stated {
  std::string_view name;
  std::vector<variant> variants;
  arguments input;
  u64 due;
};
void expect(const std::vector<stated>& all) {
  for (const auto& s : all)
    for (auto v : s.variants)
      for (int width : widths)
        EXPECT_EQ(bits_of(s.name, v, width, s.input), s.due)
            << s.name << width << suffix(v) << " of " << text_of(catalogue[index_of(s.name)], s.input);
}

constexpr u64 inf = 0x7FF0000000000000, minus = 0x8000000000000000, invalid = 0xFFF8000000000000;
constexpr u64 inff = 0x7F800000, minusf = 0x80000000, invalidf = 0xFFC00000;
const std::vector<variant> divisions{standard, native, half, rm}, two{standard, native}, three{standard, native, half};

TEST(Roots, OfZerosInfinitiesAndNegatives) {
  expect({
      {"divf", divisions, {0x3F800000, 0}, inff},
      {"divf", divisions, {0x3F800000, minusf}, inff | minusf},
      {"divf", divisions, {minusf, 0}, invalidf},
      {"divf", divisions, {0x3F800000, inff | minusf}, minusf},
      {"div", two, {0x3FF0000000000000, minus}, inf | minus},
      {"invf", divisions, {minusf}, inff | minusf},
      {"invf", divisions, {inff | minusf}, minusf},
      {"inv", {standard}, {minus}, inf | minus},
      {"sqrtf", {standard, half}, {0}, 0},
      {"sqrtf", {standard, half}, {minusf}, minusf},
      {"sqrtf", {standard, half}, {inff}, inff},
      {"sqrtf", three, {0xBF800000}, invalidf},
      {"sqrtf", three, {inff | minusf}, invalidf},
      {"sqrtf", {native}, {0}, invalidf},
      {"sqrtf", {native}, {inff}, invalidf},
      {"sqrt", {standard}, {minus}, minus},
      {"sqrt", {native}, {0x7FEFFFFFFFFFFFFF}, 0},
      {"sqrt", {native}, {0x0010000000000000}, inf},
      {"rsqrtf", three, {0}, inff},
      {"rsqrtf", three, {minusf}, inff | minusf},
      {"rsqrtf", three, {inff}, 0},
      {"rsqrtf", three, {inff | minusf}, invalidf},
      {"rsqrtf", three, {0x80000001}, invalidf},
      {"rsqrt", two, {0}, inf},
      {"rsqrt", two, {minus}, inf | minus},
      {"rsqrt", two, {inf}, 0},
      {"rsqrt", two, {inf | minus}, invalid},
      {"rsqrt", two, {0xBFF0000000000000}, invalid},
      {"cbrtf", two, {minusf}, minusf},
      {"cbrtf", two, {inff | minusf}, inff | minusf},
      {"cbrt", two, {minus}, minus},
      {"cbrt", two, {inf}, inf},
      {"rcbrtf", two, {minusf}, inff | minusf},
      {"rcbrtf", two, {inff | minusf}, minusf},
      {"rcbrt", two, {minus}, inf | minus},
      {"rcbrt", two, {inf | minus}, minus},
      {"hypotf", two, {minusf, minusf}, 0},
      {"hypot", two, {minus, minus}, 0},
      {"hypotf", {standard}, {0x80000001, 0}, 1},
      {"hypot", two, {1, minus}, 1},
  });
}

TEST(Roots, OfNaNs) {
  constexpr u64 one = 0xFFC54321, signalling = 0x7F812345, quieted = 0x7FC12345;
  for (std::string_view name : {"invf", "sqrtf", "rsqrtf", "cbrtf", "rcbrtf"})
    for (auto v : variants)
      if (catalogue[index_of(name)].has(v)) expect({{name, {v}, {signalling}, quieted}, {name, {v}, {one}, one}});
  for (std::string_view name : {"inv", "sqrt", "rsqrt", "cbrt", "rcbrt"})
    expect(
        {{name, two, {0x7FF0000000000001}, 0x7FF8000000000001}, {name, two, {0xFFF8000087654321}, 0xFFF8000087654321}});
  expect({
      {"divf", divisions, {signalling, one}, quieted},
      {"divf", divisions, {one, signalling}, one},
      {"divf", divisions, {0x3F800000, signalling}, quieted},
      // An infinity wins; of two NaNs the first.
      {"hypotf", {standard}, {inff | minusf, one}, inff},
      {"hypotf", {standard}, {signalling, inff}, inff},
      {"hypotf", two, {signalling, one}, quieted},
      {"hypotf", two, {one, signalling}, one},
      {"hypotf", two, {0x3F800000, one}, one},
      {"hypotf", {standard}, {0x3F800000, inff | minusf}, inff},
      {"hypotf", {native}, {inff, 0}, invalidf},
      {"hypotf", {native}, {0x7149F2CA, 0}, invalidf},  // 1e30
      {"hypot", two, {inf | minus, invalid}, inf},
      {"hypot", two, {invalid, inf}, inf},
      {"hypot", two, {0x7FF0000000000005, invalid}, 0x7FF8000000000005},
  });
}

TEST(Roots, HaveExactValuesWhereTheirMethodsDo) {
  EXPECT_EQ(root("rsqrt", standard, 4.0), 0.5);
  EXPECT_EQ(root("hypotf", standard, 1e30f, 0.0f), 1e30f);
  EXPECT_EQ(root("hypotf", standard, 0x1.8p127f, -0x1.8p127f), std::numeric_limits<float>::infinity());
  for (auto v : two) {
    EXPECT_EQ(root("hypot", v, 3e300, 4e300), 5e300);
    EXPECT_EQ(root("hypot", v, 0x3p-1074, -0x4p-1074), 0x5p-1074);
    EXPECT_EQ(root("hypot", v, 0x1p1023, 0x1p-1074), 0x1p1023);
    EXPECT_EQ(root("hypot", v, 0x1.8p1023, 0x1.8p1023), std::numeric_limits<double>::infinity());
  }
  for (int n = -42; n <= 42; ++n) {
    const float x = std::ldexp(1.0f, n);
    EXPECT_EQ(root("cbrtf", standard, -x * x * x), -x) << n;
    EXPECT_EQ(root("rcbrtf", standard, -x * x * x), -1 / x) << n;
  }
  for (int n = -74; n <= 63; ++n)
    EXPECT_EQ(root("rsqrtf", standard, std::ldexp(1.0f, 2 * n)), std::ldexp(1.0f, -n)) << n;
}

// The bare estimate where no scalar routine is called; the true quotient where one is.
TEST(Roots, NativeReciprocalsAreExactBeyondTheirBounds) {
  const auto quotient = [](float x, float y) { return pattern(root("divf", native, x, y)); };
  for (float y : {0x1p126f, 0x1.fffffep127f, 0x1p-149f, 0x1.fffffcp-127f, -0x1.8p126f})
    EXPECT_EQ(quotient(0.7f, y), pattern(0.7f / y)) << y;
  for (float x : {0x1.ffdp126f, 0x1.fffffep127f, 0x1p-149f, -0x1p-127f}) EXPECT_EQ(root("invf", native, x), 1 / x) << x;
  std::mt19937 random(1);
  for (int n = 0; n < 2000; ++n) {
    const float x = std::ldexp(1 + float(random() >> 8) * 0x1p-24f, int(random() % 200) - 100);
    EXPECT_NEAR(root("divf", native, 1.0f, x) * x, 1, 0x1.9p-12) << x;
    EXPECT_NEAR(root("invf", native, x) * x, 1, 0x1.9p-12) << x;
    EXPECT_NEAR(root("sqrtf", half, x) / std::sqrt(x), 1, 0x1.9p-12) << x;
  }
}

// Denormals and whatever else the kernels do not serve, against the processor's correctly rounded operations.
TEST(Roots, ScalarRoutinesRoundToTheNearest) {
  std::mt19937_64 random(2);
  for (int n = 0; n < 4000; ++n) {
    const auto denormal = value<float>(random() & 0x007FFFFF);
    const auto x = value<float>(random() & 0x7FFFFFFF), y = value<float>(random());
    EXPECT_EQ(root("sqrtf", half, denormal), std::sqrt(denormal));
    if (!(std::isfinite(x) && std::isfinite(y))) continue;
    const double sum = double(x) * x + double(y) * y;
    if (sum > 0x1p67 || sum < 0x1p-68) {
      EXPECT_EQ(root("hypotf", standard, x, y), float(std::sqrt(sum))) << x << ' ' << y;
    }

    // Denormals are integers here: n is the nearest if n^2 - n < a^2 + b^2 <= n^2 + n.
    using wide = unsigned __int128;
    const u64 a = random() >> 12 >> random() % 30, b = random() >> 12 >> random() % 30;
    const wide root = bits_of("hypot", standard, 2, a, b), squares = wide(a) * a + wide(b) * b;
    EXPECT_TRUE(squares <= root * root + root && (root == 0 || squares > root * root - root)) << a << ' ' << b;
  }
}

TEST(Roots, TablesAreOnTheirGrids) {
  for (int i = 0; i < 512; ++i) {
    const double x = (i < 256 ? 1 : 2) * (1 + (i % 256 + 0.5) / 256);
    EXPECT_EQ(root_seed[i], std::nearbyint(root_seed[i] * 2048) / 2048) << i;
    EXPECT_NEAR(root_seed[i] * std::sqrt(x), 1, 1.3e-3) << i;
  }
  for (int i = 0; i <= 64; ++i) {
    const double x = i <= 32 ? 1 + i / 32.0 : 2 + (i - 32) / 16.0, s = reciprocal_root_seed[i];
    EXPECT_EQ(s, std::nearbyint(s * 8192) / 8192) << i;
    EXPECT_NEAR(s * std::sqrt(x), 1, 1.2e-4) << i;
  }
  EXPECT_EQ(reciprocal_root_seed[0], 1);
  EXPECT_EQ(reciprocal_root_seed[64], 0.5);
  EXPECT_EQ(minus_inverse_middle_f32[0], -0.9846153855323792f);
  for (int i = 0; i < 96; ++i) {
    const double c = (1 + (i % 32 + 0.5) / 32) * (1 << i / 32);
    EXPECT_NEAR(double(cbrt_f32[i].hi) + cbrt_f32[i].lo, std::cbrt(c), 1e-12) << i;
    EXPECT_NEAR(double(rcbrt_f32[i].hi) + rcbrt_f32[i].lo, 1 / std::cbrt(c), 1e-12) << i;
  }
}

}  // namespace
}  // namespace lanemath::testing
