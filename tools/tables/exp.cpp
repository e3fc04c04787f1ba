// Tables of the exponentials, each entry exact and rounded once.
#include <bit>
#include <cmath>
#include <cstdint>
#include <set>

#include "table_writer.h"

namespace {

// 2^(j/steps)
real power_of_two(int j, int steps) {
  real x = real(j) / real(steps), y;
  mpfr_exp2(y.v, x.v, MPFR_RNDN);
  return y;
}

// The mantissa field of a number in [1, 2), the exponent field empty: made to be joined with an exponent.
float mantissa(float v) { return std::bit_cast<float>(std::bit_cast<std::uint32_t>(v) & 0x007FFFFF); }
double mantissa(double v) { return std::bit_cast<double>(std::bit_cast<std::uint64_t>(v) & 0x000FFFFFFFFFFFFF); }

// 2^(j/steps) in two parts: the mantissa field cut to its top 11 bits, and the rest.
template <class T>
std::pair<T, T> cut_in_two(int j, int steps) {
  const real exact = power_of_two(j, steps);
  real cut, scale(2048);
  mpfr_floor(cut.v, (exact * scale).v);
  cut = cut / scale;
  return {mantissa(cut.nearest<T>()), (exact - cut).nearest<T>()};
}

}  // namespace

void write_exp_tables(table_writer& out) {
  out.pairs<float>("exp2_128", "2^(j/128): the nearest float, and what is left as a float", 128, [](int j) {
    const real exact = power_of_two(j, 128);
    const float hi = exact.nearest<float>();
    return std::pair(hi, (exact - real(hi)).nearest<float>());
  });

  out.pairs<double>("exp2_64", "2^(j/64): the nearest double, and what is left relative to it", 64, [](int j) {
    const real exact = power_of_two(j, 64);
    const double hi = exact.nearest<double>();
    return std::pair(hi, ((exact - real(hi)) / real(hi)).nearest<double>());
  });

  out.values<double>("exp2_256", "2^(j/256)", 256, [](int j) { return power_of_two(j, 256).nearest<double>(); });

  // Seven entries are one unit below the nearest float: they were chosen together with the monic polynomial that they
  // multiply.
  const std::set<int> lowered{12, 20, 29, 30, 52, 58, 60};
  out.pairs<float>("exp2_monic_64", "(ln 2)^2 / 2 * 2^(j/64), at a stride of two floats", 64, [&](int j) {
    real ln2;
    mpfr_const_log2(ln2.v, MPFR_RNDN);
    const float nearest = (ln2 * ln2 / real(2) * power_of_two(j, 64)).nearest<float>();
    return std::pair(lowered.contains(j) ? std::nextafter(nearest, 0.0f) : nearest, 0.0f);
  });

  out.values<double>("exp2_1024", "2^(j/1024)", 1024, [](int j) { return power_of_two(j, 1024).nearest<double>(); });
  out.values<double>("exp2_128_double", "2^(j/128)", 128, [](int j) { return power_of_two(j, 128).nearest<double>(); });

  out.values<double>("exp2_64_mantissas", "The mantissa field of 2^(j/64)", 64,
                     [](int j) { return mantissa(power_of_two(j, 64).nearest<double>()); });
  out.pairs<float>("expm1f_64", "2^(j/64): the mantissa field cut to 11 bits, and what is left", 64,
                   [](int j) { return cut_in_two<float>(j, 64); });
  out.values<float>("expm1f_native_32", "The mantissa field of 2^(j/32)", 32,
                    [](int j) { return mantissa(power_of_two(j, 32).nearest<float>()); });
  out.pairs<double>("expm1_128", "2^(j/128): the mantissa field cut to 11 bits, and what is left", 128,
                    [](int j) { return cut_in_two<double>(j, 128); });
  out.values<double>("expm1_native_128", "The mantissa field of 2^(j/128)", 128,
                     [](int j) { return mantissa(power_of_two(j, 128).nearest<double>()); });
}
