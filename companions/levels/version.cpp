// For those who load a companion at run time: the version of lanemath that it was built from. A companion of another
// version may lack functions, or have another function's results under a name.
#include "frame/level.h"

extern "C" [[gnu::visibility("default")]] const char* LANEMATH_SYMBOL(version)() { return LANEMATH_VERSION; }
