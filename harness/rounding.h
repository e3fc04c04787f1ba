// The rounding directions that a caller may set.
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

// Sets the rounding direction of MXCSR and of the x87 control word during its lifetime.
class rounding {
 public:
  explicit rounding(int mode);
  ~rounding();
  rounding(const rounding&) = delete;
  rounding& operator=(const rounding&) = delete;

 private:
  int before_;
};

// What f returns when run in a direction.
template <class F>
auto in_direction(int mode, F f) {
  const rounding in_force(mode);
  return f();
}

}  // namespace lanemath::harness
