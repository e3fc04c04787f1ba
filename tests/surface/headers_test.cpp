// What the public headers show to those who search them.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>

#include "harness/harness.h"

namespace lanemath::testing {
namespace {

// The functions that the C headers declare or define on a line of their own, right below a comment.
std::multiset<std::string> documented_functions() {
  const std::regex function(R"(^(LANEMATH_INLINE )?(lanemath_\w+|void) (lanemath_\w+)\()");
  std::multiset<std::string> all;
  for (const auto& file : std::filesystem::directory_iterator(LANEMATH_HEADERS)) {
    std::ifstream in(file.path());
    bool documented = false;
    for (std::string line; std::getline(in, line); documented = line.ends_with("*/")) {
      std::smatch match;
      if (documented && std::regex_search(line, match, function)) all.insert(match[3]);
    }
  }
  return all;
}

TEST(Headers, DeclareEveryFunctionOnceByNameWithItsDocumentation) {
  const auto found = documented_functions();
  std::size_t functions = 0;
  for (const auto& o : catalogue)
    for (auto v : variants)
      if (o.has(v))
        for (int width : widths) {
          const auto symbol = harness::symbol(o, width, v);
          EXPECT_EQ(found.count("lanemath_" + symbol.substr(symbol_prefix.size())), 1u) << symbol;
          ++functions;
        }
  constexpr std::size_t types = 6, helpers = 3;
  EXPECT_EQ(found.size(), functions + types * helpers * widths.size());
}

}  // namespace
}  // namespace lanemath::testing
