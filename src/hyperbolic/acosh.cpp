// acosh x, both precisions, by the method in inverse_hyperbolic.h: v = d + sqrt(d (x + 1)) with d = x - 1. The native
// form has a shorter logarithm and, in single precision, a polish of one term. acoshf at width 4 and acosh at width 2,
// default and native, use the method in inverse_hyperbolic_standalone.h.
//
// v has no second part, which shows where the logarithm is least accurate, just below 2^-8.
//
// Largest errors found, in ulp:
//   acosh: default, other widths 4.49753 (9 on any processor); _native, other widths 263402 (700000 on any processor);
//     default, _native, width 2 2.18884
//   acoshf: default, other widths 3.20081 (3.4 on any processor); _native, other widths 2299.74 (2500 on any
//     processor); default, _native, width 4 2.13465
//
// Looks odd and is meant, see docs/design.md: NaNs and neighbours at width 4.
#include "hyperbolic/inverse_hyperbolic.h"
#include "hyperbolic/inverse_hyperbolic_standalone.h"

namespace lanemath {
namespace {

template <class T>
status acosh_rare_lane(const T* px, T* py) {
  const T x = *px;
  if (x != x) {
    *py = x * x;
    return status::ordinary;
  }
  if (x != one_v<T> && x != std::numeric_limits<T>::infinity()) return outside_domain(*py);
  *py = x == one_v<T> ? zero_v<T> : x;
  return status::ordinary;
}
LANEMATH_RARE acoshf_rare(const float* x, float* y) { return acosh_rare_lane(x, y); }
LANEMATH_RARE acosh_rare(const double* x, double* y) { return acosh_rare_lane(x, y); }

template <class T, auto Routine, auto& Polish, class Log>
struct acosh_form {
  using signature = T(T);
  static constexpr auto rare = Routine;
  static auto rare_test(auto x) { return ~((one_v<T> < x) & (x <= std::numeric_limits<T>::max())); }

  template <class V>
  LANEMATH_INLINE static V kernel(V x) {
    return by_size<acosh_form>(x, one_v<T>, inverse_rows_of<T>().BIG);
  }

  template <bool Ordinary, class V>
  LANEMATH_INLINE static V value(V x) {
    const V d = x - one_v<T>;
    const V p = d * (x + one_v<T>);
    const V ph = without_low_bits(p, inverse_rows_of<T>().RADICAND);
    const rough_root<V> root(ph, p - ph, Polish);
    const V h = root.high + root.low;
    const V v = d + (h * root.correction + h);
    return log_of_sum_or_double<Log, Ordinary>(sum_with_one<V>(v), x);
  }
};
using acoshf_standard = acosh_form<float, acoshf_rare, polish_single, logarithm<float>>;
using acoshf_native = acosh_form<float, acoshf_rare, native_polish_single, native_logarithm<float>>;
using acosh_standard = acosh_form<double, acosh_rare, acosh_polish, logarithm<double>>;
using acosh_native = acosh_form<double, acosh_rare, acosh_polish, native_logarithm<double>>;

struct acoshf_width_4 {
  using signature = float(float);

  template <class V>
  LANEMATH_INLINE static V kernel(V x) {
    if (any(out_of_range<float, 0x3FC00000>(bits(x)))) [[unlikely]]
      return in_double(x);
    return acosh_in_range(x);
  }

 private:
  // NaNs and infinity keep their patterns.
  template <class V>
  LANEMATH_INLINE static V in_double(V x) {
    const auto below = bits(x) < 0x3F800000, kept = bits(x) >= 0x7F800000;
    const auto wide = convert<double>(select(below | kept, V(1.0f), x));
    const V y = convert<float>(log_by_cubics(wide + square_root(wide * wide - 1.0)));
    return select(below, V(0x7FFFFFFF_f32), select(kept, x, y));
  }
};

constexpr std::int32_t IN_RANGE = 0x3FF80000;  // above 1.5

LANEMATH_RARE acosh_lane(const double* px, double* py) {
  const double x = *px;
  if (!(x < std::numeric_limits<double>::infinity())) {
    __builtin_memcpy(py, px, sizeof x);
  } else if (x < 1.0) {
    *py = 0x7FFFFFFFFFFFFFFF_f64;
  } else if (std::int32_t(std::bit_cast<std::uint64_t>(x) >> 32) > IN_RANGE) {
    *py = acosh_in_range(lanes<double, 1>(x)).g[0];
  } else {
    const double d = x - 1.0;
    *py = log_of_one_plus(d + scalar_square_root(d * 2.0 + d * d));
  }
  return status::ordinary;
}

struct acosh_width_2 {
  using signature = double(double);
  static constexpr auto rare = acosh_lane;
  static constexpr bool one_marks_all = true;
  static auto rare_test(auto x) { return out_of_range<double, IN_RANGE>(upper(x)); }
  static auto kernel(auto x) { return acosh_in_range(x); }
};

}  // namespace

LANEMATH_EXPORT_BUT(4, acoshf, acoshf_standard)
LANEMATH_EXPORT_AT(4, acoshf, acoshf_width_4)
LANEMATH_EXPORT_BUT(4, acoshf, acoshf_native, _native)
LANEMATH_IN_LIBRARY(LANEMATH_SAME_AT(4, acoshf, , _native))

LANEMATH_EXPORT_BUT(2, acosh, acosh_standard)
LANEMATH_EXPORT_AT(2, acosh, acosh_width_2)
LANEMATH_EXPORT_BUT(2, acosh, acosh_native, _native)
LANEMATH_SAME_AT(2, acosh, , _native)

}  // namespace lanemath
