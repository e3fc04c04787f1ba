// The figures of docs/performance.md.
#pragma once

#include <array>
#include <map>
#include <string>

namespace lanemath::reference {

// Nanoseconds: a call at width 1, and a lane at widths 4, 8 and 16.
using speeds = std::array<std::string, 4>;

// By form, such as expf_native; not all are in the document. Throws if it has none.
std::map<std::string, speeds> read_speeds(const std::string& path);

}  // namespace lanemath::reference
