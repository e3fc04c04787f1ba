// The library under test.
#pragma once

#include "harness/harness.h"

namespace lanemath::testing {

inline const harness::library& library() {
  static const harness::library loaded(LANEMATH_LIBRARY);
  return loaded;
}

}  // namespace lanemath::testing
