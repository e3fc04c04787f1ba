// What is made from the catalogue.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

#include "frame/operation.h"

void write_export_list(std::FILE* out);                        // for the linker
void write_public_header(std::FILE* out, const char* family);  // include/lanemath/<family>.h
void write_companion(std::FILE* out, std::string_view file);   // include/lanemath/arrays.h and the like

// What an operation computes, in a phrase.
std::string brief_of(const lanemath::operation& o);
