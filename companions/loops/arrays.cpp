// The array functions: calls of width 16, which is a standalone form nowhere. The elements that are left over go
// through the same call, on a copy that is filled up.
#include "frame/abi.h"

namespace {

using lanemath::abi;
using lanemath::abi_pair;

constexpr std::size_t width = 16;

template <class T>
using block = abi<T, width>;
template <class T, class U>
using block_pair = abi_pair<T, U, width>;

// `count` elements, 16 or fewer.
template <class T>
LANEMATH_INLINE block<T> load(const T* from, std::size_t count, double filler) {
  block<T> b;
  if (count == width)
    __builtin_memcpy(&b, from, sizeof b);
  else
    for (std::size_t i = 0; i < width; ++i) b.v[i] = i < count ? from[i] : T(filler);
  return b;
}
template <class T>
LANEMATH_INLINE void store(const block<T>& b, T* to, std::size_t count) {
  if (count == width)
    __builtin_memcpy(to, &b, sizeof b);
  else
    for (std::size_t i = 0; i < count; ++i) to[i] = b.v[i];
}

// Calls step(at, count, blocks...) for every block of the arguments. A step reads its block before it writes, so that
// results may replace arguments.
template <class Step, class... A>
LANEMATH_INLINE void in_blocks(double filler, std::size_t n, Step step, const A*... x) {
  std::size_t at = 0;
  for (; n - at >= width; at += width) step(at, width, load(x + at, width, filler)...);
  if (at < n) step(at, n - at, load(x + at, n - at, filler)...);
}

// One loop for each shape of signature, whatever the operation.
template <class R, class... A>
[[gnu::noinline]] void one_result(block<R> (*f)(block<A>...), double filler, std::size_t n, R* y, const A*... x) {
  in_blocks(
      filler, n, [=](auto at, auto count, const auto&... b) LANEMATH_LAMBDA { store(f(b...), y + at, count); }, x...);
}
template <class R, class S, class... A>
[[gnu::noinline]] void pointer(block<R> (*f)(block<A>..., void*), double filler, std::size_t n, R* y, S* z,
                               const A*... x) {
  const auto step = [=](auto at, auto count, const auto&... b) LANEMATH_LAMBDA {
    block<S> second;
    store(f(b..., &second), y + at, count);
    store(second, z + at, count);
  };
  in_blocks(filler, n, step, x...);
}
template <class R, class S, class... A>
[[gnu::noinline]] void pair(block_pair<R, S> (*f)(block<A>...), double filler, std::size_t n, R* y, S* z,
                            const A*... x) {
  const auto step = [=](auto at, auto count, const auto&... b) LANEMATH_LAMBDA {
    const auto both = f(b...);
    store(both.first, y + at, count);
    store(both.second, z + at, count);
  };
  in_blocks(filler, n, step, x...);
}

}  // namespace

#include LANEMATH_INSTANCES
