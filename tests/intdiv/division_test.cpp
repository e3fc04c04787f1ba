// Integer division against the processor's own.
#include <gtest/gtest.h>

#include "intdiv/division.h"
#include "support/call.h"

namespace lanemath::testing {
namespace {

using i32 = std::int32_t;

struct result {
  u32 quotient, remainder;
};
result due(i32 a, i32 b) {
  if (b == 0) return {0x80000000, u32(a)};
  return {u32(std::int64_t(a) / b), u32(std::int64_t(a) % b)};
}
result due(u32 a, u32 b) { return b == 0 ? result{0, a} : result{a / b, a % b}; }

// All pairs of edge values; exact multiples and their neighbours; random pairs.
std::vector<arguments> pairs() {
  std::vector<u32> edges;
  for (int power = 0; power < 32; ++power)
    for (u32 step : {-1u, 0u, 1u})
      for (u32 n : {(1u << power) + step, 0 - ((1u << power) + step)}) edges.push_back(n);
  for (u32 n : {3u, 6u, 10u, 0x55555555u, 0xAAAAAAAAu, 46340u, 46341u, 65537u, 1000000007u}) edges.push_back(n);
  std::vector<arguments> all;
  for (u32 a : edges)
    for (u32 b : edges) all.push_back({a, b});
  std::mt19937 random(3);
  for (int i = 0; i < 60'000; ++i) {
    const u32 b = u32(random()) >> random() % 32;
    const u32 multiple = b * (b ? u32(random()) % (0xFFFFFFFF / b) + 1 : 1);
    for (u32 a : {multiple - 1, multiple, multiple + 1, u32(random())}) {
      all.push_back({a, b});
      all.push_back({0 - a, b});
      all.push_back({a, 0 - b});
    }
  }
  return all;
}

template <class T>
void check(std::string_view prefix) {
  const auto inputs = pairs();
  const auto name = [&](std::string_view end) { return fmt::format("{}{}", prefix, end); };
  for (const auto& direction : harness::directions)
    for (int width : {1, 4, 16}) {
      const harness::rounding in_force(direction.mode);
      const auto quotients = call(name("div"), standard, width, inputs),
                 remainders = call(name("rem"), standard, width, inputs),
                 both = call(name("divrem"), standard, width, inputs);
      for (std::size_t n = 0; n < inputs.size(); ++n) {
        const auto [quotient, remainder] = due(T(inputs[n][0]), T(inputs[n][1]));
        ASSERT_EQ(quotients[n].first, quotient) << T(inputs[n][0]) << " / " << T(inputs[n][1]);
        ASSERT_EQ(remainders[n].first, remainder) << T(inputs[n][0]) << " % " << T(inputs[n][1]);
        ASSERT_EQ(both[n], (outcome{quotient, remainder}));
      }
    }
}

TEST(IntegerDivision, IsTheProcessorsWhereThatHasAResult) {
  check<i32>("i");
  check<u32>("u");
}

TEST(IntegerDivision, GivesStatedResults) {
  const auto signed_pair = [](i32 a, i32 b) { return outcome_of("idivrem", standard, 1, u32(a), u32(b)); };
  const auto unsigned_pair = [](u32 a, u32 b) { return outcome_of("udivrem", standard, 1, a, b); };
  EXPECT_EQ(signed_pair(-7, 2), (outcome{u32(-3), u32(-1)}));
  EXPECT_EQ(signed_pair(7, -2), (outcome{u32(-3), 1}));
  EXPECT_EQ(signed_pair(5, 0), (outcome{0x80000000, 5}));
  EXPECT_EQ(signed_pair(INT32_MIN, -1), (outcome{0x80000000, 0}));
  EXPECT_EQ(unsigned_pair(5, 0), (outcome{0, 5}));
  EXPECT_EQ(unsigned_pair(0xFFFFFFFE, 0xFFFFFFFF), (outcome{0, 0xFFFFFFFE}));
}

// Processors differ in the estimate, within 1.5 * 2^-12 of the reciprocal: 24 of these units.
template <int Units>
struct estimate_off_by {
  template <class V>
  static V of(V x) {
    return (1.0f / x) * (1.0f + Units * 0x1p-16f);
  }
};

template <class T, class Estimate>
void check_estimate() {
  const auto inputs = pairs();
  for (std::size_t n = 0; n + 4 <= inputs.size(); n += 4) {
    lanes<T, 4> a, b;
    for (int i = 0; i < 4; ++i) {
      a.g[0][i] = T(inputs[n + i][0]);
      b.g[0][i] = T(inputs[n + i][1]);
    }
    const auto q = quotient<Estimate>(a, b);
    for (int i = 0; i < 4; ++i)
      ASSERT_EQ(u32(q.g[0][i]), due(a.g[0][i], b.g[0][i]).quotient) << a.g[0][i] << " / " << b.g[0][i];
  }
}

TEST(IntegerDivision, DoesNotDependOnTheEstimatesLowBits) {
  const auto for_types = []<class Estimate>(Estimate) {
    check_estimate<i32, Estimate>();
    check_estimate<u32, Estimate>();
  };
  for_types(estimate_off_by<0>());
  for_types(estimate_off_by<24>());
  for_types(estimate_off_by<-24>());
  for_types(estimate_off_by<10>());
  for_types(estimate_off_by<-3>());
}

}  // namespace
}  // namespace lanemath::testing
