// The array functions: calls of one width, at which no form is standalone. The elements that are left over go through
// the same call, on a copy that is filled up.
//
// This file is compiled for the library and for each companion: nothing in it may be visible to the linker but the
// instances.
#include "frame/abi.h"
#include "usable.h"

// Puts the level into the names of all instances, by which tests and profilers tell them apart.
#define arrays_of_level LANEMATH_SYMBOL(arrays)

namespace {
namespace arrays_of_level {

using lanemath::abi;
using lanemath::abi_pair;

// `count` elements, W or fewer.
template <int W, class T>
LANEMATH_INLINE abi<T, W> load(const T* from, std::size_t count, double filler) {
  abi<T, W> block;
  if (count == W) {
    __builtin_memcpy(&block, from, sizeof block);
  } else {
    T lane[W];
    for (std::size_t i = 0; i < W; ++i) lane[i] = i < count ? from[i] : T(filler);
    __builtin_memcpy(&block, lane, sizeof block);
  }
  return block;
}
template <int W, class T>
LANEMATH_INLINE void store(const abi<T, W>& block, T* to, std::size_t count) {
  if (count == W) {
    __builtin_memcpy(to, &block, sizeof block);
  } else {
    T lane[W];
    __builtin_memcpy(lane, &block, sizeof block);
    for (std::size_t i = 0; i < count; ++i) to[i] = lane[i];
  }
}

// Calls step(at, count, blocks...) for every block of the arguments. A step reads its block before it writes, so that
// results may replace arguments.
template <std::size_t W, class Step, class... A>
LANEMATH_INLINE void in_blocks(double filler, std::size_t n, Step step, const A*... x) {
  std::size_t at = 0;
  for (; n - at >= W; at += W) step(at, W, load<W>(x + at, W, filler)...);
  if (at < n) step(at, n - at, load<W>(x + at, n - at, filler)...);
}

// One loop for each shape of signature, whatever the operation.
template <int W, class R, class... A>
[[gnu::noinline]] void one_result(abi<R, W> (*f)(abi<A, W>...), double filler, std::size_t n, R* y, const A*... x) {
  const auto step = [=](auto at, auto count, const auto&... b) LANEMATH_LAMBDA { store<W>(f(b...), y + at, count); };
  in_blocks<W>(filler, n, step, x...);
}
template <int W, class R, class S, class... A>
[[gnu::noinline]] void pointer(abi<R, W> (*f)(abi<A, W>..., void*), double filler, std::size_t n, R* y, S* z,
                               const A*... x) {
  const auto step = [=](auto at, auto count, const auto&... b) LANEMATH_LAMBDA {
    abi<S, W> second;
    store<W>(f(b..., &second), y + at, count);
    store<W>(second, z + at, count);
  };
  in_blocks<W>(filler, n, step, x...);
}
template <int W, class R, class S, class... A>
[[gnu::noinline]] void pair(abi_pair<R, S, W> (*f)(abi<A, W>...), double filler, std::size_t n, R* y, S* z,
                            const A*... x) {
  const auto step = [=](auto at, auto count, const auto&... b) LANEMATH_LAMBDA {
    const auto both = f(b...);
    store<W>(both.first, y + at, count);
    store<W>(both.second, z + at, count);
  };
  in_blocks<W>(filler, n, step, x...);
}

}  // namespace arrays_of_level
using namespace arrays_of_level;
}  // namespace

#include LANEMATH_INSTANCES
