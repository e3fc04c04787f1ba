// fma: x y + z with one rounding, in the direction of the x87 control word. Ordinary lanes that are rounded to nearest
// are computed in double arithmetic, double lanes in pairs of doubles. The others are computed in integer arithmetic:
// the exact product, the exact aligned sum, and one rounding.
//
// Lanes that need no such care (a zero factor or summand, a factor of magnitude one, infinities, NaNs) are computed as
// a plain product and sum, in the direction of MXCSR.
//
// Largest errors found, in ulp:
//   fma: default 0.5
//   fmaf: default, _rm 0.5
//
// Looks odd and is meant, see docs/design.md: -0 that becomes +0, and two rounding directions.
#include "numeric/exceptional.h"
#include "numeric/split.h"
#include "numeric/x87.h"

namespace lanemath {
namespace {

enum class rounding : std::uint16_t { nearest = 0, down = 0x400, up = 0x800, zero = 0xC00 };

LANEMATH_INLINE rounding x87_rounding() { return rounding(x87_control_word() & 0xC00); }

using wide = unsigned __int128;

LANEMATH_INLINE std::uint64_t upper_half(wide v) { return std::uint64_t(v >> 64); }

// Shifted by 0 to 63. Shifts of 128 bits by a variable that may be larger cost twice as much.
LANEMATH_INLINE wide shifted_left(wide v, int count) {
  const std::uint64_t upper = upper_half(v), lower = std::uint64_t(v);
  return wide(upper << count | lower >> 1 >> (63 - count)) << 64 | lower << count;
}
// Shifted by 0 and more. The lowest bit is sticky: it is set if any bit was lost.
LANEMATH_INLINE wide shifted_right(wide v, int count) {
  if (count >= 64) {
    if (count >= 128) return v != 0;
    const wide kept = v >> count;
    return kept | (kept << count != v);
  }
  const std::uint64_t upper = upper_half(v), lower = std::uint64_t(v);
  const bool lost = lower << 1 << (63 - count) != 0;
  return wide(upper >> count) << 64 | (lower >> count | upper << 1 << (63 - count) | lost);
}

template <class T>
struct exact_sum {
  using f = format<T>;
  using pattern = typename f::pattern;

  // The place of an operand's leading bit, or one below that of a product. A sum may carry above them, and has its sign
  // at the top. Below a product there is so much room that what is shifted out matters only as a sticky bit.
  static constexpr int point = 124;

  // A magnitude of significand / 2^point * 2^(exponent - bias).
  struct operand {
    wide significand;
    int exponent;
    pattern sign;
  };

  LANEMATH_INLINE static operand product(T x, T y) {
    const unpacked<T> a(x), b(y);
    constexpr int up = point / 2 - f::fraction_bits;
    return {wide(std::uint64_t(a.significand) << up) * (std::uint64_t(b.significand) << up),
            a.exponent + b.exponent + f::bias, (pattern_of(x) ^ pattern_of(y)) & f::sign};
  }
  LANEMATH_INLINE static operand summand(T z) {
    const unpacked<T> c(z);
    return {wide(std::uint64_t(c.significand) << (point - 64 - f::fraction_bits)) << 64, c.exponent + f::bias,
            pattern_of(z) & f::sign};
  }

  // A significand whose leading bit is at 62, with a sticky bit at the bottom.
  LANEMATH_INLINE static T rounded(std::uint64_t significand, int field, pattern sign, rounding direction) {
    if (field >= f::top_field) return overflowed(value_of<T>(sign));
    if (field <= 0) {
      significand = std::uint64_t(shifted_right(significand, 1 - field));
      field = 1;  // without the implicit bit, the field is 0
    }
    constexpr int round_bits = 62 - f::fraction_bits;
    constexpr std::uint64_t below = (std::uint64_t(1) << round_bits) - 1;
    std::uint64_t more = 0;
    if (direction == rounding::nearest)
      more = below / 2 + (significand >> round_bits & 1);
    else if (direction == (sign != 0 ? rounding::down : rounding::up))
      more = below;
    const auto magnitude = (pattern(field - 1) << f::fraction_bits) + pattern((significand + more) >> round_bits);
    if (magnitude == f::infinity) return overflowed(value_of<T>(sign));
    return value_of<T>(magnitude | sign);
  }

