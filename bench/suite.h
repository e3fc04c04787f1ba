// The benchmarks of one accuracy variant of one operation, and their row of the table.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "arguments.h"
#include "frame/catalogue.h"
#include "harness/harness.h"
#include "peers.h"
#include "results.h"

namespace lanemath::bench {

class suite {
 public:
  suite(const harness::library& library, std::size_t operation_index, variant v);
  suite(const suite&) = delete;
  suite& operator=(const suite&) = delete;

  // Whether the library exports it.
  bool exported() const { return exported_; }

  void register_benchmarks();
  void print_row(const results& r) const;
  static void print_heading();

 private:
  void add(const std::string& benchmark, const harness::function& f, int width, arguments& on) const;
  void add_peer(const std::optional<peer>& p);
  std::string name(std::string_view kind, int width) const;
  std::string name_of_peer(const peer& p, std::string_view kind) const;

  const harness::library& library_;
  std::size_t operation_index_;
  variant variant_;
  bool exported_;
  std::string title_;
  arguments typical_, with_rare_;
  std::optional<peer> sleef_, scalar_;
};

}  // namespace lanemath::bench
