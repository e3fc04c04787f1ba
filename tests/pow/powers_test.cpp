// Stated results of the powers at stated inputs: every special case, in both precisions, and what tells the forms
// apart.
#include <gtest/gtest.h>

#include <cfenv>
#include <limits>
#include <type_traits>

#include "accuracy/measure.h"
#include "support/lanes_of.h"
#include "support/library.h"
#include "tables/log.h"
#include "tables/pow.h"

namespace lanemath::testing {
namespace {

using u32 = std::uint32_t;
using u64 = std::uint64_t;

// The pattern of one lane, the other lanes holding the same values.
u64 bits_of(std::string_view name, variant v, int width, const arguments& lane) {
  const auto index = index_of(name);
  const std::vector<arguments> tuples(width, lane);
  return harness::evaluate(catalogue[index], library().find(index, v, width).value(), width, tuples)[0].first;
}

constexpr double infinity = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
constexpr double huge_odd = 16'777'215, huge_even = 0x1p60;

template <class T>
u64 pattern(double value) {
  if (std::isnan(value)) return sizeof(T) == 4 ? 0xFFC00000 : 0xFFF8000000000000;  // the processor's own
  if constexpr (sizeof(T) == 4)
    return std::bit_cast<u32>(float(value));
  else
    return std::bit_cast<u64>(value);
}

struct power {
  double x, y, z;  // a NaN result is the processor's own
};
struct integer_power {
  double x;
  std::int32_t n;
  double z;
};

constexpr power pow_rows[] = {{0, 0, 1},
                              {-0.0, -0.0, 1},
                              {infinity, 0, 1},
                              {nan, 0, 1},
                              {nan, -0.0, 1},
                              {1, nan, 1},
                              {1, infinity, 1},
                              {-5, 0, 1},
                              {0, 3, 0},
                              {-0.0, 3, -0.0},
                              {-0.0, 2, 0},
                              {-0.0, 0.5, 0},
                              {0, infinity, 0},
                              {-0.0, infinity, 0},
                              {0, -1, infinity},
                              {-0.0, -1, -infinity},
                              {-0.0, -2, infinity},
                              {-0.0, -0.5, infinity},
                              {-0.0, -infinity, infinity},
                              {-0.0, -huge_odd, -infinity},
                              {-1, infinity, 1},
                              {-1, -infinity, 1},
                              {-1, 3, -1},
                              {-1, 2, 1},
                              {-1, huge_odd, -1},
                              {-1, huge_even, 1},
                              {-1, 0.5, nan},
                              {-2, 0.5, nan},
                              {-2, -1e-3, nan},
                              {-2, 3, -8},
                              {-2, -3, -0.125},
                              {-2, 4, 16},
                              {-4, 1, -4},
                              {-2, huge_even, infinity},
                              {-2, huge_odd, -infinity},
                              {-2, -huge_odd, -0.0},
                              {infinity, 2, infinity},
                              {infinity, 1e-40, infinity},
                              {-infinity, 3, -infinity},
                              {-infinity, 2, infinity},
                              {-infinity, 2.5, infinity},
                              {-infinity, -3, -0.0},
                              {-infinity, -2, 0},
                              {infinity, -1, 0},
                              {0.5, infinity, 0},
                              {-0.5, infinity, 0},
                              {0.5, -infinity, infinity},
                              {2, infinity, infinity},
                              {-2, infinity, infinity},
                              {2, -infinity, 0},
                              {-infinity, infinity, infinity},
                              {-infinity, -infinity, 0}};
constexpr power powr_rows[] = {{nan, 0, nan},
                               {nan, nan, nan},
                               {infinity, 0, nan},
                               {-infinity, 2, nan},
                               {-infinity, nan, nan},
                               {0, 0, nan},
                               {-0.0, -0.0, nan},
                               {0, 2, 0},
                               {-0.0, 3, 0},
                               {0, infinity, 0},
                               {-0.0, -3, infinity},
                               {0, -infinity, infinity},
                               {1, infinity, nan},
                               {1, -infinity, nan},
                               {1, nan, nan},
                               {-2, 2, nan},
                               {-0.0, nan, nan},
                               {-1, infinity, nan},
                               {-5, 0, nan},
                               {infinity, 2, infinity},
                               {infinity, -2, 0},
                               {2, infinity, infinity},
                               {2, -infinity, 0},
                               {0.5, infinity, 0},
                               {0.5, -infinity, infinity},
                               {2, huge_even, infinity},
                               {2, -huge_even, 0}};
constexpr integer_power pown_rows[] = {{0, 0, 1},
                                       {nan, 0, 1},
                                       {infinity, 0, 1},
                                       {-0.0, 0, 1},
                                       {0, 3, 0},
                                       {-0.0, 3, -0.0},
                                       {-0.0, 2, 0},
                                       {-0.0, -3, -infinity},
                                       {-0.0, -2, infinity},
                                       {infinity, 3, infinity},
                                       {-infinity, 3, -infinity},
                                       {-infinity, 2, infinity},
                                       {-infinity, -3, -0.0},
                                       {-infinity, INT32_MIN, 0},
                                       {-2, INT32_MAX, -infinity},
                                       {-2, INT32_MIN, 0},
                                       {2, INT32_MAX, infinity},
                                       {-0.5, INT32_MAX, -0.0},
                                       {-0.5, INT32_MIN, infinity}};
constexpr integer_power rootn_rows[] = {{3, 0, nan},
                                        {nan, 0, nan},
                                        {-0.0, 0, nan},
                                        {infinity, 0, nan},
                                        {0, 2, 0},
                                        {-0.0, 2, 0},
                                        {-0.0, -2, infinity},
                                        {-0.0, 3, -0.0},
                                        {-0.0, -3, -infinity},
                                        {0, -3, infinity},
                                        {infinity, 3, infinity},
                                        {-infinity, 3, -infinity},
                                        {-infinity, -3, -0.0},
                                        {infinity, -2, 0},
                                        {infinity, 2, infinity},
                                        {-infinity, 2, nan},
                                        {-8, 2, nan},
                                        {-8, INT32_MIN, nan},
                                        {-nan, 2, nan}};

template <class F>
void for_each_form(std::string_view name, F visit) {
  const auto& o = catalogue[index_of(name)];
  for (auto v : variants)
    for (int width : widths)
      if (o.has(v)) {
        SCOPED_TRACE(fmt::format("{}{}{}", name, width, suffix(v)));
        visit(v, width);
      }
}

template <class T>
class Powers : public ::testing::Test {
 public:
  static constexpr bool single = sizeof(T) == 4;
  static constexpr u64 sign = single ? 0x80000000 : 0x8000000000000000;
  static constexpr u64 quiet = single ? 0x00400000 : 0x0008000000000000;

