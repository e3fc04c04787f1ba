// Exact functions that take a few instructions. The runtime's own definitions give different bits: maxmag and minmag
// for zeros of unlike signs, fract for -0 and -infinity, fma for a product that vanishes when added to a zero,
// conversions to unsigned integers for negative values, frexp for the exponents of eight and sixteen doubles, ldexp of
// vectors for denormal results, which it rounds twice. Here the bits are the library's, except for the payloads of
// NaNs. The generator selects the types.
#pragma OPENCL FP_CONTRACT OFF

#define BUILTIN __attribute__((overloadable, always_inline))
#define MAGNITUDE(x) __builtin_elementwise_abs(x)
#define CAST(x, type) (type)(x)

#define EXACT_MAXMAG(type)                                            \
  BUILTIN type _cl_maxmag(type x, type y) {                           \
    const type ax = MAGNITUDE(x), ay = MAGNITUDE(y);                  \
    const type larger = ax == ay ? (y > x ? y : x) : ay < ax ? x : y; \
    return y != y ? x : larger;                                       \
  }
#define EXACT_MINMAG(type)                                             \
  BUILTIN type _cl_minmag(type x, type y) {                            \
    const type ax = MAGNITUDE(x), ay = MAGNITUDE(y);                   \
    const type smaller = ax == ay ? (y < x ? y : x) : ax < ay ? x : y; \
    return y != y ? x : smaller;                                       \
  }

// Only zeros and infinities equal twice their floor: they give a zero of their sign.
#define EXACT_FRACT(space, type, bits, sign_bit, below_one)                    \
  BUILTIN type _cl_fract(type x, space type* second) {                         \
    const type floor = __builtin_elementwise_floor(x), rest = x - floor;       \
    const bits sign = __builtin_astype(x, bits) & (bits)(sign_bit);            \
    const type fraction = rest > (type)(below_one) ? (type)(below_one) : rest; \
    *second = floor;                                                           \
    return x == floor + floor ? __builtin_astype(sign, type) : fraction;       \
  }

// `lanemath_fused_<type>` is the instruction.
#define EXACT_FMA(type)                                                                  \
  void lanemath_fused_##type(type* result, const type* x, const type* y, const type* z); \
  BUILTIN type _cl_fma(type x, type y, type z) {                                         \
    type fused;                                                                          \
    lanemath_fused_##type(&fused, &x, &y, &z);                                           \
    return z == 0 ? x * y + z : fused;                                                   \
  }

// The magnitude of the rounded value. `convert` is CAST for scalars and __builtin_convertvector for vectors,
// `condition` the signed integers of the result's size.
#define EXACT_TO_UNSIGNED(name, from, to, condition, convert, rounded, bound, outside)             \
  BUILTIN to _cl_##name(from x) {                                                                  \
    const from magnitude = MAGNITUDE(rounded);                                                     \
    return convert(magnitude < (from)(bound), condition) ? convert(magnitude, to) : (to)(outside); \
  }

#define EXACT_FREXP(space, type, ints, half, half_ints)                            \
  half __attribute__((overloadable)) _cl_frexp(half x, private half_ints* second); \
  BUILTIN type _cl_frexp(type x, space ints* second) {                             \
    half_ints low, high;                                                           \
    const type result = (type)(_cl_frexp(x.lo, &low), _cl_frexp(x.hi, &high));     \
    *second = (ints)(low, high);                                                   \
    return result;                                                                 \
  }

// `fields` are the integers of the result's size; the exponents of normal numbers are `least` to 1 - `least`. Of the
// three factors only the last can round: what becomes denormal earlier has so far to go that it ends as a zero.
#define LDEXP_FACTOR(type, fields, digits, least, n) \
  __builtin_astype((__builtin_convertvector(n, fields) + (1 - (least))) << ((digits)-1), type)
#define EXACT_LDEXP(type, ints, fields, digits, least)                          \
  BUILTIN type _cl_ldexp(type x, ints n) {                                      \
    const ints low = least, high = 1 - (least);                                 \
    for (int i = 0; i < 2; ++i) {                                               \
      const ints step = n > high ? high : n < low ? low + (digits) : (ints)(0); \
      x *= LDEXP_FACTOR(type, fields, digits, least, step);                     \
      n -= step;                                                                \
    }                                                                           \
    n = __builtin_elementwise_min(__builtin_elementwise_max(n, low), high);     \
    return x * LDEXP_FACTOR(type, fields, digits, least, n);                    \
  }                                                                             \
  BUILTIN type _cl_ldexp(type x, int n) { return _cl_ldexp(x, (ints)(n)); }
