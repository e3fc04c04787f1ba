// How much a test tries.
#pragma once

#include <cstddef>
#include <cstdlib>

namespace lanemath::testing {

// The tests labelled `long` set the variable.
inline std::size_t effort(std::size_t usual, std::size_t in_long_tests) {
  return std::getenv("LANEMATH_LONG") ? in_long_tests : usual;
}

}  // namespace lanemath::testing
