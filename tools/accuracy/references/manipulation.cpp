#include <cstdlib>

#include "accuracy/references/families.h"

namespace lanemath::accuracy {
namespace {

// The one of two numbers that `first` chooses, a number before a NaN.
template <bool First(mpfr_srcptr, mpfr_srcptr)>
void chosen(mpfr_t result, const mpfr_t* x) {
  const bool one = !mpfr_nan_p(x[0]) && (mpfr_nan_p(x[1]) || First(x[0], x[1]));
  mpfr_set(result, x[one ? 0 : 1], MPFR_RNDN);
}
bool larger(mpfr_srcptr x, mpfr_srcptr y) { return mpfr_greater_p(x, y); }
bool smaller(mpfr_srcptr x, mpfr_srcptr y) { return mpfr_less_p(x, y); }
bool larger_magnitude(mpfr_srcptr x, mpfr_srcptr y) {
  const int order = mpfr_cmpabs(x, y);
  return order > 0 || (order == 0 && larger(x, y));
}
bool smaller_magnitude(mpfr_srcptr x, mpfr_srcptr y) {
  const int order = mpfr_cmpabs(x, y);
  return order < 0 || (order == 0 && smaller(x, y));
}

template <int F(mpfr_ptr, mpfr_srcptr)>
void integral(mpfr_t result, const mpfr_t* x) {
  F(result, x[0]);
}

// x - floor(x); 0 for an infinity, which a difference of infinities would not give.
void fract(mpfr_t result, const mpfr_t* x) {
  if (mpfr_inf_p(x[0])) {
    mpfr_set_zero(result, 1);
    return;
  }
  mpfr_floor(result, x[0]);
  mpfr_sub(result, x[0], result, MPFR_RNDN);
}
void modf(mpfr_t result, const mpfr_t* x) { mpfr_frac(result, x[0], MPFR_RNDN); }

void frexp(mpfr_t result, const mpfr_t* x) {
  mpfr_set(result, x[0], MPFR_RNDN);
  if (mpfr_regular_p(result)) mpfr_set_exp(result, 0);
}
void frexp_exponent(mpfr_t result, const mpfr_t* x) {
  mpfr_set_si(result, mpfr_regular_p(x[0]) ? mpfr_get_exp(x[0]) : 0, MPFR_RNDN);
}
void ldexp(mpfr_t result, const mpfr_t* x) { mpfr_mul_2si(result, x[0], mpfr_get_si(x[1], MPFR_RNDN), MPFR_RNDN); }

void logb(mpfr_t result, const mpfr_t* x) {
  if (mpfr_regular_p(x[0]))
    mpfr_set_si(result, mpfr_get_exp(x[0]) - 1, MPFR_RNDN);
  else if (mpfr_zero_p(x[0]))
    mpfr_set_inf(result, -1);
  else
    mpfr_abs(result, x[0], MPFR_RNDN);
}
void ilogb(mpfr_t result, const mpfr_t* x) {
  if (mpfr_regular_p(x[0]))
    logb(result, x);
  else
    mpfr_set_d(result, mpfr_zero_p(x[0]) ? -0x1p31 : 0x1p31 - 1, MPFR_RNDN);
}

// The quotient's low 31 bits, with its sign.
void remquo_quotient(mpfr_t result, const mpfr_t* x) {
  long quotient = 0;
  if (mpfr_number_p(x[0]) && mpfr_regular_p(x[1])) mpfr_remquo(result, &quotient, x[0], x[1], MPFR_RNDN);
  const long low = std::labs(quotient) & 0x7FFFFFFF;
  mpfr_set_si(result, mpfr_signbit(x[0]) != mpfr_signbit(x[1]) ? -low : low, MPFR_RNDN);
}

void fma(mpfr_t result, const mpfr_t* x) { mpfr_fma(result, x[0], x[1], x[2], MPFR_RNDN); }

const std::vector<range> one_argument{{"typical", {{-1000, 1000}}}};
const std::vector<range> two_arguments{{"typical", {{-1000, 1000}, {-1000, 1000}}}};
const std::vector<range> divisions{{"typical", {{-1000, 1000}, {1, 100}}},
                                   {"large quotients", {{-1e30, 1e30}, {0, 1}}}};

}  // namespace

// nextafter, copysign and nan have no reference: their results depend on the format or the bits.
std::vector<reference> manipulation_references() {
  return {
      {.name = "ceil", .value = integral<mpfr_ceil>, .ranges = one_argument},
      {.name = "floor", .value = integral<mpfr_floor>, .ranges = one_argument},
      {.name = "trunc", .value = integral<mpfr_trunc>, .ranges = one_argument},
      {.name = "rint", .value = unary<mpfr_rint>, .ranges = one_argument},
      {.name = "nearbyint", .value = unary<mpfr_rint>, .ranges = one_argument},
      {.name = "round", .value = integral<mpfr_round>, .ranges = one_argument},
      {.name = "fabs", .value = unary<mpfr_abs>, .ranges = one_argument},
      {.name = "fdim", .value = binary<mpfr_dim>, .ranges = two_arguments},
      {.name = "fmax", .value = chosen<larger>, .ranges = two_arguments},
      {.name = "fmin", .value = chosen<smaller>, .ranges = two_arguments},
      {.name = "maxmag", .value = chosen<larger_magnitude>, .ranges = two_arguments},
      {.name = "minmag", .value = chosen<smaller_magnitude>, .ranges = two_arguments},
      {.name = "fract", .value = fract, .ranges = one_argument, .second = integral<mpfr_floor>},
      {.name = "modf", .value = modf, .ranges = one_argument, .second = integral<mpfr_trunc>},
      {.name = "frexp", .value = frexp, .ranges = one_argument, .second = frexp_exponent},
      {.name = "ldexp",
       .value = ldexp,
       .ranges = {{"typical", {{-1000, 1000}, {-50, 50}}}, {"denormal", {{-1000, 1000}, {-1090, -120}}}}},
      {.name = "ilogb", .value = ilogb, .ranges = one_argument},
      {.name = "logb", .value = logb, .ranges = one_argument},
      {.name = "fmod", .value = binary<mpfr_fmod>, .ranges = divisions},
      {.name = "remainder", .value = binary<mpfr_remainder>, .ranges = divisions},
      {.name = "remquo", .value = binary<mpfr_remainder>, .ranges = divisions, .second = remquo_quotient},
      {.name = "fma", .value = fma, .ranges = {{"typical", {{-1000, 1000}, {-1000, 1000}, {-1000, 1000}}}}},
  };
}

}  // namespace lanemath::accuracy
