// Properties that hold between results, without a reference.
#include <gtest/gtest.h>

#include "support/lanes_of.h"
#include "support/library.h"

namespace lanemath::testing {
namespace {

using u64 = std::uint64_t;

// Functions that work on the magnitude and restore the sign, or drop it, have the same bits on both sides of zero.
TEST(Properties, OddAndEvenFunctionsAreSoToTheLastBit) {
  std::mt19937_64 random(7);
  for (std::size_t index = 0; index < catalogue.size(); ++index) {
    const auto& o = catalogue[index];
    if (o.symmetry == parity::none) continue;
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
      if (value(p) <= o.symmetric_to) right.push_back({p});
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
          ASSERT_EQ(at_left[n].first, o.symmetry == parity::odd ? y ^ sign : y)
              << o.name() << width << suffix(v) << " of " << text_of(o, right[n]);
        }
      }
  }
}

// How changed arguments change a result that is an ordinary number: compared by bits.
struct relation {
  std::string_view operation;
  void (*other)(arguments&);  // derived from the first
  double factor;              // of the other result
};
template <class T, class F>
void change(u64& pattern, F f) {
  using bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, u64>;
  pattern = std::bit_cast<bits>(T(f(std::bit_cast<T>(bits(pattern)))));
}
template <class T>
void negate_first(arguments& a) {
  change<T>(a[0], [](T x) { return -x; });
}
template <class T>
void eightfold(arguments& a) {
  change<T>(a[0], [](T x) { return 8 * x; });
}
// One turn further, where the sum is exact: the arguments are multiples of 2^-12 below 64.
template <class T>
void turn_on(arguments& a) {
  change<T>(a[0], [](T x) { return x + 2; });
}
constexpr relation relations[] = {
    {"cbrt", eightfold<double>, 2},        {"cbrtf", eightfold<float>, 2},        {"rcbrt", eightfold<double>, 0.5},
    {"rcbrtf", eightfold<float>, 0.5},     {"sinpi", turn_on<double>, 1},         {"sinpif", turn_on<float>, 1},
    {"cospi", turn_on<double>, 1},         {"cospif", turn_on<float>, 1},         {"tanpi", turn_on<double>, 1},
    {"tanpif", turn_on<float>, 1},         {"atan2", negate_first<double>, -1},   {"atan2f", negate_first<float>, -1},
    {"atan2pi", negate_first<double>, -1}, {"atan2pif", negate_first<float>, -1},
};

TEST(Properties, ScalingPeriodsAndReflectionsKeepTheBits) {
  std::mt19937_64 random(11);
  for (const auto& r : relations) {
    const auto index = index_of(r.operation);
    const auto& o = catalogue[index];
    const bool narrow = o.sig.result == lane::f32;
    std::vector<arguments> one(4'800), other;
    for (auto& tuple : one)
      for (int i = 0; i < o.sig.arity(); ++i) {
        const double x = double(std::int64_t(random() % 524287) - 262143) * 0x1p-12;
        tuple[i] = narrow ? std::bit_cast<std::uint32_t>(float(x)) : std::bit_cast<u64>(x);
      }
    other = one;
    for (auto& tuple : other) r.other(tuple);
    const auto value = [&](u64 p) {
      return narrow ? double(std::bit_cast<float>(std::uint32_t(p))) : std::bit_cast<double>(p);
    };
    for (auto v : variants)
      for (int width : widths) {
        const auto f = library().find(index, v, width);
        if (!f) continue;
        const auto a = harness::evaluate(o, *f, width, one), b = harness::evaluate(o, *f, width, other);
        for (std::size_t n = 0; n < one.size(); ++n) {
          if (!std::isfinite(value(a[n].first)) || value(a[n].first) == 0) continue;
          ASSERT_EQ(value(b[n].first), value(a[n].first) * r.factor)
              << r.operation << width << suffix(v) << " of " << text_of(o, one[n]);
        }
      }
  }
}

// Odd roots and powers of negative numbers are those of the magnitude, with the sign.
TEST(Properties, OddPowersKeepTheSign) {
  std::mt19937_64 random(13);
  for (std::string_view name : {"pown", "pownf", "rootn", "rootnf"}) {
    const auto index = index_of(name);
    const auto& o = catalogue[index];
    const u64 sign = o.sig.result == lane::f32 ? 0x80000000 : u64(1) << 63;
    std::vector<arguments> right(4'800);
    for (auto& tuple : right) {
      const double x = std::ldexp(1 + double(random() >> 12) * 0x1p-52, int(random() % 40) - 20);
      tuple[0] = sign == 0x80000000 ? std::bit_cast<std::uint32_t>(float(x)) : std::bit_cast<u64>(x);
      tuple[1] = std::uint32_t(int(random() % 200) - 100) | 1;
    }
    auto left = right;
    for (auto& tuple : left) tuple[0] |= sign;
    for (auto v : variants)
      for (int width : widths) {
        const auto f = library().find(index, v, width);
        if (!f) continue;
        const auto a = harness::evaluate(o, *f, width, right), b = harness::evaluate(o, *f, width, left);
        for (std::size_t n = 0; n < right.size(); ++n) {
          if (a[n].first == 0) continue;  // an underflow may lose its sign
          ASSERT_EQ(b[n].first, a[n].first | sign) << name << width << suffix(v) << " of " << text_of(o, right[n]);
        }
      }
  }
}

// An operation that adds a second result to another operation's has the same first one.
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
