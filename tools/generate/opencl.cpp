// Each built-in is written as one direct call. How its vectors cross to the library stands in opencl/crossing.h.
#include "opencl.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <array>

namespace {

using namespace lanemath;

constexpr std::array<std::string_view, 3> parameter_names{"x", "y", "z"};
constexpr std::array<std::string_view, 3> address_spaces{"global", "local", "private"};

bool is_integer(lane l) { return l != lane::f32 && l != lane::f64; }
bool crosses_in_registers(lane l, int width) { return std::size_t(padded(width)) * size_of(l) <= 16; }

// A call with these lanes touches no memory.
bool touches_registers_only(const signature& s, int width) {
  return s.how == delivery::none && crosses_in_registers(s.result, width) &&
         std::all_of(s.arguments.begin(), s.arguments.begin() + s.arity(),
                     [&](lane l) { return crosses_in_registers(l, width); });
}

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

struct builtin {
  const operation& op;
  int width;
  std::string function;  // of the library
  std::string name;
  std::string result;
  std::vector<std::string> arguments;

  // The parameter list's beginning, without a pointer.
  std::vector<std::string> parameters() const {
    std::vector<std::string> all;
    for (std::size_t i = 0; i < arguments.size(); ++i)
      all.push_back(fmt::format("{} {}", arguments[i], parameter_names[i]));
    return all;
  }
  std::string crossing_arguments() const {
    std::vector<std::string> all;
    for (std::size_t i = 0; i < arguments.size(); ++i)
      all.push_back(fmt::format("to_library_{}({})", arguments[i], parameter_names[i]));
    return fmt::format("{}", fmt::join(all, ", "));
  }
};

void declare(std::FILE* out, const builtin& b) {
  std::vector<std::string> types;
  for (const auto& type : b.arguments) types.push_back("crossing_" + type);
  if (b.op.sig.how == delivery::pointer) types.push_back("private void*");
  fmt::print(out, "\n{}crossing_{} {}({});\n", touches_registers_only(b.op.sig, b.width) ? "REGISTERS_ONLY " : "",
             b.result, b.function, fmt::join(types, ", "));
}

void define(std::FILE* out, const builtin& b) {
  fmt::print(out, "BUILTIN {} _cl_{}({}) {{ return from_library_{}({}({})); }}\n", b.result, b.name,
             fmt::join(b.parameters(), ", "), b.result, b.function, b.crossing_arguments());
}

void define_with_scalar_last(std::FILE* out, const builtin& b) {
  auto parameters = b.parameters();
  parameters.back() = fmt::format("{} y", opencl_type(b.op.sig.arguments[1], 1));
  fmt::print(out, "BUILTIN {0} _cl_{1}({2}) {{ return _cl_{1}(x, ({3})(y)); }}\n", b.result, b.name,
             fmt::join(parameters, ", "), b.arguments[1]);
}

void define_with_pointer(std::FILE* out, const builtin& b) {
  const auto second = opencl_type(b.op.sig.second, b.width);
  for (auto space : address_spaces) {
    auto parameters = b.parameters();
    parameters.push_back(fmt::format("{} {}* second", space, second));
    fmt::print(out,
               "BUILTIN {0} _cl_{1}({2}) {{\n"
               "  crossing_{3} delivered;\n"
               "  const {0} result = from_library_{0}({4}({5}, &delivered));\n"
               "  *second = from_library_{3}(delivered);\n"
               "  return result;\n"
               "}}\n",
               b.result, b.name, fmt::join(parameters, ", "), second, b.function, b.crossing_arguments());
  }
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

void write_opencl_builtins(std::FILE* out, const std::set<std::string>& exported) {
  fmt::print(out, "#include \"crossing.h\"\n");
  for (const auto& o : catalogue)
    for (auto v : variants)
      for (int width : widths) {
        const auto names = opencl_names(o, v, width);
        const auto function = fmt::format("{}{}{}{}", symbol_prefix, o.name(), width, suffix(v));
        if (!o.has(v) || names.empty() || !exported.contains(function)) continue;

        builtin b{o, width, function, {}, opencl_type(o.sig.result, width), {}};
        for (int i = 0; i < o.sig.arity(); ++i) b.arguments.push_back(opencl_type(o.sig.arguments[i], width));
        declare(out, b);
        for (const auto& name : names) {
          b.name = name;
          if (o.sig.how == delivery::pointer)
            define_with_pointer(out, b);
          else
            define(out, b);
          if (width > 1 && opencl_scalar_last(name)) define_with_scalar_last(out, b);
        }
      }
}
