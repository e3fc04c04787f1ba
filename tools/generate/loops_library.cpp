// The library for arrays and ordinary loops: its headers, and the functions that instantiate its templates.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "accuracy/errors.h"
#include "documentation.h"
#include "generate.h"
#include "opencl_forms.h"

namespace {

using namespace lanemath;

// Calls `each` for every operation in each of its variants.
template <class Each>
void for_each_pair(Each each) {
  for (const auto& o : catalogue)
    for (auto v : variants)
      if (o.has(v)) each(o, v);
}

std::string_view c_type(lane l) {
  constexpr std::array<std::string_view, 7> names{"", "float", "double", "int32_t", "uint32_t", "int64_t", "uint64_t"};
  return names.at(std::size_t(l));
}

// What `text` gives for each argument of a signature and its name.
template <class Text>
std::vector<std::string> of_arguments(const signature& s, Text text) {
  std::vector<std::string> all;
  for (int i = 0; i < s.arity(); ++i) all.push_back(text(s.arguments[i], "xyz"[i]));
  return all;
}
std::string argument_types(const signature& s) {
  return fmt::format("{}", fmt::join(of_arguments(s, [](lane l, char) { return std::string(c_type(l)); }), ", "));
}

// How a place with both of an operation's results, or its only one, is written.
std::vector<std::string> of_results(const signature& s, std::string_view form) {
  std::vector all{fmt::format(fmt::runtime(form), c_type(s.result), "result")};
  if (s.how != delivery::none) all.push_back(fmt::format(fmt::runtime(form), c_type(s.second), "second"));
  return all;
}

std::string parameters(const signature& s, std::string_view argument_form, std::string_view result_form) {
  auto all =
      of_arguments(s, [&](lane l, char name) { return fmt::format(fmt::runtime(argument_form), c_type(l), name); });
  for (auto& each : of_results(s, result_form)) all.push_back(each);
  return fmt::format("{}", fmt::join(all, ", "));
}

std::string array_function(const operation& o, variant v) {
  return fmt::format("lanemath_{}_array{}", o.name(), suffix(v));
}
std::string array_prototype(const operation& o, variant v) {
  return fmt::format("void {}({}, size_t n)", array_function(o, v), parameters(o.sig, "const {}* {}", "{}* {}"));
}

// What an array function computes, and how exactly.
std::string array_brief(const operation& o, variant v) {
  std::string text = brief_of(o);
  for (auto [place, here] : {std::pair("through the pointer", "in second"), {"as a pair", "in result and second"}})
    if (const auto at = text.find(place); at != text.npos) text.replace(at, std::strlen(place), here);
  if (v != variant::standard) text += fmt::format("; the form {}", suffix(v));
  if (const double bound = bound_of(o, v, 16).value_or(0); bound > 0) text += fmt::format(", within {:g} ulp", bound);
  return text;
}

void write_arrays_header(std::FILE* out) {
  fmt::print(
      out, R"(/* Functions of arrays, one for each operation and accuracy variant: lanemath_<operation>_array<variant>.
 *
 *     lanemath_expf_array(x, y, n);                y[i] = e^x[i] for n elements
 *     lanemath_sincosf_array_native(x, y, z, n);   sines and cosines
 *
 * They are in the library lanemath_loops, which uses registers as wide as the processor's where it finds the companions
 * for them. Arrays may have any length, 0 included, and need no alignment beyond that of their elements. Nothing outside
 * them is touched. A result may take the place of an argument whose elements have the same size; apart from that,
 * results overlap nothing. An element's result does not depend on where it stands: it has the bits of the function of
 * width 16, which are those of every width without an algorithm of its own.
 * <lanemath/lanemath.h> states arguments and special values. */
#ifndef LANEMATH_ARRAYS_H
#define LANEMATH_ARRAYS_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {{
#endif
)");
  for_each_pair([&](const operation& o, variant v) {
    fmt::print(out, "\n/* {}. */\n{};\n", array_brief(o, v), array_prototype(o, v));
  });
  fmt::print(out, "\n#ifdef __cplusplus\n}}\n#endif\n\n#endif\n");
}

void write_spans_header(std::FILE* out) {
  fmt::print(
      out,
      R"(// The functions of <lanemath/arrays.h> on spans, for C++20: lanemath::exp(x, y) for float and double, in the
// namespaces lanemath::native, lanemath::half and lanemath::rm for the other accuracy variants. All spans must have
// the same length; else std::length_error is thrown, and nothing is written.
#ifndef LANEMATH_ARRAYS_HPP
#define LANEMATH_ARRAYS_HPP

#include <lanemath/arrays.h>

#include <span>
#include <stdexcept>

namespace lanemath {{
namespace arrays_detail {{
inline std::size_t common_length(std::size_t n, auto... others) {{
  if ((... || (others != n))) throw std::length_error("lanemath: spans of different lengths");
  return n;
}}
}}  // namespace arrays_detail
)");
  for (auto v : variants) {
    const auto space = suffix(v).substr(v == variant::standard ? 0 : 1);
    if (!space.empty()) fmt::print(out, "\nnamespace {} {{\n", space);
    for (const auto& o : catalogue) {
      if (!o.has(v)) continue;
      const auto each = [&](std::string_view form) { return parameters(o.sig, form, form); };
      fmt::print(out, "\n// {}.\ninline void {}({}) {{\n  {}({}, arrays_detail::common_length({}));\n}}\n",
                 array_brief(o, v), o.base_name(), parameters(o.sig, "std::span<const {}> {}", "std::span<{}> {}"),
                 array_function(o, v), each("{1}.data()"), each("{1}.size()"));
    }
    if (!space.empty()) fmt::print(out, "\n}}  // namespace {}\n", space);
  }
  fmt::print(out, "\n}}  // namespace lanemath\n\n#endif\n");
}

// The width of the calls of an array function: in the library, the widest one; in a companion, that of a register.
int array_width(const level& on, const operation& o) {
  return on.name.empty() ? 16 : int(on.register_bytes / o.sig.widest_lane());
}
// What a companion has for arrays and loops.
bool has_register_form(const level& on, const operation& o) {
  return !on.name.empty() && o.is_at(on, array_width(on, o));
}
std::string array_function(const level& on, const operation& o, variant v) {
  return fmt::format("{}{}_array{}", on.symbol_prefix, o.name(), suffix(v));
}
std::string called_function(const level& on, const operation& o, variant v) {
  return fmt::format("{}{}{}{}", on.symbol_prefix, o.name(), array_width(on, o), suffix(v));
}

// Instances of the templates in companions/loops/arrays.cpp for one level. Those for the library are what is exported,
// and choose the level.
void write_array_functions(std::FILE* out, const level& on) {
  const bool exported = on.name.empty();
  fmt::print(out, "#include <lanemath/arrays.h>\n\nextern \"C\" {{\n");
  for_each_pair([&](const operation& o, variant v) {
    if (!exported && !has_register_form(on, o)) return;
    const int width = array_width(on, o);
    if (o.is_standalone(width, v)) throw std::logic_error(fmt::format("{}{} is standalone", o.name(), width));
    const auto& s = o.sig;
    const auto block = [&](lane l) { return fmt::format("abi<{}, {}>", c_type(l), width); };
    const auto returned = s.how == delivery::pair
                              ? fmt::format("abi_pair<{}, {}, {}>", c_type(s.result), c_type(s.second), width)
                              : block(s.result);
    const auto called = called_function(on, o, v);
    const auto taken = parameters(s, "const {}* {}", "{}* {}") + ", size_t n";
    fmt::print(out, fmt::runtime(exported ? "\n{} {}({}{});\n" : "\nLANEMATH_USABLE {} (*{})({}{});\n"), returned,
               called, fmt::join(of_arguments(s, [&](lane l, char) { return block(l); }), ", "),
               s.how == delivery::pointer ? ", void*" : "");
    std::string choice;
    if (exported)
      for (const auto& companion : levels)
        if (has_register_form(companion, o)) {
          const auto other = array_function(companion, o, v);
          fmt::print(out, "void {}({});\n", other, taken);
          choice.insert(0, fmt::format("  if (lanemath::usable.{}) return {}({}, n);\n", companion.name, other,
                                       parameters(s, "{1}", "{1}")));
        }
    fmt::print(out, "void {}({}) {{\n{}  {}<{}>({}, {}, n, {}, {});\n}}\n",
               exported ? array_function(o, v) : array_function(on, o, v), taken, choice,
               std::array{"one_result", "pointer", "pair"}.at(std::size_t(s.how)), width, called, o.filler,
               fmt::join(of_results(s, "{1}"), ", "),
               fmt::join(of_arguments(s, [](lane, char name) { return std::string(1, name); }), ", "));
  });
  fmt::print(out, "\n}}\n");
}

// The functions of companions that array functions and loops call.
void write_usable_functions(std::FILE* out) {
  for (const auto& on : levels)
    for_each_pair([&](const operation& o, variant v) {
      if (has_register_form(on, o))
        fmt::print(out, "LANEMATH_FUNCTION({}, {}{}{})\n", on.name, o.name(), array_width(on, o), suffix(v));
    });
}

// Loops call scalar functions, and the compiler knows no vector form of one that writes through a pointer.
template <class Each>
void for_each_loop_function(Each each) {
  for_each_pair([&](const operation& o, variant v) {
    if (o.sig.how == delivery::none) each(o, v);
  });
}

void write_loops_header(std::FILE* out) {
  fmt::print(out, R"(/* Lets GCC vectorise ordinary loops that call functions of width 1:
 *
 *     for (size_t i = 0; i < n; ++i) y[i] = lanemath_expf1(x[i]);
 *
 * At -O3, or -O2 -ftree-vectorize, such a loop calls a vector form of the function, from the library lanemath_loops.
 * Every element has the bits of the function of width 1, whatever the instruction set. The loop must call the function
 * on every pass, outside of conditions. Functions with two results are not vectorised, and compilers other than GCC
 * vectorise none of these loops; <lanemath/arrays.h> serves both.
 *
 * Where no vectors with the bits of width 1 fit a register, lanes are computed one by one, and the loop can be slower
 * by a quarter than without this header: exp, atan and a few others in double precision for SSE2, exp2f everywhere.
 *
 * The functions are declared to depend on nothing but their arguments. Functions that follow the rounding direction in
 * force, and all others if it is not to nearest, may therefore be moved across fesetround and the like: do not include
 * this header where the direction or flush-to-zero changes. */
#ifndef LANEMATH_LOOPS_H
#define LANEMATH_LOOPS_H

#include <lanemath/lanemath.h>

#if defined(__GNUC__) && !defined(__clang__)

LANEMATH_BEGIN

#define LANEMATH_LOOP(result, name, ...) \
  result lanemath_##name(__VA_ARGS__) __attribute__((simd("notinbranch"), const));
)");
  for_each_loop_function([&](const operation& o, variant v) {
    fmt::print(out, "LANEMATH_LOOP({}, {}1{}, {})\n", c_type(o.sig.result), o.name(), suffix(v), argument_types(o.sig));
  });
  fmt::print(out, "#undef LANEMATH_LOOP\n\nLANEMATH_END\n\n#endif\n\n#endif\n");
}

// The instruction sets of the vector function ABI: their letter, the size of registers, and the level of the companion
// that their entries call where it can be used.
struct instruction_set {
  char letter;
  std::size_t integer_bytes, floating_bytes;
  std::size_t level;
  std::size_t bytes(lane l) const { return is_floating(l) ? floating_bytes : integer_bytes; }
};
constexpr instruction_set instruction_sets[] = {{'b', 16, 16, 0}, {'c', 16, 32, 1}, {'d', 32, 32, 1}, {'e', 64, 64, 2}};

// The width whose functions give these lanes the bits of width 1: in so many calls, the fastest.
int width_of_calls(const operation& o, variant v, int lanes) {
  if (o.is_standalone(1, v)) return 1;
  const auto all = in_library(o, v, lanes);
  switch (crossing_of(all)) {
    case crossing::in_pieces: return all.lanes_of_a_register();
    case crossing::whole:
    case crossing::in_memory: break;
  }
  return o.is_standalone(lanes, v) ? lanes / 2 : lanes;
}

// Instances of the template in companions/loops/loops.cpp. An entry takes as many lanes as its result has in a
// register; an argument of larger elements takes several registers, one of smaller ones a part of a register.
void write_loop_entries(std::FILE* out, const instruction_set& on) {
  fmt::print(out, "extern \"C\" {{\n");
  for_each_loop_function([&](const operation& o, variant v) {
    const auto& s = o.sig;
    const auto lanes = on.bytes(s.result) / size_of(s.result);
    const int width = width_of_calls(o, v, int(lanes));
    std::vector<std::string> registers, values;
    for (int i = 0; i < s.arity(); ++i) {
      const lane l = s.arguments[i];
      const auto at_once = std::min(lanes, on.bytes(l) / size_of(l));
      std::vector<std::string> names;
      for (std::size_t k = 0; k < lanes / at_once; ++k) {
        names.push_back(fmt::format("{}{}", "xyz"[i], k));
        registers.push_back(fmt::format("vector<{}, {}> {}", c_type(l), at_once, names.back()));
      }
      values.push_back(fmt::format("argument<{}, {}>({})", c_type(l), lanes, fmt::join(names, ", ")));
    }
    const auto entry = fmt::format("vector<{}, {}> {}_{}{}({})", c_type(s.result), lanes, on.letter, o.name(),
                                   suffix(v), fmt::join(registers, ", "));
    // Declares a function that takes some of the lanes in a vector type, and calls it for all.
    const auto call_of = [&](std::string_view declared, const std::string& function, std::string_view type, int some) {
      const auto typed = [&](lane l) { return fmt::format("{}<{}, {}>", type, c_type(l), some); };
      fmt::print(out, fmt::runtime(declared), typed(s.result), function,
                 fmt::join(of_arguments(s, [&](lane l, char) { return typed(l); }), ", "));
      return fmt::format("call<{}, {}, {}>({}, {})", c_type(s.result), some, lanes, function, fmt::join(values, ", "));
    };
    fmt::print(out, "\n");
    auto result = call_of("{} {}({});\n", in_library(o, v, width).function(), "abi", width);
    const auto& companion = levels.at(on.level);
    const int wide = array_width(companion, o);
    if (has_register_form(companion, o) && wide <= int(lanes) && !o.is_standalone(1, v)) {
      const auto wider = call_of("LANEMATH_USABLE {} (*{})({});\n", called_function(companion, o, v), "vector", wide);
      result = fmt::format("lanemath::usable.{} ? {} : {}", companion.name, wider, result);
    }
    fmt::print(out, "{} __asm__(\"_ZGV{}N{}{}_{}\");\n{} {{ return {}; }}\n", entry, on.letter, lanes,
               std::string(s.arity(), 'v'), in_library(o, v, 1).function(), entry, result);
  });
  fmt::print(out, "\n}}\n");
}

}  // namespace

void write_loops_library(std::FILE* out, std::string_view file) {
  if (file == "lanemath/arrays.h") return write_arrays_header(out);
  if (file == "lanemath/arrays.hpp") return write_spans_header(out);
  for (const auto& on : levels)
    if (file == fmt::format("arrays{}{}.inc", on.name.empty() ? "" : "-", on.name))
      return write_array_functions(out, on);
  if (file == "usable.inc") return write_usable_functions(out);
  if (file == "lanemath/loops.h") return write_loops_header(out);
  for (const auto& on : instruction_sets)
    if (file == fmt::format("loops-{}.inc", on.letter)) return write_loop_entries(out, on);
  throw std::invalid_argument(fmt::format("the library for loops has no file {}", file));
}
