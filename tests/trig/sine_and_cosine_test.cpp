// Stated results of sine and cosine at stated inputs, and where their stages meet.
#include <gtest/gtest.h>

#include "support/call.h"
#include "tables/trig.h"

namespace lanemath::testing {
namespace {

constexpr auto forms = {standard, native};

TEST(SineAndCosine, OfZerosInfinitiesAndNaNs) {
  struct precision {
    std::string_view sine, cosine, both, pair;
    u64 sign, infinity, one, quiet;
  };
  for (const auto& p :
       {precision{"sinf", "cosf", "sincosf", "sincosregf", 0x80000000, 0x7F800000, 0x3F800000, 0x400000},
        precision{"sin", "cos", "sincos", "sincosreg", 0x8000000000000000, 0x7FF0000000000000, 0x3FF0000000000000,
                  0x8000000000000}})
    for (auto v : forms)
      for (int width : widths)
        for (auto sign : {u64(0), p.sign}) {
          SCOPED_TRACE(fmt::format("{}{}{}", p.sine, width, suffix(v)));
          const auto expect = [&](u64 x, u64 sine, u64 cosine) {
            EXPECT_EQ(bits_of(p.sine, v, width, x), sine);
            EXPECT_EQ(bits_of(p.cosine, v, width, x), cosine);
            EXPECT_EQ(outcome_of(p.both, v, width, x), (outcome{sine, cosine}));
            EXPECT_EQ(outcome_of(p.pair, v, width, x), (outcome{sine, cosine}));
          };
          expect(sign, sign, p.one);
          const u64 made = p.sign | p.infinity | p.quiet;  // the processor's own NaN
          expect(sign | p.infinity, made, made);
          const u64 signalling = sign | p.infinity | 0x123;
          expect(signalling, signalling | p.quiet, signalling | p.quiet);
        }
}

TEST(SineAndCosine, OfTinyArguments) {
  EXPECT_EQ(bits_of("sinf", standard, 4, 0x00000001), 0x00000001u);
  EXPECT_EQ(bits_of("sinf", standard, 4, 0x80000123), 0x80000123u);
  EXPECT_EQ(bits_of("cosf", standard, 4, 0x00000001), 0x3F800000u);
  EXPECT_EQ(bits_of("cos", standard, 2, 1), 0x3FF0000000000000u);
}

// Up to the bound the native polynomial; above it a stage that rounds almost correctly.
TEST(SineAndCosine, TheLightDoubleFormsEndAtTheBound) {
  const auto differ = [](std::string_view name, u64 x) {
    return outcome_of(name, standard, 2, x) != outcome_of(name, native, 2, x);
  };
  EXPECT_TRUE(differ("sin", 0x4170000000000000));
  EXPECT_TRUE(differ("sincos", 0x4160000000000000));
  EXPECT_FALSE(differ("sincos", 0x7FE0000000000000));
  EXPECT_TRUE(differ("cos", 0x4160000000000001));  // pi/2 below it
}

TEST(SineAndCosine, PairsAndPointersDeliverTheSame) {
  for (const auto& [one, other] : {std::pair("sincosf", "sincosregf"), std::pair("sincos", "sincosreg")})
    for (auto v : forms)
      for (int width : widths) {
        const auto tuples = mixed_tuples(catalogue[index_of(one)], 12'000);
        EXPECT_EQ(call(one, v, width, tuples), call(other, v, width, tuples)) << one << width;
      }
}

TEST(SineAndCosine, TablesHaveTheirStatedEntries) {
  for (int j : {0, 64, 128, 192}) {
    EXPECT_EQ(sincos_256[j][0], 0);
    EXPECT_EQ(sincos_256[j][2], 0);
  }
  EXPECT_EQ(sincos_256[64][3], 0);
  const std::pair<int, float> heads[] = {{32, 1},       {33, 0.5f},     {49, 0.5f}, {50, 0.25f}, {57, 0.125f},
                                         {61, 0.0625f}, {63, 0.03125f}, {96, -1},   {160, -1},   {224, 1}};
  for (const auto& [j, head] : heads) EXPECT_EQ(sincos_256[j][3], head) << j;
  EXPECT_EQ(sincos_512[58][1], 1);
  EXPECT_EQ(sincos_512[59][1], 0.5);
  EXPECT_EQ(sincos_512[97][1], 0.25);
  EXPECT_EQ(pattern(sincos_64[16][3]), 0x8000000000000000);
  for (int e = 0; e <= 56; ++e) EXPECT_EQ(inverse_turn_window_f32[e][2], 0u) << e;
  EXPECT_NE(inverse_turn_window_f32[57][2], 0u);
}

}  // namespace
}  // namespace lanemath::testing
