// xsimd's functions on batches of one register.
#include <xsimd/xsimd.hpp>

#include "inlined.h"

namespace lanemath::bench {
namespace {

template <class F>
struct over_batches {
  template <class T>
  static void run(T* result, std::size_t lanes, const auto*... inputs) {
    using batch = xsimd::batch<T>;
    static_assert(sizeof(batch) == LANEMATH_REGISTER_BYTES);
    for (std::size_t i = 0; i < lanes; i += batch::size)
      F()(batch::load_unaligned(inputs + i)...).store_unaligned(result + i);
  }
};

#define UNARY(operation) \
  LANEMATH_INLINED("xsimd", operation, 1, over_batches, [](auto x) { return xsimd::operation(x); })
#define BINARY(operation) \
  LANEMATH_INLINED("xsimd", operation, 2, over_batches, [](auto x, auto y) { return xsimd::operation(x, y); })

}  // namespace

std::optional<peer> inlined_xsimd(const operation& o) {
  static const inlined_row rows[] = {
      UNARY(exp),        UNARY(exp2),
      UNARY(exp10),      UNARY(expm1),
      UNARY(log),        UNARY(log2),
      UNARY(log10),      UNARY(log1p),
      BINARY(pow),       UNARY(sin),
      UNARY(cos),        UNARY(tan),
      UNARY(asin),       UNARY(acos),
      UNARY(atan),       BINARY(atan2),
      UNARY(sinh),       UNARY(cosh),
      UNARY(tanh),       UNARY(asinh),
      UNARY(acosh),      UNARY(atanh),
      UNARY(sqrt),       UNARY(cbrt),
      BINARY(hypot),     UNARY(erf),
      UNARY(erfc),       UNARY(lgamma),
      UNARY(tgamma),     UNARY(ceil),
      UNARY(floor),      UNARY(trunc),
      UNARY(rint),       UNARY(nearbyint),
      UNARY(round),      UNARY(fabs),
      BINARY(fdim),      BINARY(copysign),
      BINARY(fmax),      BINARY(fmin),
      BINARY(nextafter), BINARY(fmod),
      BINARY(remainder), LANEMATH_INLINED("xsimd", div, 2, over_batches, [](auto x, auto y) { return x / y; }),
  };
  return find_inlined(rows, o.name());
}

}  // namespace lanemath::bench
