// Pages that need nothing but themselves, and fit a narrow screen.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include "reference/document.h"

namespace lanemath::reference {
namespace {

constexpr std::string_view style =
    R"(:root { color-scheme: light dark; }
body { font: 1rem/1.5 sans-serif; max-width: 50rem; margin: 0 auto; padding: 1rem; overflow-wrap: anywhere; }
table { overflow-wrap: normal; }
code, pre { font-family: monospace; }
pre, .wide { overflow-x: auto; }
pre { padding: 0.5rem; border: 1px solid; }
table { border-collapse: collapse; }
th, td { border: 1px solid; padding: 0.2rem 0.5rem; text-align: left; vertical-align: top; }
dd { margin-bottom: 0.5rem; })";

std::string escaped(std::string_view text) {
  std::string out;
  for (char c : text)
    if (c == '&')
      out += "&amp;";
    else if (c == '<')
      out += "&lt;";
    else if (c == '>')
      out += "&gt;";
    else
      out += c;
  return out;
}

std::string inline_of(std::string_view text) {
  std::string out;
  bool in_code = false;
  for (const auto& c : escaped(text))
    if (c == '`')
      out += (in_code = !in_code) ? "<code>" : "</code>";
    else
      out += c;
  return out;
}

std::string link_to(const std::string& page) {
  return fmt::format("<a href=\"{}.html\">{}</a>", page == "lanemath" ? "index" : page, page);
}

std::string block_of(const heading& h) { return fmt::format("<h2>{}</h2>\n", inline_of(h.text)); }
std::string block_of(const paragraph& p) { return fmt::format("<p>{}</p>\n", inline_of(p.text)); }
std::string block_of(const code& c) {
  return fmt::format("<pre>{}</pre>\n", escaped(fmt::format("{}", fmt::join(c.lines, "\n"))));
}
std::string block_of(const table& t) {
  std::string out = "<div class=\"wide\"><table>\n<tr>";
  for (const auto& cell : t.head) out += fmt::format("<th>{}</th>", inline_of(cell));
  out += "</tr>\n";
  for (const auto& row : t.rows) {
    out += "<tr>";
    for (const auto& cell : row) out += fmt::format("<td>{}</td>", inline_of(cell));
    out += "</tr>\n";
  }
  return out + "</table></div>\n";
}
std::string block_of(const listing& l) {
  std::string out = "<dl>\n";
  for (const auto& [page, about] : l.pages)
    out += fmt::format("<dt>{}</dt><dd>{}</dd>\n", link_to(page), inline_of(about));
  return out + "</dl>\n";
}
std::string block_of(const references& r) {
  std::vector<std::string> links;
  for (const auto& page : r.pages) links.push_back(link_to(page));
  return fmt::format("<p>{}</p>\n", fmt::join(links, ", "));
}

}  // namespace

std::string html_of(const document& d) {
  std::string body;
  for (const auto& block : d.blocks) body += std::visit([](const auto& b) { return block_of(b); }, block);
  return fmt::format(
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>{0}: {1}</title>\n"
      "<style>\n{2}\n</style>\n</head>\n<body>\n<h1>{0}</h1>\n<p>{3}: {1}.</p>\n{4}</body>\n</html>\n",
      d.name, inline_of(d.brief), style, fmt::join(d.names, ", "), body);
}

}  // namespace lanemath::reference
