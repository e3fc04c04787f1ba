// One form of an operation as kernels call it, for the two texts that are generated from it.
#pragma once

#include <string>

#include "opencl.h"

struct form {
  const machine& on;
  const lanemath::operation& op;
  lanemath::variant variant;
  int width;

  const lanemath::signature& sig() const { return op.sig; }
  bool has_second() const { return op.sig.how == lanemath::delivery::pointer; }

  // What exports it: the library or the machine's companion.
  const lanemath::level& from() const;
  bool is_in_register(lanemath::lane l) const;
  bool is_filled() const;           // three lanes that a companion computes as four
  int lanes_of_a_register() const;  // of the operation's widest type

  // The functions that give it. That which is exported takes wide vectors in memory; the others, whatever the vectors'
  // size, take them by value; by value, with both results packed into 64 or 128 bits; by value, calling the scalar for
  // each lane; and in memory, the results first.
  std::string function() const;
  std::string by_value() const;
  std::string packed() const;
  std::string lane_by_lane() const;
  std::string by_pointer() const;
};

// On machines that no companion serves.
inline form in_library(const lanemath::operation& o, lanemath::variant v, int width) {
  return {machines[0], o, v, width};
}

// How a form crosses: its vectors unchanged, a register's lanes at a time, or through memory.
enum class crossing { whole, in_pieces, in_memory };
crossing crossing_of(const form& f);

// The numbers of lanes at which loops over a scalar built-in can be vectorised, and what they call then.
std::vector<int> loop_widths(const lanemath::operation& o, const machine& on);
std::string loop_function(const form& vector);

// The runtime converts negative values differently.
bool is_unsigned_without_saturation(const lanemath::operation& o);

// Calls `each` for every form that kernels on this machine take from the library.
template <class Each>
void for_each_form(const machine& on, const std::set<std::string>& exported, Each each) {
  for (const auto& o : lanemath::catalogue)
    for (auto v : lanemath::variants)
      for (int width : lanemath::widths) {
        const form f{on, o, v, width};
        if (o.has(v) && !opencl_names(o, v, width).empty() && exported.contains(f.function()) &&
            !left_to_compiler(o, v, on))
          each(f);
      }
}
