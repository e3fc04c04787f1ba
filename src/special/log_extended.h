// The natural logarithm in x87 precision, for the gamma functions.
#pragma once

#include "tables/gamma.h"

namespace lanemath::special {

// For positive normal numbers of the x87 format; the relative error is below 2^-63.
//
// Near 1, a polynomial in x - 1, whose second term is split so that its square is exact. Elsewhere x = 2^k m, and a
// table gives a reciprocal r of m, so that m r - 1 is small; the high parts of log 2 and log r are multiples of 2^-50,
// so that k times the one plus the other is exact.
[[gnu::noinline]] inline extended log_extended(const extended& x) {
  struct {
    std::uint64_t significand;
    std::uint16_t exponent;
  } pattern;
  std::memcpy(&pattern, &x, 10);

  const extended from_1 = x - 1.0L;
  if (from_1 > -0x1p-6L && from_1 < 0x1.04p-6L) {
    const extended f = from_1;
    if (f == 0.0L) return 0.0L;
    constexpr extended splitter = 0x1p32L;
    const extended shifted = f + splitter;
    const extended high = shifted - splitter;
    const extended low = f - high;
    const extended rest = f * f * f * even_and_odd(log_at_1, f) - 0.5L * low * (f + high);
    const extended half_square = 0.5L * high * high;
    const extended sum = f - half_square;
    return sum + (((f - sum) - half_square) + rest);
  }

  const auto k = extended(std::int32_t(pattern.exponent & 0x7FFF) - 0x3FFF);
  const auto j = pattern.significand >> 55 & 0xFF;
  const extended r = log_reciprocals[j];
  // The products of both halves with r are exact, and so is the difference from 1.
  const auto top = extended(std::int64_t(pattern.significand >> 32)) * 0x1p-31L;
  const auto bottom = extended(std::int64_t(pattern.significand & 0xFFFFFFFF)) * 0x1p-63L;
  const extended f = (top * r - 1.0L) + bottom * r;
  const auto& value = log_values[j];
  const extended rest = f * f * (f * even_and_odd(log_after_table, f) - 0.5L);
  return (k * log_2[0].hi + value.hi) + (f + (rest + (value.lo + k * log_2[0].lo)));
}

}  // namespace lanemath::special
