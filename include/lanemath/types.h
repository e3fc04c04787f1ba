/* What the declarations of lanemath are written with. Include <lanemath/lanemath.h>.
 *
 * lanemath_<type><width> is a vector of 2, 3, 4, 8 or 16 lanes of float, double, int, uint, long (64 bits) or
 * ulong, built with the vector extensions of GCC and Clang: the usual operators and v[i] work. A vector of three
 * has the size of a vector of four; the library ignores its last lane, and so should the caller. Vectors of more
 * than 16 bytes are aligned to 16, as malloc's memory is.
 *
 * A program that is compiled for AVX2 or AVX-512 and linked with the companion of that level says so by the macro
 * LANEMATH_LEVEL_AVX2 or LANEMATH_LEVEL_AVX512, as the CMake targets lanemath::avx2 and lanemath::avx512 and the
 * pkg-config modules lanemath-avx2 and lanemath-avx512 do. Its functions with wide vectors, of more than 16 bytes, then
 * are the companion's, which takes them in registers as far as the level's registers are large enough.
 *
 * A function without such a wide vector is declared under its name in the library. The library takes wide vectors in
 * memory, whatever instructions the caller is compiled for. A compiler that may use AVX would pass them in registers,
 * so they cross the border as structures, and their functions are inline.
 *
 * Compilers warn about a call, even an inlined one, that passes a vector wider than the instructions that are switched
 * on: between functions that are compiled differently it would fail. So each inline function is also a macro that
 * passes none. Like the C library's, it steps aside for (lanemath_expf8)(x), which may also stand outside of functions.
 */
#ifndef LANEMATH_TYPES_H
#define LANEMATH_TYPES_H

#include <stddef.h>
#include <stdint.h>
#include <string.h>

#if !defined(__x86_64__) || !defined(__GNUC__)
#error "lanemath needs an x86-64 target and GCC, Clang or a compiler that is like them"
#endif

/* Whatever warnings the caller asks for, none is about the text of these headers. */
#pragma GCC system_header

#define LANEMATH_INLINE static inline __attribute__((always_inline, unused))
#define LANEMATH_NAMED(name) __asm__("__ocl_lanemath_h8_" name)

#ifdef __cplusplus
#define LANEMATH_BEGIN extern "C" {
#define LANEMATH_END }
#else
#define LANEMATH_BEGIN
#define LANEMATH_END
#endif

#if defined(LANEMATH_LEVEL_AVX512)
#if !defined(__AVX512F__) || !defined(__AVX512VL__) || !defined(__AVX512DQ__) || !defined(__AVX512BW__)
#error "LANEMATH_LEVEL_AVX512 is for programs compiled with -mavx512f -mavx512vl -mavx512dq -mavx512bw, or more"
#endif
#define LANEMATH_REGISTERS 64 /* bytes that cross in a register */
#define LANEMATH_NAMED_WIDE(name) __asm__("lanemath_avx512_" name)
#elif defined(LANEMATH_LEVEL_AVX2)
#if !defined(__AVX2__)
#error "LANEMATH_LEVEL_AVX2 is for programs compiled with -mavx2, or more"
#endif
#define LANEMATH_REGISTERS 32
#define LANEMATH_NAMED_WIDE(name) __asm__("lanemath_avx2_" name)
#else
#define LANEMATH_REGISTERS 16
#define LANEMATH_NAMED_WIDE(name) LANEMATH_NAMED(name)
#endif

LANEMATH_BEGIN

/* The version of lanemath that the companion was built from. */
#if LANEMATH_REGISTERS == 64
const char* lanemath_avx512_version(void);
#elif LANEMATH_REGISTERS == 32
const char* lanemath_avx2_version(void);
#endif

typedef int32_t lanemath_int;
typedef uint32_t lanemath_uint;
typedef int64_t lanemath_long;
typedef uint64_t lanemath_ulong;
typedef float lanemath_float;
typedef double lanemath_double;

/* Copies a vector that was just stored in pieces of 16 bytes, as the library stores its results. A wider load, whose
 * bytes are in several such stores, would have to wait until all of them have reached the cache. So a caller with wider
 * registers loads pieces and joins them. */
