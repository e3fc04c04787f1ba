// The families of operations, as the public documentation tells them.
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
     R"(Any x. The result overflows to +infinity and underflows through the denormals to +0. Base to the power +infinity
is +infinity, to -infinity +0 (expm1: -1), to a zero 1 (expm1: the zero itself). A NaN gives a quiet NaN with its
sign and payload; exp2f4 alone returns a signalling NaN as it is. Method: reduction by multiples of ln 2 / 2^k
with the logarithm in two parts, a table of 2^(j/2^k) in two parts and a short polynomial (P. T. P. Tang, ACM TOMS
15, 1989). The native forms use one low-degree polynomial and no table, and exp2f_native and exp10f_native are
not exact at integers.)"},
    {family::logarithm, "logarithm", "Logarithms",
     R"(x >= 0 (log1p: x >= -1). The logarithm of a zero is -infinity, of +infinity +infinity, of a negative x a NaN. A
NaN gives a quiet NaN. Method: a table of reciprocals and logarithms in two parts and a short polynomial (P. T. P.
Tang, ACM TOMS 16, 1990).)"},
    {family::power, "power", "Powers",
     R"(pow: any x and y, with the special values of IEEE 754. powr: x >= 0, defined as exp(y log x). pown and rootn take
an integer y. Method: logarithm to base 2 in extended precision, exact product, exponential.)"},
    {family::trigonometric, "trigonometric", "Trigonometric functions",
     R"(Angles in radians, in multiples of pi for the forms that end in pi. Any finite x, however large: the reduction
keeps as many bits of 2/pi as the exponent asks for (M. Payne and R. Hanek, SIGNUM 18, 1983). Infinities give NaN,
a zero's sine and tangent keep its sign.)"},
    {family::inverse_trigonometric, "inverse_trigonometric", "Inverse trigonometric functions",
     R"(Results in radians, divided by pi for the forms that end in pi. asin and acos: -1 <= x <= 1, NaN outside. atan2(y,
x) is the angle of the point (x, y).)"},
    {family::hyperbolic, "hyperbolic", "Hyperbolic functions and their inverses",
     R"(Any x for sinh, cosh, tanh and asinh; x >= 1 for acosh and -1 <= x <= 1 for atanh, NaN outside.)"},
    {family::root, "root", "Division, reciprocals and roots",
     R"(The default forms of division, reciprocal and square root are correctly rounded. The native forms start from the
processor's estimates, whose low bits differ between makes of processor; those of division, reciprocal and square root
are nothing but such an estimate. The native forms of inv, sqrt, sqrtf and hypotf test nothing: they are for arguments,
and of hypotf for a sum of squares, well inside the range of a float, of inv for normal numbers below 2^1021.)"},
    {family::special, "special", "Error and gamma functions",
     R"(Any x. Gamma has poles at zero and the negative integers.)"},
    {family::manipulation, "manipulation", "Rounding, selection, decomposition, remainders, fused multiply-add",
     R"(Exact, or rounded once. rint, nearbyint, remainder and remquo follow the rounding direction in force; fma follows
that of the x87 control word.)"},
    {family::conversion, "conversion", "Conversions",
     R"(Between lanes of 32 and 64 bits, floating and integer, with the rounding in the name: rte to nearest even, rtn
down, rtp up, rtz toward zero. Floating to integer: the same in every rounding direction in force. sat clamps to the
integer type's range and gives 0 for a NaN, but for 32-bit unsigned results, where a NaN with its sign clear gives the
largest integer. Without sat what does not fit and NaNs give 0x80000000 or 0x8000000000000000, and unsigned results are
the rounded value's magnitude. Integer to floating: the directed forms are for the direction to nearest in force; rte
follows the direction in force. double to float: rte follows the direction in force, the others do not.)"},
    {family::integer_division, "integer_division", "Integer division",
     R"(32-bit lanes, signed and unsigned, truncated. Nothing traps: a zero divisor gives the quotient 0x80000000 (signed) or
0 (unsigned) and the dividend as remainder; -2147483648 / -1 gives 0x80000000 and the remainder 0.)"},
};

}  // namespace lanemath
