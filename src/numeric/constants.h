// Constants that several families need in both precisions.
#pragma once

#include "frame/lanes.h"

namespace lanemath {

template <class T>
inline constexpr T pi = 0x40490FDB_f32;
template <>
inline constexpr double pi<double> = 0x400921FB54442D18_f64;
template <class T>
inline constexpr T half_pi = 0x3FC90FDB_f32;
template <>
inline constexpr double half_pi<double> = 0x3FF921FB54442D18_f64;
template <class T>
inline constexpr T inverse_pi = 0x3EA2F983_f32;
template <>
inline constexpr double inverse_pi<double> = 0x3FD45F306DC9C883_f64;

// 1.5 * 2^23 or 1.5 * 2^52: adding it rounds a number to an integer, which then stands in the low bits of the sum.
template <class T>
inline constexpr T integer_shifter = 0x1.8p23f;
template <>
inline constexpr double integer_shifter<double> = 0x1.8p52;

}  // namespace lanemath
