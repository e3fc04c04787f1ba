// The level of the processor's instructions that kernels are compiled for, told by the size of its registers:
//
//   16  SSE4.1: the library itself
//   32  AVX2: the companion lanemath_avx2
//   64  AVX-512 with VL, DQ and BW: the companion lanemath_avx512
//
// instructions<Bytes> are those that work on a whole register of this size; a level has the smaller ones too. Nothing
// outside of this header and its parts depends on the level but by `register_bytes`.
#pragma once

#define LANEMATH_INLINE [[gnu::always_inline]] inline
#define LANEMATH_LAMBDA __attribute__((always_inline))

#ifndef LANEMATH_REGISTER_BYTES
#define LANEMATH_REGISTER_BYTES 16
#endif

namespace lanemath {

inline constexpr int register_bytes = LANEMATH_REGISTER_BYTES;

template <int Bytes>
struct instructions;

}  // namespace lanemath

#include "frame/level_sse41.h"
#if LANEMATH_REGISTER_BYTES >= 32
#include "frame/level_avx2.h"
#endif
#if LANEMATH_REGISTER_BYTES >= 64
#include "frame/level_avx512.h"
#endif

// The name that a function is exported under, and an instruction whose result replaces its first operand. The prefixes
// keep assemblers from exchanging the operands for a shorter encoding: the first one's NaN survives.
#if LANEMATH_REGISTER_BYTES == 16
#define LANEMATH_SYMBOL(name) __ocl_lanemath_h8_##name
#define LANEMATH_REPLACING(mnemonic) mnemonic " %1, %0"
#elif LANEMATH_REGISTER_BYTES == 32
#define LANEMATH_SYMBOL(name) lanemath_avx2_##name
#define LANEMATH_REPLACING(mnemonic) "%{vex3%} v" mnemonic " %1, %0, %0"
#else
#define LANEMATH_SYMBOL(name) lanemath_avx512_##name
#define LANEMATH_REPLACING(mnemonic) "%{evex%} v" mnemonic " %1, %0, %0"
#endif
