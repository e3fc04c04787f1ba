// The families of operations, as the public documentation describes them.
#pragma once

#include "frame/catalogue.h"

namespace lanemath {

struct family_text {
  family group;
  std::string_view file;  // of its public header
  std::string_view title;
  std::string_view about;  // domains, units, special values, source of the method
};

inline constexpr family_text families[] = {
    {family::exponential, "exponential", "Exponentials",
     R"(Any x. The result overflows to +infinity and underflows through the denormals to +0. x = +infinity gives
+infinity, -infinity gives +0 (expm1: -1), and a zero gives 1 (expm1: the zero itself). A NaN gives a quiet NaN with
its sign and payload, but exp2f at width 4 returns a signalling NaN unchanged, and exp2 at width 2 gives one NaN for
all. Method: reduction by multiples of ln 2 / 2^k with the logarithm in two parts, in most default forms a table of
2^(j/2^k), and a short polynomial (P. T. P. Tang, ACM TOMS 15, 1989). The native forms use a shorter polynomial, and
a table only in exp and expm1; those of exp2 and exp10 are not exact at integers.)"},
    {family::logarithm, "logarithm", "Logarithms",
     R"(x >= 0 (log1p: x >= -1), NaN below. The logarithm of a zero is -infinity, that of +infinity is +infinity. A NaN
gives a quiet NaN. Method: a table of reciprocals and logarithms and a short polynomial (P. T. P. Tang, ACM TOMS 16,
1990); logf, log2f and the native forms in single precision use a longer polynomial and no table.)"},
    {family::power, "power", "Powers",
     R"(pow: any x and y, with the special values of IEEE 754. powr: x >= 0, defined as exp(y log x). pown and rootn
take an integer y. Method: logarithm in extended precision, product with y or 1 / y, exponential; the native forms do
without the extra precision.)"},
    {family::trigonometric, "trigonometric", "Trigonometric functions",
     R"(Angles in radians, or in multiples of pi for the functions that end in pi. Any finite x, however large: the
reduction keeps as many bits of 2/pi as the exponent requires (M. Payne and R. Hanek, SIGNUM 18, 1983). Infinities
give NaN; the sine and tangent of a zero keep its sign.)"},
    {family::inverse_trigonometric, "inverse_trigonometric", "Inverse trigonometric functions",
     R"(Results in radians, divided by pi for the functions that end in pi. asin and acos: -1 <= x <= 1, NaN outside.
atan2(y, x) is the angle of the point (x, y).)"},
    {family::hyperbolic, "hyperbolic", "Hyperbolic functions and their inverses",
     R"(Any x for sinh, cosh, tanh and asinh; x >= 1 for acosh and -1 <= x <= 1 for atanh, NaN outside.)"},
    {family::root, "root", "Division, reciprocals and roots",
     R"(The default forms of division, reciprocal and square root are correctly rounded. rsqrt, rsqrtf, hypot, hypotf
and the native forms of inv, invf, sqrt, sqrtf and divf start from the processor's estimates, whose low bits differ
between processor vendors. The native forms of inv, sqrt, sqrtf and hypotf test nothing: their arguments, and for
hypotf the sum of the squares, must lie well inside the range of a float, those of inv must be normal numbers below
2^1021.)"},
    {family::special, "special", "Error and gamma functions",
     R"(Any x. Gamma has poles at zero and the negative integers.)"},
    {family::manipulation, "manipulation", "Rounding, selection, decomposition, remainders, fused multiply-add",
     R"(Exact, or rounded once. rint, nearbyint, remainder and remquo follow the current rounding direction; fma
follows that of the x87 control word.)"},
    {family::conversion, "conversion", "Conversions",
     R"(Between lanes of 32 and 64 bits, floating and integer, with the rounding in the name: rte to nearest even, rtn
down, rtp up, rtz toward zero. Floating to integer: the same whatever the current rounding direction. sat clamps to
the integer type's range and gives 0 for a NaN, except with 32-bit unsigned results, where a NaN with its sign clear
gives the largest integer. Without sat, NaNs and values that do not fit give 0x80000000 or 0x8000000000000000, and
unsigned results are the magnitude of the rounded value. Integer to floating: rte follows the current direction; the
others require that it is to nearest. double to float: rte follows the current direction, the others do not.)"},
    {family::integer_division, "integer_division", "Integer division",
     R"(32-bit lanes, signed and unsigned, truncated. Nothing traps: a zero divisor gives the quotient 0x80000000
(signed) or 0 (unsigned) and the dividend as the remainder; -2147483648 / -1 gives 0x80000000 and the remainder 0.)"},
};

}  // namespace lanemath
