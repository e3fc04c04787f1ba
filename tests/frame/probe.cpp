// A library of small operations, one of every signature shape, with easily predicted results, which show what the frame
// does with lanes, rare lanes, fillers and second results. They are exported under names of the catalogue.
#include "frame/frame.h"

namespace lanemath {
namespace {

// Marks magnitudes above a million.
template <int W>
auto marked(lanes<float, W> x) {
  return magnitude_above(x, 0x49742400);
}
template <int W>
auto marked(lanes<double, W> x) {
  return magnitude_above(x, 0x412E8480);
}
template <int W>
auto marked(lanes<std::int32_t, W> x) {
  return x > 1'000'000;
}
struct any_marked {
  template <class... V>
  static auto rare_test(V... x) {
    return (marked(x) | ...);
  }
};

template <class T>
struct unary : any_marked {
  using signature = T(T);
  static auto kernel(auto x) { return x + x; }
  static constexpr auto rare = [](const T* x, T* y) { return *y = 3 * *x, 0; };
};
// An operation that marks its own lanes.
template <class T>
struct binary {
  using signature = T(T, T);
  static auto marked_kernel(auto x, auto y) { return lanemath::marked(x - y, marked(x) | marked(y)); }
  static constexpr auto rare = [](const T* x, const T* y, T* z) { return *z += 3 * *x + *y, 0; };
};
template <class T>
struct ternary {
  using signature = T(T, T, T);
  static constexpr bool always_scalar = true;
  static auto kernel(auto x, auto y, auto z) { return x + y + z; }
  static constexpr auto rare = [](const T* x, const T* y, const T* z, T* r) { return *r += 4 * *x + 2 * *y + *z, 0; };
};
template <class T>
struct with_int {
  using signature = T(T, std::int32_t);
  static auto kernel(auto x, auto n) {
    if constexpr (sizeof(T) == 4)
      return from_bits(bits(x) ^ n);
    else
      return from_bits(bits(x) ^ widen(n));
  }
  static auto rare_test(auto x, auto) { return marked(x); }
  static constexpr auto rare = [](const T* x, const std::int32_t* n, T* y) { return *y = 3 * *x + T(*n), 0; };
};
template <class T>
struct to_int : any_marked {
  using signature = std::int32_t(T);
  static auto kernel(auto x) {
    if constexpr (sizeof(T) == 4)
      return bits(x);
    else
      return upper(x) ^ lower(x);
  }
  static constexpr auto rare = [](const T*, std::int32_t* n) { return *n ^= 1, 0; };
};
template <class T>
struct second : any_marked {
  using signature = through_pointer<T, T>(T);
  template <class V>
  static two_results<V, V> kernel(V x) {
    return {x + x, x * x};
  }
  static constexpr auto rare = [](const T* x, T* y, T* z) { return *y = 3 * *x, *z += 5, 0; };
};
template <class T>
struct second_int : any_marked {
  using signature = through_pointer<T, std::int32_t>(T);
  template <class V>
  static auto kernel(V x) {
    const auto n = to_int<T>::kernel(x);
    return two_results<V, decltype(n + n)>{x + x, n};
  }
  static constexpr auto rare = [](const T* x, T* y, std::int32_t* n) { return *y = 3 * *x, *n ^= 1, 0; };
};
template <class T>
struct binary_second_int : any_marked {
  using signature = through_pointer<T, std::int32_t>(T, T);
  template <class V>
  static auto kernel(V x, V y) {
    const auto n = to_int<T>::kernel(x) ^ to_int<T>::kernel(y);
    return two_results<V, decltype(n + n)>{x - y, n};
  }
  static constexpr auto rare = [](const T* x, const T* y, T* z, std::int32_t* n) {
    return *z += 3 * *x + *y, *n ^= 1, 0;
  };
};
template <class T>
struct pair : second<T> {
  using signature = pair_of<T, T>(T);
};
template <class T>
struct int_pair {
  using signature = pair_of<T, T>(T, T);
  template <class V>
  static two_results<V, V> kernel(V x, V y) {
    return {x + y, x - y};
  }
};
struct from_bits_32 {
  using signature = float(std::uint32_t);
  static auto kernel(auto x) { return from_bits(x); }
};
struct from_bits_64 {
  using signature = double(std::uint64_t);
  static auto kernel(auto x) { return from_bits(x); }
};
struct float_to_long {
  using signature = std::int64_t(float);
  static auto kernel(auto x) { return widen(bits(x)); }
};
struct float_to_ulong {
  using signature = std::uint64_t(float);
  static auto kernel(auto x) { return widen(as<std::uint32_t>(x)); }
};
struct double_to_int {
  using signature = std::int32_t(double);
  static auto kernel(auto x) { return lower(x); }
};
struct long_to_float {
  using signature = float(std::int64_t);
  static auto kernel(auto x) { return from_bits(upper(x)); }
};
struct int_to_double {
  using signature = double(std::int32_t);
  static auto kernel(auto n) { return from_bits(widen(n)); }
};
struct double_to_float {
  using signature = float(double);
  static auto kernel(auto x) { return from_bits(upper(x) ^ lower(x)); }
};
// One group at a time, to test that the pieces are put together again.
struct in_pieces : second_int<double> {
  static constexpr int groups_at_once = 1;
};

}  // namespace

LANEMATH_EXPORT(expf, unary<float>)
LANEMATH_EXPORT(expm1, unary<double>)
LANEMATH_EXPORT(powf, binary<float>)
LANEMATH_EXPORT(pow, binary<double>)
LANEMATH_EXPORT(fmaf, ternary<float>)
LANEMATH_SAME(fmaf, , _rm)
LANEMATH_EXPORT(fma, ternary<double>)
LANEMATH_EXPORT(ldexpf, with_int<float>)
LANEMATH_EXPORT(ldexp, with_int<double>)
LANEMATH_EXPORT(ilogbf, to_int<float>)
LANEMATH_EXPORT(ilogb, to_int<double>)
LANEMATH_EXPORT(sincosf, second<float>)
LANEMATH_EXPORT(sincos, second<double>)
LANEMATH_EXPORT(frexpf, second_int<float>)
LANEMATH_EXPORT(frexp, second_int<double>)
LANEMATH_EXPORT(lgammar, in_pieces)
LANEMATH_EXPORT(remquof, binary_second_int<float>)
LANEMATH_EXPORT(remquo, binary_second_int<double>)
LANEMATH_EXPORT(sincosregf, pair<float>)
LANEMATH_EXPORT(sincosreg, pair<double>)
LANEMATH_EXPORT(idivrem, int_pair<std::int32_t>)
LANEMATH_EXPORT(udivrem, int_pair<std::uint32_t>)
LANEMATH_EXPORT(nanf, from_bits_32)
LANEMATH_EXPORT(nan, from_bits_64)
LANEMATH_EXPORT(cvtfptoi64rtesatf, float_to_long)
LANEMATH_EXPORT(cvtfptou64rtesatf, float_to_ulong)
LANEMATH_EXPORT(cvtfptoi32rtesat, double_to_int)
LANEMATH_EXPORT(cvti64tofprtef, long_to_float)
LANEMATH_EXPORT(cvti32tofprte, int_to_double)
LANEMATH_EXPORT(cvtfp64tofp32rte, double_to_float)

}  // namespace lanemath
