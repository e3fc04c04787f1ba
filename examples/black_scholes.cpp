// Prices of European options on a stock index by Black and Scholes (1973) on an OpenCL device, over a grid of strikes
// and times to expiry: for each option a logarithm, a root, an exponential and four complementary error functions. The
// volatility is that of the yearly closes of the S&P 500.
//
//     c++ -std=c++20 -O2 black_scholes.cpp example.cpp -lOpenCL -lfmt -o black-scholes
//     lanemath-opencl ./black-scholes data/sp500.csv
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
// The normal distribution function; accurate in the far left tail as well.
real normal(real x) { return 0.5f * erfc(-0.70710678f * x); }

// One time to expiry per row, `real` strikes per item.
kernel void price(global const real* strikes, global const float* years, float spot, float interest,
                  float volatility, global real* calls, global real* puts) {
  const size_t column = get_global_id(0), row = get_global_id(1), i = row * get_global_size(0) + column;
  const real strike = strikes[column];
  const float t = years[row], deviation = volatility * sqrt(t);
  const real d1 = (log(spot / strike) + interest * t) / deviation + 0.5f * deviation;
  const real d2 = d1 - deviation;
  const real discounted = strike * exp(-interest * t);
  calls[i] = spot * normal(d1) - discounted * normal(d2);
  puts[i] = discounted * normal(-d2) - spot * normal(-d1);
}
)";

// The standard deviation of a year's logarithmic return.
double volatility_of(const std::vector<double>& values) {
  const double count = double(values.size() - 1);
  const double mean = std::log(values.back() / values.front()) / count;
  double squares = 0;
  for (std::size_t i = 1; i < values.size(); ++i) squares += std::pow(std::log(values[i] / values[i - 1]) - mean, 2);
  const double volatility = std::sqrt(squares / (count - 1));
  if (!(volatility > 0)) throw std::runtime_error("all returns are the same");
  return volatility;
}

struct option_prices {
  double call, put;
};

option_prices exact_prices(double spot, double strike, double t, double interest, double volatility) {
  const auto normal = [](double x) { return 0.5 * std::erfc(-x / std::numbers::sqrt2); };
  const double deviation = volatility * std::sqrt(t);
  const double d1 = (std::log(spot / strike) + interest * t) / deviation + 0.5 * deviation, d2 = d1 - deviation;
  const double discounted = strike * std::exp(-interest * t);
  return {spot * normal(d1) - discounted * normal(d2), discounted * normal(-d2) - spot * normal(-d1)};
}

int run(int argc, char** argv) {
  example::options given{.data = {}, .points = 1 << 14};
  double interest = 0.03;
  CLI::App app("Prices of European options on an OpenCL device.");
  example::add_options(app, given, "CSV file of years and closes with titles", "strikes", 1 << 20, "per call and put");
  app.add_option("--interest", interest, "without risk, compounded continuously")
      ->check(CLI::Range(-0.5, 0.5))
      ->capture_default_str();
  CLI11_PARSE(app, argc, argv);

  const std::size_t points = given.points / 16 * 16;
  const auto index = example::read_years(given.data, 3);
  const double spot = index.values.back(), volatility = volatility_of(index.values);
  // Strikes from half the spot price to one and a half times it; expiries every quarter up to two years.
  std::vector<float> strikes(points), years(8);
  for (std::size_t i = 0; i < points; ++i) strikes[i] = float(spot * (0.5 + double(i) / double(points)));
  for (std::size_t i = 0; i < years.size(); ++i) years[i] = 0.25f * float(i + 1);

  const example::device device(kernel_source, given.width);
  auto kernel = device.kernel("price");
  const auto columns = device.input(strikes), rows = device.input(years);
  const std::size_t count = points * years.size();
  const auto calls = device.output(count), puts = device.output(count);
  kernel.setArg(0, columns);
  kernel.setArg(1, rows);
  kernel.setArg(2, float(spot));
  kernel.setArg(3, float(interest));
  kernel.setArg(4, float(volatility));
  kernel.setArg(5, calls);
  kernel.setArg(6, puts);
  const cl::NDRange items(points / std::size_t(given.width), years.size());
  const double nanoseconds = device.time(kernel, items, given.repetitions) / double(count);
  if (given.time_only) {
    fmt::print("{:.3f}\n", nanoseconds);
    return 0;
  }
  const auto call_prices = device.read(calls, count), put_prices = device.read(puts, count);

  fmt::print("closes of {} to {}: volatility {:.1f} % a year; last close {:.2f}, interest {:.1f} %\n\n",
             index.first_year, index.first_year + int(index.values.size()) - 1, 100 * volatility, spot, 100 * interest);
  fmt::print(
      "   strike   call, 3 months  6 months    1 year   2 years    put, 3 months  6 months    1 year   2 years\n");
  for (std::size_t step = 2; step <= 14; step += 2) {
    const std::size_t column = step * points / 16;
    const auto print_row = [&](const std::vector<float>& prices, int first) {
      for (std::size_t row : {0, 1, 3, 7})
        fmt::print("{:>{}.2f}", prices[row * points + column], row == 0 ? first : 10);
    };
    fmt::print("{:9.2f}", strikes[column]);
    print_row(call_prices, 17);
    print_row(put_prices, 17);
    fmt::print("\n");
  }

  double largest = 0;
  for (std::size_t row = 0; row < years.size(); ++row)
    for (std::size_t column = 0; column < points; column += 5) {
      const std::size_t i = row * points + column;
      const auto exact = exact_prices(spot, double(strikes[column]), double(years[row]), interest, volatility);
      const double difference =
          std::max(std::abs(double(call_prices[i]) - exact.call), std::abs(double(put_prices[i]) - exact.put)) / spot;
      if (!(difference <= 1e-6))
        throw std::runtime_error(fmt::format("wrong price at strike {}, {} years", strikes[column], years[row]));
      largest = std::max(largest, difference);
    }

  // What a year's option at the money would have cost each year, and what it turned out to be worth.
  double call_pays = 0, put_pays = 0;
  for (std::size_t i = 1; i < index.values.size(); ++i) {
    const double growth = index.values[i] / index.values[i - 1] - 1;
    (growth > 0 ? call_pays : put_pays) += std::abs(growth) / double(index.values.size() - 1);
  }
  const auto at_the_money = points / 2 + 3 * points;
  fmt::print(
      "\nat the money for a year, in percent of the index: a call costs {:.2f} and has paid {:.2f} on average, "
      "a put {:.2f} and {:.2f}\n\n",
      100 * double(call_prices[at_the_money]) / spot, 100 * call_pays, 100 * double(put_prices[at_the_money]) / spot,
      100 * put_pays);
  fmt::print("device      {}\nbuilt-ins   {}\n            {}\n", device.name(),
             device.who_answers("erfc", "erfcf", -5.0f, 10.0f), device.who_answers("log", "logf", 0.5f, 2.0f));
  fmt::print("difference  {:.2e} of the index at most from double precision on the host\n", largest);
  fmt::print("time        {:.3f} ns per call and put, {:.1f} thousand of them\n", nanoseconds, double(count) / 1e3);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  return example::guarded([&] { return run(argc, argv); });
}
