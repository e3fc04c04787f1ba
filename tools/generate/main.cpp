// Writes what is made from the catalogue to standard output.
#include <fmt/format.h>

#include <exception>
#include <fstream>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

#include "generate.h"
#include "opencl.h"

namespace {

std::set<std::string> lines_of(const char* path) {
  std::ifstream in(path);
  if (!in) throw std::runtime_error(fmt::format("cannot read {}", path));
  std::set<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.insert(line);
  return lines;
}

const machine& machine_of_kind(std::string_view kind) {
  for (const auto& on : machines)
    if (on.kind == kind) return on;
  throw std::runtime_error(fmt::format("no kind of machine {}", kind));
}

}  // namespace

int main(int argc, char** argv) try {
  const std::string_view what = argc > 1 ? argv[1] : "";
  if (what == "export-list" && argc == 2) {
    write_export_list(stdout);
  } else if (what == "public-header" && argc == 3) {
    write_public_header(stdout, argv[2]);
  } else if (what == "vectors-header" && argc == 2) {
    write_vectors_header(stdout);
  } else if (what == "cpp-header" && argc == 2) {
    write_cpp_header(stdout);
  } else if (what == "cpp-calls" && argc == 2) {
    write_cpp_calls(stdout);
  } else if (what == "opencl-kinds" && argc == 2) {
    for (const auto& on : machines)
      if (!on.features.empty()) fmt::print("{} {}\n", on.kind, on.features);
  } else if (what == "opencl-processor" && argc == 3) {
    fmt::print("{}\n", machine_of_kind(argv[2]).processor);
  } else if (what == "opencl-builtins" && argc == 4) {
    write_opencl_builtins(stdout, machine_of_kind(argv[2]), lines_of(argv[3]));
  } else if (what == "opencl-crossings" && argc == 4) {
    write_opencl_crossings(stdout, machine_of_kind(argv[2]), lines_of(argv[3]));
  } else {
    fmt::print(stderr,
               "usage: {} export-list | public-header FAMILY | vectors-header | cpp-header | cpp-calls |\n"
               "       opencl-kinds | opencl-processor KIND | opencl-builtins KIND EXPORTED_NAMES |\n"
               "       opencl-crossings KIND EXPORTED_NAMES\n",
               argv[0]);
    return 2;
  }
  return std::fflush(stdout) == 0 ? 0 : 1;
} catch (const std::exception& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 1;
}
