// tan x, double precision.
//
// x = N pi/256 + r with pi/256 in four pieces and r in two parts, the tangent of N steps from a table, and the theorem
// of addition. Above 2^20, reduction by a window of 1 / (2 pi) to the same steps. The native form: x = N pi/2 + r with
// r in one part, and an odd polynomial; in odd quadrants its negative reciprocal.
//
// Largest errors found, in ulp:
//   tan: default 0.570135; _native 1.05655e7
#include "trig/sine_double.h"
#include "trig/tangent.h"

namespace lanemath {
namespace {

constexpr double INVERSE_HALF_PI = 0x3FE45F306DC9C883_f64;
constexpr double QUARTERS = 0x1.8p50;                    // rounds to quarters of a turn
constexpr double INVERSE_STEP = 0x40545F306DC9C883_f64;  // 256 / pi
constexpr double step_parts[] = {0x3F8921FB50000000_f64, 0x3DE110B460000000_f64, 0x3C21A62630000000_f64,
                                 0x3A78A2E03707344A_f64};
constexpr double native_half_pi_parts[] = {0x3FF921FB54400000_f64, 0x3DD0B4611A600000_f64, 0x3BA3198A2E037073_f64};
static constexpr double tan_native_c[] = {0x3FEFFFFFFF5EC8D8_f64, 0x3FD5555658CA4FE3_f64, 0x3FC110CD080C6C17_f64,
                                          0x3FABAF33FBAB3E01_f64, 0x3F95BF38D597438C_f64, 0x3F8663ACAB9AA667_f64,
                                          0xBEF07C6F5466C5FD_f64, 0x3F721CEDAD17CBDD_f64};

LANEMATH_RARE tan_rare(const double* px, double* py) { return sine_of_non_finite(*px, *py); }

// a - b and its rounding error: exact, because a is a multiple of the last place of b wherever it is the smaller one.
template <class V>
LANEMATH_INLINE two_part<V> difference(const V& a, const V& b) {
  const V d = a - b;
  return {d, (a - d) - b};
}

struct accurate {
  template <class V>
  static V tangent(const V& a) {
    const V t = a * INVERSE_STEP + integer_shifter<double>, n = t - integer_shifter<double>;
    const auto [first, e1] = difference(a - n * step_parts[0], n * step_parts[1]);
    const auto [second, e2] = difference(first, n * step_parts[2]);
    const V low = (e1 + e2) - n * step_parts[3];
    const V r = second + low;
    return tangent_of_steps(bits(t), r, (second - r) + low);
  }
  template <class V>
  static V large_tangent(const V& a) {
    const auto [j, r, rl] = reduce_to_step(a);
    return tangent_of_steps(widen(j), r, rl);
  }
};
struct native {
  template <class V>
  static V tangent(const V& a) {
    const V t = a * INVERSE_HALF_PI + integer_shifter<double>;
    return of_remainder(less_multiples(a, t - integer_shifter<double>, native_half_pi_parts), odd_ones(bits(t)));
  }
  template <class V>
  static V large_tangent(const V& a) {
    const auto [j, r, rl] = reduce_to_step(a, QUARTERS);
    return of_remainder(r, odd_ones(widen(j)));
  }
  template <class V, class M>
  static V of_remainder(const V& r, const M& odd) {
    const V t = r * polynomial_by_halves(r * r, tan_native_c);
    return select(odd, -1.0 / t, t);
  }
};

template <class Form>
struct tan_form {
  using signature = double(double);
  static constexpr auto rare = tan_rare;
  static constexpr bool tested_first = true;
  // Two groups side by side would wait for each other's spills.
  template <int W>
  static lanes<double, W> kernel(lanes<double, W> x) {
    const auto group = [](const auto& v) LANEMATH_LAMBDA { return flipped(Form::tangent(magnitude(v)), sign_of(v)); };
    return by_pieces<largest_group<double>, W>(group, x);
  }
  static auto rare_test(auto x) { return ~(magnitude(x) <= 0x1p20); }
  template <int W, class M>
  static void fix_up(lanes<double, W> x, lanes<double, W>& y, M& rare) {
    const auto stage = [](const auto& v)
                           LANEMATH_LAMBDA { return flipped(Form::large_tangent(magnitude(v)), sign_of(v)); };
    large_stage(stage, x, y, rare);
  }
};

using tan_standard = tan_form<accurate>;
using tan_native = tan_form<native>;

}  // namespace

LANEMATH_EXPORT(tan, tan_standard)
LANEMATH_EXPORT(tan, tan_native, _native)

}  // namespace lanemath
