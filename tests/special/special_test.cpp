// Stated results of the error and gamma functions at stated inputs.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

#include "frame/frame.h"
#include "support/call.h"
#include "tables/special.h"

namespace lanemath::testing {
namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr double wide_infinity = std::numeric_limits<double>::infinity();
const double nan_d = std::numeric_limits<double>::quiet_NaN();

struct expected_float {
  float x, y;
};
struct expected_double {
  double x, y;
};
template <class Case, std::size_t Size>
void expect_all(std::initializer_list<std::string_view> names, std::initializer_list<variant> forms,
                const Case (&cases)[Size]) {
  for (auto name : names)
    for (auto v : forms)
      for (int width : widths)
        for (const auto& [x, y] : cases)
          EXPECT_EQ(bits_of(name, v, width, x), pattern(y))
              << name << width << suffix(v) << " of " << x << ", due " << y;
}

// A NaN stays the same, made quiet.
void expect_nans_kept(std::string_view name, std::initializer_list<variant> forms) {
  const bool narrow = catalogue[index_of(name)].single();
  for (auto v : forms)
    for (int width : widths) {
      if (narrow)
        for (u64 nan : {0x7FC00000u, 0xFFC12345u, 0x7F800001u, 0xFF812345u})
          EXPECT_EQ(bits_of(name, v, width, nan), nan | 0x00400000) << name << width << suffix(v);
      else
        for (u64 nan : {0x7FF8000000000000u, 0xFFF8000012345678u, 0x7FF0000000000001u, 0xFFF0000000000123u})
          EXPECT_EQ(bits_of(name, v, width, nan), nan | 0x0008000000000000) << name << width << suffix(v);
    }
}

TEST(ErrorFunction, OfZerosInfinitiesAndFromTheCapOn) {
  expect_all<expected_float>({"erff"}, {standard, native},
                             {{0.0f, 0.0f},
                              {-0.0f, -0.0f},
                              {3.9296875f, 1.0f},
                              {-3.9296875f, -1.0f},
                              {1e30f, 1.0f},
                              {-infinity, -1.0f},
                              {0x1p-149f, 0x1p-149f},
                              {-0x1p-100f, -0x1.20dd76p-100f}});
  expect_all<expected_double>({"erf"}, {standard, native},
                              {{0.0, 0.0}, {5.9921875, 1.0}, {-5.9921875, -1.0}, {1e300, 1.0}, {-wide_infinity, -1.0}});
  expect_all<expected_double>({"erf"}, {standard}, {{-0.0, -0.0}, {0x1p-300, 0x1.20dd750429b6dp-300}});
  expect_all<expected_double>({"erf"}, {native}, {{-0.0, 0.0}});
}

TEST(ComplementaryErrorFunction, OfZerosInfinitiesAndInTheTails) {
  // The tail ends at half the smallest denormal; the first float beyond the kernel's bound still rounds up to it.
  expect_all<expected_float>({"erfcf"}, {standard, native},
                             {{0.0f, 1.0f},
                              {-0.0f, 1.0f},
                              {infinity, 0.0f},
                              {-infinity, 2.0f},
                              {-30.0f, 2.0f},
                              {0x1.41bbf6p+3f, 0x1p-149f},
                              {0x1.41bbf8p+3f, 0.0f},
                              {1e30f, 0.0f}});
  expect_all<expected_double>({"erfc"}, {standard, native},
                              {{0.0, 1.0},
                               {-0.0, 1.0},
                               {wide_infinity, 0.0},
                               {-wide_infinity, 2.0},
                               {-30.0, 2.0},
                               {0x1.b39dc41e48bfcp+4, 0x1p-1074},
                               {0x1.b39dc41e48bfdp+4, 0.0},
                               {1e300, 0.0}});
}

TEST(ErrorFunctions, KeepNaNs) {
  for (auto name : {"erff", "erf", "erfcf", "erfc"}) expect_nans_kept(name, {standard, native});
}

TEST(ErrorFunctions, TablesHaveTheirStatedEntries) {
  EXPECT_EQ(std::size(erff_grid), 504u);
  EXPECT_EQ(erff_grid[503].hi, 1.0f);
  EXPECT_EQ(std::size(erf_grid), 768u);
  EXPECT_EQ(erf_grid[767].hi, 1.0);
  EXPECT_EQ(erf_grid[0].lo, 0x1.20dd750429b6dp+0);
  const auto check = [](const auto& grid, std::size_t size, auto one) {
    EXPECT_EQ(std::size(grid), size);
    EXPECT_EQ(grid[0].hi, one);
    EXPECT_EQ(grid[size - 1].hi, 0);
    EXPECT_EQ(grid[size - 1].lo, 0);
    EXPECT_TRUE(std::isnormal(grid[size - 2].hi));
  };
  check(erfcf_grid, 645, 0x1p48f);
  check(erfcf_native_grid, 323, 0x1p48f);
  check(erfc_grid, 3488, 0x1p128);
  check(erfc_native_grid, 1744, 0x1p128);
}

TEST(LogGamma, AtItsSpecialValues) {
  const float last = std::bit_cast<float>(0x7C44AF8Du);
  expect_all<expected_float>({"lgammaf", "lgammarf"}, {standard},
                             {{1.0f, 0.0f},
                              {2.0f, 0.0f},
                              {0.0f, infinity},
                              {-0.0f, infinity},
                              {-3.0f, infinity},
                              {-0x1p22f, infinity},
                              {-0x1p23f, infinity},
                              {-1e30f, infinity},
                              {infinity, infinity},
                              {-infinity, infinity},
                              {std::bit_cast<float>(0x7C44AF8Eu), infinity}});
  expect_all<expected_double>({"lgamma", "lgammar"}, {standard},
                              {{1.0, 0.0},
                               {2.0, 0.0},
                               {0.0, wide_infinity},
                               {-0.0, wide_infinity},
                               {-14.0, wide_infinity},
                               {-0x1p51, wide_infinity},
                               {-0x1p52, wide_infinity},
                               {-wide_infinity, wide_infinity},
                               {std::bit_cast<double>(0x7F5754D9278B51A8u), wide_infinity}});
  EXPECT_TRUE(std::isfinite(value_of<float>("lgammaf", standard, 4, last)));
  EXPECT_TRUE(std::isfinite(value_of<double>("lgamma", standard, 2, 0x7F5754D9278B51A7)));
  for (auto name : {"lgammaf", "lgammarf", "lgamma", "lgammar"}) expect_nans_kept(name, {standard});
}

TEST(LogGamma, GivesTheSignOfGamma) {
  struct {
    double x;
    int sign;
  } const cases[] = {{3.5, 1},    {0.0, 1},           {-0.0, -1},          {-0.5, -1},       {-1.5, 1},
                     {-2.5, -1},  {-14.5, -1},        {-15.5, 1},          {-600.5, -1},     {-3.0, 1},
                     {-1e300, 1}, {wide_infinity, 1}, {-wide_infinity, 1}, {-4194306.5, -1}, {-4194305.5, 1},
                     {nan_d, 1},  {1e306, 1},         {-0x1p-140, -1}};
  for (int width : widths)
    for (const auto& [x, sign] : cases) {
      EXPECT_EQ(std::int32_t(outcome_of("lgammar", standard, width, x).second), sign) << x;
      EXPECT_EQ(std::int32_t(outcome_of("lgammarf", standard, width, float(x)).second), sign) << float(x);
    }
  EXPECT_EQ(std::int32_t(outcome_of("lgammar", standard, 4, -0x1.0000000000001p51).second), -1);
  EXPECT_EQ(std::int32_t(outcome_of("lgammar", standard, 4, -0x1.0000000000003p51).second), 1);
}

TEST(Gamma, AtItsSpecialValues) {
  const u64 default_nan = 0xFFC00000, wide_default_nan = 0xFFF8000000000000;
  expect_all<expected_float>({"tgammaf"}, {standard},
                             {{0.0f, infinity},
                              {-0.0f, -infinity},
                              {0x1p-128f, infinity},
                              {-0x1p-128f, -infinity},
                              {infinity, infinity},
                              {1.0f, 1.0f},
                              {2.0f, 1.0f},
                              {5.0f, 24.0f},
                              {11.0f, 3628800.0f},
                              {0.5f, 0x1.c5bf8ap+0f},
                              {-0.5f, -0x1.c5bf8ap+1f},
                              {-1.5f, 0x1.2e7fbp+1f},
                              {35.0401001f, infinity},
                              {-43.5f, 0.0f},
                              {-44.5f, -0.0f},
                              {-4194305.0f, -0.0f},
                              {-4194306.5f, -0.0f},
                              {-40.5f, -0.0f},
                              {-33.5f, 0x1.531034p-124f}});
  expect_all<expected_double>({"tgamma"}, {standard},
                              {{0.0, wide_infinity},
                               {-0.0, -wide_infinity},
                               {0x1p-1024, wide_infinity},
                               {-0x1p-1024, -wide_infinity},
                               {wide_infinity, wide_infinity},
                               {1.0, 1.0},
                               {2.0, 1.0},
                               {5.0, 24.0},
                               {20.0, 121645100408832000.0},
                               {0.5, 0x1.c5bf891b4ef6bp+0},
                               {-0.5, -0x1.c5bf891b4ef6bp+1},
                               {171.7, wide_infinity},
                               {-185.5, 0.0},
                               {-186.5, -0.0}});
  for (int width : widths) {
    for (float x : {-infinity, -1.0f, -2.0f, -44.0f, -4194307.0f, -0x1p23f, -1e30f})
      EXPECT_EQ(bits_of("tgammaf", standard, width, x), default_nan) << x;
    for (double x : {-wide_infinity, -1.0, -2.0, -186.0, -0x1p52, -1e300})
      EXPECT_EQ(bits_of("tgamma", standard, width, x), wide_default_nan) << x;
  }
  const float below = std::nextafter(std::bit_cast<float>(u32(0x420C2910)), 0.0f);  // 35.0401
  EXPECT_TRUE(std::isfinite(value_of<float>("tgammaf", standard, 4, below)));
  EXPECT_TRUE(std::isfinite(value_of<double>("tgamma", standard, 2, 171.6)));
  for (auto name : {"tgammaf", "tgamma"}) expect_nans_kept(name, {standard});
}

u32 x87_control() {
  std::uint16_t control;
  asm volatile("fnstcw %0" : "=m"(control));
  return control;
}
void set_x87_control(u32 to) {
  const auto control = std::uint16_t(to);
  asm volatile("fldcw %0" ::"m"(control));
}

// The double-precision routines work at full x87 precision whatever the caller's control word, and restore it on every
// way out; the others never touch it.
TEST(GammaFunctions, LeaveTheX87ControlWordAsTheyFoundIt) {
  const double inputs[] = {1.0,       2.0,   0.0,   -0.0,   -3.0,   0.3,   1.3,       3.3,           7.7,
                           300.5,     1e10,  1e306, -0.5,   -2.45,  -2.46, -14.5,     -16.5,         -100.5,
                           -600.5,    171.7, 185.5, -185.5, -177.5, nan_d, 0x1p-1030, wide_infinity, -wide_infinity,
                           -2.7476826};
  const u32 usual = x87_control();
  for (std::string_view name : {"lgamma", "lgammar", "tgamma", "lgammaf", "lgammarf", "tgammaf"})
    for (double x : inputs)
      for (u32 precision : {0x000u, 0x200u, 0x300u})
        for (u32 rounding : {0x000u, 0xC00u}) {
          const bool narrow = name.back() == 'f';
          const u64 lane = pattern_of(name, x);
          const auto due = outcome_of(name, standard, 1, lane);
          const u32 control = (usual & ~0xF00u) | precision | rounding;
          set_x87_control(control);
          const auto got = outcome_of(name, standard, 1, lane);
          const u32 after = x87_control();
          set_x87_control(usual);
          EXPECT_EQ(after, control) << name << " of " << x;
          if (!narrow && rounding == 0) {
            EXPECT_EQ(got, due) << name << " of " << x;
          }
        }
}

// The results of these are inexact, on either road to them.
TEST(GammaFunctions, RoundLgammafAsTheX87ControlWordSays) {
  const u32 usual = x87_control();
  const auto rounded = [&](u32 direction, float x) {
    set_x87_control((usual & ~0xC00u) | direction);
    const float y = value_of<float>("lgammaf", standard, 4, x);
    set_x87_control(usual);
    return y;
  };
  for (float x : {0.3f, 1.2f, 1.4f, 1.6f, 1.8f, 3.3f, 5.7f, 100.3f, 9000.5f}) {
    const float down = rounded(0x400, x), up = rounded(0x800, x), nearest = rounded(0, x);
    EXPECT_EQ(up, std::nextafter(down, infinity)) << x;
    EXPECT_TRUE(nearest == down || nearest == up) << x;
  }
}

}  // namespace
}  // namespace lanemath::testing
