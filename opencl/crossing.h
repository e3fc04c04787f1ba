// How the vectors of OpenCL C cross to the library and back, whatever instructions the kernel is compiled for: up
// to 16 bytes in a register, wider ones in memory, which is what a structure of an array does in every case. Three
// lanes cross as four; what stands in the fourth is of no account.
//
// For each type: crossing_<type>, as the library takes it; to_library_<type> and from_library_<type>.

#define BUILTIN __attribute__((overloadable))
#define REGISTERS_ONLY __attribute__((const))
#define WAY static inline __attribute__((always_inline))

#define AS_IT_IS(type)                             \
  typedef type crossing_##type;                    \
  WAY type to_library_##type(type v) { return v; } \
  WAY type from_library_##type(type v) { return v; }

#define AS_FOUR(type, four)                                                \
  typedef four crossing_##type;                                            \
  WAY four to_library_##type(type v) { return __builtin_astype(v, four); } \
  WAY type from_library_##type(four v) { return __builtin_astype(v, type); }

// The vector is stored whole: the compiler copies it once more with its widest loads, and stored in parts it took an
// AVX kernel twice the time.
#define IN_MEMORY(type, scalar, lanes)              \
  typedef struct __attribute__((aligned(16))) {     \
    scalar lane[lanes];                             \
  } crossing_##type;                                \
  typedef union {                                   \
    type whole;                                     \
    crossing_##type crossing;                       \
  } either_##type;                                  \
  WAY crossing_##type to_library_##type(type v) {   \
    either_##type either = {.whole = v};            \
    return either.crossing;                         \
  }                                                 \
  WAY type from_library_##type(crossing_##type v) { \
    either_##type either = {.crossing = v};         \
    return either.whole;                            \
  }

#define LANES_OF_4_BYTES(scalar)  \
  AS_IT_IS(scalar)                \
  AS_IT_IS(scalar##2)             \
  AS_FOUR(scalar##3, scalar##4)   \
  AS_IT_IS(scalar##4)             \
  IN_MEMORY(scalar##8, scalar, 8) \
  IN_MEMORY(scalar##16, scalar, 16)

#define LANES_OF_8_BYTES(scalar)  \
  AS_IT_IS(scalar)                \
  AS_IT_IS(scalar##2)             \
  IN_MEMORY(scalar##3, scalar, 4) \
  IN_MEMORY(scalar##4, scalar, 4) \
  IN_MEMORY(scalar##8, scalar, 8) \
  IN_MEMORY(scalar##16, scalar, 16)

LANES_OF_4_BYTES(float)
LANES_OF_4_BYTES(int)
LANES_OF_4_BYTES(uint)
LANES_OF_8_BYTES(double)
LANES_OF_8_BYTES(long)
LANES_OF_8_BYTES(ulong)
