// Measures errors for the report, enters them into the file of errors, and keeps what rests on that file true: the
// figures in the heads of source files, and a new measurement at every recorded place.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>
#include <regex>
#include <set>
#include <sstream>

#include "accuracy/errors.h"
#include "accuracy/measure.h"
#include "accuracy/shares.h"
#include "generate/families.h"
#include "harness/files.h"

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
  const auto demand = [&](std::size_t index, variant v, int own_width, const arguments& at, double recorded,
                          std::optional<double> limit = {}) {
    const auto& o = catalogue[index];
    const auto* reference = find_reference(o);
    const int width = own_width ? own_width : widths.back();
    const auto name = harness::symbol(o, width, v);
    const auto f = library.find(index, v, width);
    if (!reference || !f) throw std::runtime_error(fmt::format("{}: nothing to measure", name));
    const double error = rounded_up(measure_at(o, *reference, *f, width, at).largest_error, 6);
    ++measured;
    if (limit ? error <= *limit : error == recorded) return;
    fmt::print("{} at {}: {} ulp, recorded {}\n", name, text_of(o, at), text_of_error(error),
               text_of_error(limit.value_or(recorded)));
    ++wrong;
  };
  const auto& records = recorded_errors();
  for (const auto& r : records)
    for (auto v : r.variants)
      if (r.at) demand(r.index, v, r.width, *r.at, r.error, bound_anywhere(r, records));
  for (const auto& s : read_shares(shares_path())) demand(s.index, variant::standard, s.width, s.at, s.error);
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

std::string text_of_file(const std::string& path) {
  std::ifstream in(path);
  std::ostringstream text;
  if (!(text << in.rdbuf())) throw std::runtime_error("cannot read " + path);
  return text.str();
}

// Measures until every road, or every one of these operations, has so many lanes.
int measure_shares(const harness::library& library, const std::vector<std::string>& operations, std::uint64_t lanes,
                   unsigned threads, const std::string& path) {
  auto lines = read_shares(path);
  for (const auto& name : operations)
    if (std::ranges::none_of(roads(), [&](const road& r) { return r.operation == name; }))
      throw std::runtime_error("no share to be measured of " + name);
  for (const auto& r : roads()) {
    if (!operations.empty() && std::ranges::find(operations, r.operation) == operations.end()) continue;
    const auto index = index_of(r.operation);
    auto line = std::ranges::find_if(
        lines, [&](const share& s) { return s.index == index && s.width == r.width && s.part == r.part; });
    if (line == lines.end()) line = lines.insert(line, {.index = index, .width = r.width, .part = std::string(r.part)});
    extend(*line, r, library, lanes, threads, [&] { write_shares(path, lines); });
  }
  return 0;
}

// The largest errors of the operations that a source file exports, as a paragraph of its head.
std::string errors_in(const std::string& source) {
  const std::regex line(R"(LANEMATH_EXPORT(?:_AT|_BUT)?\((?:\d+, )?(\w+))");
  std::set<std::size_t> exported;
  for (std::sregex_iterator found(source.begin(), source.end(), line), end; found != end; ++found)
    exported.insert(index_of(found->str(1)));

  std::string made;
  const auto& records = recorded_errors();
  for (const auto index : exported) {
    std::string text, row = "//  ";
    for (const auto& r : records)
      if (r.index == index && r.part.empty())
        text += fmt::format("{}{} {}{}", text.empty() ? "" : "; ",
                            std::regex_replace(form_text(r, records), std::regex("`"), ""), text_of_error(r.error),
                            r.anywhere ? fmt::format(" ({} on any processor)", text_of_error(*r.anywhere)) : "");
    if (text.empty()) continue;
    std::istringstream words(fmt::format("{}: {}", catalogue[index].name(), text));
    for (std::string word; words >> word; row += ' ' + word)
      if (row.size() + 1 + word.size() > 120) {
        made += row + '\n';
        row = "//    ";
      }
    made += row + '\n';
  }
  return made.empty() ? made : "// Largest errors found, in ulp:\n" + made;
}

// The source with that paragraph in its head, behind the method.
std::string with_head(const std::string& source) {
  std::vector<std::string> paragraphs(1);
  std::istringstream in(source);
  std::string rest;
  bool in_head = true;
  for (std::string line; std::getline(in, line);) {
    in_head = in_head && line.starts_with("//");
    if (!in_head)
      rest += line + '\n';
    else if (line == "//")
      paragraphs.emplace_back();
    else
      paragraphs.back() += line + '\n';
  }
  std::erase_if(paragraphs, [](const auto& p) { return p.starts_with("// Largest errors found"); });
  if (const auto errors = errors_in(source); !errors.empty())
    paragraphs.insert(
        std::find_if(paragraphs.begin(), paragraphs.end(), [](const auto& p) { return p.starts_with("// Looks odd"); }),
        errors);
  return fmt::format("{}{}", fmt::join(paragraphs, "//\n"), rest);
}

