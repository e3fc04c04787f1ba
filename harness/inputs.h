// Lane patterns that are worth trying.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "frame/catalogue.h"

namespace lanemath::harness {

constexpr bool is_floating(lane l) { return l == lane::f32 || l == lane::f64; }

// What no kernel can do without a thought: zeros, the ends of the denormals and of the normals, ones, infinities, NaNs
// of both kinds and signs, the ends of the integers. Few enough for all pairs to be met among some thousand lanes.
const std::vector<std::uint64_t>& special_patterns(lane l);

// Besides these, where functions turn: the ends of domains and ranges, overflow and underflow, changes of method, of
// both signs. In ascending order.
const std::vector<std::uint64_t>& turning_points(lane l);

// One of the special patterns, any pattern or, as often as both, an ordinary value, of up to 32.
std::uint64_t mixed_pattern(lane l, std::mt19937_64& random);

}  // namespace lanemath::harness
