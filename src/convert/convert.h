// What the conversions share.
#pragma once

#include <limits>

#include "numeric/fields.h"

// Exports the instance of `body` for the operation's index in the catalogue.
#define LANEMATH_CONVERSION(operation, body) LANEMATH_EXPORT(operation, body<::lanemath::index_of(#operation)>)

namespace lanemath {

template <std::size_t Index>
struct conversion {
  using from = type_of<catalogue[Index].sig.arguments[0]>;
  using to = type_of<catalogue[Index].sig.result>;
  using signature = to(from);
  static constexpr direction rounding = catalogue[Index].rounding;
  static constexpr bool saturates = catalogue[Index].saturates;
};

// A mask, or a small integer, in 64-bit lanes.
template <class T, int W>
LANEMATH_INLINE auto as_64(const lanes<T, W>& v) {
  if constexpr (sizeof(T) == 4)
    return widen(v);
  else
    return v;
}

}  // namespace lanemath
