// Stated results of the exponentials at stated inputs.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <limits>
#include <utility>

#include "support/call.h"
#include "tables/exp.h"

namespace lanemath::testing {
namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr u64 infinity_bits = 0x7F800000, one_bits = 0x3F800000;

constexpr auto names = {"expf", "exp2f", "exp10f"};

TEST(Exponentials, OfInfinitiesZerosAndBeyondTheRange) {
  for_each_form(names, [](std::string_view name, variant v, int width) {
    EXPECT_EQ(bits_of(name, v, width, infinity), infinity_bits);
    EXPECT_EQ(bits_of(name, v, width, -infinity), 0u);
    EXPECT_EQ(bits_of(name, v, width, 200.0f), infinity_bits);
    EXPECT_EQ(bits_of(name, v, width, -200.0f), 0u);
    EXPECT_EQ(bits_of(name, v, width, std::numeric_limits<float>::max()), infinity_bits);
    EXPECT_EQ(bits_of(name, v, width, std::numeric_limits<float>::lowest()), 0u);
    // The native polynomials in powers of two do not have 1 as their constant term.
    const bool short_polynomial = v == native || v == half || (v == rm && name == "exp10f");
    const u32 at_zero = short_polynomial && name != "expf" ? 0x3F7FFB49 : one_bits;
    for (u32 tiny : {0u, 0x80000000u, 1u, 0x80000001u, 0x007FFFFFu, 0x00800000u, 0x80800000u})
      EXPECT_EQ(bits_of(name, v, width, tiny), at_zero) << tiny;
  });
}

TEST(Exponentials, OfNaNs) {
  for_each_form(names, [](std::string_view name, variant v, int width) {
    const bool moves_bits = name == "exp2f" && v == standard && width == 4;
    for (u32 nan : {0x7FC00000u, 0xFFC00000u, 0x7FC12345u, 0xFFFFFFFFu}) EXPECT_EQ(bits_of(name, v, width, nan), nan);
    for (u32 signalling : {0x7F800001u, 0xFF812345u})
      EXPECT_EQ(bits_of(name, v, width, signalling), moves_bits ? signalling : signalling | 0x00400000);
  });
}

TEST(Exponentials, WhereTheyOverflowAndUnderflow) {
  for (auto v : variants) {
    EXPECT_EQ(bits_of("expf", v, 8, 0x42B17217), 0x7F7FFF84u);
    EXPECT_EQ(bits_of("expf", v, 8, 0x42B17218), infinity_bits);
    EXPECT_EQ(bits_of("expf", v, 8, 0xC2CFF1B4), 1u);
    EXPECT_EQ(bits_of("expf", v, 8, 0xC2CFF1B5), 0u);
    EXPECT_EQ(bits_of("exp2f", v, 8, 127.0f), 0x7F000000u);
    EXPECT_EQ(bits_of("exp2f", v, 8, 128.0f), infinity_bits);
    EXPECT_EQ(bits_of("exp2f", v, 8, -149.0f), 1u);
    EXPECT_EQ(bits_of("exp2f", v, 8, -150.0f), 0u);
    EXPECT_EQ(bits_of("exp10f", v, 8, 38.0f), pattern(1e38f));
    EXPECT_EQ(bits_of("exp10f", v, 8, 38.6f), infinity_bits);
    EXPECT_EQ(bits_of("exp10f", v, 8, -45.0f), 1u);
    EXPECT_EQ(bits_of("exp10f", v, 8, -45.2f), 0u);
  }
}

TEST(Exponentials, Exp2IsExactAtIntegersInAllButTheLightForms) {
  for (int n = -149; n < 128; ++n)
    for (int width : widths)
      for (auto v : {standard, rm})
        EXPECT_EQ(bits_of("exp2f", v, width, float(n)), pattern(std::ldexp(1.0f, n))) << n << " at " << width;
  EXPECT_NE(bits_of("exp2f", native, 4, 3.0f), pattern(8.0f));
  // The exponent is added as an integer, even where the polynomial is below 1 and the exponent is the smallest.
  EXPECT_EQ(bits_of("exp2f", native, 4, -126.0f), 0x007FFB49u);
}

// The library neither reads nor writes the rounding direction, but its overflows are products that follow it; only e^x
// sets the lanes beyond its range directly.
TEST(Exponentials, OverflowAndUnderflowFollowTheRoundingDirection) {
  for (const auto& [mode, overflow, underflow] : ends_in_every_direction<float>) {
    const harness::rounding in_force(mode);
    const unsigned control = _mm_getcsr() & 0xFFC0;
    EXPECT_EQ(bits_of("exp2f", standard, 8, 200.0f), overflow);
    EXPECT_EQ(bits_of("exp2f", standard, 8, -200.0f), underflow);
    EXPECT_EQ(bits_of("exp10f", native, 1, 40.0f), overflow);
    EXPECT_EQ(bits_of("expf", standard, 8, 200.0f), infinity_bits);
    EXPECT_EQ(bits_of("expf", standard, 8, -200.0f), 0u);
    EXPECT_EQ(_mm_getcsr() & 0xFFC0, control);
  }
}

TEST(Exponentials, TablesHaveTheirStatedEntries) {
  EXPECT_EQ(pattern(exp2_128[0].hi), one_bits);
  EXPECT_EQ(pattern(exp2_128[0].lo), 0u);
  EXPECT_EQ(pattern(exp2_128[1].hi), 0x3F80B1EDu);
  EXPECT_EQ(pattern(exp2_128[1].lo), 0x331FB333u);
  EXPECT_EQ(pattern(exp2_monic_64[0].hi), 0x3E75FDF0u);
  const std::pair<int, u32> lowered[] = {{12, 0x3E8C1100}, {20, 0x3E98BE56}, {29, 0x3EA861BC}, {30, 0x3EAA3720},
                                         {52, 0x3ED8030E}, {58, 0x3EE683DB}, {60, 0x3EEB900C}};
  for (const auto& [j, value] : lowered) EXPECT_EQ(pattern(exp2_monic_64[j].hi), value) << j;
}

}  // namespace
}  // namespace lanemath::testing
