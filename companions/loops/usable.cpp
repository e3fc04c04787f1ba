// Finds the companions. They are asked for at run time, since this library shall work without them.
#include "usable.h"

#include <dlfcn.h>

// Null where a program has no such functions of the loader's.
#pragma weak dlopen
#pragma weak dlsym
#pragma weak dlerror

extern "C" {
#define LANEMATH_AVX2(name) void* lanemath_avx2_##name;
#define LANEMATH_AVX512(name) void* lanemath_avx512_##name;
#include LANEMATH_INSTANCES
}

namespace lanemath {

usable_companions usable;

namespace {

struct function {
  const char* name;
  void** pointer;
};
#undef LANEMATH_AVX2
#undef LANEMATH_AVX512
#define LANEMATH_AVX2(name) {"lanemath_avx2_" #name, &lanemath_avx2_##name},
#define LANEMATH_AVX512(name)
constexpr function of_avx2[] = {
#include LANEMATH_INSTANCES
};
#undef LANEMATH_AVX2
#undef LANEMATH_AVX512
#define LANEMATH_AVX2(name)
#define LANEMATH_AVX512(name) {"lanemath_avx512_" #name, &lanemath_avx512_##name},
constexpr function of_avx512[] = {
#include LANEMATH_INSTANCES
};

bool is_own(const char* version) {
  const char* own = LANEMATH_VERSION;
  while (*own && *own == *version) ++own, ++version;
  return *own == *version;
}

// Whether there is this companion, with all functions. It is never closed: threads may still be in it at the end.
template <int N>
bool finds(const char* file, const char* version, const function (&functions)[N]) {
  void* const companion = dlopen(file, RTLD_NOW);
  const auto tell = companion ? reinterpret_cast<const char* (*)()>(dlsym(companion, version)) : nullptr;
  if (!tell || !is_own(tell())) return false;
  for (const auto& f : functions)
    if (!(*f.pointer = dlsym(companion, f.name))) return false;
  return true;
}

[[gnu::constructor]] void look() {
  if (!dlopen || !dlsym || !dlerror) return;
  __builtin_cpu_init();
  if (__builtin_cpu_supports("avx2"))
    usable.avx2 = finds("liblanemath_avx2.so." LANEMATH_MAJOR, "lanemath_avx2_version", of_avx2);
  if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512dq") &&
      __builtin_cpu_supports("avx512bw"))
    usable.avx512 = finds("liblanemath_avx512.so." LANEMATH_MAJOR, "lanemath_avx512_version", of_avx512);
  dlerror();  // that there is none is nobody's error
}

}  // namespace

}  // namespace lanemath
