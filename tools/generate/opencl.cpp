// Which built-ins the library serves, and by which of its functions.
#include "opencl.h"

#include <fmt/format.h>

#include <algorithm>

#include "opencl_forms.h"

namespace {

using namespace lanemath;

std::string_view suffix_of(direction rounding) {
  return std::array<std::string_view, 4>{"_rte", "_rtn", "_rtp", "_rtz"}.at(std::size_t(rounding));
}

// The rounding that a conversion has in OpenCL C if its name states none.
direction usual_rounding(lane to) { return is_floating(to) ? direction::nearest : direction::zero; }

std::vector<std::string> conversion_names(const operation& o, int width) {
  const auto unrounded = fmt::format("convert_{}{}", opencl_type(o.sig.result, width), o.saturates ? "_sat" : "");
  std::vector names{unrounded + std::string(suffix_of(o.rounding))};
  if (o.rounding == usual_rounding(o.sig.result)) names.push_back(unrounded);
  return names;
}

}  // namespace

std::string opencl_type(lane l, int width) {
  return width == 1 ? std::string(type_name(l)) : fmt::format("{}{}", type_name(l), width);
}

std::vector<std::string> opencl_names(const operation& o, variant v, int width) {
  using names = std::vector<std::string>;
  if (o.group == family::conversion) return conversion_names(o, width);
  if (v == variant::standard) return o.opencl_name.empty() ? names() : names{std::string(o.opencl_name)};
  // OpenCL C has native and half forms of the same functions, in single precision.
  if (v == variant::rm || !o.single() || !o.has(variant::half)) return {};
  return {fmt::format("{}_{}", v == variant::native ? "native" : "half", o.opencl_stem)};
}

bool opencl_scalar_last(std::string_view name) { return name == "ldexp" || name == "fmax" || name == "fmin"; }

bool is_unsigned_without_saturation(const operation& o) {
  return o.group == family::conversion && is_unsigned(o.sig.result) && is_floating(o.sig.arguments[0]) && !o.saturates;
}

// What was measured to be no slower inline, and why:
// - signs, selection, fields of the format, square roots, conversions in the language's rounding: a few instructions
//   everywhere, on vectors as wide as the machine's;
// - rounding to integers, and fma: where the processor has the instruction;
// - the other conversions: with AVX, whose wide vectors make up for the runtime's detours, except double to int and
//   uint to nearest, and double to float toward zero.
// Remainders stay with the library: the runtime's are loops over bits.
bool left_to_compiler(const operation& o, variant v, const machine& on) {
  if (v != variant::standard) return false;
  const auto base = o.base_name();
  const auto is_among = [&](std::initializer_list<std::string_view> names) {
    return std::ranges::count(names, base) != 0;
  };
  if (is_among({"sqrt", "fabs", "copysign", "fdim", "fmax", "fmin", "maxmag", "minmag", "modf", "frexp", "ldexp",
                "ilogb", "logb", "nan", "nextafter"}))
    return true;
  if (is_among({"ceil", "floor", "trunc", "rint", "round", "fract"})) return on.rounds;
  if (base == "fma") return on.fuses;
  if (o.group != family::conversion) return false;

  const lane from = o.sig.arguments[0], to = o.sig.result;
  if (is_unsigned_without_saturation(o) && !on.rounds) return false;
  if (o.rounding == usual_rounding(to) || (to == lane::f64 && size_of(from) == 4)) return true;
  if (on.register_size == 16) return false;
  if (from == lane::f64 && !is_floating(to) && size_of(to) == 4) return o.rounding != direction::nearest;
  return from != lane::f64 || o.rounding != direction::zero;
}

const level& form::from() const {
  for (const auto& companion : levels)
    if (LANEMATH_LEVELS && companion.name == on.kind && op.is_at(companion, padded(width)) &&
        !op.is_standalone(width, variant))
      return companion;
  return levels[0];
}
bool form::is_filled() const { return width == 3 && !from().name.empty(); }
bool form::is_in_register(lane l) const { return padded(width) * size_of(l) <= from().register_bytes; }
int form::lanes_of_a_register() const { return int(from().register_bytes / sig().widest_lane()); }

std::string form::function() const {
  return fmt::format("{}{}{}{}", from().symbol_prefix, op.name(), is_filled() ? 4 : width, suffix(variant));
}
std::string form::by_value() const { return fmt::format("lanemath_{}{}{}", op.name(), width, suffix(variant)); }
std::string form::packed() const { return by_value() + "_packed"; }
std::string form::lane_by_lane() const { return by_value() + "_lane_by_lane"; }
std::string form::by_pointer() const { return by_value() + "_by_pointer"; }

// The number of registers from which one call of a wide form, through memory, takes less time than a call for each
// register, because its kernel gains that much from interleaving its groups. Measured, in the library and in the
// companion for AVX2; most never do.
int registers_that_pay_for_memory(const form& f) {
  constexpr int never = 16;
  const auto& o = f.op;
  const auto is_among = [&](std::initializer_list<std::string_view> names) {
    return std::ranges::count(names, o.name()) != 0;
  };
  if (f.from().register_bytes > 16) {
    if (o.group == family::power && f.variant == variant::standard) return 2;
    if (is_among({"asinh", "atan2pi"})) return 2;
    if (is_among({"acosh", "atanh", "atanpi", "cbrt", "cos", "erfc", "sin", "tanh"})) return 4;
    return never;
  }
  if (o.group == family::power) return f.variant == variant::standard ? 2 : 4;
  if (is_among({"tgamma", "tgammaf", "lgamma", "lgammaf", "atan2pi"})) return 2;
  if (is_among({"cos", "tanpi", "atanpi", "asinhf", "atanh", "atanhf", "invf", "sqrtf"})) return 4;
  return never;
}

crossing crossing_of(const form& f) {
  const int lanes = f.lanes_of_a_register(), registers = padded(f.width) / lanes;
  if (registers <= 1) return crossing::whole;
  const bool same_bits = !f.op.is_standalone(lanes, f.variant) && !f.has_second();
  return same_bits && registers < registers_that_pay_for_memory(f) ? crossing::in_pieces : crossing::in_memory;
}

std::vector<int> loop_widths(const operation& o, const machine& on) {
  const int lanes = int(16 / o.sig.widest_lane());
  // At twice the lanes two packed floats take 64 bytes, which kernels for AVX-512 do not all pass alike.
  const bool wide = on.register_size == 32 && (o.sig.how == delivery::none || lanes == 2 || on.kind != "avx512");
  return wide ? std::vector{lanes, 2 * lanes} : std::vector{lanes};
}

// A form with an algorithm of its own has different bits from the scalar. There the scalar function is called for each
// lane, so that the calls around it can still be vectorised.
std::string loop_function(const form& vector) {
  if (vector.has_second()) return vector.packed();
  const auto is_own = [&](int width) { return vector.op.is_standalone(width, vector.variant); };
  if (is_own(1) || is_own(vector.width)) return vector.lane_by_lane();
  return crossing_of(vector) == crossing::whole ? vector.function() : vector.by_value();
}

std::vector<std::string> loop_functions(const operation& o, variant v, const machine& on) {
  std::vector<std::string> all;
  for (int width : loop_widths(o, on)) all.push_back(loop_function({on, o, v, width}));
  return all;
}
