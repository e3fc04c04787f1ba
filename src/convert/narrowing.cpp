// double to float. The narrowing instruction rounds in the current direction, which is all that rte does. For the
// directed roundings the lane is widened back, which is exact, and compared with the argument: where narrowing went to
// the wrong side, a step of one unit on the pattern undoes it, even an overflow to infinity. NaNs compare false and
// stay as they are.
#include "convert/convert.h"

namespace lanemath {
namespace {

template <std::size_t Index>
struct narrowed : conversion<Index> {
  template <class V>
  static auto kernel(V x) {
    constexpr direction D = conversion<Index>::rounding;
    const auto r = convert<float>(x);
    const V b = convert<double>(r);
    const auto away_from_zero = (bits(r) >> 31) | 1;
    if constexpr (D == direction::nearest)
      return r;
    else if constexpr (D == direction::down)
      return from_bits(bits(r) - (away_from_zero & narrow_mask(x < b)));
    else if constexpr (D == direction::up)
      return from_bits(bits(r) + (away_from_zero & narrow_mask(b < x)));
    else
      return from_bits(bits(r) + narrow_mask(magnitude(x) < magnitude(b)));
  }
};

}  // namespace

LANEMATH_CONVERSION(cvtfp64tofp32rte, narrowed)
LANEMATH_CONVERSION(cvtfp64tofp32rtn, narrowed)
LANEMATH_CONVERSION(cvtfp64tofp32rtp, narrowed)
LANEMATH_CONVERSION(cvtfp64tofp32rtz, narrowed)

}  // namespace lanemath
