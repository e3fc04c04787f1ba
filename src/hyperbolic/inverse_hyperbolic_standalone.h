// The standalone forms, acosh and asinh at one group of lanes: the logarithm of v = |x| + sqrt(x^2 -+ 1), by a true
// root and a true division. With z the mantissa of v from sqrt(1/2) to sqrt(2), f = z - 1 and s = f / (2 + f), the
// logarithm is ln(1 + f) = f - s (f - R(s^2)). One lane out of range sends all lanes to other code: in single precision
// to vectors of doubles, in double precision to a scalar routine.
#pragma once

#include <cmath>

#include "log/logarithm.h"
#include "numeric/estimates.h"
#include "numeric/split.h"
#include "tables/hyperbolic.h"

namespace lanemath {

template <class T>
struct quotient_log_rows;
template <>
struct quotient_log_rows<float> {
  static constexpr std::int32_t SPLIT = 0x004AFB10;  // carries into the exponent from sqrt(2) on
  static constexpr float A[] = {0x3E98F06F_f32, 0x3F2AAABD_f32}, B[] = {0x3ECCAF68_f32};
  static constexpr float LN2H = 0x3F310000_f32, LN2L = 0x3AE42FF0_f32;
  static constexpr float BIG = 0x5F0AC723_f32, LN2 = 0x3F317218_f32;  // from here on v is 2 x
};
template <>
struct quotient_log_rows<double> {
  static constexpr std::int64_t SPLIT = 0x00095F6200000000;
  static constexpr double A[] = {0x3FC2F112DF3E5244_f64, 0x3FC7466496CB03DE_f64, 0x3FD2492494229359_f64,
                                 0x3FE5555555555593_f64};
  static constexpr double B[] = {0x3FC39A09D078C69F_f64, 0x3FCC71C51D8E78AF_f64, 0x3FD999999997FA04_f64};
  static constexpr double LN2H = 0x3FE62E42FEE00000_f64, LN2L = 0x3DEA39EF35793C76_f64;
  static constexpr double BIG = 0x5FE7DDDF6B095FF1_f64, LN2 = 0x3FE62E42FEFA39EF_f64;
};

template <class V>
struct quotient_log {
  using T = typename V::value_type;
  using rows = quotient_log_rows<T>;
  using f = format<T>;
  static constexpr auto ONE = std::bit_cast<typename f::signed_pattern>(one_v<T>);
  V z, E;

  LANEMATH_INLINE explicit quotient_log(V v) {
    const auto m = bits(v) & typename f::signed_pattern(f::fraction);
    const auto carry = (m + rows::SPLIT) & typename f::signed_pattern(f::implicit_bit);
    z = from_bits(m | (carry ^ ONE));
    E = convert<T>(exponent_of_positive(v) + (top_word(carry) >> f::top_shift));
  }

  LANEMATH_INLINE V value() const {
    const V f = z - one_v<T>;
    return value(f, f / (z + one_v<T>));
  }
  LANEMATH_INLINE V value(V f, V s) const {
    const V s2 = s * s, s4 = s2 * s2;
    const V R = horner(s4, rows::A) * s2 + horner(s4, rows::B) * s4;
    return rows::LN2H * E - (((f - R) * s - rows::LN2L * E) - f);
  }
};

// The logarithm of a + root; for a big, root is nearly a.
template <class V>
LANEMATH_INLINE V log_of_sum(V a, V root) {
  using rows = quotient_log_rows<typename V::value_type>;
  const auto big = a >= rows::BIG;
  return quotient_log<V>(select(big, a, a + root)).value() + where(big, V(rows::LN2));
}

template <class V>
LANEMATH_INLINE V acosh_in_range(V x) {
  constexpr auto one = one_v<typename V::value_type>;
  return log_of_sum(x, square_root(x * x - one));
}
template <class V>
LANEMATH_INLINE V asinh_in_range(V x) {
  constexpr auto one = one_v<typename V::value_type>;
  const V a = magnitude(x);
  return with_bits(log_of_sum(a, square_root(a * a + one)), sign_of(x));
}

// Lanes that are infinite, NaNs or not above `Low`, by their top words.
template <class T, std::int32_t Low, int W>
LANEMATH_INLINE auto out_of_range(const lanes<std::int32_t, W>& top) {
  return ~((top > Low) & (top < format<T>::top_exponent));
}

// ln v of positive normal numbers. The absolute error is below 5e-13, next to 1 below 6e-11.
template <int W>
LANEMATH_INLINE lanes<double, W> log_by_cubics(const lanes<double, W>& v) {
  const auto u = with_exponent(v, 0), e = convert<double>(exponent_of_positive(v));
  const auto [c3, c1, c2, c0] = look_up_row(log_cubics, (upper(v) >> 12) & 255);
  return u * u * (c3 * u + c2) + (c1 * u + c0) + e * quotient_log_rows<double>::LN2;
}

// ln(1 + v) for v >= 0, accurate to the last places wherever v is small.
inline double log_of_one_plus(double v) {
  using scalar = lanes<double, 1>;
  const one_plus<scalar> sum((scalar(v)));
  const scalar w = sum.w();
  const quotient_log<scalar> log(w);
  const scalar scale = from_bits(bits(log.z) - bits(w) + log.ONE);  // scales w to z
  const scalar f = (log.z - 1.0) + sum.lost_by(w) * scale;
  return log.value(f, f / (f + 2.0)).g[0];
}

}  // namespace lanemath
