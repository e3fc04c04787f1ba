// The linker's export list: every name of the catalogue that a level has, a companion's version, and nothing
// else.
#include <fmt/format.h>

#include "frame/catalogue.h"
#include "generate.h"

void write_export_list(std::FILE* out, const lanemath::level& of) {
  using namespace lanemath;
  fmt::print(out, "{{\n  global:\n");
  for (const auto& operation : catalogue)
    for (auto variant : variants)
      if (operation.has(variant))
        for (int width : widths)
          if (operation.is_at(of, width))
            fmt::print(out, "    {}{}{}{};\n", of.symbol_prefix, operation.name(), width, suffix(variant));
  if (!of.name.empty()) fmt::print(out, "    {}version;\n", of.symbol_prefix);
  fmt::print(out, "  local: *;\n}};\n");
}
