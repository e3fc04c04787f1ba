// ldexp: x times 2^n, rounded once, and only if the result is denormal.
//
// Largest errors found, in ulp:
//   ldexp: default 0.5
//   ldexpf: default 0.5
#include "numeric/exceptional.h"

namespace lanemath {
namespace {

// All n beyond this give the same result; within it no sum with an exponent field can wrap.
constexpr std::int32_t farthest = 65536;

template <class T>
LANEMATH_RARE ldexp_rare(const T* px, const std::int32_t* pn, T* y) {
  using f = format<T>;
  T x = *px;
  if (magnitude_pattern(x) == 0 || !is_finite(x)) {
    *y = sizeof(T) == 4 ? x : quieted(x);
    return status::ordinary;
  }
  int e = std::clamp(*pn, -farthest, farthest);
  if (exponent_field(x) == 0) {
    x *= power_of_two<T>(f::lift);
    e -= f::lift;
  }
  e += exponent_field(x);
  const auto with_field = [x](int field) {
    return value_of<T>((pattern_of(x) & ~f::infinity) | typename f::pattern(field) << f::fraction_bits);
  };
  if (e >= f::top_field) {
    *y = overflowed(x);
    return status::overflow;
  }
  if (e > 0) {
    *y = with_field(e);
    return status::ordinary;
  }
  if (e >= 1 - std::numeric_limits<T>::digits) {
    *y = with_field(e + f::lift) * power_of_two<T>(-f::lift);
    if (magnitude_pattern(*y) != 0) return status::ordinary;
  }
  *y = underflowed(x);
  return status::underflow;
}

template <class T>
struct ldexp {
  using signature = T(T, std::int32_t);
  static constexpr auto rare = ldexp_rare<T>;

  template <int W>
  static auto new_field(lanes<T, W> x, lanes<std::int32_t, W> n) {
    using f = format<T>;
    using I = lanes<std::int32_t, W>;
    n = select(n < -farthest, I(-farthest), n);
    n = select(n > farthest, I(farthest), n);
    return ((top_word(x) >> f::top_shift) & f::top_field) + n;
  }

  template <int W>
  static lanes<T, W> kernel(lanes<T, W> x, lanes<std::int32_t, W> n) {
    using f = format<T>;
    const auto e = new_field(x, n);
    const auto rest = bits(x) & ~typename f::signed_pattern(f::infinity);
    if constexpr (sizeof(T) == 4)
      return from_bits(rest | e << f::fraction_bits);
    else
      return from_bits(rest | widen(e) << f::fraction_bits);
  }
  template <int W>
  static auto rare_test(lanes<T, W> x, lanes<std::int32_t, W> n) {
    const auto e = new_field(x, n);
    return not_normal(x) | (e <= 0) | (e >= format<T>::top_field);
  }
};

}  // namespace

LANEMATH_EXPORT(ldexpf, ldexp<float>)
LANEMATH_EXPORT(ldexp, ldexp<double>)

}  // namespace lanemath
