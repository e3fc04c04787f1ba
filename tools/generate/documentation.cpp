#include "documentation.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <array>
#include <sstream>
#include <vector>

#include "accuracy/errors.h"
#include "families.h"
#include "names.h"

namespace lanemath {

namespace {

// The words in lines of up to `length` characters. Blank lines stay.
std::vector<std::string> wrapped(const std::string& text, std::size_t length) {
  std::vector<std::string> lines{""};
  std::istringstream given(text);
  for (std::string part, word; std::getline(given, part);) {
    std::istringstream words(part);
    if (part.empty()) lines.insert(lines.end(), 2, "");
    while (words >> word) {
      auto& line = lines.back();
      if (line.empty())
        line = word;
      else if (line.size() + 1 + word.size() <= length)
        line += " " + word;
      else
        lines.push_back(word);
    }
  }
  return lines;
}

std::string comment(std::string_view opening, const std::string& text) {
  constexpr std::size_t most = 120;
  if (opening.size() + text.size() + 4 <= most && text.find('\n') == text.npos)
    return fmt::format("{} {} */\n", opening, text);
  std::string all(opening);
  bool first = true;
  for (const auto& line : wrapped(text, most - 6)) {
    all += (first ? "" : "\n *") + (line.empty() ? "" : " " + line);
    first = false;
  }
  return all + " */\n";
}

// How the variant relates to its neighbours.
std::string relation_of(const operation& o, variant v, int width) {
  std::string text;
  if (const auto other = o.served_by(width, v); other != v)
    text = fmt::format(" The same function as {}.", other == variant::standard ? "the default form" : suffix(other));
  else if (o.is_standalone(width, v))
    text = " An algorithm of its own: the last bits differ from those of other widths.";
  if (o.is_unguarded(v)) text += " Tests no argument, so the range at the head of the file binds.";
  return text;
}

std::string bound_text(const operation& o, variant v, int width) {
  const auto bound = bound_of(o, v, width);
  if (!bound) return "";
  return is_exact(o.group) && *bound == 0 ? " Exact, or rounded once."
                                          : fmt::format(" Largest error {:g} ulp.", *bound);
}

std::string_view file_of(family group) {
  return std::find_if(std::begin(families), std::end(families), [=](const auto& f) { return f.group == group; })->file;
}

}  // namespace

std::string brief_of(const operation& o) {
  if (o.group != family::conversion) return std::string(o.brief);
  const auto rounding = std::array{"to nearest even", "down", "up", "toward zero"}.at(std::size_t(o.rounding));
  return fmt::format("{} to {}, rounded {}{}", type_name(o.sig.arguments[0]), type_name(o.sig.result), rounding,
                     o.saturates ? ", clamped to the range of the result" : "");
}

std::string description(const operation& o, variant v, int width) {
  const auto lanes = width == 1 ? "one" : fmt::format("{} lanes of", width);
  return fmt::format("{}; {} {}.{}{} Domain and special values: at the head of <lanemath/{}.h>.", brief_of(o), lanes,
                     type_name(o.sig.arguments[0]), relation_of(o, v, width), bound_text(o, v, width),
                     file_of(o.group));
}

std::string description_for_cpp(const operation& o, variant v) {
  auto brief = brief_of(o);
  constexpr std::string_view in_c = " through the pointer";
  if (const auto at = brief.find(in_c); at != brief.npos)
    brief.replace(at, in_c.size(), fmt::format(" as .{}", results_of(o).second));
  std::vector<std::string> errors;
  for (const auto& p : catalogue) {
    if (p.base_name() != o.base_name() || p.group != o.group || !p.has(v)) continue;
    // One width without an algorithm of its own stands for all that share its bound.
    bool shared = false;
    for (int width : widths) {
      const bool own = p.is_standalone(width, v);
      const auto bound = bound_of(p, v, width);
      if (!bound || *bound == 0 || (!own && shared)) continue;
      shared |= !own;
      errors.push_back(fmt::format("{:g} for {}{}", *bound, type_name(p.sig.arguments[0]),
                                   own ? fmt::format(" at width {}", width) : ""));
    }
  }
  return fmt::format("{}.{} Domain and special values: at the head of <lanemath/{}.h>.", brief,
                     errors.empty() ? "" : fmt::format(" Largest error in ulp: {}.", fmt::join(errors, ", ")),
                     file_of(o.group));
}

std::string documentation(const std::string& text) { return comment("/**", text); }
std::string head(const std::string& text) { return comment("/*", text); }

}  // namespace lanemath
