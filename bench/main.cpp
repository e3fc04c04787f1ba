// Measures every exported function, and what other libraries have for the same task, on the same arguments.
#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "harness/names.h"
#include "suite.h"

namespace {

using namespace lanemath;

// The runs of one operation alternate in random order, so that a busy moment of the machine does not affect only one of
// them.
void initialise(const char* program, const std::vector<std::string>& more_flags) {
  std::vector<std::string> flags{program, "--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=9",
                                 "--benchmark_min_time=0.01"};
  flags.insert(flags.end(), more_flags.begin(), more_flags.end());
  std::vector<char*> arguments;
  for (auto& flag : flags) arguments.push_back(flag.data());
  int count = int(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) std::exit(2);
}

}  // namespace

int main(int argc, char** argv) try {
  CLI::App app{
      "Times every exported function of the library, and the functions of SLEEF and of the C library for the same\n"
      "task. Flags of Google Benchmark (--benchmark_...) are passed on."};
  std::vector<std::string> patterns;
  std::string library_path = LANEMATH_LIBRARY, json_path;
  app.add_option("operations", patterns, "What to measure, all if none is named: expf, expf_native, 'exp*'...");
  app.add_option("--library", library_path, "The library to measure")->capture_default_str();
  app.add_option("--benchmark_out", json_path, "Write all that was measured to this file as JSON");
  app.allow_extras();
  CLI11_PARSE(app, argc, argv);
  harness::check_names(patterns);
  initialise(argv[0], app.remaining());

  const harness::library library(library_path);
  bench::results results(json_path);
  bool any = false;
  for (std::size_t i = 0; i < catalogue.size(); ++i)
    for (auto v : variants) {
      if (!catalogue[i].has(v) || !harness::wanted(patterns, catalogue[i], v)) continue;
      bench::suite suite(library, i, v);
      if (!suite.exported()) continue;
      if (!any) suite.print_heading();
      any = true;
      suite.register_benchmarks();
      benchmark::RunSpecifiedBenchmarks(&results);
      benchmark::ClearRegisteredBenchmarks();
      suite.print_row(results);
    }
  if (!any) {
    fmt::print(stderr, "{}: the library exports nothing of that name\n", argv[0]);
    return 2;
  }
} catch (const std::exception& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 1;
}
