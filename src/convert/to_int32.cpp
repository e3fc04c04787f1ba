// Floating-point lanes to 32-bit integers. The rounding instruction makes the lane integral in the direction of the
// name, so that the conversion instruction after it is exact in every current direction; a value that does not fit
// gives 0x80000000. All lanes are settled in straight-line code.
//
// Looks odd and is meant, see docs/design.md: negative values without saturation, NaNs.
#include "convert/convert.h"

namespace lanemath {
namespace {

constexpr std::int32_t INDEFINITE = std::numeric_limits<std::int32_t>::min();

// The leading word of a power of two.
template <class T>
constexpr std::int32_t word_of(int exponent) {
  return (format<T>::bias + exponent) << format<T>::top_shift;
}

template <std::size_t Index>
struct to_signed : conversion<Index> {
  template <class V>
  static auto kernel(V x) {
    return convert<std::int32_t>(round_to<conversion<Index>::rounding>(x));
  }
};

// The indefinite result is itself the lower clamp, and its complement the upper one. A NaN gives 0.
template <std::size_t Index>
struct to_signed_saturated : conversion<Index> {
  template <class V>
  static auto kernel(V x) {
    using given = conversion<Index>;
    const V r = round_to<given::rounding>(x);
    const auto above = narrow_mask(r >= power_of_two<typename given::from>(31));
    return (convert<std::int32_t>(r) ^ above) & narrow_mask(r == r);
  }
};

// From 2^31 to 2^32 the integer is the fraction below a set top bit. Without saturation a negative lane gives its
// magnitude, and a value that does not fit stays indefinite. With it, the bounds are tested on the leading word, so
// that a NaN gives 0xFFFFFFFF or 0 by its sign.
template <std::size_t Index>
struct to_unsigned : conversion<Index> {
  template <class V>
  static auto kernel(V x) {
    using given = conversion<Index>;
    using T = typename given::from;
    using f = format<T>;
    const V r = round_to<given::rounding>(x);
    const V a = given::saturates ? r : magnitude(r);
    const auto word = top_word(a);
    const auto top = (word & f::top_exponent) == word_of<T>(31);
    const auto fraction = top_word(bits(a) << (31 - f::top_shift));
    auto y = select(top, fraction | INDEFINITE, convert<std::int32_t>(a));
    if constexpr (given::saturates) y = (y | (word >= word_of<T>(32))) & ~(word >> 31);
    return as<std::uint32_t>(y);
  }
};

}  // namespace

LANEMATH_CONVERSION(cvtfptoi32rtenosatf, to_signed)
LANEMATH_CONVERSION(cvtfptoi32rtenosat, to_signed)
LANEMATH_CONVERSION(cvtfptoi32rtnnosatf, to_signed)
LANEMATH_CONVERSION(cvtfptoi32rtnnosat, to_signed)
LANEMATH_CONVERSION(cvtfptoi32rtpnosatf, to_signed)
LANEMATH_CONVERSION(cvtfptoi32rtpnosat, to_signed)
LANEMATH_CONVERSION(cvtfptoi32rtznosatf, to_signed)
LANEMATH_CONVERSION(cvtfptoi32rtznosat, to_signed)
LANEMATH_CONVERSION(cvtfptoi32rtesatf, to_signed_saturated)
LANEMATH_CONVERSION(cvtfptoi32rtesat, to_signed_saturated)
LANEMATH_CONVERSION(cvtfptoi32rtnsatf, to_signed_saturated)
LANEMATH_CONVERSION(cvtfptoi32rtnsat, to_signed_saturated)
LANEMATH_CONVERSION(cvtfptoi32rtpsatf, to_signed_saturated)
LANEMATH_CONVERSION(cvtfptoi32rtpsat, to_signed_saturated)
LANEMATH_CONVERSION(cvtfptoi32rtzsatf, to_signed_saturated)
LANEMATH_CONVERSION(cvtfptoi32rtzsat, to_signed_saturated)
LANEMATH_CONVERSION(cvtfptou32rtenosatf, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtenosat, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtnnosatf, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtnnosat, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtpnosatf, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtpnosat, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtznosatf, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtznosat, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtesatf, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtesat, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtnsatf, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtnsat, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtpsatf, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtpsat, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtzsatf, to_unsigned)
LANEMATH_CONVERSION(cvtfptou32rtzsat, to_unsigned)

}  // namespace lanemath
