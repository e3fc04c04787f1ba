// Writes the lookup tables of one family of operations as a C++ header, to standard output.
#include <cstdio>
#include <map>
#include <string>

#include "table_writer.h"

void write_exp_tables(table_writer&);
void write_log_tables(table_writer&);
void write_pow_tables(table_writer&);
void write_trig_tables(table_writer&);
void write_invtrig_tables(table_writer&);
void write_hyperbolic_tables(table_writer&);
void write_roots_tables(table_writer&);
void write_special_tables(table_writer&);

int main(int argc, char** argv) {
  const std::map<std::string, void (*)(table_writer&)> families{
      {"exp", write_exp_tables},     {"log", write_log_tables},         {"pow", write_pow_tables},
      {"trig", write_trig_tables},   {"invtrig", write_invtrig_tables}, {"hyperbolic", write_hyperbolic_tables},
      {"roots", write_roots_tables}, {"special", write_special_tables},
  };
  const auto family = argc == 2 ? families.find(argv[1]) : families.end();
  if (family == families.end()) {
    fmt::print(stderr, "usage: {} FAMILY\nfamilies:", argv[0]);
    for (const auto& [name, write] : families) fmt::print(stderr, " {}", name);
    fmt::print(stderr, "\n");
    return 2;
  }
  table_writer out(stdout);
  family->second(out);
}
