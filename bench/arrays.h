// The functions of whole arrays that lie in a library beside the library.
#pragma once

#include <optional>
#include <string>

#include "frame/catalogue.h"
#include "harness/harness.h"

namespace lanemath::bench {

std::string companion_file(const level& l);

class array_functions {
 public:
  // Takes what lies beside this library, if it does. Its functions call the companions for wider registers that they
  // find, or nothing but this library; there are none if that cannot be had.
  array_functions(const std::string& library_path, bool with_companions);
  ~array_functions();
  array_functions(const array_functions&) = delete;
  array_functions& operator=(const array_functions&) = delete;

  std::optional<harness::function> find(const operation& o, variant v) const;

 private:
  void* handle_;
};

}  // namespace lanemath::bench
