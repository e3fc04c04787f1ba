// Times the array functions against calls of width 16, as a user would write them.
#include <benchmark/benchmark.h>
#include <lanemath/arrays.h>
#include <lanemath/lanemath.h>

#include <cstring>
#include <vector>

namespace {

template <class T>
std::vector<T> arguments(std::size_t n) {
  std::vector<T> all(n);
  for (std::size_t i = 0; i < n; ++i) all[i] = T(0.5 + 8.0 * double(i * 7919 % n) / double(n));
  return all;
}

// Calls compute(x, y, n), where y takes the results.
template <class T, class Compute>
void time_on_arrays(benchmark::State& state, Compute compute) {
  const auto n = std::size_t(state.range(0));
  const auto x = arguments<T>(n);
  std::vector<T> y(n);
  for (auto _ : state) {
    compute(x.data(), y.data(), n);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(std::int64_t(state.iterations() * n));
}

// The loop by hand; the remainder goes through a vector that is filled up.
template <class V, class T, class Call>
void by_hand(const T* x, T* y, std::size_t n, Call call) {
  std::size_t at = 0;
  for (; n - at >= 16; at += 16) {
    V v;
    std::memcpy(&v, x + at, sizeof v);
    call(v);
    std::memcpy(y + at, &v, sizeof v);
  }
  if (at < n) {
    V v{};
    std::memcpy(&v, x + at, (n - at) * sizeof(T));
    call(v);
    std::memcpy(y + at, &v, (n - at) * sizeof(T));
  }
}

// Arguments besides x come after a comma of their own.
#define TIME(operation, T, ...)                                                                                    \
  void operation##_array(benchmark::State& state) {                                                                \
    time_on_arrays<T>(state,                                                                                       \
                      [](const T* x, T* y, std::size_t n) { lanemath_##operation##_array(x __VA_ARGS__, y, n); }); \
  }                                                                                                                \
  void operation##_by_hand(benchmark::State& state) {                                                              \
    using V = lanemath_##T##16;                                                                                    \
    time_on_arrays<T>(state, [](const T* from, T* y, std::size_t n) {                                              \
      by_hand<V>(from, y, n, [](V& x) { x = lanemath_##operation##16(x __VA_ARGS__); });                           \
    });                                                                                                            \
  }                                                                                                                \
  BENCHMARK(operation##_array)->Arg(1000)->Arg(100000);                                                            \
  BENCHMARK(operation##_by_hand)->Arg(1000)->Arg(100000);

TIME(expf, float)
TIME(logf, float)
TIME(sinf, float)
TIME(powf, float, , x)
TIME(exp, double)

}  // namespace
