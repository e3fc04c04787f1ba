#include "latency.h"

#include <cstdint>
#include <type_traits>

#include "frame/frame.h"
#include "typed_calls.h"

namespace lanemath::bench {
namespace {

template <class... Signature>
std::optional<harness::function> latency_of(const operation& o, void* address) {
  std::optional<harness::function> found;
  const auto consider = [&]<class S>(std::type_identity<S>) {
    using crossing = border<S>;
    if (crossing::sig == o.sig) found = typed_calls<typename crossing::template function<1>>::latency(address);
  };
  (consider(std::type_identity<Signature>()), ...);
  return found;
}

template <class T>
std::optional<harness::function> latency_of_floating(const operation& o, void* address) {
  using i32 = std::int32_t;
  return latency_of<T(T), T(T, T), T(T, T, T), T(T, i32), through_pointer<T, T>(T), through_pointer<T, i32>(T),
                    through_pointer<T, i32>(T, T), pair_of<T, T>(T)>(o, address);
}

template <class T>
std::optional<harness::function> latency_of_integer(const operation& o, void* address) {
  return latency_of<T(T, T), pair_of<T, T>(T, T)>(o, address);
}

}  // namespace

std::optional<harness::function> latency(const operation& o, const harness::function& width_1) {
  auto* address = const_cast<void*>(width_1.address());
  switch (o.sig.arguments[0]) {
    case lane::f32: return latency_of_floating<float>(o, address);
    case lane::f64: return latency_of_floating<double>(o, address);
    case lane::i32: return latency_of_integer<std::int32_t>(o, address);
    case lane::u32: return latency_of_integer<std::uint32_t>(o, address);
    default: return std::nullopt;
  }
}

}  // namespace lanemath::bench
