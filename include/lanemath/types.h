/* Lane types of lanemath, and the macros that declare its functions. Include <lanemath/lanemath.h>.
 *
 * lanemath_<type><width> is a vector of 2, 3, 4, 8 or 16 lanes of float, double, int, uint, long (64 bits) or
 * ulong, built with the vector extensions of GCC and Clang: the usual operators and v[i] work. A vector of three
 * has the size of a vector of four; the library ignores its last lane, and so should the caller. Vectors of more
 * than 16 bytes are aligned to 16, as malloc's memory is.
 *
 * The library takes vectors wider than 16 bytes in memory, whatever instructions the caller is compiled for. A
 * compiler that may use AVX would pass them in registers instead, so they cross the border as structures, and
 * each function is an inline wrapper that converts them.
 */
#ifndef LANEMATH_TYPES_H
#define LANEMATH_TYPES_H

#include <stdint.h>
#include <string.h>

#if !defined(__x86_64__) || !defined(__GNUC__)
#error "lanemath needs an x86-64 target and GCC, Clang or a compiler that is like them"
#endif

#define LANEMATH_WRAPPER static inline __attribute__((always_inline, unused))

/* Compilers warn that passing or returning a wide vector depends on AVX. Here nothing depends on it, because the
 * wrappers are always inlined. The warnings point at the caller's lines, so they are switched off there too. */
#ifndef __AVX512F__
#pragma GCC diagnostic ignored "-Wpsabi"
#endif

#ifdef __cplusplus
#define LANEMATH_BEGIN extern "C" {
#define LANEMATH_END }
#else
#define LANEMATH_BEGIN
#define LANEMATH_END
#endif

typedef int32_t lanemath_int;
typedef uint32_t lanemath_uint;
typedef int64_t lanemath_long;
typedef uint64_t lanemath_ulong;
typedef float lanemath_float;
typedef double lanemath_double;

LANEMATH_BEGIN

/* For each vector type: the type itself; lanemath_border_<type>, as it crosses the border; the conversions between
 * the two; and lanemath_<type>_pair, two vectors by value. */
#define LANEMATH_WAY(to, from, name) \
  LANEMATH_WRAPPER to name(from v) { \
    to r;                            \
    memcpy(&r, &v, sizeof r);        \
    return r;                        \
  }
