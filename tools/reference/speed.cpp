#include "reference/speed.h"

#include <fmt/format.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace lanemath::reference {

speeds read_speeds(const std::string& path) try {
  std::ifstream in(path);
  const auto figures = nlohmann::json::parse(in);
  speeds all{figures.at("about").at("processor"), {}};
  for (const auto& [form, measured] : figures.at("forms").items()) {
    auto& row = all.of_form[form];
    for (const auto* width : {"1", "4", "8", "16"})
      row.push_back(fmt::format("{:.2f}", measured.at("lane").at(width).get<double>()));
  }
  return all;
} catch (const nlohmann::json::exception& e) {
  throw std::runtime_error(fmt::format("no figures in {}: {}", path, e.what()));
}

}  // namespace lanemath::reference
