// Tables of the inverse tangent, each entry exact and rounded once.
#include <cmath>

#include "table_writer.h"

namespace {

real arc_tangent(double x) {
  real y;
  mpfr_atan(y.v, real(x).v, MPFR_RNDN);
  return y;
}

// atan(c) as two doubles; c is 1 + offset and 1.5 + offset times the powers of two from 1/8 up.
void write_points(table_writer& out, std::string_view name, std::string_view meaning, double offset) {
  out.pairs<double>(name, meaning, 114, [&](int j) {
    const real exact = arc_tangent(std::ldexp((j % 2 ? 1.5 : 1.0) + offset, j / 2 - 3));
    const double hi = exact.nearest<double>();
    return std::pair(hi, (exact - real(hi)).nearest<double>());
  });
}

}  // namespace

void write_invtrig_tables(table_writer& out) {
  out.values<double>("arc_tangent_quarters", "atan(j/4)", 32,
                     [](int j) { return arc_tangent(j / 4.0).nearest<double>(); });
  write_points(out, "arc_tangent_at_halves", "atan of 1 and 1.5 times powers of two from 1/8 up", 0);
  write_points(out, "arc_tangent_at_middles", "atan of 1.25 and 1.75 times powers of two from 1/8 up", 0.25);
}
