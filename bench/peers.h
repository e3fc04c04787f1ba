// What else does the same task: other libraries' functions, as their callers get them, and plain C++.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "frame/catalogue.h"
#include "harness/harness.h"

namespace lanemath::bench {

struct peer {
  std::string_view name;
  int width;
  harness::function throughput;
  std::optional<harness::function> latency;  // of scalar functions
};

// SLEEF's 128-bit function; for _native and _half from its less accurate class (mostly 3.5 ulp), if it has one there.
std::optional<peer> sleef(const operation& o, variant v);

// The C library's scalar function.
std::optional<peer> c_library(const operation& o);

// A loop of casts or divisions, compiled for the instructions that the library is compiled for.
std::optional<peer> plain(const operation& o);

// Loops over arrays with other libraries' functions inlined, compiled likewise; of the libraries that were found when
// this program was built.
std::vector<peer> inlined(const operation& o);
std::optional<peer> inlined_highway(const operation& o);
std::optional<peer> inlined_xsimd(const operation& o);
std::optional<peer> inlined_eigen(const operation& o);

}  // namespace lanemath::bench
