// The page of each function: what the catalogue, the file of errors and operations.txt know of it.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <map>

#include "accuracy/errors.h"
#include "generate/families.h"
#include "generate/opencl.h"
#include "reference/pages.h"

namespace lanemath::reference {
namespace {

using lines = std::vector<std::string>;

std::string name_of(const operation& o) { return fmt::format("lanemath_{}", o.name()); }
std::string title_of(variant v) { return v == variant::standard ? "default" : std::string(suffix(v)); }

std::string list(const auto& items) { return fmt::format("{}", fmt::join(items, ", ")); }

const family_text& family_of(const operation& o) { return *std::ranges::find(families, o.group, &family_text::group); }

std::string brief_of(const std::vector<const operation*>& operations) {
  const auto& o = *operations[0];
  if (o.group != family::conversion) return std::string(o.brief);
  std::vector<std::string_view> from;
  for (const auto* each : operations)
    if (const auto type = type_name(each->sig.arguments[0]); std::ranges::find(from, type) == from.end())
      from.push_back(type);
  const auto to =
      is_floating(o.sig.result) && !is_floating(o.sig.arguments[0]) ? "float or double" : type_name(o.sig.result);
  return fmt::format("{} to {}", fmt::join(from, " or "), to);
}

std::string prototype(const operation& o) {
  lines parameters;
  for (int i = 0; i < o.sig.arity(); ++i)
    parameters.push_back(fmt::format("lanemath_{}W {}", type_name(o.sig.arguments[i]), std::array{"x", "y", "z"}[i]));
  if (o.sig.how == delivery::pointer)
    parameters.push_back(fmt::format("lanemath_{}W* second", type_name(o.sig.second)));
  return fmt::format("lanemath_{}W{} {}W({});", type_name(o.sig.result), o.sig.how == delivery::pair ? "_pair" : "",
                     name_of(o), list(parameters));
}

std::string value(const std::string& text) {
  const bool negative = text.starts_with('-');
  const std::map<std::string, std::string> words{
      {"inf", "infinity"}, {"nan", "NaN"}, {"max", "largest finite"}, {"least", "least denormal"}};
  const auto word = words.find(negative ? text.substr(1) : text);
  return word == words.end() ? text : (negative ? "-" : "") + word->second;
}
std::string values(const lines& texts) {
  lines shown;
  std::ranges::transform(texts, std::back_inserter(shown), value);
  return list(shown);
}

void add_special_values(const description& text, const operation& o, document& page) {
  if (text.cases.empty()) return;
  table t{{o.sig.arity() == 1 ? "Argument" : "Arguments", o.sig.how == delivery::none ? "Result" : "Results", "Forms"},
          {}};
  for (const auto& each : text.cases) {
    lines conditions;
    for (const auto& condition : each.conditions)
      conditions.push_back(condition == "default" ? "default variant" : condition);
    t.rows.push_back({values(each.arguments), values(each.results), conditions.empty() ? "all" : list(conditions)});
  }
  page.blocks.insert(page.blocks.end(), {heading{"Special values"}, std::move(t)});
}

lines error_row(const operation& o, variant v, int width, std::string which_widths) {
  const auto& records = accuracy::recorded_errors();
  const auto record =
      std::ranges::find_if(records, [&](const auto& r) { return r.part.empty() && r.is_of(o, v, width); });
  const auto bound = bound_of(o, v, width);
  std::string found, remark;
  if (record != records.end()) {
    found = accuracy::text_of_error(record->error);
    if (record->rounded) remark = fmt::format("{:.2f} % of results correctly rounded", *record->rounded);
  }
  if (o.is_unguarded(v)) remark = "only in its range, see below";
  if (const auto other = o.served_by(width, v); other != v)
    remark = fmt::format("the same function as {}",
                         other == variant::standard ? "the default" : fmt::format("`{}`", suffix(other)));
  return {std::string(o.name()),
          title_of(v),
          std::move(which_widths),
          !bound        ? ""
          : *bound == 0 ? "exact"
                        : accuracy::text_of_error(*bound),
          found,
          remark};
}

void add_accuracy(const std::vector<const operation*>& operations, document& page) {
  page.blocks.push_back(heading{"Variants and their errors"});
  if (is_exact(operations[0]->group) && bound_of(*operations[0], variant::standard, 1) == 0 &&
      operations[0]->variant_bits == 1) {
    page.blocks.push_back(paragraph{"There is the default variant alone. Every result is what the definition gives."});
    return;
  }
  table t{{"Operation", "Variant", "Widths", "Bound", "Found", ""}, {}};
  bool standalone = false, unguarded = false;
  for (const auto* o : operations)
    for (auto v : variants) {
      if (!o->has(v)) continue;
      unguarded |= o->is_unguarded(v);
      lines own;
      int shared = 0;
      for (int width : widths) {
        if (o->is_standalone(width, v))
          own.push_back(fmt::format("{}", width));
        else
          shared = width;
      }
      t.rows.push_back(error_row(*o, v, shared, own.empty() ? "all" : "others"));
      for (const auto& width : own) t.rows.push_back(error_row(*o, v, std::stoi(width), width));
      standalone |= !own.empty();
    }
  page.blocks.push_back(
      paragraph{"The bound is what is promised on every processor, in units in the last place; beside it stands the "
                "largest error that was found."});
  page.blocks.push_back(std::move(t));
  if (unguarded)
    page.blocks.push_back(paragraph{
        "A form that is marked so tests nothing: outside its range, which the notes below give, its results are "
        "unspecified, those at special values included."});
  page.blocks.push_back(paragraph{
      standalone
          ? "A width with a row of its own has its own algorithm, and last bits of its own. All other widths have "
            "the same bits, lane by lane."
          : "All widths have the same bits, lane by lane."});
}

void add_speed(const std::vector<const operation*>& operations, const speeds& known, document& page) {
  table t{{"Form", "Width 1", "Width 4", "Width 8", "Width 16"}, {}};
  for (const auto* o : operations)
    for (auto v : variants)
      if (const auto form = fmt::format("{}{}", o->name(), suffix(v)); known.of_form.contains(form)) {
        t.rows.push_back({form});
        t.rows.back().insert(t.rows.back().end(), known.of_form.at(form).begin(), known.of_form.at(form).end());
      }
  if (t.rows.empty()) return;
  page.blocks.insert(
      page.blocks.end(),
      {heading{"Speed"},
       paragraph{fmt::format("Nanoseconds per lane on one machine ({}). performance.md has all figures, and those of "
                             "other libraries.",
                             known.processor)},
       t});
}

void add_other_names(const std::vector<const operation*>& operations, document& page) {
  const auto& o = *operations[0];
  page.blocks.push_back(heading{"Other names"});
  if (o.group == family::conversion) {
    table t{{"Operation", "In OpenCL C, at width 4"}, {}};
    for (const auto* each : operations)
      t.rows.push_back({std::string(each->name()), list(opencl_names(*each, variant::standard, 4))});
    page.blocks.push_back(std::move(t));
  } else {
    lines names;
    for (const auto* each : operations)
      for (auto v : variants)
        if (each->has(v))
          for (const auto& name : opencl_names(*each, v, 4))
            if (const auto shown = fmt::format("`{}`", name); std::ranges::find(names, shown) == names.end())
              names.push_back(shown);
    page.blocks.push_back(paragraph{names.empty() ? "In OpenCL C no built-in function calls it."
                                                  : fmt::format("In OpenCL C: {}.", list(names))});
  }
  if (o.group != family::conversion) {
    lines names;
    for (auto v : variants)
      if (std::ranges::any_of(operations, [&](const auto* each) { return each->has(v); }))
        names.push_back(fmt::format(
            "`lanemath::{}{}`", v == variant::standard ? "" : fmt::format("{}::", suffix(v).substr(1)), o.base_name()));
    page.blocks.push_back(
        paragraph{fmt::format("In C++, with `lanemath/lanemath.hpp`, for scalars and vectors: {}.", list(names))});
  }
  page.blocks.push_back(
      paragraph{fmt::format("The exported symbols are `{}<operation><width><variant>`, such as `{}{}4`.", symbol_prefix,
                            symbol_prefix, o.name())});
}

// exp2 in C is exp on two doubles.
void add_trap(const operation& o, document& page) {
  for (const auto& other : catalogue)
    for (int width : widths)
      if (fmt::format("{}{}", other.name(), width) == o.name())
        page.blocks.push_back(
            paragraph{fmt::format("In C the function `{}` is `{}` at width {}. This operation at width 1 is `{}1`.",
                                  name_of(o), other.name(), width, name_of(o))});
}

document page_about(const description& text, const std::vector<const operation*>& operations, const speeds& speed) {
  const auto& o = *operations[0];
  document page{"lanemath_" + text.page, {}, brief_of(operations), 3, {}};
  code synopsis{{"#include <lanemath/lanemath.h>", ""}};
  for (const auto* each : operations) {
    page.names.push_back(name_of(*each));
    synopsis.lines.push_back(prototype(*each));
  }
  if (std::ranges::find(page.names, page.name) == page.names.end()) page.names.insert(page.names.begin(), page.name);
  lines suffixes;
  for (auto v : variants)
    if (v != variant::standard && std::ranges::any_of(operations, [&](const auto* each) { return each->has(v); }))
      suffixes.push_back(fmt::format("`{}`", suffix(v)));
  page.blocks = {heading{"Synopsis"}, synopsis,
                 paragraph{fmt::format(
                     "W is 1, 2, 3, 4, 8 or 16.{}",
                     suffixes.empty() ? "" : fmt::format(" A variant's suffix follows it: {}.", list(suffixes)))},
                 heading{"Description"},
                 paragraph{fmt::format("For each lane: {}. {}", brief_of(operations), text.about)}};
  if (o.sig.how == delivery::pointer)
    page.blocks.push_back(paragraph{
        "The second result is stored at `second`, an address of any alignment. At width 3 four lanes are stored."});
  if (o.sig.how == delivery::pair)
    page.blocks.push_back(paragraph{"The results are the members `first` and `second` of a structure."});
  for (const auto* each : operations) add_trap(*each, page);
  add_special_values(text, o, page);
  add_accuracy(operations, page);
  add_speed(operations, speed, page);
  add_other_names(operations, page);
  page.blocks.push_back(heading{std::string(family_of(o).title)});
  std::string about(family_of(o).about);
  std::ranges::replace(about, '\n', ' ');
  page.blocks.push_back(paragraph{about});
  return page;
}

}  // namespace

std::vector<document> function_pages(const std::vector<description>& descriptions, const speeds& speed) {
  std::vector<document> pages;
  std::map<family, lines> of_family;
  std::vector<family> groups;
  for (const auto& text : descriptions) {
    std::vector<const operation*> operations;
    for (const auto& o : catalogue)
      if (page_of(o) == text.page) operations.push_back(&o);
    pages.push_back(page_about(text, operations, speed));
    groups.push_back(operations[0]->group);
    of_family[groups.back()].push_back(pages.back().name);
  }
  for (std::size_t i = 0; i < pages.size(); ++i) {
    lines others{"lanemath"};
    for (const auto& name : of_family[groups[i]])
      if (name != pages[i].name) others.push_back(name);
    pages[i].blocks.insert(pages[i].blocks.end(), {heading{"See also"}, references{others}});
  }
  return pages;
}

}  // namespace lanemath::reference
