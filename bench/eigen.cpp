// Eigen's functions of arrays.
#include <Eigen/Core>

#include "inlined.h"

namespace lanemath::bench {
namespace {

template <class F>
struct over_arrays {
  template <class T>
  static void run(T* result, std::size_t lanes, const auto*... inputs) {
    using array = Eigen::Array<T, Eigen::Dynamic, 1>;
    const auto n = Eigen::Index(lanes);
    Eigen::Map<array>(result, n) = F()(Eigen::Map<const array>(inputs, n)...);
  }
};

#define UNARY(operation, name) \
  LANEMATH_INLINED("Eigen", operation, 1, over_arrays, [](const auto& x) { return x.name(); })
#define BINARY(operation, ...) \
  LANEMATH_INLINED("Eigen", operation, 2, over_arrays, [](const auto& x, const auto& y) { return __VA_ARGS__; })

}  // namespace

std::optional<peer> inlined_eigen(const operation& o) {
  // What Eigen computes in vectors, in one precision at least.
  static const inlined_row rows[] = {
      UNARY(exp, exp),
      UNARY(expm1, expm1),
      UNARY(log, log),
      UNARY(log2, log2),
      UNARY(log1p, log1p),
      UNARY(sin, sin),
      UNARY(cos, cos),
      UNARY(tanh, tanh),
      UNARY(sqrt, sqrt),
      UNARY(rsqrt, rsqrt),
      UNARY(inv, inverse),
      UNARY(fabs, abs),
      UNARY(ceil, ceil),
      UNARY(floor, floor),
      UNARY(rint, rint),
      UNARY(round, round),
      BINARY(pow, Eigen::pow(x, y)),
      BINARY(div, x / y),
  };
  return find_inlined(rows, o.name());
}

}  // namespace lanemath::bench
