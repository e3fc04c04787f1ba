#include "accuracy/errors.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <tuple>

#include "harness/files.h"

namespace lanemath {
namespace accuracy {
namespace {

constexpr std::string_view head = "operation,variants,width,part,error,at,search,rounded,anywhere";
constexpr std::string_view head_of_shares = "operation,width,part,lanes,rounded,error,at";

std::vector<std::string> split(std::string_view text, char by) {
  std::vector<std::string> parts;
  for (std::size_t end; (end = text.find(by)) != text.npos; text.remove_prefix(end + 1))
    parts.emplace_back(text.substr(0, end));
  parts.emplace_back(text);
  return parts;
}

template <class T, class... Format>
T number(std::string_view text, Format... format) {
  T value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, format...);
  if (error != std::errc{} || end != text.data() + text.size())
    throw std::runtime_error(fmt::format("no number: {}", text));
  return value;
}
double error_in(std::string_view text) {
  const auto value = number<double>(text);
  if (!(value >= 0) || std::isinf(value)) throw std::runtime_error(fmt::format("no error in ulp: {}", text));
  return value;
}

std::size_t operation_in(std::string_view text) {
  for (std::size_t i = 0; i < catalogue.size(); ++i)
    if (catalogue[i].name() == text) return i;
  throw std::runtime_error(fmt::format("no operation: {}", text));
}

std::vector<variant> variants_in(std::string_view text, const operation& o) {
  std::vector<variant> found;
  for (const auto& word : split(text, ' ')) {
    const auto v = std::find_if(variants.begin(), variants.end(), [&](variant each) { return name_of(each) == word; });
    if (v == variants.end() || !o.has(*v)) throw std::runtime_error(fmt::format("no variant: {}", word));
    found.push_back(*v);
  }
  return found;
}

error_record record_in(const std::string& line) {
  const auto field = split(line, ',');
  if (field.size() != 9) throw std::runtime_error("not nine fields");
  error_record r;
  r.index = operation_in(field[0]);
  const auto& o = catalogue[r.index];
  r.variants = variants_in(field[1], o);
  if (!field[2].empty()) {
    r.width = number<int>(field[2]);
    for (auto v : r.variants)
      if (own_width(o, v, r.width) != r.width) throw std::runtime_error("not a standalone form");
  }
  r.part = field[3];
  r.error = error_in(field[4]);
  if (!field[5].empty()) r.at = place_in(field[5], o.sig);
  r.search = field[6];
  if (!field[7].empty()) r.rounded = number<double>(field[7]);
  if (!field[8].empty()) {
    r.anywhere = error_in(field[8]);
    if (*r.anywhere < r.error) throw std::runtime_error("an error above the bound of every processor");
  }
  return r;
}

share share_in(const std::string& line) {
  const auto field = split(line, ',');
  if (field.size() != 7) throw std::runtime_error("not seven fields");
  share s;
  s.index = operation_in(field[0]);
  const auto& o = catalogue[s.index];
  if (!field[1].empty()) {
    s.width = number<int>(field[1]);
    if (own_width(o, variant::standard, s.width) != s.width) throw std::runtime_error("not a standalone form");
  }
  s.part = field[2];
  s.lanes = number<std::uint64_t>(field[3]);
  s.rounded = number<std::uint64_t>(field[4]);
  if (s.lanes % share::block != 0 || s.rounded > s.lanes) throw std::runtime_error("no numbers of lanes");
  s.error = error_in(field[5]);
  s.at = place_in(field[6], o.sig);
  return s;
}

// What `line_in` makes of each line of a file below its head.
template <class Line>
auto read_lines(const std::string& path, std::string_view head, std::string_view content, Line line_in) {
  std::ifstream in(path);
  std::vector<decltype(line_in(std::string()))> lines;
  std::string line;
  if (!std::getline(in, line)) throw std::runtime_error(fmt::format("cannot read {}", path));
  if (line != head) throw std::runtime_error(fmt::format("{} is no file of {}", path, content));
  for (int n = 2; std::getline(in, line); ++n) try {
      lines.push_back(line_in(line));
    } catch (const std::exception& e) {
      throw std::runtime_error(fmt::format("{}:{}: {}", path, n, e.what()));
    }
  if (in.bad()) throw std::runtime_error(fmt::format("cannot read {}", path));
  return lines;
}

std::string line_of(const error_record& r) {
  const auto& o = catalogue[r.index];
  std::string forms;
  for (auto v : r.variants) forms += fmt::format("{}{}", forms.empty() ? "" : " ", name_of(v));
  return fmt::format("{},{},{},{},{},{},{},{},{}\n", o.name(), forms, r.width ? fmt::format("{}", r.width) : "", r.part,
                     text_of_error(r.error), r.at ? text_of_place(o, *r.at) : "", r.search,
                     r.rounded ? fmt::format("{:.4f}", *r.rounded) : "", r.anywhere ? text_of_error(*r.anywhere) : "");
}

bool same_form(const error_record& a, const error_record& b) {
  return a.index == b.index && a.width == b.width &&
         std::any_of(a.variants.begin(), a.variants.end(), [&](variant v) { return b.has(v); });
}

// No form occurs twice, and no part without the whole, whose error is no smaller.
void check_together(const std::vector<error_record>& records) {
  for (const auto& r : records) {
    const auto name = catalogue[r.index].name();
    if (std::count_if(records.begin(), records.end(),
                      [&](const auto& other) { return same_form(r, other) && r.part == other.part; }) != 1)
      throw std::runtime_error(fmt::format("two lines for one form of {}", name));
    if (!r.part.empty() && std::none_of(records.begin(), records.end(), [&](const auto& other) {
          return same_form(r, other) && other.part.empty() && other.error >= r.error;
        }))
      throw std::runtime_error(fmt::format("a part of {} has a larger error than the whole", name));
  }
}

}  // namespace

std::string_view name_of(variant v) { return v == variant::standard ? "default" : suffix(v).substr(1); }

int own_width(const operation& o, variant v, int width) { return o.is_standalone(width, v) ? width : 0; }

bool error_record::has(variant v) const { return std::find(variants.begin(), variants.end(), v) != variants.end(); }

bool error_record::is_of(const operation& o, variant v, int of_width) const {
  return catalogue[index].name() == o.name() && width == own_width(o, v, of_width) && has(v);
}

double error_record::bound() const { return anywhere.value_or(rounded_up(error, 3)); }

std::vector<error_record> read_errors(const std::string& path) {
  auto records = read_lines(path, head, "errors", record_in);
  try {
    check_together(records);
  } catch (const std::exception& e) {
    throw std::runtime_error(fmt::format("{}: {}", path, e.what()));
  }
  return records;
}

void write_errors(const std::string& path, std::vector<error_record> records) {
  std::sort(records.begin(), records.end(), [](const auto& a, const auto& b) {
    const auto key = [](const error_record& r) { return std::tuple(r.index, r.width, r.variants, r.part); };
    return key(a) < key(b);
  });
  std::string text = std::string(head) + '\n';
  for (const auto& r : records) text += line_of(r);
  harness::replace_file(path, text);
}

const std::string& errors_path() {
  static const auto path = harness::installed_or_built(LANEMATH_INSTALLED_ERRORS, LANEMATH_ERRORS);
  return path;
}
const std::vector<error_record>& recorded_errors() {
  static const auto records = read_errors(errors_path());
  return records;
}

std::vector<share> read_shares(const std::string& path) { return read_lines(path, head_of_shares, "shares", share_in); }
void write_shares(const std::string& path, std::vector<share> lines) {
  std::ranges::sort(lines, {}, [](const share& s) { return std::tuple(s.index, s.width, s.part); });
  std::string text = std::string(head_of_shares) + '\n';
  for (const auto& s : lines) {
    const auto& o = catalogue[s.index];
    text += fmt::format("{},{},{},{},{},{},{}\n", o.name(), s.width ? fmt::format("{}", s.width) : "", s.part, s.lanes,
                        s.rounded, text_of_error(s.error), text_of_place(o, s.at));
  }
  harness::replace_file(path, text);
}
std::string shares_path() { return std::filesystem::path(errors_path()).replace_filename("shares.csv"); }

void merge(std::vector<error_record>& records, const error_record& measured) {
  auto found = measured;
  found.error = rounded_up(found.error, 6);
  const auto& o = catalogue[found.index];
  if (found.part.find_first_of(",\n") != found.part.npos) throw std::runtime_error("a comma in the name of a part");
  if (!std::isfinite(found.error))
    throw std::runtime_error(fmt::format("{}: a number for a NaN or the reverse is no error to record", o.name()));
  auto line = std::find_if(records.begin(), records.end(),
                           [&](const auto& r) { return same_form(r, found) && r.part == found.part; });
  if (line == records.end()) line = records.insert(records.end(), found);
  if (line->anywhere && found.error > *line->anywhere)
    throw std::runtime_error(fmt::format("{}: {} ulp are above the bound of every processor, {}", o.name(),
                                         text_of_error(found.error), text_of_error(*line->anywhere)));
  if (found.rounded || found.error > line->error || (found.error == line->error && !line->at)) {
    line->error = found.error;
    line->at = found.at;
    line->search = found.search;
    line->rounded = found.rounded;
  }
  if (!found.part.empty()) {
    found.part.clear();
    found.rounded.reset();
    merge(records, found);
  }
}

arguments place_in(std::string_view text, const signature& sig) {
  const auto words = split(text, ' ');
  arguments at{};
  if (int(words.size()) != sig.arity()) throw std::runtime_error(fmt::format("not the number of arguments: {}", text));
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (!words[i].starts_with("0x") || words[i].size() != 2 + 2 * size_of(sig.arguments[i]))
      throw std::runtime_error(fmt::format("no pattern of a {}: {}", type_name(sig.arguments[i]), words[i]));
    at[i] = number<std::uint64_t>(std::string_view(words[i]).substr(2), 16);
  }
  return at;
}

