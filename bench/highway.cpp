// Highway's contributed maths. Its level above SSSE3 has SSE4.2 too, which is more than the library has; those of wider
// registers have FMA.
#define HWY_COMPILE_ONLY_STATIC
#define HWY_DISABLE_PCLMUL_AES
#include <hwy/contrib/math/math-inl.h>
#include <hwy/highway.h>

#include "inlined.h"

namespace lanemath::bench {
namespace {

namespace highway = hwy::HWY_NAMESPACE;
static_assert(HWY_STATIC_TARGET == (LANEMATH_REGISTER_BYTES == 16   ? HWY_SSE4
                                    : LANEMATH_REGISTER_BYTES == 32 ? HWY_AVX2
                                                                    : HWY_AVX3));

template <class F>
struct over_vectors {
  template <class T>
  static void run(T* result, std::size_t lanes, const auto*... inputs) {
    const highway::ScalableTag<T> tag;
    for (std::size_t i = 0; i < lanes; i += highway::Lanes(tag))
      highway::StoreU(F()(tag, highway::LoadU(tag, inputs + i)...), tag, result + i);
  }
};

#define UNARY(operation, name) \
  LANEMATH_INLINED("Highway", operation, 1, over_vectors, [](auto tag, auto x) { return highway::name(tag, x); })

}  // namespace

std::optional<peer> inlined_highway(const operation& o) {
  static const inlined_row rows[] = {
      UNARY(exp, Exp),     UNARY(expm1, Expm1), UNARY(log, Log),     UNARY(log2, Log2),
      UNARY(log10, Log10), UNARY(log1p, Log1p), UNARY(sin, Sin),     UNARY(cos, Cos),
      UNARY(asin, Asin),   UNARY(acos, Acos),   UNARY(atan, Atan),   UNARY(sinh, Sinh),
      UNARY(tanh, Tanh),   UNARY(asinh, Asinh), UNARY(acosh, Acosh), UNARY(atanh, Atanh),
  };
  return find_inlined(rows, o.name());
}

}  // namespace lanemath::bench
