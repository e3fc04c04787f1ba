// Gaussian kernel density estimate of a column of numbers on an OpenCL device: at each point of a grid the mean of
// normal densities round the observations, which is one exponential per point and observation.
#define CL_HPP_ENABLE_EXCEPTIONS
#define CL_HPP_MINIMUM_OPENCL_VERSION 120
#define CL_HPP_TARGET_OPENCL_VERSION 120
#include <dlfcn.h>
#include <fmt/format.h>
#include <fmt/os.h>
#include <CL/opencl.hpp>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <fstream>
#include <numbers>
#include <numeric>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr const char* kernel_source = R"(
real bump(real u) { return exp(-0.5f * u * u); }

// Four observations at a time, so that the sum is not waited for after every call.
kernel void density(global const real* points, global const float4* observations, int count, float per_bandwidth,
                    float scale, global real* result) {
  const size_t i = get_global_id(0);
  const real x = points[i] * per_bandwidth;
  real sum = 0;
  for (int j = 0; j < count; ++j) {
    const float4 y = observations[j] * per_bandwidth;
    sum += (bump(x - y.x) + bump(x - y.y)) + (bump(x - y.z) + bump(x - y.w));
  }
  result[i] = sum * scale;
}

kernel void exponentials(global float8* values) {
  const size_t i = get_global_id(0);
  values[i] = exp(values[i]);
}
)";

std::vector<double> read_observations(const std::string& path) {
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
  std::ranges::sort(all);
  return all;
}

struct summary {
  double mean, deviation, bandwidth;
};

// The bandwidth is Silverman's rule of thumb (1986, equation 3.31).
summary summarise(const std::vector<double>& sorted) {
  const double n = double(sorted.size());
  const double mean = std::accumulate(sorted.begin(), sorted.end(), 0.0) / n;
  double squares = 0;
  for (double x : sorted) squares += (x - mean) * (x - mean);
  const double deviation = std::sqrt(squares / (n - 1));
  const auto quantile = [&](double p) {
    const double at = p * (n - 1);
    const auto i = std::min(std::size_t(at), sorted.size() - 2);
    return sorted[i] + (at - double(i)) * (sorted[i + 1] - sorted[i]);
  };
  double spread = std::min(deviation, (quantile(0.75) - quantile(0.25)) / 1.34);
  if (spread == 0) spread = deviation;
  if (!(spread > 0)) throw std::runtime_error("all observations are the same");
  return {mean, deviation, 0.9 * spread * std::pow(n, -0.2)};
}

class estimator {
 public:
  estimator(const std::vector<double>& observations, double bandwidth, std::vector<float> points, int width)
      : context_(CL_DEVICE_TYPE_ALL),
        queue_(context_, CL_QUEUE_PROFILING_ENABLE),
        program_(context_, kernel_source),
        kernel_(
            (program_.build(fmt::format("-Dreal=float{}", width == 1 ? "" : std::to_string(width)).c_str()), program_),
            "density"),
        items_(points.size() / std::size_t(width)) {
    std::vector<float> rounded(observations.begin(), observations.end());
    rounded.resize((rounded.size() + 3) / 4 * 4, HUGE_VALF);  // e^-infinity adds nothing
    points_ = cl::Buffer(context_, points.begin(), points.end(), true);
    observations_ = cl::Buffer(context_, rounded.begin(), rounded.end(), true);
    result_ = cl::Buffer(context_, CL_MEM_WRITE_ONLY, points.size() * sizeof(float));
    kernel_.setArg(0, points_);
    kernel_.setArg(1, observations_);
    kernel_.setArg(2, cl_int(rounded.size() / 4));
    kernel_.setArg(3, float(1 / bandwidth));
    kernel_.setArg(4, float(1 / (double(observations.size()) * bandwidth * std::sqrt(2 * std::numbers::pi))));
    kernel_.setArg(5, result_);
  }

  std::string device() const { return queue_.getInfo<CL_QUEUE_DEVICE>().getInfo<CL_DEVICE_NAME>(); }

  // The shortest time in nanoseconds.
  double run(int repetitions) {
    double best = HUGE_VAL;
    for (int i = 0; i <= repetitions; ++i) {
      cl::Event event;
      queue_.enqueueNDRangeKernel(kernel_, cl::NullRange, cl::NDRange(items_), cl::NullRange, nullptr, &event);
      event.wait();
      const auto nanoseconds =
          event.getProfilingInfo<CL_PROFILING_COMMAND_END>() - event.getProfilingInfo<CL_PROFILING_COMMAND_START>();
      if (i > 0) best = std::min(best, double(nanoseconds));  // the first run compiles
    }
    return best;
  }

  std::vector<float> density(std::size_t points) {
    std::vector<float> all(points);
    cl::copy(queue_, result_, all.begin(), all.end());
    return all;
  }

  std::vector<float> exponentials(std::vector<float> values) {
    cl::Buffer buffer(context_, values.begin(), values.end(), false);
    cl::Kernel kernel(program_, "exponentials");
    kernel.setArg(0, buffer);
    queue_.enqueueNDRangeKernel(kernel, cl::NullRange, cl::NDRange(values.size() / 8), cl::NullRange);
    cl::copy(queue_, buffer, values.begin(), values.end());
    return values;
  }

 private:
  cl::Context context_;
  cl::CommandQueue queue_;
  cl::Program program_;
  cl::Kernel kernel_;
  std::size_t items_;
  cl::Buffer points_, observations_, result_;
};

