// tan x, double precision.
//
// x = N pi/2 + r with pi/2 in four pieces and r in two parts, and an odd polynomial; in odd quadrants its negative
// reciprocal. Above 2^20, reduction by a window of 1 / (2 pi) to quarters of a turn. The native form: r in one part,
// fewer terms.
//
// Largest errors found, in ulp:
//   tan: default 1.26779; _native 1.05655e7
#include <tuple>

#include "trig/sine_double.h"
#include "trig/tangent.h"

namespace lanemath {
namespace {

constexpr double INVERSE_HALF_PI = 0x3FE45F306DC9C883_f64;
constexpr double QUARTERS = 0x1.8p50;  // rounds to quarters of a turn
constexpr double half_pi_parts[] = {0x3FF921FB54400000_f64, 0x3DD0B4611A600000_f64, 0x3BA3198A2E000000_f64,
                                    0x397B839A252049C1_f64};
constexpr double native_half_pi_parts[] = {0x3FF921FB54400000_f64, 0x3DD0B4611A600000_f64, 0x3BA3198A2E037073_f64};
static constexpr double tan_c[] = {0x3FD555555555555D_f64, 0x3FC11111111106E2_f64, 0x3FABA1BA1BAB1E0A_f64,
                                   0x3F9664F485FD9A82_f64, 0x3F8226E3A2CF6F57_f64, 0x3F6D6D2F51DFBAFE_f64,
                                   0x3F57DB0D37AAE162_f64, 0x3F434C3515A83EC1_f64, 0x3F2FEC8A5AD4E168_f64,
                                   0x3F1607EBDDAE9827_f64, 0x3F1164AC07D26396_f64, 0xBEF9BABE59A38503_f64,
                                   0x3F09058DFEDE50B2_f64, 0xBEF8FB5532577956_f64, 0x3EE45748B1586E22_f64};
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

// A mask of the odd numbers.
template <class I, int W>
LANEMATH_INLINE auto odd_ones(const lanes<I, W>& n) {
  const lanes<I, W> zero(0);
  return zero - (n & I(1));
}

struct accurate {
  // The remainder in two parts, and a mask of the odd quadrants.
  template <class V>
  static auto reduce(const V& a) {
    const V t = a * INVERSE_HALF_PI + integer_shifter<double>, n = t - integer_shifter<double>;
    const auto [first, e1] = difference(a - n * half_pi_parts[0], n * half_pi_parts[1]);
    const auto [second, e2] = difference(first, n * half_pi_parts[2]);
    const V low = (e1 + e2) - n * half_pi_parts[3];
    const V r = second + low;
    return std::tuple(r, (second - r) + low, odd_ones(bits(t)));
  }
  template <class V, class M>
  static V tangent(const V& r, const V& rl, const M& odd) {
    const V z = r * r;
    const V cubic = (r * z) * polynomial_by_halves(z, tan_c);
    const V t = r + cubic;
    const V low = cubic + (rl + rl * (t * t));
    return select(odd, flipped(reciprocal(r, low), lanes<std::int64_t, V::width>(sign_mask<double>)), r + low);
  }
};
struct native {
  template <class V>
  static auto reduce(const V& a) {
    const V t = a * INVERSE_HALF_PI + integer_shifter<double>;
    return std::tuple(less_multiples(a, t - integer_shifter<double>, native_half_pi_parts), V(0.0), odd_ones(bits(t)));
  }
  template <class V, class M>
  static V tangent(const V& r, const V&, const M& odd) {
    const V t = r * polynomial_by_halves(r * r, tan_native_c);
    return select(odd, -1.0 / t, t);
  }
};

template <class Form>
struct tan_form {
  using signature = double(double);
  static constexpr auto rare = tan_rare;
  // Two groups side by side would wait for each other's spills.
  template <int W>
  static lanes<double, W> kernel(lanes<double, W> x) {
    const auto group = [](const auto& v) LANEMATH_LAMBDA {
      const auto [r, rl, odd] = Form::reduce(magnitude(v));
      return flipped(Form::tangent(r, rl, odd), sign_of(v));
    };
    return by_pieces<largest_group<double>, W>(group, x);
  }
  static auto rare_test(auto x) { return ~(magnitude(x) <= 0x1p20); }
  template <int W, class M>
  static void fix_up(lanes<double, W> x, lanes<double, W>& y, M& rare) {
    const auto stage = [](const auto& v) LANEMATH_LAMBDA {
      const auto [j, r, rl] = reduce_to_step(magnitude(v), QUARTERS);
      return flipped(Form::tangent(r, rl, odd_ones(widen(j))), sign_of(v));
    };
    large_stage(stage, x, y, rare);
  }
};

using tan_standard = tan_form<accurate>;
using tan_native = tan_form<native>;

}  // namespace

LANEMATH_EXPORT(tan, tan_standard)
LANEMATH_EXPORT(tan, tan_native, _native)

}  // namespace lanemath
