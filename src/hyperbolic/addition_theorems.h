// What the hyperbolic sines and cosines of both precisions share. |x| = A + r, where A is a multiple of a fraction of
// ln 2, so that e^A / 2 and e^-A / 2 come from powers of two; then the addition theorems, with short polynomials in r:
//   sinh(A + r) = sinh A + (cosh A sinh r + sinh A (cosh r - 1)), and the same with sinh A and cosh A exchanged.
#pragma once

#include "exp/exponential_rare.h"

namespace lanemath {

// The constants of |x| = n ln 2 + r.
template <class T>
struct ln2_rows {
  T K;       // 1 / ln 2
  T S;       // shifter: rounds n and leaves it in the low bits of the sum
  T L1, L2;  // ln 2, high and low part
};

template <class V>
struct ln2_multiple {
  V shifted, r, r2;
  LANEMATH_INLINE ln2_multiple(V a, const ln2_rows<typename V::value_type>& c) {
    shifted = c.K * a + c.S;
    const V n = shifted - c.S;
    r = (a - c.L1 * n) - c.L2 * n;
    r2 = r * r;
  }
};

// sinh A and cosh A.
template <class V>
struct sinh_and_cosh {
  V sinh, cosh;
};

// `same` is the wanted function at A, `other` the other one there; then sinh r and cosh r - 1.
template <class V>
LANEMATH_INLINE V added(V same, V other, V sinh_r, V cosh_r_less_1) {
  return same + (other * sinh_r + cosh_r_less_1 * same);
}

// The rare routines. They get only lanes whose e^-|x| is far below the last place of e^|x|.

inline double half_exp(double a) {
  const rare_power p = exp_power(a);
  return scaled(p.w + p.hi, p.k - 1);
}

// From here on e^a / 2 overflows; in single precision there is room to spare.
template <class T>
inline constexpr double half_exp_overflow = sizeof(T) == 4 ? 89.4159927368164 : 710.475860073944;

// A rare lane of sinh, which is odd, or of cosh.
template <bool Odd, class T>
status rare_lane(const T* px, T* py) {
  const double x = *px, a = std::fabs(x);
  if (!is_finite(x)) {
    *py = T(Odd ? x + x : x * x);
    return status::ordinary;
  }
  const T sign = Odd ? *px : one_v<T>;
  if (a >= half_exp_overflow<T>) {
    *py = overflowed(sign);
    return status::overflow;
  }
  *py = T(std::copysign(half_exp(a), double(sign)));
  return status::ordinary;
}
template <class T>
status sinh_rare_lane(const T* px, T* py) {
  return rare_lane<true>(px, py);
}
template <class T>
status cosh_rare_lane(const T* px, T* py) {
  return rare_lane<false>(px, py);
}

}  // namespace lanemath
