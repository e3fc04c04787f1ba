// Arrays of lanes: the inputs of kernels, and where two results differ.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "frame/catalogue.h"

using bytes = std::vector<std::byte>;

// A quarter of the lanes are turning points, the others special patterns, random patterns and ordinary values.
bytes inputs_of(lanemath::lane l, std::size_t lanes, std::mt19937_64& random);

// All lanes the same.
bytes constants_of(lanemath::lane l, std::size_t lanes, double value);

// Makes each lane equal to the first one of its share.
void spread_first_lanes(bytes& values, std::size_t lane_size, std::size_t lanes_per_share);

struct comparison {
  lanemath::lane of;
  int width;
  bool any_nan;  // any NaN will do where an argument or the library's result is one
  const lanemath::signature& signature;
  const std::vector<bytes>& inputs;
  const std::byte* kernel;
  const bytes& direct;
};

// How many lanes of a kernel's results differ; the first that does is printed.
std::size_t differences(const std::string& what, const comparison& c);
