#include "reference/operations.h"

#include <fmt/format.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <stdexcept>

namespace lanemath::reference {
namespace {

constexpr std::string_view known_conditions[] = {"default", "double", "float", "sat", "nosat",
                                                 "rte",     "rtn",    "rtp",   "rtz"};

std::string trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  return first == text.npos ? "" : std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::vector<std::string> split(std::string_view text, std::string_view by) {
  std::vector<std::string> parts;
  for (std::size_t end; (end = text.find(by)) != text.npos; text.remove_prefix(end + by.size()))
    parts.push_back(trimmed(text.substr(0, end)));
  parts.push_back(trimmed(text));
  if (std::ranges::find(parts, "") != parts.end()) throw std::runtime_error("something is missing");
  return parts;
}

void add_cases(std::string_view line, std::vector<special_case>& cases) {
  std::vector<std::string> conditions;
  if (const auto colon = line.find(':'); colon != line.npos) {
    conditions = split(trimmed(line.substr(0, colon)), " ");
    line.remove_prefix(colon + 1);
  }
  for (const auto& each : conditions)
    if (std::ranges::find(known_conditions, each) == std::end(known_conditions))
      throw std::runtime_error("no condition: " + each);
  for (const auto& each : split(line, ";")) {
    const auto sides = split(each, "->");
    if (sides.size() != 2) throw std::runtime_error("not one arrow: " + each);
    cases.push_back({conditions, split(sides[0], ","), split(sides[1], ",")});
  }
}

}  // namespace

bool special_case::has(std::string_view condition) const {
  return std::ranges::find(conditions, condition) != conditions.end();
}

bool special_case::holds_for(const operation& o) const {
  constexpr std::array roundings{"rte", "rtn", "rtp", "rtz"};
  return std::ranges::all_of(conditions, [&](const auto& condition) {
    if (condition == "double" || condition == "float") return o.single() == (condition == "float");
    if (condition == "sat" || condition == "nosat") return o.saturates == (condition == "sat");
    return condition == "default" || condition == roundings.at(std::size_t(o.rounding));
  });
}

bool special_case::holds_for(const operation& o, variant v) const {
  return holds_for(o) && !o.is_unguarded(v) && (v == variant::standard || !has("default"));
}

std::string page_of(const operation& o) {
  if (o.group != family::conversion) return std::string(o.base_name());
  auto end = o.name().npos;
  for (auto rounding : {"rte", "rtn", "rtp", "rtz"}) end = std::min(end, o.name().find(rounding));
  return std::string(o.name().substr(0, end));
}

std::vector<description> read_descriptions(const std::string& path) {
  std::ifstream in(path);
  std::vector<description> all;
  std::string line;
  for (int n = 1; std::getline(in, line); ++n) try {
      if (line.empty() || line[0] == '#') continue;
      if (line[0] != ' ') {
        const auto colon = line.find(':');
        if (colon == line.npos) throw std::runtime_error("no colon after the name");
        all.push_back({line.substr(0, colon), trimmed(line.substr(colon + 1)), {}});
      } else if (all.empty()) {
        throw std::runtime_error("a line before any name");
      } else if (line.find("->") == line.npos) {
        all.back().about += ' ' + trimmed(line);
      } else {
        add_cases(line, all.back().cases);
      }
    } catch (const std::exception& e) {
      throw std::runtime_error(fmt::format("{}:{}: {}", path, n, e.what()));
    }
  if (!in.eof()) throw std::runtime_error("cannot read " + path);

  std::multiset<std::string> described;
  for (const auto& each : all) described.insert(each.page);
  for (const auto& o : catalogue)
    if (described.count(page_of(o)) != 1)
      throw std::runtime_error(fmt::format("{}: {} is not described once", path, page_of(o)));
  return all;
}

}  // namespace lanemath::reference
