// Log-likelihood of a mixture of two normal distributions on an OpenCL device, over a grid of the two means: at each
// point the sum over the observations of the logarithm of two exponentials. The parameters come from expectation
// maximisation on the host; the map shows how well the observations, the eruption times of the Old Faithful geyser,
// determine the means.
//
//     c++ -std=c++20 -O2 mixture_likelihood.cpp example.cpp -lOpenCL -lfmt -o mixture-likelihood
//     lanemath-opencl ./mixture-likelihood data/old_faithful.csv
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <string>
#include <vector>

#include "example.h"

namespace {

constexpr const char* kernel_source = R"(
real bump(real u) { return exp(-0.5f * u * u); }

// One mean of the first component per row, `real` means of the second one per item. The heights are the
// components' shares over their deviations.
kernel void log_likelihood(global const float* first_means, global const real* second_means,
                           global const float* observations, int count, float2 per_deviation, float2 heights,
                           global real* result) {
  const size_t column = get_global_id(0), row = get_global_id(1);
  const float first = first_means[row];
  const real second = second_means[column];
  real sum = 0;
  for (int j = 0; j < count; ++j) {
    const float y = observations[j];
    const float u = (y - first) * per_deviation.x;
    sum += log(heights.x * exp(-0.5f * u * u) + heights.y * bump((y - second) * per_deviation.y));
  }
  result[row * get_global_size(0) + column] = sum;
}
)";

struct component {
  double share, mean, deviation;
  double density(double x) const {
    const double u = (x - mean) / deviation;
    return share / (deviation * std::sqrt(2 * std::numbers::pi)) * std::exp(-0.5 * u * u);
  }
};
struct mixture {
  component first, second;
};

double log_likelihood(const mixture& m, const std::vector<double>& observations) {
  double sum = 0;
  for (double x : observations) sum += std::log(m.first.density(x) + m.second.density(x));
  return sum;
}

// Mean and deviation of weighted observations, and their share of all.
template <class F>
component weighted(const std::vector<double>& observations, F weight) {
  double total = 0, mean = 0, squares = 0;
  for (double x : observations) total += weight(x), mean += weight(x) * x;
  mean /= total;
  for (double x : observations) squares += weight(x) * (x - mean) * (x - mean);
  return {total / double(observations.size()), mean, std::sqrt(squares / total)};
}

// Starts from the lower and the upper half.
mixture most_likely(const std::vector<double>& sorted) {
  const double middle = (sorted.front() + sorted.back()) / 2;
  mixture m{weighted(sorted, [&](double x) { return x < middle ? 1.0 : 0.0; }),
            weighted(sorted, [&](double x) { return x < middle ? 0.0 : 1.0; })};
  for (double before = -HUGE_VAL, now; (now = log_likelihood(m, sorted)) > before + 1e-10; before = now) {
    const auto share = [&](double x) { return m.first.density(x) / (m.first.density(x) + m.second.density(x)); };
    m = {weighted(sorted, share), weighted(sorted, [&](double x) { return 1 - share(x); })};
  }
  if (!(m.first.deviation > 0) || !(m.second.deviation > 0))
    throw std::runtime_error("a component has shrunk to a single value");
  return m;
}

// Four standard errors to either side.
std::vector<float> means_around(const component& c, std::size_t points, std::size_t observations) {
  const double reach = 4 * c.deviation / std::sqrt(c.share * double(observations));
  std::vector<float> means(points);
  for (std::size_t i = 0; i < points; ++i) means[i] = float(c.mean + reach * (2 * double(i) / double(points - 1) - 1));
  return means;
}

// Shades the regions that hold the means with a confidence of 50, 90, 99 and 99.9 %: twice the drop of the
// log-likelihood from its maximum has a chi-squared distribution of two degrees of freedom, nearly.
void plot(const std::vector<float>& first, const std::vector<float>& second, const std::vector<float>& surface) {
  constexpr std::size_t columns = 64, rows = 17;
  const float top = *std::ranges::max_element(surface);
  const auto at = [](std::size_t i, std::size_t cells, std::size_t points) { return i * (points - 1) / (cells - 1); };
  for (std::size_t row = rows; row-- > 0;) {
    const std::size_t i = at(row, rows, first.size());
    fmt::print("{:6.3f} ", first[i]);
    for (std::size_t column = 0; column < columns; ++column) {
      const float drop = top - surface[i * second.size() + at(column, columns, second.size())];
      fmt::print("{}", drop < 0.693f ? "█" : drop < 2.303f ? "▓" : drop < 4.605f ? "▒" : drop < 6.908f ? "░" : " ");
    }
    fmt::print("\n");
  }
  const auto middle = fmt::format("{:.3f}", second[second.size() / 2]);
  fmt::print("       {:<{}}{:^{}}{:>{}}\n", fmt::format("{:.3f}", second.front()), 20, middle, columns - 40,
             fmt::format("{:.3f}", second.back()), 20);
}

