#include "subjects.h"

#include <fmt/format.h>

#include <filesystem>
#include <stdexcept>

namespace lanemath::bench {

namespace {

const peer_finders& peers_of(const level& at) {
  if (at.register_bytes == 16) return lanemath_benchmark_peers_16;
  // At their levels peers get all that such processors brought along.
  if (!harness::has_instructions(at) || !__builtin_cpu_supports("fma") || !__builtin_cpu_supports("bmi2"))
    throw std::runtime_error(fmt::format("this processor lacks what peers at {} need", at.name));
  return at.register_bytes == 32 ? lanemath_benchmark_peers_32 : lanemath_benchmark_peers_64;
}

}  // namespace

subjects::subjects(const std::string& library_path, const level& at)
    : library(library_path), of_arrays(library_path, at.register_bytes > 16), peers(peers_of(at)) {
  if (at.register_bytes == 16) return;
  companion.emplace((std::filesystem::absolute(library_path).parent_path() / companion_file(at)).string());
}

}  // namespace lanemath::bench
