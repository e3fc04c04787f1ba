// What the table generator is built from: a real number of many bits, fitted tables, and a writer of C++ tables.
#pragma once

#include <fmt/format.h>
#include <mpfr.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

// x87's format.
using extended = long double;

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
    else if constexpr (std::is_same_v<T, extended>)
      return mpfr_get_ld(v, MPFR_RNDN);
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

using function = int (*)(mpfr_t, const mpfr_t, mpfr_rnd_t);
inline real apply(function f, const real& x) {
  real y;
  f(y.v, x.v, MPFR_RNDN);
  return y;
}

inline real power_of_two(int k) {
  real y(1);
  mpfr_mul_2si(y.v, y.v, k, MPFR_RNDN);
  return y;
}

// A multiple of 2^-bits, by default the nearest.
template <class T>
T on_grid(const real& x, int bits, function rounding = mpfr_rint_roundeven) {
  return (apply(rounding, x * power_of_two(bits)) / power_of_two(bits)).nearest<T>();
}

// x as a multiple of 2^-bits and the rest.
template <class T>
std::pair<T, T> split(const real& x, int bits, function rounding = mpfr_rint_roundeven) {
  const T hi = on_grid<T>(x, bits, rounding);
  return {hi, (x - real(hi)).nearest<T>()};
}

// A fitted table: rows of numbers, not all of one length in some tables.
using fitted_rows = std::vector<std::vector<real>>;
using fitted_tables = std::map<std::string, fitted_rows, std::less<>>;

// The tables of all .fit files of a folder: a line with a name, then one row per line.
fitted_tables read_fits(const std::filesystem::path& folder);

// Writes tables as C++ arrays, their entries as hexadecimal floating literals.
class table_writer {
 public:
  table_writer(std::FILE* to, const fitted_tables& fits, std::string_view include, std::string_view space)
      : to_(to), fits_(fits), space_(space) {
    fmt::print(to_, "// Made by the table generator.\n#pragma once\n\n#include \"{}\"\n\nnamespace {} {{\n", include,
               space);
  }
  ~table_writer() { fmt::print(to_, "\n}}  // namespace {}\n", space_); }

  const fitted_rows& fit(std::string_view name) const {
    const auto found = fits_.find(name);
    if (found == fits_.end()) throw std::runtime_error(fmt::format("no fitted table {}", name));
    return found->second;
  }

