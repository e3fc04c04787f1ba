// sin x, single precision.
//
// x = N pi + r with pi in pieces (four, or three in the native form), and an odd polynomial in r. Above 10000,
// reduction by a window of 1 / (2 pi) and a table of 256 steps in a turn.
//
// Largest errors found, in ulp:
//   sinf: default 2.58117; _native, _half, _rm 2524.73
#include "trig/sine_single.h"

namespace lanemath {
namespace {

constexpr float sinf_c[] = {0x362EDEF8_f32, 0xB94FB7FF_f32, 0x3C088766_f32, 0xBE2AAAA6_f32};
constexpr float sinf_native_c[] = {0x3BF84524_f32, 0xBE29E72F_f32, 0x3F7FF87C_f32};

template <auto& Pi, auto& C>
struct sinf_form : single_guards<sine_rare<float>, 0> {
  template <class V>
  static V kernel(V x) {
    return sine<Pi, C>(x);
  }
};

}  // namespace

using sinf_standard = sinf_form<pi_single, sinf_c>;
using sinf_native = sinf_form<native_pi_single, sinf_native_c>;
LANEMATH_EXPORT(sinf, sinf_standard)
LANEMATH_EXPORT(sinf, sinf_native, _native)
LANEMATH_SAME(sinf, _native, _half)
LANEMATH_SAME(sinf, _native, _rm)

}  // namespace lanemath
