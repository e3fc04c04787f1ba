// The linker's export list: every name of the catalogue, and nothing else.
#include <fmt/format.h>

#include "frame/catalogue.h"
#include "generate.h"

void write_export_list(std::FILE* out) {
  using namespace lanemath;
  fmt::print(out, "{{\n  global:\n");
  for (const auto& operation : catalogue)
    for (auto variant : variants)
      if (operation.has(variant))
        for (int width : widths)
          fmt::print(out, "    {}{}{}{};\n", symbol_prefix, operation.name(), width, suffix(variant));
  fmt::print(out, "  local: *;\n}};\n");
}
