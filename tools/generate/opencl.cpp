// Which built-ins the library serves, and by which of its functions.
#include "opencl.h"

#include <fmt/format.h>

#include <algorithm>

#include "opencl_forms.h"

namespace {

using namespace lanemath;

bool is_integer(lane l) { return l != lane::f32 && l != lane::f64; }
bool is_unsigned(lane l) { return l == lane::u32 || l == lane::u64; }

std::vector<std::string> conversion_names(const operation& o, int width) {
  const std::string_view name = o.name();
  const auto says = [&](std::string_view part) { return name.find(part) != name.npos; };
  const auto rounding = *std::ranges::find_if(catalogue_detail::roundings, says);
  const bool saturates = says("sat") && !says("nosat");
  const auto unrounded = fmt::format("convert_{}{}", opencl_type(o.sig.result, width), saturates ? "_sat" : "");

  std::vector names{fmt::format("{}_{}", unrounded, rounding)};
  if (rounding == (is_integer(o.sig.result) ? "rtz" : "rte")) names.push_back(unrounded);
  return names;
}

// The name without `native_` or `half_`; empty where OpenCL has none.
std::string_view plain_name(const operation& o, variant v) {
  const auto name = o.base_name();
  if (name == "rcbrt" || name == "nearbyint" || o.sig.how == delivery::pair) return {};
  if (name == "div") return v == variant::standard ? "" : "divide";
  if (name == "inv") return v == variant::standard ? "" : "recip";
  if (name == "lgammar") return "lgamma_r";
  return name;
}

}  // namespace

std::string opencl_type(lane l, int width) {
  return width == 1 ? std::string(type_name(l)) : fmt::format("{}{}", type_name(l), width);
}

std::vector<std::string> opencl_names(const operation& o, variant v, int width) {
  if (o.group == family::conversion) return conversion_names(o, width);
  if (o.group == family::integer_division) return {};
  const auto name = plain_name(o, v);
  if (name.empty()) return {};
  if (v == variant::standard) return {std::string(name)};
  // OpenCL C has native and half forms of the same functions, in single precision.
  if (v == variant::rm || !o.single() || !o.has(variant::half)) return {};
  return {fmt::format("{}_{}", v == variant::native ? "native" : "half", name)};
}

bool opencl_scalar_last(std::string_view name) { return name == "ldexp" || name == "fmax" || name == "fmin"; }

bool is_unsigned_without_saturation(const operation& o) {
  return is_unsigned(o.sig.result) && o.group == family::conversion && o.name().find("nosat") != std::string_view::npos;
}

// What is measured to be no slower inline, and why:
// - signs, selection, fields of the format, square roots, conversions in the language's rounding: a few instructions
//   everywhere, on vectors as wide as the machine's;
// - roundings to integers, and fma: where the processor has the instruction;
// - the other conversions: with AVX, whose wide vectors make up for the runtime's detours, but not double to int and
//   uint to nearest, nor double to float toward zero.
// Remainders stay the library's: the runtime's are loops over bits.
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

  const auto says = [&](std::string_view part) { return o.name().find(part) != std::string_view::npos; };
  const lane from = o.sig.arguments[0], to = o.sig.result;
  if (is_unsigned_without_saturation(o) && !on.rounds) return false;
  if (says(is_integer(to) ? "rtz" : "rte") || (to == lane::f64 && size_of(from) == 4)) return true;
  if (on.register_size == 16) return false;
  if (from == lane::f64 && is_integer(to) && size_of(to) == 4) return !says("rte");
  return from != lane::f64 || !says("rtz");
}

std::string form::function() const { return fmt::format("{}{}{}{}", symbol_prefix, op.name(), width, suffix(variant)); }
std::string form::by_value() const { return fmt::format("lanemath_{}{}{}", op.name(), width, suffix(variant)); }
std::string form::packed() const { return by_value() + "_packed"; }
std::string form::lane_by_lane() const { return by_value() + "_lane_by_lane"; }
std::string form::by_pointer() const { return by_value() + "_by_pointer"; }

bool crosses_in_register(lane l, int width) { return std::size_t(padded(width)) * size_of(l) <= 16; }

int lanes_of_a_register(const operation& o) {
  std::size_t widest = std::max(size_of(o.sig.result), size_of(o.sig.second));
  for (lane l : o.sig.arguments) widest = std::max(widest, size_of(l));
  return int(16 / widest);
}

// From how many registers on one call of a wide form, through memory, takes less time than a call for each register:
// where its kernel gains that much from interleaving its groups. Measured; most never do.
int registers_that_pay_for_memory(const operation& o, variant v) {
  constexpr int never = 16;
  const auto is_among = [&](std::initializer_list<std::string_view> names) {
    return std::ranges::count(names, o.name()) != 0;
  };
  if (o.group == family::power) return v == variant::standard ? 2 : 4;
  if (is_among({"tgamma", "tgammaf", "lgamma", "lgammaf", "atan2pi"})) return 2;
  if (is_among({"cos", "tanpi", "atanpi", "asinhf", "atanh", "atanhf", "invf", "sqrtf"})) return 4;
  return never;
}

crossing crossing_of(const form& f) {
  const int lanes = lanes_of_a_register(f.op), registers = padded(f.width) / lanes;
  if (registers <= 1) return crossing::whole;
  const bool same_bits = !is_standalone(f.op.name(), lanes, f.variant) && !f.has_second();
  return same_bits && registers < registers_that_pay_for_memory(f.op, f.variant) ? crossing::in_pieces
                                                                                 : crossing::in_memory;
}

std::vector<int> loop_widths(const operation& o, const machine& on) {
  const int lanes = lanes_of_a_register(o);
  // Two floats packed at twice the lanes would be wider than what all kernels pass alike.
  const bool wide = on.register_size == 32 && (o.sig.how == delivery::none || lanes == 2);
  return wide ? std::vector{lanes, 2 * lanes} : std::vector{lanes};
}

// A form with an algorithm of its own has other bits than the scalar's. There the scalar's function is called for each
// lane, so that the calls beside it can still be vectorised.
std::string loop_function(const form& vector) {
  if (vector.has_second()) return vector.packed();
  const auto is_own = [&](int width) { return is_standalone(vector.op.name(), width, vector.variant); };
  if (is_own(1) || is_own(vector.width)) return vector.lane_by_lane();
  return crossing_of(vector) == crossing::whole ? vector.function() : vector.by_value();
}

std::vector<std::string> loop_functions(const operation& o, variant v, const machine& on) {
  std::vector<std::string> all;
  for (int width : loop_widths(o, on)) all.push_back(loop_function({o, v, width}));
  return all;
}
