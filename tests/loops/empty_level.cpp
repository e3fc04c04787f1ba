// A companion of a given version whose functions all return 0, to show who calls it.
#include "frame/lanes.h"

#define EXPORTED extern "C" [[gnu::visibility("default")]]
using group = lanemath::lanes<float, lanemath::register_bytes / 4>::group;
// Those of the other level do no harm.
#define LANEMATH_FUNCTION(level, name) \
  EXPORTED group lanemath_##level##_##name() { return group(); }
#include "usable.inc"

EXPORTED const char* LANEMATH_SYMBOL(version)() { return LANEMATH_VERSION; }
