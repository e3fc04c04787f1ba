// Every form of an operation over every float.
#include <fmt/format.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <limits>
#include <numeric>
#include <set>

#include "accuracy/exact.h"

namespace lanemath::accuracy {
namespace {

constexpr std::size_t block = 1 << 14;
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double margin = 0x1p-44;  // of the stand-in, which should be twice as good
constexpr double doubt = 0x1p-20;   // what that is in ulp

// A run of results, judged by the stand-in. The lanes that it leaves open count neither in `largest` nor in `rounded`.
struct verdicts {
  std::array<double, block> error;  // ulp
  std::array<std::uint8_t, block> open, same;
  std::size_t lanes, rounded, open_lanes;
  double largest;

  void leave_out(std::size_t lane) {
    error[lane] = open[lane] = same[lane] = 0;
    --lanes;
  }
  void sum_up(std::size_t of) {
    std::array<double, 8> each{};
    for (std::size_t i = 0; i < of; ++i) each[i % 8] = std::max(each[i % 8], error[i]);
    largest = *std::ranges::max_element(each);
    rounded = open_lanes = 0;
    for (std::size_t i = 0; i < of; ++i) {
      rounded += same[i];
      open_lanes += open[i];
    }
  }
};

void judge_run(const double* near, const std::uint32_t* got, std::size_t lanes, verdicts& v) {
  for (std::size_t i = 0; i < lanes; ++i) {
    // A value next to a power of two counts as one.
    const double value = near[i], size = std::max(0x1p-126, std::fabs(value * (1 + margin)));
    const float result = std::bit_cast<float>(got[i]), low = float(value * (1 - margin)),
                high = float(value * (1 + margin));
    // 1 / the last place.
    const double scale = std::bit_cast<double>((2069ull << 52) - (std::bit_cast<std::uint64_t>(size) & 0x7FFull << 52));
    // No branches, so that this is done in vectors.
    const int decided = low == high;
    const int finite = decided & int(std::fabs(low) < infinity) & int(std::fabs(result) < infinity);
    v.same[i] = (decided & int(result == low)) | (int(value != value) & int(result != result));
    v.open[i] = !(finite | v.same[i]);
    v.error[i] = finite ? std::fabs(result - value) * scale : 0;
  }
  v.lanes = lanes;
}

class sweeper {
 public:
  sweeper(const operation& o, const reference& r, std::span<const form> forms)
      : o_(o), r_(r), forms_(forms), found_(forms.size()), results_(forms.size()) {
    for (auto& each : results_)
      each = {std::vector<std::uint32_t>(padded_block), std::vector<std::uint32_t>(padded_block)};
    for (const auto& part : r.single_parts)
      for (float bound : {part.above, part.most})
        for (auto with : {0u, sign}) cuts_.insert((std::bit_cast<std::uint32_t>(bound) + 1) | with);
  }

  // A block of positive floats, and the same with the other sign.
  void add_blocks(std::uint64_t number) {
    const auto first = std::uint32_t(number * block);
    for (int k = 0; k <= has_second(); ++k) stand_in(k, first);
    add_block(first);
    for (int k = 0; k <= has_second(); ++k) {
      const auto symmetry = has_second() ? r_.symmetry[std::size_t(k)] : o_.symmetry;
      if (symmetry == parity::none) stand_in(k, first | sign);
      if (symmetry == parity::odd)
        for (auto& each : near_[k]) each = -each;
    }
    add_block(first | sign);
  }

  std::vector<finding> found() const { return found_; }

 private:
  static constexpr std::size_t padded_block = (block + 2) / 3 * 4;
  static constexpr std::uint32_t sign = 0x8000'0000;

  bool has_second() const { return r_.second; }

  void stand_in(int result, std::uint32_t first) {
    const auto near = result ? r_.fast_second : r_.fast;
    for (std::uint32_t i = 0; i < block; ++i) near_[result][i] = near(std::bit_cast<float>(first + i));
  }