#define LANEMATH_CROSSING(type)                                                 \
  typedef struct {                                                              \
    lanemath_##type first, second;                                              \
  } lanemath_##type##_pair;                                                     \
  typedef struct {                                                              \
    lanemath_border_##type first, second;                                       \
  } lanemath_border_##type##_pair;                                              \
  LANEMATH_WAY(lanemath_border_##type, lanemath_##type, lanemath_export_##type) \
  LANEMATH_WAY(lanemath_##type, lanemath_border_##type, lanemath_import_##type) \
  LANEMATH_WAY(lanemath_##type##_pair, lanemath_border_##type##_pair, lanemath_import_##type##_pair)

#define LANEMATH_SCALAR(type)                        \
  typedef lanemath_##type lanemath_##type##1;        \
  typedef lanemath_##type lanemath_border_##type##1; \
  LANEMATH_CROSSING(type##1)
#define LANEMATH_VECTOR(type, width, alignment)  \
  typedef lanemath_##type lanemath_##type##width \
      __attribute__((vector_size(width * sizeof(lanemath_##type)), aligned(alignment)));
#define LANEMATH_NARROW(type, width)                            \
  LANEMATH_VECTOR(type, width, width * sizeof(lanemath_##type)) \
  typedef lanemath_##type##width lanemath_border_##type##width; \
  LANEMATH_CROSSING(type##width)
#define LANEMATH_WIDE(type, width)                              \
  LANEMATH_VECTOR(type, width, 16)                              \
  typedef struct {                                              \
    lanemath_##type lane[width];                                \
  } __attribute__((aligned(16))) lanemath_border_##type##width; \
  LANEMATH_CROSSING(type##width)
#define LANEMATH_THREE(type)                     \
  typedef lanemath_##type##4 lanemath_##type##3; \
  typedef lanemath_##type##4_pair lanemath_##type##3_pair;

#define LANEMATH_TYPES_32(type) \
  LANEMATH_SCALAR(type)         \
  LANEMATH_NARROW(type, 2)      \
  LANEMATH_NARROW(type, 4)      \
  LANEMATH_WIDE(type, 8)        \
  LANEMATH_WIDE(type, 16)       \
  LANEMATH_THREE(type)
#define LANEMATH_TYPES_64(type) \
  LANEMATH_SCALAR(type)         \
  LANEMATH_NARROW(type, 2)      \
  LANEMATH_WIDE(type, 4)        \
  LANEMATH_WIDE(type, 8)        \
  LANEMATH_WIDE(type, 16)       \
  LANEMATH_THREE(type)

LANEMATH_TYPES_32(float)
LANEMATH_TYPES_32(int)
LANEMATH_TYPES_32(uint)
LANEMATH_TYPES_64(double)
LANEMATH_TYPES_64(long)
LANEMATH_TYPES_64(ulong)

LANEMATH_END

/* The shapes of functions. LANEMATH_DECLARE(shape, operation, variant, types...) declares the six widths of one
 * accuracy variant; the types are those of the result, the arguments and, if there is one, the second result. */
#define LANEMATH_SYMBOL(name) __ocl_lanemath_h8_##name

#define LANEMATH_UNARY(name, w, R, A)                                                \
  lanemath_border_##R##w LANEMATH_SYMBOL(name)(lanemath_border_##A##w);              \
  LANEMATH_WRAPPER lanemath_##R##w lanemath_##name(lanemath_##A##w x) {              \
    return lanemath_import_##R##w(LANEMATH_SYMBOL(name)(lanemath_export_##A##w(x))); \
  }
#define LANEMATH_BINARY(name, w, R, A, B)                                                                       \
  lanemath_border_##R##w LANEMATH_SYMBOL(name)(lanemath_border_##A##w, lanemath_border_##B##w);                 \
  LANEMATH_WRAPPER lanemath_##R##w lanemath_##name(lanemath_##A##w x, lanemath_##B##w y) {                      \
    return lanemath_import_##R##w(LANEMATH_SYMBOL(name)(lanemath_export_##A##w(x), lanemath_export_##B##w(y))); \
  }
#define LANEMATH_TERNARY(name, w, R, A, B, C)                                                                    \
  lanemath_border_##R##w LANEMATH_SYMBOL(name)(lanemath_border_##A##w, lanemath_border_##B##w,                   \
                                               lanemath_border_##C##w);                                          \
  LANEMATH_WRAPPER lanemath_##R##w lanemath_##name(lanemath_##A##w x, lanemath_##B##w y, lanemath_##C##w z) {    \
    return lanemath_import_##R##w(                                                                               \
        LANEMATH_SYMBOL(name)(lanemath_export_##A##w(x), lanemath_export_##B##w(y), lanemath_export_##C##w(z))); \
  }
#define LANEMATH_UNARY_POINTER(name, w, R, A, P)                                                    \
  lanemath_border_##R##w LANEMATH_SYMBOL(name)(lanemath_border_##A##w, void*);                      \
  LANEMATH_WRAPPER lanemath_##R##w lanemath_##name(lanemath_##A##w x, lanemath_##P##w* second) {    \
    return lanemath_import_##R##w(LANEMATH_SYMBOL(name)(lanemath_export_##A##w(x), (void*)second)); \
  }
#define LANEMATH_BINARY_POINTER(name, w, R, A, B, P)                                                                \
  lanemath_border_##R##w LANEMATH_SYMBOL(name)(lanemath_border_##A##w, lanemath_border_##B##w, void*);              \
  LANEMATH_WRAPPER lanemath_##R##w lanemath_##name(lanemath_##A##w x, lanemath_##B##w y, lanemath_##P##w* second) { \
    return lanemath_import_##R##w(                                                                                  \
        LANEMATH_SYMBOL(name)(lanemath_export_##A##w(x), lanemath_export_##B##w(y), (void*)second));                \
  }
#define LANEMATH_UNARY_PAIR(name, w, R, A)                                                  \
  lanemath_border_##R##w##_pair LANEMATH_SYMBOL(name)(lanemath_border_##A##w);              \
  LANEMATH_WRAPPER lanemath_##R##w##_pair lanemath_##name(lanemath_##A##w x) {              \
    return lanemath_import_##R##w##_pair(LANEMATH_SYMBOL(name)(lanemath_export_##A##w(x))); \
  }
#define LANEMATH_BINARY_PAIR(name, w, R, A, B)                                                                         \
  lanemath_border_##R##w##_pair LANEMATH_SYMBOL(name)(lanemath_border_##A##w, lanemath_border_##B##w);                 \
  LANEMATH_WRAPPER lanemath_##R##w##_pair lanemath_##name(lanemath_##A##w x, lanemath_##B##w y) {                      \
    return lanemath_import_##R##w##_pair(LANEMATH_SYMBOL(name)(lanemath_export_##A##w(x), lanemath_export_##B##w(y))); \
  }

/* clang-format off */
#define LANEMATH_DECLARE(shape, operation, variant, ...)    \
  LANEMATH_##shape(operation##1##variant, 1, __VA_ARGS__)   \
  LANEMATH_##shape(operation##2##variant, 2, __VA_ARGS__)   \
  LANEMATH_##shape(operation##3##variant, 4, __VA_ARGS__)   \
  LANEMATH_##shape(operation##4##variant, 4, __VA_ARGS__)   \
  LANEMATH_##shape(operation##8##variant, 8, __VA_ARGS__)   \
  LANEMATH_##shape(operation##16##variant, 16, __VA_ARGS__)
/* clang-format on */

#endif