  // entry(j) is a value.
  template <class T, class F>
  void values(std::string_view name, std::string_view meaning, int size, F entry) {
    table(fmt::format("{}[{}]", name, size), meaning, type<T>(), size, [&](int j) { return literal(T(entry(j))); });
  }
  // entry(j) is a pair, high part first.
  template <class T, class F>
  void pairs(std::string_view name, std::string_view meaning, int size, F entry) {
    pairs<T>(name, meaning, fmt::format("two_part<{}>", type<T>()), size, entry);
  }
  template <class T, class F>
  void pairs(std::string_view name, std::string_view meaning, std::string_view of, int size, F entry) {
    table(fmt::format("{}[{}]", name, size), meaning, of, size, [&](int j) {
      const auto [hi, lo] = entry(j);
      return fmt::format("{{{}, {}}}", literal(T(hi)), literal(T(lo)));
    });
  }
  // entry(j) is an array, the columns of row j.
  template <class F>
  void rows(std::string_view name, std::string_view meaning, int size, F entry) {
    using row = decltype(entry(0));
    const auto declarator = fmt::format("{}[{}][{}]", name, size, std::tuple_size_v<row>);
    table(declarator, meaning, type<typename row::value_type>(), size, [&](int j) {
      std::string text;
      for (const auto value : entry(j)) text += (text.empty() ? "" : ", ") + literal(value);
      return fmt::format("{{{}}}", text);
    });
  }
  // A fitted table, unchanged.
  template <class T, std::size_t Columns>
  void fitted(std::string_view name, std::string_view meaning) {
    fitted(name, meaning, type<T>(), fmt::format("[{}]", Columns), Columns,
           [](std::span<const real> row) { return numbers<T>(row); });
  }
  // One with rows of any shape; text(row) gives the row's initialiser, `dimension` is that of a row.
  template <class F>
  void fitted(std::string_view name, std::string_view meaning, std::string_view of, std::string_view dimension,
              std::size_t columns, F text) {
    const auto& rows = fit(name);
    for (const auto& row : rows)
      if (columns != 0 && row.size() != columns)
        throw std::runtime_error(fmt::format("{}: a row of {} numbers, not {}", name, row.size(), columns));
    table(fmt::format("{}[{}]{}", name, rows.size(), dimension), meaning, of, int(rows.size()),
          [&](int j) { return text(std::span(rows[j])); });
  }
  // A fitted table of one row as an array of numbers rounded to T, which it may hold as another type.
  template <class T>
  void polynomial(std::string_view name, std::string_view meaning, std::string_view of = type<T>()) {
    const auto& rows = fit(name);
    if (rows.size() != 1) throw std::runtime_error(fmt::format("{}: {} rows, not one", name, rows.size()));
    table(fmt::format("{}[{}]", name, rows[0].size()), meaning, of, int(rows[0].size()),
          [&](int j) { return literal(rows[0][j].template nearest<T>()); });
  }
  template <class T>
  static std::string literal(T value) {
    constexpr std::string_view suffix = std::is_same_v<T, float> ? "f" : std::is_same_v<T, extended> ? "L" : "";
    if constexpr (std::is_integral_v<T>)
      return fmt::format("{:#x}", value);
    else
      return fmt::format("{:a}{}", value, suffix);
  }
  // An initialiser of an array.
  template <class T>
  static std::string numbers(std::span<const real> row) {
    std::string text;
    for (const auto& value : row) text += (text.empty() ? "" : ", ") + literal(value.nearest<T>());
    return fmt::format("{{{}}}", text);
  }
  // entry(j) is a tuple of three.
  template <class T, class F>
  void triples(std::string_view name, std::string_view meaning, int size, F entry) {
    threes<T>(fmt::format("{}[{}][3]", name, size), meaning, type<T>(), size, entry);
  }
  // The same; the table is an array of structures, each of which one load fetches whole.
  template <class T, class F>
  void wide_triples(std::string_view name, std::string_view meaning, int size, F entry) {
    threes<T>(fmt::format("{}[{}]", name, size), meaning, fmt::format("triple<{}>", type<T>()), size, entry);
  }

 private:
  template <class T, class F>
  void threes(std::string_view declarator, std::string_view meaning, std::string_view type, int size, F entry) {
    table(declarator, meaning, type, size, [&](int j) {
      const auto [a, b, c] = entry(j);
      return fmt::format("{{{}, {}, {}}}", literal(T(a)), literal(T(b)), literal(T(c)));
    });
  }
  template <class T>
  static constexpr std::string_view type() {
    if constexpr (std::is_same_v<T, float>) return "float";
    if constexpr (std::is_same_v<T, double>) return "double";
    if constexpr (std::is_same_v<T, extended>) return "extended";
    if constexpr (std::is_same_v<T, std::uint32_t>) return "std::uint32_t";
    if constexpr (std::is_same_v<T, std::uint64_t>) return "std::uint64_t";
  }
  template <class F>
  void table(std::string_view declarator, std::string_view meaning, std::string_view of, int size, F entry) {
    fmt::print(to_, "\n// {}\nalignas(64) inline constexpr {} {} = {{\n", meaning, of, declarator);
    for (int j = 0; j < size; ++j) fmt::print(to_, "    {},\n", entry(j));
    fmt::print(to_, "}};\n");
  }

  std::FILE* to_;
  const fitted_tables& fits_;
  std::string_view space_;
};
