// Cube root and its reciprocal, by one method.
//
// The exponent is divided by 3 with a multiplication. Its remainder m and the top five bits of the significand select a
// table entry, the root of c 2^m, where c is the middle of a cell; the distance r from the middle enters by the
// binomial series of (1 + r)^(1/3) or (1 + r)^(-1/3). The quotient becomes a power of two, which also carries the sign.
// In single precision the entries have a low part; the native forms do without it and keep one term of four. In double
// precision the native forms keep five terms of seven. Zeros, denormals, infinities and NaNs are rare.
//
// Largest errors found, in ulp:
//   cbrt: default 1.12736; _native 2265.15
//   cbrtf: default 0.513972; _native 355.837
//   rcbrt: default 1.01848; _native 13370.1
//   rcbrtf: default 0.514254; _native 888.667
#include "numeric/exceptional.h"
#include "numeric/polynomial.h"
#include "tables/roots.h"

namespace lanemath {
namespace {

constexpr int root = 1, inverse = -1;

template <class T>
constexpr auto& chosen(const auto& single, const auto& wide) {
  if constexpr (sizeof(T) == 4)
    return single;
  else
    return wide;
}

template <class T>
struct layout : format<T> {
  using format<T>::bias, format<T>::fraction, format<T>::implicit_bit;
  using pattern = typename format<T>::signed_pattern;

  static constexpr std::int32_t sign_in_field = format<T>::top_field + 1;
  static constexpr auto significand = pattern(fraction), top_six = pattern(fraction & ~(fraction >> 6));
  static constexpr auto minus_one = pattern(pattern_of(T(-1)));
  static constexpr auto minus_middle = pattern(minus_one | implicit_bit >> 6);  // of the first cell
  static constexpr auto& minus_inverse_middle = chosen<T>(minus_inverse_middle_f32, minus_inverse_middle_f64);

