// How lanes cross the library's border: the System V x86-64 convention without AVX. A scalar or a vector of up to 16
// bytes travels in a register; a wider one in memory, and is returned through the hidden pointer, as every compiler
// passes a structure that holds an array.
#pragma once

#include <type_traits>

#include "frame/catalogue.h"
#include "frame/lanes.h"

namespace lanemath {

namespace abi_detail {
template <class T, int W, int Bytes>
struct type {
  // Aligned only as the stack is, so that a caller that aligns less than the vector's own size does no harm. The
  // argument's place is the same either way.
  struct alignas(16) in_memory {
    T v[W];
  };
  using is = in_memory;
};
template <class T, int Bytes>
struct type<T, 1, Bytes> {
  using is = T;
};
template <class T, int W>
struct type<T, W, 16> {
  using is = typename lanes<T, W>::group;
};
template <class T>
struct type<T, 2, 8> {
  typedef T is __attribute__((vector_size(8)));
};
}  // namespace abi_detail

template <class T, int W>
using abi = typename abi_detail::type<T, padded(W), padded(W) * int(sizeof(T))>::is;

template <class T, class U, int W>
struct abi_pair {
  abi<T, W> first;
  abi<U, W> second;
};

template <class T, int W>
LANEMATH_INLINE lanes<T, padded(W)> from_abi(const abi<T, W>& v) {
  using V = lanes<T, padded(W)>;
  V result;
  if constexpr (sizeof(v) == 8 && W == 2) {
    // Fills the upper half with a copy of the lower one: ordinary values there cost nothing.
    result.g[0] = std::bit_cast<typename V::group>(_mm_set1_pd(std::bit_cast<double>(v)));
  } else {
    __builtin_memcpy(&result, &v, sizeof v);
  }
  return result;
}

template <class T, int W>
LANEMATH_INLINE abi<T, W> to_abi(const lanes<T, padded(W)>& v) {
  abi<T, W> result;
  __builtin_memcpy(&result, &v, sizeof result);
  return result;
}

}  // namespace lanemath
