#include "accuracy/measure.h"

#include <fmt/format.h>

#include <algorithm>
#include <atomic>
#include <bit>
#include <chrono>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>
#include <span>
#include <stdexcept>
#include <thread>
#include <utility>

namespace lanemath::accuracy {
namespace {

constexpr int reference_bits = 200;

struct big {
  mpfr_t v;
  big() { mpfr_init2(v, reference_bits); }
  ~big() { mpfr_clear(v); }
  big(const big&) = delete;
  big& operator=(const big&) = delete;
};
struct big_arguments {
  mpfr_t v[3];
  big_arguments() {
    for (auto& each : v) mpfr_init2(each, reference_bits);
  }
  ~big_arguments() {
    for (auto& each : v) mpfr_clear(each);
  }
  big_arguments(const big_arguments&) = delete;
  big_arguments& operator=(const big_arguments&) = delete;
};

struct format {
  int precision, least_exponent, greatest_exponent;  // of the last bit of a denormal; of the overflow bound
};
constexpr format format_of(lane l) { return l == lane::f32 ? format{24, -149, 128} : format{53, -1074, 1024}; }

double value_of(lane type, std::uint64_t pattern) {
  switch (type) {
    case lane::f32: return std::bit_cast<float>(std::uint32_t(pattern));
    case lane::f64: return std::bit_cast<double>(pattern);
    case lane::i32: return std::int32_t(pattern);
    case lane::u32: return std::uint32_t(pattern);
    default: throw std::logic_error("no reference takes 64-bit integers");
  }
}

std::uint64_t pattern_of(lane type, double value) {
  switch (type) {
    case lane::f32: return std::bit_cast<std::uint32_t>(float(value));
    case lane::f64: return std::bit_cast<std::uint64_t>(value);
    default: return std::uint32_t(std::int64_t(value));
  }
}

unsigned cores() { return std::max(1u, std::thread::hardware_concurrency()); }

// Runs work(part) on every core, part counting the cores, and merges the tallies.
template <class F>
tally on_all_cores(F work) {
  std::vector<tally> parts(cores());
  {
    std::vector<std::jthread> threads;
    for (unsigned i = 0; i < parts.size(); ++i) threads.emplace_back([&, i] { parts[i] = work(i); });
  }
  tally all;
  for (const auto& part : parts) all.merge(part);
  return all;
}

// A random pattern of any lane type, drawn evenly.
std::uint64_t any_pattern(lane type, std::mt19937_64& random) { return size_of(type) == 4 ? random() >> 32 : random(); }

// Patterns of a floating type in the order of their values, as integers.
std::int64_t ordered(lane type, std::uint64_t pattern) {
  const std::int64_t p = type == lane::f32 ? std::int64_t(std::int32_t(pattern)) : std::int64_t(pattern);
  const std::int64_t least =
      type == lane::f32 ? std::numeric_limits<std::int32_t>::min() : std::numeric_limits<std::int64_t>::min();
  return p < 0 ? least - p : p;
}
std::uint64_t unordered(lane type, std::int64_t place) {
  const std::int64_t least =
      type == lane::f32 ? std::numeric_limits<std::int32_t>::min() : std::numeric_limits<std::int64_t>::min();
  const std::int64_t p = place < 0 ? least - place : place;
  return type == lane::f32 ? std::uint32_t(p) : std::uint64_t(p);
}

std::uint64_t draw(lane type, const interval& from, bool over_patterns, std::mt19937_64& random) {
  if (is_floating(type) && over_patterns) {
    std::uniform_int_distribution<std::int64_t> place(ordered(type, pattern_of(type, from.low)),
                                                      ordered(type, pattern_of(type, from.high)));
    return unordered(type, place(random));
  }
  return pattern_of(type, std::uniform_real_distribution<double>(from.low, from.high)(random));
}

// On this core.
tally measure_here(const operation& o, const reference& r, const harness::function& f, int width,
                   std::span<const arguments> tuples) {
  const auto outcomes = harness::evaluate(o, f, width, tuples);
  tally found;
  big exact;
  big_arguments given;
  for (std::size_t n = 0; n < tuples.size(); ++n) {
    for (int i = 0; i < o.sig.arity(); ++i)
      mpfr_set_d(given.v[i], value_of(o.sig.arguments[i], tuples[n][i]), MPFR_RNDN);
    const auto add = [&](exact_function value, lane type, std::uint64_t got) {
      value(exact.v, given.v);
      const auto verdict = judge(type, exact.v, value_of(type, got));
      found.add(verdict.error, tuples[n], verdict.correct);
    };
    add(r.value, o.sig.result, outcomes[n].first);
    if (r.second) add(r.second, o.sig.second, outcomes[n].second);
  }
  mpfr_free_cache2(MPFR_FREE_LOCAL_CACHE);
  return found;
}

}  // namespace

judgement judge(lane type, const mpfr_t exact, double got) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  if (mpfr_nan_p(exact) || std::isnan(got)) {
    const bool both = mpfr_nan_p(exact) && std::isnan(got);
    return {both ? 0 : infinity, both};
  }
  if (!is_floating(type)) {
    const bool same = mpfr_cmp_d(exact, got) == 0;
    return {same ? 0 : infinity, same};
  }
  const format f = format_of(type);
  // The nearest number of the format.
  const double nearest = type == lane::f32 ? double(mpfr_get_flt(exact, MPFR_RNDN)) : mpfr_get_d(exact, MPFR_RNDN);
  if (nearest == got && std::isinf(got)) return {0, true};

