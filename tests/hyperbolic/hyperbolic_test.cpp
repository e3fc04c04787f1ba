// Stated results of the hyperbolic functions and their inverses at stated inputs.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string_view>
#include <vector>

#include "support/call.h"
#include "tables/hyperbolic.h"

namespace lanemath::testing {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// In both precisions.
template <class F>
void for_both(std::string_view name, F visit) {
  for_each_form(std::array{std::string(name), std::string(name) + "f"}, visit);
}

struct stated {
  std::string_view name;
  double x, y;
};
constexpr stated values[] = {
    {"sinh", 0.0, 0.0},
    {"sinh", -0.0, -0.0},
    {"sinh", infinity, infinity},
    {"sinh", -infinity, -infinity},
    {"sinh", 1e30, infinity},
    {"sinh", -1e30, -infinity},
    {"cosh", 0.0, 1.0},
    {"cosh", -0.0, 1.0},
    {"cosh", infinity, infinity},
    {"cosh", -infinity, infinity},
    {"cosh", -1e30, infinity},
    {"tanh", 0.0, 0.0},
    {"tanh", -0.0, -0.0},
    {"tanh", infinity, 1.0},
    {"tanh", -infinity, -1.0},
    {"tanh", 20.0, 1.0},
    {"tanh", -3e38, -1.0},
    {"asinh", 0.0, 0.0},
    {"asinh", -0.0, -0.0},
    {"asinh", infinity, infinity},
    {"asinh", -infinity, -infinity},
    {"asinh", -1e-30, -1e-30},
    {"acosh", 1.0, 0.0},
    {"acosh", infinity, infinity},
    {"atanh", 0.0, 0.0},
    {"atanh", -0.0, 0.0},
    {"atanh", 1.0, infinity},
    {"atanh", -1.0, -infinity},
    {"atanh", -1e-35, -1e-35},
};

TEST(Hyperbolic, GivesWhatIsStated) {
  for (const auto& each : values)
    for_both(each.name, [&](std::string_view full, variant v, int width) {
      EXPECT_EQ(bits_of(full, v, width, pattern_of(full, each.x)), pattern_of(full, each.y)) << each.x;
    });
}

TEST(Hyperbolic, OutsideTheDomainGivesTheProcessorsNaN) {
  const auto outside = [](std::string_view name, std::initializer_list<double> arguments) {
    for_both(name, [&](std::string_view full, variant v, int width) {
      u64 due = is_single(full) ? 0xFFC00000 : 0xFFF8000000000000;
      if (catalogue[index_of(full)].is_standalone(width, v)) due = is_single(full) ? 0x7FFFFFFF : 0x7FFFFFFFFFFFFFFF;
      for (double x : arguments) EXPECT_EQ(bits_of(full, v, width, pattern_of(full, x)), due) << x;
    });
  };
  outside("acosh", {0.5, 0.0, -0.0, -1.0, -2.0, -infinity});
  outside("atanh", {1.5, -1.5, infinity, -infinity, -1e30});
}

TEST(Hyperbolic, NaNsKeepSignAndPayload) {
  for (std::string_view name : {"sinh", "cosh", "tanh", "asinh", "acosh", "atanh"})
    for_both(name, [](std::string_view full, variant v, int width) {
      const bool single = is_single(full);
      const u64 sign = single ? 0x80000000 : 0x8000000000000000, quiet = single ? 0x00400000 : 0x0008000000000000;
      for (u64 payload : {0, 1, 0x12345})
        for (u64 s : {u64(0), sign}) {
          const u64 nan = (single ? 0x7F800100 : 0x7FF0000000000100) | payload | s;
          // The standalone forms move patterns; one of them takes a set sign for a value below the domain.
          u64 due = catalogue[index_of(full)].is_standalone(width, v) ? nan : nan | quiet;
          if (full == "acoshf" && width == 4 && s) due = 0x7FFFFFFF;
          EXPECT_EQ(bits_of(full, v, width, nan), due) << nan;
        }
    });
}

TEST(Hyperbolic, SinesOverflowWhereTheirExactValuesDo) {
  for (auto v : {standard, native})
    for (int width : widths) {
      EXPECT_EQ(bits_of("coshf", v, width, 0x42B2D4FC), bits_of("sinhf", v, width, 0x42B2D4FC));
      EXPECT_LT(bits_of("coshf", v, width, 0x42B2D4FC), 0x7F800000u);
      EXPECT_EQ(bits_of("coshf", v, width, 0x42B2D4FD), 0x7F800000u);
      EXPECT_EQ(bits_of("sinhf", v, width, 0xC2B2D4FD), 0xFF800000u);
      EXPECT_LT(bits_of("cosh", v, width, 0x408633CE8FB9F87D), 0x7FF0000000000000u);
      EXPECT_EQ(bits_of("cosh", v, width, 0x408633CE8FB9F87E), 0x7FF0000000000000u);
      EXPECT_EQ(bits_of("sinh", v, width, 0xC08633CE8FB9F87E), 0xFFF0000000000000u);
    }
}

// The library neither reads nor writes the rounding direction, but overflows are products that follow it.
TEST(Hyperbolic, OverflowFollowsTheRoundingDirection) {
  const harness::rounding in_force(FE_TOWARDZERO);
  EXPECT_EQ(bits_of("coshf", standard, 4, 0x42C80000), 0x7F7FFFFFu);
  EXPECT_EQ(bits_of("sinh", native, 2, 0xC0A0000000000000), 0xFFEFFFFFFFFFFFFFu);
}

// Beyond the kernels single precision is correctly rounded.
TEST(Hyperbolic, RareSinesAreRoundedOnce) {
  for (u32 bits = 0x42AEAC50; bits < 0x42B2D4FD; bits += 97) {
    const float x = value<float>(bits);
    ASSERT_EQ(value_of<float>("coshf", standard, 4, x), float(std::cosh(double(x)))) << x;
    ASSERT_EQ(value_of<float>("sinhf", native, 4, -x), -float(std::sinh(double(x)))) << x;
  }
}

TEST(Hyperbolic, TablesHaveTheirStatedEntries) {
  const std::array<double, 4> rows[] = {
      {0, 1.0000000080972835, -3.8282289125186144e-06, -0.33309708258468135},
      {-0.0054156023411010236, 1.0485263185021256, -0.15618819815905144, -0.14149959329137532},
      {0.9999899835164849, 2.9174104711285036e-06, -2.839493400307523e-07, 9.233192745401905e-09},
      {1, 0, 0, 0}};
  const int places[] = {0, 60, 132, 133};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(std::to_array(tanhf_cubics[places[i]]), rows[i]) << places[i];
  EXPECT_EQ(sinh_128[0].hi, 0.5);
  EXPECT_EQ(sinh_128[0].lo, 0.0);
  for (int j = 0; j < 128; ++j) EXPECT_NEAR(sinh_128[j].hi + sinh_128[j].lo, std::exp2(j / 128.0 - 1), 0x1p-52) << j;
  EXPECT_EQ(cosh_256[0], 0.5);
  EXPECT_EQ(cosh_256[128], std::sqrt(0.5));
  EXPECT_EQ(cosh_256[256], 1.0);
}

// Standalone forms: a lane below their range takes its neighbours into double precision, where all are almost correctly
// rounded.
TEST(Hyperbolic, ALaneOutOfRangeTakesItsNeighboursAlong) {
  struct form {
    std::string_view name;
    float low, outside;
    double (*exact)(double);
  };
  for (const auto& [name, low, outside, exact] :
       {form{"acoshf", 1.5f, 1.25f, std::acosh}, form{"asinhf", 1.0f, -0.5f, std::asinh}})
    for (auto v : {standard, native}) {
      int differing = 0;
      for (int i = 1; i <= 2000; ++i) {
        const float x = low + float(i) * 0x1p-11f;
        const arguments inside{pattern(x)};
        const auto lanes = call(name, v, 4, {inside, inside, {pattern(outside)}, inside});
        EXPECT_EQ(lanes[0], lanes[3]);
        const double due = exact(x);
        EXPECT_NEAR(value<float>(lanes[3].first), due, 0.51 * std::ldexp(1.0, std::ilogb(due) - 23)) << x;
        differing += lanes[3] != outcome_of(name, v, 4, inside);
      }
      EXPECT_GT(differing, 20) << name;
    }
}

}  // namespace
}  // namespace lanemath::testing
