// lanes<T, W>: W lanes of T, carried as 128-bit groups; lanes<T, 1> is one scalar and compiles to scalar
// instructions. The operators apply to every group in turn, so that one kernel text serves all widths.
// Lanes of 32 bits at width 2 fill the low half of their group; what its upper half holds is never used.
//
// Integer lanes wrap. A comparison gives a mask: integer lanes of the same size, all ones or zero.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include <smmintrin.h>

#include "frame/operation.h"

#define LANEMATH_INLINE [[gnu::always_inline]] inline
#define LANEMATH_LAMBDA __attribute__((always_inline))

namespace lanemath {

template <class T, int W>
struct group_of {
  typedef T type __attribute__((vector_size(16)));
};
template <class T>
struct group_of<T, 1> {
  using type = T;
};

template <std::size_t Bytes>
using int_of_size = std::conditional_t<Bytes == 4, std::int32_t, std::int64_t>;

template <class T, int W>
struct lanes {
  using value_type = T;
  using group = typename group_of<T, W>::type;
  static constexpr int width = W;
  static constexpr int groups = (W * int(sizeof(T)) + 15) / 16;

  group g[groups];

  lanes() = default;
  LANEMATH_INLINE lanes(T value) {
    for (auto& each : g) {
      if constexpr (W == 1)
        each = value;
      else if constexpr (sizeof(T) == 4)
        each = group{value, value, value, value};
      else
        each = group{value, value};
    }
  }
};

// f over corresponding groups; the result's lanes are U.
template <class U, class F, class T, int W, class... Rest>
LANEMATH_INLINE lanes<U, W> map(F f, const lanes<T, W>& first, const Rest&... rest) {
  lanes<U, W> result;
  for (int i = 0; i < result.groups; ++i) result.g[i] = f(first.g[i], rest.g[i]...);
  return result;
}

// Reads the bits as lanes of another type of the same size.
template <class U, class T, int W>
LANEMATH_INLINE lanes<U, W> as(const lanes<T, W>& v) {
  static_assert(sizeof(U) == sizeof(T));
  return map<U>([](auto a) LANEMATH_LAMBDA { return std::bit_cast<typename lanes<U, W>::group>(a); }, v);
}

// Bit patterns as signed integers, and back.
template <class T, int W>
LANEMATH_INLINE auto bits(const lanes<T, W>& v) {
  return as<int_of_size<sizeof(T)>>(v);
}
template <class T, int W>
LANEMATH_INLINE auto from_bits(const lanes<T, W>& v) {
  return as<std::conditional_t<sizeof(T) == 4, float, double>>(v);
}

// A constant by its bit pattern: 0x3F000000_f32 is 0.5f.
constexpr float operator""_f32(unsigned long long v) { return std::bit_cast<float>(std::uint32_t(v)); }
constexpr double operator""_f64(unsigned long long v) { return std::bit_cast<double>(std::uint64_t(v)); }
// The same for either precision; T(0.5) in the midst of a kernel is a conversion at run time under -frounding-math.
template <class T>
inline constexpr T zero_v = 0;
template <class T>
inline constexpr T half_v = 0.5;
template <class T>
inline constexpr T one_v = 1;

namespace lanes_detail {

// Integer arithmetic on unsigned lanes wraps at every width, the scalar one included.
template <class F, class T, int W>
LANEMATH_INLINE lanes<T, W> wrapping(F f, const lanes<T, W>& a, const lanes<T, W>& b) {
  if constexpr (std::is_integral_v<T>) {
    using U = std::make_unsigned_t<T>;
    return as<T>(map<U>(f, as<U>(a), as<U>(b)));
  } else {
    return map<T>(f, a, b);
  }
}

// Scalar floating comparisons are the instructions that make a mask: what a compiler makes of a < b is a branch.
template <class T, class F, class Single, class Double, int W>
LANEMATH_INLINE auto compare(F f, Single single, Double wide, const lanes<T, W>& a, const lanes<T, W>& b) {
  using I = int_of_size<sizeof(T)>;
  return map<I>(
      [&](auto p, auto q) LANEMATH_LAMBDA {
        if constexpr (W > 1)
          return std::bit_cast<typename lanes<I, W>::group>(f(p, q));
        else if constexpr (std::is_same_v<T, float>)
          return std::bit_cast<I>(single(_mm_set_ss(p), _mm_set_ss(q))[0]);
        else if constexpr (std::is_same_v<T, double>)
          return std::bit_cast<I>(wide(_mm_set_sd(p), _mm_set_sd(q))[0]);
        else
          return f(p, q) ? I(-1) : I(0);
      },
      a, b);
}

}  // namespace lanes_detail

#define LANEMATH_OPERATOR(op, how, ...)                                                                               \
  template <class T, int W>                                                                                           \
  LANEMATH_INLINE auto operator op(const lanes<T, W>& a, const lanes<T, W>& b) {                                      \
    return lanes_detail::how([](auto p, auto q) LANEMATH_LAMBDA { return p op q; } __VA_OPT__(, ) __VA_ARGS__, a, b); \
  }                                                                                                                   \
  template <class T, int W>                                                                                           \
  LANEMATH_INLINE auto operator op(const lanes<T, W>& a, std::type_identity_t<T> b) {                                 \
    return a op lanes<T, W>(b);                                                                                       \
  }                                                                                                                   \
  template <class T, int W>                                                                                           \
  LANEMATH_INLINE auto operator op(std::type_identity_t<T> a, const lanes<T, W>& b) {                                 \
    return lanes<T, W>(a) op b;                                                                                       \
  }
LANEMATH_OPERATOR(+, wrapping)
LANEMATH_OPERATOR(-, wrapping)
LANEMATH_OPERATOR(*, wrapping)
LANEMATH_OPERATOR(/, wrapping)
LANEMATH_OPERATOR(&, wrapping)
LANEMATH_OPERATOR(|, wrapping)
LANEMATH_OPERATOR(^, wrapping)
LANEMATH_OPERATOR(<, compare, _mm_cmplt_ss, _mm_cmplt_sd)
LANEMATH_OPERATOR(<=, compare, _mm_cmple_ss, _mm_cmple_sd)
LANEMATH_OPERATOR(>, compare, _mm_cmpgt_ss, _mm_cmpgt_sd)
LANEMATH_OPERATOR(>=, compare, _mm_cmpge_ss, _mm_cmpge_sd)
LANEMATH_OPERATOR(==, compare, _mm_cmpeq_ss, _mm_cmpeq_sd)
LANEMATH_OPERATOR(!=, compare, _mm_cmpneq_ss, _mm_cmpneq_sd)
#undef LANEMATH_OPERATOR

template <class T, int W>
LANEMATH_INLINE lanes<T, W> operator~(const lanes<T, W>& v) {
  return map<T>([](auto a) LANEMATH_LAMBDA { return ~a; }, v);
}

// Shifts by a constant below the lane's size: left wraps, right is arithmetic on signed lanes and logical on
// unsigned ones.
template <class T, int W>
LANEMATH_INLINE lanes<T, W> operator<<(const lanes<T, W>& v, int count) {
  using U = std::make_unsigned_t<T>;
  return as<T>(map<U>([count](auto a) LANEMATH_LAMBDA { return a << count; }, as<U>(v)));
}
template <class T, int W>
LANEMATH_INLINE lanes<T, W> operator>>(const lanes<T, W>& v, int count) {
  return map<T>([count](auto a) LANEMATH_LAMBDA { return a >> count; }, v);
}

template <class T, int W>
LANEMATH_INLINE lanes<T, W> select(const lanes<int_of_size<sizeof(T)>, W>& mask, const lanes<T, W>& yes,
                                   const lanes<T, W>& no) {
  if constexpr (W == 1 && std::is_floating_point_v<T>)
    return from_bits((bits(yes) & mask) | (bits(no) & ~mask));
  else
    return map<T>([](auto m, auto a, auto b) LANEMATH_LAMBDA { return m ? a : b; }, mask, yes, no);
}

namespace lanes_detail {

// One 32-bit half of each 64-bit lane.
template <int Half, class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> halves(const lanes<T, W>& v) {
  static_assert(sizeof(T) == 8);
  lanes<std::int32_t, W> result;
  if constexpr (W == 1) {
    result.g[0] = std::int32_t(std::bit_cast<std::int64_t>(v.g[0]) >> 32 * Half);
  } else {
    constexpr int last = lanes<T, W>::groups - 1;
    for (int i = 0; i < result.groups; ++i)
      result.g[i] = std::bit_cast<typename lanes<std::int32_t, W>::group>(
          _mm_shuffle_ps(std::bit_cast<__m128>(v.g[2 * i]), std::bit_cast<__m128>(v.g[2 * i < last ? 2 * i + 1 : last]),
                         _MM_SHUFFLE(2 + Half, Half, 2 + Half, Half)));
  }
  return result;
}

}  // namespace lanes_detail

template <class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> upper(const lanes<T, W>& v) {
  return lanes_detail::halves<1>(v);
}
template <class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> lower(const lanes<T, W>& v) {
  return lanes_detail::halves<0>(v);
}

// The word with the sign and the exponent, or an integer's sign: the whole of a 32-bit lane, the upper half of another.
template <class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> top_word(const lanes<T, W>& x) {
  if constexpr (sizeof(T) == 4)
    return bits(x);
  else
    return upper(x);
}
// A mask over lanes of any size as one over 32-bit lanes.
template <class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> narrow_mask(const lanes<T, W>& mask) {
  return top_word(mask);
}

// 32-bit integers as 64-bit ones of the same signedness.
template <class T, int W>
LANEMATH_INLINE auto widen(const lanes<T, W>& v) {
  static_assert(sizeof(T) == 4 && std::is_integral_v<T>);
  using wide = std::conditional_t<std::is_signed_v<T>, std::int64_t, std::uint64_t>;
  lanes<wide, W> result;
  if constexpr (W == 1) {
    result.g[0] = v.g[0];
  } else {
    for (int i = 0; i < result.groups; ++i) {
      const auto from = std::bit_cast<__m128i>(v.g[i / 2]);
      const auto half = i % 2 ? _mm_unpackhi_epi64(from, from) : from;
      const auto wider = std::is_signed_v<T> ? _mm_cvtepi32_epi64(half) : _mm_cvtepu32_epi64(half);
      result.g[i] = std::bit_cast<typename lanes<wide, W>::group>(wider);
    }
  }
  return result;
}

// The whole product of the lower 32 bits of each lane.
template <int W>
LANEMATH_INLINE lanes<std::uint64_t, W> product_of_lower(const lanes<std::uint64_t, W>& a,
                                                         const lanes<std::uint64_t, W>& b) {
  return map<std::uint64_t>(
      [](auto p, auto q) LANEMATH_LAMBDA {
        if constexpr (W == 1)
          return std::uint64_t(std::uint32_t(p)) * std::uint32_t(q);
        else
          return std::bit_cast<decltype(p)>(_mm_mul_epu32(std::bit_cast<__m128i>(p), std::bit_cast<__m128i>(q)));
      },
      a, b);
}

// Each 64-bit lane shifted left by its own count, from 0 to 63. A lane with another count is anybody's guess.
template <class T, int W>
LANEMATH_INLINE lanes<T, W> shifted_left(const lanes<T, W>& v, const lanes<T, W>& count) {
  static_assert(sizeof(T) == 8);
  using U = std::make_unsigned_t<T>;
  return as<T>(map<U>(
      [](auto a, auto n) LANEMATH_LAMBDA {
        if constexpr (W == 1) {
          return a << (n & 63);
        } else {
          const auto both = std::bit_cast<__m128i>(a), first = std::bit_cast<__m128i>(n);
          const auto second = _mm_unpackhi_epi64(first, first);
          return std::bit_cast<typename lanes<U, W>::group>(
              _mm_blend_epi16(_mm_sll_epi64(both, first), _mm_sll_epi64(both, second), 0xF0));
        }
      },
      as<U>(v), as<U>(count)));
}

// Doubles with these upper halves, and zero below.
template <int W>
LANEMATH_INLINE lanes<double, W> from_upper(const lanes<std::int32_t, W>& v) {
  lanes<double, W> result;
  if constexpr (W == 1) {
    result.g[0] = std::bit_cast<double>(std::uint64_t(std::uint32_t(v.g[0])) << 32);
  } else {
    const auto zero = _mm_setzero_si128();
    for (int i = 0; i < result.groups; ++i) {
      const auto from = std::bit_cast<__m128i>(v.g[i / 2]);
      result.g[i] = std::bit_cast<typename lanes<double, W>::group>(i % 2 ? _mm_unpackhi_epi32(zero, from)
                                                                          : _mm_unpacklo_epi32(zero, from));
    }
  }
  return result;
}

// Lanes first .. first + C - 1, whole groups of them; and their way back.
template <int C, class T, int W>
LANEMATH_INLINE lanes<T, C> part(const lanes<T, W>& v, int first) {
  lanes<T, C> result;
  for (int i = 0; i < result.groups; ++i) result.g[i] = v.g[first * int(sizeof(T)) / 16 + i];
  return result;
}
template <class T, int W, int C>
LANEMATH_INLINE void put_part(lanes<T, W>& v, int first, const lanes<T, C>& piece) {
  for (int i = 0; i < piece.groups; ++i) v.g[first * int(sizeof(T)) / 16 + i] = piece.g[i];
}

// A mask as bits, lane i at bit i.
template <class T, int W>
LANEMATH_INLINE unsigned mask_bits(const lanes<T, W>& mask) {
  unsigned result = 0;
  if constexpr (W == 1) {
    result = mask.g[0] & 1;
  } else {
    constexpr int per_group = 16 / int(sizeof(T));
    for (int i = 0; i < mask.groups; ++i) {
      if constexpr (sizeof(T) == 4)
        result |= unsigned(_mm_movemask_ps(std::bit_cast<__m128>(mask.g[i]))) << i * per_group;
      else
        result |= unsigned(_mm_movemask_pd(std::bit_cast<__m128d>(mask.g[i]))) << i * per_group;
    }
  }
  return result & ((1u << W) - 1);
}

// Whether any lane of the mask is set: one test whatever the width.
template <class T, int W>
LANEMATH_INLINE bool any(const lanes<T, W>& mask) {
  if constexpr (W == 1) {
    return mask.g[0] != 0;
  } else {
    auto all = mask.g[0];
    for (int i = 1; i < mask.groups; ++i) all |= mask.g[i];
    lanes<T, 16 / int(sizeof(T))> folded;
    folded.g[0] = all;
    return (mask_bits(folded) & ((1u << W) - 1)) != 0;
  }
}

// The processor's own operations, lane by lane. `F` has a packed form and a scalar form for each precision; the scalar
// form's register is the value's own, so that no other lane is computed on.
namespace lanes_detail {

template <class T>
using packed = std::conditional_t<sizeof(T) == 4, __m128, __m128d>;

LANEMATH_INLINE __m128 in_register(float v) { return _mm_set_ss(v); }
LANEMATH_INLINE __m128d in_register(double v) { return _mm_set_sd(v); }

template <class Packed, class Scalar, class T, int W, class... Rest>
LANEMATH_INLINE lanes<T, W> instruction(Packed on_group, Scalar on_lane, const lanes<T, W>& first,
                                        const Rest&... rest) {
  return map<T>(
      [&](auto... v) LANEMATH_LAMBDA {
        if constexpr (W == 1)
          return T(on_lane(in_register(v)...)[0]);
        else
          return std::bit_cast<typename lanes<T, W>::group>(on_group(std::bit_cast<packed<T>>(v)...));
      },
      first, rest...);
}

}  // namespace lanes_detail

// x + y and x * y where two different NaNs may meet: x is the one that survives. Compilers swap the operands of the
// plain operators as suits their registers.
#define LANEMATH_IN_ORDER(name, mnemonic)                                        \
  template <class T, int W>                                                      \
  LANEMATH_INLINE lanes<T, W> name(const lanes<T, W>& x, const lanes<T, W>& y) { \
    return map<T>(                                                               \
        [](auto first, auto second) LANEMATH_LAMBDA {                            \
          if constexpr (W == 1 && sizeof(T) == 4)                                \
            asm(mnemonic "ss %1, %0" : "+x"(first) : "x"(second));               \
          else if constexpr (W == 1)                                             \
            asm(mnemonic "sd %1, %0" : "+x"(first) : "x"(second));               \
          else if constexpr (sizeof(T) == 4)                                     \
            asm(mnemonic "ps %1, %0" : "+x"(first) : "x"(second));               \
          else                                                                   \
            asm(mnemonic "pd %1, %0" : "+x"(first) : "x"(second));               \
          return first;                                                          \
        },                                                                       \
        x, y);                                                                   \
  }
LANEMATH_IN_ORDER(ordered_sum, "add")
LANEMATH_IN_ORDER(ordered_product, "mul")
#undef LANEMATH_IN_ORDER

// MINPS and MAXPS: x < y ? x : y and x > y ? x : y, so that y is the answer to a tie and to a NaN in either.
template <class T, int W>
LANEMATH_INLINE lanes<T, W> minimum(const lanes<T, W>& x, const std::type_identity_t<lanes<T, W>>& y) {
  if constexpr (sizeof(T) == 4)
    return lanes_detail::instruction(_mm_min_ps, _mm_min_ss, x, y);
  else
    return lanes_detail::instruction(_mm_min_pd, _mm_min_sd, x, y);
}
template <class T, int W>
LANEMATH_INLINE lanes<T, W> maximum(const lanes<T, W>& x, const std::type_identity_t<lanes<T, W>>& y) {
  if constexpr (sizeof(T) == 4)
    return lanes_detail::instruction(_mm_max_ps, _mm_max_ss, x, y);
  else
    return lanes_detail::instruction(_mm_max_pd, _mm_max_sd, x, y);
}

template <class T, int W>
LANEMATH_INLINE lanes<T, W> square_root(const lanes<T, W>& x) {
  if constexpr (sizeof(T) == 4)
    return lanes_detail::instruction(_mm_sqrt_ps, _mm_sqrt_ss, x);
  else
    return lanes_detail::instruction(
        _mm_sqrt_pd, [](__m128d v) LANEMATH_LAMBDA { return _mm_sqrt_sd(v, v); }, x);
}

// About 11.5 good bits; which ones differs between processors.
template <int W>
LANEMATH_INLINE lanes<float, W> reciprocal_estimate(const lanes<float, W>& x) {
  return lanes_detail::instruction(_mm_rcp_ps, _mm_rcp_ss, x);
}
template <int W>
LANEMATH_INLINE lanes<float, W> reciprocal_root_estimate(const lanes<float, W>& x) {
  return lanes_detail::instruction(_mm_rsqrt_ps, _mm_rsqrt_ss, x);
}

// Rounded to an integral value by the rounding instruction.
template <direction D, class T, int W>
LANEMATH_INLINE lanes<T, W> round_to(const lanes<T, W>& x) {
  if constexpr (sizeof(T) == 4)
    return lanes_detail::instruction([](__m128 v) LANEMATH_LAMBDA { return _mm_round_ps(v, int(D)); },
                                     [](__m128 v) LANEMATH_LAMBDA { return _mm_round_ss(v, v, int(D)); }, x);
  else
    return lanes_detail::instruction([](__m128d v) LANEMATH_LAMBDA { return _mm_round_pd(v, int(D)); },
                                     [](__m128d v) LANEMATH_LAMBDA { return _mm_round_sd(v, v, int(D)); }, x);
}

// Lanes of another type, by value. To integers: in the direction in force, and `truncate` toward zero; what does not
// fit is 0x80000000. To a narrower floating type: in the direction in force.
namespace lanes_detail {

template <class U, bool Truncate, class T>
LANEMATH_INLINE auto convert_group(T v) {
  if constexpr (std::is_same_v<U, double>) {
    if constexpr (std::is_same_v<T, __m128>)
      return _mm_cvtps_pd(v);
    else
      return _mm_cvtepi32_pd(v);
  } else if constexpr (std::is_same_v<U, float>) {
    if constexpr (std::is_same_v<T, __m128d>)
      return _mm_cvtpd_ps(v);
    else
      return _mm_cvtepi32_ps(v);
  } else if constexpr (std::is_same_v<T, __m128>) {
    return Truncate ? _mm_cvttps_epi32(v) : _mm_cvtps_epi32(v);
  } else {
    return Truncate ? _mm_cvttpd_epi32(v) : _mm_cvtpd_epi32(v);
  }
}

template <class T>
using register_of = std::conditional_t<std::is_integral_v<T>, __m128i, packed<T>>;

template <class U, bool Truncate, class T, int W>
LANEMATH_INLINE lanes<U, W> convert(const lanes<T, W>& v) {
  lanes<U, W> result;
  using from = register_of<T>;
  using to = typename lanes<U, W>::group;
  if constexpr (W == 1) {
    // The packed instructions where there are any: the scalar ones keep the rest of their destination, and so wait for
    // what a call before this one left there.
    if constexpr (std::is_integral_v<T>)
      result.g[0] = convert_group<U, Truncate>(_mm_cvtsi32_si128(v.g[0]))[0];
    else if constexpr (std::is_same_v<T, float> && std::is_same_v<U, double>)
      result.g[0] = convert_group<U, Truncate>(_mm_set_ss(v.g[0]))[0];
    else if constexpr (std::is_same_v<T, double> && std::is_same_v<U, float>)
      result.g[0] = convert_group<U, Truncate>(_mm_set_sd(v.g[0]))[0];
    else if constexpr (std::is_floating_point_v<U>)
      result.g[0] = U(v.g[0]);
    else if constexpr (sizeof(T) == 4)
      result.g[0] = Truncate ? _mm_cvttss_si32(_mm_set_ss(v.g[0])) : _mm_cvtss_si32(_mm_set_ss(v.g[0]));
    else
      result.g[0] = Truncate ? _mm_cvttsd_si32(_mm_set_sd(v.g[0])) : _mm_cvtsd_si32(_mm_set_sd(v.g[0]));
  } else if constexpr (sizeof(U) == sizeof(T)) {
    for (int i = 0; i < result.groups; ++i)
      result.g[i] = std::bit_cast<to>(convert_group<U, Truncate>(std::bit_cast<from>(v.g[i])));
  } else if constexpr (sizeof(U) == 8) {
    for (int i = 0; i < result.groups; ++i) {
      const auto whole = std::bit_cast<__m128i>(v.g[i / 2]);
      const auto half = std::bit_cast<from>(i % 2 ? _mm_unpackhi_epi64(whole, whole) : whole);
      result.g[i] = std::bit_cast<to>(convert_group<U, Truncate>(half));
    }
  } else {
    for (int i = 0; i < result.groups; ++i) {
      const auto half = [&](int k) LANEMATH_LAMBDA {
        return std::bit_cast<__m128i>(convert_group<U, Truncate>(std::bit_cast<from>(v.g[k])));
      };
      const auto low = half(2 * i);
      result.g[i] = std::bit_cast<to>(W == 2 ? low : _mm_unpacklo_epi64(low, half(2 * i + 1)));
    }
  }
  return result;
}

}  // namespace lanes_detail

template <class U, class T, int W>
LANEMATH_INLINE lanes<U, W> convert(const lanes<T, W>& v) {
  return lanes_detail::convert<U, false>(v);
}
template <class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> truncate(const lanes<T, W>& v) {
  return lanes_detail::convert<std::int32_t, true>(v);
}

// A table entry of a high and a low part, side by side so that one load brings both.
template <class T>
struct two_part {
  T hi, lo;
};
template <class V>
struct looked_up {
  V hi, lo;
};

namespace lanes_detail {

// The four indices of a group of 32-bit ones, two at a time.
struct index_pair {
  std::uint32_t first, second;
  LANEMATH_INLINE explicit index_pair(long long both)
      : first(std::uint32_t(both)), second(std::uint32_t(std::uint64_t(both) >> 32)) {}
};
template <int W>
LANEMATH_INLINE index_pair indices(const lanes<std::int32_t, W>& index, int pair) {
  const auto group = std::bit_cast<__m128i>(index.g[pair / 2]);
  return index_pair(pair % 2 ? _mm_extract_epi64(group, 1) : _mm_cvtsi128_si64(group));
}

}  // namespace lanes_detail

// The entries at the lanes' indices, which must all be inside the table. One load a lane.
template <class T, std::size_t Size, int W>
LANEMATH_INLINE looked_up<lanes<T, W>> look_up(const two_part<T> (&table)[Size], const lanes<std::int32_t, W>& index) {
  looked_up<lanes<T, W>> result;
  using group = typename lanes<T, W>::group;
  if constexpr (W == 1) {
    const auto& entry = table[std::uint32_t(index.g[0])];
    result.hi = entry.hi;
    result.lo = entry.lo;
  } else if constexpr (sizeof(T) == 4) {
    for (int i = 0; i < result.hi.groups; ++i) {
      const auto two = [&](lanes_detail::index_pair at) LANEMATH_LAMBDA {
        const auto first = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&table[at.first]));
        return _mm_loadh_pi(_mm_castsi128_ps(first), reinterpret_cast<const __m64*>(&table[at.second]));
      };
      const auto low = two(lanes_detail::indices(index, 2 * i));
      const auto high = W == 2 ? low : two(lanes_detail::indices(index, 2 * i + 1));
      result.hi.g[i] = std::bit_cast<group>(_mm_shuffle_ps(low, high, _MM_SHUFFLE(2, 0, 2, 0)));
      result.lo.g[i] = std::bit_cast<group>(_mm_shuffle_ps(low, high, _MM_SHUFFLE(3, 1, 3, 1)));
    }
  } else {
    for (int i = 0; i < result.hi.groups; ++i) {
      const auto at = lanes_detail::indices(index, i);
      const auto first = _mm_loadu_pd(&table[at.first].hi), second = _mm_loadu_pd(&table[at.second].hi);
      result.hi.g[i] = std::bit_cast<group>(_mm_unpacklo_pd(first, second));
      result.lo.g[i] = std::bit_cast<group>(_mm_unpackhi_pd(first, second));
    }
  }
  return result;
}

