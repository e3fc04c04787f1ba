// Calls of a function whose C++ type is known, over arrays of lanes. If it takes pointers, the second result goes to
// the last one, and the first result to the one before, if there is one.
#pragma once

#include <cstddef>
#include <cstring>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

#include "harness/harness.h"

namespace lanemath::bench {

template <class F>
struct typed_calls;

template <class R, class... A>
struct typed_calls<R(A...)> {
  using first_argument = std::tuple_element_t<0, std::tuple<A...>>;

  // Each call is free to start before the last one ends.
  template <int Width>
  static harness::function throughput(void* address) {
    return {address, [](void* f, const harness::invoker_arguments& given) {
              const arrays a(given);
              const std::size_t calls = given.lanes / Width;
              for (std::size_t i = 0; i < calls; ++i) {
                if constexpr (std::is_void_v<R>)
                  call(f, a, i, unchanged);
                else
                  store(call(f, a, i, unchanged), a, i);
              }
            }};
  }

  // Each call waits for the result of the one before. Measures nothing where results and arguments live in different
  // register files: the way across would be measured too.
  static std::optional<harness::function> latency(void* address) {
    if constexpr (std::is_void_v<R>) {
      return std::nullopt;
    } else {
      using first_result = std::decay_t<decltype(first_of(std::declval<R>()))>;
      if constexpr (std::is_floating_point_v<first_result> != std::is_floating_point_v<first_argument>) {
        return std::nullopt;
      } else {
        return harness::function(address, [](void* f, const harness::invoker_arguments& given) {
          const arrays a(given);
          const std::size_t calls = given.lanes;
          first_result before{};
          for (std::size_t i = 0; i < calls; ++i)
            before = first_of(call(f, a, i, [&](auto x) { return after(x, before); }));
        });
      }
    }
  }

 private:
  // A copy of the pointers that no store through them can change, so that they stay in registers.
  struct arrays {
    explicit arrays(const harness::invoker_arguments& given)
        : inputs{given.inputs[0], given.inputs[1], given.inputs[2]}, result(given.result), second(given.second) {}
    const void* inputs[3];
    void* result;
    void* second;
  };

  static constexpr auto unchanged = [](auto x) { return x; };

  // `prepare` is applied to the first argument.
  template <class Prepare>
  static R call(void* address, const arrays& a, std::size_t i, Prepare prepare) {
    const auto f = reinterpret_cast<R (*)(A...)>(address);
    return [&]<std::size_t... Rest>(std::index_sequence<Rest...>) {
      return f(prepare(argument<0>(a, i)), argument<Rest + 1>(a, i)...);
    }
    (std::make_index_sequence<sizeof...(A) - 1>{});
  }

  template <std::size_t Place>
  static auto argument(const arrays& a, std::size_t i) {
    using T = std::tuple_element_t<Place, std::tuple<A...>>;
    if constexpr (std::is_pointer_v<T>) {
      const auto array = static_cast<T>(Place + 1 == sizeof...(A) ? a.second : a.result);
      if constexpr (std::is_void_v<std::remove_pointer_t<T>>)
        return array;
      else
        return array + i;
    } else {
      T value;
      std::memcpy(&value, static_cast<const std::byte*>(a.inputs[Place]) + i * sizeof value, sizeof value);
      return value;
    }
  }

  template <class Y>
  static void store(const Y& y, const arrays& a, std::size_t i) {
    const auto put = [i](const auto& value, void* array) {
      std::memcpy(static_cast<std::byte*>(array) + i * sizeof value, &value, sizeof value);
    };
    if constexpr (requires { y.x; }) {
      put(y.x, a.result);
      put(y.y, a.second);
    } else {
      put(y, a.result);
    }
  }

  template <class Y>
  static auto first_of(const Y& y) {
    if constexpr (requires { y.first; })
      return y.first;
    else
      return y;
  }

  // x unchanged, but not before `before` is available: two instructions of one cycle each.
  template <class X, class Y>
  static X after(X x, Y before) {
    if constexpr (std::is_floating_point_v<X>) {
      asm("andps %2, %1\n\txorps %1, %0" : "+x"(x), "+x"(before) : "x"(0.0f));
      return x;
    } else {
      Y zero = 0;
      asm("" : "+r"(zero));
      return x ^ X(before & zero);
    }
  }
};

}  // namespace lanemath::bench
