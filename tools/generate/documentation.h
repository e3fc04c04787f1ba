// What the public headers say about a function.
#pragma once

#include <string>

#include "frame/catalogue.h"

namespace lanemath {

// What an operation computes, in a phrase.
std::string brief_of(const operation& o);
// What a function computes, on which lanes, with which error; and where to read on.
std::string description(const operation& o, variant v, int width);
// The same in general, for both precisions and all widths.
std::string description_for_cpp(const operation& o, variant v);

// A comment in the style of documentation generators, in lines of up to 120 characters.
std::string documentation(const std::string& text);
// The comment at the head of a file.
std::string head(const std::string& text);

}  // namespace lanemath