// The forms of an operation that have code of their own, and the variants that share each.
struct distinct_form {
  std::vector<variant> of{};
  int width = 0;  // of a standalone form, or 0
};
std::vector<distinct_form> distinct_forms(const operation& o) {
  std::vector<distinct_form> found;
  std::vector<variant> by;
  for (const int width : {0, 1, 2, 3, 4, 8, 16})
    for (auto v : variants) {
      if (!o.has(v) || (width && !own_width(o, v, width))) continue;
      const auto server = width ? o.served_by(width, v) : o.shared[std::size_t(v)];
      std::size_t k = 0;
      while (k < found.size() && !(found[k].width == width && by[k] == server)) ++k;
      if (k == found.size()) {
        found.push_back({.width = width});
        by.push_back(server);
      }
      found[k].of.push_back(v);
    }
  return found;
}

// What there is to measure: operations that are not exact.
std::vector<std::size_t> measurable() {
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < catalogue.size(); ++i)
    if (!is_exact(catalogue[i].group) && find_reference(catalogue[i])) found.push_back(i);
  return found;
}

std::size_t measurable(const std::string& name) {
  for (const auto index : measurable())
    if (catalogue[index].name() == name) return index;
  throw std::runtime_error("no operation to measure: " + name);
}

using json = nlohmann::ordered_json;

int list() {
  auto listed = json::array();
  for (const auto index : measurable()) {
    const auto& o = catalogue[index];
    constexpr std::array abscissas{"argument", "result", "quotient"};
    const auto* text = std::ranges::find_if(families, [&](const auto& each) { return each.group == o.group; });
    const auto& exact = *find_reference(o);
    const auto symmetry = exact.second ? exact.symmetry[0] : o.symmetry;
    listed.push_back({{"operation", o.name()},
                      {"family", text->file},
                      {"sweeps", can_sweep(o, exact)},
                      {"symmetric", symmetry != parity::none},
                      {"over", abscissas.at(std::size_t(exact.over))}});
  }
  fmt::print("{}\n", listed.dump());
  return 0;
}

json json_of(const operation& o, const tally& found) {
  if (found.lanes == 0) return nullptr;
  return {{"error", text_of_error(rounded_up(found.largest_error, 6))},
          {"at", text_of_place(o, found.input)},
          {"lanes", found.lanes},
          {"rounded", found.correctly_rounded}};
}

// Enters the figures of a report into the file of errors.
int record(const std::string& report, const std::string& path) {
  const auto figures = json::parse(text_of_file(report));
  auto records = read_errors(path);
  for (const auto& [name, of] : figures.at("operations").items()) {
    const auto index = measurable(name);
    const auto& o = catalogue[index];
    for (const auto& one : of.at("forms")) {
      error_record found{.index = index, .width = one.at("width")};
      const auto names = one.at("variants").get<std::vector<std::string>>();
      for (auto v : variants)
        if (std::ranges::find(names, name_of(v)) != names.end()) found.variants.push_back(v);
      if (found.variants.empty() || own_width(o, found.variants[0], found.width) != found.width)
        throw std::runtime_error("no form of " + name);
      const bool sweeps = of.at("all");
      const auto enter = [&](const std::string& part, const json& figures) {
        found.part = part;
        found.error = std::stod(figures.at("error").get<std::string>());
        found.at = place_in(figures.at("at").get<std::string>(), o.sig);
        found.search = sweeps ? swept_inputs(o, found.variants[0]) : "directed search";
        if (sweeps) found.rounded = 100 * figures.at("rounded").get<double>() / figures.at("lanes").get<double>();
        merge(records, found);
      };
      enter("", one);
      for (const auto& part : one.at("parts").items())
        if (std::ranges::any_of(records, [&](const auto& r) {
              return r.part == part.key() && r.index == index && r.width == found.width && r.has(found.variants[0]);
            }))
          enter(part.key(), part.value());
    }
  }
  write_errors(path, std::move(records));
  return 0;
}

