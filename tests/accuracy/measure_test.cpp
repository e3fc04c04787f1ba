// The accuracy tool's own judgement, on which every stated error rests.
#include "accuracy/measure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <tuple>

#include "accuracy/shares.h"
#include "support/lanes_of.h"
#include "support/library.h"

namespace lanemath::testing {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();

// The judgement of `got` if the exact value is base + excess.
accuracy::judgement judge(lane type, double base, double excess, double got) {
  mpfr_t exact;
  mpfr_init2(exact, 400);
  mpfr_set_d(exact, base, MPFR_RNDN);
  mpfr_add_d(exact, exact, excess, MPFR_RNDN);
  const auto verdict = accuracy::judge(type, exact, got);
  mpfr_clear(exact);
  return verdict;
}

TEST(Judgement, CountsInUnitsOfTheExactValuesBinade) {
  EXPECT_DOUBLE_EQ(judge(lane::f32, 1, 0x1p-25, 1).error, 0.25);
  EXPECT_DOUBLE_EQ(judge(lane::f32, 1, -0x1p-25, 1).error, 0.5);
  EXPECT_DOUBLE_EQ(judge(lane::f32, 3, 0x1p-22, 3).error, 1);
  EXPECT_DOUBLE_EQ(judge(lane::f64, -1, -0x1p-54, -1).error, 0.25);
  EXPECT_DOUBLE_EQ(judge(lane::f64, 1, 0, 1 + 0x1p-50).error, 4);
}

TEST(Judgement, CountsInSmallestStepsBelowTheNormals) {
  EXPECT_DOUBLE_EQ(judge(lane::f32, 0x1p-149, 0x1p-150, 0x1p-149).error, 0.5);
  EXPECT_DOUBLE_EQ(judge(lane::f32, 0x1p-140, 0, 0x1p-140 + 0x1p-148).error, 2);
  EXPECT_DOUBLE_EQ(judge(lane::f32, 0x1p-151, 0, 0).error, 0.25);
  EXPECT_DOUBLE_EQ(judge(lane::f32, 0, 0, 0x1p-149).error, 1);
  EXPECT_DOUBLE_EQ(judge(lane::f64, 0x1p-1074, 0, 0).error, 1);
}

TEST(Judgement, TellsCorrectlyRoundedResults) {
  EXPECT_TRUE(judge(lane::f32, 1, 0x1.fp-25, 1).correct);
  EXPECT_FALSE(judge(lane::f32, 1, 0x1.01p-24, 1).correct);
  EXPECT_TRUE(judge(lane::f32, 1, 0x1.01p-24, 1 + 0x1p-23).correct);
  EXPECT_TRUE(judge(lane::f64, 1, 0x1.fp-54, 1).correct);
}

TEST(Judgement, TakesOverflowAsTheNextPowerOfTwo) {
  constexpr double largest = 0x1.fffffep127;
  const auto overflowed = judge(lane::f32, 0x1p128, 0x1p120, infinity);
  EXPECT_EQ(overflowed.error, 0);
  EXPECT_TRUE(overflowed.correct);
  EXPECT_DOUBLE_EQ(judge(lane::f32, largest, 0, infinity).error, 1);
  EXPECT_DOUBLE_EQ(judge(lane::f32, 0x1p127, 0, infinity).error, 0x1p23);
  EXPECT_FALSE(judge(lane::f32, 0x1p128, 0x1p120, largest).correct);
  EXPECT_GT(judge(lane::f32, -0x1p130, 0, infinity).error, 0x1p23);
}

TEST(Judgement, TakesANaNForANumberAsInfinitelyWrong) {
  EXPECT_EQ(judge(lane::f32, nan, 0, nan).error, 0);
  EXPECT_EQ(judge(lane::f32, 1, 0, nan).error, infinity);
  EXPECT_EQ(judge(lane::f32, nan, 0, 1).error, infinity);
  EXPECT_EQ(judge(lane::i32, 7, 0, 8).error, infinity);
  EXPECT_EQ(judge(lane::i32, 7, 0, 7).error, 0);
}

TEST(Sampling, StaysInTheRangeAndReachesTheBounds) {
  const auto& o = catalogue[index_of("expf")];
  const auto value = [](const arguments& a) { return std::bit_cast<float>(std::uint32_t(a[0])); };
  std::size_t tiny = 0;
  for (const auto& a : accuracy::sample(o, {"some", {{-2, 3}}}, 10'000, 1)) {
    EXPECT_TRUE(value(a) >= -2 && value(a) <= 3) << value(a);
    tiny += std::fabs(value(a)) < 1e-6;
  }
  EXPECT_GT(tiny, 1'000u);  // over the bit patterns, most binades are small

  std::size_t infinite = 0, zero = 0, at_bound = 0;
  for (const auto& a : accuracy::around_bounds(o, *accuracy::find_reference(o), 40'000, 1)) {
    infinite += std::isinf(value(a));
    zero += value(a) == 0;
    at_bound += std::uint32_t(a[0]) == std::bit_cast<std::uint32_t>(88.72283f);
  }
  EXPECT_GT(infinite, 0u);
  EXPECT_GT(zero, 0u);
  EXPECT_GT(at_bound, 0u);
}

// A block of floats of both signs, of every operation that can be swept.
TEST(Sweep, FindsWhatMpfrAloneFinds) {
  constexpr std::uint64_t blocks = 1 << 17, around_5 = 111'424;
  for (const auto* name : {"expf", "sincosf", "sqrtf", "lgammaf", "tanpif"}) {
    const auto index = index_of(name);
    const auto& o = catalogue[index];
    const auto& exact = *accuracy::find_reference(o);
    ASSERT_TRUE(accuracy::can_sweep(o, exact));
    std::vector<accuracy::form> forms;
    for (int width : {16, 3}) forms.push_back({library().find(index, variant::standard, width).value(), width});
    const auto found = accuracy::sweep(o, exact, forms, {around_5, blocks}, 2, [](double) {});
    ASSERT_EQ(found.size(), 2u);

    // The place tells which block it was.
    const auto first = found[0].all.input[0] & 0x7FFF'C000;
    std::vector<arguments> inputs;
    for (std::uint64_t sign : {0u, 0x8000'0000u})
      for (std::uint64_t i = 0; i < 0x4000; ++i) inputs.push_back({(first | sign) + i});
    const auto slow = accuracy::measure(o, exact, forms[0].f, 16, inputs);
    for (const auto& form : found) {
      EXPECT_EQ(form.all.lanes, slow.lanes) << name;
      EXPECT_EQ(form.all.correctly_rounded, slow.correctly_rounded) << name;
      EXPECT_EQ(form.all.input, slow.input) << name;
      EXPECT_EQ(form.all.largest_error, slow.largest_error) << name;
      EXPECT_FALSE(form.curve.empty());
      for (const auto& [cell, error] : form.curve) EXPECT_LE(error, slow.largest_error + 1e-6);
    }
  }
}

TEST(Sweep, SeparatesPartsAndLeavesOutWhatIsMeantToDiffer) {
  const auto swept = [](const char* name) {
    const auto index = index_of(name);
    const auto& o = catalogue[index];
    const accuracy::form forms[]{{library().find(index, variant::standard, 16).value(), 16}};
    return accuracy::sweep(o, *accuracy::find_reference(o), forms, {1, 1 << 9}, 2, [](double) {})[0];
  };
  const auto sine = swept("sinf");
  const auto& large = sine.parts.at("above 10000");
  EXPECT_GT(large.lanes, 0u);
  EXPECT_LT(large.lanes, sine.all.lanes);
  EXPECT_LT(large.largest_error, 0.7);
  EXPECT_GT(sine.all.largest_error, 2);
  EXPECT_GT(std::fabs(std::bit_cast<float>(std::uint32_t(large.input[0]))), 10000);
  const auto gamma = swept("tgammaf");
  EXPECT_LT(gamma.all.lanes, sine.all.lanes);
  EXPECT_LT(gamma.all.largest_error, 1);
}

TEST(Sweep, IsRefusedWhereTheStandInIsOff) {
  const auto index = index_of("expf");
  const auto& o = catalogue[index];
  auto off = *accuracy::find_reference(o);
  off.fast = [](double x) { return std::exp(x) * (1 + 0x1p-44); };
  const accuracy::form forms[]{{library().find(index, variant::standard, 16).value(), 16}};
  EXPECT_THROW(accuracy::sweep(o, off, forms, {0, 1 << 10}, 2, [](double) {}), std::runtime_error);
}

TEST(Search, ClimbsUntilNothingLargerIsFound) {
  const auto index = index_of("exp2f");
  const auto& o = catalogue[index];
  const auto f = library().find(index, variant::standard, 16).value();
  const auto found = accuracy::climb(o, *accuracy::find_reference(o), f, 16, {0xBEFF'0000}, 2'000, 1);
  EXPECT_GT(found.largest_error, 1.05);
  EXPECT_LE(found.largest_error, 1.10173);
}

// The fast judgement counts what MPFR alone would, and goes on where it was left.
TEST(Shares, AreThoseThatMpfrAloneFinds) {
  for (const auto& road : accuracy::roads()) {
    const auto index = index_of(road.operation);
    const auto& o = catalogue[index];
    const int width = road.width ? road.width : 16;
    const auto f = library().find(index, variant::standard, width).value();
    const auto& exact = *accuracy::find_reference(o);
    std::mt19937_64 random(7);
    std::vector<arguments> inputs(2'000);
    for (auto& each : inputs) each = road.draw(random);
    const auto fast = accuracy::measure_by_stand_in(o, exact, f, width, inputs, road.near);
    const auto slow = accuracy::measure(o, exact, f, width, inputs);
    EXPECT_EQ(fast.lanes, slow.lanes);
    EXPECT_EQ(fast.correctly_rounded, slow.correctly_rounded) << o.name();
    EXPECT_EQ(std::max(fast.largest_error, 0.5), std::max(slow.largest_error, 0.5)) << o.name();
  }
}

TEST(Shares, AreRefusedWhereTheStandInIsOff) {
  const auto& o = catalogue[index_of("sinh")];
  const std::vector<arguments> inputs(1, {std::bit_cast<std::uint64_t>(708.0)});
  EXPECT_THROW(accuracy::measure_by_stand_in(o, *accuracy::find_reference(o),
                                             library().find(index_of("sinh"), variant::standard, 1).value(), 1, inputs,
                                             [](const arguments&) { return std::sinh(708.0L) * (1 + 0x1p-58L); }),
               std::runtime_error);
}

TEST(Shares, GoOnWhereTheyWereLeft) {
  const auto& road = *std::ranges::find(accuracy::roads(), "sinh", &accuracy::road::operation);
  const auto measured = [&](std::initializer_list<std::uint64_t> steps, unsigned threads) {
    accuracy::share line{.index = index_of("sinh")};
    int saved = 0;
    for (const auto blocks : steps)
      accuracy::extend(line, road, library(), blocks * accuracy::share::block, threads, [&] { ++saved; });
    EXPECT_GT(saved, 0);
    EXPECT_EQ(line.lanes, 2 * accuracy::share::block);
    return std::tuple(line.rounded, line.error, line.at);
  };
  EXPECT_EQ(measured({1, 2}, 1), measured({2}, 2));
}

}  // namespace
}  // namespace lanemath::testing
