// atanh x, both precisions, by the method in inverse_hyperbolic.h: half of the logarithm of 1 + v with v = 2 |x| / (1 -
// |x|). The native form has a shorter logarithm.
//
// Largest errors found, in ulp:
//   atanh: default 1.59301 (2.4 on any processor); _native 263402 (700000 on any processor)
//   atanhf: default 2.09292 (2.2 on any processor); _native 1468.35 (1470 on any processor)
//
// Looks odd and is meant, see docs/design.md: +0 at -0.
#include "hyperbolic/inverse_hyperbolic.h"

namespace lanemath {
namespace {

template <class T>
status atanh_rare_lane(const T* px, T* py) {
  const T x = *px;
  if (x != x) {
    *py = x * x;
    return status::ordinary;
  }
  if (std::fabs(x) != one_v<T>) return outside_domain(*py);
  *py = std::copysign(std::numeric_limits<T>::infinity(), x);
  return status::singular;
}
LANEMATH_RARE atanhf_rare(const float* x, float* y) { return atanh_rare_lane(x, y); }
LANEMATH_RARE atanh_rare(const double* x, double* y) { return atanh_rare_lane(x, y); }

// 1 / (1 - e) - 1
template <class V>
LANEMATH_INLINE V missing_part(V e) {
  const V s = e * e;
  const V c = e + s;
  if constexpr (sizeof(typename V::value_type) == 4)
    return c;
  else
    return c + c * s;
}

template <class T, auto Routine, std::int32_t Below, class Log>
struct atanh_form : rare_above<T(T), Routine, Below> {
  template <class V>
  LANEMATH_INLINE static V kernel(V x) {
    return by_size<atanh_form>(x, inverse_rows_of<T>().TINY, one_v<T>);
  }

  template <bool Ordinary, class V>
  LANEMATH_INLINE static V value(V x) {
    constexpr auto& c = inverse_rows_of<T>();
    constexpr T one = one_v<T>;
    const V a = magnitude(x);
    const V d = one - a;
    const V n = a + a;
    const V dh = without_low_bits(d, c.QUOTIENT), nh = without_low_bits(n, c.QUOTIENT);
    const V dl = (d - dh) + ((one - d) - a), nl = n - nh;
    const V y = without_low_bits(reciprocal_estimate(dh), c.INVERSE);
    const V q = nh * y, ql = nl * y;
    const V m = missing_part((one - dh * y) - dl * y);
    const V lo = m * q + (ql + m * ql);
    const auto [v, ve] = fast_sum(q, lo);
    const sum_with_one<V> sum(v, ve);
    const V result = Log::of(sum.w, sum.err) * from_bits(sign_of(x) ^ bits(V(half_v<T>)));
    if constexpr (Ordinary)
      return result;
    else
      return select(a < c.TINY, x * x + x, result);  // +0 at -0
  }
};
using atanhf_standard = atanh_form<float, atanhf_rare, 0x3F7FFFFF, logarithm<float>>;
using atanhf_native = atanh_form<float, atanhf_rare, 0x3F7FFFFF, native_logarithm<float>>;
using atanh_standard = atanh_form<double, atanh_rare, 0x3FEFFFFF, logarithm<double>>;
using atanh_native = atanh_form<double, atanh_rare, 0x3FEFFFFF, native_logarithm<double>>;

}  // namespace

LANEMATH_EXPORT(atanhf, atanhf_standard)
LANEMATH_EXPORT(atanhf, atanhf_native, _native)
LANEMATH_EXPORT(atanh, atanh_standard)
LANEMATH_EXPORT(atanh, atanh_native, _native)

}  // namespace lanemath
