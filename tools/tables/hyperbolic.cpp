// Tables of the hyperbolic functions: powers of two, exact and rounded once, and the fitted polynomials.
#include "table_writer.h"

namespace {

real power_of_two(int numerator, int denominator) {
  real x = real(numerator) / real(denominator), y;
  mpfr_exp2(y.v, x.v, MPFR_RNDN);
  return y;
}

// What the scripts beside them wrote.
constexpr double tanhf_fit[134][4] = {
#include "../fits/tanhf.inc"
};
constexpr double tanh_fit[60][12] = {
#include "../fits/tanh.inc"
};
constexpr double log_cell_fit[256][4] = {
#include "../fits/log_cells.inc"
};

template <std::size_t Rows, std::size_t Columns>
void fitted(table_writer& out, std::string_view name, std::string_view meaning, const double (&fit)[Rows][Columns]) {
  out.rows(name, meaning, Rows, [&](int j) { return std::to_array(fit[j]); });
}

}  // namespace

void write_hyperbolic_tables(table_writer& out) {
  out.pairs<double>("sinh_128", "2^(-j/128) / 2, and 2^(j/128) / 2 less that", 128, [](int j) {
    const real half(0.5), falling = power_of_two(-j, 128);
    return std::pair((half * falling).nearest<double>(), (half * (power_of_two(j, 128) - falling)).nearest<double>());
  });
  out.values<double>("cosh_256", "2^(j/256 - 1)", 257,
                     [](int j) { return power_of_two(j - 256, 256).nearest<double>(); });

  fitted(out, "tanhf_cubics", "By interval: c0 to c3 of tanh |x|", tanhf_fit);
  fitted(out, "tanh_polynomials", "By interval: minus its centre, c0 to c10 of tanh |x| in |x| less the centre",
         tanh_fit);
  fitted(out, "log_cubics", "By the 256th of [1, 2) that u is in: c3, c1, c2, c0 of ln u", log_cell_fit);
}
