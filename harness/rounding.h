// The directions that a caller may round in.
#pragma once

#include <cfenv>
#include <string_view>

namespace lanemath::harness {

struct direction {
  int mode;
  std::string_view name;
};
inline constexpr direction directions[] = {
    {FE_TONEAREST, "to nearest"}, {FE_DOWNWARD, "downward"}, {FE_UPWARD, "upward"}, {FE_TOWARDZERO, "toward zero"}};

// The rounding direction of MXCSR and of the x87 control word, for as long as this lives.
class rounding {
 public:
  explicit rounding(int mode) { std::fesetround(mode); }
  ~rounding() { std::fesetround(before_); }
  rounding(const rounding&) = delete;
  rounding& operator=(const rounding&) = delete;

 private:
  int before_ = std::fegetround();
};

}  // namespace lanemath::harness
