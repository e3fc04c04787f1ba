// The public header for C++: every operation in each variant as a template over its types.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <array>
#include <set>
#include <string>
#include <vector>

#include "documentation.h"
#include "families.h"
#include "generate.h"
#include "names.h"

namespace {

using namespace lanemath;

constexpr std::array rounding_names{"rte", "rtn", "rtp", "rtz"};

std::string scalar(lane l) {
  return is_floating(l) ? std::string(type_name(l))
                        : fmt::format("std::{}int{}_t", is_unsigned(l) ? "u" : "", 8 * size_of(l));
}
std::string border(const operation& o, lane l, int width) {
  if (width == 1) return scalar(l);
  return width == 3 ? fmt::format("{}3_border", type_name(l))
                    : fmt::format("{}_{}", border_of(o, width), vector_name(l, width));
}

std::string rounding_of(const operation& o) { return rounding_names.at(std::size_t(o.rounding)); }

// The name among the declarations of the library's functions. Conversions are told apart by their arguments too.
std::string declared_name(const operation& o) {
  if (o.group != family::conversion) return std::string(o.base_name());
  return fmt::format("to_{}_{}{}", type_name(o.sig.result), rounding_of(o), o.saturates ? "_sat" : "");
}

std::string structure(const operation& o) {
  return fmt::format("{}_and_{}", results_of(o).first, results_of(o).second);
}

// The structures of two results, each once.
void write_structures(std::FILE* out) {
  std::set<std::string> written;
  for (const auto& o : catalogue)
    if (o.sig.how != delivery::none && written.insert(structure(o)).second) {
      const bool alike = o.sig.result == o.sig.second;
      fmt::print(out, "template <class V{}>\nstruct {} {{\n  V {};\n  {} {};\n}};\n", alike ? "" : ", class W",
                 structure(o), results_of(o).first, alike ? "V" : "W", results_of(o).second);
    }
}

// The library's functions, overloaded for what crosses the border.
void write_declarations(std::FILE* out) {
  for (auto v : variants) {
    const auto space = v == variant::standard ? "standard" : suffix(v).substr(1);
    fmt::print(out, "namespace {} {{\n", space);
    for (const auto& o : catalogue)
      for (int width : widths) {
        if (!o.has(v)) continue;
        const auto& s = o.sig;
        std::vector<std::string> arguments;
        for (int i = 0; i < s.arity(); ++i) arguments.push_back(border(o, s.arguments[i], width));
        if (s.how == delivery::pointer) arguments.emplace_back("void*");
        const auto result = border(o, s.result, width);
        fmt::print(out, "{} {}({}) {};\n", s.how == delivery::pair ? fmt::format("both<{}>", result) : result,
                   declared_name(o), fmt::join(arguments, ", "), named(o, v, width));
      }
    fmt::print(out, "}}  // namespace {}\n", space);
  }
}

void write_conversions(std::FILE* out) {
  std::set<std::string> written;
  for (const auto& o : catalogue)
    if (o.group == family::conversion && written.insert(declared_name(o)).second)
      fmt::print(out,
                 "template <>\nstruct conversion<{0}, rounding::{1}, {2}> {{\n  template <class B>\n"
                 "  static LANEMATH_FUNCTION auto call(const B& x) -> decltype(standard::{3}(x)) {{\n"
                 "    return standard::{3}(x);\n  }}\n}};\n",
                 scalar(o.sig.result), rounding_of(o), o.saturates, declared_name(o));
}

// An operation in both precisions, if it has two.
void write_function(std::FILE* out, const operation& o, variant v) {
  const auto& s = o.sig;
  const auto type = [&](lane l) -> std::string {
    if (l == s.arguments[0]) return "detail::vector_of<V>";
    return is_floating(l) ? "detail::floating<V>" : fmt::format("detail::with_lanes<V, {}>", scalar(l));
  };
  // The companions have no always-scalar operation.
  const auto crossing = [&](std::string_view type) {
    return fmt::format("detail::{}<{}>", o.always_scalar ? "crossing_to_library" : "crossing", type);
  };
  std::vector<std::string> parameters, arguments;
  for (int i = 0; i < s.arity(); ++i) {
    const auto name = std::array{"x", "y", "z"}[i];
    parameters.push_back(i == 0 ? fmt::format("V {}", name) : fmt::format("const {}& {}", type(s.arguments[i]), name));
    arguments.push_back(fmt::format("{}::out({})", crossing(type(s.arguments[i])), name));
  }
  if (s.how == delivery::pointer) arguments.emplace_back("&second");

  const auto result = type(s.result);
  auto returned = result;
  if (s.how != delivery::none)
    returned = fmt::format("{}<{}{}>", structure(o), result, s.result == s.second ? "" : ", " + type(s.second));
  const auto in = [&](std::string_view type, std::string_view what) {
    return fmt::format("{}::in({})", crossing(type), what);
  };
  const auto call = fmt::format("detail::{}::{}({})", v == variant::standard ? "standard" : suffix(v).substr(1),
                                o.base_name(), fmt::join(arguments, ", "));
  fmt::print(out, "{}template <class V>\nLANEMATH_FUNCTION {} {}({}) {{\n", documentation(description_for_cpp(o, v)),
             returned, o.base_name(), fmt::join(parameters, ", "));
  switch (s.how) {
    case delivery::none: fmt::print(out, "  return {};\n", in(result, call)); break;
    case delivery::pointer:
      fmt::print(out, "  typename {}::room second;\n  const auto first = {};\n  return {{{}, {}}};\n",
                 crossing(type(s.second)), call, in(result, "first"), in(type(s.second), "second"));
      break;
    case delivery::pair:
      fmt::print(out, "  const auto pair = {};\n  return {{{}, {}}};\n", call, in(result, "pair.first"),
                 in(type(s.second), "pair.second"));
      break;
  }
  fmt::print(out, "}}\n");
}

}  // namespace

