// What the function reference says of special arguments, against every form.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <sstream>

#include "harness/harness.h"
#include "harness/rounding.h"
#include "reference/operations.h"
#include "support/lanes_of.h"
#include "support/library.h"

namespace lanemath {
namespace {

using reference::special_case;

template <class T>
std::uint64_t number_in(std::string text) {
  if constexpr (std::is_floating_point_v<T>) {
    const bool negative = text.front() == '-';
    const auto magnitude = negative ? text.substr(1) : text;
    using limits = std::numeric_limits<T>;
    T value{};
    std::istringstream in(magnitude);
    if (magnitude == "nan")
      value = limits::quiet_NaN();
    else if (magnitude == "inf")
      value = limits::infinity();
    else if (magnitude == "max")
      value = limits::max();
    else if (magnitude == "least")
      value = limits::denorm_min();
    else if (!(in >> value) || !in.eof())
      throw std::runtime_error("no number: " + text);
    if (negative) value = -value;
    if constexpr (sizeof(T) == 4)
      return std::bit_cast<std::uint32_t>(value);
    else
      return std::bit_cast<std::uint64_t>(value);
  } else {
    T value{};
    std::istringstream in(text);
    if (!(in >> value) || !in.eof()) throw std::runtime_error("no number: " + text);
    return std::make_unsigned_t<T>(value);
  }
}

std::uint64_t value_in(const std::string& text, lane l) {
  switch (l) {
    case lane::f32: return number_in<float>(text);
    case lane::f64: return number_in<double>(text);
    case lane::i32: return number_in<std::int32_t>(text);
    case lane::u32: return number_in<std::uint32_t>(text);
    case lane::i64: return number_in<std::int64_t>(text);
    default: return number_in<std::uint64_t>(text);
  }
}

// The same bits, but one NaN is as good as another.
bool same(lane l, std::uint64_t a, std::uint64_t b) {
  const auto is_nan = [&](std::uint64_t bits) {
    return l == lane::f32   ? std::isnan(std::bit_cast<float>(std::uint32_t(bits)))
           : l == lane::f64 ? std::isnan(std::bit_cast<double>(bits))
                            : false;
  };
  return a == b || (is_nan(a) && is_nan(b));
}

const auto& descriptions() {
  static const auto all = reference::read_descriptions(LANEMATH_OPERATIONS);
  return all;
}

TEST(FunctionReference, StatesTheSpecialValuesOfEveryForm) {
  for (std::size_t index = 0; index < catalogue.size(); ++index) {
    const auto& o = catalogue[index];
    const auto& text = *std::ranges::find(descriptions(), reference::page_of(o), &reference::description::page);
    int checked = 0;
    for (const auto& each : text.cases) {
      if (!each.holds_for(o)) continue;
      ASSERT_EQ(int(each.arguments.size()), o.sig.arity()) << o.name();
      ASSERT_EQ(each.results.size(), o.sig.how == delivery::none ? 1u : 2u) << o.name();
      harness::arguments tuple{};
      for (int i = 0; i < o.sig.arity(); ++i) tuple[i] = value_in(each.arguments[i], o.sig.arguments[i]);
      const auto first = value_in(each.results[0], o.sig.result);
      const auto second = each.results.size() > 1 ? value_in(each.results[1], o.sig.second) : 0;
      ++checked;
      for (auto v : variants)
        for (int width : widths) {
          if (!o.has(v) || !each.holds_for(o, v)) continue;
          for (const auto& got : harness::evaluate(o, *testing::library().find(index, v, width), width,
                                                   std::vector(std::size_t(width), tuple)))
            EXPECT_TRUE(same(o.sig.result, got.first, first) && same(o.sig.second, got.second, second))
                << harness::symbol(o, width, v) << ' ' << harness::text_of(o, tuple) << " gives "
                << harness::text_of(o, got) << ", stated is " << harness::text_of(o, harness::outcome{first, second});
        }
    }
    EXPECT_GT(checked, 0) << o.name();
  }
}

// As the overview says.
TEST(FunctionReference, SaysWhichFunctionsIgnoreTheRoundingDirection) {
  for (std::size_t index = 0; index < catalogue.size(); ++index) {
    const auto& o = catalogue[index];
    const auto named = {"ceil", "floor", "trunc", "round", "fabs", "copysign", "fmax", "fmin", "maxmag", "minmag"};
    const bool converts = o.group == family::conversion && !is_floating(o.sig.result);
    if (!converts && o.group != family::integer_division && std::ranges::find(named, o.base_name()) == named.end())
      continue;
    const auto tuples = testing::mixed_tuples(o, 192);
    for (int width : widths) {
      const auto f = testing::library().find(index, variant::standard, width).value();
      const auto usual = harness::evaluate(o, f, width, tuples);
      for (const auto& direction : harness::directions) {
        const harness::rounding in_force(direction.mode);
        EXPECT_EQ(harness::evaluate(o, f, width, tuples), usual) << o.name() << width << ' ' << direction.name;
      }
    }
  }
}

}  // namespace
}  // namespace lanemath
