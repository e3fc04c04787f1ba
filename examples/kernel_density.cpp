// Gaussian kernel density estimate of a column of numbers on an OpenCL device: at each point of a grid the mean of
// normal densities round the observations, which is one exponential per point and observation. The data are the
// eruption times of the Old Faithful geyser.
//
//     c++ -std=c++20 -O2 kernel_density.cpp example.cpp -lOpenCL -lfmt -o kernel-density
//     lanemath-opencl ./kernel-density data/old_faithful.csv
#include <fmt/format.h>
#include <fmt/os.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <stdexcept>
#include <string>
#include <vector>

#include "example.h"

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
)";

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

int run(int argc, char** argv) {
  std::string table;
  example::options given{.data = {}, .points = 1 << 18, .repetitions = 20};
  CLI::App app("Gaussian kernel density estimate on an OpenCL device.");
  example::add_options(app, given, "CSV file of one column with a title", "of the grid", 1 << 24, "per exponential");
  app.add_option("--table", table, "writes the density to this CSV file");
  CLI11_PARSE(app, argc, argv);

  const std::size_t points = given.points / 16 * 16;
  const auto observations = example::read_observations(given.data);
  const auto about = summarise(observations);
  std::vector<float> grid(points);
  const double first = observations.front() - 3 * about.bandwidth, last = observations.back() + 3 * about.bandwidth;
  for (std::size_t i = 0; i < points; ++i) grid[i] = float(first + (last - first) * double(i) / double(points - 1));

  const example::device device(kernel_source, given.width);
  auto kernel = device.kernel("density");
  const auto result = device.output(points);
  std::vector<float> rounded(observations.begin(), observations.end());
  rounded.resize((rounded.size() + 3) / 4 * 4, HUGE_VALF);  // e^-infinity adds nothing
  const auto places = device.input(grid), centres = device.input(rounded);
  kernel.setArg(0, places);
  kernel.setArg(1, centres);
  kernel.setArg(2, cl_int(rounded.size() / 4));
  kernel.setArg(3, float(1 / about.bandwidth));
  kernel.setArg(4, float(1 / (double(observations.size()) * about.bandwidth * std::sqrt(2 * std::numbers::pi))));
  kernel.setArg(5, result);
  const double exponentials = double(points) * double(observations.size());
  const double nanoseconds =
      device.time(kernel, cl::NDRange(points / std::size_t(given.width)), given.repetitions) / exponentials;
  if (given.time_only) {
    fmt::print("{:.3f}\n", nanoseconds);
    return 0;
  }
  const auto density = device.read(result, points);

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
  fmt::print("\ndevice      {}\nbuilt-in    {}\n", device.name(), device.who_answers("exp", "expf", -90.0f, 0.0f));
  fmt::print("difference  {:.2e} at most, relative to double precision on the host (at {:.4f})\n", largest, at);
  fmt::print("time        {:.3f} ns per exponential, {:.1f} million of them\n", nanoseconds, exponentials / 1e6);

  if (!table.empty()) {
    auto out = fmt::output_file(table);
    out.print("x,density\n");
    const std::size_t step = std::max<std::size_t>(1, points / 1024);
    for (std::size_t i = 0; i < points; i += step) out.print("{},{}\n", grid[i], density[i]);
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  return example::guarded([&] { return run(argc, argv); });
}
