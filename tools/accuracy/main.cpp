// The error of exported functions against MPFR, as a table and as CSV.
#include <fmt/format.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "accuracy/errors.h"
#include "accuracy/measure.h"

namespace {

using namespace lanemath;
using namespace lanemath::accuracy;

// On a terminal a bar with the time left; elsewhere nothing.
class progress_bar {
 public:
  explicit progress_bar(std::string title) : title_(std::move(title)) {}
  ~progress_bar() { clear(); }

  void show(double share) {
    if (!terminal_ || share <= 0) return;
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start_;
    const int left = int(spent.count() * (1 - share) / share);
    const int filled = int(share * width);
    fmt::print(stderr, "\r{} [{:#<{}}{: <{}}] {:3.0f} %, {}:{:02} left ", title_, "", filled, "", width - filled,
               share * 100, left / 60, left % 60);
  }
  void clear() {
    if (terminal_) fmt::print(stderr, "\r\x1b[K");
  }

 private:
  static constexpr int width = 40;
  std::string title_;
  bool terminal_ = isatty(STDERR_FILENO);
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

class report {
 public:
  report(const std::string& csv, std::string record, std::string part)
      : record_(std::move(record)), part_(std::move(part)) {
    fmt::print("{:<10} {:<8} {:>5} {:<10} {:>10} {:>12}  {}\n", "operation", "variant", "width", "range", "error/ulp",
               "rounded", "at");
    if (csv.empty()) return;
    csv_.open(csv);
    if (!csv_) throw std::runtime_error("cannot write " + csv);
    csv_ << "operation,variant,width,range,lanes,largest_error_ulp,correctly_rounded,input\n";
  }

  void add(const operation& o, variant v, int width, std::string_view range, const tally& t) {
    const auto name = v == variant::standard ? "default" : suffix(v);
    const double share = double(t.correctly_rounded) / double(t.lanes);
    fmt::print("{:<10} {:<8} {:>5} {:<10} {:>10.4f} {:>10.4f} %  {}\n", o.name(), name, width, range, t.largest_error,
               share * 100, text_of(o, t.input));
    std::fflush(stdout);
    if (csv_.is_open()) {
      csv_ << fmt::format("{},{},{},{},{},{},{},\"{}\"\n", o.name(), name, width, range, t.lanes, t.largest_error,
                          share, text_of(o, t.input));
      if (!csv_.flush()) throw std::runtime_error("cannot write the CSV file");
    }
    const auto bound = bound_of(o, v, width);
    const bool anything = range == "bounds" || range == "patterns" || range == "all";
    if (anything && o.is_unguarded(v)) return;
    if (bound && t.largest_error > *bound) {
      fmt::print("  above the stated bound of {} ulp\n", *bound);
      within_bounds_ = false;
    }
    if (!record_.empty()) {
      auto records = read_errors(record_);
      merge(records,
            {.index = index_of(o.name()),
             .variants = {v},
             .width = own_width(o, v, width),
             .part = part_,
             .error = t.largest_error,
             .at = t.input,
             .search = range == "all"                           ? "all inputs"
                       : range == "a place" || range == "climb" ? "directed search"
                                                                : fmt::format("{} lanes in one range", t.lanes),
             .rounded = range == "all" ? std::optional(share * 100) : std::nullopt});
      write_errors(record_, std::move(records));
    }
  }
  bool within_bounds() const { return within_bounds_; }

