// Stated results of the exponentials at stated inputs, and what tells their forms apart.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <bit>
#include <cfenv>
#include <limits>
#include <utility>

#include "support/lanes_of.h"
#include "support/library.h"
#include "tables/exp.h"

namespace lanemath::testing {
namespace {

using u32 = std::uint32_t;

// The pattern of one lane, the other lanes holding the same value.
u32 bits_of(std::string_view name, variant v, int width, u32 pattern) {
  const auto index = index_of(name);
  const std::vector<arguments> tuples(width, arguments{pattern});
  return u32(harness::evaluate(catalogue[index], library().find(index, v, width).value(), width, tuples)[0].first);
}
u32 bits_of(std::string_view name, variant v, int width, float x) {
  return bits_of(name, v, width, std::bit_cast<u32>(x));
}

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr u32 infinity_bits = 0x7F800000, one_bits = 0x3F800000;

template <class F>
void for_each_form(F visit) {
  for (std::string_view name : {"expf", "exp2f", "exp10f"})
    for (auto v : variants)
      for (int width : widths) {
        SCOPED_TRACE(fmt::format("{}{}{}", name, width, suffix(v)));
        visit(name, v, width);
      }
}

TEST(Exponentials, OfInfinitiesZerosAndBeyondTheRange) {
  for_each_form([](std::string_view name, variant v, int width) {
    EXPECT_EQ(bits_of(name, v, width, infinity), infinity_bits);
    EXPECT_EQ(bits_of(name, v, width, -infinity), 0u);
    EXPECT_EQ(bits_of(name, v, width, 200.0f), infinity_bits);
    EXPECT_EQ(bits_of(name, v, width, -200.0f), 0u);
    EXPECT_EQ(bits_of(name, v, width, std::numeric_limits<float>::max()), infinity_bits);
    EXPECT_EQ(bits_of(name, v, width, std::numeric_limits<float>::lowest()), 0u);
    // The light polynomials in powers of two do not have 1 as their constant term.
    const bool light = v == variant::native || v == variant::half || (v == variant::rm && name == "exp10f");
    const u32 at_zero = light && name != "expf" ? 0x3F7FFB49 : one_bits;
    for (u32 tiny : {0u, 0x80000000u, 1u, 0x80000001u, 0x007FFFFFu, 0x00800000u, 0x80800000u})
      EXPECT_EQ(bits_of(name, v, width, tiny), at_zero) << tiny;
  });
}

TEST(Exponentials, OfNaNs) {
  for_each_form([](std::string_view name, variant v, int width) {
    const bool moves_bits = name == "exp2f" && v == variant::standard && width == 4;
    for (u32 nan : {0x7FC00000u, 0xFFC00000u, 0x7FC12345u, 0xFFFFFFFFu}) EXPECT_EQ(bits_of(name, v, width, nan), nan);
    for (u32 signalling : {0x7F800001u, 0xFF812345u})
      EXPECT_EQ(bits_of(name, v, width, signalling), moves_bits ? signalling : signalling | 0x00400000);
  });
}

TEST(Exponentials, WhereTheyOverflowAndUnderflow) {
  for (auto v : variants) {
    EXPECT_EQ(bits_of("expf", v, 8, u32(0x42B17217)), 0x7F7FFF84u);
    EXPECT_EQ(bits_of("expf", v, 8, u32(0x42B17218)), infinity_bits);
    EXPECT_EQ(bits_of("expf", v, 8, u32(0xC2CFF1B4)), 1u);
    EXPECT_EQ(bits_of("expf", v, 8, u32(0xC2CFF1B5)), 0u);
    EXPECT_EQ(bits_of("exp2f", v, 8, 127.0f), 0x7F000000u);
    EXPECT_EQ(bits_of("exp2f", v, 8, 128.0f), infinity_bits);
    EXPECT_EQ(bits_of("exp2f", v, 8, -149.0f), 1u);
    EXPECT_EQ(bits_of("exp2f", v, 8, -150.0f), 0u);
    EXPECT_EQ(bits_of("exp10f", v, 8, 38.0f), std::bit_cast<u32>(1e38f));
    EXPECT_EQ(bits_of("exp10f", v, 8, 38.6f), infinity_bits);
    EXPECT_EQ(bits_of("exp10f", v, 8, -45.0f), 1u);
    EXPECT_EQ(bits_of("exp10f", v, 8, -45.2f), 0u);
  }
}

TEST(Exponentials, Exp2IsExactAtIntegersInAllButTheLightForms) {
  for (int n = -149; n < 128; ++n)
    for (int width : widths)
      for (auto v : {variant::standard, variant::rm})
        EXPECT_EQ(bits_of("exp2f", v, width, float(n)), std::bit_cast<u32>(std::ldexp(1.0f, n)))
            << n << " at " << width;
  EXPECT_NE(bits_of("exp2f", variant::native, 4, 3.0f), std::bit_cast<u32>(8.0f));
  // The exponent is added as an integer, also where the polynomial is below 1 and the exponent the least.
  EXPECT_EQ(bits_of("exp2f", variant::native, 4, -126.0f), 0x007FFB49u);
}

// The library neither reads nor writes the rounding direction, but its overflows are products that follow it; e^x
// alone sets the lanes beyond its range as they are.
TEST(Exponentials, OverflowAndUnderflowFollowTheRoundingDirection) {
  struct direction {
    int mode;
    u32 overflow, underflow;
  };
  constexpr u32 largest_bits = 0x7F7FFFFF;
  for (const auto& [mode, overflow, underflow] :
       {direction{FE_TONEAREST, infinity_bits, 0}, direction{FE_UPWARD, infinity_bits, 1},
        direction{FE_DOWNWARD, largest_bits, 0}, direction{FE_TOWARDZERO, largest_bits, 0}}) {
    ASSERT_EQ(std::fesetround(mode), 0);
    const unsigned control = _mm_getcsr() & 0xFFC0;
    const auto exp2_above = bits_of("exp2f", variant::standard, 8, 200.0f);
    const auto exp2_below = bits_of("exp2f", variant::standard, 8, -200.0f);
    const auto exp10_above = bits_of("exp10f", variant::native, 1, 40.0f);
    const auto exp_above = bits_of("expf", variant::standard, 8, 200.0f);
    const auto exp_below = bits_of("expf", variant::standard, 8, -200.0f);
    const unsigned control_after = _mm_getcsr() & 0xFFC0;
    std::fesetround(FE_TONEAREST);
    EXPECT_EQ(exp2_above, overflow);
    EXPECT_EQ(exp2_below, underflow);
    EXPECT_EQ(exp10_above, overflow);
    EXPECT_EQ(exp_above, infinity_bits);
    EXPECT_EQ(exp_below, 0u);
    EXPECT_EQ(control_after, control);
  }
}

TEST(Exponentials, TablesHaveTheirStatedEntries) {
  const auto bits = [](float v) { return std::bit_cast<u32>(v); };
  EXPECT_EQ(bits(exp2_128[0].hi), one_bits);
  EXPECT_EQ(bits(exp2_128[0].lo), 0u);
  EXPECT_EQ(bits(exp2_128[1].hi), 0x3F80B1EDu);
  EXPECT_EQ(bits(exp2_128[1].lo), 0x331FB333u);
  EXPECT_EQ(bits(exp2_monic_64[0].hi), 0x3E75FDF0u);
  const std::pair<int, u32> lowered[] = {{12, 0x3E8C1100}, {20, 0x3E98BE56}, {29, 0x3EA861BC}, {30, 0x3EAA3720},
                                         {52, 0x3ED8030E}, {58, 0x3EE683DB}, {60, 0x3EEB900C}};
  for (const auto& [j, value] : lowered) EXPECT_EQ(bits(exp2_monic_64[j].hi), value) << j;
}

// Each accuracy variant and standalone form has bits of its own: a form that is routed to another's kernel shows.
TEST(Exponentials, FormsAreToldApartByTheirBits) {
  const auto differing = [](std::string_view name, variant one, int width, variant other, int other_width) {
    const auto index = index_of(name);
    const auto& o = catalogue[index];
    std::vector<arguments> tuples(4096);
    for (std::size_t n = 0; n < tuples.size(); ++n) tuples[n] = {std::bit_cast<u32>(float(n) * 0x1.3p-9f - 1.1f)};
    const auto a = harness::evaluate(o, *library().find(index, one, width), width, tuples);
    const auto b = harness::evaluate(o, *library().find(index, other, other_width), other_width, tuples);
    std::size_t count = 0;
    for (std::size_t n = 0; n < a.size(); ++n) count += a[n].first != b[n].first;
    return double(count) / double(a.size());
  };
  constexpr auto standard = variant::standard, native = variant::native, rm = variant::rm;
  EXPECT_GT(differing("expf", standard, 4, rm, 4), 0.1);
  EXPECT_GT(differing("expf", standard, 4, native, 4), 0.5);
  EXPECT_GT(differing("exp10f", standard, 4, native, 4), 0.5);
  EXPECT_GT(differing("exp2f", standard, 4, rm, 4), 0.2);
  EXPECT_GT(differing("exp2f", standard, 1, rm, 1), 0.02);
  EXPECT_GT(differing("exp2f", standard, 4, standard, 8), 0.2);
  EXPECT_EQ(differing("exp2f", rm, 4, standard, 8), 0);
}

}  // namespace
}  // namespace lanemath::testing