// The same for a table of single values.
template <class T, std::size_t Size, int W>
LANEMATH_INLINE lanes<T, W> look_up(const T (&table)[Size], const lanes<std::int32_t, W>& index) {
  lanes<T, W> result;
  if constexpr (W == 1) {
    result = table[std::uint32_t(index.g[0])];
  } else if constexpr (sizeof(T) == 4) {
    for (int i = 0; i < result.groups; ++i) {
      const auto low = lanes_detail::indices(index, 2 * i);
      const auto high = W == 2 ? low : lanes_detail::indices(index, 2 * i + 1);
      result.g[i] =
          typename lanes<T, W>::group{table[low.first], table[low.second], table[high.first], table[high.second]};
    }
  } else {
    for (int i = 0; i < result.groups; ++i) {
      const auto at = lanes_detail::indices(index, i);
      result.g[i] = typename lanes<T, W>::group{table[at.first], table[at.second]};
    }
  }
  return result;
}

// An entry of three values in the room of four, so that one load brings them all.
template <class T>
struct alignas(4 * sizeof(T)) triple {
  T first, second, third;
};
template <class V>
struct looked_up_triple {
  V first, second, third;
};

template <std::size_t Size, int W>
LANEMATH_INLINE looked_up_triple<lanes<float, W>> look_up(const triple<float> (&table)[Size],
                                                          const lanes<std::int32_t, W>& index) {
  looked_up_triple<lanes<float, W>> result;
  if constexpr (W == 1) {
    const auto& entry = table[std::uint32_t(index.g[0])];
    result.first = entry.first;
    result.second = entry.second;
    result.third = entry.third;
  } else {
    using group = typename lanes<float, W>::group;
    for (int i = 0; i < result.first.groups; ++i) {
      const auto low = lanes_detail::indices(index, 2 * i);
      const auto high = W == 2 ? low : lanes_detail::indices(index, 2 * i + 1);
      const auto entry = [&](std::uint32_t at) LANEMATH_LAMBDA { return _mm_load_ps(&table[at].first); };
      const auto a = entry(low.first), b = entry(low.second), c = entry(high.first), d = entry(high.second);
      const auto ab = _mm_unpacklo_ps(a, b), cd = _mm_unpacklo_ps(c, d);
      result.first.g[i] = std::bit_cast<group>(_mm_movelh_ps(ab, cd));
      result.second.g[i] = std::bit_cast<group>(_mm_movehl_ps(cd, ab));
      result.third.g[i] = std::bit_cast<group>(_mm_movelh_ps(_mm_unpackhi_ps(a, b), _mm_unpackhi_ps(c, d)));
    }
  }
  return result;
}

