// The companion library's functions of whole arrays.
#pragma once

#include <optional>
#include <string>

#include "frame/catalogue.h"
#include "harness/harness.h"

namespace lanemath::bench {

class array_functions {
 public:
  // Takes the companion library that lies beside this library, if one does.
  explicit array_functions(const std::string& library_path);
  ~array_functions();
  array_functions(const array_functions&) = delete;
  array_functions& operator=(const array_functions&) = delete;

  std::optional<harness::function> find(const operation& o, variant v) const;

 private:
  void* handle_;
};

}  // namespace lanemath::bench
