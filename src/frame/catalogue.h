// The one list of operations. The public header, the linker's export list, the OpenCL built-ins and
// whatever tests, benchmarks and tools walk are made from it.
//
// An operation has a name (closing `f` = single precision), a signature, a set of accuracy variants and
// the filler that a width-3 call puts into its fourth lane. It is exported at six widths as
//   __ocl_lanemath_h8_<operation><width><variant>
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lanemath {

inline constexpr std::string_view symbol_prefix = "__ocl_lanemath_h8_";
inline constexpr std::array widths{1, 2, 3, 4, 8, 16};

enum class lane : std::uint8_t { none, f32, f64, i32, u32, i64, u64 };

constexpr std::size_t size_of(lane l) {
  return l == lane::none ? 0 : l == lane::f64 || l == lane::i64 || l == lane::u64 ? 8 : 4;
}
constexpr std::string_view type_name(lane l) {
  return std::array<std::string_view, 7>{"", "float", "double", "int", "uint", "long", "ulong"}[std::size_t(l)];
}

// Lanes that a vector takes the room of.
constexpr int padded(int width) { return width == 3 ? 4 : width; }

// How a second result reaches the caller.
enum class delivery : std::uint8_t { none, pointer, pair };

struct signature {
  lane result{};
  std::array<lane, 3> arguments{};
  lane second{};
  delivery how{};

  constexpr int arity() const {
    int n = 0;
    while (n < 3 && arguments[n] != lane::none) ++n;
    return n;
  }
  constexpr bool operator==(const signature&) const = default;
};

enum class variant : std::uint8_t { standard, native, half, rm };
inline constexpr std::array variants{variant::standard, variant::native, variant::half, variant::rm};
constexpr std::string_view suffix(variant v) {
  return std::array<std::string_view, 4>{"", "_native", "_half", "_rm"}[std::size_t(v)];
}

enum class family : std::uint8_t {
  exponential,
  logarithm,
  power,
  trigonometric,
  inverse_trigonometric,
  hyperbolic,
  root,
  special,
  manipulation,
  conversion,
  integer_division
};

struct operation {
  char spelling[24]{};
  signature sig{};
  family group{};
  std::uint8_t variant_bits = 1;  // bit i: variants[i] exists
  double filler = 0.75;           // of every argument, converted to the argument's type
  std::string_view brief{};

  constexpr std::string_view name() const { return spelling; }
  constexpr bool has(variant v) const { return variant_bits >> int(v) & 1; }

  // Not to be told from the name alone: erf and modf are double precision.
  constexpr bool single() const { return sig.result == lane::f32 || sig.arguments[0] == lane::f32; }
  // Without the f of single precision, where both precisions are one operation.
  constexpr std::string_view base_name() const {
    const bool closes = single() && group != family::conversion;
    return name().substr(0, name().size() - closes);
  }
};

namespace catalogue_detail {

// Signatures by shape, over the floating type T of the row.
enum class shape : std::uint8_t {
  unary,
  binary,
  ternary,
  with_int,
  to_int,
  second,
  second_int,
  binary_second_int,
  pair,
  from_bits
};

constexpr signature of(shape s, bool single) {
  const lane t = single ? lane::f32 : lane::f64;
  const lane i = lane::i32;
  switch (s) {
    case shape::unary: return {t, {t}};
    case shape::binary: return {t, {t, t}};
    case shape::ternary: return {t, {t, t, t}};
    case shape::with_int: return {t, {t, i}};
    case shape::to_int: return {i, {t}};
    case shape::second: return {t, {t}, t, delivery::pointer};
    case shape::second_int: return {t, {t}, i, delivery::pointer};
    case shape::binary_second_int: return {t, {t, t}, i, delivery::pointer};
    case shape::pair: return {t, {t}, t, delivery::pair};
    case shape::from_bits: return {t, {single ? lane::u32 : lane::u64}};
  }
  return {};
}

inline constexpr int N = 1 << int(variant::native), H = 1 << int(variant::half), R = 1 << int(variant::rm);

struct floating_row {
  std::string_view name;
  shape form;
  family group;
  int more_double;  // variants besides the default
  int more_single;
  std::string_view brief;
  double filler = 0.75;
};

// One row for both precisions.
inline constexpr floating_row floating_rows[] = {
    {"exp", shape::unary, family::exponential, N, N | H | R, "e to the power x"},
    {"exp2", shape::unary, family::exponential, N, N | H | R, "2 to the power x"},
    {"exp10", shape::unary, family::exponential, N, N | H | R, "10 to the power x"},
    {"expm1", shape::unary, family::exponential, N, N, "e to the power x, minus one"},

    {"log", shape::unary, family::logarithm, N, N | H | R, "natural logarithm of x"},
    {"log2", shape::unary, family::logarithm, N, N | H | R, "base-2 logarithm of x"},
    {"log10", shape::unary, family::logarithm, N, N | H, "base-10 logarithm of x"},
    {"log1p", shape::unary, family::logarithm, N, N, "natural logarithm of 1 + x"},

    {"pow", shape::binary, family::power, N, N | R, "x to the power y"},
    {"powr", shape::binary, family::power, N, N | H, "x to the power y, for x >= 0"},
    {"pown", shape::with_int, family::power, N, N, "x to the integer power y", 1.0},
    {"rootn", shape::with_int, family::power, N, N, "x to the power 1 / y, y an integer", 1.0},

    {"sin", shape::unary, family::trigonometric, N, N | H | R, "sine of x radians"},
    {"cos", shape::unary, family::trigonometric, N, N | H | R, "cosine of x radians"},
    {"sincos", shape::second, family::trigonometric, N, N | R, "sine of x radians; cosine through the pointer"},
    {"sincosreg", shape::pair, family::trigonometric, N, N, "sine and cosine of x radians, as a pair"},
    {"tan", shape::unary, family::trigonometric, N, N | H | R, "tangent of x radians"},
    {"sinpi", shape::unary, family::trigonometric, N, N, "sine of pi x"},
    {"cospi", shape::unary, family::trigonometric, N, N, "cosine of pi x"},
    {"tanpi", shape::unary, family::trigonometric, N, N, "tangent of pi x"},

    {"asin", shape::unary, family::inverse_trigonometric, N, N, "arc sine of x, in radians"},
    {"acos", shape::unary, family::inverse_trigonometric, N, N, "arc cosine of x, in radians"},
    {"asinpi", shape::unary, family::inverse_trigonometric, N, N, "arc sine of x, divided by pi"},
    {"acospi", shape::unary, family::inverse_trigonometric, N, N, "arc cosine of x, divided by pi"},
    {"atan", shape::unary, family::inverse_trigonometric, N, N, "arc tangent of x, in radians"},
    {"atanpi", shape::unary, family::inverse_trigonometric, N, N, "arc tangent of x, divided by pi"},
    {"atan2", shape::binary, family::inverse_trigonometric, N, N,
     "angle of the point (second, first) in radians, -pi to pi"},
    {"atan2pi", shape::binary, family::inverse_trigonometric, N, N,
     "angle of the point (second, first) divided by pi, -1 to 1"},

    {"sinh", shape::unary, family::hyperbolic, N, N, "hyperbolic sine of x"},
    {"cosh", shape::unary, family::hyperbolic, N, N, "hyperbolic cosine of x"},
    {"tanh", shape::unary, family::hyperbolic, N, N, "hyperbolic tangent of x"},
    {"asinh", shape::unary, family::hyperbolic, N, N, "inverse hyperbolic sine of x"},
    {"acosh", shape::unary, family::hyperbolic, N, N, "inverse hyperbolic cosine of x", 2.0},
    {"atanh", shape::unary, family::hyperbolic, N, N, "inverse hyperbolic tangent of x"},

    {"div", shape::binary, family::root, N, N | H | R, "x / y"},
    {"inv", shape::unary, family::root, N, N | H | R, "1 / x"},
    {"sqrt", shape::unary, family::root, N, N | H, "square root of x"},
    {"rsqrt", shape::unary, family::root, N, N | H, "1 / square root of x"},
    {"cbrt", shape::unary, family::root, N, N, "cube root of x"},
    {"rcbrt", shape::unary, family::root, N, N, "1 / cube root of x"},
    {"hypot", shape::binary, family::root, N, N, "square root of x x + y y, without undue overflow"},

    {"erf", shape::unary, family::special, N, N, "error function of x"},
    {"erfc", shape::unary, family::special, N, N, "complementary error function, 1 - erf(x)"},
    {"lgamma", shape::unary, family::special, 0, 0, "natural logarithm of |gamma(x)|"},
    {"lgammar", shape::second_int, family::special, 0, 0,
     "natural logarithm of |gamma(x)|; the sign of gamma(x) through the pointer"},
    {"tgamma", shape::unary, family::special, 0, 0, "gamma function of x"},

    {"ceil", shape::unary, family::manipulation, 0, 0, "x rounded up to an integer"},
    {"floor", shape::unary, family::manipulation, 0, 0, "x rounded down to an integer"},
    {"trunc", shape::unary, family::manipulation, 0, 0, "x rounded toward zero to an integer"},
    {"rint", shape::unary, family::manipulation, 0, 0, "x rounded to an integer in the current direction"},
    {"nearbyint", shape::unary, family::manipulation, 0, 0, "as rint, without the inexact flag"},
    {"round", shape::unary, family::manipulation, 0, 0, "x rounded to the nearest integer, halves away from zero"},
    {"fabs", shape::unary, family::manipulation, 0, 0, "x with the sign cleared"},
    {"copysign", shape::binary, family::manipulation, 0, 0, "x with the sign of y"},
    {"fdim", shape::binary, family::manipulation, 0, 0, "x - y if x > y, else +0"},
    {"fmax", shape::binary, family::manipulation, 0, 0, "the larger of x and y, a number before a NaN"},
    {"fmin", shape::binary, family::manipulation, 0, 0, "the smaller of x and y, a number before a NaN"},
    {"maxmag", shape::binary, family::manipulation, 0, 0, "the one of x and y with the larger magnitude"},
    {"minmag", shape::binary, family::manipulation, 0, 0, "the one of x and y with the smaller magnitude"},
    {"fract", shape::second, family::manipulation, 0, 0, "x - floor(x), below 1; floor(x) through the pointer"},
    {"modf", shape::second, family::manipulation, 0, 0, "fraction of x; integral part through the pointer"},
    {"frexp", shape::second_int, family::manipulation, 0, 0,
     "significand of x in [0.5, 1); exponent through the pointer"},
    {"ldexp", shape::with_int, family::manipulation, 0, 0, "x times 2 to the power y", 1.0},
    {"ilogb", shape::to_int, family::manipulation, 0, 0, "exponent of x as an integer"},
    {"logb", shape::unary, family::manipulation, 0, 0, "exponent of x as a floating value"},
    {"nan", shape::from_bits, family::manipulation, 0, 0, "a quiet NaN with the payload x", 0.0},
    {"nextafter", shape::binary, family::manipulation, 0, 0, "the value next to x in the direction of y"},
    {"fmod", shape::binary, family::manipulation, 0, 0, "remainder of x / y, quotient truncated"},
    {"remainder", shape::binary, family::manipulation, 0, 0, "remainder of x / y, quotient to nearest even"},
    {"remquo", shape::binary_second_int, family::manipulation, 0, 0,
     "remainder of x / y; low bits of the quotient through the pointer"},
    {"fma", shape::ternary, family::manipulation, 0, R, "x y + z with one rounding"},
};

struct integer_row {
  std::string_view name;
  signature sig;
  std::string_view brief;
};

inline constexpr integer_row integer_rows[] = {
    {"idiv", {lane::i32, {lane::i32, lane::i32}}, "quotient of x / y, truncated"},
    {"irem", {lane::i32, {lane::i32, lane::i32}}, "remainder of x / y, with the sign of x"},
    {"idivrem", {lane::i32, {lane::i32, lane::i32}, lane::i32, delivery::pair}, "quotient and remainder of x / y"},
    {"udiv", {lane::u32, {lane::u32, lane::u32}}, "quotient of x / y"},
    {"urem", {lane::u32, {lane::u32, lane::u32}}, "remainder of x / y"},
    {"udivrem", {lane::u32, {lane::u32, lane::u32}, lane::u32, delivery::pair}, "quotient and remainder of x / y"},
};

inline constexpr std::string_view roundings[] = {"rte", "rtn", "rtp", "rtz"};
struct integer_type {
  std::string_view name;
  lane type;
};
inline constexpr integer_type integer_types[] = {
    {"i32", lane::i32}, {"u32", lane::u32}, {"i64", lane::i64}, {"u64", lane::u64}};

inline constexpr std::size_t operation_count = 2 * std::size(floating_rows) + std::size(integer_rows) + 64 + 32 + 4;

constexpr void append(char*& out, std::string_view text) {
  for (char c : text) *out++ = c;
}

constexpr auto build() {
  std::array<operation, operation_count> all{};
  auto next = all.begin();
  const auto add = [&](std::initializer_list<std::string_view> name, operation o) {
    char* out = o.spelling;
    for (auto part : name) append(out, part);
    *next++ = o;
  };
  for (const auto& row : floating_rows)
    for (bool single : {false, true})
      add({row.name, single ? "f" : ""}, {{},
                                          of(row.form, single),
                                          row.group,
                                          std::uint8_t(1 | (single ? row.more_single : row.more_double)),
                                          row.filler,
                                          row.brief});
  for (const auto& row : integer_rows) add({row.name}, {{}, row.sig, family::integer_division, 1, 1.0, row.brief});

  for (const auto& to : integer_types)
    for (auto rounding : roundings)
      for (std::string_view saturation : {"sat", "nosat"})
        for (bool single : {false, true})
          add({"cvtfpto", to.name, rounding, saturation, single ? "f" : ""},
              {{}, {to.type, {single ? lane::f32 : lane::f64}}, family::conversion, 1, 0.75, {}});
  for (const auto& from : integer_types)
    for (auto rounding : roundings)
      for (bool single : {false, true})
        add({"cvt", from.name, "tofp", rounding, single ? "f" : ""},
            {{}, {single ? lane::f32 : lane::f64, {from.type}}, family::conversion, 1, 1.0, {}});
  for (auto rounding : roundings)
    add({"cvtfp64tofp32", rounding}, {{}, {lane::f32, {lane::f64}}, family::conversion, 1, 0.75, {}});
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
static_assert(catalogue.size() == 248 && pair_count() == 361 && pair_count() * widths.size() == 2166);

// Forms with an algorithm of their own: there a lane may differ from the same lane at another width.
struct standalone_form {
  std::string_view operation;
  int width;
  variant of;
};
inline constexpr standalone_form standalone_forms[] = {
    {"exp", 2, variant::standard},    {"exp2", 2, variant::standard},   {"log2", 2, variant::standard},
    {"exp2f", 1, variant::standard},  {"exp2f", 4, variant::standard},  {"atanf", 4, variant::standard},
    {"atan", 2, variant::standard},   {"atan2f", 4, variant::standard}, {"atan2", 2, variant::standard},
    {"acoshf", 4, variant::standard}, {"acoshf", 4, variant::native},   {"asinhf", 4, variant::standard},
    {"asinhf", 4, variant::native},   {"acosh", 2, variant::standard},  {"acosh", 2, variant::native},
    {"asinh", 2, variant::standard},  {"asinh", 2, variant::native},
};
constexpr bool is_standalone(std::string_view name, int width, variant v) {
  for (const auto& form : standalone_forms)
    if (form.operation == name && form.width == width && form.of == v) return true;
  return false;
}

// Index of an operation; a name that is not in the catalogue does not compile where this is a constant.
constexpr std::size_t index_of(std::string_view name) {
  std::size_t i = 0;
  while (catalogue.at(i).name() != name) ++i;
  return i;
}

}  // namespace lanemath
