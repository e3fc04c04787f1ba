#include "results.h"

#include <algorithm>

#include "harness/files.h"

namespace lanemath::bench {

results::results(const std::string& json_path) : json_path_(json_path) {
  if (json_path.empty()) return;
  harness::check_writable(json_path);
  json_.emplace().SetOutputStream(&json_text_);
}

void results::write() {
  if (!json_) return;
  json_->Finalize();
  harness::replace_file(json_path_, json_text_.view());
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
