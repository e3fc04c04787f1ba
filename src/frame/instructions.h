// Functions that the processor has one or two instructions for.
#pragma once

#include "frame/lanes.h"
#include "frame/operation.h"

namespace lanemath {

// Applies an instruction to every group, or its scalar form to a single lane, whose register holds no other lane that
// could be computed on.
namespace lanes_detail {

LANEMATH_INLINE __m128 in_register(float v) { return _mm_set_ss(v); }
LANEMATH_INLINE __m128d in_register(double v) { return _mm_set_sd(v); }

template <class Packed, class Scalar, class T, int W, class... Rest>
LANEMATH_INLINE lanes<T, W> instruction(Packed on_group, Scalar on_lane, const lanes<T, W>& first,
                                        const Rest&... rest) {
  return map<T>(
      [&](auto... v) LANEMATH_LAMBDA {
        if constexpr (W == 1)
          return opaque(T(on_lane(in_register(v)...)[0]));  // as in a comparison
        else
          return std::bit_cast<typename lanes<T, W>::group>(
              on_group(std::bit_cast<register_of<T, typename lanes<T, W>::on_group>>(v)...));
      },
      first, rest...);
}

}  // namespace lanes_detail

// x + y and x * y where two different NaNs may meet: the one in x survives. Compilers are free to swap the operands of
// the plain operators.
#define LANEMATH_IN_ORDER(name, mnemonic)                                        \
  template <class T, int W>                                                      \
  LANEMATH_INLINE lanes<T, W> name(const lanes<T, W>& x, const lanes<T, W>& y) { \
    return map<T>(                                                               \
        [](auto first, auto second) LANEMATH_LAMBDA {                            \
          if constexpr (W == 1 && sizeof(T) == 4)                                \
            asm(LANEMATH_REPLACING(mnemonic "ss") : "+x"(first) : "x"(second));  \
          else if constexpr (W == 1)                                             \
            asm(LANEMATH_REPLACING(mnemonic "sd") : "+x"(first) : "x"(second));  \
          else if constexpr (sizeof(T) == 4)                                     \
            asm(LANEMATH_REPLACING(mnemonic "ps") : "+x"(first) : "x"(second));  \
          else                                                                   \
            asm(LANEMATH_REPLACING(mnemonic "pd") : "+x"(first) : "x"(second));  \
          return first;                                                          \
        },                                                                       \
        x, y);                                                                   \
  }
LANEMATH_IN_ORDER(ordered_sum, "add")
LANEMATH_IN_ORDER(ordered_product, "mul")
#undef LANEMATH_IN_ORDER

// MINPS and MAXPS: x < y ? x : y and x > y ? x : y. A tie, or a NaN in either argument, gives y.
template <class T, int W>
LANEMATH_INLINE lanes<T, W> minimum(const lanes<T, W>& x, const std::type_identity_t<lanes<T, W>>& y) {
  using on = typename lanes<T, W>::on_group;
  if constexpr (sizeof(T) == 4)
    return lanes_detail::instruction(on::min_ps, _mm_min_ss, x, y);
  else
    return lanes_detail::instruction(on::min_pd, _mm_min_sd, x, y);
}
template <class T, int W>
LANEMATH_INLINE lanes<T, W> maximum(const lanes<T, W>& x, const std::type_identity_t<lanes<T, W>>& y) {
  using on = typename lanes<T, W>::on_group;
  if constexpr (sizeof(T) == 4)
    return lanes_detail::instruction(on::max_ps, _mm_max_ss, x, y);
  else
    return lanes_detail::instruction(on::max_pd, _mm_max_sd, x, y);
}

template <class T, int W>
LANEMATH_INLINE lanes<T, W> square_root(const lanes<T, W>& x) {
  using on = typename lanes<T, W>::on_group;
  if constexpr (sizeof(T) == 4)
    return lanes_detail::instruction(on::sqrt_ps, _mm_sqrt_ss, x);
  else
    return lanes_detail::instruction(
        on::sqrt_pd, [](__m128d v) LANEMATH_LAMBDA { return _mm_sqrt_sd(v, v); }, x);
}

// Accurate to about 11.5 bits; the exact bits differ between processors.
template <int W>
LANEMATH_INLINE lanes<float, W> reciprocal_estimate(const lanes<float, W>& x) {
  return lanes_detail::instruction(lanes<float, W>::on_group::rcp_ps, _mm_rcp_ss, x);
}
template <int W>
LANEMATH_INLINE lanes<float, W> reciprocal_root_estimate(const lanes<float, W>& x) {
  return lanes_detail::instruction(lanes<float, W>::on_group::rsqrt_ps, _mm_rsqrt_ss, x);
}

template <direction D, class T, int W>
LANEMATH_INLINE lanes<T, W> round_to(const lanes<T, W>& x) {
  using on = typename lanes<T, W>::on_group;
  if constexpr (sizeof(T) == 4)
    return lanes_detail::instruction([](auto v) LANEMATH_LAMBDA { return on::template round<int(D)>(v); },
                                     [](__m128 v) LANEMATH_LAMBDA { return _mm_round_ss(v, v, int(D)); }, x);
  else
    return lanes_detail::instruction([](auto v) LANEMATH_LAMBDA { return on::template round<int(D)>(v); },
                                     [](__m128d v) LANEMATH_LAMBDA { return _mm_round_sd(v, v, int(D)); }, x);
}

// The 64-bit product of the lower 32 bits of the lanes.
template <int W>
LANEMATH_INLINE lanes<std::uint64_t, W> product_of_lower(const lanes<std::uint64_t, W>& a,
                                                         const lanes<std::uint64_t, W>& b) {
  return map<std::uint64_t>(
      [](auto p, auto q) LANEMATH_LAMBDA {
        using on = typename lanes<std::uint64_t, W>::on_group;
        if constexpr (W == 1)
          return std::uint64_t(std::uint32_t(p)) * std::uint32_t(q);
        else
          return std::bit_cast<decltype(p)>(
              on::mul_epu32(std::bit_cast<typename on::integers>(p), std::bit_cast<typename on::integers>(q)));
      },
      a, b);
}

// Shifts each 64-bit lane left by its own count. Counts other than 0 to 63 give an unspecified result.
template <class T, int W>
LANEMATH_INLINE lanes<T, W> shifted_left(const lanes<T, W>& v, const lanes<T, W>& count) {
  static_assert(sizeof(T) == 8);
  using U = std::make_unsigned_t<T>;
  return as<T>(map<U>(
      [](auto a, auto n) LANEMATH_LAMBDA {
        if constexpr (W == 1) {
          return a << (n & 63);
        } else {
          using on = typename lanes<U, W>::on_group;
          return std::bit_cast<typename lanes<U, W>::group>(
              on::sllv_epi64(std::bit_cast<typename on::integers>(a), std::bit_cast<typename on::integers>(n)));
        }
      },
      as<U>(v), as<U>(count)));
}

// Lanes in which either argument is a NaN.
template <class T, int W>
LANEMATH_INLINE auto unordered(const lanes<T, W>& x, const lanes<T, W>& y) {
  using on = typename lanes<T, W>::on_group;
  if constexpr (sizeof(T) == 4)
    return bits(lanes_detail::instruction(on::cmpunord_ps, _mm_cmpunord_ss, x, y));
  else
    return bits(lanes_detail::instruction(on::cmpunord_pd, _mm_cmpunord_sd, x, y));
}

// Lanes whose magnitude is above a bound, given as a bit pattern (the upper half of it for doubles): infinities and
// NaNs are above every finite bound.
template <class T, int W>
LANEMATH_INLINE auto magnitude_above(const lanes<T, W>& x, std::int32_t bound) {
  // Opaque: a compiler that knows that the sign bit is clear turns the comparison into two instructions.
  return opaque(top_word(x) & 0x7FFFFFFF) > bound;
}

}  // namespace lanemath
