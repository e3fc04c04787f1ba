// The public header of one family: every function with its documentation.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <stdexcept>
#include <string>
#include <vector>

#include "documentation.h"
#include "families.h"
#include "generate.h"
#include "names.h"

namespace {

using namespace lanemath;

std::string_view shape(const signature& s) {
  if (s.how == delivery::none) return std::array{"UNARY", "BINARY", "TERNARY"}[s.arity() - 1];
  if (s.how == delivery::pointer) return s.arity() == 1 ? "UNARY_POINTER" : "BINARY_POINTER";
  return s.arity() == 1 ? "UNARY_PAIR" : "BINARY_PAIR";
}

// One function: a declaration, or an inline definition and the macro of the same text.
void write_function(std::FILE* out, const operation& o, variant v, int width) {
  const auto& s = o.sig;
  const auto vector = [&](lane l) { return vector_name(l, width); };
  const auto name = fmt::format("{}{}{}", o.name(), width, suffix(v));

  const auto crossing = border_of(o, width);
  std::string_view pair = s.how == delivery::pair ? "_pair" : "";
  bool wide = is_wide(s.result, width);
  std::vector<std::string> types{vector(s.result)}, names, parameters, border;
  for (int i = 0; i < s.arity(); ++i) {
    wide |= is_wide(s.arguments[i], width);
    types.push_back(vector(s.arguments[i]));
    names.emplace_back(std::array{"x", "y", "z"}[i]);
    parameters.push_back(fmt::format("lanemath_{} {}", types.back(), names.back()));
    border.push_back(fmt::format("{}_{}", crossing, types.back()));
  }
  if (s.how == delivery::pointer) {
    types.push_back(vector(s.second));
    names.emplace_back(results_of(o).second);
    parameters.push_back(fmt::format("lanemath_{}* {}", types.back(), names.back()));
    border.push_back(fmt::format("lanemath_{}*", types.back()));
  }

  const auto comment = documentation(description(o, v, width));
  const auto prototype =
      fmt::format("lanemath_{}{} lanemath_{}({})", types[0], pair, name, fmt::join(parameters, ", "));
  if (!wide) {
    fmt::print(out, "{}{} {};\n", comment, prototype, named(o, v, width));
    return;
  }
  const auto call = fmt::format("LANEMATH_{}({}, {}, {}, {})", shape(s), crossing, name, fmt::join(types, ", "),
                                fmt::join(names, ", "));
  // The macro holds the documentation too, for editors that show the definition of what they point at.
  fmt::print(out,
             "{}_{}{} lanemath_call_{}({}) {};\n"
             "{}LANEMATH_INLINE {} {{\n  return {};\n}}\n"
             "#define lanemath_{}({}) \\\n{} \\\n  {}\n",
             crossing, types[0], pair, name, fmt::join(border, ", "), named(o, v, width), comment, prototype, call,
             name, fmt::join(names, ", "), std::string_view(comment).substr(0, comment.size() - 1), call);
}

}  // namespace

void write_public_header(std::FILE* out, const char* family_name) {
  const auto text = std::find_if(std::begin(families), std::end(families),
                                 [&](const family_text& f) { return f.file == family_name; });
  if (text == std::end(families)) throw std::invalid_argument(fmt::format("no family {}", family_name));

  std::string guard = fmt::format("LANEMATH_{}_H", family_name);
  std::transform(guard.begin(), guard.end(), guard.begin(), [](unsigned char c) { return std::toupper(c); });
  fmt::print(out,
             "{}#ifndef {}\n#define {}\n\n#include <lanemath/types.h>\n\n#pragma GCC system_header\n\nLANEMATH_BEGIN\n",
             head(fmt::format("{}.\n\n{}\n\nEach function exists at widths 1, 2, 3, 4, 8 and 16, as "
                              "lanemath_<operation><width><variant>.",
                              text->title, text->about)),
             guard, guard);
  for (const auto& o : catalogue)
    if (o.group == text->group)
      for (auto v : variants)
        if (o.has(v)) {
          fmt::print(out, "\n");
          for (int width : widths) write_function(out, o, v, width);
        }
  fmt::print(out, "\nLANEMATH_END\n\n#endif\n");
}
