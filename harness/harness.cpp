#include "harness/harness.h"

#include <dlfcn.h>
#include <fmt/format.h>

#include <array>
#include <cstring>
#include <stdexcept>
#include <utility>

#include "harness/files.h"
#include "harness/invokers.h"

namespace lanemath::harness {

bool has_instructions(const level& l) {
  if (l.name == "avx2") return __builtin_cpu_supports("avx2");
  if (l.name == "avx512")
    return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
           __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw");
  return true;
}

std::string symbol(const operation& o, int width, variant v, const level& at) {
  return fmt::format("{}{}{}{}", at.symbol_prefix, o.name(), width, suffix(v));
}

std::string default_library() { return installed_or_built(LANEMATH_INSTALLED_LIBRARY, LANEMATH_BUILT_LIBRARY); }

library::library(const std::string& path) : handle_(dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL)) {
  if (!handle_) throw std::runtime_error(dlerror());
  // The widest form of an operation is at every level that has the operation.
  for (const auto& l : levels)
    for (const auto& o : catalogue)
      if (dlsym(handle_, symbol(o, widths.back(), variant::standard, l).c_str())) level_ = &l;
  if (has_instructions(*level_)) return;
  dlclose(handle_);
  throw std::runtime_error(fmt::format("{} needs {}, which this processor lacks", path, level_->name));
}
library::~library() { dlclose(handle_); }

std::optional<function> library::find(std::size_t operation_index, variant v, int width) const {
  const auto& o = catalogue.at(operation_index);
  const auto& table = level_->register_bytes == 16   ? invokers(register_of<16>())
                      : level_->register_bytes == 32 ? invokers(register_of<32>())
                                                     : invokers(register_of<64>());
  for (std::size_t place = 0; place < widths.size(); ++place)
    if (widths[place] == width && o.is_at(*level_, width))
      if (void* address = dlsym(handle_, symbol(o, width, v, *level_).c_str()))
        return function(address, table[operation_index][place]);
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
