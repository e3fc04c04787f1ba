// The lane operations that kernels are written in, at every width, against the same scalar arithmetic: a program for
// each level.
#include "frame/lanes.h"

#include "frame/conversions.h"
#include "frame/instructions.h"
#include "frame/look_up.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <limits>

namespace lanemath {
namespace {

template <class T>
const std::array<T, 16>& some_values() {
  static const std::array<T, 16> values = [] {
    std::array<T, 16> v;
    for (int i = 0; i < 16; ++i) v[i] = T(i * 7 - 50);
    if constexpr (std::is_floating_point_v<T>) {
      v[1] = std::numeric_limits<T>::quiet_NaN();
      v[4] = -T(0);
      v[6] = std::numeric_limits<T>::infinity();
    } else {
      v[1] = std::numeric_limits<T>::max();
      v[6] = std::numeric_limits<T>::min();
    }
    return v;
  }();
  return values;
}

template <class T, int W>
lanes<T, W> load(const std::array<T, 16>& from) {
  lanes<T, W> v{};
  std::memcpy(&v, from.data(), W * sizeof(T));
  return v;
}
template <class T, int W>
std::array<T, 16> store(const lanes<T, W>& v) {
  std::array<T, 16> to{};
  std::memcpy(to.data(), &v, W * sizeof(T));
  return to;
}

// Lane i of `got` has the bits of due(i).
template <class T, int W, class F>
void expect_lanes(const lanes<T, W>& got, F due) {
  const auto lane = store(got);
  for (int i = 0; i < W; ++i) {
    const T want = due(i);
    EXPECT_EQ(std::memcmp(&lane[i], &want, sizeof want), 0) << "lane " << i << " of " << W << ": " << lane[i];
  }
}

// Every lane is computed as if alone. A call, before which the rounding direction is set.
template <class F, class T, int W>
[[gnu::noinline]] void expect_the_same_alone(F f, const lanes<T, W>& v) {
  const auto lane = store(v);
  expect_lanes(f(v), [&](int i) { return f(lanes<T, 1>(lane[i])).g[0]; });
}

template <class F>
void at_every_width(F check) {
  check(std::integral_constant<int, 1>());
  check(std::integral_constant<int, 2>());
  check(std::integral_constant<int, 4>());
  check(std::integral_constant<int, 8>());
  check(std::integral_constant<int, 16>());
}

template <class T>
class FloatingLanes : public ::testing::Test {};
using floating_types = ::testing::Types<float, double>;
TYPED_TEST_SUITE(FloatingLanes, floating_types);

TYPED_TEST(FloatingLanes, CompareSelectAndTellMasks) {
  using T = TypeParam;
  using I = int_of_size<sizeof(T)>;
  const auto& a = some_values<T>();
  at_every_width([&](auto width) {
    constexpr int W = width;
    const auto x = load<T, W>(a);
    expect_lanes(x < T(3), [&](int i) { return I(a[i] < 3 ? -1 : 0); });
    expect_lanes(~(x <= T(3)), [&](int i) { return I(!(a[i] <= 3) ? -1 : 0); });  // a NaN is marked
    expect_lanes(select(x < T(3), x + T(1), x), [&](int i) { return a[i] < 3 ? a[i] + 1 : a[i]; });
    unsigned bits = 0;
    for (int i = 0; i < W; ++i) bits |= unsigned(!(a[i] <= 3)) << i;
    EXPECT_EQ(mask_bits(~(x <= T(3))), bits);
    EXPECT_EQ(any(~(x <= T(3))), bits != 0);
    EXPECT_FALSE(any(x < x));
    for (int marked = 0; marked < W; ++marked) {
      std::array<I, 16> mask{};
      mask[marked] = -1;
      EXPECT_TRUE((any(load<I, W>(mask)))) << marked << " of " << W;
      EXPECT_EQ((mask_bits(load<I, W>(mask))), 1u << marked);
    }
    expect_lanes(magnitude(x), [&](int i) { return std::fabs(a[i]); });
    expect_lanes(with_bits(magnitude(x), sign_of(x)), [&](int i) { return a[i]; });
    expect_lanes(where(x < T(3), x), [&](int i) { return a[i] < 3 ? a[i] : T(0); });
  });
}

TYPED_TEST(FloatingLanes, TellMagnitudesAboveABoundWithInfinitiesAndNaNs) {
  using T = TypeParam;
  const auto& a = some_values<T>();
  const std::int32_t bound = sizeof(T) == 4 ? 0x41A80000 : 0x40350000;  // 21
  at_every_width([&](auto width) {
    const auto marked = magnitude_above(load<T, width>(a), bound);
    expect_lanes(marked, [&](int i) { return !(std::fabs(a[i]) <= T(21.999)) ? -1 : 0; });
  });
}

template <class T>
class IntegerLanes : public ::testing::Test {};
using integer_types = ::testing::Types<std::int32_t, std::uint32_t, std::int64_t, std::uint64_t>;
TYPED_TEST_SUITE(IntegerLanes, integer_types);

TYPED_TEST(IntegerLanes, WrapAndShift) {
  using T = TypeParam;
  using U = std::make_unsigned_t<T>;
  const auto& a = some_values<T>();
  at_every_width([&](auto width) {
    const auto x = load<T, width>(a);
    expect_lanes(x + x, [&](int i) { return T(U(a[i]) + U(a[i])); });
    expect_lanes(T(0) - x, [&](int i) { return T(U(0) - U(a[i])); });
    expect_lanes(x << 3, [&](int i) { return T(U(a[i]) << 3); });
    expect_lanes(x >> 3, [&](int i) { return T(a[i] >> 3); });  // arithmetic if signed
    expect_lanes(~x ^ T(5), [&](int i) { return T(~a[i] ^ T(5)); });
  });
}

TEST(Lanes, GoBetweenLanesOf32And64Bits) {
  const auto& doubles = some_values<double>();
  const auto& ints = some_values<std::int32_t>();
  const auto& uints = some_values<std::uint32_t>();
  at_every_width([&](auto width) {
    const auto x = load<double, width>(doubles);
    const auto pattern = [&](int i) { return std::bit_cast<std::uint64_t>(doubles[i]); };
    expect_lanes(upper(x), [&](int i) { return std::int32_t(pattern(i) >> 32); });
    expect_lanes(lower(x), [&](int i) { return std::int32_t(pattern(i)); });
    expect_lanes(top_word(x), [&](int i) { return std::int32_t(pattern(i) >> 32); });
    expect_lanes(top_word(load<std::uint32_t, width>(uints)), [&](int i) { return std::int32_t(uints[i]); });
    expect_lanes(widen(load<std::int32_t, width>(ints)), [&](int i) { return std::int64_t(ints[i]); });
    expect_lanes(widen(load<std::uint32_t, width>(uints)), [&](int i) { return std::uint64_t(uints[i]); });
  });
}

TEST(Lanes, ShiftEachByItsOwnCount) {
  const auto& values = some_values<std::int64_t>();
  std::array<std::int64_t, 16> counts;
  for (int i = 0; i < 16; ++i) counts[i] = i * 37 % 64;
  at_every_width([&](auto width) {
    const auto shifted = shifted_left(load<std::int64_t, width>(values), load<std::int64_t, width>(counts));
    expect_lanes(shifted, [&](int i) { return std::int64_t(std::uint64_t(values[i]) << counts[i]); });
  });
}

TEST(Lanes, MakeDoublesOfUpperHalves) {
  const auto& halves = some_values<std::int32_t>();
  at_every_width([&](auto width) {
    expect_lanes(bits(from_upper(load<std::int32_t, width>(halves))),
                 [&](int i) { return std::int64_t(std::uint64_t(std::uint32_t(halves[i])) << 32); });
  });
}

TYPED_TEST(FloatingLanes, LookUpEveryLanesEntry) {
  using T = TypeParam;
  static constexpr two_part<T> table[4] = {{1, 10}, {2, 20}, {3, 30}, {4, 40}};
  static constexpr T plain[4] = {5, 6, 7, 8};
  std::array<std::int32_t, 16> index;
  for (int i = 0; i < 16; ++i) index[i] = (i * 7 + 1) % 4;
  at_every_width([&](auto width) {
    const auto [hi, lo] = look_up(table, load<std::int32_t, width>(index));
    expect_lanes(hi, [&](int i) { return table[index[i]].hi; });
    expect_lanes(lo, [&](int i) { return table[index[i]].lo; });
    expect_lanes(look_up(plain, load<std::int32_t, width>(index)), [&](int i) { return plain[index[i]]; });
  });
}

TEST(SingleLanes, LookUpTriples) {
  static constexpr triple<float> table[4] = {{1, 10, 100}, {2, 20, 200}, {3, 30, 300}, {4, 40, 400}};
  std::array<std::int32_t, 16> index;
  for (int i = 0; i < 16; ++i) index[i] = (i * 7 + 1) % 4;
  at_every_width([&](auto width) {
    const auto [first, second, third] = look_up(table, load<std::int32_t, width>(index));
    expect_lanes(first, [&](int i) { return table[index[i]].first; });
    expect_lanes(second, [&](int i) { return table[index[i]].second; });
    expect_lanes(third, [&](int i) { return table[index[i]].third; });
  });
}

TYPED_TEST(FloatingLanes, LookUpEveryColumnOfARow) {
  using T = TypeParam;
  // One group of columns and a part of one more.
  constexpr std::size_t columns = sizeof(T) == 4 ? 6 : 3;
  static constexpr T table[3][columns] = {{1, 2, 3}, {11, 12, 13}, {21, 22, 23}};
  std::array<std::int32_t, 16> index;
  for (int i = 0; i < 16; ++i) index[i] = (i * 5 + 1) % 3;
  at_every_width([&](auto width) {
    const auto row = look_up_row(table, load<std::int32_t, width>(index));
    for (std::size_t c = 0; c < columns; ++c) expect_lanes(row[c], [&](int i) { return table[index[i]][c]; });
  });
}

TEST(Lanes, GoThroughTheIntegerRegistersOneByOne) {
  const auto& a = some_values<std::int64_t>();
  at_every_width([&](auto width) {
    lanes<std::int64_t, width> sums, remainders;
    const auto two_results = [](std::int64_t v, auto& sum, auto& remainder) { sum = v / 2 + 1, remainder = v % 9 * 7; };
    lane_by_lane(two_results, load<std::int64_t, width>(a), sums, remainders);
    expect_lanes(sums, [&](int i) { return a[i] / 2 + 1; });
    expect_lanes(remainders, [&](int i) { return a[i] % 9 * 7; });
  });
}

TEST(Lanes, MultiplyTheirLowerHalves) {
  const auto& a = some_values<std::uint64_t>();
  at_every_width([&](auto width) {
    const auto x = load<std::uint64_t, width>(a);
    expect_lanes(product_of_lower(x, x),
                 [&](int i) { return std::uint64_t(std::uint32_t(a[i])) * std::uint32_t(a[i]); });
  });
}

TYPED_TEST(FloatingLanes, RoundPickAndConvertAsTheProcessorDoes) {
  using T = TypeParam;
  std::array<T, 16> a = some_values<T>(), b;
  for (auto& each : a) each /= 4;
  for (int i = 0; i < 16; ++i) {
    b[i] = a[(i + 3) % 16];
  }
  b[5] = -a[4], b[9] = a[9];
  at_every_width([&](auto width) {
    const auto x = load<T, width>(a), y = load<T, width>(b);
    expect_lanes(minimum(x, y), [&](int i) { return a[i] < b[i] ? a[i] : b[i]; });
    expect_lanes(maximum(x, y), [&](int i) { return a[i] > b[i] ? a[i] : b[i]; });
    expect_lanes(round_to<direction::nearest>(x), [&](int i) { return std::nearbyint(a[i]); });
    expect_lanes(round_to<direction::up>(x), [&](int i) { return std::ceil(a[i]); });
    expect_lanes(unordered(x, y), [&](int i) { return int_of_size<sizeof(T)>(std::isunordered(a[i], b[i]) ? -1 : 0); });
    expect_lanes(square_root(x * x), [&](int i) { return std::sqrt(a[i] * a[i]); });

    const auto integer = [&](T v) { return std::isfinite(v) ? std::int32_t(v) : INT32_MIN; };
    expect_lanes(truncate(x), [&](int i) { return integer(std::trunc(a[i])); });
    expect_lanes(convert<std::int32_t>(x), [&](int i) { return integer(std::nearbyint(a[i])); });
    expect_lanes(convert<T>(truncate(x)), [&](int i) { return T(integer(std::trunc(a[i]))); });
    if constexpr (sizeof(T) == 4)
      expect_lanes(convert<double>(x), [&](int i) { return double(a[i]); });
    else
      expect_lanes(convert<float>(x), [&](int i) { return float(a[i]); });
  });
}

// Whichever registers the compiler would prefer.
TYPED_TEST(FloatingLanes, KeepTheFirstOfTwoNaNsInOrder) {
  using T = TypeParam;
  using I = int_of_size<sizeof(T)>;
  const auto nan = [](I payload) { return I(std::bit_cast<I>(std::numeric_limits<T>::quiet_NaN()) | payload); };
  const T x = std::bit_cast<T>(nan(1)), y = std::bit_cast<T>(I(nan(2) | sign_mask<T>));
  const auto pattern = [](auto v) { return std::bit_cast<I>(T(v.g[0])); };
  using one = lanes<T, 1>;
  EXPECT_EQ(pattern(ordered_sum(one(x), one(y))), nan(1));
  EXPECT_EQ(pattern(ordered_product(one(y), one(x))), nan(2) | sign_mask<T>);
  for (const auto& [first, second] : {std::pair(x, y), std::pair(y, x)})
    at_every_width([first = first, second = second](auto width) {
      using group = lanes<T, width>;
      const auto due = [&](int) { return std::bit_cast<I>(first); };
      expect_lanes(bits(ordered_sum(group(first), group(second))), due);
      expect_lanes(bits(ordered_product(group(first), group(second))), due);
    });
}

// Patterns of every kind in every lane: infinities, NaNs of both kinds, zeros and denormals of both signs, and what is
// just beyond an integer's range.
template <class T>
std::array<T, 16> turned_patterns(int by) {
  using I = int_of_size<sizeof(T)>;
  constexpr T inf = std::numeric_limits<T>::infinity(), tiny = std::numeric_limits<T>::denorm_min();
  const T of[16] = {
      T(0.3), T(-2.5),       -T(0), tiny,        -inf,    std::bit_cast<T>(I(std::bit_cast<I>(inf) | 5)),
      3,      T(2147483648), -tiny, inf,         T(-1.7), std::bit_cast<T>(I(std::bit_cast<I>(T(NAN)) | 6)),
      T(0.5), T(-1e30),      4,     T(7.0000005)};
  std::array<T, 16> turned;
  for (int i = 0; i < 16; ++i) turned[i] = of[(i + by) % 16];
  return turned;
}

// Estimates are the same bits in a register of any size, or a level has results of its own.
TYPED_TEST(FloatingLanes, HaveTheBitsOfASingleLaneInEveryDirection) {
  using T = TypeParam;
  for (const unsigned direction : {_MM_ROUND_NEAREST, _MM_ROUND_DOWN, _MM_ROUND_UP, _MM_ROUND_TOWARD_ZERO})
    for (int by = 0; by < 16; ++by)
      at_every_width([&](auto width) {
        constexpr int W = width;
        const auto x = load<T, W>(turned_patterns<T>(by));
        _MM_SET_ROUNDING_MODE(direction);
        expect_the_same_alone([](auto v) { return square_root(v); }, x);
        expect_the_same_alone([](auto v) { return round_to<direction::down>(v); }, x);
        expect_the_same_alone([](auto v) { return round_to<direction::zero>(v); }, x);
        expect_the_same_alone([](auto v) { return convert<std::int32_t>(v); }, x);
        expect_the_same_alone([](auto v) { return truncate(v); }, x);
        expect_the_same_alone([](auto v) { return convert<T>(top_word(v)); }, x);
        if constexpr (sizeof(T) == 4) {
          expect_the_same_alone([](auto v) { return convert<double>(v); }, x);
          expect_the_same_alone([](auto v) { return reciprocal_estimate(v); }, x);
          expect_the_same_alone([](auto v) { return reciprocal_root_estimate(v); }, x);
        } else {
          expect_the_same_alone([](auto v) { return convert<float>(v); }, x);
        }
        _MM_SET_ROUNDING_MODE(_MM_ROUND_NEAREST);
      });
}

}  // namespace
}  // namespace lanemath
