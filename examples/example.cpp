#include "example.h"

#include <dlfcn.h>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace example {
namespace {

cl::Program build(const cl::Context& context, const std::string& source, const std::string& options) {
  cl::Program program(context, source);
  program.build(options.c_str());
  return program;
}

}  // namespace

std::vector<double> read_column(const std::string& path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);  // the column's title
  std::vector<double> all;
  while (std::getline(file, line)) {
    std::size_t read = 0;
    try {
      all.push_back(std::stod(line, &read));
    } catch (const std::logic_error&) {
    }
    if (read == 0 || line.find_first_not_of(" \t\r", read) != line.npos || !std::isfinite(all.back()))
      throw std::runtime_error(fmt::format("{}: not a number: '{}'", path, line));
  }
  if (all.size() < 2) throw std::runtime_error(fmt::format("{}: needs a title and two numbers or more", path));
  return all;
}

std::vector<double> read_observations(const std::string& path) {
  auto all = read_column(path);
  std::ranges::sort(all);
  return all;
}

years read_years(const std::string& path, std::size_t fewest) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);  // the columns' titles
  years all{};
  while (std::getline(file, line)) {
    std::istringstream fields(line);
    int year;
    char comma;
    double value;
    if (!(fields >> year >> comma >> value) || !(fields >> std::ws).eof() || comma != ',' || !(value > 0) ||
        (!all.values.empty() && year != all.first_year + int(all.values.size())))
      throw std::runtime_error(fmt::format("{}: not the next year and a positive value: '{}'", path, line));
    if (all.values.empty()) all.first_year = year;
    all.values.push_back(value);
  }
  if (all.values.size() < fewest)
    throw std::runtime_error(fmt::format("{}: needs titles and {} lines of YEAR,VALUE or more", path, fewest));
  return all;
}

device::device(const char* source, int width, const std::string& type)
    : context_(CL_DEVICE_TYPE_ALL),
      queue_(context_, CL_QUEUE_PROFILING_ENABLE),
      program_(build(context_, source, fmt::format("-Dreal={}{}", type, width == 1 ? "" : std::to_string(width)))) {}

std::string device::name() const { return queue_.getInfo<CL_QUEUE_DEVICE>().getInfo<CL_DEVICE_NAME>(); }

double device::time(const cl::Kernel& kernel, const cl::NDRange& items, int repetitions) const {
  double best = HUGE_VAL;
  for (int i = 0; i <= repetitions; ++i) {
    cl::Event event;
    queue_.enqueueNDRangeKernel(kernel, cl::NullRange, items, cl::NullRange, nullptr, &event);
    event.wait();
    const auto nanoseconds =
        event.getProfilingInfo<CL_PROFILING_COMMAND_END>() - event.getProfilingInfo<CL_PROFILING_COMMAND_START>();
    if (i > 0) best = std::min(best, double(nanoseconds));  // the first run compiles
  }
  return best;
}

std::string device::who_answers(const std::string& builtin, const std::string& function, float low, float high) const {
  struct alignas(16) block {
    float lane[8];
  };
  constexpr std::size_t count = 1 << 16;
  std::vector<float> arguments(count);
  for (std::size_t i = 0; i < count; ++i) arguments[i] = low + (high - low) * float(i) / float(count);

  const auto program = build(context_,
                             fmt::format("kernel void answers(global const float8* x, global float8* y) {{\n"
                                         "  y[get_global_id(0)] = {}(x[get_global_id(0)]);\n}}\n",
                                         builtin),
                             "");
  cl::Kernel kernel(program, "answers");
  const auto given = input(arguments), result = output(count);
  kernel.setArg(0, given);
  kernel.setArg(1, result);
  run(kernel, cl::NDRange(count / 8));
  const auto answers = read(result, count);

  const auto name = fmt::format("__ocl_lanemath_h8_{}8", function);
  const auto ours = reinterpret_cast<block (*)(block)>(dlsym(RTLD_DEFAULT, name.c_str()));
  if (!ours) return fmt::format("the runtime's own {}", builtin);
  std::size_t same = 0;
  for (std::size_t i = 0; i < count; i += 8) {
    block x;
    std::memcpy(&x, &arguments[i], sizeof x);
    const block y = ours(x);
    for (std::size_t j = 0; j < 8; ++j) same += std::memcmp(&y.lane[j], &answers[i + j], sizeof(float)) == 0;
  }
  if (same != count)
    throw std::runtime_error(fmt::format("only {} of {} results have the bits of {}", same, count, name));
  return fmt::format("lanemath's {}: all of {} results have the bits of {}", builtin, count, name);
}

void add_options(CLI::App& app, options& given, const std::string& data, const std::string& points, int most_points,
                 const std::string& timed) {
  app.add_option("data", given.data, data)->required()->check(CLI::ExistingFile);
  app.add_option("--points", given.points, points + ", a multiple of 16")
      ->check(CLI::Range(16, most_points))
      ->capture_default_str();
  app.add_option("--width", given.width, "lanes of the kernel's vectors")
      ->check(CLI::IsMember({1, 2, 4, 8, 16}))
      ->capture_default_str();
  app.add_option("--repetitions", given.repetitions, "to take the shortest time of")
      ->check(CLI::Range(1, 10000))
      ->capture_default_str();
  app.add_flag("--time-only", given.time_only, "prints nothing but the nanoseconds " + timed);
}

int guarded(const std::function<int()>& program) {
  try {
    return program();
  } catch (const cl::Error& error) {
    fmt::print(stderr, "OpenCL: {} gave error {}\n", error.what(), error.err());
  } catch (const std::exception& error) {
    fmt::print(stderr, "{}\n", error.what());
  }
  return 1;
}

}  // namespace example
