// What the conversions share.
#pragma once

#include <limits>

#include "frame/frame.h"

// form(rounding, direction) for each rounding that an operation's name can say.
#define LANEMATH_FOR_ROUNDINGS(form) form(rte, nearest) form(rtn, down) form(rtp, up) form(rtz, zero)

// Exports a template's instance, whose commas a macro's argument cannot hold.
#define LANEMATH_CONVERSION(operation, ...) \
  using operation##_form = __VA_ARGS__;     \
  LANEMATH_EXPORT(unary, operation, operation##_form, )

namespace lanemath {

template <class T, int W>
LANEMATH_INLINE lanes<T, W> magnitude(const lanes<T, W>& x) {
  return from_bits(bits(x) & std::numeric_limits<int_of_size<sizeof(T)>>::max());
}

// A mask, or a small integer, between lanes of 32 and of 64 bits. The identity where it has that size already.
template <class T, int W>
LANEMATH_INLINE auto as_32(const lanes<T, W>& v) {
  if constexpr (sizeof(T) == 4)
    return v;
  else
    return lower(v);
}
template <class T, int W>
LANEMATH_INLINE auto as_64(const lanes<T, W>& v) {
  if constexpr (sizeof(T) == 4)
    return widen(v);
  else
    return v;
}

}  // namespace lanemath
