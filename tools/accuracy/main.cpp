// The error of exported functions against MPFR, as a table and as CSV.
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "accuracy/errors.h"
#include "accuracy/measure.h"
#include "harness/files.h"
#include "harness/names.h"

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
  report(std::string csv, std::string record, std::string part)
      : csv_path_(std::move(csv)), record_(std::move(record)), part_(std::move(part)) {
    if (!csv_path_.empty()) harness::check_writable(csv_path_);
    fmt::print("{:<10} {:<8} {:>5} {:<10} {:>10} {:>12}  {}\n", "operation", "variant", "width", "range", "error/ulp",
               "rounded", "at");
  }

  void add(const operation& o, variant v, int width, std::string_view range, const tally& t) {
    if (t.lanes == 0) throw std::runtime_error(fmt::format("{} is meant to differ there", o.name()));
    const auto name = v == variant::standard ? "default" : suffix(v);
    const double share = double(t.correctly_rounded) / double(t.lanes);
    fmt::print("{:<10} {:<8} {:>5} {:<10} {:>10.4f} {:>10.4f} %  {}\n", o.name(), name, width, range, t.largest_error,
               share * 100, text_of(o, t.input));
    harness::finish_output();
    csv_ += fmt::format("{},{},{},{},{},{},{},\"{}\"\n", o.name(), name, width, range, t.lanes, t.largest_error, share,
                        text_of(o, t.input));
    empty_ = false;
    const auto bound = bound_of(o, v, width);
    const bool anything = range == "bounds" || range == "patterns";
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
             .search = range == "all"                           ? std::string(swept_inputs(o, v))
                       : range == "a place" || range == "climb" ? "directed search"
                                                                : fmt::format("{} lanes in one range", t.lanes),
             .rounded = range == "all" ? std::optional(share * 100) : std::nullopt});
      write_errors(record_, std::move(records));
    }
  }
  void finish() const {
    if (empty_) throw std::runtime_error("nothing was measured");
    if (!csv_path_.empty()) harness::replace_file(csv_path_, csv_);
  }
  bool within_bounds() const { return within_bounds_; }

 private:
  std::string csv_path_, csv_ = "operation,variant,width,range,lanes,largest_error_ulp,correctly_rounded,input\n";
  std::string record_, part_;
  bool empty_ = true, within_bounds_ = true;
};

struct request {
  std::vector<std::string> names, variants, ranges;
  std::vector<int> widths;
  bool exhaustive = false;
};

// What can be measured.
struct candidate {
  std::size_t index;
  variant v;
  int width;
  const reference* exact;
  harness::function f;
};

bool wanted(const auto& of, const auto& one) { return of.empty() || std::ranges::find(of, one) != of.end(); }

std::vector<std::string> ranges_of(const reference& r) {
  std::vector<std::string> names;
  for (const auto& range : r.ranges) names.emplace_back(range.name);
  names.insert(names.end(), {"bounds", "patterns"});
  return names;
}

// The forms that these names and the rest of the request ask for, at least one.
std::vector<candidate> forms_of(const std::vector<std::string>& names, const request& asked,
                                const harness::library& from) {
  constexpr std::array lacking{
      "has no such variant or width", "has no reference to be measured against", "is not exported by this library",
      "cannot be measured over all floats: that takes one float and a fast reference", "has no such range"};
  std::size_t furthest = 0;
  std::vector<candidate> found;
  const harness::selection named(names);
  for (std::size_t index = 0; index < catalogue.size(); ++index)
    for (auto v : variants)
      for (int width : widths) {
        if (!named.has(index, v, width) || !wanted(asked.variants, name_of(v)) || !wanted(asked.widths, width))
          continue;
        const auto* exact = find_reference(catalogue[index]);
        const auto f = from.find(index, v, width);
        const bool sweeps = exact && can_sweep(catalogue[index], *exact);
        const bool ranges =
            exact && (asked.ranges.empty() ||
                      std::ranges::any_of(ranges_of(*exact), [&](const auto& r) { return wanted(asked.ranges, r); }));
        std::size_t stage = 1;
        for (bool passed : {exact != nullptr, f.has_value(), sweeps || !asked.exhaustive, ranges}) {
          if (!passed) break;
          ++stage;
        }
        furthest = std::max(furthest, stage);
        if (stage == lacking.size()) found.push_back({index, v, width, exact, *f});
      }
  if (found.empty())
    throw std::runtime_error(fmt::format("{} {} (--list shows what there is)",
                                         names.empty() ? "any operation" : names[0], lacking[furthest]));
  return found;
}

// What the whole request asks for. Throws if any part of it asks for nothing.
std::vector<candidate> forms_of(const request& asked, const harness::library& from) {
  for (const auto& name : asked.names) forms_of({name}, asked, from);
  auto all = forms_of(asked.names, asked, from);
  const auto demand = [&](const auto& each_asked, const char* noun, auto has) {
    for (const auto& one : each_asked)
      if (std::ranges::none_of(all, [&](const candidate& f) { return has(f, one); }))
        throw std::runtime_error(fmt::format("none of these has the {} {}", noun, one));
  };
  demand(asked.variants, "variant", [](const candidate& f, const auto& name) { return name_of(f.v) == name; });
  demand(asked.widths, "width", [](const candidate& f, int width) { return f.width == width; });
  demand(asked.ranges, "range", [](const candidate& f, const auto& name) {
    const auto names = ranges_of(*f.exact);
    return std::ranges::find(names, name) != names.end();
  });
  return all;
}

