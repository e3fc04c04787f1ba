// The driver to which the launcher points the OpenCL loader, in place of the runtime's. It loads the library for the
// kernels, and the runtime from the private folder around this file, whose kernel libraries call the library. A layer
// of the loader could not do that: it is loaded after the runtimes.
//
// Neither program binaries nor compiled kernels may be taken for those of the runtime's own built-ins. So the driver's
// version names the library too, for programs that keep binaries, and the runtime keeps its kernels in a cache of ours.
// Where anything is amiss, the program gets the runtime as it is installed.
#define CL_TARGET_OPENCL_VERSION 300
#include <CL/cl_icd.h>
#include <dlfcn.h>
#include <limits.h>
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

typedef void* find_function(const char* name);

static const char* cache;         // the runtime's cache of compiled kernels
static const char* kind;          // of machine that kernels are compiled for
static char fingerprint[16 + 1];  // of the kernel libraries
static cl_platform_id platform;   // the runtime's only one
static cl_icd_dispatch below;     // its functions
static find_function* find_in_runtime;

// The runtime asks for the cache and the kind of machine once, when it looks for devices. Only then does the
// environment hold ours: a child process must not inherit them, for it may run on the runtime's own built-ins.
static void find_devices(void) {
  struct {
    const char *name, *value;
    char* before;
  } variables[] = {{"POCL_CACHE_DIR", cache, NULL}, {"POCL_KERNELLIB_NAME", kind, NULL}};
  for (int i = 0; i < 2; ++i) {
    const char* const set = getenv(variables[i].name);
    if (set) variables[i].before = strdup(set);
    setenv(variables[i].name, variables[i].value, 1);
  }
  cl_uint number;
  below.clGetDeviceIDs(platform, CL_DEVICE_TYPE_ALL, 0, NULL, &number);
  for (int i = 0; i < 2; ++i) {
    if (variables[i].before)
      setenv(variables[i].name, variables[i].before, 1);
    else
      unsetenv(variables[i].name);
    free(variables[i].before);
  }
}
static pthread_once_t found_devices = PTHREAD_ONCE_INIT;

static cl_int CL_API_CALL get_device_ids(cl_platform_id from, cl_device_type type, cl_uint size, cl_device_id* devices,
                                         cl_uint* number) {
  pthread_once(&found_devices, find_devices);
  return below.clGetDeviceIDs(from, type, size, devices, number);
}

static cl_context CL_API_CALL create_context_from_type(const cl_context_properties* properties, cl_device_type type,
                                                       void(CL_CALLBACK* notify)(const char*, const void*, size_t,
                                                                                 void*),
                                                       void* data, cl_int* error) {
  pthread_once(&found_devices, find_devices);
  return below.clCreateContextFromType(properties, type, notify, data, error);
}

static cl_int CL_API_CALL get_device_info(cl_device_id device, cl_device_info what, size_t size, void* value,
                                          size_t* needed) {
  if (what != CL_DRIVER_VERSION) return below.clGetDeviceInfo(device, what, size, value, needed);
  char runtime[128], both[256];
  const cl_int error = below.clGetDeviceInfo(device, what, sizeof runtime, runtime, NULL);
  if (error != CL_SUCCESS) return error;
  const size_t length =
      snprintf(both, sizeof both, "%s lanemath %s %s-%.16s", runtime, LANEMATH_VERSION, fingerprint, kind) + (size_t)1;
  if (value && size < length) return CL_INVALID_VALUE;
  if (value) memcpy(value, both, length);
  if (needed) *needed = length;
  return CL_SUCCESS;
}

// Puts our functions into the table through which loaders call the runtime.
static void take_over(void) {
  cl_int (*const get_platforms)(cl_uint, cl_platform_id*, cl_uint*) = find_in_runtime("clIcdGetPlatformIDsKHR");
  if (!get_platforms || get_platforms(1, &platform, NULL) != CL_SUCCESS) return;  // then loaders find none either
  cl_icd_dispatch* const table = *(cl_icd_dispatch**)platform;
  below = *table;
  table->clGetDeviceIDs = get_device_ids;
  table->clCreateContextFromType = create_context_from_type;
  table->clGetDeviceInfo = get_device_info;
}

