// What the tangents of x and of pi x share.
#pragma once

#include <bit>

#include "numeric/split.h"
#include "trig/trigonometric.h"

namespace lanemath {

// c[First] + c[First + 1] z + ..., `Count` terms, by halves: one chain of so many steps would take longer than the
// arithmetic. powers[k] is z to the power 2^k.
template <std::size_t First, std::size_t Count, class V, class T, std::size_t Size>
LANEMATH_INLINE V terms(const V (&powers)[4], const T (&c)[Size]) {
  if constexpr (Count == 1) {
    return V(c[First]);
  } else {
    constexpr std::size_t half = std::bit_ceil(Count) / 2;
    return terms<First, half>(powers, c) +
           powers[std::countr_zero(half)] * terms<First + half, Count - half>(powers, c);
  }
}
template <class V, class T, std::size_t Size>
LANEMATH_INLINE V polynomial_by_halves(const V& z, const T (&c)[Size]) {
  const V square = z * z, fourth = square * square;
  return terms<0, Size>({z, square, fourth, fourth * fourth}, c);
}

// A mask of the odd numbers.
template <class I, int W>
LANEMATH_INLINE auto odd_ones(const lanes<I, W>& n) {
  const lanes<I, W> zero(0);
  return zero - (n & I(1));
}

inline constexpr double tangent_c[] = {0x3FABA1EEB3FE1C92_f64, 0x3FC1111110FE87F4_f64, 0x3FD5555555555559_f64};

// The tangent of j steps, 256 in half a turn, plus r + rl, |r| up to half a step, by the theorem of addition. The sum
// of the two tangents and 1 less their product have two parts each; the quotient is its upper half plus a correction.
// At a pole it is not a number.
template <int W>
LANEMATH_INLINE lanes<double, W> tangent_of_steps(const lanes<std::int64_t, W>& j, const lanes<double, W>& r,
                                                  const lanes<double, W>& rl) {
  if constexpr (W == 1) {  // Scalars would pass through integer registers at every selection.
    return first(tangent_of_steps(spread(j), spread(r), spread(rl)));
  } else {
    using V = lanes<double, W>;
    const auto [t, tl] = look_up_row(tangent_quarter, lower(j) & 127);
    const V z = r * r;
    const V tail = (r * z) * horner(z, tangent_c) + rl;
    const V rh = without_low_bits(r, 32), p = t * rh;
    const auto [sum, sum_lost] = fast_sum(t, r);
    const V sum_low = sum_lost + (tl + tail);
    const V rest = 1.0 - p, rest_low = ((1.0 - rest) - p) - (t * ((r - rh) + tail) + tl * r);

    // In odd quadrants the negative reciprocal.
    const auto odd = odd_ones(as<std::int64_t>(as<std::uint64_t>(j + 64) >> 7));
    const V n = select(odd, rest, sum), nl = select(odd, rest_low, sum_low);
    const V d = select(odd, sum, rest), dl = select(odd, sum_low, rest_low);
    const V y = 1.0 / (d + dl);
    const V qh = without_low_bits(n * y, 27), dh = without_low_bits(d, 27);
    return flipped(qh + y * (((n - qh * dh) - qh * ((d - dh) + dl)) + nl), odd & sign_mask<double>);
  }
}

}  // namespace lanemath
