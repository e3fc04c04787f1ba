// Tables of the trigonometric functions: bits of 1 / (2 pi) and of 4 / pi for the reduction of large arguments, and
// the sine and cosine of evenly spaced angles.
#include <gmp.h>

#include <cmath>
#include <cstdlib>
#include <iterator>

#include "table_writer.h"

namespace {

// floor(2^power / (2 pi)) modulo 2^count. A word of a longer number is the same with a lower power.
std::uint64_t bits_of_inverse_turn(int power, int count) {
  static mpfr_t inverse;
  static mpz_t whole;
  static const bool ready = [] {
    mpfr_init2(inverse, 1536);  // the longest window ends 1164 bits after the point
    mpz_init(whole);
    mpfr_const_pi(inverse, MPFR_RNDN);
    mpfr_ui_div(inverse, 1, inverse, MPFR_RNDN);
    return true;
  }();
  (void)ready;
  mpfr_t scaled;
  mpfr_init2(scaled, 1536);
  mpfr_mul_2si(scaled, inverse, power - 1, MPFR_RNDN);
  mpfr_get_z(whole, scaled, MPFR_RNDD);
  mpfr_clear(scaled);
  mpz_fdiv_r_2exp(whole, whole, unsigned(count));
  return mpz_get_ui(whole);
}

// The sine of j parts of a turn cut into `steps`, exact at the quarters.
real sine(int j, int steps) {
  if (j % (steps / 4) == 0) return real((const int[]){0, 1, 0, -1}[j / (steps / 4) % 4]);
  real angle;
  mpfr_const_pi(angle.v, MPFR_RNDN);
  angle = angle * real(2 * j) / real(steps);
  mpfr_sin(angle.v, angle.v, MPFR_RNDN);
  return angle;
}
real cosine(int j, int steps) { return sine(j + steps / 4, steps); }

// The power of two p, with the sign of v, for which |v| lies in [0.75 p, 1.5 p); 0 for 0.
double power_near(const real& v) {
  if (mpfr_zero_p(v.v)) return 0;
  long exponent;
  const double significand = mpfr_get_d_2exp(&exponent, v.v, MPFR_RNDZ);
  return std::copysign(std::ldexp(1.0, int(std::fabs(significand) < 0.75 ? exponent - 1 : exponent)), significand);
}

// The power of two for which |cos| / p lies in [2^(-1/2), 2^(1/2)), by the step: at an eighth of a turn it is a tie.
float power_near_cosine_of_256(int j) {
  const int from_zero = std::abs((j + 64) % 128 - 64);
  if (from_zero == 64) return 0;
  float p = 1;
  for (const int last : {32, 49, 56, 60, 62})
    if (from_zero > last) p /= 2;
  return j > 64 && j < 192 ? -p : p;
}

real cut(const real& v, int precision, mpfr_rnd_t direction) {
  real result = v;
  mpfr_prec_round(result.v, precision, direction);
  return result;
}

template <class T>
struct step {
  T cos_tail, cos_head, sin_hi, sin_lo;

  // `round_low` gives the low part of the sine as it is stored.
  template <class F>
  step(int j, int steps, double head, F round_low) {
    const real s = sine(j, steps);
    cos_head = T(head);
    cos_tail = (cosine(j, steps) - real(head)).template nearest<T>();
    sin_hi = s.template nearest<T>();
    sin_lo = round_low(s - real(sin_hi));
  }
};

// The sine of step j of 512 in a turn in two parts, and pi times its cosine, in few bits and the rest. At a whole
// number of half turns they are two bits, an integer, whose products with denormals are exact.
std::array<double, 4> step_of_pi(int j) {
  real slope;
  mpfr_const_pi(slope.v, MPFR_RNDN);
  slope = slope * cosine(j, 512);
  const real value = sine(j, 512);
  const double high = value.nearest<double>(), head = cut(slope, j % 256 == 0 ? 2 : 5, MPFR_RNDN).nearest<double>();
  return {high, (value - real(high)).nearest<double>(), head, (slope - real(head)).nearest<double>()};
}

// The tangent of step j of 128 in a quarter of a turn, or of step j - 128, in two parts, the first of 32 bits.
std::array<double, 2> tangent_of_step(int j) {
  const int step = j < 64 ? j : j - 128;
  const real t = j == 64 ? real(-1) : sine(step, 512) / cosine(step, 512);
  const double high = cut(t, 32, MPFR_RNDN).nearest<double>();
  return {high, (t - real(high)).nearest<double>()};
}

// The tangent's expansion about step j of 128 in half a turn; next to the pole, the expansion of the tangent less the
// pole's term. `fit` is c3 to c9.
std::array<float, 12> tangent_step(int j, const std::vector<real>& fit) {
  real pi;
  mpfr_const_pi(pi.v, MPFR_RNDN);
  const real theta = pi * real(j < 64 ? j : j - 128) / real(128);
  const real pole = j == 64 ? real(0) : pi / real(j < 64 ? 2 : -2) - theta;
  std::array<float, 12> row{pole.nearest<float>()};
  row[1] = (pole - real(row[0])).nearest<float>();
  row[2] = j >= 32 && j <= 95;
  for (int i = 0; i < 7; ++i) row[3 + i] = fit.at(i).nearest<float>();
  return row;
}

}  // namespace

