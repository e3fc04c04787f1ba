// What the table generator is written with: a real number of many bits, and a writer of C++ tables.
#pragma once

#include <fmt/format.h>
#include <mpfr.h>

#include <cstdio>
#include <string_view>
#include <type_traits>
#include <utility>

// A number of 512 bits: far more than any table needs, so that rounding it once is rounding the exact value.
struct real {
  mpfr_t v;

  real() { mpfr_init2(v, 512); }
  explicit real(double value) : real() { mpfr_set_d(v, value, MPFR_RNDN); }
  real(const real& other) : real() { mpfr_set(v, other.v, MPFR_RNDN); }
  real& operator=(const real& other) {
    mpfr_set(v, other.v, MPFR_RNDN);
    return *this;
  }
  ~real() { mpfr_clear(v); }

  template <class T>
  T nearest() const {
    if constexpr (std::is_same_v<T, float>)
      return mpfr_get_flt(v, MPFR_RNDN);
    else
      return mpfr_get_d(v, MPFR_RNDN);
  }

#define REAL_OPERATOR(op, function)                       \
  friend real operator op(const real& a, const real& b) { \
    real result;                                          \
    function(result.v, a.v, b.v, MPFR_RNDN);              \
    return result;                                        \
  }
  REAL_OPERATOR(+, mpfr_add)
  REAL_OPERATOR(-, mpfr_sub)
  REAL_OPERATOR(*, mpfr_mul)
  REAL_OPERATOR(/, mpfr_div)
#undef REAL_OPERATOR
};

// Writes tables as C++ arrays, their entries as hexadecimal floating literals.
class table_writer {
 public:
  explicit table_writer(std::FILE* to) : to_(to) {
    fmt::print(to_,
               "// Made by the table generator.\n#pragma once\n\n#include \"frame/lanes.h\"\n\n"
               "namespace lanemath {{\n");
  }
  ~table_writer() { fmt::print(to_, "\n}}  // namespace lanemath\n"); }

  // entry(j) is a value.
  template <class T, class F>
  void values(std::string_view name, std::string_view meaning, int size, F entry) {
    table(fmt::format("{}[{}]", name, size), meaning, type<T>(), size, [&](int j) { return literal(T(entry(j))); });
  }
  // entry(j) is a pair, high part first.
  template <class T, class F>
  void pairs(std::string_view name, std::string_view meaning, int size, F entry) {
    table(fmt::format("{}[{}]", name, size), meaning, fmt::format("two_part<{}>", type<T>()), size, [&](int j) {
      const auto [hi, lo] = entry(j);
      return fmt::format("{{{}, {}}}", literal(T(hi)), literal(T(lo)));
    });
  }
  // entry(j) is a tuple of three; the table is an array of arrays of three.
  template <class T, class F>
  void triples(std::string_view name, std::string_view meaning, int size, F entry) {
    table(fmt::format("{}[{}][3]", name, size), meaning, type<T>(), size, [&](int j) {
      const auto [a, b, c] = entry(j);
      return fmt::format("{{{}, {}, {}}}", literal(T(a)), literal(T(b)), literal(T(c)));
    });
  }

 private:
  template <class T>
  static constexpr std::string_view type() {
    return std::is_same_v<T, float> ? "float" : "double";
  }
  template <class T>
  static std::string literal(T value) {
    return fmt::format("{:a}{}", value, std::is_same_v<T, float> ? "f" : "");
  }
  template <class F>
  void table(std::string_view declarator, std::string_view meaning, std::string_view of, int size, F entry) {
    fmt::print(to_, "\n// {}\nalignas(64) inline constexpr {} {} = {{\n", meaning, of, declarator);
    for (int j = 0; j < size; ++j) fmt::print(to_, "    {},\n", entry(j));
    fmt::print(to_, "}};\n");
  }

  std::FILE* to_;
};
