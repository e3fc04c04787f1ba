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
constexpr int lanes_in = std::is_same_v<A, __m128>    ? 4
                         : std::is_same_v<A, __m128d> ? 2
                                                      : 1;

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
#define SLEEF_FUNCTION(operation, accuracy, name) \
  { operation, accuracy, peer_of(#name, name) }
#define SLEEF_BOTH(operation, accuracy, stem, bound)              \
  SLEEF_FUNCTION(#operation, accuracy, Sleef_##stem##d2_##bound), \
      SLEEF_FUNCTION(#operation "f", accuracy, Sleef_##stem##f4_##bound)
#define SLEEF(operation, stem, bound) SLEEF_BOTH(operation, accuracy::full, stem, bound)
#define SLEEF_REDUCED(operation, stem, bound) SLEEF_BOTH(operation, accuracy::reduced, stem, bound)

const row sleef_rows[] = {
    SLEEF(exp, exp, u10sse4),
    SLEEF(exp2, exp2, u10sse4),
    SLEEF_REDUCED(exp2, exp2, u35sse4),
    SLEEF(exp10, exp10, u10sse4),
    SLEEF_REDUCED(exp10, exp10, u35sse4),
    SLEEF(expm1, expm1, u10sse4),

    SLEEF(log, log, u10sse4),
    SLEEF_REDUCED(log, log, u35sse4),
    SLEEF(log2, log2, u10sse4),
    SLEEF_REDUCED(log2, log2, u35sse4),
    SLEEF(log10, log10, u10sse4),
    SLEEF(log1p, log1p, u10sse4),

    SLEEF(pow, pow, u10sse4),
    SLEEF_FUNCTION("powf", accuracy::reduced, Sleef_fastpowf4_u3500sse4),
    SLEEF(powr, pow, u10sse4),
    SLEEF_FUNCTION("powrf", accuracy::reduced, Sleef_fastpowf4_u3500sse4),

    SLEEF(sin, sin, u10sse4),
    SLEEF_REDUCED(sin, sin, u35sse4),
    SLEEF(cos, cos, u10sse4),
    SLEEF_REDUCED(cos, cos, u35sse4),
    SLEEF(sincos, sincos, u10sse4),
    SLEEF_REDUCED(sincos, sincos, u35sse4),
    SLEEF(sincosreg, sincos, u10sse4),
    SLEEF_REDUCED(sincosreg, sincos, u35sse4),
    SLEEF(tan, tan, u10sse4),
    SLEEF_REDUCED(tan, tan, u35sse4),
    SLEEF(sinpi, sinpi, u05sse4),
    SLEEF(cospi, cospi, u05sse4),

    SLEEF(asin, asin, u10sse4),
    SLEEF_REDUCED(asin, asin, u35sse4),
    SLEEF(acos, acos, u10sse4),
    SLEEF_REDUCED(acos, acos, u35sse4),
    SLEEF(atan, atan, u10sse4),
    SLEEF_REDUCED(atan, atan, u35sse4),
    SLEEF(atan2, atan2, u10sse4),
    SLEEF_REDUCED(atan2, atan2, u35sse4),

    SLEEF(sinh, sinh, u10sse4),
    SLEEF_REDUCED(sinh, sinh, u35sse4),
    SLEEF(cosh, cosh, u10sse4),
    SLEEF_REDUCED(cosh, cosh, u35sse4),
    SLEEF(tanh, tanh, u10sse4),
    SLEEF_REDUCED(tanh, tanh, u35sse4),
    SLEEF(asinh, asinh, u10sse4),
    SLEEF(acosh, acosh, u10sse4),
    SLEEF(atanh, atanh, u10sse4),

    SLEEF(sqrt, sqrt, u05sse4),
    SLEEF_REDUCED(sqrt, sqrt, u35sse4),
    SLEEF(cbrt, cbrt, u10sse4),
    SLEEF_REDUCED(cbrt, cbrt, u35sse4),
    SLEEF(hypot, hypot, u05sse4),
    SLEEF_REDUCED(hypot, hypot, u35sse4),

    SLEEF(erf, erf, u10sse4),
    SLEEF(erfc, erfc, u15sse4),
    SLEEF(lgamma, lgamma, u10sse4),
    SLEEF(tgamma, tgamma, u10sse4),

    SLEEF(ceil, ceil, sse4),
    SLEEF(floor, floor, sse4),
    SLEEF(trunc, trunc, sse4),
    SLEEF(rint, rint, sse4),
    SLEEF(round, round, sse4),
    SLEEF(fabs, fabs, sse4),
    SLEEF(copysign, copysign, sse4),
    SLEEF(fdim, fdim, sse4),
    SLEEF(fmax, fmax, sse4),
    SLEEF(fmin, fmin, sse4),
    SLEEF(modf, modf, sse4),
    SLEEF(nextafter, nextafter, sse4),
    SLEEF(fmod, fmod, sse4),
    SLEEF(remainder, remainder, sse4),
    SLEEF(fma, fma, sse4),
};

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

const row c_library_rows[] = {
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

template <std::size_t Size>
std::optional<peer> find(const row (&rows)[Size], std::string_view operation, accuracy bound) {
  for (const auto& r : rows)
    if (r.operation == operation && r.bound == bound) return r.function;
  return std::nullopt;
}

}  // namespace

std::optional<peer> sleef(const operation& o, variant v) {
  const bool reduced = v == variant::native || v == variant::half;
  if (const auto found = find(sleef_rows, o.name(), reduced ? accuracy::reduced : accuracy::full)) return found;
  return find(sleef_rows, o.name(), accuracy::full);
}

std::optional<peer> c_library(const operation& o) { return find(c_library_rows, o.name(), accuracy::full); }

std::vector<peer> inlined(const operation& o) {
  using finder = std::optional<peer> (*)(const operation&);
  std::vector<peer> found;
  for (const auto find : std::initializer_list<finder>{LANEMATH_INLINED_PEERS})
    if (const auto p = find(o)) found.push_back(*p);
  return found;
}

}  // namespace lanemath::bench
