// The built-ins that the library serves, and the kernels that they are measured in.
#pragma once

#include <string>
#include <vector>

#include "frame/catalogue.h"

namespace lanemath::bench::opencl {

struct vector_type {
  lane element;
  int width;
  std::string name() const;
  bool operator==(const vector_type&) const = default;
};
inline constexpr vector_type vector_types[] = {{lane::f32, 1}, {lane::f32, 4}, {lane::f32, 8}, {lane::f32, 16},
                                               {lane::f64, 1}, {lane::f64, 2}, {lane::f64, 4}, {lane::f64, 8}};

// The groups that geometric means are taken over.
enum class group : std::uint8_t { maths, reduced, exact };
inline constexpr group groups[] = {group::maths, group::reduced, group::exact};
std::string_view title(group g);

// A name and the element type of its arguments. Its vectors are as wide as those of its widest element:
// convert_long(float8) is measured among the doubles.
struct builtin {
  const operation* op;
  variant accuracy;
  std::size_t name_index;  // among those of one operation

  std::string name(int width = 1) const;
  std::string title() const;  // with the argument's type, if the name leaves it open
  lane element() const;
  opencl::group group() const;
  bool operator==(const builtin&) const = default;
};

// Single precision first.
std::vector<builtin> all_builtins();

std::string kernel_name(int width);
std::string kernel_source(const builtin& b, int width);

}  // namespace lanemath::bench::opencl