  // e / 3 for an exponent field e, rounded down.
  static auto third(auto e) { return sizeof(T) == 4 ? (e * 1365) >> 12 : (e * 0x1556) >> 14; }
};

template <class V>
struct reduced {
  V r, scale;
  lanes<std::int32_t, V::width> index;  // of the entry for c 2^m
};

template <int Power, class V>
LANEMATH_INLINE reduced<V> reduce(V x) {
  using T = typename V::value_type;
  using at = layout<T>;
  const auto word = top_word(x);
  const auto field = as<std::int32_t>(as<std::uint32_t>(word) >> at::top_shift);
  const auto e = field & at::top_field;
  const auto sign = field & at::sign_in_field;
  const auto q = at::third(e);
  const auto m = (e - at::bias % 3) - q * 3;
  const auto cell = (word >> (at::top_shift - 5)) & 31;

  const V d =
      from_bits((bits(x) & at::significand) | at::minus_one) - from_bits((bits(x) & at::top_six) | at::minus_middle);
  const V r = d * look_up(at::minus_inverse_middle, cell);

  const auto scale_field =
      Power == root ? (sign | (at::bias - at::bias / 3)) + q : (sign | (at::bias + at::bias / 3)) - q;
  const auto scale_word = scale_field << at::top_shift;
  // In rare lanes m may be negative, so their index is cleared.
  const auto index = (m * 32 + cell) & ~not_normal(x);
  if constexpr (sizeof(T) == 4)
    return {r, from_bits(scale_word), index};
  else
    return {r, from_upper(scale_word), index};
}

// What differs between the two functions: the coefficients of ((1 + r)^Power/3 - 1) / r and the table.
template <int Power>
struct rows;
template <>
struct rows<root> {
  static constexpr float single[] = {0xBD288F47_f32, 0x3D7CD6EA_f32, 0xBDE38E39_f32, 0x3EAAAAAB_f32};
  static constexpr double wide[] = {0x3F93750AD588F115_f64, 0xBF98090D6221A247_f64, 0x3F9EE7113506AC12_f64,
                                    0xBFA511E8D2B3183B_f64, 0x3FAF9ADD3C0CA458_f64, 0xBFBC71C71C71C71C_f64,
                                    0x3FD5555555555555_f64};
  static constexpr auto& table_f32 = cbrt_f32;
  static constexpr auto& table_f64 = cbrt_f64;
};
template <>
struct rows<inverse> {
  static constexpr float single[] = {0x3E137D5E_f32, 0xBE30FCD7_f32, 0x3E638E39_f32, 0xBEAAAAAB_f32};
  static constexpr double wide[] = {0x3FB791D4F50A7B47_f64, 0xBFB9B33CA7A65562_f64, 0x3FBC67C9DD3D11BB_f64,
                                    0xBFBFF4C33F90EF5F_f64, 0x3FC26FABB85D0196_f64, 0xBFC61F9ADD3C0CA3_f64,
                                    0x3FCC71C71C71C71C_f64, 0xBFD5555555555555_f64};
  static constexpr auto& table_f32 = rcbrt_f32;
  static constexpr auto& table_f64 = rcbrt_f64;
};

template <int Power, int W>
LANEMATH_INLINE lanes<float, W> evaluate(const lanes<float, W>& x) {
  const auto [r, scale, index] = reduce<Power>(x);
  const auto entry = look_up(rows<Power>::table_f32, index);
  const auto hi = entry.hi * scale, lo = entry.lo * scale;
  return hi + (horner(r, rows<Power>::single) * (r * hi) + lo);
}
template <int Power, std::size_t Skipped = 0, int W>
LANEMATH_INLINE lanes<double, W> evaluate(const lanes<double, W>& x) {
  const auto [r, scale, index] = reduce<Power>(x);
  const auto h = look_up(rows<Power>::table_f64, index) * scale;
  return h + horner<Skipped>(r, rows<Power>::wide) * (r * h);
}
// The same for a scalar.
template <int Power, class T>
T evaluate_one(T x) {
  return evaluate<Power>(lanes<T, 1>(x)).g[0];
}

// Denormals are scaled by a power of 8 and back.
template <class T>
LANEMATH_RARE cbrt_rare(const T* px, T* py) {
  const T x = *px * opaque(one_v<T>);
  constexpr T scale = 0x1p126, unscale = 0x1p-42;
  if (!is_finite(x))
    *py = x + x;
  else if (x == 0)
    *py = x;
  else
    *py = evaluate_one<root>(x * scale) * unscale;
  return status::ordinary;
}

// A float is computed in double and narrowed.
template <class T>
LANEMATH_RARE rcbrt_rare(const T* px, T* py) {
  const T x = *px;
  if (is_nan(x)) {
    *py = x / x;
  } else if (is_infinite(x)) {
    *py = zero_v<T> / x;
  } else if (x == 0) {
    *py = one_v<T> / x;
    return status::singular;
  } else {
    *py = T(evaluate_one<inverse>(double(x) * 0x1p126) * 0x1p42);
  }
  return status::ordinary;
}

template <int Power, class T>
struct guards {
  using signature = T(T);
  static constexpr auto rare = Power == root ? cbrt_rare<T> : rcbrt_rare<T>;
  static auto rare_test(auto x) { return not_normal(x); }
};

template <int Power, class T>
struct standard : guards<Power, T> {
  template <class V>
  static V kernel(V x) {
    return evaluate<Power>(x);
  }
};

template <int Power>
struct single_native : guards<Power, float> {
  template <class V>
  static V kernel(V x) {
    const auto [r, scale, index] = reduce<Power>(x);
    const V h = look_up(rows<Power>::table_f32, index).hi * scale;
    return h + horner<3>(r, rows<Power>::single) * (r * h);
  }
};

template <int Power>
struct double_native : guards<Power, double> {
  template <class V>
  static V kernel(V x) {
    return evaluate<Power, std::size(rows<Power>::wide) - 5>(x);
  }
};

using cbrtf_standard = standard<root, float>;
using cbrt_standard = standard<root, double>;
using rcbrtf_standard = standard<inverse, float>;
using rcbrt_standard = standard<inverse, double>;

}  // namespace

LANEMATH_EXPORT(cbrtf, cbrtf_standard)
LANEMATH_EXPORT(cbrtf, single_native<root>, _native)
LANEMATH_EXPORT(rcbrtf, rcbrtf_standard)
LANEMATH_EXPORT(rcbrtf, single_native<inverse>, _native)
LANEMATH_EXPORT(cbrt, cbrt_standard)
LANEMATH_EXPORT(cbrt, double_native<root>, _native)
LANEMATH_EXPORT(rcbrt, rcbrt_standard)
LANEMATH_EXPORT(rcbrt, double_native<inverse>, _native)

}  // namespace lanemath
