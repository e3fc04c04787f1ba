// Conversions against what the processor and x87 arithmetic give for the same values, in every direction, and stated
// results at stated inputs.
#include <gtest/gtest.h>

#include <limits>

#include "support/call.h"

namespace lanemath::testing {
namespace {

struct rounding {
  std::string_view name;
  int mode;
};
constexpr rounding roundings[] = {
    {"rte", FE_TONEAREST}, {"rtn", FE_DOWNWARD}, {"rtp", FE_UPWARD}, {"rtz", FE_TOWARDZERO}};

std::vector<outcome> evaluate(std::string_view name, int width, const std::vector<arguments>& tuples,
                              int mode = FE_TONEAREST) {
  return in_direction(mode, [&] { return call(name, standard, width, tuples); });
}

// A few steps around each bound, halves of all sizes, special and random patterns.
template <class T>
std::vector<arguments> floating_inputs() {
  constexpr int bits = 8 * sizeof(T), exponent = sizeof(T) == 4 ? 23 : 52;
  std::vector<arguments> all;
  const auto add = [&](u64 p) {
    p &= ~u64(0) >> (64 - bits);
    all.push_back({p});
    all.push_back({p ^ u64(1) << (bits - 1)});
  };
  for (auto p : special_patterns(sizeof(T) == 4 ? lane::f32 : lane::f64)) add(p);
  for (int power :
       {-150, -149, -127, -126, -2, -1, 0, 1, 2, 22, 23, 24, 30, 31, 32, 33, 51, 52, 53, 62, 63, 64, 65, 127})
    for (int step = -6; step <= 6; ++step) {
      add(pattern(T(std::ldexp(1.0, power))) + u64(step));
      add(pattern(T(std::ldexp(1.0, power) + step * 0.5)));
      if (sizeof(T) == 8) add(pattern(std::ldexp(1.0, power)) + u64(step) * 0x10000000);  // halves of a float's ulp
    }
  std::mt19937_64 random(1);
  while (all.size() < 60'000) {
    add(random() >> (64 - bits));
    add(pattern(T(std::ldexp(double(random() >> 11), -int(random() % 60)))));
    const u64 one = u64(sizeof(T) == 4 ? 0x7F : 0x3FF) << exponent;
    add((one + (random() % 70 << exponent) + (random() & ((u64(1) << exponent) - 1))) &
        (~u64(0) << random() % exponent));
  }
  return all;
}

std::vector<arguments> integer_inputs(int bits) {
  std::vector<arguments> all;
  const auto add = [&](u64 n) {
    for (u64 v : {n, 0 - n}) all.push_back({bits == 32 ? u64(u32(v)) : v});
  };
  for (int power = 0; power < bits; ++power)
    for (int step = -3; step <= 3; ++step) add((u64(1) << power) + u64(step));
  std::mt19937_64 random(2);
  while (all.size() < 60'000) {
    add(random() >> random() % 64);
    // On and next to a tie of 24 or 53 bits.
    const int kept = random() % 2 ? 24 : 53, below = int(random() % 40);
    add(((random() >> (64 - kept) << 1 | 1) << below) + random() % 3 - 1);
  }
  return all;
}

template <class T>
T rounded(T x, std::string_view rounding) {
  if (rounding == "rte") return std::nearbyint(x);
  if (rounding == "rtn") return std::floor(x);
  if (rounding == "rtp") return std::ceil(x);
  return std::trunc(x);
}

// What does not fit follows a rule for its type; in range the result is an exact integer.
template <class I, class T>
u64 due_integer(T x, std::string_view rounding, bool saturated) {
  constexpr bool is_signed = std::is_signed_v<I>;
  using limits = std::numeric_limits<I>;
  using U = std::make_unsigned_t<I>;
  const U indefinite = U(1) << (8 * sizeof(I) - 1);
  if (std::isnan(x)) {
    if (!saturated) return indefinite;
    return sizeof(I) == 4 && !is_signed && !std::signbit(x) ? limits::max() : 0;
  }
  long double r = rounded(x, rounding);
  if (!is_signed && !saturated) r = std::fabs(r);
  if (r > static_cast<long double>(limits::max())) return saturated ? U(limits::max()) : indefinite;
  if (r < static_cast<long double>(limits::min())) return saturated ? U(limits::min()) : indefinite;
  return U(static_cast<I>(r));
}

template <class I, class T>
void check_to_integer(std::string_view type) {
  const auto inputs = floating_inputs<T>();
  for (const auto& [rounding, own_mode] : roundings)
    for (bool saturated : {false, true}) {
      const auto name =
          fmt::format("cvtfpto{}{}{}{}", type, rounding, saturated ? "sat" : "nosat", sizeof(T) == 4 ? "f" : "");
      for (const auto& in_force : roundings) {
        const auto got = evaluate(name, in_force.mode == FE_TONEAREST ? 1 : 16, inputs, in_force.mode);
        for (std::size_t n = 0; n < inputs.size(); ++n)
          ASSERT_EQ(got[n].first, (due_integer<I, T>(value<T>(inputs[n][0]), rounding, saturated)))
              << name << " of 0x" << std::hex << inputs[n][0] << " under " << in_force.name;
      }
    }
}

TEST(FloatingToInteger, IsExactOrTheRuleForWhatDoesNotFit) {
  check_to_integer<std::int32_t, float>("i32");
  check_to_integer<std::int32_t, double>("i32");
  check_to_integer<std::uint32_t, float>("u32");
  check_to_integer<std::uint32_t, double>("u32");
  check_to_integer<std::int64_t, float>("i64");
  check_to_integer<std::int64_t, double>("i64");
  check_to_integer<std::uint64_t, float>("u64");
  check_to_integer<std::uint64_t, double>("u64");
}

TEST(FloatingToInteger, GivesStatedResults) {
  EXPECT_EQ(bits_of("cvtfptoi32rtznosatf", standard, 1, 3e9f), 0x80000000u);
  EXPECT_EQ(bits_of("cvtfptoi32rtzsatf", standard, 1, 3e9f), 0x7FFFFFFFu);
  EXPECT_EQ(bits_of("cvtfptoi32rtzsatf", standard, 1, -3e9f), 0x80000000u);
  EXPECT_EQ(bits_of("cvtfptoi32rtpsat", standard, 1, 2147483647.5), 0x7FFFFFFFu);
  EXPECT_EQ(bits_of("cvtfptoi32rtnsat", standard, 1, 2147483647.5), 0x7FFFFFFFu);
  EXPECT_EQ(bits_of("cvtfptou32rtznosatf", standard, 1, -5.5f), 5u);
  EXPECT_EQ(bits_of("cvtfptou32rtnnosatf", standard, 1, -5.5f), 6u);
  EXPECT_EQ(bits_of("cvtfptou32rtzsatf", standard, 1, -5.5f), 0u);
  EXPECT_EQ(bits_of("cvtfptou32rtnnosatf", standard, 1, -0.5f), 1u);
  EXPECT_EQ(bits_of("cvtfptou32rtznosatf", standard, 1, -0.5f), 0u);
  EXPECT_EQ(bits_of("cvtfptou32rtznosatf", standard, 1, 4294967040.0f), 0xFFFFFF00u);
  EXPECT_EQ(bits_of("cvtfptou32rtznosatf", standard, 1, 4294967296.0f), 0x80000000u);
  EXPECT_EQ(bits_of("cvtfptou32rtznosat", standard, 1, 4294967295.5), 0xFFFFFFFFu);
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(bits_of("cvtfptou32rtzsatf", standard, 1, nan), 0xFFFFFFFFu);
  EXPECT_EQ(bits_of("cvtfptou32rtzsatf", standard, 1, -nan), 0u);
  EXPECT_EQ(bits_of("cvtfptou64rtzsatf", standard, 1, nan), 0u);
  EXPECT_EQ(bits_of("cvtfptoi32rtzsatf", standard, 1, nan), 0u);
  EXPECT_EQ(bits_of("cvtfptoi64rtzsat", standard, 1, 9.3e18), 0x7FFFFFFFFFFFFFFFu);
  EXPECT_EQ(bits_of("cvtfptoi64rtzsat", standard, 1, -9.3e18), 0x8000000000000000u);
  EXPECT_EQ(bits_of("cvtfptou64rtznosat", standard, 1, 0x1p63), 0x8000000000000000u);
  EXPECT_EQ(bits_of("cvtfptou64rtznosat", standard, 1, 0x1p64), 0x8000000000000000u);
}

// x87 arithmetic holds every 64-bit integer and rounds once, in its own direction.
template <class T>
u64 due_floating(long double exact, int mode) {
  volatile long double hidden = exact;
  return in_direction(mode, [&] {
    volatile T narrow = static_cast<T>(hidden);
    return pattern(T(narrow));
  });
}

template <class I, class T>
void check_from_integer(std::string_view type) {
  const auto inputs = integer_inputs(8 * sizeof(I));
  for (const auto& [rounding, mode] : roundings) {
    const auto name = fmt::format("cvt{}tofp{}{}", type, rounding, sizeof(T) == 4 ? "f" : "");
    const auto got = evaluate(name, 8, inputs);
    for (std::size_t n = 0; n < inputs.size(); ++n)
      ASSERT_EQ(got[n].first, due_floating<T>(static_cast<I>(inputs[n][0]), mode)) << name << " of " << inputs[n][0];
  }
}

TEST(IntegerToFloating, RoundsOnceInTheDirectionOfTheName) {
  check_from_integer<std::int32_t, float>("i32");
  check_from_integer<std::int32_t, double>("i32");
  check_from_integer<std::uint32_t, float>("u32");
  check_from_integer<std::uint32_t, double>("u32");
  check_from_integer<std::int64_t, float>("i64");
  check_from_integer<std::int64_t, double>("i64");
  check_from_integer<std::uint64_t, float>("u64");
  check_from_integer<std::uint64_t, double>("u64");
}

// The sum of two fields is a plain addition.
TEST(IntegerToFloating, ToNearestFollowsTheDirectionInForce) {
  const auto inputs = integer_inputs(32);
  for (const auto& direction : roundings) {
    const auto got = evaluate("cvtu32tofprtef", 4, inputs, direction.mode);
    for (std::size_t n = 0; n < inputs.size(); ++n) {
      if (inputs[n][0] == 0) continue;
      ASSERT_EQ(got[n].first, due_floating<float>(u32(inputs[n][0]), direction.mode)) << direction.name;
    }
  }
}

TEST(DoubleToFloat, RoundsInTheDirectionOfTheNameWhateverIsInForce) {
  const auto inputs = floating_inputs<double>();
  for (const auto& [rounding, mode] : roundings)
    for (const auto& in_force : roundings) {
      const auto name = fmt::format("cvtfp64tofp32{}", rounding);
      const auto got = evaluate(name, 4, inputs, in_force.mode);
      for (std::size_t n = 0; n < inputs.size(); ++n) {
        const u64 p = inputs[n][0];
        const auto x = value<double>(p);
        const u64 due = std::isnan(x) ? (p >> 32 & 0x80000000) | 0x7FC00000 | (p >> 29 & 0x3FFFFF)
                                      : due_floating<float>(x, mode == FE_TONEAREST ? in_force.mode : mode);
        ASSERT_EQ(got[n].first, due) << name << " of 0x" << std::hex << p << " under " << in_force.name;
      }
    }
}

}  // namespace
}  // namespace lanemath::testing
