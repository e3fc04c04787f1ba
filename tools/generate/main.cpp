// Writes what is made from the catalogue.
#include <fmt/format.h>

#include <algorithm>
#include <exception>
#include <fstream>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

#include "generate.h"
#include "harness/files.h"
#include "opencl.h"

namespace {

using namespace lanemath;

std::set<std::string> exported_names_in(const char* path) {
  std::ifstream in(path);
  std::set<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.insert(line);
  if (in.bad() || std::ranges::none_of(lines, [](const auto& line) { return line.starts_with(symbol_prefix); }))
    throw std::runtime_error(fmt::format("no exported names in {}", path));
  return lines;
}

const machine& machine_of_kind(std::string_view kind) {
  for (const auto& on : machines)
    if (on.kind == kind) return on;
  throw std::runtime_error(fmt::format("no kind of machine {}", kind));
}

const level& level_of_name(std::string_view name) {
  for (const auto& each : levels)
    if (each.name == name) return each;
  throw std::runtime_error(fmt::format("no level {}", name));
}

}  // namespace

int main(int argc, char** argv) try {
  const auto path = harness::take_output_path(argc, argv);
  harness::whole_output out;
  const std::string_view what = argc > 1 ? argv[1] : "";
  if (what == "export-list" && argc <= 3) {
    write_export_list(out.stream(), level_of_name(argc == 3 ? argv[2] : ""));
  } else if (what == "public-header" && argc == 3) {
    write_public_header(out.stream(), argv[2]);
  } else if (what == "loops-library" && argc == 3) {
    write_loops_library(out.stream(), argv[2]);
  } else if (what == "vectors-header" && argc == 2) {
    write_vectors_header(out.stream());
  } else if (what == "cpp-header" && argc == 2) {
    write_cpp_header(out.stream());
  } else if (what == "cpp-calls" && argc == 2) {
    write_cpp_calls(out.stream());
  } else if (what == "opencl-kinds" && argc == 2) {
    for (const auto& on : machines)
      if (!on.features.empty()) fmt::print(out.stream(), "{} {}\n", on.kind, on.features);
  } else if (what == "opencl-processor" && argc == 3) {
    fmt::print(out.stream(), "{}\n", machine_of_kind(argv[2]).processor);
  } else if (what == "opencl-builtins" && argc == 4) {
    write_opencl_builtins(out.stream(), machine_of_kind(argv[2]), exported_names_in(argv[3]));
  } else if (what == "opencl-crossings" && argc == 4) {
    write_opencl_crossings(out.stream(), machine_of_kind(argv[2]), exported_names_in(argv[3]));
  } else {
    fmt::print(stderr,
               "usage: {} export-list [LEVEL] | public-header FAMILY | vectors-header | cpp-header | cpp-calls |\n"
               "       loops-library FILE | opencl-kinds | opencl-processor KIND |\n"
               "       opencl-builtins KIND EXPORTED_NAMES | opencl-crossings KIND EXPORTED_NAMES [--output FILE]\n",
               argv[0]);
    return 2;
  }
  out.write(path);
} catch (const std::exception& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 1;
}
