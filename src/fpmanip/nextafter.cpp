// nextafter: the pattern of x plus or minus one. Exact.
#include "numeric/exceptional.h"

namespace lanemath {
namespace {

template <class T>
LANEMATH_RARE nextafter_rare(const T* px, const T* py, T* z) {
  using f = format<T>;
  const T x = quieted(*px), y = quieted(*py);
  if (is_nan(x) || is_nan(y)) {
    *z = is_nan(x) ? x : y;
    return status::ordinary;
  }
  if (x == y) {
    *z = y;
    return status::ordinary;
  }
  if (magnitude_pattern(x) == 0) {
    *z = std::copysign(std::numeric_limits<T>::denorm_min(), y);
    return status::underflow;
  }
  const bool same_sign = ((pattern_of(x) ^ pattern_of(y)) & f::sign) == 0;
  const bool up = same_sign && magnitude_pattern(y) > magnitude_pattern(x);
  *z = value_of<T>(up ? pattern_of(x) + 1 : pattern_of(x) - 1);
  const int field = exponent_field(*z);
  return field == f::top_field ? status::overflow : field == 0 ? status::underflow : status::ordinary;
}

template <class T>
struct nextafter {
  using signature = T(T, T);
  static constexpr auto rare = nextafter_rare<T>;

  // Up where y is larger in magnitude and the signs are equal; nowhere if x and y are equal.
  template <class V>
  static V kernel(V x, V y) {
    const auto different_sign = sign_of(from_bits(bits(x) ^ bits(y)));
    const auto up = (magnitude(x) < magnitude(y)) & (different_sign == 0);
    const auto equal = bits(x) == bits(y);
    return from_bits(bits(x) - 1 + (up & 2) - equal);
  }
  // Zero or denormal x, or a NaN. Against a normal or infinite x, any y will do.
  template <class V>
  static auto rare_test(V x, V y) {
    using f = format<T>;
    return narrow_mask(unordered(x, y)) | ((top_word(x) & f::top_exponent) == 0);
  }
};

}  // namespace

LANEMATH_EXPORT(nextafterf, nextafter<float>)
LANEMATH_EXPORT(nextafter, nextafter<double>)

}  // namespace lanemath