namespace lanes_detail {

// Columns first .. first + Count - 1 of two or four rows, turned into lanes. Count is 2 or 4 of 32 bits, 1 or 2 of 64.
template <std::size_t Count, class T>
LANEMATH_INLINE void turn_columns(std::array<__m128, Count>& column, const T* a, const T* b, const T* c, const T* d) {
  const auto whole = [](const T* from) LANEMATH_LAMBDA { return _mm_loadu_ps(reinterpret_cast<const float*>(from)); };
  const auto halves = [](const T* low, const T* high) LANEMATH_LAMBDA {
    return _mm_loadh_pi(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(low))),
                        reinterpret_cast<const __m64*>(high));
  };
  if constexpr (sizeof(T) == 8 && Count == 2) {
    const auto first = _mm_castps_pd(whole(a)), second = _mm_castps_pd(whole(b));
    column = {_mm_castpd_ps(_mm_unpacklo_pd(first, second)), _mm_castpd_ps(_mm_unpackhi_pd(first, second))};
  } else if constexpr (sizeof(T) == 8) {
    column = {halves(a, b)};
  } else if constexpr (Count == 4) {
    const auto low = _mm_unpacklo_ps(whole(a), whole(b)), more_low = _mm_unpacklo_ps(whole(c), whole(d));
    const auto high = _mm_unpackhi_ps(whole(a), whole(b)), more_high = _mm_unpackhi_ps(whole(c), whole(d));
    column = {_mm_movelh_ps(low, more_low), _mm_movehl_ps(more_low, low), _mm_movelh_ps(high, more_high),
              _mm_movehl_ps(more_high, high)};
  } else {
    static_assert(Count == 2);
    const auto first = halves(a, b), second = halves(c, d);
    column = {_mm_shuffle_ps(first, second, _MM_SHUFFLE(2, 0, 2, 0)),
              _mm_shuffle_ps(first, second, _MM_SHUFFLE(3, 1, 3, 1))};
  }
}

}  // namespace lanes_detail

