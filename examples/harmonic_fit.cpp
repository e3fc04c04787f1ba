// Periods in a yearly series, such as the sunspot numbers: for every trial frequency the share of the variance that a
// harmonic fitted by least squares explains, which takes a sine and a cosine for each frequency and year. Yearly data
// cannot distinguish two frequencies that differ by a whole number of turns per year: 2^20 turns a year higher the
// shares are the same again, if sine and cosine are right at large arguments.
//
//     c++ -std=c++20 -O2 harmonic_fit.cpp example.cpp -lOpenCL -lfmt -o harmonic-fit
//     lanemath-opencl ./harmonic-fit data/sunspots.csv
#include <fmt/format.h>

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
#pragma OPENCL EXTENSION cl_khr_fp64 : enable

kernel void shares(global const real* turns_per_year, global const double* values, int count, double squares,
                   global real* result) {
  const size_t i = get_global_id(0);
  const real frequency = turns_per_year[i] * 0x1.921fb54442d18p+2;
  real cc = 0, cs = 0, ss = 0, yc = 0, ys = 0;
  for (int year = 0; year < count; ++year) {
    real c;
    const real s = sincos(frequency * year, &c);
    cc += c * c;
    cs += c * s;
    ss += s * s;
    yc += values[year] * c;
    ys += values[year] * s;
  }
  result[i] = (yc * yc * ss - 2 * yc * ys * cs + ys * ys * cc) / ((cc * ss - cs * cs) * squares);
}
)";

constexpr double MORE_TURNS = 0x1p20;

// Does what the kernel does, on the host.
double share(double turns_per_year, const std::vector<double>& values, double squares) {
  double cc = 0, cs = 0, ss = 0, yc = 0, ys = 0;
  for (std::size_t year = 0; year < values.size(); ++year) {
    const double angle = turns_per_year * (2 * std::numbers::pi) * double(year);
    const double c = std::cos(angle), s = std::sin(angle);
    cc += c * c, cs += c * s, ss += s * s, yc += values[year] * c, ys += values[year] * s;
  }
  return (yc * yc * ss - 2 * yc * ys * cs + ys * ys * cc) / ((cc * ss - cs * cs) * squares);
}

struct fitted {
  std::vector<double> shares;
  double nanoseconds;  // per sine and cosine
};

fitted fit(const example::device& device, const std::vector<double>& frequencies, const std::vector<double>& values,
           double squares, int width, int repetitions) {
  auto kernel = device.kernel("shares");
  const auto in = device.input(frequencies), series = device.input(values);
  const auto out = device.output<double>(frequencies.size());
  kernel.setArg(0, in);
  kernel.setArg(1, series);
  kernel.setArg(2, cl_int(values.size()));
  kernel.setArg(3, squares);
  kernel.setArg(4, out);
  const double time = device.time(kernel, cl::NDRange(frequencies.size() / std::size_t(width)), repetitions);
  return {device.read<double>(out, frequencies.size()), time / double(frequencies.size() * values.size())};
}

double largest_difference(const std::vector<double>& a, const std::vector<double>& b) {
  double largest = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const double difference = std::fabs(a[i] - b[i]);
    if (!(difference <= largest)) largest = std::isnan(difference) ? HUGE_VAL : difference;
  }
  return largest;
}

// A row for every so many frequencies, up to the greatest share among them.
void plot(const std::vector<double>& frequencies, const std::vector<double>& shares) {
  constexpr std::size_t rows = 24, columns = 60;
  const double top = *std::ranges::max_element(shares);
  for (std::size_t row = 0; row < rows; ++row) {
    const auto first = shares.begin() + std::ptrdiff_t(row * shares.size() / rows);
    const auto best = std::max_element(first, shares.begin() + std::ptrdiff_t((row + 1) * shares.size() / rows));
    fmt::print("{:6.2f} years {:5.1f} % ", 1 / frequencies[std::size_t(best - shares.begin())], 100 * *best);
    for (std::size_t i = 0; i < std::size_t(std::lround(*best / top * columns)); ++i) fmt::print("█");
    fmt::print("\n");
  }
}

int run(int argc, char** argv) {
  example::options given{.data = {}, .points = 4096};
  CLI::App app("Harmonics of a yearly series, fitted by least squares on an OpenCL device.");
  example::add_options(app, given, "CSV file of one column with a title, a row a year", "trial frequencies", 1 << 24,
                       "per sine and cosine: ordinary and large arguments");
  CLI11_PARSE(app, argc, argv);

  const std::size_t points = given.points / 16 * 16;
  auto values = example::read_column(given.data);
  const double mean = std::accumulate(values.begin(), values.end(), 0.0) / double(values.size());
  for (double& value : values) value -= mean;
  const double squares = std::inner_product(values.begin(), values.end(), values.begin(), 0.0);
  if (!(squares > 0)) throw std::runtime_error("all values are the same");

  // From 1/50 to 1/5 a year; multiples of 2^-32, so that the higher ones are exact as well.
  std::vector<double> frequencies(points), higher;
  for (std::size_t i = 0; i < points; ++i)
    frequencies[i] = std::round((0.02 + 0.18 * double(i) / double(points - 1)) * 0x1p32) * 0x1p-32;
  for (double frequency : frequencies) higher.push_back(frequency + MORE_TURNS);

  const example::device device(kernel_source, given.width, "double");
  const auto ordinary = fit(device, frequencies, values, squares, given.width, given.repetitions);
  const auto large = fit(device, higher, values, squares, given.width, given.repetitions);
  if (given.time_only) {
    fmt::print("{:.3f} {:.3f}\n", ordinary.nanoseconds, large.nanoseconds);
    return 0;
  }

  std::vector<double> exact;
  for (double frequency : frequencies) exact.push_back(share(frequency, values, squares));
  const double difference = largest_difference(ordinary.shares, exact);
  const double folded = largest_difference(ordinary.shares, large.shares);
  // An angle of 2^31 is rounded by 2^-22; what is wrong at all is wrong by more than that.
  if (!(difference <= 1e-12) || !(folded <= 1e-5)) throw std::runtime_error("wrong shares of the variance");

  const auto best = std::size_t(std::ranges::max_element(ordinary.shares) - ordinary.shares.begin());
  fmt::print(
      "{} years, mean {:.2f}; the best harmonic has a period of {:.2f} years and takes {:.1f} % of the variance\n\n",
      values.size(), mean, 1 / frequencies[best], 100 * ordinary.shares[best]);
  plot(frequencies, ordinary.shares);
  fmt::print("\ndevice      {}\nbuilt-ins   {}\n            {}\n", device.name(),
             device.who_answers("sin", "sinf", -1e5f, 1e5f), device.who_answers("cos", "cosf", -1e5f, 1e5f));
  fmt::print("difference  {:.2e} at most from the host; {:.2e} between frequencies and those 2^20 higher\n", difference,
             folded);
  fmt::print("time        {:.3f} ns per sine and cosine, {:.3f} ns of large arguments\n", ordinary.nanoseconds,
             large.nanoseconds);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  return example::guarded([&] { return run(argc, argv); });
}
