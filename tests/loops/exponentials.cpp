// Succeeds if the exponentials of zeros are all 0, and fails with 1 if they are all 1.
#include <lanemath/arrays.h>

#include <algorithm>

int main() {
  float x[17]{}, y[17];
  lanemath_expf_array(x, y, 17);
  return std::count(y, y + 17, 0.0f) == 17 ? 0 : std::count(y, y + 17, 1.0f) == 17 ? 1 : 2;
}
