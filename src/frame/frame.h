// What every exported function shares. An operation states its signature, its kernel and, where it has rare lanes, how
// they are detected and repaired; the frame makes the functions of all six widths.
//
//   struct expf_standard {
//     using signature = float(float);
//     template <class V> static V kernel(V x);                             // all lanes, no branch on a value
//     template <class V> static auto rare_test(V x);                       // mask of the marked lanes
//     template <class V, class M> static void fix_up(V x, V& y, M& rare);  // optional: settles whole classes
//     static constexpr auto rare = expf_rare;                              // the scalar routine for one lane
//   };
//
// Where the rare test needs values that the kernel computes on the way, marked_kernel replaces kernel and rare_test; it
// returns the result and the mask together, joined by `marked`.
//
// An operation with `tested_first = true` runs the rare test before the kernel, and no kernel where all lanes are
// marked: for a fix-up that serves whole vectors. Where no kernel has run, fix-up and rare routine find zeros.
//
// A kernel-only operation has no rare_test; an always-scalar one says `always_scalar = true` instead. Where one marked
// lane sends all lanes to the scalar routine, `one_marks_all = true` replaces fix_up. For two results the signature's
// result is through_pointer<T, U> or pair_of<T, U>, kernel returns two_results, and fix_up and the rare routine take
// the second result after the first.
//
// A rare routine takes pointers to one lane of each argument, then of each result, which holds the kernel's value on
// entry. It returns a status.
#pragma once

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "frame/abi.h"
#include "frame/catalogue.h"
#include "frame/conversions.h"
#include "frame/instructions.h"
#include "frame/lanes.h"
#include "frame/look_up.h"

#define LANEMATH_RARE [[gnu::noinline]] static status

namespace lanemath {

// What a rare routine found in its lane. Nothing reads it.
enum class status : int { ordinary, domain, singular, overflow, underflow };

// The result types of a signature with two results. The one that goes through the pointer is stored at the very end, in
// one store to an address of any alignment; at width 3 all four lanes are stored.
template <class T, class U>
struct through_pointer {};
template <class T, class U>
struct pair_of {};

template <class First, class Second>
struct two_results {
  First first;
  Second second;
};

// What marked_kernel returns: the kernel's result and the mask of the marked lanes.
template <class V, class M>
LANEMATH_INLINE two_results<V, M> marked(const V& result, const M& rare) {
  return {result, rare};
}

// The base of an operation of one argument whose rare lanes are those above a magnitude.
template <class Signature, auto Routine, std::int32_t Bound>
struct rare_above {
  using signature = Signature;
  static constexpr auto rare = Routine;
  static auto rare_test(auto x) { return magnitude_above(x, Bound); }
};

namespace frame_detail {

template <class T>
constexpr lane lane_of() {
  if constexpr (std::is_same_v<T, float>) return lane::f32;
  if constexpr (std::is_same_v<T, double>) return lane::f64;
  if constexpr (std::is_same_v<T, std::int32_t>) return lane::i32;
  if constexpr (std::is_same_v<T, std::uint32_t>) return lane::u32;
  if constexpr (std::is_same_v<T, std::int64_t>) return lane::i64;
  if constexpr (std::is_same_v<T, std::uint64_t>) return lane::u64;
}

}  // namespace frame_detail

// A signature taken apart: the lane types, and how arguments and results cross the border.
template <class Signature>
struct border;

template <class T, class... A>
struct border<T(A...)> {
  static constexpr signature sig{frame_detail::lane_of<T>(), {frame_detail::lane_of<A>()...}};
  template <int W>
  using result = abi<T, W>;
  template <int W>
  using function = result<W>(abi<A, W>...);

  // Unpacks the arguments for `evaluate` and delivers what it returns.
  template <int W, class F>
  LANEMATH_INLINE static result<W> call(F evaluate, const abi<A, W>&... x) {
    return to_abi<T, W>(evaluate(from_abi<A, W>(x)...));
  }
};

template <class T, class U, class... A>
struct border<through_pointer<T, U>(A...)> {
  static constexpr signature sig{
      frame_detail::lane_of<T>(), {frame_detail::lane_of<A>()...}, frame_detail::lane_of<U>(), delivery::pointer};
  template <int W>
  using result = abi<T, W>;
  template <int W>
  using function = result<W>(abi<A, W>..., void*);

