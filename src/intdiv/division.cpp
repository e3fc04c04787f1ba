#include "intdiv/division.h"

namespace lanemath {
namespace {

template <class T>
struct division {
  using signature = T(T, T);
  template <class V>
  static V kernel(V a, V b) {
    return quotient(a, b);
  }
};

template <class T>
struct remainder {
  using signature = T(T, T);
  template <class V>
  static V kernel(V a, V b) {
    return a - quotient(a, b) * b;
  }
};

template <class T>
struct division_with_remainder {
  using signature = pair_of<T, T>(T, T);
  template <class V>
  static two_results<V, V> kernel(V a, V b) {
    const V q = quotient(a, b);
    return {q, a - q * b};
  }
};

}  // namespace

LANEMATH_EXPORT(idiv, division<std::int32_t>)
LANEMATH_EXPORT(irem, remainder<std::int32_t>)
LANEMATH_EXPORT(idivrem, division_with_remainder<std::int32_t>)
LANEMATH_EXPORT(udiv, division<std::uint32_t>)
LANEMATH_EXPORT(urem, remainder<std::uint32_t>)
LANEMATH_EXPORT(udivrem, division_with_remainder<std::uint32_t>)

}  // namespace lanemath
