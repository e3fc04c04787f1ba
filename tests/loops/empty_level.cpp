// A companion of a given version whose functions all return 0, to show who calls it.
#include "frame/lanes.h"

#define EXPORTED extern "C" [[gnu::visibility("default")]]
using group = lanemath::lanes<float, lanemath::register_bytes / 4>::group;
#define EMPTY(name) \
  EXPORTED group LANEMATH_SYMBOL(name)() { return group(); }
#if LANEMATH_REGISTER_BYTES == 32
#define LANEMATH_AVX2(name) EMPTY(name)
#define LANEMATH_AVX512(name)
#else
#define LANEMATH_AVX2(name)
#define LANEMATH_AVX512(name) EMPTY(name)
#endif
#include "usable.inc"

EXPORTED const char* LANEMATH_SYMBOL(version)() { return LANEMATH_VERSION; }
