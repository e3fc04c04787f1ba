#include "harness/rounding.h"

#include <stdexcept>

namespace lanemath::harness {

rounding::rounding(int mode) : before_(std::fegetround()) {
  if (std::fesetround(mode) != 0) throw std::runtime_error("no such rounding direction");
}
rounding::~rounding() { std::fesetround(before_); }

}  // namespace lanemath::harness
