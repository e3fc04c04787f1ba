#include "compare/inputs.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <numbers>

namespace lanemath::compare {
namespace {

// The bits that a lane has room for.
std::uint64_t cut(lane l, std::uint64_t bits) { return size_of(l) == 4 ? std::uint32_t(bits) : bits; }

// Where functions turn: ends of domains and ranges, overflow and underflow, changes of method.
constexpr double turns[] = {0.1,
                            0.25,
                            0.5,
                            0.75,
                            1.0,
                            1.5,
                            2.0,
                            2.5,
                            3.0,
                            3.5,
                            4.0,
                            5.0,
                            6.0,
                            7.0,
                            8.0,
                            9.2,
                            10.0,
                            16.0,
                            26.6,
                            27.3,
                            32.0,
                            33.0,
                            35.04,
                            37.93,
                            38.5,
                            44.85,
                            64.0,
                            87.33655,
                            88.72284,
                            89.41599,
                            100.0,
                            103.972,
                            126.0,
                            127.0,
                            128.0,
                            149.0,
                            150.0,
                            170.0,
                            171.6243,
                            307.6527,
                            308.2547,
                            323.3,
                            708.396,
                            709.7,
                            709.782712893384,
                            710.4758600739439,
                            745.1332191019412,
                            1022.0,
                            1023.0,
                            1024.0,
                            1074.0,
                            1075.0};
constexpr int exponents[] = {-149, -127, -126, -100, -64, -53, -27, -24, -12, -5, 10, 12, 22,
                             23,   24,   27,   30,   31,  32,  51,  52,  53,  62, 63, 64, 100};
constexpr double multiples_of_quarter_pi[] = {1, 2, 3, 4, 5, 6, 8, 16, 1000, 1048576};

template <class T>
std::vector<std::uint64_t> special_numbers() {
  using limits = std::numeric_limits<T>;
  using bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
  constexpr bits infinity = std::bit_cast<bits>(limits::infinity()), quiet = bits(1) << (limits::digits - 2);
  std::vector<std::uint64_t> all{0, 1, 2, quiet / 2, infinity, infinity | 1, infinity | 0x123, infinity | (quiet - 1)};
  for (bits payload : {bits(0), bits(1), bits(0x1234), bits(quiet - 1)}) all.push_back(infinity | quiet | payload);
  const auto add = [&](double value) { all.push_back(std::bit_cast<bits>(T(value))); };
  for (double value : turns) add(value);
  for (int exponent : exponents) add(std::ldexp(1.0, exponent));
  for (double n : multiples_of_quarter_pi) add(n * std::numbers::pi / 4);
  for (T value : {limits::min(), limits::max(), limits::max() / 2, std::sqrt(limits::max()), std::sqrt(limits::min())})
    add(value);
  return all;
}

std::vector<std::uint64_t> special_integers() {
  std::vector<std::uint64_t> all{0,  3,  5,  6,   7,   9,   10,  23,   25,   31,  33,
                                 52, 54, 63, 100, 126, 149, 150, 1022, 1023, 1075};
  for (int exponent : {0, 1, 2, 3, 6, 7, 10, 16, 23, 24, 25, 30, 31, 32, 52, 53, 54, 62, 63})
    for (std::uint64_t step : {-1, 0, 1}) all.push_back((std::uint64_t(1) << exponent) + step);
  return all;
}

// What is special about a type, of both signs.
std::vector<std::uint64_t> specials(lane l) {
  auto all = l == lane::f32   ? special_numbers<float>()
             : l == lane::f64 ? special_numbers<double>()
                              : special_integers();
  const std::uint64_t sign = std::uint64_t(1) << (8 * size_of(l) - 1);
  for (std::size_t i = 0, positive = all.size(); i < positive; ++i)
    all.push_back(is_floating(l) ? all[i] | sign : -all[i]);
  for (auto& each : all) each = cut(l, each);
  std::sort(all.begin(), all.end());
  all.erase(std::unique(all.begin(), all.end()), all.end());
  return all;
}

std::uint64_t pick(const std::vector<std::uint64_t>& from, std::mt19937_64& random) {
  return from[random() % from.size()];
}

// Values of like size, and maybe of one sign, so that whole vectors of them stay on a function's straight path.
class ordinary {
 public:
  ordinary(lane l, std::mt19937_64& random) : lane_(l), size_(random() % (8 * size_of(l))) {
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

}  // namespace

std::vector<arguments> fixed_inputs(const signature& s) {
  std::vector<arguments> all;
  const auto first = specials(s.arguments[0]);
  switch (s.arity()) {
    case 1:
      for (auto x : first)
        for (std::uint64_t step : {-2, -1, 0, 1, 2}) all.push_back({cut(s.arguments[0], x + step)});
      break;
    case 2:
      for (auto x : first)
        for (auto y : specials(s.arguments[1])) all.push_back({x, y});
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
  std::array<std::vector<std::uint64_t>, 3> special;
  for (int i = 0; i < arity; ++i) special[i] = specials(s.arguments[i]);

  std::vector<arguments> all(count);
  for (std::size_t from = 0; from < count; from += block) {
    const std::size_t to = std::min(count, from + block);
    const auto kind = random() % 4;
    for (int i = 0; i < arity; ++i) {
      const ordinary usual(s.arguments[i], random);
      for (std::size_t n = from; n < to; ++n)
        all[n][i] = kind == 0 ? cut(s.arguments[i], random()) : usual.draw(random);
    }
    if (kind < 2) continue;
    for (std::size_t sixteen = from; sixteen + 16 <= to; sixteen += 16) {
      const int i = random() % arity;
      all[sixteen + random() % 16][i] = random() % 4 ? pick(special[i], random) : cut(s.arguments[i], random());
    }
  }
  return all;
}

}  // namespace lanemath::compare
