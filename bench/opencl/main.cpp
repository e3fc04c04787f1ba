// Measures every built-in in OpenCL kernels, the runtime's own definition against the library's. One process cannot
// hold both, so two workers take turns on each kernel, and both see the machine in the same state.
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <signal.h>
#include <stdlib.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <stdexcept>

#include "builtins.h"
#include "harness/names.h"
#include "process.h"
#include "report.h"
#include "worker.h"

namespace {

using namespace lanemath::bench::opencl;
using lanemath::harness::matches;

constexpr int turns = 6;
constexpr auto worker_flag = "--worker";

// The user asked for something that makes no sense.
struct usage_error : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class temporary_folder {
 public:
  temporary_folder() : path_(std::filesystem::temp_directory_path() / "lanemath-benchmark-XXXXXX") {
    if (!mkdtemp(path_.data())) throw std::system_error(errno, std::generic_category(), path_);
  }
  ~temporary_folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  temporary_folder(const temporary_folder&) = delete;
  temporary_folder& operator=(const temporary_folder&) = delete;

  std::string path() const { return path_; }

 private:
  std::string path_;
};

// Whatever the patterns name, or everything if there are none. Each pattern has to name something.
template <class Range, class Named>
auto chosen(const Range& all, const std::vector<std::string>& patterns, const std::string& noun, Named named) {
  for (const auto& pattern : patterns)
    if (std::ranges::none_of(all, [&](const auto& item) { return named(pattern, item); }))
      throw usage_error(fmt::format("there is no {} '{}'", noun, pattern));
  std::vector<std::ranges::range_value_t<Range>> found;
  std::ranges::copy_if(all, std::back_inserter(found), [&](const auto& item) {
    return patterns.empty() || std::ranges::any_of(patterns, [&](const auto& pattern) { return named(pattern, item); });
  });
  return found;
}

// The device's name.
std::string greet(process& worker, const std::string& whose) {
  const auto greeting = worker.read();
  const auto space = greeting.find(' ');
  if (greeting.substr(0, space) != whose)
    throw std::runtime_error(
        fmt::format("the worker that should run the built-ins '{}' greets as '{}'", whose, greeting));
  return greeting.substr(space + 1);
}

class workers {
 public:
  workers(const std::string& launcher, const std::string& kind) {
    const auto self = std::filesystem::read_symlink("/proc/self/exe").string();
    process::environment shared{{"POCL_MAX_PTHREAD_COUNT", "1"}, {"POCL_CACHE_DIR", cache_.path()}};
    if (!kind.empty()) shared.emplace_back("POCL_KERNELLIB_NAME", kind);
    auto of_own = shared;
    of_own.emplace_back("OCL_ICD_VENDORS", LANEMATH_RUNTIME);
    own_.emplace("the worker on the runtime's own built-ins", std::vector<std::string>{self, worker_flag}, of_own);
    ours_.emplace("the worker on lanemath", std::vector<std::string>{launcher, self, worker_flag}, shared);
    device_ = greet(*own_, "own");
    greet(*ours_, "lanemath");
  }

  const std::string& device() const { return device_; }

  measurements measure(const builtin& b, std::size_t index, const std::vector<vector_type>& types) {
    measurements all;
    auto order = fmt::format("prepare {} {}", index, types.size());
    for (auto type : types) {
      order += fmt::format(" {}", type.width);
      all.push_back({b, type, HUGE_VAL, HUGE_VAL});
    }
    own_->ask(order);
    ours_->ask(order);
    for (int turn = 0; turn < turns; ++turn)
      for (auto& m : all) {
        m.own = std::min(m.own, time(*own_, m.type.width));
        m.lanemath = std::min(m.lanemath, time(*ours_, m.type.width));
      }
    return all;
  }

 private:
  static double time(process& worker, int width) { return std::stod(worker.ask(fmt::format("time {}", width))); }

