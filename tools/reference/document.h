// A page of the reference, which is rendered as HTML and as a manual page.
#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace lanemath::reference {

// Text is plain ASCII; `what is between backquotes` is code.
struct heading {
  std::string text;
};
struct paragraph {
  std::string text;
};
struct code {
  std::vector<std::string> lines;
};
struct table {
  std::vector<std::string> head;
  std::vector<std::vector<std::string>> rows;
};
// Names of pages, each with what it is about.
struct listing {
  std::vector<std::pair<std::string, std::string>> pages;
};
struct references {
  std::vector<std::string> pages;
};

struct document {
  std::string name;                // without section: lanemath_exp
  std::vector<std::string> names;  // of everything that it describes
  std::string brief;
  int section;  // of the manual
  std::vector<std::variant<heading, paragraph, code, table, listing, references>> blocks;
};

std::string html_of(const document& d);
std::string manual_of(const document& d, const std::string& version);

}  // namespace lanemath::reference