// Measures one portion of an operation's arguments, and prints what it finds.
int measure(const harness::library& library, const std::string& name, portion which, std::size_t lanes,
            unsigned threads) {
  if (which.number >= which.of) throw std::runtime_error("there is no such portion");
  const auto index = measurable(name);
  const auto& o = catalogue[index];
  const auto& exact = *find_reference(o);
  const auto distinct = distinct_forms(o);
  std::vector<form> forms;
  for (const auto& each : distinct) {
    const int width = each.width ? each.width : widths.back();
    const auto f = library.find(index, each.of[0], width);
    if (!f) throw std::runtime_error(fmt::format("{} is not exported by this library", o.name()));
    forms.push_back({*f, width, o.is_unguarded(each.of[0])});
  }
  const bool sweeps = can_sweep(o, exact);
  auto found =
      sweeps ? sweep(o, exact, forms, which, threads, [](double) {}) : search(o, exact, forms, lanes, which, threads);
  auto made = json::array();
  for (std::size_t k = 0; k < forms.size(); ++k) {
    std::vector<std::string_view> names;
    for (auto v : distinct[k].of) names.push_back(name_of(v));
    const auto climb_from = [&](const arguments& at) {
      found[k].all.merge(climb(o, exact, forms[k].f, forms[k].width, at, lanes / 20 + 1, which.number + 1, threads));
    };
    if (!sweeps && !forms[k].unguarded) {
      climb_from(found[k].all.input);
      for (const auto& r : recorded_errors())
        if (r.at && r.is_of(o, distinct[k].of[0], forms[k].width)) climb_from(*r.at);
    }
    json curve = json::array(), parts;
    for (const auto& [cell, error] : found[k].curve) curve.push_back({cell, error});
    for (const auto& [part, of] : found[k].parts) parts[part] = json_of(o, of);
    auto one = json_of(o, found[k].all);
    one["variants"] = names;
    one["width"] = distinct[k].width;
    one["parts"] = parts;
    one["curve"] = curve;
    made.push_back(one);
  }
  fmt::print("{}\n", made.dump());
  return 0;
}

int heads(const std::vector<std::string>& paths, bool only_compare) {
  int different = 0;
  for (const auto& path : paths) {
    const auto text = text_of_file(path), made = with_head(text);
    if (made == text) continue;
    ++different;
    if (only_compare)
      fmt::print("{}: its head does not state the recorded errors\n", path);
    else
      harness::replace_file(path, made);
  }
  return only_compare && different ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) try {
  CLI::App app{"The recorded errors of lanemath's functions."};
  app.require_subcommand(1);
  std::string library = harness::default_library(), errors = errors_path(), path;
  bool only_compare = false;
  auto* checking = app.add_subcommand("check", "measure every recorded place again");
  checking->add_option("-l,--library", library, "the library to measure");
  std::vector<std::string> sources, operations;
  auto* heading = app.add_subcommand("heads", "state the errors in the heads of source files");
  heading->add_option("FILES", sources, "source files that export functions")->required()->check(CLI::ExistingFile);
  heading->add_flag("--check", only_compare, "write nothing; fail where a head would change");
  std::string shares = shares_path();
  std::uint64_t lanes = 100 * share::block;
  unsigned threads = 2;
  auto* sharing = app.add_subcommand("shares", "count correctly rounded results on rare roads, from where it was left");
  sharing->add_option("operations", operations, "only of these operations");
  sharing->add_option("-n,--lanes", lanes, "lanes of each")->capture_default_str();
  sharing->add_option("-j,--threads", threads)->check(CLI::Range(1, 256))->capture_default_str();
  sharing->add_option("-f,--file", shares, "the file of shares")->check(CLI::ExistingFile)->capture_default_str();
  sharing->add_option("-l,--library", library, "the library to measure");
  auto* listing = app.add_subcommand("list", "the operations that can be measured, as JSON");
  std::string operation;
  portion which;
  auto* measuring =
      app.add_subcommand("measure", "the errors of an operation's forms, over all floats or by a search, as JSON");
  measuring->add_option("OPERATION", operation, "such as expf")->required();
  measuring->add_option("-p,--portion", which.number, "only this one, from 0 on")->capture_default_str();
  measuring->add_option("--of", which.of, "portions")->check(CLI::Range(1, 1 << 17))->capture_default_str();
  measuring->add_option("-n,--lanes", lanes, "of each range, in a search")->check(CLI::PositiveNumber);
  measuring->add_option("-j,--threads", threads)->check(CLI::Range(1, 256))->capture_default_str();
  measuring->add_option("-l,--library", library, "the library to measure");
  auto* recording = app.add_subcommand("record", "enter the figures of a report into the file of errors");
  recording->add_option("REPORT", path, "its JSON")->required();
  recording->add_option("-f,--file", errors, "the file of errors")->check(CLI::ExistingFile)->capture_default_str();
  CLI11_PARSE(app, argc, argv);
  const int status = *heading     ? heads(sources, only_compare)
                     : *listing   ? list()
                     : *measuring ? measure(harness::library(library), operation, which, lanes, threads)
                     : *recording ? record(path, errors)
                     : *sharing   ? measure_shares(harness::library(library), operations, lanes, threads, shares)
                                  : check(harness::library(library));
  harness::finish_output();
  return status;
} catch (const std::exception& e) {
  fmt::print(stderr, "{}: {}\n", argv[0], e.what());
  return 2;
}
