// Shows that the library serves the built-ins of OpenCL kernels: each one runs at every width over special values
// and random bits, in kernels of several shapes, and every lane must have the bits that a direct call of the library
// gives. Loops over scalar built-ins that have vector forms must call these.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <cstring>
#include <random>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "comparison.h"
#include "device.h"
#include "generate/opencl.h"
#include "harness/harness.h"
#include "kernels.h"

namespace {

using namespace lanemath;

constexpr std::size_t groups_per_program = 8;
constexpr std::byte untouched{0xa5};

const machine& machine_of(const std::string& device_name) {
  for (const auto& m : machines)
    if (device_name.find(fmt::format("-{}-", m.processor)) != device_name.npos) return m;
  throw std::runtime_error(fmt::format("the processor of the device {} is not known here", device_name));
}

class conformance {
 public:
  conformance(const harness::library& library, const device& device, const machine& on, const std::string& disassembler,
              std::uint64_t seed)
      : library_(library), device_(device), on_(on), disassembler_(disassembler), random_(seed) {}

  void run(std::span<const group> batch) {
    std::vector<std::vector<kernel>> kernels;
    std::string source;
    for (const auto& g : batch) {
      kernels.push_back(kernels_of(g, fmt::format("group{}", groups_++)));
      for (const auto& k : kernels.back()) source += source_of(g, k);
    }
    const auto program = device_.build(source);
    for (std::size_t i = 0; i < batch.size(); ++i) run(program, batch[i], kernels[i]);
  }

  // All 32-bit arguments, in the plain kernel of scalars.
  void sweep(const group& g) {
    const kernel k{fmt::format("sweep{}", groups_++), shape::plain, 1};
    const auto program = device_.build(source_of(g, k));
    std::vector<bytes> inputs{bytes(lanes * sizeof(std::uint32_t))};
    for (std::uint64_t first = 0; first < std::uint64_t(1) << 32; first += lanes) {
      for (std::size_t i = 0; i < lanes; ++i) {
        const auto pattern = std::uint32_t(first + i);
        std::memcpy(inputs[0].data() + i * sizeof pattern, &pattern, sizeof pattern);
      }
      run(program, g, k, inputs);
    }
    check_loop(g, k);
  }

  bool passed() const { return calls_ != 0 && wrong_ == 0 && wrong_loops_ == 0; }
  std::string summary() const {
    return fmt::format(
        "{}: {} of {} calls of built-ins give the library's bits in all of {} lanes, {} of {} are vectorised as "
        "expected",
        device_.name(), calls_ - wrong_, calls_, lanes, loops_ - wrong_loops_, loops_);
  }

 private:
  void run(const cl::Program& program, const group& g, const std::vector<kernel>& kernels) {
    const auto& s = g.signature;
    const int last = s.arity() - 1;
    std::vector<bytes> inputs;
    for (int i = 0; i <= last; ++i) inputs.push_back(inputs_of(s.arguments[i], lanes, random_));
    if (g.how.scalar_last) spread_first_lanes(inputs.back(), size_of(s.arguments[last]), lanes_per_share);
    auto with_constant = inputs;
    with_constant.back() = constants_of(s.arguments[last], lanes, constant_argument);

    for (const auto& k : kernels) {
      run(program, g, k, k.form == shape::constant ? with_constant : inputs);
      if (k.width == 1 && k.form != shape::branch) check_loop(g, k);
    }
  }

  void run(const cl::Program& program, const group& g, const kernel& k, const std::vector<bytes>& inputs) {
    const auto& s = g.signature;
    const std::size_t result_part = lanes * size_of(s.result), second_part = lanes * size_of(s.second);
    std::vector<bytes> outputs{bytes(g.members.size() * result_part, untouched)};
    if (second_part) outputs.emplace_back(g.members.size() * second_part, untouched);

    auto memory = inputs;
    std::vector<int> flags;
    if (k.form == shape::branch) {
      for (std::size_t i = 0; i < lanes; ++i) flags.push_back(int(random_() % 2));
      const auto* first = reinterpret_cast<const std::byte*>(flags.data());
      memory.emplace_back(first, first + lanes * sizeof(int));
    }
    device_.run(program, k.name, k.items(), items_per_group, memory, outputs);

    for (std::size_t m = 0; m < g.members.size(); ++m) {
      const auto& b = g.members[m];
      auto taken = inputs;
      if (k.form == shape::chain && m % 2) {
        const auto* previous = outputs[0].data() + (m - 1) * result_part;
        taken[0].assign(previous, previous + result_part);
      }
      check(g, k, b, taken, flags, outputs, m);
    }
  }

