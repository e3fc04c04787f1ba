#pragma once

#include <optional>

#include "frame/catalogue.h"
#include "harness/harness.h"

namespace lanemath::bench {

// The width-1 function of an operation, called so that each call waits for the result of the one before.
std::optional<harness::function> latency(const operation& o, const harness::function& width_1);

}  // namespace lanemath::bench
