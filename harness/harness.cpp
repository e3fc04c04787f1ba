#include "harness/harness.h"

#include <dlfcn.h>
#include <fmt/format.h>

#include <array>
#include <cstring>
#include <stdexcept>
#include <utility>

#include "frame/abi.h"
#include "harness/files.h"

namespace lanemath::harness {
namespace {

// How an argument is passed. A wide one is aligned less than the library's type: its place on the stack is the same,
// and the compiler copies it there directly from the array, without a temporary.
template <class A, int W, bool InMemory = (sizeof(abi<A, W>) > 16)>
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
    if constexpr (sizeof(A) > 16) {
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

using invoker = void (*)(void*, const invoker_arguments&);

template <signature S, std::size_t... W>
constexpr std::array<invoker, widths.size()> invokers_of(std::index_sequence<W...>) {
  return {[](void* address, const invoker_arguments& a) {
    invoke<S, widths[W]>(address, a, std::make_index_sequence<std::size_t(S.arity())>{});
  }...};
}

// invokers[operation][index of the width]
constexpr auto invokers = []<std::size_t... I>(std::index_sequence<I...>) {
  return std::array{invokers_of<catalogue[I].sig>(std::make_index_sequence<widths.size()>{})...};
}
(std::make_index_sequence<catalogue.size()>{});

}  // namespace

std::string symbol(const operation& o, int width, variant v) {
  return fmt::format("{}{}{}{}", symbol_prefix, o.name(), width, suffix(v));
}

std::string default_library() { return installed_or_built(LANEMATH_INSTALLED_LIBRARY, LANEMATH_BUILT_LIBRARY); }

library::library(const std::string& path) : handle_(dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL)) {
  if (!handle_) throw std::runtime_error(dlerror());
}
library::~library() { dlclose(handle_); }

std::optional<function> library::find(std::size_t operation_index, variant v, int width) const {
  const auto& o = catalogue.at(operation_index);
  for (std::size_t place = 0; place < widths.size(); ++place)
    if (widths[place] == width)
      if (void* address = dlsym(handle_, symbol(o, width, v).c_str()))
        return function(address, invokers[operation_index][place]);
  return std::nullopt;
}

std::vector<outcome> evaluate(const operation& o, const function& f, int width, std::span<const arguments> tuples,
                              std::uint64_t junk) {
  const std::size_t count = tuples.size(), vectors = (count + width - 1) / width, lanes = vectors * padded(width);
  const auto place = [&](std::size_t tuple) { return tuple / width * padded(width) + tuple % width; };

  std::array<std::vector<std::byte>, 3> inputs;
  std::array<const void*, 3> from{};
  for (int i = 0; i < o.sig.arity(); ++i) {
    const auto size = size_of(o.sig.arguments[i]);
    inputs[i].resize(lanes * size);
    for (std::size_t n = 0; n < lanes; ++n) std::memcpy(&inputs[i][n * size], &junk, size);
    for (std::size_t n = 0; n < count; ++n) std::memcpy(&inputs[i][place(n) * size], &tuples[n][i], size);
    from[i] = inputs[i].data();
  }
  std::vector<std::byte> first(lanes * size_of(o.sig.result)), second(lanes * size_of(o.sig.second));
  f.call(from.data(), first.data(), second.data(), lanes);

  std::vector<outcome> outcomes(count);
  for (std::size_t n = 0; n < count; ++n) {
    std::memcpy(&outcomes[n].first, &first[place(n) * size_of(o.sig.result)], size_of(o.sig.result));
    if (o.sig.how != delivery::none)
      std::memcpy(&outcomes[n].second, &second[place(n) * size_of(o.sig.second)], size_of(o.sig.second));
  }
  return outcomes;
}

std::string hexadecimal(lane l, std::uint64_t bits) { return fmt::format("{:#0{}x}", bits, 2 + 2 * size_of(l)); }

std::string text_of(const operation& o, const arguments& tuple) {
  std::string text;
  for (int i = 0; i < o.sig.arity(); ++i) text += (i ? ", " : "") + hexadecimal(o.sig.arguments[i], tuple[i]);
  return text;
}
std::string text_of(const operation& o, const outcome& got) {
  const auto text = hexadecimal(o.sig.result, got.first);
  return o.sig.how == delivery::none ? text : fmt::format("({}, {})", text, hexadecimal(o.sig.second, got.second));
}

}  // namespace lanemath::harness
