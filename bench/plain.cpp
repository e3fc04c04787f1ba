// What C++ itself offers for conversions and integer division, in loops that the compiler optimises as far as the
// level's instructions allow.
#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>
#include <type_traits>
#include <utility>

#include "peers.h"

namespace lanemath::bench {
namespace {

template <auto F, class R, class... A>
peer loop() {
  return {"plain C++", 4,
          harness::function(nullptr,
                            [](void*, const harness::invoker_arguments& given) {
                              [&]<std::size_t... I>(std::index_sequence<I...>) {
                                // The arrays do not overlap; a compiler that knows this need not test it.
                                auto* __restrict result = static_cast<R*>(given.result);
                                const std::size_t lanes = given.lanes;
                                for (std::size_t i = 0; i < lanes; ++i)
                                  result[i] = F(static_cast<const A*>(given.inputs[I])[i]...);
                              }
                              (std::index_sequence_for<A...>());
                            }),
          std::nullopt};
}

// The smallest power of two that does not fit.
template <class I, class A>
constexpr A above_all = A(std::numeric_limits<I>::max() / 2 + 1) * 2;

template <class I, class A, auto Round, bool Saturated>
I to_integer(A x) {
  const A r = Round(x);
  if constexpr (Saturated) {
    if (r >= above_all<I, A>) return std::numeric_limits<I>::max();
    if (!(r >= A(std::numeric_limits<I>::min()))) return r < 0 ? std::numeric_limits<I>::min() : I(0);
  }
  return static_cast<I>(r);
}

template <class I, class A, auto Round>
std::optional<peer> to_integer_peer(bool saturated) {
  return saturated ? loop<to_integer<I, A, Round, true>, I, A>() : loop<to_integer<I, A, Round, false>, I, A>();
}

template <class I, class A>
std::optional<peer> to_integer_as(const operation& o) {
  switch (o.rounding) {
    case direction::nearest: return to_integer_peer<I, A, [](A x) { return std::nearbyint(x); }>(o.saturates);
    case direction::down: return to_integer_peer<I, A, [](A x) { return std::floor(x); }>(o.saturates);
    case direction::up: return to_integer_peer<I, A, [](A x) { return std::ceil(x); }>(o.saturates);
    default: return to_integer_peer<I, A, [](A x) { return x; }>(o.saturates);
  }
}

// C++ has only the direction in force.
template <class R, class A>
R cast(A x) {
  return static_cast<R>(x);
}

template <class T>
std::optional<peer> integer_division(std::string_view name) {
  if (name.ends_with("divrem"))
    return peer{"plain C++", 4,
                harness::function(nullptr,
                                  [](void*, const harness::invoker_arguments& given) {
                                    const auto *a = static_cast<const T*>(given.inputs[0]),
                                               *b = static_cast<const T*>(given.inputs[1]);
                                    auto* __restrict quotient = static_cast<T*>(given.result);
                                    auto* __restrict remainder = static_cast<T*>(given.second);
                                    const std::size_t lanes = given.lanes;
                                    for (std::size_t i = 0; i < lanes; ++i) {
                                      quotient[i] = a[i] / b[i];
                                      remainder[i] = a[i] % b[i];
                                    }
                                  }),
                std::nullopt};
  if (name.ends_with("div")) return loop<[](T a, T b) { return T(a / b); }, T, T, T>();
  return loop<[](T a, T b) { return T(a % b); }, T, T, T>();
}

template <class F>
std::optional<peer> by_lane(lane l, F make) {
  switch (l) {
    case lane::f32: return make(float());
    case lane::f64: return make(double());
    case lane::i32: return make(std::int32_t());
    case lane::u32: return make(std::uint32_t());
    case lane::i64: return make(std::int64_t());
    case lane::u64: return make(std::uint64_t());
    case lane::none: break;
  }
  return std::nullopt;
}

}  // namespace

std::optional<peer> plain(const operation& o) {
  if (o.group == family::integer_division)
    return o.sig.result == lane::i32 ? integer_division<std::int32_t>(o.name())
                                     : integer_division<std::uint32_t>(o.name());
  if (o.group != family::conversion) return std::nullopt;
  return by_lane(o.sig.arguments[0], [&](auto from) {
    return by_lane(o.sig.result, [&](auto to) -> std::optional<peer> {
      using A = decltype(from);
      using R = decltype(to);
      if constexpr (std::is_floating_point_v<R>)
        return loop<cast<R, A>, R, A>();
      else if constexpr (std::is_floating_point_v<A>)
        return to_integer_as<R, A>(o);
      else
        return std::nullopt;
    });
  });
}

}  // namespace lanemath::bench
