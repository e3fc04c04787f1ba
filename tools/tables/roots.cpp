// Tables of the roots.
#include <cmath>

#include "table_writer.h"

namespace {

real power(const real& base, const real& exponent) {
  real y;
  mpfr_pow(y.v, base.v, exponent.v, MPFR_RNDN);
  return y;
}
real reciprocal_root(double x) { return power(real(x), real(-0.5)); }

// To the nearest multiple of 1/steps. A seed has few bits, so that its square is exact.
double on_grid(const real& x, double steps) { return std::nearbyint((x * real(steps)).nearest<double>()) / steps; }

// The middle of cell i when [1, 2) is cut into 32.
real middle(int i) { return real(1 + (i + 0.5) / 32); }

}  // namespace

void write_roots_tables(table_writer& out) {
  out.values<double>(
      "root_seed", "1 / sqrt(x) to 11 bits, in 256 cells of [1, 2), and in as many of [2, 4)", 512,
      [](int i) { return on_grid(reciprocal_root((i < 256 ? 1 : 2) * (1 + (i % 256 + 0.5) / 256)), 0x1p11); });
  out.values<double>(
      "reciprocal_root_seed", "1 / sqrt(x) to 13 bits, x from 1 to 2 in steps of 1/32, to 4 in 1/16", 65,
      [](int i) { return on_grid(reciprocal_root(i <= 32 ? 1 + i / 32.0 : 2 + (i - 32) / 16.0), 0x1p13); });

  const auto minus_reciprocal = [](int i) { return real(-1) / middle(i); };
  out.values<float>("minus_inverse_middle_f32", "-1/c, c the middle of a cell of [1, 2)", 32,
                    [&](int i) { return minus_reciprocal(i).nearest<float>(); });
  out.values<double>("minus_inverse_middle_f64", "The same in double", 32,
                     [&](int i) { return minus_reciprocal(i).nearest<double>(); });

  // Entry 32 m + i belongs to c 2^m.
  const auto cube_root = [](int sign) {
    return [=](int i) { return power(middle(i % 32) * real(1 << i / 32), real(sign) / real(3)); };
  };
  const auto in_two_parts = [](const real& exact) {
    const float hi = exact.nearest<float>();
    return std::pair(hi, (exact - real(hi)).nearest<float>());
  };
  const auto root = cube_root(1), inverse = cube_root(-1);
  out.pairs<float>("cbrt_f32", "Cube roots of c, 2c and 4c: the nearest float, and what is left as a float", 96,
                   [&](int i) { return in_two_parts(root(i)); });
  out.pairs<float>("rcbrt_f32", "Their reciprocals", 96, [&](int i) { return in_two_parts(inverse(i)); });
  out.values<double>("cbrt_f64", "Cube roots of c, 2c and 4c", 96, [&](int i) { return root(i).nearest<double>(); });
  out.values<double>("rcbrt_f64", "Their reciprocals", 96, [&](int i) { return inverse(i).nearest<double>(); });
}
