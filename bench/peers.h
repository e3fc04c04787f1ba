// What else does the same task: other libraries' functions, as their callers get them, and plain C++. All of it is
// compiled for each level of instructions. Nothing of it may run before the processor is known to have the level.
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

struct peer_finders {
  // SLEEF's function of one register; for _native and _half from its less accurate class (mostly 3.5 ulp), if it has
  // one there.
  std::optional<peer> (*sleef)(const operation& o, variant v);

  // The C library's scalar function.
  std::optional<peer> (*c_library)(const operation& o);

  // A loop of casts or divisions, compiled for the level.
  std::optional<peer> (*plain)(const operation& o);

  // Loops over arrays with other libraries' functions inlined, compiled likewise; of the libraries that were found when
  // this program was built.
  std::vector<peer> (*inlined)(const operation& o);
};

// What they are put together from.
std::optional<peer> plain(const operation& o);
std::optional<peer> inlined_highway(const operation& o);
std::optional<peer> inlined_xsimd(const operation& o);
std::optional<peer> inlined_eigen(const operation& o);

}  // namespace lanemath::bench

// Of each level.
extern "C" {
extern const lanemath::bench::peer_finders lanemath_benchmark_peers_16, lanemath_benchmark_peers_32,
    lanemath_benchmark_peers_64;
}
