// The rare routines of the logarithms. They are complete, although the kernels leave them only arguments that are not
// positive normal numbers, and large sums 1 + x: the code for all other arguments, above all near 1, is never reached.
// Near 1, cancellation leaves log2f_rare and log10f_rare only 14 good bits; the others are accurate everywhere.
//
// x = 2^k m with m in [1, 2); c is a reciprocal of m with so few bits that its product with g, the upper part of m, is
// exact. The polynomial takes c m - 1; -log c comes from a table in two parts.
#pragma once

#include <optional>

#include "log/logarithm.h"
#include "numeric/exceptional.h"
#include "tables/log.h"

namespace lanemath {

namespace log_detail {

// Adding it rounds m - 1 to 64ths and leaves the result in the lowest bits.
template <class T>
constexpr T index_shifter;
template <>
inline constexpr float index_shifter<float> = 0x1p17f + 1.0f;
template <>
inline constexpr double index_shifter<double> = 0x1p46 + 1.0;

// The status of an argument that is not a finite positive number.
template <class T>
std::optional<status> of_special(T x, T& y) {
  constexpr T infinity = value_of<T>(format<T>::infinity);
  if (x > 0 && x < infinity) return std::nullopt;
  if (x == 0) {
    y = -infinity;
    return status::singular;
  }
  if (x < 0) {
    y = default_nan<T>();
    return status::domain;
  }
  y = x * x;  // makes a NaN quiet
  return status::ordinary;
}

template <class T>
struct reduced {
  T k, m, g;
  int i;  // m - 1 in 64ths, rounded
};
// `grid` rounds g to so few bits that its product with c is exact.
template <class T>
reduced<T> reduce(T x, T grid, int correction) {
  const T m = value_of<T>((pattern_of(x) & format<T>::fraction) | pattern_of(one_v<T>));
  return {T(exponent_field(x) - format<T>::bias + correction), m, (m + grid) - grid,
          int(pattern_of(m + index_shifter<T>) & 127)};
}

template <class T>
struct natural_rows {
  T RESCALE;  // the factor for denormals, a power of two
  int SHIFT;  // then added to the exponent
  T NEAR;     // up to this |x - 1| the polynomial takes x - 1 itself
  T GRID;
  T LN2H, LN2L;              // ln 2 in two parts
  T DENORMAL_H, DENORMAL_L;  // the same for denormals
  T Q[7];
};
inline constexpr natural_rows<float> natural_single{
    .RESCALE = 0x1p27f,
    .SHIFT = -27,
    .NEAR = 0.009765625f,
    .GRID = 8192.0f,
    .LN2H = 0x3F317200_f32,
    .LN2L = 0x35BFBE8E_f32,
    .DENORMAL_H = 0x3F317218_f32,  // not split: their logarithms are large
    .DENORMAL_L = 0.0f,
    .Q = {0xBE0005A0_f32, 0x3E124E01_f32, 0xBE2AAAAB_f32, 0x3E4CCCCD_f32, -0.25f, 0x3EAAAAAB_f32, -0.5f},
};
inline constexpr natural_rows<double> natural_double{
    .RESCALE = 0x1p60,
    .SHIFT = -60,
    .NEAR = 0.009765625,
    .GRID = 2097152.0,
    .LN2H = 0x3FE62E42FEFA3800_f64,
    .LN2L = 0x3D2EF35793C76730_f64,
    .DENORMAL_H = 0x3FE62E42FEFA3800_f64,
    .DENORMAL_L = 0x3D2EF35793C76730_f64,
    .Q = {0xBFC000B405A2836D_f64, 0x3FC249C02481059D_f64, 0xBFC555555228B38F_f64, 0x3FC9999997B36C81_f64,
          0xBFD0000000000262_f64, 0x3FD5555555555613_f64, -0.5},
};

template <class T>
status natural(T x, T& y, const natural_rows<T>& rows, const T (&table)[65][3]) {
  if (const auto status = of_special(x, y)) return *status;
  const bool denormal = exponent_field(x) == 0;
  if (denormal) x = x * rows.RESCALE;
  const T d = x - one_v<T>;
  if (std::fabs(d) <= rows.NEAR) {
    y = d + (horner(d, rows.Q) * d) * d;
    return status::ordinary;
  }
  const auto [k, m, g, i] = reduce(x, rows.GRID, denormal ? rows.SHIFT : 0);
  const T H = k * (denormal ? rows.DENORMAL_H : rows.LN2H), L = k * (denormal ? rows.DENORMAL_L : rows.LN2L);
  const auto& [c, hi, lo] = table[i];
  const T z0 = g * c - one_v<T>;
  const T z1 = c * (m - g);
  const T z = z0 + z1;
  y = (z0 + (H + hi)) + ((z1 + (L + lo)) + (horner(z, rows.Q) * z) * z);
  return status::ordinary;
}

// To another base. Reciprocals are scaled by SCALE, a number of few bits near 1 / ln of the base (256 times that in
// single precision), so that z is nearly the leading term of the logarithm; the last coefficient of W corrects for the
// difference.
template <class T>
struct based_rows {
  T RESCALE;
  int SHIFT;
  T NEAR, GRID, SCALE;
  T LOG2H, LOG2L;  // logarithm of 2 in two parts
  T W[8];
};
inline constexpr based_rows<float> log2f_rows{
    .RESCALE = 0x1p27f,
    .SHIFT = -27,
    .NEAR = 0x1.8p-8f,
    .GRID = 8192.0f,
    .SCALE = 0x43B8AA40_f32,  // 256 / ln 2
    .LOG2H = 1.0f,
    .LOG2L = 0.0f,
    .W = {0x9C1D865E_f32, 0x2081CD9D_f32, 0xA4DA74DC_f32, 0x293D1988_f32, 0xADAA8223_f32, 0x3223FE93_f32,
          0xB6B1720F_f32, 0xBF7F0000_f32},  // the last one reduces z to z / 256
};
inline constexpr based_rows<float> log10f_rows{
    .RESCALE = 0x1p40f,
    .SHIFT = -40,
    .NEAR = 0x1.8p-8f,
    .GRID = 8192.0f,
    .SCALE = 0x42DE5C00_f32,  // 256 / ln 10
    .LOG2H = 0x3E9A0000_f32,
    .LOG2L = 0x39826A14_f32,
    .W = {0xA22B5DAE_f32, 0x25AA5BFD_f32, 0xA92C998B_f32, 0x2CB3E701_f32, 0xB04353B9_f32, 0x33E23666_f32,
          0xB7935D5A_f32, 0xBF7F0000_f32},
};
inline constexpr based_rows<double> log10_rows{
    .RESCALE = 0x1p60,
    .SHIFT = -60,
    .NEAR = 0.005859375,
    .GRID = 8388608.0,
    .SCALE = 0.43359375,
    .LOG2H = 0x3FD34413509F8000_f64,
    .LOG2L = 0xBD380433B83B532A_f64,
    .W = {0xC045B3214E75EEA2_f64, 0x40358992E1B1AA78_f64, 0xC025C90E698CFB68_f64, 0x4016AB9F7B1EFE5C_f64,
          0xC008930964D42479_f64, 0x3FFC6A02DC963A31_f64, 0xBFF27AF2DC77B115_f64, 0x3F5A7A6CBF2E4107_f64},
};

template <class T>
status to_base(T x, T& y, const based_rows<T>& rows, const T (&table)[65][3]) {
  if (const auto status = of_special(x, y)) return *status;
  const bool denormal = exponent_field(x) == 0;
  if (denormal) x = x * rows.RESCALE;
  const T d = x - one_v<T>;
  if (std::fabs(d) <= rows.NEAR) {
    const T z = d * rows.SCALE;
    y = z + horner(z, rows.W) * z;
    return status::ordinary;
  }
  const auto [k, m, g, i] = reduce(x, rows.GRID, denormal ? rows.SHIFT : 0);
  const auto& [c, hi, lo] = table[i];
  const T z0 = g * c - rows.SCALE;
  const T z1 = c * (m - g);
  const T z = z0 + z1;
  const T w = horner(z, rows.W);
  y = ((rows.LOG2H * k + hi) + z0) + (z1 + ((k * rows.LOG2L + lo) + z1 * w) + z0 * w);
  return status::ordinary;
}

}  // namespace log_detail

[[gnu::noinline]] inline status logf_rare(const float* x, float* y) {
  return log_detail::natural(*x, *y, log_detail::natural_single, logf_reciprocals);
}
[[gnu::noinline]] inline status log2f_rare(const float* x, float* y) {
  return log_detail::to_base(*x, *y, log_detail::log2f_rows, log2f_reciprocals);
}
[[gnu::noinline]] inline status log10f_rare(const float* x, float* y) {
  return log_detail::to_base(*x, *y, log_detail::log10f_rows, log10f_reciprocals);
}
[[gnu::noinline]] inline status log_rare(const double* x, double* y) {
  return log_detail::natural(*x, *y, log_detail::natural_double, log_reciprocals);
}
[[gnu::noinline]] inline status log10_rare(const double* x, double* y) {
  return log_detail::to_base(*x, *y, log_detail::log10_rows, log10_reciprocals);
}

// The sum 1 + x is rounded once.
[[gnu::noinline]] inline status log1pf_rare(const float* x, float* y) {
  const float w = float(double(*x) + 1.0);
  return logf_rare(&w, y);
}
[[gnu::noinline]] inline status log1p_rare(const double* x, double* y) {
  const double w = *x + 1.0;
  return log_rare(&w, y);
}

}  // namespace lanemath