  template <int W, class F>
  LANEMATH_INLINE static result<W> call(F evaluate, const abi<A, W>&... x, void* second) {
    const auto y = evaluate(from_abi<A, W>(x)...);
    const auto delivered = to_abi<U, W>(y.second);
    __builtin_memcpy(second, &delivered, sizeof delivered);
    return to_abi<T, W>(y.first);
  }
};

template <class T, class U, class... A>
struct border<pair_of<T, U>(A...)> {
  static constexpr signature sig{
      frame_detail::lane_of<T>(), {frame_detail::lane_of<A>()...}, frame_detail::lane_of<U>(), delivery::pair};
  template <int W>
  using result = abi_pair<T, U, W>;
  template <int W>
  using function = result<W>(abi<A, W>...);

  template <int W, class F>
  LANEMATH_INLINE static result<W> call(F evaluate, const abi<A, W>&... x) {
    const auto y = evaluate(from_abi<A, W>(x)...);
    return {to_abi<T, W>(y.first), to_abi<U, W>(y.second)};
  }
};

// Applies f to pieces of C lanes each, as straight-line code, and joins the results.
template <int C, int W, class F, class... X>
LANEMATH_INLINE auto by_pieces(F f, const X&... x) {
  if constexpr (C >= W) {
    return f(x...);
  } else {
    const auto piece_at = [&](int first) LANEMATH_LAMBDA { return f(part<C>(x, first)...); };
    // Not a loop: compilers do not unroll one whose pieces are large.
    const auto for_each_piece = [&]<int... I>(std::integer_sequence<int, I...>, auto put) LANEMATH_LAMBDA {
      (put(I * C, piece_at(I * C)), ...);
    };
    constexpr std::make_integer_sequence<int, W / C> pieces;
    using piece = decltype(piece_at(0));
    if constexpr (requires { piece::width; }) {
      lanes<typename piece::value_type, W> all;
      for_each_piece(pieces, [&](int first, const auto& y) LANEMATH_LAMBDA { put_part(all, first, y); });
      return all;
    } else {
      two_results<lanes<typename decltype(piece::first)::value_type, W>,
                  lanes<typename decltype(piece::second)::value_type, W>>
          all;
      for_each_piece(pieces, [&](int first, const auto& y) LANEMATH_LAMBDA {
        put_part(all.first, first, y.first);
        put_part(all.second, first, y.second);
      });
      return all;
    }
  }
}

namespace frame_detail {

// Runs the rare routine on every marked lane, in ascending order.
template <auto Routine, class... Pointers>
[[gnu::noinline, gnu::cold]] void rare_loop(unsigned mask, Pointers... lanes_of) {
  for (; mask != 0; mask &= mask - 1) Routine(lanes_of + __builtin_ctz(mask)...);
}
// Runs it on all lanes.
template <auto Routine, int W, class... Pointers>
LANEMATH_INLINE void every_lane(Pointers... lanes_of) {
#pragma GCC unroll 1
  for (int i = 0; i < W; ++i) Routine(lanes_of + i...);
}

template <class T, int W>
LANEMATH_INLINE T* scratch(lanes<T, W>& v) {
  return reinterpret_cast<T*>(&v);
}

// Has a loop put the scalar routine's results into the lanes. It works on copies, so that only they have an address and
// the straight path keeps its values in registers. Two results are copied separately, because compilers copy a
// structure of many groups by calling memcpy.
template <class Loop, class Y, class... X>
LANEMATH_INLINE void mend(Loop loop, Y& y, X... x) {
  if constexpr (requires { y.second; }) {
    auto first = y.first;
    auto second = y.second;
    loop(scratch(x)..., scratch(first), scratch(second));
    y.first = first;
    y.second = second;
  } else {
    auto copy = y;
    loop(scratch(x)..., scratch(copy));
    y = copy;
  }
}

// How many groups can be computed side by side before the registers spill.
template <class Op>
constexpr int groups_at_once() {
  if constexpr (requires { Op::groups_at_once; })
    return Op::groups_at_once;
  else
    return 4;
}

template <class Op, class Y, class M, class... X>
LANEMATH_INLINE void settle_marked(M rare, Y& y, const X&... x) {
  if constexpr (requires { Op::one_marks_all; })
    rare = M(-1);
  else if constexpr (requires { Op::fix_up(x..., y, rare); })
    Op::fix_up(x..., y, rare);
  else if constexpr (requires { Op::fix_up(x..., y.first, y.second, rare); })
    Op::fix_up(x..., y.first, y.second, rare);
  if (const unsigned mask = mask_bits(rare))
    mend([mask](auto... lanes_of) LANEMATH_LAMBDA { rare_loop<Op::rare>(mask, lanes_of...); }, y, x...);
}
template <class Op, class Y, class M, class... X>
LANEMATH_INLINE void settle(const M& rare, Y& y, const X&... x) {
  if (any(rare)) [[unlikely]]
    settle_marked<Op>(rare, y, x...);
}

template <class Op, int W, int Piece, class... X>
LANEMATH_INLINE auto evaluate_marked(const X&... x) {
  auto marked = by_pieces<Piece, W>([](const auto&... v) LANEMATH_LAMBDA { return Op::marked_kernel(v...); }, x...);
  settle<Op>(marked.second, marked.first, x...);
  return marked.first;
}
template <class Op>
struct kernel_of {
  LANEMATH_INLINE auto operator()(const auto&... v) const { return Op::kernel(v...); }
};
// The result type is spelled out: with a deduced one Clang 14 returns a copy.
template <class Op, int W, int Piece, class... X>
LANEMATH_INLINE auto evaluate_tested(const X&... x) -> decltype(by_pieces<Piece, W>(kernel_of<Op>(), x...)) {
  decltype(by_pieces<Piece, W>(kernel_of<Op>(), x...)) y = by_pieces<Piece, W>(kernel_of<Op>(), x...);
  if constexpr (requires { Op::always_scalar; })
    mend([](auto... lanes_of) LANEMATH_LAMBDA { every_lane<Op::rare, W>(lanes_of...); }, y, x...);
  else if constexpr (requires { Op::rare_test(x...); })
    settle<Op>(by_pieces<Piece, W>([](const auto&... v) LANEMATH_LAMBDA { return Op::rare_test(v...); }, x...), y,
               x...);
  return y;
}

template <class Op, int W, int Piece, class... X>
LANEMATH_INLINE auto evaluate_tested_first(const X&... x) -> decltype(by_pieces<Piece, W>(kernel_of<Op>(), x...)) {
  const auto rare = Op::rare_test(x...);
  if (!any(rare)) [[likely]]
    return by_pieces<Piece, W>(kernel_of<Op>(), x...);
  decltype(by_pieces<Piece, W>(kernel_of<Op>(), x...)) y = {};
  if (mask_bits(rare) != (1u << W) - 1) y = by_pieces<Piece, W>(kernel_of<Op>(), x...);
  settle_marked<Op>(rare, y, x...);
  return y;
}

template <class Op, int W, class... X>
LANEMATH_INLINE auto evaluate(const X&... x) {
  // At least a group of the narrowest lanes.
  constexpr int piece =
      std::max(largest_group<std::int32_t>,
               groups_at_once<Op>() * register_bytes / int(border<typename Op::signature>::sig.widest_lane()));
  if constexpr (requires { Op::marked_kernel(x...); })
    return evaluate_marked<Op, W, piece>(x...);
  else if constexpr (requires { Op::tested_first; })
    return evaluate_tested_first<Op, W, piece>(x...);
  else
    return evaluate_tested<Op, W, piece>(x...);
}

template <std::size_t Index, class T>
LANEMATH_INLINE lanes<T, 4> with_filler(lanes<T, 4> v) {
  constexpr int per_group = lanes<T, 4>::group_bytes / int(sizeof(T));
  // A constant of the lane's own type: under -frounding-math every call would otherwise convert it.
  constexpr T filler = static_cast<T>(catalogue[Index].filler);
  v.g[3 / per_group][3 % per_group] = filler;
  return v;
}

// One call of operation number `Index` of the catalogue at width W. Arguments that a function does not have are
// `nothing`.
struct nothing {};
template <class Op, int W, std::size_t Index, class A, class B, class C>
LANEMATH_INLINE auto enter(const A& a, const B& b, const C& c) {
  using crossing = border<typename Op::signature>;
  static_assert(crossing::sig == catalogue[Index].sig, "not the signature that the catalogue gives");
  const auto compute = [](auto... x) LANEMATH_LAMBDA {
    if constexpr (W == 3)
      return evaluate<Op, 4>(with_filler<Index>(x)...);
    else
      return evaluate<Op, W>(x...);
  };
  if constexpr (std::is_same_v<B, nothing>)
    return crossing::template call<W>(compute, a);
  else if constexpr (std::is_same_v<C, nothing>)
    return crossing::template call<W>(compute, a, b);
  else
    return crossing::template call<W>(compute, a, b, c);
}

// Checks that the line that exports a form agrees with the catalogue's row.
template <std::size_t Index, int W, variant V, bool Standalone>
constexpr void check_form() {
  static_assert(catalogue[Index].has(V), "no variant that the catalogue gives");
  static_assert(catalogue[Index].is_standalone(W, V) == Standalone, "standalone here or in the catalogue alone");
  static_assert(catalogue[Index].served_by(W, V) == V, "another variant's function by the catalogue");
}
template <class Op, std::size_t Index, int W>
constexpr bool is_exported() {
  if constexpr (register_bytes > 16) {
    constexpr bool always_scalar = requires { Op::always_scalar; };
    static_assert(always_scalar == catalogue[Index].always_scalar, "always scalar here or in the catalogue alone");
    return catalogue[Index].is_wide(W);
  }
  return true;
}
template <std::size_t Index, int W, variant One, variant Other>
inline constexpr bool are_same = catalogue[Index].has(One) && catalogue[Index].has(Other) &&
                                 catalogue[Index].served_by(W, One) == catalogue[Index].served_by(W, Other);

// The type of argument number I of a function. An empty structure takes up no place among a call's arguments.
template <std::size_t I, class F>
struct parameter {
  using type = nothing;
};
template <std::size_t I, class R, class First, class... Rest>
struct parameter<I, R(First, Rest...)> : parameter<I - 1, R(Rest...)> {};
template <class R, class First, class... Rest>
struct parameter<0, R(First, Rest...)> {
  using type = First;
};

template <class Op, int W>
using function = typename border<typename Op::signature>::template function<W>;
template <class Op, int W, std::size_t I>
using parameter_t = typename parameter<I, function<Op, W>>::type;
template <class Op, int W>
using result_t = typename border<typename Op::signature>::template result<W>;

}  // namespace frame_detail
}  // namespace lanemath

