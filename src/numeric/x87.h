// The control word of x87 arithmetic.
#pragma once

#include "frame/lanes.h"

namespace lanemath {

LANEMATH_INLINE std::uint16_t x87_control_word() {
  std::uint16_t word;
  asm volatile("fnstcw %0" : "=m"(word)::"memory");
  return word;
}
LANEMATH_INLINE void set_x87_control_word(std::uint16_t word) { asm volatile("fldcw %0" ::"m"(word) : "memory"); }

}  // namespace lanemath
