// The library with a few functions altered, each in a way that is easily missed. The others come from the real one,
// which this one links.
#include <xmmintrin.h>

#include <bit>
#include <cstdint>

typedef float float4 __attribute__((vector_size(16)));

extern "C" {
float __ocl_lanemath_h8_expf1(float x);
float __ocl_lanemath_h8_sincosf1(float x, float* cosine);

#define ALTERED __attribute__((visibility("default")))

// The last lane's NaN has a different payload.
ALTERED float4 __ocl_lanemath_h8_expf4(float4 x) {
  float4 y;
  for (int i = 0; i < 4; ++i) y[i] = __ocl_lanemath_h8_expf1(x[i]);
  if (y[3] != y[3]) y[3] = std::bit_cast<float>(std::bit_cast<std::uint32_t>(y[3]) ^ 1);
  return y;
}

// The fourth lane of three does not matter.
ALTERED float4 __ocl_lanemath_h8_expf3(float4 x) {
  float4 y{0, 0, 0, 1};
  for (int i = 0; i < 3; ++i) y[i] = __ocl_lanemath_h8_expf1(x[i]);
  return y;
}

// The second result has a different last bit at one input.
ALTERED float4 __ocl_lanemath_h8_sincosf4(float4 x, float* cosines) {
  float4 y;
  for (int i = 0; i < 4; ++i) {
    y[i] = __ocl_lanemath_h8_sincosf1(x[i], &cosines[i]);
    if (x[i] == 0.5f) cosines[i] = std::bit_cast<float>(std::bit_cast<std::uint32_t>(cosines[i]) ^ 1);
  }
  return y;
}

// A different sign when rounding upward.
ALTERED float __ocl_lanemath_h8_fabsf1(float x) {
  const float y = std::bit_cast<float>(std::bit_cast<std::uint32_t>(x) & 0x7FFFFFFF);
  return _MM_GET_ROUNDING_MODE() == _MM_ROUND_UP ? -y : y;
}
}
