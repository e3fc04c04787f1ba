// What is made from the file of errors, and what keeps it true: the tables of the accuracy document, and a new
// measurement at every recorded place.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fstream>
#include <sstream>

#include "accuracy/errors.h"
#include "accuracy/measure.h"
#include "generate/families.h"

namespace {

using namespace lanemath;
using namespace lanemath::accuracy;

// If a form's error holds only on the processor measured, what it may be on any.
std::optional<double> bound_anywhere(const error_record& r, const std::vector<error_record>& records) {
  for (const auto& whole : records)
    if (whole.index == r.index && whole.width == r.width && whole.part.empty() && whole.has(r.variants[0]))
      return whole.anywhere;
  return std::nullopt;
}

int check(const harness::library& library) {
  int measured = 0, wrong = 0;
  const auto& records = recorded_errors();
  for (const auto& r : records) {
    if (!r.at) continue;
    const auto& o = catalogue[r.index];
    const auto* reference = find_reference(o);
    const int width = r.width ? r.width : widths.back();
    for (auto v : r.variants) {
      const auto name = harness::symbol(o, width, v);
      const auto f = library.find(r.index, v, width);
      if (!reference || !f) throw std::runtime_error(fmt::format("{}: nothing to measure", name));
      const double error = rounded_up(measure_at(o, *reference, *f, width, *r.at).largest_error, 6);
      ++measured;
      const auto limit = bound_anywhere(r, records);
      if (limit ? error <= *limit : error == r.error) continue;
      fmt::print("{} at {}: {} ulp, recorded {}\n", name, text_of(o, *r.at), text_of_error(error),
                 text_of_error(limit.value_or(r.error)));
      ++wrong;
    }
  }
  fmt::print("{} of {} errors are not what they should be\n", wrong, measured);
  return wrong ? 1 : 0;
}

// `default`, or the suffixes.
std::string form_text(const error_record& r, const std::vector<error_record>& records) {
  std::vector<std::string> words;
  for (auto v : r.variants) words.push_back(v == variant::standard ? "default" : fmt::format("`{}`", suffix(v)));
  if (r.width) words.push_back(fmt::format("width {}", r.width));
  const bool has_others = std::any_of(records.begin(), records.end(), [&](const error_record& other) {
    return other.index == r.index && other.width &&
           std::any_of(r.variants.begin(), r.variants.end(), [&](variant v) { return other.has(v); });
  });
  if (!r.width && has_others) words.push_back("other widths");
  return fmt::format("{}{}{}", fmt::join(words, ", "), r.part.empty() ? "" : ": ", r.part);
}

// The table of the families and the precision that a marker names.
std::string table(const std::string& names) {
  std::istringstream words(names);
  std::vector<family> groups;
  std::optional<bool> single;
  for (std::string word; words >> word;) {
    const auto* text =
        std::find_if(std::begin(families), std::end(families), [&](const auto& each) { return each.file == word; });
    if (text != std::end(families))
      groups.push_back(text->group);
    else if (word == "single" || word == "double")
      single = word == "single";
    else
      throw std::runtime_error(fmt::format("no family of operations: {}", word));
  }
  std::vector<std::vector<std::string>> rows;
  const auto& records = recorded_errors();
  for (const auto& r : records) {
    const auto& o = catalogue[r.index];
    if (std::find(groups.begin(), groups.end(), o.group) == groups.end() || (single && *single != o.single())) continue;
    rows.push_back({fmt::format("`{}`", o.name()), form_text(r, records), text_of_error(r.error),
                    r.anywhere ? text_of_error(*r.anywhere) : "", r.rounded ? fmt::format("{:.4f} %", *r.rounded) : "",
                    r.at ? text_of(o, *r.at) : "", r.search});
  }
  if (rows.empty()) throw std::runtime_error(fmt::format("no errors of {}", names));

  const std::vector<std::string> heads{"operation", "form", "largest error", "any processor",
                                       "rounded",   "at",   "found in"};
  std::vector<std::string> lines(rows.size() + 2);
  for (std::size_t column = 0; column < heads.size(); ++column) {
    if (std::all_of(rows.begin(), rows.end(), [&](const auto& row) { return row[column].empty(); })) continue;
    lines[0] += fmt::format("| {} ", heads[column]);
    lines[1] += "|---";
    for (std::size_t i = 0; i < rows.size(); ++i) lines[i + 2] += fmt::format("| {} ", rows[i][column]);
  }
  return fmt::format("{}|\n", fmt::join(lines, "|\n"));
}

// The document with the tables between its markers made anew.
std::string with_tables(const std::string& text) {
  constexpr std::string_view opening = "<!-- errors: ", closing = "<!-- end of errors -->";
  std::string made;
  std::istringstream in(text);
  bool inside = false;
  for (std::string line; std::getline(in, line);) {
    if (line == closing) {
      if (!inside) throw std::runtime_error("the end of a table that did not begin");
      inside = false;
    }
    if (!inside) made += line + '\n';
    if (line.starts_with(opening)) {
      if (inside || !line.ends_with(" -->")) throw std::runtime_error("a table that does not end: " + line);
      inside = true;
      made += '\n' + table(line.substr(opening.size(), line.size() - opening.size() - 4)) + '\n';
    }
  }
  if (inside) throw std::runtime_error("the last table does not end");
  return made;
}

int document(const std::string& path, bool only_compare) {
  std::ifstream in(path);
  std::ostringstream text;
  if (!(text << in.rdbuf())) throw std::runtime_error("cannot read " + path);
  const auto made = with_tables(text.str());
  if (made == text.str()) return 0;
  if (only_compare) {
    fmt::print("{} is not what `lanemath-errors document` makes of {}\n", path, errors_path);
    return 1;
  }
  replace_file(path, made);
  return 0;
}

}  // namespace

int main(int argc, char** argv) try {
  CLI::App app{"The recorded errors of lanemath's functions."};
  app.require_subcommand(1);
  std::string library = LANEMATH_LIBRARY, path;
  bool only_compare = false;
  auto* checking = app.add_subcommand("check", "measure every recorded place again");
  checking->add_option("-l,--library", library, "the library to measure");
  auto* documenting = app.add_subcommand("document", "make the tables of the accuracy document");
  documenting->add_option("FILE", path, "the document")->required();
  documenting->add_flag("--check", only_compare, "write nothing; fail where the document would change");
  CLI11_PARSE(app, argc, argv);
  return *checking ? check(harness::library(library)) : document(path, only_compare);
} catch (const std::exception& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 2;
}
