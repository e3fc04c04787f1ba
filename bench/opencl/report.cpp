#include "report.h"

#include <fmt/chrono.h>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <ctime>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

namespace lanemath::bench::opencl {
namespace {

// Built-ins with a lower ratio than this are listed.
constexpr double least_ratio = 0.9;

std::optional<double> geometric_mean(const measurements& all, vector_type type, group g) {
  double sum = 0;
  int count = 0;
  for (const auto& m : all)
    if (m.type == type && m.what.group() == g) {
      sum += std::log(m.ratio());
      ++count;
    }
  return count == 0 ? std::nullopt : std::optional(std::exp(sum / count));
}

measurements slower(const measurements& all, vector_type type) {
  measurements found;
  std::ranges::copy_if(all, std::back_inserter(found),
                       [&](const auto& m) { return m.type == type && m.ratio() < least_ratio; });
  std::ranges::sort(found, {}, &measurement::ratio);
  return found;
}

std::string in_quotes(std::string_view text) {
  std::string all;
  for (char c : text)
    if (c == '"' || c == '\\')
      all += {'\\', c};
    else if (static_cast<unsigned char>(c) >= ' ')
      all += c;
  return '"' + all + '"';
}

std::string json(const measurement& m) {
  return fmt::format(
      R"(    {{"builtin": {}, "type": {}, "group": {}, "own": {:.6g}, "lanemath": {:.6g}, "ratio": {:.6g}}})",
      in_quotes(m.what.title()), in_quotes(m.type.name()), in_quotes(title(m.what.group())), m.own, m.lanemath,
      m.ratio());
}

std::string json(const measurements& all, vector_type type) {
  std::vector<std::string> means, names;
  for (auto g : groups)
    if (const auto mean = geometric_mean(all, type, g))
      means.push_back(fmt::format("{}: {:.6g}", in_quotes(title(g)), *mean));
  for (const auto& m : slower(all, type)) names.push_back(in_quotes(m.what.title()));
  return fmt::format(R"(    {{"type": {}, "means": {{{}}}, "slower": [{}]}})", in_quotes(type.name()),
                     fmt::join(means, ", "), fmt::join(names, ", "));
}

template <class Range, class Convert>
std::string json_list(const Range& range, Convert convert) {
  std::vector<std::string> all;
  for (const auto& item : range) all.push_back(convert(item));
  return fmt::format("[\n{}\n  ]", fmt::join(all, ",\n"));
}

[[noreturn]] void fail(const std::string& path) {
  throw std::system_error(errno, std::generic_category(), "cannot write " + path);
}

}  // namespace

void print_heading(const std::vector<vector_type>& types) {
  fmt::print("\n{:30}", "");
  for (auto type : types) fmt::print("{:>29}", type.name());
  fmt::print("\n{:30}", "");
  for (std::size_t i = 0; i < types.size(); ++i) fmt::print("{:>10}{:>10}{:>9}", "own", "lanemath", "ratio");
  fmt::print("\n");
}

void print_row(const measurements& of_one_builtin) {
  fmt::print("{:30}", of_one_builtin.front().what.title());
  for (const auto& m : of_one_builtin) fmt::print("{:>10.3f}{:>10.3f}{:>9.3f}", m.own, m.lanemath, m.ratio());
  fmt::print("\n");
  std::fflush(stdout);
}

void print_summary(const measurements& all, const std::vector<vector_type>& types) {
  fmt::print("\n{:30}", "geometric means of ratios");
  for (auto type : types) fmt::print("{:>9}", type.name());
  fmt::print("\n");
  for (auto g : groups) {
    fmt::print("{:30}", title(g));
    for (auto type : types) {
      const auto mean = geometric_mean(all, type, g);
      fmt::print("{:>9}", mean ? fmt::format("{:.3f}", *mean) : "-");
    }
    fmt::print("\n");
  }
  fmt::print("\nratios below {}\n", least_ratio);
  for (auto type : types) {
    std::vector<std::string> names;
    for (const auto& m : slower(all, type)) names.push_back(fmt::format("{} {:.3f}", m.what.title(), m.ratio()));
    fmt::print("{}: {}\n", type.name(), names.empty() ? "none" : fmt::format("{}", fmt::join(names, ", ")));
  }
}

// Anything but an ordinary file, such as a pipe, is written to directly.
json_file::json_file(std::string path) : path_(std::move(path)), temporary_(path_ + ".new") {
  if (std::filesystem::exists(path_) && !std::filesystem::is_regular_file(path_)) temporary_ = path_;
  file_ = std::fopen(temporary_.c_str(), "w");
  if (!file_) fail(path_);
}

json_file::~json_file() {
  if (!file_) return;
  std::fclose(file_);
  if (temporary_ != path_) std::remove(temporary_.c_str());
}

void json_file::write(const machine& on, const measurements& all, const std::vector<vector_type>& types) {
  fmt::print(file_,
             "{{\n"
             "  \"device\": {},\n"
             "  \"kind\": {},\n"
             "  \"date\": \"{:%FT%TZ}\",\n"
             "  \"unit\": \"nanoseconds a lane\",\n"
             "  \"types\": {},\n"
             "  \"measurements\": {}\n"
             "}}\n",
             in_quotes(on.device), on.kind.empty() ? "null" : in_quotes(on.kind), fmt::gmtime(std::time(nullptr)),
             json_list(types, [&](auto type) { return json(all, type); }),
             json_list(all, [](const auto& m) { return json(m); }));
  if (std::fflush(file_) != 0) fail(path_);
  if (temporary_ != path_ && std::rename(temporary_.c_str(), path_.c_str()) != 0) fail(path_);
  std::fclose(std::exchange(file_, nullptr));
}

}  // namespace lanemath::bench::opencl
