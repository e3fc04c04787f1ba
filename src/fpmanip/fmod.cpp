// fmod: x - y trunc(x / y), exact, with the sign of x.
//
// Where the quotient has few bits it is a truncated division; the remainder follows by exact products with the two
// parts of y, and |y| is added back where the division was rounded up to the next integer. Rare lanes go through long
// division.
//
// Looks odd and is meant, see docs/design.md: the sign of a zero remainder.
#include "fpmanip/long_division.h"

namespace lanemath {
namespace {

// For |x| below 2^52. Never reached: with this divisor the kernel serves all x below 2^56.
inline double fmod_by_2147483647(double x, double y) {
  const double ax = std::fabs(x);
  const auto quotient = std::uint32_t(std::int64_t(ax * 0x1p-31));
  double t = ax - double(quotient) * 0x41DFFFFFFFC00000_f64;
  if (t >= y) t -= y;
  return std::copysign(t, x);
}

template <class T>
LANEMATH_RARE fmod_rare(const T* px, const T* py, T* z) {
  using f = format<T>;
  const T x = *px, y = *py;
  const auto ax = magnitude_pattern(x), ay = magnitude_pattern(y), one = pattern_of(one_v<T>);
  const T zero = std::copysign(zero_v<T>, x);
  if (ay == one && ax < f::infinity) {
    const int exponent = exponent_field(x) - f::bias;
    if (ax < one)  // these two are never reached: the kernel serves small quotients
      *z = x;
    else if (ax == one || exponent >= f::fraction_bits)
      *z = zero;
    else  // +0 if the two are equal
      *z = x - value_of<T>(pattern_of(x) & ~(f::fraction >> exponent));
    return status::ordinary;
  }
  if (is_nan(x) || is_nan(y)) {
    *z = quieted(is_nan(y) ? y : x);
    return status::ordinary;
  }
  if (ay == 0 || ax == f::infinity) {
    *z = default_nan<T>();
    return status::singular;
  }
  if (ay == f::infinity || ax < ay) {
    *z = x;
    return status::ordinary;
  }
  if (ax == ay) {
    *z = zero;
    return status::ordinary;
  }
  if constexpr (sizeof(T) == 8)
    if (ay == pattern_of(2147483647.0) && ax < pattern_of(0x1p52)) {
      *z = fmod_by_2147483647(x, y);
      return status::ordinary;
    }
  *z = std::copysign(long_division<T>(x, y).remainder, x);
  return status::ordinary;
}

template <class T, std::uint32_t Least, std::uint32_t Largest>
struct fmod {
  using signature = T(T, T);
  static constexpr auto rare = fmod_rare<T>;

  template <class V>
  static V kernel(V x, V y) {
    const auto s = sign_of(x);
    const auto [yh, yl] = split_divisor(y);
    const V q = round_to<direction::zero>(x / y);
    V t = magnitude(x) - flipped(yh, s) * q - flipped(yl, s) * q;
    t = t + where(t < V(zero_v<T>), magnitude(y));
    return with_bits(t, s);
  }
  static auto rare_test(auto x, auto y) { return rare_division<T, Least, Largest>(x, y); }
};

using fmod_float = fmod<float, 0x0C000000, 0x7E8FFFFF>;
using fmod_double = fmod<double, 0x03300000, 0x7FEFFFFF>;

}  // namespace

LANEMATH_EXPORT(fmodf, fmod_float)
LANEMATH_EXPORT(fmod, fmod_double)

}  // namespace lanemath
