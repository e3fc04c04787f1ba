// What the gamma functions share. They have no vector kernel: every lane goes through a scalar routine.
#pragma once

#include "numeric/exceptional.h"
#include "special/log_extended.h"

namespace lanemath::special {

inline constexpr extended half_log_2_pi = 0xEB3F8E4325F5A535p-64L;

inline std::int32_t upper_half(double x) { return std::int32_t(pattern_of(x) >> 32); }

// y / 2^k and (y - 2^k) / 2^k, where 2^k is the power of two at or below y.
inline double within_1_and_2(double y) {
  return value_of<double>((pattern_of(y) & format<double>::fraction) | pattern_of(1.0));
}
inline double within_octave(double y) { return within_1_and_2(y) - 1.0; }

// From here on every number is an integer.
template <class T>
inline constexpr T all_whole = sizeof(T) == 4 ? T(0x1p23) : T(0x1p52);

// Whether x is an integer, and whether its integer part is odd.
template <class T>
struct integer_part {
  bool whole = true, odd = false;
  explicit integer_part(T x) {
    if (std::fabs(x) >= all_whole<T>) return;
    const auto n = int_of_size<sizeof(T)>(x);
    whole = T(n) == x;
    odd = n % 2 != 0;
  }
};

// log|gamma(x)| of one lane and the sign of gamma. `Lane` knows the zeros and overflows and computes the rest.
template <class Lane, class T>
status log_gamma(T x, T& y, std::int32_t& sign) {
  sign = 1;
  if (!is_finite(x)) {
    y = x * x;
    return status::ordinary;
  }
  if (x == zero_v<T>) {
    sign = std::signbit(x) ? -1 : 1;
    y = pole<T>();
    return status::singular;
  }
  if (Lane::exact_zero(x)) {
    y = zero_v<T>;
    return status::ordinary;
  }
  if (Lane::overflows(x)) {
    y = overflowed(x);
    return status::overflow;
  }
  if (x < zero_v<T>) {
    const integer_part<T> n(x);
    if (n.whole) {
      y = pole<T>();
      return status::singular;
    }
    sign = n.odd ? 1 : -1;
  }
  y = Lane::value(x);
  return status::ordinary;
}

template <class T>
T argument_of(status (*)(const T*, T*));
template <class T>
T argument_of(status (*)(const T*, T*, std::int32_t*));

template <auto Routine>
struct scalar_gamma {
  using T = decltype(argument_of(Routine));
  using signature = T(T);
  static constexpr bool always_scalar = true;
  static constexpr auto rare = Routine;
  static auto kernel(auto x) { return x; }
};

template <auto Routine>
struct scalar_gamma_with_sign {
  using T = decltype(argument_of(Routine));
  using signature = through_pointer<T, std::int32_t>(T);
  static constexpr bool always_scalar = true;
  static constexpr auto rare = Routine;
  template <class V>
  static two_results<V, lanes<std::int32_t, V::width>> kernel(V x) {
    return {x, lanes<std::int32_t, V::width>(0)};
  }
};

}  // namespace lanemath::special
