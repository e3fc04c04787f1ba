// What the exponentials share for their rare lanes. The scalar routines of both precisions work in double; a float
// result is rounded once, at the end.
#pragma once

#include "numeric/constants.h"
#include "numeric/exceptional.h"
#include "numeric/polynomial.h"
#include "tables/exp.h"

namespace lanemath {

// 2^y by one polynomial over a whole binade, without a table, for the native kernels. The low bits of y + shifter hold
// y rounded to an integer, which is added to the exponent field of the polynomial's value.
template <class V, class T, std::size_t N>
LANEMATH_INLINE V exp2_by_polynomial(V y, T shifter, const T (&c)[N]) {
  const V t = y + shifter;
  const V f = y - (t - shifter);
  return from_bits(bits(horner(f, c)) + (bits(t) << format<T>::fraction_bits));
}

// The cubic of exp2f and exp10f, fitted over the whole interval: its constant term is not 1, so that not even integers
// give exact powers.
inline constexpr float native_exp2_cubic[] = {0x3D61FBCC_f32, 0x3E786F13_f32, 0x3F31798D_f32, 0x3F7FFB49_f32};

// Settles the lanes beyond the range of the results: infinity above one bound, zero below the other.
template <class V, class M, class T>
void saturate(V x, V& y, M& rare, T overflow, T underflow) {
  constexpr T infinity = std::numeric_limits<T>::infinity();
  const auto over = overflow < x;
  const auto under = x < underflow;
  y = select(over, V(infinity), select(under, V(zero_v<T>), y));
  rare = rare & ~narrow_mask(over | under);
}

// Returns whether x is infinite or a NaN. Then y is +0 for -infinity, else x * x, which makes a NaN quiet.
template <class T>
bool exp_of_non_finite(T x, T& y) {
  if (is_finite(x)) return false;
  y = x == -std::numeric_limits<T>::infinity() ? zero_v<T> : x * x;
  return true;
}

// An exponential as 2^k (hi + w).
struct rare_power {
  double hi, w;
  std::int32_t k;
};

// y 2^k. The largest results need an exponent one above the largest field.
inline double scaled(double y, std::int32_t k) {
  const int field = (k + 1023) & 2047;
  if (field == 2047) return y * with_exponent_field<double>(2046) * 2.0;
  return y * with_exponent_field<double>(field);
}

// A denormal result, at a scale raised by 2^60: its high part is first cut to the bits that the result keeps.
inline double scaled_to_denormal(const rare_power& p) {
  const int field = (p.k + 1083) & 2047;
  const double s = with_exponent_field<double>(field);
  const double unscale = 0x1p-60;
  const double a = p.w * s, b = p.hi * s;
  const double v = a + b;
  if (field <= 50) return v * unscale;
  const double u = a + (b - v);
  const double c = v * 0x1.8p32;
  const double h = (v + c) - c;
  const double l = (v - h) + u;
  return h * unscale + l * unscale;
}

// The low bits of a sum with a shifter hold n = 64 k + j.
struct split_index {
  std::int32_t j, k;
  explicit split_index(double shifted) {
    const auto n = std::int32_t(pattern_of(shifted));
    j = n & 63;
    k = n >> 6;
  }
};

inline rare_power exp_power(double x) {
  const double t = 0x40571547652B82FE_f64 * x + integer_shifter<double>;  // x * 64 / ln 2
  const split_index n(t);
  const double m = t - integer_shifter<double>;
  const double r = (x - m * 0x3F862E42FEFA0000_f64) - m * 0x3D1CF79ABC9E3B3A_f64;  // ln 2 / 64 in two parts
  const double q =
      horner(r, {0x3F56C16A1C2A3FFD_f64, 0x3F8111123AAF20D3_f64, 0x3FA5555555558FCC_f64, 0x3FC55555555548F8_f64, 0.5});
  const auto [hi, lo] = exp2_64[n.j];
  return {hi, (q * r * r + r + lo) * hi, n.k};
}

inline rare_power exp2_power(double x) {
  constexpr double shifter = 0x1.8p46;
  const double t = x + shifter;
  const split_index n(t);
  const double f = x - (t - shifter);
  const auto [hi, lo] = exp2_64[n.j];
  const double q = horner(f, {0x3F55D870C4D8440A_f64, 0x3F83B2AD33F8B48B_f64, 0x3FAC6B08D7076268_f64,
                              0x3FCEBFBDFF82A23A_f64, 0x3FE62E42FEFA39EF_f64, lo});
  return {hi, q * hi, n.k};
}

inline rare_power exp10_power(double x) {
  const double t = 0x406A934F0979A371_f64 * x + integer_shifter<double>;  // x * 64 log2(10)
  const split_index n(t);
  const double m = t - integer_shifter<double>;
  const double r = (x - m * 0x3F734413509F0000_f64) - m * 0x3D1E7FBCC47C4ACD_f64;  // log10(2) / 64 in two parts
  const auto [hi, lo] = exp2_64[n.j];
  const double q = horner(r, {0x3FE1427C87C70A85_f64, 0x3FF2BD77B840F0BF_f64, 0x4000470591E2BC10_f64,
                              0x40053524C73CD20A_f64, 0x40026BB1BBB55515_f64, lo});
  return {hi, q * hi, n.k};
}

// Where results overflow, become zero and become denormal.
struct rare_bounds {
  double over, under, denormal;
};
inline constexpr rare_bounds expf_bounds{
    .over = 0x40562E42E0000000_f64,      // 88.72283
    .under = 0xC059FE3680000000_f64,     // -103.97208
    .denormal = 0xC055D589E0000000_f64,  // -87.33654
};
inline constexpr rare_bounds exp_bounds{
    .over = 0x40862E42FEFA39EF_f64,      // 709.78271
    .under = 0xC0874910D52D3051_f64,     // -745.13322
    .denormal = 0xC086232BDD7ABCD2_f64,  // -708.39642
};

// The whole routine of e^x, and of 10^x in double precision. `power` is one of the functions above.
template <class T, class F>
status exp_rare_lane(const T* px, T* py, F power, const rare_bounds& bounds) {
  if (exp_of_non_finite(*px, *py)) return status::ordinary;
  const double x = *px;
  if (std::fabs(x) < 0x1p-52) {  // never reached: the rare lanes are large
    *py = T(1.0 + x);
    return status::ordinary;
  }
  if (x > bounds.over) {
    *py = overflowed<T>();
    return status::overflow;
  }
  if (x < bounds.under) {
    *py = underflowed<T>();
    return status::underflow;
  }
  const rare_power p = power(x);
  if (x < bounds.denormal) {
    *py = T(scaled_to_denormal(p));
    return status::underflow;
  }
  *py = T(scaled(p.w + p.hi, p.k));
  return status::ordinary;
}

}  // namespace lanemath
