// 1 / square root.
//
// Single precision: the processor's estimate y, then e = y^2 x - 1 and the series of 1 / sqrt(1 + e). The default form
// truncates y to few bits, so that y^2 is exact; the native form (also _half) makes one Newton step. Double precision:
// the estimate is taken of a float made of the significand and the parity of the exponent, and scaled by integer
// arithmetic; the default form computes the residual with x in two parts. Rare lanes are computed in double from a
// table of seeds, with the result as a high and a low part.
//
// Largest errors found, in ulp:
//   rsqrt: default 0.529197 (1 on any processor); _native 273397 (1.2e6 on any processor)
//   rsqrtf: default 0.978424 (1 on any processor); _native, _half 2.62156 (5.2 on any processor)
#include "numeric/polynomial.h"
#include "roots/roots.h"
#include "tables/roots.h"

namespace lanemath {
namespace {

template <class T>
LANEMATH_RARE rsqrt_rare(const T* px, T* py) {
  const double x = *px;
  if (is_nan(x)) {
    *py = T(x / x);
    return status::ordinary;
  }
  if (x == 0) {
    *py = T(1.0 / x);
    return status::singular;
  }
  if (x < 0) {
    *py = T(default_nan<double>());
    return status::domain;
  }
  if (is_infinite(x)) {
    *py = T(0.0 / x);
    return status::ordinary;
  }

  const unpacked<double> parts(x);
  const double m = parts.mantissa();
  const int odd = parts.exponent & 1;
  const double t = odd ? m + m : m;
  const auto [th, tl] = split(t, 0x1p27);
  const auto nearest = pattern_of(m + 0x42E0000000000020_f64) & 63;  // in steps of 1/32
  const double s = reciprocal_root_seed[nearest + (odd ? 32 : 0)];

  const double a = 1.0 - th * (s * s);
  const double b = (s * s) * tl;
  const double e = a - b;
  const auto [ah, al] = split(a, 0x1p27);
  const double w = (0.5 * s) * ah;
  const double p =
      horner(e, {0x3FC91A80BFBF8B2A_f64, 0x3FCAD28A9E3226DF_f64, 0x3FCCE000C07A3B3E_f64, 0x3FCF7FFFEC1426E4_f64,
                 0x3FD17FFFFFFE2A26_f64, 0x3FD400000000138B_f64, 0x3FD8000000000001_f64}) *
      e * e;
  const double v = (p - (b - al) * 0.5) * s;
  const double g = s + w;
  const double d = (s - g) + w;
  *py = T(((v + d) + g) * power_of_two<double>(-(parts.exponent >> 1)));
  return status::ordinary;
}

struct rsqrtf_guards {
  using signature = float(float);
  static constexpr auto rare = rsqrt_rare<float>;
  static auto rare_test(auto x) { return not_positive_normal(x); }
};

struct rsqrtf_standard : rsqrtf_guards {
  template <class V>
  static V kernel(V x) {
    const V y = without_low_bits(reciprocal_root_estimate(x), 15);
    const V e = (y * y) * x - 1.0f;
    const V p = (-0x1.4p-2f * e + 0.375f) * e + -0.5f;
    return y + (e * p) * y;
  }
};

struct rsqrtf_native : rsqrtf_guards {
  template <class V>
  static V kernel(V x) {
    const V y = reciprocal_root_estimate(x);
    const V t = (x * y) * y - 3.0f;
    return (y * -0.5f) * t;
  }
};

// Lanes whose upper word is not from Low to 0x7FCFFFFF are rare.
template <std::uint32_t Low>
struct rsqrt_guards {
  using signature = double(double);
  static constexpr auto rare = rsqrt_rare<double>;
  static auto rare_test(auto x) { return outside(upper(x), Low, 0x7FCFFFFF); }

  // An estimate of about 12 bits.
  template <class V>
  static V estimate(V x) {
    const auto pattern = as<std::uint64_t>(x);
    const auto exponent = pattern & 0x7FF0000000000000;
    const auto even = ~exponent & 0x0010000000000000;
    // A float with the same significand, in [1, 2) for an odd exponent and in [2, 4) for an even one.
    const auto v = ((pattern & 0x001FFFFFFFFFFFFF) >> 29) | ((even + 0x07F0000000000000) >> 29);
    const V r = convert<double>(reciprocal_root_estimate(from_bits(lower(v))));
    // Two to the power of minus half the exponent.
    return r * as<double>(((even + 0xBFD0000000000000) - exponent) >> 1);
  }
};

struct rsqrt_standard : rsqrt_guards<0x03500000> {
  template <class V>
  static V kernel(V x) {
    const V y = estimate(x);
    const V xh = without_low_bits(x, 27), xl = x - xh;
    const V s = y * y;
    const V e = (1.0 - xh * s) - s * xl;
    const V p = ((0x3FD1800032338CBB_f64 * e + 0x3FD40000B13001D9_f64) * e + 0x3FD80000000000F6_f64) * e +
                0x3FDFFFFFFFFFFE71_f64;
    return y + (e * p) * y;
  }
};

struct rsqrt_native : rsqrt_guards<0x00300000> {
  template <class V>
  static V kernel(V x) {
    const V y = estimate(x);
    const V e = 1.0 - (y * y) * x;
    const V p = (0x3FD80000C4CD9197_f64 * e + 0x3FE000004379ADB7_f64) * e + 0x3FEFFFFFFFFFFF4F_f64;
    return y * p;
  }
};

}  // namespace

LANEMATH_EXPORT(rsqrtf, rsqrtf_standard)
LANEMATH_EXPORT(rsqrtf, rsqrtf_native, _native)
LANEMATH_SAME(rsqrtf, _native, _half)
LANEMATH_EXPORT(rsqrt, rsqrt_standard)
LANEMATH_EXPORT(rsqrt, rsqrt_native, _native)

}  // namespace lanemath
