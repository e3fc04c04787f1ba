#include "harness/names.h"

#include <fnmatch.h>

#include <algorithm>
#include <stdexcept>

namespace lanemath::harness {

bool matches(const std::string& pattern, const std::string& name) {
  return fnmatch(pattern.c_str(), name.c_str(), 0) == 0;
}

bool wanted(const std::vector<std::string>& patterns, const operation& o, variant v) {
  const std::string name(o.name()), with_variant = name + std::string(suffix(v));
  return patterns.empty() || std::ranges::any_of(patterns, [&](const auto& pattern) {
           return matches(pattern, name) || matches(pattern, with_variant);
         });
}

void check_names(const std::vector<std::string>& patterns) {
  for (const auto& pattern : patterns)
    if (std::ranges::none_of(catalogue, [&](const auto& o) {
          return std::ranges::any_of(variants, [&](auto v) { return o.has(v) && wanted({pattern}, o, v); });
        }))
      throw std::runtime_error("no operation " + pattern);
}

}  // namespace lanemath::harness
