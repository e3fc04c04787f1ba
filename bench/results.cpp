#include "results.h"

#include <fmt/format.h>

#include <algorithm>
#include <stdexcept>

namespace lanemath::bench {

results::results(const std::string& json_path) {
  if (json_path.empty()) return;
  json_file_.open(json_path);
  if (!json_file_) throw std::runtime_error(fmt::format("cannot write {}", json_path));
  json_.emplace().SetOutputStream(&json_file_);
}

results::~results() {
  if (json_ && context_reported_) json_->Finalize();
}

std::optional<double> results::nanoseconds(const std::string& benchmark) const {
  const auto found = best_.find(benchmark);
  return found == best_.end() ? std::nullopt : std::optional(found->second * 1e9);
}

bool results::ReportContext(const Context& context) {
  // Called once for each operation, but a JSON file has one context.
  if (json_ && !context_reported_) json_->ReportContext(context);
  context_reported_ = true;
  return true;
}

void results::ReportRuns(const std::vector<Run>& runs) {
  for (const auto& run : runs) {
    if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
    const double seconds = run.counters.at(seconds_per_lane);
    const auto [best, first] = best_.try_emplace(run.run_name.function_name, seconds);
    best->second = std::min(best->second, seconds);
  }
  if (json_) json_->ReportRuns(runs);
}

}  // namespace lanemath::bench
