// remainder, remquo: x - n y, where n is the integer nearest to x / y, exact. remquo also returns n, in rare lanes its
// low 31 bits.
//
// Where the quotient has few bits it is a division rounded in the current direction; the remainder follows by exact
// products with the two parts of y, and by a step of |y| where more than half of |y| remains. In the default direction
// n is therefore the nearest integer, ties to even. Rare lanes go through long division, whatever the direction.
//
// Looks odd and is meant, see docs/design.md: the quotient of remquo.
#include "fpmanip/long_division.h"

namespace lanemath {
namespace {

template <class T>
struct divided {
  T remainder;
  std::int32_t quotient;
  status met = status::ordinary;
};

// Makes a NaN quiet, in double for both precisions.
template <class T>
T quieted_in_double(T x) {
  return T(opaque(double(x)) * 0x3FFB333333333333_f64);  // 1.7
}

template <class T>
LANEMATH_INLINE divided<T> divide(T x, T y) {
  using f = format<T>;
  const auto ax = magnitude_pattern(x), ay = magnitude_pattern(y);
  const auto sign_of_x = pattern_of(x) & f::sign;
  const auto signed_as_x = [&](T r) { return value_of<T>(pattern_of(r) ^ sign_of_x); };
  const T zero = value_of<T>(sign_of_x);

  if (is_nan(x)) return {quieted_in_double(x), 0};
  if (is_nan(y)) return {quieted_in_double(y), 0};
  if (ay == 0) return {default_nan<T>(), 0, status::domain};
  if (ax == f::infinity) return {default_nan<T>(), 0};
  if (ax == 0 || ay == f::infinity) return {x, 0};

  const int sign = ((pattern_of(x) ^ pattern_of(y)) & f::sign) == 0 ? 1 : -1;
  const T abs_x = value_of<T>(ax), abs_y = value_of<T>(ay);
  if (ay >= ax) {
    if (ax == ay) return {zero, sign};
    if (exponent_field(x) < f::top_field - 1 && double(abs_y) >= 2.0 * double(abs_x)) return {x, 0};
    return {signed_as_x(abs_x - abs_y), sign};
  }

  const long_division<T> division(x, y);
  std::uint32_t quotient = division.quotient;
  T r = division.remainder;
  const double twice = 2.0 * double(r);
  if (magnitude_pattern(r) == 0) {
    // Exact.
  } else if (twice > double(abs_y)) {
    r -= abs_y;
    ++quotient;
  } else if (twice == double(abs_y) && quotient % 2 == 1) {
    r = -r;
    ++quotient;
  }
  return {signed_as_x(r), sign * std::int32_t(quotient & 0x7FFFFFFF)};
}

template <class T>
LANEMATH_RARE remainder_rare(const T* x, const T* y, T* r) {
  const auto result = divide(*x, *y);
  *r = result.remainder;
  return result.met;
}

template <class T>
LANEMATH_RARE remquo_rare(const T* x, const T* y, T* r, std::int32_t* quotient) {
  const auto result = divide(*x, *y);
  *r = result.remainder;
  *quotient = result.quotient;
  return sizeof(T) == 4 ? result.met : status::ordinary;
}

template <class T, std::uint32_t Least, std::uint32_t Largest>
struct remquo {
  using signature = through_pointer<T, std::int32_t>(T, T);
  static constexpr auto rare = remquo_rare<T>;

  template <class V>
  static two_results<V, lanes<std::int32_t, V::width>> kernel(V x, V y) {
    const auto [yh, yl] = split_divisor(y);
    const V q = round_to<direction::current_quietly>(x / y);
    const V t = x - yh * q - yl * q;
    const V ay = magnitude(y);
    const auto too_much = half_v<T> * ay < magnitude(t);
    const V r = t - with_bits(where(too_much, ay), sign_of(t));

    const auto step = (top_word(y) ^ top_word(t)) >> 31 | 1;
    const auto quotient = convert<std::int32_t>(q) + (narrow_mask(too_much) & step);
    return {with_bits(r, bits(where(r == V(zero_v<T>), x)) & sign_mask<T>), quotient};
  }
  static auto rare_test(auto x, auto y) { return rare_division<T, Least, Largest>(x, y); }
};

template <class Remquo, class T>
struct remainder_of : Remquo {
  using signature = T(T, T);
  static constexpr auto rare = remainder_rare<T>;
  static auto kernel(auto x, auto y) { return Remquo::kernel(x, y).first; }
};

using remquo_float = remquo<float, 0x0C000000, 0x797FFFFF>;
using remquo_double = remquo<double, 0x03300000, 0x7E4FFFFF>;
using remainder_float = remainder_of<remquo_float, float>;
using remainder_double = remainder_of<remquo_double, double>;

}  // namespace

LANEMATH_EXPORT(remainderf, remainder_float)
LANEMATH_EXPORT(remainder, remainder_double)
LANEMATH_EXPORT(remquof, remquo_float)
LANEMATH_EXPORT(remquo, remquo_double)

}  // namespace lanemath
