// Calls of every function through the header for C++, as code that is generic over types and widths. The tests build
// it with several compilers and instruction sets and compare what it gets with what the functions return.
#include <lanemath/lanemath.hpp>

#define EXPORT extern "C" __attribute__((visibility("default")))

using lanemath::fill;
using lanemath::lane_type_t;
using lanemath::load;
using lanemath::rounding;
using lanemath::select;
using lanemath::store;
using lanemath::width_of;

template <class T, int W>
static lanemath::vector<T, W> get(const void* from) {
  return load<lanemath::vector<T, W>>(static_cast<const T*>(from));
}
template <class V>
static void put(void* to, const V& v) {
  store(static_cast<lane_type_t<V>*>(to), v);
}

// The generated list says UNARY(name in C++, operation, variant, type of the argument) and so on.
#define FUNCTION(operation, width, variant) \
  EXPORT void call_##operation##width##variant(const void* x, const void* y, const void* z, void* r, void* s)
#define ALL(AT, ...) \
  AT(1, __VA_ARGS__) AT(2, __VA_ARGS__) AT(3, __VA_ARGS__) AT(4, __VA_ARGS__) AT(8, __VA_ARGS__) AT(16, __VA_ARGS__)

#define UNARY_AT(W, name, operation, variant, A) \
  FUNCTION(operation, W, variant) {              \
    (void)y, (void)z, (void)s;                   \
    put(r, lanemath::name(get<A, W>(x)));        \
  }
#define BINARY_AT(W, name, operation, variant, A, B)    \
  FUNCTION(operation, W, variant) {                     \
    (void)z, (void)s;                                   \
    put(r, lanemath::name(get<A, W>(x), get<B, W>(y))); \
  }
#define TERNARY_AT(W, name, operation, variant, A, B, C)              \
  FUNCTION(operation, W, variant) {                                   \
    (void)s;                                                          \
    put(r, lanemath::name(get<A, W>(x), get<B, W>(y), get<C, W>(z))); \
  }
#define UNARY_TWO_AT(W, name, operation, variant, first, second, A) \
  FUNCTION(operation, W, variant) {                                 \
    (void)y, (void)z;                                               \
    const auto both = lanemath::name(get<A, W>(x));                 \
    put(r, both.first);                                             \
    put(s, both.second);                                            \
  }
#define BINARY_TWO_AT(W, name, operation, variant, first, second, A, B) \
  FUNCTION(operation, W, variant) {                                     \
    (void)z;                                                            \
    const auto both = lanemath::name(get<A, W>(x), get<B, W>(y));       \
    put(r, both.first);                                                 \
    put(s, both.second);                                                \
  }
#define CONVERSION_AT(W, name, operation, direction, R, A)                                                           \
  FUNCTION(operation, W, ) {                                                                                         \
    (void)y, (void)z, (void)s;                                                                                       \
    put(r, lanemath::name<R, rounding::direction>(get<A, W>(x)));                                                    \
    static_assert(                                                                                                   \
        std::is_same<decltype(lanemath::name<lanemath::vector<R, W>>(get<A, W>(x))), lanemath::vector<R, W>>::value, \
        "");                                                                                                         \
  }
#define UNARY(...) ALL(UNARY_AT, __VA_ARGS__)
#define BINARY(...) ALL(BINARY_AT, __VA_ARGS__)
#define TERNARY(...) ALL(TERNARY_AT, __VA_ARGS__)
#define UNARY_TWO(...) ALL(UNARY_TWO_AT, __VA_ARGS__)
#define BINARY_TWO(...) ALL(BINARY_TWO_AT, __VA_ARGS__)
#define CONVERSION(...) ALL(CONVERSION_AT, __VA_ARGS__)
#include "calls.inc"

