// One form of an operation as kernels call it, for the two texts that are made of it.
#pragma once

#include <string>

#include "opencl.h"

struct form {
  const lanemath::operation& op;
  lanemath::variant variant;
  int width;

  const lanemath::signature& sig() const { return op.sig; }
  bool has_second() const { return op.sig.how == lanemath::delivery::pointer; }

  // What calls it. The library's function takes wide vectors in memory; then, whatever the size of the vectors: by
  // value; with both results packed into one value of 64 or 128 bits; with vectors in memory, the results first.
  std::string function() const;
  std::string by_value() const;
  std::string packed() const;
  std::string lane_by_lane() const;
  std::string by_pointer() const;
};

// How a form reaches the library: as its vectors are, a register's lanes at a time, or through memory.
enum class crossing { whole, in_pieces, in_memory };
crossing crossing_of(const form& f);

bool crosses_in_register(lanemath::lane l, int width);

// The lanes of an operation's widest type that fill a register of the library's.
int lanes_of_a_register(const lanemath::operation& o);

// The numbers of lanes at which loops over a scalar built-in can be vectorised, and what they call then.
std::vector<int> loop_widths(const lanemath::operation& o, const machine& on);
std::string loop_function(const form& vector);

// The runtime converts negative values otherwise.
bool is_unsigned_without_saturation(const lanemath::operation& o);

// Calls `each` for what kernels on this machine call the library for.
template <class Each>
void for_each_form(const machine& on, const std::set<std::string>& exported, Each each) {
  for (const auto& o : lanemath::catalogue)
    for (auto v : lanemath::variants)
      for (int width : lanemath::widths) {
        const form f{o, v, width};
        if (o.has(v) && !opencl_names(o, v, width).empty() && exported.contains(f.function()) &&
            !left_to_compiler(o, v, on))
          each(f);
      }
}
