// The pages of the reference.
#pragma once

#include <string>
#include <vector>

#include "reference/document.h"
#include "reference/operations.h"
#include "reference/speed.h"

namespace lanemath::reference {

// One for each description.
std::vector<document> function_pages(const std::vector<description>& descriptions, const speeds& speed);
// What holds for all functions, with a list of the pages.
document overview(const std::vector<document>& pages_of_functions);

}  // namespace lanemath::reference
