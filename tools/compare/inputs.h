// Argument tuples that take functions down all their paths.
#pragma once

#include <random>
#include <vector>

#include "harness/harness.h"

namespace lanemath::compare {

using harness::arguments;

// The same in every run: special values of the lane types; with their neighbours for one argument, all pairs for two,
// some of the triples for three.
std::vector<arguments> fixed_inputs(const signature& s);

// Blocks of random patterns, of ordinary values, and of ordinary values with one rare lane in every sixteen.
std::vector<arguments> random_inputs(const signature& s, std::size_t count, std::mt19937_64& random);

}  // namespace lanemath::compare