  big difference;
  if (std::isinf(got))
    mpfr_set_si_2exp(difference.v, got > 0 ? 1 : -1, f.greatest_exponent, MPFR_RNDN);
  else
    mpfr_set_d(difference.v, got, MPFR_RNDN);
  mpfr_sub(difference.v, difference.v, exact, MPFR_RNDN);
  const long exponent = mpfr_regular_p(exact) ? long(mpfr_get_exp(exact)) - f.precision : f.least_exponent;
  mpfr_mul_2si(difference.v, difference.v, -std::max<long>(exponent, f.least_exponent), MPFR_RNDN);
  return {std::fabs(mpfr_get_d(difference.v, MPFR_RNDN)), nearest == got};
}

std::string text_of(lane type, std::uint64_t pattern) {
  if (!is_floating(type)) return fmt::format("{}", value_of(type, pattern));
  return type == lane::f32 ? fmt::format("{} (0x{:08X})", float(value_of(type, pattern)), pattern)
                           : fmt::format("{} (0x{:016X})", value_of(type, pattern), pattern);
}

std::string text_of(const operation& o, const arguments& input) {
  std::string text;
  for (int i = 0; i < o.sig.arity(); ++i) text += (i ? ", " : "") + text_of(o.sig.arguments[i], input[i]);
  return text;
}

std::vector<arguments> sample(const operation& o, const range& r, std::size_t count, std::uint64_t seed) {
  std::mt19937_64 random(seed);
  std::vector<arguments> all(count);
  for (std::size_t n = 0; n < count; ++n)
    for (int i = 0; i < o.sig.arity(); ++i) all[n][i] = draw(o.sig.arguments[i], r.arguments.at(i), n % 2, random);
  return all;
}

std::vector<arguments> sample_patterns(const operation& o, std::size_t count, std::uint64_t seed) {
  std::mt19937_64 random(seed);
  std::vector<arguments> all(count);
  for (auto& tuple : all)
    for (int i = 0; i < o.sig.arity(); ++i) tuple[i] = any_pattern(o.sig.arguments[i], random);
  return all;
}

