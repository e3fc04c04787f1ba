// What the inverse hyperbolic functions of both precisions share: each is the logarithm of 1 + v, where v is a function
// of x that is small where the result is. v and the sum are carried in two parts; roots and quotients start from the
// processor's estimates, truncated so that products with them lose little, and are polished by a polynomial in their
// residual.
//
// From 2^30 on acosh and asinh are ln(2 x), computed as ln(x 2^-30) + 31 ln 2.
#pragma once

#include "log/logarithm_double.h"
#include "log/logarithm_rare.h"
#include "log/logarithm_single.h"
#include "numeric/estimates.h"

namespace lanemath {

template <class T>
struct inverse_rows {
  T BIG, SCALE;
  // How many low bits are truncated:
  int RADICAND;  // of the radicand,
  int ROOT;      // of the root's estimate,
  int X;         // of asinh's argument,
  int QUOTIENT;  // of atanh's numerator and denominator,
  int INVERSE;   // and of the denominator's inverse
  T SMALL;       // up to here a series replaces asinh's root
  T TINY;        // below it atanh is x
};
inline constexpr inverse_rows<float> inverse_single{
    .BIG = 0x1p30f,
    .SCALE = 0x1p-30f,
    .RADICAND = 16,
    .ROOT = 16,
    .X = 13,
    .QUOTIENT = 12,
    .INVERSE = 12,
    .SMALL = 0x1p-4f,
    .TINY = 0x1p-103f,
};
inline constexpr inverse_rows<double> inverse_double{
    .BIG = 0x1p30,
    .SCALE = 0x1p-30,
    .RADICAND = 24,
    .ROOT = 41,
    .X = 27,
    .QUOTIENT = 12,
    .INVERSE = 41,
    .SMALL = 0x1p-9,
    .TINY = 0x1p-970,
};
template <class T>
constexpr auto& inverse_rows_of() {
  if constexpr (sizeof(T) == 4)
    return inverse_single;
  else
    return inverse_double;
}

template <class T>
constexpr std::uint32_t top_of(T x) {
  return std::uint32_t(pattern_of(x) >> (8 * sizeof x - 32));
}

// 1 / sqrt(1 - e) - 1 = e / 2 + 3/8 e^2 + ..., divided by e.
inline constexpr float polish_single[] = {0.3125f, 0.375f, 0.5f};
inline constexpr float native_polish_single[] = {0.5f};
inline constexpr double acosh_polish[] = {0.2734375, 0.3125, 0.375, 0.5};
inline constexpr double asinh_polish[] = {0.24609375, 0.2734375, 0.3125, 0.375, 0.5};

// The square root of hi + lo, where hi is truncated, is nearly (high + low) (1 + correction).
template <class V>
struct rough_root {
  V high, low, correction;
  template <class T, std::size_t N>
  LANEMATH_INLINE rough_root(V hi, V lo, const T (&polish)[N]) {
    const V y = without_low_bits(reciprocal_root_estimate(hi), inverse_rows_of<T>().ROOT);
    high = hi * y;
    low = lo * y;
    const V e = (one_v<T> - high * y) - low * y;
    correction = horner(e, polish) * e;
  }
};

// 1 + v = w + err. In double precision w is truncated unless v is tiny, so that its product with a small integer is
// exact.
template <class V>
struct sum_with_one {
  V w, err;
  LANEMATH_INLINE explicit sum_with_one(V v) {
    const one_plus<V> sum(v);
    w = sum.w();
    if constexpr (sizeof(typename V::value_type) == 8)
      w = from_bits(bits(w) & ((v < 0x1p-31) | std::int64_t(0xFFFFFFFFFFFFFC00)));
    err = sum.lost_by(w);
  }
  LANEMATH_INLINE sum_with_one(V v, V low) : sum_with_one(v) { err = err + low; }
};

// The logarithm of m + err. `scaled` marks the lanes to which 31 ln 2 is added.
template <auto& Polynomial>
struct single_logarithm {
  template <class V, class... M>
  LANEMATH_INLINE static V of(V m, V err, M... scaled) {
    const centred_mantissa<V> a(m);
    const V unscale = from_bits(0x3F800000 - (a.k << 23));  // 2^-k
    const V y = ln_of_one_plus(a.r + err * unscale, Polynomial);
    const auto k = (a.k + ... + (scaled & 31));
    return convert<float>(k) * LN2_F32 + y;
  }
};
template <bool Native>
struct double_logarithm {
  template <class V, class... M>
  LANEMATH_INLINE static V of(V m, V err, M... scaled) {
    constexpr auto& c = log_table;
    const auto near = integer_near_reciprocal(scaled_mantissa(m));
    // n times the power of two that scales m to [2^-10, 2^-9)
    const V n = from_bits(0x7F40000000000000 - (bits(m) & 0x7FF0000000000000)) * convert<double>(near);
    const V z0 = m * n - 1.0;
    const V e = err * n;
    const V z = z0 + e;
    const V lo = e - (z - z0);
    const V s = z * z;
    V y = c.P3 * z + c.P2;
    if constexpr (!Native) y = (c.P5 * z + c.P4) * s + y;
    y = y * s + lo;
    const auto k = exponent_beside(exponent_of_positive(m), near);
    const V exponent = (convert<double>(k) + ... + where(scaled, V(31.0)));
    return ((z + y) + look_up(ln_of_integers, index_of_integer(near))) + exponent * c.LOG2;
  }
};

inline constexpr float inverse_polynomial[] = {0x3E0D84ED_f32, 0xBE1AD9E3_f32, 0x3E0FCB12_f32, 0xBE28AD37_f32,
                                               0x3E4CE190_f32, 0xBE80058E_f32, 0x3EAAAA94_f32, -0.5f};
template <class T>
using logarithm = std::conditional_t<sizeof(T) == 4, single_logarithm<inverse_polynomial>, double_logarithm<false>>;
template <class T>
using native_logarithm =
    std::conditional_t<sizeof(T) == 4, single_logarithm<native_ln_polynomial>, double_logarithm<true>>;

// The logarithm of sum, or of 2 x where x is big.
template <class Log, bool Ordinary, class V>
LANEMATH_INLINE V log_of_sum_or_double(const sum_with_one<V>& sum, V x) {
  constexpr auto& c = inverse_rows_of<typename V::value_type>();
  if constexpr (Ordinary) {
    return Log::of(sum.w, sum.err);
  } else {
    const auto big = x >= c.BIG;
    return Log::of(select(big, x * c.SCALE, sum.w), where(~big, sum.err), big);
  }
}

// The value of an operation. Vectors compute all that any lane may need and select; at width 1 a branch leaves that out
// where the magnitude is between the bounds.
template <class Op, class V, class T>
LANEMATH_INLINE V by_size(V x, T above, T below) {
  if constexpr (V::width > 1) {
    return Op::template value<false>(x);
  } else {
    if (any(outside(top_word(magnitude(x)), top_of(above) + 1, top_of(below) - 1))) [[unlikely]]
      return first(Op::template value<false>(spread(x)));
    return first(Op::template value<true>(spread(x)));
  }
}

template <class T>
status outside_domain(T& y) {
  y = default_nan<T>();
  return status::domain;
}

}  // namespace lanemath