// LANEMATH_EXPORT(operation, body) exports `body` as the default variant of an operation at all widths, and
// LANEMATH_SAME(operation, variant, other) exports the same functions as another variant too. LANEMATH_EXPORT_BUT omits
// one width, at which LANEMATH_EXPORT_AT exports a standalone body. A last argument names a variant other than the
// default: LANEMATH_EXPORT(expf, expf_native, _native). The catalogue's row must agree.
//
// A companion has no forms of the narrowest widths and no standalone ones. Which forms of width 4 it has, only the
// catalogue knows: the others have no body there, are not in the list of exports, and so do not reach the file.
#define LANEMATH_AT_4(...) __VA_ARGS__
#define LANEMATH_AT_8(...) __VA_ARGS__
#define LANEMATH_AT_16(...) __VA_ARGS__
#if LANEMATH_REGISTER_BYTES == 16
#define LANEMATH_IN_LIBRARY(...) __VA_ARGS__
#else
#define LANEMATH_IN_LIBRARY(...)
#endif
#define LANEMATH_AT_1(...) LANEMATH_IN_LIBRARY(__VA_ARGS__)
#define LANEMATH_AT_2(...) LANEMATH_IN_LIBRARY(__VA_ARGS__)
#define LANEMATH_AT_3(...) LANEMATH_IN_LIBRARY(__VA_ARGS__)