  temporary_folder cache_;
  std::optional<process> own_, ours_;
  std::string device_;
};

// On a terminal, progress is one line that the rows of the table then overwrite.
void show_progress(std::size_t done, std::size_t all, const std::string& title) {
  static const bool terminal = isatty(STDERR_FILENO);
  fmt::print(stderr, "{}{}/{} {}{}", terminal ? "\r\033[K" : "", done, all, title, terminal ? "" : "\n");
}
void hide_progress() {
  if (isatty(STDERR_FILENO)) fmt::print(stderr, "\r\033[K");
}

struct options {
  std::vector<std::string> names, types;
  std::string kind, launcher = LANEMATH_LAUNCHER, json_path;
};

void run(const options& given) {
  const auto everything = all_builtins();
  auto builtins = chosen(everything, given.names, "built-in", [](const auto& pattern, const builtin& b) {
    return matches(pattern, b.name()) || matches(pattern, b.title());
  });
  const auto types = chosen(vector_types, given.types, "type",
                            [](const auto& pattern, vector_type type) { return matches(pattern, type.name()); });
  const auto of_element = [&](lanemath::lane element) {
    std::vector<vector_type> found;
    std::ranges::copy_if(types, std::back_inserter(found), [&](auto type) { return type.element == element; });
    return found;
  };
  if (!given.kind.empty() && !std::filesystem::exists(fmt::format(LANEMATH_KERNEL_LIBRARY, given.kind)))
    throw usage_error(fmt::format("the runtime has no kernel library for '{}'", given.kind));
  std::erase_if(builtins, [&](const auto& b) { return of_element(b.element()).empty(); });
  if (builtins.empty()) throw usage_error("these built-ins have none of these types");

  std::optional<json_file> json;
  if (!given.json_path.empty()) json.emplace(given.json_path);

  workers both(given.launcher, given.kind);
  fmt::print(
      "{}{}\n"
      "Nanoseconds a lane: the runtime's own built-in, lanemath's, and own / lanemath.\n",
      both.device(), given.kind.empty() ? "" : fmt::format(" as {}", given.kind));
  measurements all;
  auto heading = lanemath::lane::none;
  for (std::size_t i = 0; i < builtins.size(); ++i) {
    const auto& b = builtins[i];
    const auto its_types = of_element(b.element());
    show_progress(i + 1, builtins.size(), b.title());
    const auto row = both.measure(b, std::ranges::find(everything, b) - everything.begin(), its_types);
    hide_progress();
    if (std::exchange(heading, b.element()) != b.element()) print_heading(its_types);
    print_row(row);
    all.insert(all.end(), row.begin(), row.end());
  }
  print_summary(all, types);
  if (std::fflush(stdout) != 0 || std::ferror(stdout))
    throw std::system_error(errno, std::generic_category(), "standard output");
  if (json) json->write({both.device(), given.kind}, all, types);
}

// Signals only interrupt the wait for a worker, so that everything is still cleaned up.
void end_in_order_on_signals() {
  struct sigaction action {};
  action.sa_handler = [](int) {};
  for (int number : {SIGHUP, SIGINT, SIGPIPE, SIGTERM}) sigaction(number, &action, nullptr);
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc == 2 && argv[1] == std::string_view(worker_flag)) {
    obey();
    return 0;
  }
  CLI::App app{
      "Times the built-ins of OpenCL kernels: the runtime's own against lanemath's.\n"
      "Names and types may be patterns: 'native_*', 'convert_*(double)', 'float*'."};
  options given;
  app.add_option("builtins", given.names, "What to measure, all if none is named");
  app.add_option("--type", given.types, "Only these types, separated by commas: float,double4")
      ->delimiter(',')
      ->allow_extra_args(false);
  app.add_option("--json", given.json_path, "Write all that was measured to this file as JSON");
  app.add_option("--kind", given.kind, "The kind of machine to compile kernels for: sse41, avx2, avx512...");
  app.add_option("--launcher", given.launcher, "The launcher of the lanemath to measure")->capture_default_str();
  CLI11_PARSE(app, argc, argv);
  end_in_order_on_signals();
  run(given);
} catch (const usage_error& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 2;
} catch (const std::exception& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 1;
}
