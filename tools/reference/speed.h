// The figures of docs/performance.json.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace lanemath::reference {

struct speeds {
  std::string processor;
  // By form, such as expf_native: nanoseconds a lane at widths 1, 4, 8 and 16.
  std::map<std::string, std::vector<std::string>> of_form;
};

// Throws std::runtime_error if the file has none.
speeds read_speeds(const std::string& path);

}  // namespace lanemath::reference