  void check(const group& g, const kernel& k, const builtin& b, const std::vector<bytes>& inputs,
             const std::vector<int>& flags, const std::vector<bytes>& outputs, std::size_t member) {
    const auto& s = g.signature;
    std::array<const void*, 3> pointers{};
    for (std::size_t i = 0; i < inputs.size(); ++i) pointers[i] = inputs[i].data();
    bytes direct(lanes * size_of(s.result)), direct_second(lanes * size_of(s.second));
    library_.find(b.index, b.variant, k.width)
        .value()
        .call(pointers.data(), direct.data(), direct_second.data(), lanes);
    for (std::size_t i = 0; i < flags.size(); ++i)
      if (!flags[i]) {
        std::fill_n(direct.data() + i * size_of(s.result), size_of(s.result), untouched);
        std::fill_n(direct_second.data() + i * size_of(s.second), size_of(s.second), untouched);
      }

    const bool any_nan = left_to_compiler(b.operation(), b.variant, on_);
    const auto what =
        fmt::format("{}{}{} at width {} in {}", b.name(k.width), g.how.address_space.empty() ? "" : ", pointer to ",
                    g.how.scalar_last ? ", scalar last" : g.how.address_space, k.width, k.name);
    const auto compare = [&](const std::string& what, lane of, const bytes& results, const bytes& expected) {
      return differences(what, {of, k.width, any_nan, s, inputs, results.data() + member * expected.size(), expected});
    };
    std::size_t bad = compare(what, s.result, outputs[0], direct);
    if (outputs.size() > 1) bad += compare(what + ", second result", s.second, outputs[1], direct_second);
    if (bad) fmt::print("  in {} lanes\n", bad);
    wrong_ += bad != 0;
    ++calls_;
  }

  // The runtime loops over a kernel's work items, and that loop must call vector forms. A kernel with a loop of its own
  // asks that it not be vectorised, and it must not be. If the loop has a branch in it, the compiler decides by cost.
  void check_loop(const group& g, const kernel& k) {
    const auto called = device_.called_by(k.name, disassembler_);
    for (const auto& b : g.members) {
      if (left_to_compiler(b.operation(), b.variant, on_)) continue;
      const auto functions = loop_functions(b.operation(), b.variant, on_);
      ++loops_;
      const bool vectorised = std::ranges::any_of(functions, [&](const auto& f) { return called.contains(f); });
      if (vectorised == (k.form != shape::scalar)) continue;
      fmt::print("{} in {} is {}vectorised: of {} {} is called\n", b.name(1), k.name, vectorised ? "" : "not ",
                 fmt::join(functions, ", "), vectorised ? "one" : "none");
      ++wrong_loops_;
    }
  }

  const harness::library& library_;
  const device& device_;
  const machine& on_;
  std::string disassembler_;
  std::mt19937_64 random_;
  std::size_t groups_ = 0, calls_ = 0, wrong_ = 0, loops_ = 0, wrong_loops_ = 0;
};

std::vector<std::string> names_of(const group& g) {
  std::vector<std::string> all;
  for (const auto& b : g.members) all.push_back(b.name(1));
  return all;
}

// "1/3": part 1 of the parts 0, 1, 2.
struct part {
  std::ptrdiff_t number = 0, count = 1;
};
std::istream& operator>>(std::istream& in, part& p) {
  char slash = 0;
  if (!(in >> p.number >> slash >> p.count) || slash != '/' || p.number < 0 || p.number >= p.count)
    in.setstate(std::ios::failbit);
  return in;
}

int run(int argc, char** argv) {
  std::string path, only, disassembler = "llvm-dis-15";
  std::uint64_t seed = 1;
  bool exhaustive = false;
  part part;
  CLI::App app("Compares the maths built-ins of OpenCL kernels with direct calls of the library, bit for bit.");
  app.add_option("library", path, "the shared object")->required()->check(CLI::ExistingFile);
  app.add_option("--operation", only, "only this one, by its name in the catalogue");
  app.add_option("--part", part, "only this part of the built-ins: 0/2 and 1/2 are the halves");
  app.add_flag("--exhaustive", exhaustive, "all arguments of the built-ins of one argument of 32 bits, instead");
  app.add_option("--seed", seed, "of the random inputs")->capture_default_str();
  app.add_option("--disassembler", disassembler, "of the LLVM that the runtime compiles with")->capture_default_str();
  CLI11_PARSE(app, argc, argv);

  if (!only.empty() && std::ranges::find(catalogue, only, &operation::name) == catalogue.end())
    throw std::runtime_error(fmt::format("no operation is called {}", only));
  const harness::library library(path);
  const device device;
  const auto& on = machine_of(device.name());
  std::vector<group> groups;
  for (std::ptrdiff_t i = 0; auto& g : groups_of(library, only)) {
    const auto& arguments = g.signature.arguments;
    const bool can_sweep =
        size_of(arguments[0]) == 4 && g.signature.arity() == 1 && g.how != manner{"global"} && g.how != manner{"local"};
    if ((!exhaustive || can_sweep) && i++ % part.count == part.number) groups.push_back(std::move(g));
  }
  if (groups.empty()) throw std::runtime_error("there are no built-ins to compare");

  conformance conformance(library, device, on, disassembler, seed);
  if (exhaustive) {
    for (const auto& g : groups) {
      fmt::print(stderr, "{}\n", fmt::join(names_of(g), " "));
      conformance.sweep(g);
    }
    groups.clear();
  }
  for (std::size_t i = 0; i < groups.size(); i += groups_per_program)
    conformance.run(std::span(groups).subspan(i, std::min(groups_per_program, groups.size() - i)));
  fmt::print("{}\n", conformance.summary());
  return conformance.passed() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  return guarded([&] { return run(argc, argv); });
}
