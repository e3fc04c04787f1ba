#include "inputs.h"

#include <algorithm>
#include <bit>

#include "harness/inputs.h"

namespace lanemath::compare {
namespace {

using harness::turning_points;

// The bits that a lane has room for.
std::uint64_t cut(lane l, std::uint64_t bits) { return size_of(l) == 4 ? std::uint32_t(bits) : bits; }

std::uint64_t pick(const std::vector<std::uint64_t>& from, std::mt19937_64& random) {
  return from[random() % from.size()];
}

// Values of similar size, sometimes of one sign, so that whole vectors of them stay on a function's straight path.
class ordinary {
 public:
  ordinary(lane l, std::mt19937_64& random) : lane_(l), size_(int(random() % (8 * size_of(l)))) {
    constexpr struct {
      int low, high;
    } of_exponents[] = {{-1, -1}, {-5, -1}, {0, 0}, {0, 3}, {-2, 6}, {4, 9}, {10, 40}, {-30, 30}, {-120, 120}};
    const auto& chosen = of_exponents[random() % std::size(of_exponents)];
    low_ = chosen.low;
    count_ = chosen.high - chosen.low + 1;
    const std::uint64_t sign = std::uint64_t(1) << 63;
    kept_ = (random() % 2 ? sign : 0) | (random() % 4 ? sign - 1 : std::uint64_t(0xF) << 48);
  }

  std::uint64_t draw(std::mt19937_64& random) const {
    const std::uint64_t bits = random();
    if (lane_ == lane::u32 || lane_ == lane::u64) return bits >> (63 - size_);
    if (!is_floating(lane_)) return cut(lane_, std::uint64_t(std::int64_t(bits) >> (63 - size_)));
    const std::uint64_t fraction = bits & kept_ & 0x800FFFFFFFFFFFFF;
    const std::uint64_t exponent = 1023 + low_ + random() % count_;
    const double value = std::bit_cast<double>(fraction | exponent << 52);
    return lane_ == lane::f32 ? std::bit_cast<std::uint32_t>(float(value)) : std::bit_cast<std::uint64_t>(value);
  }

 private:
  lane lane_;
  int size_;            // of an integer: bits above the lowest
  int low_, count_;     // of a number's exponents
  std::uint64_t kept_;  // of its sign and fraction
};

// A last argument near the first, or near the product of the others with its sign changed: where sums cancel.
template <class T>
std::uint64_t meeting(const arguments& a, int arity, std::mt19937_64& random) {
  using bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
  const auto value = [&](int i) { return std::bit_cast<T>(bits(a[i])); };
  return bits(std::bit_cast<bits>(arity == 2 ? value(0) : -(value(0) * value(1))) + random() % 5 - 2);
}

}  // namespace

std::vector<arguments> fixed_inputs(const signature& s) {
  std::vector<arguments> all;
  const auto& first = turning_points(s.arguments[0]);
  switch (s.arity()) {
    case 1:
      for (auto x : first)
        for (std::uint64_t step : {-2, -1, 0, 1, 2}) all.push_back({cut(s.arguments[0], x + step)});
      break;
    case 2:
      for (auto x : first)
        for (auto y : turning_points(s.arguments[1])) all.push_back({x, y});
      break;
    default:
      std::mt19937_64 random;
      for (int n = 0; n < 1 << 14; ++n) all.push_back({pick(first, random), pick(first, random), pick(first, random)});
  }
  return all;
}

std::vector<arguments> random_inputs(const signature& s, std::size_t count, std::mt19937_64& random) {
  constexpr std::size_t block = 48;  // whole vectors at every width
  const int arity = s.arity();
  std::vector<arguments> all(count);
  for (std::size_t from = 0; from < count; from += block) {
    const std::size_t to = std::min(count, from + block);
    const auto kind = random() % 4;
    for (int i = 0; i < arity; ++i) {
      const ordinary usual(s.arguments[i], random);
      for (std::size_t n = from; n < to; ++n)
        all[n][i] = kind == 0 ? cut(s.arguments[i], random()) : usual.draw(random);
    }
    if (const lane last = s.arguments[arity - 1]; kind == 1 && arity > 1 && last == s.arguments[0])
      for (std::size_t n = from; n < to; n += 2)
        if (is_floating(last))
          all[n][arity - 1] =
              last == lane::f32 ? meeting<float>(all[n], arity, random) : meeting<double>(all[n], arity, random);
    if (kind < 2) continue;
    for (std::size_t sixteen = from; sixteen + 16 <= to; sixteen += 16) {
      const int i = int(random() % arity);
      all[sixteen + random() % 16][i] =
          random() % 4 ? pick(turning_points(s.arguments[i]), random) : cut(s.arguments[i], random());
    }
  }
  return all;
}

}  // namespace lanemath::compare
