#include "accuracy/shares.h"

#include <fmt/format.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <future>
#include <stdexcept>

namespace lanemath::accuracy {
namespace {

constexpr double largest_sinh = 710.4758600739439, largest_exp = 709.782712893384;

double even(std::mt19937_64& random, double low, double high) {
  return std::uniform_real_distribution<double>(low, high)(random);
}
bool one_in(int n, std::mt19937_64& random) { return random() % n == 0; }
double either_sign(double x, std::mt19937_64& random) { return one_in(2, random) ? -x : x; }
// A magnitude with any exponent between these.
double any_size(double least_exponent, double greatest_exponent, std::mt19937_64& random) {
  return std::exp2(even(random, least_exponent, greatest_exponent));
}

arguments lane_of(double x) { return {std::bit_cast<std::uint64_t>(x)}; }
arguments lane_of(double x, double y) { return {std::bit_cast<std::uint64_t>(x), std::bit_cast<std::uint64_t>(y)}; }
arguments lane_of(double x, std::int32_t n) { return {std::bit_cast<std::uint64_t>(x), std::uint32_t(n)}; }
double real(const arguments& at, int i = 0) { return std::bit_cast<double>(at[i]); }
std::int32_t whole(const arguments& at) { return std::int32_t(at[1]); }

// Powers are drawn by the exponent of their result: any down to the least denormal, or beyond 2^1000 and 2^-1000.
double any_result(std::mt19937_64& random) { return even(random, -1075.5, 1024); }
double extreme_result(std::mt19937_64& random) {
  return one_in(2, random) ? even(random, 1000.1, 1024) : even(random, -1075.5, -1000.1);
}
double denormal(std::mt19937_64& random) { return any_size(-1074, -1022, random); }
std::int32_t any_integer(std::mt19937_64& random) {
  return std::int32_t(either_sign(std::floor(any_size(0, 31, random)), random));
}

// A quarter each: denormal bases, bases near 1, and normal ones twice.
arguments positive_power(std::mt19937_64& random) {
  if (one_in(4, random)) {
    const double x = denormal(random);
    return lane_of(x, any_result(random) / std::log2(x));
  }
  const double x =
      one_in(3, random) ? 1 + either_sign(any_size(-52, -1, random), random) : any_size(-1022, 1023.9, random);
  return lane_of(x, double(extreme_result(random) / std::log2l(x)));
}
// A base whose power with an exponent of any size has the result.
arguments integer_power(double result, double sign, std::int32_t n) {
  const double x = std::exp2(std::fmin(std::fmax(result / n, -1074), 1023.9));
  return lane_of(std::copysign(x, sign), n);
}
arguments power(std::mt19937_64& random) {
  if (!one_in(4, random)) return positive_power(random);
  const auto n = any_integer(random);
  return lane_of(real(integer_power(any_result(random), -1, n)), double(n));
}
arguments power_to_integer(std::mt19937_64& random) {
  if (one_in(16, random)) return lane_of(either_sign(denormal(random), random), one_in(2, random) ? 1 : -1);
  return integer_power(extreme_result(random), either_sign(1, random), any_integer(random));
}
arguments root(std::mt19937_64& random) {
  if (one_in(16, random))
    return lane_of(
        either_sign(one_in(2, random) ? any_size(-1022, -1000.1, random) : any_size(1000.1, 1023.9, random), random),
        one_in(2, random) ? 1 : -1);
  const auto n = any_integer(random);
  return lane_of(n % 2 ? either_sign(denormal(random), random) : denormal(random), n);
}
// A fifth each: around 0, the whole range, either side of the integers, tiny arguments, and what is left.
arguments gamma_argument(double least, double greatest, double rest, std::mt19937_64& random) {
  switch (random() % 5) {
    case 0: return lane_of(even(random, -20, 20));
    case 1: return lane_of(even(random, least, greatest));
    case 2: return lane_of(std::round(even(random, least, 20)) + either_sign(any_size(-50, -1, random), random));
    case 3: return lane_of(either_sign(any_size(-1024, 0, random), random));
    default: return lane_of(rest);
  }
}
arguments log_gamma_argument(std::mt19937_64& random) {
  const double large = one_in(2, random) ? any_size(9, 1013, random) : -any_size(4, 52, random);
  return gamma_argument(-600, 600, large, random);
}
arguments gamma_argument(std::mt19937_64& random) {
  return gamma_argument(-184, 171.6243, even(random, 16, 171.6243), random);
}

long double near_power(const arguments& at) {
  const double y = real(at, 1);
  return std::copysign(std::pow(std::fabs((long double)real(at)), (long double)y),
                       std::signbit(real(at)) && std::fmod(y, 2) != 0 ? -1.0L : 1.0L);
}
long double near_power_to_integer(const arguments& at) { return near_power(lane_of(real(at), double(whole(at)))); }
// 1 / n in two parts.
long double near_root(const arguments& at) {
  const long double x = std::fabs((long double)real(at)), n = whole(at);
  const long double high = 1 / n, low = std::fma(-n, high, 1.0L) / n;
  const long double y = std::pow(x, high);
  return std::copysign(y + y * (low * std::log(x)), (long double)real(at));
}
template <long double (*F)(long double)>
long double near(const arguments& at) {
  return F(real(at));
}
long double log_gamma(long double x) {
  int sign;
  return lgammal_r(x, &sign);
}

}  // namespace

const std::vector<road>& roads() {
  static const std::vector<road> all{
      {"pow", "rare lanes", 0, power, near_power},
      {"powr", "rare lanes", 0, positive_power, near_power},
      {"pown", "rare lanes", 0, power_to_integer, near_power_to_integer},
      {"rootn", "rare lanes", 0, root, near_root},
      {"expm1", "rare lanes", 0, [](auto& random) { return lane_of(even(random, 707.7033, largest_exp)); },
       near<expm1l>},
      {"sinh", "rare lanes", 0,
       [](auto& random) { return lane_of(either_sign(even(random, 707.701, largest_sinh), random)); }, near<sinhl>},
      {"cosh", "rare lanes", 0,
       [](auto& random) { return lane_of(either_sign(even(random, 707.701, largest_sinh), random)); }, near<coshl>},
      {"asinh", "lanes computed one by one", 2,
       [](auto& random) {
         return lane_of(either_sign(one_in(2, random) ? even(random, 0, 1) : any_size(-28, 0, random), random));
       },
       near<asinhl>},
      {"acosh", "lanes computed one by one", 2,
       [](auto& random) { return lane_of(one_in(2, random) ? even(random, 1, 1.5) : 1 + any_size(-52, -1, random)); },
       near<acoshl>},
      {"lgamma", "", 0, log_gamma_argument, near<log_gamma>},
      {"tgamma", "", 0, gamma_argument, near<tgammal>},
  };
  return all;
}

void extend(share& line, const road& r, const harness::library& library, std::uint64_t lanes, unsigned threads,
            const std::function<void()>& save) {
  constexpr std::uint64_t block = share::block;
  const auto& o = catalogue[line.index];
  const int width = r.width ? r.width : widths.back();
  const auto f = library.find(line.index, variant::standard, width);
  if (!f) throw std::runtime_error(fmt::format("{} is not exported by this library", o.name()));
  while (line.lanes < lanes) {
    std::vector<std::future<tally>> parts;
    for (unsigned part = 0; part < threads && line.lanes + part * block < lanes; ++part)
      parts.push_back(std::async(std::launch::async, [&, seed = line.lanes / block + part] {
        std::mt19937_64 random(seed);
        std::vector<arguments> inputs(block);
        for (auto& each : inputs) each = r.draw(random);
        return measure_by_stand_in(o, *find_reference(o), *f, width, inputs, r.near);
      }));
    for (auto& part : parts) {
      const auto found = part.get();
      line.lanes += found.lanes;
      line.rounded += found.correctly_rounded;
      if (const double error = rounded_up(found.largest_error, 6); error > line.error) {
        line.error = error;
        line.at = found.input;
      }
    }
    save();
  }
}

}  // namespace lanemath::accuracy
