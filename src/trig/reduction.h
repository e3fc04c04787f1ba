// Reduction of arguments of any size, in vectors: an integer j that counts steps, of which a turn has a fixed number,
// and a remainder in two parts, so that x is 2 pi j / steps + r + rl up to whole turns.
//
// The significand is multiplied, in integers, by a window of the bits of 1 / (2 pi) that the exponent selects; the bits
// before the window contribute whole turns only. The product is the argument as a fraction of a turn. It is cut into
// three floating-point numbers and multiplied by 2 pi in two parts. No branch, no loop over bits.
#pragma once

#include "numeric/split.h"
#include "tables/trig.h"

namespace lanemath {

// The fraction of a turn as bits after the binary point, the more significant word first.
template <class V>
struct turn_fraction {
  V high, low;
};

// 64 bits. Of the products of 16-bit halves the least significant one is left out, and the lower half of the next two.
template <int W>
LANEMATH_INLINE turn_fraction<lanes<std::uint32_t, W>> fraction_of_turn(const lanes<float, W>& x) {
  const auto pattern = as<std::uint32_t>(x);
  const auto m = widen((pattern & 0x007FFFFF) | 0x00800000);
  const auto window = look_up_row(inverse_turn_window_f32, as<std::int32_t>((pattern >> 23) & 0xFF));
  const auto w0 = widen(window[0]), w1 = widen(window[1]), w2 = widen(window[2]);
  const auto below = (product_of_lower(m >> 16, w2) >> 16) + (product_of_lower(m & 0xFFFF, w2 >> 16) >> 16);
  const auto sum = below + product_of_lower(m, w1) + (product_of_lower(m, w0) << 32);
  return {as<std::uint32_t>(upper(sum)), as<std::uint32_t>(lower(sum))};
}

// 128 bits, lane by lane, because integer registers multiply 64 bits at once. Of the products of 32-bit halves with the
// last word the least significant one is left out, and the lower half of the next two.
template <int W>
LANEMATH_INLINE turn_fraction<lanes<std::uint64_t, W>> fraction_of_turn(const lanes<double, W>& x) {
  turn_fraction<lanes<std::uint64_t, W>> result;
  const auto lane = [](std::uint64_t pattern, auto& high, auto& low) LANEMATH_LAMBDA {
    const std::uint64_t m = (pattern & 0x000FFFFFFFFFFFFF) | 0x0010000000000000;
    const auto& [w0, w1, w2] = inverse_turn_window_f64[(pattern >> 52) & 0x7FF];
    const std::uint64_t mh = m >> 32, ml = m & 0xFFFFFFFF, wh = w2 >> 32, wl = w2 & 0xFFFFFFFF;
    const auto sum = static_cast<unsigned __int128>(m) * w1 + (mh * wh + (mh * wl >> 32) + (ml * wh >> 32));
    high = std::uint64_t(sum >> 64) + m * w0;
    low = std::uint64_t(sum);
  };
  lane_by_lane(lane, as<std::uint64_t>(x), result.high, result.low);
  return result;
}

template <class T>
struct reduction_rows;

template <>
struct reduction_rows<float> {
  static constexpr int significand = 23;
  static constexpr std::uint32_t SIGN = 0x80000000, ONE = 0x3F800000;
  static constexpr float SHIFTER = 0x1.8p15f;  // rounds to steps of 1/256
  static constexpr std::int32_t STEPS = 0xFF;
  // The fields of the fraction after the first one; each becomes the significand of the power of two given here.
  static constexpr std::uint32_t MID = 0x34000000, LOW = 0x28800000;
  static constexpr int low_bits = 18;
  static constexpr int below_half = 12;
  static constexpr float A = 0x40C91000_f32, B = 0xB795777A_f32;  // 2 pi in two parts
  static constexpr float FULL = 0x40C90FDB_f32;
};
template <>
struct reduction_rows<double> {
  static constexpr int significand = 52;
  static constexpr std::uint64_t SIGN = 0x8000000000000000, ONE = 0x3FF0000000000000;
  static constexpr double SHIFTER = 0x1.8p43;  // rounds to steps of 1/512
  static constexpr std::int32_t STEPS = 0x1FF;
  static constexpr std::uint64_t MID = 0x3CB0000000000000, LOW = 0x3970000000000000;
  static constexpr int low_bits = 24;
  static constexpr int below_half = 27;
  static constexpr double A = 0x401921FB54000000_f64, B = 0x3E310B4611A62633_f64;
  static constexpr double FULL = 0x401921FB54442D18_f64;
};

template <class T, int W>
struct reduced_angle {
  lanes<std::int32_t, W> j;
  lanes<T, W> r, rl;
};

// The shifter sets the size of the steps. A negative x gives a negative angle: j wraps. j is in range for every x; for
// infinities and NaNs the result is meaningless.
template <class T, int W>
LANEMATH_INLINE reduced_angle<T, W> reduce_to_step(const lanes<T, W>& x, T shifter = reduction_rows<T>::SHIFTER) {
  using c = reduction_rows<T>;
  using word = std::make_unsigned_t<int_of_size<sizeof(T)>>;
  using words = lanes<word, W>;
  using V = lanes<T, W>;
  constexpr int word_bits = 8 * int(sizeof(T)), above_mid = word_bits - c::significand;
  const auto number = [](const words& v) LANEMATH_LAMBDA { return from_bits(v); };
  const auto ones = [](int count) LANEMATH_LAMBDA { return (word(1) << count) - 1; };

  const words g = as<word>(x) & c::SIGN;
  const auto [high, low] = fraction_of_turn(x);
  const V t = number((high >> above_mid) | c::ONE | g);
  const V shifted = t + shifter;
  const auto j = low_word(shifted) & c::STEPS;
  const V d = t - (shifted - shifter);

  // A power of two with a field in its significand, minus that power, is the value of the field.
  const words mid_field = ((high & ones(above_mid)) << (c::significand - above_mid)) | (low >> c::low_bits);
  const words low_field = (low & ones(c::low_bits)) << (c::significand - c::low_bits);
  const V mid = number(mid_field | (g ^ c::MID)) - number(g ^ c::MID);
  const V least = number(low_field | (g ^ c::LOW)) - number(g ^ c::LOW);
  const auto [s, lost] = fast_sum(d, mid);
  const V rest = lost + least;

  const V sh = without_low_bits(s, c::below_half), sl = s - sh;
  const V p = c::A * sh;
  V q = c::A * sl + sh * c::B;
  const V u = c::FULL * rest + sl * c::B;
  q = q + u;
  const V r = q + p;
  return {j, r, q + (p - r)};
}

}  // namespace lanemath
