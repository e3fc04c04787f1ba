// Keeps the best time of every benchmark, and passes all measurements on to a JSON file.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <sstream>
#include <string>

namespace lanemath::bench {

// The counter that holds a benchmark's time per lane.
inline constexpr auto seconds_per_lane = "seconds_per_lane";

class results : public benchmark::BenchmarkReporter {
 public:
  explicit results(const std::string& json_path);

  bool empty() const { return best_.empty(); }
  // Per lane, the least of all repetitions: on a shared machine anything above it is other people's work.
  std::optional<double> nanoseconds(const std::string& benchmark) const;

  // Writes the JSON file, which is complete or not there.
  void write();

  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;

 private:
  std::map<std::string, double> best_;
  std::string json_path_;
  std::ostringstream json_text_;
  std::optional<benchmark::JSONReporter> json_;
  bool context_reported_ = false;
};

}  // namespace lanemath::bench