// The columns of the rows at the lanes' indices, which must all be inside the table. Of 32-bit columns there is an
// even number.
template <class T, std::size_t Size, std::size_t Columns, int W>
LANEMATH_INLINE std::array<lanes<T, W>, Columns> look_up_row(const T (&table)[Size][Columns],
                                                             const lanes<std::int32_t, W>& index) {
  std::array<lanes<T, W>, Columns> result;
  if constexpr (W == 1) {
    for (std::size_t c = 0; c < Columns; ++c) result[c].g[0] = table[std::uint32_t(index.g[0])][c];
  } else {
    constexpr std::size_t at_once = 16 / sizeof(T), rest = Columns % at_once;
    using group = typename lanes<T, W>::group;
    for (int i = 0; i < result[0].groups; ++i) {
      const auto first = lanes_detail::indices(index, sizeof(T) == 4 ? 2 * i : i);
      const auto second = sizeof(T) == 4 && W > 2 ? lanes_detail::indices(index, 2 * i + 1) : first;
      const auto turn = [&](auto count, std::size_t column) LANEMATH_LAMBDA {
        std::array<__m128, count> turned;
        lanes_detail::turn_columns(turned, table[first.first] + column, table[first.second] + column,
                                   table[second.first] + column, table[second.second] + column);
        for (std::size_t c = 0; c < count; ++c) result[column + c].g[i] = std::bit_cast<group>(turned[c]);
      };
      for (std::size_t c = 0; c + at_once <= Columns; c += at_once)
        turn(std::integral_constant<std::size_t, at_once>(), c);
      if constexpr (rest != 0) turn(std::integral_constant<std::size_t, rest>(), Columns - rest);
    }
  }
  return result;
}

