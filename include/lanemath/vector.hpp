// Vectors for C++, from C++11 on, and what code that is generic over their types and widths needs. Include
// <lanemath/lanemath.hpp>.
//
// A class, because compilers warn about functions that take or return C's wide vectors by value, and cannot tell C's
// vectors of three lanes from those of four. It converts from and to C's vectors; functions take these too, and draw
// the warning if they are wide.
#ifndef LANEMATH_VECTOR_HPP
#define LANEMATH_VECTOR_HPP

#include <lanemath/types.h>

#include <cstdint>
#include <type_traits>

#pragma GCC system_header

#define LANEMATH_FUNCTION inline __attribute__((always_inline))

namespace lanemath {

template <class T, int W>
class basic_vector;

namespace detail {

template <class T, int W>
struct lanes {
  using lane_type = T;
  static constexpr int width = W;
};

// A vector of the C header, and how it crosses the library's border and that of what serves wide vectors. Its type is
// written out wherever it is read or written, because a template's argument and a typedef of a typedef lose its
// alignment.
template <class T, int W>
struct c;
#define LANEMATH_C(T, type, W, border, wide, explicitly)                               \
  template <>                                                                          \
  struct c<T, W> {                                                                     \
    typedef lanemath_##type##W c_type;                                                 \
    typedef border border_type;                                                        \
    typedef wide wide_type;                                                            \
    c() = default;                                                                     \
    explicitly LANEMATH_FUNCTION c(const lanemath_##type##W& v) : v_(v) {}             \
    LANEMATH_FUNCTION operator const lanemath_##type##W &() const { return v_; }       \
    LANEMATH_FUNCTION void load(const T* from) { v_ = lanemath_load_##type##W(from); } \
    LANEMATH_FUNCTION void store(T* to) const { lanemath_store_##type##W(to, v_); }    \
    LANEMATH_FUNCTION void fill(T x) { v_ = lanemath_fill_##type##W(x); }              \
    lanemath_##type##W v_;                                                             \
  };
// Which lanes a type has.
template <class V>
struct lanes_of;
#define LANEMATH_LANES(T, type, W) \
  template <>                      \
  struct lanes_of<lanemath_##type##W> : lanes<T, W> {};
#define LANEMATH_VECTOR(T, type, W)                                                     \
  LANEMATH_C(T, type, W, lanemath_border_##type##W, lanemath_wide_##type##W, /* not */) \
  LANEMATH_LANES(T, type, W)
// Three lanes cross as four do, in a type of their own.
#define LANEMATH_TYPE(T, type)                                     \
  struct type##3_border {                                          \
    lanemath_border_##type##3 v;                                   \
  };                                                               \
  LANEMATH_LANES(T, type, 1)                                       \
  LANEMATH_VECTOR(T, type, 2)                                      \
  LANEMATH_C(T, type, 3, type##3_border, type##3_border, explicit) \
  LANEMATH_VECTOR(T, type, 4)                                      \
  LANEMATH_VECTOR(T, type, 8)                                      \
  LANEMATH_VECTOR(T, type, 16)
LANEMATH_TYPE(float, float)
LANEMATH_TYPE(double, double)
LANEMATH_TYPE(std::int32_t, int)
LANEMATH_TYPE(std::uint32_t, uint)
LANEMATH_TYPE(std::int64_t, long)
LANEMATH_TYPE(std::uint64_t, ulong)
#undef LANEMATH_C
#undef LANEMATH_LANES
#undef LANEMATH_VECTOR
#undef LANEMATH_TYPE
template <class T, int W>
struct lanes_of<basic_vector<T, W>> : lanes<T, W> {};

template <class T, int W>
struct vector {
  using type = basic_vector<T, W>;
};
template <class T>
struct vector<T, 1> {
  using type = T;
};

template <class T, class Result>
using if_scalar = typename std::enable_if<std::is_arithmetic<T>::value, Result>::type;

template <class T>
using mask_lane = typename std::conditional<sizeof(T) == 4, std::int32_t, std::int64_t>::type;

}  // namespace detail

/// W lanes of T, which is float, double, std::int32_t, std::uint32_t, std::int64_t or std::uint64_t; W is 1, 2, 3, 4, 8
/// or 16. One lane is T itself.
template <class T, int W>
using vector = typename detail::vector<T, W>::type;

/// The type of the lanes of a vector, of this class or of the C header, or of a scalar.
template <class V>
using lane_type_t = typename detail::lanes_of<typename std::remove_cv<V>::type>::lane_type;
/// The number of its lanes.
template <class V>
struct width_of : std::integral_constant<int, detail::lanes_of<typename std::remove_cv<V>::type>::width> {};
#if __cplusplus >= 201402L
template <class V>
constexpr int width_v = width_of<V>::value;
#endif

/// Several lanes, with the operators of the lanes' type. Comparisons give lanes of all ones or zero, for select().
template <class T, int W>
class basic_vector : public detail::c<T, W> {
  using c = detail::c<T, W>;
  using c::v_;

 public:
  using lane_type = T;
  using typename c::c_type;
  using mask_type = basic_vector<detail::mask_lane<T>, W>;
  static constexpr int width = W;

  /// Undefined lanes.
  basic_vector() = default;
  /// All lanes x.
  LANEMATH_FUNCTION basic_vector(T x) { c::fill(x); }
  /// From the C header's vector; explicit if that has four lanes and this has three. It converts back too.
  using c::c;

  LANEMATH_FUNCTION T operator[](int lane) const { return v_[lane]; }
  LANEMATH_FUNCTION T& operator[](int lane) { return reinterpret_cast<T*>(&v_)[lane]; }

#define LANEMATH_OPERATOR(op)                                                                       \
  friend LANEMATH_FUNCTION basic_vector operator op(const basic_vector& x, const basic_vector& y) { \
    basic_vector r;                                                                                 \
    r.v_ = x.v_ op y.v_;                                                                            \
    return r;                                                                                       \
  }
#define LANEMATH_DIVISION(op)                                                                         \
  friend LANEMATH_FUNCTION basic_vector operator op(const basic_vector& x, basic_vector y) {          \
    basic_vector r;                                                                                   \
    if (W == 3) y.v_[W == 3 ? 3 : 0] = 1; /* else integers might trap in the room of a fourth lane */ \
    r.v_ = x.v_ op y.v_;                                                                              \
    return r;                                                                                         \
  }
#define LANEMATH_ASSIGNMENT(op) \
  LANEMATH_FUNCTION basic_vector& operator op##=(const basic_vector& y) { return *this = *this op y; }
  LANEMATH_OPERATOR(+)
  LANEMATH_OPERATOR(-)
  LANEMATH_OPERATOR(*)
  LANEMATH_DIVISION(/)
  LANEMATH_DIVISION(%)
  LANEMATH_OPERATOR(&)
  LANEMATH_OPERATOR(|)
  LANEMATH_OPERATOR(^)
  LANEMATH_OPERATOR(<<)
  LANEMATH_OPERATOR(>>)
  LANEMATH_ASSIGNMENT(+)
  LANEMATH_ASSIGNMENT(-)
  LANEMATH_ASSIGNMENT(*)
  LANEMATH_ASSIGNMENT(/)
  LANEMATH_ASSIGNMENT(%)
  LANEMATH_ASSIGNMENT(&)
  LANEMATH_ASSIGNMENT(|)
  LANEMATH_ASSIGNMENT(^)
  LANEMATH_ASSIGNMENT(<<)
  LANEMATH_ASSIGNMENT(>>)
#undef LANEMATH_OPERATOR
#undef LANEMATH_DIVISION
#undef LANEMATH_ASSIGNMENT
#define LANEMATH_OPERATOR(op)                                                \
  friend LANEMATH_FUNCTION basic_vector operator op(const basic_vector& x) { \
    basic_vector r;                                                          \
    r.v_ = op x.v_;                                                          \
    return r;                                                                \
  }
  LANEMATH_OPERATOR(-)
  LANEMATH_OPERATOR(~)
#undef LANEMATH_OPERATOR
#define LANEMATH_OPERATOR(op)                                                                    \
  friend LANEMATH_FUNCTION mask_type operator op(const basic_vector& x, const basic_vector& y) { \
    mask_type r;                                                                                 \
    r.v_ = (typename mask_type::c_type)(x.v_ op y.v_);                                           \
    return r;                                                                                    \
  }
  LANEMATH_OPERATOR(==)
  LANEMATH_OPERATOR(!=)
  LANEMATH_OPERATOR(<)
  LANEMATH_OPERATOR(>)
  LANEMATH_OPERATOR(<=)
  LANEMATH_OPERATOR(>=)
#undef LANEMATH_OPERATOR

 private:
  template <class U, int N>
  friend class basic_vector;
  template <class U, int N>
  friend basic_vector<U, N> select(const typename basic_vector<U, N>::mask_type&, const basic_vector<U, N>&,
                                   const basic_vector<U, N>&);
};

namespace detail {

// A vector of this class, or a scalar, for a vector of the C header too.
template <class V>
using vector_of = lanemath::vector<lane_type_t<V>, width_of<V>::value>;
// As wide as V, of other lanes.
template <class V, class T>
using with_lanes = lanemath::vector<T, width_of<V>::value>;
// As wide as V and with lanes as large, floating.
template <class V>
using floating = with_lanes<V, typename std::conditional<sizeof(lane_type_t<V>) == 4, float, double>::type>;

// Values as they cross to what serves wide vectors, or to the library, and room for a second result.
#define LANEMATH_CROSSING(crossing, border_type, join)               \
  template <class V>                                                 \
  struct crossing {                                                  \
    static LANEMATH_FUNCTION V out(V x) { return x; }                \
    static LANEMATH_FUNCTION V in(V b) { return b; }                 \
    typedef V room;                                                  \
  };                                                                 \
  template <class T, int W>                                          \
  struct crossing<basic_vector<T, W>> {                              \
    typedef typename c<T, W>::border_type room;                      \
    static LANEMATH_FUNCTION room out(const basic_vector<T, W>& x) { \
      room b;                                                        \
      memcpy(&b, &x.c<T, W>::v_, sizeof b);                          \
      return b;                                                      \
    }                                                                \
    static LANEMATH_FUNCTION basic_vector<T, W> in(const room& b) {  \
      basic_vector<T, W> v;                                          \
      if (W == 3) /* always the library's */                         \
        lanemath_border_join(&v.c<T, W>::v_, &b, sizeof b);          \
      else                                                           \
        join(&v.c<T, W>::v_, &b, sizeof b);                          \
      return v;                                                      \
    }                                                                \
  };
LANEMATH_CROSSING(crossing, wide_type, lanemath_wide_join)
LANEMATH_CROSSING(crossing_to_library, border_type, lanemath_border_join)
#undef LANEMATH_CROSSING

template <class V>
struct memory {
  static LANEMATH_FUNCTION V load(const V* from) {
    V x;
    memcpy(&x, from, sizeof x);
    return x;
  }
  static LANEMATH_FUNCTION void store(V* to, V x) { memcpy(to, &x, sizeof x); }
};
template <class T, int W>
struct memory<basic_vector<T, W>> {
  static LANEMATH_FUNCTION basic_vector<T, W> load(const T* from) {
    basic_vector<T, W> v;
    v.load(from);
    return v;
  }
  static LANEMATH_FUNCTION void store(T* to, const basic_vector<T, W>& v) { v.store(to); }
};

}  // namespace detail

/// Reads the lanes of V, a vector or a scalar, from memory of any alignment, and nothing beyond.
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> load(const lane_type_t<V>* from) {
  return detail::memory<detail::vector_of<V>>::load(from);
}
/// Writes the lanes of v to memory of any alignment, and nothing beyond.
template <class V>
LANEMATH_FUNCTION void store(lane_type_t<V>* to, V v) {
  detail::memory<detail::vector_of<V>>::store(to, v);
}
/// All lanes x.
template <class V>
LANEMATH_FUNCTION detail::vector_of<V> fill(lane_type_t<V> x) {
  return detail::vector_of<V>(x);
}

/// How a conversion rounds: to nearest even, down, up, toward zero.
enum class rounding { rte, rtn, rtp, rtz };

namespace detail {

// As the language does: toward zero to an integer type, to nearest even to a floating type.
template <class To>
constexpr rounding usual() {
  return std::is_floating_point<lane_type_t<To>>::value ? rounding::rte : rounding::rtz;
}

// The function of the library that converts, as call(x).
template <class To, rounding R, bool Saturates>
struct conversion;

// The result of converting V to To, if To is a lane's type or a vector of as many lanes.
template <class To, class V>
using converted = typename std::enable_if<width_of<To>::value == 1 || width_of<To>::value == width_of<V>::value,
                                          with_lanes<V, lane_type_t<To>>>::type;

}  // namespace detail

/// v in lanes of another type: To is that type, or a vector of it as wide as v.
template <class To, rounding R = detail::usual<To>(), class V>
LANEMATH_FUNCTION detail::converted<To, V> convert(V v) {
  return detail::crossing<detail::converted<To, V>>::in(
      detail::conversion<lane_type_t<To>, R, false>::call(detail::crossing<detail::vector_of<V>>::out(v)));
}
/// The same, clamped to the range of the integer type.
template <class To, rounding R = detail::usual<To>(), class V>
LANEMATH_FUNCTION detail::converted<To, V> convert_sat(V v) {
  return detail::crossing<detail::converted<To, V>>::in(
      detail::conversion<lane_type_t<To>, R, true>::call(detail::crossing<detail::vector_of<V>>::out(v)));
}

/// x in the lanes where the mask is all ones, y where it is zero.
template <class T, int W>
LANEMATH_FUNCTION basic_vector<T, W> select(const typename basic_vector<T, W>::mask_type& mask,
                                            const basic_vector<T, W>& x, const basic_vector<T, W>& y) {
  basic_vector<T, W> r;
  r.v_ = (typename basic_vector<T, W>::c_type)((mask.v_ & (typename basic_vector<T, W>::mask_type::c_type)x.v_) |
                                               (~mask.v_ & (typename basic_vector<T, W>::mask_type::c_type)y.v_));
  return r;
}
template <class T>
LANEMATH_FUNCTION detail::if_scalar<T, T> select(bool mask, T x, T y) {
  return mask ? x : y;
}

using float2 = vector<float, 2>;
using float3 = vector<float, 3>;
using float4 = vector<float, 4>;
using float8 = vector<float, 8>;
using float16 = vector<float, 16>;
using double2 = vector<double, 2>;
using double3 = vector<double, 3>;
using double4 = vector<double, 4>;
using double8 = vector<double, 8>;
using double16 = vector<double, 16>;
using int2 = vector<std::int32_t, 2>;
using int3 = vector<std::int32_t, 3>;
using int4 = vector<std::int32_t, 4>;
using int8 = vector<std::int32_t, 8>;
using int16 = vector<std::int32_t, 16>;
using uint2 = vector<std::uint32_t, 2>;
using uint3 = vector<std::uint32_t, 3>;
using uint4 = vector<std::uint32_t, 4>;
using uint8 = vector<std::uint32_t, 8>;
using uint16 = vector<std::uint32_t, 16>;
using long2 = vector<std::int64_t, 2>;
using long3 = vector<std::int64_t, 3>;
using long4 = vector<std::int64_t, 4>;
using long8 = vector<std::int64_t, 8>;
using long16 = vector<std::int64_t, 16>;
using ulong2 = vector<std::uint64_t, 2>;
using ulong3 = vector<std::uint64_t, 3>;
using ulong4 = vector<std::uint64_t, 4>;
using ulong8 = vector<std::uint64_t, 8>;
using ulong16 = vector<std::uint64_t, 16>;

}  // namespace lanemath

#endif
