#include "reference/speed.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace lanemath::reference {

// The rows that the benchmark prints: a form; calls at widths 1, 2, 3 and 4; lanes at widths 4, 8 and 16; and ten more
// columns or nine, as one may be empty. Shorter rows are of other tables.
std::map<std::string, speeds> read_speeds(const std::string& path) {
  constexpr std::size_t fewest_columns = 17;
  std::ifstream in(path);
  std::map<std::string, speeds> all;
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    const std::vector<std::string> row{std::istream_iterator<std::string>(words), {}};
    const auto is_number = [](const std::string& word) { return word.find_first_not_of("0123456789.") == word.npos; };
    if (line.starts_with("    ") && row.size() >= fewest_columns &&
        std::all_of(row.begin() + 1, row.begin() + 8, is_number))
      all[row[0]] = {row[1], row[5], row[6], row[7]};
  }
  if (all.empty()) throw std::runtime_error("no figures in " + path);
  return all;
}

}  // namespace lanemath::reference
