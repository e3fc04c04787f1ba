// Tables of the hyperbolic functions: powers of two, exact and rounded once, and the fitted polynomials.
#include "table_writer.h"

namespace {

real power_of_two(int numerator, int denominator) {
  real x = real(numerator) / real(denominator), y;
  mpfr_exp2(y.v, x.v, MPFR_RNDN);
  return y;
}

}  // namespace

void write_hyperbolic_tables(table_writer& out) {
  out.pairs<double>("sinh_128", "2^(-j/128) / 2, and 2^(j/128) / 2 less that", 128, [](int j) {
    const real half(0.5), falling = power_of_two(-j, 128);
    return std::pair((half * falling).nearest<double>(), (half * (power_of_two(j, 128) - falling)).nearest<double>());
  });
  out.values<double>("cosh_256", "2^(j/256 - 1)", 257,
                     [](int j) { return power_of_two(j - 256, 256).nearest<double>(); });

  out.fitted<double, 4>("tanhf_cubics", "By interval: c0 to c3 of tanh |x|");
  out.fitted<double, 12>("tanh_polynomials",
                         "By interval: minus its centre, c0 to c10 of tanh |x| in |x| less the centre");
  out.fitted<double, 4>("log_cubics", "By the 256th of [1, 2) that u is in: c3, c1, c2, c0 of ln u");
}
