// Arithmetic with the 64-bit significand of the x87 registers, which the gamma functions use lane by lane.
#pragma once

#include <cstring>
#include <iterator>

#include "numeric/constants.h"
#include "numeric/polynomial.h"
#include "numeric/x87.h"

namespace lanemath::special {

using extended = long double;
static_assert(std::numeric_limits<extended>::digits == 64);

// A double in an x87 register, from which it is rounded in the direction of the x87 control word. A compiler that saw
// this conversion beside one to float would make one of both, which follows MXCSR.
inline extended in_x87(double v) {
  extended wide = v;
  asm("" : "+t"(wide));
  return wide;
}

// A constant of the x87 format as two doubles whose sum it is. At full precision the sum is exact in every direction,
// and two such loads take a quarter of the time of one of 80 bits.
struct two_doubles {
  double hi, lo;
  constexpr two_doubles(extended c = 0) : hi(double(c)), lo(double(c - hi)) {}
  operator extended() const {
    extended sum;
    asm("fldl %1\n\tfaddl %2" : "=t"(sum) : "m"(hi), "m"(lo));
    return sum;
  }
};

// scale times a product of factors x^2 + a x + b, which keeps a polynomial of high degree as accurate as its factors.
template <class C, int Factors>
struct quadratics {
  C scale;
  C a[Factors], b[Factors];
};

template <class C, int Factors, class X>
LANEMATH_INLINE X product_at(const quadratics<C, Factors>& c, X x) {
  const X s = x * x;
  X product = c.scale;
  for (int i = 0; i < Factors; ++i) product = product * (s + c.a[i] * x + c.b[i]);
  return product;
}

// A polynomial, highest power first, as its even part plus x times its odd part: two independent chains.
template <class C, std::size_t Size, class X>
X even_and_odd(const C (&c)[Size], X x) {
  const X s = x * x;
  X with_last = c[(Size - 1) % 2], other = c[Size % 2];
  for (std::size_t i = 2 + (Size - 1) % 2; i < Size; i += 2) with_last = with_last * s + c[i];
  for (std::size_t i = 2 + Size % 2; i < Size; i += 2) other = other * s + c[i];
  return with_last + x * other;
}

// The x87 precision control at the full 64 bits.
inline constexpr std::uint16_t full_precision = 0x300;
inline bool is_at_full_precision() { return (x87_control_word() & full_precision) == full_precision; }

// Runs a routine with it, and restores the control word. Callers who have another pay for that, the others for a jump.
template <auto Routine, class... Pointers>
[[gnu::noinline, gnu::cold]] status with_full_precision_set(Pointers... lanes_of) {
  const std::uint16_t found = x87_control_word();
  set_x87_control_word(found | full_precision);
  const auto status = Routine(lanes_of...);
  set_x87_control_word(found);
  return status;
}
template <auto Routine, class... Pointers>
LANEMATH_INLINE status at_full_precision(Pointers... lanes_of) {
  if (!is_at_full_precision()) [[unlikely]]
    return with_full_precision_set<Routine>(lanes_of...);
  return Routine(lanes_of...);
}

// The nearest integer for |x| below 2^22 or 2^51, by a rounding constant in the lane's own precision.
template <class T>
T nearest_integer(T x) {
  const T shifted = x + integer_shifter<T>;
  return shifted - integer_shifter<T>;
}

}  // namespace lanemath::special
