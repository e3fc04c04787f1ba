// What the arc sines and cosines share. With a = |x|, one polynomial on [0, 1/4] serves both ranges: below 1/2 its
// argument is a² and the result is based on a; above, the argument is h = (1 - a) / 2 and the base is 2 sqrt(h).
#pragma once

#include "invtrig/angles.h"

namespace lanemath {

// Polynomial coefficients, from the constant term up, for results in radians and for results divided by pi. The native
// float forms hold the whole factor of the base, the others only the part beyond the linear term of the result.
template <class T, variant V>
struct radian_rows;
template <>
struct radian_rows<float, variant::standard> {
  static constexpr float c[] = {0x3E2AAAFF_f32, 0x3D997C12_f32, 0x3D3A9AB4_f32, 0x3CC32A6B_f32, 0x3D2EDC07_f32};
};
template <>
struct radian_rows<float, variant::native> {
  static constexpr float c[] = {0x380561A3_f32, 0x3E2876B2_f32, 0x3DC4C6AE_f32};
};
template <>
struct radian_rows<double, variant::standard> {
  static constexpr double c[] = {0x3FC555555555529C_f64, 0x3FB333333337E0DE_f64, 0x3FA6DB6DB3B445F8_f64,
                                 0x3F9F1C72E13AD8BE_f64, 0x3F96E89CEBDEFADD_f64, 0x3F91C6DCF538AD2E_f64,
                                 0x3F8C6DBBCB88BD57_f64, 0x3F88F8DC2AFCCAD6_f64, 0x3F7A583395D45ED5_f64,
                                 0x3F943F44BFBC3BAE_f64, 0xBF90FB17F7DBB0ED_f64, 0x3FA07520C70EB909_f64};
};
template <>
struct radian_rows<double, variant::native> {
  static constexpr double c[] = {0x3FC5555480C83A45_f64, 0x3FB33399EBF85B6A_f64, 0x3FA6C8ED2A4CCE54_f64,
                                 0x3FA056B4151FA155_f64, 0x3F8CE147EA9E9282_f64, 0x3FA36C5AF645A11E_f64};
};

template <class T, variant V>
struct pi_scaled_rows;
template <>
struct pi_scaled_rows<float, variant::standard> {
  static constexpr float c[] = {0x3D594D1B_f32, 0x3CC36C37_f32, 0x3C6D978C_f32, 0x3BF87E20_f32, 0x3C5EA355_f32};
};
template <>
struct pi_scaled_rows<float, variant::native> {
  static constexpr float c[] = {0x3EA2FAD7_f32, 0x3D567E9D_f32, 0x3CFA8B09_f32};
};
template <>
struct pi_scaled_rows<double, variant::standard> {
  static constexpr double c[] = {0x3FAB2995E7B7B28B_f64, 0x3F98723A1D5E7F21_f64, 0x3F8D1A452B1C8F4E_f64,
                                 0x3F83CE53573AD4F4_f64, 0x3F7D2B0EA1978F74_f64, 0x3F76A256C108AAED_f64,
                                 0x3F7219262ADC70A8_f64, 0x3F6FCBA466EA069B_f64, 0x3F60C57DF579794A_f64,
                                 0x3F79C78AE09A5457_f64, 0xBF759EE439EEE799_f64, 0x3F84F4523BC020D8_f64};
};
template <>
struct pi_scaled_rows<double, variant::native> {
  static constexpr double c[] = {0x3FAB2994D916CB05_f64, 0x3F9872BCE76EFA44_f64, 0x3F8D02B66C2AD236_f64,
                                 0x3F84CD955BDDED9F_f64, 0x3F7262B57524FB3B_f64, 0x3F88BAFFDA4549F0_f64};
};

template <class T, std::size_t N, int W>
LANEMATH_INLINE lanes<T, W> fitted(const T (&c)[N], const lanes<T, W>& w) {
  const auto w2 = w * w;
  if constexpr (N == 3) {
    return (c[2] * w + c[1]) * w + c[0];
  } else if constexpr (N == 5) {
    return ((c[4] * w + c[3]) * w2 + (c[2] * w + c[1])) * w + c[0];
  } else if constexpr (N == 6) {
    return ((c[5] * w + c[4]) * w2 + (c[3] * w + c[2])) * w2 + (c[1] * w + c[0]);
  } else {
    static_assert(N == 12);
    const auto w4 = w2 * w2;
    const auto s = ((c[11] * w + c[10]) * w2 + (c[9] * w + c[8])) * w4 + ((c[7] * w + c[6]) * w2 + (c[5] * w + c[4]));
    return (s * w2 + (c[3] * w + c[2])) * w2 + (c[1] * w + c[0]);
  }
}

// 2 sqrt(h) as a difference: an estimate minus its excess.
template <class V>
struct estimated_root {
  V estimate, excess;
};
template <int W>
LANEMATH_INLINE estimated_root<lanes<double, W>> estimate_root(const lanes<double, W>& h) {
  // A finite estimate at h = 0, so that the result is 0. In the domain h is 0 or at least 2^-54.
  const auto estimate = [](auto v)
                            LANEMATH_LAMBDA { return reciprocal_root_estimate(maximum(decltype(v)(0x1p-126f), v)); };
  const auto y0 = by_floats(estimate, h);
  const auto b = ordered_product(h + h, y0);
  const auto t = ordered_product(y0, b) - 2.0;
  const auto correction = 0xBFB7FFFFFFFFFE97_f64 * t + 0x3FCFFFFFFFFFFF9D_f64;
  return {b, ordered_product(correction, ordered_product(t, b))};
}

// The native double forms use no square root.
template <class T, variant V>
inline constexpr bool estimates_root = sizeof(T) == 8 && V == variant::native;

// The argument of the polynomial, the base that it multiplies, and the lanes in which they come from 1 - a.
template <class T, int W>
struct reduced {
  lanes<T, W> w, base;
  lanes<int_of_size<sizeof(T)>, W> big;
};

// For the sine; the base without the sign of x: a, or -2 sqrt(h).
template <variant Variant, class T, int W>
LANEMATH_INLINE reduced<T, W> reduce_for_sine(const lanes<T, W>& x) {
  const auto a = magnitude(x);
  const auto h = half_v<T> - half_v<T> * a;
  const auto w = minimum(a * a, h);
  const auto big = ~(a < half_v<T>);
  if constexpr (estimates_root<T, Variant>) {
    const auto root = estimate_root(h);
    return {w, select(big, root.excess - root.estimate, a), big};
  } else {
    const auto r = square_root(h);
    return {w, select(big, with_bits(r + r, lanes<int_of_size<sizeof(T)>, W>(sign_mask<T>)), a), big};
  }
}

// For the cosine; the base with the sign of x: -x, or 2 sqrt(h).
template <variant Variant, class T, int W>
LANEMATH_INLINE reduced<T, W> reduce_for_cosine(const lanes<T, W>& x) {
  using I = int_of_size<sizeof(T)>;
  const auto n = with_bits(x, lanes<I, W>(sign_mask<T>));
  const auto h = half_v<T> + half_v<T> * n;
  const auto w = minimum(n * n, h);
  const auto big = ~(w < h);
  lanes<T, W> twice_root;
  if constexpr (estimates_root<T, Variant>) {
    const auto root = estimate_root(h);
    twice_root = root.estimate - root.excess;
  } else {
    const auto r = square_root(h);
    twice_root = r + r;
  }
  return {w, flipped(select(big, twice_root, n), sign_of(x)), big};
}

// The angle to which the cosine's product is added: that at x = 0, -1 or 1.
template <class T, int W>
LANEMATH_INLINE lanes<T, W> angle_at_end(const lanes<T, W>& x, const reduced<T, W>& r, T half_turn, T quarter_turn) {
  using V = lanes<T, W>;
  return select(r.big, where(x < r.w, V(half_turn)), V(quarter_turn));
}

// Beyond 1 the NaN of an invalid operation; a NaN becomes quiet. Returns whether x was either; `met` is the status.
template <class T>
inline bool beyond_one(T x, T& y, status& met) {
  const T v = opaque(x);
  met = status::ordinary;
  if (x != x) {
    y = v / v;
    return true;
  }
  if (!(x < -one_v<T> || x > one_v<T>)) return false;
  met = status::domain;
  y = (v - v) / (v - v);
  return true;
}

// For the forms in radians, whose kernels serve |x| = 1.
template <class T>
LANEMATH_RARE radians_rare(const T* px, T* py) {
  status met;
  beyond_one(*px, *py, met);
  return met;
}

}  // namespace lanemath
