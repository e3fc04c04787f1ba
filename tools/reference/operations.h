// What operations.txt, in this folder, says of the operations.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/catalogue.h"

namespace lanemath::reference {

// Results at special arguments, as they are written there.
struct special_case {
  std::vector<std::string> conditions, arguments, results;

  bool has(std::string_view condition) const;
  bool holds_for(const operation& o) const;
  // Not for the variants that test nothing, and some only for the default.
  bool holds_for(const operation& o, variant v) const;
};

// The text of a page: of both precisions of an operation, or of conversions that differ in rounding and saturation.
struct description {
  std::string page, about;
  std::vector<special_case> cases;
};

// The name of the page that describes the operation.
std::string page_of(const operation& o);

// Throws std::runtime_error, which names the line, unless each page is described once.
std::vector<description> read_descriptions(const std::string& path);

}  // namespace lanemath::reference
