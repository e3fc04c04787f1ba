// Writes what is made from the catalogue to standard output.
#include <fmt/format.h>

#include <exception>
#include <string_view>

#include "generate.h"

int main(int argc, char** argv) try {
  const std::string_view what = argc > 1 ? argv[1] : "";
  if (what == "export-list" && argc == 2) {
    write_export_list(stdout);
  } else if (what == "public-header" && argc == 3) {
    write_public_header(stdout, argv[2]);
  } else {
    fmt::print(stderr, "usage: {} export-list | public-header FAMILY\n", argv[0]);
    return 2;
  }
  return std::fflush(stdout) == 0 ? 0 : 1;
} catch (const std::exception& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 1;
}
