// Floating lanes to 32-bit integers. The rounding instruction makes the lane integral in the direction of the name, so
// that the conversion instruction after it is exact whatever the direction in force; what does not fit it gives
// 0x80000000. All lanes are settled in straight line.
#include "convert/convert.h"

namespace lanemath {
namespace {

constexpr std::int32_t INDEFINITE = std::numeric_limits<std::int32_t>::min();

// A power of two's leading word.
template <class T>
constexpr std::int32_t word_of(int exponent) {
  return (format<T>::bias + exponent) << format<T>::top_shift;
}

template <direction D, class T>
struct to_signed {
  using signature = std::int32_t(T);
  template <class V>
  static auto kernel(V x) {
    return convert<std::int32_t>(round_to<D>(x));
  }
};

// The indefinite result is the lower clamp already, and the upper one is its complement. A NaN gives 0.
template <direction D, class T>
struct to_signed_saturated {
  using signature = std::int32_t(T);
  template <class V>
  static auto kernel(V x) {
    const V r = round_to<D>(x);
    const auto above = narrow_mask(r >= power_of_two<T>(31));
    return (convert<std::int32_t>(r) ^ above) & narrow_mask(r == r);
  }
};

// From 2^31 to 2^32 the integer is the fraction below a set top bit. Without saturation a negative lane gives its
// magnitude, and what does not fit stays indefinite. With it, the bounds are tested on the leading word, so that a
// NaN goes by its sign: 0xFFFFFFFF or 0.
template <direction D, class T, bool Saturated>
struct to_unsigned {
  using signature = std::uint32_t(T);
  template <class V>
  static auto kernel(V x) {
    using f = format<T>;
    const V r = round_to<D>(x);
    const V a = Saturated ? r : magnitude(r);
    const auto word = top_word(a);
    const auto top = (word & f::top_exponent) == word_of<T>(31);
    const auto fraction = top_word(bits(a) << (31 - f::top_shift));
    auto y = select(top, fraction | INDEFINITE, convert<std::int32_t>(a));
    if constexpr (Saturated) y = (y | (word >= word_of<T>(32))) & ~(word >> 31);
    return as<std::uint32_t>(y);
  }
};

}  // namespace

#define FORMS(rounding, D)                                                                   \
  LANEMATH_CONVERSION(cvtfptoi32##rounding##nosatf, to_signed<direction::D, float>)          \
  LANEMATH_CONVERSION(cvtfptoi32##rounding##nosat, to_signed<direction::D, double>)          \
  LANEMATH_CONVERSION(cvtfptoi32##rounding##satf, to_signed_saturated<direction::D, float>)  \
  LANEMATH_CONVERSION(cvtfptoi32##rounding##sat, to_signed_saturated<direction::D, double>)  \
  LANEMATH_CONVERSION(cvtfptou32##rounding##nosatf, to_unsigned<direction::D, float, false>) \
  LANEMATH_CONVERSION(cvtfptou32##rounding##nosat, to_unsigned<direction::D, double, false>) \
  LANEMATH_CONVERSION(cvtfptou32##rounding##satf, to_unsigned<direction::D, float, true>)    \
  LANEMATH_CONVERSION(cvtfptou32##rounding##sat, to_unsigned<direction::D, double, true>)
LANEMATH_FOR_ROUNDINGS(FORMS)

}  // namespace lanemath
