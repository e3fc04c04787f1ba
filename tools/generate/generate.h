// What is made from the catalogue.
#pragma once

#include <cstdio>
#include <string_view>

#include "frame/operation.h"

void write_export_list(std::FILE* out, const lanemath::level& of);  // for the linker
void write_public_header(std::FILE* out, const char* family);       // include/lanemath/<family>.h
void write_loops_library(std::FILE* out, std::string_view file);    // include/lanemath/arrays.h and the like
void write_vectors_header(std::FILE* out);                          // include/lanemath/vectors.h
void write_cpp_header(std::FILE* out);                              // include/lanemath/lanemath.hpp
void write_cpp_calls(std::FILE* out);                               // for tests/abi/caller.cpp
