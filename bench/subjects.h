// What is measured: the libraries, and their peers at a level of instructions.
#pragma once

#include <optional>
#include <string>

#include "arrays.h"
#include "frame/catalogue.h"
#include "harness/harness.h"
#include "peers.h"

namespace lanemath::bench {

// The peers compiled for a level.
class level_peers {
 public:
  explicit level_peers(const level& at);
  ~level_peers();
  level_peers(const level_peers&) = delete;
  level_peers& operator=(const level_peers&) = delete;

  const peer_finders* operator->() const { return finders_; }

 private:
  void* handle_;
  const peer_finders* finders_;
};

struct subjects {
  // Throws if the processor lacks the level.
  subjects(const std::string& library_path, const level& at);

  harness::library library;
  std::optional<harness::library> companion;  // at a level of wider registers, from the library's folder
  array_functions of_arrays;
  level_peers peers;
};

}  // namespace lanemath::bench
