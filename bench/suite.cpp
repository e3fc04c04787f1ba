#include "suite.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <algorithm>

#include "accuracy/measure.h"
#include "latency.h"

namespace lanemath::bench {
namespace {

constexpr std::size_t rare_every = 64;

constexpr auto throughput = "throughput", rare_lanes = "rare", waiting = "latency", array = "array";

// Dependent additions, one cycle each on every x86-64 processor: they show the clock that the core runs at now, which
// the time-stamp counter does not.
constexpr int additions = 1000;
void spend_cycles() {
  long sum = 0;
  const long addend = 1;
  asm volatile(".rept %c2\n\tadd %1, %0\n\t.endr" : "+r"(sum) : "r"(addend), "i"(additions));
}

void count_lanes(benchmark::State& state, std::size_t lanes) {
  using benchmark::Counter;
  state.counters[seconds_per_lane] = Counter(double(lanes), Counter::kIsIterationInvariantRate | Counter::kInvert);
}

std::string number(std::optional<double> value) { return value ? fmt::format("{:.2f}", *value) : "-"; }

std::optional<double> operator*(std::optional<double> a, double b) { return a ? std::optional(*a * b) : a; }
std::optional<double> operator/(std::optional<double> a, std::optional<double> b) {
  return a && b ? std::optional(*a / *b) : std::nullopt;
}

std::array<range, 3> ranges_of(const operation& o, const std::optional<range>& wanted) {
  auto ranges = o.typical;
  for (int i = 0; wanted && i < o.sig.arity(); ++i)
    if (is_floating(o.sig.arguments[i])) ranges[i] = *wanted;
  return ranges;
}

// The error bound that SLEEF's names carry: u10 of Sleef_expf4_u10sse4.
std::string_view bound_of(std::string_view sleef_name) {
  const auto last = sleef_name.substr(sleef_name.rfind('_') + 1);
  return last.substr(0, last.find_first_not_of("u0123456789"));
}

}  // namespace

suite::suite(const subjects& measured, std::size_t operation_index, variant v, const request& wanted)
    : measured_(measured),
      wanted_(wanted),
      operation_index_(operation_index),
      variant_(v),
      exported_((measured.companion ? *measured.companion : measured.library)
                    .find(operation_index, v, widths.back())
                    .has_value()),
      title_(fmt::format("{}{}", catalogue[operation_index].name(), suffix(v))),
      ranges_(ranges_of(catalogue[operation_index], wanted.between)),
      typical_(catalogue[operation_index], ranges_, 0),
      with_rare_(catalogue[operation_index], ranges_, rare_every) {
  const auto& o = catalogue[operation_index];
  if (!measured.companion) scalar_ = measured.peers.c_library(o);
  if (wanted.c_library_alone) return;
  sleef_ = measured.peers.sleef(o, v);
  if (!scalar_) scalar_ = measured.peers.plain(o);
  inlined_ = measured.peers.inlined(o);
}

int suite::lanes_of(const level& l) const {
  return int(l.register_bytes / catalogue[operation_index_].sig.widest_lane());
}

std::string suite::name(std::string_view kind, int width) const {
  return fmt::format("{}/lanemath/{}/{}", title_, kind, width);
}
std::string suite::name_at_level(std::string_view kind, int width) const {
  return fmt::format("{}/lanemath_{}/{}/{}", title_, measured_.companion->of_level().name, kind, width);
}
std::string suite::name_of_peer(const peer& p, std::string_view kind) const {
  return fmt::format("{}/{}/{}/{}", title_, p.name, kind, p.width);
}

// Nothing where there is no exact value to compare with.
std::optional<double> suite::error_of(const harness::function& f, int width) const {
  const auto& o = catalogue[operation_index_];
  const auto* reference = accuracy::find_reference(o);
  if (wanted_.error_samples == 0 || !reference) return std::nullopt;
  accuracy::range drawn_from{"", {}};
  for (int i = 0; i < o.sig.arity(); ++i) drawn_from.arguments.push_back({ranges_[i].low, ranges_[i].high});
  return accuracy::measure(o, *reference, f, width, accuracy::sample(o, drawn_from, wanted_.error_samples, 1))
      .largest_error;
}

void suite::add(const std::string& benchmark, const harness::function& f, int width, arguments& on,
                std::optional<double> error) const {
  const auto lanes = lane_count / padded(width) * width;
  benchmark::RegisterBenchmark(benchmark.c_str(), [f, lanes, error, &on](benchmark::State& state) {
    for (auto _ : state) on.pass_to(f);
    count_lanes(state, lanes);
    if (error) state.counters["ulp"] = *error;
  });
}

void suite::add_peer(const peer& p) {
  add(name_of_peer(p, throughput), p.throughput, p.width, typical_, error_of(p.throughput, p.width));
  if (p.latency) add(name_of_peer(p, waiting), *p.latency, p.width, typical_);
}

void suite::add_ours() {
  for (int width : widths)
    if (const auto f = measured_.library.find(operation_index_, variant_, width)) {
      add(name(throughput, width), *f, width, typical_, width == 16 ? error_of(*f, width) : std::nullopt);
      if (width == 4) add(name(rare_lanes, width), *f, width, with_rare_);
      if (width == 1)
        if (const auto chained = latency(catalogue[operation_index_], *f)) add(name(waiting, 1), *chained, 1, typical_);
    }
  if (const auto f = measured_.of_arrays.find(catalogue[operation_index_], variant_))
    add(name(array, 16), *f, 16, typical_);
}

// What fits in a register: of the library, and of the companion.
void suite::add_ours_at_level() {
  const auto& companion = *measured_.companion;
  const int group = lanes_of(levels[0]), most = lanes_of(companion.of_level());
  if (const auto f = measured_.library.find(operation_index_, variant_, group))
    add(name(throughput, group), *f, group, typical_);
  for (int width : widths)
    if (const auto f = companion.find(operation_index_, variant_, width); f && width <= most)
      add(name_at_level(throughput, width), *f, width, typical_, width == most ? error_of(*f, width) : std::nullopt);
  // They take the widest registers that there are.
  const auto is_wider = [&](const level& l) {
    return l.register_bytes > companion.of_level().register_bytes && harness::has_instructions(l);
  };
  if (std::ranges::any_of(levels, is_wider)) return;
  if (const auto f = measured_.of_arrays.find(catalogue[operation_index_], variant_))
    add(name_at_level(array, 16), *f, 16, typical_);
}

void suite::register_benchmarks() {
  if (measured_.companion)
    add_ours_at_level();
  else if (!wanted_.c_library_alone)
    add_ours();
  if (sleef_) add_peer(*sleef_);
  if (scalar_) add_peer(*scalar_);
  for (const auto& p : inlined_) add_peer(p);
  benchmark::RegisterBenchmark((title_ + "/cycle").c_str(), [](benchmark::State& state) {
    for (auto _ : state) spend_cycles();
    count_lanes(state, additions);
  });
}

void suite::print_heading() const {
  if (measured_.companion) {
    const auto bits = measured_.companion->of_level().register_bytes * 8;
    fmt::print(
        "Nanoseconds a lane: one register of the library, one of the companion and how many times it gains, and the\n"
        "function of arrays. Peers at the companion's level, on the same arguments, and as a multiple of the "
        "companion's\n"
        "register. Inlined: the fastest of Highway, xsimd, Eigen and plain C++ in a loop over an array.\n\n"
        "{:18}{:>9}{:>9}{:>7}{:>7}{:>8}{:>7}{:>7}{:>9}{:>7}\n",
        "", "128 bits", fmt::format("{} bits", bits), "times", "array", "SLEEF", "times", "class", "inlined", "times");
    return;
  }
  fmt::print(
      "Nanoseconds. gap: how many times width 4 the slowest width costs, narrow widths per call, wide ones per lane.\n"
      "cycles: per lane at width 4. rare: per lane at width 4 where one lane in {} is rare. latency: of width 1.\n"
      "Peers: per lane on the same arguments, and as a multiple of ours at width 4. For conversions and integer "
      "divisions\n"
      "the C library's column has a loop of plain C++, compiled for the same instructions. Inlined: the fastest of\n"
      "Highway, xsimd and Eigen in a loop over an array, and as a multiple of ours at width 16.\n\n",
      rare_every);
  fmt::print("{:18}{:^28}{:^21}{:30}{:^21}{:^22}{:^20}\n", "", "call at width", "lane at width", "", "SLEEF, 128 bits",
             "C library", "inlined");
  fmt::print(
      "{:18}{:>7}{:>7}{:>7}{:>7}{:>7}{:>7}{:>7}{:>6}{:>8}{:>7}{:>9}{:>8}{:>7}{:>6}{:>7}{:>7}{:>9}{:>7}{:>7} {}\n", "",
      1, 2, 3, 4, 4, 8, 16, "gap", "cycles", "rare", "latency", "lane", "times", "class", "lane", "times", "latency",
      "lane", "times", "by");
}

void suite::print_row_at_level(const results& r) const {
  const int group = lanes_of(levels[0]), most = lanes_of(measured_.companion->of_level());
  const auto one_group = r.nanoseconds(name(throughput, group));
  const auto one_register = r.nanoseconds(name_at_level(throughput, most));
  const auto of_peer = [&](const peer& p) { return r.nanoseconds(name_of_peer(p, throughput)); };
  const auto of_sleef = sleef_ ? of_peer(*sleef_) : std::nullopt;
  fmt::print("{:18}{:>9}{:>9}{:>7}{:>7}{:>8}{:>7}{:>7}", title_, number(one_group), number(one_register),
             number(one_group / one_register), number(r.nanoseconds(name_at_level(array, 16))), number(of_sleef),
             number(of_sleef / one_register), sleef_ ? bound_of(sleef_->name) : "-");
  auto loops = inlined_;
  if (scalar_) loops.push_back(*scalar_);
  const auto fastest = std::ranges::min_element(loops, {}, of_peer);
  if (fastest != loops.end())
    fmt::print("{:>9}{:>7} {}", number(of_peer(*fastest)), number(of_peer(*fastest) / one_register), fastest->name);
  fmt::print("\n");
  std::fflush(stdout);
}

void suite::print_row(const results& r) const {
  if (measured_.companion) return print_row_at_level(r);
  const auto lane = [&](int width, std::string_view kind = throughput) { return r.nanoseconds(name(kind, width)); };
  const auto of_peer = [&](const std::optional<peer>& p, std::string_view kind = throughput) {
    return p ? r.nanoseconds(name_of_peer(*p, kind)) : std::nullopt;
  };
  const auto four = lane(4);
  const auto gap = std::max(
      {lane(1) / (four * 4), lane(2) * 2 / (four * 4), lane(3) * 3 / (four * 4), lane(8) / four, lane(16) / four});

  fmt::print("{:18}", title_);
  for (int width : {1, 2, 3, 4}) fmt::print("{:>7}", number(lane(width) * width));
  for (int width : {4, 8, 16}) fmt::print("{:>7}", number(lane(width)));
  fmt::print("{:>6}{:>8}{:>7}{:>9}", number(gap), number(four / r.nanoseconds(title_ + "/cycle")),
             number(lane(4, rare_lanes)), number(lane(1, waiting)));
  fmt::print("{:>8}{:>7}{:>6}", number(of_peer(sleef_)), number(of_peer(sleef_) / four),
             sleef_ ? bound_of(sleef_->name) : "-");
  fmt::print("{:>7}{:>7}{:>9}", number(of_peer(scalar_)), number(of_peer(scalar_) / four),
             number(of_peer(scalar_, waiting)));
  const auto fastest = std::ranges::min_element(inlined_, {}, [&](const peer& p) { return of_peer(p); });
  if (fastest != inlined_.end())
    fmt::print("{:>7}{:>7} {}", number(of_peer(*fastest)), number(of_peer(*fastest) / lane(16)), fastest->name);
  fmt::print("\n");
  std::fflush(stdout);
}

}  // namespace lanemath::bench
