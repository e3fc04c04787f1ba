#include "suite.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <algorithm>

#include "latency.h"

namespace lanemath::bench {
namespace {

constexpr std::size_t rare_every = 64;

constexpr auto throughput = "throughput", rare_lanes = "rare", waiting = "latency";

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

// The error bound that SLEEF's names carry: u10 of Sleef_expf4_u10sse4.
std::string_view bound_of(std::string_view sleef_name) {
  const auto last = sleef_name.substr(sleef_name.rfind('_') + 1);
  return last.substr(0, last.find("sse4"));
}

}  // namespace

suite::suite(const harness::library& library, std::size_t operation_index, variant v)
    : library_(library),
      operation_index_(operation_index),
      variant_(v),
      exported_(library.find(operation_index, v, widths.back()).has_value()),
      title_(fmt::format("{}{}", catalogue[operation_index].name(), suffix(v))),
      typical_(catalogue[operation_index], 0),
      with_rare_(catalogue[operation_index], rare_every),
      sleef_(sleef(catalogue[operation_index], v)),
      scalar_(c_library(catalogue[operation_index])) {
  if (!scalar_) scalar_ = plain(catalogue[operation_index]);
}

std::string suite::name(std::string_view kind, int width) const {
  return fmt::format("{}/lanemath/{}/{}", title_, kind, width);
}
std::string suite::name_of_peer(const peer& p, std::string_view kind) const {
  return fmt::format("{}/{}/{}/{}", title_, p.name, kind, p.width);
}

void suite::add(const std::string& benchmark, const harness::function& f, int width, arguments& on) const {
  const auto lanes = lane_count / padded(width) * width;
  benchmark::RegisterBenchmark(benchmark.c_str(), [f, lanes, &on](benchmark::State& state) {
    for (auto _ : state) on.pass_to(f);
    count_lanes(state, lanes);
  });
}

void suite::add_peer(const std::optional<peer>& p) {
  if (!p) return;
  add(name_of_peer(*p, throughput), p->throughput, p->width, typical_);
  add(name_of_peer(*p, rare_lanes), p->throughput, p->width, with_rare_);
  if (p->latency) add(name_of_peer(*p, waiting), *p->latency, p->width, typical_);
}

void suite::register_benchmarks() {
  for (int width : widths)
    if (const auto f = library_.find(operation_index_, variant_, width)) {
      add(name(throughput, width), *f, width, typical_);
      add(name(rare_lanes, width), *f, width, with_rare_);
      if (width == 1)
        if (const auto chained = latency(catalogue[operation_index_], *f)) add(name(waiting, 1), *chained, 1, typical_);
    }
  add_peer(sleef_);
  add_peer(scalar_);
  benchmark::RegisterBenchmark((title_ + "/cycle").c_str(), [](benchmark::State& state) {
    for (auto _ : state) spend_cycles();
    count_lanes(state, additions);
  });
}

void suite::print_heading() {
  fmt::print(
      "Nanoseconds. gap: how many times width 4 the slowest width costs, narrow widths per call, wide ones per lane.\n"
      "cycles: per lane at width 4. rare: per lane at width 4 where one lane in {} is rare. latency: of width 1.\n"
      "Peers: per lane on the same arguments, and as a multiple of ours at width 4. For conversions and integer "
      "divisions\n"
      "the C library's column has a loop of plain C++, compiled for the same instructions.\n\n",
      rare_every);
  fmt::print("{:18}{:^28}{:^21}{:30}{:^21}{:^22}\n", "", "call at width", "lane at width", "", "SLEEF, 128 bits",
             "C library");
  fmt::print("{:18}{:>7}{:>7}{:>7}{:>7}{:>7}{:>7}{:>7}{:>6}{:>8}{:>7}{:>9}{:>8}{:>7}{:>6}{:>7}{:>7}{:>9}\n", "", 1, 2,
             3, 4, 4, 8, 16, "gap", "cycles", "rare", "latency", "lane", "times", "class", "lane", "times", "latency");
}

void suite::print_row(const results& r) const {
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
  fmt::print("{:>7}{:>7}{:>9}\n", number(of_peer(scalar_)), number(of_peer(scalar_) / four),
             number(of_peer(scalar_, waiting)));
  std::fflush(stdout);
}

}  // namespace lanemath::bench
