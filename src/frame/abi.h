// How lanes cross the library's border: the System V x86-64 convention without AVX, or at the companions' levels with
// it. A scalar or a vector of up to the level's register travels in a register; a wider one in memory, and is returned
// through the hidden pointer, as every compiler passes a structure that holds an array.
#pragma once

#include <type_traits>

#include "frame/catalogue.h"
#include "frame/lanes.h"

namespace lanemath {

namespace abi_detail {
template <class T, int W, int Bytes, bool InRegister = (Bytes >= 16 && Bytes <= register_bytes)>
struct type {
  // Aligned only as the stack is, so that a caller that aligns less than the vector's own size does no harm. The
  // argument's place is the same either way.
  struct alignas(16) in_memory {
    T v[W];
  };
  using is = in_memory;
};
template <class T, int Bytes>
struct type<T, 1, Bytes, false> {
  using is = T;
};
template <class T, int W, int Bytes>
struct type<T, W, Bytes, true> {
  using is = typename lanes<T, W>::group;
};
template <class T>
struct type<T, 2, 8, false> {
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

namespace abi_detail {
// A register in pieces of 16 bytes. Compilers copy a structure into a call in such pieces, and a wider load would have
// to wait for the stores.
template <int Bytes>
LANEMATH_INLINE auto load(const char* from) {
  if constexpr (Bytes == 16) {
    auto piece = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
    asm("" : "+x"(piece));  // keeps two loads from becoming a wider one
    return piece;
  } else {
    return instructions<Bytes>::joined(load<Bytes / 2>(from), load<Bytes / 2>(from + Bytes / 2));
  }
}
}  // namespace abi_detail

template <class T, int W>
LANEMATH_INLINE lanes<T, padded(W)> from_abi(const abi<T, W>& v) {
  using V = lanes<T, padded(W)>;
  V result;
  if constexpr (sizeof(v) == 8 && W == 2) {
    // Fills the upper half with a copy of the lower one: ordinary values there cost nothing.
    result.g[0] = std::bit_cast<typename V::group>(_mm_set1_pd(std::bit_cast<double>(v)));
  } else if constexpr (register_bytes > 16 && sizeof(v) > register_bytes) {
    for (int i = 0; i < V::groups; ++i)
      result.g[i] = std::bit_cast<typename V::group>(
          abi_detail::load<register_bytes>(reinterpret_cast<const char*>(&v) + i * register_bytes));
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