  void add_block(std::uint32_t first) {
    std::iota(patterns_.begin(), patterns_.end(), first);
    const auto exponent = first >> 23 & 0xFF;
    std::vector<std::size_t> measured;
    for (std::size_t k = 0; k < forms_.size(); ++k)
      if (!forms_[k].unguarded || (exponent != 0 && exponent != 0xFF)) {
        evaluate(forms_[k], results_[k]);
        measured.push_back(k);
      }
    const std::size_t sampled = first / block * 10007 % block;
    for (int result = 0; result <= has_second(); ++result) {
      check(patterns_[sampled], result);
      for (const std::size_t k : measured) judge_sample(k, result, sampled);
    }
    std::size_t from = 0;
    for (auto cut = cuts_.upper_bound(first); from < block; ++cut) {
      const std::size_t to = cut == cuts_.end() ? block : std::min<std::size_t>(*cut - first, block);
      for (int result = 0; result <= has_second(); ++result) add_run(measured, result, from, to);
      from = to;
      if (cut == cuts_.end()) break;
    }
  }

  // At width 3 every fourth lane is not a result.
  void evaluate(const form& each, std::array<std::vector<std::uint32_t>, 2>& results) {
    if (each.width != 3) {
      const void* from = patterns_.data();
      return each.f.call(&from, results[0].data(), results[1].data(), block);
    }
    std::vector<std::uint32_t> spread(padded_block);
    for (std::size_t i = 0; i < block; ++i) spread[i / 3 * 4 + i % 3] = patterns_[i];
    const void* from = spread.data();
    each.f.call(&from, results[0].data(), results[1].data(), padded_block);
    for (auto& of : results)
      for (std::size_t i = 0; i < block; ++i) of[i] = of[i / 3 * 4 + i % 3];
  }

  void value_at(std::uint32_t pattern, int result) {
    mpfr_set_flt(given_.v[0], std::bit_cast<float>(pattern), MPFR_RNDN);
    (result ? r_.second : r_.value)(exact_.v, given_.v);
  }

  // Whether the stand-in is twice as good as it has to be. Beyond all floats its side is enough.
  void check(std::uint32_t pattern, int result) {
    value_at(pattern, result);
    const double near = near_[result][pattern % block], exact = mpfr_get_d(exact_.v, MPFR_RNDN);
    mpfr_sub_d(difference_.v, exact_.v, near, MPFR_RNDN);
    if (std::isnan(near)            ? std::isnan(exact)
        : std::fabs(near) > 0x1p200 ? std::copysign(exact, exact * near) > 0x1p199
        : std::fabs(near) < 0x1p-200
            ? std::fabs(exact) < 0x1p-199
            : std::fabs(mpfr_get_d(difference_.v, MPFR_RNDN)) <= std::fabs(near) * (margin / 2))
      return;
    throw std::runtime_error(fmt::format("the stand-in for {} is off at {}", o_.name(), text_of(lane::f32, pattern)));
  }

  // Long runs of values just below a power of two, such as 1, have errors that only MPFR sees.
  void judge_sample(std::size_t form, int result, std::size_t lane_of_block) {
    const std::uint32_t pattern = patterns_[lane_of_block];
    const float x = std::bit_cast<float>(pattern);
    if (r_.left_out && r_.left_out(lane::f32, x)) return;
    const double error = judge(lane::f32, exact_.v, std::bit_cast<float>(results_[form][result][lane_of_block])).error;
    found_[form].all.merge({.largest_error = error, .input = {pattern}});
    found_[form].add_to_curve(x, error);
  }

