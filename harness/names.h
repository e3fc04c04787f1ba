// How users of the tools name what to work on: an operation 'expf', one of its variants 'expf_native', a function
// 'expf4_native', or a shell pattern such as 'exp*'.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "frame/catalogue.h"

namespace lanemath::harness {

bool matches(const std::string& pattern, const std::string& name);

class selection {
 public:
  // Everything without patterns. Throws if one of them names nothing in the catalogue. A name that can be read in two
  // ways, such as exp2, is that of an operation.
  explicit selection(const std::vector<std::string>& patterns);

  bool has(std::size_t operation_index, variant v, int width) const;
  // At any width.
  bool has(std::size_t operation_index, variant v) const { return widths_[operation_index][std::size_t(v)] != 0; }

 private:
  bool add(const std::string& pattern, bool with_width);

  std::array<std::array<std::uint8_t, variants.size()>, catalogue.size()> widths_{};  // bit k: widths[k]
};

}  // namespace lanemath::harness
