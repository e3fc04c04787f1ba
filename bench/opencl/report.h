// The measurements, as a table and as a JSON file.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "builtins.h"

namespace lanemath::bench::opencl {

// Nanoseconds per lane of one built-in with one type.
struct measurement {
  builtin what;
  vector_type type;
  double own, lanemath;
  double ratio() const { return own / lanemath; }
};
using measurements = std::vector<measurement>;

struct machine {
  std::string device, kind;
};

// A table for each element type: its built-ins, each with the types that it was measured with.
void print_heading(const std::vector<vector_type>& types);
void print_row(const measurements& of_one_builtin);
void print_summary(const measurements& all, const std::vector<vector_type>& types);

// Created at once, so that a failure to write shows before anything is measured; under a temporary name until complete.
class json_file {
 public:
  explicit json_file(std::string path);
  ~json_file();
  json_file(const json_file&) = delete;
  json_file& operator=(const json_file&) = delete;

  void write(const machine& on, const measurements& all, const std::vector<vector_type>& types);

 private:
  std::string path_, temporary_;
  std::FILE* file_;
};

}  // namespace lanemath::bench::opencl