  // Forms whose bits are the same are judged once.
  void add_run(const std::vector<std::size_t>& measured, int result, std::size_t from, std::size_t to) {
    std::vector<const verdicts*> judged(forms_.size());
    for (const std::size_t k : measured) {
      const auto* got = results_[k][result].data();
      for (const std::size_t other : measured)
        if (other < k && std::equal(got + from, got + to, results_[other][result].data() + from)) {
          judged[k] = judged[other];
          break;
        }
      if (!judged[k]) {
        auto& v = verdicts_.at(k);
        judge_run(&near_[result][from], got + from, to - from, v);
        if (r_.left_out)
          for (std::size_t i = from; i < to; ++i)
            if (r_.left_out(lane::f32, std::bit_cast<float>(patterns_[i]))) v.leave_out(i - from);
        v.sum_up(to - from);
        judged[k] = &v;
      }
      const double largest = settle(found_[k].all, *judged[k], k, result, from, to);
      found_[k].add_to_curve(std::bit_cast<float>(patterns_[to - 1]), largest);
      const float magnitude = std::fabs(std::bit_cast<float>(patterns_[from]));
      for (const auto& part : r_.single_parts)
        if (magnitude > part.above && magnitude <= part.most)
          settle(found_[k].parts[std::string(part.name)], *judged[k], k, result, from, to);
    }
  }

  // Adds the run to a tally, whose largest error is exact if it is above a quarter. The largest of the run.
  double settle(tally& into, const verdicts& v, std::size_t form, int result, std::size_t from, std::size_t to) {
    into.lanes += v.lanes;
    into.correctly_rounded += v.rounded;
    double largest = v.largest;
    const auto add = [&](double error, std::size_t i) {
      into.merge({.largest_error = error, .input = {patterns_[from + i]}});
    };
    const bool may_be_worst = v.largest > std::max(into.largest_error, 0.25) - doubt;
    if (may_be_worst || v.open_lanes) {
      for (std::size_t i = 0; i < to - from; ++i) {
        if (!v.open[i] && !(may_be_worst && v.error[i] >= v.largest - 2 * doubt)) continue;
        value_at(patterns_[from + i], result);
        const auto verdict = judge(lane::f32, exact_.v, std::bit_cast<float>(results_[form][result][from + i]));
        add(verdict.error, i);
        if (!v.open[i]) continue;
        into.correctly_rounded += verdict.correct;
        largest = std::max(largest, verdict.error);
      }
    }
    if (!may_be_worst && v.largest > into.largest_error)
      add(v.largest, std::size_t(std::find(v.error.begin(), v.error.end(), v.largest) - v.error.begin()));
    return largest;
  }

  const operation& o_;
  const reference& r_;
  std::span<const form> forms_;
  std::vector<finding> found_;
  std::vector<std::array<std::vector<std::uint32_t>, 2>> results_;
  std::vector<verdicts> verdicts_{forms_.size()};
  std::set<std::uint32_t> cuts_;  // no run contains both sides of one
  std::vector<std::uint32_t> patterns_ = std::vector<std::uint32_t>(block);
  std::array<std::vector<double>, 2> near_{std::vector<double>(block), std::vector<double>(block)};
  big exact_, difference_;
  big_arguments given_;
};

}  // namespace

bool can_sweep(const operation& o, const reference& r) {
  return o.sig.arity() == 1 && o.sig.arguments[0] == lane::f32 && r.fast && (!r.second || r.fast_second);
}

std::string_view swept_inputs(const operation& o, variant v) {
  if (o.is_unguarded(v)) return "all inputs but zeros and denormals and infinity";
  return find_reference(o)->left_out ? "all inputs but every fourth integer below -2^22" : "all inputs";
}

std::vector<finding> sweep(const operation& o, const reference& r, std::span<const form> forms, portion which,
                           unsigned threads, const std::function<void(double)>& progress) {
  const std::uint64_t all = (std::uint64_t(1) << 31) / block, blocks = (all - which.number + which.of - 1) / which.of;
  std::atomic<std::uint64_t> next = 0;
  return on_threads(threads, [&](unsigned thread) {
    const mpfr_cache cache;
    sweeper mine(o, r, forms);
    auto last_told = std::chrono::steady_clock::now();
    for (std::uint64_t n; (n = next++) < blocks;) {
      // In an order that comes early to places of every size: it is the large errors that save work.
      mine.add_blocks((n * which.of + which.number) * 40503 % all);
      using namespace std::chrono_literals;
      if (thread == 0 && std::chrono::steady_clock::now() - last_told > 200ms) {
        last_told = std::chrono::steady_clock::now();
        progress(double(n) / double(blocks));
      }
    }
    return mine.found();
  });
}

}  // namespace lanemath::accuracy
