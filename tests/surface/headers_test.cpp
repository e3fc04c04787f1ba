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

TEST(Headers, DocumentEveryOperationInCpp) {
  std::ifstream in(std::string(LANEMATH_HEADERS) + "/lanemath.hpp");
  const std::regex function(R"(^LANEMATH_FUNCTION .* (\w+)\(V x)");
  std::multiset<std::string> found;
  std::array<std::string, 2> before;
  for (std::string line; std::getline(in, line); before = {before[1], line}) {
    std::smatch match;
    if (before[0].ends_with("*/") && before[1] == "template <class V>" && std::regex_search(line, match, function))
      found.insert(match[1]);
  }
  std::set<std::pair<std::string_view, variant>> due;
  for (const auto& o : catalogue)
    for (auto v : variants)
      if (o.has(v) && o.group != family::conversion) due.emplace(o.base_name(), v);
  EXPECT_EQ(found.size(), due.size());
  for (const auto& [name, v] : due) EXPECT_TRUE(found.contains(std::string(name))) << name;
}

}  // namespace
}  // namespace lanemath::testing
