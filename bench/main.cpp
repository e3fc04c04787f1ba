// Measures every exported function, and what other libraries have for the same task, on the same arguments.
#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "generate/families.h"
#include "harness/files.h"
#include "harness/names.h"
#include "suite.h"

namespace {

using namespace lanemath;

// Google Benchmark's flags that say how to measure. The others say what to measure or how to show it, which is this
// program's own business.
constexpr std::array passed_on{"min_time", "min_warmup_time", "repetitions", "enable_random_interleaving",
                               "context",  "perf_counters"};

void check_flags(const std::vector<std::string>& flags) {
  for (const auto& flag : flags)
    if (std::ranges::none_of(passed_on,
                             [&](auto name) { return flag.starts_with(fmt::format("--benchmark_{}=", name)); }))
      throw std::runtime_error(fmt::format("{} is not supported: --help shows what is", flag));
}

std::string_view title_of(family group) { return std::ranges::find(families, group, &family_text::group)->title; }

// The runs of one operation alternate in random order, so that a busy moment of the machine does not affect only one of
// them.
void initialise(char* program, const std::vector<std::string>& more_flags) {
  std::vector<std::string> flags{"--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=9",
                                 "--benchmark_min_time=0.01"};
  flags.insert(flags.end(), more_flags.begin(), more_flags.end());
  // The program's name is kept for the JSON file, as a pointer.
  std::vector<char*> arguments{program};
  for (auto& flag : flags) arguments.push_back(flag.data());
  int count = int(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) std::exit(2);
}

}  // namespace

int main(int argc, char** argv) try {
  CLI::App app{
      "Times every exported function of the library, and the functions of SLEEF and of the C library for the same\n"
      "task. Flags of Google Benchmark that say how to measure are passed on: " +
      fmt::format("--benchmark_{}=...", fmt::join(passed_on, "=..., --benchmark_"))};
  std::vector<std::string> patterns;
  std::string library_path = harness::default_library(), json_path;
  app.add_option("operations", patterns,
                 "What to measure, all if none is named: expf, expf_native, 'exp*'... A name with a width, such as\n"
                 "expf4, stands for all widths, which share a row");
  app.add_option("--library", library_path, "The library to measure")->capture_default_str();
  app.add_option("--benchmark_out", json_path, "Write all that was measured to this file as JSON, in the end");
  bench::request wanted;
  std::pair<double, double> between;
  const auto* between_given =
      app.add_option("--between", between, "Draw floating arguments from LOW to HIGH, every binade equally often")
          ->type_name("LOW HIGH");
  app.add_option("--errors", wanted.error_samples,
                 "Also the largest error, in ulp, over so many arguments: in the JSON file");
  auto* alone = app.add_flag("--c-library-alone", wanted.c_library_alone, "Time nothing but the C library's functions");
  std::string level_name;
  app.add_option("--level", level_name,
                 "Time the companion with registers of this level, the functions of arrays that call it, and peers at\n"
                 "this level: avx2 or avx512")
      ->check(CLI::IsMember({std::string(levels[1].name), std::string(levels[2].name)}))
      ->excludes(alone);
  bool list = false;
  app.add_flag("--list", list, "Time nothing: print the forms, each after its family");
  app.allow_extras();
  CLI11_PARSE(app, argc, argv);
  if (*between_given) {
    if (!(0 < between.first && between.first < between.second && std::isfinite(between.second)))
      throw std::runtime_error("--between needs two numbers, 0 < LOW < HIGH");
    wanted.between = {between.first, between.second, true};
  }
  const harness::selection chosen(patterns);
  check_flags(app.remaining());
  initialise(argv[0], app.remaining());

  const bench::subjects measured(library_path, *std::ranges::find(levels, level_name, &level::name));
  bench::results results(json_path);
  bool any = false;
  for (std::size_t i = 0; i < catalogue.size(); ++i)
    for (auto v : variants) {
      if (!chosen.has(i, v)) continue;
      bench::suite suite(measured, i, v, wanted);
      if (!suite.exported()) continue;
      if (list) {
        any = true;
        fmt::print("{}\t{}{}\n", title_of(catalogue[i].group), catalogue[i].name(), suffix(v));
        continue;
      }
      if (!any) suite.print_heading();
      any = true;
      suite.register_benchmarks();
      benchmark::RunSpecifiedBenchmarks(&results);
      benchmark::ClearRegisteredBenchmarks();
      if (results.empty()) throw std::runtime_error("nothing was measured");
      suite.print_row(results);
    }
  if (!any) {
    fmt::print(stderr, "{}: the library exports nothing of that name\n", argv[0]);
    return 2;
  }
  results.write();
  harness::finish_output();
} catch (const std::exception& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 1;
}