// Loads the companion that kernels call on this kind of machine, if any. Returns what went wrong, or null.
static const char* load_companion(const char* folder) {
  char path[PATH_MAX + 64], name[64];
  snprintf(name, sizeof name, " %s ", kind);
  if (!strstr(" " LANEMATH_LEVELS " ", name)) return NULL;
  snprintf(path, sizeof path, "%s/../../liblanemath_%s.so." LANEMATH_MAJOR, folder, kind);
  void* const companion = dlopen(path, RTLD_NOW | RTLD_GLOBAL);
  if (!companion) return dlerror();
  snprintf(name, sizeof name, "lanemath_%s_version", kind);
  const char* (*version)(void);
  *(void**)&version = dlsym(companion, name);
  return version && strcmp(version(), LANEMATH_VERSION) == 0 ? NULL : "a companion is of another version";
}

// Returns what went wrong, or null.
static const char* load_over(const char* folder, const char* runtime) {
  cache = getenv("LANEMATH_KERNEL_CACHE");
  kind = getenv("LANEMATH_KIND");
  if (!cache || !*cache || !kind || !*kind)
    return "the variable LANEMATH_KERNEL_CACHE or LANEMATH_KIND is missing: use lanemath-opencl";
  cache = strdup(cache);
  kind = strdup(kind);

  char path[PATH_MAX + 64];
  snprintf(path, sizeof path, "%s/fingerprint", folder);
  FILE* const file = fopen(path, "r");
  const int read = file && fscanf(file, "%16s", fingerprint) == 1;
  if (file) fclose(file);
  if (!read) return "cannot read the fingerprint of the kernel libraries";

  snprintf(path, sizeof path, "%s/" LANEMATH_LIBRARY, folder);
  if (!dlopen(path, RTLD_NOW | RTLD_GLOBAL)) return dlerror();
  const char* const trouble = load_companion(folder);
  if (trouble) return trouble;
  void* const library = dlopen(runtime, RTLD_LAZY | RTLD_LOCAL);
  if (!library) return dlerror();
  *(void**)&find_in_runtime = dlsym(library, "clGetExtensionFunctionAddress");

  // The runtime looks for its kernel libraries relative to the path by which it was loaded first.
  Dl_info loaded;
  if (!find_in_runtime || !dladdr(*(void**)&find_in_runtime, &loaded)) return "this is not the OpenCL runtime";
  if (strcmp(loaded.dli_fname, runtime) != 0) return "the program has loaded the OpenCL runtime by other means";
  take_over();
  return NULL;
}

static void load(void) {
  Dl_info self;
  char folder[PATH_MAX], runtime[PATH_MAX + 64], installed[PATH_MAX];
  if (!dladdr(&platform, &self) || !realpath(self.dli_fname, folder)) return;
  *strrchr(folder, '/') = '\0';
  snprintf(runtime, sizeof runtime, "%s/" LANEMATH_RUNTIME, folder);

  const char* const trouble = load_over(folder, runtime);
  if (!trouble) return;
  fprintf(stderr, "lanemath: %s\nlanemath: the OpenCL runtime keeps its own built-ins\n", trouble);
  find_in_runtime = NULL;
  void* const library = realpath(runtime, installed) ? dlopen(installed, RTLD_LAZY | RTLD_LOCAL) : NULL;
  if (library) *(void**)&find_in_runtime = dlsym(library, "clGetExtensionFunctionAddress");
}
static pthread_once_t loaded = PTHREAD_ONCE_INIT;

// What loaders look for in a driver; they ask it for all else.
__attribute__((visibility("default"))) CL_API_ENTRY void* CL_API_CALL clGetExtensionFunctionAddress(const char* name) {
  pthread_once(&loaded, load);
  return find_in_runtime ? find_in_runtime(name) : NULL;
}
