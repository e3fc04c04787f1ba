// Stated results of the double-precision exponentials and of both exponentials minus one.
#include <gtest/gtest.h>

#include <limits>

#include "support/call.h"
#include "tables/exp.h"

namespace lanemath::testing {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr u64 sign = u64(1) << 63, infinity_bits = 0x7FF0000000000000, one_bits = 0x3FF0000000000000;

TEST(DoubleExponentials, OfInfinitiesZerosAndBeyondTheRange) {
  for_each_form({"exp", "exp2", "exp10"}, [](std::string_view name, variant v, int width) {
    for (double above : {infinity, 1100.0, std::numeric_limits<double>::max()}) {
      EXPECT_EQ(bits_of(name, v, width, above), infinity_bits) << above;
      EXPECT_EQ(bits_of(name, v, width, -above), 0u) << -above;
    }
    // The native polynomials in powers of two do not have 1 as their constant term.
    const u64 at_zero = v == standard || name == "exp" ? one_bits
                        : name == "exp2"               ? 0x3FF0000000261500
                                                       : 0x3FF0000000261501;
    for (u64 tiny : {u64(0), u64(1), u64(0x000FFFFFFFFFFFFF), u64(0x0010000000000000)}) {
      EXPECT_EQ(bits_of(name, v, width, tiny), at_zero) << tiny;
      EXPECT_EQ(bits_of(name, v, width, tiny | sign), at_zero) << tiny;
    }
  });
}

TEST(DoubleExponentials, OfNaNs) {
  for_each_form({"exp", "exp2", "exp10", "expm1"}, [](std::string_view name, variant v, int width) {
    const bool one_answer = name == "exp2" && v == standard && width == 2;
    for (u64 nan : {0x7FF8000000000000, 0x7FF0000000000001, 0x7FF0000100000000, 0x7FFFFFFFFFFFFFFF})
      for (u64 pattern : {nan, nan | sign})
        EXPECT_EQ(bits_of(name, v, width, pattern), one_answer ? 0x7FFFFFFF00000000 : pattern | 0x0008000000000000)
            << fmt::format("{:X}", pattern);
  });
}

TEST(DoubleExponentials, WhereTheyOverflowAndUnderflow) {
  struct stated {
    std::string_view name;
    u64 x, y;
  };
  const stated all[] = {
      {"exp", 0x40862E42FEFA39EF, 0x7FEFFFFFFFFFFF2A},
      {"exp", 0x40862E42FEFA39F0, infinity_bits},
      {"exp", 0xC0874910D52D3051, 1},
      {"exp", 0xC0874910D52D3052, 0},
      {"exp2", 0x408FFFFFFFFFFFFF, 0x7FEFFFFFFFFFFD3A},
      {"exp2", 0x4090000000000000, infinity_bits},
      {"exp2", 0xC090C80000000000, 1},
      {"exp2", 0xC090CC0000000000, 0},
      {"exp10", 0x40734413509F79FE, 0x7FEFFFFFFFFFFBA1},
      {"exp10", 0x40734413509F79FF, infinity_bits},
      {"exp10", 0xC07439B746E36B52, 1},
      {"exp10", 0xC07439B746E36B53, 0},
  };
  for (const auto& [name, x, y] : all)
    for (auto v : {standard, native}) EXPECT_EQ(bits_of(name, v, 8, x), y) << name << " of " << fmt::format("{:X}", x);
  // The forms at width 2 settle these lanes themselves.
  EXPECT_EQ(bits_of("exp", standard, 2, 710.0), infinity_bits);
  EXPECT_EQ(bits_of("exp", standard, 2, -745.0), 1u);
  EXPECT_EQ(bits_of("exp", standard, 2, -746.0), 0u);
  EXPECT_EQ(bits_of("exp2", standard, 2, 0x408FFFFFFFFFFFFF), 0x7FEFFFFFFFFFFD3Au);
}

TEST(DoubleExponentials, DefaultExp2IsExactAtIntegers) {
  for (int n = -1074; n < 1024; ++n)
    for (int width : widths)
      EXPECT_EQ(bits_of("exp2", standard, width, double(n)), pattern(std::ldexp(1.0, n))) << n << " at " << width;
}

TEST(DoubleExponentials, OverflowAndUnderflowFollowTheRoundingDirection) {
  for (const auto& [mode, overflow, underflow] : ends_in_every_direction<double>) {
    const harness::rounding in_force(mode);
    EXPECT_EQ(bits_of("exp", standard, 2, 800.0), overflow);
    EXPECT_EQ(bits_of("exp2", native, 8, 1100.0), overflow);
    EXPECT_EQ(bits_of("exp10", standard, 1, 310.0), overflow);
    EXPECT_EQ(bits_of("exp", standard, 2, -800.0), underflow);
    EXPECT_EQ(bits_of("exp2", native, 8, -1100.0), underflow);
    EXPECT_EQ(bits_of("exp10", standard, 1, -330.0), underflow);
    EXPECT_EQ(bits_of("exp", standard, 8, 800.0), infinity_bits);
    EXPECT_EQ(bits_of("exp", standard, 8, -800.0), 0u);
  }
}

TEST(ExponentialsMinusOne, OfZerosSmallNumbersAndBeyondTheRange) {
  for_each_form({"expm1"}, [](std::string_view name, variant v, int width) {
    for (u64 small : {u64(0), u64(1), u64(0x0010000000000000), u64(0x3C00000000000000)})
      for (u64 x : {small, small | sign}) EXPECT_EQ(bits_of(name, v, width, x), x) << fmt::format("{:X}", x);
    for (double below : {-708.0, -1e300, -infinity}) EXPECT_EQ(bits_of(name, v, width, below), one_bits | sign);
    for (double above : {710.0, 1e300, infinity}) EXPECT_EQ(bits_of(name, v, width, above), infinity_bits);
    EXPECT_EQ(bits_of(name, v, width, 0x40862E42FEFA39EF), 0x7FEFFFFFFFFFFF2Au);
  });
  for_each_form({"expm1f"}, [](std::string_view name, variant v, int width) {
    for (u64 small : {0u, 1u, 0x00800000u, 0x30000000u})
      for (u64 x : {small, small | 0x80000000}) EXPECT_EQ(bits_of(name, v, width, x), x) << fmt::format("{:X}", x);
    for (u64 below : {0xC2C80000u, 0xFF7FFFFFu, 0xFF800000u}) EXPECT_EQ(bits_of(name, v, width, below), 0xBF800000u);
    for (u64 above : {0x42B20000u, 0x7F7FFFFFu, 0x7F800000u}) EXPECT_EQ(bits_of(name, v, width, above), 0x7F800000u);
    EXPECT_EQ(bits_of(name, v, width, 0x42B17217), 0x7F7FFF84u);
    for (u64 nan : {0x7FC12345u, 0xFF812345u}) EXPECT_EQ(bits_of(name, v, width, nan), nan | 0x00400000);
  });
}

TEST(ExponentialsMinusOne, TablesHaveTheirStatedEntries) {
  EXPECT_EQ(pattern(expm1f_64[1].hi), 0x00016000u);
  EXPECT_EQ(pattern(expm1f_64[1].lo), 0x391A3E78u);
  EXPECT_EQ(pattern(expm1f_native_32[1]), 0x0002CD87u);
  for (const auto& entry : expm1_128) EXPECT_EQ(pattern(entry.hi) & ~(u64(0x7FF) << 41), 0u);
}

}  // namespace
}  // namespace lanemath::testing
