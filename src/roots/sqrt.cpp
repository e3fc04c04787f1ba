// Square root.
//
// Default: the processor's square root, correctly rounded. The native forms: x times the estimate of the reciprocal
// root, of about 12 bits. _native has no test: in single precision zero and +infinity give a NaN, and denormals of
// either sign +infinity; in double the estimate is that of x narrowed to float, so that values outside the range of
// floats give 0 or infinity. _half leaves such lanes to a scalar routine in double: a seed from a table, three rounds
// of a coupled iteration for the root and half of the reciprocal root, and a last step by the exact residual.
//
// Largest errors found, in ulp:
//   sqrt: default 0.5; _native 2.22227e12 (3.31e12 on any processor)
//   sqrtf: default 0.5; _native 4156.38 (6150 on any processor); _half 4156.38 (6150 on any processor)
#include "numeric/estimates.h"
#include "roots/roots.h"
#include "tables/roots.h"

namespace lanemath {
namespace {

LANEMATH_RARE sqrtf_rare(const float* px, float* py) {
  const float x = *px;
  if (x < 0) {
    *py = default_nan<float>();
    return status::domain;
  }
  if (!(0 < x && x < std::numeric_limits<float>::infinity())) {
    *py = x == 0 ? x : x + x;
    return status::ordinary;
  }

  const unpacked<double> a(x);
  const int odd = a.exponent & 1;
  const double v = a.mantissa() * (odd ? 2.0 : 1.0);
  const double s = root_seed[(a.significand >> 44 & 255) + 256 * odd];

  double g = 0.5 * s, y = s * v;
  for (int round = 0; round < 3; ++round) {
    const double t = 0.5 - y * g;
    y = y + t * y;
    g = g + t * g;
  }
  *py = float((y + g * residual_of_square(v, y)) * power_of_two<double>(a.exponent >> 1));
  return status::ordinary;
}

template <class T>
struct root {
  using signature = T(T);
  template <class V>
  static V kernel(V x) {
    return square_root(x);
  }
};

struct sqrtf_native {
  using signature = float(float);
  template <class V>
  static V kernel(V x) {
    return x * reciprocal_root_estimate(x);
  }
};

struct sqrtf_half : sqrtf_native {
  static constexpr auto rare = sqrtf_rare;
  static auto rare_test(auto x) { return not_positive_normal(x); }
};

struct sqrt_native {
  using signature = double(double);
  template <class V>
  static V kernel(V x) {
    // Narrowing may drop low bits of a NaN: the product keeps those of x.
    return ordered_product(x, reciprocal_root_estimate(x));
  }
};

}  // namespace

LANEMATH_EXPORT(sqrtf, root<float>)
LANEMATH_EXPORT(sqrtf, sqrtf_native, _native)
LANEMATH_EXPORT(sqrtf, sqrtf_half, _half)
LANEMATH_EXPORT(sqrt, root<double>)
LANEMATH_EXPORT(sqrt, sqrt_native, _native)

}  // namespace lanemath
