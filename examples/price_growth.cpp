// Compound growth between any two years of a price index on an OpenCL device: the average yearly inflation, which takes
// one power, and what money put away at interest buys in the end, which takes one exponential. The data are the
// consumer prices of the United States.
//
//     c++ -std=c++20 -O2 price_growth.cpp example.cpp -lOpenCL -lfmt -o price-growth
//     lanemath-opencl ./price-growth data/consumer_prices.csv
#include <dlfcn.h>
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <cmath>
#include <stdexcept>
#include <string>
#include <vector>

#include "example.h"

namespace {

// From one year to four others. The two years may be exchanged: growth per year stays the same.
constexpr const char* kernel_source = R"(
kernel void growth(global const double* prices, double interest, global real* inflation, global real* worth) {
  const size_t from = get_global_id(0), block = get_global_id(1);
  const real ratio = vload4(block, prices) / prices[from];
  const real years = (real)(0, 1, 2, 3) + ((double)(4 * block) - (double)from);
  const size_t i = from * get_global_size(1) + block;
  inflation[i] = pow(ratio, 1 / years);
  worth[i] = exp(interest * years) / ratio;
}
)";

// Factors from each year to each, row by row.
struct factors {
  std::size_t columns;
  std::vector<double> inflation, worth;
  std::string device;
};

factors compute(std::vector<double> prices, double interest) {
  const std::size_t rows = prices.size(), columns = (rows + 3) / 4 * 4;
  prices.resize(columns, 1);
  const example::device device(kernel_source, 4, "double");
  auto kernel = device.kernel("growth");
  const auto given = device.input(prices);
  const auto inflation = device.output<double>(rows * columns), worth = device.output<double>(rows * columns);
  kernel.setArg(0, given);
  kernel.setArg(1, interest);
  kernel.setArg(2, inflation);
  kernel.setArg(3, worth);
  device.run(kernel, cl::NDRange(rows, columns / 4));
  return {columns, device.read<double>(inflation, rows * columns), device.read<double>(worth, rows * columns),
          device.name()};
}

// Compares every factor with the host's, and its bits with the library's own if that is loaded.
std::string check(const factors& got, const std::vector<double>& prices, double interest) {
  const auto pow1 = reinterpret_cast<double (*)(double, double)>(dlsym(RTLD_DEFAULT, "__ocl_lanemath_h8_pow1"));
  const auto exp1 = reinterpret_cast<double (*)(double)>(dlsym(RTLD_DEFAULT, "__ocl_lanemath_h8_exp1"));
  const auto expect = [](bool right, const char* what, std::size_t from, std::size_t to) {
    if (!right) throw std::runtime_error(fmt::format("wrong {} from year {} to year {}", what, from, to));
  };
  for (std::size_t from = 0; from < prices.size(); ++from)
    for (std::size_t to = 0; to < prices.size(); ++to) {
      const double ratio = prices[to] / prices[from], years = double(to) - double(from);
      const double inflation = got.inflation[from * got.columns + to], worth = got.worth[from * got.columns + to];
      const double exact_inflation = std::pow(ratio, 1 / years), exact_worth = std::exp(interest * years) / ratio;
      expect(std::abs(inflation / exact_inflation - 1) < 1e-14, "inflation", from, to);
      expect(std::abs(worth / exact_worth - 1) < 1e-14, "worth", from, to);
      if (pow1) expect(inflation == pow1(ratio, 1 / years), "bits of inflation", from, to);
      if (exp1) expect(worth == exp1(interest * years) / ratio, "bits of worth", from, to);
    }
  return pow1 ? "lanemath's pow and exp, bit for bit" : "the runtime's own pow and exp";
}

int run(int argc, char** argv) {
  std::string data;
  double interest = 0.03;
  CLI::App app("Inflation and the worth of savings between the years of a price index, on an OpenCL device.");
  app.add_option("data", data, "CSV file of years and prices with titles")->required()->check(CLI::ExistingFile);
  app.add_option("--interest", interest, "of savings, compounded continuously")
      ->check(CLI::Range(-1.0, 1.0))
      ->capture_default_str();
  CLI11_PARSE(app, argc, argv);

  const auto index = example::read_years(data, 2);
  const auto got = compute(index.values, interest);
  const auto built_ins = check(got, index.values, interest);

  // Every tenth year back from the last.
  std::vector<std::size_t> places;
  for (std::size_t place = (index.values.size() - 1) % 10; place < index.values.size(); place += 10)
    places.push_back(place);
  const auto print_table = [&](const std::string& title, const std::vector<double>& values, auto shown) {
    fmt::print("{}\n from \\ to", title);
    for (auto to : places)
      if (to != places.front()) fmt::print("{:>7}", index.first_year + int(to));
    for (auto from : places) {
      if (from == places.back()) continue;
      fmt::print("\n{:>10}", index.first_year + int(from));
      for (auto to : places)
        if (to != places.front()) fmt::print("{:>7}", to > from ? shown(values[from * got.columns + to]) : "");
    }
    fmt::print("\n\n");
  };
  print_table("Average yearly inflation, percent", got.inflation,
              [](double factor) { return fmt::format("{:.2f}", 100 * (factor - 1)); });
  print_table(fmt::format("What 100 put away at {:.3g} percent buys, in prices of the first year", 100 * interest),
              got.worth, [](double factor) { return fmt::format("{:.1f}", 100 * factor); });
  fmt::print("device      {}\nbuilt-ins   {}\n", got.device, built_ins);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  return example::guarded([&] { return run(argc, argv); });
}
