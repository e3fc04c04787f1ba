// Lane patterns that are worth trying.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "frame/catalogue.h"

namespace lanemath::harness {

// What every kernel has to handle: zeros, the ends of the denormals and of the normals, ones, infinities, NaNs of both
// kinds and signs, the ends of the integers. Few enough for all pairs to occur among a few thousand lanes.
const std::vector<std::uint64_t>& special_patterns(lane l);

// These, and where functions change: the ends of domains and ranges, overflow and underflow, changes of method. Of both
// signs, in ascending order.
const std::vector<std::uint64_t>& turning_points(lane l);

// A special pattern or a random one, a quarter of the time each, otherwise an ordinary value of magnitude up to 32.
std::uint64_t mixed_pattern(lane l, std::mt19937_64& random);

}  // namespace lanemath::harness