int run(int argc, char** argv) {
  example::options given{.data = {}, .points = 512};
  CLI::App app("Log-likelihood of a mixture of two normal distributions on an OpenCL device.");
  example::add_options(app, given, "CSV file of one column with a title", "of each mean", 1 << 12,
                       "per logarithm and its exponentials");
  CLI11_PARSE(app, argc, argv);

  const std::size_t points = given.points / 16 * 16;
  const auto observations = example::read_observations(given.data);
  const auto estimate = most_likely(observations);
  const auto& [first, second] = estimate;
  const auto first_means = means_around(first, points, observations.size());
  const auto second_means = means_around(second, points, observations.size());

  const example::device device(kernel_source, given.width);
  auto kernel = device.kernel("log_likelihood");
  const auto result = device.output(points * points);
  const double root = std::sqrt(2 * std::numbers::pi);
  const auto rows = device.input(first_means), columns = device.input(second_means);
  const auto sample = device.input({observations.begin(), observations.end()});
  kernel.setArg(0, rows);
  kernel.setArg(1, columns);
  kernel.setArg(2, sample);
  kernel.setArg(3, cl_int(observations.size()));
  kernel.setArg(4, cl_float2{{float(1 / first.deviation), float(1 / second.deviation)}});
  kernel.setArg(
      5, cl_float2{{float(first.share / (first.deviation * root)), float(second.share / (second.deviation * root))}});
  kernel.setArg(6, result);
  const double terms = double(points) * double(points) * double(observations.size());
  const double nanoseconds =
      device.time(kernel, cl::NDRange(points / std::size_t(given.width), points), given.repetitions) / terms;
  if (given.time_only) {
    fmt::print("{:.3f}\n", nanoseconds);
    return 0;
  }
  const auto surface = device.read(result, points * points);

  fmt::print("{} observations; log-likelihood by the two means, shaded at 50, 90, 99 and 99.9 % confidence\n\n",
             observations.size());
  plot(first_means, second_means, surface);

  double largest = 0;
  for (std::size_t i = 0; i < points; i += 7)
    for (std::size_t j = 0; j < points; j += 7) {
      auto m = estimate;
      m.first.mean = double(first_means[i]), m.second.mean = double(second_means[j]);
      const double exact = log_likelihood(m, observations);
      const double difference = std::abs(double(surface[i * points + j]) - exact) / std::abs(exact);
      if (!(difference <= 1e-5))
        throw std::runtime_error(
            fmt::format("wrong log-likelihood {} at {}, {}", surface[i * points + j], m.first.mean, m.second.mean));
      largest = std::max(largest, difference);
    }
  const auto best = std::size_t(std::ranges::max_element(surface) - surface.begin());
  const auto print_component = [](const char* name, const component& c, float at) {
    fmt::print("{}{:4.1f} %, mean {:.4f}, standard deviation {:.4f}; most likely mean on the device {:.4f}\n", name,
               100 * c.share, c.mean, c.deviation, at);
  };
  fmt::print("\n");
  print_component("first       ", first, first_means[best / points]);
  print_component("second      ", second, second_means[best % points]);
  fmt::print("device      {}\nbuilt-ins   {}\n            {}\n", device.name(),
             device.who_answers("log", "logf", 1e-30f, 4.0f), device.who_answers("exp", "expf", -90.0f, 0.0f));
  fmt::print("difference  {:.2e} at most, relative to double precision on the host\n", largest);
  fmt::print("time        {:.3f} ns per logarithm and its two exponentials, {:.1f} million of them\n", nanoseconds,
             terms / 1e6);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  return example::guarded([&] { return run(argc, argv); });
}