// A value that the optimiser cannot see through, for a step that exists for its effect (the quieting of a NaN
// by x * 1.0, an overflow that depends on the direction in force) and would otherwise be folded away.
LANEMATH_INLINE float opaque(float v) {
  asm("" : "+x"(v));
  return v;
}
LANEMATH_INLINE double opaque(double v) {
  asm("" : "+x"(v));
  return v;
}
template <class T, int W>
LANEMATH_INLINE lanes<T, W> opaque(lanes<T, W> v) {
  for (auto& each : v.g)
    if constexpr (W == 1 && std::is_integral_v<T>)
      asm("" : "+r"(each));
    else
      asm("" : "+x"(each));
  return v;
}

// The sign bit alone, as a pattern; the value without it; a pattern joined to a value's.
template <class T>
inline constexpr auto sign_mask = std::numeric_limits<int_of_size<sizeof(T)>>::min();
template <class T, int W>
LANEMATH_INLINE auto sign_of(const lanes<T, W>& x) {
  return bits(x) & sign_mask<T>;
}
template <class T, int W>
LANEMATH_INLINE lanes<T, W> magnitude(const lanes<T, W>& x) {
  return from_bits(bits(x) & ~sign_mask<T>);
}
template <class T, int W>
LANEMATH_INLINE lanes<T, W> with_bits(const lanes<T, W>& x, const lanes<int_of_size<sizeof(T)>, W>& more) {
  return from_bits(bits(x) | more);
}
// The value where the mask holds, else +0.
template <class T, int W>
LANEMATH_INLINE lanes<T, W> where(const lanes<int_of_size<sizeof(T)>, W>& mask, const lanes<T, W>& x) {
  return from_bits(bits(x) & mask);
}

// Lanes in which either is a NaN.
template <class T, int W>
LANEMATH_INLINE auto unordered(const lanes<T, W>& x, const lanes<T, W>& y) {
  if constexpr (sizeof(T) == 4)
    return bits(lanes_detail::instruction(_mm_cmpunord_ps, _mm_cmpunord_ss, x, y));
  else
    return bits(lanes_detail::instruction(_mm_cmpunord_pd, _mm_cmpunord_sd, x, y));
}

// Lanes whose magnitude is above a bound, given as a bit pattern (the upper half of it for doubles): infinities and
// NaNs are among them.
template <class T, int W>
LANEMATH_INLINE auto magnitude_above(const lanes<T, W>& x, std::int32_t bound) {
  // Opaque: a compiler that knows the sign bit to be clear makes two instructions of the comparison.
  return opaque(top_word(x) & 0x7FFFFFFF) > bound;
}

}  // namespace lanemath