 private:
  std::string record_, part_;
  std::ofstream csv_;
  bool within_bounds_ = true;
};

bool wanted(const std::vector<std::string>& of, std::string_view name) {
  return of.empty() || std::find(of.begin(), of.end(), name) != of.end();
}

}  // namespace

int main(int argc, char** argv) try {
  CLI::App app{"Error in units in the last place of lanemath's functions, against MPFR."};
  std::vector<std::string> operations, names, ranges;
  std::vector<int> chosen_widths;
  std::string path = LANEMATH_LIBRARY, csv, record, part, place;
  std::size_t samples = 100'000;
  std::uint64_t seed = 1;
  bool exhaustive = false, climbing = false;
  app.add_option("operations", operations, "operations to measure, such as expf (default: all that are built)");
  app.add_option("-w,--width", chosen_widths, "widths, separated by commas")
      ->check(CLI::IsMember({1, 2, 3, 4, 8, 16}))
      ->delimiter(',')
      ->allow_extra_args(false);
  app.add_option("-v,--variant", names, "accuracy variants: default, native, half, rm")
      ->check(CLI::IsMember({"default", "native", "half", "rm"}))
      ->delimiter(',')
      ->allow_extra_args(false);
  app.add_option("-r,--range", ranges, "ranges by name; `patterns` and `bounds` exist for every operation")
      ->delimiter(',')
      ->allow_extra_args(false);
  app.add_option("-n,--samples", samples, "lanes per range")->check(CLI::PositiveNumber)->capture_default_str();
  app.add_option("-s,--seed", seed, "of the random numbers")->capture_default_str();
  app.add_flag("-e,--exhaustive", exhaustive, "all 2^32 inputs of one-argument float operations, instead of ranges");
  auto* at = app.add_option("--at", place, "one place instead of ranges, by bit patterns: \"0x3F7FB84A 0x47982860\"")
                 ->excludes("--exhaustive");
  app.add_flag("-c,--climb", climbing, "search around the recorded places of all arguments, instead of ranges")
      ->excludes("--exhaustive", "--at");
  auto* recording = app.add_option("--record", record, "put errors larger than those in this file of errors into it")
                        ->check(CLI::ExistingFile);
  app.add_option("--part", part, "of which arguments the recorded errors are, in words (default: all)")
      ->needs(recording);
  app.add_option("--csv", csv, "also write the table to this file");
  app.add_option("-l,--library", path, "the library to measure");
  CLI11_PARSE(app, argc, argv);
  for (const auto& name : operations)
    if (std::none_of(catalogue.begin(), catalogue.end(), [&](const operation& o) { return o.name() == name; })) {
      fmt::print(stderr, "{}: no operation {}\n", argv[0], name);
      return 2;
    }

  const harness::library library(path);
  const auto records = record.empty() ? recorded_errors() : read_errors(record);
  report table(csv, record, part);
  for (std::size_t index = 0; index < catalogue.size(); ++index) {
    const auto& o = catalogue[index];
    const auto* reference = find_reference(o);
    if (!reference || !wanted(operations, o.name())) continue;
    for (auto v : variants) {
      if (!wanted(names, v == variant::standard ? "default" : suffix(v).substr(1))) continue;
      for (int width : widths) {
        if (!chosen_widths.empty() && !std::count(chosen_widths.begin(), chosen_widths.end(), width)) continue;
        const auto f = library.find(index, v, width);
        if (!f) continue;
        const auto on = [&](std::string_view range, const std::vector<arguments>& inputs) {
          if (wanted(ranges, range)) table.add(o, v, width, range, measure(o, *reference, *f, width, inputs));
        };
        if (exhaustive) {
          if (!reference->fast || o.sig != signature{lane::f32, {lane::f32}}) continue;
          progress_bar bar(fmt::format("{}{} at width {}", o.name(), suffix(v), width));
          const auto found = measure_all_floats(*reference, *f, width, [&](double share) { bar.show(share); });
          bar.clear();
          table.add(o, v, width, "all", found);
          continue;
        }
        if (*at) {
          table.add(o, v, width, "a place", measure_at(o, *reference, *f, width, place_in(place, o.sig)));
          continue;
        }
        if (climbing) {
          for (const auto& line : records)
            if (line.part.empty() && line.at && line.is_of(o, v, width) && !o.is_unguarded(v))
              table.add(o, v, width, "climb", climb(o, *reference, *f, width, *line.at, samples, seed));
          continue;
        }
        for (const auto& r : reference->ranges) on(r.name, sample(o, r, samples, seed));
        on("bounds", around_bounds(o, *reference, samples, seed));
        on("patterns", sample_patterns(o, samples, seed));
      }
    }
  }
  return table.within_bounds() ? 0 : 1;
} catch (const std::exception& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 2;
}
