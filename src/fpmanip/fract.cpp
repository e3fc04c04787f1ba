// fract: x - floor(x), kept below 1, and floor(x).
//
// Rounded once, to nearest, except that a tiny negative x gives the largest number below 1.
//
// Largest errors found, in ulp:
//   fract: default 1
//   fractf: default 1
//
// Looks odd and is meant, see docs/design.md: a sum of the two results that is not x.
#include <cmath>

#include "numeric/fields.h"

namespace lanemath {
namespace {

template <class T>
LANEMATH_RARE fract_rare(const T* px, T* fraction, T* floor) {
  const T x = *px;
  *floor = x;
  *fraction = is_infinite(x) ? std::copysign(zero_v<T>, x) : x;
  return status::ordinary;
}

template <class T>
struct fract {
  using signature = through_pointer<T, T>(T);
  static constexpr auto rare = fract_rare<T>;
  static constexpr T below_one = std::bit_cast<T>(pattern_of(one_v<T>) - 1);

  template <class V>
  static two_results<V, V> kernel(V x) {
    const V floor = round_to<direction::down>(x);
    return {minimum(x - floor, V(below_one)), floor};
  }
  template <class V>
  static auto rare_test(V x) {
    const auto zero = (bits(x) & ~sign_mask<T>) == 0;
    return narrow_mask(zero) | magnitude_above(x, format<T>::top_exponent - 1);
  }
};

}  // namespace

LANEMATH_EXPORT(fractf, fract<float>)
LANEMATH_EXPORT(fract, fract<double>)

}  // namespace lanemath
