// Argument tuples that lead functions down all their paths.
#pragma once

#include <random>
#include <vector>

#include "harness/harness.h"

namespace lanemath::compare {

using harness::arguments;

// The same at every run: what is special about the lane types, with neighbours for one argument, in all pairs for two
// and in some of the triples for three.
std::vector<arguments> fixed_inputs(const signature& s);

// Blocks of any patterns, of ordinary values, and of ordinary values with one rare lane in every sixteen.
std::vector<arguments> random_inputs(const signature& s, std::size_t count, std::mt19937_64& random);

}  // namespace lanemath::compare
