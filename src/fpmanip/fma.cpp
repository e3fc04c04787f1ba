// fma: x y + z with one rounding, lane by lane in integer arithmetic: the exact product, the exact aligned sum, and one
// rounding in the direction of the x87 control word.
//
// Lanes that need no such care (a zero factor or summand, a factor of magnitude one, infinities, NaNs) are computed as
// a plain product and sum, in the direction of MXCSR.
//
// Largest errors found, in ulp:
//   fma: default 0.5
//   fmaf: default, _rm 0.5
//
// Looks odd and is meant, see docs/design.md: -0 that becomes +0, and two rounding directions.
#include <utility>

#include "numeric/exceptional.h"
#include "numeric/x87.h"

namespace lanemath {
namespace {

enum class rounding : std::uint16_t { nearest = 0, down = 0x400, up = 0x800, zero = 0xC00 };

LANEMATH_INLINE rounding x87_rounding() { return rounding(x87_control_word() & 0xC00); }

// Arithmetic done only for its flags.
template <class T>
LANEMATH_INLINE void raise_flags_of(T result) {
  asm volatile("" ::"x"(result));
}

template <class T>
struct exact_sum {
  using f = format<T>;
  using pattern = typename f::pattern;
  // Holds a product of two significands and enough bits below it that whatever is shifted out beyond them matters only
  // as a sticky bit.
  using wide = std::conditional_t<sizeof(T) == 4, std::uint64_t, unsigned __int128>;

  static constexpr int wide_bits = 8 * sizeof(wide);
  static constexpr int point = wide_bits - 2;  // the place of an operand's leading bit: a sum may carry above it
  static constexpr int below_fraction = point - f::fraction_bits;

  // A magnitude of significand / 2^point * 2^(exponent - bias).
  struct operand {
    wide significand;
    int exponent;
    bool negative;
  };

  static int leading_zeros(wide v) {
    if constexpr (sizeof(wide) == 8)
      return __builtin_clzll(v);
    else if (const auto upper_half = std::uint64_t(v >> 64); upper_half != 0)
      return __builtin_clzll(upper_half);
    else
      return 64 + __builtin_clzll(std::uint64_t(v));
  }

  static wide shifted_right(wide v, int count) {
    if (count >= wide_bits) return v != 0;
    const wide kept = v >> count;
    return kept | wide(kept << count != v);
  }

  static operand unpack(T x) {
    const unpacked<T> magnitude(x);
    return {magnitude.significand, magnitude.exponent + f::bias, std::signbit(x)};
  }

  static operand product(const operand& x, const operand& y) {
    operand p{wide(x.significand * y.significand), x.exponent + y.exponent - f::bias, x.negative != y.negative};
    // The leading bit of the product is at 2 * fraction_bits or one above.
    const bool above = p.significand >> (2 * f::fraction_bits + 1) != 0;
    p.exponent += above;
    p.significand <<= point - 2 * f::fraction_bits - above;
    return p;
  }

  static T signed_value(pattern magnitude, bool negative) { return value_of<T>(magnitude | (negative ? f::sign : 0)); }

  static T rounded(operand sum, rounding direction) {
    int field = sum.exponent;
    const T sign = signed_value(pattern_of(one_v<T>), sum.negative);
    if (field >= f::top_field) return overflowed(sign);
    if (field <= 0) {
      sum.significand = shifted_right(sum.significand, 1 - field);
      field = 0;
    }
    // The fraction and, left-aligned, the bits below it.
    auto magnitude = pattern(sum.significand >> below_fraction);
    const wide rest = sum.significand << (wide_bits - below_fraction);
    constexpr wide half = wide(1) << (wide_bits - 1);
    if (field > 0) magnitude += pattern(field - 1) << f::fraction_bits;
    if (rest == 0) return signed_value(magnitude, sum.negative);
    if constexpr (sizeof(T) == 8) raise_flags_of(one_v<T> + opaque(std::numeric_limits<T>::min()));

    const bool away = direction == rounding::nearest ? rest > half || (rest == half && magnitude % 2 == 1)
                                                     : direction == (sum.negative ? rounding::down : rounding::up);
    const pattern before = magnitude;
    magnitude += away;
    if (magnitude == f::infinity) return overflowed(sign);
    // In the directions up and down a result is tiny if it would be so with an unbounded exponent range.
    const bool directed = direction == rounding::up || direction == rounding::down;
    const bool tiny = !directed ? magnitude < f::implicit_bit || (magnitude == f::implicit_bit && rest == half)
                      : away    ? before < f::fraction || (before == f::fraction && rest < half)
                                : before < f::implicit_bit;
    if (tiny) raise_flags_of(underflowed<T>());
    return signed_value(magnitude, sum.negative);
  }

  static T of(T x, T y, T z, rounding direction) {
    operand large = product(unpack(x), unpack(y)), small = unpack(z);
    small.significand <<= below_fraction;
    if (large.exponent < small.exponent || (large.exponent == small.exponent && large.significand < small.significand))
      std::swap(large, small);
    small.significand = shifted_right(small.significand, large.exponent - small.exponent);

    operand sum = large;
    if (large.negative == small.negative) {
      sum.significand += small.significand;
      if (sum.significand >> (point + 1) != 0) {
        sum.significand = shifted_right(sum.significand, 1);
        ++sum.exponent;
      }
    } else {
      sum.significand -= small.significand;
      if (sum.significand == 0) return signed_value(0, direction == rounding::down);
      const int up = leading_zeros(sum.significand) - (wide_bits - 1 - point);
      sum.significand <<= up;
      sum.exponent -= up;
    }
    return rounded(sum, direction);
  }
};

template <class T>
LANEMATH_RARE fma_rare(const T* px, const T* py, const T* pz, T* result) {
  using f = format<T>;
  const rounding direction = x87_rounding();
  const T x = *px, y = *py, z = *pz;
  const auto ax = magnitude_pattern(x), ay = magnitude_pattern(y), az = magnitude_pattern(z);
  constexpr auto one = pattern_of(one_v<T>);
  const auto trivial = [](auto a) { return a == 0 || a == one; };

  if (is_nan(x) || is_nan(y))
    *result = quieted(is_nan(x) ? x : y);
  else if (is_nan(z))
    *result = quieted(z);
  else if (az == f::infinity && ax != f::infinity && ay != f::infinity)
    *result = z;
  else if (ax == f::infinity || ay == f::infinity || trivial(ax) || trivial(ay) || az == 0)
    *result = x * y + z;
  else
    *result = exact_sum<T>::of(x, y, z, direction);
  return status::ordinary;
}

template <class T>
struct fma {
  using signature = T(T, T, T);
  static constexpr bool always_scalar = true;
  static constexpr auto rare = fma_rare<T>;
  static auto kernel(auto x, auto y, auto z) { return x * y + z; }
};

}  // namespace

LANEMATH_EXPORT(fmaf, fma<float>)
LANEMATH_SAME(fmaf, , _rm)
LANEMATH_EXPORT(fma, fma<double>)

}  // namespace lanemath
