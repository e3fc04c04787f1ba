// Properties that hold between results, or around a call, without a reference.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include "support/lanes_of.h"
#include "support/library.h"

namespace lanemath::testing {
namespace {

using u64 = std::uint64_t;

// The control bits of MXCSR and the x87 control word.
struct control_words {
  std::uint32_t mxcsr;
  std::uint16_t x87;
  bool operator==(const control_words&) const = default;

  static control_words now() {
    control_words found{_mm_getcsr() & 0xFFC0, 0};
    asm volatile("fnstcw %0" : "=m"(found.x87));
    return found;
  }
  void set() const {
    _mm_setcsr(mxcsr);
    asm volatile("fldcw %0" ::"m"(x87));
  }
};

// Whatever is in force: here every direction, and x87 at each of its precisions.
TEST(Properties, FunctionsLeaveTheControlWordsAlone) {
  const auto usual = control_words::now();
  for_each_built(library(), [&](std::size_t index, const operation& o, variant v) {
    const auto tuples = mixed_tuples(o, 192);
    for (int width : widths) {
      const auto f = library().find(index, v, width).value();
      for (std::uint32_t direction = 0; direction < 4; ++direction) {
        const std::uint16_t precision = direction == 0 ? 0x300 : direction == 1 ? 0x200 : 0;
        const control_words before{0x1F80 | direction << 13, std::uint16_t(0x7F | precision | direction << 10)};
        before.set();
        const auto got = harness::evaluate(o, f, width, tuples);
        const auto after = control_words::now();
        usual.set();
        ASSERT_EQ(after, before) << o.name() << width << suffix(v) << " in direction " << direction;
      }
    }
  });
}

// Functions that work on the magnitude and put the sign back, or drop it, have the same bits on both sides of zero.
struct symmetry {
  std::string_view operation;
  bool odd;
  double limit = HUGE_VAL;  // the large stage takes the signed argument
};
constexpr symmetry symmetries[] = {
    {"sin", true},     {"sinf", true, 10000}, {"tan", true},    {"tanf", true, 8256}, {"cos", false},
    {"sinpi", true},   {"sinpif", true},      {"tanpi", true},  {"tanpif", true},     {"cospi", false},
    {"cospif", false}, {"asin", true},        {"asinf", true},  {"asinpi", true},     {"asinpif", true},
    {"atan", true},    {"atanf", true},       {"atanpi", true}, {"atanpif", true},    {"sinh", true},
    {"sinhf", true},   {"cosh", false},       {"coshf", false}, {"tanh", true},       {"tanhf", true},
    {"asinh", true},   {"asinhf", true},      {"atanh", true},  {"atanhf", true},     {"cbrt", true},
    {"cbrtf", true},   {"rcbrt", true},       {"rcbrtf", true}, {"erf", true},        {"erff", true},
};

TEST(Properties, OddAndEvenFunctionsAreSoToTheLastBit) {
  std::mt19937_64 random(7);
  for (const auto& s : symmetries) {
    const auto index = index_of(s.operation);
    const auto& o = catalogue[index];
    const bool narrow = o.sig.result == lane::f32;
    const u64 sign = narrow ? 0x80000000 : u64(1) << 63;
    const auto value = [&](u64 p) {
      return narrow ? double(std::bit_cast<float>(std::uint32_t(p))) : std::bit_cast<double>(p);
    };
    // Half of them anywhere, half of ordinary size.
    std::vector<arguments> right;
    while (right.size() < 12'000) {
      const double x = std::ldexp(double(random() >> 12), -52 - int(random() % 16) + 8);
      const u64 any = narrow ? random() >> 33 : random() >> 1;
      const u64 p = random() % 2 ? any : narrow ? std::bit_cast<std::uint32_t>(float(x)) : std::bit_cast<u64>(x);
      if (value(p) <= s.limit) right.push_back({p});
    }
    auto left = right;
    for (auto& tuple : left) tuple[0] |= sign;
    for (auto v : variants)
      for (int width : widths) {
        const auto f = library().find(index, v, width);
        if (!f) continue;
        const auto at_right = harness::evaluate(o, *f, width, right), at_left = harness::evaluate(o, *f, width, left);
        for (std::size_t n = 0; n < right.size(); ++n) {
          const u64 y = at_right[n].first;
          if (std::isnan(value(y)) || value(y) == 0) continue;
          ASSERT_EQ(at_left[n].first, s.odd ? y ^ sign : y)
              << s.operation << width << suffix(v) << " of " << text_of(o, right[n]);
        }
      }
  }
}

// An operation that returns a second result beside the one of another has the same first one.
TEST(Properties, SecondResultsChangeNothing) {
  for (const auto& [one, other] : {std::pair("lgamma", "lgammar"), std::pair("lgammaf", "lgammarf"),
                                   std::pair("sincos", "sincosreg"), std::pair("sincosf", "sincosregf")}) {
    const auto first = index_of(one), second = index_of(other);
    const auto tuples = mixed_tuples(catalogue[first], 4'800);
    for (int width : widths) {
      const auto a =
          harness::evaluate(catalogue[first], *library().find(first, variant::standard, width), width, tuples);
      const auto b =
          harness::evaluate(catalogue[second], *library().find(second, variant::standard, width), width, tuples);
      for (std::size_t n = 0; n < tuples.size(); ++n)
        ASSERT_EQ(a[n].first, b[n].first) << one << width << " of " << text_of(catalogue[first], tuples[n]);
    }
  }
}

}  // namespace
}  // namespace lanemath::testing