#define LANEMATH_DEFINE(width, ...) LANEMATH_AT_##width(LANEMATH_DEFINE_(width, __VA_ARGS__))
#define LANEMATH_DEFINE_(width, standalone, operation, body, ...)                                           \
  extern "C" [[gnu::visibility("default"), gnu::flatten]] ::lanemath::frame_detail::result_t<body, width>   \
  LANEMATH_SYMBOL(operation##width##__VA_ARGS__)(::lanemath::frame_detail::parameter_t<body, width, 0> a,   \
                                                 ::lanemath::frame_detail::parameter_t<body, width, 1> b,   \
                                                 ::lanemath::frame_detail::parameter_t<body, width, 2> c) { \
    constexpr auto index = ::lanemath::index_of(#operation);                                                \
    ::lanemath::frame_detail::check_form<index, width, ::lanemath::variant_of(#__VA_ARGS__), standalone>(); \
    if constexpr (::lanemath::frame_detail::is_exported<body, index, width>())                              \
      return ::lanemath::frame_detail::enter<body, width, index>(a, b, c);                                  \
    else                                                                                                    \
      __builtin_unreachable();                                                                              \
  }
#define LANEMATH_EXPORT_AT(width, ...) LANEMATH_IN_LIBRARY(LANEMATH_DEFINE(width, true, __VA_ARGS__))
#define LANEMATH_EXPORT(...)             \
  LANEMATH_DEFINE(1, false, __VA_ARGS__) \
  LANEMATH_DEFINE(2, false, __VA_ARGS__) \
  LANEMATH_DEFINE(3, false, __VA_ARGS__) \
  LANEMATH_DEFINE(4, false, __VA_ARGS__) \
  LANEMATH_DEFINE(8, false, __VA_ARGS__) \
  LANEMATH_DEFINE(16, false, __VA_ARGS__)
#define LANEMATH_EXPORT_BUT_2(...)       \
  LANEMATH_DEFINE(1, false, __VA_ARGS__) \
  LANEMATH_DEFINE(3, false, __VA_ARGS__) \
  LANEMATH_DEFINE(4, false, __VA_ARGS__) \
  LANEMATH_DEFINE(8, false, __VA_ARGS__) \
  LANEMATH_DEFINE(16, false, __VA_ARGS__)
#define LANEMATH_EXPORT_BUT_4(...)       \
  LANEMATH_DEFINE(1, false, __VA_ARGS__) \
  LANEMATH_DEFINE(2, false, __VA_ARGS__) \
  LANEMATH_DEFINE(3, false, __VA_ARGS__) \
  LANEMATH_DEFINE(8, false, __VA_ARGS__) \
  LANEMATH_DEFINE(16, false, __VA_ARGS__)
#define LANEMATH_EXPORT_BUT(width, ...) LANEMATH_EXPORT_BUT_##width(__VA_ARGS__)

#define LANEMATH_STRING_(text) #text
#define LANEMATH_STRING(text) LANEMATH_STRING_(text)
// clang-format off
#define LANEMATH_SAME_AT(width, ...) LANEMATH_AT_##width(LANEMATH_SAME_AT_(width, __VA_ARGS__))
#define LANEMATH_SAME_AT_(width, operation, variant, other)                                                      \
  static_assert(::lanemath::frame_detail::are_same<::lanemath::index_of(#operation), width,                     \
                                                   ::lanemath::variant_of(#variant), ::lanemath::variant_of(#other)>); \
  extern "C" [[gnu::visibility("default"),                                                                      \
               gnu::alias(LANEMATH_STRING(LANEMATH_SYMBOL(operation##width##variant)))]]                      \
  decltype(LANEMATH_SYMBOL(operation##width##variant)) LANEMATH_SYMBOL(operation##width##other);
// clang-format on
#define LANEMATH_SAME(operation, variant, other) \
  LANEMATH_SAME_AT(1, operation, variant, other) \
  LANEMATH_SAME_AT(2, operation, variant, other) \
  LANEMATH_SAME_AT(3, operation, variant, other) \
  LANEMATH_SAME_AT(4, operation, variant, other) \
  LANEMATH_SAME_AT(8, operation, variant, other) \
  LANEMATH_SAME_AT(16, operation, variant, other)