void write_trig_tables(table_writer& out) {
  out.rows("inverse_turn_window_f32",
           "By the exponent field e of a float: floor(2^(e-54) / (2 pi)) modulo 2^96, most significant word first, and "
           "a word that nothing reads",
           256, [](int e) {
             std::array<std::uint32_t, 4> words{};
             for (int i = 0; i < 3; ++i) words[i] = std::uint32_t(bits_of_inverse_turn(e - 54 - 32 * (2 - i), 32));
             return words;
           });
  out.rows("inverse_turn_window_f64",
           "By the exponent field e of a double: floor(2^(e-883) / (2 pi)) modulo 2^192, most significant word first",
           2048, [](int e) {
             std::array<std::uint64_t, 3> words{};
             for (int i = 0; i < 3; ++i) words[i] = bits_of_inverse_turn(e - 883 - 64 * (2 - i), 64);
             return words;
           });
  out.values<double>("four_over_pi_slices", "25 bits of 4/pi a slice, scaled by 2^200; ends in zeros", 55, [](int i) {
    const bool slice = i >= 1 && i <= 49;
    return slice ? std::ldexp(double(bits_of_inverse_turn(25 * i + 2, 25)), 201 - 25 * i) : 0.0;
  });

  out.rows("sincos_256",
           "By step j of 256 in a turn: cosine less head, sine, sine's low part, cosine's head (a power of two)", 256,
           [](int j) {
             const step<float> s(j, 256, power_near_cosine_of_256(j),
                                 [](const real& low) { return low.nearest<float>(); });
             return std::array{s.cos_tail, s.sin_hi, s.sin_lo, s.cos_head};
           });
  out.rows("sincos_512",
           "By step j of 512 in a turn: cosine less head, cosine's head (a power of two), sine, sine's low part cut to "
           "24 bits",
           512, [](int j) {
             const step<double> s(j, 512, power_near(cosine(j, 512)),
                                  [](const real& low) { return cut(low, 24, MPFR_RNDZ).nearest<double>(); });
             return std::array{s.cos_tail, s.cos_head, s.sin_hi, s.sin_lo};
           });
  out.rows("sincos_64",
           "By step j of 64 in a turn: cosine less head, sine, sine's low part of 24 bits, cosine's head (a power of "
           "two, -0 for 0)",
           64, [](int j) {
             const step<double> s(j, 64, power_near(cosine(j, 64)),
                                  [](const real& low) { return cut(low, 24, MPFR_RNDN).nearest<double>(); });
             return std::array{s.cos_tail, s.sin_hi, s.sin_lo, s.cos_head == 0 ? -0.0 : s.cos_head};
           });

  out.rows("of_pi_f64",
           "By step j of 512 in a turn: sine and its low part, pi times the cosine, in few bits and the rest", 512,
           step_of_pi);
  out.rows(
      "tangent_quarter",
      "By step j of 128 in a quarter of a turn: tangent of j steps, from 64 on of j - 128, in 32 bits, and the rest",
      128, tangent_of_step);

  out.rows(
      "tangent_128",
      "By step j of 128 in half a turn: distance to the pole and its low part, 1 next to the pole, value and its low "
      "part, a power of two near the slope and the rest, terms of degree 2, 3, 4; two columns that nothing reads",
      128, [&](int j) { return tangent_step(j, out.fit("tangent_expansions").at(j)); });
}
