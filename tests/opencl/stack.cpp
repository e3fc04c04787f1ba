// Shows that wide calls, which cross in memory, do not keep that memory for each call and work item of a group: a
// kernel with two hundred such calls in groups of 4096 items runs on the usual stack and gives correct results.
#include <fmt/format.h>

#include <cstring>
#include <exception>
#include <random>
#include <vector>

#include "comparison.h"
#include "device.h"
#include "harness/harness.h"

using namespace lanemath;

static int run(int argc, char** argv) {
  if (argc != 2) {
    fmt::print(stderr, "usage: {} LIBRARY\n", argv[0]);
    return 2;
  }
  constexpr int calls = 200, width = 16;
  constexpr std::size_t items = 4096, lanes = items * width;
  std::string source =
      "kernel void sum_of_powers(global const double16* x, global const double16* y, global double16* sums) {\n"
      "  const size_t i = get_global_id(0);\n"
      "  double16 sum = 0;\n";
  for (int n = 0; n < calls; ++n) source += fmt::format("  sum += pow(x[i] + {}, y[i]);\n", n);
  source += "  sums[i] = sum;\n}\n";

  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> uniform(0, 2);
  std::vector<double> x(lanes), y(lanes), base(lanes), power(lanes), sum(lanes);
  for (auto& value : x) value = uniform(random);
  for (auto& value : y) value = uniform(random);
  const harness::library library(argv[1]);
  const auto pow = library.find(index_of("pow"), variant::standard, width).value();
  for (int n = 0; n < calls; ++n) {
    for (std::size_t i = 0; i < lanes; ++i) base[i] = x[i] + n;
    const void* inputs[] = {base.data(), y.data()};
    pow.call(inputs, power.data(), nullptr, lanes);
    for (std::size_t i = 0; i < lanes; ++i) sum[i] += power[i];
  }

  const auto as_bytes = [](const std::vector<double>& values) {
    const auto* first = reinterpret_cast<const std::byte*>(values.data());
    return bytes(first, first + values.size() * sizeof(double));
  };
  const device device;
  std::vector<bytes> sums{bytes(lanes * sizeof(double))};
  device.run(device.build(source), "sum_of_powers", items, items, {as_bytes(x), as_bytes(y)}, sums);
  const bool same = sums[0] == as_bytes(sum);
  fmt::print("{} calls of pow(double16) in groups of {}: {}\n", calls, items, same ? "the same sums" : "other sums");
  return same ? 0 : 1;
}

int main(int argc, char** argv) {
  return guarded([&] { return run(argc, argv); });
}
