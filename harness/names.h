// How users of the tools name operations: 'expf', 'expf_native', or a shell pattern such as 'exp*'.
#pragma once

#include <string>
#include <vector>

#include "frame/catalogue.h"

namespace lanemath::harness {

bool matches(const std::string& pattern, const std::string& name);

// Whether a pattern names the operation or this variant of it. Without patterns everything is wanted.
bool wanted(const std::vector<std::string>& patterns, const operation& o, variant v);

// Throws if one of the patterns names nothing in the catalogue.
void check_names(const std::vector<std::string>& patterns);

}  // namespace lanemath::harness
