// Stated results of sine and cosine at stated inputs, and where their stages meet.
#include <gtest/gtest.h>

#include <bit>

#include "support/lanes_of.h"
#include "support/library.h"
#include "tables/trig.h"

namespace lanemath::testing {
namespace {

// One lane's results, the other lanes holding the same value.
outcome of(std::string_view name, variant v, int width, std::uint64_t pattern) {
  const auto index = index_of(name);
  const std::vector<arguments> tuples(width, arguments{pattern});
  return harness::evaluate(catalogue[index], library().find(index, v, width).value(), width, tuples)[0];
}

constexpr auto forms = {variant::standard, variant::native};

TEST(SineAndCosine, OfZerosInfinitiesAndNaNs) {
  struct precision {
    std::string_view sine, cosine, both, pair;
    std::uint64_t sign, infinity, one, quiet;
  };
  for (const auto& p :
       {precision{"sinf", "cosf", "sincosf", "sincosregf", 0x80000000, 0x7F800000, 0x3F800000, 0x400000},
        precision{"sin", "cos", "sincos", "sincosreg", 0x8000000000000000, 0x7FF0000000000000, 0x3FF0000000000000,
                  0x8000000000000}})
    for (auto v : forms)
      for (int width : widths)
        for (auto sign : {std::uint64_t(0), p.sign}) {
          SCOPED_TRACE(fmt::format("{}{}{}", p.sine, width, suffix(v)));
          const auto expect = [&](std::uint64_t x, std::uint64_t sine, std::uint64_t cosine) {
            EXPECT_EQ(of(p.sine, v, width, x).first, sine);
            EXPECT_EQ(of(p.cosine, v, width, x).first, cosine);
            EXPECT_EQ(of(p.both, v, width, x), (outcome{sine, cosine}));
            EXPECT_EQ(of(p.pair, v, width, x), (outcome{sine, cosine}));
          };
          expect(sign, sign, p.one);
          const std::uint64_t made = p.sign | p.infinity | p.quiet;  // the processor's own NaN
          expect(sign | p.infinity, made, made);
          const std::uint64_t signalling = sign | p.infinity | 0x123;
          expect(signalling, signalling | p.quiet, signalling | p.quiet);
        }
}

TEST(SineAndCosine, OfTinyArguments) {
  EXPECT_EQ(of("sinf", variant::standard, 4, 0x00000001).first, 0x00000001u);
  EXPECT_EQ(of("sinf", variant::standard, 4, 0x80000123).first, 0x80000123u);
  EXPECT_EQ(of("cosf", variant::standard, 4, 0x00000001).first, 0x3F800000u);
  EXPECT_EQ(of("cos", variant::standard, 2, 1).first, 0x3FF0000000000000u);
}

// Up to the bound the light polynomial, above it a stage that rounds almost correctly.
TEST(SineAndCosine, TheLightDoubleFormsEndAtTheBound) {
  const auto differ = [](std::string_view name, std::uint64_t x) {
    return of(name, variant::standard, 2, x) != of(name, variant::native, 2, x);
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
        const auto a = index_of(one), b = index_of(other);
        const auto tuples = mixed_tuples(catalogue[a], 12'000);
        EXPECT_EQ(harness::evaluate(catalogue[a], *library().find(a, v, width), width, tuples),
                  harness::evaluate(catalogue[b], *library().find(b, v, width), width, tuples))
            << one << width;
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
  EXPECT_EQ(std::bit_cast<std::uint64_t>(sincos_64[16][3]), 0x8000000000000000);
  for (int e = 0; e <= 56; ++e) EXPECT_EQ(inverse_turn_window_f32[e][2], 0u) << e;
  EXPECT_NE(inverse_turn_window_f32[57][2], 0u);
}

}  // namespace
}  // namespace lanemath::testing
