// Shows whether two builds of the library give the same bits, or a companion those of the library: calls every function
// of both on the same lanes.
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <filesystem>
#include <numeric>
#include <string>
#include <vector>

#include "harness/files.h"
#include "harness/names.h"
#include "harness/rounding.h"
#include "inputs.h"

namespace {

using namespace lanemath;
using harness::arguments, harness::text_of;

// One function in both libraries.
struct form {
  variant of;
  int width;
  harness::function first, second;
  std::uint64_t lanes = 0, differing = 0;
  std::string example{};  // the first lane that differs
};

void call_both(const operation& o, form& f, std::span<const arguments> inputs, const harness::direction& d) {
  constexpr std::uint64_t junk = 0x7FF000007F800001;  // a signalling NaN, and so is its lower half
  const harness::rounding in_force(d.mode);
  const auto first = harness::evaluate(o, f.first, f.width, inputs, junk);
  const auto second = harness::evaluate(o, f.second, f.width, inputs, junk);
  f.lanes += inputs.size();
  for (std::size_t n = 0; n < inputs.size(); ++n)
    if (first[n] != second[n] && f.differing++ == 0)
      f.example = fmt::format("{} and {} of {}, rounding {}", text_of(o, first[n]), text_of(o, second[n]),
                              text_of(o, inputs[n]), d.name);
}

// On every argument of a function of one argument of 32 bits.
void call_both_on_all(const operation& o, form& f, const harness::direction& d) {
  std::vector<std::uint32_t> x(1 << 12);
  std::vector<std::byte> first(x.size() * 16), second(first);  // with room for two results of 64 bits
  const auto call = [&](const harness::function& of, std::vector<std::byte>& results) {
    const harness::rounding in_force(d.mode);
    const void* const from = x.data();
    of.call(&from, results.data(), results.data() + results.size() / 2, x.size());
  };
  for (std::uint64_t begin = 0; begin < std::uint64_t(1) << 32; begin += x.size()) {
    std::iota(x.begin(), x.end(), std::uint32_t(begin));
    call(f.first, first);
    call(f.second, second);
    if (f.width != 3 && first == second) {
      f.lanes += x.size();
      continue;
    }
    std::vector<arguments> inputs;
    for (auto pattern : x) inputs.push_back({pattern});
    call_both(o, f, inputs, d);
  }
}

}  // namespace

int main(int argc, char** argv) try {
  CLI::App app{"Compares two builds of lanemath bit for bit, on the same lanes."};
  std::string first_path, second_path;
  std::vector<std::string> patterns;
  std::size_t lanes = 1 << 16;
  std::uint64_t seed = 1;
  bool all_directions = false, all_arguments = false;
  app.add_option("first", first_path, "a library")->required();
  app.add_option("second", second_path, "the library, or a companion for wider registers, to compare it with")
      ->required();
  app.add_option("operations", patterns, "what to compare, all if none is named: expf, expf_native, expf4, 'exp*'...");
  app.add_option("-n,--lanes", lanes, "random lanes per function, besides a fixed set")
      ->check(CLI::Range(std::size_t(1), std::size_t(1) << 40))
      ->capture_default_str();
  app.add_option("-s,--seed", seed, "of the random numbers")->capture_default_str();
  app.add_flag("-d,--directions", all_directions, "also in the other three rounding directions");
  app.add_flag(
         "-a,--all-arguments", all_arguments,
         "all arguments of functions of one argument of 32 bits, and no other functions: a minute or two a function")
      ->excludes("--lanes");
  CLI11_PARSE(app, argc, argv);
  const harness::selection chosen(patterns);

  // Absolute paths, because the loader mistakes a bare file name for the recorded name of a library that is loaded
  // already.
  const harness::library first(std::filesystem::absolute(first_path)), second(std::filesystem::absolute(second_path));
  const auto in_force = std::span(harness::directions).first(all_directions ? std::size(harness::directions) : 1);
  std::uint64_t compared = 0, lanes_compared = 0, differing = 0, missing = 0;
  for (std::size_t index = 0; index < catalogue.size(); ++index) {
    const auto& o = catalogue[index];
    if (all_arguments && (o.sig.arity() != 1 || size_of(o.sig.arguments[0]) != 4)) continue;
    std::vector<form> forms;
    for (auto v : variants) {
      for (int width : widths) {
        if (!chosen.has(index, v, width)) continue;
        if (!o.is_at(first.of_level(), width) || !o.is_at(second.of_level(), width)) continue;
        const auto one = first.find(index, v, width), other = second.find(index, v, width);
        if (one && other) forms.push_back({v, width, *one, *other});
        if (bool(one) == bool(other)) continue;
        fmt::print("{}{}{}: only in {}\n", o.name(), width, suffix(v), one ? first_path : second_path);
        ++missing;
      }
    }
    if (forms.empty()) continue;

    constexpr std::size_t at_once = 1 << 12;
    std::mt19937_64 random(seed);
    auto inputs = compare::fixed_inputs(o.sig);
    if (all_arguments)
      for (auto& f : forms)
        for (const auto& d : in_force) call_both_on_all(o, f, d);
    for (std::size_t left = all_arguments ? 0 : lanes;; left -= inputs.size()) {
      for (auto& f : forms)
        for (const auto& d : in_force) call_both(o, f, inputs, d);
      if (left == 0) break;
      inputs = compare::random_inputs(o.sig, std::min(left, at_once), random);
    }
    for (const auto& f : forms) {
      ++compared;
      lanes_compared += f.lanes;
      if (f.differing == 0) continue;
      ++differing;
      fmt::print("{}{}{}: {} of {} lanes differ; the first: {}\n", o.name(), f.width, suffix(f.of), f.differing,
                 f.lanes, f.example);
    }
  }
  if (compared == 0) throw std::runtime_error("the libraries have no function in common that is asked for");
  fmt::print("{} functions compared over {} lanes: {} differ, {} in one library only\n", compared, lanes_compared,
             differing, missing);
  harness::finish_output();
  return differing + missing == 0 ? 0 : 1;
} catch (const std::exception& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 2;
}
