// Floating-point lanes to 64-bit integers, for which there is no conversion instruction. After the rounding instruction
// the integer is built from the fields of the magnitude, m * 2^k. Below 2^23 (float) or 2^52 (double), m is the
// fraction of the magnitude's sum with that number and k is 0; above, m is the significand and k the excess of the
// exponent. The sign goes into m before the shift. All lanes are settled in straight-line code.
//
// Looks odd and is meant, see docs/design.md: negative values without saturation.
#include <type_traits>

#include "convert/convert.h"

namespace lanemath {
namespace {

template <std::size_t Index>
struct to_int64 : conversion<Index> {
  static constexpr int groups_at_once = 2;
  template <class V>
  static auto kernel(V x) {
    using given = conversion<Index>;
    using T = typename given::from;
    using I = typename given::to;
    using f = format<T>;
    using pattern = typename f::signed_pattern;
    using wide = lanes<std::int64_t, V::width>;
    constexpr bool is_signed = std::is_signed_v<I>;
    constexpr T INTEGRAL = power_of_two<T>(f::fraction_bits);  // nothing above has a fraction
    constexpr T ZERO = 0, LIMIT = is_signed ? 0x1p63 : 0x1p64;

    const V r = round_to<given::rounding>(x);
    // A negative lane gives its magnitude, or 0 by the last mask below.
    const V a = given::saturates && !is_signed ? r : magnitude(r);
    const auto small = a < INTEGRAL;
    constexpr auto fraction = pattern(f::fraction);
    auto m = select(small, bits(a + INTEGRAL) & fraction, (bits(a) & fraction) | pattern(f::implicit_bit));
    const auto k = ((bits(a) >> f::fraction_bits) - (f::bias + f::fraction_bits)) & ~small;
    const auto negative = r < ZERO;
    if constexpr (is_signed) m = (m ^ negative) - negative;
    if constexpr (given::saturates) m = m & (is_signed ? r == r : r >= ZERO);
    const wide v = shifted_left(as_64(m), as_64(k));

    if constexpr (!given::saturates)
      return as<I>(select(as_64(a < LIMIT), v, wide(std::numeric_limits<std::int64_t>::min())));
    else if constexpr (is_signed)
      return select(as_64(a >= LIMIT), as_64(negative) ^ std::numeric_limits<std::int64_t>::max(), v);
    else
      return as<I>(v | as_64(a >= LIMIT));
  }
};

}  // namespace

LANEMATH_CONVERSION(cvtfptoi64rtenosatf, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtenosat, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtnnosatf, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtnnosat, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtpnosatf, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtpnosat, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtznosatf, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtznosat, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtesatf, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtesat, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtnsatf, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtnsat, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtpsatf, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtpsat, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtzsatf, to_int64)
LANEMATH_CONVERSION(cvtfptoi64rtzsat, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtenosatf, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtenosat, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtnnosatf, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtnnosat, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtpnosatf, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtpnosat, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtznosatf, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtznosat, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtesatf, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtesat, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtnsatf, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtnsat, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtpsatf, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtpsat, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtzsatf, to_int64)
LANEMATH_CONVERSION(cvtfptou64rtzsat, to_int64)

}  // namespace lanemath
