// Writes the lookup tables of one family of operations as a C++ header: those made by a rule, and those that were
// fitted, from the .fit files of a folder.
#include <cstdio>
#include <map>
#include <string>

#include "harness/files.h"
#include "table_writer.h"

void write_exp_tables(table_writer&);
void write_log_tables(table_writer&);
void write_pow_tables(table_writer&);
void write_trig_tables(table_writer&);
void write_invtrig_tables(table_writer&);
void write_hyperbolic_tables(table_writer&);
void write_roots_tables(table_writer&);
void write_special_tables(table_writer&);
void write_gamma_tables(table_writer&);

namespace {

struct family {
  void (*write)(table_writer&);
  std::string_view include = "frame/look_up.h", space = "lanemath";
};

const std::map<std::string, family> families{
    {"exp", {write_exp_tables}},
    {"log", {write_log_tables}},
    {"pow", {write_pow_tables}},
    {"trig", {write_trig_tables}},
    {"invtrig", {write_invtrig_tables}},
    {"hyperbolic", {write_hyperbolic_tables}},
    {"roots", {write_roots_tables}},
    {"special", {write_special_tables}},
    {"gamma", {write_gamma_tables, "special/gamma_rows.h", "lanemath::special"}},
};

}  // namespace

int main(int argc, char** argv) try {
  const auto path = lanemath::harness::take_output_path(argc, argv);
  const auto found = argc == 3 ? families.find(argv[1]) : families.end();
  if (found == families.end()) {
    fmt::print(stderr, "usage: {} FAMILY FOLDER-OF-FITS [--output HEADER]\nfamilies:", argv[0]);
    for (const auto& [name, of] : families) fmt::print(stderr, " {}", name);
    fmt::print(stderr, "\n");
    return 2;
  }
  const auto fits = read_fits(argv[2]);
  const auto& [write, include, space] = found->second;
  lanemath::harness::whole_output header;
  {
    table_writer out(header.stream(), fits, include, space);
    write(out);
  }
  header.write(path);
} catch (const std::exception& error) {
  fmt::print(stderr, "lanemath-tables: {}\n", error.what());
  return 1;
}
