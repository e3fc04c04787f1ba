#include "accuracy/measure.h"

#include <fmt/format.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <span>
#include <stdexcept>
#include <thread>
#include <utility>

#include "accuracy/exact.h"

namespace lanemath::accuracy {
namespace {

struct format {
  int precision, least_exponent, greatest_exponent;  // of the last bit of a denormal; of the overflow bound
};
constexpr format format_of(lane l) { return l == lane::f32 ? format{24, -149, 128} : format{53, -1074, 1024}; }

std::uint64_t pattern_of(lane type, double value) {
  switch (type) {
    case lane::f32: return std::bit_cast<std::uint32_t>(float(value));
    case lane::f64: return std::bit_cast<std::uint64_t>(value);
    default: return std::uint32_t(std::int64_t(value));
  }
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
std::vector<finding> measure_here(const operation& o, const reference& r, std::span<const form> forms,
                                  std::span<const arguments> tuples) {
  std::vector<std::vector<harness::outcome>> outcomes;
  for (const auto& each : forms) outcomes.push_back(harness::evaluate(o, each.f, each.width, tuples));
  std::vector<finding> found(forms.size());
  const mpfr_cache cache;
  big exact;
  big_arguments given;
  std::vector<judgement> verdicts(forms.size());
  for (std::size_t n = 0; n < tuples.size(); ++n) {
    if (r.left_out && r.left_out(o.sig.arguments[0], value_of(o.sig.arguments[0], tuples[n][0]))) continue;
    for (int i = 0; i < o.sig.arity(); ++i)
      mpfr_set_d(given.v[i], value_of(o.sig.arguments[i], tuples[n][i]), MPFR_RNDN);
    const auto add = [&](exact_function value, lane type, auto result) {
      value(exact.v, given.v);
      const double abscissa = r.over == abscissa::argument ? value_of(o.sig.arguments[0], tuples[n][0])
                              : r.over == abscissa::result ? mpfr_get_d(exact.v, MPFR_RNDN)
                                                           : value_of(o.sig.arguments[0], tuples[n][0]) /
                                                                 value_of(o.sig.arguments[1], tuples[n][1]);
      for (std::size_t k = 0; k < forms.size(); ++k) {
        const auto got = outcomes[k][n].*result;
        const auto same = std::ranges::find(outcomes, got, [&](const auto& of) { return of[n].*result; });
        const auto first = std::size_t(same - outcomes.begin());
        verdicts[k] = first < k ? verdicts[first] : judge(type, exact.v, value_of(type, got));
        found[k].all.add(verdicts[k].error, tuples[n], verdicts[k].correct);
        found[k].add_to_curve(abscissa, verdicts[k].error);
      }
    };
    add(r.value, o.sig.result, &harness::outcome::first);
    if (r.second) add(r.second, o.sig.second, &harness::outcome::second);
  }
  return found;
}

// On several.
std::vector<finding> measure(const operation& o, const reference& r, std::span<const form> forms,
                             std::span<const arguments> tuples, unsigned threads) {
  return on_threads(threads, [&](unsigned part) {
    const std::size_t from = tuples.size() * part / threads, to = tuples.size() * (part + 1) / threads;
    return measure_here(o, r, forms, tuples.subspan(from, to - from));
  });
}

}  // namespace

unsigned cores() { return std::max(1u, std::thread::hardware_concurrency()); }

void finding::add_to_curve(double abscissa, double error) {
  const auto pattern = std::bit_cast<std::uint64_t>(abscissa);
  if (std::isfinite(abscissa)) {
    auto& cell = curve[int(pattern >> 49)];
    cell = std::max(cell, error);
  }
}
void finding::merge(const finding& other) {
  all.merge(other.all);
  for (const auto& [name, tally] : other.parts) parts[name].merge(tally);
  for (const auto& [cell, error] : other.curve) curve[cell] = std::max(curve[cell], error);
}

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
  return measure(o, r, std::array{form{f, width}}, inputs, cores())[0].all;
}

tally measure_at(const operation& o, const reference& r, const harness::function& f, int width,
                 const arguments& input) {
  return measure_here(o, r, std::array{form{f, width}}, std::vector(std::size_t(width), input))[0].all;
}

tally measure_by_stand_in(const operation& o, const reference& r, const harness::function& f, int width,
                          std::span<const arguments> inputs, long double (*near)(const arguments&)) {
  constexpr long double margin = 0x1p-59L;  // an error in it of 2^-6 ulp at most
  constexpr std::size_t checked = 256;
  const auto outcomes = harness::evaluate(o, f, width, inputs);
  tally found;
  const mpfr_cache cache;
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
  return found;
}

tally climb(const operation& o, const reference& r, const harness::function& f, int width, const arguments& from,
            std::size_t lanes_a_round, std::uint64_t seed, unsigned threads) {
  constexpr int patience = 5, most_rounds = 100;
  std::mt19937_64 random(seed);
  tally best = measure_at(o, r, f, width, from);
  for (int round = 0, last_growth = 0; round < most_rounds && round - last_growth < patience; ++round) {
    std::vector<arguments> around(lanes_a_round, best.input);
    for (auto& tuple : around)
      for (int i = 0; i < o.sig.arity(); ++i) {
        const lane type = o.sig.arguments[i];
        const auto distance = std::int64_t(random()) >> (63 - random() % (8 * size_of(type) - 12));
        tuple[i] = is_floating(type) ? unordered(type, ordered(type, tuple[i]) + distance)
                                     : std::uint32_t(tuple[i] + std::uint64_t(distance));
      }
    const auto found = measure(o, r, std::array{form{f, width}}, around, threads)[0].all;
    if (found.largest_error > best.largest_error) last_growth = round;
    best.merge(found);
  }
  return best;
}

std::vector<finding> search(const operation& o, const reference& r, std::span<const form> forms, std::size_t lanes,
                            portion which, unsigned threads) {
  std::vector<finding> found(forms.size());
  std::uint64_t seed = which.number + 1;
  const auto add = [&](const std::vector<arguments>& inputs, bool in_a_range) {
    seed += which.of;
    std::vector<form> measured;
    std::vector<finding*> of;
    for (std::size_t k = 0; k < forms.size(); ++k)
      if (in_a_range || !forms[k].unguarded) {
        measured.push_back(forms[k]);
        of.push_back(&found[k]);
      }
    const auto more = measure(o, r, measured, inputs, threads);
    for (std::size_t k = 0; k < of.size(); ++k) of[k]->merge(more[k]);
  };
  for (const auto& range : r.ranges) add(sample(o, range, lanes, seed), true);
  add(around_bounds(o, r, lanes, seed), false);
  add(sample_patterns(o, lanes, seed), false);
  if (o.sig.arity() == 1) {
    std::mt19937_64 random(seed);
    std::vector<arguments> inputs(lanes);
    for (auto& tuple : inputs) {
      const double exponent = std::uniform_real_distribution<double>(-20, 20)(random);
      tuple[0] = pattern_of(o.sig.arguments[0], std::exp2(exponent) * (random() % 2 ? 1 : -1));
    }
    add(inputs, true);
  }
  return found;
}

}  // namespace lanemath::accuracy
