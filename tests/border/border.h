// Calls of any function across the binary interface with everything around them set by hand: all registers, the control
// words, a stack of its own, and pages that cannot be touched next to the stack and to the results.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "harness/harness.h"

namespace lanemath::testing {

enum class rule : std::uint8_t {
  keeps_registers,
  keeps_stack_pointer,
  clears_direction_flag,
  keeps_mxcsr,
  keeps_x87_word,
  empties_x87_registers,
  returns_hidden_pointer,
  writes_results_only,
  keeps_callers_stack,
  bounds_its_stack,
  touches_nothing_else,     // otherwise a fault
  ignores_junk_in_results,  // whatever else is in registers, lane 3 and memory, the lanes are the same
  ignores_junk_in_flags,    // and the exceptions raised
};

// How a call is made.
struct surroundings {
  harness::arguments junk{};  // of lane 3 and of what the arguments leave free of vector registers, by argument
  std::uint64_t others = 0;   // what is in all other registers and around the results
  std::uint32_t mxcsr = 0x1F80;
  std::uint16_t x87 = 0x37F;
  std::size_t stack = 0;         // bytes between the arguments on the stack and the end of the page
  bool at_end = false;           // whether the results lie at the end of a page
  std::size_t hidden_shift = 0;  // bytes between the page's end and the result in memory: a multiple of 16
  std::size_t second_shift = 0;  // and the second result: any number
};

struct answer {
  std::vector<harness::outcome> lanes;
  std::uint32_t exceptions = 0;  // of MXCSR, and above them of x87 arithmetic
  std::size_t stack = 0;         // bytes below the stack pointer that were written, the return address among them
  std::vector<rule> broken;
};

// One call with as many tuples as the width.
answer call_across(const operation& o, int width, const void* function, std::span<const harness::arguments> tuples,
                   const surroundings& around);

}  // namespace lanemath::testing
