// The error function.
//
// Value and slope at the nearest point m of a grid of step 1/128, and an expansion in d = |x| - m. From the last point
// on the result is 1. The native form: one term (erff) or three (erf) fewer. There are no rare lanes: a NaN passes
// through as the second operand of a minimum.
//
// Largest errors found, in ulp:
//   erf: default 2.54352; _native 314668
//   erff: default 1.92859; _native 276.901
//
// Looks odd and is meant, see docs/design.md: +0 at -0 in the native form of erf.
#include "numeric/fields.h"
#include "special/erf_grid.h"

namespace lanemath::special {
namespace {

constexpr float erff_cap = 3.9296875f;  // the last point
constexpr float erff_shifter = 0x1p16f;

template <class V>
V erff_with_sign(V x, V v, const grid_point<V>& at) {
  return with_bits(v * at.D + at.E, sign_of(x));
}

struct erff_standard {
  using signature = float(float);

  template <class V>
  static V kernel(V x) {
    const V a = magnitude(x);
    const V b = minimum(a, erff_cap);
    const auto at = nearest_point(erff_grid, erff_shifter, b);
    const V d = b - at.m;
    const V e = where(b > 0x1p-32f, d);
    const V w = at.m * d;
    const V v = minimum(d, a);
    V u = (e * e) * 0xBEAAAADE_f32 - w;
    u = u * v;
    return erff_with_sign(x, v + u, at);
  }
};

struct erff_native {
  using signature = float(float);

  template <class V>
  static V kernel(V x) {
    const V a = magnitude(x);
    const V b = minimum(a, erff_cap);
    const auto at = nearest_point(erff_grid, erff_shifter, b);
    return erff_with_sign(x, minimum(b - at.m, a), at);
  }
};

struct erf_rows {
  double cap;      // 5.9921875, the last point
  double shifter;  // 2^45
  double tiny;     // 2^-256
};
constexpr erf_rows erf_table{
    .cap = 0x4017F80000000000_f64,
    .shifter = 0x1p45,
    .tiny = 0x1p-256,
};

// The relative correction of the first-order term.
template <class V>
V erf_correction(V w, V z) {
  const V A =
      ((0xBFA6C16DB05BDEA5_f64 * w + 0x3FC1111235A363B1_f64) * w + 0xBFD55555555547F6_f64) * w + 0x3FE5555555554B0C_f64;
  const V B = ((0x3FCC71CA1C71EB57_f64 * w + 0xBFD9999C2BE2DDA8_f64) * w + 0x3FDFFFFFFFFFD4CD_f64) * w;
  const V C = (0xBFC5555800001B4F_f64 * w + 0x3FB9999E2BE2F122_f64) * z + 0xBFD5555555555555_f64;
  return z * (B + C) + (A * (w * w) - w);
}
template <class V>
V erf_native_correction(V w, V z) {
  return w * (0x3FE55557BBBBDCA6_f64 * w + 0xBFF0000180001429_f64) +
         z * (0x3FE0000400005666_f64 * w + 0xBFD5555C88892F64_f64);
}

template <bool Native>
struct erf_form {
  using signature = double(double);

  template <class V>
  static V kernel(V x) {
    constexpr auto& c = erf_table;
    const V a = magnitude(x);
    const auto s = sign_of(x);
    const V b = minimum(a, c.cap);
    const auto at = nearest_point(erf_grid, c.shifter, b);
    const V d = b - at.m;
    const V e = where(b > c.tiny, d);
    const V z = e * e;
    const V w = at.m * d;
    const V v = flipped(minimum(d, a), s);
    const V p = Native ? erf_native_correction(w, z) : erf_correction(w, z);
    const V u = at.D * v;
    return (u + p * u) + with_bits(at.E, s);
  }
};

using erf_standard = erf_form<false>;
using erf_native = erf_form<true>;

}  // namespace

LANEMATH_EXPORT(erff, erff_standard)
LANEMATH_EXPORT(erff, erff_native, _native)
LANEMATH_EXPORT(erf, erf_standard)
LANEMATH_EXPORT(erf, erf_native, _native)

}  // namespace lanemath::special
