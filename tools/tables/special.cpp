// Tables of the error functions: value and slope on a regular grid, each entry exact and rounded once.
#include "table_writer.h"

namespace {

using grid_point = std::pair<real, real>;

// 2 / sqrt(pi) e^(-m^2), the slope of erf.
real slope(const real& m) {
  real pi, root, power;
  mpfr_const_pi(pi.v, MPFR_RNDN);
  mpfr_sqrt(root.v, pi.v, MPFR_RNDN);
  mpfr_neg(power.v, (m * m).v, MPFR_RNDN);
  mpfr_exp(power.v, power.v, MPFR_RNDN);
  return real(2) / root * power;
}

real grid_argument(int j, int per_unit) { return real(j) / real(per_unit); }

grid_point erf_at(int j, int per_unit) {
  const real m = grid_argument(j, per_unit);
  real value;
  mpfr_erf(value.v, m.v, MPFR_RNDN);
  return {value, slope(m)};
}

// 2^scale times erfc and the slope; nothing at the last point.
grid_point erfc_at(int j, int per_unit, int last, int scale) {
  if (j == last) return {real(0), real(0)};
  const real m = grid_argument(j, per_unit);
  real value, steepness = slope(m);
  mpfr_erfc(value.v, m.v, MPFR_RNDN);
  mpfr_mul_2si(value.v, value.v, scale, MPFR_RNDN);
  mpfr_mul_2si(steepness.v, steepness.v, scale, MPFR_RNDN);
  return {value, steepness};
}

template <class T>
auto rounded(const grid_point& at) {
  return std::pair(at.first.nearest<T>(), at.second.nearest<T>());
}

template <class T>
void write_erfc(table_writer& out, std::string_view name, int per_unit, int last, int scale) {
  out.pairs<T>(name, fmt::format("2^{0} erfc(j/{1}), 2^{0} 2/sqrt(pi) e^-(j/{1})^2; zeros at the end", scale, per_unit),
               last + 1, [&](int j) { return rounded<T>(erfc_at(j, per_unit, last, scale)); });
}

}  // namespace

void write_special_tables(table_writer& out) {
  out.pairs<float>("erff_grid", "erf(j/128), 2/sqrt(pi) e^-(j/128)^2", 504,
                   [](int j) { return rounded<float>(erf_at(j, 128)); });
  out.pairs<double>("erf_grid", "erf(j/128), 2/sqrt(pi) e^-(j/128)^2", 768,
                    [](int j) { return rounded<double>(erf_at(j, 128)); });
  write_erfc<float>(out, "erfcf_grid", 64, 644, 48);
  write_erfc<float>(out, "erfcf_native_grid", 32, 322, 48);
  write_erfc<double>(out, "erfc_grid", 128, 3487, 128);
  write_erfc<double>(out, "erfc_native_grid", 64, 1743, 128);
}