std::vector<arguments> around_bounds(const operation& o, const reference& r, std::size_t count, std::uint64_t seed) {
  std::mt19937_64 random(seed);
  const auto centres = [&](lane type) {
    const bool single = type == lane::f32;
    std::vector<double> values = single ? r.single_bounds : r.double_bounds;
    const double infinity = std::numeric_limits<double>::infinity();
    if (single)
      values.insert(values.end(), {0x1p-149, 0x1p-126, 0x1.fffffep127});
    else
      values.insert(values.end(), {0x1p-1074, 0x1p-1022, std::numeric_limits<double>::max()});
    values.insert(values.end(), {0, 0.5, 1, 2, infinity});
    return values;
  };
  std::vector<arguments> all(count);
  for (auto& tuple : all)
    for (int i = 0; i < o.sig.arity(); ++i) {
      const lane type = o.sig.arguments[i];
      if (!is_floating(type)) {
        // Integers of every size.
        tuple[i] = any_pattern(type, random);
        if (type == lane::i32) tuple[i] = std::uint32_t(std::int32_t(tuple[i]) >> random() % 32);
        continue;
      }
      const auto values = centres(type);
      const double centre = values[random() % values.size()] * (random() % 2 ? 1 : -1);
      const auto distance = std::int64_t(random() % 64) - 32;
      tuple[i] = unordered(type, ordered(type, pattern_of(type, centre)) + distance);
    }
  return all;
}

tally measure(const operation& o, const reference& r, const harness::function& f, int width,
              const std::vector<arguments>& inputs) {
  return on_all_cores([&](unsigned part) {
    const std::size_t from = inputs.size() * part / cores(), to = inputs.size() * (part + 1) / cores();
    return measure_here(o, r, f, width, {inputs.data() + from, to - from});
  });
}

tally measure_at(const operation& o, const reference& r, const harness::function& f, int width,
                 const arguments& input) {
  return measure_here(o, r, f, width, std::vector(std::size_t(width), input));
}

tally measure_by_stand_in(const operation& o, const reference& r, const harness::function& f, int width,
                          std::span<const arguments> inputs, long double (*near)(const arguments&)) {
  constexpr long double margin = 0x1p-59L;  // an error in it of 2^-6 ulp at most
  constexpr std::size_t checked = 256;
  const auto outcomes = harness::evaluate(o, f, width, inputs);
  tally found;
  big exact;
  big_arguments given;
  for (std::size_t n = 0; n < inputs.size(); ++n) {
    const double got = std::bit_cast<double>(outcomes[n].first);
    const long double value = near(inputs[n]);
    const auto nearest = double(value * (1 - margin));
    if (n % checked != 0 && nearest == double(value * (1 + margin))) {
      if (got == nearest) {
        found.add(0, inputs[n], true);
        continue;
      }
      const int last_bit = std::max(std::ilogb(value) - 52, -1074);
      if (std::ldexp(std::fabs(got - value), -last_bit) + 0x1p-5 < found.largest_error) {
        found.add(0, inputs[n], false);
        continue;
      }
    }
    for (int i = 0; i < o.sig.arity(); ++i)
      mpfr_set_d(given.v[i], value_of(o.sig.arguments[i], inputs[n][i]), MPFR_RNDN);
    r.value(exact.v, given.v);
    const auto verdict = judge(lane::f64, exact.v, got);
    found.add(verdict.error, inputs[n], verdict.correct);
    if (n % checked == 0 && std::fabs(mpfr_get_ld(exact.v, MPFR_RNDN) - value) > std::fabs(value) * (margin / 2))
      throw std::runtime_error(fmt::format("the stand-in for {} is off at {}", o.name(), text_of(o, inputs[n])));
  }
  mpfr_free_cache2(MPFR_FREE_LOCAL_CACHE);
  return found;
}

