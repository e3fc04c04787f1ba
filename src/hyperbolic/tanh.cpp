// tanh x, both precisions: one polynomial for each interval of |x|, and no division. The intervals are equal parts of
// binades, so that the exponent and leading bits of x number them. Single precision: a cubic in |x|, computed in
// double. Double precision: degree 10 in |x| minus the centre of the interval; the error is largest in the first
// interval, the only one without a constant term.
//
// Largest errors found, in ulp:
//   tanh: default, _native 1.24992
//   tanhf: default, _native 1.02651
#include <cmath>

#include "frame/frame.h"
#include "tables/hyperbolic.h"

namespace lanemath {
namespace {

// The number of x's interval, from its leading bits: 0 up to `first`, and constant from `last` on. `shift` is the
// number of bits below those that count.
template <class V>
LANEMATH_INLINE auto interval(V x, std::int32_t first, std::int32_t last, int shift) {
  const auto mask = 0x7FFFFFFF >> shift << shift;
  const auto d = (top_word(x) & mask) - first;
  const auto at_least = select(d > 0, d, decltype(d)(0));
  return select(at_least > last - first, decltype(d)(last - first), at_least) >> shift;
}

template <class T>
status tanh_rare_lane(const T* px, T* py) {
  const T x = *px;
  *py = x != x ? x + x : std::copysign(one_v<T>, x);
  return status::ordinary;
}
LANEMATH_RARE tanhf_rare(const float* x, float* y) { return tanh_rare_lane(x, y); }
LANEMATH_RARE tanh_rare(const double* x, double* y) { return tanh_rare_lane(x, y); }

// Marks magnitudes from 1.0625 * 2^127 up (tanh: from 1.125 * 2^1023), infinities and NaNs.
struct tanhf_standard : rare_above<float(float), tanhf_rare, 0x7F07FFFF> {
  template <class V>
  LANEMATH_INLINE static V kernel(V x) {
    const auto [c0, c1, c2, c3] = look_up_row(tanhf_cubics, interval(x, 0x3CF80000, 0x41200000, 19));
    const auto a = convert<double>(magnitude(x));
    return with_bits(convert<float>(((c3 * a + c2) * a + c1) * a + c0), sign_of(x));
  }
};

struct tanh_standard : rare_above<double(double), tanh_rare, 0x7FE1FFFF> {
  template <class V>
  LANEMATH_INLINE static V kernel(V x) {
    const auto row = look_up_row(tanh_polynomials, interval(x, 0x3FBE0000, 0x40340000, 17));
    const V t = magnitude(x) + row[0];
    V y = row[11];
    for (int i = 10; i > 0; --i) y = y * t + row[i];
    return with_bits(y, sign_of(x));
  }
};

}  // namespace

LANEMATH_EXPORT(tanhf, tanhf_standard)
LANEMATH_SAME(tanhf, , _native)
LANEMATH_EXPORT(tanh, tanh_standard)
LANEMATH_SAME(tanh, , _native)

}  // namespace lanemath