  LANEMATH_INLINE static T of(T x, T y, T z, rounding direction) {
    const operand p = product(x, y), s = summand(z);
    const int apart = p.exponent - s.exponent;
    const bool kept_product = apart >= 0;
    const wide kept = kept_product ? p.significand : s.significand;
    const wide moved = shifted_right(kept_product ? s.significand : p.significand, kept_product ? apart : -apart);

    const wide flip = -wide(p.sign != s.sign);
    wide sum = kept + ((moved ^ flip) - flip);
    const auto turned = pattern(upper_half(sum) >> 63);
    const wide turn = -wide(turned);
    sum = (sum ^ turn) - turn;
    const pattern sign = (kept_product ? p.sign : s.sign) ^ turned << (8 * sizeof(T) - 1);
    int field = (kept_product ? p.exponent : s.exponent) + (126 - point);
    if (upper_half(sum) == 0) {
      if (sum == 0) return direction == rounding::down ? -zero_v<T> : zero_v<T>;
      sum <<= 63;
      field -= 63;
    }
    const int up = __builtin_clzll(upper_half(sum)) - 1;
    sum = shifted_left(sum, up);
    return rounded(upper_half(sum) | (std::uint64_t(sum) != 0), field - up, sign, direction);
  }
};

// Whether the lane needs no exact sum, and has its result.
template <class T>
bool is_settled(T x, T y, T z, T& result) {
  using f = format<T>;
  const auto ax = magnitude_pattern(x), ay = magnitude_pattern(y), az = magnitude_pattern(z);
  const auto trivial = [](auto a) { return a == 0 || a == pattern_of(one_v<T>); };
  if (is_nan(x) || is_nan(y))
    result = quieted(is_nan(x) ? x : y);
  else if (is_nan(z))
    result = quieted(z);
  else if (az == f::infinity && ax != f::infinity && ay != f::infinity)
    result = z;
  else if (ax == f::infinity || ay == f::infinity || trivial(ax) || trivial(ay) || az == 0)
    result = x * y + z;
  else
    return false;
  return true;
}

template <class T>
LANEMATH_INLINE status fma_rare(const T* px, const T* py, const T* pz, T* result) {
  using f = format<T>;
  const T x = *px, y = *py, z = *pz;
  // One test for what is most common: normal numbers, none of them a factor of magnitude one.
  const auto normal = [](T v) { return magnitude_pattern(v) - f::implicit_bit < f::infinity - f::implicit_bit; };
  const auto is_one = [](T v) { return magnitude_pattern(v) == pattern_of(one_v<T>); };
  const bool usual = int(normal(x)) & normal(y) & normal(z) & !is_one(x) & !is_one(y);
  if (!usual && is_settled(x, y, z, *result)) [[unlikely]]
    return status::ordinary;
  *result = exact_sum<T>::of(x, y, z, x87_rounding());
  return status::ordinary;
}

template <class V>
LANEMATH_INLINE auto has_magnitude(const V& x, typename V::value_type a) {
  return bits(magnitude(x)) == bits(V(a));
}

// a + b, and by how much that is too small: exactly its sign in every direction of MXCSR, because the sum less the
// larger summand is exact.
template <class V>
LANEMATH_INLINE two_part<V> sum_in_order(V a, V b) {
  const V sum = a + b;
  const auto in_order = magnitude(a) >= magnitude(b);
  const V larger = select(in_order, a, b), smaller = select(in_order, b, a);
  return {sum, smaller - (sum - larger)};
}

// The kernel's last step. The same lanes as in the routine need no exact sum. The routine gets those with a number
// other than zero that is out of the kernel's range, those whose sum the kernel leaves open, and all where the rounding
// is not to nearest.
template <class V, class M>
LANEMATH_INLINE auto settled(const V& x, const V& y, const V& z, const V& exact, const M& open, auto out_of_range) {
  using T = typename V::value_type;
  auto plain = has_magnitude(x, one_v<T>) | has_magnitude(y, one_v<T>);
  M rare = x87_rounding() == rounding::nearest ? 0 : -1;
  for (const V& v : {x, y, z}) {
    const auto zero = has_magnitude(v, zero_v<T>);
    plain = plain | zero;
    rare = rare | (out_of_range(v) & ~narrow_mask(zero));
  }
  return marked(select(plain, x * y + z, exact), rare | (open & ~narrow_mask(plain)));
}

// Float lanes: in double the product is exact, and the sum's error tells on which side of it the exact sum lies. That
// holds in every direction of MXCSR, so the sum can be cut off to an odd number, which rounds as the exact sum does.
struct fmaf_in_doubles {
  using signature = float(float, float, float);
  static constexpr int groups_at_once = 1;
  static constexpr auto rare = fma_rare<float>;

