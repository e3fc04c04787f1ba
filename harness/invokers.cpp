// Calls of every function, for one level of instructions: this file is compiled for each. Nothing in it may be visible
// to the linker but the table.
#include "harness/invokers.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "frame/abi.h"

namespace lanemath::harness {
namespace {

// How an argument is passed. A wide one is aligned less than the library's type: its place on the stack is the same,
// and the compiler copies it there directly from the array, without a temporary.
template <class A, int W, bool InMemory = (sizeof(abi<A, W>) > register_bytes)>
struct handed_over {
  using as = abi<A, W>;
};
template <class A, int W>
struct handed_over<A, W, true> {
  struct [[gnu::may_alias]] alignas(8) as {
    A v[padded(W)];
  };
};
template <lane L, int W>
using argument_type = typename handed_over<type_of<L>, W>::as;

// Calls a function of signature S and width W.
template <signature S, int W, std::size_t... I>
void invoke(void* address, const invoker_arguments& a, std::index_sequence<I...>) {
  using T = type_of<S.result>;
  // Copies, which no store through the pointers can change, because this loop is timed.
  const std::array<const void*, sizeof...(I)> inputs{a.inputs[I]...};
  auto* const results = static_cast<T*>(a.result);
  const std::size_t lanes = a.lanes;

  const auto argument = [&]<std::size_t i>(std::size_t at) -> decltype(auto) {
    using A = argument_type<S.arguments[i], W>;
    const auto* first = static_cast<const type_of<S.arguments[i]>*>(inputs[i]) + at;
    if constexpr (sizeof(A) > register_bytes) {
      return *reinterpret_cast<const A*>(first);
    } else {
      A value;
      std::memcpy(&value, first, sizeof value);
      return value;
    }
  };
  for (std::size_t at = 0; at < lanes; at += padded(W)) {
    auto* result = results + at;
    if constexpr (S.how == delivery::none) {
      const auto f = reinterpret_cast<abi<T, W> (*)(argument_type<S.arguments[I], W>...)>(address);
      const auto y = f(argument.template operator()<I>(at)...);
      std::memcpy(result, &y, sizeof y);
    } else {
      using U = type_of<S.second>;
      auto* second = static_cast<U*>(a.second) + at;
      if constexpr (S.how == delivery::pointer) {
        const auto f = reinterpret_cast<abi<T, W> (*)(argument_type<S.arguments[I], W>..., void*)>(address);
        const auto y = f(argument.template operator()<I>(at)..., second);
        std::memcpy(result, &y, sizeof y);
      } else {
        const auto f = reinterpret_cast<abi_pair<T, U, W> (*)(argument_type<S.arguments[I], W>...)>(address);
        const auto y = f(argument.template operator()<I>(at)...);
        std::memcpy(result, &y.first, sizeof y.first);
        std::memcpy(second, &y.second, sizeof y.second);
      }
    }
  }
}

constexpr const level& compiled_for = *std::ranges::find(levels, std::size_t(register_bytes), &level::register_bytes);

template <std::size_t Index, std::size_t Place>
constexpr invoker invoker_of() {
  if constexpr (catalogue[Index].is_at(compiled_for, widths[Place]))
    return [](void* address, const invoker_arguments& a) {
      constexpr auto s = catalogue[Index].sig;
      invoke<s, widths[Place]>(address, a, std::make_index_sequence<std::size_t(s.arity())>{});
    };
  else
    return nullptr;
}

template <std::size_t Index, std::size_t... Place>
constexpr invokers_of_operation of_operation(std::index_sequence<Place...>) {
  return {invoker_of<Index, Place>()...};
}

constexpr invoker_table table = []<std::size_t... I>(std::index_sequence<I...>) {
  return invoker_table{of_operation<I>(std::make_index_sequence<widths.size()>{})...};
}
(std::make_index_sequence<catalogue.size()>{});

}  // namespace

const invoker_table& invokers(register_of<register_bytes>) { return table; }

}  // namespace lanemath::harness
