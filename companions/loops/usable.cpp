// Finds the companions. They are asked for at run time, since this library shall work without them.
#include "usable.h"

#include <dlfcn.h>

// Null where a program has no such functions of the loader's.
#pragma weak dlopen
#pragma weak dlsym
#pragma weak dlerror

extern "C" {
#define LANEMATH_FUNCTION(level, name) void* lanemath_##level##_##name;
#include LANEMATH_INSTANCES
#undef LANEMATH_FUNCTION
}

namespace lanemath {

usable_companions usable;

namespace {

struct function {
  const bool* companion;
  const char* name;
  void** pointer;
};
#define LANEMATH_FUNCTION(level, name) {&usable.level, "lanemath_" #level "_" #name, &lanemath_##level##_##name},
constexpr function functions[] = {
#include LANEMATH_INSTANCES
};

bool is_own(const char* version) {
  const char* own = LANEMATH_VERSION;
  while (*own && *own == *version) ++own, ++version;
  return *own == *version;
}

// Takes a companion if it is there with all functions. It is never closed: threads may still be in it at the end.
void take(bool& companion, const char* file, const char* version) {
  void* const handle = dlopen(file, RTLD_NOW);
  const auto tell = handle ? reinterpret_cast<const char* (*)()>(dlsym(handle, version)) : nullptr;
  if (!tell || !is_own(tell())) return;
  for (const auto& f : functions)
    if (f.companion == &companion && !(*f.pointer = dlsym(handle, f.name))) return;
  companion = true;
}

[[gnu::constructor]] void look() {
  if (!dlopen || !dlsym || !dlerror) return;
  __builtin_cpu_init();
  if (__builtin_cpu_supports("avx2")) take(usable.avx2, "liblanemath_avx2.so." LANEMATH_MAJOR, "lanemath_avx2_version");
  if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512dq") &&
      __builtin_cpu_supports("avx512bw"))
    take(usable.avx512, "liblanemath_avx512.so." LANEMATH_MAJOR, "lanemath_avx512_version");
  dlerror();  // that there is none is nobody's error
}

}  // namespace

}  // namespace lanemath