typedef double lanemath_piece16 __attribute__((vector_size(16), aligned(1), may_alias));
#if defined(__AVX__) && defined(__has_builtin)
#if __has_builtin(__builtin_shufflevector)
#define LANEMATH_JOINS /* GCC does so from 12 on. */
typedef double lanemath_piece32 __attribute__((vector_size(32), aligned(1), may_alias));
typedef double lanemath_piece64 __attribute__((vector_size(64), aligned(1), may_alias));

LANEMATH_INLINE lanemath_piece32 lanemath_join32(const char* from) {
  lanemath_piece16 low = *(const lanemath_piece16*)from, high = *(const lanemath_piece16*)(from + 16);
  __asm__("" : "+x"(low), "+x"(high)); /* Clang would load both at once. */
  return __builtin_shufflevector(low, high, 0, 1, 2, 3);
}
LANEMATH_INLINE void lanemath_join64(char* to, const char* from) {
  const lanemath_piece32 low = lanemath_join32(from), high = lanemath_join32(from + 32);
#ifdef __AVX512F__
  *(lanemath_piece64*)to = __builtin_shufflevector(low, high, 0, 1, 2, 3, 4, 5, 6, 7);
#else
  *(lanemath_piece32*)to = low;
  *(lanemath_piece32*)(to + 32) = high;
#endif
}
#endif
#endif

/* For 8 bytes to 128. */
LANEMATH_INLINE void lanemath_join(void* to, const void* from, size_t bytes) {
#ifdef LANEMATH_JOINS
  char* const t = (char*)to;
  const char* const f = (const char*)from;
  if (bytes == 32) *(lanemath_piece32*)t = lanemath_join32(f);
  if (bytes >= 64) lanemath_join64(t, f);
  if (bytes == 128) lanemath_join64(t + 64, f + 64);
  if (bytes >= 32) return;
#endif
  memcpy(to, from, bytes);
}

/* What crossed the border of the library, or of what serves wide vectors: a companion stores whole registers. */
LANEMATH_INLINE void lanemath_border_join(void* to, const void* from, size_t bytes) { lanemath_join(to, from, bytes); }
LANEMATH_INLINE void lanemath_wide_join(void* to, const void* from, size_t bytes) {
#if LANEMATH_REGISTERS > 16
  memcpy(to, from, bytes);
#else
  lanemath_join(to, from, bytes);
#endif
}

LANEMATH_END

/* Calls of functions with wide vectors, and the loading, storing and filling of these, as expressions. The types are
 * those of the result, of the arguments, and of what the pointer points to; they cross as lanemath_border_<type> to the
 * library or as lanemath_wide_<type> to what serves wide vectors. */
