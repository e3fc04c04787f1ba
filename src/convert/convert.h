// What the conversions share.
#pragma once

#include <limits>

#include "numeric/fields.h"

// form(rounding, direction) for each rounding that an operation's name can say.
#define LANEMATH_FOR_ROUNDINGS(form) form(rte, nearest) form(rtn, down) form(rtp, up) form(rtz, zero)

// Exports a template's instance, whose commas a macro's argument cannot hold.
#define LANEMATH_CONVERSION(operation, ...) \
  using operation##_form = __VA_ARGS__;     \
  LANEMATH_EXPORT(unary, operation, operation##_form, )

namespace lanemath {

// A mask, or a small integer, in 64-bit lanes.
template <class T, int W>
LANEMATH_INLINE auto as_64(const lanes<T, W>& v) {
  if constexpr (sizeof(T) == 4)
    return widen(v);
  else
    return v;
}

}  // namespace lanemath
