// The built-ins of OpenCL C that are calls of the library, and how kernels reach it.
//
// A kernel calls a built-in as the runtime's compiler passes its vectors, which differs between machines. The library
// takes vectors of up to 16 bytes in registers and wider ones in memory; where the machine has a companion's level and
// the companions are built, that one takes the forms that it has, up to its registers' size in registers. Between them
// stand two texts: OpenCL C, whose built-ins hand everything on by pointers, and LLVM IR, which takes it to the
// library. Once the first is inlined into a kernel and the second into the first, no memory is left between them but
// what the library itself asks for.
#pragma once

#include <cstdio>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "frame/catalogue.h"

// `float4` and the like: the OpenCL C type of a vector.
std::string opencl_type(lanemath::lane lane, int width);

// The built-ins that one accuracy variant of an operation serves at one width. A conversion's name
// states its rounding, or is a shorter one that implies it; most other operations have one name, some none.
std::vector<std::string> opencl_names(const lanemath::operation& operation, lanemath::variant variant, int width);

// Whether vectors of this built-in may take one scalar as their last argument.
bool opencl_scalar_last(std::string_view name);

// A kind of machine that the runtime has a kernel library for. The last one here serves whose features, by their names
// in the system's list, the processor has, and whose companion is there: kernels for wide vectors call the companion of
// the level that has the kind's name.
struct machine {
  std::string_view kind;       // in the kernel library's name
  std::string_view processor;  // that kernels are compiled for there, as the name of the runtime's device shows
  int register_size;           // of the vectors that the compiler turns loops into, in bytes
  bool rounds, fuses;          // has instructions that round to integers, that multiply and add at once
  std::string_view features;   // none: never serves
};
inline constexpr machine machines[] = {
    {"GENERIC", "x86-64", 16, false, false, ""},
    {"sse2", "athlon64", 16, false, false, "sse2"},
    {"ssse3", "core2", 16, false, false, "sse2 ssse3 cx16"},
    {"sse41", "penryn", 16, true, false, "sse2 sse4_1 cx16"},
    {"avx", "sandybridge", 32, true, false, "sse2 avx cx16 popcnt"},
    {"avx_f16c", "ivybridge", 32, true, false, "sse2 avx cx16 popcnt f16c"},
    {"avx_fma4", "bdver1", 32, true, true, "sse2 avx cx16 popcnt xop fma4"},
    {"avx2", "haswell", 32, true, true, "sse2 avx avx2 cx16 popcnt abm f16c fma bmi1 bmi2"},
    {"avx512", "skylake-avx512", 32, true, true, "sse2 avx512f avx512vl avx512dq avx512bw"},
};

// Whether the compiler keeps a built-in on this machine: an instruction or a few, by the runtime's definition or ours.
bool left_to_compiler(const lanemath::operation& operation, lanemath::variant variant, const machine& on);

// The functions that a vectorised loop over a scalar built-in calls, one for each number of lanes.
std::vector<std::string> loop_functions(const lanemath::operation& operation, lanemath::variant variant,
                                        const machine& on);

// Both texts define what is among the exported names.
void write_opencl_builtins(std::FILE* out, const machine& on, const std::set<std::string>& exported);
void write_opencl_crossings(std::FILE* out, const machine& on, const std::set<std::string>& exported);
