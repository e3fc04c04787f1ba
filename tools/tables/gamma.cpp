// Tables of the gamma functions, fitted, and of their logarithm, by rule.
#include "table_writer.h"

namespace {

using numbers = std::span<const real>;

// How the library holds numbers of the x87 format that it loads at full precision only.
constexpr std::string_view two_doubles = "two_doubles";

template <class T>
std::string literal(const real& value) {
  return table_writer::literal(value.nearest<T>());
}

// Rows for products of quadratics: the scale, and the two columns of the factors.
template <class T, int Factors>
void write_quadratics(table_writer& out, std::string_view name, std::string_view meaning) {
  const auto type = fmt::format("quadratics<{}, {}>", std::is_same_v<T, double> ? "double" : two_doubles, Factors);
  out.fitted(name, meaning, type, "", 1 + 2 * Factors, [](numbers row) {
    return fmt::format("{{{}, {}, {}}}", literal<T>(row[0]), table_writer::numbers<T>(row.subspan(1, Factors)),
                       table_writer::numbers<T>(row.last(Factors)));
  });
}

std::string window(numbers row) {
  return fmt::format("{}, {}, {}", literal<double>(row[0]), literal<double>(row[1]), literal<double>(row[2]));
}

std::string window_and_cubic(numbers row) {
  return fmt::format("{{{}, {}}}", window(row), table_writer::numbers<double>(row.last(4)));
}

void write_roots(table_writer& out, std::string_view name, std::string_view meaning) {
  out.fitted(name, meaning, "lgamma_root", "", 0, [](numbers row) {
    if (row.size() < 5 || row.size() > 3 + 20) throw std::runtime_error("a zero's row of no possible length");
    return fmt::format("{{{}, {}, {}}}", window(row), row.size() - 4, table_writer::numbers<extended>(row.subspan(3)));
  });
}

// A number near 1 / (1 + (i + 1/2) / 256).
real reciprocal(int i) { return apply(mpfr_rint_roundeven, power_of_two(18) / real(513 + 2 * i)) / power_of_two(9); }

}  // namespace

void write_gamma_tables(table_writer& out) {
  out.fitted<double, 11>("lgammaf_octaves", "log-gamma at 2^(k+2) (1 + u), in u, highest power first");
  out.fitted("lgammaf_roots",
             "Where log-gamma is zero between -3 - j and -2 - j, j = 0 and 1: next to -3 - j, then next to -2 - j. A "
             "window, and a cubic about its middle, highest power first",
             "lgammaf_root", "[2]", 14, [](numbers row) {
               return fmt::format("{{{}, {}}}", window_and_cubic(row.first(7)), window_and_cubic(row.last(7)));
             });

  out.polynomial<extended>("lgamma_at_1", "log-gamma / (x - 1) between 0.875 and 1.25, in x - 1, highest power first",
                           two_doubles);
  out.polynomial<extended>("lgamma_at_minimum",
                           "log-gamma between 1.25 and 1.75, in the distance from its minimum, highest power first",
                           two_doubles);
  out.polynomial<extended>("lgamma_at_2", "log-gamma / (x - 2) between 1.75 and 2.25, in x - 2, highest power first",
                           two_doubles);
  write_quadratics<extended, 11>(out, "lgamma_to_4", "log-gamma / (x - 2) between 2.25 and 4, in x");
  write_quadratics<extended, 11>(out, "lgamma_octaves", "log-gamma at 2^(k+2) (1 + u), in u");
  write_roots(out, "lgamma_far_roots",
              "Where log-gamma is zero between -3 - j and -2 - j, next to -3 - j: a window, and a polynomial about its "
              "middle, highest power first");
  write_roots(out, "lgamma_near_roots", "The same next to -2 - j");
  out.polynomial<extended>("lgamma_reflection",
                           "log(sin(pi t) / (pi t)) / t^2 for t up to 1/2, in t^2, highest power first", two_doubles);

  out.values<float>("log_reciprocals", "Reciprocals of the middles of 256 stretches of [1, 2)", 256,
                    [](int i) { return reciprocal(i).nearest<float>(); });
  out.pairs<extended>("log_values", "Minus their logarithms, in two parts", "logarithm", 256,
                      [](int i) { return split<extended>(real(0) - apply(mpfr_log, reciprocal(i)), 50); });
  out.pairs<extended>("log_2", "ln 2 in two parts", "logarithm", 1,
                      [](int) { return split<extended>(apply(mpfr_log, real(2)), 50); });
  out.polynomial<extended>("log_after_table",
                           "(log(1 + f) - f + f^2 / 2) / f^3 for f up to 1/256, highest power first");
  out.polynomial<extended>("log_at_1", "The same for f up to 1/64, highest power first");

  write_quadratics<double, 6>(out, "tgammaf_rows",
                              "gamma(a) for a = 2 + g, then for a = 8 k + g, in g; the last row scaled down");
  write_quadratics<extended, 11>(out, "tgamma_rows",
                                 "gamma(a) for a = 2 + g, then for a = 16 k + g, in g; the last row scaled down");
  out.polynomial<extended>("tgamma_from_1", "gamma between 1 and 1.25, in y - 1, highest power first", two_doubles);
  out.polynomial<extended>("tgamma_at_minimum",
                           "gamma between 1.25 and 1.5, in the distance from its minimum, highest power first",
                           two_doubles);
  out.polynomial<extended>("tgamma_to_2", "gamma between 1.5 and 2, in y - 1, highest power first", two_doubles);
  out.polynomial<extended>("tgamma_sine", "(sin(pi t) / (pi t) - 1) / t^2 for t up to 1/2, in t^2, highest power first",
                           two_doubles);
}
