// The entries of the vector function ABI for one set of instructions. An entry hands the lanes of its registers on to
// functions of the library or of a companion, as many at a time as the generated list says.
//
// This file is compiled for several sets of instructions: nothing in it may be visible to the linker but the entries.
#include <utility>

#include "frame/abi.h"
#include "usable.h"

namespace {

using lanemath::abi;

template <class T, std::size_t W>
struct vector_of {
  typedef T type __attribute__((vector_size(W * sizeof(T))));
};
template <class T>
struct vector_of<T, 1> {
  using type = T;
};
template <class T, std::size_t W>
using vector = typename vector_of<T, W>::type;

// Two vectors as one. Joining registers by way of memory would have to wait for the stores.
template <class T, std::size_t W>
LANEMATH_INLINE vector<T, 2 * W> join(vector<T, W> low, vector<T, W> high) {
  if constexpr (W == 1)
    return vector<T, 2>{low, high};
  else
    return [&]<std::size_t... I>(std::index_sequence<I...>) __attribute__((always_inline)) {
      return __builtin_shufflevector(low, high, I...);
    }
  (std::make_index_sequence<2 * W>{});
}

// The lanes of an argument, from the registers that hold it.
template <class T, std::size_t L>
struct argument {
  alignas(16) T lane[L];
  template <class... Register>
  LANEMATH_INLINE explicit argument(Register... registers) {
    static_assert((... + sizeof(Register)) == sizeof lane);
    T* to = lane;
    ((__builtin_memcpy(to, &registers, sizeof registers), to += sizeof registers / sizeof(T)), ...);
  }
  // Some of them as a function takes them.
  template <class Passed>
  LANEMATH_INLINE Passed part(std::size_t at) const {
    Passed some;
    __builtin_memcpy(&some, lane + at, sizeof some);
    return some;
  }
};

// What a function returns, from lane `At` on, in a register.
template <class T, std::size_t W, std::size_t At, class Returned>
LANEMATH_INLINE vector<T, W> in_register(const Returned& result) {
  if constexpr (sizeof(Returned) <= 16 || std::is_same_v<Returned, vector<T, W>>) {
    return result;
  } else if constexpr (W * sizeof(T) > 16) {
    return join<T, W / 2>(in_register<T, W / 2, At>(result), in_register<T, W / 2, At + W / 2>(result));
  } else {
    vector<T, W> part;
    __builtin_memcpy(&part, result.v + At, sizeof part);
    asm("" : "+x"(part));  // keeps two loads from becoming a wider one
    return part;
  }
}

// f, which takes W lanes, on lanes At to At + L.
template <class R, std::size_t W, std::size_t L, std::size_t At = 0, std::size_t N, class Returned, class... Passed,
          class... A>
LANEMATH_INLINE vector<R, L> call(Returned (*f)(Passed...), const argument<A, N>&... x) {
  if constexpr (L == W) {
    return in_register<R, W, 0>(f(x.template part<Passed>(At)...));
  } else {
    const auto low = call<R, W, L / 2, At>(f, x...);
    const auto high = call<R, W, L / 2, At + L / 2>(f, x...);
    return join<R, L / 2>(low, high);
  }
}

}  // namespace

#include LANEMATH_INSTANCES
