// What is promised of the library's use of the stack.
#pragma once

#include <cstddef>

namespace lanemath::testing {

// No function reaches further below the caller's stack pointer than this, whichever compiler built the library: its
// return address, all that it and what it calls reserve, and what they touch below that.
constexpr std::size_t stack_bound = 3072;

}  // namespace lanemath::testing
