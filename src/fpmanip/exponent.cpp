// frexp, ilogb, logb: extraction of the exponent field; the kernel serves normal numbers. Exact.
#include "numeric/exceptional.h"

namespace lanemath {
namespace {

// The exponent field of 0.5: frexp's significands are in its binade.
template <class T>
constexpr typename format<T>::pattern half_field = pattern_of(half_v<T>);

template <class T>
LANEMATH_RARE frexp_rare(const T* x, T* significand, std::int32_t* exponent) {
  const T v = quieted(*x);
  *significand = v;
  *exponent = 0;
  if (magnitude_pattern(v) == 0 || !is_finite(v)) return status::ordinary;
  const unpacked<T> denormal(v);
  *exponent = denormal.exponent + 1;
  *significand = std::copysign(half_v<T> * denormal.mantissa(), v);
  return status::ordinary;
}

template <class T>
struct frexp {
  using signature = through_pointer<T, std::int32_t>(T);
  static constexpr auto rare = frexp_rare<T>;

  template <class V>
  static two_results<V, lanes<std::int32_t, V::width>> kernel(V x) {
    using f = format<T>;
    using I = typename f::signed_pattern;
    constexpr std::int32_t half = (f::bias - 1) << f::top_shift;
    const V significand = from_bits((bits(x) & ~I(f::infinity)) | I(half_field<T>));
    return {significand, ((top_word(x) & f::top_exponent) - half) >> f::top_shift};
  }
  static auto rare_test(auto x) { return not_normal(x); }
};

template <class V>
lanes<std::int32_t, V::width> unbiased_exponent(V x) {
  using f = format<typename V::value_type>;
  return ((top_word(x) & f::top_exponent) >> f::top_shift) - f::bias;
}

// By a multiplication, so that where the caller takes denormals for zeros this one is a zero too.
template <class T>
int exponent_of_denormal(T x) {
  using f = format<T>;
  return exponent_field(x * power_of_two<T>(f::lift)) - (f::bias + f::lift);
}

template <class T>
LANEMATH_RARE ilogb_rare(const T* x, std::int32_t* exponent) {
  if (magnitude_pattern(*x) == 0) {
    *exponent = std::numeric_limits<std::int32_t>::min();
    return status::domain;
  }
  if (!is_finite(*x)) {
    *exponent = std::numeric_limits<std::int32_t>::max();
    return status::domain;
  }
  *exponent = exponent_of_denormal(*x);
  return status::ordinary;
}

template <class T>
struct ilogb {
  using signature = std::int32_t(T);
  static constexpr auto rare = ilogb_rare<T>;
  static auto kernel(auto x) { return unbiased_exponent(x); }
  static auto rare_test(auto x) { return not_normal(x); }
};

template <class T>
LANEMATH_RARE logb_rare(const T* x, T* exponent) {
  if (magnitude_pattern(*x) == 0) {
    *exponent = pole(-one_v<T>);
    return status::domain;
  }
  if (!is_finite(*x))
    *exponent = value_of<T>(magnitude_pattern(*x));
  else
    *exponent = T(exponent_of_denormal(*x));
  return status::ordinary;
}

template <class T>
struct logb {
  using signature = T(T);
  static constexpr auto rare = logb_rare<T>;
  static auto kernel(auto x) { return convert<T>(unbiased_exponent(x)); }
  static auto rare_test(auto x) { return not_normal(x); }
};

}  // namespace

LANEMATH_EXPORT(frexpf, frexp<float>)
LANEMATH_EXPORT(frexp, frexp<double>)
LANEMATH_EXPORT(ilogbf, ilogb<float>)
LANEMATH_EXPORT(ilogb, ilogb<double>)
LANEMATH_EXPORT(logbf, logb<float>)
LANEMATH_EXPORT(logb, logb<double>)

}  // namespace lanemath
