// What the public headers say about a function.
#pragma once

#include <string>

#include "frame/catalogue.h"

namespace lanemath {

// What the operation computes.
std::string brief_of(const operation& o);
// How a variant relates to its neighbours, at a width.
std::string relation_of(const operation& o, variant v, int width);
// The largest error, or that there is none; empty if none is stated.
std::string bound_text(const operation& o, variant v, int width);

// A comment in the style of documentation generators, in lines of up to 120 characters.
std::string documentation(const std::string& text);
// The comment at the head of a file.
std::string head(const std::string& text);

}  // namespace lanemath
