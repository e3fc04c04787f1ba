// log|gamma(x)|, single precision, with or without the sign of gamma.
//
// Each lane is computed by itself in x87 arithmetic: from 1 up a polynomial for each interval or octave, from 8192 on
// Stirling's formula. Below 1 the argument is walked up, log|gamma(x)| = log|gamma(x + n)| - log|x ... (x + n - 1)|,
// and from -9 on down reflected. Near the zeros between -4 and -2 the function is expanded about the zero. Between 0
// and 8192 the value in double arithmetic serves, where it shows what x87 arithmetic would be rounded to.
//
// Largest errors found, in ulp:
//   lgammaf: default 0.509686
//   lgammarf: default 0.509686
//
// Looks odd and is meant, see docs/design.md: odd integers below -2^22.
#include "special/gamma.h"

namespace lanemath::special {
namespace {

// Polynomials, highest power first: in x from 1 to 1.25, in the distance from the minimum of gamma up to 1.5, in x up
// to 1.75 and up to 2, and the cofactor of x - 2 up to 4.
constexpr double from_1[] = {0x3FAC8CDFBC14D340_f64, 0xBFE22092FC0EE4DC_f64, 0x40048D48C3A02F10_f64,
                             0xC01B63D2FD8B4838_f64, 0x4027CB007D9BF558_f64, 0xC02C6004CA309876_f64,
                             0x40288FCC5B1371AE_f64, 0xC01F4732F1F3E423_f64, 0x4004F39421765550_f64};
constexpr double at_minimum[] = {0x3F838E0D35A6171A_f64, 0xBF831BBBD61313B7_f64, 0x3F9285DDDC20D6C3_f64,
                                 0xBFA0C90C9C223044_f64, 0x3FB08B40196425D0_f64, 0xBFC2E427A53EB830_f64,
                                 0x3FDEF72BC8F5287C_f64, 0x3D890B3DAEBC1DFC_f64, 0xBFBF19B9BCC38A42_f64};
constexpr double from_1_5[] = {0x3F65D5A7EB31047F_f64, 0xBFA44EAC9BFA7FDE_f64, 0x3FD0E1583AB00E08_f64,
                               0xBFF084AF95883BA5_f64, 0x40051FEFE7A663D8_f64, 0xC012A5CFE00A2522_f64,
                               0x40185982877AE0A2_f64, 0xC015F83DB73B57B7_f64, 0x4001DB08F9DFA0CC_f64};
constexpr double to_2[] = {0x3F4A9222032EB39A_f64, 0xBF8CBC9587EEA5A3_f64, 0x3FBBC992783E8C5B_f64,
                           0xBFDFA67E65E89B29_f64, 0x3FF795400783BE49_f64, 0xC00851BC418B8A25_f64,
                           0x4012B408F02FAF88_f64, 0xC013284CE7CB0C39_f64, 0x4000A0CB38D6CF0A_f64};
constexpr double to_4[] = {0xBEB2CC7A38B9355F_f64, 0x3F035F2D1833BF4C_f64, 0xBF421676F9CB46C7_f64,
                           0x3F7437F2FA1436C6_f64, 0xBF9E1C289FB224AB_f64, 0x3FBF7422445C9460_f64,
                           0xBFD7A7041DE592FE_f64, 0x3FE9F107FEE8BD29_f64, 0xBFF51BAA7FD27785_f64,
                           0x3FFC9D5D5B6CDEFF_f64, 0xBFF01E76D66F8D8A_f64};

// log(sin(pi t) / (pi t)) in t^2, without its constant term, which is 0.
constexpr double reflection[] = {0xBFD58731A486E820_f64, 0xBFA4452CC28E15A9_f64, 0xBFC86A0D5252E778_f64,
                                 0xBFC93E08C9EE284B_f64, 0xBFD013F6E1B86C4F_f64, 0xBFD5B3F19F7A341F_f64,
                                 0xBFE15132555C9EDD_f64, 0xBFFA51A662480E35_f64};

constexpr double minimum_of_gamma = 0x3FF762D86356BE3F_f64;

// From 1 to 8192; `high` is the upper half of y as a double.
template <class Real>
Real on_interval(Real y, std::int32_t high) {
  if (high >= 0x40100000) return even_and_odd(lgammaf_octaves[(high >> 20) - 0x401], Real(within_octave(double(y))));
  if (high >= 0x40000000) return (y - 2.0) * even_and_odd(to_4, y);
  if (high >= 0x3FFC0000) return even_and_odd(to_2, y);
  if (high >= 0x3FF80000) return even_and_odd(from_1_5, y);
  if (high >= 0x3FF40000) return even_and_odd(at_minimum, y - minimum_of_gamma);
  if (high >= 0x3FF00000) return even_and_odd(from_1, y);
  return 0.0;  // never reached
}

// log-gamma at the end of a walk or a reflection. It is taken as 0 just above 2 too, where the other summand dominates.
extended lgamma_of(extended y) {
  const std::int32_t high = upper_half(double(y));
  return high == 0x40000000 ? 0.0L : on_interval(y, high);
}

double log_of(extended x) { return double(log_extended(x)); }

extended walked_up(float x) {
  extended y = x, product = 1.0L;
  for (; y < 1.0L; y += 1.0L) product *= y;
  return lgamma_of(y) - log_of(std::fabs(double(product)));
}

extended stirling(float x) { return (x - 0.5L) * log_of(x) - x + half_log_2_pi; }

extended reflected(float x) {
  const float t = -x - nearest_integer(-x);
  const extended s = extended(t) * t;
  const extended mirrored = x > -8192.0f ? lgamma_of(-x) : stirling(-x);
  return -mirrored - log_of(-x) - log_of(std::fabs(t)) - horner(s, reflection) * s;
}

extended on_negative_axis(float x) {
  if (x > -2.0f) return walked_up(x);
  if (x > -4.0f) {
    const auto j = std::int32_t(nearest_integer(-2.5f - x)) & 1;
    for (const auto& roots : lgammaf_roots) {
      const auto& row = roots[j];
      if (row.low < double(x) && double(x) < row.high) return horner(extended(x) - row.root, row.c);
    }
  }
  return x > -9.0f ? walked_up(x) : reflected(x);
}

// Whether an error of 2^-40 in y, which is larger than the polynomials and the logarithm make in double arithmetic,
// cannot change the float that y rounds to in any direction: y is at least 2^-6, and neither near a float nor halfway
// between two.
bool rounds_safely(double y) {
  constexpr std::uint64_t margin = 1 << 18, half_step = 1 << 28;
  return magnitude_pattern(y) >= pattern_of(0x1p-6) && ((pattern_of(y) + margin) & (half_step - 1)) > 2 * margin;
}

// (log(1 + f) - f) / f^2, highest power first.
constexpr double log_rest[] = {0.2, -0.25, 0x1.5555555555555p-2, -0.5};

// The logarithm of a normal float, as a double. The product with the reciprocal is exact.
double log_in_double(double x) {
  const auto pattern = pattern_of(x);
  const double k = double(std::int32_t(pattern >> 52) - format<double>::bias);
  const auto j = pattern >> 44 & 0xFF;
  const double f = within_1_and_2(x) * log_reciprocals[j] - 1.0;
  return (k * log_2[0].hi + log_values[j].hi) + (f + f * f * horner(f, log_rest));
}

// Where double arithmetic settles the result: mostly, from the least normal number to 8192.
LANEMATH_INLINE bool settled_in_double(float x, float& result) {
  constexpr std::uint32_t least = format<float>::implicit_bit, end = pattern_of(8192.0f);
  const std::uint32_t pattern = pattern_of(x);
  if (pattern - least >= end - least) return false;
  // The conversion by hand: the processor's waits for what was last in the register that it writes half of.
  const double wide = value_of<double>((std::uint64_t(pattern) << 29) + (std::uint64_t(1023 - 127) << 52));
  const bool below_1 = pattern < pattern_of(1.0f);
  const double y = below_1 ? wide + 1.0 : wide;
  double value = on_interval(y, upper_half(y));
  if (below_1) value -= log_in_double(wide);
  if (!rounds_safely(value) || !is_at_full_precision()) return false;
  result = float(in_x87(value));
  return true;
}

extended on_positive_axis(float x) {
  if (x < 1.0f) return lgamma_of(x + 1.0L) - log_of(x);
  return x < 8192.0f ? on_interval<extended>(x, upper_half(double(x))) : stirling(x);
}

// The least argument that overflows.
constexpr float overflow_bound = 0x7C44AF8E_f32;

struct lgammaf_lane {
  static constexpr bool exact_zero(float x) { return x == 1.0f || x == 2.0f; }
  static constexpr bool overflows(float x) { return x >= overflow_bound; }
  static float value(float x) { return float(x > 0.0f ? on_positive_axis(x) : on_negative_axis(x)); }
};

[[gnu::noinline]] status lgammaf_in_x87(const float* px, float* py, std::int32_t* sign) {
  return log_gamma<lgammaf_lane>(*px, *py, *sign);
}

LANEMATH_RARE lgammaf_rare(const float* px, float* py) {
  if (settled_in_double(*px, *py)) return status::ordinary;
  std::int32_t sign;
  return lgammaf_in_x87(px, py, &sign);
}
LANEMATH_RARE lgammarf_rare(const float* px, float* py, std::int32_t* sign) {
  *sign = 1;
  return settled_in_double(*px, *py) ? status::ordinary : lgammaf_in_x87(px, py, sign);
}

}  // namespace

LANEMATH_EXPORT(lgammaf, scalar_gamma<lgammaf_rare>)
LANEMATH_EXPORT(lgammarf, scalar_gamma_with_sign<lgammarf_rare>)

}  // namespace lanemath::special
