// The frame's own promises, tested with the probe library: every shape at every width.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <functional>
#include <map>

#include "support/lanes_of.h"

namespace lanemath::testing {
namespace {

using u32 = std::uint32_t;
using u64 = std::uint64_t;

// What one lane of a probe operation gives, in plain scalar arithmetic.
template <class T>
struct model {
  using I = std::conditional_t<sizeof(T) == 4, u32, u64>;
  static T value(u64 pattern) { return std::bit_cast<T>(I(pattern)); }
  static u64 bits(T v) { return std::bit_cast<I>(v); }
  static bool rare(u64 pattern) {
    if constexpr (sizeof(T) == 4)
      return (pattern & 0x7FFFFFFF) > 0x49742400;
    else
      return (pattern >> 32 & 0x7FFFFFFF) > 0x412E8480;
  }
  static u32 folded(u64 pattern) { return sizeof(T) == 4 ? u32(pattern) : u32(pattern >> 32) ^ u32(pattern); }

  static outcome unary(const arguments& a) {
    const T x = value(a[0]);
    return {bits(rare(a[0]) ? 3 * x : x + x)};
  }
  static outcome binary(const arguments& a) {
    const T x = value(a[0]), y = value(a[1]);
    T z = x - y;
    if (rare(a[0]) || rare(a[1])) z += 3 * x + y;
    return {bits(z)};
  }
  static outcome ternary(const arguments& a) {
    const T x = value(a[0]), y = value(a[1]), z = value(a[2]);
    return {bits((x + y + z) + (4 * x + 2 * y + z))};
  }
  static outcome with_int(const arguments& a) {
    const auto n = std::int32_t(a[1]);
    if (rare(a[0])) return {bits(3 * value(a[0]) + T(n))};
    return {I(a[0] ^ I(std::int64_t(n)))};
  }
  static outcome to_int(const arguments& a) { return {folded(a[0]) ^ u32(rare(a[0]))}; }
  static outcome second(const arguments& a) {
    const T x = value(a[0]);
    return rare(a[0]) ? outcome{bits(3 * x), bits(x * x + 5)} : outcome{bits(x + x), bits(x * x)};
  }
  static outcome second_int(const arguments& a) { return {unary(a).first, to_int(a).first}; }
  static outcome binary_second_int(const arguments& a) {
    return {binary(a).first, (folded(a[0]) ^ folded(a[1])) ^ u32(rare(a[0]) || rare(a[1]))};
  }
};

const std::map<std::string_view, outcome (*)(const arguments&)> models{
    {"expf", model<float>::unary},
    {"expm1", model<double>::unary},
    {"powf", model<float>::binary},
    {"pow", model<double>::binary},
    {"fmaf", model<float>::ternary},
    {"fma", model<double>::ternary},
    {"ldexpf", model<float>::with_int},
    {"ldexp", model<double>::with_int},
    {"ilogbf", model<float>::to_int},
    {"ilogb", model<double>::to_int},
    {"sincosf", model<float>::second},
    {"sincos", model<double>::second},
    {"frexpf", model<float>::second_int},
    {"frexp", model<double>::second_int},
    {"lgammar", model<double>::second_int},
    {"remquof", model<float>::binary_second_int},
    {"remquo", model<double>::binary_second_int},
    {"sincosregf", model<float>::second},
    {"sincosreg", model<double>::second},
    {"idivrem",
     [](const arguments& a) {
       return outcome{u32(a[0] + a[1]), u32(a[0] - a[1])};
     }},
    {"udivrem",
     [](const arguments& a) {
       return outcome{u32(a[0] + a[1]), u32(a[0] - a[1])};
     }},
    {"nanf", [](const arguments& a) { return outcome{a[0]}; }},
    {"nan", [](const arguments& a) { return outcome{a[0]}; }},
    {"cvtfptoi64rtesatf", [](const arguments& a) { return outcome{u64(std::int64_t(std::int32_t(a[0])))}; }},
    {"cvtfptou64rtesatf", [](const arguments& a) { return outcome{a[0]}; }},
    {"cvtfptoi32rtesat", [](const arguments& a) { return outcome{u32(a[0])}; }},
    {"cvti64tofprtef", [](const arguments& a) { return outcome{a[0] >> 32}; }},
    {"cvti32tofprte", [](const arguments& a) { return outcome{u64(std::int64_t(std::int32_t(a[0])))}; }},
    {"cvtfp64tofp32rte", [](const arguments& a) { return outcome{u32(a[0] >> 32) ^ u32(a[0])}; }},
};

// Finite values with few significant bits, so that the model's sums are exact in any order; `rare` says how many out of
// eight lie beyond the probes' bound.
std::vector<arguments> values(const operation& o, std::size_t count, int rare) {
  std::mt19937_64 random(count + rare);
  std::vector<arguments> all(count);
  for (auto& tuple : all)
    for (int i = 0; i < o.sig.arity(); ++i) {
      const bool big = int(random() % 8) < rare;
      const double v = double(std::int64_t(random() % 2000) - 1000) + (big ? 3'000'000 : 0);
      switch (o.sig.arguments[i]) {
        case lane::f32: tuple[i] = model<float>::bits(float(v)); break;
        case lane::f64: tuple[i] = model<double>::bits(v); break;
        default: tuple[i] = size_of(o.sig.arguments[i]) == 4 ? u32(random() % 100'000) : random();
      }
    }
  return all;
}

class Frame : public ::testing::TestWithParam<std::string_view> {
 protected:
  const std::size_t index = index_of(GetParam());
  const operation& o = catalogue[index];
  outcome expected(const arguments& a) const { return models.at(o.name())(a); }

  static const harness::library& probe() {
    static const harness::library loaded(LANEMATH_PROBE);
    return loaded;
  }
};

TEST_P(Frame, EveryLaneAtEveryWidthWithNoneSomeAndAllLanesRare) {
  for (int rare : {0, 1, 4, 8})
    for (int width : widths) {
      const auto tuples = values(o, 480, rare);
      const auto f = probe().find(index, variant::standard, width);
      ASSERT_TRUE(f);
      // Lane 3 of a width-3 vector is never read.
      const auto got = harness::evaluate(o, *f, width, tuples, signalling_nan(o.sig.arguments[0]));
      for (std::size_t n = 0; n < tuples.size(); ++n)
        ASSERT_EQ(got[n], expected(tuples[n])) << o.name() << width << " of " << text_of(o, tuples[n]);
    }
}

TEST_P(Frame, LaneThreeOfWidthThreeIsTheValueAtTheFiller) {
  const auto f = probe().find(index, variant::standard, 3);
  ASSERT_TRUE(f);
  arguments filler{};
  for (int i = 0; i < o.sig.arity(); ++i) {
    const lane l = o.sig.arguments[i];
    filler[i] = l == lane::f32   ? model<float>::bits(float(o.filler))
                : l == lane::f64 ? model<double>::bits(o.filler)
                                 : u64(o.filler);
  }
  std::array<std::array<u64, 4>, 3> inputs;
  for (auto& input : inputs) input.fill(~u64(0));
  std::array<u64, 4> first{}, second{};
  const std::array<const void*, 3> from{&inputs[0], &inputs[1], &inputs[2]};
  f->call(from.data(), &first, &second, 4);
  const auto lane3 = [](const auto& of, lane l) {
    u64 pattern = 0;
    std::memcpy(&pattern, reinterpret_cast<const std::byte*>(&of) + 3 * size_of(l), size_of(l));
    return pattern;
  };
  const auto due = expected(filler);
  EXPECT_EQ(lane3(first, o.sig.result), due.first);
  if (o.sig.how != delivery::none) {
    EXPECT_EQ(lane3(second, o.sig.second), due.second);
  }
}

std::vector<std::string_view> names() {
  std::vector<std::string_view> all;
  for (const auto& [name, model] : models) all.push_back(name);
  return all;
}
INSTANTIATE_TEST_SUITE_P(Shapes, Frame, ::testing::ValuesIn(names()),
                         [](const auto& info) { return std::string(info.param); });

}  // namespace
}  // namespace lanemath::testing
