#include "builtins.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "generate/opencl.h"

namespace lanemath::bench::opencl {

std::string vector_type::name() const { return opencl_type(element, width); }

std::string_view title(group g) {
  return std::array<std::string_view, 3>{"maths functions", "native and half functions", "exact functions"}[int(g)];
}

std::string builtin::name(int width) const { return opencl_names(*op, accuracy, width)[name_index]; }

std::string builtin::title() const {
  if (op->group != family::conversion) return name();
  return fmt::format("{}({})", name(), type_name(op->sig.arguments[0]));
}

lane builtin::element() const {
  std::size_t widest = size_of(op->sig.result);
  for (lane argument : op->sig.arguments) widest = std::max(widest, size_of(argument));
  return widest == size_of(lane::f32) ? lane::f32 : lane::f64;
}

opencl::group builtin::group() const {
  if (op->group == family::manipulation || op->group == family::conversion) return group::exact;
  return accuracy == variant::standard ? group::maths : group::reduced;
}

std::vector<builtin> all_builtins() {
  std::vector<builtin> singles, doubles;
  for (const auto& o : catalogue)
    for (auto v : variants) {
      if (!o.has(v)) continue;
      for (std::size_t i = 0; i < opencl_names(o, v, 1).size(); ++i) {
        const builtin b{&o, v, i};
        (b.element() == lane::f32 ? singles : doubles).push_back(b);
      }
    }
  singles.insert(singles.end(), doubles.begin(), doubles.end());
  return singles;
}

std::string kernel_name(int width) { return fmt::format("measure_{}", width); }

std::string kernel_source(const builtin& b, int width) {
  constexpr std::array names{"x", "y", "z"};
  const auto& sig = b.op->sig;
  std::string parameters, arguments, before, after;
  for (int i = 0; i < sig.arity(); ++i) {
    parameters += fmt::format("global const {}* {}, ", opencl_type(sig.arguments[i], width), names[i]);
    arguments += fmt::format("{}{}[i]", i ? ", " : "", names[i]);
  }
  parameters += fmt::format("global {}* result", opencl_type(sig.result, width));
  if (sig.how == delivery::pointer) {
    const auto type = opencl_type(sig.second, width);
    parameters += fmt::format(", global {}* second", type);
    arguments += ", &delivered";
    before = fmt::format("  {} delivered;\n", type);
    after = "  second[i] = delivered;\n";
  }
  return fmt::format(
      "kernel void {}({}) {{\n"
      "  const size_t i = get_global_id(0);\n"
      "{}  result[i] = {}({});\n{}}}\n",
      kernel_name(width), parameters, before, b.name(width), arguments, after);
}

}  // namespace lanemath::bench::opencl
