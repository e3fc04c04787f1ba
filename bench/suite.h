// The benchmarks of one accuracy variant of one operation, and their row of the table.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "arguments.h"
#include "arrays.h"
#include "frame/catalogue.h"
#include "harness/harness.h"
#include "peers.h"
#include "results.h"

namespace lanemath::bench {

struct request {
  std::optional<range> between;   // floating arguments from here, instead of the operation's typical ones
  std::size_t error_samples = 0;  // also the largest errors over so many arguments, in the JSON file
  bool c_library_alone = false;
};

class suite {
 public:
  suite(const harness::library& library, const array_functions& of_arrays, std::size_t operation_index, variant v,
        const request& wanted);
  suite(const suite&) = delete;
  suite& operator=(const suite&) = delete;

  // Whether the library exports it.
  bool exported() const { return exported_; }

  void register_benchmarks();
  void print_row(const results& r) const;
  static void print_heading();

 private:
  void add(const std::string& benchmark, const harness::function& f, int width, arguments& on,
           std::optional<double> error = std::nullopt) const;
  void add_ours();
  void add_peer(const peer& p);
  std::optional<double> error_of(const harness::function& f, int width) const;
  std::string name(std::string_view kind, int width) const;
  std::string name_of_peer(const peer& p, std::string_view kind) const;

  const harness::library& library_;
  const array_functions& of_arrays_;
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
