// The angle of the point (x, y) in radians, both precisions.
//
// The smaller magnitude divided by the larger one, a polynomial on [-1, 1], and the quadrant by additions. The native
// form: an estimated reciprocal and a shorter polynomial. The default float form at width 4 has coefficients and a last
// step of its own; one lane with x zero, or with x or y infinite or a NaN, sends all four to a scalar routine in
// double. The default double form at width 2 differs only in its scalar routine, for lanes with x or y zero, infinite
// or a NaN.
//
// Largest errors found, in ulp:
//   atan2: default, other widths 4.71333; _native 2.18349e7 (2.25e7 on any processor); default, width 2 4.71333
//   atan2f: default, other widths 3.84227; _native 3774.25 (3780 on any processor); default, width 4 3.9804
//
// Looks odd and is meant, see docs/design.md: neighbours at width 4.
#include "invtrig/arc_tangent.h"
#include "invtrig/arc_tangent_rare.h"

namespace lanemath {
namespace {

template <class T, class Factor, class Quotient>
struct radians_of : quadrants<T, Factor, Quotient, false> {
  static constexpr auto rare = arc_tangent2_rare<T, false>;
  static constexpr int groups_at_once = sizeof(T) == 4 ? 4 : 2;  // more doubles than that spill
};

using atan2f_standard = radians_of<float, split_factor<atanf_table>, by_division>;
using atan2f_native = radians_of<float, native_factor<native_rows<float>>, by_estimate>;
using atan2_standard = radians_of<double, four_chain_factor, by_division>;
using atan2_native = radians_of<double, native_factor<native_rows<double>>, by_estimate>;

// The default form in double at width 2. The scalar routine gives the same bits as the kernel.

LANEMATH_RARE atan2_width_2_lane(const double* py, const double* px, double* result) {
  using scalar = lanes<double, 1>;
  double angle;
  *result = special_angle<double, false>(*py, *px, angle) ? std::copysign(angle, *py)
                                                          : atan2_standard::kernel(scalar(*py), scalar(*px)).g[0];
  return status::ordinary;
}

struct atan2_width_2 : atan2_standard {
  static constexpr auto rare = atan2_width_2_lane;
  static constexpr bool one_marks_all = true;

  template <class V>
  static auto rare_test(V y, V x) {
    const auto special = [](V v) LANEMATH_LAMBDA {
      const V a = magnitude(v);
      return (a == 0.0) | ~(a < std::numeric_limits<double>::infinity());
    };
    return special(y) | special(x);
  }
};

// The default form in float at width 4. The scalar routine gives other bits than the kernel.

LANEMATH_RARE atan2f_width_4_lane(const float* py, const float* px, float* result) {
  const float y = *py, x = *px;
  if (y != y || x != x) {
    const float nan = x != x ? x : y;
    *result = nan + nan;
    return status::ordinary;
  }
  float angle;
  if (special_angle<float, false>(y, x, angle)) {
    *result = std::copysign(angle, y);
    return status::ordinary;
  }
  const float ay = std::fabs(y), ax = std::fabs(x);
  const bool swap = ay > ax;
  const double t = swap ? -ax / ay : ay / ax;
  const double u = t * t, z = u * u;
  const double e = horner(z, {0x3F6758A6ECE26A15_f64, 0x3FA5DBA9B6416141_f64, 0x3FBB3DA47DC4BC7A_f64,
                              0x3FC9972E7842A425_f64, 0x3FEFFFFFF7D2397A_f64});
  const double o =
      horner(z, {0xBF90744B79FA4C68_f64, 0xBFB33603B7747C3C_f64, 0xBFC22E400E7F97E8_f64, 0xBFD5554A6DBB1614_f64}) * u;
  double v = t * (e + o) + (swap ? half_pi<double> : 0.0);
  if (x < 0.0f) v = pi<double> - v;
  *result = float(y < 0.0f ? -v : v);
  return status::ordinary;
}

struct atan2f_width_4 {
  using signature = float(float, float);
  static constexpr auto rare = atan2f_width_4_lane;
  static constexpr bool one_marks_all = true;

  template <class V>
  static V kernel(V y, V x) {
    const V ay = magnitude(y), ax = magnitude(x);
    const auto swap = ax < ay;
    const V ratio = select(swap, ax, ay) / select(swap, ay, ax);
    const V t = with_bits(ratio, swap & sign_mask<float>);
    const V r = split_factor<atanf_width_4_table>::at(t);
    const V sx = with_bits(V(1.0f), sign_of(x)), sy = with_bits(V(1.0f), sign_of(y));
    return ((t * r + where(swap, V(half_pi<float>))) * sx + where(x < 0.0f, V(pi<float>))) * sy;
  }
  // Marks all lanes but those with y finite and x finite and nonzero.
  template <class V>
  static auto rare_test(V y, V x) {
    const auto ax = bits(magnitude(x)) + 0x00800000;  // wraps at infinity
    return magnitude_above(y, 0x7F7FFFFF) | ~(ax > 0x00800000);
  }
};

}  // namespace

LANEMATH_EXPORT_BUT(4, atan2f, atan2f_standard)
LANEMATH_EXPORT_AT(4, atan2f, atan2f_width_4)
LANEMATH_EXPORT(atan2f, atan2f_native, _native)

LANEMATH_EXPORT_BUT(2, atan2, atan2_standard)
LANEMATH_EXPORT_AT(2, atan2, atan2_width_2)
LANEMATH_EXPORT(atan2, atan2_native, _native)

}  // namespace lanemath
