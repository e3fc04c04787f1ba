#include "arrays.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace lanemath::bench {
namespace {

template <std::size_t Arity, bool Second>
void call(void* address, const harness::invoker_arguments& given) {
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    const auto f = [&](auto... results) {
      using function = void (*)(decltype((void)I, (const void*)nullptr)..., decltype(results)..., std::size_t);
      reinterpret_cast<function>(address)(given.inputs[I]..., results..., given.lanes);
    };
    if constexpr (Second)
      f(given.result, given.second);
    else
      f(given.result);
  }
  (std::make_index_sequence<Arity>());
}

}  // namespace

std::string companion_file(const level& l) { return fmt::format("liblanemath_{}.so.3", l.name); }

array_functions::array_functions(const std::string& library_path, bool with_companions) : handle_(nullptr) {
  const auto path = std::filesystem::absolute(library_path).parent_path() / "liblanemath_loops.so.3";
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return;
  // It looks for companions in the folder that it is loaded from. There are none beside the file's other name.
  handle_ =
      dlopen(with_companions ? path.c_str() : fmt::format("/proc/self/fd/{}", file).c_str(), RTLD_NOW | RTLD_LOCAL);
  close(file);
  // Where some are installed for all programs, it has them nevertheless.
  const auto is_loaded = [](const level& l) { return dlopen(companion_file(l).c_str(), RTLD_NOW | RTLD_NOLOAD); };
  if (handle_ && !with_companions && std::ranges::any_of(levels, is_loaded)) dlclose(std::exchange(handle_, nullptr));
}

array_functions::~array_functions() {
  if (handle_) dlclose(handle_);
}

std::optional<harness::function> array_functions::find(const operation& o, variant v) const {
  void* address = handle_ ? dlsym(handle_, fmt::format("lanemath_{}_array{}", o.name(), suffix(v)).c_str()) : nullptr;
  if (!address) return std::nullopt;
  const bool second = o.sig.how != delivery::none;
  switch (o.sig.arity()) {
    case 1: return harness::function(address, second ? call<1, true> : call<1, false>);
    case 2: return harness::function(address, second ? call<2, true> : call<2, false>);
    default: return harness::function(address, call<3, false>);
  }
}

}  // namespace lanemath::bench
