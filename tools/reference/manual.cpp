// Manual pages in the man macros, with tables for tbl.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cctype>

#include "reference/document.h"

namespace lanemath::reference {
namespace {

// As it stands, whatever characters it holds.
std::string escaped(std::string_view text) {
  std::string out;
  for (char c : text)
    if (c == '\\')
      out += "\\e";
    else if (c == '-')
      out += "\\-";
    else if (c == '^')
      out += "\\(ha";
    else if (c == '~')
      out += "\\(ti";
    else
      out += c;
  if (out.starts_with('.') || out.starts_with('\'')) out.insert(0, "\\&");
  return out;
}

std::string inline_of(std::string_view text) {
  std::string out;
  bool in_code = false;
  for (char c : escaped(text))
    if (c == '`')
      out += (in_code = !in_code) ? "\\fB" : "\\fR";
    else
      out += c;
  return out;
}

std::string capitals(std::string text) {
  std::ranges::transform(text, text.begin(), [](unsigned char c) { return char(std::toupper(c)); });
  return text;
}

int section_of(const std::string& page) { return page == "lanemath" ? 7 : 3; }
std::string reference_to(const std::string& page) {
  return fmt::format("\\fB{}\\fR({})", escaped(page), section_of(page));
}

std::string block_of(const heading& h) { return fmt::format(".SH {}\n", capitals(escaped(h.text))); }
std::string block_of(const paragraph& p) { return inline_of(p.text) + '\n'; }
std::string block_of(const code& c) {
  std::string out = ".nf\n";
  for (const auto& line : c.lines) out += fmt::format("    {}\n", escaped(line));
  return out + ".fi\n";
}
// The last column takes the room that the others leave.
std::string block_of(const table& t) {
  std::string out = ".TS\n";
  for (std::size_t i = 1; i < t.head.size(); ++i) out += "l ";
  out += "lx.\n";
  const auto add = [&](const std::vector<std::string>& row) {
    for (std::size_t i = 0; i + 1 < row.size(); ++i) out += inline_of(row[i]) + '\t';
    out += fmt::format("T{{\n{}\nT}}\n", inline_of(row.back()));
  };
  add(t.head);
  for (const auto& row : t.rows) add(row);
  return out + ".TE\n";
}
std::string block_of(const listing& l) {
  std::string out;
  for (const auto& [page, about] : l.pages) out += fmt::format(".TP\n{}\n{}\n", reference_to(page), inline_of(about));
  return out;
}
std::string block_of(const references& r) {
  std::vector<std::string> all;
  for (const auto& page : r.pages) all.push_back(reference_to(page));
  return fmt::format("{}\n", fmt::join(all, ",\n"));
}

}  // namespace

std::string manual_of(const document& d, const std::string& version) {
  std::string body;
  bool after_heading = false;
  for (const auto& block : d.blocks) {
    const bool is_heading = std::holds_alternative<heading>(block), is_listing = std::holds_alternative<listing>(block);
    if (!is_heading && !is_listing && !after_heading) body += ".PP\n";
    body += std::visit([](const auto& b) { return block_of(b); }, block);
    after_heading = is_heading;
  }
  return fmt::format("'\\\" t\n.TH {} {} \"\" \"lanemath {}\" \"lanemath\"\n.SH NAME\n{} \\- {}\n{}",
                     capitals(escaped(d.name)), d.section, version,
                     escaped(fmt::format("{}", fmt::join(d.names, ", "))), inline_of(d.brief), body);
}

}  // namespace lanemath::reference
