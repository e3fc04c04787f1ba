// Reads what the scripts in tools/fits/ wrote.
#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>

#include "table_writer.h"

namespace {

real number(const std::string& text) {
  real value;
  char* end;
  mpfr_strtofr(value.v, text.c_str(), &end, 0, MPFR_RNDN);
  if (*end != 0 || !mpfr_number_p(value.v)) throw std::runtime_error("not a number: " + text);
  return value;
}

void read_fit(const std::filesystem::path& path, fitted_tables& tables) {
  std::ifstream file(path);
  fitted_rows* rows = nullptr;
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    std::string word;
    words >> word;
    if (word.empty()) continue;
    if (std::isalpha(static_cast<unsigned char>(word[0]))) {
      const auto [place, is_new] = tables.try_emplace(line);
      if (!is_new) throw std::runtime_error("a second table " + line);
      rows = &place->second;
      continue;
    }
    if (!rows) throw std::runtime_error("a row before any name");
    rows->emplace_back();
    do rows->back().push_back(number(word));
    while (words >> word);
  }
  if (!file.eof()) throw std::runtime_error("cannot be read");
}

}  // namespace

fitted_tables read_fits(const std::filesystem::path& folder) {
  fitted_tables tables;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".fit") continue;
    try {
      read_fit(entry.path(), tables);
    } catch (const std::exception& error) {
      throw std::runtime_error(entry.path().string() + ": " + error.what());
    }
  }
  return tables;
}