void list(const std::vector<candidate>& forms) {
  for (auto f = forms.begin(); f != forms.end();) {
    const auto index = f->index;
    const auto ranges = ranges_of(*f->exact);
    std::vector<std::string_view> its_variants;
    for (; f != forms.end() && f->index == index; ++f)
      if (its_variants.empty() || its_variants.back() != name_of(f->v)) its_variants.push_back(name_of(f->v));
    fmt::print("{:<10} variants: {:<26} ranges: {}\n", catalogue[index].name(),
               fmt::format("{}", fmt::join(its_variants, ", ")), fmt::join(ranges, ", "));
  }
}

}  // namespace

int main(int argc, char** argv) try {
  CLI::App app{
      "Error in units in the last place of lanemath's functions, against MPFR.\n"
      "Ends with 0 if all errors are within the stated bounds, with 1 if not, with 2 if it cannot measure."};
  request asked;
  std::string path = harness::default_library(), csv, record, part, place;
  std::size_t samples = 100'000;
  std::uint64_t seed = 1;
  bool climbing = false, listing = false;
  app.add_option("operations", asked.names,
                 "what to measure, such as expf, expf_native, expf4 or 'exp*' (default: all that can be measured)");
  app.add_option("-w,--width", asked.widths, "widths, separated by commas")
      ->check(CLI::IsMember({1, 2, 3, 4, 8, 16}))
      ->delimiter(',')
      ->allow_extra_args(false);
  app.add_option("-v,--variant", asked.variants, "accuracy variants: default, native, half, rm")
      ->check(CLI::IsMember({"default", "native", "half", "rm"}))
      ->delimiter(',')
      ->allow_extra_args(false);
  auto* ranges =
      app.add_option("-r,--range", asked.ranges,
                     "ranges by name, separated by commas; `patterns` and `bounds` exist for every operation")
          ->delimiter(',')
          ->allow_extra_args(false);
  app.add_flag("--list", listing, "name the operations, variants and ranges that can be measured");
  app.add_option("-n,--samples", samples, "lanes per range")
      ->check(CLI::Range(std::size_t(1), std::size_t(1'000'000'000)))
      ->capture_default_str();
  app.add_option("-s,--seed", seed, "of the random numbers")->capture_default_str();
  app.add_flag("-e,--exhaustive", asked.exhaustive,
               "all 2^32 inputs of one-argument float operations, instead of ranges")
      ->excludes(ranges);
  auto* at = app.add_option("--at", place, "one place instead of ranges, by bit patterns: \"0x3F7FB84A 0x47982860\"")
                 ->excludes("--exhaustive", ranges);
  app.add_flag("-c,--climb", climbing, "search around the recorded places of all arguments, instead of ranges")
      ->excludes("--exhaustive", "--at", ranges);
  auto* recording = app.add_option("--record", record, "put errors larger than those in this file of errors into it")
                        ->check(CLI::ExistingFile);
  app.add_option("--part", part, "of which arguments the recorded errors are, in words (default: all)")
      ->needs(recording);
  app.add_option("--csv", csv, "also write the table to this file, once it is complete");
  app.add_option("-l,--library", path, "the library to measure")->capture_default_str();
  CLI11_PARSE(app, argc, argv);

  const harness::library library(path);
  const auto forms = forms_of(asked, library);
  if (listing) {
    list(forms);
    harness::finish_output();
    return 0;
  }
  const auto records = record.empty() ? recorded_errors() : read_errors(record);
  report table(csv, record, part);
  for (const auto& one : forms) {
    const auto& o = catalogue[one.index];
    const auto add = [&](std::string_view range, const tally& t) { table.add(o, one.v, one.width, range, t); };
    if (asked.exhaustive) {
      progress_bar bar(fmt::format("{}{} at width {}", o.name(), suffix(one.v), one.width));
      const form alone[]{{one.f, one.width, o.is_unguarded(one.v)}};
      const auto found = sweep(o, *one.exact, alone, {}, cores(), [&](double share) { bar.show(share); });
      bar.clear();
      add("all", found[0].all);
    } else if (*at) {
      add("a place", measure_at(o, *one.exact, one.f, one.width, place_in(place, o.sig)));
    } else if (climbing) {
      for (const auto& line : records)
        if (line.part.empty() && line.at && line.is_of(o, one.v, one.width) && !o.is_unguarded(one.v))
          add("climb", climb(o, *one.exact, one.f, one.width, *line.at, samples / 20 + 1, seed));
    } else {
      const auto on = [&](std::string_view range, auto inputs) {
        if (wanted(asked.ranges, range)) add(range, measure(o, *one.exact, one.f, one.width, inputs()));
      };
      for (const auto& r : one.exact->ranges) on(r.name, [&] { return sample(o, r, samples, seed); });
      on("bounds", [&] { return around_bounds(o, *one.exact, samples, seed); });
      on("patterns", [&] { return sample_patterns(o, samples, seed); });
    }
  }
  table.finish();
  return table.within_bounds() ? 0 : 1;
} catch (const std::exception& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 2;
}
