// What is measured: the libraries, and their peers at a level of instructions.
#pragma once

#include <optional>
#include <string>

#include "arrays.h"
#include "frame/catalogue.h"
#include "harness/harness.h"
#include "peers.h"

namespace lanemath::bench {

struct subjects {
  // Throws if the processor lacks the level.
  subjects(const std::string& library_path, const level& at);

  harness::library library;
  std::optional<harness::library> companion;  // at a level of wider registers, from the library's folder
  array_functions of_arrays;
  const peer_finders& peers;
};

}  // namespace lanemath::bench