#define ACCESS_AT(W, T, type)                                                          \
  EXPORT void copy_##type##W(const void* from, void* to) { put(to, get<T, W>(from)); } \
  EXPORT void fill_##type##W(const void* from, void* to) {                             \
    put(to, fill<lanemath::vector<T, W>>(*static_cast<const T*>(from)));               \
  }
ALL(ACCESS_AT, float, float)
ALL(ACCESS_AT, double, double)
ALL(ACCESS_AT, std::int32_t, int)
ALL(ACCESS_AT, std::uint32_t, uint)
ALL(ACCESS_AT, std::int64_t, long)
ALL(ACCESS_AT, std::uint64_t, ulong)

// What generic code relies on, for one type at one width; true if all of it holds.
template <class T, int W>
static bool holds() {
  using V = lanemath::vector<T, W>;
  static_assert(std::is_same<lane_type_t<V>, T>::value && width_of<V>::value == W, "");
  T lanes[W], got[W];
  for (int i = 0; i < W; ++i) lanes[i] = T(i + 1);
  const V x = load<V>(lanes), two = fill<V>(T(2));
  bool good = true;
  const auto expect = [&](const V& v, T (*of)(T)) {
    store(got, v);
    for (int i = 0; i < W; ++i) good &= got[i] == of(lanes[i]);
  };
  expect(x + two * x, [](T a) { return T(a + 2 * a); });
  expect((x - 2) / x, [](T a) { return T(T(a - 2) / a); });
  expect(select(x < two, x, V(T(7))), [](T a) { return a < 2 ? a : T(7); });
  V sum = x;
  sum += 5;
  expect(-sum, [](T a) { return T(-T(a + 5)); });
  return good;
}
template <class T>
static bool holds_at_all_widths() {
  return holds<T, 1>() && holds<T, 2>() && holds<T, 3>() && holds<T, 4>() && holds<T, 8>() && holds<T, 16>();
}

EXPORT bool generic_code_works() {
  lanemath::int4 v(1);
  v[2] = 9;
  const lanemath_int4 in_c = v;
  return holds_at_all_widths<float>() && holds_at_all_widths<double>() && holds_at_all_widths<std::int32_t>() &&
         holds_at_all_widths<std::uint32_t>() && holds_at_all_widths<std::int64_t>() &&
         holds_at_all_widths<std::uint64_t>() && in_c[2] == 9 && lanemath::int4(in_c)[1] == 1 &&
         lanemath::int3(in_c)[2] == 9;
}

// Two results have names, and a function its name whatever the types.
EXPORT bool names_are_right() {
  const auto angle = lanemath::sincos(lanemath::double2(0.5));
  const auto turned = lanemath::sincosreg(0.5f);
  const auto parts = lanemath::frexp(lanemath::float8(12));
  const auto cut = lanemath::modf(2.5), below = lanemath::modf(-2.5);
  const auto rest = lanemath::fract(-2.25f);
  const auto gamma = lanemath::lgammar(lanemath::double3(-0.5));
  const auto division = lanemath::idivrem(lanemath::int16(17), 5);
  const auto nearest = lanemath::remquo(7.0, 2.0);
  return angle.sine[1] < 0.5 && angle.cosine[1] > 0.8 && turned.sine < 0.5f && turned.cosine > 0.8f &&
         parts.fraction[7] == 0.75f && parts.exponent[7] == 4 && cut.fraction == 0.5 && below.integer == -2 &&
         rest.fraction == 0.75f && rest.floor == -3 && gamma.value[2] > 1.2 && gamma.sign[2] == -1 &&
         division.quotient[15] == 3 && division.remainder[15] == 2 && nearest.remainder == -1 &&
         nearest.quotient == 4 && lanemath::exp2(lanemath::double2(3))[0] == 8 && lanemath::exp2(3.0f) == 8 &&
         lanemath::convert<int>(-1.75) == -1 && lanemath::convert<int, rounding::rtn>(-1.75) == -2 &&
         lanemath::convert_sat<int>(lanemath::double4(1e30))[3] == 2147483647;
}
