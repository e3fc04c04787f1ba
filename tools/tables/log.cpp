// Tables of the logarithms, each entry exact and rounded once.
#include "table_writer.h"

namespace {

// What a kernel adds to the raw, biased exponent times a constant in two parts: log(scale / n) minus `bias` times the
// constant. First log(2^q scale / n) is split, for the q that keeps it small; what is then subtracted from the high
// part leaves it exact.
template <class T>
std::pair<T, T> biased(function log, const real& scale, int n, int q, int bias, T constant_hi, T constant_lo,
                       int bits) {
  const real u = apply(log, scale * power_of_two(q) / real(n));
  const real hi(on_grid<T>(u, bits)), times(bias + q);
  return {(hi - times * real(constant_hi)).nearest<T>(), (u - hi - times * real(constant_lo)).nearest<T>()};
}

// Reciprocals of 1 + i/64 with few bits, times a scale, and minus their logarithms.
template <class T>
void reciprocals(table_writer& out, std::string_view name, std::string_view meaning, function log, int steps, T scale,
                 int bits) {
  out.triples<T>(name, meaning, 65, [&](int i) {
    const real g = apply(mpfr_rint_roundeven, real(steps) * real(64) / real(64 + i)) / real(steps);
    const auto [hi, lo] = split<T>(real(0) - apply(log, g), bits);
    return std::tuple((g * real(scale)).nearest<T>(), hi, lo);
  });
}

}  // namespace

void write_log_tables(table_writer& out) {
  // In each base, for integers from 512 to 1024; 724 is nearly 512 times the root of two.
  const auto of_integers = [&](std::string_view name, std::string_view meaning, function log) {
    out.values<double>(name, meaning, 513, [&](int j) {
      const int n = 512 + j;
      return apply(log, power_of_two(n > 724 ? 10 : 9) / real(n)).nearest<double>();
    });
  };
  of_integers("ln_of_integers", "ln(2^q / n) of n = 512 + j: q is 10 above 724, else 9", mpfr_log);
  of_integers("log2_of_integers", "the same to base 2", mpfr_log2);
  of_integers("log10_of_integers", "the same to base 10", mpfr_log10);

  // Indexed by the upper half of the pattern of n as a float: n + 1/2 has an entry below 128, which is never read.
  out.pairs<float>("log10f_of_integers", "log10(111/256 / n) less 118 times log10(2): n from 111 to 222 by its pattern",
                   129, [](int j) {
                     const bool halves = j < 2 * (128 - 111);
                     const int twice = halves ? 222 + j : 2 * (128 + j - 34);
                     const int q = twice > 312 ? 9 : 8;
                     return biased<float>(mpfr_log10, real(222) / real(256), twice, q, 118, 0x1.34420p-2f,
                                          -0x1.95ecp-19f, 17);
                   });
  out.pairs<float>("log1pf_of_integers", "-ln n less 119 times ln 2, n = 128 + j", 129, [](int j) {
    const int n = 128 + j;
    return biased<float>(mpfr_log, real(1), n, n > 181 ? 8 : 7, 119, 0x1.62e4p-1f, 0x1.7f7cp-20f, 17);
  });
  out.pairs<double>("log1p_of_integers", "-ln n less 1013 times ln 2, n = 512 + j", 513, [](int j) {
    const int n = 512 + j;
    return biased<double>(mpfr_log, real(1), n, n > 724 ? 10 : 9, 1013, 0x1.62e42fefap-1, 0x1.cf79abc9ep-40, 43);
  });

  // For the rare routines.
  reciprocals<float>(out, "logf_reciprocals", "g near 1 / (1 + i/64), -ln g in two parts", mpfr_log, 128, 1.0f, 18);
  reciprocals<float>(out, "log2f_reciprocals", "g 256 / ln 2, -log2 g in two parts", mpfr_log2, 2048, 0x1.71548p8f, 16);
  reciprocals<float>(out, "log10f_reciprocals", "g 256 / ln 10, -log10 g in two parts", mpfr_log10, 128, 0x1.bcb8p6f,
                     18);
  reciprocals<double>(out, "log_reciprocals", "g near 1 / (1 + i/64), -ln g in two parts", mpfr_log, 2048, 1.0, 42);
  reciprocals<double>(out, "log10_reciprocals", "g 111/256, -log10 g in two parts", mpfr_log10, 128, 0x1.bcp-2, 42);

  const auto centre = [](int i) {
    return (apply(mpfr_rint_roundeven, real(2048) * real(512) / real(513 + 2 * i)) / real(2048)).nearest<float>();
  };
  out.values<float>("log2_centres", "c near 1 / (1 + (i + 1/2) / 256)", 256, centre);
  out.pairs<double>("log2_of_centres", "-log2 c in two parts", 256,
                    [&](int i) { return split<double>(real(0) - apply(mpfr_log2, real(centre(i))), 28); });

  out.triples<double>("log2_of_128ths", "log2(1 + j/128) in two parts, 1 / (1 + j/128)", 129, [](int j) {
    const real m = real(128 + j) / real(128);
    const auto [hi, lo] = split<double>(apply(mpfr_log2, m), 42);
    return std::tuple(hi, lo, (real(1) / m).nearest<double>());
  });
}