// Says whose exponential the kernels run. If lanemath is loaded every result must have its bits.
std::string who_answers(estimator& device) {
  struct alignas(16) block {
    float lane[8];
  };
  constexpr std::size_t count = 1 << 16;
  std::vector<float> arguments(count);
  for (std::size_t i = 0; i < count; ++i) arguments[i] = -90.0f * float(i) / float(count);
  const auto answers = device.exponentials(arguments);

  const char* name = "__ocl_lanemath_h8_expf8";
  const auto function = reinterpret_cast<block (*)(block)>(dlsym(RTLD_DEFAULT, name));
  if (!function) return "the runtime's own exp";
  std::size_t same = 0;
  for (std::size_t i = 0; i < count; i += 8) {
    block x;
    std::memcpy(&x, &arguments[i], sizeof x);
    const block y = function(x);
    for (std::size_t j = 0; j < 8; ++j) same += std::memcmp(&y.lane[j], &answers[i + j], sizeof(float)) == 0;
  }
  if (same != count)
    throw std::runtime_error(fmt::format("only {} of {} results have the bits of {}", same, count, name));
  return fmt::format("lanemath's exp: all of {} results have the bits of {}", count, name);
}

double exact_density(double x, const std::vector<double>& observations, double bandwidth) {
  double sum = 0;
  for (double observation : observations) {
    const double u = (x - observation) / bandwidth;
    sum += std::exp(-0.5 * u * u);
  }
  return sum / (double(observations.size()) * bandwidth * std::sqrt(2 * std::numbers::pi));
}

void plot(const std::vector<float>& points, const std::vector<float>& density) {
  constexpr std::size_t columns = 76, rows = 14;
  constexpr const char* eighths[] = {" ", "▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};
  const float top = *std::ranges::max_element(density);
  for (std::size_t row = rows; row-- > 0;) {
    fmt::print("{:5.2f} ", double(top) * double(row + 1) / double(rows));
    for (std::size_t column = 0; column < columns; ++column) {
      const float height = density[column * (density.size() - 1) / (columns - 1)] / top * float(8 * rows);
      fmt::print("{}", eighths[std::clamp(int(std::lround(height)) - 8 * int(row), 0, 8)]);
    }
    fmt::print("\n");
  }
  const auto middle = fmt::format("{:.2f}", double(points[points.size() / 2]));
  fmt::print("      {:<{}}{:^{}}{:>{}}\n", fmt::format("{:.2f}", double(points.front())), 25, middle, columns - 50,
             fmt::format("{:.2f}", double(points.back())), 25);
}

}  // namespace

int main(int argc, char** argv) try {
  std::string data, table;
  std::size_t points = 1 << 18;
  int width = 4, repetitions = 20;
  bool time_only = false;
  CLI::App app("Gaussian kernel density estimate on an OpenCL device.");
  app.add_option("data", data, "CSV file of one column with a title")->required()->check(CLI::ExistingFile);
  app.add_option("--points", points, "of the grid, a multiple of 16")
      ->check(CLI::Range(16, 1 << 24))
      ->capture_default_str();
  app.add_option("--width", width, "lanes of the kernel's vectors")
      ->check(CLI::IsMember({1, 2, 4, 8, 16}))
      ->capture_default_str();
  app.add_option("--repetitions", repetitions, "to take the shortest time of")
      ->check(CLI::Range(1, 10000))
      ->capture_default_str();
  app.add_option("--table", table, "writes the density to this CSV file");
  app.add_flag("--time-only", time_only, "prints nothing but the nanoseconds per exponential");
  CLI11_PARSE(app, argc, argv);

  points -= points % 16;
  const auto observations = read_observations(data);
  const auto about = summarise(observations);
  std::vector<float> grid(points);
  const double first = observations.front() - 3 * about.bandwidth, last = observations.back() + 3 * about.bandwidth;
  for (std::size_t i = 0; i < points; ++i) grid[i] = float(first + (last - first) * double(i) / double(points - 1));

  estimator device(observations, about.bandwidth, grid, width);
  const double exponentials = double(points) * double(observations.size());
  const double nanoseconds = device.run(repetitions) / exponentials;
  if (time_only) {
    fmt::print("{:.3f}\n", nanoseconds);
    return 0;
  }
  const auto density = device.density(points);

  fmt::print("{} observations, mean {:.4f}, standard deviation {:.4f}, bandwidth {:.4f}\n\n", observations.size(),
             about.mean, about.deviation, about.bandwidth);
  plot(grid, density);

  double largest = 0, at = 0;
  for (std::size_t i = 0; i < points; ++i) {
    const double exact = exact_density(double(grid[i]), observations, about.bandwidth);
    const double difference = std::abs(double(density[i]) - exact) / exact;
    if (!(difference <= 1e-4)) throw std::runtime_error(fmt::format("wrong density {} at {}", density[i], grid[i]));
    if (difference > largest) largest = difference, at = double(grid[i]);
  }
  fmt::print("\ndevice      {}\nbuilt-in    {}\n", device.device(), who_answers(device));
  fmt::print("difference  {:.2e} at most, relative to double precision on the host (at {:.4f})\n", largest, at);
  fmt::print("time        {:.3f} ns per exponential, {:.1f} million of them\n", nanoseconds, exponentials / 1e6);

  if (!table.empty()) {
    auto out = fmt::output_file(table);
    out.print("x,density\n");
    const std::size_t step = std::max<std::size_t>(1, points / 1024);
    for (std::size_t i = 0; i < points; i += step) out.print("{},{}\n", grid[i], density[i]);
  }
  return 0;
} catch (const cl::Error& error) {
  fmt::print(stderr, "OpenCL: {} gave error {}\n", error.what(), error.err());
  return 1;
} catch (const std::exception& error) {
  fmt::print(stderr, "{}\n", error.what());
  return 1;
}
