#include "peers.h"

#include <math.h>
#include <sleef.h>

#include <cstdint>
#include <initializer_list>
#include <type_traits>

#include "typed_calls.h"

namespace lanemath::bench {
namespace {

enum class accuracy : std::uint8_t { full, reduced };

struct row {
  std::string_view operation;
  accuracy bound;
  peer function;
};

template <class A>
constexpr int lanes_in = sizeof(A) / sizeof(A{}[0]);
template <class A>
requires std::is_arithmetic_v<A>
constexpr int lanes_in<A> = 1;

template <class F>
peer peer_of(std::string_view name, F* f) {
  using calls = typed_calls<F>;
  constexpr int width = lanes_in<typename calls::first_argument>;
  auto* address = reinterpret_cast<void*>(f);
  peer p{name, width, calls::template throughput<width>(address), std::nullopt};
  if constexpr (width == 1) p.latency = calls::latency(address);
  return p;
}

// The SLEEF function that a stem and an error bound name, in both precisions.
#if LANEMATH_REGISTER_BYTES == 16
#define SLEEF_DOUBLE(stem, bound) Sleef_##stem##d2_##bound##sse4
#define SLEEF_FLOAT(stem, bound) Sleef_##stem##f4_##bound##sse4
#elif LANEMATH_REGISTER_BYTES == 32
#define SLEEF_DOUBLE(stem, bound) Sleef_##stem##d4_##bound##avx2
#define SLEEF_FLOAT(stem, bound) Sleef_##stem##f8_##bound##avx2
#else
#define SLEEF_DOUBLE(stem, bound) Sleef_##stem##d8_##bound##avx512f
#define SLEEF_FLOAT(stem, bound) Sleef_##stem##f16_##bound##avx512f
#endif
#define NAME_OF(function) #function
#define SLEEF_FUNCTION(operation, accuracy, name) \
  { operation, accuracy, peer_of(NAME_OF(name), name) }
#define SLEEF_BOTH(operation, accuracy, stem, bound)               \
  SLEEF_FUNCTION(#operation, accuracy, SLEEF_DOUBLE(stem, bound)), \
      SLEEF_FUNCTION(#operation "f", accuracy, SLEEF_FLOAT(stem, bound))
#define SLEEF(operation, stem, bound) SLEEF_BOTH(operation, accuracy::full, stem, bound)
#define SLEEF_REDUCED(operation, stem, bound) SLEEF_BOTH(operation, accuracy::reduced, stem, bound)

const auto& sleef_rows() {
  static const row rows[] = {
      SLEEF(exp, exp, u10),
      SLEEF(exp2, exp2, u10),
      SLEEF_REDUCED(exp2, exp2, u35),
      SLEEF(exp10, exp10, u10),
      SLEEF_REDUCED(exp10, exp10, u35),
      SLEEF(expm1, expm1, u10),

      SLEEF(log, log, u10),
      SLEEF_REDUCED(log, log, u35),
      SLEEF(log2, log2, u10),
      SLEEF_REDUCED(log2, log2, u35),
      SLEEF(log10, log10, u10),
      SLEEF(log1p, log1p, u10),

      SLEEF(pow, pow, u10),
      SLEEF_FUNCTION("powf", accuracy::reduced, SLEEF_FLOAT(fastpow, u3500)),
      SLEEF(powr, pow, u10),
      SLEEF_FUNCTION("powrf", accuracy::reduced, SLEEF_FLOAT(fastpow, u3500)),

      SLEEF(sin, sin, u10),
      SLEEF_REDUCED(sin, sin, u35),
      SLEEF(cos, cos, u10),
      SLEEF_REDUCED(cos, cos, u35),
      SLEEF(sincos, sincos, u10),
      SLEEF_REDUCED(sincos, sincos, u35),
      SLEEF(sincosreg, sincos, u10),
      SLEEF_REDUCED(sincosreg, sincos, u35),
      SLEEF(tan, tan, u10),
      SLEEF_REDUCED(tan, tan, u35),
      SLEEF(sinpi, sinpi, u05),
      SLEEF(cospi, cospi, u05),

      SLEEF(asin, asin, u10),
      SLEEF_REDUCED(asin, asin, u35),
      SLEEF(acos, acos, u10),
      SLEEF_REDUCED(acos, acos, u35),
      SLEEF(atan, atan, u10),
      SLEEF_REDUCED(atan, atan, u35),
      SLEEF(atan2, atan2, u10),
      SLEEF_REDUCED(atan2, atan2, u35),

      SLEEF(sinh, sinh, u10),
      SLEEF_REDUCED(sinh, sinh, u35),
      SLEEF(cosh, cosh, u10),
      SLEEF_REDUCED(cosh, cosh, u35),
      SLEEF(tanh, tanh, u10),
      SLEEF_REDUCED(tanh, tanh, u35),
      SLEEF(asinh, asinh, u10),
      SLEEF(acosh, acosh, u10),
      SLEEF(atanh, atanh, u10),

      SLEEF(sqrt, sqrt, u05),
      SLEEF_REDUCED(sqrt, sqrt, u35),
      SLEEF(cbrt, cbrt, u10),
      SLEEF_REDUCED(cbrt, cbrt, u35),
      SLEEF(hypot, hypot, u05),
      SLEEF_REDUCED(hypot, hypot, u35),

      SLEEF(erf, erf, u10),
      SLEEF(erfc, erfc, u15),
      SLEEF(lgamma, lgamma, u10),
      SLEEF(tgamma, tgamma, u10),

      SLEEF(ceil, ceil, ),
      SLEEF(floor, floor, ),
      SLEEF(trunc, trunc, ),
      SLEEF(rint, rint, ),
      SLEEF(round, round, ),
      SLEEF(fabs, fabs, ),
      SLEEF(copysign, copysign, ),
      SLEEF(fdim, fdim, ),
      SLEEF(fmax, fmax, ),
      SLEEF(fmin, fmin, ),
      SLEEF(modf, modf, ),
      SLEEF(nextafter, nextafter, ),
      SLEEF(fmod, fmod, ),
      SLEEF(remainder, remainder, ),
      SLEEF(fma, fma, ),
  };
  return rows;
}

// C++ headers overload most of these names: the shape selects the one that is meant.
template <class T>
using unary = T(T);
template <class T>
using binary = T(T, T);
template <class T>
using ternary = T(T, T, T);
template <class T>
using with_int = T(T, int);
template <class T>
using to_int = int(T);
template <class T>
using second = T(T, T*);
template <class T>
using second_int = T(T, int*);
template <class T>
using binary_second_int = T(T, T, int*);
template <class T>
using two_pointers = void(T, T*, T*);

#define C_FUNCTION(operation, type, name) \
  { operation, accuracy::full, peer_of<type>(#name, ::name) }
#define C_BOTH(operation, shape, name) \
  C_FUNCTION(#operation, shape<double>, name), C_FUNCTION(#operation "f", shape<float>, name##f)

const auto& c_library_rows() {
  static const row rows[] = {
      C_BOTH(exp, unary, exp),
      C_BOTH(exp2, unary, exp2),
      C_BOTH(exp10, unary, exp10),
      C_BOTH(expm1, unary, expm1),

      C_BOTH(log, unary, log),
      C_BOTH(log2, unary, log2),
      C_BOTH(log10, unary, log10),
      C_BOTH(log1p, unary, log1p),

      C_BOTH(pow, binary, pow),
      C_BOTH(powr, binary, pow),

      C_BOTH(sin, unary, sin),
      C_BOTH(cos, unary, cos),
      C_BOTH(sincos, two_pointers, sincos),
      C_BOTH(sincosreg, two_pointers, sincos),
      C_BOTH(tan, unary, tan),

      C_BOTH(asin, unary, asin),
      C_BOTH(acos, unary, acos),
      C_BOTH(atan, unary, atan),
      C_BOTH(atan2, binary, atan2),

      C_BOTH(sinh, unary, sinh),
      C_BOTH(cosh, unary, cosh),
      C_BOTH(tanh, unary, tanh),
      C_BOTH(asinh, unary, asinh),
      C_BOTH(acosh, unary, acosh),
      C_BOTH(atanh, unary, atanh),

      C_BOTH(sqrt, unary, sqrt),
      C_BOTH(cbrt, unary, cbrt),
      C_BOTH(hypot, binary, hypot),

      C_BOTH(erf, unary, erf),
      C_BOTH(erfc, unary, erfc),
      C_BOTH(lgamma, unary, lgamma),
      C_FUNCTION("lgammar", second_int<double>, lgamma_r),
      C_FUNCTION("lgammarf", second_int<float>, lgammaf_r),
      C_BOTH(tgamma, unary, tgamma),

      C_BOTH(ceil, unary, ceil),
      C_BOTH(floor, unary, floor),
      C_BOTH(trunc, unary, trunc),
      C_BOTH(rint, unary, rint),
      C_BOTH(nearbyint, unary, nearbyint),
      C_BOTH(round, unary, round),
      C_BOTH(fabs, unary, fabs),
      C_BOTH(copysign, binary, copysign),
      C_BOTH(fdim, binary, fdim),
      C_BOTH(fmax, binary, fmax),
      C_BOTH(fmin, binary, fmin),
      C_BOTH(modf, second, modf),
      C_BOTH(frexp, second_int, frexp),
      C_BOTH(ldexp, with_int, ldexp),
      C_BOTH(ilogb, to_int, ilogb),
      C_BOTH(logb, unary, logb),
      C_BOTH(nextafter, binary, nextafter),
      C_BOTH(fmod, binary, fmod),
      C_BOTH(remainder, binary, remainder),
      C_BOTH(remquo, binary_second_int, remquo),
      C_BOTH(fma, ternary, fma),
  };
  return rows;
}

template <std::size_t Size>
std::optional<peer> find(const row (&rows)[Size], std::string_view operation, accuracy bound) {
  for (const auto& r : rows)
    if (r.operation == operation && r.bound == bound) return r.function;
  return std::nullopt;
}

std::optional<peer> sleef(const operation& o, variant v) {
  const bool reduced = v == variant::native || v == variant::half;
  if (const auto found = find(sleef_rows(), o.name(), reduced ? accuracy::reduced : accuracy::full)) return found;
  return find(sleef_rows(), o.name(), accuracy::full);
}

std::optional<peer> c_library(const operation& o) { return find(c_library_rows(), o.name(), accuracy::full); }

std::vector<peer> inlined(const operation& o) {
  using finder = std::optional<peer> (*)(const operation&);
  std::vector<peer> found;
  for (const auto find : std::initializer_list<finder>{LANEMATH_INLINED_PEERS})
    if (const auto p = find(o)) found.push_back(*p);
  return found;
}

}  // namespace
}  // namespace lanemath::bench

#define FINDERS_OF(bytes) lanemath_benchmark_peers_##bytes
#define FINDERS(bytes) FINDERS_OF(bytes)
constinit const lanemath::bench::peer_finders FINDERS(LANEMATH_REGISTER_BYTES){
    lanemath::bench::sleef, lanemath::bench::c_library, lanemath::bench::plain, lanemath::bench::inlined};
