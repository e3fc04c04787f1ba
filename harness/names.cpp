#include "harness/names.h"

#include <fmt/format.h>
#include <fnmatch.h>

#include <stdexcept>

namespace lanemath::harness {

bool matches(const std::string& pattern, const std::string& name) {
  return fnmatch(pattern.c_str(), name.c_str(), 0) == 0;
}

selection::selection(const std::vector<std::string>& patterns) {
  if (patterns.empty()) add("*", false);
  for (const auto& pattern : patterns)
    if (!add(pattern, false) && !add(pattern, true)) throw std::runtime_error("no operation or function " + pattern);
}

bool selection::has(std::size_t operation_index, variant v, int width) const {
  for (std::size_t k = 0; k < widths.size(); ++k)
    if (widths[k] == width) return widths_[operation_index][std::size_t(v)] >> k & 1;
  return false;
}

bool selection::add(const std::string& pattern, bool with_width) {
  bool any = false;
  for (std::size_t index = 0; index < catalogue.size(); ++index)
    for (auto v : variants)
      for (std::size_t k = 0; k < widths.size(); ++k) {
        const auto& o = catalogue[index];
        const auto width = with_width ? fmt::format("{}", widths[k]) : "";
        if (!o.has(v) || !(matches(pattern, fmt::format("{}{}", o.name(), width)) ||
                           matches(pattern, fmt::format("{}{}{}", o.name(), width, suffix(v)))))
          continue;
        widths_[index][std::size_t(v)] |= std::uint8_t(1 << k);
        any = true;
      }
  return any;
}

}  // namespace lanemath::harness
