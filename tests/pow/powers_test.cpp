// Stated results of the powers at stated inputs: every special case, in both precisions.
#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "accuracy/measure.h"
#include "support/call.h"
#include "tables/log.h"
#include "tables/pow.h"

namespace lanemath::testing {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();
constexpr double huge_odd = 16'777'215, huge_even = 0x1p60;

template <class T>
u64 bits(double number) {
  if (std::isnan(number)) return sizeof(T) == 4 ? 0xFFC00000 : 0xFFF8000000000000;  // the processor's own
  return pattern(T(number));
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
    for_each_form({name}, [&](std::string_view, variant v, int width) {
      for (const auto& row : rows) {
        arguments lane{bits<T>(row.x)};
        // A NaN argument is positive and has a payload, or is negative where the row says so.
        if (std::isnan(row.x)) lane[0] = bits<T>(nan) & ~(std::signbit(row.x) ? 0 : TestFixture::sign);
        double second;
        if constexpr (requires { row.y; }) {
          second = row.y;
          lane[1] = std::isnan(row.y) ? bits<T>(nan) & ~TestFixture::sign : bits<T>(row.y);
        } else {
          second = row.n;
          lane[1] = u32(row.n);
        }
        const auto got = bits_of(name, v, width, lane);
        const auto due = bits<T>(row.z);
        // The native kernels are only close at small integers; only the special case itself is meant.
        const bool in_light_kernel = !std::isnan(row.z) && std::isfinite(row.z) && row.z != 0 && std::abs(row.z) != 1;
        if (in_light_kernel && v != standard) continue;
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
  const u64 infinite = bits<T>(infinity), one_half = bits<T>(0.5), own = bits<T>(nan);
  const u64 first = infinite | 0x123 | sign, second = infinite | 0x456;
  for (std::string_view base : {"pow", "powr", "pown", "rootn"}) {
    const auto name = TestFixture::named(base);
    for_each_form({name}, [&](std::string_view, variant v, int width) {
      const auto of = [&](u64 x, u64 y) { return bits_of(name, v, width, x, y); };
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

// Rows of powr that reach the routine only with a denormal base or an exponent from the last binades.
TEST(PowerRoutines, OneFromTheRoutineOfPowr) {
  for (std::string_view name : {"powrf", "powr"})
    for_each_form({name}, [&](std::string_view, variant v, int width) {
      const u64 one = name == "powr" ? bits<double>(1) : bits<float>(1);
      EXPECT_EQ(bits_of(name, v, width, 1, 0), one);
      if (name == "powr") {
        EXPECT_EQ(bits_of(name, v, width, one, bits<double>(-0x1p1020)), one);
      }
    });
}

// Constant terms that are not 1, and stay so.
TEST(PowerKernels, NextToOne) {
  const u64 three = bits<float>(3), one = bits<float>(1), wide_three = bits<double>(3);
  for (int width : widths) {
    EXPECT_EQ(bits_of("pownf", standard, width, three, 0), 0x3F800001u);
    EXPECT_EQ(bits_of("pownf", standard, width, one, 5), 0x3F800001u);
    EXPECT_EQ(bits_of("pownf", native, width, three, 0), 0x3F7FFB0Du);
    EXPECT_EQ(bits_of("rootnf", native, width, one, 7), 0x3F7FFB0Du);
    EXPECT_EQ(bits_of("pow", native, width, wide_three, 0), 0x3FEFFFFFFC27DD9Eu);
    for (std::string_view name : {"powf", "powrf"})
      for (auto v : {standard, native}) EXPECT_EQ(bits_of(name, v, width, three, 0), one);
    EXPECT_EQ(bits_of("pown", standard, width, bits<double>(1), 9), bits<double>(1));
    EXPECT_EQ(bits_of("pow", standard, width, bits<double>(1), wide_three), bits<double>(1));
  }
}

TEST(PowerKernels, SignsOfOddExponentsAndTheNegativeBasesOfPowr) {
  for (int width : widths) {
    EXPECT_EQ(bits_of("rootn", standard, width, bits<double>(-8), 3), bits<double>(-2));
    EXPECT_EQ(bits_of("pown", standard, width, bits<double>(-3), 2), bits<double>(9));
    EXPECT_EQ(bits_of("pownf", native, width, bits<float>(-1.5), 3) >> 31, 1u);
    EXPECT_EQ(bits_of("powf", native, width, bits<float>(-2), bits<float>(3)), bits<float>(-8));
    EXPECT_EQ(bits_of("powrf", native, width, bits<float>(-2), bits<float>(3)), bits<float>(nan));
  }
}

// Where float results overflow, become denormal and vanish: powf in its kernel, by narrowing, the rest in the routine.
TEST(PowerRange, PowersOfTwo) {
  const auto of = [](std::string_view name, double x, double y) {
    return is_single(name) ? bits_of(name, standard, 4, float(x), float(y)) : bits_of(name, standard, 4, x, y);
  };
  EXPECT_EQ(of("powf", 2, 130), bits<float>(infinity));
  EXPECT_EQ(of("powf", 2, -148), 2u);
  EXPECT_EQ(of("powf", 2, -149.5), 1u);
  EXPECT_EQ(of("powf", 2, -151), 0u);
  // The tiny term decides the sign of a zero until the result is far below.
  EXPECT_EQ(of("powf", -2, -149), 0x80000001u);
  EXPECT_EQ(of("powf", -2, -151), 0u);
  EXPECT_EQ(of("powf", -2, -161), 0x80000000u);
  EXPECT_EQ(of("powf", -2, -1001), 0x80000000u);
  EXPECT_EQ(of("powf", -2, 129), bits<float>(-infinity));
  for (int n = -1074; n < 1024; ++n) {
    EXPECT_EQ(of("pow", 2, n), bits<double>(std::ldexp(1.0, n))) << n;
    EXPECT_EQ(of("pow", -0.5, -n), bits<double>(n % 2 ? -std::ldexp(1.0, n) : std::ldexp(1.0, n))) << n;
  }
  EXPECT_EQ(of("pow", -2, -1075), 0x8000000000000000u);
  EXPECT_EQ(of("pow", -2, -1101), 0x8000000000000000u);
  EXPECT_EQ(of("pow", 2, 1024), bits<double>(infinity));
  // Denormals come back unchanged, with every bit in its place.
  for (u64 x : {1ull, 3ull, 0x0007FFFFFFFFFFFFull, 0x000D11590BF9ED6Dull, 0x000FFFFFFFFFFFFFull})
    for (std::string_view name : {"pown", "rootn"}) EXPECT_EQ(bits_of(name, standard, 2, x, 1), x);
}

TEST(PowerRange, OverflowOfTheRoutinesFollowsTheRoundingDirection) {
  for (const auto& [mode, overflow, underflow] : ends_in_every_direction<float>) {
    const harness::rounding in_force(mode);
    EXPECT_EQ(bits_of("powrf", standard, 8, 2.0f, 1e6f), overflow);
    EXPECT_EQ(bits_of("powrf", standard, 8, 2.0f, -1e6f), underflow);
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
      const auto found = accuracy::measure(o, *accuracy::find_reference(o), *library().find(index, standard, 2), 2,
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
  const auto signed_bits = [](auto v) { return std::bit_cast<int_of_size<sizeof v>>(v); };
  EXPECT_EQ(signed_bits(ln_65[0].first) | signed_bits(ln_65[0].second), 0);
  EXPECT_EQ(signed_bits(ln_65[0].third), 0x3F800000);
  EXPECT_EQ(signed_bits(ln_65[64].first), 0x3F317000);
  EXPECT_EQ(signed_bits(ln_65[64].second), 0x3805FDF4);
  EXPECT_EQ(signed_bits(ln_65[64].third), 0x3F000000);
  EXPECT_EQ(signed_bits(ln_of_integers[0]), 0);
  EXPECT_EQ(signed_bits(ln_of_integers[512]), 0);
  EXPECT_GT(ln_of_integers[725 - 512], 0);
  EXPECT_LT(ln_of_integers[724 - 512], 0);
  EXPECT_EQ(signed_bits(exp2_biased_2048[0]), 0x3FEFFFFFFC27DD9E);
  EXPECT_EQ(signed_bits(scaled_reciprocal_1024[0]), 0x3FF7154740000000);
  EXPECT_EQ(signed_bits(scaled_reciprocal_1024[1024]), 0x3FE7154740000000);
  for (int i : {0, 1024}) EXPECT_EQ(signed_bits(log2_1024[i].hi) | signed_bits(log2_1024[i].lo), 0);
  EXPECT_LT(log2_1024[512].hi, 0);
  EXPECT_EQ(signed_bits(log2_stage_1[8][1]) | signed_bits(log2_stage_2[8][1]) | signed_bits(log2_stage_3[16][1]), 0);
  for (const auto& entry : exp2_short_128) EXPECT_EQ(signed_bits(entry.hi) & 1, 0);
  // The kernel's polynomial is the series.
  EXPECT_EQ(signed_bits(log2_series[1].hi), 0x3E79C3A6966457EE);
  EXPECT_EQ(signed_bits(log2_series[6].hi), std::int64_t(0xBF9B4EA0E9419F52));
}

}  // namespace
}  // namespace lanemath::testing
