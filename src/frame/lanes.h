// lanes<T, W>: W lanes of T, carried as groups, each in a register of 128 bits or, at the levels that have larger ones,
// in the smallest that takes all lanes, or else the largest; lanes<T, 1> is one scalar and compiles to scalar
// instructions. The operators apply to every group in turn, so that one kernel text serves all widths and levels.
// Lanes of 32 bits at width 2 fill the lower half of their group; the contents of its upper half are never used.
//
// Integer lanes wrap. A comparison gives a mask: integer lanes of the same size, all ones or all zeros.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>

#include "frame/level.h"

namespace lanemath {

// The lanes of a register as large as the level has.
template <class T>
inline constexpr int largest_group = register_bytes / int(sizeof(T));

template <class T, int W>
struct group_of {
  static constexpr int bytes = std::clamp(W * int(sizeof(T)), 16, register_bytes);
  typedef T type __attribute__((vector_size(bytes)));
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
  static constexpr int group_bytes = sizeof(group);
  static constexpr int groups = (W * int(sizeof(T)) + group_bytes - 1) / group_bytes;
  using on_group = instructions<std::max(group_bytes, 16)>;

  group g[groups];

  lanes() = default;
  LANEMATH_INLINE lanes(T value) {
    for (auto& each : g) {
      if constexpr (W == 1)
        each = value;
      else
        each = [&]<std::size_t... I>(std::index_sequence<I...>) LANEMATH_LAMBDA { return group{(void(I), value)...}; }
      (std::make_index_sequence<group_bytes / sizeof(T)>{});
    }
  }
};

// Applies f to corresponding groups; the result has lanes of type U.
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
// The same for either precision: under -frounding-math T(0.5) inside a kernel would be converted at run time.
template <class T>
inline constexpr T zero_v = 0;
template <class T>
inline constexpr T half_v = 0.5;
template <class T>
inline constexpr T one_v = 1;

// A value that the optimiser cannot see through, for steps that exist for their effect and would otherwise be folded
// away: the quieting of a NaN by x * 1.0, an overflow that depends on the current rounding direction.
LANEMATH_INLINE float opaque(float v) {
  asm("" : "+x"(v));
  return v;
}
LANEMATH_INLINE double opaque(double v) {
  asm("" : "+x"(v));
  return v;
}

namespace lanes_detail {

// Integer arithmetic on unsigned lanes, so that it wraps at every width, the scalar one included.
template <class F, class T, int W>
LANEMATH_INLINE lanes<T, W> wrapping(F f, const lanes<T, W>& a, const lanes<T, W>& b) {
  if constexpr (std::is_integral_v<T>) {
    using U = std::make_unsigned_t<T>;
    return as<T>(map<U>(f, as<U>(a), as<U>(b)));
  } else {
    return map<T>(f, a, b);
  }
}

// Scalar floating-point comparisons use the instructions that produce a mask: compilers turn a < b into a branch. The
// mask is opaque as a number: otherwise EXTRACTPS, two steps, takes it to the integer registers where MOVD is one.
template <class T, class F, class Single, class Double, int W>
LANEMATH_INLINE auto compare(F f, Single single, Double wide, const lanes<T, W>& a, const lanes<T, W>& b) {
  using I = int_of_size<sizeof(T)>;
  return map<I>(
      [&](auto p, auto q) LANEMATH_LAMBDA {
        if constexpr (W > 1)
          return std::bit_cast<typename lanes<I, W>::group>(f(p, q));
        else if constexpr (std::is_same_v<T, float>)
          return std::bit_cast<I>(opaque(single(_mm_set_ss(p), _mm_set_ss(q))[0]));
        else if constexpr (std::is_same_v<T, double>)
          return std::bit_cast<I>(opaque(wide(_mm_set_sd(p), _mm_set_sd(q))[0]));
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

// The register that holds a group of lanes of T.
template <class T, class On>
using register_of = std::conditional_t<std::is_integral_v<T>, typename On::integers,
                                       std::conditional_t<sizeof(T) == 4, typename On::floats, typename On::doubles>>;

// How many groups of 64-bit lanes have the lanes of one group of 32-bit lanes: where that is no larger, it is one.
template <class T, int W>
inline constexpr int halves_of = lanes<std::int32_t, W>::group_bytes == lanes<T, W>::group_bytes ? 2 : 1;

// One 32-bit half of each 64-bit lane.
template <int Half, class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> halves(const lanes<T, W>& v) {
  static_assert(sizeof(T) == 8);
  lanes<std::int32_t, W> result;
  if constexpr (W == 1) {
    result.g[0] = std::int32_t(std::bit_cast<std::int64_t>(v.g[0]) >> 32 * Half);
  } else {
    using on = typename lanes<T, W>::on_group;
    using group = typename lanes<std::int32_t, W>::group;
    using floats = typename on::floats;
    constexpr int last = lanes<T, W>::groups - 1;
    for (int i = 0; i < result.groups; ++i) {
      if constexpr (halves_of<T, W> == 2)
        result.g[i] = std::bit_cast<group>(on::template words<Half>(
            std::bit_cast<floats>(v.g[2 * i]), std::bit_cast<floats>(v.g[2 * i < last ? 2 * i + 1 : last])));
      else
        result.g[i] = std::bit_cast<group>(on::template words<Half>(std::bit_cast<floats>(v.g[i])));
    }
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

// The word with the sign and the exponent, or with an integer's sign: the whole of a 32-bit lane, the upper half of a
// 64-bit one.
template <class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> top_word(const lanes<T, W>& x) {
  if constexpr (sizeof(T) == 4)
    return bits(x);
  else
    return upper(x);
}
// Turns a mask over lanes of any size into one over 32-bit lanes.
template <class T, int W>
LANEMATH_INLINE lanes<std::int32_t, W> narrow_mask(const lanes<T, W>& mask) {
  return top_word(mask);
}

// Takes out, or puts back, C lanes from `first` on, in whole groups.
template <int C, class T, int W>
LANEMATH_INLINE lanes<T, C> part(const lanes<T, W>& v, int first) {
  lanes<T, C> result;
  static_assert(lanes<T, C>::group_bytes == lanes<T, W>::group_bytes);
  for (int i = 0; i < result.groups; ++i) result.g[i] = v.g[first * int(sizeof(T)) / v.group_bytes + i];
  return result;
}
template <class T, int W, int C>
LANEMATH_INLINE void put_part(lanes<T, W>& v, int first, const lanes<T, C>& piece) {
  static_assert(lanes<T, C>::group_bytes == lanes<T, W>::group_bytes);
  for (int i = 0; i < piece.groups; ++i) v.g[first * int(sizeof(T)) / v.group_bytes + i] = piece.g[i];
}

// A single lane in every place of a group, and the first lane of a group. What is done to the bits of a single lane
// takes it to the integer registers and back; a group stays where it is.
template <class T>
LANEMATH_INLINE lanes<T, 16 / int(sizeof(T))> spread(const lanes<T, 1>& x) {
  return x.g[0];
}
template <class T, int W>
LANEMATH_INLINE lanes<T, 1> first(const lanes<T, W>& v) {
  return v.g[0][0];
}

// Calls f(lane, one, other) for every 64-bit lane, and collects the two numbers that it gives: for what only the
// integer registers can do.
template <class T, int W, class F>
LANEMATH_INLINE void lane_by_lane(F f, const lanes<T, W>& v, lanes<T, W>& ones, lanes<T, W>& others) {
  static_assert(sizeof(T) == 8);
  for (int i = 0; i < v.groups; ++i) {
    if constexpr (W == 1) {
      f(v.g[i], ones.g[i], others.g[i]);
    } else {
      constexpr int per_group = lanes<T, W>::group_bytes / int(sizeof(T));
      T one[per_group], other[per_group];
      for (int k = 0; k < per_group; ++k) f(v.g[i][k], one[k], other[k]);
      const auto joined = []<std::size_t... K>(const T(&of)[per_group], std::index_sequence<K...>) LANEMATH_LAMBDA {
        return typename lanes<T, W>::group{of[K]...};
      };
      constexpr std::make_index_sequence<per_group> places;
      ones.g[i] = joined(one, places);
      others.g[i] = joined(other, places);
    }
  }
}

// A mask as bits, lane i at bit i.
template <class T, int W>
LANEMATH_INLINE unsigned mask_bits(const lanes<T, W>& mask) {
  unsigned result = 0;
  if constexpr (W == 1) {
    result = mask.g[0] & 1;
  } else {
    using on = typename lanes<T, W>::on_group;
    using packed = std::conditional_t<sizeof(T) == 4, typename on::floats, typename on::doubles>;
    constexpr int per_group = lanes<T, W>::group_bytes / int(sizeof(T));
    for (int i = 0; i < mask.groups; ++i) result |= on::signs(std::bit_cast<packed>(mask.g[i])) << i * per_group;
  }
  return result & ((1u << W) - 1);
}

// Whether any lane of the mask is set: one test at every width.
template <class T, int W>
LANEMATH_INLINE bool any(const lanes<T, W>& mask) {
  if constexpr (W == 1) {
    return mask.g[0] != 0;
  } else {
    auto all = mask.g[0];
    for (int i = 1; i < mask.groups; ++i) all |= mask.g[i];
    lanes<T, lanes<T, W>::group_bytes / int(sizeof(T))> folded;
    folded.g[0] = all;
    return (mask_bits(folded) & ((1u << W) - 1)) != 0;
  }
}

// The sign bit alone, as a pattern; the value without it; a value with the bits of a pattern set.
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
// The value where the mask is set, else +0.
template <class T, int W>
LANEMATH_INLINE lanes<T, W> where(const lanes<int_of_size<sizeof(T)>, W>& mask, const lanes<T, W>& x) {
  return from_bits(bits(x) & mask);
}

// Lanes that the optimiser cannot see through.
template <class T, int W>
LANEMATH_INLINE lanes<T, W> opaque(lanes<T, W> v) {
  for (auto& each : v.g)
    if constexpr (W == 1 && std::is_integral_v<T>)
      asm("" : "+r"(each));
    else
      asm("" : "+x"(each));
  return v;
}

}  // namespace lanemath
