// The benchmarks of one accuracy variant of one operation, and their row of the table.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "arguments.h"
#include "frame/catalogue.h"
#include "harness/harness.h"
#include "peers.h"
#include "results.h"
#include "subjects.h"

namespace lanemath::bench {

struct request {
  std::optional<range> between;   // floating arguments from here, instead of the operation's typical ones
  std::size_t error_samples = 0;  // also the largest errors over so many arguments, in the JSON file
  bool c_library_alone = false;
};

class suite {
 public:
  suite(const subjects& measured, std::size_t operation_index, variant v, const request& wanted);
  suite(const suite&) = delete;
  suite& operator=(const suite&) = delete;

  // Whether the library exports it, or the companion if that is measured.
  bool exported() const { return exported_; }

  void register_benchmarks();
  void print_row(const results& r) const;
  void print_heading() const;

 private:
  void add(const std::string& benchmark, const harness::function& f, int width, arguments& on,
           std::optional<double> error = std::nullopt) const;
  void add_ours();
  void add_ours_at_level();
  void add_peer(const peer& p);
  std::optional<double> error_of(const harness::function& f, int width) const;
  void print_row_at_level(const results& r) const;
  // How many of the operation's widest lanes a register of the level has.
  int lanes_of(const level& l) const;
  std::string name(std::string_view kind, int width) const;
  std::string name_at_level(std::string_view kind, int width) const;
  std::string name_of_peer(const peer& p, std::string_view kind) const;

  const subjects& measured_;
  const request& wanted_;
  std::size_t operation_index_;
  variant variant_;
  bool exported_;
  std::string title_;
  std::array<range, 3> ranges_;
  arguments typical_, with_rare_;
  std::optional<peer> sleef_, scalar_;
  std::vector<peer> inlined_;
};

}  // namespace lanemath::bench
