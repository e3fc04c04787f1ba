// The companions for wider registers that functions of this library call, and their functions.
#pragma once

namespace lanemath {

// Whether the companion is beside this library and of its version, and the processor has the level.
struct usable_companions {
  bool avx2, avx512;
};
#if LANEMATH_LEVELS
[[gnu::visibility("hidden")]] extern usable_companions usable;  // all false until this library is initialised
#else
inline constexpr usable_companions usable{};
#endif

}  // namespace lanemath

// A companion's function: a pointer of its name, which is set where the companion is usable.
#define LANEMATH_USABLE [[gnu::visibility("hidden")]] extern