  static std::string named(std::string_view name) { return std::string(name) + (single ? "f" : ""); }
};
using precisions = ::testing::Types<float, double>;
TYPED_TEST_SUITE(Powers, precisions);

TYPED_TEST(Powers, SpecialCasesInEveryForm) {
  using T = TypeParam;
  const auto check = [&](std::string_view base, const auto& rows) {
    const auto name = TestFixture::named(base);
    for_each_form(name, [&](variant v, int width) {
      for (const auto& row : rows) {
        arguments lane{pattern<T>(row.x)};
        // A NaN argument is a positive one with a payload, or negative where the row says so.
        if (std::isnan(row.x)) lane[0] = pattern<T>(nan) & ~(std::signbit(row.x) ? 0 : TestFixture::sign);
        double second;
        if constexpr (requires { row.y; }) {
          second = row.y;
          lane[1] = std::isnan(row.y) ? pattern<T>(nan) & ~TestFixture::sign : pattern<T>(row.y);
        } else {
          second = row.n;
          lane[1] = u32(row.n);
        }
        const auto got = bits_of(name, v, width, lane);
        const auto due = pattern<T>(row.z);
        // The light kernels are near the small integers and no more; only the case itself is meant.
        const bool in_light_kernel = !std::isnan(row.z) && std::isfinite(row.z) && row.z != 0 && std::abs(row.z) != 1;
        if (in_light_kernel && v != variant::standard) continue;
        EXPECT_EQ(got, due) << row.x << ", " << second;
      }
    });
  };
  check("pow", pow_rows);
  check("powr", powr_rows);
  check("pown", pown_rows);
  check("rootn", rootn_rows);
}

TYPED_TEST(Powers, NaNsComeBackQuietedWithSignAndPayload) {
  using T = TypeParam;
  constexpr u64 quiet = TestFixture::quiet, sign = TestFixture::sign;
  const u64 infinite = pattern<T>(infinity), one_half = pattern<T>(0.5), own = pattern<T>(nan);
  const u64 first = infinite | 0x123 | sign, second = infinite | 0x456;
  for (std::string_view base : {"pow", "powr", "pown", "rootn"}) {
    const auto name = TestFixture::named(base);
    for_each_form(name, [&](variant v, int width) {
      const auto of = [&](u64 x, u64 y) { return bits_of(name, v, width, {x, y}); };
      if (base == "pow") {
        EXPECT_EQ(of(first, one_half), first | quiet);
        EXPECT_EQ(of(one_half, second), second | quiet);
        EXPECT_EQ(of(first, second), first | quiet);
        EXPECT_EQ(of(second, first), second | quiet);
      } else if (base == "powr") {
        EXPECT_EQ(of(first, one_half), own);
        EXPECT_EQ(of(one_half, second), second | quiet);
      } else {
        EXPECT_EQ(of(first, 3), first | quiet);
        EXPECT_EQ(of(second, 2), second | quiet);
      }
    });
  }
}

// Rows of powr that only a denormal base or an exponent of its last binades brings to the routine.
TEST(PowerRoutines, OneFromTheRoutineOfPowr) {
  for (std::string_view name : {"powrf", "powr"})
    for_each_form(name, [&](variant v, int width) {
      const u64 one = name == "powr" ? pattern<double>(1) : pattern<float>(1);
      EXPECT_EQ(bits_of(name, v, width, {1, 0}), one);
      if (name == "powr") {
        EXPECT_EQ(bits_of(name, v, width, {one, pattern<double>(-0x1p1020)}), one);
      }
    });
}

// Constant terms that are not 1, and are kept.
TEST(PowerKernels, NextToOne) {
  const u64 three = pattern<float>(3), one = pattern<float>(1), wide_three = pattern<double>(3);
  for (int width : widths) {
    EXPECT_EQ(bits_of("pownf", variant::standard, width, {three, 0}), 0x3F800001u);
    EXPECT_EQ(bits_of("pownf", variant::standard, width, {one, 5}), 0x3F800001u);
    EXPECT_EQ(bits_of("pownf", variant::native, width, {three, 0}), 0x3F7FFB0Du);
    EXPECT_EQ(bits_of("rootnf", variant::native, width, {one, 7}), 0x3F7FFB0Du);
    EXPECT_EQ(bits_of("pow", variant::native, width, {wide_three, 0}), 0x3FEFFFFFFC27DD9Eu);
    for (std::string_view name : {"powf", "powrf"})
      for (auto v : {variant::standard, variant::native}) EXPECT_EQ(bits_of(name, v, width, {three, 0}), one);
    EXPECT_EQ(bits_of("pown", variant::standard, width, {pattern<double>(1), 9}), pattern<double>(1));
    EXPECT_EQ(bits_of("pow", variant::standard, width, {pattern<double>(1), wide_three}), pattern<double>(1));
  }
}

TEST(PowerKernels, SignsOfOddExponentsAndTheNegativeBasesOfPowr) {
  for (int width : widths) {
    EXPECT_EQ(bits_of("rootn", variant::standard, width, {pattern<double>(-8), 3}), pattern<double>(-2));
    EXPECT_EQ(bits_of("pown", variant::standard, width, {pattern<double>(-3), 2}), pattern<double>(9));
    EXPECT_EQ(bits_of("pownf", variant::native, width, {pattern<float>(-1.5), 3}) >> 31, 1u);
    EXPECT_EQ(bits_of("powf", variant::native, width, {pattern<float>(-2), pattern<float>(3)}), pattern<float>(-8));
    EXPECT_EQ(bits_of("powrf", variant::native, width, {pattern<float>(-2), pattern<float>(3)}), pattern<float>(nan));
  }
}

// Where float results overflow, become denormal and vanish: powf's kernel by its narrowing, the rest in the routine.
TEST(PowerRange, PowersOfTwo) {
  const auto of = [](std::string_view name, double x, double y) {
    const bool single = name.back() == 'f';
    return single ? bits_of(name, variant::standard, 4, {pattern<float>(x), pattern<float>(y)})
                  : bits_of(name, variant::standard, 4, {pattern<double>(x), pattern<double>(y)});
  };
  EXPECT_EQ(of("powf", 2, 130), pattern<float>(infinity));
  EXPECT_EQ(of("powf", 2, -148), 2u);
  EXPECT_EQ(of("powf", 2, -149.5), 1u);
  EXPECT_EQ(of("powf", 2, -151), 0u);
  // The tiny term decides the sign of a zero until the result is far below.
  EXPECT_EQ(of("powf", -2, -149), 0x80000001u);
  EXPECT_EQ(of("powf", -2, -151), 0u);
  EXPECT_EQ(of("powf", -2, -161), 0x80000000u);
  EXPECT_EQ(of("powf", -2, -1001), 0x80000000u);
  EXPECT_EQ(of("powf", -2, 129), pattern<float>(-infinity));
  for (int n = -1074; n < 1024; ++n) {
    EXPECT_EQ(of("pow", 2, n), pattern<double>(std::ldexp(1.0, n))) << n;
    EXPECT_EQ(of("pow", -0.5, -n), pattern<double>(n % 2 ? -std::ldexp(1.0, n) : std::ldexp(1.0, n))) << n;
  }
  EXPECT_EQ(of("pow", -2, -1075), 0x8000000000000000u);
  EXPECT_EQ(of("pow", -2, -1101), 0x8000000000000000u);
  EXPECT_EQ(of("pow", 2, 1024), pattern<double>(infinity));
  // Denormals come back as they are, with every bit at its own place.
  for (u64 x : {1ull, 3ull, 0x0007FFFFFFFFFFFFull, 0x000D11590BF9ED6Dull, 0x000FFFFFFFFFFFFFull})
    for (std::string_view name : {"pown", "rootn"}) EXPECT_EQ(bits_of(name, variant::standard, 2, {x, 1}), x);
}

TEST(PowerRange, OverflowOfTheRoutinesFollowsTheRoundingDirection) {
  struct {
    int mode;
    u64 overflow, underflow;
  } constexpr directions[] = {{FE_TONEAREST, 0x7F800000, 0},
                              {FE_UPWARD, 0x7F800000, 1},
                              {FE_DOWNWARD, 0x7F7FFFFF, 0},
                              {FE_TOWARDZERO, 0x7F7FFFFF, 0}};
  for (const auto& [mode, overflow, underflow] : directions) {
    const u64 two = pattern<float>(2), much = pattern<float>(1e6), little = pattern<float>(-1e6);
    ASSERT_EQ(std::fesetround(mode), 0);
    const auto above = bits_of("powrf", variant::standard, 8, {two, much});
    const auto below = bits_of("powrf", variant::standard, 8, {two, little});
    std::fesetround(FE_TONEAREST);
    EXPECT_EQ(above, overflow) << mode;
    EXPECT_EQ(below, underflow) << mode;
  }
}

// The double routines round once, denormal results included.
TEST(PowerRoutines, DoubleIsRoundedOnce) {
  const std::vector<accuracy::range> denormal_bases = {{"", {{-2.2e-308, 2.2e-308}, {-3, 3}}}},
                                     long_exponents = {{"", {{0.9999996, 0.99999962}, {1.83e9, 1.95e9}}}};
  const std::vector<accuracy::range> bases = {{"", {{1e-315, 2.2e-308}, {-0.9, 1.05}}},
                                              {"", {{1e-4, 2e-4}, {81.5, 88}}},
                                              {"", {{0.9999999, 0.99999990001}, {6.94e9, 7.46e9}}}};
  const auto check = [](std::string_view name, const std::vector<accuracy::range>& ranges) {
    const auto index = index_of(name);
    const auto& o = catalogue[index];
    for (const auto& range : ranges) {
      const auto found =
          accuracy::measure(o, *accuracy::find_reference(o), *library().find(index, variant::standard, 2), 2,
                            accuracy::sample(o, range, 10'000, 3));
      EXPECT_LE(found.largest_error, 0.501) << name << " of " << text_of(o, found.input);
    }
  };
  check("pow", bases);
  check("powr", bases);
  check("pown", denormal_bases);
  check("rootn", denormal_bases);
  check("pown", long_exponents);
}

TEST(PowerTables, HaveTheirStatedEntries) {
  const auto bits = [](auto v) { return std::bit_cast<int_of_size<sizeof v>>(v); };
  EXPECT_EQ(bits(ln_65[0].first) | bits(ln_65[0].second), 0);
  EXPECT_EQ(bits(ln_65[0].third), 0x3F800000);
  EXPECT_EQ(bits(ln_65[64].first), 0x3F317000);
  EXPECT_EQ(bits(ln_65[64].second), 0x3805FDF4);
  EXPECT_EQ(bits(ln_65[64].third), 0x3F000000);
  EXPECT_EQ(bits(ln_of_integers[0]), 0);
  EXPECT_EQ(bits(ln_of_integers[512]), 0);
  EXPECT_GT(ln_of_integers[725 - 512], 0);
  EXPECT_LT(ln_of_integers[724 - 512], 0);
  EXPECT_EQ(bits(exp2_biased_2048[0]), 0x3FEFFFFFFC27DD9E);
  EXPECT_EQ(bits(scaled_reciprocal_1024[0]), 0x3FF7154740000000);
  EXPECT_EQ(bits(scaled_reciprocal_1024[1024]), 0x3FE7154740000000);
  for (int i : {0, 1024}) EXPECT_EQ(bits(log2_1024[i].hi) | bits(log2_1024[i].lo), 0);
  EXPECT_LT(log2_1024[512].hi, 0);
  EXPECT_EQ(bits(log2_stage_1[8][1]) | bits(log2_stage_2[8][1]) | bits(log2_stage_3[16][1]), 0);
  for (const auto& entry : exp2_short_128) EXPECT_EQ(bits(entry.hi) & 1, 0);
  // The kernel's polynomial is the series.
  EXPECT_EQ(bits(log2_series[1].hi), 0x3E79C3A6966457EE);
  EXPECT_EQ(bits(log2_series[6].hi), std::int64_t(0xBF9B4EA0E9419F52));
}

}  // namespace
}  // namespace lanemath::testing