std::string text_of_place(const operation& o, const arguments& at) {
  std::string text;
  for (int i = 0; i < o.sig.arity(); ++i)
    text += fmt::format("{}0x{:0{}X}", i ? " " : "", at[i], 2 * size_of(o.sig.arguments[i]));
  return text;
}

double rounded_up(double error, int digits) {
  if (!(error > 0) || std::isinf(error)) return error;
  const auto nearest = fmt::format("{:.{}e}", error, digits - 1);
  const double value = std::stod(nearest);
  if (value >= error) return value;
  const int exponent = std::stoi(nearest.substr(nearest.find('e') + 1));
  return std::stod(fmt::format("{:.{}e}", value + std::pow(10, exponent - digits + 1), digits - 1));
}

// 6.15e7, not 6.15e+07.
std::string text_of_error(double error) {
  auto text = fmt::format("{:.6g}", error);
  if (const auto e = text.find("e+"); e != text.npos) text.erase(e + 1, text[e + 2] == '0' ? 2 : 1);
  return text;
}

}  // namespace accuracy

std::optional<double> bound_of(const operation& o, variant v, int width) {
  for (const auto& r : accuracy::recorded_errors())
    if (r.part.empty() && r.is_of(o, v, width)) return r.bound();
  if (is_exact(o.group)) return 0;
  return std::nullopt;
}

}  // namespace lanemath
