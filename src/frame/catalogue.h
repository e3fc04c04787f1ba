// The only list of operations. The public header, the linker's export list and the OpenCL built-ins are made from it;
// tests, benchmarks and tools work through it.
//
// An operation has a name (a final `f` means single precision), a signature and a set of accuracy variants. It is
// exported at six widths as
//   __ocl_lanemath_h8_<operation><width><variant>
#pragma once

#include "frame/catalogue_row.h"

namespace lanemath {

namespace catalogue_detail {

using enum family;
using enum shape;
using enum precision;

inline constexpr row floating_rows[] = {
    row(exponential, "exp", unary, "e to the power x", around_zero(10))
        .variants(N, N | H | R)
        .same(floats, H, N)
        .standalone(doubles, 2),
    row(exponential, "exp2", unary, "2 to the power x", around_zero(10))
        .variants(N, N | H | R)
        .same(floats, H, N)
        .same(floats, D, R)
        .standalone(doubles, 2)
        .standalone(floats, 1)
        .standalone(floats, 4),
    row(exponential, "exp10", unary, "10 to the power x", around_zero(10))
        .variants(N, N | H | R)
        .same(floats, H | R, N),
    row(exponential, "expm1", unary, "e to the power x, minus one", around_zero(10)).variants(N, N),

    row(logarithm, "log", unary, "natural logarithm of x", magnitudes(1e-3, 1e3))
        .variants(N, N | H | R)
        .same(floats, R, D),
    row(logarithm, "log2", unary, "base-2 logarithm of x", magnitudes(1e-3, 1e3))
        .variants(N, N | H | R)
        .same(floats, H, N)
        .same(floats, R, D)
        .standalone(doubles, 2),
    row(logarithm, "log10", unary, "base-10 logarithm of x", magnitudes(1e-3, 1e3))
        .variants(N, N | H)
        .same(floats, H, N),
    row(logarithm, "log1p", unary, "natural logarithm of 1 + x", magnitudes(1e-3, 1e3)).variants(N, N),

    row(power, "pow", binary, "x to the power y", magnitudes(0.01, 100), around_zero(10))
        .variants(N, N | R)
        .same(floats, R, N),
    row(power, "powr", binary, "x to the power y, for x >= 0", magnitudes(0.01, 100), around_zero(10))
        .variants(N, N | H)
        .same(floats, H, N),
    row(power, "pown", with_int, "x to the integer power y", magnitudes(0.01, 100), around_zero(10))
        .variants(N, N)
        .filler(1.0),
    row(power, "rootn", with_int, "x to the power 1 / y, y an integer", magnitudes(0.01, 100), between(2, 10))
        .variants(N, N)
        .filler(1.0),

    row(trigonometric, "sin", unary, "sine of x radians", around_zero(10))
        .variants(N, N | H | R)
        .same(floats, H | R, N)
        .odd(10000),
    row(trigonometric, "cos", unary, "cosine of x radians", around_zero(10))
        .variants(N, N | H | R)
        .same(floats, H | R, N)
        .even(10000),
    row(trigonometric, "sincos", second, "sine of x radians; cosine through the pointer", around_zero(10))
        .variants(N, N | R)
        .same(floats, R, N),
    row(trigonometric, "sincosreg", pair, "sine and cosine of x radians, as a pair", around_zero(10))
        .variants(N, N)
        .opencl(""),
    row(trigonometric, "tan", unary, "tangent of x radians", around_zero(10))
        .variants(N, N | H | R)
        .same(floats, H | R, N)
        .odd(8256),
    row(trigonometric, "sinpi", unary, "sine of pi x", around_zero(10)).variants(N, N).odd(),
    row(trigonometric, "cospi", unary, "cosine of pi x", around_zero(10)).variants(N, N).even(),
    row(trigonometric, "tanpi", unary, "tangent of pi x", around_zero(10)).variants(N, N).odd(),

    row(inverse_trigonometric, "asin", unary, "arc sine of x, in radians", around_zero(1)).variants(N, N).odd(),
    row(inverse_trigonometric, "acos", unary, "arc cosine of x, in radians", around_zero(1)).variants(N, N),
    row(inverse_trigonometric, "asinpi", unary, "arc sine of x, divided by pi", around_zero(1)).variants(N, N).odd(),
    row(inverse_trigonometric, "acospi", unary, "arc cosine of x, divided by pi", around_zero(1)).variants(N, N),
    row(inverse_trigonometric, "atan", unary, "arc tangent of x, in radians", around_zero(10))
        .variants(N, N)
        .standalone(doubles, 2)
        .standalone(floats, 4)
        .odd(),
    row(inverse_trigonometric, "atanpi", unary, "arc tangent of x, divided by pi", around_zero(10))
        .variants(N, N)
        .odd(),
    row(inverse_trigonometric, "atan2", binary, "angle of the point (second, first) in radians, -pi to pi",
        around_zero(10), around_zero(10))
        .variants(N, N)
        .standalone(doubles, 2)
        .standalone(floats, 4),
    row(inverse_trigonometric, "atan2pi", binary, "angle of the point (second, first) divided by pi, -1 to 1",
        around_zero(10), around_zero(10))
        .variants(N, N),

    row(hyperbolic, "sinh", unary, "hyperbolic sine of x", around_zero(5)).variants(N, N).same(doubles, N, D).odd(),
    row(hyperbolic, "cosh", unary, "hyperbolic cosine of x", around_zero(5)).variants(N, N).same(doubles, N, D).even(),
    row(hyperbolic, "tanh", unary, "hyperbolic tangent of x", around_zero(5)).variants(N, N).same(both, N, D).odd(),
    row(hyperbolic, "asinh", unary, "inverse hyperbolic sine of x", around_zero(100))
        .variants(N, N)
        .standalone(doubles, 2, D | N)
        .standalone(floats, 4, D | N)
        .odd(),
    row(hyperbolic, "acosh", unary, "inverse hyperbolic cosine of x", magnitudes(1, 100))
        .variants(N, N)
        .standalone(doubles, 2, D | N)
        .standalone(floats, 4, D | N)
        .filler(2.0),
    row(hyperbolic, "atanh", unary, "inverse hyperbolic tangent of x", around_zero(0.99)).variants(N, N).odd(),

    row(root, "div", binary, "x / y", around_zero(100), magnitudes(0.01, 100))
        .variants(N, N | H | R)
        .same(floats, H | R, N)
        .opencl("", "divide"),
    row(root, "inv", unary, "1 / x", magnitudes(0.01, 100))
        .variants(N, N | H | R)
        .same(floats, H | R, N)
        .odd()
        .unguarded(doubles, N)
        .opencl("", "recip"),
    row(root, "sqrt", unary, "square root of x", magnitudes(0.01, 100)).variants(N, N | H).unguarded(both, N),
    row(root, "rsqrt", unary, "1 / square root of x", magnitudes(0.01, 100)).variants(N, N | H).same(floats, H, N),
    row(root, "cbrt", unary, "cube root of x", around_zero(100)).variants(N, N).odd(),
    row(root, "rcbrt", unary, "1 / cube root of x", around_zero(100)).variants(N, N).odd().opencl(""),
    row(root, "hypot", binary, "square root of x x + y y, without undue overflow", around_zero(100), around_zero(100))
        .variants(N, N)
        .unguarded(floats, N),

    row(special, "erf", unary, "error function of x", around_zero(3)).variants(N, N).odd(),
    row(special, "erfc", unary, "complementary error function, 1 - erf(x)", between(-2, 5)).variants(N, N),
    row(special, "lgamma", unary, "natural logarithm of |gamma(x)|", between(0.5, 30)).always_scalar(),
    row(special, "lgammar", second_int, "natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer",
        between(0.5, 30))
        .always_scalar()
        .opencl("lgamma_r"),
    row(special, "tgamma", unary, "gamma function of x", between(0.5, 20)).always_scalar(),

    row(manipulation, "ceil", unary, "x rounded up to an integer", around_zero(1000)),
    row(manipulation, "floor", unary, "x rounded down to an integer", around_zero(1000)),
    row(manipulation, "trunc", unary, "x rounded toward zero to an integer", around_zero(1000)).odd(),
    row(manipulation, "rint", unary, "x rounded to an integer in the current direction", around_zero(1000)).odd(),
    row(manipulation, "nearbyint", unary, "as rint, without the inexact flag", around_zero(1000)).odd().opencl(""),
    row(manipulation, "round", unary, "x rounded to the nearest integer, halves away from zero", around_zero(1000))
        .odd(),
    row(manipulation, "fabs", unary, "x with the sign cleared", around_zero(1000)).even(),
    row(manipulation, "copysign", binary, "x with the sign of y", around_zero(1000), around_zero(1000)),
    row(manipulation, "fdim", binary, "x - y if x > y, else +0", around_zero(1000), around_zero(1000)),
    row(manipulation, "fmax", binary, "the larger of x and y, a number before a NaN", around_zero(1000),
        around_zero(1000)),
    row(manipulation, "fmin", binary, "the smaller of x and y, a number before a NaN", around_zero(1000),
        around_zero(1000)),
    row(manipulation, "maxmag", binary, "the one of x and y with the larger magnitude", around_zero(1000),
        around_zero(1000)),
    row(manipulation, "minmag", binary, "the one of x and y with the smaller magnitude", around_zero(1000),
        around_zero(1000)),
    row(manipulation, "fract", second, "x - floor(x), below 1; floor(x) through the pointer", around_zero(1000)),
    row(manipulation, "modf", second, "fraction of x; integral part through the pointer", around_zero(1000)),
    row(manipulation, "frexp", second_int, "significand of x in [0.5, 1); exponent through the pointer",
        magnitudes(1e-6, 1e6)),
    row(manipulation, "ldexp", with_int, "x times 2 to the power y", around_zero(1000), around_zero(10)).filler(1.0),
    row(manipulation, "ilogb", to_int, "exponent of x as an integer", magnitudes(1e-6, 1e6)),
    row(manipulation, "logb", unary, "exponent of x as a floating value", magnitudes(1e-6, 1e6)).even(),
    row(manipulation, "nan", from_bits, "a quiet NaN with the payload x", between(0, 1 << 22)).filler(0.0),
    row(manipulation, "nextafter", binary, "the value next to x in the direction of y", around_zero(1000),
        around_zero(1000)),
    row(manipulation, "fmod", binary, "remainder of x / y, quotient truncated", around_zero(1000), magnitudes(1, 100)),
    row(manipulation, "remainder", binary, "remainder of x / y, quotient to nearest even", around_zero(1000),
        magnitudes(1, 100)),
    row(manipulation, "remquo", binary_second_int, "remainder of x / y; low bits of the quotient through the pointer",
        around_zero(1000), magnitudes(1, 100)),
    row(manipulation, "fma", ternary, "x y + z with one rounding", around_zero(100), around_zero(100), around_zero(100))
        .variants(0, R)
        .same(floats, R, D),
};

struct integer_row {
  std::string_view name;
  signature sig;
  std::string_view brief;
  range first;
};

inline constexpr integer_row integer_rows[] = {
    {"idiv", {lane::i32, {lane::i32, lane::i32}}, "quotient of x / y, truncated", around_zero(1e9)},
    {"irem", {lane::i32, {lane::i32, lane::i32}}, "remainder of x / y, with the sign of x", around_zero(1e9)},
    {"idivrem",
     {lane::i32, {lane::i32, lane::i32}, lane::i32, delivery::pair},
     "quotient and remainder of x / y",
     around_zero(1e9)},
    {"udiv", {lane::u32, {lane::u32, lane::u32}}, "quotient of x / y", between(0, 4e9)},
    {"urem", {lane::u32, {lane::u32, lane::u32}}, "remainder of x / y", between(0, 4e9)},
    {"udivrem",
     {lane::u32, {lane::u32, lane::u32}, lane::u32, delivery::pair},
     "quotient and remainder of x / y",
     between(0, 4e9)},
};

// A conversion's name gives the types, the rounding and whether values that do not fit are clamped.
struct named_direction {
  std::string_view name;
  direction rounding;
};
inline constexpr named_direction roundings[] = {
    {"rte", direction::nearest}, {"rtn", direction::down}, {"rtp", direction::up}, {"rtz", direction::zero}};
struct named_integer {
  std::string_view name;
  lane type;
};
inline constexpr named_integer integer_types[] = {
    {"i32", lane::i32}, {"u32", lane::u32}, {"i64", lane::i64}, {"u64", lane::u64}};

inline constexpr std::size_t operation_count = 2 * std::size(floating_rows) + std::size(integer_rows) + 64 + 32 + 4;

constexpr auto build() {
  std::array<operation, operation_count> all{};
  auto next = all.begin();
  const auto add = [&](std::initializer_list<std::string_view> name, operation o) {
    char* out = o.spelling;
    for (auto part : name)
      for (char c : part) *out++ = c;
    *next++ = o;
  };
  const auto add_conversion = [&](std::initializer_list<std::string_view> name, lane to, lane from, double filler,
                                  direction rounding, bool saturates) {
    const double low = is_unsigned(to) || is_unsigned(from) ? 0 : -1e6;
    add(name, {.sig = {to, {from}},
               .group = conversion,
               .filler = filler,
               .typical = {between(low, 1e6)},
               .rounding = rounding,
               .saturates = saturates});
  };

  for (const auto& row : floating_rows)
    for (const auto& o : row.of_precision) *next++ = o;
  for (const auto& row : integer_rows)
    add({row.name}, {.sig = row.sig,
                     .group = integer_division,
                     .brief = row.brief,
                     .filler = 1.0,
                     .typical = {row.first, magnitudes(1, 1e5)}});
  for (const auto& to : integer_types)
    for (const auto& rounding : roundings)
      for (bool saturates : {true, false})
        for (bool single : {false, true})
          add_conversion({"cvtfpto", to.name, rounding.name, saturates ? "sat" : "nosat", single ? "f" : ""}, to.type,
                         single ? lane::f32 : lane::f64, 0.75, rounding.rounding, saturates);
  for (const auto& from : integer_types)
    for (const auto& rounding : roundings)
      for (bool single : {false, true})
        add_conversion({"cvt", from.name, "tofp", rounding.name, single ? "f" : ""}, single ? lane::f32 : lane::f64,
                       from.type, 1.0, rounding.rounding, false);
  for (const auto& rounding : roundings)
    add_conversion({"cvtfp64tofp32", rounding.name}, lane::f32, lane::f64, 0.75, rounding.rounding, false);
  return all;
}

}  // namespace catalogue_detail

inline constexpr auto catalogue = catalogue_detail::build();

constexpr int pair_count() {
  int n = 0;
  for (const auto& o : catalogue)
    for (auto v : variants) n += o.has(v);
  return n;
}
// What users have been promised: adding or removing an operation changes these numbers.
static_assert(catalogue.size() == 248 && pair_count() == 361 && pair_count() * widths.size() == 2166);

// The index of an operation. Where a constant is required, a name that is not in the catalogue does not compile.
constexpr std::size_t index_of(std::string_view name) {
  std::size_t i = 0;
  while (catalogue.at(i).name() != name) ++i;
  return i;
}

}  // namespace lanemath