  template <class V>
  static V rounded(const lanes<std::uint64_t, V::width>& sum) {
    constexpr int dropped = 29;
    const auto whole = (sum + (std::uint64_t(1) << (dropped - 1)) - 1 + (sum >> dropped & 1)) >> dropped;
    constexpr auto rebias = std::int32_t(0xC0000000);  // (1023 - 127) * 2^23, modulo 2^32
    return from_bits((lower(whole) - rebias) | (top_word(sum) & sign_mask<float>));
  }

  template <class V>
  static auto marked_kernel(V x, V y, V z) {
    using M = lanes<std::int32_t, V::width>;
    const auto [sum, error] = sum_in_order(convert<double>(x) * convert<double>(y), convert<double>(z));
    const auto inexact = as<std::uint64_t>(error != 0);
    const auto too_large = as<std::uint64_t>(bits(error) ^ bits(sum)) >> 63;
    const auto odd = (as<std::uint64_t>(sum) - (too_large & inexact)) | (inexact & 1);
    const M nonzero = narrow_mask(sum != 0);
    const auto exact = where(nonzero, rounded<V>(odd));
    // Results below 2^-126, or so near 2^128 that they may round to infinity: by the upper halves of those doubles.
    const M beyond = outside(top_word(odd) & 0x7FFFFFFF, 0x38100000, 0x47EFFFFE) & nonzero;

    return settled(x, y, z, exact, beyond, [](const V& v) LANEMATH_LAMBDA { return not_normal(v); });
  }
};

// Double lanes: the product and the sum are pairs of doubles. Their errors are exact, or known so well that they tell
// on which side of a midpoint the exact sum lies, whichever of its two neighbours the direction of MXCSR has chosen.
struct fma_in_pairs {
  using signature = double(double, double, double);
  static constexpr int groups_at_once = 1;
  static constexpr auto rare = fma_rare<double>;

  // Of 26 bits each, whose products are exact in every direction. Multiplying by a splitter would round.
  template <class V>
  static two_part<V> halves(V x) {
    const V high = without_low_bits(from_bits(bits(x) + (std::int64_t(1) << 26)), 27);
    return {high, x - high};
  }

  template <class V>
  static auto marked_kernel(V x, V y, V z) {
    const V product = x * y;
    const auto [sum, sum_error] = sum_in_order(product, z);
    const V error = sum_error + product_error(product, halves(x), halves(y));
    const V result = sum + error;
    const V left = error - (result - sum);

    using f = format<double>;
    const V scale = from_bits(bits(result) & std::int64_t(f::infinity));
    const auto next = magnitude(left) > scale * 0x1.0000000001p-53;
    const auto same = magnitude(left) < scale * 0x1.ffffffffffp-54;
    // The numbers below a power of two lie closer together.
    const auto uneven = ((bits(result) & std::int64_t(f::fraction)) == 0) & (left != 0);
    const auto inward = as<std::uint64_t>(bits(left) ^ bits(result)) >> 63;
    const auto step = as<std::uint64_t>(next) & (1 - (inward << 1));
    const V nearest = from_bits(as<std::uint64_t>(result) + step);

    const auto extreme = [](const V& v) LANEMATH_LAMBDA {
      return outside(top_word(magnitude(v)), 0x26F00000, 0x58F00000);  // 2^-400 to 2^400: no step loses a bit
    };
    return settled(x, y, z, nearest, narrow_mask((~next & ~same) | uneven), extreme);
  }
};

}  // namespace

LANEMATH_EXPORT(fmaf, fmaf_in_doubles)
LANEMATH_SAME(fmaf, , _rm)
LANEMATH_EXPORT(fma, fma_in_pairs)

}  // namespace lanemath
