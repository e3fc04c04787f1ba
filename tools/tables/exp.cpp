// Tables of the exponentials, each entry exact and rounded once.
#include <cmath>
#include <set>

#include "table_writer.h"

namespace {

// 2^(j/steps)
real power_of_two(int j, int steps) {
  real x = real(j) / real(steps), y;
  mpfr_exp2(y.v, x.v, MPFR_RNDN);
  return y;
}

}  // namespace

void write_exp_tables(table_writer& out) {
  out.pairs<float>("exp2_128", "2^(j/128): the nearest float, and what is left as a float", 128, [](int j) {
    const real exact = power_of_two(j, 128);
    const float hi = exact.nearest<float>();
    return std::pair(hi, (exact - real(hi)).nearest<float>());
  });

  out.pairs<double>("exp2_64", "2^(j/64): the nearest double, and what is left relative to it", 64, [](int j) {
    const real exact = power_of_two(j, 64);
    const double hi = exact.nearest<double>();
    return std::pair(hi, ((exact - real(hi)) / real(hi)).nearest<double>());
  });

  out.values<double>("exp2_256", "2^(j/256)", 256, [](int j) { return power_of_two(j, 256).nearest<double>(); });

  // Seven entries are one unit lower than the nearest float: chosen with the monic polynomial they multiply.
  const std::set<int> lowered{12, 20, 29, 30, 52, 58, 60};
  out.pairs<float>("exp2_monic_64", "(ln 2)^2 / 2 * 2^(j/64), at a stride of two floats", 64, [&](int j) {
    real ln2;
    mpfr_const_log2(ln2.v, MPFR_RNDN);
    const float nearest = (ln2 * ln2 / real(2) * power_of_two(j, 64)).nearest<float>();
    return std::pair(lowered.contains(j) ? std::nextafter(nearest, 0.0f) : nearest, 0.0f);
  });
}
