// The built-ins of OpenCL C that are calls of the library.
#pragma once

#include <cstdio>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "frame/catalogue.h"

// `float4` and the like: the OpenCL C type of a vector.
std::string opencl_type(lanemath::lane lane, int width);

// The built-ins that one accuracy variant of an operation serves at one width. A conversion says its rounding or
// is itself the one that a shorter name means; most other operations have one name, and some have none.
std::vector<std::string> opencl_names(const lanemath::operation& operation, lanemath::variant variant, int width);

// Whether vectors of this built-in may take one scalar as their last argument.
bool opencl_scalar_last(std::string_view name);

// An OpenCL C source that defines every built-in whose function is among the exported names.
void write_opencl_builtins(std::FILE* out, const std::set<std::string>& exported);
