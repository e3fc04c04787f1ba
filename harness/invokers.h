// How functions are called, by their place in the catalogue and the level of instructions that they are compiled for.
#pragma once

#include <array>
#include <type_traits>

#include "harness/harness.h"

namespace lanemath::harness {

using invokers_of_operation = std::array<invoker, widths.size()>;
using invoker_table = std::array<invokers_of_operation, catalogue.size()>;

// Null where the level lacks a width.
template <int Bytes>
using register_of = std::integral_constant<int, Bytes>;
const invoker_table& invokers(register_of<16>);
const invoker_table& invokers(register_of<32>);
const invoker_table& invokers(register_of<64>);

}  // namespace lanemath::harness
