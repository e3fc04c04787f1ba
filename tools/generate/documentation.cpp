#include "documentation.h"

#include <fmt/format.h>

#include <array>
#include <sstream>
#include <vector>

#include "accuracy/errors.h"

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

}  // namespace

std::string brief_of(const operation& o) {
  if (o.group != family::conversion) return std::string(o.brief);
  const auto rounding = std::array{"to nearest even", "down", "up", "toward zero"}.at(std::size_t(o.rounding));
  return fmt::format("{} to {}, rounded {}{}", type_name(o.sig.arguments[0]), type_name(o.sig.result), rounding,
                     o.saturates ? ", clamped to the range of the result" : "");
}

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

std::string documentation(const std::string& text) { return comment("/**", text); }
std::string head(const std::string& text) { return comment("/*", text); }

}  // namespace lanemath
