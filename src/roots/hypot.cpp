// sqrt(x^2 + y^2).
//
// The squares are added without scaling, and the estimate of the sum's reciprocal root, of about 12 bits, is refined:
// in single precision by one coupled step for the root and half of the reciprocal root, then by the residual of the
// root; in double by the binomial series, of which the native form keeps two terms of four. Sums near the ends of the
// range go to scalar routines, which round correctly. hypotf_native is the estimate times the sum, with no test: a sum
// that overflows or is infinite gives a NaN, a denormal one +infinity.
//
// Largest errors found, in ulp:
//   hypot: default 1.98414 (2.4 on any processor); _native 366093 (1.2e6 on any processor)
//   hypotf: default 1.36257 (1.37 on any processor); _native 4156.73 (6150 on any processor)
#include "numeric/estimates.h"
#include "numeric/polynomial.h"
#include "roots/roots.h"

namespace lanemath {
namespace {

// Pairs with an infinity, which takes precedence, or a NaN.
template <class T>
bool hypot_of_non_finite(T x, T y, T& z) {
  if (is_finite(x) && is_finite(y)) return false;
  if (is_finite(x) || (is_nan(x) && is_infinite(y)))
    z = y * y;
  else if (is_nan(x) && is_nan(y))
    z = ordered_product(lanes<T, 1>(x), lanes<T, 1>(y)).g[0];
  else
    z = x * x;
  return true;
}

// a^2 + b^2 for a >= b, in two parts. The squares of the split halves are exact.
two_part<double> exact_square(double x) {
  const double high = x * x;
  return {high, -residual_of_square(high, x)};
}
two_part<double> sum_of_squares(double a, double b) {
  const auto [ah, al] = exact_square(a);
  const auto [bh, bl] = exact_square(b);
  const double hi = ah + bh;
  return {hi, (bh - (hi - ah)) + (al + bl)};
}

// The root rounded to double, and its residual.
two_part<double> root_of(const two_part<double>& s) {
  const double y = scalar_square_root(s.hi);
  return {y, residual_of_square(s.hi, y) + s.lo};
}

// The squares of floats and their sum are exact in two doubles, so that the sign of the residual shows on which side of
// the nearest double the root lies. The last bit is set accordingly, and one rounding to float is then correct.
LANEMATH_RARE hypotf_rare(const float* px, const float* py, float* pz) {
  if (hypot_of_non_finite(*px, *py, *pz)) return status::ordinary;
  const double x = std::fabs(*px), y = std::fabs(*py);
  const double a = x < y ? y : x, b = x < y ? x : y;
  const auto [root, rest] = root_of(sum_of_squares(a, b));
  auto pattern = pattern_of(root);
  if (rest != 0 && pattern % 2 == 0) pattern += rest > 0 ? 1 : -1;
  *pz = float(value_of<double>(pattern));
  return status::ordinary;
}

// Near the ends of the range the larger argument is scaled to [2, 4). Denormal arguments are integers, in units of the
// least denormal, and their patterns are these integers: the integer nearest to the root is found in integer
// arithmetic.
LANEMATH_RARE hypot_rare(const double* px, const double* py, double* pz) {
  if (hypot_of_non_finite(*px, *py, *pz)) return status::ordinary;
  const double x = std::fabs(*px), y = std::fabs(*py);
  const double a = x < y ? y : x, b = x < y ? x : y;
  const int field = exponent_field(a);
  if (field == 0) {
    using wide = unsigned __int128;
    const wide m = pattern_of(a), n = pattern_of(b), sum = m * m + n * n;
    const double da = double(std::int64_t(m)), db = double(std::int64_t(n));
    wide root = std::uint64_t(std::int64_t(root_of({da * da + db * db, 0}).hi));
    while (sum > root * root + root) ++root;
    while (root != 0 && sum <= root * root - root) --root;
    *pz = value_of<double>(std::uint64_t(root));
    return status::ordinary;
  }
  const double down = with_exponent_field<double>(2047 - field), up = with_exponent_field<double>(field);
  const auto [root, rest] = root_of(sum_of_squares(a * down, b * down));
  *pz = ((root + rest / (root + root)) * 0.5) * up;
  return status::ordinary;
}

struct hypotf_standard {
  using signature = float(float, float);
  static constexpr auto rare = hypotf_rare;
  static auto rare_test(auto x, auto y) { return outside(bits(y * y + x * x), 0x1E300000, 0x60A00000); }

  template <class V>
  static V kernel(V x, V y) {
    const V s = y * y + x * x;
    const V g = reciprocal_root_estimate(s);
    const V y0 = s * g;
    const V h = 0.5f * g;
    const V e = 0.5f - y0 * h;
    const V y1 = y0 + e * y0;
    const V h1 = h + e * h;
    return y1 - h1 * (y1 * y1 - s);
  }
};

struct hypotf_native {
  using signature = float(float, float);

  template <class V>
  static V kernel(V x, V y) {
    const V s = ordered_sum(x * x, y * y);
    return where(s != 0.0f, reciprocal_root_estimate(s)) * s;
  }
};

// The last terms of the four of ((1 + d)^(-1/2) - 1) / d.
template <std::size_t Terms>
struct hypot_of_doubles {
  using signature = double(double, double);
  static constexpr auto rare = hypot_rare;
  static auto rare_test(auto x, auto y) { return outside(upper(y * y + x * x), 0x3BC00000, 0x44100000); }

  static constexpr double series[4] = {0x3FD1800000000000_f64, -0x1.4p-2, 0.375, -0.5};

  template <class V>
  static V kernel(V x, V y) {
    const V s = y * y + x * x;
    const V y0 = reciprocal_root_estimate(s);
    const V d = y0 * y0 * s - 1.0;
    return y0 * s + ((d * horner<4 - Terms>(d, series)) * y0) * s;
  }
};

}  // namespace

LANEMATH_EXPORT(hypotf, hypotf_standard)
LANEMATH_EXPORT(hypotf, hypotf_native, _native)
LANEMATH_EXPORT(hypot, hypot_of_doubles<4>)
LANEMATH_EXPORT(hypot, hypot_of_doubles<2>, _native)

}  // namespace lanemath