#ifdef __AVX__
#define LANEMATH_VALUE(border, name, T, value) \
  border##_##T name;                           \
  *(lanemath_alias_##T*)&name = (value)
#else /* where GCC makes better code of this */
#define LANEMATH_VALUE(border, name, T, value) \
  const lanemath_##T name##_given = (value);   \
  border##_##T name;                           \
  memcpy(&name, &name##_given, sizeof name)
#endif
#define LANEMATH_CALL(border, R, call)                         \
  const border##_##R lanemath_returned = lanemath_call_##call; \
  lanemath_##R lanemath_result;                                \
  border##_join(&lanemath_result, &lanemath_returned, sizeof lanemath_result)

#define LANEMATH_UNARY(border, name, R, A, x)   \
  __extension__({                               \
    LANEMATH_VALUE(border, lanemath_x, A, x);   \
    LANEMATH_CALL(border, R, name(lanemath_x)); \
    lanemath_result;                            \
  })
#define LANEMATH_BINARY(border, name, R, A, B, x, y)        \
  __extension__({                                           \
    LANEMATH_VALUE(border, lanemath_x, A, x);               \
    LANEMATH_VALUE(border, lanemath_y, B, y);               \
    LANEMATH_CALL(border, R, name(lanemath_x, lanemath_y)); \
    lanemath_result;                                        \
  })
#define LANEMATH_TERNARY(border, name, R, A, B, C, x, y, z)             \
  __extension__({                                                       \
    LANEMATH_VALUE(border, lanemath_x, A, x);                           \
    LANEMATH_VALUE(border, lanemath_y, B, y);                           \
    LANEMATH_VALUE(border, lanemath_z, C, z);                           \
    LANEMATH_CALL(border, R, name(lanemath_x, lanemath_y, lanemath_z)); \
    lanemath_result;                                                    \
  })
#define LANEMATH_UNARY_POINTER(border, name, R, A, P, x, second) \
  __extension__({                                                \
    LANEMATH_VALUE(border, lanemath_x, A, x);                    \
    lanemath_##P* const lanemath_second = (second);              \
    LANEMATH_CALL(border, R, name(lanemath_x, lanemath_second)); \
    lanemath_result;                                             \
  })
#define LANEMATH_BINARY_POINTER(border, name, R, A, B, P, x, y, second)      \
  __extension__({                                                            \
    LANEMATH_VALUE(border, lanemath_x, A, x);                                \
    LANEMATH_VALUE(border, lanemath_y, B, y);                                \
    lanemath_##P* const lanemath_second = (second);                          \
    LANEMATH_CALL(border, R, name(lanemath_x, lanemath_y, lanemath_second)); \
    lanemath_result;                                                         \
  })
/* Both results of the pair are of type R. */
#define LANEMATH_PAIR_CALL(border, R, call)                                                      \
  const border##_##R##_pair lanemath_returned = lanemath_call_##call;                            \
  lanemath_##R##_pair lanemath_result;                                                           \
  border##_join(&lanemath_result.first, &lanemath_returned.first, sizeof lanemath_result.first); \
  border##_join(&lanemath_result.second, &lanemath_returned.second, sizeof lanemath_result.second)
#define LANEMATH_UNARY_PAIR(border, name, R, A, x)   \
  __extension__({                                    \
    LANEMATH_VALUE(border, lanemath_x, A, x);        \
    LANEMATH_PAIR_CALL(border, R, name(lanemath_x)); \
    lanemath_result;                                 \
  })
#define LANEMATH_BINARY_PAIR(border, name, R, A, B, x, y)        \
  __extension__({                                                \
    LANEMATH_VALUE(border, lanemath_x, A, x);                    \
    LANEMATH_VALUE(border, lanemath_y, B, y);                    \
    LANEMATH_PAIR_CALL(border, R, name(lanemath_x, lanemath_y)); \
    lanemath_result;                                             \
  })

#define LANEMATH_LOAD(lane, type, from)                              \
  __extension__({                                                    \
    const lanemath_##lane* const lanemath_from = (from);             \
    (lanemath_##type) * (const lanemath_alias_##type*)lanemath_from; \
  })
#define LANEMATH_STORE(lane, type, to, v)       \
  __extension__({                               \
    lanemath_##lane* const lanemath_to = (to);  \
    *(lanemath_alias_##type*)lanemath_to = (v); \
    (void)0;                                    \
  })
/* Three lanes of 64 bits. */
#define LANEMATH_LOAD_THREE(lane, from)                                                    \
  __extension__({                                                                          \
    const lanemath_##lane* const lanemath_from = (from);                                   \
    lanemath_##lane##2 lanemath_parts[2] = {{0, 0}, {lanemath_from[2], lanemath_from[2]}}; \
    memcpy(&lanemath_parts[0], lanemath_from, sizeof lanemath_parts[0]);                   \
    lanemath_##lane##3 lanemath_result;                                                    \
    lanemath_join(&lanemath_result, lanemath_parts, sizeof lanemath_result);               \
    lanemath_result;                                                                       \
  })
#define LANEMATH_STORE_THREE(lane, to, v)                                                                    \
  __extension__({                                                                                            \
    lanemath_##lane* const lanemath_to = (to);                                                               \
    const lanemath_##lane##3 lanemath_v = (v);                                                               \
    for (int lanemath_i = 0; lanemath_i < 3; ++lanemath_i) lanemath_to[lanemath_i] = lanemath_v[lanemath_i]; \
  })
/* From a filled vector of 16 bytes. */
#define LANEMATH_FILL(part, type, value)                                                 \
  __extension__({                                                                        \
    const lanemath_##part lanemath_part = (value);                                       \
    lanemath_##part lanemath_parts[sizeof(lanemath_##type) / 16];                        \
    for (size_t lanemath_i = 0; lanemath_i < sizeof(lanemath_##type) / 16; ++lanemath_i) \
      lanemath_parts[lanemath_i] = lanemath_part;                                        \
    lanemath_##type lanemath_result;                                                     \
    lanemath_join(&lanemath_result, lanemath_parts, sizeof lanemath_result);             \
    lanemath_result;                                                                     \
  })

#include <lanemath/vectors.h>

#endif
