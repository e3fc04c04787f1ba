// How many results are correctly rounded where no other measurement says it: on the roads that random arguments of an
// operation seldom take, or that are too slow to be measured by MPFR alone.
#pragma once

#include <random>

#include "accuracy/measure.h"

namespace lanemath::accuracy {

// A part of an operation's arguments, and a stand-in for MPFR there.
struct road {
  std::string_view operation, part;
  int width;                                   // of a standalone form, or 0
  arguments (*draw)(std::mt19937_64& random);  // one lane that takes this road
  long double (*near)(const arguments& at);    // within 2^-60 of the value
};
const std::vector<road>& roads();

// Measures lanes until the line has so many, in blocks whose arguments follow from the number of lanes before them: a
// measurement that was interrupted goes on with what it would have measured next. `save` is called between blocks.
// Throws if a stand-in is found to be worse than it should be.
void extend(share& line, const road& r, const harness::library& library, std::uint64_t lanes, unsigned threads,
            const std::function<void()>& save);

}  // namespace lanemath::accuracy
