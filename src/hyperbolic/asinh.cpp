// asinh x, both precisions, by the method in inverse_hyperbolic.h: v = |x| + T with T = sqrt(1 + x^2) - 1, from x^2 in
// two parts. Near 0 a series replaces the root. The native form has a shorter logarithm. asinhf at width 4 and asinh at
// width 2, default and native, use the method in inverse_hyperbolic_standalone.h.
//
// Largest errors found, in ulp:
//   asinh: default, other widths 1.77214 (1.8 on any processor); _native, other widths 263402 (700000 on any
//     processor); default, _native, width 2 2.27736
//   asinhf: default, other widths 2.15159 (2.3 on any processor); _native, other widths 1468.23 (1470 on any
//     processor); default, _native, width 4 2.27772
//
// Looks odd and is meant, see docs/design.md: NaNs and neighbours at width 4.
#include "hyperbolic/inverse_hyperbolic.h"
#include "hyperbolic/inverse_hyperbolic_standalone.h"

namespace lanemath {
namespace {

template <class T>
status asinh_rare_lane(const T* px, T* py) {
  const T x = *px;
  *py = x != x ? x * x : x;
  return status::ordinary;
}
LANEMATH_RARE asinhf_rare(const float* x, float* y) { return asinh_rare_lane(x, y); }
LANEMATH_RARE asinh_rare(const double* x, double* y) { return asinh_rare_lane(x, y); }

template <class T>
constexpr auto& polish() {
  if constexpr (sizeof(T) == 4)
    return polish_single;
  else
    return asinh_polish;
}

template <class T, auto Routine, std::int32_t Largest, class Log>
struct asinh_form : rare_above<T(T), Routine, Largest> {
  template <class V>
  LANEMATH_INLINE static V kernel(V x) {
    constexpr auto& c = inverse_rows_of<T>();
    return by_size<asinh_form>(x, c.SMALL, c.BIG);
  }

  template <bool Ordinary, class V>
  LANEMATH_INLINE static V value(V x) {
    constexpr auto& c = inverse_rows_of<T>();
    constexpr T one = one_v<T>, half = half_v<T>;
    const V a = magnitude(x);
    const V xh = without_low_bits(x, c.X);
    const V hh = xh * xh;
    const V ll = (x + xh) * (x - xh);

    const V g = hh + one;
    const V lost = ((one - g) + hh) + ll;
    const V gh = without_low_bits(g, c.RADICAND);
    const rough_root<V> root(gh, (g - gh) + lost, polish<T>());
    const V W = root.correction * (root.high + root.low) + root.low;
    const V rise = root.high - one;
    auto [t, te] = fast_sum(rise, W);
    if constexpr (!Ordinary) {
      const V hq = half * (hh + ll);
      const V h2 = hq * hq;
      const V cc = ((hq * h2) - h2) * half;
      const auto [T2, T2e] = fast_sum(hq, cc);
      const auto small = a <= c.SMALL;
      t = select(small, T2, t);
      te = select(small, T2e, te);
    }
    const V v = a + t;
    const V ve = ((a - v) + t) + te;
    const V y = log_of_sum_or_double<Log, Ordinary>(sum_with_one<V>(v, ve), a);
    return flipped(y, sign_of(x));
  }
};
using asinhf_standard = asinh_form<float, asinhf_rare, 0x7F7FFFFF, logarithm<float>>;
using asinhf_native = asinh_form<float, asinhf_rare, 0x7F7FFFFF, native_logarithm<float>>;
using asinh_standard = asinh_form<double, asinh_rare, 0x7FEFFFFF, logarithm<double>>;
using asinh_native = asinh_form<double, asinh_rare, 0x7FEFFFFF, native_logarithm<double>>;

struct asinhf_width_4 {
  using signature = float(float);

  template <class V>
  LANEMATH_INLINE static V kernel(V x) {
    if (any(out_of_range<float, 0x3F800000>(bits(magnitude(x))))) [[unlikely]]
      return in_double(x);
    return asinh_in_range(x);
  }

 private:
  // NaNs, infinities and numbers below 2^-28 keep their patterns.
  template <class V>
  LANEMATH_INLINE static V in_double(V x) {
    const V a = magnitude(x);
    const auto kept = outside(bits(a), 0x31800000, 0x7F7FFFFF);
    const auto wide = convert<double>(select(kept, V(1.0f), a));
    const V y = convert<float>(log_by_cubics(wide + square_root(wide * wide + 1.0)));
    return select(kept, x, with_bits(magnitude(y), sign_of(x)));
  }
};

LANEMATH_RARE asinh_lane(const double* px, double* py) {
  const double x = *px, a = std::fabs(x);
  if (!(a >= 0x1p-28 && a < std::numeric_limits<double>::infinity())) {
    __builtin_memcpy(py, px, sizeof x);
  } else if (a > 1.0) {
    *py = asinh_in_range(lanes<double, 1>(x)).g[0];
  } else {
    const double q = a * a;
    *py = std::copysign(log_of_one_plus(a + q / (1.0 + scalar_square_root(1.0 + q))), x);
  }
  return status::ordinary;
}

struct asinh_width_2 {
  using signature = double(double);
  static constexpr auto rare = asinh_lane;
  static constexpr bool one_marks_all = true;
  static auto rare_test(auto x) { return out_of_range<double, 0x3FF00000>(upper(magnitude(x))); }
  static auto kernel(auto x) { return asinh_in_range(x); }
};

}  // namespace

LANEMATH_EXPORT_BUT(4, asinhf, asinhf_standard)
LANEMATH_EXPORT_AT(4, asinhf, asinhf_width_4)
LANEMATH_EXPORT_BUT(4, asinhf, asinhf_native, _native)
LANEMATH_IN_LIBRARY(LANEMATH_SAME_AT(4, asinhf, , _native))

LANEMATH_EXPORT_BUT(2, asinh, asinh_standard)
LANEMATH_EXPORT_AT(2, asinh, asinh_width_2)
LANEMATH_EXPORT_BUT(2, asinh, asinh_native, _native)
LANEMATH_SAME_AT(2, asinh, , _native)

}  // namespace lanemath