void write_cpp_header(std::FILE* out) {
  fmt::print(out,
             R"({}#ifndef LANEMATH_LANEMATH_HPP
#define LANEMATH_LANEMATH_HPP

#include <lanemath/vector.hpp>

#pragma GCC system_header

namespace lanemath {{

)",
             head("lanemath for C++, from C++11 on.\n\nlanemath::exp(x) and so on, for scalars and for the vectors of "
                  "<lanemath/vector.hpp>; those of the C header convert to them. An operation has the name that it has "
                  "in C, without the f of single precision: the types tell. Arguments after the first may be scalars. "
                  "The accuracy variants are in the namespaces lanemath::native, lanemath::half and lanemath::rm. Two "
                  "results come as a structure with named members. Conversions are lanemath::convert and "
                  "lanemath::convert_sat.\n\nResults have the same bits as those of the C functions."));
  write_structures(out);
  fmt::print(out, "\nnamespace detail {{\n\ntemplate <class B>\nstruct both {{\n  B first, second;\n}};\n\n");
  write_declarations(out);
  fmt::print(out, "\n");
  write_conversions(out);
  fmt::print(out, "\n}}  // namespace detail\n");
  for (const auto& f : families)
    for (const auto& o : catalogue)
      for (auto v : variants) {
        if (o.group != f.group || !o.has(v) || o.group == family::conversion) continue;
        // The double-precision row stands for both precisions, unless only the single one has the variant.
        if (o.single() && catalogue[index_of(o.base_name())].has(v)) continue;
        fmt::print(out, "\n");
        if (v != variant::standard) fmt::print(out, "namespace {} {{\n", suffix(v).substr(1));
        write_function(out, o, v);
        if (v != variant::standard) fmt::print(out, "}}  // namespace {}\n", suffix(v).substr(1));
      }
  fmt::print(out, "\n}}  // namespace lanemath\n\n#endif\n");
}

// All functions as a caller in C++ writes them, for the tests.
void write_cpp_calls(std::FILE* out) {
  for (const auto& o : catalogue)
    for (auto v : variants) {
      if (!o.has(v)) continue;
      std::vector<std::string> types;
      for (int i = 0; i < o.sig.arity(); ++i) types.push_back(scalar(o.sig.arguments[i]));
      if (o.group == family::conversion) {
        fmt::print(out, "CONVERSION(convert{}, {}, {}, {}, {})\n", o.saturates ? "_sat" : "", o.name(), rounding_of(o),
                   scalar(o.sig.result), types[0]);
        continue;
      }
      const auto shape = std::array{"UNARY", "BINARY", "TERNARY"}.at(o.sig.arity() - 1);
      const auto space = v == variant::standard ? "" : fmt::format("{}::", suffix(v).substr(1));
      if (o.sig.how == delivery::none)
        fmt::print(out, "{}({}{}, {}, {}, {})\n", shape, space, o.base_name(), o.name(), suffix(v),
                   fmt::join(types, ", "));
      else
        fmt::print(out, "{}_TWO({}{}, {}, {}, {}, {}, {})\n", shape, space, o.base_name(), o.name(), suffix(v),
                   results_of(o).first, results_of(o).second, fmt::join(types, ", "));
    }
}
