// Whether two builds of the library give the same bits: every function on the same lanes.
#include <fmt/format.h>
#include <fnmatch.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cfenv>
#include <filesystem>
#include <string>
#include <vector>

#include "compare/inputs.h"

namespace {

using namespace lanemath;
using harness::arguments, harness::outcome;

struct direction {
  int mode;
  std::string_view name;
};
constexpr direction directions[] = {{FE_TONEAREST, ""},
                                    {FE_DOWNWARD, ", rounding downward"},
                                    {FE_UPWARD, ", rounding upward"},
                                    {FE_TOWARDZERO, ", rounding toward zero"}};

// The rounding direction of MXCSR and of the x87 control word, for as long as this lives.
class rounding {
 public:
  explicit rounding(int mode) { std::fesetround(mode); }
  ~rounding() { std::fesetround(before_); }
  rounding(const rounding&) = delete;
  rounding& operator=(const rounding&) = delete;

 private:
  int before_ = std::fegetround();
};

// One function of both libraries.
struct form {
  variant of;
  int width;
  harness::function first, second;
  std::uint64_t lanes = 0, differing = 0;
  std::string example{};  // the first lane that differs
};

std::string hexadecimal(lane l, std::uint64_t bits) { return fmt::format("{:#0{}x}", bits, 2 + 2 * size_of(l)); }

std::string text_of(const operation& o, const arguments& tuple) {
  std::string text;
  for (int i = 0; i < o.sig.arity(); ++i) text += (i ? ", " : "") + hexadecimal(o.sig.arguments[i], tuple[i]);
  return text;
}
std::string text_of(const operation& o, const outcome& got) {
  const auto text = hexadecimal(o.sig.result, got.first);
  return o.sig.how == delivery::none ? text : fmt::format("({}, {})", text, hexadecimal(o.sig.second, got.second));
}

void call_both(const operation& o, form& f, std::span<const arguments> inputs, const direction& d) {
  constexpr std::uint64_t junk = 0x7FF000007F800001;  // a signalling NaN, its lower half too
  const rounding in_force(d.mode);
  const auto first = harness::evaluate(o, f.first, f.width, inputs, junk);
  const auto second = harness::evaluate(o, f.second, f.width, inputs, junk);
  f.lanes += inputs.size();
  for (std::size_t n = 0; n < inputs.size(); ++n)
    if (first[n] != second[n] && f.differing++ == 0)
      f.example =
          fmt::format("{} and {} of {}{}", text_of(o, first[n]), text_of(o, second[n]), text_of(o, inputs[n]), d.name);
}

bool wanted(const std::vector<std::string>& patterns, const operation& o, variant v) {
  const std::string name(o.name()), with_variant = name + std::string(suffix(v));
  return patterns.empty() || std::any_of(patterns.begin(), patterns.end(), [&](const std::string& pattern) {
           return fnmatch(pattern.c_str(), name.c_str(), 0) == 0 ||
                  fnmatch(pattern.c_str(), with_variant.c_str(), 0) == 0;
         });
}

void check_known(const std::string& pattern) {
  for (const auto& o : catalogue)
    for (auto v : variants)
      if (o.has(v) && wanted({pattern}, o, v)) return;
  throw std::runtime_error("no operation " + pattern);
}

}  // namespace

int main(int argc, char** argv) try {
  CLI::App app{"Compares two builds of lanemath bit for bit, on the same lanes."};
  std::string first_path, second_path;
  std::vector<std::string> patterns;
  std::size_t lanes = 1 << 16;
  std::uint64_t seed = 1;
  bool all_directions = false;
  app.add_option("first", first_path, "a library")->required();
  app.add_option("second", second_path, "the library to compare it with")->required();
  app.add_option("operations", patterns, "what to compare, all if none is named: expf, expf_native, 'exp*'...");
  app.add_option("-n,--lanes", lanes, "random lanes per function, besides a fixed set")
      ->check(CLI::Range(std::size_t(1), std::size_t(1) << 40))
      ->capture_default_str();
  app.add_option("-s,--seed", seed, "of the random numbers")->capture_default_str();
  app.add_flag("-d,--directions", all_directions, "also in the other three rounding directions");
  CLI11_PARSE(app, argc, argv);
  for (const auto& pattern : patterns) check_known(pattern);

  // Whole paths: the loader takes a bare file name for the recorded name of a library that it has loaded already.
  const harness::library first(std::filesystem::absolute(first_path)), second(std::filesystem::absolute(second_path));
  const auto in_force = std::span(directions).first(all_directions ? std::size(directions) : 1);
  std::uint64_t compared = 0, lanes_compared = 0, differing = 0, missing = 0;
  for (std::size_t index = 0; index < catalogue.size(); ++index) {
    const auto& o = catalogue[index];
    std::vector<form> forms;
    for (auto v : variants) {
      if (!o.has(v) || !wanted(patterns, o, v)) continue;
      for (int width : widths) {
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
    for (std::size_t left = lanes;; left -= inputs.size()) {
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
  return differing + missing == 0 ? 0 : 1;
} catch (const std::exception& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 2;
}
