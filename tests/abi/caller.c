/* A caller of the public header, as a user would write it: every signature shape at every width. The tests build it
 * with several compilers and instruction sets and compare what it gets with what the functions return. */
#include <lanemath/lanemath.h>

#define EXPORT __attribute__((visibility("default")))

/* Loads and stores that require no alignment. */
#define GET(type, from)         \
  lanemath_##type from##_value; \
  memcpy(&from##_value, from, sizeof from##_value)
#define PUT(to, value) memcpy(to, &value, sizeof value)

#define CALL_UNARY(name, w, R, A)                                                          \
  EXPORT void call_##name(const void* x, const void* y, const void* z, void* r, void* s) { \
    (void)y, (void)z, (void)s;                                                             \
    GET(A##w, x);                                                                          \
    const lanemath_##R##w result = lanemath_##name(x_value);                               \
    PUT(r, result);                                                                        \
  }
#define CALL_BINARY(name, w, R, A, B)                                                      \
  EXPORT void call_##name(const void* x, const void* y, const void* z, void* r, void* s) { \
    (void)z, (void)s;                                                                      \
    GET(A##w, x);                                                                          \
    GET(B##w, y);                                                                          \
    const lanemath_##R##w result = lanemath_##name(x_value, y_value);                      \
    PUT(r, result);                                                                        \
  }
#define CALL_TERNARY(name, w, R, A, B, C)                                                  \
  EXPORT void call_##name(const void* x, const void* y, const void* z, void* r, void* s) { \
    (void)s;                                                                               \
    GET(A##w, x);                                                                          \
    GET(B##w, y);                                                                          \
    GET(C##w, z);                                                                          \
    const lanemath_##R##w result = lanemath_##name(x_value, y_value, z_value);             \
    PUT(r, result);                                                                        \
  }
#define CALL_UNARY_POINTER(name, w, R, A, P)                                               \
  EXPORT void call_##name(const void* x, const void* y, const void* z, void* r, void* s) { \
    (void)y, (void)z;                                                                      \
    GET(A##w, x);                                                                          \
    lanemath_##P##w second;                                                                \
    const lanemath_##R##w result = lanemath_##name(x_value, &second);                      \
    PUT(r, result);                                                                        \
    PUT(s, second);                                                                        \
  }
#define CALL_BINARY_POINTER(name, w, R, A, B, P)                                           \
  EXPORT void call_##name(const void* x, const void* y, const void* z, void* r, void* s) { \
    (void)z;                                                                               \
    GET(A##w, x);                                                                          \
    GET(B##w, y);                                                                          \
    lanemath_##P##w second;                                                                \
    const lanemath_##R##w result = lanemath_##name(x_value, y_value, &second);             \
    PUT(r, result);                                                                        \
    PUT(s, second);                                                                        \
  }
#define CALL_UNARY_PAIR(name, w, R, A)                                                     \
  EXPORT void call_##name(const void* x, const void* y, const void* z, void* r, void* s) { \
    (void)y, (void)z;                                                                      \
    GET(A##w, x);                                                                          \
    const lanemath_##R##w##_pair both = lanemath_##name(x_value);                          \
    PUT(r, both.first);                                                                    \
    PUT(s, both.second);                                                                   \
  }
#define CALL_BINARY_PAIR(name, w, R, A, B)                                                 \
  EXPORT void call_##name(const void* x, const void* y, const void* z, void* r, void* s) { \
    (void)z;                                                                               \
    GET(A##w, x);                                                                          \
    GET(B##w, y);                                                                          \
    const lanemath_##R##w##_pair both = lanemath_##name(x_value, y_value);                 \
    PUT(r, both.first);                                                                    \
    PUT(s, both.second);                                                                   \
  }

#define CALL(shape, operation, ...)                                                         \
  CALL_##shape(operation##1, 1, __VA_ARGS__) CALL_##shape(operation##2, 2, __VA_ARGS__)     \
      CALL_##shape(operation##3, 3, __VA_ARGS__) CALL_##shape(operation##4, 4, __VA_ARGS__) \
          CALL_##shape(operation##8, 8, __VA_ARGS__) CALL_##shape(operation##16, 16, __VA_ARGS__)

CALL(UNARY, expf, float, float)
CALL(UNARY, expm1, double, double)
CALL(BINARY, powf, float, float, float)
CALL(BINARY, pow, double, double, double)
CALL(TERNARY, fmaf, float, float, float, float)
CALL(TERNARY, fma, double, double, double, double)
CALL(BINARY, ldexpf, float, float, int)
CALL(BINARY, ldexp, double, double, int)
CALL(UNARY, ilogb, int, double)
CALL(UNARY_POINTER, sincosf, float, float, float)
CALL(UNARY_POINTER, sincos, double, double, double)
CALL(UNARY_POINTER, frexp, double, double, int)
CALL(BINARY_POINTER, remquo, double, double, double, int)
CALL(UNARY_PAIR, sincosregf, float, float)
CALL(UNARY_PAIR, sincosreg, double, double)
CALL(BINARY_PAIR, idivrem, int, int, int)
CALL(BINARY_PAIR, udivrem, uint, uint, uint)
CALL(UNARY, nan, double, ulong)
CALL(UNARY, cvtfptoi64rtesatf, long, float)
CALL(UNARY, cvti64tofprtef, float, long)
CALL(UNARY, cvti32tofprte, double, int)
CALL(UNARY, cvtfp64tofp32rte, float, double)

/* Loading, storing and filling. */
#define ACCESS(type, width)                                                                      \
  EXPORT void copy_##type##width(const void* from, void* to) {                                   \
    const lanemath_##type##width v = lanemath_load_##type##width((const lanemath_##type*)from);  \
    lanemath_store_##type##width((lanemath_##type*)to, v);                                       \
  }                                                                                              \
  EXPORT void fill_##type##width(const void* from, void* to) {                                   \
    const lanemath_##type##width v = lanemath_fill_##type##width(*(const lanemath_##type*)from); \
    lanemath_store_##type##width((lanemath_##type*)to, v);                                       \
  }
#define ACCESS_ALL(type) \
  ACCESS(type, 1) ACCESS(type, 2) ACCESS(type, 3) ACCESS(type, 4) ACCESS(type, 8) ACCESS(type, 16)

ACCESS_ALL(float)
ACCESS_ALL(double)
ACCESS_ALL(int)
ACCESS_ALL(uint)
ACCESS_ALL(long)
ACCESS_ALL(ulong)
