// The public header of one family: documentation and declarations.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <stdexcept>
#include <string>
#include <vector>

#include "accuracy/errors.h"
#include "families.h"
#include "generate.h"

namespace {

using namespace lanemath;

std::string_view shape(const signature& s) {
  if (s.how == delivery::none) return std::array{"UNARY", "BINARY", "TERNARY"}[s.arity() - 1];
  if (s.how == delivery::pointer) return s.arity() == 1 ? "UNARY_POINTER" : "BINARY_POINTER";
  return s.arity() == 1 ? "UNARY_PAIR" : "BINARY_PAIR";
}

// The types that a declaration of this shape takes: result, arguments, what the pointer points to.
std::vector<std::string_view> types(const signature& s) {
  std::vector<std::string_view> all{type_name(s.result)};
  for (int i = 0; i < s.arity(); ++i) all.push_back(type_name(s.arguments[i]));
  if (s.how == delivery::pointer) all.push_back(type_name(s.second));
  return all;
}

std::string call(const operation& o) {
  constexpr std::array names{"x", "y", "z"};
  std::vector<std::string> parameters;
  for (int i = 0; i < o.sig.arity(); ++i)
    parameters.push_back(fmt::format("{} {}", type_name(o.sig.arguments[i]), names[i]));
  if (o.sig.how == delivery::pointer) parameters.push_back(fmt::format("{}* second", type_name(o.sig.second)));
  const auto result = o.sig.how == delivery::pair ? fmt::format("({0}, {0})", type_name(o.sig.result))
                                                  : std::string(type_name(o.sig.result));
  return fmt::format("{} {}({})", result, o.name(), fmt::join(parameters, ", "));
}

std::string bound_text(const operation& o) {
  if (is_exact(o.group) && bound_of(o, variant::standard, 1) == 0) return "";
  std::vector<std::string> forms;
  for (auto v : variants) {
    if (!o.has(v)) continue;
    const auto name = v == variant::standard ? "default" : suffix(v);
    // One width without an algorithm of its own stands for all that share its bound.
    for (int width : widths)
      if (!o.is_standalone(width, v)) {
        if (const auto bound = bound_of(o, v, width)) forms.push_back(fmt::format("{} {:g}", name, *bound));
        break;
      }
    for (int width : widths)
      if (o.is_standalone(width, v))
        if (const auto bound = bound_of(o, v, width))
          forms.push_back(fmt::format("{} at width {} {:g}", name, width, *bound));
  }
  return forms.empty() ? "" : fmt::format("\n * Largest error in ulp: {}.", fmt::join(forms, "; "));
}

}  // namespace

std::string brief_of(const operation& o) {
  if (!o.brief.empty()) return std::string(o.brief);
  const auto rounding = std::array{"to nearest even", "down", "up", "toward zero"}.at(std::size_t(o.rounding));
  return fmt::format("{} to {}, rounded {}{}", type_name(o.sig.arguments[0]), type_name(o.sig.result), rounding,
                     o.saturates ? ", clamped to the range of the result" : "");
}

void write_public_header(std::FILE* out, const char* family_name) {
  const auto text = std::find_if(std::begin(families), std::end(families),
                                 [&](const family_text& f) { return f.file == family_name; });
  if (text == std::end(families)) throw std::invalid_argument(fmt::format("no family {}", family_name));

  std::string guard = fmt::format("LANEMATH_{}_H", family_name);
  std::transform(guard.begin(), guard.end(), guard.begin(), [](unsigned char c) { return std::toupper(c); });
  std::string about(text->about);
  for (std::size_t at = 0; (at = about.find('\n', at)) != about.npos; at += 4) about.replace(at, 1, "\n * ");

  fmt::print(out,
             "/* {}.\n *\n * {}\n *\n"
             " * Each function exists at widths 1, 2, 3, 4, 8 and 16, as lanemath_<operation><width><variant>. */\n"
             "#ifndef {}\n#define {}\n\n#include <lanemath/types.h>\n\nLANEMATH_BEGIN\n",
             text->title, about, guard, guard);
  for (const auto& o : catalogue) {
    if (o.group != text->group) continue;
    fmt::print(out, "\n/* {}\n * {}.{} */\n", call(o), brief_of(o), bound_text(o));
    for (auto v : variants)
      if (o.has(v))
        fmt::print(out, "LANEMATH_DECLARE({}, {}, {}, {})\n", shape(o.sig), o.name(), suffix(v),
                   fmt::join(types(o.sig), ", "));
  }
  fmt::print(out, "\nLANEMATH_END\n\n#endif\n");
}
