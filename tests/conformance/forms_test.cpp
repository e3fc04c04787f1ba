// Each form has bits of its own: one that is routed to another's kernel is found out.
#include <gtest/gtest.h>

#include "support/call.h"

namespace lanemath::testing {
namespace {

// First arguments are from, from + step, ...; the others are 0.7.
struct inputs {
  double from, step;
  std::size_t count;
};
constexpr inputs exponents{-1.1, 0x1.3p-9, 4096}, wide_exponents{-4.321, 0x1.3579bp-7, 1000},
    around_one{0.5, 0x1.3p-12, 4096}, small{0x1.3p-11, 0x1.3p-11, 999}, above_one{1.5 + 0x1.3p-11, 0x1.3p-11, 999},
    unit{0x1p-14, 0x1p-12, 4096};

struct form {
  variant of;
  int width;
};
constexpr form default_4{standard, 4}, native_4{native, 4}, half_4{half, 4}, rm_4{rm, 4}, default_8{standard, 8},
    native_8{native, 8}, default_1{standard, 1}, rm_1{rm, 1}, default_2{standard, 2};

struct row {
  std::initializer_list<std::string_view> names;
  form one, other;
  inputs at;
  double least_share;  // of lanes that differ; 0: none may
};
const row rows[] = {
    {{"expf"}, default_4, rm_4, exponents, 0.1},
    {{"expf", "exp10f"}, default_4, native_4, exponents, 0.5},
    {{"exp2f"}, default_4, rm_4, exponents, 0.2},
    {{"exp2f"}, default_1, rm_1, exponents, 0.02},
    {{"exp2f"}, default_4, default_8, exponents, 0.2},
    {{"exp2f"}, rm_4, default_8, exponents, 0},
    {{"exp", "exp2", "exp10", "expm1"}, default_4, native_4, wide_exponents, 0.3},
    {{"exp"}, default_2, default_4, wide_exponents, 0.1},
    {{"exp2"}, default_2, default_4, wide_exponents, 0.05},
    {{"exp10"}, default_2, default_4, wide_exponents, 0},
    {{"logf", "log2f", "log10f", "log1pf", "log", "log2", "log10", "log1p"}, default_4, native_4, around_one, 0.1},
    {{"logf"}, default_4, half_4, around_one, 0.1},
    {{"logf"}, native_4, half_4, around_one, 0.1},
    {{"log2"}, default_4, default_2, around_one, 0.05},
    {{"sinhf", "coshf", "asinhf", "atanhf", "asinh", "atanh"}, default_8, native_8, small, 0.01},
    {{"acoshf", "acosh"}, default_8, native_8, above_one, 0.01},
    {{"asinhf"}, default_4, default_8, small, 0.01},
    {{"acoshf"}, default_4, default_8, above_one, 0.01},
    {{"asinh"}, default_2, default_8, small, 0.01},
    {{"acosh"}, default_2, default_8, above_one, 0.01},
    {{"asin", "acos", "asinpi", "acospi", "atan", "atanpi", "atan2", "atan2pi"}, default_8, native_8, unit, 0.3},
    {{"asinf", "acosf", "asinpif", "acospif", "atanf", "atanpif", "atan2f", "atan2pif"},
     default_8,
     native_8,
     unit,
     0.3},
    {{"atanf", "atan2f"}, default_4, default_8, unit, 0.05},
    {{"atan"}, default_2, default_4, unit, 0.05},
};

TEST(Forms, AreToldApartByTheirBits) {
  for (const auto& r : rows)
    for (auto name : r.names) {
      std::vector<arguments> tuples(r.at.count);
      for (std::size_t n = 0; n < tuples.size(); ++n) {
        const auto x = pattern_of(name, r.at.from + double(n) * r.at.step), others = pattern_of(name, 0.7);
        tuples[n] = {x, others, others};
      }
      const auto one = call(name, r.one.of, r.one.width, tuples), other = call(name, r.other.of, r.other.width, tuples);
      std::size_t differing = 0;
      for (std::size_t n = 0; n < tuples.size(); ++n) differing += one[n] != other[n];
      const double share = double(differing) / double(tuples.size());
      EXPECT_TRUE(r.least_share == 0 ? share == 0 : share > r.least_share) << fmt::format(
          "{}{}{} and {}{}{}: {}", name, r.one.width, suffix(r.one.of), name, r.other.width, suffix(r.other.of), share);
    }
}

}  // namespace
}  // namespace lanemath::testing
