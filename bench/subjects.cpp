#include "subjects.h"

#include <dlfcn.h>
#include <fmt/format.h>

#include <filesystem>
#include <stdexcept>

#include "harness/files.h"

namespace lanemath::bench {

level_peers::level_peers(const level& at) : handle_(nullptr) {
  // At their levels peers get all that such processors brought along.
  if (!harness::has_instructions(at) ||
      (at.register_bytes > 16 && !(__builtin_cpu_supports("fma") && __builtin_cpu_supports("bmi2"))))
    throw std::runtime_error(fmt::format("this processor lacks what peers at {} need", at.name));
  const auto folder = harness::installed_or_built(LANEMATH_INSTALLED_PEERS, LANEMATH_BUILT_PEERS);
  handle_ = dlopen(fmt::format("{}/lanemath-peers-{}.so", folder, at.register_bytes).c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!handle_) throw std::runtime_error(dlerror());
  finders_ = static_cast<const peer_finders*>(dlsym(handle_, "lanemath_benchmark_peers"));
}
level_peers::~level_peers() { dlclose(handle_); }

subjects::subjects(const std::string& library_path, const level& at)
    : library(library_path), of_arrays(library_path, at.register_bytes > 16), peers(at) {
  if (at.register_bytes == 16) return;
  companion.emplace((std::filesystem::absolute(library_path).parent_path() / companion_file(at)).string());
}

}  // namespace lanemath::bench
