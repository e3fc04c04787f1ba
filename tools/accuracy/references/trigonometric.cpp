#include <cmath>

#include "accuracy/references/families.h"

namespace lanemath::accuracy {
namespace {

using wide = unsigned __int128;

// 2^e / (2 pi) modulo 1, in units of 2^-128, for e from 0 on.
const auto turns = [] {
  std::array<wide, 128> all{};
  mpfr_t x, low;
  mpfr_inits2(400, x, low, nullptr);
  for (std::size_t e = 0; e < all.size(); ++e) {
    mpfr_const_pi(x, MPFR_RNDN);
    mpfr_si_div(x, 1, x, MPFR_RNDN);
    mpfr_mul_2si(x, x, long(e) - 1, MPFR_RNDN);
    mpfr_frac(x, x, MPFR_RNDN);
    mpfr_mul_2si(x, x, 64, MPFR_RNDN);
    mpfr_frac(low, x, MPFR_RNDN);
    mpfr_mul_2si(low, low, 64, MPFR_RNDN);
    all[e] = wide(mpfr_get_ui(x, MPFR_RNDD)) << 64 | mpfr_get_ui(low, MPFR_RNDD);
  }
  mpfr_clears(x, low, nullptr);
  return all;
}();

// The sine of a float that many quarter turns further. The C library's is slow beyond some 10^8.
double turned_sine(double x, unsigned quarters) {
  if (!(std::fabs(x) >= 0x1p24 && std::fabs(x) < 0x1p128)) return quarters ? std::cos(x) : std::sin(x);
  const int exponent = std::ilogb(x) - 23;
  wide turn = wide(std::uint64_t(std::ldexp(std::fabs(x), -exponent))) * turns[std::size_t(exponent)];
  if (x < 0) turn = -turn;
  turn += wide(1) << 125;  // so that truncation finds the nearest quarter
  quarters += unsigned(turn >> 126);
  const double r = 2 * M_PI * std::ldexp(double(__int128((turn << 2 >> 2) - (wide(1) << 125))), -128);
  const double y = quarters & 1 ? std::cos(r) : std::sin(r);
  return quarters & 2 ? -y : y;
}

reference of(std::string_view name, exact_function value, double (*fast)(double), float large,
             exact_function second = nullptr, double (*fast_second)(double) = nullptr) {
  return {.name = name,
          .value = value,
          .ranges = {{"typical", {{-10, 10}}},
                     {"main", {{-10000, 10000}}},
                     {"middle", {{10000, 0x1p30}}},
                     {"large", {{0x1p30, 0x1p127}}},
                     {"negative", {{-0x1p127, -10000}}}},
          // Multiples of pi/2, and the floats and doubles that come nearest to one.
          .single_bounds = {0x1.921fb6p0, 0x1.921fb6p1, 0x1.f6a7a2p12, 8256, 10000, 0x1.f37694p95, 0x1p17, 0x1p30},
          .double_bounds = {0x1.921fb54442d18p0, 0x1.921fb54442d18p1, 0x1p17, 0x1p23, 0x1p24, 0x1p30,
                            0x1.6ac5b262ca1ffp849},
          .fast = fast,
          .second = second,
          .fast_second = fast_second,
          .symmetry = {parity::odd, parity::even},
          .single_parts = {{large == 10000 ? "above 10000" : "above 8256", large}}};
}

// Functions of pi x: the quarters matter, and from 2^23 or 2^52 on every number is whole.
reference of_pi(std::string_view name, exact_function value, double (*fast)(double)) {
  return {.name = name,
          .value = value,
          .ranges = {{"turn", {{-1, 1}}}, {"main", {{-1000, 1000}}}, {"large", {{1000, 0x1p25}}}},
          .single_bounds = {0.25, 0.5, 0.75, 1, 1.25, 1.5, 2, 3, 0x1p22, 0x1p23, 0x1p24},
          .double_bounds = {0.25, 0.5, 0.75, 1, 1.25, 1.5, 2, 3, 0x1p51, 0x1p52, 0x1p53},
          .fast = fast};
}

// The remainder of a float, without the library's loop for large quotients.
double remainder_of(double x, double y) { return x - y * std::rint(x / y); }
double sine_of_pi(double x) {
  const double r = remainder_of(x, 2);
  return std::sin(M_PI * (std::fabs(r) > 0.5 ? std::copysign(1.0, r) - r : r));
}
double cosine_of_pi(double x) { return std::sin(M_PI * (0.5 - std::fabs(remainder_of(x, 2)))); }
double tangent_of_pi(double x) {
  const double r = remainder_of(x, 1), a = std::fabs(r);
  return std::copysign(a > 0.25 ? 1.0 / std::tan(M_PI * (0.5 - a)) : std::tan(M_PI * a), r);
}

}  // namespace

std::vector<reference> trigonometric_references() {
  const auto sine = [](double x) { return turned_sine(x, 0); };
  const auto cosine = [](double x) { return turned_sine(x, 1); };
  return {of("sin", unary<mpfr_sin>, sine, 10000),
          of("cos", unary<mpfr_cos>, cosine, 10000),
          of("sincos", unary<mpfr_sin>, sine, 10000, unary<mpfr_cos>, cosine),
          of(
              "tan", unary<mpfr_tan>, [](double x) { return std::tan(x); }, 8256),
          of("sincosreg", unary<mpfr_sin>, sine, 10000, unary<mpfr_cos>, cosine),
          of_pi("sinpi", unary<mpfr_sinpi>, sine_of_pi),
          of_pi("cospi", unary<mpfr_cospi>, cosine_of_pi),
          of_pi("tanpi", unary<mpfr_tanpi>, tangent_of_pi)};
}

}  // namespace lanemath::accuracy
