/* Vector types, and what loads, stores and fills them. Loading three lanes reads three, and repeats the last as the
 * fourth; storing writes three.
 *
 * lanemath_<type>_pair holds two vectors. lanemath_border_<type> is how a type crosses the library's border,
 * lanemath_wide_<type> how it crosses to what serves wide vectors, and lanemath_alias_<type> is a vector anywhere in
 * memory. */
#ifndef LANEMATH_VECTORS_H
#define LANEMATH_VECTORS_H

#include <lanemath/types.h>

#pragma GCC system_header

LANEMATH_BEGIN

/** One float. */
typedef lanemath_float lanemath_float1;
typedef lanemath_float1 lanemath_border_float1;
typedef struct {
  lanemath_float1 first, second;
} lanemath_float1_pair;
typedef struct {
  lanemath_border_float1 first, second;
} lanemath_border_float1_pair;
/** 2 lanes of float. */
typedef lanemath_float lanemath_float2 __attribute__((vector_size(8), aligned(8)));
typedef lanemath_float lanemath_alias_float2 __attribute__((vector_size(8), aligned(1), may_alias));
typedef lanemath_float2 lanemath_border_float2;
typedef struct {
  lanemath_float2 first, second;
} lanemath_float2_pair;
typedef struct {
  lanemath_border_float2 first, second;
} lanemath_border_float2_pair;
typedef lanemath_float2 lanemath_wide_float2;
/** 4 lanes of float. */
typedef lanemath_float lanemath_float4 __attribute__((vector_size(16), aligned(16)));
typedef lanemath_float lanemath_alias_float4 __attribute__((vector_size(16), aligned(1), may_alias));
typedef lanemath_float4 lanemath_border_float4;
typedef struct {
  lanemath_float4 first, second;
} lanemath_float4_pair;
typedef struct {
  lanemath_border_float4 first, second;
} lanemath_border_float4_pair;
typedef lanemath_float4 lanemath_wide_float4;
/** 3 lanes of float, with the room of four. */
typedef lanemath_float lanemath_float3 __attribute__((vector_size(16), aligned(16)));
typedef lanemath_float lanemath_alias_float3 __attribute__((vector_size(16), aligned(1), may_alias));
typedef lanemath_float4_pair lanemath_float3_pair;
typedef lanemath_border_float4 lanemath_border_float3;
typedef lanemath_border_float4_pair lanemath_border_float3_pair;
/** 8 lanes of float. */
typedef lanemath_float lanemath_float8 __attribute__((vector_size(32), aligned(16)));
typedef lanemath_float lanemath_alias_float8 __attribute__((vector_size(32), aligned(1), may_alias));
typedef struct {
  lanemath_float lane[8];
} __attribute__((aligned(16), may_alias)) lanemath_border_float8;
typedef struct {
  lanemath_float8 first, second;
} lanemath_float8_pair;
typedef struct {
  lanemath_border_float8 first, second;
} lanemath_border_float8_pair;
#if LANEMATH_REGISTERS >= 32
typedef lanemath_float lanemath_wide_float8 __attribute__((vector_size(32)));
#else
typedef lanemath_border_float8 lanemath_wide_float8;
#endif
typedef struct {
  lanemath_wide_float8 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_float8_pair;
/** 16 lanes of float. */
typedef lanemath_float lanemath_float16 __attribute__((vector_size(64), aligned(16)));
typedef lanemath_float lanemath_alias_float16 __attribute__((vector_size(64), aligned(1), may_alias));
typedef struct {
  lanemath_float lane[16];
} __attribute__((aligned(16), may_alias)) lanemath_border_float16;
typedef struct {
  lanemath_float16 first, second;
} lanemath_float16_pair;
typedef struct {
  lanemath_border_float16 first, second;
} lanemath_border_float16_pair;
#if LANEMATH_REGISTERS >= 64
typedef lanemath_float lanemath_wide_float16 __attribute__((vector_size(64)));
#elif LANEMATH_REGISTERS > 16
typedef struct {
  lanemath_float lane[16];
} __attribute__((aligned(LANEMATH_REGISTERS), may_alias)) lanemath_wide_float16;
#else
typedef lanemath_border_float16 lanemath_wide_float16;
#endif
typedef struct {
  lanemath_wide_float16 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_float16_pair;
/** Reads one float from memory of any alignment. */
LANEMATH_INLINE lanemath_float1 lanemath_load_float1(const lanemath_float* from) {
  lanemath_float1 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes one float to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_float1(lanemath_float* to, lanemath_float1 v) {
  memcpy(to, &v, sizeof v);
}
/** One float, all of them x. */
LANEMATH_INLINE lanemath_float1 lanemath_fill_float1(lanemath_float x) {
  return x;
}
/** Reads 2 lanes of float from memory of any alignment. */
LANEMATH_INLINE lanemath_float2 lanemath_load_float2(const lanemath_float* from) {
  lanemath_float2 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes 2 lanes of float to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_float2(lanemath_float* to, lanemath_float2 v) {
  memcpy(to, &v, sizeof v);
}
/** 2 lanes of float, all of them x. */
LANEMATH_INLINE lanemath_float2 lanemath_fill_float2(lanemath_float x) {
  const lanemath_float2 v = {x, x};
  return v;
}
/** Reads 3 lanes of float from memory of any alignment. */
LANEMATH_INLINE lanemath_float3 lanemath_load_float3(const lanemath_float* from) {
  const lanemath_float3 v = {from[0], from[1], from[2], from[2]};
  return v;
}
/** Writes 3 lanes of float to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_float3(lanemath_float* to, lanemath_float3 v) {
  to[0] = v[0];
  to[1] = v[1];
  to[2] = v[2];
}
/** 3 lanes of float, all of them x. */
LANEMATH_INLINE lanemath_float3 lanemath_fill_float3(lanemath_float x) {
  const lanemath_float3 v = {x, x, x, x};
  return v;
}
/** Reads 4 lanes of float from memory of any alignment. */
LANEMATH_INLINE lanemath_float4 lanemath_load_float4(const lanemath_float* from) {
  lanemath_float4 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes 4 lanes of float to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_float4(lanemath_float* to, lanemath_float4 v) {
  memcpy(to, &v, sizeof v);
}
/** 4 lanes of float, all of them x. */
LANEMATH_INLINE lanemath_float4 lanemath_fill_float4(lanemath_float x) {
  const lanemath_float4 v = {x, x, x, x};
  return v;
}
/** Reads 8 lanes of float from memory of any alignment. */
LANEMATH_INLINE lanemath_float8 lanemath_load_float8(const lanemath_float* from) {
  return LANEMATH_LOAD(float, float8, from);
}
#define lanemath_load_float8(from) LANEMATH_LOAD(float, float8, from)
/** Writes 8 lanes of float to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_float8(lanemath_float* to, lanemath_float8 v) {
  LANEMATH_STORE(float, float8, to, v);
}
#define lanemath_store_float8(to, v) LANEMATH_STORE(float, float8, to, v)
/** 8 lanes of float, all of them x. */
LANEMATH_INLINE lanemath_float8 lanemath_fill_float8(lanemath_float x) {
  return LANEMATH_FILL(float4, float8, lanemath_fill_float4(x));
}
#define lanemath_fill_float8(x) LANEMATH_FILL(float4, float8, lanemath_fill_float4(x))
/** Reads 16 lanes of float from memory of any alignment. */
LANEMATH_INLINE lanemath_float16 lanemath_load_float16(const lanemath_float* from) {
  return LANEMATH_LOAD(float, float16, from);
}
#define lanemath_load_float16(from) LANEMATH_LOAD(float, float16, from)
/** Writes 16 lanes of float to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_float16(lanemath_float* to, lanemath_float16 v) {
  LANEMATH_STORE(float, float16, to, v);
}
#define lanemath_store_float16(to, v) LANEMATH_STORE(float, float16, to, v)
/** 16 lanes of float, all of them x. */
LANEMATH_INLINE lanemath_float16 lanemath_fill_float16(lanemath_float x) {
  return LANEMATH_FILL(float4, float16, lanemath_fill_float4(x));
}
#define lanemath_fill_float16(x) LANEMATH_FILL(float4, float16, lanemath_fill_float4(x))

/** One double. */
typedef lanemath_double lanemath_double1;
typedef lanemath_double1 lanemath_border_double1;
typedef struct {
  lanemath_double1 first, second;
} lanemath_double1_pair;
typedef struct {
  lanemath_border_double1 first, second;
} lanemath_border_double1_pair;
/** 2 lanes of double. */
typedef lanemath_double lanemath_double2 __attribute__((vector_size(16), aligned(16)));
typedef lanemath_double lanemath_alias_double2 __attribute__((vector_size(16), aligned(1), may_alias));
typedef lanemath_double2 lanemath_border_double2;
typedef struct {
  lanemath_double2 first, second;
} lanemath_double2_pair;
typedef struct {
  lanemath_border_double2 first, second;
} lanemath_border_double2_pair;
typedef lanemath_double2 lanemath_wide_double2;
/** 4 lanes of double. */
typedef lanemath_double lanemath_double4 __attribute__((vector_size(32), aligned(16)));
typedef lanemath_double lanemath_alias_double4 __attribute__((vector_size(32), aligned(1), may_alias));
typedef struct {
  lanemath_double lane[4];
} __attribute__((aligned(16), may_alias)) lanemath_border_double4;
typedef struct {
  lanemath_double4 first, second;
} lanemath_double4_pair;
typedef struct {
  lanemath_border_double4 first, second;
} lanemath_border_double4_pair;
#if LANEMATH_REGISTERS >= 32
typedef lanemath_double lanemath_wide_double4 __attribute__((vector_size(32)));
#else
typedef lanemath_border_double4 lanemath_wide_double4;
#endif
typedef struct {
  lanemath_wide_double4 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_double4_pair;
/** 3 lanes of double, with the room of four. */
typedef lanemath_double lanemath_double3 __attribute__((vector_size(32), aligned(16)));
typedef lanemath_double lanemath_alias_double3 __attribute__((vector_size(32), aligned(1), may_alias));
typedef lanemath_double4_pair lanemath_double3_pair;
typedef lanemath_border_double4 lanemath_border_double3;
typedef lanemath_border_double4_pair lanemath_border_double3_pair;
/** 8 lanes of double. */
typedef lanemath_double lanemath_double8 __attribute__((vector_size(64), aligned(16)));
typedef lanemath_double lanemath_alias_double8 __attribute__((vector_size(64), aligned(1), may_alias));
typedef struct {
  lanemath_double lane[8];
} __attribute__((aligned(16), may_alias)) lanemath_border_double8;
typedef struct {
  lanemath_double8 first, second;
} lanemath_double8_pair;
typedef struct {
  lanemath_border_double8 first, second;
} lanemath_border_double8_pair;
#if LANEMATH_REGISTERS >= 64
typedef lanemath_double lanemath_wide_double8 __attribute__((vector_size(64)));
#elif LANEMATH_REGISTERS > 16
typedef struct {
  lanemath_double lane[8];
} __attribute__((aligned(LANEMATH_REGISTERS), may_alias)) lanemath_wide_double8;
#else
typedef lanemath_border_double8 lanemath_wide_double8;
#endif
typedef struct {
  lanemath_wide_double8 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_double8_pair;
/** 16 lanes of double. */
typedef lanemath_double lanemath_double16 __attribute__((vector_size(128), aligned(16)));
typedef lanemath_double lanemath_alias_double16 __attribute__((vector_size(128), aligned(1), may_alias));
typedef struct {
  lanemath_double lane[16];
} __attribute__((aligned(16), may_alias)) lanemath_border_double16;
typedef struct {
  lanemath_double16 first, second;
} lanemath_double16_pair;
typedef struct {
  lanemath_border_double16 first, second;
} lanemath_border_double16_pair;
#if LANEMATH_REGISTERS >= 128
typedef lanemath_double lanemath_wide_double16 __attribute__((vector_size(128)));
#elif LANEMATH_REGISTERS > 16
typedef struct {
  lanemath_double lane[16];
} __attribute__((aligned(LANEMATH_REGISTERS), may_alias)) lanemath_wide_double16;
#else
typedef lanemath_border_double16 lanemath_wide_double16;
#endif
typedef struct {
  lanemath_wide_double16 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_double16_pair;
/** Reads one double from memory of any alignment. */
LANEMATH_INLINE lanemath_double1 lanemath_load_double1(const lanemath_double* from) {
  lanemath_double1 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes one double to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_double1(lanemath_double* to, lanemath_double1 v) {
  memcpy(to, &v, sizeof v);
}
/** One double, all of them x. */
LANEMATH_INLINE lanemath_double1 lanemath_fill_double1(lanemath_double x) {
  return x;
}
/** Reads 2 lanes of double from memory of any alignment. */
LANEMATH_INLINE lanemath_double2 lanemath_load_double2(const lanemath_double* from) {
  lanemath_double2 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes 2 lanes of double to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_double2(lanemath_double* to, lanemath_double2 v) {
  memcpy(to, &v, sizeof v);
}
/** 2 lanes of double, all of them x. */
LANEMATH_INLINE lanemath_double2 lanemath_fill_double2(lanemath_double x) {
  const lanemath_double2 v = {x, x};
  return v;
}
/** Reads 3 lanes of double from memory of any alignment. */
LANEMATH_INLINE lanemath_double3 lanemath_load_double3(const lanemath_double* from) {
  return LANEMATH_LOAD_THREE(double, from);
}
#define lanemath_load_double3(from) LANEMATH_LOAD_THREE(double, from)
/** Writes 3 lanes of double to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_double3(lanemath_double* to, lanemath_double3 v) {
  LANEMATH_STORE_THREE(double, to, v);
}
#define lanemath_store_double3(to, v) LANEMATH_STORE_THREE(double, to, v)
/** 3 lanes of double, all of them x. */
LANEMATH_INLINE lanemath_double3 lanemath_fill_double3(lanemath_double x) {
  return LANEMATH_FILL(double2, double3, lanemath_fill_double2(x));
}
#define lanemath_fill_double3(x) LANEMATH_FILL(double2, double3, lanemath_fill_double2(x))
/** Reads 4 lanes of double from memory of any alignment. */
LANEMATH_INLINE lanemath_double4 lanemath_load_double4(const lanemath_double* from) {
  return LANEMATH_LOAD(double, double4, from);
}
#define lanemath_load_double4(from) LANEMATH_LOAD(double, double4, from)
/** Writes 4 lanes of double to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_double4(lanemath_double* to, lanemath_double4 v) {
  LANEMATH_STORE(double, double4, to, v);
}
#define lanemath_store_double4(to, v) LANEMATH_STORE(double, double4, to, v)
/** 4 lanes of double, all of them x. */
LANEMATH_INLINE lanemath_double4 lanemath_fill_double4(lanemath_double x) {
  return LANEMATH_FILL(double2, double4, lanemath_fill_double2(x));
}
#define lanemath_fill_double4(x) LANEMATH_FILL(double2, double4, lanemath_fill_double2(x))
/** Reads 8 lanes of double from memory of any alignment. */
LANEMATH_INLINE lanemath_double8 lanemath_load_double8(const lanemath_double* from) {
  return LANEMATH_LOAD(double, double8, from);
}
#define lanemath_load_double8(from) LANEMATH_LOAD(double, double8, from)
/** Writes 8 lanes of double to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_double8(lanemath_double* to, lanemath_double8 v) {
  LANEMATH_STORE(double, double8, to, v);
}
#define lanemath_store_double8(to, v) LANEMATH_STORE(double, double8, to, v)
/** 8 lanes of double, all of them x. */
LANEMATH_INLINE lanemath_double8 lanemath_fill_double8(lanemath_double x) {
  return LANEMATH_FILL(double2, double8, lanemath_fill_double2(x));
}
#define lanemath_fill_double8(x) LANEMATH_FILL(double2, double8, lanemath_fill_double2(x))
/** Reads 16 lanes of double from memory of any alignment. */
LANEMATH_INLINE lanemath_double16 lanemath_load_double16(const lanemath_double* from) {
  return LANEMATH_LOAD(double, double16, from);
}
#define lanemath_load_double16(from) LANEMATH_LOAD(double, double16, from)
/** Writes 16 lanes of double to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_double16(lanemath_double* to, lanemath_double16 v) {
  LANEMATH_STORE(double, double16, to, v);
}
#define lanemath_store_double16(to, v) LANEMATH_STORE(double, double16, to, v)
/** 16 lanes of double, all of them x. */
LANEMATH_INLINE lanemath_double16 lanemath_fill_double16(lanemath_double x) {
  return LANEMATH_FILL(double2, double16, lanemath_fill_double2(x));
}
#define lanemath_fill_double16(x) LANEMATH_FILL(double2, double16, lanemath_fill_double2(x))

/** One int. */
typedef lanemath_int lanemath_int1;
typedef lanemath_int1 lanemath_border_int1;
typedef struct {
  lanemath_int1 first, second;
} lanemath_int1_pair;
typedef struct {
  lanemath_border_int1 first, second;
} lanemath_border_int1_pair;
/** 2 lanes of int. */
typedef lanemath_int lanemath_int2 __attribute__((vector_size(8), aligned(8)));
typedef lanemath_int lanemath_alias_int2 __attribute__((vector_size(8), aligned(1), may_alias));
typedef lanemath_int2 lanemath_border_int2;
typedef struct {
  lanemath_int2 first, second;
} lanemath_int2_pair;
typedef struct {
  lanemath_border_int2 first, second;
} lanemath_border_int2_pair;
typedef lanemath_int2 lanemath_wide_int2;
/** 4 lanes of int. */
typedef lanemath_int lanemath_int4 __attribute__((vector_size(16), aligned(16)));
typedef lanemath_int lanemath_alias_int4 __attribute__((vector_size(16), aligned(1), may_alias));
typedef lanemath_int4 lanemath_border_int4;
typedef struct {
  lanemath_int4 first, second;
} lanemath_int4_pair;
typedef struct {
  lanemath_border_int4 first, second;
} lanemath_border_int4_pair;
typedef lanemath_int4 lanemath_wide_int4;
/** 3 lanes of int, with the room of four. */
typedef lanemath_int lanemath_int3 __attribute__((vector_size(16), aligned(16)));
typedef lanemath_int lanemath_alias_int3 __attribute__((vector_size(16), aligned(1), may_alias));
typedef lanemath_int4_pair lanemath_int3_pair;
typedef lanemath_border_int4 lanemath_border_int3;
typedef lanemath_border_int4_pair lanemath_border_int3_pair;
/** 8 lanes of int. */
typedef lanemath_int lanemath_int8 __attribute__((vector_size(32), aligned(16)));
typedef lanemath_int lanemath_alias_int8 __attribute__((vector_size(32), aligned(1), may_alias));
typedef struct {
  lanemath_int lane[8];
} __attribute__((aligned(16), may_alias)) lanemath_border_int8;
typedef struct {
  lanemath_int8 first, second;
} lanemath_int8_pair;
typedef struct {
  lanemath_border_int8 first, second;
} lanemath_border_int8_pair;
#if LANEMATH_REGISTERS >= 32
typedef lanemath_int lanemath_wide_int8 __attribute__((vector_size(32)));
#else
typedef lanemath_border_int8 lanemath_wide_int8;
#endif
typedef struct {
  lanemath_wide_int8 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_int8_pair;
/** 16 lanes of int. */
typedef lanemath_int lanemath_int16 __attribute__((vector_size(64), aligned(16)));
typedef lanemath_int lanemath_alias_int16 __attribute__((vector_size(64), aligned(1), may_alias));
typedef struct {
  lanemath_int lane[16];
} __attribute__((aligned(16), may_alias)) lanemath_border_int16;
typedef struct {
  lanemath_int16 first, second;
} lanemath_int16_pair;
typedef struct {
  lanemath_border_int16 first, second;
} lanemath_border_int16_pair;
#if LANEMATH_REGISTERS >= 64
typedef lanemath_int lanemath_wide_int16 __attribute__((vector_size(64)));
#elif LANEMATH_REGISTERS > 16
typedef struct {
  lanemath_int lane[16];
} __attribute__((aligned(LANEMATH_REGISTERS), may_alias)) lanemath_wide_int16;
#else
typedef lanemath_border_int16 lanemath_wide_int16;
#endif
typedef struct {
  lanemath_wide_int16 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_int16_pair;
/** Reads one int from memory of any alignment. */
LANEMATH_INLINE lanemath_int1 lanemath_load_int1(const lanemath_int* from) {
  lanemath_int1 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes one int to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_int1(lanemath_int* to, lanemath_int1 v) {
  memcpy(to, &v, sizeof v);
}
/** One int, all of them x. */
LANEMATH_INLINE lanemath_int1 lanemath_fill_int1(lanemath_int x) {
  return x;
}
/** Reads 2 lanes of int from memory of any alignment. */
LANEMATH_INLINE lanemath_int2 lanemath_load_int2(const lanemath_int* from) {
  lanemath_int2 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes 2 lanes of int to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_int2(lanemath_int* to, lanemath_int2 v) {
  memcpy(to, &v, sizeof v);
}
/** 2 lanes of int, all of them x. */
LANEMATH_INLINE lanemath_int2 lanemath_fill_int2(lanemath_int x) {
  const lanemath_int2 v = {x, x};
  return v;
}
/** Reads 3 lanes of int from memory of any alignment. */
LANEMATH_INLINE lanemath_int3 lanemath_load_int3(const lanemath_int* from) {
  const lanemath_int3 v = {from[0], from[1], from[2], from[2]};
  return v;
}
/** Writes 3 lanes of int to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_int3(lanemath_int* to, lanemath_int3 v) {
  to[0] = v[0];
  to[1] = v[1];
  to[2] = v[2];
}
/** 3 lanes of int, all of them x. */
LANEMATH_INLINE lanemath_int3 lanemath_fill_int3(lanemath_int x) {
  const lanemath_int3 v = {x, x, x, x};
  return v;
}
/** Reads 4 lanes of int from memory of any alignment. */
LANEMATH_INLINE lanemath_int4 lanemath_load_int4(const lanemath_int* from) {
  lanemath_int4 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes 4 lanes of int to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_int4(lanemath_int* to, lanemath_int4 v) {
  memcpy(to, &v, sizeof v);
}
/** 4 lanes of int, all of them x. */
LANEMATH_INLINE lanemath_int4 lanemath_fill_int4(lanemath_int x) {
  const lanemath_int4 v = {x, x, x, x};
  return v;
}
/** Reads 8 lanes of int from memory of any alignment. */
LANEMATH_INLINE lanemath_int8 lanemath_load_int8(const lanemath_int* from) {
  return LANEMATH_LOAD(int, int8, from);
}
#define lanemath_load_int8(from) LANEMATH_LOAD(int, int8, from)
/** Writes 8 lanes of int to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_int8(lanemath_int* to, lanemath_int8 v) {
  LANEMATH_STORE(int, int8, to, v);
}
#define lanemath_store_int8(to, v) LANEMATH_STORE(int, int8, to, v)
/** 8 lanes of int, all of them x. */
LANEMATH_INLINE lanemath_int8 lanemath_fill_int8(lanemath_int x) {
  return LANEMATH_FILL(int4, int8, lanemath_fill_int4(x));
}
#define lanemath_fill_int8(x) LANEMATH_FILL(int4, int8, lanemath_fill_int4(x))
/** Reads 16 lanes of int from memory of any alignment. */
LANEMATH_INLINE lanemath_int16 lanemath_load_int16(const lanemath_int* from) {
  return LANEMATH_LOAD(int, int16, from);
}
#define lanemath_load_int16(from) LANEMATH_LOAD(int, int16, from)
/** Writes 16 lanes of int to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_int16(lanemath_int* to, lanemath_int16 v) {
  LANEMATH_STORE(int, int16, to, v);
}
#define lanemath_store_int16(to, v) LANEMATH_STORE(int, int16, to, v)
/** 16 lanes of int, all of them x. */
LANEMATH_INLINE lanemath_int16 lanemath_fill_int16(lanemath_int x) {
  return LANEMATH_FILL(int4, int16, lanemath_fill_int4(x));
}
#define lanemath_fill_int16(x) LANEMATH_FILL(int4, int16, lanemath_fill_int4(x))

/** One uint. */
typedef lanemath_uint lanemath_uint1;
typedef lanemath_uint1 lanemath_border_uint1;
typedef struct {
  lanemath_uint1 first, second;
} lanemath_uint1_pair;
typedef struct {
  lanemath_border_uint1 first, second;
} lanemath_border_uint1_pair;
/** 2 lanes of uint. */
typedef lanemath_uint lanemath_uint2 __attribute__((vector_size(8), aligned(8)));
typedef lanemath_uint lanemath_alias_uint2 __attribute__((vector_size(8), aligned(1), may_alias));
typedef lanemath_uint2 lanemath_border_uint2;
typedef struct {
  lanemath_uint2 first, second;
} lanemath_uint2_pair;
typedef struct {
  lanemath_border_uint2 first, second;
} lanemath_border_uint2_pair;
typedef lanemath_uint2 lanemath_wide_uint2;
/** 4 lanes of uint. */
typedef lanemath_uint lanemath_uint4 __attribute__((vector_size(16), aligned(16)));
typedef lanemath_uint lanemath_alias_uint4 __attribute__((vector_size(16), aligned(1), may_alias));
typedef lanemath_uint4 lanemath_border_uint4;
typedef struct {
  lanemath_uint4 first, second;
} lanemath_uint4_pair;
typedef struct {
  lanemath_border_uint4 first, second;
} lanemath_border_uint4_pair;
typedef lanemath_uint4 lanemath_wide_uint4;
/** 3 lanes of uint, with the room of four. */
typedef lanemath_uint lanemath_uint3 __attribute__((vector_size(16), aligned(16)));
typedef lanemath_uint lanemath_alias_uint3 __attribute__((vector_size(16), aligned(1), may_alias));
typedef lanemath_uint4_pair lanemath_uint3_pair;
typedef lanemath_border_uint4 lanemath_border_uint3;
typedef lanemath_border_uint4_pair lanemath_border_uint3_pair;
/** 8 lanes of uint. */
typedef lanemath_uint lanemath_uint8 __attribute__((vector_size(32), aligned(16)));
typedef lanemath_uint lanemath_alias_uint8 __attribute__((vector_size(32), aligned(1), may_alias));
typedef struct {
  lanemath_uint lane[8];
} __attribute__((aligned(16), may_alias)) lanemath_border_uint8;
typedef struct {
  lanemath_uint8 first, second;
} lanemath_uint8_pair;
typedef struct {
  lanemath_border_uint8 first, second;
} lanemath_border_uint8_pair;
#if LANEMATH_REGISTERS >= 32
typedef lanemath_uint lanemath_wide_uint8 __attribute__((vector_size(32)));
#else
typedef lanemath_border_uint8 lanemath_wide_uint8;
#endif
typedef struct {
  lanemath_wide_uint8 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_uint8_pair;
/** 16 lanes of uint. */
typedef lanemath_uint lanemath_uint16 __attribute__((vector_size(64), aligned(16)));
typedef lanemath_uint lanemath_alias_uint16 __attribute__((vector_size(64), aligned(1), may_alias));
typedef struct {
  lanemath_uint lane[16];
} __attribute__((aligned(16), may_alias)) lanemath_border_uint16;
typedef struct {
  lanemath_uint16 first, second;
} lanemath_uint16_pair;
typedef struct {
  lanemath_border_uint16 first, second;
} lanemath_border_uint16_pair;
#if LANEMATH_REGISTERS >= 64
typedef lanemath_uint lanemath_wide_uint16 __attribute__((vector_size(64)));
#elif LANEMATH_REGISTERS > 16
typedef struct {
  lanemath_uint lane[16];
} __attribute__((aligned(LANEMATH_REGISTERS), may_alias)) lanemath_wide_uint16;
#else
typedef lanemath_border_uint16 lanemath_wide_uint16;
#endif
typedef struct {
  lanemath_wide_uint16 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_uint16_pair;
/** Reads one uint from memory of any alignment. */
LANEMATH_INLINE lanemath_uint1 lanemath_load_uint1(const lanemath_uint* from) {
  lanemath_uint1 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes one uint to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_uint1(lanemath_uint* to, lanemath_uint1 v) {
  memcpy(to, &v, sizeof v);
}
/** One uint, all of them x. */
LANEMATH_INLINE lanemath_uint1 lanemath_fill_uint1(lanemath_uint x) {
  return x;
}
/** Reads 2 lanes of uint from memory of any alignment. */
LANEMATH_INLINE lanemath_uint2 lanemath_load_uint2(const lanemath_uint* from) {
  lanemath_uint2 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes 2 lanes of uint to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_uint2(lanemath_uint* to, lanemath_uint2 v) {
  memcpy(to, &v, sizeof v);
}
/** 2 lanes of uint, all of them x. */
LANEMATH_INLINE lanemath_uint2 lanemath_fill_uint2(lanemath_uint x) {
  const lanemath_uint2 v = {x, x};
  return v;
}
/** Reads 3 lanes of uint from memory of any alignment. */
LANEMATH_INLINE lanemath_uint3 lanemath_load_uint3(const lanemath_uint* from) {
  const lanemath_uint3 v = {from[0], from[1], from[2], from[2]};
  return v;
}
/** Writes 3 lanes of uint to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_uint3(lanemath_uint* to, lanemath_uint3 v) {
  to[0] = v[0];
  to[1] = v[1];
  to[2] = v[2];
}
/** 3 lanes of uint, all of them x. */
LANEMATH_INLINE lanemath_uint3 lanemath_fill_uint3(lanemath_uint x) {
  const lanemath_uint3 v = {x, x, x, x};
  return v;
}
/** Reads 4 lanes of uint from memory of any alignment. */
LANEMATH_INLINE lanemath_uint4 lanemath_load_uint4(const lanemath_uint* from) {
  lanemath_uint4 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes 4 lanes of uint to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_uint4(lanemath_uint* to, lanemath_uint4 v) {
  memcpy(to, &v, sizeof v);
}
/** 4 lanes of uint, all of them x. */
LANEMATH_INLINE lanemath_uint4 lanemath_fill_uint4(lanemath_uint x) {
  const lanemath_uint4 v = {x, x, x, x};
  return v;
}
/** Reads 8 lanes of uint from memory of any alignment. */
LANEMATH_INLINE lanemath_uint8 lanemath_load_uint8(const lanemath_uint* from) {
  return LANEMATH_LOAD(uint, uint8, from);
}
#define lanemath_load_uint8(from) LANEMATH_LOAD(uint, uint8, from)
/** Writes 8 lanes of uint to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_uint8(lanemath_uint* to, lanemath_uint8 v) {
  LANEMATH_STORE(uint, uint8, to, v);
}
#define lanemath_store_uint8(to, v) LANEMATH_STORE(uint, uint8, to, v)
/** 8 lanes of uint, all of them x. */
LANEMATH_INLINE lanemath_uint8 lanemath_fill_uint8(lanemath_uint x) {
  return LANEMATH_FILL(uint4, uint8, lanemath_fill_uint4(x));
}
#define lanemath_fill_uint8(x) LANEMATH_FILL(uint4, uint8, lanemath_fill_uint4(x))
/** Reads 16 lanes of uint from memory of any alignment. */
LANEMATH_INLINE lanemath_uint16 lanemath_load_uint16(const lanemath_uint* from) {
  return LANEMATH_LOAD(uint, uint16, from);
}
#define lanemath_load_uint16(from) LANEMATH_LOAD(uint, uint16, from)
/** Writes 16 lanes of uint to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_uint16(lanemath_uint* to, lanemath_uint16 v) {
  LANEMATH_STORE(uint, uint16, to, v);
}
#define lanemath_store_uint16(to, v) LANEMATH_STORE(uint, uint16, to, v)
/** 16 lanes of uint, all of them x. */
LANEMATH_INLINE lanemath_uint16 lanemath_fill_uint16(lanemath_uint x) {
  return LANEMATH_FILL(uint4, uint16, lanemath_fill_uint4(x));
}
#define lanemath_fill_uint16(x) LANEMATH_FILL(uint4, uint16, lanemath_fill_uint4(x))

/** One long. */
typedef lanemath_long lanemath_long1;
typedef lanemath_long1 lanemath_border_long1;
typedef struct {
  lanemath_long1 first, second;
} lanemath_long1_pair;
typedef struct {
  lanemath_border_long1 first, second;
} lanemath_border_long1_pair;
/** 2 lanes of long. */
typedef lanemath_long lanemath_long2 __attribute__((vector_size(16), aligned(16)));
typedef lanemath_long lanemath_alias_long2 __attribute__((vector_size(16), aligned(1), may_alias));
typedef lanemath_long2 lanemath_border_long2;
typedef struct {
  lanemath_long2 first, second;
} lanemath_long2_pair;
typedef struct {
  lanemath_border_long2 first, second;
} lanemath_border_long2_pair;
typedef lanemath_long2 lanemath_wide_long2;
/** 4 lanes of long. */
typedef lanemath_long lanemath_long4 __attribute__((vector_size(32), aligned(16)));
typedef lanemath_long lanemath_alias_long4 __attribute__((vector_size(32), aligned(1), may_alias));
typedef struct {
  lanemath_long lane[4];
} __attribute__((aligned(16), may_alias)) lanemath_border_long4;
typedef struct {
  lanemath_long4 first, second;
} lanemath_long4_pair;
typedef struct {
  lanemath_border_long4 first, second;
} lanemath_border_long4_pair;
#if LANEMATH_REGISTERS >= 32
typedef lanemath_long lanemath_wide_long4 __attribute__((vector_size(32)));
#else
typedef lanemath_border_long4 lanemath_wide_long4;
#endif
typedef struct {
  lanemath_wide_long4 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_long4_pair;
/** 3 lanes of long, with the room of four. */
typedef lanemath_long lanemath_long3 __attribute__((vector_size(32), aligned(16)));
typedef lanemath_long lanemath_alias_long3 __attribute__((vector_size(32), aligned(1), may_alias));
typedef lanemath_long4_pair lanemath_long3_pair;
typedef lanemath_border_long4 lanemath_border_long3;
typedef lanemath_border_long4_pair lanemath_border_long3_pair;
/** 8 lanes of long. */
typedef lanemath_long lanemath_long8 __attribute__((vector_size(64), aligned(16)));
typedef lanemath_long lanemath_alias_long8 __attribute__((vector_size(64), aligned(1), may_alias));
typedef struct {
  lanemath_long lane[8];
} __attribute__((aligned(16), may_alias)) lanemath_border_long8;
typedef struct {
  lanemath_long8 first, second;
} lanemath_long8_pair;
typedef struct {
  lanemath_border_long8 first, second;
} lanemath_border_long8_pair;
#if LANEMATH_REGISTERS >= 64
typedef lanemath_long lanemath_wide_long8 __attribute__((vector_size(64)));
#elif LANEMATH_REGISTERS > 16
typedef struct {
  lanemath_long lane[8];
} __attribute__((aligned(LANEMATH_REGISTERS), may_alias)) lanemath_wide_long8;
#else
typedef lanemath_border_long8 lanemath_wide_long8;
#endif
typedef struct {
  lanemath_wide_long8 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_long8_pair;
/** 16 lanes of long. */
typedef lanemath_long lanemath_long16 __attribute__((vector_size(128), aligned(16)));
typedef lanemath_long lanemath_alias_long16 __attribute__((vector_size(128), aligned(1), may_alias));
typedef struct {
  lanemath_long lane[16];
} __attribute__((aligned(16), may_alias)) lanemath_border_long16;
typedef struct {
  lanemath_long16 first, second;
} lanemath_long16_pair;
typedef struct {
  lanemath_border_long16 first, second;
} lanemath_border_long16_pair;
#if LANEMATH_REGISTERS >= 128
typedef lanemath_long lanemath_wide_long16 __attribute__((vector_size(128)));
#elif LANEMATH_REGISTERS > 16
typedef struct {
  lanemath_long lane[16];
} __attribute__((aligned(LANEMATH_REGISTERS), may_alias)) lanemath_wide_long16;
#else
typedef lanemath_border_long16 lanemath_wide_long16;
#endif
typedef struct {
  lanemath_wide_long16 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_long16_pair;
/** Reads one long from memory of any alignment. */
LANEMATH_INLINE lanemath_long1 lanemath_load_long1(const lanemath_long* from) {
  lanemath_long1 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes one long to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_long1(lanemath_long* to, lanemath_long1 v) {
  memcpy(to, &v, sizeof v);
}
/** One long, all of them x. */
LANEMATH_INLINE lanemath_long1 lanemath_fill_long1(lanemath_long x) {
  return x;
}
/** Reads 2 lanes of long from memory of any alignment. */
LANEMATH_INLINE lanemath_long2 lanemath_load_long2(const lanemath_long* from) {
  lanemath_long2 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes 2 lanes of long to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_long2(lanemath_long* to, lanemath_long2 v) {
  memcpy(to, &v, sizeof v);
}
/** 2 lanes of long, all of them x. */
LANEMATH_INLINE lanemath_long2 lanemath_fill_long2(lanemath_long x) {
  const lanemath_long2 v = {x, x};
  return v;
}
/** Reads 3 lanes of long from memory of any alignment. */
LANEMATH_INLINE lanemath_long3 lanemath_load_long3(const lanemath_long* from) {
  return LANEMATH_LOAD_THREE(long, from);
}
#define lanemath_load_long3(from) LANEMATH_LOAD_THREE(long, from)
/** Writes 3 lanes of long to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_long3(lanemath_long* to, lanemath_long3 v) {
  LANEMATH_STORE_THREE(long, to, v);
}
#define lanemath_store_long3(to, v) LANEMATH_STORE_THREE(long, to, v)
/** 3 lanes of long, all of them x. */
LANEMATH_INLINE lanemath_long3 lanemath_fill_long3(lanemath_long x) {
  return LANEMATH_FILL(long2, long3, lanemath_fill_long2(x));
}
#define lanemath_fill_long3(x) LANEMATH_FILL(long2, long3, lanemath_fill_long2(x))
/** Reads 4 lanes of long from memory of any alignment. */
LANEMATH_INLINE lanemath_long4 lanemath_load_long4(const lanemath_long* from) {
  return LANEMATH_LOAD(long, long4, from);
}
#define lanemath_load_long4(from) LANEMATH_LOAD(long, long4, from)
/** Writes 4 lanes of long to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_long4(lanemath_long* to, lanemath_long4 v) {
  LANEMATH_STORE(long, long4, to, v);
}
#define lanemath_store_long4(to, v) LANEMATH_STORE(long, long4, to, v)
/** 4 lanes of long, all of them x. */
LANEMATH_INLINE lanemath_long4 lanemath_fill_long4(lanemath_long x) {
  return LANEMATH_FILL(long2, long4, lanemath_fill_long2(x));
}
#define lanemath_fill_long4(x) LANEMATH_FILL(long2, long4, lanemath_fill_long2(x))
/** Reads 8 lanes of long from memory of any alignment. */
LANEMATH_INLINE lanemath_long8 lanemath_load_long8(const lanemath_long* from) {
  return LANEMATH_LOAD(long, long8, from);
}
#define lanemath_load_long8(from) LANEMATH_LOAD(long, long8, from)
/** Writes 8 lanes of long to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_long8(lanemath_long* to, lanemath_long8 v) {
  LANEMATH_STORE(long, long8, to, v);
}
#define lanemath_store_long8(to, v) LANEMATH_STORE(long, long8, to, v)
/** 8 lanes of long, all of them x. */
LANEMATH_INLINE lanemath_long8 lanemath_fill_long8(lanemath_long x) {
  return LANEMATH_FILL(long2, long8, lanemath_fill_long2(x));
}
#define lanemath_fill_long8(x) LANEMATH_FILL(long2, long8, lanemath_fill_long2(x))
/** Reads 16 lanes of long from memory of any alignment. */
LANEMATH_INLINE lanemath_long16 lanemath_load_long16(const lanemath_long* from) {
  return LANEMATH_LOAD(long, long16, from);
}
#define lanemath_load_long16(from) LANEMATH_LOAD(long, long16, from)
/** Writes 16 lanes of long to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_long16(lanemath_long* to, lanemath_long16 v) {
  LANEMATH_STORE(long, long16, to, v);
}
#define lanemath_store_long16(to, v) LANEMATH_STORE(long, long16, to, v)
/** 16 lanes of long, all of them x. */
LANEMATH_INLINE lanemath_long16 lanemath_fill_long16(lanemath_long x) {
  return LANEMATH_FILL(long2, long16, lanemath_fill_long2(x));
}
#define lanemath_fill_long16(x) LANEMATH_FILL(long2, long16, lanemath_fill_long2(x))

/** One ulong. */
typedef lanemath_ulong lanemath_ulong1;
typedef lanemath_ulong1 lanemath_border_ulong1;
typedef struct {
  lanemath_ulong1 first, second;
} lanemath_ulong1_pair;
typedef struct {
  lanemath_border_ulong1 first, second;
} lanemath_border_ulong1_pair;
/** 2 lanes of ulong. */
typedef lanemath_ulong lanemath_ulong2 __attribute__((vector_size(16), aligned(16)));
typedef lanemath_ulong lanemath_alias_ulong2 __attribute__((vector_size(16), aligned(1), may_alias));
typedef lanemath_ulong2 lanemath_border_ulong2;
typedef struct {
  lanemath_ulong2 first, second;
} lanemath_ulong2_pair;
typedef struct {
  lanemath_border_ulong2 first, second;
} lanemath_border_ulong2_pair;
typedef lanemath_ulong2 lanemath_wide_ulong2;
/** 4 lanes of ulong. */
typedef lanemath_ulong lanemath_ulong4 __attribute__((vector_size(32), aligned(16)));
typedef lanemath_ulong lanemath_alias_ulong4 __attribute__((vector_size(32), aligned(1), may_alias));
typedef struct {
  lanemath_ulong lane[4];
} __attribute__((aligned(16), may_alias)) lanemath_border_ulong4;
typedef struct {
  lanemath_ulong4 first, second;
} lanemath_ulong4_pair;
typedef struct {
  lanemath_border_ulong4 first, second;
} lanemath_border_ulong4_pair;
#if LANEMATH_REGISTERS >= 32
typedef lanemath_ulong lanemath_wide_ulong4 __attribute__((vector_size(32)));
#else
typedef lanemath_border_ulong4 lanemath_wide_ulong4;
#endif
typedef struct {
  lanemath_wide_ulong4 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_ulong4_pair;
/** 3 lanes of ulong, with the room of four. */
typedef lanemath_ulong lanemath_ulong3 __attribute__((vector_size(32), aligned(16)));
typedef lanemath_ulong lanemath_alias_ulong3 __attribute__((vector_size(32), aligned(1), may_alias));
typedef lanemath_ulong4_pair lanemath_ulong3_pair;
typedef lanemath_border_ulong4 lanemath_border_ulong3;
typedef lanemath_border_ulong4_pair lanemath_border_ulong3_pair;
/** 8 lanes of ulong. */
typedef lanemath_ulong lanemath_ulong8 __attribute__((vector_size(64), aligned(16)));
typedef lanemath_ulong lanemath_alias_ulong8 __attribute__((vector_size(64), aligned(1), may_alias));
typedef struct {
  lanemath_ulong lane[8];
} __attribute__((aligned(16), may_alias)) lanemath_border_ulong8;
typedef struct {
  lanemath_ulong8 first, second;
} lanemath_ulong8_pair;
typedef struct {
  lanemath_border_ulong8 first, second;
} lanemath_border_ulong8_pair;
#if LANEMATH_REGISTERS >= 64
typedef lanemath_ulong lanemath_wide_ulong8 __attribute__((vector_size(64)));
#elif LANEMATH_REGISTERS > 16
typedef struct {
  lanemath_ulong lane[8];
} __attribute__((aligned(LANEMATH_REGISTERS), may_alias)) lanemath_wide_ulong8;
#else
typedef lanemath_border_ulong8 lanemath_wide_ulong8;
#endif
typedef struct {
  lanemath_wide_ulong8 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_ulong8_pair;
/** 16 lanes of ulong. */
typedef lanemath_ulong lanemath_ulong16 __attribute__((vector_size(128), aligned(16)));
typedef lanemath_ulong lanemath_alias_ulong16 __attribute__((vector_size(128), aligned(1), may_alias));
typedef struct {
  lanemath_ulong lane[16];
} __attribute__((aligned(16), may_alias)) lanemath_border_ulong16;
typedef struct {
  lanemath_ulong16 first, second;
} lanemath_ulong16_pair;
typedef struct {
  lanemath_border_ulong16 first, second;
} lanemath_border_ulong16_pair;
#if LANEMATH_REGISTERS >= 128
typedef lanemath_ulong lanemath_wide_ulong16 __attribute__((vector_size(128)));
#elif LANEMATH_REGISTERS > 16
typedef struct {
  lanemath_ulong lane[16];
} __attribute__((aligned(LANEMATH_REGISTERS), may_alias)) lanemath_wide_ulong16;
#else
typedef lanemath_border_ulong16 lanemath_wide_ulong16;
#endif
typedef struct {
  lanemath_wide_ulong16 first, second;
} __attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_ulong16_pair;
/** Reads one ulong from memory of any alignment. */
LANEMATH_INLINE lanemath_ulong1 lanemath_load_ulong1(const lanemath_ulong* from) {
  lanemath_ulong1 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes one ulong to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_ulong1(lanemath_ulong* to, lanemath_ulong1 v) {
  memcpy(to, &v, sizeof v);
}
/** One ulong, all of them x. */
LANEMATH_INLINE lanemath_ulong1 lanemath_fill_ulong1(lanemath_ulong x) {
  return x;
}
/** Reads 2 lanes of ulong from memory of any alignment. */
LANEMATH_INLINE lanemath_ulong2 lanemath_load_ulong2(const lanemath_ulong* from) {
  lanemath_ulong2 v;
  memcpy(&v, from, sizeof v);
  return v;
}
/** Writes 2 lanes of ulong to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_ulong2(lanemath_ulong* to, lanemath_ulong2 v) {
  memcpy(to, &v, sizeof v);
}
/** 2 lanes of ulong, all of them x. */
LANEMATH_INLINE lanemath_ulong2 lanemath_fill_ulong2(lanemath_ulong x) {
  const lanemath_ulong2 v = {x, x};
  return v;
}
/** Reads 3 lanes of ulong from memory of any alignment. */
LANEMATH_INLINE lanemath_ulong3 lanemath_load_ulong3(const lanemath_ulong* from) {
  return LANEMATH_LOAD_THREE(ulong, from);
}
#define lanemath_load_ulong3(from) LANEMATH_LOAD_THREE(ulong, from)
/** Writes 3 lanes of ulong to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_ulong3(lanemath_ulong* to, lanemath_ulong3 v) {
  LANEMATH_STORE_THREE(ulong, to, v);
}
#define lanemath_store_ulong3(to, v) LANEMATH_STORE_THREE(ulong, to, v)
/** 3 lanes of ulong, all of them x. */
LANEMATH_INLINE lanemath_ulong3 lanemath_fill_ulong3(lanemath_ulong x) {
  return LANEMATH_FILL(ulong2, ulong3, lanemath_fill_ulong2(x));
}
#define lanemath_fill_ulong3(x) LANEMATH_FILL(ulong2, ulong3, lanemath_fill_ulong2(x))
/** Reads 4 lanes of ulong from memory of any alignment. */
LANEMATH_INLINE lanemath_ulong4 lanemath_load_ulong4(const lanemath_ulong* from) {
  return LANEMATH_LOAD(ulong, ulong4, from);
}
#define lanemath_load_ulong4(from) LANEMATH_LOAD(ulong, ulong4, from)
/** Writes 4 lanes of ulong to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_ulong4(lanemath_ulong* to, lanemath_ulong4 v) {
  LANEMATH_STORE(ulong, ulong4, to, v);
}
#define lanemath_store_ulong4(to, v) LANEMATH_STORE(ulong, ulong4, to, v)
/** 4 lanes of ulong, all of them x. */
LANEMATH_INLINE lanemath_ulong4 lanemath_fill_ulong4(lanemath_ulong x) {
  return LANEMATH_FILL(ulong2, ulong4, lanemath_fill_ulong2(x));
}
#define lanemath_fill_ulong4(x) LANEMATH_FILL(ulong2, ulong4, lanemath_fill_ulong2(x))
/** Reads 8 lanes of ulong from memory of any alignment. */
LANEMATH_INLINE lanemath_ulong8 lanemath_load_ulong8(const lanemath_ulong* from) {
  return LANEMATH_LOAD(ulong, ulong8, from);
}
#define lanemath_load_ulong8(from) LANEMATH_LOAD(ulong, ulong8, from)
/** Writes 8 lanes of ulong to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_ulong8(lanemath_ulong* to, lanemath_ulong8 v) {
  LANEMATH_STORE(ulong, ulong8, to, v);
}
#define lanemath_store_ulong8(to, v) LANEMATH_STORE(ulong, ulong8, to, v)
/** 8 lanes of ulong, all of them x. */
LANEMATH_INLINE lanemath_ulong8 lanemath_fill_ulong8(lanemath_ulong x) {
  return LANEMATH_FILL(ulong2, ulong8, lanemath_fill_ulong2(x));
}
#define lanemath_fill_ulong8(x) LANEMATH_FILL(ulong2, ulong8, lanemath_fill_ulong2(x))
/** Reads 16 lanes of ulong from memory of any alignment. */
LANEMATH_INLINE lanemath_ulong16 lanemath_load_ulong16(const lanemath_ulong* from) {
  return LANEMATH_LOAD(ulong, ulong16, from);
}
#define lanemath_load_ulong16(from) LANEMATH_LOAD(ulong, ulong16, from)
/** Writes 16 lanes of ulong to memory of any alignment. */
LANEMATH_INLINE void lanemath_store_ulong16(lanemath_ulong* to, lanemath_ulong16 v) {
  LANEMATH_STORE(ulong, ulong16, to, v);
}
#define lanemath_store_ulong16(to, v) LANEMATH_STORE(ulong, ulong16, to, v)
/** 16 lanes of ulong, all of them x. */
LANEMATH_INLINE lanemath_ulong16 lanemath_fill_ulong16(lanemath_ulong x) {
  return LANEMATH_FILL(ulong2, ulong16, lanemath_fill_ulong2(x));
}
#define lanemath_fill_ulong16(x) LANEMATH_FILL(ulong2, ulong16, lanemath_fill_ulong2(x))

LANEMATH_END

#endif
