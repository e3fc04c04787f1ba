// Writes a C program with an ordinary loop over each function of width 1 that has one result, as a user would write it.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <string>
#include <vector>

#include "frame/catalogue.h"

int main() {
  using namespace lanemath;
  fmt::print("#include <lanemath/loops.h>\n#include <stddef.h>\n");
  for (const auto& o : catalogue)
    for (auto v : variants) {
      if (!o.has(v) || o.sig.how != delivery::none) continue;
      std::string arrays;
      std::vector<std::string> elements;
      for (int i = 0; i < o.sig.arity(); ++i) {
        arrays += fmt::format("const lanemath_{}* restrict x{}, ", type_name(o.sig.arguments[i]), i);
        elements.push_back(fmt::format("x{}[i]", i));
      }
      fmt::print(
          "\nvoid loop_{0}{1}({2}lanemath_{3}* restrict y, size_t n) {{\n"
          "  for (size_t i = 0; i < n; ++i) y[i] = lanemath_{0}1{1}({4});\n}}\n",
          o.name(), suffix(v), arrays, type_name(o.sig.result), fmt::join(elements, ", "));
    }
}
