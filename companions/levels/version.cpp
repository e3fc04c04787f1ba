// For those who load a companion at run time: the version of lanemath that it was built from. That of an earlier
// version may lack functions.
#include "frame/level.h"

extern "C" [[gnu::visibility("default")]] const char* LANEMATH_SYMBOL(version)() { return LANEMATH_VERSION; }