tally climb(const operation& o, const reference& r, const harness::function& f, int width, const arguments& from,
            std::size_t count, std::uint64_t seed) {
  constexpr std::size_t rounds = 20;
  std::mt19937_64 random(seed);
  tally best = measure_at(o, r, f, width, from);
  for (std::size_t round = 0; round < rounds; ++round) {
    std::vector<arguments> around(count / rounds + 1, best.input);
    for (auto& tuple : around)
      for (int i = 0; i < o.sig.arity(); ++i) {
        const lane type = o.sig.arguments[i];
        const auto distance = std::int64_t(random()) >> (63 - random() % (8 * size_of(type) - 12));
        tuple[i] = is_floating(type) ? unordered(type, ordered(type, tuple[i]) + distance)
                                     : std::uint32_t(tuple[i] + std::uint64_t(distance));
      }
    best.merge(measure(o, r, f, width, around));
  }
  return best;
}

tally measure_all_floats(const reference& r, const harness::function& f, int width,
                         const std::function<void(double)>& progress) {
  constexpr std::uint64_t block_lanes = 1 << 14, blocks = (std::uint64_t(1) << 32) / block_lanes;
  std::atomic<std::uint64_t> next = 0;

  return on_all_cores([&](unsigned part) {
    tally found;
    std::vector<std::uint32_t> patterns(block_lanes);
    std::vector<float> results(block_lanes);
    big exact;
    big_arguments given;
    const auto judge_exactly = [&](std::uint32_t pattern, float got) {
      mpfr_set_flt(given.v[0], std::bit_cast<float>(pattern), MPFR_RNDN);
      r.value(exact.v, given.v);
      return judge(lane::f32, exact.v, got);
    };
    // The last lanes whose error was larger than any before, for the exact check.
    std::vector<std::pair<std::uint32_t, float>> worst(64);
    std::size_t records = 0;
    const auto add = [&](std::uint32_t pattern, float got) {
      const auto note = [&](double error, bool correct) {
        if (error > found.largest_error) worst[records++ % worst.size()] = {pattern, got};
        found.add(error, {pattern}, correct);
      };
      const double near = r.fast(std::bit_cast<float>(pattern));
      if (std::isnan(near) && std::isnan(got)) return note(0, true);
      const float nearest = float(near * (1 - 0x1p-48));
      // The fast value is enough if it decides the rounding.
      if (nearest == float(near * (1 + 0x1p-48))) {
        if (std::isinf(nearest) && got == nearest) return note(0, true);
        if (std::isfinite(nearest) && std::isfinite(got)) {
          const int exponent = int(std::bit_cast<std::uint64_t>(near) >> 52 & 0x7FF) - 1023;
          const int last_bit = std::max(exponent - 23, -149);
          return note(std::fabs(got - near) * std::bit_cast<double>(std::uint64_t(1023 - last_bit) << 52),
                      got == nearest);
        }
      }
      const auto verdict = judge_exactly(pattern, got);
      note(verdict.error, verdict.correct);
    };

    auto last_told = std::chrono::steady_clock::now();
    for (std::uint64_t n; (n = next++) < blocks;) {
      const auto first = std::uint32_t(n * block_lanes);
      std::iota(patterns.begin(), patterns.end(), first);
      const void* from = patterns.data();
      f.call(&from, results.data(), nullptr, block_lanes);
      for (std::uint32_t i = 0; i < block_lanes; ++i)
        if (width != 3 || i % 4 != 3) add(first + i, results[i]);
      using namespace std::chrono_literals;
      if (part == 0 && std::chrono::steady_clock::now() - last_told > 200ms) {
        last_told = std::chrono::steady_clock::now();
        progress(double(n) / double(blocks));
      }
    }
    found.largest_error = -1;
    for (std::size_t n = 0; n < std::min(records, worst.size()); ++n) {
      const auto [pattern, got] = worst[n];
      const double error = judge_exactly(pattern, got).error;
      if (error > found.largest_error) {
        found.largest_error = error;
        found.input = {pattern};
      }
    }
    mpfr_free_cache2(MPFR_FREE_LOCAL_CACHE);
    return found;
  });
}

}  // namespace lanemath::accuracy
