// The kernels that call the built-ins, many in each, because compiling takes most of the time.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "frame/catalogue.h"
#include "generate/opencl.h"
#include "harness/harness.h"

// Every kernel covers this many lanes. The size of its groups leaves every vectorised loop a remainder.
inline constexpr std::size_t items_per_group = 61;
inline constexpr std::size_t lanes_per_share = 16;
inline constexpr std::size_t lanes = 128 * items_per_group * lanes_per_share;

// The last argument in kernels where it is a constant, converted to the argument's type.
inline constexpr double constant_argument = 2.5;

struct builtin {
  std::size_t index;  // in the catalogue
  lanemath::variant variant;
  std::size_t name_index;

  const lanemath::operation& operation() const { return lanemath::catalogue[index]; }
  std::string name(int width) const;
};

// How a kernel calls a built-in, beyond its name.
struct manner {
  std::string_view address_space;  // of the second result's pointer, if there is one
  bool scalar_last = false;        // the last argument is one scalar for all lanes

  bool operator==(const manner&) const = default;
};

// Built-ins of one signature that are called in the same kernels.
struct group {
  lanemath::signature signature;
  manner how;
  std::vector<builtin> members;
};

enum class shape {
  plain,     // one vector, or scalar, for each work item
  scalar,    // a share of scalars for each work item, one at a time
  branch,    // a scalar for each work item whose flag is set
  constant,  // scalars, the last argument a constant
  chain      // scalars, every second built-in called with the result of the one before it
};

struct kernel {
  std::string name;
  shape form;
  int width;

  std::size_t items() const { return lanes / (form == shape::scalar ? lanes_per_share : lanemath::padded(width)); }
};

// All built-ins that the library serves, or those of one operation.
std::vector<group> groups_of(const lanemath::harness::library& library, std::string_view only);

std::vector<kernel> kernels_of(const group& g, std::string_view name_prefix);

// A kernel's parameters are the arguments, the flags if its shape has any, the results, and the second results if there
// are any. The results of each member follow those of the one before.
std::string source_of(const group& g, const kernel& k);
