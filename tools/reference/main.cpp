// Writes the function reference into a folder.
#include <fmt/format.h>

#include <filesystem>
#include <string>

#include "harness/files.h"
#include "reference/pages.h"

namespace {

using namespace lanemath::reference;
using lanemath::harness::replace_file;

}  // namespace

int main(int argc, char** argv) try {
  const std::string_view form = argc == 6 ? argv[1] : "";
  if (form != "html" && form != "man") {
    fmt::print(stderr, "usage: {} html|man DESCRIPTIONS FIGURES VERSION FOLDER\n", argv[0]);
    return 2;
  }
  const auto functions = function_pages(read_descriptions(argv[2]), read_speeds(argv[3]));
  const auto all = overview(functions);
  const std::filesystem::path folder = argv[5];
  if (form == "html") {
    std::filesystem::create_directories(folder);
    replace_file(folder / "index.html", html_of(all));
    for (const auto& page : functions) replace_file(folder / (page.name + ".html"), html_of(page));
    return 0;
  }
  for (auto section : {"man3", "man7"}) std::filesystem::create_directories(folder / section);
  replace_file(folder / "man7" / "lanemath.7", manual_of(all, argv[4]));
  for (const auto& page : functions) {
    replace_file(folder / "man3" / (page.name + ".3"), manual_of(page, argv[4]));
    for (const auto& name : page.names)
      if (name != page.name) replace_file(folder / "man3" / (name + ".3"), fmt::format(".so man3/{}.3\n", page.name));
  }
} catch (const std::exception& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 1;
}
